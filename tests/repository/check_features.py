# SPDX-License-Identifier: Apache-2.0
"""Checks that every row of the requirements table names tests that exist.

Usage: check_requirements.py REQUIREMENTS TEST_BIN_DIR

The last cell of a row holds one or more test names in backquotes, separated by commas:
`executable::function` for Qt Test, `executable::Suite.Name` for GoogleTest, and the bare name of a
test known to ctest for one that is no executable of its own. The executables are asked for their
tests, so a name that was only ever written down does not pass.
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


def ctest_names(build):
    listing = subprocess.run(["ctest", "--test-dir", build, "-N"], capture_output=True, text=True)
    return set(re.findall(r"Test\s+#\d+: (\S+)", listing.stdout))


def main():
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    # Listing its tests ends a program before it has tidied up, which is no leak of theirs.
    os.environ.setdefault("ASAN_OPTIONS", "detect_leaks=0")
    document, directory = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    known, registered = {}, ctest_names(directory.parent.parent)
    rows, faults = 0, []
    for number, line in enumerate(document.read_text(encoding="utf-8").splitlines(), 1):
        if not line.startswith("|") or re.match(r"\|\s*(-|Behaviour)", line):
            continue
        rows += 1
        cells = [cell.strip() for cell in re.split(r"(?<!\\)\|", line)[1:-1]]
        names = re.findall(r"`([^`]+)`", cells[-1])
        if len(cells) != 2 or not cells[0] or not names:
            faults.append(f"line {number}: a row has a behaviour and at least one test")
            continue
        for name in names:
            executable, separator, function = name.partition("::")
            if not separator:
                if name not in registered:
                    faults.append(f"line {number}: ctest knows no test {name}")
                continue
            if executable not in known:
                path = directory / executable
                known[executable] = tests_of(path) if path.is_file() else set()
            if function not in known[executable]:
                faults.append(f"line {number}: there is no test {name}")
    for fault in faults:
        print(fault)
    print(f"{rows} rows, {len(faults)} faults")
    return 1 if faults or rows == 0 else 0


sys.exit(main())
