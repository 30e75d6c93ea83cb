#!/usr/bin/env bash
# Installs the packages of both Debian architectures side by side, by dpkg and into a folder of its own, and builds and
# runs a host with either. (What they depend on is the machine's business: it is not in that folder.)
# Usage: check_debian.sh BUILD-FOLDER BUILD-FOLDER       after check_archive.sh of each
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
trap '"${as_root[@]}" rm -rf "$work"' EXIT
root=$work/root
mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
touch "$root/var/lib/dpkg/status"
in_root() { "${as_root[@]}" env dpkg --root="$root" --force-depends --force-unsafe-io "$@"; }

in_root --add-architecture i386
in_root --install "$1"/package/*.deb "$2"/package/*_i386.deb 2>&1
installed=$(dpkg-query --admindir="$root/var/lib/dpkg" -W -f '${db:Status-Abbrev}${Package}:${Architecture} ')
for package in liborvane0 liborvane-dev; do
    for architecture in amd64 i386; do
        case $installed in
        *"i"?" $package:$architecture"*) ;;
        *) echo "$package:$architecture is not installed: $installed"; exit 1 ;;
        esac
    done
done

for options in "" "-DCMAKE_CXX_FLAGS=-m32 -DCMAKE_LIBRARY_ARCHITECTURE=i386-linux-gnu"; do
    # shellcheck disable=SC2086
    cmake -S examples/hello -B "$work/hello${options:+32}" -G Ninja -DCMAKE_PREFIX_PATH="$root/usr" $options
    cmake --build "$work/hello${options:+32}"
    "$work/hello${options:+32}/hello" | tail -n 1
done
