#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes a data-type template file from readable tables.

usage: generate_templates.py OUTPUT TABLE...

A table is UTF-8 text made of blocks. A block begins with a line "KEYWORD NAME..." and ends before
the next one; blank lines and lines that begin with "#" are passed over. READERS says which
keywords there are.

    enumeration ID...      the ids under which the enumeration is written, blank-separated
    ORDINAL TEXT           one line per value; the text may be empty

The loader takes the first attribute of an element for its id or ordinal, and every child node for a
value: EnumType is therefore written with an id only, EnumVal with an ord only, and no comments.
"""

import sys
import xml.etree.ElementTree as ElementTree


class TableError(Exception):
    def __init__(self, line, sentence):
        super().__init__(f"{line.table}:{line.number}: {sentence}")


class Line:
    def __init__(self, table, number, text):
        self.table = table
        self.number = number
        self.text = text


class Template:
    def __init__(self):
        self.root = ElementTree.Element("DataTypeTemplate")
        self.ids = set()

    def add_element(self, parent, tag, **attributes):
        return ElementTree.SubElement(parent, tag, attributes)

    def claim_id(self, kind, name, line):
        if (kind, name) in self.ids:
            raise TableError(line, f'the {kind} id "{name}" occurs twice')
        self.ids.add((kind, name))


def read_enumeration(template, head, body):
    ids = head.text.split()[1:]
    if not ids:
        raise TableError(head, "the enumeration has no id")
    values = []
    for line in body:
        ordinal, _, text = line.text.partition(" ")
        try:
            number = int(ordinal)
        except ValueError:
            raise TableError(line, f'"{ordinal}" is not an ordinal') from None
        if number in (known for known, _ in values):
            raise TableError(line, f"the ordinal {number} occurs twice")
        values.append((number, text.strip()))
    if not values:
        raise TableError(head, "the enumeration has no values")
    for name in ids:
        template.claim_id("enumeration", name, head)
        enumeration = template.add_element(template.root, "EnumType", id=name)
        for number, text in values:
            template.add_element(enumeration, "EnumVal", ord=str(number)).text = text


READERS = {"enumeration": read_enumeration}


def read_table(template, path):
    with open(path, encoding="utf-8") as file:
        lines = [Line(path, number, text.rstrip()) for number, text in enumerate(file, 1)]
    blocks = []
    for line in lines:
        if not line.text or line.text.startswith("#"):
            continue
        if line.text.split()[0] in READERS:
            blocks.append((line, []))
        elif blocks:
            blocks[-1][1].append(line)
        else:
            raise TableError(line, "the table must begin with a keyword")
    for head, body in blocks:
        READERS[head.text.split()[0]](template, head, body)


def main(arguments):
    if len(arguments) < 2:
        print(__doc__, file=sys.stderr)
        return 2
    output, *tables = arguments
    template = Template()
    try:
        for path in tables:
            read_table(template, path)
    except (TableError, OSError, UnicodeDecodeError) as error:
        print(f"generate_templates.py: {error}", file=sys.stderr)
        return 1
    ElementTree.indent(template.root, " ")
    with open(output, "wb") as file:
        ElementTree.ElementTree(template.root).write(file, encoding="UTF-8", xml_declaration=True)
        file.write(b"\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
