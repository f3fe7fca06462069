# SPDX-License-Identifier: Apache-2.0
"""Checks who sees whom against the graph of the house.

Usage: check_includes.py ROOT

The rooms are the folders that the table names; a source that lies in none fails. Each room names the
rooms that it may see. What it sees is what its sources include, and what its CMakeLists.txt links or
takes by a path. Some rooms show others only some of their headers. Rooms must not see each other in a
circle, and neither may the headers in a room.
"""
import pathlib
import re
import sys

TOPS = ("sdk", "protocol", "standard", "driver", "simulator", "extension", "apps")
SDK = {"sdk/devicemodel", "sdk/remoteclient", "sdk/host", "sdk/tavrix", "sdk/propertybrowser"}
WIRE = {"protocol/wording", "protocol/osi", "protocol/mms", "protocol/acsi", "protocol/scl"}
TOOL = {"extension/toolkit", "extension/model", "sdk/devicemodel", "sdk/remoteclient", "sdk/host"}

ALLOWED = {
    "sdk/devicemodel": set(),
    "sdk/remoteclient": {"sdk/devicemodel"},
    "sdk/host": {"sdk/remoteclient"},
    "sdk/tavrix": set(),
    "sdk/propertybrowser": set(),
    "protocol/wording": set(),
    "protocol/scl": {"protocol/wording"},
    "protocol/osi": {"protocol/wording"},
    "protocol/mms": {"protocol/osi", "protocol/wording"},
    "protocol/acsi": {"protocol/mms", "protocol/osi", "protocol/wording"},
    "standard": set(),
    "driver/administration": {"sdk/remoteclient"},
    "driver/text": {"protocol/wording"},
    "driver/model": WIRE | {"standard", "driver/text", "sdk/devicemodel"},
    "driver/core": WIRE | {"driver/administration", "standard", "driver/text", "driver/model",
                           "sdk/devicemodel", "sdk/remoteclient"},
    "driver/device": WIRE | {"driver/administration", "driver/text", "driver/model", "driver/core",
                             "sdk/devicemodel", "sdk/remoteclient", "sdk/tavrix"},
    "driver/service": WIRE | {"driver/administration", "driver/text", "driver/model", "driver/core",
                              "driver/device"} | SDK,
    "simulator": WIRE,
    "extension/resources": {"standard"},
    "extension/toolkit": {"sdk/remoteclient"},
    "extension/model": {"sdk/devicemodel", "sdk/propertybrowser"},
    "extension/listener": {"sdk/devicemodel", "sdk/tavrix"},
    "extension/control": TOOL | {"sdk/propertybrowser"},
    "extension/dataset": TOOL,
    "extension/fileservice": TOOL,
    "extension/report": TOOL,
    "extension/settinggroup": TOOL | {"sdk/propertybrowser"},
    "extension/browser": TOOL | {
        "extension/control", "extension/dataset", "extension/listener", "extension/report",
        "extension/settinggroup"},
    "extension/plugin": TOOL | {
        "extension/browser", "extension/fileservice", "extension/report", "extension/resources",
        "sdk/tavrix"},
    "apps/iedsim": {"simulator", "protocol/scl", "protocol/wording"},
    "apps/iedctl": SDK | {"driver/administration", "driver/core", "driver/model", "driver/service"},
    "apps/workbench": SDK | {"driver/administration", "driver/model", "driver/service",
                             "driver/text", "simulator", "protocol/osi", "protocol/scl",
                             "protocol/wording"},
}
# Of a room behind such a door only these headers are seen through it. A program knows a driver by its
# interfaces, DriverService and DriverAdministration, and by nothing that carries them out.
DOORS = {
    ("apps/iedctl", "driver/service"): {"driver/service/embeddeddriver.h"},
    ("apps/workbench", "driver/service"): {
        "driver/service/embeddeddriver.h", "driver/service/offlinedriverservice.h"},
}
NO_QT = {"protocol/wording", "protocol/osi", "protocol/mms", "protocol/acsi", "protocol/scl",
         "simulator", "apps/iedsim"}

INCLUDE = re.compile(r'^\s*#\s*include\s+[<"]([^>"]+)[>"]', re.MULTILINE)
TARGET = re.compile(
    r"\b(?:project_library|add_library|add_executable|add_custom_target)\s*\(\s*(\w+)")
