#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: lint.py BUILD_DIRECTORY SOURCE...: clang-tidy over the sources.

Most of its time goes into what a source includes, so sources of one kind are read together, those apart whose
names collide. A batch with a finding is halved until a single source remains, which is reported.
A source is skipped when nothing it reads has changed since it passed.
"""
import concurrent.futures
import hashlib
import json
import os
import shlex
import subprocess
import sys
import tempfile

BATCH = 16
SKIPPED = {"-c", "-MD", "-fpch-preprocess", "-Winvalid-pch"}
SKIPPED_WITH_VALUE = {"-o", "-MF", "-MT", "-include"}


def flags_of(entry):
    """What the compiler is told, without its outputs; headers made from forms are not ours to lint."""
    words = shlex.split(entry["command"])
    start = next(n for n, word in enumerate(words) if word.endswith(("c++", "g++"))) + 1
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
    header = "WidgetsPch.h" if "-DQT_WIDGETS_LIB" in flags else "CorePch.h"
    return (*flags, "-include", "cmake/" + header)


def read_files(build):
    """Source to the files of this project that it reads, from the build's own notes."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=True)
    read, current = {}, []
    for line in listing.stdout.splitlines():
        if not line.startswith(" "):
            current = []
            continue
        path = os.path.relpath(os.path.join(build, line.strip()))
        if not path.startswith(".."):
            if not current:
                read[path] = current
            current.append(path)
    return read


def key_of(source, flags, read):
    digest = hashlib.sha256(repr(flags).encode())
    for path in [".clang-tidy", source, *read.get(source, [])]:
        if os.path.exists(path):
            digest.update(open(path, "rb").read())
    return digest.hexdigest()


def run_tidy(sources, flags, *options):
    with tempfile.NamedTemporaryFile("w", suffix=".cpp") as together:
        if len(sources) == 1:
            main = sources[0]
        else:
            main = together.name
            for source in sources:
                path = os.path.abspath(source)
                together.write(f'#line 1 "{path}"\n' + open(source).read() + "\n")
            together.flush()
        return subprocess.run(
            ["clang-tidy", "--quiet", "--config-file=.clang-tidy", *options, main, "--", *flags, "-I."],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)


def tidy(sources, flags):
    """None when clean, else what clang-tidy said."""
    run = run_tidy(sources, flags)
    return None if run.returncode == 0 else run.stdout


def colliding(sources, flags):
    """Those that cannot be read after the ones before them, because a name is taken."""
    said = run_tidy(sources, (*flags, "-ferror-limit=0"), "--checks=-*,clang-diagnostic-*").stdout
    at_fault = {line.split(":")[0] for line in said.splitlines() if ": error: " in line}
    return [source for source in sources if os.path.abspath(source) in at_fault]


def readable_batches(sources, flags):
    while len(sources) > 1:
        apart = [source for source in colliding(sources, flags) if source != sources[0]]
        yield [source for source in sources if source not in apart]
        sources = apart
    if sources:
        yield sources


class Lint:
    def __init__(self, build):
        self.stamps = os.path.join(build, "lint")
        os.makedirs(self.stamps, exist_ok=True)
        self.findings = []
        self.keys = {}

    def stamp(self, source):
        return os.path.join(self.stamps, self.keys[source])

    def check_together(self, sources, flags):
        for batch in readable_batches(sources, flags):
            self.check(batch, flags)

    def check(self, sources, flags):
        said = tidy(sources, flags)
        if said is None:
            for source in sources:
                open(self.stamp(source), "w").close()
        elif len(sources) == 1:
            self.findings.append(said or f"{sources[0]}: clang-tidy fails without a word")
        else:
            half = len(sources) // 2
            self.check(sources[:half], flags)
            self.check(sources[half:], flags)


def batches(groups):
    """Neighbours, whose helpers are likely to share names, go to different batches."""
    for flags, sources in groups.items():
        count = -(-len(sources) // BATCH)
        for start in range(count):
            yield sources[start::count], flags


def main():
    build, asked = sys.argv[1], {os.path.relpath(path) for path in sys.argv[2:]}
    lint, read, groups = Lint(build), read_files(build), {}
    with open(os.path.join(build, "compile_commands.json")) as commands:
        entries = {os.path.relpath(entry["file"]): entry for entry in json.load(commands)}
    for source in sorted(asked & entries.keys()):
        flags = flags_of(entries[source])
        lint.keys[source] = key_of(source, flags, read)
        if not os.path.exists(lint.stamp(source)):
            groups.setdefault(flags, []).append(source)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for done in [pool.submit(lint.check_together, *batch) for batch in batches(groups)]:
            done.result()
    print("\n".join(lint.findings), end="")
    return 1 if lint.findings else 0


if __name__ == "__main__":
    sys.exit(main())
