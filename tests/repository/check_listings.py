# SPDX-License-Identifier: Apache-2.0
"""Checks that the listings of a guide are the files that they are said to be.

Usage: check_listings.py ROOT GUIDE

A listing is a fenced block under a line `<!-- FILE -->`, FILE relative to ROOT. A C++ or CMake block
without such a line is a fault: nothing would keep it true. Blocks of "sh" are commands.
"""
import pathlib
import re
import sys


def main():
    root, guide = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    faults, listings = [], 0
    blocks = re.finditer(r"^(?:<!-- (\S+) -->\n)?```(\w+)\n(.*?)^```$",
                         guide.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL)
    for block in blocks:
        name, language, text = block.groups()
        if language == "sh":
            continue
        listings += 1
        if name is None:
            faults.append(f"a listing of {language} does not name its file")
        elif not (root / name).is_file():
            faults.append(f"there is no file {name}")
        elif (root / name).read_text(encoding="utf-8") != text:
            faults.append(f"the listing differs from {name}")
    for fault in faults:
        print(fault)
    print(f"{listings} listings, {len(faults)} faults")
    return 1 if faults or listings == 0 else 0


sys.exit(main())
