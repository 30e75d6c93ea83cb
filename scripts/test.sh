#!/usr/bin/env bash
# Installs what is missing, builds for 64 and 32 bits and for Windows and runs all tests; scripts/sanitize.sh has the
# sanitizers, whose build alone takes longer than all of this.
# The last line is "N passed, N failed", with ", N skipped" where something could not be set up.
set -u
cd "$(dirname "$0")/.." || exit 1

passed=0 failed=0 skipped=0
log_folder=build/logs
mkdir -p "$log_folder"

pass() { passed=$((passed + $1)); echo "ok       $2"; }
fail() { failed=$((failed + 1)); echo "FAILED   $1"; }
skip() { skipped=$((skipped + 1)); echo "skipped  $1: $2"; }

# check NAME COMMAND...: one check; its output is shown only when it fails.
check() {
    local name=$1 log
    log=$log_folder/$(echo "$name" | tr -c 'a-zA-Z0-9\n' '_').log
    shift
    if "$@" > "$log" 2>&1; then pass 1 "$name"; else tail -n 30 "$log"; fail "$name (log: $log)"; return 1; fi
}

# tests NAME COMMAND...: a run of the test program; every test of it counts.
tests() {
    local name=$1 log count bad
    log=$log_folder/$(echo "$name" | tr -c 'a-zA-Z0-9\n' '_').log
    shift
    "$@" > "$log" 2>&1
    local status=$?
    count=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) tests\?\.$/\1/p' "$log")
    bad=$(sed -n 's/^ *\([0-9]*\) FAILED TESTS\?$/\1/p' "$log")
    if [ $status -ne 0 ] || [ -n "$bad" ] || [ "${count:-0}" -eq 0 ]; then
        grep -E 'seed|Failure|FAILED' "$log" | head -n 30
        tail -n 5 "$log"
        fail "$name (log: $log)"
    else
        pass "$count" "$name: $count tests; $(grep '^variants:' "$log")"
    fi
}

# One seed for all runs here, so that a failure is the change's and not the day's; --seed=N tries others.
seed=--seed=7

# Each chooses its own level; EPYC is another vendor's. The oracles run once without vectors, once with the first and once
# with the last of them, which is mostly this processor; the comparison of all levels, the hashes and the frame run
# everywhere, but where a processor has another one's kernels: there the choice, the hashes and the frame will do.
processors="pentium3:px coreduo:w7 Haswell:h9 SandyBridge:g9 Penryn:p8 core2duo:v8 n270:s8 EPYC:h9"
frame='Buffers*:Exports*:Features*:Image*:InPlace*:Level*:StartUp*:Hashes*'

# emulate PROCESSOR:LEVEL: a run whose output and status wait in files, because several go on at a time.
emulate() {
    local output=$log_folder/emulated_${1%:*} filter='*'
    case $1 in
        Haswell:*) ! grep -q "level ${1#*:}, 32 bit" "$log_folder/tests__32_bit.log" || filter="$frame:Variants*:Vocabulary*" ;;
        n270:* | EPYC:*) filter=$frame ;;
        core2duo:* | Penryn:* | SandyBridge:*) filter="$frame:Variants*:Overlap*:Vocabulary*" ;;
    esac
    qemu-i386 -cpu "${1%:*}" build/i386/tests/orvane_tests --brief "$seed" --expect-level="${1#*:}" \
        --gtest_filter="$filter" > "$output" 2>&1
    echo $? > "$output.status"
}
export -f emulate
export seed log_folder frame

emulated() {
    local output=$log_folder/emulated_${1%:*}
    tests "tests on an emulated ${1%:*}, level ${1#*:}" bash -c "cat $output; exit \$(cat $output.status)"
}

have_lapack_sources() {
    [ -d build/lapack ] || scripts/fetch_lapack.sh "$PWD/build/lapack" > "$log_folder/lapack.log" 2>&1
}

# build PRESET [OPTION...]
build() { cmake --preset "$1" "${@:2}" && cmake --build --preset "$1"; }

scripts/setup.sh test || { echo "some packages are missing; going on with what there is"; }

