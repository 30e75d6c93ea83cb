#!/usr/bin/env bash
# Builds the reference site and looks whether everything is there: see docs/site/check.py.
# Usage: scripts/check_site.sh [BUILD-FOLDER]
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}
scripts/setup.sh site
cmake --build "$build" --target site > "$build/site.log" 2>&1 || { cat "$build/site.log"; exit 1; }
python3 -B docs/site/check.py "$build/site/html"
for plot in speed ratios; do
    cmp "docs/images/$plot.svg" "$build/site/images/$plot.svg" || { echo "draw it anew: docs/site/plots.py docs/images"; exit 1; }
done
