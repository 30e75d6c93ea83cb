"""The package as a whole: its text for users."""

import inspect
import pathlib
import re

import numpy as np
import orvane
import pytest
from PIL import Image

ROOT = pathlib.Path(__file__).resolve().parents[2]


def test_readme(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    text = (ROOT / "README.md").read_text()
    scope = {}
    exec(re.search(r"```python\n(.*?)```", text, re.DOTALL)[1], scope)
    height, width, _ = scope["photo"].shape
    made = np.asarray(Image.open("cat.png"))
    assert made.shape == (height, 3 * width, 3) and (made[:, :width] == scope["photo"]).all()
    call, message = re.search(r">>> (.*)\norvane.ArgumentError: (.*)\n", text).groups()
    with pytest.raises(orvane.ArgumentError, match=f"^{re.escape(message)}$"):
        eval(call, scope)


def test_signatures_are_those_of_the_docstrings():
    assert str(inspect.signature(orvane.add)) == "(a, b, out=None, *, scale=0)"
    for module in (orvane, orvane.linalg):
        for name in module.__all__:
            value = getattr(module, name)
            if inspect.isbuiltin(value) and name != "level":
                inspect.signature(value)
                assert value.__module__ in (module.__name__, "orvane._core", "orvane._core._linalg")
