#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes the table of the sentences that are made below, where no language is known.

Usage: generate_sentencetable.py ROOT [--check]

The words stand in the sources, in say("...") and pattern("..."). The table repeats them for lupdate
and for whoever needs all of them. With --check nothing is written; fails when the table is not what
the sources say.
"""
import pathlib
import re
import sys

SOURCES = ["protocol/**/*.h", "protocol/**/*.cpp", "simulator/*.cpp", "driver/**/*.cpp"]
TABLE = "driver/text/sentencetable.cpp"
LITERAL = r'"(?:[^"\\\n]|\\.)*"'
WORDS = re.compile(
    rf"\b(?:say|pattern(?:<\d>)?|Pattern<\d> \w+ =)\s*\(?\s*({LITERAL}(?:\s*{LITERAL})*)")
HEAD = """// SPDX-License-Identifier: Apache-2.0
// clang-format off
// Long because it is one table, made by generate_sentencetable.py; a sentence is changed where it is
// made.
#include "sentences.h"

#include <QtCore/QCoreApplication>

namespace {

constexpr const char *table[] = {
"""
FOOT = """};

} // namespace

QStringList wording::allWords()
{
    QStringList result;
    for (const char *words : table)
        result.append(QString::fromUtf8(words));
    return result;
}
"""


def words_of(code):
    """The text of each sentence as it is written in a source, adjacent literals joined."""
    code = re.sub(r"^\s*//.*$", "", code, flags=re.MULTILINE)
    for match in WORDS.finditer(code):
        yield "".join(literal[1:-1] for literal in re.findall(LITERAL, match.group(1)))


def collect(root):
    found = set()
    for pattern in SOURCES:
        for path in root.glob(pattern):
            if path.name != pathlib.Path(TABLE).name:
                found.update(words_of(path.read_text(encoding="utf-8")))
    found.discard("")
    return sorted(found)


def main():
    root = pathlib.Path(sys.argv[1])
    words = collect(root)
    lines = "".join(f'    QT_TRANSLATE_NOOP("IedDriver", "{each}"),\n' for each in words)
    text = HEAD + lines + FOOT
    if "--check" not in sys.argv:
        (root / TABLE).write_text(text, encoding="utf-8")
        return 0
    if len(words) < 300:
        print(f"only {len(words)} sentences were found")
        return 1
    if (root / TABLE).read_text(encoding="utf-8") != text:
        print(f"{TABLE} is not what the sources say: run {pathlib.Path(__file__).name} {root}")
        return 1
    print(f"{len(words)} sentences")
    return 0


if __name__ == "__main__":
    sys.exit(main())
