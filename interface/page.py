"""Writes the page of operations and types."""

import re

TYPES = {"unsigned char": "8u", "unsigned short": "16u", "short": "16s", "int": "32s", "unsigned int": "32u",
         "float": "32f", "double": "64f", "Complex32f": "32fc"}


CUT_WORDS = """"Cut" says how a region may be cut into parts that give the same bytes as the whole; `orvane_tiles.hpp` and
`orvane.tiles` have these rules for programs.

- *point*: anywhere; *2x1*, *2x2*: at columns and rows that are multiples of these.
- *frame*: anywhere. The neighbourhood is read where it lies: round a part of an image, half a mask or kernel on each
  side. Parts that are copied out of their image are taken larger by that and cropped, as with a halo.
- *halo n*: a part is taken larger by n pixels on each side, as far as the image goes, and its result is cropped.
- *place*: anywhere, but a part of the result lies in another place.
- *destination*: parts of the destination, each from the whole source.
- *join*: results of parts are joined exactly: sums and counts added, extremes compared; of equals the first place, row
  by row, counts. *rows*: parts are whole rows.
- *whole*: not at all; or what it computes depends on every pixel, in one order.""".split("\n")


def kind(method):
    """Type and layout, as the method's name has them."""
    found = re.search(r"_((?:(?:8u|16u|16s|32s|32u|32f|64f)(?:fc|c)?)+?)(?:_(A?C\d(?:C\d)?|P3C3)I?R?)?(?:_A\d+|_I)?$",
                      method.name)
    return " ".join(filter(None, found.groups())) if found else method.name


def words(cut):
    """A rule as the page has it."""
    if cut.kind == "halo":
        text = f"halo {cut.halo[0]}"
    elif (cut.columns, cut.rows) != (1, 1):
        text = f"{cut.kind} {cut.columns}x{cut.rows}" if cut.columns else f"{cut.kind} rows"
    else:
        text = cut.kind
    return text + (f", whole where {cut.whole}" if cut.whole else "")


def cuts(entries):
    """The rule of most types, and those of others."""
    found = {}
    for entry in entries:
        for binding in entry.bindings:
            kinds = found.setdefault(words(entry.cut_of(binding.method)), [])
            kinds += ["matrices"] if entry.of_matrices else entry.kinds or [kind(binding.method)]
    most, *others = sorted(found, key=lambda text: -len(found[text]))
    return "; ".join([most] + [f"{text} for {', '.join(dict.fromkeys(found[text]))}" for text in others])


def page(operations):
    lines = ["<!-- Made from interface/table.toml by interface/generate.py. -->", "# Operations of the typed layer", "",
             "Made from `interface/table.toml` by `interface/generate.py`. Names of types as in the classes; C1, C3,",
             "C4 are channels of images, types without them vectors.", "", *CUT_WORDS, "",
             "| operation | types | cut |", "|---|---|---|"]
    merged = {}
    for operation in operations:
        merged.setdefault(operation.name, []).append(operation)
    for name, entries in merged.items():
        kinds = list(dict.fromkeys(k for e in entries for k in e.kinds or [kind(b.method) for b in e.bindings]))
        lines.append(f"| `{name}` | {', '.join(kinds)} | {cuts(entries)} |")
    return "\n".join(lines + [""])
