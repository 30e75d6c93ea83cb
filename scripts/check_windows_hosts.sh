#!/usr/bin/env bash
# Links and runs hosts of both Windows worlds against the DLL, under Wine.
# Usage: check_windows_hosts.sh BUILD-FOLDER [HOST...]     hosts: microsoft stdcall vectorcall loader mingw hello
set -eu
cd "$(dirname "$0")/.."
dll=$1/src/dll
work=$1/hosts
shift
mkdir -p "$work"
cp "$dll/orvane.dll" "$work"

# microsoft HOST ENTRY SOURCE...: by clang and lld-link, without any runtime but the system's.
microsoft() {
    local host=$1 entry=$2 objects=() source
    shift 2
    for source in "$@"; do
        objects+=("$work/$(basename "$source").obj")
        clang++ --target=i686-pc-windows-msvc -ffreestanding -fno-exceptions -fno-rtti -std=c++17 -O2 -Wall -Wextra -Iinclude \
            "${flags[@]}" -c "$source" -o "${objects[-1]}"
    done
    "$(command -v lld-link || command -v lld-link-14)" /nodefaultlib /machine:x86 /safeseh:no /subsystem:console "/entry:$entry" \
        /out:"$work/$host.exe" "${objects[@]}" "$dll/orvane.lib" \
        /usr/i686-w64-mingw32/lib/libmsvcrt.a /usr/i686-w64-mingw32/lib/libkernel32.a
}

# Under another convention by default, which is what /Gz and /Gv ask for.
by_default() {
    local flags=(-msse2 -Xclang "-fdefault-calling-conv=$1")
    microsoft "$1" convention_main tests/windows/convention_host.cpp
}

mingw() {
    i686-w64-mingw32-g++-posix -std=c++17 -O2 -Wall -Wextra -Iinclude "$2" "$dll/liborvane.dll.a" -static -o "$work/$1.exe"
}

flags=()
[ $# -gt 0 ] || set -- microsoft stdcall vectorcall loader mingw hello
for host in "$@"; do
    case $host in
    microsoft) microsoft "$host" host_main tests/windows/microsoft_host.cpp tests/windows/environments.cpp ;;
    stdcall | vectorcall) by_default "$host" ;;
    loader) microsoft "$host" loader_main tests/windows/loader_host.cpp ;;
    mingw) mingw "$host" tests/windows/mingw_host.cpp ;;
    hello) mingw "$host" examples/hello/hello.cpp ;;
    esac
    echo "$host:"
    scripts/wine.sh "$work/$host.exe" | tr -d '\r' | tee "$work/$host.log"
    grep -qE '(^| )(0 failed|203 \+ 100: 255, halved 152)$' "$work/$host.log"
done
