#!/usr/bin/env bash
# Links and runs hosts of both Windows worlds against the DLL, under Wine.
# Usage: check_windows_hosts.sh BUILD-FOLDER
set -eu
cd "$(dirname "$0")/.."
dll=$1/src/dll
work=$1/hosts
mkdir -p "$work"
cp "$dll/orvane.dll" "$work"

clang++ --target=i686-pc-windows-msvc -ffreestanding -fno-exceptions -fno-rtti -std=c++17 -O2 -Iinclude \
    -c tests/windows/microsoft_host.cpp -o "$work/microsoft_host.obj"
"$(command -v lld-link || command -v lld-link-14)" /nodefaultlib /machine:x86 /safeseh:no /subsystem:console /entry:host_main \
    /out:"$work/microsoft_host.exe" "$work/microsoft_host.obj" "$dll/orvane.lib" \
    /usr/i686-w64-mingw32/lib/libmsvcrt.a /usr/i686-w64-mingw32/lib/libkernel32.a
scripts/wine.sh "$work/microsoft_host.exe" | tee "$work/microsoft.log"
grep -q ' passed, 0 failed' "$work/microsoft.log"

i686-w64-mingw32-g++-posix -std=c++17 -O2 -Iinclude examples/hello/hello.cpp "$dll/liborvane.dll.a" -static -o "$work/mingw_host.exe"
scripts/wine.sh "$work/mingw_host.exe" | tee "$work/mingw.log"
grep -q '203 + 100: 255, halved 152' "$work/mingw.log"
