# SPDX-License-Identifier: Apache-2.0
"""Checks that check_features.py finds rows that are not so.

Usage: test_check_features.py
"""
import unittest

import check_features

HEADER = "| Feature | Where | Since | Proved by |\n|---|---|---|---|\n"


class Known:
    """A build that has one test program with one test."""

    def fault(self, name):
        return None if name in {"tst_tree", "tst_tree::itGrows"} else f"no {name}"


class CheckFeatures(unittest.TestCase):
    def faults(self, *rows):
        count, faults = check_features.faults_of(HEADER + "\n".join(rows), Known(), "1.2.0")
        self.assertEqual(count, len(rows))
        return faults

    def test_a_row_with_tests_that_exist_is_right(self):
        self.assertEqual(self.faults("| Trees | *File* | 1.2 | `tst_tree`, `tst_tree::itGrows` |"), [])

    def test_each_test_that_does_not_exist_is_told(self):
        faults = self.faults("| Trees | *File* | 1.0 | `tst_tree::itFalls`, `tst_bush`, `tst_tree` |")
        self.assertEqual(faults, ["line 3: no tst_tree::itFalls", "line 3: no tst_bush"])

    def test_a_row_without_place_version_or_tests_is_told(self):
        for row in ("| Trees |  | 1.0 | `tst_tree` |", "| Trees | *File* | `tst_tree` |",
                    "| Trees | *File* | 1.0 | tst_tree |"):
            self.assertEqual(
                self.faults(row), ["line 3: a row has feature, place, version and tests"])

    def test_a_version_that_is_not_there_yet_is_told(self):
        self.assertEqual(self.faults("| Trees | *File* | 1.10 | `tst_tree` |"),
                         ["line 3: version 1.10 is above 1.2.0"])
        self.assertEqual(self.faults("| Trees | *File* | soon | `tst_tree` |"),
                         ["line 3: soon is no version"])

    def test_a_feature_that_stands_twice_is_told(self):
        row = "| Trees | *File* | 1.0 | `tst_tree` |"
        self.assertEqual(self.faults(row, row), ["line 4: the feature of line 3 again"])


unittest.main()
