#!/usr/bin/env bash
# Compares the speed of the builds that there are: 64-bit, 32-bit Linux and the Windows DLL under Wine.
# Usage: scripts/bench_widths.sh [PROCESSOR]     prints a table: nanoseconds, and 64-bit / other
set -eu
cd "$(dirname "$0")/.."
work=build/widths
mkdir -p "$work"
pinned=(taskset -c "${1:-0}")
columns=()

linux() {  # NAME FLAG BUILD
    [ -e "$3/src/liborvane.so" ] || return 0
    g++ "$2" -std=c++17 -O2 -Iinclude bench/widths.cpp "$3/src/liborvane.so" -Wl,-rpath,"$PWD/$3/src" -o "$work/$1"
    "${pinned[@]}" "$work/$1" > "$work/$1.txt"
    columns+=("$work/$1.txt")
}
linux 64-bit -m64 build/release
linux 32-bit -m32 build/i386
if [ -e build/windows/src/dll/orvane.dll ] && [ -e build/wine/ready ]; then
    i686-w64-mingw32-g++-posix -std=c++17 -O2 -Iinclude bench/widths.cpp build/windows/src/dll/liborvane.dll.a -static -o "$work/windows.exe"
    cp build/windows/src/dll/orvane.dll "$work"
    "${pinned[@]}" scripts/wine.sh "$work/windows.exe" | tr -d '\r' > "$work/windows.txt"
    columns+=("$work/windows.txt")
fi
paste -d ' ' "${columns[@]}" | awk '{
    printf "| %s | %d |", $1, $2
    for (i = 4; i <= NF; i += 2) printf " %d | %.2f |", $i, $2 / $i
    print ""
}'
