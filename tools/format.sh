#!/usr/bin/env bash
# Formats every C++ file of the project, or with --check only names those that are not formatted.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")/.."
case "${1-}" in
"") mode=(-i) ;;
--check) mode=(--dry-run -Werror) ;;
*)
    echo "usage: format.sh [--check]" >&2
    exit 2
    ;;
esac
if ! command -v clang-format-19 >/dev/null; then
    echo "format: no clang-format-19: run tools/install-packages.sh lint" >&2
    exit 1
fi

mapfile -d '' files < <(find src simulator tests bench -name '*.[ch]pp' -print0 | sort -z)
if ! printf '%s\0' "${files[@]}" |
    xargs -0 -n 20 -P "$(nproc)" clang-format-19 --ferror-limit=1 "${mode[@]}"; then
    echo "format: the files named above are not formatted: run 'make format'" >&2
    exit 1
fi
echo "format: ${#files[@]} files formatted"
