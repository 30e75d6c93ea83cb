#!/usr/bin/env python3
"""Builds the reference site: the public headers, the pages of docs/, a page for each family, the gallery.

Usage: docs/site/build.py --output FOLDER [--version V] [--gallery FOLDER]     The site: FOLDER/html/index.html
"""

import argparse
import html
import json
import pathlib
import re
import shutil
import subprocess
import sys

import families
import plots

ROOT = pathlib.Path(__file__).resolve().parents[2]
STYLE = pathlib.Path("/usr/share/doxygen-awesome-css")

# Pages by the names that others link to, in the order of the menu; those that are not there are left out.
PAGES = {
    "README.md": "mainpage",
    "docs/start_cpp.md": "start_cpp",
    "docs/start_python.md": "start_python",
    "docs/operations.md": "operations",
    "docs/speed.md": "speed",
    "docs/scaling.md": "scaling",
    "bench/RESULTS.md": "results",
    "docs/accuracy.md": "accuracy",
    "docs/reproducibility.md": "reproducibility",
    "docs/binary_interface.md": "binary_interface",
    "docs/versions.md": "versions",
    "docs/windows.md": "windows",
    "docs/lapack.md": "lapack",
    "CONTRIBUTING.md": "contributing",
    "SECURITY.md": "security",
    "CHANGELOG.md": "changelog",
}


def pages():
    return {path: name for path, name in PAGES.items() if (ROOT / path).exists()}


def linked(text, folder):
    """Markdown whose links to other pages are the site's, and whose links to other files are their names."""
    def link(match):
        label, target = match.groups()
        if re.match(r"[a-z]+:|#", target):
            return match.group(0)
        path = (ROOT / folder / target).resolve().relative_to(ROOT).as_posix()
        name = "families" if path == "include" else pages().get(path)
        return f"[{label}](@ref {name})" if name else label
    return re.sub(r"(?<!!)\[([^\]]+)\]\(([^)\s]+)\)", link, text)


def write_page(output, path, name):
    text = (ROOT / path).read_text()
    title, rest = re.search(r"^(# .*)\n([\s\S]*)", text, re.M).groups()  # a comment may precede it
    rest = linked(rest, pathlib.Path(path).parent)
    rest = re.sub(r"!\[([^\]]*)\]\((?:[^)\s]*/)?([^)/\s]+)\)", r"![\1](\2)", rest)
    target = output / f"{name}.md"
    target.write_text(f"{title} {{#{name}}}\n{rest}")
    return target


def pictures(gallery):
    """What the gallery wrote about its pictures, by family."""
    found = {}
    if gallery:
        for picture in json.loads((gallery / "pictures.json").read_text()):
            found.setdefault((picture["class"], picture["family"]), []).append(picture)
    return found


def figure(picture):
    alt = html.escape(picture["alt"], quote=True)
    return (f'<figure><a href="gallery/{picture["file"]}"><img src="gallery/{picture["thumbnail"]}" alt="{alt}"/></a>'
            f'<figcaption>{html.escape(picture["caption"])}</figcaption></figure>')


def family_page(family, shown):
    lines = [f"# {family.title} {{#{family.page}}}", "",
             f"`#include <{family.header}>`; methods of [{family.owner}](@ref {family.owner}).", ""]
    lines += family.text or [f"Its contract is that of the class: [{family.owner}](@ref {family.owner})."]
    if shown:
        lines += ["", "## In the gallery", "", '@htmlonly <div class="pictures">', *map(figure, shown),
                  "</div> @endhtmlonly"]
        call = next((p["call"] for p in shown if "(" in p["call"]), None)
        if call:
            lines += ["", "## An example", "", "The call that made one of them:", "", "```cpp", call, "```"]
    lines += ["", "## Methods", "", "| method | what it does |", "|---|---|"]
    for method, brief in family.methods:
        brief = brief.replace("|", "\\|")
        lines.append(f"| [{method}](@ref {family.owner}::{method}) | {brief} |")
    return "\n".join(lines) + "\n"


