# SPDX-License-Identifier: Apache-2.0
"""A client of the foreign stack. Writes {"event": "ready"}; afterwards obeys one JSON command a line
and answers each with one line. What the foreign client has no call for is answered so.
"""
import asyncio
import pathlib
import sys
import threading

sys.path.append(str(pathlib.Path(__file__).parent.parent))

import iec61850
from iec61850 import FC, AcsiClass, ControlModel, DataSetMember, RcbWriteMask

from values import to_json
from wire import Refused, obey_forever, reference_of, say

KINDS = {"boolean": 2, "bit_string": 3, "integer": 4, "unsigned": 5, "float": 6, "octet_string": 7,
         "visible_string": 8, "binary_time": 10, "mms_string": 13, "utc_time": 14}
SIZES = {"bit_string": "bits", "integer": "width_bits", "unsigned": "width_bits",
         "float": "format_width", "octet_string": "max_octets", "visible_string": "max_chars",
         "mms_string": "max_chars"}
REASONS = (("data_change", 1), ("quality_change", 2), ("data_update", 4), ("integrity", 8),
           ("general_interrogation", 16))
MODELS = {"GGIO1.SPCSO1": ControlModel.DIRECT_NORMAL, "GGIO1.SPCSO2": ControlModel.SBO_NORMAL,
          "GGIO1.SPCSO3": ControlModel.DIRECT_ENHANCED, "CSWI1.Pos": ControlModel.SBO_ENHANCED}


def type_to_json(kind):
    name = kind["kind"]
    if name == "structure":
        return {"structure": [[each["name"], type_to_json(each["type"])]
                              for each in kind["components"]]}
    if name == "array":
        return {"array": kind["element_count"], "element": type_to_json(kind["element_type"])}
    return {"kind": KINDS[name], "size": kind.get(SIZES.get(name), -1)}


