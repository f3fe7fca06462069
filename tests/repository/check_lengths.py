# SPDX-License-Identifier: Apache-2.0
"""Checks that no product source is long without a reason.

Usage: check_lengths.py ROOT

A source (.h, .cpp, .py) of more than 600 lines usually holds two subjects and is cut along them. One
that stays longer says why in one of its first ten lines, in a comment that begins so:

    // Long because it is one table, made by a generator.
    # Long because ...
"""
import pathlib
import re
import sys

FOLDERS = ["sdk", "protocol", "standard", "driver", "simulator", "extension", "apps"]
SUFFIXES = {".h", ".cpp", ".py"}
MOST_LINES = 600
FIRST_LINES = 10
REASON = re.compile(r"^\s*(?://|#)\s*Long because\s+\w+")


def flaw_of(path):
    """What is wrong with a source, or nothing."""
    lines = path.read_text(encoding="utf-8").splitlines()
    if len(lines) <= MOST_LINES or any(REASON.match(line) for line in lines[:FIRST_LINES]):
        return None
    return f"{len(lines)} lines without a reason (\"Long because ...\" in its first lines)"


def sources(root):
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in SUFFIXES and path.is_file():
                yield path


def main(root):
    count = 0
    flaws = 0
    for path in sources(root):
        count += 1
        flaw = flaw_of(path)
        if flaw:
            flaws += 1
            print(f"{path.relative_to(root)}: {flaw}")
    if not count:
        print("No source was found.")
        return 1
    print(f"{count} sources read, {flaws} too long")
    return 1 if flaws else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
