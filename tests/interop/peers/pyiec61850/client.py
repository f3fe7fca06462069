# SPDX-License-Identifier: Apache-2.0
"""A client of the foreign stack.

Reads one JSON command a line, {"do": NAME, ...}, and answers each with one line: {"result": VALUE}
or {"failure": REASON}. Reports are collected and handed out by "reports".
"""
import ctypes
import pathlib
import sys
import threading
import time

sys.path.append(str(pathlib.Path(__file__).parent.parent))

from foreign import (BOOL, BYTE, I32, INT, POINTER, TEXT, U32, U64, constants, from_json, function, items,
                     list_add, list_create, list_destroy_static, names, text, text_at,
                     tls_configuration, to_json, value_delete)
from wire import Refused, obey_forever, say

MMS_ERRORS = {getattr(constants, name): name[len("MMS_ERROR_"):].lower().replace("_", "-")
              for name in dir(constants) if name.startswith("MMS_ERROR_")}
IED_ERRORS = {getattr(constants, name): name[len("IED_ERROR_"):].lower().replace("_", "-")
              for name in dir(constants) if name.startswith("IED_ERROR_")}

ReportHandler = ctypes.CFUNCTYPE(None, POINTER, POINTER)
TerminationHandler = ctypes.CFUNCTYPE(None, POINTER, POINTER)
InformationHandler = ctypes.CFUNCTYPE(None, POINTER, TEXT, TEXT, POINTER, BOOL)
FileBlockHandler = ctypes.CFUNCTYPE(None, POINTER, I32, ctypes.POINTER(BYTE), U32)
FileEntryHandler = ctypes.CFUNCTYPE(None, POINTER, TEXT, U32, U64)
ReadHandler = ctypes.CFUNCTYPE(None, U32, POINTER, INT, POINTER)


class Identity(ctypes.Structure):
    _fields_ = [("vendor", TEXT), ("model", TEXT), ("revision", TEXT)]


class Access(ctypes.Structure):
    _fields_ = [("domain", TEXT), ("item", TEXT), ("index", I32), ("component", TEXT)]


class LastError(ctypes.Structure):
    _fields_ = [("ctlNum", INT), ("error", INT), ("addCause", INT)]


class Selector(ctypes.Structure):
    _fields_ = [("size", BYTE), ("value", BYTE * 16)]


class TransportSelector(ctypes.Structure):
    _fields_ = [("size", BYTE), ("value", BYTE * 4)]


def selector(kind, octets):
    data = bytes.fromhex(octets)
    result = kind()
    result.size = len(data)
    for i, octet in enumerate(data):
        result.value[i] = octet
    return result


