# SPDX-License-Identifier: Apache-2.0
"""A server of the foreign stack, with the model of an SCL file.

Usage: server.py OPTIONS, a JSON object: {"scl": FILE, "port": N, "files": FOLDER,
optionally "password": TEXT, "tls": {...}}. Writes {"event": "ready"} when it serves; afterwards
obeys one JSON command a line and answers each with one line. Controls that ask for the interlock
check are refused.
"""
import ctypes
import json
import pathlib
import queue
import sys
import threading
import xml.etree.ElementTree as xml

sys.path.append(str(pathlib.Path(__file__).parent.parent))

from foreign import (BOOL, BYTE, DOUBLE, FLOAT, I32, I64, INT, POINTER, TEXT, U32, U64, constants,
                     from_json, function, tls_configuration, to_json, value_delete)
from wire import commands, say

SCL = "{http://www.iec.ch/61850/2003/SCL}"

TYPES = {"BOOLEAN": "BOOLEAN", "INT8": "INT8", "INT16": "INT16", "INT32": "INT32",
         "INT64": "INT64", "INT8U": "INT8U", "INT16U": "INT16U", "INT32U": "INT32U",
         "FLOAT32": "FLOAT32", "FLOAT64": "FLOAT64", "Enum": "ENUMERATED", "Dbpos": "CODEDENUM",
         "Check": "CHECK", "Quality": "QUALITY", "Timestamp": "TIMESTAMP",
         "VisString32": "VISIBLE_STRING_32", "VisString64": "VISIBLE_STRING_64",
         "VisString129": "VISIBLE_STRING_129", "VisString255": "VISIBLE_STRING_255",
         "ObjRef": "VISIBLE_STRING_129", "Unicode255": "UNICODE_STRING_255",
         "Octet64": "OCTET_STRING_64", "Struct": "CONSTRUCTED"}
DBPOS = ["intermediate", "off", "on", "bad"]

model_create = function("IedModel_create", POINTER, TEXT)
device_create = function("LogicalDevice_create", POINTER, TEXT, POINTER)
node_create = function("LogicalNode_create", POINTER, TEXT, POINTER)
object_create = function("DataObject_create", POINTER, TEXT, POINTER, INT)
attribute_create = function("DataAttribute_create", POINTER, TEXT, POINTER, INT, INT, BYTE, INT, U32)
attribute_set_value = function("DataAttribute_setValue", None, POINTER, POINTER)
data_set_create = function("DataSet_create", POINTER, TEXT, POINTER)
entry_create = function("DataSetEntry_create", POINTER, POINTER, TEXT, INT, TEXT)
report_create = function("ReportControlBlock_create", POINTER, TEXT, POINTER, TEXT, BOOL, TEXT, U32,
                         BYTE, BYTE, U32, U32)
groups_create = function("SettingGroupControlBlock_create", POINTER, POINTER, BYTE, BYTE)

update = function("IedServer_updateAttributeValue", None, POINTER, POINTER, POINTER)
attribute_value = function("IedServer_getAttributeValue", POINTER, POINTER, POINTER)
lock_model = function("IedServer_lockDataModel", None, POINTER)
unlock_model = function("IedServer_unlockDataModel", None, POINTER)

ControlHandler = ctypes.CFUNCTYPE(INT, POINTER, POINTER, POINTER, BOOL)
CheckHandler = ctypes.CFUNCTYPE(INT, POINTER, POINTER, POINTER, BOOL, BOOL)
Authenticator = ctypes.CFUNCTYPE(BOOL, POINTER, POINTER, POINTER, POINTER)
GroupHandler = ctypes.CFUNCTYPE(BOOL, POINTER, POINTER, BYTE, POINTER)
GroupConfirmed = ctypes.CFUNCTYPE(None, POINTER, POINTER, BYTE)


def fc_number(name):
    return getattr(constants, "IEC61850_FC_" + name)


