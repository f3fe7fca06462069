# SPDX-License-Identifier: Apache-2.0
"""The C interface of the foreign stack that the Python wheel carries, and its values as JSON.

Constants come from the wheel's module, functions from the library that the module loads: the
module leaves out the handlers that the peers need.
"""
import ctypes
import glob
import os

import pyiec61850
import pyiec61850.pyiec61850 as constants

_folder = os.path.join(os.path.dirname(os.path.dirname(pyiec61850.__file__)), "pyiec61850_ng.libs")
_library = ctypes.CDLL(glob.glob(os.path.join(_folder, "libiec61850*.so*"))[0])

POINTER = ctypes.c_void_p
TEXT = ctypes.c_char_p
INT = ctypes.c_int
BOOL = ctypes.c_bool
BYTE = ctypes.c_uint8
I32 = ctypes.c_int32
U32 = ctypes.c_uint32
I64 = ctypes.c_int64
U64 = ctypes.c_uint64
FLOAT = ctypes.c_float
DOUBLE = ctypes.c_double


def function(name, result, *arguments):
    found = getattr(_library, name)
    found.restype = result
    found.argtypes = arguments
    return found


def text(octets):
    return octets.decode("utf-8", "backslashreplace") if octets is not None else ""


def text_at(address):
    return text(ctypes.cast(address, TEXT).value) if address else ""


class LinkedList(ctypes.Structure):
    pass


LinkedList._fields_ = [("data", POINTER), ("next", ctypes.POINTER(LinkedList))]

list_create = function("LinkedList_create", ctypes.POINTER(LinkedList))
list_add = function("LinkedList_add", None, ctypes.POINTER(LinkedList), POINTER)
list_destroy_static = function("LinkedList_destroyStatic", None, ctypes.POINTER(LinkedList))


def items(linked_list):
    """The data pointers of a list; its first element is the head without data."""
    result = []
    element = linked_list.contents.next
    while element:
        result.append(element.contents.data)
        element = element.contents.next
    return result


def names(linked_list):
    result = [text_at(item) for item in items(linked_list)]
    return result


(ARRAY, STRUCTURE, BOOLEAN, BIT_STRING, INTEGER, UNSIGNED, FLOATING, OCTET_STRING, VISIBLE_STRING,
 GENERALIZED_TIME, BINARY_TIME, BCD, OBJECT_ID, MMS_STRING, UTC_TIME, ACCESS_ERROR) = range(16)

_type = function("MmsValue_getType", INT, POINTER)
_array_size = function("MmsValue_getArraySize", U32, POINTER)
_element = function("MmsValue_getElement", POINTER, POINTER, INT)
_boolean = function("MmsValue_getBoolean", BOOL, POINTER)
_bits = function("MmsValue_getBitStringSize", INT, POINTER)
_bit = function("MmsValue_getBitStringBit", BOOL, POINTER, INT)
_int64 = function("MmsValue_toInt64", I64, POINTER)
_uint32 = function("MmsValue_toUint32", U32, POINTER)
_double = function("MmsValue_toDouble", DOUBLE, POINTER)
_octets = function("MmsValue_getOctetStringBuffer", POINTER, POINTER)
_octet_count = function("MmsValue_getOctetStringSize", ctypes.c_uint16, POINTER)
_string = function("MmsValue_toString", TEXT, POINTER)
_binary_time = function("MmsValue_getBinaryTimeAsUtcMs", U64, POINTER)
_utc_octets = function("MmsValue_getUtcTimeBuffer", POINTER, POINTER)
_access_error = function("MmsValue_getDataAccessError", INT, POINTER)
value_delete = function("MmsValue_delete", None, POINTER)


