#!/bin/sh
# Code compiled for a level must define no symbol outside that level's namespace: the linker merges
# inline functions of equal names, and the copy with the newer instructions may be the one that stays.
# NM names the tool where the objects are not this machine's own.
# Usage: check_kernel_symbols.sh OBJECT...   (.../kernel_<family>_<level>.dir/...)
failed=0
checked=0
for object in "$@"; do
    level=$(expr "$object" : '.*kernel_[a-z0-9_]*_\([a-z][a-z0-9]\)\.dir/')
    if [ -z "$level" ]; then
        echo "no level in the name of $object"
        exit 2
    fi
    checked=$((checked + 1))
    # External symbols, weak ones included. 32-bit position-independent code shares one tiny helper,
    # whose copies are the same at every level.
    foreign=$("${NM:-nm}" -gC --defined-only "$object" | grep -vE "(^|[^a-z0-9_])$level::|__x86\.get_pc_thunk\.|DW\.ref\.")
    if [ -n "$foreign" ]; then
        echo "$object defines symbols outside $level:"
        echo "$foreign" | head -n 10
        failed=1
    fi
done
echo "$checked objects checked"
exit $failed
