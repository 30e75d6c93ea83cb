#!/usr/bin/env bash
# A second compiler: its warnings, as errors, on every source, and the tests of one family, unoptimised. Only that family's
# kernels become code, which keeps all of it at two minutes of processor time.
# Usage: check_clang.sh [FAMILY]
# shellcheck disable=SC2046,SC2086
set -eu
cd "$(dirname "$0")/.."
family=${1:-image/bits/comparison}
build=build/clang
cmake --preset clang

# Without -o and -c: templates are instantiated, warnings given, nothing is written.
sed -nE 's/^ *"command": "(.*)",?$/\1/p' $build/compile_commands.json |
    grep -vE '/(gmock|gtest)[^/]*\.cc$|/accuracy\.cpp$' | sed -E 's/\\(["\\])/\1/g; s/ -o [^ ]+ -c / -fsyntax-only /' |
    (cd $build && xargs -d '\n' -P "$(nproc)" -n 1 sh -c)

kernels=$(cmake --build --preset clang --target help | sed -nE "s/^(kernel_${family//\//_}_[a-z0-9]{2}): phony$/\1/p")
tests=$(printf 'tests/CMakeFiles/orvane_tests.dir/%s.cpp.o ' "$family" support/main support/compare_cases support/compare_levels)
# shellcheck disable=SC2086
cmake --build --preset clang --target $kernels orvane_core orvane_facade gmock $tests
# An archive gives the tests what they call, and no more of the library has to be there.
find $build/src/CMakeFiles/orvane_core.dir $build/src/CMakeFiles/orvane_facade.dir \
    $(printf "$build/src/CMakeFiles/%s.dir " $kernels) -name '*.o' -exec ar rcs $build/family.a {} +
(cd $build && clang++ -o family_tests $tests family.a lib/libgmock.a lib/libgtest.a)
exec $build/family_tests --brief
