"""How regions may be cut: the table's words for it, and how C++ is told."""

import re
from dataclasses import dataclass

from layer import wrapped
from mistake import Mistake
from overloads import Overload

WORDS = re.compile(r"(?P<kind>point|frame|place|destination|join|whole|halo (?P<reach>.+?))"
                   r"(?: (?P<columns>\d)x(?P<rows>\d)| (?P<bands>rows))?")


@dataclass(frozen=True)
class Cut:
    kind: str
    halo: tuple = ()  # left, top, right, bottom: the layer's expressions of the call's arguments
    columns: int = 1  # cuts are at multiples of these; 0 where parts are whole rows
    rows: int = 1
    whole: str = ""   # the condition under which it is not cut

    def names(self, parameters):
        """Those of the parameters that it depends on."""
        return [name for name in parameters
                if any(re.search(rf"\b{name}\b", text) for text in (*self.halo, self.whole))]


def read_cut(operation, text, frame, whole):
    words = WORDS.fullmatch(text)
    if not words or (words["kind"] == "frame" and not frame):
        raise Mistake(f"{operation}: cut is {text!r}")
    halo = tuple(frame) if words["kind"] == "frame" else (words["reach"],) * 4 if words["reach"] else ()
    columns = 0 if words["bands"] else int(words["columns"] or 1)
    return Cut(words["kind"].split()[0], halo, columns, int(words["rows"] or 1), whole)


HEAD = """// How regions may be cut, for each operation. Made from interface/table.toml by interface/generate.py.
#ifndef ORVANE_LAYER_RULES_HPP
#define ORVANE_LAYER_RULES_HPP

#include "codes.hpp"
#include "cuts.hpp"

/// A rule for each operation of the layer by its name: a constant; a function of those arguments that its reach
/// depends on; or a constant for each type of elements where types differ, "whole" for those that are not named.
namespace orvane::rules {
"""


def in_cpp(cut):
    rule = f"rule{{cut::{cut.kind}"
    if cut.halo or (cut.columns, cut.rows) != (1, 1):
        rule += f", {{{', '.join(cut.halo)}}}"
    if (cut.columns, cut.rows) != (1, 1):
        rule += f", {cut.columns}, {cut.rows}"
    rule += "}"
    return f"{cut.whole} ? rule{{cut::whole}} : {rule}" if cut.whole else rule


def parameters_of(operation, binding, cut):
    """Those that the rule depends on, with their types."""
    public = [] if operation.hand else Overload(operation, binding).public
    names = cut.names([p.name for p in public])
    return tuple((p.element, p.name) for p in public if p.name in names)


def of_elements(operations):
    """{(name, parameters): {element: Cut}}; the stricter one where vectors and images of a type differ."""
    found = {}
    for operation, binding in ((o, b) for o in operations if not o.of_matrices for b in o.bindings):
        cut = operation.cut_of(binding.method)
        element = next((a.element for a in binding.method.arguments if a.pointer), "")
        cuts = found.setdefault((operation.name, parameters_of(operation, binding, cut)), {})
        if cuts.setdefault(element, cut) != cut:
            if "whole" not in (cut.kind, cuts[element].kind):
                raise Mistake(f"{operation.name}: two rules for {element}")
            cuts[element] = Cut("whole")
    return found


def one_rule(name, parameters, cut):
    text = in_cpp(cut)
    if not parameters:
        return f"inline constexpr rule {name}{text.removeprefix('rule')};"
    arguments = ", ".join(f"{kind} {p}" for kind, p in parameters)
    return "\n".join([f"constexpr rule {name}({arguments})", "{", wrapped(f"return {text};", 4), "}"])


def rules_of_types(name, cuts):
    lines = ["template <class T>", f"inline constexpr rule {name}{{cut::whole}};"]
    for element, cut in cuts.items():
        if cut.kind != "whole":
            lines += ["template <>", f"inline constexpr rule {name}<{element}>{in_cpp(cut).removeprefix('rule')};"]
    return "\n".join(lines)


def rules(name, parameters, cuts):
    if len(set(cuts.values())) == 1:
        return one_rule(name, parameters, *set(cuts.values()))
    if parameters:
        raise Mistake(f"{name}: a reach and types that differ")
    return rules_of_types(name, cuts)


def header(operations):
    texts = [rules(name, parameters, cuts) for (name, parameters), cuts in of_elements(operations).items()]
    return "\n".join([HEAD, *texts, "", "}  // namespace orvane::rules", "", "#endif", ""])
