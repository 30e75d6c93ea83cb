#!/bin/sh
# Puts the sources of LAPACK 3.11 into the given directory, from Debian's source package. Asks the package
# archive with lists of its own: the system's package sources stay as they are.
set -eu
destination=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work"
mkdir -p "$work/parts" "$work/lists/partial"
cat > "$work/parts/source.sources" <<SOURCES
Types: deb-src
URIs: http://deb.debian.org/debian
Suites: bookworm
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
SOURCES
cd "$work"
apt="apt-get -qq -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts=$work/parts -o Dir::State::lists=$work/lists"
$apt update
$apt source --download-only lapack=3.11.0-2
mkdir -p "$destination.part"
tar -xzf lapack_3.11.0.orig.tar.gz -C "$destination.part" --strip-components=1
rm -rf "$destination"
mv "$destination.part" "$destination"
