#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: include_order.py: compares every include with the table of folders in docs/architecture.md.

A folder includes its own headers and those of the folders that its row names, which are all further up in the table.
"""
import os
import re
import subprocess
import sys

TABLE = "docs/architecture.md"
OUTSIDE = ("tests", "benchmarks", "examples", "cmake")
INCLUDE = re.compile(r'(?:#include ["<]|<header>)([^">]+)[">]|<header>([^<]+)</header>')


def read_table():
    """Maps each folder to the names of the folders that it may use, in the order of the table."""
    rows = {}
    for line in open(TABLE, encoding="utf-8"):
        cells = [cell.strip() for cell in line.strip().removeprefix("|").removesuffix("|").split("|")]
        name = re.fullmatch(r"`([\w/]+)/`", cells[0])
        if name and len(cells) == 4:
            rows[name[1]] = re.findall(r"`([\w/*]+)`", cells[3])
        elif line.startswith("Outside the table"):
            break
    return rows


def is_named(folder, name):
    """"store" means that folder alone, "store/*" its subfolders too."""
    return folder == name or name.endswith("/*") and (folder + "/").startswith(name[:-1])


def folder_of(path, rows):
    """The innermost folder of the table that contains the file."""
    inside = [folder for folder in rows if path.startswith(folder + "/")]
    return max(inside, key=len, default=None)


def headers_named(path):
    for match in INCLUDE.finditer(open(path, encoding="utf-8").read()):
        yield (match[1] or match[2]).removeprefix("orvane/")


def faults_of(path, rows):
    room, order = folder_of(path, rows), list(rows)
    if room is None:
        yield f"{path}: its folder is not in the table of {TABLE}"
        return
    for header in headers_named(path):
        other = folder_of(header, rows)
        if other is None or other == room or not os.path.exists(header):
            continue
        if order.index(other) > order.index(room):
            yield f"{path}: includes {header}, which stands further down"
        elif not any(is_named(other, name) for name in rows[room]):
            yield f"{path}: includes {header}; the table does not let {room}/ use {other}/"


def main():
    rows = read_table()
    listing = subprocess.run(["git", "ls-files", "*.h", "*.cpp", "*.ui"], capture_output=True, text=True, check=True)
    paths = [path for path in listing.stdout.split() if not path.startswith(OUTSIDE)]
    faults = [fault for path in paths for fault in faults_of(path, rows)]
    faults += [f"{TABLE}: there is no folder {room}/" for room in rows if not os.path.isdir(room)]
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
