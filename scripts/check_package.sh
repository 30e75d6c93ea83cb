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

export PKG_CONFIG_PATH=$(dirname "$(find "$work/prefix" -name orvane.pc)")
# shellcheck disable=SC2046
g++ examples/hello/hello.cpp $(pkg-config --cflags --libs orvane) -Wl,-rpath,"$(pkg-config --variable=libdir orvane)" -o "$work/by-pkg-config"
"$work/by-pkg-config" | cmp - "$work/output"

# Each public header alone, as C++11, without a warning.
for header in include/*.h; do
    echo "#include \"$(basename "$header")\"" > "$work/one.cpp"
    g++ -std=c++11 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -fsyntax-only $(pkg-config --cflags orvane) "$work/one.cpp"
done

# The programs that the documents print.
scripts/check_documents.py "$work/prefix" README.md docs/start_cpp.md
