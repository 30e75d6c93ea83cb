"""From a method's arguments to an overload: what each public parameter is, and what the method is given."""

import re
from dataclasses import dataclass

from mistake import Mistake

# Arguments that are numbers of a fixed meaning.
ENUMERATIONS = {"axis": ("axis", [0, 1, 2]), "standard": ("colour_standard", [0, 1, 2, 3]),
                "interpolation": ("interpolation", [1, 2, 4, 5, 6, 7, 8, 16])}
# Arguments that are elements, and are checked to be values of their type.
ELEMENTS = re.compile(r"value|count$|counts|threshold|alpha|order")
SINGLE = {"column", "row", "index"}


@dataclass
class Public:
    """A parameter as users see it."""
    name: str
    kind: str      # image, vector, constant, array, result, code, choice, plain
    element: str   # element or whole type
    const: bool = True
    channels: int = 1
    default: str | None = None
    length: str | None = None  # of an array
    source: str = ""           # the method's argument

    @property
    def operand(self):
        return self.kind in ("image", "vector")

    @property
    def declaration(self):
        const = "const " if self.const else ""
        match self.kind:
            case "image":
                return f"view<{const}{self.element}, {self.channels}> {self.name}"
            case "vector":
                return f"span<{const}{self.element}> {self.name}"
            case "array" if self.length:
                return f"{const}{self.element} (&{self.name})[{self.length}]"
            case "array":
                return f"span<{const}{self.element}> {self.name}"
            case "constant":
                return f"const constant<{self.element}, {self.channels}>& {self.name}"
            case "result" if self.channels > 1:
                return f"{self.element} (&{self.name})[{self.channels}]"
            case "result":
                return f"{self.element}& {self.name}"
        return f"{self.element} {self.name}"

    @property
    def type(self):
        return re.sub(r"\b%s\b" % self.name, "", self.declaration).strip()


def channels_of(method):
    """Channels of sources and of destinations, by the layout in the name."""
    layout = re.search(r"_(?:A?C(\d)(?:C(\d))?|P3C(\d))I?R?$", method.name)
    if not layout:
        return 1, 1
    first, second, planes = layout.groups()
    if planes:
        return 1, int(planes)
    return int(first), int(second or first)


class Overload:
    def __init__(self, operation, binding):
        self.operation, self.binding, self.method = operation, binding, binding.method
        self.vectors = self.method.owner == "SignalProcessingWrapper"
        self.public = [p for p in map(self.make, operation.parameters) if p]
        self.operands = [p for p in self.public if p.operand]
        named = {p.source for p in self.public}
        self.by_source = {p.source: p for p in self.public}
        unknown = [a.name for a in self.method.arguments if a.name not in named and not self.derived(a.name)]
        if unknown:
            raise Mistake(f"{operation.name}: nothing says what {self.method.qualified} gets as {', '.join(unknown)}")

    def make(self, parameter):
        operation, method = self.operation, self.method
        if not parameter.sources:
            return Public(parameter.name, "choice", operation.choice[1], default=parameter.default)
        argument = next((a for a in method.arguments if a.name in parameter.sources), None)
        if argument is None:
            return None
        source, destination = channels_of(method)
        channels = destination if argument.name.startswith("dst") else source
        channels = operation.channels.get(parameter.name, channels)
        public = Public(parameter.name, "plain", argument.element, argument.const, channels, parameter.default,
                        source=argument.name)
        public.kind = self.kind(parameter, argument)
        if public.kind == "array":
            public.length = parameter.length
        elif public.kind == "vector" and re.match(r"src(?!Dst)", argument.name):
            public.const = True
        elif public.kind == "code":
            public.element = ENUMERATIONS[argument.name][0]
        elif public.kind == "constant" and not argument.pointer or argument.name in SINGLE:
            public.channels = 1
        return public

    def kind(self, parameter, argument):
        if argument.pointer:
            if self.method.has(argument.name + "Step"):
                return "image"
            if parameter.length is not None:
                return "array"
            if self.vectors and re.match(r"src|dst|re$|im$", argument.name):
                return "vector"
            if argument.name == "index" and self.method.has("srcDst"):
                return "vector"  # of all elements; beside a source it is that of one
            return "constant" if argument.const else "result"
        if argument.name in ENUMERATIONS:
            return "code"
        return "constant" if ELEMENTS.match(argument.name) else "plain"

    def size_operand(self):
        return self.operation.size or self.operands[0].name

    def derived(self, name):
        """What a method gets for an argument that no parameter stands for."""
        if name in self.operation.given:
            return self.operation.given[name]
        if name in ("xFactor", "yFactor"):
            return "1"
        if self.operation.choice and name in ("kernelWidth", "kernelHeight"):
            return f"static_cast<int>({self.operation.choice[0]})"
        if self.operation.choice and name in ("anchorX", "anchorY"):
            return f"detail::half({self.operation.choice[0]})"
        if name in ("width", "height"):
            return f"{self.size_operand()}.{name}()"
        if name == "len":
            return f"detail::length({self.size_operand()})"
        part = re.fullmatch(r"(\w+?)(Roi)?(Step|Width|Height|X|Y)", name)
        operand = part and next((p for p in self.public if p.operand and p.source == part[1]), None)
        if not operand:
            return None
        if part[3] == "Step":
            return f"detail::step({operand.name})"
        return "0" if part[3] in "XY" else f"{operand.name}.{part[3].lower()}()"

    def argument(self, argument):
        """The expression that a method is given."""
        public = self.by_source.get(argument.name)
        if public is None:
            return self.derived(argument.name)
        match public.kind:
            case "image" | "vector" if public.const and not argument.const:
                return f"const_cast<{public.element}*>({public.name}.data())"  # read, whatever its type says
            case "image" | "vector":
                return f"{public.name}.data()"
            case "array":
                return public.name if public.length else f"{public.name}.data()"
            case "constant":
                return f"{public.name}.data()" if argument.pointer else f"{public.name}.one()"
            case "result":
                return public.name if public.channels > 1 else f"&{public.name}"
            case "code":
                return f"static_cast<int>({public.name})"
        return public.name

    def call(self, method):
        return f"{method.qualified}({', '.join(self.argument(a) for a in method.arguments)})"