class Client:
    """The foreign functions are coroutines; they run in a thread of their own."""

    def __init__(self):
        self.connection = None
        self.controls = {}
        self.dispatcher = None
        self.heard = []
        self.news = threading.Condition()
        self.loop = asyncio.new_event_loop()
        threading.Thread(target=self.loop.run_forever, daemon=True).start()

    @property
    def is_ready(self):
        return self.connection is not None

    def run(self, coroutine):
        try:
            return asyncio.run_coroutine_threadsafe(coroutine, self.loop).result(30)
        except (iec61850.IedError, NotImplementedError, ValueError, KeyError, TypeError) as error:
            raise Refused(str(error)) from error

    # Association

    def do_connect(self, command):
        if "password" in command:
            raise Refused("the peer has no call for passwords")
        iso = {}
        if "selectors" in command:
            given = {name: bytes.fromhex(octets) for name, octets in command["selectors"].items()}
            iso = {"remote_t_sel": given["transport"], "remote_s_sel": given["session"],
                   "remote_p_sel": given["presentation"]}
        if "title" in command:
            iso.update(remote_ap_title=command["title"], remote_ae_qualifier=command["qualifier"])
        self.run(self.connect(command, iec61850.IsoConnectionParameters(**iso) if iso else None))
        return True

    async def connect(self, command, iso):
        address = f"127.0.0.1:{command['port']}"
        if "tls" not in command:
            self.connection = await iec61850.IedConnection.connect(address, iso=iso)
            return
        read = lambda name: pathlib.Path(command["tls"][name]).read_bytes()
        tls = iec61850.TlsConfig(read("authority"), read("certificate"), read("key"),
                                 verify_hostname=False)
        self.connection = await iec61850.IedConnection.connect_tls(address, tls, "127.0.0.1",
                                                                   iso=iso)

    def do_conclude(self, _command):
        self.run(self.connection.disconnect())
        return True

    def do_abort(self, _command):
        self.run(self.connection.abort())
        return True

    def do_state(self, _command):
        return 2 if self.connection.is_connected else 0

    def do_awaitclosed(self, _command):
        for _ in range(1000):
            if not self.connection.is_connected:
                return True
            threading.Event().wait(0.01)
        return False

    # Names and types

    def do_domains(self, _command):
        return self.run(self.connection.get_server_directory())

    def do_variables(self, command):
        if "domain" not in command:
            raise Refused("the peer has no call for it")
        model = self.run(self.connection.get_device_model(True))
        return next(device["variables"] for device in model["logical_devices"]
                    if device["name"] == command["domain"])

    def do_lists(self, command):
        if command["scope"] != "domain":
            raise Refused("the peer has no call for it")
        found = self.run(self.connection.get_logical_node_directory(command["domain"] + "/LLN0",
                                                                    AcsiClass.DATASET))
        return ["LLN0$" + name for name in found]

    def do_type(self, command):
        if "$" not in command["item"]:
            raise Refused("the peer has no call for the type of a logical node")
        reference, fc = reference_of(command["domain"], command["item"])
        return type_to_json(self.run(self.connection.get_variable_specification(reference, FC(fc))))

    # Values

    async def read(self, reference, fc, **part):
        kind = await self.connection.get_variable_specification(reference, fc)
        value = await self.connection.read(reference, fc, **part)
        if "array_index" in part:
            kind = kind["element_type"]
        for name in part.get("component", "").split(".") if "component" in part else ():
            kind = next(each["type"] for each in kind["components"] if each["name"] == name)
        return to_json(value, kind)

    def do_read(self, command):
        if "$" not in command["item"] or command["item"].count("$") < 2:
            raise Refused("the peer has no call for a whole functional constraint")
        if "count" in command:
            raise Refused("the peer has no call for several elements")
        reference, fc = reference_of(command["domain"], command["item"])
        part = {}
        if "element" in command:
            part["array_index"] = command["element"]
            if "component" in command:
                part["component"] = command["component"].replace("$", ".")
        elif "component" in command:
            raise Refused("the peer has no call for a component without an element")
        try:
            return self.run(self.read(reference, FC(fc), **part))
        except Refused as refused:
            if "ObjectNonExistent" in str(refused) or "Access(2)" in str(refused):
                return {"error": 10}
            raise

    async def read_many(self, targets):
        values = await self.connection.read_multiple(targets, strict=False)
        result, kinds = [], {}
        for (reference, fc), value in zip(targets, values, strict=True):
            if isinstance(value, iec61850.DataAccessFailure):
                result.append({"error": value.code})
                continue
            if (reference, fc) not in kinds:
                kinds[reference, fc] = await self.connection.get_variable_specification(reference,
                                                                                        fc)
            result.append(to_json(value, kinds[reference, fc]))
        return {"array": result}

    def targets(self, command):
        found = [reference_of(command["domain"], item) for item in command["items"]]
        return [(reference, FC(fc)) for reference, fc in found]

    def do_readmany(self, command):
        return self.run(self.read_many(self.targets(command)))

    def do_readtogether(self, command):
        async def together():
            return await asyncio.gather(*(self.read(*each) for each in self.targets(command)))
        return self.run(together())

    async def read_list(self, reference):
        members = (await self.connection.get_data_set_directory(reference)).members
        values = await self.connection.get_data_set_values(reference, strict=False)
        kinds = [await self.connection.get_variable_specification(each.object_ref, each.fc)
                 for each in members]
        return {"array": [to_json(*each) for each in zip(values, kinds, strict=True)]}

    def list_name(self, command):
        if "domain" not in command:
            if command.get("scope") == "vmd":
                raise Refused("the peer has no call for it")
            return "@" + command["name"]
        return f"{command['domain']}/{command['name'].replace('$', '.')}"

    def do_readlist(self, command):
        return self.run(self.read_list(self.list_name(command)))

    def do_write(self, command):
        if "count" in command:
            raise Refused("the peer has no call for several elements")
        reference, fc = reference_of(command["domain"], command["item"])
        value = command["value"]
        write = self.connection.write
        if isinstance(value, dict):
            (kind, value), = value.items()
            if kind == "unsigned":
                value, write = int(value), self.connection.write_uint32
            elif kind == "integer":
                value = int(value)
            elif kind == "octets":
                value = bytes.fromhex(value)
            elif kind in ("bits", "utc", "mmsText"):
                raise Refused(f"the peer has no call for writing {kind}")
        part = {"array_index": command["element"]} if "element" in command else {}
        try:
            self.run(write(reference, FC(fc), value, **part))
        except Refused as refused:
            if "ObjectAccessDenied" in str(refused):
                raise Refused("data access error 3") from refused
            raise
        return True

    # Data sets

    def do_define(self, command):
        members = []
        for domain, item in command["members"]:
            reference, fc = reference_of(domain, item)
            members.append(DataSetMember(reference, FC(fc)))
        self.run(self.connection.create_data_set(self.list_name(command), members))
        return True

    def do_members(self, command):
        found = self.run(self.connection.get_data_set_directory(self.list_name(command)))
        members = []
        for each in found.members:
            domain, path = each.object_ref.split("/")
            node, _, data = path.partition(".")
            members.append([domain, "$".join([node, each.fc.value] + data.split("."))])
        return {"deletable": found.deletable, "members": members}

    def do_delete(self, command):
        return self.run(self.connection.delete_data_set(self.list_name(command)))

    def do_writelist(self, command):
        values = []
        for each in command["values"]:
            (kind, content), = each.items()
            values.append(int(content) if kind in ("integer", "unsigned") else content)
        self.run(self.connection.set_data_set_values(self.list_name(command), values))
        return [None] * len(values)

    # Control

    def do_control(self, command):
        reference = command["reference"]
        if reference not in self.controls:
            self.controls[reference] = self.connection.create_control_object(
                reference, MODELS[reference.split("/")[1]])
        control = self.controls[reference]
        control.set_origin(iec61850.OriginValue(3, b"foreign"))
        step = command["step"]
        call = {"select": control.select, "cancel": lambda: control.cancel(True),
                "selectwithvalue": lambda: control.select_with_value(command["value"]),
                "operate": lambda: control.operate(command["value"])}[step]
        try:
            outcome = self.run(call())
        except Refused as refused:
            return {"done": False, "reason": str(refused)}
        if isinstance(outcome, bool):
            return {"done": outcome}
        if not outcome.success:
            # The causes are in the order of their numbers.
            causes = list(iec61850.ControlAddCause)
            return {"done": False,
                    "addCause": causes.index(outcome.add_cause) if outcome.add_cause else None}
        if step == "operate" and "ENHANCED" in control.ctl_model.name:
            self.note("termination")
        return {"done": True}

    # Reports

    def note(self, news):
        with self.news:
            self.heard.append(news)
            self.news.notify_all()

    def do_reports(self, command):
        with self.news:
            self.news.wait_for(lambda: len(self.heard) >= command["count"], 10)
            result, self.heard = self.heard, []
        return result

    def do_block(self, command):
        block = self.run(self.connection.get_rcb_values(command["reference"]))
        return {"rptId": block.rpt_id, "rptEna": block.rpt_ena,
                "dataSet": block.dataset, "confRev": block.conf_rev, "bufTm": block.buf_time_ms}

    def hear(self, kinds, report):
        given = {entry.ref: entry for entry in report.entries}
        present = [given.get(reference) for reference in kinds]
        reason = lambda entry: 0 if entry is None or entry.reason is None else sum(
            bit for name, bit in REASONS if getattr(entry.reason, name))
        value = lambda entry, kind: None if entry is None else to_json(entry.value, kind)
        self.note({"rptId": report.rpt_id, "sqNum": report.sequence_number,
                   "confRev": report.conf_rev, "dataSet": report.dataset_name,
                   "entryId": {"octets": report.entry_id.hex()} if report.entry_id else None,
                   "reasons": [reason(each) for each in present],
                   "references": list(kinds),
                   "values": {"array": [value(*each)
                                        for each in zip(present, kinds.values(), strict=True)]}})

    async def enable(self, reference):
        block = await self.connection.get_rcb_values(reference)
        data_set = block.dataset.replace("$", ".")
        kinds = {}
        for each in (await self.connection.get_data_set_directory(data_set)).members:
            domain, path = each.object_ref.split("/")
            node, _, data = path.partition(".")
            item = "$".join([node, each.fc.value] + data.split("."))
            kinds[f"{domain}/{item}"] = await self.connection.get_variable_specification(
                each.object_ref, each.fc)
        await self.connection.install_report_handler(
            reference, lambda report: self.hear(kinds, report), rpt_id=block.rpt_id)
        block.rpt_ena = True
        await self.connection.set_rcb_values(block, RcbWriteMask.fields("rpt_ena"))
        if self.dispatcher is None:
            self.dispatcher = self.connection.spawn_report_dispatcher(20)

    def do_enable(self, command):
        self.run(self.enable(command["reference"]))
        return True

    async def disable(self, reference):
        block = await self.connection.get_rcb_values(reference)
        block.rpt_ena = False
        await self.connection.set_rcb_values(block, RcbWriteMask.fields("rpt_ena"))

    def do_disable(self, command):
        self.run(self.disable(command["reference"]))
        return True

    def do_interrogate(self, command):
        self.run(self.connection.trigger_gi(command["reference"]))
        return True

    # The view of IEC 61850

    def do_devices(self, _command):
        return self.do_domains(None)

    def do_nodes(self, command):
        return self.run(self.connection.get_logical_device_directory(command["device"]))

    def do_object(self, command):
        return self.run(self.read(command["reference"], FC(command["fc"])))


say({"event": "ready"})
obey_forever(Client())
