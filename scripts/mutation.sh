#!/usr/bin/env bash
# Breaks a copy of the tree in every way that tests/mutation/faults.py lists, one at a time, and wants each fault
# caught by the net that is meant for it. About twenty minutes on two cores. Words choose faults by description.
set -eu
cd "$(dirname "$0")/.."
scripts/setup.sh test
mkdir -p build/mutation
exec python3 tests/mutation/mutation.py build/mutation "$@"
