#!/usr/bin/env bash
# Formats every C++ and Python file of the project, or with --check only names those that are not.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")/.."
case "${1-}" in
"") mode=(-i) pythonMode=() ;;
--check) mode=(--dry-run -Werror) pythonMode=(--check) ;;
*)
    echo "usage: format.sh [--check]" >&2
    exit 2
    ;;
esac
for tool in clang-format-19 black; do
    if ! command -v "$tool" >/dev/null; then
        echo "format: no $tool: run tools/install-packages.sh lint" >&2
        exit 1
    fi
done

mapfile -d '' files < <(find src simulator tests bench device -name '*.[ch]pp' -print0 | sort -z)
failed=
printf '%s\0' "${files[@]}" |
    xargs -0 -n 20 -P "$(nproc)" clang-format-19 --ferror-limit=1 "${mode[@]}" || failed=yes
if ! words="$(black "${pythonMode[@]}" device tests/device tools 2>&1)"; then
    echo "$words" >&2
    failed=yes
fi
if [ -n "$failed" ]; then
    echo "format: the files named above are not formatted: run 'make format'" >&2
    exit 1
fi
echo "format: ${#files[@]} C++ files and the Python files formatted"
