# SPDX-License-Identifier: Apache-2.0
"""Checks that every row of the table of features names tests that exist.

Usage: check_features.py FEATURES TEST_BIN_DIR VERSION

A row has a feature, the place where one finds it, the version since which it is there (not above
VERSION), and its tests in backquotes: a test known to ctest, which stands for all that is in it, or one
test of a program, `program::function` for Qt Test and `program::Suite.Name` for GoogleTest. The programs
are asked for their tests, so a name that was only ever written down does not pass.
"""
import os
import pathlib
import re
import subprocess
import sys


def tests_of(executable):
    """Names of the tests in an executable, empty when it lists none."""
    google = subprocess.run([executable, "--gtest_list_tests"], capture_output=True, text=True)
    if google.returncode == 0 and re.search(r"^\S+\.$", google.stdout, re.MULTILINE):
        names, suite = set(), ""
        for line in google.stdout.splitlines():
            word = line.split("#")[0].rstrip()
            if not line.startswith(" ") and word.endswith("."):
                suite = word
            elif line.startswith("  ") and word:
                names.add(suite + word.strip())
        return names
    qt = subprocess.run([executable, "-functions"], capture_output=True, text=True)
    return {line.strip().removesuffix("()") for line in qt.stdout.splitlines() if "()" in line}


class TestsOfTheBuild:
    """What ctest and the test programs of a build say that they contain."""

    def __init__(self, directory):
        self.directory = directory
        build = directory.parent.parent
        listing = subprocess.run(
            ["ctest", "--test-dir", build, "-N"], capture_output=True, text=True)
        self.registered = set(re.findall(r"Test\s+#\d+: (\S+)", listing.stdout))
        self.programs = {}

    def fault(self, name):
        """What is wrong with the name of a test, None when it exists."""
        program, separator, test = name.partition("::")
        if not separator:
            return None if name in self.registered else f"ctest knows no test {name}"
        if program not in self.programs:
            path = self.directory / program
            self.programs[program] = tests_of(path) if path.is_file() else set()
        return None if test in self.programs[program] else f"there is no test {name}"


def version_of(text):
    return tuple(int(part) for part in text.split("."))


def faults_of(text, known, version):
    """The rows of a table and what is wrong with them, by line."""
    rows, faults, features = 0, [], {}
    for number, line in enumerate(text.splitlines(), 1):
        if not line.startswith("|") or re.match(r"\|\s*(-|Feature\s*\|)", line):
            continue
        rows += 1
        cells = [cell.strip() for cell in re.split(r"(?<!\\)\|", line)[1:-1]]
        names = re.findall(r"`([^`]+)`", cells[-1]) if cells else []
        if len(cells) != 4 or not all(cells) or not names:
            faults.append(f"line {number}: a row has feature, place, version and tests")
            continue
        feature, _, since, _ = cells
        if feature in features:
            faults.append(f"line {number}: the feature of line {features[feature]} again")
        features[feature] = number
        if not re.fullmatch(r"\d+(\.\d+)+", since):
            faults.append(f"line {number}: {since} is no version")
        elif version_of(since) > version_of(version):
            faults.append(f"line {number}: version {since} is above {version}")
        for fault in filter(None, map(known.fault, names)):
            faults.append(f"line {number}: {fault}")
    return rows, faults


def main():
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    # Listing its tests ends a program before it has tidied up, which is no leak of theirs.
    os.environ.setdefault("ASAN_OPTIONS", "detect_leaks=0")
    text = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    rows, faults = faults_of(text, TestsOfTheBuild(pathlib.Path(sys.argv[2])), sys.argv[3])
    for fault in faults:
        print(fault)
    print(f"{rows} rows, {len(faults)} faults")
    return 1 if faults or rows == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
