# SPDX-License-Identifier: Apache-2.0
"""Checks that check_lengths.py finds long sources, and takes the reason of one that has it.

Usage: test_check_lengths.py
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).with_name("check_lengths.py")


def outcome(sources):
    """Exit status and output of the check for sources, each a path with its lines."""
    with tempfile.TemporaryDirectory() as folder:
        for name, lines in sources.items():
            path = pathlib.Path(folder) / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text("\n".join(lines) + "\n", encoding="utf-8")
        run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
        return run.returncode, run.stdout


class CheckLengths(unittest.TestCase):
    def test_what_is_short_needs_no_reason(self):
        self.assertEqual(outcome({"driver/a.cpp": ["x"] * 600})[0], 0)

    def test_a_long_source_is_told_with_its_lines(self):
        status, output = outcome({"driver/core/a.cpp": ["x"] * 601, "sdk/b.h": ["x"]})
        self.assertEqual(status, 1)
        self.assertIn("driver/core/a.cpp: 601 lines", output)
        self.assertNotIn("b.h", output)

    def test_a_reason_in_the_first_lines_is_taken(self):
        for name, line in (("driver/a.cpp", "// Long because it is one table."),
                           ("driver/a.py", "# Long because it is one table.")):
            self.assertEqual(outcome({name: ["", line] + ["x"] * 700})[0], 0)

    def test_a_reason_must_be_one_and_stand_at_the_beginning(self):
        self.assertEqual(outcome({"apps/a.cpp": ["// Long because"] + ["x"] * 700})[0], 1)
        self.assertEqual(outcome({"apps/a.cpp": ["x"] * 10 + ["// Long because of x."] * 700})[0], 1)

    def test_tests_and_other_files_may_be_long(self):
        self.assertEqual(outcome({"tests/a.cpp": ["x"] * 700, "sdk/a.txt": ["x"] * 700,
                                  "sdk/a.h": ["x"]})[0], 0)

    def test_a_folder_without_sources_is_a_flaw(self):
        self.assertEqual(outcome({"tests/a.cpp": ["x"]})[0], 1)


if __name__ == "__main__":
    unittest.main()
