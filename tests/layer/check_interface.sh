#!/usr/bin/env bash
# interface/generate.py --check finds what is wrong: each line below spoils a copy of the sources in one way.
set -u
cd "$(dirname "$0")/../.." || exit 1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
copy() { rm -rf "$work"/*; mkdir "$work/docs"; cp -r CMakeLists.txt include interface src "$work"; cp docs/operations.md "$work/docs"; }

copy
(cd "$work" && interface/generate.py --check) || exit 1
bad=0
# FILE|SED SCRIPT|WORDS OF THE COMPLAINT
while IFS='|' read -r file script words; do
    sed -i "$script" "$work/$file"
    cmp -s "$file" "$work/$file" && { echo "nothing changes in $file: $script"; bad=1; }
    said=$("$work/interface/generate.py" --check 2>&1) && { echo "passes: $file, $script"; bad=1; }
    case $said in *"$words"*) ;; *) echo "$file, $script: $said"; bad=1 ;; esac
    cp "$file" "$work/$file"
done << 'TABLE'
include/ImageProcessingWrapper.h|s/bool ORVANE_CALL Add_8u_C1(/bool ORVANE_CALL Nand_8u_C1(int width);\n    static &/|neither bound nor omitted
interface/table.toml|s/"ImageProcessingWrapper::Erode3x3_\*"/"ImageProcessingWrapper::Erode5x5_*"/|entries without a method
interface/table.toml|s/"ImageProcessingWrapper::GetCpuClocks"/"ImageProcessingWrapper::GetClocks"/|no method is like
interface/table.toml|s/a = src2, b = src1, destination = dst, scale/a = src2, destination = dst, scale/|nothing says what
interface/table.toml|s/name = "curve"/name = "curves"/|stale
include/layer/images.hpp|s/inline status add(/inline status sum_up(/|stale
interface/table.toml|s/cut = "halo 1"/cut = "halo"/|cut is 'halo'
interface/table.toml|s/cut = "halo 1"/cut = "frame"/|cut is 'frame'
interface/table.toml|s/cut = { "\*_32f\*" = "join rows", .*/cut = { "*_32f*" = "join rows" }/|cut says nothing of
include/layer/rules.hpp|s/rule add{cut::point}/rule add{cut::whole}/|stale
docs/operations.md|s/add/sum/|stale
include/layer/geometry.hpp|s/status rotate_bound(/status bound(/|has no rotate_bound
src/image/bits/bitwise.inc|s/KERNEL(Not_8u_C1,/KERNEL(Nand_8u_C1,/|operations of registries
src/image/bits/bitwise.inc|/KERNEL(Not_8u_C1,/d|no registry has
CMakeLists.txt|s/VERSION [0-9]*\.[0-9]*\.[0-9]*/VERSION 99.0.0/|stale
TABLE
exit $bad
