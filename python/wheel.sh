#!/usr/bin/env bash
# Makes a wheel of the package in a build folder, with the library inside, into that folder.
# Usage: wheel.sh PYTHON-BUILD-FOLDER LIBRARY LICENCE...
set -eu
build=$1 library=$2
version=$(sed -n 's/^Version: //p' "$build/METADATA")
stage=$build/wheel/orvane-$version
info=$stage/orvane-$version.dist-info
rm -rf "$build/wheel" "$build"/*.whl
mkdir -p "$info"
cp -rL "$build/orvane" "$stage"
rm -rf "$stage/orvane/__pycache__"
cp -L "$library" "$stage/orvane"
strip --strip-unneeded "$stage"/orvane/*.so*
patchelf --set-rpath '$ORIGIN' "$stage"/orvane/_core.*.so
cp "$build/METADATA" "${@:3}" "$info"
printf '%s\n' 'Wheel-Version: 1.0' 'Generator: orvane' 'Root-Is-Purelib: false' 'Tag: cp311-cp311-linux_x86_64' \
    > "$info/WHEEL"
/usr/bin/python3 -m wheel pack "$stage" --dest-dir "$build"