class Model:
    """The first IED of an SCL file, built with the foreign stack's functions."""

    def __init__(self, path):
        root = xml.parse(path).getroot()
        templates = root.find(SCL + "DataTypeTemplates")
        self.types = {child.get("id"): child for child in templates}
        ied = root.find(SCL + "IED")
        self.name = ied.get("name")
        self.model = model_create(self.name.encode())
        self.attributes = {}  # "LD/LN.Data.attribute[FC]": its pointer and bType
        self.controls = {}    # "LD/LN.Data": pointer of the object
        self.settings = {}    # "LD": {reference without FC: [value of group 1, ...]}
        self.groups = {}      # "LD": pointer of the control block
        for device in ied.iter(SCL + "LDevice"):
            self.add_device(device)

    def add_device(self, device):
        name = self.name + device.get("inst")
        pointer = device_create(device.get("inst").encode(), self.model)
        for node in [device.find(SCL + "LN0")] + device.findall(SCL + "LN"):
            self.add_node(name, pointer, node)

    def add_node(self, device, parent, node):
        name = node.get("prefix", "") + node.get("lnClass") + node.get("inst", "")
        pointer = node_create(name.encode(), parent)
        reference = f"{device}/{name}"
        instances = {doi.get("name"): doi for doi in node.findall(SCL + "DOI")}
        for member in self.types[node.get("lnType")]:
            self.add_object(reference, device, pointer, member, instances.get(member.get("name")))
        for data_set in node.findall(SCL + "DataSet"):
            self.add_data_set(pointer, data_set)
        for control in node.findall(SCL + "ReportControl"):
            self.add_reports(reference, pointer, control)
        control = node.find(SCL + "SettingControl")
        if control is not None:
            self.groups[device] = groups_create(pointer, int(control.get("actSG", "1")),
                                                int(control.get("numOfSGs")))

    def add_object(self, parent_reference, device, parent, member, instance):
        name = member.get("name")
        reference = f"{parent_reference}.{name}"
        pointer = object_create(name.encode(), parent, int(member.get("count", "0")))
        parts = {} if instance is None else {part.get("name"): part for part in instance}
        for child in self.types[member.get("type")]:
            if child.tag == SCL + "SDO" and child.get("count"):
                continue  # these functions give the elements of such an array no members
            if child.tag == SCL + "SDO":
                self.add_object(reference, device, pointer, child, parts.get(child.get("name")))
            elif child.tag == SCL + "DA":
                fc = child.get("fc")
                for each in ("SG", "SE") if fc == "SG" else (fc,):
                    self.add_attribute(reference, device, pointer, child, each,
                                       parts.get(child.get("name")))
                if child.get("name") == "Oper":
                    self.controls[reference] = pointer

    def add_attribute(self, parent_reference, device, parent, attribute, fc, instance,
                      inherited=0):
        name = attribute.get("name")
        reference = f"{parent_reference}.{name}"
        basic = attribute.get("bType")
        triggers = ((constants.TRG_OPT_DATA_CHANGED if attribute.get("dchg") == "true" else 0)
                    | (constants.TRG_OPT_QUALITY_CHANGED if attribute.get("qchg") == "true" else 0)
                    | (constants.TRG_OPT_DATA_UPDATE if attribute.get("dupd") == "true" else 0)
                    | inherited)
        kind = getattr(constants, "IEC61850_" + TYPES[basic])
        pointer = attribute_create(name.encode(), parent, kind, fc_number(fc), triggers,
                                   int(attribute.get("count", "0")), 0)
        if basic == "Struct":
            parts = {} if instance is None else {part.get("name"): part for part in instance}
            for child in self.types[attribute.get("type")]:
                if child.tag == SCL + "BDA":
                    self.add_attribute(reference, device, pointer, child, fc,
                                       parts.get(child.get("name")), triggers)
            return
        self.attributes[f"{reference}[{fc}]"] = (pointer, basic)
        values = attribute.findall(SCL + "Val")
        if instance is not None and instance.findall(SCL + "Val"):
            values = instance.findall(SCL + "Val")
        if not values:
            return
        converted = [self.value(basic, attribute.get("type"), value.text or "") for value in values]
        if fc == "SG":
            self.settings.setdefault(device, {})[reference] = converted
        if converted[0] is not None:
            attribute_set_value(pointer, from_json(converted[0]))

    def value(self, basic, enumeration, text):
        if basic == "BOOLEAN":
            return text == "true"
        if basic == "Enum":
            for entry in self.types[enumeration]:
                if entry.text == text:
                    return {"integer": entry.get("ord")}
            return {"integer": text}
        if basic == "Dbpos":
            return {"bits": format(DBPOS.index(text), "02b")}
        if basic.startswith("INT"):
            return {"unsigned" if basic.endswith("U") else "integer": text}
        if basic == "FLOAT32":
            return {"float": float(text)}
        if basic == "FLOAT64":
            return {"double": float(text)}
        if basic.startswith("Vis"):
            return {"text": text}
        if basic == "Unicode255":
            return {"mmsText": text}
        return None

    def add_data_set(self, node, data_set):
        pointer = data_set_create(data_set.get("name").encode(), node)
        for member in data_set.findall(SCL + "FCDA"):
            name = member.get("prefix", "") + member.get("lnClass") + member.get("lnInst", "")
            path = [name, member.get("fc")]
            for key in ("doName", "daName"):
                if member.get(key):
                    path += member.get(key).split(".")
            entry_create(pointer, "$".join(path).encode(), -1, None)

    def add_reports(self, reference, node, control):
        triggers = control.find(SCL + "TrgOps")
        fields = control.find(SCL + "OptFields")
        trg = sum(bit for key, bit in (("dchg", 1), ("qchg", 2), ("dupd", 4), ("period", 8),
                                       ("gi", 16))
                  if triggers is not None and triggers.get(key, "true" if key == "gi" else "")
                  == "true")
        opt = sum(bit for key, bit in (("seqNum", 1), ("timeStamp", 2), ("reasonCode", 4),
                                       ("dataSet", 8), ("dataRef", 16), ("bufOvfl", 32),
                                       ("entryID", 64), ("configRef", 128))
                  if fields is not None and fields.get(key) == "true")
        enabled = control.find(SCL + "RptEnabled")
        count = 1 if enabled is None else int(enabled.get("max", "1"))
        data_set = control.get("datSet")
        for i in range(1, count + 1):
            indexed = control.get("indexed", "true") == "true"
            name = control.get("name") + (f"{i:02d}" if indexed else "")
            identification = control.get("rptID")
            report_create(name.encode(), node, identification.encode() if identification else None,
                          control.get("buffered") == "true",
                          data_set.encode() if data_set else None,
                          int(control.get("confRev", "1")), trg, opt, int(control.get("bufTime", "0")),
                          int(control.get("intgPd", "0")))


