#!/usr/bin/env bash
# Each family is compiled for each level with flags of its own, so no two kernel objects may share code: the linker
# merges inline functions of equal names, and the copy that stays may have newer instructions or another optimisation.
# Whatever an object defines names the namespace <family>_<level>, and nothing is defined twice.
# NM names the tool where the objects are not this machine's own.
# Usage: check_kernel_symbols.sh OBJECT...   (.../kernel_<folders>_<family>_<level>.dir/<folders>/<family>.cpp.o)
failed=0
# 32-bit position-independent code shares one tiny helper, whose copies are the same everywhere.
shared='__x86\.get_pc_thunk\.|DW\.ref\.'
for object in "$@"; do
    level=$(expr "$object" : '.*kernel_[a-z0-9_]*_\([a-z][a-z0-9]\)\.dir/')
    family=$(basename "$object" | cut -d . -f 1)
    if [ -z "$level" ]; then
        echo "no level in the name of $object"
        exit 2
    fi
    # External symbols, weak ones included.
    foreign=$("${NM:-nm}" -gC --defined-only "$object" | grep -vE "(^|[^A-Za-z0-9_])${family}_$level::|$shared")
    if [ -n "$foreign" ]; then
        echo "$object defines symbols outside ${family}_$level:"
        echo "$foreign" | head -n 10
        failed=1
    fi
done
twice=$("${NM:-nm}" -g --defined-only "$@" | awk 'NF == 3 { print $3 }' | grep -vE "$shared" | sort | uniq -d)
if [ -n "$twice" ]; then
    echo "$(echo "$twice" | wc -l) symbols are defined by more than one object:"
    echo "$twice" | head -n 10
    failed=1
fi
echo "$# objects checked"
exit $failed
