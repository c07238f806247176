#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: bench_compare.py RESULTS

Compares two revisions that were measured in turn. RESULTS has files of Google Benchmark, before-1.json, here-1.json,
before-2.json and so on. A ratio is that of one round, in which both met the same machine: 0.5 is twice as fast here. The
median of the rounds is printed, and the quartiles between which half of them lie."""
import glob
import json
import os
import re
import statistics
import sys

MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}
MODES = re.compile(r"/(iterations:\d+|repeats:\d+|process_time|real_time)")  # how it was measured, not what


def read_round(text):
    """Name -> (wall, processor) in milliseconds, the medians of what was repeated."""
    found = {}
    for run in json.loads(text)["benchmarks"]:
        if run.get("run_type", "iteration") != "iteration" or run.get("error_occurred"):
            continue
        factor = MILLISECONDS[run["time_unit"]]
        found.setdefault(MODES.sub("", run["name"]), []).append((run["real_time"] * factor, run["cpu_time"] * factor))
    return {name: tuple(statistics.median(column) for column in zip(*times)) for name, times in found.items()}


def quartiles(values):
    """(lower, median, upper)"""
    if len(values) == 1:
        return values * 3
    return statistics.quantiles(values, n=4, method="inclusive")


def ratios(before, here, name, kind):
    """Of the rounds in which both measured it."""
    return [after[name][kind] / first[name][kind] for first, after in zip(before, here)
            if name in first and name in after and first[name][kind] > 0]


def line(before, here, name):
    cells = []
    for kind in (0, 1):
        of_rounds = ratios(before, here, name, kind)
        if not of_rounds:
            return "%-44s %s" % (name, "cannot be compared")
        times = [statistics.median(one[name][kind] for one in side if name in one) for side in (before, here)]
        lower, middle, upper = quartiles(of_rounds)
        cells.append("%10.3f %10.3f  x %5.2f [%.2f - %.2f]" % (*times, middle, lower, upper))
    return "%-44s %s   %s" % (name, *cells)


def table(before, here):
    """before, here: a result of read_round for each round."""
    names = [set().union(*side) for side in (before, here)]
    lines = ["%-44s %-44s   %s" % ("", "wall ms: before, here, ratio", "processor ms: before, here, ratio")]
    lines += [line(before, here, name) for name in sorted(names[0] & names[1])]
    for only, text in ((names[0] - names[1], "before"), (names[1] - names[0], "here")):
        lines += ["%-44s only %s" % (name, text) for name in sorted(only)]
    return lines


def rounds(folder, side):
    def number(path):
        return int(re.search(r"-(\d+)\.json$", path).group(1))
    read = []
    for path in sorted(glob.glob(os.path.join(folder, side + "-*.json")), key=number):
        with open(path, encoding="utf-8") as results:
            read.append(read_round(results.read()))
    return read


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    print("\n".join(table(rounds(sys.argv[1], "before"), rounds(sys.argv[1], "here"))))


if __name__ == "__main__":
    main()
