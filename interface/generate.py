#!/usr/bin/env python3
"""Writes what follows from the table of operations and the public headers.

Usage: generate.py             writes the layer's headers and the page of operations
       generate.py --check     says what is stale, neither bound nor omitted, or not in the registries
       generate.py --tests DIR writes the generated tests
       generate.py --python DIR writes the table of the Python module and the stubs of the package
"""

import pathlib
import sys

sys.dont_write_bytecode = True  # the sources stay as they are

import cuts
import headers
import layer
import page
import python
import tests
from mistake import Mistake
from table import Table

ROOT = pathlib.Path(__file__).resolve().parent.parent


def outputs(table):
    overloads = list(layer.overloads(table.operations))
    include = ROOT / "include" / "layer"
    return {include / "images.hpp": layer.header(overloads, "ImageProcessingWrapper", "IMAGES_HPP"),
            include / "vectors.hpp": layer.header(overloads, "SignalProcessingWrapper", "VECTORS_HPP"),
            include / "rules.hpp": cuts.header(table.operations),
            include / "version.hpp": layer.version((ROOT / "CMakeLists.txt").read_text()),
            ROOT / "docs" / "operations.md": page.page(table.operations)}


def write(file, text):
    """Leaves files alone that would not change: what depends on them is not built anew."""
    if not file.exists() or file.read_text() != text:
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)


def main(arguments):
    methods = headers.read(ROOT / "include")
    table = Table(ROOT / "interface" / "table.toml", methods)
    if arguments[:1] == ["--tests"]:
        for name, text in tests.sources(layer.overloads(table.operations)):
            write(pathlib.Path(arguments[1], name), text)
    elif arguments[:1] == ["--python"]:
        python.write(table, ROOT / "include", pathlib.Path(arguments[1]), write)
    elif arguments == ["--check"]:
        table.check_complete()
        table.check_hand(ROOT / "include")
        table.check_registries(ROOT / "src", methods)
        stale = [str(file.relative_to(ROOT)) for file, text in outputs(table).items()
                 if not file.exists() or file.read_text() != text]
        if stale:
            raise Mistake("stale, run interface/generate.py: " + ", ".join(stale))
    elif not arguments:
        for file, text in outputs(table).items():
            write(file, text)
    else:
        raise Mistake(__doc__)


try:
    main(sys.argv[1:])
except Mistake as mistake:
    sys.exit(f"interface: {mistake}")
