#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes a data-type template file from readable tables.

usage: generate_templates.py OUTPUT TABLE...

A table is UTF-8 text made of blocks. A block begins with a line "KEYWORD NAME..." and ends before
the next one; blank lines and lines that begin with "#" are passed over.

    enumeration ID...        the ids under which the enumeration is written, blank-separated
    ORDINAL TEXT             one line per value; the text may be empty

    class NAME [extends BASE]                a logical-node class
    abstract NAME [extends BASE]             one that is only a base and not written
    NAME CDC PRESENCE [ENUMERATION] [transient] [former]

    common-data-class NAME
    NAME FC TYPE PRESENCE [dchg] [qchg] [dupd] [count=ATTRIBUTE] [former]

    attribute-type NAME
    NAME TYPE PRESENCE

TYPE is a basic type, an enumeration, an attribute type, or, where FC is SDO, a common data class.
PRESENCE is a code of the standard, or "-" when none is recorded.

A table named explanations-KIND.txt holds lines "NAME Sentence." instead. Whatever is written must
have its sentence, data objects and attributes one for each name; an enumeration's stands under the
first of its ids. The sentences in other languages are in tables of the same names, in a folder for
each language; generate_catalogue.py makes catalogues from them.

The loader takes the first attribute of an element for its id or ordinal, and every child node for a
value: EnumType is therefore written with an id only, EnumVal with an ord only, and no comments. The
explanation of an enumeration is an element of its own, EnumDesc.
"""

import os
import re
import sys
from xml.sax.saxutils import escape, quoteattr

BASIC_TYPES = frozenset(
    """Any BOOLEAN Check Currency Dbpos EntryID EntryTime Enum FLOAT32 FLOAT64 INT8 INT8U INT16 INT16U
    INT24 INT24U INT32 INT32U INT64 INT128 ObjRef Octet64 OptFlds PhyComAddr Quality SvOptFlds Tcmd
    Timestamp TrgOps Unicode255 VisString32 VisString64 VisString129 VisString255""".split())
CONSTRAINTS = frozenset("ST MX CO SP SG SE SV CF DC EX SR OR BL SDO".split())
TRIGGERS = ("dchg", "qchg", "dupd")
FULL_STOPS = (".", "\u3002")
EXPLAINED = ("classes", "data-objects", "common-classes", "attributes", "attribute-types",
             "enumerations")


class TableError(Exception):
    def __init__(self, line, sentence):
        super().__init__(f"{line.table}:{line.number}: {sentence}")


class Line:
    def __init__(self, table, number, text):
        self.table = table
        self.number = number
        self.text = text
        self.words = text.split()


class Block:
    """A class, type or enumeration: the line that names it, and its rows."""

    def __init__(self, head, rows, base=None):
        self.head = head
        self.rows = rows
        self.base = base


class Row:
    def __init__(self, line, name, fields, marks):
        self.line = line
        self.name = name
        self.fields = fields
        self.marks = marks


class Template:
    def __init__(self):
        self.enumerations = {}
        self.classes = {}
        self.abstract = {}
        self.common_classes = {}
        self.attribute_types = {}
        self.explanations = {}

    def explain(self, kind, name, line):
        try:
            return self.explanations[kind][name]
        except KeyError:
            raise TableError(line, f'"{name}" has no sentence among the {kind}') from None


def claim(blocks, name, block):
    if name in blocks:
        raise TableError(block.head, f'"{name}" occurs twice')
    blocks[name] = block


def only_name(head):
    if len(head.words) != 2:
        raise TableError(head, f'"{head.words[0]}" takes one name')
    return head.words[1]


def read_rows(body, columns, marks_allowed):
    rows = []
    for line in body:
        name, *fields = line.words[:columns]
        marks = line.words[columns:]
        if len(fields) != columns - 1:
            raise TableError(line, f"the line needs {columns} words")
        if (name, "former" in marks) in ((row.name, "former" in row.marks) for row in rows):
            raise TableError(line, f'"{name}" occurs twice')
        for mark in marks:
            if not marks_allowed(mark):
                raise TableError(line, f'"{mark}" has no meaning here')
        rows.append(Row(line, name, fields, marks))
    return rows


def read_enumeration(template, head, body):
    ids = head.words[1:]
    if not ids:
        raise TableError(head, "the enumeration has no id")
    values = {}
    for line in body:
        ordinal, _, text = line.text.partition(" ")
        try:
            number = int(ordinal)
        except ValueError:
            raise TableError(line, f'"{ordinal}" is not an ordinal') from None
        if number in values:
            raise TableError(line, f"the ordinal {number} occurs twice")
        values[number] = text.strip()
    if not values:
        raise TableError(head, "the enumeration has no values")
    for name in ids:
        claim(template.enumerations, name, Block(head, values))


def read_class(template, head, body):
    words = head.words
    if len(words) not in (2, 4) or len(words) == 4 and words[2] != "extends":
        raise TableError(head, "a class is written NAME or NAME extends BASE")
    rows = read_rows(body, 3, lambda mark: mark in ("transient", "former")
                     or mark in template.enumerations)
    block = Block(head, rows, words[3] if len(words) == 4 else None)
    claim(template.classes if words[0] == "class" else template.abstract, words[1], block)


def read_common_class(template, head, body):
    rows = read_rows(body, 4, lambda mark: mark in TRIGGERS or mark == "former"
                     or re.fullmatch(r"count=\w+", mark))
    if not rows:
        raise TableError(head, "the common data class has no attributes")
    claim(template.common_classes, only_name(head), Block(head, rows))


def read_attribute_type(template, head, body):
    rows = read_rows(body, 3, lambda mark: False)
    if not rows:
        raise TableError(head, "the attribute type has no attributes")
    claim(template.attribute_types, only_name(head), Block(head, rows))


READERS = {
    "enumeration": read_enumeration,
    "class": read_class,
    "abstract": read_class,
    "common-data-class": read_common_class,
    "attribute-type": read_attribute_type,
}


def read_blocks(template, lines):
    blocks = []
    for line in lines:
        if line.words[0] in READERS:
            blocks.append((line, []))
        elif blocks:
            blocks[-1][1].append(line)
        else:
            raise TableError(line, "the table must begin with a keyword")
    for head, body in blocks:
        READERS[head.words[0]](template, head, body)


def read_explanations(template, kind, lines):
    if kind not in EXPLAINED:
        raise TableError(lines[0], f'nothing is called "{kind}"')
    sentences = template.explanations.setdefault(kind, {})
    for line in lines:
        name, _, sentence = line.text.partition(" ")
        if name in sentences:
            raise TableError(line, f'"{name}" is explained twice')
        if not sentence.endswith(FULL_STOPS):
            raise TableError(line, f'the sentence of "{name}" has no full stop')
        sentences[name] = sentence


def read_table(template, path):
    with open(path, encoding="utf-8") as file:
        lines = [Line(path, number, text.rstrip()) for number, text in enumerate(file, 1)]
    lines = [line for line in lines if line.text and not line.text.startswith("#")]
    explanations = re.fullmatch(r"explanations-(.+)\.txt", os.path.basename(path))
    if explanations:
        read_explanations(template, explanations[1], lines)
    else:
        read_blocks(template, lines)


def inherited_rows(template, block):
    """The rows of the base classes, outermost first, and then the class's own. Of two rows of one
    name the one that is in force goes before a former one, and the nearer before the farther."""
    chain = [block]
    while chain[0].base:
        base = template.abstract.get(chain[0].base)
        if base is None or base in chain:
            raise TableError(chain[0].head, f'"{chain[0].base}" is not a base class')
        chain.insert(0, base)
    rows = {}
    for part in chain:
        for row in part.rows:
            if row.name not in rows or "former" not in row.marks:
                rows[row.name] = row
    return rows.values()


def element(tag, *attributes, content=None):
    """An element; attributes without a value are left out."""
    text = "".join(f" {name}={quoteattr(value)}" for name, value in attributes if value)
    return f"<{tag}{text}/>" if content is None else f"<{tag}{text}>{content}</{tag}>"


def mark(row, word):
    return word, "true" if word in row.marks else None


def presence(row):
    return "presence", None if row.fields[-1] == "-" else row.fields[-1]


def type_of(template, row, name):
    if name in template.enumerations and name not in BASIC_TYPES:
        return ("bType", "Enum"), ("type", name)
    if name in template.attribute_types:
        return ("bType", "Struct"), ("type", name)
    if name not in BASIC_TYPES:
        raise TableError(row.line, f'"{name}" is not a type')
    return ("bType", name), ("type", None)


def class_element(template, name, block):
    objects = []
    for row in inherited_rows(template, block):
        common_class = row.fields[0]
        if common_class not in template.common_classes:
            raise TableError(row.line, f'"{common_class}" is not a common data class')
        enumerations = [word for word in row.marks if word in template.enumerations]
        objects.append(element(
            "DO", ("name", row.name), ("type", common_class), presence(row),
            ("enum", enumerations[0] if enumerations else None), mark(row, "transient"),
            mark(row, "former"), ("desc", template.explain("data-objects", row.name, row.line))))
    return element("LNodeType", ("id", name), ("lnClass", name),
                   ("desc", template.explain("classes", name, block.head)),
                   content="".join(objects))


def common_class_element(template, name, block):
    attributes = []
    for row in block.rows:
        constraint, type_name, _ = row.fields
        if constraint not in CONSTRAINTS:
            raise TableError(row.line, f'"{constraint}" is not a functional constraint')
        count = [word.partition("=")[2] for word in row.marks if word.startswith("count=")]
        tail = (presence(row), ("count", count[0] if count else None), mark(row, "former"),
                ("desc", template.explain("attributes", row.name, row.line)))
        if constraint == "SDO":
            if type_name not in template.common_classes:
                raise TableError(row.line, f'"{type_name}" is not a common data class')
            attributes.append(element("SDO", ("name", row.name), ("type", type_name), *tail))
        else:
            attributes.append(element(
                "DA", ("name", row.name), ("fc", constraint),
                *type_of(template, row, type_name), *(mark(row, word) for word in TRIGGERS), *tail))
    return element("DOType", ("id", name), ("cdc", name),
                   ("desc", template.explain("common-classes", name, block.head)),
                   content="".join(attributes))


def attribute_type_element(template, name, block):
    attributes = [
        element("BDA", ("name", row.name), *type_of(template, row, row.fields[0]), presence(row),
                ("desc", template.explain("attributes", row.name, row.line)))
        for row in block.rows]
    return element("DAType", ("id", name),
                   ("desc", template.explain("attribute-types", name, block.head)),
                   content="".join(attributes))


def enumeration_element(name, block):
    values = [element("EnumVal", ("ord", str(number)), content=escape(text))
              for number, text in block.rows.items()]
    return element("EnumType", ("id", name), content="".join(values))


def enumeration_explanation(template, name, block):
    first = block.head.words[1]
    return element("EnumDesc", ("id", name),
                   ("desc", template.explain("enumerations", first, block.head)))


def elements(template):
    for name, block in template.classes.items():
        yield class_element(template, name, block)
    for name, block in template.common_classes.items():
        yield common_class_element(template, name, block)
    for name, block in template.attribute_types.items():
        yield attribute_type_element(template, name, block)
    for name, block in template.enumerations.items():
        yield enumeration_element(name, block)
    for name, block in template.enumerations.items():
        yield enumeration_explanation(template, name, block)


def main(arguments):
    if len(arguments) < 2:
        print(__doc__, file=sys.stderr)
        return 2
    output, *tables = arguments
    template = Template()
    try:
        for path in tables:
            read_table(template, path)
        content = "\n".join(elements(template))
    except (TableError, OSError, UnicodeDecodeError) as error:
        print(f"generate_templates.py: {error}", file=sys.stderr)
        return 1
    with open(output, "w", encoding="utf-8", newline="\n") as file:
        file.write('<?xml version="1.0" encoding="UTF-8"?>\n<DataTypeTemplate>\n')
        file.write(content)
        file.write("\n</DataTypeTemplate>\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
