#!/usr/bin/env bash
# One name finds a family: in its room, facade, tests and benchmarks have a file that is called after it (or after it
# without its last word: convolution serves convolution_float) or that names it.
set -u
cd "$(dirname "$0")/.." || exit 1
bad=0
while read -r family; do
    room=${family%/*} name=${family##*/}
    for part in src/facade tests bench; do
        [ -e "$part/$room/$name.cpp" ] || [ -e "$part/$room/${name%_*}.cpp" ] ||
            grep -qrw "$name" "$part/$room" 2> /dev/null || { echo "$part/$room does not name $name"; bad=1; }
    done
done < <(sed -n 's/^orvane_add_family(\([^ )]*\).*/\1/p' src/CMakeLists.txt)
exit $bad