class Server:
    def __init__(self, options):
        self.model = Model(options["scl"])
        self.kept = []  # handlers must outlive the server
        config = function("IedServerConfig_create", POINTER)()
        set_bool = lambda name, value: function(name, None, POINTER, BOOL)(config, value)
        set_bool("IedServerConfig_enableFileService", True)
        set_bool("IedServerConfig_enableDynamicDataSetService", True)
        set_bool("IedServerConfig_enableEditSG", True)
        set_bool("IedServerConfig_enableOwnerForRCB", True)
        folder = options["files"].rstrip("/") + "/"
        function("IedServerConfig_setFileServiceBasePath", None, POINTER, TEXT)(config,
                                                                             folder.encode())
        function("IedServerConfig_setReportBufferSize", None, POINTER, INT)(config, 200000)
        function("IedServerConfig_setMaxMmsConnections", None, POINTER, INT)(config, 10)
        tls = tls_configuration(options["tls"]) if "tls" in options else None
        create = function("IedServer_createWithConfig", POINTER, POINTER, POINTER, POINTER)
        self.server = create(self.model.model, tls, config)
        function("IedServer_setServerIdentity", None, POINTER, TEXT, TEXT, TEXT)(
            self.server, b"foreign", b"bay", b"1.0")
        # Writes to set points are what clients are here to do.
        policy = function("IedServer_setWriteAccessPolicy", None, POINTER, INT, INT)
        for fc in ("SP", "CF", "SV", "SE"):
            policy(self.server, fc_number(fc), 0)
        self.control_all()
        self.serve_groups()
        if "password" in options:
            self.ask_password(options["password"])
        # With a thread of its own the foreign server looks for requests every ten milliseconds
        # only.
        function("IedServer_startThreadless", None, POINTER, INT)(self.server, options["port"])
        self.waiting = queue.SimpleQueue()
        self.ends = False
        self.thread = threading.Thread(target=self.serve)
        self.thread.start()

    def serve(self):
        process = function("IedServer_processIncomingData", None, POINTER)
        work = function("IedServer_performPeriodicTasks", None, POINTER)
        while not self.ends:
            process(self.server)  # waits a millisecond for something to come
            work(self.server)
            while not self.waiting.empty():
                command, answer = self.waiting.get()
                answer.put(self.obey(command))

    def ask(self, command):
        """Has the serving thread obey a command."""
        answer = queue.SimpleQueue()
        self.waiting.put((command, answer))
        return answer.get()

    def is_running(self):
        return function("IedServer_isRunning", BOOL, POINTER)(self.server)

    def keep(self, callback):
        self.kept.append(callback)
        return callback

    def attribute(self, reference, fc):
        pointer, basic = self.model.attributes[f"{reference}[{fc}]"]
        return pointer, basic

    def set(self, reference, fc, value):
        pointer, _ = self.attribute(reference, fc)
        foreign = from_json(value)
        update(self.server, pointer, foreign)
        value_delete(foreign)

    def control_all(self):
        set_check = function("IedServer_setPerformCheckHandler", None, POINTER, POINTER,
                             CheckHandler, POINTER)
        set_control = function("IedServer_setControlHandler", None, POINTER, POINTER,
                               ControlHandler, POINTER)
        set_cause = function("ControlAction_setAddCause", None, POINTER, INT)
        boolean = function("MmsValue_getBoolean", BOOL, POINTER)

        def check(action, _parameter, _value, _test, interlock):
            if interlock:
                set_cause(action, 10)
                return constants.CONTROL_TEMPORARILY_UNAVAILABLE
            return constants.CONTROL_ACCEPTED

        for reference, pointer in self.model.controls.items():
            def control(_action, _parameter, value, test, reference=reference):
                if not test:
                    on = boolean(value)
                    _, basic = self.attribute(reference + ".stVal", "ST")
                    double = {"bits": "10" if on else "01"}
                    self.set(reference + ".stVal", "ST", double if basic == "Dbpos" else on)
                return constants.CONTROL_RESULT_OK

            set_check(self.server, pointer, self.keep(CheckHandler(check)), None)
            set_control(self.server, pointer, self.keep(ControlHandler(control)), None)

    def serve_groups(self):
        for device, block in self.model.groups.items():
            settings = self.model.settings.get(device, {})

            def activate(_parameter, _block, group, _connection, settings=settings):
                for reference, values in settings.items():
                    self.set(reference, "SG", values[group - 1])
                return True

            def edit(_parameter, _block, group, _connection, settings=settings):
                for reference, values in settings.items():
                    self.set(reference, "SE", values[group - 1])
                return True

            def confirm(_parameter, _block, group, settings=settings):
                for reference, values in settings.items():
                    pointer, _ = self.attribute(reference, "SE")
                    values[group - 1] = to_json(attribute_value(self.server, pointer))

            for name, kind, handler in (
                    ("setActiveSettingGroupChangedHandler", GroupHandler, activate),
                    ("setEditSettingGroupChangedHandler", GroupHandler, edit),
                    ("setEditSettingGroupConfirmationHandler", GroupConfirmed, confirm)):
                function("IedServer_" + name, None, POINTER, POINTER, kind, POINTER)(
                    self.server, block, self.keep(kind(handler)), None)

    def ask_password(self, password):
        mechanism = function("AcseAuthenticationParameter_getAuthMechanism", INT, POINTER)
        octets = function("AcseAuthenticationParameter_getPassword", POINTER, POINTER)
        length = function("AcseAuthenticationParameter_getPasswordLength", INT, POINTER)

        def authenticate(_parameter, given, _token, _application):
            if not given or mechanism(given) != constants.ACSE_AUTH_PASSWORD:
                return False
            return ctypes.string_at(octets(given), length(given)) == password.encode()

        function("IedServer_setAuthenticator", None, POINTER, Authenticator, POINTER)(
            self.server, self.keep(Authenticator(authenticate)), None)

    def obey(self, command):
        try:
            return {"result": self.answer(command)}
        except (KeyError, ValueError) as error:
            return {"failure": str(error)}

    def answer(self, command):
        name = command["do"]
        if name == "set":
            lock_model(self.server)
            self.set(command["reference"], command["fc"], command["value"])
            unlock_model(self.server)
            return True
        if name == "get":
            pointer, _ = self.attribute(command["reference"], command["fc"])
            return to_json(attribute_value(self.server, pointer))
        if name == "connections":
            return function("IedServer_getNumberOfOpenConnections", INT, POINTER)(self.server)
        raise ValueError(f"no such command: {name}")

    def stop(self):
        self.ends = True
        self.thread.join()
        function("IedServer_stopThreadless", None, POINTER)(self.server)
        function("IedServer_destroy", None, POINTER)(self.server)


def main():
    server = Server(json.loads(sys.argv[1]))
    if not server.is_running():
        say({"event": "failed", "reason": "the port cannot be used"})
        server.stop()
        return 1
    say({"event": "ready", "attributes": len(server.model.attributes)})
    for command in commands():
        say(server.ask(command))
    server.stop()
    return 0


sys.exit(main())
