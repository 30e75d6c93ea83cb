"""Writes the type stubs of the Python package."""

import re

from python_model import PIXELS, TYPES

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
