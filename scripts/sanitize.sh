#!/usr/bin/env bash
# Builds with AddressSanitizer and UBSan and runs all tests under them. The kernels take clang a long time:
# allow ten minutes on two cores.
set -eu
cd "$(dirname "$0")/.."
scripts/setup.sh sanitize
cmake --preset asan
cmake --build --preset asan
export ASAN_OPTIONS=allocator_may_return_null=1 LSAN_OPTIONS=suppressions=tests/leaks.supp:print_suppressions=0
exec build/asan/tests/orvane_tests "$@"
