#!/usr/bin/env python3
"""Plants the faults of faults.py one at a time in a copy of the tree: each must be caught by its net.

mutation.py --check             only looks whether every fault can still be planted
mutation.py COPY [WORDS...]     in a copy of the tree, COPY; only faults whose description has one of the words
"""
import pathlib
import re
import shutil
import subprocess
import sys

from faults import FAULTS

ROOT = pathlib.Path(__file__).resolve().parents[2]
JOBS = "2"
CTESTS = ("exports", "kernel_symbols", "layers", "types")
RULES = "rules"  # the Python package's tests that cut every operation by its rule


def run(command, folder, seconds=7200):
    return subprocess.run(command, cwd=folder, capture_output=True, text=True, timeout=seconds, check=False)


def misplaced(fault):
    """What keeps a fault from being planted, if anything does."""
    file = ROOT / fault[1]
    count = file.read_text().count(fault[2]) if file.exists() else 0
    return None if count == 1 else f"{fault[0]}: its text stands {count} times in {fault[1]}"


def run_net(build, net, seconds):
    if net in CTESTS:
        return run(["ctest", "--output-on-failure", "-R", f"^{net}$"], build, seconds)
    if net == RULES:
        test = build.parents[1] / "tests/python/test_tiles.py"
        return run(["env", f"PYTHONPATH={build}/python", "/usr/bin/python3", "-B", "-m", "pytest", "-qx", test], build, seconds)
    return run(["tests/orvane_tests", "--brief", "--seed=7", f"--gtest_filter={net}"], build, seconds)


def is_caught(build, net):
    """Whether the net fails, and its last words."""
    if net != "layers":
        target = {"exports": "orvane", "build": "orvane", RULES: "orvane_python"}.get(net, "orvane_tests")
        made = run(["ninja", "-j", JOBS, target], build)
        if made.returncode != 0 or net == "build":
            return made.returncode != 0 and net == "build", made.stdout[-600:]
    try:
        result = run_net(build, net, 600)
    except subprocess.TimeoutExpired:
        return True, "no end"
    return result.returncode != 0, result.stdout[-300:]  # a net without tests catches nothing


def text_for_copy(name):
    """Families have their lowest and their highest level: those between are the same text on narrower vectors."""
    text = (ROOT / name).read_bytes()
    return re.sub(rb"LEVELS px( [a-z]\d)*( [a-z]\d)", rb"LEVELS px\2", text) if name == "src/CMakeLists.txt" else text


def copy_tree(tree):
    """What git would commit; a file that has not changed keeps its time, so that a second run builds little."""
    names = set(filter(None, run(["git", "ls-files", "-co", "--exclude-standard"], ROOT).stdout.split("\n")))
    for file in tree.rglob("*"):
        name = file.relative_to(tree)
        if file.is_file() and name.parts[0] != "build" and str(name) not in names:
            file.unlink()
    for name in names:
        wanted = text_for_copy(name)
        if not (tree / name).exists() or (tree / name).read_bytes() != wanted:
            (tree / name).parent.mkdir(parents=True, exist_ok=True)
            (tree / name).write_bytes(wanted)
            shutil.copymode(ROOT / name, tree / name)


def build_intact(tree, build):
    """Builds the copy as and where a release is built, so that a compiler cache has most of it. A net that fails here
    would prove nothing later."""
    launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
    made = run(["cmake", "--preset", "release", "-DORVANE_BUILD_PYTHON=ON", *launcher], tree)
    targets = ["orvane", "orvane_tests", "orvane_python"]
    made = made if made.returncode else run(["ninja", "-j", JOBS, *targets], build)
    if made.returncode:
        raise SystemExit(made.stdout + made.stderr)
    for net in ("*", *CTESTS, RULES):
        result = run_net(build, net, 3600)
        if result.returncode:
            raise SystemExit(f"{net} fails without a fault:\n{result.stdout[-2000:]}")


def plant(tree, build, fault):
    file = tree / fault[1]
    text = file.read_text()
    file.write_text(text.replace(fault[2], fault[3]))
    try:
        return is_caught(build, fault[4])
    finally:
        file.write_text(text)


def main():
    wrong = list(filter(None, map(misplaced, FAULTS)))
    if wrong:
        raise SystemExit("\n".join(wrong))
    if sys.argv[1:] == ["--check"]:
        return 0
    folder, words = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:]
    chosen = [f for f in FAULTS if not words or any(w in f[0] for w in words)]
    tree, build = folder, folder / "build" / "release"
    copy_tree(tree)
    build_intact(tree, build)

    survivors = []
    for fault in chosen:
        found, said = plant(tree, build, fault)
        print(f"{'caught  ' if found else 'SURVIVED'}  {fault[0]} ({fault[4]})", flush=True)
        if not found:
            print(said, flush=True)
            survivors.append(fault)
    print(f"{len(chosen) - len(survivors)} of {len(chosen)} faults caught")
    return len(survivors)


if __name__ == "__main__":
    sys.exit(main())
