#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Compares translation catalogues with the sources they translate.

    check_catalogues.py LUPDATE FOLDER_OF_CATALOGUES SOURCE_FOLDER...

Has lupdate renew a copy of each catalogue from the sources. A text that only the sources or only
the catalogue has is a flaw, and so is a translation that is missing, unfinished, lacks a
placeholder or begins or ends in other blanks than its source. So is what lupdate complains of: it
may have missed a text there (it does not know the digit separators of C++, for one).
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

PLACEHOLDER = re.compile(r"%L?\d{1,2}|%L?n")


def messages(catalogue):
    """Message elements by context, source text and comment."""
    found = {}
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment"))
            found[key] = message
    return found


def translations(message):
    element = message.find("translation")
    forms = element.findall("numerusform")
    return [form.text or "" for form in forms] if forms else [element.text or ""]


def blanks(text):
    if not text.strip():
        return text, ""
    return text[: len(text) - len(text.lstrip())], text[len(text.rstrip()):]


def flaws_of_message(source, message):
    state = message.find("translation").get("type")
    if state:
        yield f"is {state}"
        return
    for translation in translations(message):
        if source and not translation:
            yield "is not translated"
        elif sorted(PLACEHOLDER.findall(source)) != sorted(PLACEHOLDER.findall(translation)):
            yield f"has other placeholders in \"{translation}\""
        elif blanks(source) != blanks(translation):
            yield f"begins or ends in other blanks in \"{translation}\""


def flaws_of(catalogue, renewed):
    """Sentences on what is wrong with a catalogue, given the one that lupdate made from it."""
    present, wanted = messages(catalogue), messages(renewed)
    for context, source, _ in wanted.keys() - present.keys():
        yield f"{context}: \"{source}\" is in the sources and not in the catalogue."
    for context, source, _ in present.keys() - wanted.keys():
        yield f"{context}: \"{source}\" is in the catalogue and no longer in the sources."
    for (context, source, _), message in present.items():
        for flaw in flaws_of_message(source, message):
            yield f"{context}: \"{source}\" {flaw}."


def renew(lupdate, catalogue, folder, sources):
    renewed = pathlib.Path(folder) / catalogue.name
    renewed.write_bytes(catalogue.read_bytes())
    command = [lupdate, "-silent", "-no-obsolete", "-locations", "none"]
    command += ["-source-language", "en_US", *sources, "-ts", renewed]
    outcome = subprocess.run(command, check=True, stderr=subprocess.PIPE, text=True)
    return renewed, outcome.stderr.splitlines()


def main(arguments):
    if len(arguments) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    lupdate, folder, *sources = arguments
    catalogues = sorted(pathlib.Path(folder).glob("*.ts"))
    if not catalogues:
        print(f"There is no catalogue in {folder}.", file=sys.stderr)
        return 1
    flawed = False
    with tempfile.TemporaryDirectory() as copies:
        for catalogue in catalogues:
            renewed, complaints = renew(lupdate, catalogue, copies, sources)
            for flaw in complaints + sorted(flaws_of(catalogue, renewed)):
                flawed = True
                print(f"{catalogue.name}: {flaw}")
            print(f"{catalogue.name}: {len(messages(renewed))} texts of the sources compared")
    return 1 if flawed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
