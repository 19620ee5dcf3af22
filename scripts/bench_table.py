#!/usr/bin/env python3
"""Prints the medians of Google Benchmark's JSON files, and the ratios between related ones."""

import json
import sys

# The scenes of surface_bench, as its names have them.
SCENES = [
    *[f"depth:5/balls:12/seed:{seed}" for seed in range(1, 10)],
    *[f"depth:{depth}/balls:12/seed:1" for depth in (4, 6, 7, 8)],
    "depth:5/balls:192/seed:1",
]

# What is compared, the slower first: (label, the one name, the other name).
RATIOS = [
    *[(f"{literal} / ours, {extent}, {scene}", f"drawFrames/{literal}_{extent}/{scene}",
       f"drawFrames/ours_{extent}/{scene}")
      for literal in ("literal", "literal_room_flags") for extent in ("in_view", "whole")
      for scene in SCENES],
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
                    name = run["run_name"].split("/iterations")[0]
                    # CPU time, which a busy machine disturbs less, unless the bench asks for the other.
                    cpu = not run["run_name"].endswith("/real_time")
                    time = run["cpu_time" if cpu else "real_time"]
                    name = name.removesuffix("/real_time").removesuffix("/process_time")
                    times[name] = time * NANOSECONDS[run["time_unit"]]
    return times


def main():
    times = medians(sys.argv[1:])
    for name, time in times.items():
        print(f"{name:64} {time / 1e6:14.6f} ms")
    print()
    for label, one, other in RATIOS:
        if one in times and other in times:
            print(f"{label:64} {times[one] / times[other]:8.2f}")


if __name__ == "__main__":
    main()
