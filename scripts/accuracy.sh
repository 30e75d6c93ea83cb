#!/bin/sh
# Largest errors of the elementary functions over all floats, as a table on standard output: about half an
# hour. Goes into docs/accuracy.md.
#     scripts/accuracy.sh [step [random arguments [filter]]]
set -e
cd "$(dirname "$0")/.."
cmake --preset release > /dev/null
cmake --build build/release --target orvane_accuracy > /dev/null
build/release/tests/orvane_accuracy "$@"
