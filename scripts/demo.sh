#!/usr/bin/env bash
# Builds and installs the library, builds the gallery against the installed package, and runs it.
# Usage: scripts/demo.sh [PICTURE]     PNG or JPEG; without one, a photograph from a Debian package.
set -eu
cd "$(dirname "$0")/.."
picture=${1:-}
if [ -n "$picture" ] && [ ! -r "$picture" ]; then
    echo "cannot read $picture" >&2
    exit 1
fi

scripts/setup.sh demo
quietly() { "$@" > build/demo.log 2>&1 || { tail -n 20 build/demo.log >&2; exit 1; }; }
mkdir -p build/demo/page
echo "building the library"
quietly cmake -S . -B build/demo/library -G Ninja -DCMAKE_BUILD_TYPE=Release -DORVANE_BUILD_TESTS=OFF
quietly cmake --build build/demo/library
quietly cmake --install build/demo/library --prefix build/demo/prefix
echo "building the gallery"
quietly cmake -S examples/gallery -B build/demo/gallery -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH="$PWD/build/demo/prefix"
quietly cmake --build build/demo/gallery

# fetch PACKAGE: unpacks a Debian package into the build folder; that spares its installation.
fetch() {
    [ -d "build/demo/$1" ] && return
    echo "fetching $1 from Debian"
    (cd build/demo && { apt-get download -q "$1" || { apt-get update -q && apt-get download -q "$1"; } } > fetch.log 2>&1) || {
        echo "could not fetch $1; is there a network? Give a picture of your own: scripts/demo.sh PICTURE" >&2
        exit 1
    }
    dpkg -x build/demo/"$1"_*.deb "build/demo/$1"
}
if [ -z "$picture" ]; then
    fetch lxqt-themes
    picture=build/demo/lxqt-themes/usr/share/lxqt/wallpapers/Valendas.png
fi

# Without a network the gallery does without the sound.
sound=
if (fetch alsa-utils) > /dev/null 2>&1; then sound=build/demo/alsa-utils/usr/share/sounds/alsa/Front_Center.wav; fi

echo "running the gallery on $picture"
build/demo/gallery/gallery "$picture" build/demo/page ${sound:+"$sound"}
echo "the page: $PWD/build/demo/page/index.html"
