#!/usr/bin/env python3
"""What a tile costs beyond its pixels: maps a chain of one step over tiles of 2 x 2 pixels, and adds them up.

Usage: tiles_of_dask.py     prints a table
"""

import time

import dask.array as da
import distributed
import orvane
import orvane.dask

TILES = 1000


def per_tile(**how):
    """Milliseconds, the shortest of three runs."""
    total = orvane.dask.map(orvane.bit_not, da.zeros((2 * TILES, 2), chunks=(2, 2), dtype="uint8")).sum()
    best = float("inf")
    for _ in range(3):
        start = time.perf_counter()
        total.compute(**how)
        best = min(best, time.perf_counter() - start)
    return 1e3 * best / TILES


def processor_time(client):
    """Of the scheduler with the client, and of the workers, in milliseconds."""
    return 1e3 * time.process_time(), 1e3 * sum(client.run(time.process_time).values())


def main():
    print("| runs on | a tile, ms | processor time: scheduler and client | workers |\n|---|---|---|---|")
    for name, scheduler in (("one thread", "synchronous"), ("threads", "threads")):
        print(f"| {name} | {per_tile(scheduler=scheduler):.2f} | | |")
    for workers in (1, 2):
        with distributed.LocalCluster(n_workers=workers, threads_per_worker=1, host="127.0.0.1",
                                      dashboard_address="127.0.0.1:0") as cluster:
            with distributed.Client(cluster) as client:
                before = processor_time(client)
                best = per_tile()
                here, there = ((b - a) / (3 * TILES) for a, b in zip(before, processor_time(client)))
                print(f"| {workers} worker{'s' * (workers > 1)} | {best:.2f} | {here:.2f} | {there:.2f} |", flush=True)


if __name__ == "__main__":
    main()
