#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Compares the sentences that explain the standard in other languages with the English ones.

    check_explanations.py TEMPLATES_FOLDER LANGUAGE...

TEMPLATES_FOLDER holds the English tables explanations-KIND.txt and a folder of tables of the same
names for each language. It is a flaw when a language has other names than English or has them in
another order, when a sentence is missing, has no full stop, is the English one or is translated in
two ways, and when a folder is there for a language that is not asked for.
"""

import pathlib
import sys


def names_of(table):
    lines = table.read_text(encoding="utf-8").splitlines()
    return [line.partition(" ")[0] for line in lines if line and not line.startswith("#")]


def flaws_of_table(english, translated):
    if not translated.exists():
        yield "is missing"
        return
    wanted, found = names_of(english), names_of(translated)
    for name in wanted:
        if name not in found:
            yield f'lacks "{name}"'
    for name in found:
        if name not in wanted:
            yield f'has "{name}", which English lacks'
    if sorted(wanted) == sorted(found) and wanted != found:
        first = next(name for name, other in zip(found, wanted) if name != other)
        yield f'has another order than English from "{first}" on'
    for number, line in enumerate(translated.read_text(encoding="utf-8").splitlines(), 1):
        if line != line.strip() or "  " in line:
            yield f"has needless blanks in line {number}"


def flaws_of_language(catalogue, folder, tables):
    """Sentences on what is wrong with the tables of a language. `catalogue` is the module that reads
    them for the build."""
    for english in tables:
        translated = folder / english.name
        for flaw in flaws_of_table(english, translated):
            yield f"{folder.name}/{english.name} {flaw}."
    try:
        wanted = catalogue.sentences([str(table) for table in tables])
        found = catalogue.sentences(catalogue.tables_in(str(folder), [str(t) for t in tables]))
    except catalogue.TableError as error:
        yield f"{error}."
        return
    for contradiction in catalogue.contradictions(wanted, found):
        yield f"{folder.name}: {contradiction}."
    for kind, names in found.items():
        for name, sentence in names.items():
            if sentence == wanted.get(kind, {}).get(name):
                yield f'{folder.name}: "{name}" of the {kind} is still English.'


def main(arguments):
    if len(arguments) < 1:
        print(__doc__, file=sys.stderr)
        return 2
    templates = pathlib.Path(arguments[0])
    languages = arguments[1:]
    sys.path.insert(0, str(templates))
    sys.dont_write_bytecode = True
    import generate_catalogue

    tables = sorted(templates.glob("explanations-*.txt"))
    flaws = [] if tables else [f"{templates} has no tables."]
    for folder in sorted(path for path in templates.iterdir() if path.is_dir()):
        if folder.name not in languages and any(folder.glob("explanations-*.txt")):
            flaws.append(f"{folder.name} is no language of the windows.")
    for language in languages:
        flaws += flaws_of_language(generate_catalogue, templates / language, tables)
    print(*flaws, sep="\n", end="\n" if flaws else "")
    print(f"{len(languages)} languages, {len(flaws)} flaws")
    return 1 if flaws else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
