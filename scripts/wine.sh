#!/usr/bin/env bash
# Runs a 32-bit Windows program under Wine.
# Usage: scripts/wine.sh --set-up | PROGRAM.exe [ARGUMENTS]
#
# Wine is unpacked into build/wine, not installed: its 32-bit packages want the same versions as the
# 64-bit libraries of the machine, which do not always exist. Only what a console program needs is there.
set -eu
cd "$(dirname "$0")/.."
root=$PWD/build/wine/root
unix=$root/usr/lib/i386-linux-gnu

set_up() {
    [ -e build/wine/ready ] && return
    local had_architecture=yes as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    dpkg --print-foreign-architectures | grep -q '^i386$' || had_architecture=no
    rm -rf build/wine
    mkdir -p build/wine/packages
    "${as_root[@]}" dpkg --add-architecture i386
    "${as_root[@]}" apt-get update -q > build/wine/update.log 2>&1 || true  # some i386 indexes may be stale
    (cd build/wine/packages && apt-get download -q wine32:i386 libwine:i386 libunwind8:i386 liblzma5:i386 libz-mingw-w64) \
        > build/wine/download.log 2>&1 || { tail -n 3 build/wine/download.log >&2; failed=yes; }
    if [ $had_architecture = no ]; then
        "${as_root[@]}" dpkg --remove-architecture i386
        "${as_root[@]}" apt-get update -q >> build/wine/update.log 2>&1 || true
    fi
    [ -z "${failed:-}" ] || return 1
    for package in build/wine/packages/*.deb; do dpkg -x "$package" "$root"; done
    # The loader looks for its server beside itself; the script that stands there knows installed ones only.
    cp "$root/usr/lib/wine/wineserver32" "$root/usr/lib/wine/wineserver"
    cp "$root/usr/i686-w64-mingw32/lib/zlib1.dll" "$unix/wine/i386-windows/"
    touch build/wine/ready
}

set_up
[ "$1" = --set-up ] && exit 0
export WINEPREFIX=$PWD/build/wine/prefix WINEDEBUG=-all WINEARCH=win32 DISPLAY=
export LD_LIBRARY_PATH=$unix WINEDLLPATH=$unix/wine WINELOADER=$root/usr/lib/wine/wine WINESERVER=$root/usr/lib/wine/wineserver
exec "$root/usr/lib/wine/wine" "$@"
