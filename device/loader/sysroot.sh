#!/usr/bin/env bash
# Unpacks this system's packages for another processor into a folder, from the package sources that
# this machine has anyway: those of a list, which says what they are for. Nothing is installed, and
# no foreign architecture is added, since such packages would take the place of this machine's own.
set -euo pipefail

if [ $# -ne 3 ]; then
    echo "usage: sysroot.sh ARCHITECTURE FOLDER LIST" >&2
    exit 2
fi
readonly architecture="$1" folder="$2" list="$3"
fail() {
    echo "sysroot: $*" >&2
    exit 1
}

rmdir "$folder" 2>/dev/null || true # ninja makes it beforehand
if [ -e "$folder" ] && [ ! -e "$folder/complete" ]; then
    fail "$folder is half unpacked: remove it and try again"
fi
mapfile -t packages < <(sed 's/#.*//' "$list" | xargs -n 1)

mkdir -p "$(dirname "$folder")"
work="$(mktemp -d "$folder.XXXXXX")"
trap 'rm -rf "$work"' EXIT
mkdir -p "$work"/{state/lists,cache/archives}/partial "$work"/{packages,root}
: >"$work/status"
cat >"$work/apt.conf" <<END
APT::Architecture "$architecture";
APT::Architectures { "$architecture"; };
APT::Sandbox::User "";
Dir::State "$work/state";
Dir::State::status "$work/status";
Dir::Cache "$work/cache";
Acquire::Languages "none";
Acquire::Retries "2";
END
fetch() {
    (cd "$work/packages" && APT_CONFIG="$work/apt.conf" apt-get --quiet=2 "$@") \
        >>"$work/log" 2>&1
}
if ! fetch update || ! fetch download "${packages[@]}"; then
    reason="$(grep -m 1 -E '^(W: Failed|E:)' "$work/log" || tail -n 1 "$work/log")"
    fail "cannot fetch the $architecture packages: ${reason#?: }: see that this machine reaches" \
        "its package sources, and try again"
fi
for package in "$work"/packages/*.deb; do
    dpkg-deb --extract "$package" "$work/root" ||
        fail "cannot unpack $(basename "$package"): make room, and try again"
done
# Linkers ask for libraries without their versions, by names that development packages bring.
for library in "$work"/root/{usr/,}lib/*-linux-gnu*/lib*.so.*; do
    [ -e "${library%%.so.*}.so" ] || ln -sf "$(basename "$library")" "${library%%.so.*}.so"
done

# Only what is whole gets its name.
ls "$work/packages" >"$work/root/complete"
rm -rf "$folder"
mv "$work/root" "$folder"
