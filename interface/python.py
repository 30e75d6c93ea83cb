"""Writes the Python package's table of operations, a line for each function of the typed layer, and its stubs."""

import re
import textwrap
from dataclasses import dataclass, field

import layer
from table import Mistake

TYPES = {"unsigned char": "uint8", "short": "int16", "unsigned short": "uint16", "int": "int32",
         "unsigned int": "uint32", "float": "float32", "double": "float64", "Complex32f": "complex64"}
ENUMERATION = re.compile(r"enum class (\w+) \{(.*?)\}", re.DOTALL)
PIXELS = ("image", "vector", "matrix")
VALUES = (*PIXELS, "constant", "number", "array", "tables")

# What arguments mean that several operations have, and their defaults where the layer has none.
MEANINGS = {
    "scale": "scale: the result is divided by 2**scale, rounded half to even, and clipped to the type.",
    "how": "how: how pixels between pixels are made: {how}.",
    "beyond": "beyond: what lies beyond the edge: 'replicate' (the nearest pixel) or 'constant' (value).",
    "shape": "shape: height and width of the result.",
    "dtype": "dtype: the type of the result.",
    "about": "about: the axis: 'horizontal', 'vertical' or 'both'.",
    "standard": "standard: {standard}.",
    "out": "out: the array to write, which is then returned; it may be a source.",
}
DEFAULTS = {"interpolation": "'linear'", "edge": "'replicate'"}


@dataclass
class Parameter:
    """One of a function, in the layer's terms and in Python's."""
    name: str
    type: str        # C++'s
    kind: str        # image, vector, matrix, array, tables, constant, number, code, result
    made: bool = False   # the result, or written over a copy of what is given
    given: bool = True   # by Python's caller
    default: str | None = None
    python: str = ""
    word: str = ""   # how operation.h is told where it comes from

    @property
    def element(self):
        inner = re.search(r"<(?:const )?([\w ]+)", self.type)
        return inner[1] if inner else re.sub(r"^const | ?[&*(].*$", "", self.type)

    @property
    def channels(self):
        found = re.search(r", (\d)>|\[(\d+)\]", self.type)
        return int(found[1] or found[2]) if found else 1


@dataclass
class Function:
    entry: object  # of the table
    brief: str
    parameters: list
    checks: str  # text that says how large results are
    keeps_alpha: bool = False

    @property
    def signature(self):
        return f"status({', '.join(p.type for p in self.parameters)})"

    def inputs(self):
        return [p for p in self.parameters if p.given]


# --- reading ----------------------------------------------------------------------------------------

def python_default(text):
    if text is None:
        return None
    return {"true": "True", "false": "False"}.get(text, f"'{text.split('::')[1]}'" if "::" in text else text)


def split(text, separator=","):
    """At separators outside of brackets."""
    parts, depth = [""], 0
    for letter in text:
        depth += (letter in "(<[") - (letter in ")>]")
        if letter == separator and depth == 0:
            parts.append("")
        else:
            parts[-1] += letter
    return [part.strip() for part in parts]


def kind_of(type_text, enumerations):
    for start, kind in (("view<", "image"), ("span<", "vector"), ("matrix<", "matrix"),
                        ("const constant<", "constant"), ("const span<", "tables")):
        if type_text.startswith(start):
            return kind
    if "&" in type_text:
        return "array" if type_text.startswith("const") else "result"
    return "code" if enumerations.get(type_text) else "number"


def from_overload(overload, enumerations):
    parameters = []
    for p in overload.public:
        kind = p.kind if p.operand or p.kind == "array" else kind_of(p.type, enumerations)
        made = (p.operand and not p.const) or (kind == "array" and not p.const)
        given = not (made and p.source.startswith("dst")) and not (kind == "array" and made) and kind != "result"
        parameters.append(Parameter(p.name, p.type, kind, made, given, python_default(p.default)))
    if overload.operation.frame:
        source = overload.operands[0]
        parameters += [Parameter("beyond", "edge", "code"),
                       Parameter("value", f"const constant<{source.element}, {source.channels}>&", "constant",
                                 default="0")]
    return Function(overload.operation, layer.brief(overload), parameters, " ".join(overload.operation.refuse),
                    "_AC4" in overload.method.name and bool(re.search(r"_AC4R?$", overload.method.name)))


