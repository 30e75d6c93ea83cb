#!/usr/bin/env bash
# Makes the package of a build (a .deb or, of the Windows build, a .zip), unpacks it, and builds and runs a
# small host against what was in it.
# Usage: check_archive.sh BUILD-FOLDER
set -eu
cd "$(dirname "$0")/.."
build=$PWD/$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

rm -rf "$build/package"
(cd "$build" && cpack)
package=$(find "$build/package" -maxdepth 1 -name "*.deb" -o -maxdepth 1 -name "*.zip")
options=() host=hello run=()
case $package in
*_i386.deb) dpkg-deb -x "$package" "$work"; prefix=$work/usr options=(-DCMAKE_CXX_FLAGS=-m32 -DCMAKE_LIBRARY_ARCHITECTURE=i386-linux-gnu) ;;
*.deb) dpkg-deb -x "$package" "$work"; prefix=$work/usr ;;
*.zip)
    (cd "$work" && cmake -E tar xf "$package")
    prefix=$work/$(basename "$package" .zip)
    options=(--toolchain "$PWD/cmake/toolchain-windows.cmake" -DCMAKE_CXX_FLAGS=-static) host=hello.exe run=(scripts/wine.sh)
    ;;
esac
[ -e "$prefix/include/orvane/ImageProcessingWrapper.h" ]

cmake -S examples/hello -B "$work/hello" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" -DOrvane_DIR="$(dirname "$(find "$prefix" -name OrvaneConfig.cmake)")" "${options[@]}"
cmake --build "$work/hello"
case $package in *.zip) cp "$prefix/bin/orvane.dll" "$work/hello" ;; esac
"${run[@]}" "$work/hello/$host" | tr -d '\r' | tee "$work/output"
grep -q '^203 + 100: 255, halved 152$' "$work/output"
ls -l "$package"
