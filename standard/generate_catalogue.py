#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes a Qt catalogue of the sentences that explain the standard, from readable tables.

usage: generate_catalogue.py OUTPUT FOLDER TABLE...

Each TABLE is an English one named explanations-KIND.txt. FOLDER bears the name of a language and
holds the same sentences in it: tables of the same names with lines "NAME Sentence." (see
generate_templates.py). A sentence that the folder lacks is left out of the catalogue and so stays
English; check_explanations.py beside the tests says which these are. An English sentence has one
translation, wherever it occurs.
"""

import os
import sys
from xml.sax.saxutils import escape, quoteattr

from generate_templates import TableError, Template, read_table

CONTEXT = "SclExplanations"


def sentences(tables):
    """The sentences of existing tables: {KIND: {NAME: sentence}}."""
    template = Template()
    for table in tables:
        if os.path.exists(table):
            read_table(template, table)
    return template.explanations


def tables_in(folder, tables):
    return [os.path.join(folder, os.path.basename(table)) for table in tables]


def contradictions(english, translated):
    """Sentences on what is translated in two ways."""
    known = {}
    for kind, names in english.items():
        for name, sentence in names.items():
            translation = translated.get(kind, {}).get(name)
            first, place = known.setdefault(sentence, (translation, f"{kind}/{name}"))
            if translation and first and translation != first:
                yield (f'"{sentence}" is translated in two ways: as "{first}" for {place} and as '
                       f'"{translation}" for {kind}/{name}')


def messages(english, translated):
    """English sentences with their translations, each once."""
    found = {}
    for kind, names in english.items():
        for name, sentence in names.items():
            translation = translated.get(kind, {}).get(name)
            if translation:
                found.setdefault(sentence, translation)
    return found


def main(arguments):
    if len(arguments) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    output, folder, *tables = arguments
    try:
        english = sentences(tables)
        translated = sentences(tables_in(folder, tables))
    except (TableError, OSError, UnicodeDecodeError) as error:
        print(f"generate_catalogue.py: {error}", file=sys.stderr)
        return 1
    flaws = list(contradictions(english, translated))
    if flaws:
        print(*(f"generate_catalogue.py: {flaw}" for flaw in flaws), sep="\n", file=sys.stderr)
        return 1
    language = os.path.basename(os.path.normpath(folder))
    with open(output, "w", encoding="utf-8", newline="\n") as file:
        file.write('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
                   f'<TS version="2.1" language={quoteattr(language)} sourcelanguage="en">\n'
                   f"<context>\n<name>{CONTEXT}</name>\n")
        for sentence, translation in messages(english, translated).items():
            file.write(f"<message><source>{escape(sentence)}</source>"
                       f"<translation>{escape(translation)}</translation></message>\n")
        file.write("</context>\n</TS>\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
