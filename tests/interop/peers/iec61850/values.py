# SPDX-License-Identifier: Apache-2.0
"""Values of the foreign stack as JSON. It gives plain Python values; their kinds are in the type that
goes with them."""
import pathlib
import sys

sys.path.append(str(pathlib.Path(__file__).parent.parent))

from wire import Refused


def bits_text(octets, count):
    bits = "".join(format(octet, "08b") for octet in octets)
    return bits[:count]


def to_json(value, kind):
    """"kind" is a type as get_variable_specification() gives it."""
    name = kind["kind"]
    if isinstance(value, dict) and "error" in value:
        return {"error": value.get("code")}
    if name == "structure":
        return {"structure": [to_json(each, member["type"])
                              for each, member in zip(value, kind["components"], strict=True)]}
    if name == "array":
        return {"array": [to_json(each, kind["element_type"]) for each in value]}
    if name == "boolean":
        return bool(value)
    if name in ("integer", "unsigned"):
        return {name: str(value)}
    if name == "float":
        return {"float": value}
    if name == "bit_string":
        return {"bits": bits_text(value, abs(kind["bits"]))}
    if name == "visible_string":
        return {"text": value}
    if name == "mms_string":
        return {"mmsText": value}
    if name == "octet_string":
        return {"octets": bytes(value).hex()}
    if name == "utc_time":
        return {"utc": bytes(value).hex()}
    if name == "binary_time":
        return {"binaryTime": str(value)}
    raise Refused(f"no value of the kind {name}")
