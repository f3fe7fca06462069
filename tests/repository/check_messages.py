# SPDX-License-Identifier: Apache-2.0
"""Checks that the operator's page of messages has every message that the sources can show.

Usage: check_messages.py ROOT

A message is looked for by its fixed parts: the literals of its text, without what is put in at run
time. For the tools of the plug-in these are the texts of message boxes; for the sources in SENTENCES
every literal of three words or more.
"""
import pathlib
import re
import sys

SENTENCES = [
    "protocol/scl/*.cpp",
    "apps/driver/*.cpp",
    "apps/workbench/devicestore.cpp",
    "apps/workbench/embeddeddriver.cpp",
    "apps/workbench/extensionloader.cpp",
    "sdk/propertybrowser/numberguard.cpp",
    "sdk/propertybrowser/propertyeditors.cpp",
    "sdk/remoteclient/iec61850controllerinterface.cpp",
]
BOXES = (
    r"QMessageBox::(?:warning|information|critical|question)"
    r"|show(?:Warning|Failure|Information|FreeInformation)|askWarning|report\w*"
)
LITERAL = r'"((?:[^"\\\n]|\\.)*)"'


def literals(code):
    """Texts of the literals, adjacent ones joined."""
    for match in re.finditer(rf"{LITERAL}(?:\s*{LITERAL})*", code):
        yield "".join(re.findall(LITERAL, match.group(0)))


def arguments(code, name):
    """What stands between the parentheses of each call of a function."""
    for match in re.finditer(rf"(?:{name})\s*\(", code):
        depth, position = 1, match.end()
        while depth and position < len(code):
            literal = re.compile(LITERAL).match(code, position)
            if literal:
                position = literal.end()
                continue
            depth += {"(": 1, ")": -1}.get(code[position], 0)
            position += 1
        yield code[match.end():position]


def parts(text, least_words):
    """The fixed parts of a message that have enough words to be recognised by."""
    text = text.replace('\\"', '"').replace("\\n", " ")
    for part in re.split(r"%\d+", text):
        part = " ".join(part.split()).strip('" ')
        if len(re.findall(r"(?<!\S)[A-Za-z]{2,}", part)) >= least_words:
            yield part


def code_of(path):
    return re.sub(r"^\s*(//|#).*$", "", path.read_text(encoding="utf-8"), flags=re.MULTILINE)


def main():
    root = pathlib.Path(sys.argv[1])
    page = " ".join((root / "docs/messages.md").read_text(encoding="utf-8").split())
    found = {}
    for pattern in SENTENCES:
        paths = sorted(root.glob(pattern))
        if not paths:
            sys.exit(f"there is no source {pattern}")
        for path in paths:
            for literal in literals(code_of(path)):
                for part in parts(literal, 3):
                    found.setdefault(part, path.relative_to(root))
    in_boxes = 0
    for path in sorted((root / "extension").rglob("*.cpp")):
        code = code_of(path)
        texts = [text for call in arguments(code, BOXES) for text in literals(call)]
        texts += re.findall(r'tr\("Fail"\), tr\("([^"]+)"\)', code)
        texts += re.findall(r'error = tr\("([^"]+)"\)', code)
        for text in texts:
            for part in parts(text, 2):
                in_boxes += 1
                found.setdefault(part, path.relative_to(root))
    missing = sorted((str(path), part) for part, path in found.items() if part not in page)
    for path, part in missing:
        print(f'docs/messages.md lacks "{part}" of {path}')
    print(f"{len(found)} texts, {in_boxes} in message boxes, {len(missing)} missing")
    return 1 if missing or in_boxes == 0 else 0


sys.exit(main())
