# SPDX-License-Identifier: Apache-2.0
"""Checks that what the documents of the code name is there.

Usage: check_named.py ROOT

Read are docs/architecture.md and the README.md of every folder of sources. Of what stands there in
backquotes

- a name such as `ValueCurrency`, `IEDModel::setData` or `describe()` must be a word of a source, each
  part of it, or the name of a source without its ending;
- a path such as `driver/core` or `tests/repository/check_includes.py` must be there, below the root or
  the document's folder, with or without its ending; a part in capitals stands for any;
- another word, such as `wrong-invoke-id`, must be the name of a file or stand in a source.

Anything else, such as a command or a reference of IEC 61850, is passed over.
"""
import pathlib
import re
import sys

FOLDERS = ["sdk", "protocol", "standard", "driver", "simulator", "extension", "apps"]
SUFFIXES = {".h", ".cpp", ".py", ".ui", ".txt", ".in"}
SPAN = re.compile(r"`([^`\n]+)`")
NAME = re.compile(r"\*?[A-Za-z_]\w*(?:::\w+)*(?:\(\))?\*?$")
PATH = re.compile(r"[a-z][\w.-]*(?:/[\w.-]+)*/?$")


def sources(root):
    for folder in [*FOLDERS, "tests", "benchmarks", "fuzz", "docs"]:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in SUFFIXES and path.is_file():
                yield path


def documents(root):
    yield root / "docs/architecture.md"
    for folder in FOLDERS:
        yield from sorted((root / folder).rglob("README.md"))


def spans_of(document):
    """What stands in backquotes, without fenced blocks."""
    text = re.sub(r"^```.*?^```", "", document.read_text(encoding="utf-8"),
                  flags=re.MULTILINE | re.DOTALL)
    return SPAN.findall(text)


class Names:
    def __init__(self, root):
        self.root = root
        self.words = set()
        self.stems = set()
        self.files = set()
        self.text = ""
        for path in sources(root):
            text = path.read_text(encoding="utf-8", errors="replace")
            self.stems.add(path.stem)
            self.files.add(path.name)
            self.words.update(re.findall(r"\w+", text))
            self.text += text

    def has_name(self, name):
        plain = name.removesuffix("()")
        if "*" in plain:
            pattern = re.compile(plain.replace("*", r"\w*") + "$")
            return any(pattern.match(stem) for stem in self.stems)
        return plain in self.stems or all(part in self.words for part in plain.split("::"))

    def has_path(self, path, folder):
        path = re.sub(r"\b[A-Z]{2,}\b", "*", path)
        for place in (self.root, folder):
            if "*" in path:
                if any(place.glob(path)):
                    return True
                continue
            whole = place / path
            if whole.exists() or any(whole.parent.glob(whole.name + ".*")):
                return True
        return False


def main(root):
    names = Names(root)
    checked = 0
    faults = []
    for document in documents(root):
        for span in spans_of(document):
            if "/" in span and PATH.match(span):
                known = names.has_path(span, document.parent)
            elif NAME.match(span):
                known = names.has_name(span) or names.has_path(span, document.parent)
            elif PATH.match(span):
                known = (span in names.files or span in names.text
                         or names.has_path(span, document.parent))
            else:
                continue
            checked += 1
            if not known:
                faults.append(f"{document.relative_to(root)}: nothing is named {span}")
    for fault in faults:
        print(fault)
    print(f"{checked} names checked, {len(faults)} unknown")
    return 1 if faults or not checked else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
