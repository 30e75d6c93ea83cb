#!/usr/bin/env bash
# The library as a folder of another project, by add_subdirectory and by FetchContent: it leaves the host's choices
# alone, is optimised though the host names no configuration, and writes nothing into its own folder. (The library is
# not built anew for that: the one of BUILD-FOLDER is put in its place before the host is linked.)
# Usage: check_subproject.sh BUILD-FOLDER       a shared build
set -eu
cd "$(dirname "$0")/.."
build=$PWD/$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
expect() { [ "$2" = "$3" ] || { echo "$1: '$2', expected '$3'"; exit 1; }; }

mkdir "$work/host"
cp examples/hello/hello.cpp "$work/host"
echo 'int own() { return 0; }' > "$work/host/own.cpp"
cat > "$work/host/CMakeLists.txt" <<'TEXT'
cmake_minimum_required(VERSION 3.25)
project(Host LANGUAGES CXX)
if(FETCHCONTENT_SOURCE_DIR_ORVANE)
  include(FetchContent)
  FetchContent_Declare(orvane URL nowhere)
  FetchContent_MakeAvailable(orvane)
else()
  add_subdirectory(${ORVANE} _deps/orvane-build)
endif()
add_library(own own.cpp)
add_executable(hello hello.cpp)
target_link_libraries(hello PRIVATE own Orvane::orvane)
install(TARGETS hello)
TEXT

touch "$work/start"
for way in "-DORVANE=$PWD" "-DFETCHCONTENT_SOURCE_DIR_ORVANE=$PWD"; do
    host=$work/${way%%=*}
    cmake -S "$work/host" -B "$host" -G "Unix Makefiles" "$way" -DORVANE_LAPACK=archive
    cache=$(grep -E '^(BUILD_SHARED_LIBS|CMAKE_BUILD_TYPE|ORVANE_LAPACK_SOURCE):' "$host/CMakeCache.txt" || true)
    expect "the host's cache" "$(echo "$cache" | sed 's/:[A-Z]*=/=/' | sort | tr '\n' ' ')" \
        "CMAKE_BUILD_TYPE= ORVANE_LAPACK_SOURCE=$host/_deps/orvane-build/lapack "
    library=$host/_deps/orvane-build/src
    expect "targets that are not optimised" \
        "$(grep -L -e '-O2 -DNDEBUG' "$library"/CMakeFiles/{kernel_*,orvane_core,orvane_facade}.dir/flags.make)" ""
    expect "warnings asked for" "$(grep -rl -e '-Wall' "$library" --include=flags.make)" ""
    cp -P "$build"/src/liborvane.so* "$library"
    make -C "$host" own/fast hello/fast
    [ -e "$host/libown.a" ]
    "$host/hello" | grep '^203 + 100: 255, halved 152$'
    cmake --install "$host" --prefix "$work/installed" --component orvane_runtime
    find "$work/installed" -name liborvane.so.0 | grep .
done
expect "written into the library's folder" \
    "$(find . -path ./build -prune -o -path ./.git -prune -o -newer "$work/start" ! -type d -print)" ""

cmake -S "$work/host" -B "$work/none" -DORVANE="$PWD" -DORVANE_INSTALL=OFF -DORVANE_LAPACK=archive
expect "installed by a host that does not want it" "$(grep -rl orvane_ "$work/none" --include=cmake_install.cmake)" ""
