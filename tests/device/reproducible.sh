#!/usr/bin/env bash
# Builds the device library once more, from a copy of the sources in another place, and compares it and
# its package with those of the given build: the same sources must give the same bytes.
set -euo pipefail

if [ $# -ne 2 ]; then
    echo "usage: reproducible.sh REPOSITORY BUILD" >&2
    exit 2
fi
readonly repository="$1" first="$2"
if [ ! -r "$first/libZQDial.dylib" ]; then
    echo "reproducible: no $first/libZQDial.dylib: run 'make device'" >&2
    exit 1
fi

copy="$(mktemp -d)"
trap 'rm -rf "$copy"' EXIT
for part in src device cmake tools tests; do
    cp -r "$repository/$part" "$copy/$part"
done
slices="$(sed -n 's/^SLICES:STRING=//p' "$first/CMakeCache.txt")"
host="$(sed -n 's/^ZQDIAL_SEARCH_HOST:STRING=//p' "$first/CMakeCache.txt")"
cmake -S "$copy/device" -B "$copy/second build" -G Ninja "-DSLICES=$slices" \
    "-DZQDIAL_SEARCH_HOST=$host" >/dev/null
cmake --build "$copy/second build" >/dev/null

for file in "$first"/libZQDial.dylib "$first"/*.deb; do
    if [ -e "$file" ]; then # one slice alone is not packaged
        cmp "$file" "$copy/second build/$(basename "$file")"
        echo "reproducible: $(basename "$file"): $(stat -c %s "$file") bytes, the same twice"
    fi
done
