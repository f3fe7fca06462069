# SPDX-License-Identifier: Apache-2.0
"""Checks who includes whom against the graph of the house.

Usage: check_includes.py ROOT

A folder of two levels ("extension/model") is one module. Each module names the modules that it may
include from; a source that includes from another, or a module that is not listed, fails.
"""
import pathlib
import re
import sys

SDK = {"sdk/devicemodel", "sdk/remoteclient", "sdk/host", "sdk/tavrix", "sdk/propertybrowser"}
TOOL = {"extension/model", "extension/plugin", "sdk/devicemodel", "sdk/remoteclient", "sdk/host"}

ALLOWED = {
    "sdk/devicemodel": set(),
    "sdk/remoteclient": {"sdk/devicemodel"},
    "sdk/host": {"sdk/remoteclient"},
    "sdk/tavrix": set(),
    "sdk/propertybrowser": set(),
    "extension/model": {"sdk/devicemodel", "sdk/propertybrowser"},
    "extension/listener": {"sdk/devicemodel", "sdk/tavrix"},
    "extension/control": TOOL | {"sdk/propertybrowser"},
    "extension/dataset": TOOL,
    "extension/fileservice": TOOL,
    "extension/report": TOOL,
    "extension/settinggroup": TOOL | {"sdk/propertybrowser"},
    "extension/browser": TOOL | {
        "extension/control", "extension/dataset", "extension/listener", "extension/report",
        "extension/settinggroup"},
    "extension/plugin": TOOL | {
        "extension/browser", "extension/fileservice", "extension/report", "sdk/tavrix"},
    "protocol/wording": set(),
    "protocol/scl": {"protocol/wording"},
    "protocol/mms": {"protocol/wording"},
    "protocol/acsi": {"protocol/mms", "protocol/wording"},
    "apps/driver": SDK | {"protocol/scl", "protocol/acsi", "protocol/mms", "protocol/wording"},
    "apps/simulator": {"protocol/scl", "protocol/acsi", "protocol/mms", "protocol/wording"},
    "apps/iedctl": SDK | {"apps/driver"},
    "apps/workbench": SDK | {"apps/driver", "apps/simulator", "protocol/scl", "protocol/wording"},
}

INCLUDE = re.compile(r'^\s*#\s*include\s+[<"]([^>"]+)[>"]', re.MULTILINE)


def module_of(path):
    return "/".join(path.parts[:2])


def included_module(root, source, name):
    """The module that an include names, None for a file that is not the project's."""
    if (source.parent / name).is_file():
        return module_of((source.parent / name).resolve().relative_to(root))
    for top in ("sdk", "extension", "protocol", "apps"):
        if (root / top / name).is_file():
            return module_of((root / top / name).resolve().relative_to(root))
    return None


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    checked, faults = 0, []
    for top in ("sdk", "extension", "protocol", "apps"):
        for source in sorted((root / top).rglob("*")):
            if source.suffix not in {".h", ".cpp"}:
                continue
            relative = source.relative_to(root)
            module = module_of(relative)
            if module not in ALLOWED:
                faults.append(f"{relative}: {module} is not in the graph of modules")
                continue
            text = source.read_text(encoding="utf-8")
            for name in INCLUDE.findall(text):
                checked += 1
                target = included_module(root, source, name)
                if target and target != module and target not in ALLOWED[module]:
                    faults.append(f"{relative}: {module} may not include {name} of {target}")
                if top == "protocol" and re.match(r"Qt[A-Z]|Q[A-Z][a-z]", name):
                    faults.append(f"{relative}: protocol/ knows no Qt, but includes {name}")
    for fault in faults:
        print(fault)
    if checked == 0:
        print(f"no include found below {root}")
        return 1
    print(f"{checked} includes read, {len(faults)} not allowed")
    return 1 if faults else 0


sys.exit(main())
