#!/usr/bin/env bash
# Shows what the add-on does: draws every scene into one page, and prints what typed numbers are
# described as.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")/.."
readonly simulator=build/bin/phone-simulator gallery=build/demo
if [ ! -x "$simulator" ]; then
    echo "demo: no $simulator: run 'make demo', which builds it" >&2
    exit 1
fi

"$simulator" gallery --out "$gallery"
"$simulator" describe 10086 13800138000 02012345678
echo
echo "All scenes, with and without the add-on: $PWD/$gallery/index.html"
echo "Your own number: $simulator describe NUMBER, or $simulator --help"