def from_header(entry, header, enumerations):
    """The functions that are written by hand, by their declarations."""
    pattern = rf"((?:^///[^\n]*\n)*)^inline status {entry.name}\((.*?)\)\n\{{(.*?)^\}}"
    brief = ""
    for text in re.finditer(pattern, header, re.MULTILINE | re.DOTALL):
        brief = " ".join(text[1].replace("///", "").split()) or brief
        parameters = []
        for declaration in split(" ".join(text[2].split())):
            declaration, _, default = declaration.partition(" = ")
            name = re.search(r"(\w+)(?:\)\[\d+\])?$", declaration)[1]
            type_text = re.sub(rf" ?\b{name}\b", "", declaration)
            kind = kind_of(type_text, enumerations)
            made = kind in PIXELS and not re.search(r"<const", type_text)
            given = kind != "result" and (not made or name == "image")
            parameters.append(Parameter(name, type_text, kind, made, given, python_default(default or None)))
        yield Function(entry, brief, parameters, text[3])


# --- an operation -----------------------------------------------------------------------------------

@dataclass
class Operation:
    """All functions of one name, under one signature."""
    module: str
    name: str
    functions: list = field(default_factory=list)

    def prepare(self):
        self.elementwise = any(not f.entry.hand and f.entry.cut == "anywhere" and f.entry.sizes == "equal"
                               for f in self.functions)
        self.equal = self.elementwise or all(not f.entry.hand and f.entry.sizes == "equal" for f in self.functions)
        # What asks for more comes first: tables for each channel; vectors, but where images do as well for any shape.
        first = ("tables",) if self.elementwise else ("tables", "vector")
        self.functions.sort(key=lambda f: all(p.kind not in first for p in f.parameters))
        for f in self.functions:
            self.adapt(f)
        self.rename()
        self.arguments = self.merge()

    def adapt(self, f):
        """What the table says of Python's arguments."""
        for p in f.parameters:
            text = f.entry.python.get(p.name, "")
            p.word = p.name
            if re.match(r"\w+\.[a-z]", text):
                p.word, p.given = f"{p.name}={text}", text.endswith(("column", "row"))
                p.default = "None"
            elif text.startswith("["):
                p.word = p.name + text
            elif p.kind == "result" and text:
                p.given, p.default = True, text
            elif p.kind == "array":
                p.word = p.name if p.channels > 1 else p.name + "[]"
            elif p.made:
                p.word = p.name + (">out" if p.given else "=out")
            if p.type in DEFAULTS and p.default is None:
                p.default = DEFAULTS[p.type]

    def rename(self):
        """Functions agree in the names of what stands in the same place: a, b where one of them has these."""
        def placed(f):
            return [p for p in f.inputs() if p.default is None]
        base = min(self.functions, key=lambda f: ([p.name for p in placed(f)][:2] != ["a", "b"], bool(f.entry.hand)))
        for f in self.functions:
            names = {p.name: q.name for p, q in zip(placed(f), placed(base))
                     if p.kind in VALUES and q.kind in VALUES and not p.kind == q.kind == "number"}
            for p in f.parameters:
                p.python = names.get(p.name, p.name)
                if p.python != p.name:
                    p.word = f"{p.name}={p.python}" + (">out" if p.made else "")

    def results(self, f):
        return [p for p in f.parameters if p.made and p.kind in PIXELS]

    def merge(self):
        """Python's arguments: (name, default), and behind None those that are given by name."""
        entries = {}
        for f in self.functions:
            entries.setdefault(id(f.entry), []).append(f)
        placed, named = {}, {}
        for functions in entries.values():
            for p in (p for f in functions for p in f.inputs()):
                target = placed if p.default is None else named
                target.setdefault(p.python, [p.default, 0])
            for name in {p.python for f in functions for p in f.inputs()}:
                (placed if name in placed else named)[name][1] += 1
        for p in (p for p in self.functions[0].parameters if p.word.endswith("]") and not p.word.endswith("[]")):
            self.insert(placed, 1, re.search(r"\[(\w+)", p.word)[1], [None, len(entries)])
        arguments = [(name, None if count == len(entries) else "None") for name, (_, count) in placed.items()]
        if any(self.results(f) for f in self.functions):
            arguments.append(("out", "None"))
        if self.shape() == "required":
            arguments.insert(min(1, len(placed)), ("shape", None))
        if self.dtype() and self.name == "convert":
            arguments.insert(1, ("dtype", "None"))
        keywords = [(name, default) for name, (default, _) in named.items()]
        if self.shape() == "free":
            keywords.append(("shape", "None"))
        if self.dtype() and self.name != "convert":
            keywords.append(("dtype", "None"))
        return arguments + ([None] + keywords if keywords else [])

    @staticmethod
    def insert(names, at, name, value):
        items = [item for item in names.items() if item[0] != name]
        names.clear()
        names.update([*items[:at], (name, value), *items[at:]])

    def stores(self):
        """Whether it only fills what is given."""
        return self.elementwise and not any(p.given and p.kind in PIXELS for f in self.functions for p in f.parameters)

    def shape(self):
        f = self.functions[0]
        if f.entry.python.get("shape"):
            return "required"
        soft = not self.equal and self.results(f) and makes(f)[1]
        return "free" if soft and self.module == "orvane" else ""

    def dtype(self):
        seen = {}
        for f in self.functions:
            key = tuple((p.kind, p.type) for p in f.inputs() if p.kind in (*PIXELS, "array"))
            made = [p.type for p in self.results(f)]
            if key and seen.setdefault(key, made) != made:
                return True
        return False

    @property
    def signature(self):
        arguments = self.arguments
        if self.stores():
            arguments = [("out", None)] + [a for a in arguments if a and a[0] != "out"]
        return ", ".join("*" if a is None else a[0] + (f"={a[1]}" if a[1] is not None else "") for a in arguments)


