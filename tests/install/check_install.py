# SPDX-License-Identifier: Apache-2.0
"""Installs the project into a temporary folder, moves the folder, and follows the host integrator's
guide against it there: what the guide lists is put into files, and its commands are run.

Usage: check_install.py BUILD_DIR GUIDE CMAKE [CMAKE_ARGUMENT...]

The arguments at the end are given to CMake for the example: build type, compiler, flags.
"""
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

WANTED = ["IED Browser", "IED File Service", "opened: IED Browser"]


def run(*command):
    """Output of a command, of both channels; ends the check when the command fails."""
    done = subprocess.run([str(word) for word in command], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, timeout=300)
    if done.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


def unresolved_includes(headers):
    """Includes of installed headers that lead to files which were not installed."""
    folders = {path.name for path in headers.iterdir()}
    for header in sorted(headers.rglob("*.h")):
        for open_mark, name in re.findall(r'^#include ([<"])([^>"]+)',
                                          header.read_text(encoding="utf-8"), re.MULTILINE):
            own = open_mark == '"' or name.split("/")[0] in folders
            base = header.parent if open_mark == '"' else headers
            if own and not (base / name).is_file():
                yield f"{header.relative_to(headers)} includes {name}, which is not installed"


def write_example(guide, folder):
    """The files of the example as the guide lists them."""
    folder.mkdir()
    for name, text in re.findall(r"^<!-- tests/install/(\S+) -->\n```\w+\n(.*?)^```$", guide,
                                 re.MULTILINE | re.DOTALL):
        (folder / name).write_text(text, encoding="utf-8")


def commands_of(guide):
    """The lines of the guide's commands, as lists of words."""
    listing = re.search(r"^```sh\n(.*?)^```$", guide, re.MULTILINE | re.DOTALL)
    return [shlex.split(line) for line in listing.group(1).splitlines()]


def main():
    build, guide_file, cmake = sys.argv[1:4]
    guide = pathlib.Path(guide_file).read_text(encoding="utf-8")
    environment = {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
    os.environ.update(environment)
    os.environ.pop("LD_LIBRARY_PATH", None)
    with tempfile.TemporaryDirectory() as folder:
        first, tree = (pathlib.Path(folder) / name for name in ("first", "tree"))
        run(cmake, "--install", build, "--prefix", first)
        first.rename(tree)

        faults = list(unresolved_includes(tree / "include/iec61850ext"))
        write_example(guide, pathlib.Path(folder) / "examplehost")
        os.chdir(folder)
        configure, make, start = commands_of(guide)
        run(cmake, *(word.replace("=DIR", f"={tree}") for word in configure[1:]), *sys.argv[4:])
        run(cmake, *make[1:])
        said = run(*start, "--try").splitlines()
        faults += [f"the example host did not print: {line}" for line in WANTED if line not in said]
        version = run(tree / "bin/iec61850ext-workbench", "--version")
        if not re.fullmatch(r"workbench \d+\.\d+\.\d+\s*", version):
            faults.append(f"the installed workbench says: {version}")
        for tool in ("iedctl", "iedsim"):
            version = run(tree / "bin" / tool, "--version")
            if not re.fullmatch(tool + r" \d+\.\d+\.\d+\s*", version):
                faults.append(f"the installed {tool} says: {version}")
            if not (tree / f"share/man/man1/{tool}.1").read_text().startswith(".TH"):
                faults.append(f"the manual page of {tool} is none")
    for fault in faults:
        print(fault)
    print(f"{len(faults)} faults")
    return 1 if faults else 0


sys.exit(main())
