#!/usr/bin/env bash
# The package for Python: its tests, its stubs against what they describe, and its wheel, installed without a network.
# Where scripts/demo.sh has made the gallery, the darkroom is compared with it.
# Usage: check_python.sh BUILD-FOLDER       a build with ORVANE_BUILD_PYTHON
set -eu
cd "$(dirname "$0")/.."
build=$PWD/$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export PYTHONDONTWRITEBYTECODE=1
if [ -e build/demo/page/pictures.json ]; then export ORVANE_GALLERY=$PWD/build/demo; fi
python=/usr/bin/python3
cmake --build "$build" --target orvane_python wheel

PYTHONPATH=$build/python $python -m pytest -q -p no:cacheprovider tests/python
PYTHONPATH=$build/python $python scripts/check_documents.py "$build" docs/start_python.md
# What cannot be imported here cannot be compared.
touch "$work/not_there"
if $python -c 'import dask.array, tifffile, zarr' 2> /dev/null; then
    PYTHONPATH=$build/python $python scripts/check_documents.py "$build" docs/scaling.md
else
    echo 'orvane\.dask' > "$work/not_there"
fi
(cd "$build/python" && MYPY_CACHE_DIR=$work/mypy $python -m mypy.stubtest --allowlist "$work/not_there" orvane)

$python -m venv --system-site-packages "$work/venv"
"$work/venv/bin/pip" install -q --no-index "$build"/python/orvane-*.whl
(cd "$work" && venv/bin/python -c '
import numpy, orvane
assert orvane.__file__.startswith("'"$work"'"), orvane.__file__
assert (orvane.add(numpy.full((2, 2), 200, "u1"), 100) == 255).all()')
