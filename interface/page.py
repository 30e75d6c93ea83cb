"""Writes the page of operations and types."""

import re

TYPES = {"unsigned char": "8u", "unsigned short": "16u", "short": "16s", "int": "32s", "unsigned int": "32u",
         "float": "32f", "double": "64f", "Complex32f": "32fc"}
CUTS = {"anywhere": "anywhere", "frame": "with its frame", "whole": "no"}


def kind(method):
    """Type and layout, as the method's name has them."""
    found = re.search(r"_((?:(?:8u|16u|16s|32s|32u|32f|64f)(?:fc|c)?)+?)(?:_(A?C\d(?:C\d)?|P3C3)I?R?)?(?:_A\d+|_I)?$",
                      method.name)
    return " ".join(filter(None, found.groups())) if found else method.name


def page(operations):
    lines = ["<!-- Made from interface/table.toml by interface/generate.py. -->", "# Operations of the typed layer", "",
             "Made from `interface/table.toml` by `interface/generate.py`. Names of types as in the classes; C1, C3,",
             "C4 are channels of images, types without them vectors. \"Cut\" says whether the parts of a region, each",
             "for itself, give the same bytes as the whole.", "",
             "| operation | types | cut |", "|---|---|---|"]
    merged = {}
    for operation in operations:
        merged.setdefault(operation.name, []).append(operation)
    for name, entries in merged.items():
        kinds = list(dict.fromkeys(k for e in entries for k in e.kinds or [kind(b.method) for b in e.bindings]))
        where = entries[0].hand
        cut = f"see `{where}`" if where else CUTS[entries[0].cut]
        lines.append(f"| `{name}` | {', '.join(kinds)} | {cut} |")
    return "\n".join(lines + [""])
