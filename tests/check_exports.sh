#!/bin/sh
# Compares what the library shows to the outside with the list kept in the tree.
# Usage: check_exports.sh LIBRARY [--update]
list=$(dirname "$0")/exports.txt
shown=$(nm -DC --defined-only "$1" | sed -E 's/^[0-9a-f]* [A-Za-z] //' | grep -v '^ORVANE' | sort -u)
if [ "$2" = --update ]; then
    printf '%s\n' "$shown" > "$list"
    exit 0
fi
printf '%s\n' "$shown" | diff "$list" - > /dev/null && exit 0
echo "exports differ from tests/exports.txt (< listed, > in the library):"
printf '%s\n' "$shown" | diff "$list" - | grep '^[<>]' | head -n 40
exit 1
