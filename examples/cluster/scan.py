#!/usr/bin/env python3
"""A scan too large for one call, through a chain of six operations: cut in bands, in tiles, on one worker and on three,
one of which is killed on the way. All give the same bytes; a halo that is one too small does not.

Usage: scan.py [--small]     400 megapixels, with --small 36; all in a temporary folder, all addresses on this machine
"""

import argparse
import contextlib
import hashlib
import logging
import os
import pathlib
import shutil
import signal
import sys
import tempfile
import time

import dask
import distributed
import numpy as np
import orvane
import orvane.dask
import skimage.data
import zarr
from orvane.tiles import Halo, bands, halo, rule


SHARPER = [[0, -1, 0], [-1, 5, -1], [0, -1, 0]]


def restored(paper):
    """Less noise, specks closed, smoothed in floats, sharpened."""
    calm = orvane.lowpass(paper, 5)
    closed = orvane.erode(orvane.dilate(calm))
    smooth = orvane.gauss(orvane.convert(closed, "float32"), kernel_size=9, sigma=2)
    return orvane.convolve(orvane.convert(smooth, "uint8"), SHARPER, divisor=1)


HALO = halo([rule("lowpass", size=5), "dilate", "erode", "convert", rule("gauss", kernel_size=9), "convert",
             rule("convolve", kernel=SHARPER)])
TOO_SMALL = Halo(*(side - 1 for side in HALO))


def make_scan(path, side):
    """The photograph, grey, in prints of 1000 x 1000 pixels: each has its own light and its own grain."""
    print(f"a scan of {side} x {side} pixels", flush=True)
    photo = orvane.resize(orvane.rgb_to_grey(skimage.data.coffee()), (1000, 1000), how="lanczos")
    grain = np.random.default_rng(1).integers(0, 40, (2000, 2000), "uint8")
    scan = zarr.open(str(path), "w", shape=(side, side), chunks=(2000, 2000), dtype="uint8", compressor=None)
    for y in range(0, side, 2000):
        for x in range(0, side, 2000):
            light = 90 + (y // 1000 * 7 + x // 1000 * 13) % 70
            scan[y:y + 2000, x:x + 2000] = orvane.add(orvane.multiply(np.tile(photo, (2, 2)), light, scale=7), grain)


def empty_like(source, path):
    return zarr.open(str(path), "w", shape=source.shape, chunks=(2000, 2000), dtype="uint8", compressor=None)


def digest(path):
    image, sha = zarr.open(str(path), "r"), hashlib.sha256()
    for y in range(0, image.shape[0], image.chunks[0]):
        sha.update(image[y:y + image.chunks[0]])
    return sha.hexdigest()


def in_bands(source, target):
    """One thread, calls on bands of 1000 rows."""
    scan = zarr.open(str(source), "r")
    made = empty_like(scan, target)
    for band in bands(scan.shape[0], 1000, HALO):
        made[band.rows] = restored(scan[band.read])[band.crop]


def tiles_done(path):
    names = [file.name for file in path.iterdir()] if path.exists() else []
    return sum(name[0] != "." and not name.endswith(".partial") for name in names)


def follow(future, path, tiles):
    """A progress bar."""
    while not future.done():
        done = tiles_done(path)
        if sys.stdout.isatty():
            print(f"\r  [{'#' * (40 * done // tiles):40}] {done} of {tiles} tiles", end="", flush=True)
        time.sleep(0.05)
    if sys.stdout.isatty():
        print("\r" + " " * 70 + "\r", end="")
    future.result()


@contextlib.contextmanager
def quiet():
    """Without what is printed about broken connections where a worker is killed; exceptions come as ever."""
    kept = os.dup(2)
    with open(os.devnull, "w") as nothing:
        os.dup2(nothing.fileno(), 2)
    try:
        yield
    finally:
        os.dup2(kept, 2)
        os.close(kept)


def deadly(path, tiles, marker):
    """The chain, whose worker is killed when a third of the tiles is there; only once."""
    def chain(paper):
        done = tiles_done(path)
        if 3 * done >= tiles:
            with contextlib.suppress(FileExistsError):
                marker.open("x").write(f"  a worker was killed after {done} of {tiles} tiles\n")
                os.kill(os.getpid(), signal.SIGKILL)
        return restored(paper)
    return chain


def on_workers(source, target, *, workers=3, tile, around=HALO, chain=restored):
    with distributed.LocalCluster(n_workers=workers, threads_per_worker=1, processes=True, host="127.0.0.1",
                                  dashboard_address="127.0.0.1:0", silence_logs="CRITICAL") as cluster:
        with distributed.Client(cluster) as client:
            address = f"http://127.0.0.1:{cluster.scheduler.http_server.port}/info/main/workers.html"
            print(f"  {workers} worker{'s' * (workers > 1)}, dashboard {address}", flush=True)
            image = orvane.dask.map(chain, orvane.dask.read(source, (tile, tile)), halo=around)
            future = client.compute(orvane.dask.write(image, target, compute=False, compressor=None))
            follow(future, target, image.npartitions)


def one_killed(source, target, *, tile):
    tiles, marker = (zarr.open(str(source), "r").shape[0] // tile) ** 2, target.with_name("killed")
    with quiet():
        on_workers(source, target, tile=tile, chain=deadly(target, tiles, marker))
    print(marker.read_text(), end="")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--small", action="store_true", help="36 megapixels, for a test")
    side, tile = (6000, 1000) if parser.parse_args().small else (20000, 2000)
    folder = pathlib.Path(tempfile.mkdtemp(prefix="orvane-cluster-"))
    runs = [("one thread, in bands", in_bands, {}, True),
            ("one worker", on_workers, {"workers": 1, "tile": tile}, True),
            ("three workers", on_workers, {"tile": tile}, True),
            ("three workers, one killed after a third of the tiles", one_killed, {"tile": tile}, True),
            ("three workers, tiles of 1500 x 1500", on_workers, {"tile": 1500}, True),
            ("three workers, a halo that is one too small", on_workers, {"tile": tile, "around": TOO_SMALL}, False)]
    try:
        source, target = folder / "scan.zarr", folder / "result.zarr"
        make_scan(source, side)
        expected, wrong = None, 0
        for name, run, options, equal in runs:
            start = time.perf_counter()
            run(source, target, **options)
            seconds = time.perf_counter() - start
            found = digest(target)
            expected = expected or found
            right = (found == expected) == equal
            wrong += not right
            print(f"{found[:16]}  {seconds:5.1f} s  {name}{'' if right else ': WRONG'}", flush=True)
            shutil.rmtree(target)
        return f"{wrong} of {len(runs)} runs are wrong" if wrong else "all as it must be"
    finally:
        shutil.rmtree(folder)


if __name__ == "__main__":
    logging.getLogger("asyncio").setLevel(logging.CRITICAL)  # of a killed worker's connections
    dask.config.set({"distributed.comm.timeouts.connect": "30s"})
    verdict = main()
    print(verdict)
    sys.exit(verdict != "all as it must be")
