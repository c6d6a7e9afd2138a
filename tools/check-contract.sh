#!/usr/bin/env bash
# Checks a built libZQDial.so against what other parties rely on (tools/contract): its entry point,
# its exports, and what it takes from the process. Prints one line for each violation.
set -euo pipefail
export LC_ALL=C # one collation for sort and comm

contract="$(dirname "$(readlink -f "$0")")/contract"
if [ $# -ne 1 ]; then
    echo "usage: check-contract.sh LIBRARY" >&2
    exit 2
fi
readonly library="$1"
if [ ! -r "$library" ]; then
    echo "check-contract: cannot read $library: build it with 'cmake --build --preset host'" >&2
    exit 1
fi

violations=0
violation() {
    echo "check-contract: $library: $*" >&2
    violations=$((violations + 1))
}

listed() { sed -E '/^(#|$)/d' "$contract/$1" | sort -u; }
missing() { comm -23 <(echo "$1") <(echo "$2") | sed '/^$/d'; } # lines of $1 that $2 lacks

dynamic="$(readelf --dynamic --wide "$library")"
sections="$(readelf --section-headers --wide "$library")"
segments="$(readelf --program-headers --wide "$library")"
defined="$(nm --dynamic --defined-only "$library")"
exports="$(awk '{ print $3 }' <<<"$defined" | sort -u)"
# Names with a version belong to the C and C++ libraries, the rest to the process's frameworks.
imports="$(nm --dynamic --undefined-only "$library" | awk '$2 !~ /@/ { print $2 }' | sort -u)"
needed="$(sed -nE 's/.*\(NEEDED\).*\[(.*\.so)[.0-9]*\]$/\1/p' <<<"$dynamic" | sort -u)"

init="$(awk '$2 == "(INIT)" { print $3 }' <<<"$dynamic")"
entry="$(awk '$3 == "ZQDialMain" { print $1 }' <<<"$defined")"
if [ -z "$init" ]; then
    violation "has no DT_INIT; link it with -Wl,-init,ZQDialMain"
elif [ -z "$entry" ] || [ $((init)) -ne $((16#$entry)) ]; then
    violation "DT_INIT is $init, but ZQDialMain is at ${entry:-no address}"
fi

for tag in INIT_ARRAY FINI_ARRAY PREINIT_ARRAY FINI; do
    if grep -qF "($tag)" <<<"$dynamic"; then
        violation "has DT_$tag: something runs at load or unload beside ZQDialMain"
    fi
done
for section in .ctors .dtors .init_array .fini_array; do
    if grep -qF " $section " <<<"$sections"; then
        violation "has section $section: a static initialiser or destructor was compiled in"
    fi
done
if grep -qE '^ +TLS ' <<<"$segments"; then
    violation "has thread-local variables, which the device cannot hold"
fi
if grep -qF "(RPATH)" <<<"$dynamic"; then
    violation "has DT_RPATH, which would defeat LD_LIBRARY_PATH; link it with --enable-new-dtags"
fi

for name in $(missing "$(listed exports.txt)" "$exports"); do
    violation "does not export $name"
done
for name in $(missing "$exports" "$(listed exports.txt)"); do
    violation "exports $name, which tools/contract/exports.txt does not list"
done

readonly runtime='^(objc|class|object|method|ivar|sel|protocol|property)_|^__objc_'
for name in $(missing "$(grep -vE "$runtime" <<<"$imports" || true)" "$(listed imports.txt)"); do
    violation "takes $name from the process, which tools/contract/imports.txt does not list"
done

for name in $(missing "$(listed needed.txt)" "$needed"); do
    violation "does not name $name as needed"
done
readonly compilers='^lib(stdc\+\+|m|gcc_s|c)\.so$'
for name in $(missing "$(grep -vE "$compilers" <<<"$needed" || true)" "$(listed needed.txt)"); do
    violation "names $name as needed, which tools/contract/needed.txt does not list"
done

if [ "$violations" -ne 0 ]; then
    exit 1
fi
echo "check-contract: $library keeps the contract ($(wc -l <<<"$exports") exports)"
