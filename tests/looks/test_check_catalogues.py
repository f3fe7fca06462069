#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The comparison of catalogues on made-up ones: test_check_catalogues.py LUPDATE"""

import pathlib
import sys
import tempfile
import unittest

import check_catalogues

LUPDATE = ""

SOURCE = """#include <QObject>
class Dialog : public QObject
{
    Q_OBJECT
    QString file() { return tr("Delete %1 in %2 "); }
    QString close() { return tr("Close"); }
};
"""


def message(source, translation, attributes=""):
    return (f"<message><source>{source}</source>"
            f"<translation{attributes}>{translation}</translation></message>")


DELETE = message("Delete %1 in %2 ", "%1 in %2 löschen ")
CLOSE = message("Close", "Schließen")


class CheckCatalogues(unittest.TestCase):
    def flaws(self, *texts, source=SOURCE):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "sources").mkdir()
            (folder / "sources" / "dialog.cpp").write_text(source, encoding="utf-8")
            (folder / "copies").mkdir()
            catalogue = folder / "sample_de.ts"
            catalogue.write_text(
                '<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS>'
                '<TS version="2.1" language="de_DE" sourcelanguage="en_US"><context>'
                f'<name>Dialog</name>{"".join(texts)}</context></TS>', encoding="utf-8")
            renewed, complaints = check_catalogues.renew(
                LUPDATE, catalogue, folder / "copies", [str(folder / "sources")])
            return complaints + list(check_catalogues.flaws_of(catalogue, renewed))

    def test_a_complete_catalogue_has_no_flaw(self):
        self.assertEqual(self.flaws(DELETE, CLOSE), [])

    def test_a_text_missing_from_the_catalogue_is_found(self):
        self.assertEqual(self.flaws(DELETE),
                         ['Dialog: "Close" is in the sources and not in the catalogue.'])

    def test_a_text_that_the_sources_have_no_longer_is_found(self):
        self.assertEqual(self.flaws(DELETE, CLOSE, message("Open", "Öffnen")),
                         ['Dialog: "Open" is in the catalogue and no longer in the sources.'])

    def test_an_unfinished_translation_is_found(self):
        unfinished = message("Close", "Schließen", ' type="unfinished"')
        self.assertEqual(self.flaws(DELETE, unfinished), ['Dialog: "Close" is unfinished.'])

    def test_an_empty_translation_is_found(self):
        self.assertEqual(self.flaws(DELETE, message("Close", "")),
                         ['Dialog: "Close" is not translated.'])

    def test_a_lost_placeholder_is_found(self):
        found = self.flaws(message("Delete %1 in %2 ", "%1 löschen "), CLOSE)
        self.assertEqual(
            found, ['Dialog: "Delete %1 in %2 " has other placeholders in "%1 löschen ".'])

    def test_a_lost_blank_is_found(self):
        found = self.flaws(message("Delete %1 in %2 ", "%1 in %2 löschen"), CLOSE)
        self.assertEqual(found, ['Dialog: "Delete %1 in %2 " begins or ends in other blanks in '
                                 '"%1 in %2 löschen".'])

    def test_a_source_that_lupdate_cannot_read_is_a_flaw(self):
        found = self.flaws(DELETE, CLOSE, source=SOURCE + "const int many = 10'000;\n")
        self.assertEqual(len(found), 1)
        self.assertIn("Unterminated C++ character", found[0])


if __name__ == "__main__":
    LUPDATE = sys.argv.pop()
    unittest.main()
