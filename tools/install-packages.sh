#!/usr/bin/env bash
# Installs the packages of the named groups of packages.txt that are missing, with apt, as root or
# through sudo. Says nothing when all are there.
set -euo pipefail

list="$(dirname "$(readlink -f "$0")")/../packages.txt"

fail() {
    echo "install-packages: $*" >&2
    exit 1
}
usage() {
    echo "install-packages: $*" >&2
    exit 2
}

# Prints "package:command<tab>reason" for every package of group $1.
packagesOf() {
    awk -v group="[$1]" '
        /^\[/ { inside = ($1 == group) }
        inside && !/^(#|\[|$)/ { name = $1; sub(/^[^ ]+ +/, ""); print name "\t" $0 }' "$list"
}

# Whether package $1 is there, or command $2, if named, without it.
isInstalled() {
    [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ] ||
        { [ -n "$2" ] && command -v "$2" >/dev/null; }
}

isAvailable() {
    [[ "$(apt-cache policy "$1" 2>/dev/null)" =~ Candidate:\ [0-9] ]]
}

groups="$(sed -nE 's/^\[([a-z0-9-]+)\].*/\1/p' "$list" | xargs)"
[ $# -gt 0 ] || usage "usage: install-packages.sh GROUP... with groups: $groups"
for group in "$@"; do
    [[ " $groups " == *" $group "* ]] || usage "no group '$group' in packages.txt: use $groups"
done
command -v apt-get dpkg-query >/dev/null ||
    fail "no apt here: install the counterparts of the packages in packages.txt by hand"

missing=()
reasons=()
for group in "$@"; do
    while IFS=$'\t' read -r entry reason; do
        IFS=: read -r name command <<<"$entry"
        if ! isInstalled "$name" "$command" && [[ " ${missing[*]-} " != *" $name "* ]]; then
            missing+=("$name")
            reasons+=("$(printf '  %-22s%s' "$name" "$reason")")
        fi
    done < <(packagesOf "$group")
done
[ ${#missing[@]} -gt 0 ] || exit 0

asRoot=()
if [ "$(id -u)" -ne 0 ]; then
    asRoot=(sudo)
    if ! command -v sudo >/dev/null || ! sudo -v; then
        fail "not root, and sudo is missing or refuses; have root run: apt install ${missing[*]}"
    fi
fi

log="$(mktemp)"
trap 'rm -f "$log"' EXIT
runApt() {
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --quiet --yes \
        --option DPkg::Lock::Timeout=300 "$@" >"$log" 2>&1
}
update() {
    runApt update || fail "apt-get update failed: $(grep -m 1 '^[EW]:' "$log" || tail -n 1 "$log")"
}

echo "install-packages: installing what is missing to $*:"
printf '%s\n' "${reasons[@]}"

for name in "${missing[@]}"; do
    if ! isAvailable "$name"; then
        update
        break
    fi
done
for index in "${!missing[@]}"; do
    read -r name reason <<<"${reasons[index]}"
    isAvailable "$name" || fail "this system has no package $name ($reason): use Debian 12," \
        "or another Debian or Ubuntu that has it"
done

install=(install --no-install-recommends "${missing[@]}")
if ! runApt "${install[@]}"; then
    update # the package lists may be older than what the mirror still keeps
    runApt "${install[@]}" ||
        fail "apt-get install failed: $(grep -m 1 '^E:' "$log" || tail -n 1 "$log")"
fi
