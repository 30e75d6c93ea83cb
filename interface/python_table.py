"""Writes the table of the Python module: docstrings, and a line for each function of the typed layer."""

import re
import textwrap

from python_model import PIXELS, TYPES, in_slots, makes

# What the briefs of methods say of the methods alone.
OF_METHODS = r"(, without a temporary|; see above|: the same as \w+|[.;] [^.]*no lack of memory.*)"

# What arguments mean that do not explain themselves.
MEANINGS = {
    "kernel": "kernel: rows of weights, integers, or floats for a float32 result; turned by a half, as in convolution.",
    "anchor_x": "anchor_x, anchor_y: the element of the kernel that lies on the pixel; its middle.",
    "divisor": "divisor: integer sums are divided by it, rounded half to even.",
    "size": "size: the side of the mask, 3 or 5.",
    "noise": "noise: the variance of the noise; below 0 it is estimated.",
    "table": "table: the result for each value that a pixel may have, 256 or 65536; or a row of 256 for each channel.",
    "levels": "levels, values: the points of the curve, from the left to the right.",
    "coefficients": "coefficients: the nine of the map from source to result, row by row.",
    "twist": "twist: three rows of three factors and a constant.",
    "standard": "standard: which matrix, and which range: {standard}.",
    "scale": "scale: the result is divided by 2**scale, rounded half to even, and clipped to the type.",
    "how": "how: how pixels between pixels are made: {how}.",
    "beyond": "beyond: what lies beyond the edge: 'replicate' (the nearest pixel) or 'constant' (value).",
    "shape": "shape: height and width of the result.",
    "dtype": "dtype: the type of the result.",
    "about": "about: the axis: 'horizontal', 'vertical' or 'both'.",
    "origin_x": "origin_x, origin_y: where the result begins, as a part of a larger one.",
    "whole_width": "whole_width: the columns of that larger one; 0 where the part ends.",
    "whole_height": "whole_height: its rows, likewise.",
    "out": "out: the array to write, which is then returned; it may be a source.",
}


def python_names(text, f, several):
    """The layer's text in Python's names. A single result is `out`, several have their own names."""
    text = re.sub(OF_METHODS, "", text)
    for p in sorted(f.parameters, key=lambda p: -len(p.name)):
        if p.made and p.given:
            text = re.sub(rf"^{p.name}(?=(\[\w+\])? = )", "out", text)
        if len(p.name) > 2:
            is_out = p.made and not p.given and p.kind in PIXELS and (not several or "out" in several)
            text = re.sub(rf"\b{p.name}\b", "out" if is_out else p.python, text)
    return text


def returned(f):
    """The names of the results, where there are several."""
    names = [p.name for p in f.parameters if p.made and p.kind in PIXELS]
    names = ["out"] if len(names) == 1 else names
    names += [p.name for p in f.parameters if p.kind == "result" or p.made and p.kind == "array"]
    return names if len(names) > 1 else []


def described(p):
    if p.kind == "vector":
        return TYPES[p.element] + " vector"
    return TYPES[p.element] + (f" x{p.channels}" if p.kind == "image" else "")


def types_of(operation):
    lines = {}
    for f in operation.functions:
        sources = [p for p in f.parameters if p.kind in PIXELS and p.given] or operation.results(f)
        targets = operation.results(f)
        if not sources:
            continue
        word = (lambda p: TYPES[p.element] + (f" x{p.channels}" if p.channels > 1 else "")) \
            if operation.elementwise else described
        left = " and ".join(dict.fromkeys(word(p) for p in sources))
        right = " and ".join(dict.fromkeys(word(p) for p in targets))
        lines.setdefault(left if right in ("", left) else f"{left} to {right}")
    return ", ".join(lines)


def docstring(operation, enumerations):
    firsts = {id(f if f.entry.hand else f.entry): f for f in reversed(operation.functions)}.values()
    several = returned(operation.functions[0])
    briefs = dict.fromkeys(python_names(f.brief, f, several) for f in reversed(firsts) if f.brief)
    names = [a[0] for a in operation.arguments if a]
    choices = {p.python: ", ".join(f"'{word}'" for word, _ in enumerations[p.type])
               for f in operation.functions for p in f.parameters if p.kind == "code"}
    parts = ["\n".join(briefs)]
    if several:
        parts.append(f"Returns ({', '.join(several)}).")
    meanings = [MEANINGS[n].format(**choices) for n in names if n in MEANINGS]
    parts += ["\n".join(meanings)] if meanings else []
    types = types_of(operation)
    if types:
        parts.append(f"Types: {types}.")
        if operation.elementwise:
            parts.append("Arrays of any shape; where channels are told (x3, x4), they are the last axis."
                         if " x" in types else "Arrays of any shape.")
    constants = [p.python for f in operation.functions for p in f.parameters
                 if p.kind == "constant" and p.python in ("a", "b", "value")]
    if constants and operation.elementwise:
        parts.append(f"{constants[0]} may be one number, or one for each channel.")
    warned = [f.entry.false for f in operation.functions if f.entry.false not in ("memory", "failed")]
    warning = f" Warns (RuntimeWarning) of a {warned[0].replace('_', ' ')}." if warned else ""
    parts.append("Raises ArgumentError, which names the argument, where nothing was written." + warning)
    body = "\n\n".join("\n".join(textwrap.fill(line, 88) for line in part.split("\n")) for part in parts)
    return f"{operation.name}({operation.signature})\n--\n\n{body}"


HEAD = """// The operations of the package. Made from interface/table.toml by interface/python.py.
#include "table.h"

namespace orvane_python {
"""


def codes(enumerations):
    for name, choices in enumerations.items():
        rows = ", ".join(f'{{"{word}", {value}}}' for word, value in choices)
        yield (f"constexpr code_name {name}_codes[] = {{{rows}, {{nullptr, 0}}}};\n"
               f"template <>\nconstexpr const code_name* codes_of<orvane::{name}> = {name}_codes;\n")


def line(operation, f):
    words = " ".join(p.word for p in f.parameters)
    sizes, _ = makes(f)
    more = ""
    if sizes and not operation.equal and operation.results(f):
        wide, high = (in_slots(e, f) for e in sizes)
        more = f", [](const slot* s) {{ return extent{{{wide}, {high}}}; }}"
    if f.keeps_alpha:
        more += (", nullptr" if not more else "") + ", true"
    return f'    function<{f.signature}>::by<orvane::{f.entry.name}>("{words}"{more}),'


def cpp_string(text):
    return "\n".join(f'     "{part}"' for part in
                     (line.replace("\\", "\\\\").replace('"', '\\"') + "\\n" for line in text.split("\n")))


def source(all_operations, enumerations):
    parts = [HEAD, *codes(enumerations), "namespace {\n\nusing namespace orvane;\n"]
    rows = []
    for k, operation in enumerate(all_operations):
        array = f"{operation.module.replace('.', '_')}_{operation.name}"
        parts.append(f"constexpr overload {array}[] = {{\n" +
                     "\n".join(line(operation, f) for f in operation.functions) + "\n};\n")
        flags = ", ".join(str(flag).lower() for flag in (operation.elementwise, operation.equal))
        rows.append(f'    {{"{operation.module}",\n{cpp_string(docstring(operation, enumerations))},\n'
                    f"     {flags}, {array}, {len(operation.functions)}}},")
    parts += ["constexpr operation_row rows[] = {", *rows, "};\n", "}  // namespace\n",
              f"operation_rows table() {{ return {{rows, {len(rows)}}}; }}\n", "}  // namespace orvane_python", ""]
    return "\n".join(parts)
