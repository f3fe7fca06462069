# SPDX-License-Identifier: Apache-2.0
"""Checks that the names of the tests read like a table of contents.

Usage: check_test_names.py TESTS

A test's name is a sentence, in lower camel case in Qt Test and in GoogleTest: at least two words, no
number for a name, no "test" in front, no underscores.
"""
import pathlib
import re
import sys

GOOGLE = re.compile(r"^TEST(?:_F|_P)?\(\s*\w+,\s*(\w+)\s*\)", re.MULTILINE)
SLOTS = re.compile(r"^private slots:\n(.*?)^(?:\w[\w ]*:\n|};)", re.MULTILINE | re.DOTALL)
SLOT = re.compile(r"^    void (\w+)\(\);", re.MULTILINE)
NO_TESTS = {"init", "cleanup", "initTestCase", "cleanupTestCase"}


def names_in(text):
    """The names of the tests of a source, with the line of each."""
    for found in GOOGLE.finditer(text):
        yield text.count("\n", 0, found.start(1)) + 1, found[1]
    for block in SLOTS.finditer(text):
        for found in SLOT.finditer(block[1]):
            if found[1] not in NO_TESTS and not found[1].endswith("_data"):
                yield text.count("\n", 0, block.start(1) + found.start(1)) + 1, found[1]


def fault_of(name):
    """What is wrong with a name, None when it reads like a sentence."""
    if "_" in name or not re.match(r"[a-z]", name):
        return "is not in lower camel case"
    if re.fullmatch(r"[a-z0-9]+", name):
        return "is one word"
    if re.match(r"test(s|ed|ing)?[A-Z0-9]", name) or re.search(r"\D\d$", name):
        return "says that it is a test, or which one, instead of what is so"
    return None


def main():
    checked, faults = 0, []
    root = pathlib.Path(sys.argv[1])
    for source in sorted(root.rglob("tst_*.cpp")):
        for line, name in names_in(source.read_text(encoding="utf-8")):
            checked += 1
            if fault := fault_of(name):
                faults.append(f"{source.relative_to(root)}:{line}: {name} {fault}")
    for fault in faults:
        print(fault)
    print(f"{checked} names, {len(faults)} faults")
    return 1 if faults or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
