#!/usr/bin/env bash
# Builds the library with its Python package and runs scan.py: workers on this machine, all in a temporary folder.
# Usage: examples/cluster/run.sh [--small]     half a minute to two on two cores; --small: a quarter
# With ORVANE_PYTHON nothing is built: it names the folder that has the package.
set -eu
cd "$(dirname "$0")/../.."
scripts/setup.sh python cluster
if [ -z "${ORVANE_PYTHON:-}" ]; then
    echo "building the library"
    { cmake --preset library -DORVANE_BUILD_PYTHON=ON && cmake --build --preset library; } > build/cluster.log 2>&1 ||
        { tail -n 20 build/cluster.log >&2; exit 1; }
    ORVANE_PYTHON=$PWD/build/library/python
fi
PYTHONPATH=$ORVANE_PYTHON exec /usr/bin/python3 -B examples/cluster/scan.py "$@"
