#!/usr/bin/env bash
# Where things land when a build is installed in unusual ways: in components, under /usr, into folders outside the
# prefix, as a second kind beside the first; and that licences and documents are there, without a dead link.
# Usage: check_install.sh BUILD-FOLDER       a shared build with the tests' options
set -eu
cd "$(dirname "$0")/.."
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
step() { current=$1; }
trap 'echo "failed: $current" >&2' ERR

# expect WHAT IS WANTED
expect() { [ "$2" = "$3" ] || { echo "$1: '$2', expected '$3'"; exit 1; }; }
pkg_config() { PKG_CONFIG_PATH=$(dirname "$(find "$1" -name orvane.pc)") pkg-config "${@:2}" orvane; }

step "components"
for component in runtime development documentation; do
    cmake --install "$build" --prefix "$work/$component" --component orvane_$component
done
expect "files of the runtime" "$(cd "$work/runtime" && find . ! -type d -printf '%f\n' | sort | tr '\n' ' ')" \
    "$(cd "$build/src" && echo LICENSE THIRD_PARTY_NOTICES liborvane.so.*) "
[ -e "$work/development/include/orvane/Image.h" ]
[ ! -e "$work/documentation/include" ]

step "licences"
for component in runtime development; do
    cmp LICENSE "$work/$component/share/doc/orvane/LICENSE"
    grep -q 'University of Tennessee' "$work/$component/share/doc/orvane/THIRD_PARTY_NOTICES"
done
# What is built in says what has to be said.
[ ! -e build/lapack/LICENSE ] ||
    python3 -c 'from pathlib import Path
assert Path("build/lapack/LICENSE").read_text().strip() in Path("THIRD_PARTY_NOTICES").read_text()'

step "documents"
documents=$work/documentation/share/doc/orvane
ls "$documents"/{README,CHANGELOG}.md "$documents"/docs/windows.md > /dev/null
dead=$(cd "$documents" && find . -name '*.md' | while read -r page; do
    grep -oP '\]\(\K[^)#:]+(?=[)#])' "$page" | grep -E '\.[a-z]+$' | while read -r link; do
        [ -e "$(dirname "$page")/$link" ] || echo "$page: $link"
    done
done)
expect "dead links" "$dead" ""

step "under /usr"
DESTDIR=$work/root cmake --install "$build" --prefix /usr
expect "pkg-config under /usr" \
    "$(pkg_config "$work/root" --cflags --libs | sed 's/ *$//')" "-I/usr/include/orvane -lorvane"

step "folders outside the prefix, spaces in their names, and what is built if nothing is asked for"
cmake -S . -B "$work/build" -G Ninja -DCMAKE_INSTALL_PREFIX="$work/the prefix" \
    -DCMAKE_INSTALL_LIBDIR="$work/the libraries"
expect "build type" "$(sed -n 's/^CMAKE_BUILD_TYPE:.*=//p' "$work/build/CMakeCache.txt")" Release
expect "warnings that stop a build" "$(grep -c -e -Werror "$work/build/build.ninja")" 0
expect "tests" "$(grep -c -e googletest "$work/build/build.ninja")" 0
cp -P "$build"/src/liborvane.so* "$work/build/src"
cmake --install "$work/build"
cmake -S examples/hello -B "$work/hello" -DOrvane_DIR="$work/the libraries/cmake/Orvane"
cmake --build "$work/hello"
"$work/hello/hello" > "$work/expected"
eval "g++ examples/hello/hello.cpp $(pkg_config "$work/the libraries" --cflags --libs) -o '$work/by-pkg-config'"
LD_LIBRARY_PATH="$work/the libraries" "$work/by-pkg-config" | cmp - "$work/expected"
