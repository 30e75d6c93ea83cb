"""The public static methods and C functions, as Doxygen reads the headers."""

import pathlib
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass

SETTINGS = """
INPUT = {include}
FILE_PATTERNS = *Wrapper.h Parts.h
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
    owner: str  # the class; empty for a C function
    name: str
    arguments: tuple
    brief: str

    @property
    def qualified(self):
        return f"{self.owner}::{self.name}" if self.owner else self.name

    def has(self, name):
        return any(a.name == name for a in self.arguments)


def text(node):
    return "" if node is None else " ".join("".join(node.itertext()).split())


def read_compound(xml):
    """The static methods of a class, or the functions of a file."""
    compound = xml.find(".//compounddef")
    is_class = compound.get("kind") == "class"
    owner = compound.findtext("compoundname") if is_class else ""
    for member in xml.iter("memberdef"):
        if (member.get("kind"), member.get("prot")) == ("function", "public") and \
                (member.get("static") == "yes" or not is_class):
            arguments = tuple(Argument(text(p.find("type")).replace(" *", "*"), p.findtext("declname"))
                              for p in member.findall("param"))
            yield Method(owner, member.findtext("name"), arguments, text(member.find("briefdescription")))


def read(include):
    """All public static methods and C functions of the headers in a folder, in the order in which they stand there."""
    with tempfile.TemporaryDirectory() as output:
        subprocess.run(["doxygen", "-"], input=SETTINGS.format(include=include, output=output), text=True, check=True)
        xml = pathlib.Path(output, "xml")
        files = [*sorted(xml.glob("class*.xml")), xml / "Parts_8h.xml"]
        return [method for file in files for method in read_compound(ElementTree.parse(file).getroot())]
