"""The public static methods, as Doxygen reads the headers."""

import pathlib
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass

SETTINGS = """
INPUT = {include}
FILE_PATTERNS = *Wrapper.h
OUTPUT_DIRECTORY = {output}
GENERATE_XML = YES
XML_PROGRAMLISTING = NO
GENERATE_HTML = NO
GENERATE_LATEX = NO
MACRO_EXPANSION = YES
PREDEFINED = "ORVANE_API=" "ORVANE_CALL="
QUIET = YES
WARNINGS = NO
"""


@dataclass(frozen=True)
class Argument:
    type: str  # as written, without a space before the star
    name: str

    @property
    def pointer(self):
        return self.type.endswith("*")

    @property
    def const(self):
        return self.type.startswith("const ")

    @property
    def element(self):
        return self.type.removeprefix("const ").removesuffix("*")


@dataclass(frozen=True)
class Method:
    owner: str
    name: str
    arguments: tuple
    brief: str

    @property
    def qualified(self):
        return f"{self.owner}::{self.name}"

    def has(self, name):
        return any(a.name == name for a in self.arguments)


def text(node):
    return "" if node is None else " ".join("".join(node.itertext()).split())


def read_class(xml):
    owner = xml.findtext(".//compounddef/compoundname")
    for member in xml.iter("memberdef"):
        if (member.get("kind"), member.get("static"), member.get("prot")) == ("function", "yes", "public"):
            arguments = tuple(Argument(text(p.find("type")).replace(" *", "*"), p.findtext("declname"))
                              for p in member.findall("param"))
            yield Method(owner, member.findtext("name"), arguments, text(member.find("briefdescription")))


def read(include):
    """All public static methods of the headers in a folder, in the order in which they stand there."""
    with tempfile.TemporaryDirectory() as output:
        subprocess.run(["doxygen", "-"], input=SETTINGS.format(include=include, output=output), text=True, check=True)
        files = sorted(pathlib.Path(output, "xml").glob("class*.xml"))
        return [method for file in files for method in read_class(ElementTree.parse(file).getroot())]
