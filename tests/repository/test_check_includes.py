# SPDX-License-Identifier: Apache-2.0
"""The check of who sees whom finds what it is for."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).with_name("check_includes.py")
SOURCES = {
    "protocol/osi/tpkt.h": "",
    "protocol/mms/pdu.h": '#include "osi/tpkt.h"\n',
    "protocol/mms/CMakeLists.txt": "project_library(mms STATIC SOURCES pdu.h LINK osi)",
    "protocol/osi/CMakeLists.txt": "project_library(osi STATIC SOURCES tpkt.h)",
}


class CheckIncludes(unittest.TestCase):
    def faults(self, more):
        """What the check says to a tree of these sources."""
        with tempfile.TemporaryDirectory() as folder:
            for name, text in {**SOURCES, **more}.items():
                path = pathlib.Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
            lines = run.stdout.splitlines()[:-1]
            self.assertEqual(run.returncode, 1 if lines else 0, run.stdout + run.stderr)
            return lines

    def test_what_the_graph_allows_is_in_order(self):
        self.assertEqual(self.faults({}), [])

    def test_an_include_from_a_room_above_is_found(self):
        self.assertIn("protocol/osi/acse.h: protocol/osi may not include mms/pdu.h of protocol/mms",
                      self.faults({"protocol/osi/acse.h": '#include "mms/pdu.h"\n'}))

    def test_a_program_sees_a_driver_only_by_its_door(self):
        service = {"driver/service/ieddriver.h": "", "driver/service/embeddeddriver.h": ""}
        seen = '#include "driver/service/embeddeddriver.h"\n'
        self.assertEqual(self.faults({**service, "apps/iedctl/main.cpp": seen}), [])
        for program in ("iedctl", "workbench"):
            source = f"apps/{program}/main.cpp"
            inside = '#include "driver/service/ieddriver.h"\n'
            self.assertEqual(self.faults({**service, source: inside}),
                             [f"{source}: apps/{program} may not see driver/service/ieddriver.h of "
                              "driver/service"])

    def test_a_link_to_a_room_above_is_found(self):
        build = "add_library(osi tpkt.h)\ntarget_link_libraries(osi PRIVATE mms)"
        self.assertIn("protocol/osi/CMakeLists.txt: protocol/osi may not link mms of protocol/mms",
                      self.faults({"protocol/osi/CMakeLists.txt": build}))

    def test_a_path_into_another_room_is_found(self):
        build = "set(tables ${PROJECT_SOURCE_DIR}/extension/resources/tables)"
        self.assertEqual(len(self.faults({"driver/core/CMakeLists.txt": build})), 1)

    def test_a_commented_line_of_a_build_counts_for_nothing(self):
        build = "# ${PROJECT_SOURCE_DIR}/extension/resources/tables"
        self.assertEqual(self.faults({"driver/core/CMakeLists.txt": build}), [])

    def test_headers_that_include_each_other_are_found(self):
        found = self.faults({"protocol/mms/a.h": '#include "mms/b.h"\n',
                             "protocol/mms/b.h": '#include "mms/a.h"\n'})
        self.assertEqual(len(found), 1)
        self.assertTrue(found[0].startswith("headers in a circle: "), found)

    def test_qt_is_found_where_none_belongs(self):
        self.assertEqual(len(self.faults({"simulator/a.h": "#include <QtCore/QString>\n"})), 1)

    def test_a_source_in_no_room_is_found(self):
        self.assertEqual(self.faults({"apps/other/main.cpp": ""}),
                         ["apps/other/main.cpp: lies in no room of the table"])


unittest.main()
