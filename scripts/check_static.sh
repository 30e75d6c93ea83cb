#!/usr/bin/env bash
# The static library, made of the kernels of the shared one, which are the same, and installed beside it: hosts get the
# kind that they ask for, and what is linked with the static one shows nothing of it.
# Usage: check_static.sh       after the build of the preset "release", which is shared again in the end
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"; cmake --preset release -DBUILD_SHARED_LIBS=ON' EXIT
cmake --install build/release --prefix "$work/prefix"
cmake --preset release -DBUILD_SHARED_LIBS=OFF
cmake --build --preset release --target orvane
cmake --install build/release --prefix "$work/prefix"

# build FOLDER NAME [OPTION]: a project against the package.
build() {
    cmake -S "$1" -B "$work/$2" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" "${@:3}"
    cmake --build "$work/$2"
}
needs() { objdump -p "$1" | grep -c 'NEEDED *liborvane' || true; }

build examples/hello hello_shared
[ "$(needs "$work/hello_shared/hello")" = 1 ]
mkdir "$work/by_component"
sed 's/Orvane REQUIRED/& COMPONENTS static/' examples/hello/CMakeLists.txt > "$work/by_component/CMakeLists.txt"
cp examples/hello/*.cpp "$work/by_component"
build "$work/by_component" hello_static
[ "$(needs "$work/hello_static/hello")" = 0 ]
"$work/hello_static/hello" | cmp - <("$work/hello_shared/hello")
rm "$work"/prefix/lib/*/*.so*
export PKG_CONFIG_PATH=$(dirname "$(find "$work/prefix" -name orvane.pc)")
# shellcheck disable=SC2046
g++ examples/hello/hello.cpp $(pkg-config --static --cflags --libs orvane) -o "$work/by-pkg-config"
"$work/by-pkg-config" | cmp - <("$work/hello_static/hello")

# A plugin has its own names alone.
mkdir "$work/plugin_source"
cat > "$work/plugin_source/CMakeLists.txt" <<'TEXT'
cmake_minimum_required(VERSION 3.25)
project(Plugin LANGUAGES CXX)
find_package(Orvane REQUIRED COMPONENTS static)
add_library(plugin MODULE plugin.cpp)
target_link_libraries(plugin PRIVATE Orvane::orvane)
TEXT
cat > "$work/plugin_source/plugin.cpp" <<'TEXT'
#include <FFTWrapper.h>
#include <Image.h>
#include <ImageProcessingWrapper.h>
#include <MKLWrapper.h>
#include <MatrixWrapper.h>
#include <RandomNumberGenerator.h>
#include <SignalProcessingWrapper.h>

extern "C" int entry(float* p)
{
    Orvane::ImageProcessing::Image image;
    FFTWrapper spectrum;
    RandomNumberGenerator random;
    return ImageProcessingWrapper::Add_32f_C1(p, 4, p, 4, p, 4, 1, 1) + SignalProcessingWrapper::Sin_32f_A11(p, p, 1);
}
TEXT
build "$work/plugin_source" plugin -DCMAKE_BUILD_TYPE=Debug
shown=$(nm -D --defined-only "$work/plugin/libplugin.so" | cut -d ' ' -f 3 | tr '\n' ' ')
[ "$shown" = "entry " ] || { echo "the plugin shows $shown"; exit 1; }
