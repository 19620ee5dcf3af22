#!/usr/bin/env python3
"""Prints the medians of Google Benchmark's JSON files, and the ratios between related ones."""

import json
import sys

# What is compared, the slower first: (label, the one name, the other name).
RATIOS = [
    *[(f"literal / ours, in view, depth {depth}", f"drawFrames/literal_in_view/{depth}",
       f"drawFrames/ours_in_view/{depth}") for depth in range(4, 9)],
    *[(f"literal / ours, whole region, depth {depth}", f"drawFrames/literal_whole/{depth}",
       f"drawFrames/ours_whole/{depth}") for depth in range(4, 9)],
    *[(f"ours, whole region, depth {depth + 1} / {depth}", f"drawFrames/ours_whole/{depth + 1}",
       f"drawFrames/ours_whole/{depth}") for depth in range(5, 8)],
    ("polygonised and sent / sent alone", "polygonizedAndSent", "sendingAlone"),
    ("frame on the kept picture without its copy / on the window's", "frameWithoutCopy",
     "frameOnWindowsBuffer"),
    ("frame on the kept picture / on the window's buffer", "frameOnBackBuffer",
     "frameOnWindowsBuffer"),
]

NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def medians(paths):
    times = {}
    for path in paths:
        with open(path, encoding="utf-8") as file:
            for run in json.load(file)["benchmarks"]:
                if run.get("aggregate_name") == "median":
                    name = run["run_name"].split("/iterations")[0].removesuffix("/real_time")
                    times[name] = run["real_time"] * NANOSECONDS[run["time_unit"]]
    return times


def main():
    times = medians(sys.argv[1:])
    for name, time in times.items():
        print(f"{name:48} {time / 1e6:14.6f} ms")
    print()
    for label, one, other in RATIOS:
        if one in times and other in times:
            print(f"{label:60} {times[one] / times[other]:8.2f}")


if __name__ == "__main__":
    main()