def calls(text):
    """The arguments of each check of a size, balanced."""
    for start in re.finditer(r"\b(?:sized|shaped|filled)\(", text):
        depth, end = 1, start.end()
        while depth:
            depth += (text[end] == "(") - (text[end] == ")")
            end += 1
        yield split(text[start.end():end - 1])


def makes(f):
    """(expressions of the result's width and height, or none), whether a caller may want another size."""
    text = f.checks
    for name, value in re.findall(r"const auto (\w+) = ([^;]+);", text):
        text = re.sub(rf"\b{name}\b(?! =)", value, text)
    for _, quoted, *rest in calls(text):
        name = quoted.strip('"')
        target = next((p for p in f.parameters if p.name == name and p.made), None)
        if target and target.kind == "image" and len(rest) == 3:
            return (rest[1], rest[2]), False
        if target and target.kind == "matrix" and len(rest) == 3:
            return (rest[2], rest[1]), False
        if target and target.kind == "vector":
            return (rest[1], rest[1]), False
        if rest[1:] == ["destination.width()", "destination.height()"]:
            return (f"{name}.width()", f"{name}.height()"), False
    return (), True


def in_slots(expression, f):
    """An expression of the layer's, of slots."""
    places = {p.name: k for k, p in enumerate(f.parameters)}
    sides = {"width": "width", "columns": "width", "height": "height", "rows": "height"}
    expression = re.sub(r"static_cast<std::size_t>\((.*)\)$", r"\1", expression)
    return re.sub(r"(\w+)\.(width|height|rows|columns)\(\)", lambda m: f"s[{places[m[1]]}].{sides[m[2]]}", expression)


def operations(table, include):
    """All operations, in the table's order."""
    enumerations = read_enumerations(include)
    found = {}
    overloads = {}
    for overload in layer.overloads(table.operations):
        overloads.setdefault(id(overload.operation), []).append(overload)
    read = set()
    for entry in table.operations:
        if "omitted" in entry.python:
            continue
        functions = [from_overload(o, enumerations) for o in overloads.get(id(entry), [])]
        if entry.hand and (entry.name, entry.hand) not in read:
            read.add((entry.name, entry.hand))
            functions = list(from_header(entry, (include / entry.hand).read_text(), enumerations))
            if not functions:
                raise Mistake(f"{entry.hand} has no function {entry.name} that can be read")
        module = "orvane.linalg" if entry.hand.endswith("matrices.hpp") else "orvane"
        name = entry.python.get("name", entry.name)
        if functions:
            found.setdefault((module, name), Operation(module, name)).functions += functions
    for operation in found.values():
        operation.prepare()
    return list(found.values())


def read_enumerations(include):
    """{name: [(choice, value)]}; sizes of masks are numbers in Python, too."""
    found = {}
    for name, body in ENUMERATION.findall((include / "layer" / "codes.hpp").read_text()):
        value, choices = -1, []
        for choice in split(re.sub(r"///.*", "", body)):
            if choice:
                word, _, number = choice.partition(" = ")
                value = int(number) if number else value + 1
                choices.append((word, value))
        found[name] = choices
    del found["mask"]
    return found


# --- docstrings -------------------------------------------------------------------------------------

def python_names(text, f):
    for p in sorted(f.parameters, key=lambda p: -len(p.name)):
        name = "out" if p.made and not p.given else p.python
        if len(p.name) > 2:
            text = re.sub(rf"\b{p.name}\b", name, text)
    return text


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
    briefs = dict.fromkeys(python_names(f.brief, f) for f in reversed(firsts) if f.brief)
    names = [a[0] for a in operation.arguments if a]
    choices = {p.python: ", ".join(f"'{word}'" for word, _ in enumerations[p.type])
               for f in operation.functions for p in f.parameters if p.kind == "code"}
    parts = ["\n".join(briefs)]
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


