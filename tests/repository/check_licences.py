# SPDX-License-Identifier: Apache-2.0
"""Checks that every source and script names its licence in its first three lines.

Usage: check_licences.py ROOT
"""
import pathlib
import sys

SUFFIXES = {".h", ".cpp", ".py", ".sh", ".cmake"}
NAMES = {"CMakeLists.txt", "run", "test"}
TAG = "SPDX-License-Identifier: Apache-2.0"


def main():
    root = pathlib.Path(sys.argv[1])
    read, missing = 0, []
    for path in sorted(root.rglob("*")):
        relative = path.relative_to(root)
        if relative.parts[0] in {"build", ".git"} or not path.is_file():
            continue
        if path.suffix in SUFFIXES or path.name in NAMES:
            read += 1
            head = path.read_text(encoding="utf-8").splitlines()[:3]
            if not any(TAG in line for line in head):
                missing.append(str(relative))
    for name in missing:
        print(f"{name} has no licence line")
    print(f"{read} files read, {len(missing)} without a licence line")
    return 1 if missing or read == 0 else 0


sys.exit(main())
