# SPDX-License-Identifier: Apache-2.0
"""A server of the foreign stack, with the model of an SCL file.

Usage: server.py OPTIONS, a JSON object: {"scl": FILE, "port": N, optionally "tls": {...}}. Writes
{"event": "ready"} when it serves; afterwards obeys one JSON command a line and answers each with one
line. Controls that ask for the interlock check are refused.

The foreign functions take data sets and report control blocks apart from the file, and of data sets
only single attributes; what the server holds is asked for by a client of the same stack.
"""
import asyncio
import json
import pathlib
import sys
import threading

sys.path.append(str(pathlib.Path(__file__).parent.parent))

import iec61850
from iec61850 import FC

from bay import SCL, Bay, set_flags
from values import to_json
from wire import Refused, commands, say

TRIGGERS = (("dchg", "data_changed"), ("qchg", "quality_changed"), ("dupd", "data_update"),
            ("period", "integrity"), ("gi", "gi"))
FIELDS = (("seqNum", "seq_num"), ("timeStamp", "time_stamp"), ("reasonCode", "reason"),
          ("dataSet", "data_set"), ("dataRef", "data_reference"), ("configRef", "conf_rev"),
          ("bufOvfl", "buffer_overflow"), ("entryID", "entry_id"))
MODELS = {0: "status-only", 1: "direct-normal", 2: "sbo-normal", 3: "direct-enhanced",
          4: "sbo-enhanced"}


class Blocked(Exception):
    add_cause = "BlockedByInterlocking"


class Server:
    def __init__(self, options):
        self.bay = Bay(options["scl"])
        self.models = {}  # the foreign functions leave out the values of a file's types
        self.port = options["port"]
        self.server = iec61850.IedServer.from_scl(options["scl"], ied_name=self.bay.name)
        self.server.vendor, self.server.model_name, self.server.revision = "foreign", "bay", "1.0"
        self.server.bind(f"127.0.0.1:{self.port}")
        if "tls" in options:
            self.secure(options["tls"])
        self.declare()

    def secure(self, tls):
        read = lambda name: pathlib.Path(tls[name]).read_bytes()
        self.server.with_tls(read("certificate"), read("key"), client_ca_pem=read("authority"))

    def declare(self):
        for device, name, members in self.bay.data_sets:
            leaves = [f"{owner}/{leaf}" for owner, path, fc in members
                      for leaf in self.bay.leaves_of(owner, path, fc)]
            self.server.add_dataset(name, leaves)
        for device, node, control, name in self.bay.reports:
            register = (self.server.register_brcb if control.get("buffered") == "true"
                        else self.server.register_urcb)
            register(f"{device}/{node}.{name}", dataset=f"{node}${control.get('datSet')}",
                     rpt_id=control.get("rptID"), conf_rev=int(control.get("confRev", "1")),
                     trg_ops=set_flags(control.find(SCL + "TrgOps"), TRIGGERS),
                     opt_flds=set_flags(control.find(SCL + "OptFields"), FIELDS),
                     buf_tm_ms=int(control.get("bufTime", "0")),
                     intg_pd_ms=int(control.get("intgPd", "0")))
        models = {("CTRL", "GGIO1.SPCSO1"): 1, ("CTRL", "GGIO1.SPCSO2"): 2,
                  ("CTRL", "GGIO1.SPCSO3"): 3, ("CTRL", "GGIO1.SPCSO4"): 4,
                  ("CTRL", "CSWI1.Pos"): 4}
        for device, path in self.bay.controls:
            if (device, path) in models:
                self.models[f"{device}/{path}.ctlModel"] = models[device, path]
                self.server.on_control(f"{device}/{path}",
                                       ctl_model=MODELS[models[device, path]],
                                       check=self.check, operate=self.operate)

    @staticmethod
    def check(_path, _value, action):
        if action["interlock_check"]:
            raise Blocked("blocked by interlocking")

    def operate(self, path, value, action):
        if action["test"]:
            return
        # A double point cannot be set by the foreign functions.
        try:
            self.server.update_bool(path + ".stVal", bool(value))
        except iec61850.IedDataAccessError:
            pass

    def set(self, reference, value):
        path = reference.removeprefix(self.bay.name)
        if isinstance(value, bool):
            return self.server.update_bool(path, value)
        (kind, content), = value.items()
        update = {"float": self.server.update_float32, "double": self.server.update_float64,
                  "integer": self.server.update_int32, "unsigned": self.server.update_uint32,
                  "text": self.server.update_string}.get(kind)
        if update is None:
            raise Refused(f"the foreign functions set no {kind}")
        return update(path, int(content) if kind in ("integer", "unsigned") else content)

    async def answer(self, command):
        name = command["do"]
        if name == "set":
            self.set(command["reference"], command["value"])
            return True
        if name == "get":
            fc = FC(command["fc"])
            kind = await self.own.get_variable_specification(command["reference"], fc)
            return to_json(await self.own.read(command["reference"], fc), kind)
        if name == "connections":
            return self.server.connection_count - (0 if self.own is None else 1)
        raise Refused(f"no such command: {name}")

    async def serve(self, waiting):
        async with self.server:
            for path, number in self.models.items():
                self.server.update_int32(path, number)
            # With TLS the stack's own client would need a certificate too; nothing is asked then.
            self.own = None
            try:
                self.own = await iec61850.IedConnection.connect(f"127.0.0.1:{self.port}")
            except iec61850.IedError:
                pass
            say({"event": "ready"})
            while (command := await waiting.get()) is not None:
                try:
                    say({"result": await self.answer(command)})
                except (Refused, iec61850.IedError, KeyError, ValueError) as error:
                    say({"failure": str(error)})


async def main():
    server = Server(json.loads(sys.argv[1]))
    waiting = asyncio.Queue()
    loop = asyncio.get_running_loop()

    def listen():
        for command in commands():
            loop.call_soon_threadsafe(waiting.put_nowait, command)
        loop.call_soon_threadsafe(waiting.put_nowait, None)

    threading.Thread(target=listen, daemon=True).start()
    try:
        await server.serve(waiting)
    except iec61850.IedServerError as error:
        say({"event": "failed", "reason": str(error)})


asyncio.run(main())
