#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: table.py OUT LAYERS...

Prints what speed.sh has measured, as tables of a Markdown page. Times are processor time; that on the clock follows in
brackets. A ratio compares processor times with those of QGIS for the same work, in the same tree."""
import os
import sys

ROWS = [  # text, part, name, compared with
    ("QGIS: Paste Style on the group", "paste", "paste", None),
    ("dialog: one fill colour for the group, Apply to idle", "control", "apply", ("paste", "paste")),
    ("the same again", "control", "apply-again", ("paste", "paste")),
    ("QGIS: another map theme", "theme", "theme", None),
    ("dialog: another scheme", "control", "scheme", ("theme", "theme")),
    ("QGIS: project saved", "project", "save", None),
    ("QGIS: project opened", "project", "open", None),
    ("dock opened, project read", "control", "dock", None),
    ("QGIS alone: one layer renamed", "control", "alone-rename", None),
    ("with the dialog, which shows another layer", "control", "other-shown-rename", ("control", "alone-rename")),
    ("with the dialog, which shows the group", "control", "group-shown-rename", ("control", "alone-rename")),
    ("QGIS alone: one layer restyled", "control", "alone-restyle", None),
    ("with the dialog, which shows another layer", "control", "other-shown-restyle", ("control", "alone-restyle")),
    ("with the dialog, which shows the group", "control", "group-shown-restyle", ("control", "alone-restyle")),
    ("from a renamed layer to the dialog's list", "control", "until-shown", None)]


def figures(path):
    found = {}
    if not os.path.exists(path):
        return found
    with open(path, encoding="utf-8") as lines:
        for name, wall, processor in (line.split() for line in lines):
            found[name] = (None, float(processor)) if wall == "over" else (float(wall), float(processor))
    return found


def seconds(value):
    return "%.4f" % value if value < 0.1 else "%.2f" % value


def cell(figure):
    if figure is None:
        return ""
    wall, processor = figure
    return "over %d s" % processor if wall is None else "%s (%s)" % (seconds(processor), seconds(wall))


def ratio(figure, other):
    if figure is None or other is None or figure[0] is None:
        return ""
    factor = other[1] / max(figure[1], 1e-6)
    text = "%.0f times faster" % factor if factor >= 1 else "+%.1f ms" % ((figure[1] - other[1]) * 1000)
    return "over " + text if other[0] is None else text


def main():
    out, counts = sys.argv[1], sys.argv[2:]
    for count in counts:
        trees = [{part: figures(os.path.join(out, "%s-%s-%s" % (count, tree, part), "figures"))
                  for part in ("control", "paste", "theme", "project")} for tree in ("collapsed", "expanded")]
        print("\n| %s layers, seconds | tree collapsed | | tree expanded | |\n|---|---|---|---|---|" % format(int(count), ","))
        for text, part, name, other in ROWS:
            cells = []
            for tree in trees:
                figure = tree[part].get(name)
                cells += [cell(figure), ratio(figure, tree[other[0]].get(other[1])) if other else ""]
            print("| %s | %s |" % (text, " | ".join(cells)))


if __name__ == "__main__":
    main()
