#!/bin/sh
# The form of the DLL: size, imports, hardening, relocations, version, and that linking it again gives the
# same bytes.
# Usage: check_dll.sh FOLDER
dll=$1/orvane.dll
fail=0
expect() { [ "$2" = "$3" ] || { echo "$1: $2, expected $3"; fail=1; }; }

size=$(stat -c %s "$dll")
[ "$size" -lt 6000000 ] || { echo "$size bytes"; fail=1; }
headers=$(i686-w64-mingw32-objdump -p "$dll")
expect imports "$(echo "$headers" | sed -n 's/.*DLL Name: //p' | sort | tr '\n' ' ')" "KERNEL32.dll msvcrt.dll "
expect hardening "$(echo "$headers" | grep -cE '^[[:space:]]*(DYNAMIC_BASE|NX_COMPAT)')" 2
expect relocations "$(i686-w64-mingw32-objdump -h "$dll" | grep -c ' \.reloc ')" 1
expect "version resource" "$(i686-w64-mingw32-objdump -h "$dll" | grep -c ' \.rsrc ')" 1
first=$(sha256sum < "$dll")
rm "$dll"
cmake --build "$1/../.." --target orvane_dll > /dev/null
expect "bytes after a rebuild" "$(sha256sum < "$dll")" "$first"
exit $fail
