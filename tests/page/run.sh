#!/usr/bin/env bash
# Checks the types and the format of the page, and uses it in a real browser: all journeys, or those
# of the named files.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")"
for tool in node npm; do
    if ! command -v "$tool" >/dev/null; then
        echo "page-test: no $tool: run tools/install-packages.sh page" >&2
        exit 1
    fi
done
if ! cmp --silent package-lock.json node_modules/.installed; then
    npm ci --silent
    cp package-lock.json node_modules/.installed
fi

readonly tools=node_modules/.bin page=../../simulator/page
"$tools/tsc" --project "$page"
"$tools/tsc" --project .
"$tools/prettier" --log-level warn --check "$page/*.js" ../../simulator/stage/gallery/*.js '*.js'
if [ $# -eq 0 ]; then
    set -- *.test.js
fi
node --test --test-concurrency=2 "$@"
