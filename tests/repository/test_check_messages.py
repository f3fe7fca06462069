# SPDX-License-Identifier: Apache-2.0
"""Checks that check_messages.py finds messages that the page does not have.

Usage: test_check_messages.py
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).with_name("check_messages.py")
PAGE = """
| The value is too "…" for …. | ... |
| Nothing was sent to the device | ... |
| The peer did not … at all. | ... |
| The device is away. | ... |
| There is nothing to read here. | ... |
"""
SOURCES = {
    "driver/device/a.cpp": 'Texts::tr("The peer did not %1 "\n   "at all.");',
    "driver/text/sentencetable.cpp": 'QT_TRANSLATE_NOOP("IedDriver", "The device is away."),',
    "apps/iedctl/a.cpp": 'mistake("There is nothing to read here.");',
    "apps/workbench/devicestore.cpp": "",
    "apps/workbench/fileimport.cpp": "",
    "apps/workbench/extensionloader.cpp": "",
    "extension/tool/a.cpp": 'showWarning(this, tr("Fail"), tr("Nothing was sent to the device"));',
    "sdk/propertybrowser/numberguard.cpp": 'tr("The value is too \\"%1\\" for %2.");',
    "sdk/propertybrowser/propertyeditors.cpp": "",
    "sdk/remoteclient/iec61850controllerinterface.cpp": "",
}


class CheckMessages(unittest.TestCase):
    def lacking(self, more=None):
        """What the check says to a tree of these sources."""
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, text in {**SOURCES, "docs/messages.md": PAGE, **(more or {})}.items():
                path = root / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
            self.assertEqual(run.returncode != 0, " lacks " in run.stdout, run.stdout + run.stderr)
            return run.stdout.splitlines()[:-1]

    def test_a_page_with_all_messages_is_in_order(self):
        self.assertEqual(self.lacking(), [])

    def test_a_translated_sentence_without_a_row_is_found(self):
        for place in ("extension/tool/b.cpp", "sdk/host/b.h", "apps/workbench/b.cpp"):
            self.assertEqual(self.lacking({place: 'tr("It is %1 than all others.");'}),
                             [f'docs/messages.md lacks "than all others." of {place}'])

    def test_a_sentence_of_the_protocol_without_a_row_is_found(self):
        table = 'QT_TRANSLATE_NOOP("IedDriver", "The device has fallen asleep."),'
        self.assertEqual(len(self.lacking({"driver/text/sentencetable.cpp": table})), 1)

    def test_a_sentence_that_is_not_translated_is_found_in_a_program(self):
        self.assertEqual(len(self.lacking({"apps/iedctl/b.cpp": '"The file has gone away."'})), 1)
        self.assertEqual(self.lacking({"apps/workbench/b.cpp": '"The file has gone away."'}), [])

    def test_a_box_without_a_full_stop_is_found(self):
        box = 'askWarning(this, tr("Fail"), tr("Nobody has answered yet"));'
        self.assertEqual(len(self.lacking({"extension/tool/b.cpp": box})), 1)

    def test_help_and_comments_are_no_messages(self):
        code = ('app.add_flag("-q", quiet, tr("Say nothing at all, ever.").toStdString());\n'
                '// tr("This is not said any more.")\n')
        self.assertEqual(self.lacking({"apps/workbench/b.cpp": code}), [])


if __name__ == "__main__":
    unittest.main()
