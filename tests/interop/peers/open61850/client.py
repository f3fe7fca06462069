# SPDX-License-Identifier: Apache-2.0
"""A client of the foreign stack. Writes {"event": "ready"}; afterwards obeys one JSON command a line
and answers each with one line. What the foreign client has no call for is answered so.
"""
import pathlib
import sys
import threading

sys.path.append(str(pathlib.Path(__file__).parent.parent))

from open61850 import mms
from open61850.mms import rcb, types
from open61850.mms.control import cancel_value, oper_value

from values import from_json, to_json
from wire import Refused, obey_forever, say

FAILURES = (mms.MmsError, rcb.RcbError, KeyError, ValueError, OSError)
KINDS = {"boolean": 2, "bit-string": 3, "integer": 4, "unsigned": 5, "float": 6, "octet-string": 7,
         "visible-string": 8, "binary-time": 10, "mms-string": 13, "utc-time": 14}
REASONS = (("data_change", 1), ("quality_change", 2), ("data_update", 4), ("integrity", 8),
           ("general_interrogation", 16))


def type_to_json(found):
    if isinstance(found, types.StructureType):
        return {"structure": [[name, type_to_json(each)] for name, each in found.components]}
    if isinstance(found, types.ArrayType):
        return {"array": found.count, "element": type_to_json(found.element)}
    if found.kind == "binary-time":
        return {"kind": KINDS[found.kind], "size": 6 if found.size else 4}
    if found.kind not in KINDS:
        raise Refused(f"the foreign client takes a type for {found.kind}")
    return {"kind": KINDS[found.kind], "size": -1 if found.size is None else found.size}


