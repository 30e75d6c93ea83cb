"""The operations of the Python package: which functions of the typed layer have one name, and its arguments."""

import re
from dataclasses import dataclass, field

import layer
from mistake import Mistake

TYPES = {"unsigned char": "uint8", "short": "int16", "unsigned short": "uint16", "int": "int32",
         "unsigned int": "uint32", "unsigned long long": "uint64", "float": "float32", "double": "float64", "Complex32f": "complex64"}
ENUMERATION = re.compile(r"enum class (\w+) \{(.*?)\}", re.DOTALL)
PIXELS = ("image", "vector", "matrix")
VALUES = (*PIXELS, "constant", "number", "array", "tables")

# Defaults where the layer has none.
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
        given = not (made and p.source.startswith(("dst", "index"))) and not (kind == "array" and made) and kind != "result"
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
        self.elementwise = any(not f.entry.hand and f.entry.cut == "point" and f.entry.sizes == "equal"
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
        return self.equal and not any(p.given and p.kind in PIXELS for f in self.functions for p in f.parameters)

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
