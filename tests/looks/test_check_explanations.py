#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The comparison of explanations on made-up ones: test_check_explanations.py TEMPLATES_FOLDER"""

import pathlib
import sys
import tempfile
import unittest

import check_explanations

HEADER = "# A comment.\n"
CLASSES = "XCBR Breaker.\nXSWI Switch.\n"
OBJECTS = "Op Trips.\nPos Switch.\n"


class CheckExplanations(unittest.TestCase):
    def flaws(self, classes, objects="Op Auslösung.\nPos Schalter.\n"):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            english = {"explanations-classes.txt": CLASSES, "explanations-data-objects.txt": OBJECTS}
            german = dict(zip(english, (classes, objects)))
            (folder / "de").mkdir()
            for place, tables in ((folder, english), (folder / "de", german)):
                for table, text in tables.items():
                    if text is not None:
                        (place / table).write_text(HEADER + text, encoding="utf-8")
            tables = [folder / table for table in english]
            return list(check_explanations.flaws_of_language(generate_catalogue, folder / "de", tables))

    def test_a_complete_language_has_no_flaw(self):
        self.assertEqual(self.flaws("XCBR Leistungsschalter.\nXSWI Schalter.\n"), [])

    def test_a_chinese_full_stop_is_one(self):
        self.assertEqual(self.flaws("XCBR 断路器。\nXSWI 开关。\n", "Op 跳闸。\nPos 开关。\n"), [])

    def test_a_missing_sentence_is_found(self):
        self.assertEqual(self.flaws("XCBR Leistungsschalter.\n"),
                         ['de/explanations-classes.txt lacks "XSWI".'])

    def test_a_missing_table_is_found(self):
        self.assertIn("de/explanations-classes.txt is missing.", self.flaws(None))

    def test_a_name_that_english_lacks_is_found(self):
        self.assertEqual(self.flaws("XCBR Leistungsschalter.\nXSWI Schalter.\nXXXX Ding.\n"),
                         ['de/explanations-classes.txt has "XXXX", which English lacks.'])

    def test_another_order_is_found(self):
        self.assertEqual(self.flaws("XSWI Schalter.\nXCBR Leistungsschalter.\n"),
                         ['de/explanations-classes.txt has another order than English from '
                          '"XSWI" on.'])

    def test_a_sentence_that_is_still_english_is_found(self):
        self.assertEqual(self.flaws("XCBR Breaker.\nXSWI Schalter.\n"),
                         ['de: "XCBR" of the classes is still English.'])

    def test_two_translations_of_one_sentence_are_found(self):
        found = self.flaws("XCBR Leistungsschalter.\nXSWI Trenner.\n")
        self.assertEqual(len(found), 1)
        self.assertIn('"Switch." is translated in two ways', found[0])

    def test_a_sentence_without_a_full_stop_is_found(self):
        found = self.flaws("XCBR Leistungsschalter\nXSWI Schalter.\n")
        self.assertEqual(len(found), 1)
        self.assertIn('"XCBR" has no full stop', found[0])

    def test_needless_blanks_are_found(self):
        self.assertEqual(self.flaws("XCBR Leistungs  schalter.\nXSWI Schalter. \n"),
                         ["de/explanations-classes.txt has needless blanks in line 2.",
                          "de/explanations-classes.txt has needless blanks in line 3."])


if __name__ == "__main__":
    sys.path.insert(0, sys.argv.pop())
    import generate_catalogue

    unittest.main()
