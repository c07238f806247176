#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: api_filter.py FILE: the header or page as Doxygen gets it.

In our headers a comment holds for all declarations up to the next empty line, and "IX_Member" implements
IX::Member, which has the comment. Doxygen wants a comment for each declaration. In a page, blocks of the languages
"dot" and "msc" become diagrams.
"""
import re
import sys

IMPLEMENTATION = re.compile(r"\b(I[A-Z]\w*)_(\w+)\(")

SCOPE = re.compile(r"\s*((template .*|typedef )?(struct|class|namespace|enum)\b|(public|protected|private|Q_SIGNALS).*:|\{)")


def indent_of(line):
    return len(line) - len(line.lstrip())


def comment_for(line, block):
    """The comment of a declaration without one of its own."""
    implemented = IMPLEMENTATION.search(line)
    if implemented:
        return ["/// Implements {}::{}.".format(*implemented.groups())]
    if line.rstrip().endswith("override;"):
        return ["/// Reimplemented from Qt."]
    return block


def is_declaration(line):
    return bool(re.match(r"\s*[A-Za-z\[]", line)) and not re.match(r"\s*(public|protected|private|Q_\w+)\b", line)


def filtered(lines):
    block, fresh, previous = [], False, ""
    for line in lines:
        if line.lstrip().startswith("///") and not line.lstrip().startswith("///<"):
            block = block + [line.strip()] if fresh else [line.strip()]
            fresh = True
        elif not line.strip():
            block, fresh = [], False
        else:
            begins = re.search(r"([;}:{]|///<.*|//.*)$", previous.rstrip()) or not previous.strip()
            if begins and not fresh and "///<" not in line and is_declaration(line):
                yield from (" " * indent_of(line) + text for text in comment_for(line, block))
            if SCOPE.match(line):
                block = []
            fresh = False
        yield line
        previous = line


def with_diagrams(page):
    return re.sub(r"```(dot|msc)\n(?:msc \{\n(.*?)\}\n|(.*?))```",
                  lambda match: "@{0}\n{1}@end{0}".format(match[1], match[2] or match[3]), page, flags=re.DOTALL)


def main():
    text = open(sys.argv[1], encoding="utf-8").read()
    print(with_diagrams(text) if sys.argv[1].endswith(".md") else "\n".join(filtered(text.split("\n"))))


if __name__ == "__main__":
    main()