python=OFF
if scripts/setup.sh python > "$log_folder/setup_python.log" 2>&1; then python=ON; fi
cluster=OFF
if scripts/setup.sh cluster > "$log_folder/setup_cluster.log" 2>&1; then cluster=ON; fi

if check "build, 64 bit" build release -DORVANE_BUILD_PYTHON=$python; then
    tests "tests, 64 bit" build/release/tests/orvane_tests $seed
    check "interface" interface/generate.py --check
    check "exports" tests/check_exports.sh build/release/src/liborvane.so
    check "symbols, layers, faults to plant" ctest --test-dir build/release -E 'orvane_tests|exports'
    check "package" scripts/check_package.sh build/release
    check "installation" scripts/check_install.sh build/release
    check "folder of another project" scripts/check_subproject.sh build/release
    check ".deb, 64 bit" scripts/check_archive.sh build/release
    check "static library" scripts/check_static.sh
    check "ports" scripts/check_ports.py
    check "gallery" scripts/check_gallery.sh build/release
    if [ $python = ON ]; then
        check "Python" scripts/check_python.sh build/release
    else
        skip "Python" "its packages are not there ($log_folder/setup_python.log)"
    fi
    if [ $cluster = ON ]; then
        check "bands on cores and by MPI" scripts/check_cluster.sh build/release
        [ $python = OFF ] || check "cluster" env ORVANE_PYTHON="$PWD/build/release/python" examples/cluster/run.sh --small
    else
        skip "cluster" "its packages are not there ($log_folder/setup_cluster.log)"
    fi
    check "site" scripts/check_site.sh build/release
fi
check "clang" scripts/check_clang.sh

if ! echo 'int main(){}' | g++ -m32 -x c++ - -o /dev/null 2> /dev/null; then
    skip "32 bit" "g++-multilib is not there"
elif ! have_lapack_sources; then
    skip "32 bit" "the sources of LAPACK cannot be had"
elif check "build, 32 bit" build i386; then
    tests "tests, 32 bit" build/i386/tests/orvane_tests $seed
    check "kernel symbols, 32 bit" ctest --test-dir build/i386 -R kernel_symbols
    check ".deb, 32 bit" scripts/check_archive.sh build/i386
    check ".debs side by side" scripts/check_debian.sh build/release build/i386
    if command -v qemu-i386 > /dev/null; then
        rm -f "$log_folder"/emulated_*
        # shellcheck disable=SC2086
        printf '%s\n' $processors | xargs -P "$(nproc)" -I '{}' bash -c 'emulate {}'
        for processor in $processors; do emulated "$processor"; done
    else
        skip "emulated processors" "qemu-i386 is not there"
    fi
fi

# The Windows DLL, under Wine.
if ! scripts/setup.sh windows > "$log_folder/setup_windows.log" 2>&1; then
    skip "Windows" "the cross compilers are not there ($log_folder/setup_windows.log)"
elif ! have_lapack_sources; then
    skip "Windows" "the sources of LAPACK cannot be had"
elif check "build, Windows" build windows; then
    check "exports of the DLL" tests/check_exports.sh build/windows/src/dll/orvane.dll
    check "form of the DLL" tests/check_dll.sh build/windows/src/dll
    # shellcheck disable=SC2046
    check "kernel symbols, Windows" env NM=i686-w64-mingw32-nm \
        tests/check_kernel_symbols.sh $(find build/windows/src -path '*kernel_*' -name '*.obj')
    if scripts/wine.sh --set-up > "$log_folder/wine.log" 2>&1; then
        tests "tests, Windows" bash -c "scripts/wine.sh build/windows/tests/orvane_tests.exe --brief $seed 2>&1 | tr -d '\r'"
        for host in microsoft stdcall vectorcall loader mingw hello; do
            check "$host host on Windows" scripts/check_windows_hosts.sh build/windows "$host"
        done
        check "package, Windows" scripts/check_archive.sh build/windows
    else
        skip "tests and hosts on Windows" "Wine cannot be had ($log_folder/wine.log)"
    fi
fi

check "release, but for the tag" scripts/check_release.sh

echo
if [ $skipped -gt 0 ]; then
    echo "$passed passed, $failed failed, $skipped skipped"
else
    echo "$passed passed, $failed failed"
fi
[ $failed -eq 0 ]
