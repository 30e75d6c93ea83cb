#!/usr/bin/env python3
"""What a call from Python costs, beside the same call in C++ and beside OpenCV, NumPy, SciPy and scikit-image.

Usage: PYTHONPATH=BUILD/python bench/python_overhead.py BUILD     prints a table; one thread, results given (`out`)
"""

import ctypes
import pathlib
import subprocess
import sys
import tempfile
import time

import cv2
import numpy as np
import orvane
import scipy.ndimage
import skimage.filters

ROOT = pathlib.Path(__file__).resolve().parent.parent
SIZES = [(1, 1), (256, 256), (2000, 2500)]

# name, element, channels, the call in C++, in Python, and the peers'. a, b: sources; d: result.
CASES = [
    ("add 8u", "uint8", 1, "orvane::add(a, b, d)", lambda a, b, d: orvane.add(a, b, d),
     {"opencv": lambda a, b, d: cv2.add(a, b, d), "numpy": lambda a, b, d: np.add(a, b, d)}),
    ("add 32f", "float32", 1, "orvane::add(a, b, d)", lambda a, b, d: orvane.add(a, b, d),
     {"opencv": lambda a, b, d: cv2.add(a, b, d), "numpy": lambda a, b, d: np.add(a, b, d)}),
    ("multiply 8u x3 by 160", "uint8", 3, "orvane::multiply(a, {160, 160, 160}, d, 7)",
     lambda a, b, d: orvane.multiply(a, (160, 160, 160), d, scale=7),
     {"opencv": lambda a, b, d: cv2.multiply(a, (160, 160, 160, 0), d, 1 / 128)}),
    ("lowpass 5x5 32f", "float32", 1, "orvane::lowpass(a, d, orvane::mask::size5x5, orvane::edge::replicate)",
     lambda a, b, d: orvane.lowpass(a, 5, d),
     {"opencv": lambda a, b, d: cv2.blur(a, (5, 5), d, borderType=cv2.BORDER_REPLICATE),
      "scipy": lambda a, b, d: scipy.ndimage.uniform_filter(a, 5, d, "nearest")}),
    ("gauss 32f", "float32", 1, "orvane::gauss(a, d, 9, 1.5f)",
     lambda a, b, d: orvane.gauss(a, kernel_size=9, sigma=1.5, out=d),
     {"opencv": lambda a, b, d: cv2.GaussianBlur(a, (9, 9), 1.5, d, borderType=cv2.BORDER_REPLICATE),
      "scipy": lambda a, b, d: scipy.ndimage.gaussian_filter(a, 1.5, output=d, mode="nearest", truncate=2.6),
      "skimage": lambda a, b, d: skimage.filters.gaussian(a, 1.5, d, mode="nearest", truncate=2.6)}),
    ("mean 8u", "uint8", 1, "orvane::mean(a, average)", lambda a, b, d: orvane.mean(a),
     {"opencv": lambda a, b, d: cv2.mean(a), "numpy": lambda a, b, d: np.mean(a)}),
]

PROGRAM = """
#include <orvane.hpp>
#include <chrono>
#define CASE(name, T, channels, call)                                                              \\
    extern "C" double name(T* pa, T* pb, T* pd, int width, int height, int times)                  \\
    {                                                                                              \\
        const std::ptrdiff_t step = std::ptrdiff_t{width} * channels * sizeof(T);                  \\
        const orvane::view<const T, channels> a(pa, width, height, step), b(pb, width, height, step); \\
        const orvane::view<T, channels> d(pd, width, height, step);                                \\
        double average = 0;                                                                        \\
        (void)average, (void)b, (void)d;                                                           \\
        const auto start = std::chrono::steady_clock::now();                                       \\
        for (int i = 0; i < times; ++i) (call).check();                                            \\
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();    \\
    }
"""
TYPES = {"uint8": "unsigned char", "float32": "float"}


def compiled(build):
    """The calls in C++, in a library of their own."""
    source = PROGRAM + "\n".join(f"CASE(case_{k}, {TYPES[kind]}, {channels}, ({call}))"
                                 for k, (_, kind, channels, call, _, _) in enumerate(CASES))
    with tempfile.TemporaryDirectory() as folder:
        library = pathlib.Path(folder, "calls.so")
        subprocess.run(["g++", "-std=c++17", "-O2", "-shared", "-fPIC", f"-I{ROOT}/include", "-x", "c++", "-", "-o",
                        library, "-x", "none", f"{build}/src/liborvane.so"], input=source, text=True, check=True)
        calls = ctypes.CDLL(str(library))
    for k in range(len(CASES)):
        getattr(calls, f"case_{k}").restype = ctypes.c_double
    return calls


def seconds(call, arrays, times):
    start = time.perf_counter()
    for _ in range(times):
        call(*arrays)
    return time.perf_counter() - start


def image(kind, channels, height, width):
    shape = (height, width) if channels == 1 else (height, width, channels)
    return np.random.default_rng(1).integers(1, 100, shape).astype(kind)


def measure(k, calls, height, width):
    """Nanoseconds of each, the shortest of many rounds that take turns."""
    name, kind, channels, _, ours, peers = CASES[k]
    arrays = [image(kind, channels, height, width) for _ in "abd"]
    pointers = [ctypes.c_void_p(a.ctypes.data) for a in arrays]
    cpp = getattr(calls, f"case_{k}")
    runs = {"C++": lambda n: cpp(*pointers, width, height, n), "orvane": lambda n: seconds(ours, arrays, n)}
    runs |= {peer: lambda n, call=call: seconds(call, arrays, n) for peer, call in peers.items()}
    times = max(1, 60000 // (height * width) if height * width < 60000 else 200000 // (height * width))
    rounds = 300 if height * width < 1e6 else 25
    best = {who: float("inf") for who in runs}
    for _ in range(rounds):
        for who, run in runs.items():
            best[who] = min(best[who], 1e9 * run(min(times, 2000)) / min(times, 2000))
    return best


def main(build):
    calls = compiled(build)
    peers = ["opencv", "numpy", "scipy", "skimage"]
    print("| call | pixels | orvane, ns | orvane / C++ | " + " | ".join(f"{p} / orvane" for p in peers) + " |")
    print("|---|---|---|---|" + "---|" * len(peers))
    for k, case in enumerate(CASES):
        for height, width in SIZES:
            best = measure(k, calls, height, width)
            ratios = [f"{best[p] / best['orvane']:.2f}" if p in best else "" for p in peers]
            print(f"| {case[0]} | {width} x {height} | {best['orvane']:.0f} | {best['orvane'] / best['C++']:.3f} | " +
                  " | ".join(ratios) + " |", flush=True)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    cv2.setNumThreads(1)
    main(sys.argv[1])