def to_json(value):
    if not value:
        return None
    kind = _type(value)
    if kind in (ARRAY, STRUCTURE):
        key = "array" if kind == ARRAY else "structure"
        return {key: [to_json(_element(value, i)) for i in range(_array_size(value))]}
    if kind == BOOLEAN:
        return _boolean(value)
    if kind == BIT_STRING:
        return {"bits": "".join("1" if _bit(value, i) else "0" for i in range(_bits(value)))}
    if kind == INTEGER:
        return {"integer": str(_int64(value))}
    if kind == UNSIGNED:
        return {"unsigned": str(_uint32(value))}
    if kind == FLOATING:
        return {"float": _double(value)}
    if kind == OCTET_STRING:
        return {"octets": ctypes.string_at(_octets(value), _octet_count(value)).hex()}
    if kind == VISIBLE_STRING:
        return {"text": text(_string(value))}
    if kind == MMS_STRING:
        return {"mmsText": text(_string(value))}
    if kind == BINARY_TIME:
        return {"binaryTime": str(_binary_time(value))}
    if kind == UTC_TIME:
        return {"utc": ctypes.string_at(_utc_octets(value), 8).hex()}
    if kind == ACCESS_ERROR:
        return {"error": _access_error(value)}
    return {"kind": kind}


_new_boolean = function("MmsValue_newBoolean", POINTER, BOOL)
_new_integer = function("MmsValue_newIntegerFromInt64", POINTER, I64)
_new_unsigned = function("MmsValue_newUnsignedFromUint32", POINTER, U32)
_new_float = function("MmsValue_newFloat", POINTER, FLOAT)
_new_double = function("MmsValue_newDouble", POINTER, DOUBLE)
_new_bits = function("MmsValue_newBitString", POINTER, INT)
_set_bit = function("MmsValue_setBitStringBit", None, POINTER, INT, BOOL)
_new_octets = function("MmsValue_newOctetString", POINTER, INT, INT)
_set_octets = function("MmsValue_setOctetString", None, POINTER, TEXT, INT)
_new_visible = function("MmsValue_newVisibleString", POINTER, TEXT)
_new_mms_string = function("MmsValue_newMmsString", POINTER, TEXT)
_new_utc = function("MmsValue_newUtcTime", POINTER, U32)
_set_utc = function("MmsValue_setUtcTimeByBuffer", None, POINTER, TEXT)
_new_structure = function("MmsValue_createEmptyStructure", POINTER, INT)
_new_array = function("MmsValue_createEmptyArray", POINTER, INT)
_set_element = function("MmsValue_setElement", None, POINTER, INT, POINTER)


def from_json(value):
    if isinstance(value, bool):
        return _new_boolean(value)
    (key, content), = value.items()
    if key in ("structure", "array"):
        group = (_new_structure if key == "structure" else _new_array)(len(content))
        for i, member in enumerate(content):
            _set_element(group, i, from_json(member))
        return group
    if key == "integer":
        return _new_integer(int(content))
    if key == "unsigned":
        return _new_unsigned(int(content))
    if key == "float":
        return _new_float(content)
    if key == "double":
        return _new_double(content)
    if key == "bits":
        bits = _new_bits(len(content))
        for i, bit in enumerate(content):
            _set_bit(bits, i, bit == "1")
        return bits
    if key == "octets":
        octets = bytes.fromhex(content)
        result = _new_octets(len(octets), max(len(octets), 64))
        _set_octets(result, octets, len(octets))
        return result
    if key == "text":
        return _new_visible(content.encode())
    if key == "mmsText":
        return _new_mms_string(content.encode())
    if key == "utc":
        result = _new_utc(0)
        _set_utc(result, bytes.fromhex(content))
        return result
    raise ValueError(f"no value: {value}")


def tls_configuration(options):
    """From {"certificate", "key", "authority", optionally "client": true}; files in PEM."""
    tls = function("TLSConfiguration_create", POINTER)()
    load = {"certificate": "TLSConfiguration_setOwnCertificateFromFile",
            "authority": "TLSConfiguration_addCACertificateFromFile"}
    for key, name in load.items():
        if key in options and not function(name, BOOL, POINTER, TEXT)(tls, options[key].encode()):
            raise ValueError(f"the foreign stack does not load {options[key]}")
    if "key" in options:
        load_key = function("TLSConfiguration_setOwnKeyFromFile", BOOL, POINTER, TEXT, TEXT)
        if not load_key(tls, options["key"].encode(), None):
            raise ValueError(f"the foreign stack does not load {options['key']}")
    function("TLSConfiguration_setChainValidation", None, POINTER, BOOL)(tls, True)
    function("TLSConfiguration_setAllowOnlyKnownCertificates", None, POINTER, BOOL)(tls, False)
    if options.get("client"):
        function("TLSConfiguration_setClientMode", None, POINTER)(tls)
    return tls
