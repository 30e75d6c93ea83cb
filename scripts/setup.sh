#!/usr/bin/env bash
# Installs the Debian packages that a task needs and this machine lacks.
# Usage: scripts/setup.sh build|test|demo|bench ...      Safe to run twice; needs root or sudo only when
# something is missing.
set -u
cd "$(dirname "$0")/.." || exit 1

packages() {
    sed -n "s/^$1: *//p" scripts/packages.txt
}

missing=()
for task in build "$@"; do
    for package in $(packages "$task"); do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "installing: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo > /dev/null || { echo "not root and no sudo; please install: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
log=$(mktemp)
"${as_root[@]}" apt-get update -q > "$log" 2>&1 || echo "apt-get update failed; trying with the lists there are" >&2
# Where the security archive is ahead of the main one, the packages do not fit together without -t.
if ! "${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}" >> "$log" 2>&1 &&
   ! "${as_root[@]}" apt-get install -y -q --no-install-recommends -t bookworm "${missing[@]}" >> "$log" 2>&1; then
    tail -n 5 "$log" >&2
    echo "could not install: ${missing[*]} (is there a network?)" >&2
    exit 1
fi
rm -f "$log"
