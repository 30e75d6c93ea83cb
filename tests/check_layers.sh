#!/usr/bin/env bash
# Includes point one way: facade, families, elementwise and math, simd, core. Families of different subsystems
# know nothing of each other, and nobody includes the tables but what lists all families.
set -u
cd "$(dirname "$0")/../src" || exit 1

layer() {
    case $1 in
        core/*) echo 0 ;;
        simd/*) echo 1 ;;
        elementwise/* | math/*) echo 2 ;;
        image/* | signal/* | linalg/* | spectral/*) echo 3 ;;
        facade/*) echo 4 ;;
        *) echo 5 ;;
    esac
}

bad=0
while IFS=: read -r file included; do
    [ -e "$included" ] || continue  # a public header, or one beside the file
    from=$(layer "$file") to=$(layer "$included")
    if [ "$to" -gt "$from" ] || { [ "$from" = 3 ] && [ "$to" = 3 ] && [ "${file%%/*}" != "${included%%/*}" ]; }; then
        echo "src/$file includes $included"
        bad=1
    fi
done < <(grep -rhoHE '^#include "[^"]+"' --include='*.h' --include='*.cpp' --include='*.inc' . | sed -e 's|^\./||' -e 's|#include "||' -e 's|"$||')
exit $bad
