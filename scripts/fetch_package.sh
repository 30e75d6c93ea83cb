#!/usr/bin/env bash
# Unpacks a Debian package into a folder, which spares its installation; nothing is done when it is there already.
# Usage: scripts/fetch_package.sh PACKAGE FOLDER
set -eu
[ -d "$2/$1" ] && exit 0
mkdir -p "$2"
cd "$2"
echo "fetching $1 from Debian"
{ apt-get download -q "$1" || { apt-get update -q && apt-get download -q "$1"; } } > fetch.log 2>&1 || {
    echo "could not fetch $1; is there a network?" >&2
    exit 1
}
dpkg -x "$1"_*.deb "$1.part"
mv "$1.part" "$1"
rm -f "$1"_*.deb
