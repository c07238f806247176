#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: maps_table.py OUT LAYERS...

Prints what maps.sh has measured, as a table of a Markdown page. Times are processor time; that on the clock follows in
brackets. A ratio compares those on the clock, because both programs draw with several threads."""
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "..", "tools"))
sys.dont_write_bytecode = True
from bench_compare import read_round  # noqa: E402, found by the path above
from table import cell, figures  # noqa: E402


def orvane(out, count, job):
    """(wall, processor) in seconds"""
    with open(os.path.join(out, count, "orvane.json"), encoding="utf-8") as results:
        times = read_round(results.read()).get("%s/window/%s/0" % (job, count))
    return times and tuple(milliseconds / 1000 for milliseconds in times)


def together(*parts):
    """The sum, if all were measured to their ends."""
    if any(part is None or part[0] is None for part in parts):
        return None
    return tuple(sum(column) for column in zip(*parts))


def ratio(peer, own):
    return "%.1f" % (peer[0] / own[0]) if peer and own and peer[0] else ""


def main():
    out, counts = sys.argv[1], sys.argv[2:]
    print("\n| layers | work | QGIS, seconds | Orvane, seconds | ratio |\n|---|---|---|---|---|")
    for count in counts:
        found = figures(os.path.join(out, count, "figures"))
        rows = [("project opened", found.get("map-open"), None),
                ("map drawn", found.get("map-draw"), None),
                ("both", together(found.get("map-open"), found.get("map-draw")), orvane(out, count, "Open and draw map")),
                ("drawn again after a change of one layer", found.get("map-redraw"), orvane(out, count, "Redraw one layer"))]
        for text, peer, own in rows:
            print("| %s | %s | %s | %s | %s |" % (format(int(count), ","), text, cell(peer), cell(own), ratio(peer, own)))


if __name__ == "__main__":
    main()
