# SPDX-License-Identifier: Apache-2.0
"""Writes the C++ tables of standardtypes.cpp from a data-type template file.

Usage: generate_standardtypes.py TEMPLATES.xml OUTPUT.inc

Three sorted tables of rows {key, type, name}: data objects by "class/name" with their common data
class and enumeration, attributes by "type/name" with their basic type and what it is called, and
entries of enumerations by "enumeration/number" with their text.
"""
import sys
import xml.etree.ElementTree as ElementTree


def rows_of_nodes(root):
    for node in root.iter("LNodeType"):
        for data in node.findall("DO"):
            yield f'{node.get("lnClass")}/{data.get("name")}', data.get("type"), data.get("enum", "")


def rows_of_types(root):
    for kind, members in (("DOType", ("DA", "SDO")), ("DAType", ("BDA",))):
        for block in root.iter(kind):
            for member in block:
                if member.tag in members:
                    basic = "" if member.tag == "SDO" else member.get("bType")
                    yield (f'{block.get("id")}/{member.get("name")}', basic,
                           member.get("type", ""))


def rows_of_enumerations(root):
    for block in root.iter("EnumType"):
        for entry in block.findall("EnumVal"):
            yield f'{block.get("id")}/{entry.get("ord")}', (entry.text or "").strip(), ""


def table(name, rows):
    unique = {}
    for key, basic, detail in rows:
        unique.setdefault(key.encode(), (basic, detail))
    if not unique:
        raise ValueError(f"no row for {name}")
    lines = [f"constexpr std::array<Row, {len(unique)}> {name} = {{{{"]
    for key in sorted(unique):
        basic, detail = unique[key]
        lines.append(f'    {{"{key.decode()}", "{basic}", "{detail}"}},')
    lines.append("}};")
    return "\n".join(lines)


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    source, output = arguments
    try:
        root = ElementTree.parse(source).getroot()
        content = "\n\n".join([table("dataObjects", rows_of_nodes(root)),
                               table("attributes", rows_of_types(root)),
                               table("enumerations", rows_of_enumerations(root))])
    except (ElementTree.ParseError, OSError, ValueError) as error:
        print(f"generate_standardtypes.py: {error}", file=sys.stderr)
        return 1
    with open(output, "w", encoding="utf-8", newline="\n") as file:
        file.write(content + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
