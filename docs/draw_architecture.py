#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Draws who sees whom: docs/pictures/architecture.svg.

Usage: draw_architecture.py [--check]

A folder of sources is a room, a top folder a house. Houses stand above those whose rooms they see, and so
do rooms within a house. An arrow says that the sources of a room include from the other, or that its
build takes from it; one that follows from others (A to B to C, so A to C) is left out. With --check
nothing is written, and the status says whether the picture is what would be.
"""
import itertools
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests/repository"))
import check_includes  # noqa: E402

COLOURS = ["#dbe9f6", "#e3f1dc", "#fbeacb", "#f3dfec", "#e4e0f4", "#d9f0ee", "#f6e0da", "#eceade"]
LINES = ["#2f6ea5", "#3f7f2c", "#a06a00", "#97387a", "#5a4aa8", "#1d7f78", "#a8482f", "#6b6640"]

BOX_WIDTH, BOX_HEIGHT = 122, 32
GAP = 36  # between boxes of a row, wide enough for the arrows that pass
ROW = 82  # from one row to the next
MARGIN, TITLE = 20, 24
STOREY_GAP = 34


def rooms_seen(root):
    """For each room the set of rooms that it sees."""
    house = check_includes.House(root)
    house.read_sources()
    house.read_builds()
    return house.seen


def house_of(room):
    return room.split("/")[0]


def depths(graph):
    """How far each node stands above the lowest it depends on; a circle ends the program."""
    found = {}

    def depth(node, way):
        if node in way:
            sys.exit("a circle: " + " -> ".join([*way[way.index(node):], node]))
        if node not in found:
            found[node] = max((depth(t, [*way, node]) + 1 for t in sorted(graph[node])), default=0)
        return found[node]

    for node in sorted(graph):
        depth(node, [])
    return found


def without_what_follows(graph):
    """The graph without the arrows that a longer way says already."""
    def reached(node):
        return set().union(*({target} | reached(target) for target in graph[node]))

    return {node: {target for target in targets
                   if not any(target in reached(other) for other in targets)}
            for node, targets in graph.items()}


class Plan:
    """Where each house and each room stands."""

    def __init__(self, rooms):
        self.rooms = rooms
        self.arrows = [(room, target) for room, targets in
                       sorted(without_what_follows(rooms).items()) for target in sorted(targets)]
        between = {house_of(room): set() for room in rooms}
        for room, targets in rooms.items():
            between[house_of(room)] |= {house_of(t) for t in targets} - {house_of(room)}
        storeys = depths(between)
        inside = depths({room: {t for t in targets if house_of(t) == house_of(room)}
                         for room, targets in rooms.items()})
        self.rows = {house: [[] for _ in range(1 + max(d for r, d in inside.items()
                                                       if house_of(r) == house))]
                     for house in between}
        for room in sorted(rooms):
            self.rows[house_of(room)][inside[room]].append(room)
        self.storeys = [sorted(h for h in between if storeys[h] == level)
                        for level in range(1 + max(storeys.values()))]
        self.improve()

    def place(self):
        """Sets the places of all houses and rooms for the present order."""
        self.width = max(sum(self.house_width(h) + GAP for h in storey) - GAP
                         for storey in self.storeys) + 2 * MARGIN
        self.frames, self.centres, self.row_of, self.row_y = {}, {}, {}, []
        y = MARGIN
        for storey in reversed(self.storeys):
            height = max(len(self.rows[house]) for house in storey)
            free = self.width - 2 * MARGIN - sum(self.house_width(h) for h in storey)
            space = free / (len(storey) + 1)
            x = MARGIN + space
            first = len(self.row_y)
            self.row_y += [y + TITLE + 14 + ROW * row + BOX_HEIGHT / 2 for row in range(height)]
            for house in storey:
                rows = self.rows[house]
                top = height - len(rows)
                self.frames[house] = (x, y + ROW * top, self.house_width(house),
                                      TITLE + 14 + ROW * (len(rows) - 1) + BOX_HEIGHT + 14)
                for level, row in enumerate(rows):
                    start = x + (self.house_width(house) - len(row) * (BOX_WIDTH + GAP)) / 2
                    for place, room in enumerate(row):
                        self.centres[room] = start + place * (BOX_WIDTH + GAP) + (BOX_WIDTH + GAP) / 2
                        self.row_of[room] = first + height - 1 - level
                x += self.house_width(house) + space
            y += TITLE + 14 + ROW * (height - 1) + BOX_HEIGHT + 14 + STOREY_GAP
        self.height = y - STOREY_GAP + MARGIN

    def house_width(self, house):
        return max(len(row) for row in self.rows[house]) * (BOX_WIDTH + GAP)

    def cost(self):
        """How far the arrows lead sidewards, and how often they cross."""
        self.place()
        ends = [(self.row_of[a], self.centres[a], self.row_of[b], self.centres[b])
                for a, b in self.arrows]
        crossings = sum(1 for one, other in itertools.combinations(ends, 2)
                        if one[0] < other[2] and other[0] < one[2]
                        and (one[1] - other[1]) * (one[3] - other[3]) < 0)
        return sum(abs(a - b) for _, a, _, b in ends) + 60 * crossings

    def improve(self):
        """Exchanges neighbours, of houses and of rooms, as long as that makes the picture calmer."""
        best = self.cost()
        better = True
        while better:
            better = False
            for row in [*self.storeys, *(row for house in sorted(self.rows)
                                         for row in self.rows[house])]:
                for i, j in itertools.combinations(range(len(row)), 2):
                    row[i], row[j] = row[j], row[i]
                    cost = self.cost()
                    if cost < best - 1e-6:
                        best, better = cost, True
                    else:
                        row[i], row[j] = row[j], row[i]
        self.place()

    def free_place(self, row, x, taken):
        """The place nearest to x where an arrow can pass a row between its boxes."""
        boxes = sorted(self.centres[r] for r in self.centres if self.row_of[r] == row)
        reach = BOX_WIDTH / 2 + 7
        candidates = [*(x + 8 * k for k in range(-12, 13)),
                      *(b + side * (reach + 8 * k) for b in boxes for side in (-1, 1)
                        for k in range(3))]
        free = [c for c in candidates if MARGIN / 2 <= c <= self.width - MARGIN / 2
                and all(abs(c - b) >= reach - 1e-6 for b in boxes)
                and all(abs(c - t) >= 6 for t in taken)]
        return min(free or candidates, key=lambda c: (abs(c - x), c))


def ends_of_arrows(plan):
    """For each arrow where it leaves its room and where it arrives, spread over the rooms' edges."""
    ends = {}
    for index, side in ((0, 1), (1, 0)):
        for room in plan.rooms:
            arrows = sorted((a for a in plan.arrows if a[index] == room),
                            key=lambda a: (plan.centres[a[side]], a))
            step = min(22, (BOX_WIDTH - 16) / max(1, len(arrows)))
            for place, arrow in enumerate(arrows):
                x = plan.centres[room] + (place - (len(arrows) - 1) / 2) * step
                ends.setdefault(arrow, [0, 0])[index] = x
    return ends


