#!/usr/bin/env python3
"""Compares two folders of Google Benchmark's JSON files, one of each name being one round: the median
and the quartiles of the ratios of each round's times, here to there."""

import pathlib
import statistics
import sys

from bench_table import times


def rounds(folder):
    """For each benchmark, its time in each of the rounds, by the round's file name."""
    found = {}
    for path in sorted(pathlib.Path(folder).glob("*.json")):
        for name, time in times(path):
            found.setdefault(name, {})[path.name] = time
    return found


def main():
    here, there = rounds(sys.argv[1]), rounds(sys.argv[2])
    print(f"{'':64} {'here, ms':>12} {'there, ms':>12} {'ratio':>8}   quartiles")
    for name in [name for name in here if name in there]:
        ratios = [time / there[name][file] for file, time in here[name].items()
                  if file in there[name]]
        low, middle, high = (statistics.quantiles(ratios, n=4, method="inclusive")
                             if len(ratios) > 1 else ratios * 3)
        print(f"{name:64} {statistics.median(here[name].values()):12.6f} "
              f"{statistics.median(there[name].values()):12.6f} {middle:8.3f}   "
              f"{low:.3f} to {high:.3f}")
    for side, names in (("here", here.keys() - there.keys()),
                        (f"in {sys.argv[3]}", there.keys() - here.keys())):
        for name in sorted(names):
            print(f"{name:64} only {side}")


if __name__ == "__main__":
    main()
