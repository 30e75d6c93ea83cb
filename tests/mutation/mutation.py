#!/usr/bin/env python3
"""Plants the faults of faults.py one at a time in a copy of the tree: each must be caught by its net.

mutation.py --check             only looks whether every fault can still be planted
mutation.py BUILD [WORDS...]    in a copy below BUILD; only faults whose description has one of the words
"""
import pathlib
import shutil
import subprocess
import sys

from faults import FAULTS

ROOT = pathlib.Path(__file__).resolve().parents[2]
JOBS = "2"


def run(command, folder, seconds=900):
    return subprocess.run(command, cwd=folder, capture_output=True, text=True, timeout=seconds, check=False)


def text_of(tree, fault):
    file = tree / fault[1]
    text = file.read_text()
    if text.count(fault[2]) != 1:
        raise SystemExit(f"{fault[0]}: its text stands {text.count(fault[2])} times in {fault[1]}")
    return file, text


def is_caught(tree, build, net):
    """Whether the net fails, and its last words."""
    targets = ["orvane"] if net in ("exports", "build") else ["orvane_tests"]
    if net not in ("layers",):
        made = run(["ninja", "-j", JOBS, *targets], build)
        if made.returncode != 0:
            return net == "build", made.stdout[-600:]
    if net == "build":
        return False, "it was built"
    if net in ("exports", "kernel_symbols", "layers"):
        result = run(["ctest", "--output-on-failure", "-R", net], build)
    else:
        result = run(["tests/orvane_tests", "--brief", "--seed=7", f"--gtest_filter={net}"], build)
        if "0 tests" in result.stdout and result.returncode == 0:
            return False, "the net has no test"
    return result.returncode != 0, result.stdout[-300:]


def main():
    if sys.argv[1:] == ["--check"]:
        for fault in FAULTS:
            text_of(ROOT, fault)
        return 0
    folder, words = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:]
    tree, build = folder / "tree", folder / "build"
    shutil.rmtree(tree, ignore_errors=True)
    names = run(["git", "ls-files", "-co", "--exclude-standard"], ROOT).stdout.split("\n")
    for name in filter(None, names):
        (tree / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(ROOT / name, tree / name)
    made = run(["cmake", "-S", str(tree), "-B", str(build), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release"], folder)
    made = made if made.returncode else run(["ninja", "-j", JOBS], build, 7200)
    if made.returncode:
        raise SystemExit(made.stdout + made.stderr)

    caught = 0
    chosen = [f for f in FAULTS if not words or any(w in f[0] for w in words)]
    for fault in chosen:
        file, text = text_of(tree, fault)
        file.write_text(text.replace(fault[2], fault[3]))
        try:
            found, said = is_caught(tree, build, fault[4])
        except subprocess.TimeoutExpired:
            found, said = True, "no end"
        file.write_text(text)
        caught += found
        print(f"{'caught  ' if found else 'SURVIVED'}  {fault[0]} ({fault[4]})", flush=True)
        if not found:
            print(said, flush=True)
    print(f"{caught} of {len(chosen)} faults caught")
    return caught != len(chosen)


if __name__ == "__main__":
    sys.exit(main())
