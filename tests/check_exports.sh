#!/bin/sh
# Compares what the library shows to the outside with the list kept in the tree. Copy, assignment and destruction
# of the four classes without instances are one body each, and every static method names its calling convention.
# Usage: check_exports.sh LIBRARY [--update]
unsaid=$(grep -nE '^( +static|ORVANE_API) .*\(' "$(dirname "$0")"/../include/*.h | grep -v ORVANE_CALL)
[ -z "$unsaid" ] || { echo "without ORVANE_CALL:"; echo "$unsaid"; exit 1; }
case "$1" in
*.dll)
    list=$(dirname "$0")/exports_windows.txt
    shown=$(i686-w64-mingw32-objdump -p "$1" | sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\] //p' | sort -u)
    ;;
*)
    shared='(ImageProcessing|SignalProcessing|Matrix|MKL)Wrapper(C[12]ERKS_|aSERKS_|D[12]Ev)$'
    bodies=$(nm -D --defined-only "$1" | grep -E "$shared" | cut -d ' ' -f 1 | sort -u | wc -l)
    [ "$bodies" -eq 3 ] || { echo "the members that the static-only classes share: $bodies bodies"; exit 1; }
    list=$(dirname "$0")/exports.txt
    shown=$(nm -DC --defined-only "$1" | sed -E 's/^[0-9a-f]* [A-Za-z] //' | sort -u)
    ;;
esac
if [ "$2" = --update ]; then
    printf '%s\n' "$shown" > "$list"
    exit 0
fi
printf '%s\n' "$shown" | diff "$list" - > /dev/null && exit 0
echo "exports differ from $list (< listed, > in the library):"
printf '%s\n' "$shown" | diff "$list" - | grep '^[<>]' | head -n 40
exit 1
