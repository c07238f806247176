#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: abi.py PLUGIN FOLDER [RELEASE]

Compares the contract with that of the last release (the commit that changed VERSION last): interfaces, values and
functions that were released must be as they were, as long as the major version is the same. docs/promises.md tells why,
and must have an upgrade note for each minor version.
PLUGIN: the component of this tree. FOLDER: for what is made here. RELEASE: another commit to compare with.
"""
import glob
import os
import re
import shlex
import shutil
import subprocess
import sys

CONTRACT = "OrvaneShellLib"
NOTES = "docs/promises.md"
# Conveniences that a host or a component compiles for itself; they do not cross the border.
PRIVATE_TYPES = re.compile(r"Forwarding\w+|Transaction|LayerColumn|InSchemes")
TYPE = re.compile(r"^(?:(?:class|struct|enum class) (?:Q_DECL_EXPORT )?(\w+)(?: .*)?|using (\w+Function)(?: .*)?)$", re.M)
SYMBOL = re.compile(r'char \w+Symbol\[\] = "(\w+)"')
VERSION = re.compile(r"CurrentContract\{(\d+), (\d+)\}")
# GCC leaves out classes that are only named, unless it is asked for all.
COMPILER = ["g++", "-std=c++20", "-g", "-fPIC", "-shared", "-fvisibility=hidden", "-fno-eliminate-unused-debug-types",
            "-femit-class-debug-always"]


class Failure(Exception):
    pass


def run(*command, **options):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)
    if done.returncode != 0:
        raise Failure(f"{' '.join(command[:3])}: {done.stderr.decode()}")
    return done.stdout


def has_history():
    return run("git", "rev-parse", "--is-shallow-repository").strip() == b"false"


def last_release():
    return run("git", "log", "-1", "--format=%H", "--", "VERSION").decode().strip()


class Contract:
    """The headers of one version in a folder, and a library that uses each type of theirs."""

    def __init__(self, folder):
        self.folder = folder
        self.headers = sorted(glob.glob(f"{folder}/{CONTRACT}/*.h"))
        text = "\n".join(open(header, encoding="utf-8").read() for header in self.headers)
        names = {first or second for first, second in TYPE.findall(text) if not (first + second).endswith(";")}
        self.types = sorted(name for name in names if not PRIVATE_TYPES.fullmatch(name))
        self.symbols = SYMBOL.findall(text)
        self.version = tuple(int(part) for part in VERSION.search(text).groups())
        self.library = f"{folder}/contract.so"

    def write_source(self):
        lines = [f"#include <{CONTRACT}/{os.path.basename(header)}>" for header in self.headers
                 if not header.endswith("LinkedComponent.h")]
        lines.append("using namespace Orvane;")
        lines += [f'extern "C" __attribute__((visibility("default"))) void Use_{name}({name}*) {{}}'
                  for name in self.types]
        with open(f"{self.folder}/contract.cpp", "w", encoding="utf-8") as file:
            file.write("\n".join(lines) + "\n")

    def build(self):
        self.write_source()
        qt = shlex.split(run("pkg-config", "--cflags", "Qt6Widgets").decode())
        run(*COMPILER, f"-I{self.folder}", *qt, f"{self.folder}/contract.cpp", "-o", self.library)


def fresh(folder):
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    os.symlink(".", f"{folder}/orvane")
    return folder


def released_contract(folder, commit):
    archive = run("git", "archive", commit, CONTRACT)
    run("tar", "x", "-C", fresh(folder), input=archive)
    return Contract(folder)


def current_contract(folder):
    shutil.copytree(CONTRACT, f"{fresh(folder)}/{CONTRACT}")
    return Contract(folder)


def contract_with_moved_member(folder):
    """The contract of the tree with the first two virtual members of IStyleEditorClient exchanged."""
    shutil.copytree(CONTRACT, f"{fresh(folder)}/{CONTRACT}")
    path = f"{folder}/{CONTRACT}/IStyleEditorClient.h"
    text = open(path, encoding="utf-8").read()
    first, second = re.findall(r"    virtual [^;~]*IStyleEditorClient_[^;]*= 0;\n", text)[:2]
    with open(path, "w", encoding="utf-8") as file:
        file.write(text.replace(second, "").replace(first, second + first))
    return Contract(folder)


def differences(old, new):
    """What abidiff says about types of the old contract; empty if they are the same."""
    done = subprocess.run(
        ["abidiff", "--harmless", "--no-added-syms", "--suppressions", "tools/abi.suppr", old.library, new.library],
        capture_output=True, text=True)
    if done.returncode & 3:
        raise Failure(f"abidiff: {done.stdout}{done.stderr}")
    return done.stdout if done.returncode else ""


def missing_functions(contracts, plugin):
    exported = {line.split()[-1] for line in run("nm", "-D", "--defined-only", plugin).decode().splitlines()}
    wanted = {symbol for contract in contracts for symbol in contract.symbols}
    return sorted(wanted - exported)


def complaints(old, new, plugin):
    for contract in (old, new):
        contract.build()
    if found := differences(old, new):
        yield f"released types have changed; {new.folder}/differences.txt has all:\n" + found[:4000]
        with open(f"{new.folder}/differences.txt", "w", encoding="utf-8") as file:
            file.write(found)
    if missing := missing_functions((old, new), plugin):
        yield f"the component does not export {', '.join(missing)}"
    if (added := sorted(set(new.types) - set(old.types))) and new.version <= old.version:
        yield f"{', '.join(added)}: what is new needs a higher minor version of the contract"
    notes = open(NOTES, encoding="utf-8").read()
    for minor in range(1, new.version[1] + 1):
        if f"### Contract {new.version[0]}.{minor - 1} to {new.version[0]}.{minor} " not in notes:
            yield f"{NOTES} has no upgrade note for contract {new.version[0]}.{minor}"


def check(plugin, folder, release=None):
    if not release and not has_history():
        print("NOT COMPARED: this clone has no history; get it with: git fetch --unshallow")
        return []
    commit = release or last_release()
    old = released_contract(f"{folder}/released", commit)
    new = current_contract(f"{folder}/current")
    print("contract {}.{} of {}, contract {}.{} of this tree".format(*old.version, commit[:10], *new.version))
    if new.version[0] != old.version[0]:
        print("another major version: nothing has to be the same")
        return []
    found = list(complaints(old, new, plugin))
    moved = contract_with_moved_member(f"{folder}/moved")
    moved.build()
    if not differences(new, moved):
        found.append("abidiff does not see a member that was moved on purpose")
    print(f"{len(old.types)} released types, {len(new.types) - len(old.types)} more since")
    return found


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    try:
        faults = check(*sys.argv[1:])
    except Failure as failure:
        faults = [str(failure)]
    for fault in faults:
        print(f"abi: {fault}", file=sys.stderr)
    sys.exit(1 if faults else 0)
