"""Writes the overloads of the typed layer."""

import re
import textwrap

from overloads import ENUMERATIONS, Overload
from mistake import Mistake

WIDTH = 118
IMAGES = "ImageProcessingWrapper"  # C functions are for images, too


def wrapped(text, indent, hang=4):
    """A statement in lines of at most WIDTH columns, broken behind commas, but not before a number of channels."""
    lines, line, margin = [], "", " " * indent
    for piece in re.split(r"(?<=,) (?!\d>)", text):
        if line and len(margin) + len(line) + 1 + len(piece) > WIDTH:
            lines.append(margin + line)
            margin, line = " " * (indent + hang), piece
        else:
            line = f"{line} {piece}" if line else piece
    return "\n".join(lines + [margin + line])


def refusal(status):
    return wrapped(f"if (const status s = {status}; !s) return s;", 4)


def named(operands):
    return "{" + ", ".join(f'{{"{p.name}", {p.name}}}' for p in operands) + "}"


class Writer:
    """One overload's text."""

    def __init__(self, overload):
        self.overload, self.operation = overload, overload.operation
        self.quoted = f'"{self.operation.name}"'

    def sizes(self):
        operands, kind = self.overload.operands, "stretch" if self.overload.vectors else "region"
        def check(together):
            names = ", ".join(p.name for p in together)
            unlike = f"detail::unlike<detail::{kind}>({self.quoted}, {named(together)})"
            return f"if (!detail::alike({names})) return {unlike};"
        groups = [[p] for p in operands] if self.operation.sizes == "free" else [operands]
        return [wrapped(check(group), 4) for group in groups]

    def constants(self):
        for p in self.overload.public:
            if p.kind == "constant" and p.element not in ("float", "double", "Complex32f"):
                yield wrapped(f'if (!{p.name}.held()) return detail::unheld({self.quoted}, "{p.name}", {p.name});', 4)

    def codes(self):
        for p in self.overload.public:
            allowed = None
            if p.kind == "code":
                allowed = self.operation.codes or ENUMERATIONS[p.source][1]
            elif p.kind == "choice":
                allowed = [3, 5]
            if allowed:
                mask = hex(sum(1 << code for code in allowed))
                yield refusal(f'detail::code({self.quoted}, "{p.name}", static_cast<int>({p.name}), {mask})')

    def refusals(self):
        """Those that begin with {name} hold for the overloads that have that argument."""
        names = {p.name for p in self.overload.public}
        for text in self.operation.refuse:
            condition, expression = re.fullmatch(r"(?:\{(?!op)(\w+)\} )?(.*)", text).groups()
            if condition is None or condition in names:
                yield refusal(expression.replace("{op}", self.quoted))

    def overlaps(self):
        """Where false has another meaning, or none, a destination that would take memory is refused."""
        operands = self.overload.operands
        written = [p for p in operands if not p.const]
        silent = re.search(r"always true", self.overload.method.brief, re.IGNORECASE)
        if self.overload.vectors or self.operation.sizes == "free" or not (silent or self.operation.false != "memory"):
            return []
        return [refusal(f'detail::whole({self.quoted}, "{d.name}", {d.name}, {p.name})')
                for d in written for p in operands if p.const]

    def frame(self):
        if not self.operation.frame:
            return []
        source, destination = self.overload.operands
        sides = ", ".join(self.operation.frame)
        return [refusal(f'detail::framed({self.quoted}, "{source.name}", {source.name}.around(), {sides})'),
                refusal(f'detail::apart({self.quoted}, "{destination.name}", {destination.name}, {source.name})')]

    def answer(self):
        overload, false = self.overload, f"detail::reason::{self.operation.false}"
        if not overload.binding.others:
            calls = overload.call(overload.method)
        else:
            parameter, kind, _ = self.operation.choice
            *most, (_, last) = overload.binding.others
            calls = "".join(f"{parameter} == {kind}::{value} ? {overload.call(m)} : " for value, m in most)
            calls += overload.call(last)
        return wrapped(f"return detail::answer({self.quoted}, {calls}, {false});", 4)

    def signature(self, more=""):
        parameters = [p.declaration + (f" = {p.default}" if p.default and not more else "")
                      for p in self.overload.public]
        return wrapped(f"inline status {self.operation.name}({', '.join(parameters)}{more})", 0,
                       len(f"inline status {self.operation.name}("))

    def plain(self):
        checks = [*self.sizes(), *self.constants(), *self.codes(), *self.refusals(), *self.frame(), *self.overlaps()]
        return "\n".join([self.signature(), "{", *dict.fromkeys(checks), self.answer(), "}"])

    def with_edge(self):
        """The form that makes its frame itself."""
        source, destination = self.overload.operands
        zeros = "0" if source.channels == 1 else "{" + ", ".join(["0"] * source.channels) + "}"
        more = f", edge beyond, const constant<{source.element}, {source.channels}>& value = {zeros}"
        arguments = ", ".join(p.name for p in self.overload.public)
        for p in self.overload.public:
            if p is source or p is destination:
                arguments = re.sub(rf"\b{p.name}\b", "part" if p is source else "band", arguments)
        checks = [*self.sizes(), *self.constants(), *self.codes(), *self.refusals()]
        sides = ", ".join(self.operation.frame)
        whole = "detail::all_rows, " if self.operation.whole else ""
        lead = f"[&](const {source.type}& part, const {destination.type}& band)"
        body = [wrapped(f"return detail::with_frame({self.quoted}, {source.name}, {destination.name}, {{{sides}}}, "
                        f"{whole}beyond, value,", 4, 8),
                wrapped(f"{lead} {{ return {self.operation.name}({arguments}); }});", 8)]
        return "\n".join([self.signature(more), "{", *checks, *body, "}"])


