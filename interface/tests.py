"""Writes the generated tests: every overload called wrongly in turn for each operand, and once rightly against the
class's method, against the table's example, and in parts where regions may be cut."""

import re

from cuts import Cut
from layer import wrapped

WIDTH, HEIGHT = 11, 8  # columns and rows of the pictures, but for those that the table's `extent` names
FILES = 4

HEAD = """// Made from interface/table.toml by interface/generate.py.
#include <orvane.hpp>

#include "layer/fixtures.h"

using namespace layer_test;
"""


def example(operation):
    """{name: [values]}; with _after, what the operand holds then."""
    values = {}
    for part in operation.example.split(", ") if operation.example else []:
        name, *numbers = part.split()
        values[name] = numbers
    return values


def literal(public, numbers):
    if not numbers and public.kind == "plain" and public.default:
        return "{" + public.default + "}"
    numbers = numbers or {"plain": ["1"], "code": ["1"], "choice": ["3"]}.get(public.kind, ["3"])
    if public.kind == "constant" and public.channels > 1:
        return "{" + ", ".join((numbers * public.channels)[:public.channels]) + "}"
    return "{" + numbers[0] + "}" if public.kind != "constant" else numbers[0]


class Case:
    def __init__(self, overload):
        self.overload, self.operation = overload, overload.operation
        self.values = example(self.operation)

    def variable(self, p):
        match p.kind:
            case "image":
                width, height = self.operation.extent.get(p.name, f"{WIDTH} {HEIGHT}").split()
                return f'picture<{p.element}, {p.channels}> {p.name}("{p.name}", {width}, {height});'
            case "vector":
                return f'series<{p.element}> {p.name}("{p.name}", {WIDTH * HEIGHT});'
            case "array":
                return self.array(p)
            case "result":
                size = f"[{p.channels}]" if p.channels > 1 else ""
                memory = self.memory(p, p.name if size else "&" + p.name, p.channels)
                return f"{p.element} {p.name}{size} = {{}}; {memory}"
            case "constant":
                value = literal(p, self.values.get(p.name))
                return f"const orvane::constant<{p.element}, {p.channels}> {p.name} = {value};"
            case "code" | "choice":
                return f"const orvane::{p.element} {p.name}{literal(p, self.values.get(p.name))};"
        return f"const {p.element} {p.name} = {literal(p, self.values.get(p.name))[1:-1]};"

    @staticmethod
    def memory(p, address, count):
        return f'memory {p.name}_memory("{p.name}", {address}, {count});'

    def array(self, p):
        """Contents from the table, or one value for every value that a pixel may have."""
        contents = self.operation.arrays.get(p.name)
        if p.length:
            return f"const {p.element} {p.name}[{p.length}] = {{{contents}}};"
        if contents:
            contents = f"{{{contents}}}"
        else:
            pixel = f"orvane::view<const {self.overload.operands[0].element}>()"
            contents = f"(orvane::detail::values_of({pixel}), {self.values[p.name][0]})"
        text = f"std::vector<{p.element}> {p.name}{contents};"
        return text if p.const else f"{text} {self.memory(p, p.name + '.data()', p.name + '.size()')}"

    def expected(self):
        operands = {p.name for p in self.overload.public if p.operand or p.kind == "result"}
        return "{" + ", ".join(f'{{"{name}", {{{", ".join(numbers)}}}}}' for name, numbers in self.values.items()
                               if name.removesuffix("_after") in operands) + "}"

    def method(self):
        binding = self.overload.binding
        chosen = binding.others[0][1] if binding.others else binding.method
        call = re.sub(r"detail::(step|length)\(", r"\1(", self.overload.call(chosen))
        return re.sub(r"(?<![:\w])(detail|mask)::", r"orvane::\1::", call)

    def text(self):
        overload = self.overload
        operands = [f"&{p.name}" for p in overload.operands]
        results = [f"&{p.name}_memory" for p in overload.public if p.kind in ("result", "array") and not p.const]
        equal = "true" if self.operation.sizes == "equal" else "false"
        anywhere = self.operation.cut_of(overload.method) == Cut("point") and equal == "true"
        cut = "true" if anywhere else "false"
        arguments = ", ".join(p.name for p in overload.public)
        lines = ["    {", *(wrapped(self.variable(p), 8) for p in overload.public),
                 wrapped(f"const auto layer = [&] {{ return orvane::{self.operation.name}({arguments}); }};", 8),
                 wrapped(f"const auto method = [&] {{ return {self.method()}; }};", 8),
                 wrapped(f'check("{overload.method.name}", {{{", ".join(operands)}}}, {{{", ".join(results)}}}, '
                         f"layer, method, {{{equal}, {cut}, {self.expected()}}});", 8)]
        if self.operation.frame:
            lines += [wrapped(f"const auto edged = [&] {{ return orvane::{self.operation.name}({arguments}, "
                              f"orvane::edge::replicate); }};", 8),
                      wrapped(f'check_edge("{overload.method.name}", {", ".join(operands)}, edged, layer);', 8)]
        return "\n".join(lines + ["    }"])


def test(name, overloads):
    return "\n".join([f"TEST(Layer, {name})", "{", *(Case(o).text() for o in overloads), "}", ""])


def sources(overloads):
    """(file name, text) of each of the files."""
    entries = {}
    for overload in overloads:
        entries.setdefault(id(overload.operation), []).append(overload)
    texts, weights = [[HEAD] for _ in range(FILES)], [0] * FILES
    used = {}
    for group in entries.values():
        name = "".join(word.capitalize() for word in group[0].operation.name.split("_"))
        used[name] = used.get(name, 0) + 1
        lightest = weights.index(min(weights))
        texts[lightest].append(test(name + (str(used[name]) if used[name] > 1 else ""), group))
        weights[lightest] += len(group)
    return [(f"layer_calls_{k}.cpp", "\n".join(text)) for k, text in enumerate(texts)]
