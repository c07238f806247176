#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: lint.py BUILD_DIRECTORY SOURCE...: clang-tidy over the sources.

Most of the time is spent on included headers, so the sources that a build with CMAKE_UNITY_BUILD compiles together are
checked together. Precompiled headers are left out, so a source that does not include what it uses is more likely to be
found. A batch is skipped when nothing it reads has changed since it passed, in this or another copy of the sources:
what passed is noted in the user's cache.
"""
import bisect
import concurrent.futures
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
import time

SKIPPED = {"-c", "-fpch-preprocess", "-Winvalid-pch"}
SKIPPED_WITH_VALUE = {"-o", "-include"}

# The analyser stops examining a function after this many states (its default is 225,000): the few functions that reach
# the limit take four fifths of its time.
STATES = ["--extra-arg=" + word for word in ("-Xclang", "-analyzer-config", "-Xclang", "max-nodes=30000")]

DAYS_KEPT = 60  # of a note that nobody asked for


def flags_of(entry):
    """The compiler's arguments without its outputs; headers generated from forms are not linted."""
    words = shlex.split(entry["command"])
    start = next(n for n, word in enumerate(words) if word.endswith("++")) + 1
    flags, skip_next = [], False
    for word in words[start:]:
        if skip_next:
            skip_next = False
        elif word in SKIPPED_WITH_VALUE:
            skip_next = True
        elif word.startswith("-I") and word.endswith("_autogen/include"):
            flags += ["-isystem", word[2:]]
        elif word not in SKIPPED and word != entry["file"]:
            flags.append(word)
    return flags


def sources_of(entry):
    """The sources that one compilation reads, relative to the current folder."""
    if "/Unity/" not in entry["file"]:
        return [os.path.relpath(entry["file"])]
    text = open(entry["file"], encoding="utf-8").read()
    return [os.path.relpath(path) for path in re.findall(r'#include "(.*)"', text)]


def files_read(build):
    """Maps each object file to the files of this project that it depends on, from the build's records."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=True)
    read, current = {}, []
    for line in listing.stdout.splitlines():
        if line and not line.startswith(" "):
            current = read.setdefault(line.split(":")[0], [])
        elif line:
            path = os.path.relpath(os.path.join(build, line.strip()))
            if not path.startswith(".."):
                current.append(path)
    return read


def noted_passes():
    """The folder of what passed: an empty file each, named by what was read. Removes those of long ago."""
    cache = os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache")
    folder = os.path.join(cache, "orvane", "lint")
    os.makedirs(folder, exist_ok=True)
    for note in os.scandir(folder):
        if note.stat().st_mtime < time.time() - DAYS_KEPT * 24 * 3600:
            os.remove(note.path)
    return folder


def linter():
    """The version of clang-tidy and how it is called."""
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True).stdout
    return version + open(__file__, encoding="utf-8").read()


class Batch:
    def __init__(self, entry, asked, read, start, passes):
        self.sources = [source for source in sources_of(entry) if source in asked]
        self.flags = flags_of(entry)
        words = shlex.split(entry["command"])
        made = words[words.index("-o") + 1]
        digest = hashlib.sha256((start + repr(self.flags).replace(os.getcwd(), ".")).encode())
        for path in sorted({".clang-tidy", *self.sources, *read.get(made, [])}):
            if os.path.exists(path):
                digest.update(open(path, "rb").read())
        self.note = os.path.join(passes, digest.hexdigest())

    def is_due(self):
        if self.sources and os.path.exists(self.note):
            os.utime(self.note)
            return False
        return bool(self.sources)

    def check(self):
        """The findings of clang-tidy; empty when the batch is clean."""
        lines, starts = [], []
        for source in self.sources:
            starts.append(len(lines))
            lines += open(source, encoding="utf-8").read().split("\n")
        with tempfile.NamedTemporaryFile("w", suffix=".cpp", encoding="utf-8") as together:
            together.write("\n".join(lines))
            together.flush()
            folders = sorted({"-iquote" + os.path.dirname(source) for source in self.sources})
            run = subprocess.run(
                ["clang-tidy", "--quiet", "--config-file=.clang-tidy", *STATES, together.name, "--", *self.flags,
                 "-I.", *folders],
                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        if run.returncode == 0:
            open(self.note, "w").close()
            return ""

        def place(match):
            line = int(match[1]) - 1
            number = bisect.bisect(starts, line) - 1
            return f"{self.sources[number]}:{line - starts[number] + 1}:"

        return re.sub(re.escape(together.name) + r":(\d+):", place, run.stdout or run.stderr)


def main():
    build, asked = sys.argv[1], {os.path.relpath(path) for path in sys.argv[2:]}
    read, start, passes = files_read(build), linter(), noted_passes()
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as commands:
        batches = [Batch(entry, asked, read, start, passes) for entry in json.load(commands)]
    due = [batch for batch in batches if batch.is_due()]
    failed = False
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for number, (batch, found) in enumerate(zip(due, pool.map(Batch.check, due)), 1):
            print(f"[{number}/{len(due)}] {batch.sources[0]} and {len(batch.sources) - 1} more", flush=True)
            print(found, end="")
            failed = failed or found
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