def brief(overload):
    """What the first overload of an entry says of itself, in the layer's names."""
    if overload.operation.again:
        return overload.operation.note
    text = re.sub(r"[.:;,]? *\(?(Inverted|always true|Always true|see above).*", "", overload.method.brief).rstrip(".")
    for p in sorted(overload.public, key=lambda p: -len(p.source)):
        if p.source:
            text = re.sub(rf"\b{p.source}\b", f"@{p.name}@", text, count=1 if p.kind == "result" else 0)
    return text.replace("@", "") + (". " + overload.operation.note if overload.operation.note else "")


def overloads(operations):
    seen = {}
    for operation in operations:
        for binding in operation.bindings if not operation.hand else []:
            overload = Overload(operation, binding)
            key = (operation.name, tuple(p.type for p in overload.public))
            if key in seen:
                raise Mistake(f"{overload.method.qualified} and {seen[key]} would both be {operation.name}{key[1]}")
            seen[key] = overload.method.qualified
            yield overload


HEAD = """// The operations, one overload for each type. Made from interface/table.toml by interface/generate.py.
#ifndef ORVANE_LAYER_{guard}
#define ORVANE_LAYER_{guard}

{includes}
#include "requirements.hpp"

namespace orvane {{
"""


def header(overloads, wrapper, guard):
    files = [wrapper, "Parts"] if wrapper == IMAGES else [wrapper]
    includes = "\n".join(f'#include "../{file}.h"' for file in files)
    parts, last = [HEAD.format(includes=includes, guard=guard)], None
    for overload in overloads:
        if (overload.method.owner or IMAGES) != wrapper:
            continue
        if overload.operation is not last:
            parts.append(textwrap.fill(brief(overload), WIDTH, initial_indent="/// ", subsequent_indent="/// "))
            last = overload.operation
        writer = Writer(overload)
        parts.append(writer.plain() + "\n")
        if overload.operation.frame:
            parts.append(writer.with_edge() + "\n")
    return "\n".join(parts + ["}  // namespace orvane", "", "#endif", ""])


def version(project):
    """The version of the project, as macros."""
    major, minor, patch = re.search(r"VERSION (\d+)\.(\d+)\.(\d+)", project).groups()
    return f"""// The version of these headers. Made from the project's by interface/generate.py.
#ifndef ORVANE_LAYER_VERSION_HPP
#define ORVANE_LAYER_VERSION_HPP

#define ORVANE_VERSION_MAJOR {major}
#define ORVANE_VERSION_MINOR {minor}
#define ORVANE_VERSION_PATCH {patch}
/// For comparisons: 10203 is 1.2.3.
#define ORVANE_VERSION (ORVANE_VERSION_MAJOR * 10000 + ORVANE_VERSION_MINOR * 100 + ORVANE_VERSION_PATCH)
#define ORVANE_VERSION_STRING "{major}.{minor}.{patch}"

#endif
"""
