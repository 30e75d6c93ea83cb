"""The families of operations, as the public headers describe them."""

import pathlib
import re
from dataclasses import dataclass, field

# Classes without groups are families themselves.
OBJECTS = {"FFTWrapper": "Power spectral density", "FFT2Wrapper": "Two-dimensional transforms",
           "RandomNumberGenerator": "Random numbers", "Image": "Image container"}
HEADERS = ["ImageProcessingWrapper", "SignalProcessingWrapper", "FFTWrapper", "FFT2Wrapper", "RandomNumberGenerator",
           "MatrixWrapper", "MKLWrapper", "Image"]


@dataclass
class Family:
    owner: str
    title: str
    header: str
    text: list = field(default_factory=list)  # lines of Markdown
    methods: list = field(default_factory=list)  # names and what they do

    @property
    def key(self):
        """The class, without namespaces, and the title, as the gallery names families."""
        return self.owner.split("::")[-1], self.title

    @property
    def page(self):
        return "family_" + self.owner.split("::")[-1] + "_" + re.sub(r"\W+", "_", self.title).lower()


def group(header, owner, block):
    """A family from the text between @name and the closing brace."""
    lines = block.split("\n")
    family = Family(owner, lines[0].strip(), header)
    end = next(i for i, line in enumerate(lines) if line.strip() == "/// @{")
    family.text = [re.sub(r"^ */// ?", "", line) for line in lines[1:end]]
    for match in re.finditer(r"((?: */// .*\n)+) *static [^;(]*?\bORVANE_CALL (\w+)\(", "\n".join(lines[end + 1:])):
        brief = " ".join(line.strip().removeprefix("/// ") for line in match.group(1).strip().split("\n"))
        family.methods.append((match.group(2), brief))
    return family


def read(path):
    text = path.read_text()
    owner = re.search(r"class ORVANE_API (\w+)", text).group(1)
    if owner == "Image":
        owner = "Orvane::ImageProcessing::Image"
    groups = [group(path.name, owner, g) for g in re.findall(r"/// @name (.*?)/// @}", text, re.S)]
    short = owner.split("::")[-1]
    return owner, groups or [Family(owner, OBJECTS[short], path.name)]


def by_class(include):
    return dict(read(pathlib.Path(include, f"{name}.h")) for name in HEADERS)
