"""Writes the rules of the Python package: how the arrays of each operation may be cut."""

import re

from overloads import Overload
from python_model import TYPES

HEAD = '''"""How arrays may be cut, for orvane.tiles. Made from interface/table.toml by interface/python.py."""

from typing import Any

# {name: ({argument: default}, [case])}; a case is (types of elements, kind, (columns, rows), the arguments that it
# depends on, halo, condition under which arrays are not cut, {argument: (array that tells it, axis)}, results).
TABLE: dict[str, Any] = {
'''
SIDES = {"width": "1", "height": "0", "column": "1, 2", "row": "0, 2"}


def in_python(expression):
    return re.sub(r"detail::half\((\w+)\)", r"\1 / 2", expression).replace(" / ", " // ").replace("&&", "and")


def halo(cut):
    sides = [in_python(side) for side in cut.halo]
    return f"({sides[0]},) * 4" if len(set(sides)) == 1 else f"({', '.join(sides)})"


def function(names, text):
    return f"lambda {', '.join(names)}: {text}" if text else "None"


def parameters(entry, binding):
    """Those of the layer, and the names of the results that are numbers."""
    public = [] if entry.hand else Overload(entry, binding).public
    results = [p.name for p in public if p.kind == "result" or p.kind == "array" and not p.const]
    return [p.name for p in public], results


def cases(operation):
    """A case for each rule of an operation, with its types."""
    found = {}
    entries = {id(f.entry): f.entry for f in operation.functions}.values()
    for entry, binding in ((entry, binding) for entry in entries for binding in entry.bindings):
        cut = entry.cut_of(binding.method)
        element = next((TYPES[a.element] for a in binding.method.arguments if a.element in TYPES and a.pointer), "")
        names, results = parameters(entry, binding)
        told = ", ".join(f"'{name}': ('{array}', {SIDES[side]})" for name, (array, side) in arrays(entry))
        key = (cut, tuple(cut.names(names)), tuple(results) if cut.kind == "join" else (), told)
        found.setdefault(key, {})[element] = None
    for (cut, names, results, told), types in found.items():
        yield (f"('{' '.join(types)}', '{cut.kind}', ({cut.columns}, {cut.rows}), {names!r}, "
               f"{function(names, halo(cut) if cut.halo else '')}, {function(names, in_python(cut.whole))}, "
               f"{{{told}}}, {results!r})")


def arrays(entry):
    """Arguments that an array tells: (name, (array, side))."""
    return [(name, text.split(".")) for name, text in entry.python.items() if re.match(r"\w+\.[a-z]", text)]


def defaults(operation):
    return ", ".join(f"'{a[0]}': {a[1]}" for a in operation.arguments if a)


def source(operations):
    lines = []
    for operation in operations:
        name = f"{operation.module}.{operation.name}".removeprefix("orvane.")
        lines += [f"    '{name}': ({{{defaults(operation)}}}, [", *(f"        {case}," for case in cases(operation)), "    ]),"]
    return "\n".join([HEAD.rstrip("\n"), *lines, "}", ""])
