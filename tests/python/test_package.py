"""The package as a whole: its text for users."""

import inspect
import pathlib
import re

import pytest

import orvane

ROOT = pathlib.Path(__file__).resolve().parents[2]


def test_readme(capsys):
    program = re.search(r"```python\n(.*?)```", (ROOT / "README.md").read_text(), re.DOTALL)[1]
    *lines, last = program.strip().split("\n")
    scope = {}
    exec("\n".join(lines), scope)
    assert "(240, 320, 3)" in capsys.readouterr().out
    call, message = re.fullmatch(r"(.*?) +# (.*) \.\.\.", last).groups()
    with pytest.raises(orvane.ArgumentError, match=re.escape(message)):
        exec(call, scope)


def test_signatures_are_those_of_the_docstrings():
    assert str(inspect.signature(orvane.add)) == "(a, b, out=None, *, scale=0)"
    for module in (orvane, orvane.linalg):
        for name in module.__all__:
            value = getattr(module, name)
            if inspect.isbuiltin(value) and name != "level":
                inspect.signature(value)
                assert value.__module__ in (module.__name__, "orvane._core", "orvane._core._linalg")
