# SPDX-License-Identifier: Apache-2.0
"""What the programs around every foreign stack share: their commands, and names both ways."""
import json
import sys


class Refused(Exception):
    """The command cannot be carried out; the text says why."""


def say(message):
    sys.stdout.write(json.dumps(message) + "\n")
    sys.stdout.flush()


def commands():
    """The lines that come in; the end of the input ends the peer."""
    for line in sys.stdin:
        if line.strip():
            yield json.loads(line)


def reference_of(domain, item):
    """("LD/LN.Data.attribute", functional constraint) of an MMS variable; elements stay in
    parentheses."""
    parts = item.split("$")
    if len(parts) < 3:
        raise Refused(f"{item} is no data with a functional constraint")
    return f"{domain}/" + ".".join([parts[0]] + parts[2:]), parts[1]


def obey_forever(peer):
    """Answers each command by the peer's method of that name."""
    for command in commands():
        do = getattr(peer, "do_" + command["do"], None)
        if do is None:
            say({"failure": "the peer has no call for it"})
            continue
        if not getattr(peer, "is_ready", True) and command["do"] != "connect":
            say({"failure": "there is no connection"})
            continue
        try:
            say({"result": do(command)})
        except Refused as refused:
            say({"failure": str(refused)})
