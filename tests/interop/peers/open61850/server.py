# SPDX-License-Identifier: Apache-2.0
"""A server of the foreign stack, with the model of an SCL file.

Usage: server.py OPTIONS, a JSON object: {"scl": FILE, "port": N}. Writes {"event": "ready"} when it
serves; afterwards obeys one JSON command a line and answers each with one line. Controls that ask for
the interlock check are refused.
"""
import json
import pathlib
import sys

sys.path.append(str(pathlib.Path(__file__).parent.parent))

from open61850.server import IedModel, MmsServer

from bay import Bay
from values import from_json, to_json
from wire import Refused, commands, obey_forever, say

BLOCKED_BY_INTERLOCKING = 10


class Server:
    def __init__(self, options):
        if "tls" in options:
            raise Refused("the foreign server has no TLS")
        if "password" in options:
            raise Refused("the foreign server asks for no password")
        bay = Bay(options["scl"])
        self.model = IedModel.from_scl(options["scl"], bay.name)
        self.server = MmsServer(self.model, "127.0.0.1", options["port"], vendor="foreign",
                                model_name="bay", revision="1.0")
        self.server.start()
        for device, path in bay.controls:
            self.server.controls.set_check(f"{bay.name}{device}/{path}", self.check)

    @staticmethod
    def check(command):
        return BLOCKED_BY_INTERLOCKING if command.interlock_check else None

    def do_set(self, command):
        self.model.set(f"{command['reference']}[{command['fc']}]", from_json(command["value"]))
        return True

    def do_get(self, command):
        return to_json(self.model.get(f"{command['reference']}[{command['fc']}]"))

    def do_connections(self, _command):
        return len(self.server.connections)


def main():
    try:
        server = Server(json.loads(sys.argv[1]))
    except (Refused, OSError) as error:
        say({"event": "failed", "reason": str(error)})
        return 1
    say({"event": "ready"})
    obey_forever(server)
    server.server.stop()
    return 0


sys.exit(main())
