# SPDX-License-Identifier: Apache-2.0
"""Checks that check_named.py finds what a document names and nobody has.

Usage: test_check_named.py
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).with_name("check_named.py")
SOURCES = {"driver/core/polling.h": "class Polling\n{\n    int next();\n};\n",
           "driver/core/fault.cpp": 'const char *name = "wrong-id";\n'}


def outcome(document, name="docs/architecture.md"):
    """Exit status and output of the check for the text of a document."""
    with tempfile.TemporaryDirectory() as folder:
        files = {"docs/architecture.md": "", **SOURCES, name: document}
        for file, text in files.items():
            path = pathlib.Path(folder) / file
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
        return run.returncode, run.stdout


class CheckNamed(unittest.TestCase):
    def test_what_is_there_is_found(self):
        for name in ("Polling", "Polling::next", "next()", "polling", "*ing", "driver/core",
                     "driver/core/polling", "driver/core/polling.h", "polling.h", "driver/ROOM",
                     "wrong-id"):
            self.assertEqual(outcome(f"See `{name}`.")[0], 0, name)

    def test_what_is_not_there_is_told_with_its_document(self):
        for name in ("Poling", "Polling::gone", "gone()", "*gone", "driver/gone", "gone/core",
                     "gone.h", "gone/ROOM", "wrong-name"):
            status, output = outcome(f"`Polling`, and `{name}`.")
            self.assertEqual(status, 1, name)
            self.assertIn(f"docs/architecture.md: nothing is named {name}\n", output)

    def test_commands_references_and_blocks_are_passed_over(self):
        for text in ("`gone --all`", "`LD0/GONE1.Pos`", "```\n`gone.h`\n```"):
            self.assertEqual(outcome(f"`Polling`\n{text}\n")[0], 0, text)

    def test_a_path_may_begin_in_the_folder_of_its_document(self):
        self.assertEqual(outcome("`core/` has `core/polling`.", "driver/README.md")[0], 0)
        self.assertEqual(outcome("`core/gone`", "driver/README.md")[0], 1)

    def test_a_document_that_names_nothing_is_a_flaw(self):
        self.assertEqual(outcome("Nothing.")[0], 1)


if __name__ == "__main__":
    unittest.main()
