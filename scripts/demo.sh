#!/usr/bin/env bash
# Builds and installs the library, builds the gallery against the installed package, and runs it.
# Usage: scripts/demo.sh [PICTURE]     PNG or JPEG; without one, photographs from a Debian package.
# With ORVANE_PREFIX the library is not built but taken from where that says it is installed.
set -eu
cd "$(dirname "$0")/.."
picture=${1:-}
if [ -n "$picture" ] && [ ! -r "$picture" ]; then
    echo "cannot read $picture" >&2
    exit 1
fi

scripts/setup.sh demo
prefix=${ORVANE_PREFIX:-$PWD/build/demo/prefix}
quietly() { "$@" > build/demo.log 2>&1 || { tail -n 20 build/demo.log >&2; exit 1; }; }
mkdir -p build/demo
if [ -z "${ORVANE_PREFIX:-}" ]; then
    echo "building the library"
    quietly cmake -S . -B build/demo/library -G Ninja -DCMAKE_BUILD_TYPE=Release -DORVANE_BUILD_TESTS=OFF
    quietly cmake --build build/demo/library
    quietly cmake --install build/demo/library --prefix "$prefix"
fi
echo "building the gallery"
quietly cmake -S examples/gallery -B build/demo/gallery -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_PREFIX_PATH="$prefix" -DOrvane_DIR="$(dirname "$(find "$prefix" -name OrvaneConfig.cmake)")"
quietly cmake --build build/demo/gallery

# Without a network the gallery takes the given picture for all others, and a chirp for the sound.
samples=build/demo/python3-skimage/usr/lib/python3/dist-packages/skimage/data
if ! scripts/fetch_package.sh python3-skimage build/demo && [ -z "$picture" ]; then
    echo "give a picture of your own: scripts/demo.sh PICTURE" >&2
    exit 1
fi
scripts/fetch_package.sh alsa-utils build/demo || true
sound=build/demo/alsa-utils/usr/share/sounds/alsa/Front_Center.wav

rm -rf build/demo/page
mkdir build/demo/page
echo "running the gallery on ${picture:=$samples/coffee.png}"
build/demo/gallery/gallery "$picture" build/demo/page "$samples" "$sound"
echo "the page: $PWD/build/demo/page/index.html"
