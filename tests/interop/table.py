# SPDX-License-Identifier: Apache-2.0
"""Compares docs/interoperability.md with the results of the tests, or writes it.

Usage: table.py RESULTS DOCUMENT. With INTEROP_RENEW=1 in the environment the document is written.
Exits with 77 where the tests with the foreign stack have left no results.
"""
import json
import os
import pathlib
import re
import sys

NOT_THERE = 77
HERE = pathlib.Path(__file__).parent
PEERS = ("pyiec61850", "iec61850", "open61850")
# Heading of a table's first column, file of its rows, its columns with the results they come from.
SERVICES = ("service", HERE / "rows.txt",
            tuple((f"our client, server of `{peer}`",
                   (f"foreign-server-{peer}", f"foreign-server-acsi-{peer}")) for peer in PEERS)
            + tuple((f"client of `{peer}`, our simulated IED", (f"foreign-client-{peer}",))
                    for peer in PEERS))
DIALOGS = ("job of an operator", HERE / "dialogrows.txt",
           (("our simulated IED", ("dialogs-simulator",)),)
           + tuple((f"server of `{peer}`", (f"dialogs-foreign-server-{peer}",)) for peer in PEERS))
DIALOGS_HEAD = """
## Through the menus and dialogs of the plug-in

The plug-in in a host, on the driver, with hands on mouse and keyboard.

"""
HEAD = """# Interoperability

Every service is tried in both directions with stacks that others wrote: the clients and servers of
the Python packages {peers}. The tests in `tests/interop` install them into the build and write this
table; each "works" stands for values that were compared. What a peer lacks or does otherwise is kept
in `tests/interop/peers`, and a test fails when that is no longer so. Where a cell is "–" it has not
been tried in that direction, mostly because the client of that direction has no call for it. Renew the
table with `INTEROP_RENEW=1 ./test --all -R interop`.

"""


def head():
    peers = []
    for peer in PEERS:
        requirements = (HERE / "peers" / peer / "requirements.txt").read_text(encoding="utf-8")
        name, version = re.search(r"^([\w-]+)==([\w.]+)", requirements, re.MULTILINE).groups()
        peers.append(f"`{name}` {version}")
    return HEAD.format(peers=", ".join(peers[:-1]) + " and " + peers[-1])


def read_rows(path):
    lines = path.read_text(encoding="utf-8").splitlines()
    return [line for line in lines if line and not line.startswith("#")]


def read_results(folder, columns):
    results = {}
    for title, names in columns:
        results[title] = {}
        for name in names:
            path = folder / f"{name}.json"
            if not path.exists():
                print(f"The foreign peer is not there: no results of {name}.")
                sys.exit(NOT_THERE)
            results[title].update(json.loads(path.read_text(encoding="utf-8")))
    return results


def table(kind, rows, results):
    unknown = [name for column in results.values() for name in column if name not in rows]
    if unknown:
        raise SystemExit(f"no rows are kept for: {', '.join(sorted(set(unknown)))}")
    for row in rows:
        if not any(row in column for column in results.values()):
            raise SystemExit(f"no test has the row: {row}")
    lines = [f"| {kind} | " + " | ".join(results) + " |", "|---" * (len(results) + 1) + "|"]
    for row in rows:
        cells = [column.get(row, "–").replace("|", "\\|") for column in results.values()]
        lines.append(f"| {row} | " + " | ".join(cells) + " |")
    return "\n".join(lines) + "\n"


def main():
    folder, document = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    parts, count, failed = [], 0, []
    for kind, path, columns in (SERVICES, DIALOGS):
        rows, results = read_rows(path), read_results(folder, columns)
        parts.append(table(kind, rows, results))
        count += len(rows)
        failed += [row for column in results.values() for row, result in column.items()
                   if result == "FAILED"]
    fresh = head() + parts[0] + DIALOGS_HEAD + parts[1]
    if failed:
        print("Failed: " + ", ".join(failed))
        return 1
    if os.environ.get("INTEROP_RENEW") == "1":
        document.write_text(fresh, encoding="utf-8")
    committed = document.read_text(encoding="utf-8") if document.exists() else ""
    if committed == fresh:
        print(f"{count} rows agree with the document.")
        return 0
    for line in fresh.splitlines():
        if line not in committed.splitlines():
            print(f"The results have, the document has not: {line}")
    print("Renew the document with INTEROP_RENEW=1 in the environment.")
    return 1


sys.exit(main())
