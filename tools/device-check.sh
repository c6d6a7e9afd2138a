#!/usr/bin/env bash
# Compiles every source of the library for both device targets, warnings being errors, and looks for
# what must not be in the object files. Shows each failure and ends with a count.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")/.."
readonly out=build/device-check targets=(arm64 armv7)

# Run code at load, or need a newer loader: initialisers, class lists, thread-local variables.
readonly forbidden='__mod_(init|term)_func|__init_offsets|__objc_[a-z]*list|__thread_[a-z]*'

# Compiles source $2 for target $1; what is wrong with it goes into a .failure file.
checkOne() {
    local target="$1" source="$2" object="$out/$1/${2%.cpp}.o" found
    mkdir -p "$(dirname "$object")"
    if ! found="$(clang++-19 @device/flags/common.rsp "@device/flags/$target.rsp" -I src \
        -c "$source" -o "$object" 2>&1)"; then
        printf 'device-check: %s does not compile for %s:\n%s\n' "$source" "$target" "$found" \
            >"$object.failure"
    elif found="$(llvm-objdump-19 --section-headers "$object" | grep -oE "$forbidden")"; then
        printf 'device-check: %s has section %s for %s\n' "$source" "${found//$'\n'/, }" "$target" \
            >"$object.failure"
    fi
}

if [ $# -eq 2 ]; then # called below, once for each target and source
    checkOne "$1" "$2"
    exit
elif [ $# -ne 0 ]; then
    echo "usage: device-check.sh" >&2
    exit 2
fi
for tool in clang++-19 llvm-objdump-19; do
    if ! command -v "$tool" >/dev/null; then
        echo "device-check: no $tool: run tools/install-packages.sh device" >&2
        exit 1
    fi
done
mapfile -t sources < <(find src -name '*.cpp' | sort)
if [ ${#sources[@]} -eq 0 ]; then
    echo "device-check: no sources in src/" >&2
    exit 1
fi

rm -rf "$out"
for target in "${targets[@]}"; do
    printf '%s\0' "${sources[@]/#/$target:}"
done | tr ':' '\0' | xargs -0 -n 2 -P "$(nproc)" tools/device-check.sh

mapfile -t failures < <(find "$out" -name '*.failure' | sort)
if [ ${#failures[@]} -ne 0 ]; then
    cat "${failures[@]}" >&2
fi
echo "device-check: ${#sources[@]} sources for ${targets[*]/%/-apple-ios7.0}:" \
    "${#failures[@]} failures"
[ ${#failures[@]} -eq 0 ]
