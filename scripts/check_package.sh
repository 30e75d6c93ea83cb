#!/usr/bin/env bash
# Installs a build into a folder of its own and compiles a small host against the package, by
# find_package and by pkg-config, then moves the package and does so again.
# Usage: check_package.sh BUILD-FOLDER
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$1" --prefix "$work/first"
mv "$work/first" "$work/the prefix"

cmake -S examples/hello -B "$work/hello" -G Ninja -DCMAKE_PREFIX_PATH="$work/the prefix"
cmake --build "$work/hello"
"$work/hello/hello" | tee "$work/output"
grep -q '^203 + 100: 255, halved 152$' "$work/output"

cmake -S examples/layer -B "$work/layer" -G Ninja -DCMAKE_PREFIX_PATH="$work/the prefix"
cmake --build "$work/layer"
for expected in examples/layer/*.txt; do
    case $expected in */CMakeLists.txt) continue ;; esac
    "$work/layer/$(basename "$expected" .txt)" | diff - "$expected"
done

export PKG_CONFIG_PATH=$(dirname "$(find "$work/the prefix" -name orvane.pc)")
eval "flags=($(pkg-config --cflags orvane)) libraries=($(pkg-config --libs orvane))"  # it escapes spaces
g++ examples/hello/hello.cpp "${flags[@]}" "${libraries[@]}" -o "$work/by-pkg-config"
LD_LIBRARY_PATH=$(dirname "$PKG_CONFIG_PATH") "$work/by-pkg-config" | cmp - "$work/output"

# Each public header alone, without a warning and by both of its names: the classes as C++11, the layer as C++17, and
# all of the layer as later C++ and by another compiler.
compiles() {
    echo "#include <$3>" > "$work/one.cpp"
    "$1" "-std=$2" -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -fsyntax-only "${flags[@]}" "$work/one.cpp"
}
for header in include/*.h; do
    compiles g++ c++11 "$(basename "$header")"
    compiles g++ c++11 "orvane/$(basename "$header")"
done
for header in orvane.hpp orvane/orvane.hpp orvane_tiles.hpp $(cd include && echo layer/*.hpp); do compiles g++ c++17 "$header"; done
for compiler in g++ clang++; do
    command -v $compiler > /dev/null || continue
    for standard in c++17 c++20; do compiles $compiler $standard orvane/orvane.hpp; done
done

# The programs that the documents print.
scripts/check_documents.py "$work/the prefix" README.md docs/start_cpp.md