def path_of(plan, arrow, ends, taken):
    """The way of an arrow, around the rooms of the rows that it passes."""
    source, target = arrow
    first, last = plan.row_of[source], plan.row_of[target]
    x, end = ends[arrow]
    y = plan.row_y[first] + BOX_HEIGHT / 2
    text = f"M{x:.0f} {y:.0f}"
    for row in range(first + 1, last + 1):
        if row == last:
            to, upper = end, plan.row_y[row] - BOX_HEIGHT / 2 - 8
        else:
            straight = x + (end - x) / (last - row + 1)
            to, upper = plan.free_place(row, straight, taken[row]), plan.row_y[row] - BOX_HEIGHT / 2
            taken[row].append(to)
        middle = (y + upper) / 2
        text += f" C{x:.0f} {middle:.0f} {to:.0f} {middle:.0f} {to:.0f} {upper:.0f}"
        if row != last:
            y = plan.row_y[row] + BOX_HEIGHT / 2
            text += f" L{to:.0f} {y:.0f}"
        x = to
    return text


def picture(rooms):
    """The picture of these rooms as SVG."""
    plan = Plan(rooms)
    houses = sorted(plan.frames)
    line = {house: LINES[i % len(LINES)] for i, house in enumerate(houses)}
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {plan.width:.0f} {plan.height:.0f}" '
           'font-family="sans-serif" font-size="14">',
           "<title>Rooms and who sees whom</title>",
           '<rect width="100%" height="100%" fill="#ffffff"/>']
    for i, house in enumerate(houses):
        x, y, width, height = plan.frames[house]
        out.append(f'<rect x="{x:.0f}" y="{y:.0f}" width="{width:.0f}" height="{height:.0f}" rx="10" '
                   f'fill="{COLOURS[i % len(COLOURS)]}"/>')
    ends, taken = ends_of_arrows(plan), {row: [] for row in range(len(plan.row_y))}
    for arrow in sorted(plan.arrows, key=lambda a: (plan.row_of[a[1]] - plan.row_of[a[0]], a)):
        colour = line[house_of(arrow[0])]
        x, y = ends[arrow][1], plan.row_y[plan.row_of[arrow[1]]] - BOX_HEIGHT / 2
        out += [f'<g><title>{arrow[0]} sees {arrow[1]}</title>'
                f'<path d="{path_of(plan, arrow, ends, taken)}" fill="none" stroke="{colour}" '
                'stroke-width="1.4"/>',
                f'<path d="M{x - 4:.0f} {y - 9:.0f}h8l-4 8z" fill="{colour}"/></g>']
    for house in houses:
        x, y, _, _ = plan.frames[house]
        if house not in rooms:
            out.append(f'<text x="{x + 12:.0f}" y="{y + 20:.0f}" font-weight="bold" '
                       f'fill="{line[house]}">{house}/</text>')
    for room in sorted(rooms):
        x, y = plan.centres[room] - BOX_WIDTH / 2, plan.row_y[plan.row_of[room]] - BOX_HEIGHT / 2
        name = room.split("/", 1)[-1] + ("" if "/" in room else "/")
        out.append(f'<rect x="{x:.0f}" y="{y:.0f}" width="{BOX_WIDTH}" height="{BOX_HEIGHT}" rx="5" '
                   f'fill="#ffffff" stroke="{line[house_of(room)]}"/>')
        out.append(f'<text x="{plan.centres[room]:.0f}" y="{y + 21:.0f}" text-anchor="middle">{name}'
                   "</text>")
    return "\n".join([*out, "</svg>", ""])


def main():
    file = ROOT / "docs/pictures/architecture.svg"
    drawn = picture(rooms_seen(ROOT))
    if "--check" not in sys.argv:
        file.write_text(drawn, encoding="utf-8")
    elif not file.is_file() or file.read_text(encoding="utf-8") != drawn:
        print(f"{file} is not what sources and builds say: run docs/draw_architecture.py, look at it")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
