#!/usr/bin/env python3
"""Turns Google Benchmark's JSON (names are operation/size/who) into one table on standard output.

Usage: bench_table.py RATIOS.dat TIMES.json...   RATIOS.dat receives the ratios to the best peer, to draw.

Of all repetitions the minimum counts. Columns: our time, GB/s where a limit is known, the best peer,
and the ratios: above 1 we are faster than the best peer; of the limit, 1 is as fast as memory allows.
"""
import json
import sys


def main():
    times = {}
    runs = [run for name in sys.argv[2:] for run in json.load(open(name))["benchmarks"]]
    for run in runs:
        if run.get("run_type") != "iteration":
            continue
        operation, size, who = run["run_name"].split("/")[:3]
        row = times.setdefault((operation, size), {})
        row[who] = min(row.get(who, float("inf")), run["cpu_time"])
    ratios = []
    print("| operation | size | orvane ns | best peer ns | peer / orvane | limit ns | limit / orvane |")
    print("|---|---|---|---|---|---|---|")
    for (operation, size), row in times.items():
        ours = row.pop("orvane", None)
        if ours is None:
            continue
        limit = row.pop("limit", None)
        peer = min(row, key=row.get) if row else None
        if peer:
            ratios.append('"{} {}" {:.3f}'.format(operation, size, row[peer] / ours))
        print("| {} | {} | {:.1f} | {} | {} | {} | {} |".format(
            operation, size, ours,
            "{} {:.1f}".format(peer, row[peer]) if peer else "–",
            "{:.2f}".format(row[peer] / ours) if peer else "–",
            "{:.1f}".format(limit) if limit else "–",
            "{:.2f}".format(limit / ours) if limit else "–"))

    open(sys.argv[1], "w").write("".join(line + "\n" for line in ratios))


main()
