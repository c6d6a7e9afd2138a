#!/usr/bin/env bash
# Runs clang-tidy over every source that the given build folder compiles (build/ by default), and over
# the device library's loader as its processors' compilers see it; prints each finding once, then
# their count. Headers are read with the sources that include them.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")/.."
readonly build="${1-build}"
if [ ! -r "$build/compile_commands.json" ]; then
    echo "lint: no $build/compile_commands.json: run 'cmake --preset host'" >&2
    exit 1
fi
if ! command -v clang-tidy-19 >/dev/null; then
    echo "lint: no clang-tidy-19: run tools/install-packages.sh lint" >&2
    exit 1
fi

mapfile -t sources < <(sed -nE "s|^ *\"file\": \"$PWD/(.*\.cpp)\",?$|\1|p" \
    "$build/compile_commands.json" | grep -E '^(src|simulator|tests|bench|device)/' | sort -u)
if [ ${#sources[@]} -eq 0 ]; then
    echo "lint: $build compiles no source of src, simulator, tests, bench or device" >&2
    exit 1
fi

mapfile -t -O ${#sources[@]} sources < <(find device/loader -name '*.cpp' | sort)
for triple in aarch64-linux-gnu arm-linux-gnueabi; do
    if [ ! -e "/usr/lib/gcc-cross/$triple/12/include/objc" ]; then
        echo "lint: no headers of $triple: run tools/install-packages.sh qemu qemu-armv7" >&2
        exit 1
    fi
done

# Every source that clang-tidy complains about leaves a report, and its other output beside it.
reports="$(mktemp -d)"
readonly finding='^[^ ].*: (warning|error): .*\]$'
trap 'rm -rf "$reports"' EXIT
# shellcheck disable=SC2016 # the inner shell expands these
printf '%s\0' "${sources[@]}" | REPORTS="$reports" xargs -0 -n 1 -P "$(nproc)" bash -c '
    report="$(mktemp -p "$REPORTS")"
    how=(-p "$0" "$1")
    triple=aarch64-linux-gnu
    case "$1" in
    device/loader/armv7/*) triple=arm-linux-gnueabi ;;&
    device/loader/*)
        how=("$1" -- --target=$triple -std=c++20 -I device/loader
            "-DZQDIAL_IMPORTS=\"imports\"" "-DZQDIAL_PROGRAM_IMPORTS=\"of a program\""
            -idirafter /usr/lib/gcc-cross/$triple/12/include)
        ;;
    esac
    if clang-tidy-19 --quiet --extra-arg=-Wno-unknown-warning-option "${how[@]}" \
        >"$report" 2>"$report.log"; then
        rm "$report" "$report.log"
    fi' "$build"

# A finding is a line that ends in its check's name, with the lines below it that show the place.
mapfile -t failed < <(find "$reports" -type f ! -name '*.log')
count=0
if [ ${#failed[@]} -ne 0 ]; then
    awk -v finding="$finding" '$0 ~ finding { shown = !seen[$0]++ } shown' "${failed[@]}"
    count="$(awk -v finding="$finding" '$0 ~ finding && !seen[$0]++ { n++ } END { print n + 0 }' \
        "${failed[@]}")"
fi
for report in "${failed[@]}"; do
    if ! grep -qE "$finding" "$report"; then # clang-tidy itself failed: its own words say why
        cat "$report" "$report.log" >&2
    fi
done
echo "lint: ${#sources[@]} sources checked, $count findings"
[ ${#failed[@]} -eq 0 ]
