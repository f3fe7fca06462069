# SPDX-License-Identifier: Apache-2.0
"""Checks that check_test_names.py finds names that are no sentences.

Usage: test_check_test_names.py
"""
import unittest

import check_test_names

QT = """class tst_Tree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void itGrows_data();
    void itGrows();

private:
    void water();
};

void tst_Tree::itGrows()
"""


class CheckTestNames(unittest.TestCase):
    def test_slots_are_tests_and_helpers_are_not(self):
        self.assertEqual([name for _, name in check_test_names.names_in(QT)], ["itGrows"])

    def test_google_tests_have_their_line(self):
        text = "TEST(Tree, itGrows)\n{\n}\n\nTEST_F(Bush,\n       ItFalls)\n"
        self.assertEqual(list(check_test_names.names_in(text)), [(1, "itGrows"), (6, "ItFalls")])

    def test_sentences_are_right(self):
        for name in ("itGrows", "aTestThatFailsTellsWhy", "theFileOf255Octets", "f5ListsAgain"):
            self.assertIsNone(check_test_names.fault_of(name), name)

    def test_what_is_no_sentence_is_told(self):
        for name in ("ItGrows", "it_grows", "grows", "testGrowing", "test1", "growing2"):
            self.assertIsNotNone(check_test_names.fault_of(name), name)


unittest.main()
