"""The darkroom's pictures have the bytes of those that the gallery makes with the classes, step by step.

ORVANE_GALLERY is the folder that scripts/demo.sh makes, with the page and what it shows.
"""

import base64
import hashlib
import html
import importlib.util
import io
import json
import os
import pathlib
import re

import numpy as np
import pytest
from PIL import Image

ROOT = pathlib.Path(__file__).resolve().parents[2]
GALLERY = os.environ.get("ORVANE_GALLERY")

CAPTIONS = {"mirrored_mean": "The mean of the photograph and its mirror image", "warm": "Channels multiplied by 160",
            "dimmed": "Multiplied by a light", "evened": "Divided by that light",
            "smooth": "Gaussian of deviation 3", "spectrogram": "Power over time and frequency"}


def darkroom():
    spec = importlib.util.spec_from_file_location("darkroom", ROOT / "examples" / "python" / "darkroom.py")
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


def digest(picture):
    return hashlib.sha256(repr(picture.shape).encode() + picture.tobytes()).hexdigest()


def shown(page, caption):
    """What the gallery shows under a caption: a picture, or the one within a plot."""
    entries = json.loads((page / "pictures.json").read_text())
    [file] = [e["file"] for e in entries if e["caption"].startswith(caption)]
    data = (page / file).read_bytes()
    if file.endswith(".svg"):
        data = base64.b64decode(re.search(rb"data:image/png;base64,([^\"]+)", data)[1])
    return np.asarray(Image.open(io.BytesIO(data)))


@pytest.mark.skipif(not GALLERY, reason="ORVANE_GALLERY names no gallery")
def test_same_bytes_as_the_gallery(tmp_path):
    page = pathlib.Path(GALLERY, "page")
    [sound] = pathlib.Path(GALLERY).rglob("Front_Center.wav")
    steps = darkroom()
    photo = shown(page, "The photograph that most sections begin with")
    Image.fromarray(photo).save(tmp_path / "photo.png")
    steps.main(tmp_path / "photo.png", tmp_path / "page", str(sound))
    for name, caption in CAPTIONS.items():
        made = np.asarray(Image.open(tmp_path / "page" / f"{name}.png"))
        assert digest(made) == digest(shown(page, caption)), name


def test_darkroom_writes_a_page(tmp_path):
    steps = darkroom()
    Image.fromarray(np.arange(48 * 64 * 3, dtype="u1").reshape(48, 64, 3)).save(tmp_path / "photo.png")
    steps.main(tmp_path / "photo.png", tmp_path / "page")
    text = (tmp_path / "page" / "index.html").read_text()
    for step in steps.PHOTOGRAPHS:
        assert (tmp_path / "page" / f"{step.__name__}.png").exists() and html.escape(step.__doc__) in text
