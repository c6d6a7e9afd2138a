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
echo
"$simulator" describe 17700000061 13800000000 4002001818 075501238001 02101065012 02000000000 \
    +442079460123 13800130011 66668888 13
echo
echo "All scenes, with and without the add-on: $PWD/$gallery/index.html"
echo "Your own number: $simulator describe NUMBER, or $simulator --help"
