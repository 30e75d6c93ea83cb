#!/usr/bin/env python3
"""Builds and runs the programs that the documents print, and compares what they print.

Usage: scripts/check_documents.py PREFIX DOCUMENT...     PREFIX is where the library is installed

A program is a block of C++ with a main(), or one of Python; the block without a language that follows is its output.
Programs that use the typed layer are C++17, all others C++11.
"""

import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile


def blocks(text):
    """(language, lines, following block without a language or None)"""
    found = re.findall(r"^```(\w*)\n(.*?)^```$", text, re.S | re.M)
    for i, (language, body) in enumerate(found):
        output = found[i + 1][1] if i + 1 < len(found) and found[i + 1][0] == "" else None
        yield language, body, output


def run_cpp(source, folder):
    program = pathlib.Path(folder, "program")
    pathlib.Path(folder, "program.cpp").write_text(source)
    flags = subprocess.run(["pkg-config", "--cflags", "--libs", "orvane"], capture_output=True, text=True, check=True)
    libraries = subprocess.run(["pkg-config", "--variable=libdir", "orvane"], capture_output=True, text=True, check=True)
    standard = "c++17" if "orvane.hpp" in source else "c++11"
    subprocess.run(["g++", f"-std={standard}", "-D_GNU_SOURCE", "-Wall", "-Wextra", "-Werror", f"{program}.cpp",
                    *shlex.split(flags.stdout), f"-Wl,-rpath,{shlex.split(libraries.stdout)[0]}", "-o", program], check=True)
    return subprocess.run([program], capture_output=True, text=True, check=True).stdout


def run_python(source, folder):
    return subprocess.run([sys.executable, "-c", source], capture_output=True, text=True, check=True).stdout


def main():
    prefix = pathlib.Path(sys.argv[1]).resolve()
    os.environ["PKG_CONFIG_PATH"] = ":".join(str(p.parent) for p in prefix.rglob("orvane.pc"))
    count, bad = 0, 0
    for document in sys.argv[2:]:
        for language, body, expected in blocks(pathlib.Path(document).read_text()):
            run = {"cpp": run_cpp, "python": run_python}.get(language)
            if run is None or expected is None or (language == "cpp" and "int main(" not in body):
                continue
            with tempfile.TemporaryDirectory() as folder:
                printed = run(body, folder)
            count += 1
            if printed != expected:
                bad += 1
                print(f"{document}: expected\n{expected}got\n{printed}")
    print(f"{count} programs ran, {bad} printed something else")
    sys.exit(bad > 0 or count == 0)


if __name__ == "__main__":
    main()
