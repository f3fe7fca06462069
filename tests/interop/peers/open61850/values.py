# SPDX-License-Identifier: Apache-2.0
"""Values of the foreign stack as JSON, and back."""
import datetime
import pathlib
import sys

sys.path.append(str(pathlib.Path(__file__).parent.parent))

from open61850 import data

from wire import Refused

EPOCH = datetime.datetime(1970, 1, 1, tzinfo=datetime.timezone.utc)


def to_json(value):
    if isinstance(value, data.StructureData):
        return {"structure": [to_json(each) for each in value.members]}
    if isinstance(value, data.ArrayData):
        return {"array": [to_json(each) for each in value.elements]}
    if isinstance(value, data.BoolData):
        return value.value
    if isinstance(value, data.IntData):
        return {"integer": str(value.value)}
    if isinstance(value, data.UIntData):
        return {"unsigned": str(value.value)}
    if isinstance(value, data.FloatData):
        return {"float": value.value}
    if isinstance(value, data.BitStringData):
        bits = "".join(format(octet, "08b") for octet in value.value)
        return {"bits": bits[:len(bits) - value.unused_bits]}
    if isinstance(value, data.OctetStringData):
        return {"octets": value.value.hex()}
    if isinstance(value, data.VisibleStringData):
        return {"text": value.value}
    if isinstance(value, data.MmsStringData):
        return {"mmsText": value.value}
    if isinstance(value, data.TimestampData):
        since = value.value - EPOCH
        seconds = since // datetime.timedelta(seconds=1)
        rest = (since - datetime.timedelta(seconds=seconds)) / datetime.timedelta(seconds=1)
        octets = (seconds.to_bytes(4, "big") + round(rest * 2**24).to_bytes(3, "big")
                  + bytes([value.quality]))
        return {"utc": octets.hex()}
    raise Refused(f"no value of {type(value).__name__}")


def from_json(value):
    if isinstance(value, bool):
        return data.BoolData(value)
    (kind, content), = value.items()
    if kind == "structure":
        return data.StructureData([from_json(each) for each in content])
    if kind == "array":
        return data.ArrayData([from_json(each) for each in content])
    if kind == "integer":
        return data.IntData(int(content))
    if kind == "unsigned":
        return data.UIntData(int(content))
    if kind in ("float", "double"):
        return data.FloatData(content, kind == "double")
    if kind == "bits":
        padding = -len(content) % 8
        bits = content + "0" * padding
        octets = bytes(int(bits[i:i + 8], 2) for i in range(0, len(bits), 8))
        return data.BitStringData(octets, padding)
    if kind == "octets":
        return data.OctetStringData(bytes.fromhex(content))
    if kind == "text":
        return data.VisibleStringData(content)
    if kind == "mmsText":
        return data.MmsStringData(content)
    if kind == "utc":
        octets = bytes.fromhex(content)
        time = EPOCH + datetime.timedelta(
            seconds=int.from_bytes(octets[:4], "big") + int.from_bytes(octets[4:7], "big") / 2**24)
        return data.TimestampData(time, octets[7])
    raise Refused(f"no value of the kind {kind}")