# --- the table --------------------------------------------------------------------------------------

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


def table_source(all_operations, enumerations):
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


# --- stubs ------------------------------------------------------------------------------------------

STUB_HEAD = """# mypy: disable-error-code=misc
# Made from interface/table.toml by interface/python.py. NumPy's types of elements count as overlapping.
from collections.abc import Sequence
from typing import Any, Literal, overload

from numpy import complex64, float32, float64, int16, int32, uint8, uint16, uint32
from numpy.typing import ArrayLike, DTypeLike, NDArray
"""


def number(element):
    return {"Complex32f": "complex", "float": "float", "double": "float", "bool": "bool"}.get(element, "int")


def annotation(p, enumerations):
    if p.kind in PIXELS:
        return f"NDArray[{TYPES[p.element]}]"
    if p.kind in ("array", "tables"):
        return "ArrayLike"
    if p.kind == "code":
        return "Literal[" + ", ".join(f'"{word}"' for word, _ in enumerations[p.type]) + "]"
    if p.kind == "constant":
        one = number(p.element)
        return f"{one} | Sequence[{one}] | NDArray[Any]"
    return number(p.element)


def returned(operation, f):
    results = [p for p in f.parameters if p.made and p.kind in PIXELS] + \
              [p for p in f.parameters if p.kind == "result" or "[" in p.word and not p.word.endswith("[]")]
    def one(p):
        if p.kind == "result":
            return number(p.element) if p.channels == 1 else f"tuple[{', '.join([number(p.element)] * p.channels)}]"
        return f"NDArray[{TYPES[p.element]}]"
    texts = [one(p) for p in results]
    return texts[0] if len(texts) == 1 else f"tuple[{', '.join(texts)}]"


def stub_signature(operation, f, enumerations):
    own = {p.python: annotation(p, enumerations) for p in f.inputs()}
    outputs = [f"NDArray[{TYPES[p.element]}]" for p in operation.results(f)]
    own["out"] = outputs[0] if len(outputs) == 1 else f"tuple[{', '.join(outputs)}]"
    own.update(shape="tuple[int, int]", dtype="DTypeLike", bins="int")
    parts, named = [], False
    for argument in re.split(", ", operation.signature):
        name, _, default = argument.partition("=")
        named = named or name == "*"
        if name == "*":
            parts.append("*")
        elif name in own:
            optional = " | None" if default == "None" else ""
            parts.append(f"{name}: {own[name]}{optional}{' = ...' if default else ''}")
        elif not named:
            parts.append(f"{name}: None = ...")
    if parts[-1] == "*":
        parts.pop()
    return f"({', '.join(parts)}) -> {returned(operation, f)}: ..."


def stub(all_operations, module, enumerations, more):
    parts = [STUB_HEAD, more]
    for operation in (o for o in all_operations if o.module == module):
        signatures = list(dict.fromkeys(stub_signature(operation, f, enumerations) for f in operation.functions))
        head = "@overload\n" if len(signatures) > 1 else ""
        parts.append("\n".join(f"{head}def {operation.name}{text}" for text in signatures))
    return "\n".join(parts) + "\n"


MODULE = """from . import linalg as linalg, random as random

__version__: str

class ArgumentError(TypeError, ValueError): ...

def level() -> str: ...
def psd(
    signal: NDArray[float32], window: NDArray[float32] | None = ..., out: NDArray[float32] | None = ...,
    *, truncate: bool = ...
) -> NDArray[float32]: ...
def fft2(
    source: NDArray[float32], out: NDArray[float32] | None = ..., *, truncate: bool = ...
) -> NDArray[float32]: ...
def ifft2(
    spectrum: NDArray[float32], out: NDArray[float32] | None = ..., *, truncate: bool = ...
) -> NDArray[float32]: ...
"""
LINALG = """
def svd(a: NDArray[Any], full_matrices: bool = ..., compute_uv: bool = ...) -> Any: ...
def getrf(a: NDArray[float32]) -> tuple[NDArray[float32], NDArray[int32]]: ...
def getrs(
    lu: NDArray[float32], pivots: NDArray[int32], b: NDArray[float32], transposed: bool = ...
) -> NDArray[float32]: ...
"""


def write(table, include, folder, write_file):
    """table.cpp, and the stubs of the package."""
    enumerations = read_enumerations(include)
    all_operations = operations(table, include)
    write_file(folder / "table.cpp", table_source(all_operations, enumerations))
    for file, module, more in (("__init__", "orvane", MODULE), ("linalg", "orvane.linalg", LINALG)):
        write_file(folder / "orvane" / f"{file}.pyi", stub(all_operations, module, enumerations, more))
