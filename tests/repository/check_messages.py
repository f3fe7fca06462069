# SPDX-License-Identifier: Apache-2.0
"""Checks that the operator's page of messages has every message that the sources can show.

Usage: check_messages.py ROOT

A message is looked for by its fixed parts: the literals of its text, without what is put in at run
time. Messages are

- the texts of message boxes, of two words or more;
- sentences, that is what ends in a full stop, a question mark or an exclamation mark and has three
  words or more: everything that is translated in SENTENCES_OF, and every literal of the programs in
  LITERALS_OF, which are not translated;
- every literal of three words or more in ALL_OF, where parts of sentences are put together.

What a program's --help says is no message.
"""
import pathlib
import re
import sys

SENTENCES_OF = ["extension", "sdk", "driver", "apps"]
LITERALS_OF = ["apps/iedctl"]
ALL_OF = [
    "driver/**/*.cpp",
    "apps/workbench/devicestore.cpp",
    "apps/workbench/fileimport.cpp",
    "apps/workbench/extensionloader.cpp",
    "sdk/propertybrowser/numberguard.cpp",
    "sdk/propertybrowser/propertyeditors.cpp",
    "sdk/remoteclient/iec61850controllerinterface.cpp",
]
BOXES = r"QMessageBox::(?:warning|information|critical|question)|show\w+|askWarning|report\w*"
HELP = r"m_app|App|addOption|add_option|add_flag"
TRANSLATED = r"tr|translate|QT_TR_NOOP|QT_TRANSLATE_NOOP"
LITERAL = r'"((?:[^"\\\n]|\\.)*)"'


def literals(code):
    """Texts of the literals, adjacent ones joined."""
    for match in re.finditer(rf"{LITERAL}(?:\s*{LITERAL})*", code):
        yield "".join(re.findall(LITERAL, match.group(0)))


def calls(code, name):
    """Begin and end of what stands between the parentheses of each call of a function."""
    for match in re.finditer(rf"\b(?:{name})\s*(?:\w+\s*)?[({{]", code):
        depth, position = 1, match.end()
        while depth and position < len(code):
            literal = re.compile(LITERAL).match(code, position)
            if literal:
                position = literal.end()
                continue
            depth += {"(": 1, "{": 1, ")": -1, "}": -1}.get(code[position], 0)
            position += 1
        yield match.end(), position


def arguments(code, name):
    return [code[begin:end] for begin, end in calls(code, name)]


def without_help(code):
    for begin, end in reversed(list(calls(code, HELP))):
        code = code[:begin] + code[end:]
    return code


def parts(text, least_words):
    """The fixed parts of a message that have enough words to be recognised by."""
    text = text.replace('\\"', '"').replace("\\n", " ")
    for part in re.split(r"%\d+", text):
        part = " ".join(part.split()).strip('" ')
        if len(re.findall(r"(?<!\S)[A-Za-z]{2,}", part)) >= least_words:
            yield part


def is_sentence(text):
    if "--help" in text or not re.search(r"[.?!]$", text.rstrip()):
        return False
    return len(re.findall(r"[A-Za-z]{2,}", text)) >= 3


def sentence_parts(text):
    """A short sentence is looked for by what words it has."""
    return list(parts(text, 3)) or list(parts(text, 2))


def code_of(path):
    return re.sub(r"^\s*(//|#).*$", "", path.read_text(encoding="utf-8"), flags=re.MULTILINE)


def sources(root, top):
    return sorted(path for path in (root / top).rglob("*") if path.suffix in {".cpp", ".h"})


def collect(root):
    """Each part of a message with its source, and how many there are of each kind."""
    found, counts = {}, {"boxes": 0, "translated": 0, "literals": 0, "all": 0}

    def note(each, path, kind):
        for part in each:
            counts[kind] += 1
            found.setdefault(part, path.relative_to(root))

    for pattern in ALL_OF:
        paths = sorted(root.glob(pattern))
        if not paths:
            sys.exit(f"there is no source {pattern}")
        for path in paths:
            for text in literals(code_of(path)):
                note(parts(text, 3), path, "all")
    for top in SENTENCES_OF:
        for path in sources(root, top):
            for call in arguments(without_help(code_of(path)), TRANSLATED):
                for text in filter(is_sentence, literals(call)):
                    note(sentence_parts(text), path, "translated")
    for top in LITERALS_OF:
        for path in sources(root, top):
            for text in filter(is_sentence, literals(without_help(code_of(path)))):
                note(sentence_parts(text), path, "literals")
    for path in sources(root, "extension"):
        code = code_of(path)
        texts = [text for call in arguments(code, BOXES) for text in literals(call)]
        texts += re.findall(r'tr\("Fail"\), tr\("([^"]+)"\)', code)
        texts += re.findall(r'error = tr\("([^"]+)"\)', code)
        for text in texts:
            note(parts(text, 2), path, "boxes")
    return found, counts


def main():
    root = pathlib.Path(sys.argv[1])
    page = " ".join((root / "docs/messages.md").read_text(encoding="utf-8").split())
    found, counts = collect(root)
    missing = sorted((str(path), part) for part, path in found.items() if part not in page)
    for path, part in missing:
        print(f'docs/messages.md lacks "{part}" of {path}')
    print(f"{len(found)} texts, {counts}, {len(missing)} missing")
    return 1 if missing or min(counts.values()) == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
