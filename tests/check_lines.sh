#!/usr/bin/env bash
# No line of code is longer than 120 columns, but for lists that are compared as they are and text that readers see.
set -u
cd "$(dirname "$0")/.." || exit 1
find bench examples include src tests \( -name '*.h' -o -name '*.hpp' -o -name '*.cpp' -o -name '*.inc' \) \
    ! -path tests/hashes.inc ! -path examples/gallery/page.cpp -print0 2>/dev/null |
    xargs -0 awk 'length > 120 { print FILENAME ":" FNR ": " length " columns"; bad = 1 } END { exit bad }'
