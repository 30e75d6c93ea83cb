#!/usr/bin/env bash
# Operations and a chain of six in bands on one thread and on two, and bands of several heights: two tables.
# Usage: scripts/bench_cores.sh [BUILD-FOLDER [SIDE [REPETITIONS]]]     a shared build; images of SIDE x SIDE pixels
set -eu
cd "$(dirname "$0")/.."
scripts/setup.sh cluster
build=$PWD/${1:-build/release}
g++ -std=c++17 -O2 -Wall -Wextra -pthread -I"$build/include" bench/cores.cpp "$build/src/liborvane.so" -ltbb \
    -Wl,-rpath,"$build/src" -o "$build/bench_cores"
"$build/bench_cores" "${@:2}"
