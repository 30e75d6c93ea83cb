#!/bin/sh
# The form of the DLL: size, imports, hardening, relocations, version, shared bodies, and that linking it again
# gives the same bytes, in any folder: those depend on what the debug information holds.
# Usage: check_dll.sh FOLDER
dll=$1/orvane.dll
fail=0
expect() { [ "$2" = "$3" ] || { echo "$1: $2, expected $3"; fail=1; }; }

size=$(stat -c %s "$dll")
[ "$size" -lt 9000000 ] || { echo "$size bytes"; fail=1; }
headers=$(i686-w64-mingw32-objdump -p "$dll")
expect imports "$(echo "$headers" | sed -n 's/.*DLL Name: //p' | sort | tr '\n' ' ')" "KERNEL32.dll msvcrt.dll "
expect hardening "$(echo "$headers" | grep -cE '^[[:space:]]*(DYNAMIC_BASE|NX_COMPAT)')" 2
expect relocations "$(i686-w64-mingw32-objdump -h "$dll" | grep -c ' \.reloc ')" 1
said=$(strings -el "$dll")
for word in CompanyName LegalCopyright FileVersion; do
    expect "'$word' in the version resource" "$(echo "$said" | grep -c "^$word\$")" 1
done
# Copy, assignment and destruction of the four classes without instances: one body each, for either ABI.
shared='(ImageProcessing|SignalProcessing|Matrix|MKL)Wrapper(@@(IAE|QAEAAV0)@|C[12]ERKS_$|aSERKS_$|D[12]Ev$)'
bodies=$(echo "$headers" | awk '/^\t\[ *[0-9]+\]/ {
    line = $0
    sub(/^\t\[ */, "", line)
    i = line + 0
    if (line ~ /Export RVA$/) address[i] = $(NF - 2)
    else print address[i], $NF
}' | grep -E "$shared" | cut -d ' ' -f 1)
expect "members that the static-only classes share" "$(echo "$bodies" | wc -l)" 32
expect "bodies of them" "$(echo "$bodies" | sort -u | wc -l)" 6
expect "folders in the debug information" "$(grep -acF "$(pwd)/" "$1/orvane.pdb")" 0
# Every kernel source has lines in the .pdb.
lines=$(llvm-pdbutil dump -l "$1/orvane.pdb" | sed -n 's|^.*/src/\(.*\.cpp\) (no checksum)$|\1|p' | sort -u)
sources=$(sed -n 's/^orvane_add_family(\([^ )]*\).*/\1.cpp/p' src/CMakeLists.txt | sort)
expect "kernel sources without lines" "$(echo "$sources" | while read -r name; do
    echo "$lines" | grep -qxF "$name" || echo "$name"
done)" ""
first=$(sha256sum < "$dll")
rm "$dll"
cmake --build "$1/../.." --target orvane_dll > /dev/null
expect "bytes after a rebuild" "$(sha256sum < "$dll")" "$first"
exit $fail
