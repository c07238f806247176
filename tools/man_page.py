#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: man_page.py ORVANE TEMPLATE PAGE

Writes the manual page: the template, with the commands and their options as the program's own --help tells them.
"""
import os
import re
import subprocess
import sys

# Arguments before --help, and the words after the program's name in the synopsis.
COMMANDS = [
    ([], "[MAP]"),
    (["--export"], "MAP --export FILE"),
    (["import"], "import DATA... --to MAP"),
    (["list"], "list MAP"),
    (["share"], "share PLACE"),
    (["check"], "check MAP"),
    (["copy"], "copy MAP NEW"),
]

SYNOPSES = [words for _, words in COMMANDS]


def help_of(orvane, arguments):
    environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="", QT_QPA_PLATFORM="offscreen")
    command = [orvane, *arguments, "--help"]
    return subprocess.run(command, env=environment, capture_output=True, text=True, check=True).stdout


def escaped(text):
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + text if text.startswith((".", "'")) else text


def sections(text):
    """The description, and the entries of "Options" and "Arguments" as pairs."""
    parts = {"": []}
    current = ""
    for line in text.splitlines()[1:]:  # without "Usage:"
        heading = re.fullmatch(r"(Options|Arguments):", line)
        if heading:
            current = heading.group(1)
            parts[current] = []
        elif current == "":
            parts[""].append(line)
        elif found := re.fullmatch(r"  (\S.*?)(?:  +(\S.*))?", line):
            parts[current].append([re.sub("[<>]", "", found.group(1)), found.group(2) or ""])
        elif line.strip():
            parts[current][-1][1] += " " + line.strip()
    return "\n".join(parts[""]).strip(), parts.get("Options", []), parts.get("Arguments", [])


def synopsis(words, options):
    shown = [name for name, _ in options if not name.startswith("-h") and name.split()[0] not in words.split()]
    lines = [".B orvane " + escaped(words)]
    lines += [f'.RB [ "{escaped(long_name(name))}" ]' for name in shown]
    return "\n".join(lines)


def long_name(name):
    return re.sub(r"^-\w, ", "", name)  # "-v, --version"


def entry(name, text):
    return f".TP\n.B {escaped(name)}\n{escaped(text)}"


def described(words, help_text):
    description, options, arguments = sections(help_text)
    named = [pair for pair in arguments if pair[1]]
    lines = [f".SS orvane {escaped(words)}"]
    if words != SYNOPSES[0]:  # that of the program itself is the template
        lines += ["\n.PP\n".join(map(escaped, description.splitlines()))]
    lines += [entry(*pair) for pair in named]
    lines += [entry(*pair) for pair in options if not pair[0].startswith("-h")]
    return "\n".join(lines)


def main(orvane, template, page):
    texts = [(words, help_of(orvane, arguments)) for arguments, words in COMMANDS]
    with open(template, encoding="utf-8") as file:
        content = file.read()
    parts = [synopsis(words, sections(text)[1]) for words, text in texts]
    content = content.replace("@SYNOPSIS@", "\n.br\n".join(parts))
    content = content.replace("@COMMANDS@", "\n".join(described(words, text) for words, text in texts))
    with open(page, "w", encoding="utf-8") as file:
        file.write(content)


if __name__ == "__main__":
    main(*sys.argv[1:4])
