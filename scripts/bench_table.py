#!/usr/bin/env python3
"""Prints the medians of Google Benchmark's JSON files, and the ratios between related ones."""

import json
import re
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

MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}


def times(path, aggregate=None):
    """What ran, and its milliseconds: of each run, or of the aggregate with that name. Of a bench
    that asks for real time both, of others the CPU time, which a busy machine disturbs less; then
    its counters in milliseconds."""
    with open(path, encoding="utf-8") as file:
        text = file.read()
    for run in json.loads(text)["benchmarks"] if text else []:  # no text: the filter matched nothing
        if run.get("aggregate_name") != aggregate or run.get("error_occurred"):
            continue
        unit = MILLISECONDS[run["time_unit"]]
        real = run["run_name"].endswith("/real_time")
        name = re.sub("(/(iterations:.*|process_time|real_time))+$", "", run["run_name"])
        if real:
            yield name, run["real_time"] * unit
        yield f"{name}, CPU" if real else name, run["cpu_time"] * unit
        for counter in (key for key in run if key.endswith("_ms")):
            yield f"{name}, {counter.removesuffix('_ms').replace('_', ' ')}", run[counter]


def main():
    medians = {name: time for path in sys.argv[1:] for name, time in times(path, "median")}
    for name, time in medians.items():
        print(f"{name:64} {time:14.6f} ms")
    print()
    for label, one, other in RATIOS:
        if one in medians and other in medians:
            print(f"{label:64} {medians[one] / medians[other]:8.2f}")


if __name__ == "__main__":
    main()