class Client:
    def __init__(self):
        self.client = None
        self.members = {}  # by name of the data set
        self.heard = []
        self.news = threading.Condition()
        self.raw = False

    @property
    def is_ready(self):
        return self.client is not None

    def run(self, call, *arguments, **more):
        try:
            return call(*arguments, **more)
        except mms.DataAccessError as error:
            raise Refused(f"data access error {error.code}") from error
        except FAILURES as error:
            raise Refused(str(error) or type(error).__name__) from error

    @staticmethod
    def name(command):
        for key in ("element", "component", "count"):
            if key in command:
                raise Refused("the peer has no call for parts of a variable")
        return mms.ObjectName(command["item"], command.get("domain"))

    # Association

    def do_connect(self, command):
        for key, what in (("password", "passwords"), ("tls", "TLS"),
                          ("selectors", "selectors")):
            if key in command:
                raise Refused("the peer has no call for " + what)
        self.client = self.run(mms.MmsClient.connect, "127.0.0.1", command["port"],
                               on_information_report=self.hear)
        return True

    def do_conclude(self, _command):
        self.client.close()
        return True

    def do_awaitclosed(self, _command):
        self.client.wait_closed(10)
        return True

    def do_abort(self, _command):
        raise Refused("the peer has no call for it")

    def do_state(self, _command):
        return 2 if self.client is not None else 0

    # Names and types

    def do_domains(self, _command):
        return self.run(self.client.get_name_list, mms.OBJECT_CLASS_DOMAIN)

    def do_variables(self, command):
        return self.run(self.client.get_name_list, mms.OBJECT_CLASS_NAMED_VARIABLE,
                        command.get("domain"))

    def do_lists(self, command):
        if command["scope"] == "association":
            raise Refused("the peer has no call for it")
        return self.run(self.client.get_name_list, mms.OBJECT_CLASS_NAMED_VARIABLE_LIST,
                        command.get("domain"))

    def do_type(self, command):
        return type_to_json(self.run(self.client.get_type, self.name(command)))

    # Values

    def do_read(self, command):
        try:
            return to_json(self.run(self.client.read, self.name(command)))
        except Refused as refused:
            if str(refused).startswith("data access error "):
                return {"error": int(str(refused).rsplit(" ", 1)[1])}
            raise

    def results(self, found):
        return [{"error": each.code} if isinstance(each, mms.DataAccessError) else to_json(each)
                for each in found]

    def names(self, command):
        return [mms.ObjectName(item, command["domain"]) for item in command["items"]]

    def do_readmany(self, command):
        return {"array": self.results(self.run(self.client.read_many, self.names(command)))}

    def do_readtogether(self, command):
        names = self.names(command)
        found = [None] * len(names)

        def read(place):
            found[place] = to_json(self.client.read(names[place]))

        threads = [threading.Thread(target=read, args=(i,)) for i in range(len(names))]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        return found

    def do_write(self, command):
        self.run(self.client.write, self.name(command), from_json(command["value"]))
        return True

    def do_writemany(self, command):
        values = [from_json(each) for each in command["values"]]
        found = self.run(self.client.write_many, self.names(command), values)
        return [each if each is None else each.code for each in found]

    def do_members(self, command):
        found = self.run(self.client.get_data_set_members,
                         mms.ObjectName(command["name"], command.get("domain")))
        return {"members": [[each.domain, each.item] for each in found]}

    # Control

    def do_control(self, command):
        device, path = command["reference"].split("/")
        node, data = path.split(".")
        item = f"{node}$CO${data}"
        name = lambda part: mms.ObjectName(f"{item}${part}", device)
        origin = mms.Origin(3, b"foreign")
        step = command["step"]
        try:
            if step == "select":
                done = self.client.read(name("SBO")).value != ""
            elif step == "selectwithvalue":
                # The foreign client selects and operates in one call.
                done = True
            elif step == "cancel":
                self.client.write(name("Cancel"), cancel_value(True, origin=origin))
                done = True
            elif path == "GGIO1.SPCSO2":
                # Here its call would select the object itself.
                self.client.write(name("Oper"), oper_value(True, origin=origin, interlock_check=False,
                                                           synchro_check=False))
                done = True
            else:
                ended = mms.operate(self.client, command["reference"], command["value"],
                                    origin=origin, interlock_check=False, synchro_check=False)
                if ended.terminated:
                    self.note("termination")
                done = True
        except mms.ControlError as error:
            last = error.last_appl_error
            return {"done": False, "addCause": last.add_cause if last else None}
        except mms.DataAccessError:
            return {"done": False}
        return {"done": done}

    # Reports

    def note(self, news):
        with self.news:
            self.heard.append(news)
            self.news.notify_all()

    def do_listen(self, _command):
        self.raw = True
        return True

    def do_reports(self, command):
        with self.news:
            self.news.wait_for(lambda: len(self.heard) >= command["count"], 10)
            result, self.heard = self.heard, []
        return result

    def hear(self, message):
        if self.raw:
            self.note({"name": message.list_name.item, "list": True,
                       "value": {"array": self.results(message.results)}})
            return
        if not mms.is_report(message):
            return
        report = mms.decode_report(message)
        members = self.members.get(report.data_set, [])
        entries = {entry.index: entry for entry in report.entries}
        present = [entries.get(i) for i in range(len(members))]
        reason = lambda entry: 0 if entry is None or entry.reason is None else sum(
            bit for name, bit in REASONS if getattr(entry.reason, name))
        self.note({"rptId": report.rpt_id, "sqNum": report.seq_num, "confRev": report.conf_rev,
                   "dataSet": report.data_set,
                   "entryId": {"octets": report.entry_id.hex()} if report.entry_id else None,
                   "reasons": [reason(each) for each in present],
                   "references": [entry.reference if entry else member
                                  for entry, member in zip(present, members, strict=True)],
                   "values": {"array": [None if each is None else to_json(each.value)
                                        for each in present]}})

    @staticmethod
    def block(command):
        device, path = command["reference"].split("/")
        return mms.ObjectName(path.replace(".", "$"), device)

    def attribute(self, command, name):
        block = self.block(command)
        return self.run(self.client.read, mms.ObjectName(f"{block.item}${name}", block.domain))

    def do_block(self, command):
        get = lambda name: self.attribute(command, name).value
        return {"rptId": get("RptID"), "rptEna": get("RptEna"), "dataSet": get("DatSet"),
                "confRev": get("ConfRev"), "bufTm": get("BufTm")}

    def do_enable(self, command):
        block = self.block(command)
        data_set = self.attribute(command, "DatSet").value
        device, item = data_set.split("/")
        found = self.run(self.client.get_data_set_members, mms.ObjectName(item, device))
        self.members[data_set] = [f"{each.domain}/{each.item}" for each in found]
        settings = rcb.RcbSettings(None, None, None, general_interrogation=False)
        self.run(rcb.enable, self.client, block, settings)
        return True

    def do_disable(self, command):
        self.run(rcb.disable, self.client, self.block(command))
        return True

    def do_interrogate(self, command):
        block = self.block(command)
        self.run(self.client.write, mms.ObjectName(block.item + "$GI", block.domain),
                 from_json(True))
        return True

    # The view of IEC 61850

    def do_devices(self, _command):
        return list(self.run(mms.discover, self.client).logical_devices)

    def do_nodes(self, command):
        model = self.run(mms.discover, self.client)
        return list(model.logical_devices[command["device"]].logical_nodes)

    def do_object(self, command):
        return to_json(self.run(self.client.read, f"{command['reference']}[{command['fc']}]"))


say({"event": "ready"})
obey_forever(Client())
