#!/usr/bin/env python3
"""Looks whether the reference site is whole.

Every exported method has an entry in the search index that leads to an anchor; every family's first sentence stands on its
own page and on that of its class; no link and no picture leads to nothing.

Usage: docs/site/check.py FOLDER     the folder "html" of the site
"""

import html.parser
import pathlib
import re
import sys
import urllib.parse

import families
import plots

ROOT = pathlib.Path(__file__).resolve().parents[2]
PRIVATE = {"FFT2Wrapper::Cleanup", "ImageProcessingWrapper::CalculateShift"}


class Page(html.parser.HTMLParser):
    """Anchors, links and text of a page."""

    def __init__(self, path):
        super().__init__()
        self.anchors, self.links, self.words = set(), [], []
        self.feed(path.read_text())
        self.text = squeezed(" ".join(self.words))

    def handle_starttag(self, tag, attributes):
        for key, value in attributes:
            if key == "id" or (tag == "a" and key == "name"):
                self.anchors.add(value)
            if key in ("href", "src") and value:
                self.links.append(value)

    def handle_data(self, data):
        self.words.append(data)


def squeezed(text):
    return re.sub(r"\W+", "", text)


def index(folder):
    """What the search finds: names with their classes, and where they lead."""
    found = {}
    for file in (folder / "search").glob("all_*.js"):
        for name, entries in re.findall(r"\['[^']*',\['([^']*)',(.*)\]\],?\n", file.read_text()):
            for url, owner in re.findall(r"\['\.\./([^']*)',\d,'([^']*)'", entries):
                owner = re.sub(r"\(.*", "", owner).removesuffix("::" + name)
                if "#" in url:  # not a class, which has its constructors' name
                    found[f"{owner}::{name}"] = url
    return found


def exported():
    for line in (ROOT / "tests/exports.txt").read_text().split("\n"):
        name = line.split("(")[0]
        if "::" in name and "(" in line and name not in PRIVATE:
            yield name


def dead(page, path, pages):
    for link in page.links:
        parts = urllib.parse.urlsplit(link)
        if parts.scheme or link.startswith("//"):
            continue
        target = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
        if not target.exists():
            yield link
        elif parts.fragment and target in pages and urllib.parse.unquote(parts.fragment) not in pages[target].anchors:
            yield link


def first_sentence(family):
    paragraph = " ".join(" ".join(family.text).split("  ")[0].split())
    return re.split(r"(?<=[a-z)\]])\. ", paragraph)[0] if paragraph else ""


def check_families(folder, pages):
    for owner, members in families.by_class(ROOT / "include").items():
        class_page = folder / ("class" + owner.replace("::", "_1_1") + ".html")
        for family in members:
            sentence = squeezed(first_sentence(family))
            for path in (class_page, folder / f"{family.page}.html"):
                if path not in pages:
                    yield f"there is no page {path.name}"
                elif sentence not in pages[path].text:
                    yield f"{path.name} lacks the first sentence of {family.title}"


def check_readme():
    rows, median = plots.headline(ROOT / "bench/RESULTS.md")
    readme = " ".join((ROOT / "README.md").read_text().split())
    if f"Of {rows} rows" not in readme or f"the median is {median:.2f}." not in readme:
        yield f"README.md: there are {rows} rows, and the median is {median:.2f}"


def problems(folder):
    pages = {path: Page(path) for path in folder.rglob("*.html") if "search" not in path.parts}
    found = index(folder)
    names = list(exported())
    for name in names:
        url = found.get(name)
        if url is None:
            yield f"the search does not find {name}"
            continue
        file, _, anchor = url.partition("#")
        if anchor not in pages[folder / file].anchors:
            yield f"{url} of {name} leads nowhere"
    yield from check_families(folder, pages)
    yield from check_readme()
    for path, page in pages.items():
        for link in dead(page, path, pages):
            yield f"{path.relative_to(folder)}: dead link {link}"
    print(f"{len(pages)} pages, {len(set(names))} exported methods, {sum(len(p.links) for p in pages.values())} links")


def main():
    found = list(problems(pathlib.Path(sys.argv[1]).resolve()))
    print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