class Client:
    def __init__(self):
        self.connection = None
        self.mms = None
        self.kept = []
        self.heard = []
        self.news = threading.Condition()
        self.blocks = {}
        self.controls = {}

    # Calls of the foreign interface whose first arguments are the connection and the error.

    def ask(self, name, result, *arguments, kinds=()):
        error = INT(0)
        value = function("MmsConnection_" + name, result, POINTER, ctypes.POINTER(INT), *kinds)(
            self.mms, ctypes.byref(error), *arguments)
        if error.value:
            raise Refused(MMS_ERRORS.get(error.value, str(error.value)))
        return value

    def ask_ied(self, name, result, *arguments, kinds=()):
        error = INT(0)
        value = function("IedConnection_" + name, result, POINTER, ctypes.POINTER(INT), *kinds)(
            self.connection, ctypes.byref(error), *arguments)
        if error.value:
            raise Refused(IED_ERRORS.get(error.value, str(error.value)))
        return value

    def value(self, pointer):
        result = to_json(pointer)
        value_delete(pointer)
        return result

    def list_of(self, texts):
        result = list_create()
        for each in texts:
            octets = ctypes.create_string_buffer(each.encode())
            self.kept.append(octets)
            list_add(result, ctypes.cast(octets, POINTER))
        return result

    # Association

    def do_connect(self, command):
        # Now and then the foreign client takes a fresh connection for lost without sending anything.
        for _ in range(5):
            self.connect(command)
            try:
                return self.do_status(command) is not None
            except Refused as refused:
                if str(refused) != "connection-lost":
                    return True
                self.do_close(command)
        raise Refused("the foreign client loses every connection")

    def connect(self, command):
        tls = command.get("tls")
        if tls:
            tls = tls_configuration(dict(tls, client=True))
            self.connection = function("IedConnection_createWithTlsSupport", POINTER, POINTER)(tls)
        else:
            self.connection = function("IedConnection_create", POINTER)()
        self.mms = function("IedConnection_getMmsConnection", POINTER, POINTER)(self.connection)
        function("IedConnection_setRequestTimeout", None, POINTER, U32)(self.connection, 10000)
        parameters = function("MmsConnection_getIsoConnectionParameters", POINTER, POINTER)(self.mms)
        if "password" in command:
            credentials = function("AcseAuthenticationParameter_create", POINTER)()
            function("AcseAuthenticationParameter_setAuthMechanism", None, POINTER, INT)(
                credentials, constants.ACSE_AUTH_PASSWORD)
            function("AcseAuthenticationParameter_setPassword", None, POINTER, TEXT)(
                credentials, command["password"].encode())
            function("IsoConnectionParameters_setAcseAuthenticationParameter", None, POINTER,
                     POINTER)(parameters, credentials)
        if "selectors" in command:
            given = command["selectors"]
            function("IsoConnectionParameters_setRemoteAddresses", None, POINTER, Selector, Selector,
                     TransportSelector)(parameters, selector(Selector, given["presentation"]),
                                        selector(Selector, given["session"]),
                                        selector(TransportSelector, given["transport"]))
        if "title" in command:
            function("IsoConnectionParameters_setRemoteApTitle", None, POINTER, TEXT, INT)(
                parameters, command["title"].encode(), command["qualifier"])
        if "filestore" in command:
            function("IedConnection_setFilestoreBasepath", None, POINTER, TEXT)(
                self.connection, command["filestore"].encode())
        self.ask_ied("connect", None, b"127.0.0.1", command["port"], kinds=(TEXT, INT))

    def do_listen(self, _command):
        """Hear information reports as they are, instead of as reports of IEC 61850."""
        handler = InformationHandler(self.hear)
        self.kept.append(handler)
        function("MmsConnection_setInformationReportHandler", None, POINTER, InformationHandler,
                 POINTER)(self.mms, handler, None)
        return True

    def hear(self, _parameter, domain, name, value, is_list):
        self.note({"domain": text(domain), "name": text(name), "list": is_list,
                   "value": to_json(value)})

    def note(self, news):
        with self.news:
            self.heard.append(news)
            self.news.notify_all()

    def do_reports(self, command):
        """What was heard, once there are "count" of them or the time is up."""
        with self.news:
            self.news.wait_for(lambda: len(self.heard) >= command["count"], 10)
            result, self.heard = self.heard, []
        return result

    def do_conclude(self, _command):
        self.ask_ied("release", None)
        return True

    def do_close(self, _command):
        """Connects again afterwards, or does nothing more."""
        function("IedConnection_close", None, POINTER)(self.connection)
        function("IedConnection_destroy", None, POINTER)(self.connection)
        self.connection = self.mms = None
        return True

    def do_abort(self, _command):
        self.ask_ied("abort", None)
        return True

    def do_state(self, _command):
        return function("IedConnection_getState", INT, POINTER)(self.connection)

    def do_awaitclosed(self, _command):
        """Until the connection is closed, for at most ten seconds."""
        end = time.monotonic() + 10
        while self.do_state(None) != 0 and time.monotonic() < end:
            threading.Event().wait(0.01)
        return self.do_state(None) == 0

    # Generic services

    def do_status(self, _command):
        logical, physical = INT(-1), INT(-1)
        self.ask("getServerStatus", None, ctypes.byref(logical), ctypes.byref(physical), False,
                 kinds=(ctypes.POINTER(INT), ctypes.POINTER(INT), BOOL))
        return [logical.value, physical.value]

    def do_identify(self, _command):
        identity = self.ask("identify", ctypes.POINTER(Identity)).contents
        return [text(identity.vendor), text(identity.model), text(identity.revision)]

    def do_domains(self, _command):
        return names(self.ask("getDomainNames", POINTER_LIST))

    def do_variables(self, command):
        if "domain" in command:
            return names(self.ask("getDomainVariableNames", POINTER_LIST,
                                  command["domain"].encode(), kinds=(TEXT,)))
        return names(self.ask("getVMDVariableNames", POINTER_LIST))

    def do_lists(self, command):
        if command["scope"] == "domain":
            return names(self.ask("getDomainVariableListNames", POINTER_LIST,
                                  command["domain"].encode(), kinds=(TEXT,)))
        if command["scope"] == "association":
            return names(self.ask("getVariableListNamesAssociationSpecific", POINTER_LIST))
        return names(self.ask("getDomainVariableListNames", POINTER_LIST, None, kinds=(TEXT,)))

    def do_journals(self, command):
        return names(self.ask("getDomainJournals", POINTER_LIST, command["domain"].encode(),
                              kinds=(TEXT,)))

    def do_type(self, command):
        specification = self.ask("getVariableAccessAttributes", POINTER,
                                 command["domain"].encode(), command["item"].encode(),
                                 kinds=(TEXT, TEXT))
        result = self.type_of(specification)
        function("MmsVariableSpecification_destroy", None, POINTER)(specification)
        return result

    def type_of(self, specification):
        kind = function("MmsVariableSpecification_getType", INT, POINTER)(specification)
        size = function("MmsVariableSpecification_getSize", INT, POINTER)(specification)
        if kind == 1:
            child = function("MmsVariableSpecification_getChildSpecificationByIndex", POINTER,
                             POINTER, INT)
            name = function("MmsVariableSpecification_getName", TEXT, POINTER)
            members = [child(specification, i) for i in range(size)]
            return {"structure": [[text(name(each)), self.type_of(each)] for each in members]}
        if kind == 0:
            element = function("MmsVariableSpecification_getArrayElementSpecification", POINTER,
                               POINTER)(specification)
            return {"array": size, "element": self.type_of(element)}
        return {"kind": kind, "size": size}

    def do_read(self, command):
        arguments = [command["domain"].encode() if "domain" in command else None,
                     command["item"].encode()]
        if "element" in command and "component" in command:
            return self.value(self.ask("readSingleArrayElementWithComponent", POINTER, *arguments,
                                       command["element"], command["component"].encode(),
                                       kinds=(TEXT, TEXT, U32, TEXT)))
        if "element" in command:
            return self.value(self.ask("readArrayElements", POINTER, *arguments,
                                       command["element"], command.get("count", 0),
                                       kinds=(TEXT, TEXT, U32, U32)))
        if "component" in command:
            return self.value(self.ask("readVariableComponent", POINTER, *arguments,
                                       command["component"].encode(), kinds=(TEXT, TEXT, TEXT)))
        return self.value(self.ask("readVariable", POINTER, *arguments, kinds=(TEXT, TEXT)))

    def do_readmany(self, command):
        wanted = self.list_of(command["items"])
        return self.value(self.ask("readMultipleVariables", POINTER, command["domain"].encode(),
                                   wanted, kinds=(TEXT, POINTER_LIST)))

    def do_readlist(self, command):
        if "domain" in command:
            return self.value(self.ask("readNamedVariableListValues", POINTER,
                                       command["domain"].encode(), command["name"].encode(), True,
                                       kinds=(TEXT, TEXT, BOOL)))
        return self.value(self.ask("readNamedVariableListValuesAssociationSpecific", POINTER,
                                   command["name"].encode(), False, kinds=(TEXT, BOOL)))

    def do_readtogether(self, command):
        """Single reads that are all on the way at the same time."""
        results, done = {}, threading.Condition()
        failures = []

        def answered(invoke, _parameter, error, value):
            with done:
                if error:
                    failures.append(MMS_ERRORS.get(error, str(error)))
                results[invoke] = to_json(value)
                done.notify_all()

        handler = ReadHandler(answered)
        self.kept.append(handler)
        send = function("MmsConnection_readVariableAsync", None, POINTER, ctypes.POINTER(U32),
                        ctypes.POINTER(INT), TEXT, TEXT, ReadHandler, POINTER)
        order = []
        for item in command["items"]:
            invoke, error = U32(0), INT(0)
            send(self.mms, ctypes.byref(invoke), ctypes.byref(error), command["domain"].encode(),
                 item.encode(), handler, None)
            if error.value:
                raise Refused(MMS_ERRORS.get(error.value, str(error.value)))
            order.append(invoke.value)
        with done:
            done.wait_for(lambda: len(results) == len(order), 10)
        if failures:
            raise Refused(failures[0])
        return [results.get(invoke) for invoke in order]

    def written(self, code):
        if code != constants.DATA_ACCESS_ERROR_SUCCESS:
            raise Refused(f"data access error {code}")
        return True

    def do_write(self, command):
        arguments = [command["domain"].encode() if "domain" in command else None,
                     command["item"].encode()]
        value = from_json(command["value"])
        # A write that is refused sets the error as well; the code says more.
        error = INT(0)
        if "element" in command:
            code = function("MmsConnection_writeArrayElements", INT, POINTER, ctypes.POINTER(INT),
                            TEXT, TEXT, INT, INT, POINTER)(
                                self.mms, ctypes.byref(error), *arguments, command["element"],
                                command["count"], value)
        elif "component" in command:
            code = function("MmsConnection_writeVariableComponent", INT, POINTER,
                            ctypes.POINTER(INT), TEXT, TEXT, TEXT, POINTER)(
                                self.mms, ctypes.byref(error), *arguments,
                                command["component"].encode(), value)
        else:
            code = function("MmsConnection_writeVariable", INT, POINTER, ctypes.POINTER(INT), TEXT,
                            TEXT, POINTER)(self.mms, ctypes.byref(error), *arguments, value)
        value_delete(value)
        if error.value and code == constants.DATA_ACCESS_ERROR_SUCCESS:
            raise Refused(MMS_ERRORS.get(error.value, str(error.value)))
        return self.written(code)

    def write_results(self, call):
        results = ctypes.POINTER(type(list_create().contents))()
        error = INT(0)
        call(ctypes.byref(error), ctypes.byref(results))
        if error.value:
            raise Refused(MMS_ERRORS.get(error.value, str(error.value)))
        codes = [to_json(each)["error"] for each in items(results)] if results else []
        return [None if code == constants.DATA_ACCESS_ERROR_SUCCESS else code for code in codes]

    def do_writemany(self, command):
        wanted = self.list_of(command["items"])
        values = list_create()
        for each in command["values"]:
            list_add(values, from_json(each))
        call = function("MmsConnection_writeMultipleVariables", None, POINTER, ctypes.POINTER(INT),
                        TEXT, POINTER_LIST, POINTER_LIST, ctypes.POINTER(POINTER_LIST))
        return self.write_results(lambda error, results: call(
            self.mms, error, command["domain"].encode(), wanted, values, results))

    def do_writelist(self, command):
        values = list_create()
        for each in command["values"]:
            list_add(values, from_json(each))
        call = function("MmsConnection_writeNamedVariableList", None, POINTER, ctypes.POINTER(INT),
                        BOOL, TEXT, TEXT, POINTER_LIST, ctypes.POINTER(POINTER_LIST))
        domain = command["domain"].encode() if "domain" in command else None
        return self.write_results(lambda error, results: call(
            self.mms, error, domain is None, domain, command["name"].encode(), values, results))

    # Named variable lists

    def do_define(self, command):
        members = list_create()
        create = function("MmsVariableAccessSpecification_create", POINTER, POINTER, POINTER)
        copy = ctypes.CDLL(None).strdup  # the specification frees its texts
        copy.restype, copy.argtypes = POINTER, (TEXT,)
        for domain, item in command["members"]:
            list_add(members, create(copy(domain.encode()), copy(item.encode())))
        if "domain" in command:
            self.ask("defineNamedVariableList", None, command["domain"].encode(),
                     command["name"].encode(), members, kinds=(TEXT, TEXT, POINTER_LIST))
        elif command.get("scope") == "vmd":
            self.ask("defineNamedVariableList", None, None, command["name"].encode(), members,
                     kinds=(TEXT, TEXT, POINTER_LIST))
        else:
            self.ask("defineNamedVariableListAssociationSpecific", None, command["name"].encode(),
                     members, kinds=(TEXT, POINTER_LIST))
        return True

    def do_members(self, command):
        deletable = BOOL(False)
        if "domain" in command:
            found = self.ask("readNamedVariableListDirectory", POINTER_LIST,
                             command["domain"].encode(), command["name"].encode(),
                             ctypes.byref(deletable),
                             kinds=(TEXT, TEXT, ctypes.POINTER(BOOL)))
        else:
            found = self.ask("readNamedVariableListDirectoryAssociationSpecific", POINTER_LIST,
                             command["name"].encode(), ctypes.byref(deletable),
                             kinds=(TEXT, ctypes.POINTER(BOOL)))
        members = [ctypes.cast(each, ctypes.POINTER(Access)).contents for each in items(found)]
        return {"deletable": deletable.value,
                "members": [[text(each.domain), text(each.item)] for each in members]}

    def do_delete(self, command):
        if "domain" in command:
            return self.ask("deleteNamedVariableList", BOOL, command["domain"].encode(),
                            command["name"].encode(), kinds=(TEXT, TEXT))
        return self.ask("deleteAssociationSpecificNamedVariableList", BOOL,
                        command["name"].encode(), kinds=(TEXT,))

    # Files

    def do_fileopen(self, command):
        size, modified = U32(0), U64(0)
        state = self.ask("fileOpen", I32, command["file"].encode(), command.get("position", 0),
                         ctypes.byref(size), ctypes.byref(modified),
                         kinds=(TEXT, U32, ctypes.POINTER(U32), ctypes.POINTER(U64)))
        return {"state": state, "size": size.value}

    def do_fileread(self, command):
        content = []

        def take(_parameter, _state, octets, count):
            content.append(ctypes.string_at(octets, count))

        more = self.ask("fileRead", BOOL, command["state"], FileBlockHandler(take), None,
                        kinds=(I32, FileBlockHandler, POINTER))
        return {"more": more, "octets": b"".join(content).hex()}

    def do_fileclose(self, command):
        self.ask("fileClose", None, command["state"], kinds=(I32,))
        return True

    def do_filedelete(self, command):
        self.ask("fileDelete", None, command["file"].encode(), kinds=(TEXT,))
        return True

    def do_filerename(self, command):
        self.ask("fileRename", None, command["file"].encode(), command["to"].encode(),
                 kinds=(TEXT, TEXT))
        return True

    def do_obtain(self, command):
        self.ask("obtainFile", None, command["source"].encode(), command["destination"].encode(),
                 kinds=(TEXT, TEXT))
        return True

    def do_files(self, command):
        found = []

        def take(_parameter, name, size, modified):
            found.append([text(name), size, modified])

        handler = FileEntryHandler(take)
        folder = command.get("folder")
        self.ask("getFileDirectory", BOOL, folder.encode() if folder else None, None, handler, None,
                 kinds=(TEXT, TEXT, FileEntryHandler, POINTER))
        return found

    # Journals

    def do_journal(self, command):
        more = BOOL(False)
        start = function("MmsValue_newBinaryTime", POINTER, BOOL)(False)
        end = function("MmsValue_newBinaryTime", POINTER, BOOL)(False)
        set_time = function("MmsValue_setBinaryTime", None, POINTER, U64)
        set_time(start, command["from"])
        set_time(end, command["to"])
        found = self.ask("readJournalTimeRange", POINTER_LIST, command["domain"].encode(),
                         command["name"].encode(), start, end, ctypes.byref(more),
                         kinds=(TEXT, TEXT, POINTER, POINTER, ctypes.POINTER(BOOL)))
        return {"more": more.value, "entries": len(items(found))}

    # Control

    def do_control(self, command):
        reference = command["reference"]
        if reference not in self.controls:
            created = function("ControlObjectClient_create", POINTER, TEXT, POINTER)(
                reference.encode(), self.connection)
            if not created:
                raise Refused("the foreign client does not take the object for a control")
            handler = TerminationHandler(lambda _parameter, _control: self.note("termination"))
            self.kept.append(handler)
            function("ControlObjectClient_setCommandTerminationHandler", None, POINTER,
                     TerminationHandler, POINTER)(created, handler, None)
            self.controls[reference] = created
        control = self.controls[reference]
        for key in ("interlock", "synchro"):
            name = {"interlock": "setInterlockCheck", "synchro": "setSynchroCheck"}[key]
            function("ControlObjectClient_" + name, None, POINTER, BOOL)(control,
                                                                      command.get(key, False))
        function("ControlObjectClient_setOrigin", None, POINTER, TEXT, INT)(
            control, command.get("identification", "foreign").encode(), command.get("category", 3))
        step = command["step"]
        if step == "model":
            return function("ControlObjectClient_getControlModel", INT, POINTER)(control)
        if step == "select":
            done = function("ControlObjectClient_select", BOOL, POINTER)(control)
        elif step == "cancel":
            done = function("ControlObjectClient_cancel", BOOL, POINTER)(control)
        else:
            value = from_json(command["value"])
            if step == "selectwithvalue":
                done = function("ControlObjectClient_selectWithValue", BOOL, POINTER, POINTER)(
                    control, value)
            else:
                done = function("ControlObjectClient_operate", BOOL, POINTER, POINTER, U64)(
                    control, value, 0)
            value_delete(value)
        if not done:
            last = function("ControlObjectClient_getLastApplError", LastError, POINTER)(control)
            return {"done": False, "addCause": last.addCause, "error": last.error}
        return {"done": True}

    # Report control blocks

    def block(self, reference):
        if reference not in self.blocks:
            self.blocks[reference] = self.ask_ied("getRCBValues", POINTER, reference.encode(), None,
                                                  kinds=(TEXT, POINTER))
        return self.blocks[reference]

    def do_block(self, command):
        self.blocks.pop(command["reference"], None)
        block = self.block(command["reference"])
        get = lambda name, kind: function("ClientReportControlBlock_" + name, kind, POINTER)(block)
        return {"rptId": text(get("getRptId", TEXT)), "rptEna": get("getRptEna", BOOL),
                "dataSet": text(get("getDataSetReference", TEXT)),
                "confRev": get("getConfRev", U32), "trgOps": get("getTrgOps", INT),
                "optFlds": get("getOptFlds", INT), "bufTm": get("getBufTm", U32),
                "intgPd": get("getIntgPd", U32)}

    def do_enable(self, command):
        reference = command["reference"]
        block = self.block(reference)
        identification = function("ClientReportControlBlock_getRptId", TEXT, POINTER)(block)
        handler = ReportHandler(self.hear_report)
        self.kept.append(handler)
        install = function("IedConnection_installReportHandler", None, POINTER, TEXT, TEXT,
                           ReportHandler, POINTER)
        install(self.connection, reference.encode(), identification, handler, None)
        set_value = lambda name, kind, value: function(
            "ClientReportControlBlock_" + name, None, POINTER, kind)(block, value)
        mask = constants.RCB_ELEMENT_RPT_ENA
        if "trgOps" in command:
            set_value("setTrgOps", INT, command["trgOps"])
            mask |= constants.RCB_ELEMENT_TRG_OPS
        if "intgPd" in command:
            set_value("setIntgPd", U32, command["intgPd"])
            mask |= constants.RCB_ELEMENT_INTG_PD
        set_value("setRptEna", BOOL, True)
        self.set_block(block, mask)
        return True

    def set_block(self, block, mask):
        self.ask_ied("setRCBValues", None, block, mask, True, kinds=(POINTER, U32, BOOL))

    def do_disable(self, command):
        block = self.block(command["reference"])
        function("ClientReportControlBlock_setRptEna", None, POINTER, BOOL)(block, False)
        self.set_block(block, constants.RCB_ELEMENT_RPT_ENA)
        return True

    def do_interrogate(self, command):
        self.ask_ied("triggerGIReport", None, command["reference"].encode(), kinds=(TEXT,))
        return True

    def hear_report(self, _parameter, report):
        get = lambda name, kind: function("ClientReport_" + name, kind, POINTER)(report)
        values = to_json(get("getDataSetValues", POINTER))
        reason = function("ClientReport_getReasonForInclusion", INT, POINTER, INT)
        reference = function("ClientReport_getDataReference", TEXT, POINTER, INT)
        count = len(values["array"]) if values else 0
        has_entry = get("getEntryId", POINTER)
        self.note({"rptId": text(get("getRptId", TEXT)),
                   "sqNum": get("getSeqNum", ctypes.c_uint16) if get("hasSeqNum", BOOL) else None,
                   "confRev": get("getConfRev", U32) if get("hasConfRev", BOOL) else None,
                   "dataSet": text(get("getDataSetName", TEXT)) if get("hasDataSetName", BOOL)
                              else None,
                   "hasTime": get("hasTimestamp", BOOL),
                   "entryId": to_json(has_entry) if has_entry else None,
                   "reasons": [reason(report, i) for i in range(count)],
                   "references": [text(reference(report, i)) for i in range(count)]
                                 if get("hasDataReference", BOOL) else None,
                   "values": values})

    # The view of IEC 61850

    def do_devices(self, _command):
        return names(self.ask_ied("getLogicalDeviceList", POINTER_LIST))

    def do_nodes(self, command):
        return names(self.ask_ied("getLogicalDeviceDirectory", POINTER_LIST,
                                  command["device"].encode(), kinds=(TEXT,)))

    def do_object(self, command):
        fc = getattr(constants, "IEC61850_FC_" + command["fc"])
        return self.value(self.ask_ied("readObject", POINTER, command["reference"].encode(), fc,
                                       kinds=(TEXT, INT)))

    def do_getfile(self, command):
        content = []

        def take(_parameter, octets, count):
            content.append(ctypes.string_at(octets, count))
            return True

        kind = ctypes.CFUNCTYPE(BOOL, POINTER, ctypes.POINTER(BYTE), U32)
        size = self.ask_ied("getFile", U32, command["file"].encode(), kind(take), None,
                            kinds=(TEXT, kind, POINTER))
        joined = b"".join(content)
        if size != len(joined):
            raise Refused(f"{size} octets announced, {len(joined)} came")
        return joined.hex()

    def do_setfile(self, command):
        self.ask_ied("setFile", None, command["source"].encode(), command["destination"].encode(),
                     kinds=(TEXT, TEXT))
        return True

    # How long the same call takes "count" times, in seconds; for benchmarks.

    def seconds(self, command, call):
        call()
        start = time.perf_counter()
        for _ in range(command["count"]):
            call()
        return time.perf_counter() - start

    def timed(self, name, result, kinds, arguments, release):
        ask = function("MmsConnection_" + name, result, POINTER, ctypes.POINTER(INT), *kinds)
        error = INT(0)
        failure = ctypes.byref(error)

        def call():
            value = ask(self.mms, failure, *arguments)
            if error.value or not value:
                raise Refused(MMS_ERRORS.get(error.value, str(error.value)))
            release(value)

        return call

    def do_timeread(self, command):
        arguments = (command["domain"].encode(), command["item"].encode())
        return self.seconds(command, self.timed("readVariable", POINTER, (TEXT, TEXT), arguments,
                                                value_delete))

    def do_timereadmany(self, command):
        arguments = (command["domain"].encode(), self.list_of(command["items"]))
        return self.seconds(command, self.timed("readMultipleVariables", POINTER,
                                                (TEXT, POINTER_LIST), arguments, value_delete))

    def do_timereadlist(self, command):
        arguments = (command["domain"].encode(), command["name"].encode(), False)
        return self.seconds(command, self.timed("readNamedVariableListValues", POINTER,
                                                (TEXT, TEXT, BOOL), arguments, value_delete))

    def do_timediscovery(self, command):
        """All names of the server and the types of "items", one call after the other."""
        release_list = function("LinkedList_destroy", None, POINTER_LIST)
        release_type = function("MmsVariableSpecification_destroy", None, POINTER)
        calls = [self.timed("getDomainNames", POINTER_LIST, (), (), release_list)]
        for domain in sorted({domain for domain, _item in command["items"]}):
            calls += [self.timed(names_of, POINTER_LIST, (TEXT,), (domain.encode(),), release_list)
                      for names_of in ("getDomainVariableNames", "getDomainVariableListNames",
                                       "getDomainJournals")]
        calls += [self.timed("getVariableAccessAttributes", POINTER, (TEXT, TEXT),
                             (domain.encode(), item.encode()), release_type)
                  for domain, item in command["items"]]
        return self.seconds(command, lambda: [call() for call in calls])

    def do_timegetfile(self, command):
        kind = ctypes.CFUNCTYPE(BOOL, POINTER, ctypes.POINTER(BYTE), U32)
        received = []

        def take(_parameter, _octets, count):
            received.append(count)
            return True

        handler = kind(take)
        start = time.perf_counter()
        size = self.ask_ied("getFile", U32, command["file"].encode(), handler, None,
                            kinds=(TEXT, kind, POINTER))
        seconds = time.perf_counter() - start
        if sum(received) != size or size != command["size"]:
            raise Refused(f"{size} octets announced, {sum(received)} came")
        return seconds

    def do_timesetfile(self, command):
        start = time.perf_counter()
        self.do_setfile(command)
        return time.perf_counter() - start


POINTER_LIST = ctypes.POINTER(type(list_create().contents))


say({"event": "ready"})
obey_forever(Client())
