#!/usr/bin/env bash
# Builds the fuzz targets and runs each family in turn for its share of the time; counts the calls compared.
# Usage: scripts/fuzz.sh MINUTES [FAMILY...]     A family's name is <folder>_<family>; without one, all of them.
# What is found lies in build/fuzz/findings; `build/fuzz/tests/fuzz/fuzz_FAMILY FILE` repeats it. Inputs that reached
# something new are kept in build/fuzz/corpus, and the next run starts from them.
set -eu
cd "$(dirname "$0")/.."
[[ ${1:-} =~ ^[1-9][0-9]*$ ]] || { echo "usage: $0 MINUTES [FAMILY...]" >&2; exit 2; }
minutes=$1
shift
scripts/setup.sh sanitize
cmake --preset fuzz > /dev/null
cmake --build --preset fuzz > build/fuzz/build.log 2>&1 || { tail -n 20 build/fuzz/build.log >&2; exit 1; }
[ $# -gt 0 ] || set -- $(sed -n 's/^REGISTRY_BEGIN(\(.*\))/\1/p' build/fuzz/families/registries.inc)

seconds=$((minutes * 60 / $#))
[ "$seconds" -gt 0 ] || seconds=1
total=0
found=0
mkdir -p build/fuzz/findings
for family in "$@"; do
    corpus=build/fuzz/corpus/$family
    log=build/fuzz/$family.log
    mkdir -p "$corpus"
    verdict=
    # Names of functions reached come from a symbolizer that takes far longer than the calls.
    build/fuzz/tests/fuzz/"fuzz_$family" -max_total_time="$seconds" -max_len=256 -print_final_stats=1 -print_funcs=0 \
        -artifact_prefix="build/fuzz/findings/$family-" "$corpus" > "$log" 2>&1 || { verdict="FOUND, see $log"; found=1; }
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    total=$((total + ${runs:-0}))
    printf '%-40s %12d %s\n' "$family" "${runs:-0}" "$verdict"
done
printf '%-40s %12d\n' total "$total"
exit "$found"