LINKS = re.compile(
    r"\b(?:project_library|target_link_libraries|add_dependencies|add_custom_command)\s*\(([^)]*)\)")
SOURCE_PATH = re.compile(r"\$\{(?:PROJECT_SOURCE_DIR|CMAKE_SOURCE_DIR)\}/([\w./-]+)")


def room_of(relative):
    """The room that a path below the root lies in, None for one that lies in none."""
    parts = pathlib.PurePosixPath(relative).parts
    for length in (2, 1):
        name = "/".join(parts[:length])
        if name in ALLOWED:
            return name
    return None


class House:
    def __init__(self, root):
        self.root = root
        self.faults = []
        self.checked = 0
        self.seen = {room: set() for room in ALLOWED}
        self.headers = {}

    def included(self, source, name):
        """The path below the root that an include names, None for a file that is not the project's."""
        places = [source.parent, self.root, *(self.root / top for top in TOPS)]
        for place in places:
            if (place / name).is_file():
                return (place / name).resolve().relative_to(self.root)
        return None

    def sees(self, where, room, target, how):
        self.checked += 1
        if target == room:
            return
        self.seen[room].add(target)
        if target not in ALLOWED[room]:
            self.faults.append(f"{where}: {room} may not {how} of {target}")

    def read_sources(self):
        for top in TOPS:
            for source in sorted((self.root / top).rglob("*")):
                if source.suffix not in {".h", ".cpp"}:
                    continue
                relative = source.relative_to(self.root)
                room = room_of(relative)
                if room is None:
                    self.faults.append(f"{relative}: lies in no room of the table")
                    continue
                edges = set()
                for name in INCLUDE.findall(source.read_text(encoding="utf-8")):
                    if room in NO_QT and re.match(r"Qt[A-Z]|Q[A-Z][a-z]", name):
                        self.faults.append(f"{relative}: {room} knows no Qt, but includes {name}")
                    target = self.included(source, name)
                    if target is None:
                        continue
                    self.sees(relative, room, room_of(target), f"include {name}")
                    door = DOORS.get((room, room_of(target)))
                    if door is not None and str(target) not in door:
                        self.faults.append(
                            f"{relative}: {room} may not see {name} of {room_of(target)}")
                    if target.suffix == ".h":
                        edges.add(str(target))
                if source.suffix == ".h":
                    self.headers[str(relative)] = edges

    def read_builds(self):
        builds = [path for top in TOPS for path in sorted((self.root / top).rglob("CMakeLists.txt"))]
        targets = {}
        for path in builds:
            room = room_of(path.relative_to(self.root))
            for name in TARGET.findall(path.read_text(encoding="utf-8")):
                targets[name] = room
        for path in builds:
            relative = path.relative_to(self.root)
            room = room_of(relative)
            text = re.sub(r"#.*", "", path.read_text(encoding="utf-8"))
            if room is None:
                continue
            for arguments in LINKS.findall(text):
                for word in arguments.split():
                    if targets.get(word) is not None:
                        self.sees(relative, room, targets[word], f"link {word}")
            for name in SOURCE_PATH.findall(text):
                target = room_of(name)
                if target is not None:
                    self.sees(relative, room, target, f"take {name}")

    def find_circles(self):
        for what, graph in (("rooms", self.seen), ("headers", self.headers)):
            circle = circle_in(graph)
            if circle:
                self.faults.append(f"{what} in a circle: {' -> '.join(circle)}")


def circle_in(graph):
    """A path that ends where it begins; empty when there is none."""
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node):] + [node]
        if node in done:
            return []
        path.append(node)
        for target in sorted(graph.get(node, ())):
            circle = visit(target)
            if circle:
                return circle
        path.pop()
        done.add(node)
        return []

    for node in sorted(graph):
        circle = visit(node)
        if circle:
            return circle
    return []


def main():
    house = House(pathlib.Path(sys.argv[1]).resolve())
    house.read_sources()
    house.read_builds()
    house.find_circles()
    unused = [f"{room} may see {other}, but does not" for room in ALLOWED
              for other in sorted(ALLOWED[room] - house.seen[room])] if "--unused" in sys.argv else []
    for line in house.faults + unused:
        print(line)
    if house.checked == 0:
        print(f"nothing found below {house.root}")
        return 1
    print(f"{house.checked} edges read, {len(house.faults)} not allowed")
    return 1 if house.faults else 0


if __name__ == "__main__":
    sys.exit(main())