def write_families(output, found):
    index = ["# Families of operations {#families}", "",
             "A family is a group of operations with one contract: shapes, units, rounding, checks, aliasing.", ""]
    written = []
    for owner, members in families.by_class(ROOT / "include").items():
        index += [f"## {owner}", ""]
        for family in members:
            index.append(f"- @subpage {family.page}")
            written.append(output / f"{family.page}.md")
            written[-1].write_text(family_page(family, found.get(family.key, [])))
        index.append("")
    (output / "families.md").write_text("\n".join(index))
    return [output / "families.md", *written]


def copy_gallery(gallery, target):
    """The gallery with links to the families' pages instead of the headers."""
    shutil.copytree(gallery, target)
    page = (target / "index.html").read_text()
    for members in families.by_class(ROOT / "include").values():
        for family in members:
            name = "/".join(family.key)
            page = re.sub(f'(data-family="{re.escape(name)}" href=)"[^"]*"', rf'\1"../{family.page}.html"', page)
    page = page.replace("<body>", '<body>\n<p><a href="../index.html">Orvane primitives: reference</a></p>', 1)
    (target / "index.html").write_text(page)


def write_layout(output, gallery):
    def tab(there, url, title):
        return f'<tab type="user" url="{url}" title="{title}"/>' if there else ""
    text = (ROOT / "docs/site/layout.xml").read_text()
    names = pages().values()
    text = text.replace("@PYTHON@", tab("start_python" in names, "@ref start_python", "Start in Python"))
    text = text.replace("@LAYER@", tab("operations" in names, "@ref operations", "Operations by types"))
    text = text.replace("@GALLERY@", tab(gallery, "gallery/index.html", "Gallery"))
    (output / "layout.xml").write_text(text)


def settings(output, inputs, version):
    style = [STYLE / "doxygen-awesome.css", STYLE / "doxygen-awesome-sidebar-only.css", ROOT / "docs/site/site.css"]
    values = {
        "INPUT": [ROOT / "include", ROOT / "docs/site/layer.dox", *inputs],
        "OUTPUT_DIRECTORY": [output],
        "STRIP_FROM_PATH": [ROOT, output / "pages"],
        "IMAGE_PATH": [output / "images"],
        "LAYOUT_FILE": [output / "layout.xml"],
        "HTML_EXTRA_STYLESHEET": style,
        "USE_MDFILE_AS_MAINPAGE": [output / "pages/mainpage.md"],
        "PROJECT_NUMBER": [version],
    }
    lines = [f"@INCLUDE = {ROOT / 'docs/site/Doxyfile'}"]
    lines += [f"{key} = " + " ".join(f'"{v}"' for v in value) for key, value in values.items()]
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--output", type=pathlib.Path, required=True)
    parser.add_argument("--version", default="")
    parser.add_argument("--gallery", type=pathlib.Path, help="the page that scripts/demo.sh made")
    options = parser.parse_args()
    if not STYLE.exists():
        sys.exit("doxygen-awesome-css is not there; scripts/setup.sh site installs it")
    gallery = options.gallery if options.gallery and (options.gallery / "pictures.json").exists() else None
    output = options.output.resolve()
    shutil.rmtree(output, ignore_errors=True)
    (output / "pages").mkdir(parents=True)
    shutil.copytree(ROOT / "docs/images", output / "images")
    plots.write(ROOT / "bench/RESULTS.md", output / "images")
    inputs = [write_page(output / "pages", path, name) for path, name in pages().items()]
    inputs += write_families(output / "pages", pictures(gallery))
    write_layout(output, gallery)
    subprocess.run(["doxygen", "-"], input=settings(output, inputs, options.version), text=True, check=True)
    if gallery:
        copy_gallery(gallery, output / "html/gallery")
    else:
        print("without the gallery: scripts/demo.sh makes it")
    print(f"the site: {output / 'html/index.html'}")


if __name__ == "__main__":
    main()
