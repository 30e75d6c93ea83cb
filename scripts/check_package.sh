#!/usr/bin/env bash
# Installs a build into a folder of its own and compiles a small host against the package, by
# find_package and by pkg-config, then moves the package and does so again.
# Usage: check_package.sh BUILD-FOLDER | --static
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

if [ "$1" = --static ]; then
    # From the objects of the shared library, which are the same: all but the last step is done.
    folder=build/release
    trap 'rm -rf "$work"; cmake --preset release -DBUILD_SHARED_LIBS=ON' EXIT
    cmake --preset release -DBUILD_SHARED_LIBS=OFF
    cmake --build --preset release --target orvane
else
    folder=$1
fi
cmake --install "$folder" --prefix "$work/first"
mv "$work/first" "$work/prefix"

cmake -S examples/hello -B "$work/hello" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix"
cmake --build "$work/hello"
"$work/hello/hello" | tee "$work/output"
grep -q '^203 + 100: 255, halved 152$' "$work/output"

cmake -S examples/layer -B "$work/layer" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix"
cmake --build "$work/layer"
for expected in examples/layer/*.txt; do
    case $expected in */CMakeLists.txt) continue ;; esac
    "$work/layer/$(basename "$expected" .txt)" | diff - "$expected"
done

export PKG_CONFIG_PATH=$(dirname "$(find "$work/prefix" -name orvane.pc)")
# shellcheck disable=SC2046
g++ examples/hello/hello.cpp $(pkg-config --cflags --libs orvane) -Wl,-rpath,"$(pkg-config --variable=libdir orvane)" -o "$work/by-pkg-config"
"$work/by-pkg-config" | cmp - "$work/output"

# Each public header alone, without a warning and by both of its names: the classes as C++11, the layer as C++17, and
# all of the layer as later C++ and by another compiler.
compiles() {
    echo "#include <$3>" > "$work/one.cpp"
    # shellcheck disable=SC2046
    "$1" "-std=$2" -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -fsyntax-only $(pkg-config --cflags orvane) "$work/one.cpp"
}
for header in include/*.h; do
    compiles g++ c++11 "$(basename "$header")"
    compiles g++ c++11 "orvane/$(basename "$header")"
done
for header in orvane.hpp orvane/orvane.hpp $(cd include && echo layer/*.hpp); do compiles g++ c++17 "$header"; done
for compiler in g++ clang++; do
    command -v $compiler > /dev/null || continue
    for standard in c++17 c++20; do compiles $compiler $standard orvane/orvane.hpp; done
done

# The programs that the documents print.
scripts/check_documents.py "$work/prefix" README.md docs/start_cpp.md
