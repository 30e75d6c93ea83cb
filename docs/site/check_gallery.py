#!/usr/bin/env python3
"""Looks whether the gallery's page is whole: every family, every picture, every level's digest.

Usage: docs/site/check_gallery.py FOLDER     what scripts/demo.sh made
"""

import hashlib
import json
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

import families
from check import ROOT, Page

WITHOUT_PICTURES = {("SignalProcessingWrapper", "Buffers"), ("Image", "Image container")}


def whole(path):
    """Whether a picture's file has its beginning and its end."""
    data = path.read_bytes() if path.exists() else b""
    if path.suffix == ".svg":
        return data.startswith(b"<svg") and ElementTree.fromstring(data) is not None
    if path.suffix == ".png":
        return data.startswith(b"\x89PNG") and data[-8:-4] == b"IEND"
    return data.startswith(b"\xff\xd8") and data.endswith(b"\xff\xd9")


def check_families(page, pictures):
    shown = {(p["class"], p["family"]) for p in pictures}
    for members in families.by_class(ROOT / "include").values():
        for family in members:
            key = family.key
            if f'data-family="{key[0]}/{key[1]}"' not in page:
                yield f"no section about {key}"
            elif key not in shown and key not in WITHOUT_PICTURES:
                yield f"no picture of {key}"


def check_pictures(folder, pictures):
    seen = {}
    for p in pictures:
        for name in {p["file"], p["thumbnail"]}:
            if not whole(folder / name):
                yield f"{name} is broken"
        digest = hashlib.sha256((folder / p["file"]).read_bytes()).digest()
        if digest in seen:
            yield f"{p['file']} is {seen[digest]}"
        seen[digest] = p["file"]
        if not p["alt"] or not p["caption"]:
            yield f"{p['file']} has no caption"


def check_levels(page):
    table = re.search(r'<table id="levels">(.*?)</table>', page, re.S).group(1)
    rows = [set(re.findall(r"<td>(.*?)</td>", row)) - {"not here"} for row in table.split("</tr>")[1:-1]]
    if len(rows) < 7 or any(len(row) != 1 for row in rows):
        yield "the levels' digests differ, or some are missing"


def problems(folder):
    page = (folder / "index.html").read_text()
    parsed = Page(folder / "index.html")
    pictures = json.loads((folder / "pictures.json").read_text())
    yield from check_families(page, pictures)
    yield from check_pictures(folder, pictures)
    yield from check_levels(page)
    for link in parsed.links:
        if link.startswith("#") and link[1:] not in parsed.anchors:
            yield f"{link} leads nowhere"
        elif not link.startswith(("#", "../")) and not (folder / link).exists():
            yield f"{link} is not there"
    for bad in ("returned false", ", 0 µs", ", 0 ns", "differ!"):
        if bad in page:
            yield f'the page says "{bad}"'
    if 'id="credits"' not in page or page.count("<img") != page.count('alt="'):
        yield "credits or alternative texts are missing"
    size = sum((folder / p["thumbnail"]).stat().st_size for p in pictures)
    if size > 6e6:
        yield f"the page loads {size} bytes of pictures"
    print(f"{len(pictures)} pictures, {size / 1e6:.1f} MB on the page")


def main():
    found = list(problems(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
