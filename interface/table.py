"""The table of operations, and which methods each of them binds."""

import fnmatch
import re
import tomllib
from dataclasses import dataclass, field

from cuts import read_cut
from mistake import Mistake


@dataclass
class Parameter:
    """One parameter of an operation: `name = argument | argument [length] : default`."""
    name: str
    sources: list
    length: str | None  # of an array; empty for any
    default: str | None


def parse_parameter(text):
    parts = re.fullmatch(r"(\w+) =((?: \w+| \|)*)(?: \[(\d*)\])?(?: :(?: (.+))?)?", text)
    if not parts:
        raise Mistake(f"the table says {text!r} where a parameter should stand")
    name, sources, length, default = parts.groups()
    return Parameter(name, [s for s in sources.split() if s != "|"], length, default)


@dataclass
class Operation:
    name: str
    methods: list
    call: str = ""
    given: dict = field(default_factory=dict)
    channels: dict = field(default_factory=dict)
    arrays: dict = field(default_factory=dict)
    extent: dict = field(default_factory=dict)
    sizes: str = "equal"
    size: str = ""
    refuse: list = field(default_factory=list)
    choose: dict = field(default_factory=dict)
    codes: list = field(default_factory=list)
    frame: list = field(default_factory=list)
    false: str = "memory"
    cut: str | dict = ""
    whole: str = ""
    example: str = ""
    note: str = ""
    hand: str = ""
    again: bool = False
    kinds: list = field(default_factory=list)
    exclude: list = field(default_factory=list)
    python: dict = field(default_factory=dict)

    def __post_init__(self):
        self.parameters = [parse_parameter(p) for p in self.call.split(", ")] if self.call else []
        self.bindings = []
        self.cuts = {pattern: read_cut(self.name, text, self.frame, self.whole) for pattern, text in
                     (self.cut.items() if isinstance(self.cut, dict) else [("*", self.cut)])}

    @property
    def of_matrices(self):
        return self.hand.endswith("matrices.hpp")

    def cut_of(self, method):
        """How regions of a method are cut."""
        found = [cut for pattern, cut in self.cuts.items() if fnmatch.fnmatchcase(method.name, pattern)]
        if not found:
            raise Mistake(f"{self.name}: cut says nothing of {method.qualified}")
        return found[0]

    @property
    def choice(self):
        """The argument that picks the method: (parameter, type, {value: text in the method's name})."""
        if not self.choose:
            return None
        (parameter, kind), *values = self.choose.items()
        return parameter, kind, dict(values)


@dataclass(frozen=True)
class Binding:
    """What one overload calls: a method, or one for each value of the operation's choice."""
    method: object
    others: tuple = ()  # (value, method), the first included


def in_place_twin(name, names):
    """Whether a form that ends in I only repeats one that takes a destination."""
    out_of_place = re.sub(r"_I$|I$|I(?=R$)", "", name)
    return out_of_place != name and (out_of_place in names or out_of_place + "R" in names or
                                     out_of_place.removesuffix("R") in names)


def expand(pattern, texts):
    return [re.sub(r"\{\w+\}", text, pattern) for text in texts]


def bind(operation, methods, names, taken):
    choice = operation.choice
    for pattern in operation.methods:
        texts = list(choice[2].values()) if choice else []
        first = expand(pattern, texts[:1])[0] if texts else pattern
        found = [m for m in methods if fnmatch.fnmatchcase(m.qualified, first)
                 and (operation.again or m.qualified not in taken)
                 and not any(fnmatch.fnmatchcase(m.qualified, e) for e in operation.exclude)
                 and not in_place_twin(m.qualified, names)]
        for method in found:
            others = ()
            if texts:
                others = tuple((value, names[method.qualified.replace(texts[0], text, 1)])
                               for value, text in choice[2].items())
            operation.bindings.append(Binding(method, others))
            if not operation.again:  # another entry has them, too: it may come later
                taken.update([method.qualified] + [m.qualified for _, m in others])


def kernel_names(method):
    """Registries know a method by its own name, or without the letters for a region and for in place."""
    return {method, re.sub(r"(?<=\d)I?R?$", "", method)}


class Table:
    def __init__(self, path, methods):
        with open(path, "rb") as file:
            entries = tomllib.load(file)
        self.operations = [Operation(**{("exclude" if k == "except" else k): v for k, v in entry.items()})
                           for entry in entries["operation"]]
        self.kernels = entries.get("kernel", [])
        names = {m.qualified: m for m in methods}
        taken = self.omit(entries["omitted"], methods)
        for operation in self.operations:
            bind(operation, methods, names, taken)
        self.left = [m.qualified for m in methods if m.qualified not in taken and not in_place_twin(m.qualified, names)]

    @staticmethod
    def omit(entries, methods):
        taken = set()
        for entry in entries:
            for pattern in entry["methods"]:
                found = {m.qualified for m in methods if fnmatch.fnmatchcase(m.qualified, pattern)}
                if not found:
                    raise Mistake(f"no method is like {pattern}, which is omitted because: {entry['reason']}")
                taken |= found
        return taken

    def check_complete(self):
        idle = [f"{o.name}: {', '.join(o.methods)}" for o in self.operations if not o.bindings]
        if idle:
            raise Mistake("entries without a method:\n  " + "\n  ".join(idle))
        if self.left:
            raise Mistake("neither bound nor omitted in interface/table.toml:\n  " + "\n  ".join(self.left))

    def check_hand(self, include):
        """What is written by hand stands where the table says."""
        for operation in self.operations:
            if operation.hand and f" {operation.name}(" not in (include / operation.hand).read_text():
                raise Mistake(f"{operation.hand} has no {operation.name}")

    def check_registries(self, source, methods):
        """Registries and table name the same operations: by the same name, or by a line that says whom one serves."""
        kernels = {name for file in sorted(source.rglob("*.inc"))
                   for name in re.findall(r"^KERNEL\((\w+),", file.read_text(), re.MULTILINE)}
        public = {name for m in methods for name in kernel_names(m.name)}
        for kernel in self.kernels:
            if not fnmatch.filter(kernels, kernel["pattern"]):
                raise Mistake(f"no registry has an operation like {kernel['pattern']}")
        strange = [k for k in sorted(kernels - public)
                   if not any(fnmatch.fnmatchcase(k, e["pattern"]) for e in self.kernels)]
        if strange:
            raise Mistake(f"operations of registries that are no method's and no [[kernel]]'s: {', '.join(strange)}")
        served = [pattern for kernel in self.kernels for pattern in kernel["serves"]]
        bound = [b.method for o in self.operations for b in o.bindings]
        idle = [m.qualified for m in bound if not kernels.intersection(kernel_names(m.name))
                and not any(fnmatch.fnmatchcase(m.qualified, pattern) for pattern in served)]
        if idle:
            raise Mistake(f"no registry has what these methods would call: {', '.join(idle)}")
