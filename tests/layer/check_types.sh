#!/usr/bin/env bash
# What the typed layer leaves to the compiler: each call below compiles, and does not with the wrong words in it.
# Usage: check_types.sh COMPILER [FLAG...]
set -u
compiler=("$@")
include=$(cd "$(dirname "$0")/../../include" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$include" "$work/include"  # the compiler takes what it has prepared from beside the header
flags=(-std=c++17 -Werror=unused-result "-I$work/include")
"${compiler[@]}" "${flags[@]}" -x c++-header "$work/include/orvane.hpp" -o "$work/include/orvane.hpp.gch" || exit 1

compiles() {
    {
        echo '#include <orvane.hpp>'
        echo 'struct foreign { unsigned char* data; int width, height, step; };'
        echo 'void call(orvane::image<unsigned char, 3>& photo, orvane::image<unsigned char, 4>& clear,'
        echo '          const orvane::image<unsigned char, 3>& fixed, orvane::image<unsigned char>& grey,'
        echo '          orvane::image<float>& plane, orvane::span<const double> samples, orvane::span<float> floats,'
        echo '          foreign camera) {'
        echo '    using namespace orvane;'
        echo "    $1"
        echo '    (void)photo, (void)clear, (void)fixed, (void)grey, (void)plane, (void)samples, (void)floats, (void)camera;'
        echo '}'
    } > "$work/call.cpp"
    "${compiler[@]}" "${flags[@]}" -fsyntax-only "$work/call.cpp" 2> "$work/words"
}

bad=0
# CALL RIGHT WRONG: CALL with % replaced.
while IFS='|' read -r call right wrong; do
    compiles "${call//%/$right}" || { echo "does not compile: ${call//%/$right}"; cat "$work/words"; bad=1; }
    ! compiles "${call//%/$wrong}" || { echo "compiles: ${call//%/$wrong}"; bad=1; }
done << 'TABLE'
add(photo, %, photo).check();|fixed|plane
add(photo, %, photo).check();|fixed|clear
add(photo, fixed, %).check();|photo|fixed
add(photo, %, photo).check();|{1, 2, 3}|{1, 2}
add(grey, %, grey).check();|2|2.5
resize(photo, photo, %).check();|interpolation::linear|2
lowpass(photo, photo, %).check();|mask::size3x3, edge::replicate|edge::replicate
exponential(%).check();|span<const float>(floats), floats|samples, floats
%add(photo, fixed, photo);|const status s = |
const bool done%{add(photo, fixed, photo)};|| =
image<float> other%;|(std::move(plane))|(plane)
view<unsigned char> seen%;|(camera)| = camera
view<unsigned char, %> seen(photo);|3|1
TABLE
exit $bad
