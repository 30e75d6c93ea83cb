#!/usr/bin/env bash
# Makes the packages of a build (.debs or, of the Windows build, a .zip), looks whether they carry what they must,
# unpacks them, and builds and runs a small host against what was in them.
# Usage: check_archive.sh BUILD-FOLDER
set -eu
cd "$(dirname "$0")/.."
build=$PWD/$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
host=hello run=() options=()

# expect WHAT PATTERN: standard input has it.
expect() { grep -Eq -- "$2" || { echo "$1: no '$2'"; exit 1; }; }

debian_package() {
    local name copyright=$work/usr/share/doc
    name=$(dpkg-deb -f "$1" Package)
    dpkg-deb -x "$1" "$work"
    expect "$name" 'University of Tennessee' < "$copyright/$name/copyright"
    case $name in
    liborvane0)
        expect "$1" '^(lib(c|stdc\+\+)6 \(>= [0-9.]+\)(, |$)){2}$' < <(dpkg-deb -f "$1" Depends)
        expect "$1" "^lib${triplet/\//\\/}\$" < <(cd "$work/usr" && find lib -name liborvane.so.0 -printf '%h\n')
        ;;
    liborvane-dev) expect "$1" '^liborvane0 \(= ' < <(dpkg-deb -f "$1" Depends) ;;
    esac
    case $name in
    liborvane-doc) ;;
    liborvane*) expect "$1" '^same$' < <(dpkg-deb -f "$1" Multi-Arch) ;;
    esac
}

# The package is whole, its example is built from what is in it, and the project file names what is there.
windows_package() {
    local project=$prefix/examples/windows/host.vcxproj name
    ls "$prefix"/{LICENSE,THIRD_PARTY_NOTICES,README.md,CHANGELOG.md,docs/windows.md,lib/orvane.def} > /dev/null
    python3 -c 'import sys, xml.dom.minidom as dom; dom.parse(sys.argv[1])' "$project"
    grep -oP '\$\(OrvaneDir\)\K[\w\\.]+' "$project" | tr '\\' / | sort -u | while read -r name; do
        ls -d "$prefix/$name" || exit 1
    done
    grep -oP '<ClCompile Include="\K[^"]+' "$project" | while read -r name; do
        ls "$(dirname "$project")/$name" || exit 1
    done
    i686-w64-mingw32-g++-posix -std=c++11 -Wall -Wextra -Werror -I"$prefix/include/orvane" -I"$prefix/include" \
        "$prefix/examples/windows/host.cpp" "$prefix/lib/liborvane.dll.a" -static -o "$prefix/bin/host.exe"
    scripts/wine.sh "$prefix/bin/host.exe" | tr -d '\r' | tee "$work/output"
    grep -q '^halved: 150 150 152 6$' "$work/output"
}

rm -rf "$build/package"
(cd "$build" && cpack)
mapfile -t packages < <(find "$build/package" -maxdepth 1 -name "*.deb" -o -maxdepth 1 -name "*.zip")
case ${packages[*]} in
*.deb*)
    triplet=/x86_64-linux-gnu prefix=$work/usr
    case ${packages[*]} in
    *_i386.deb*) triplet=/i386-linux-gnu options=(-DCMAKE_CXX_FLAGS=-m32 -DCMAKE_LIBRARY_ARCHITECTURE=i386-linux-gnu) ;;
    esac
    for package in "${packages[@]}"; do debian_package "$package"; done
    lintian --allow-root --fail-on error "${packages[@]}"
    ;;
*.zip)
    (cd "$work" && cmake -E tar xf "${packages[0]}")
    prefix=$work/$(basename "${packages[0]}" .zip)
    options=(--toolchain "$PWD/cmake/toolchain-windows.cmake" -DCMAKE_CXX_FLAGS=-static)
    host=hello.exe run=(scripts/wine.sh)
    windows_package
    ;;
esac
[ -e "$prefix/include/orvane/ImageProcessingWrapper.h" ]

config=$(find "$prefix" -name OrvaneConfig.cmake)
cmake -S examples/hello -B "$work/hello" -G Ninja -DOrvane_DIR="$(dirname "$config")" "${options[@]}"
cmake --build "$work/hello"
case ${packages[*]} in *.zip*) cp "$prefix/bin/orvane.dll" "$work/hello" ;; esac
"${run[@]}" "$work/hello/$host" | tr -d '\r' | tee "$work/output"
grep -q '^203 + 100: 255, halved 152$' "$work/output"
ls -l "${packages[@]}"
