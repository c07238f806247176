#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: host_guide.py: the code in docs/host_guide.md must be a piece of an example, so that it compiles."""
import re
import subprocess
import sys

GUIDE = "docs/host_guide.md"


def stripped(text):
    return "\n".join(line.strip() for line in text.strip().splitlines())


def main():
    listing = subprocess.run(["git", "ls-files", "examples/*.h", "examples/*.cpp"], capture_output=True, text=True,
                             check=True)
    examples = [stripped(open(path, encoding="utf-8").read()) for path in listing.stdout.split()]
    samples = re.findall(r"```cpp\n(.*?)```", open(GUIDE, encoding="utf-8").read(), re.DOTALL)
    strangers = [sample for sample in samples if not any(stripped(sample) in example for example in examples)]
    for sample in strangers:
        print(f"{GUIDE}: in no example:\n{sample}")
    return 1 if strangers or not samples else 0


if __name__ == "__main__":
    sys.exit(main())
