#!/usr/bin/env bash
# Makes the gallery with the library of a build and looks whether its page is whole: see docs/site/check_gallery.py.
# Usage: scripts/check_gallery.sh BUILD-FOLDER
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$1" --prefix "$work" > /dev/null
ORVANE_PREFIX=$work scripts/demo.sh
python3 -B docs/site/check_gallery.py build/demo/page
