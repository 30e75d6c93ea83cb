#!/usr/bin/env python3
"""Compiles one source by MinGW's g++ with line numbers that Windows debuggers read.

Usage: line_numbers.py COMPILER ARGUMENT...      the command that would compile it without them

g++ 12 knows DWARF alone, and lld-link puts CodeView alone into the .pdb. So the source is compiled to assembler's text
with DWARF's directives, these are replaced by labels and a section of CodeView, and the text is assembled. The code is
what the command would have made.
"""

import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# (The version first: it would raise the level. What debuggers could follow variables by is not wanted.)
DEBUG = ["-gdwarf-4", "-g1", "-gno-column-info", "-gno-statement-frontiers", "-gno-variable-location-views"]
# Of CodeView: the signature of its sections, and its kinds of subsections.
C13, LINES, STRINGS, CHECKSUMS = 4, 0xF2, 0xF3, 0xF4


class Lines:
    """Takes the directives out of the text: ranges of code without a gap, each a list of (label, file, line)."""

    def __init__(self):
        self.files, self.ranges, self.text, self.open, self.count = {}, [], [], False, 0

    def label(self):
        self.count += 1
        self.text.append(f"Lcv{self.count}:")
        return f"Lcv{self.count}"

    def end(self):
        if self.open:
            self.ranges[-1].append((self.label(), None, 0))
        self.open = False

    def location(self, file, line):
        if not self.open:
            self.ranges.append([])
        self.open = True
        if line and (not self.ranges[-1] or self.ranges[-1][-1][1:] != (file, line)):
            self.ranges[-1].append((self.label(), file, line))

    def take(self, text):
        in_dwarf = False
        for line in text.splitlines():
            word = line.split(None, 3) or [""]
            if word[0] in (".section", ".text", ".ident"):
                in_dwarf = len(word) > 1 and word[1].startswith(".debug_")
                self.end()
            if word[0] == ".loc":
                self.location(int(word[1]), int(word[2]))
            elif word[0] == ".file" and len(word) > 2:
                self.files[int(word[1])] = relative(line.split('"')[1])
            elif not in_dwarf and not word[0].startswith(".cfi_"):
                if re.match(r"LFE\d+:", line):
                    self.end()
                self.text.append(line)


def relative(name):
    """Names inside the tree as seen from the folder of the build, as all other inputs of the library are named."""
    path = pathlib.Path(os.path.abspath(name))
    return os.path.relpath(path) if ROOT in path.parents else os.path.normpath(name)


def subsection(kind, number, body):
    begin, end = f"Lcvb{number}", f"Lcve{number}"
    return [f".long {kind}", f".long {end}-{begin}", f"{begin}:", *body, f"{end}:", ".p2align 2"]


def runs(lines):
    """Stretches of one file: (file, [(label, line)], label of the end)"""
    found = []
    for label, file, line in lines:
        if not found or found[-1][0] != file:
            found.append((file, []))
        found[-1][1].append((label, line))
    return [(*run, following[1][0][0]) for run, following in zip(found, found[1:])]


def stretch_of_lines(file, lines, end, offsets):
    start = lines[0][0]
    body = [f".secrel32 {start}", f".secidx {start}", ".short 0", f".long {end}-{start}",
            f".long {offsets[file]}", f".long {len(lines)}", f".long {12 + 8 * len(lines)}"]
    for label, line in lines:
        body += [f".long {label}-{start}", f".long {line | 1 << 31}"]  # (the start of a statement)
    return body


def codeview(files, ranges):
    order = {file: 8 * i for i, file in enumerate(sorted(files))}
    # A subsection for each stretch: some readers take the end of a subsection for that of each stretch in it.
    sections = [stretch_of_lines(*run, order) for lines in ranges for run in runs(lines)]
    strings, checksums, position = [".byte 0"], [], 1
    for file in sorted(files):
        strings.append(f'.asciz "{files[file]}"')
        checksums += [f".long {position}", ".long 0"]  # no checksum
        position += len(files[file]) + 1
    kinds = [(LINES, body) for body in sections] + [(CHECKSUMS, checksums), (STRINGS, strings)]
    text = ['.section .debug$S,"dr"', f".long {C13}"]
    for number, (kind, body) in enumerate(kinds):
        text += subsection(kind, number, body)
    return text


def main():
    command = sys.argv[1:]
    at = command.index("-o") + 1
    target = command[at]
    assembler = f"{target}.s"
    command[at] = assembler
    command[command.index("-c")] = "-S"
    subprocess.run([*command, *DEBUG], check=True)
    lines = Lines()
    lines.take(pathlib.Path(assembler).read_text())
    lines.end()
    pathlib.Path(assembler).write_text("\n".join([*lines.text, *codeview(lines.files, lines.ranges), ""]))
    compiler = next(word for word in command if "g++" in pathlib.Path(word).name)
    subprocess.run([compiler, *(word for word in command if word.startswith("-Wa,")), "-c", assembler, "-o", target],
                   check=True)
    os.remove(assembler)


if __name__ == "__main__":
    try:
        main()
    except subprocess.CalledProcessError as failed:
        sys.exit(failed.returncode)
