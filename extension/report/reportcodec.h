// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <array>

/// Trigger options of a report control block (IEC 61850-7-2, clause 17.2.2).
struct TriggerOptions
{
    bool dataChange = false;
    bool qualityChange = false;
    bool dataUpdate = false;
    bool integrity = false;
    bool generalInterrogation = false;
};

/// Optional fields of a report (IEC 61850-7-2, clause 17.2.2).
struct OptionalFields
{
    bool sequenceNumber = false;
    bool timeStamp = false;
    bool reasonForInclusion = false;
    bool dataSetName = false;
    bool dataReference = false;
    bool bufferOverflow = false; ///< buffered blocks only
    bool entryId = false;        ///< buffered blocks only
    bool configurationRevision = false;
};

/// The bytes in which the attributes of a report control block travel to and from the driver: bit
/// strings as IEC 61850-8-1 lays them out, bit 0 the most significant bit of the first byte.
namespace ReportCodec {

/// Whether the block of that reference can carry the optional fields of buffered blocks.
bool isBufferedBlock(const QString &reference);

quint8 encodeTriggerOptions(const TriggerOptions &options);
TriggerOptions decodeTriggerOptions(quint8 bits);

/// Both bytes of OptFlds. Buffer overflow and entry id are left out unless `buffered`; the reserved
/// bit and segmentation are never set.
std::array<quint8, 2> encodeOptionalFields(const OptionalFields &fields, bool buffered);

/// OptFlds as read back, one '0' or '1' per bit, bit 0 first; what is beyond the end of the text is
/// not set. Buffer overflow and entry id are looked at only if `buffered`.
OptionalFields decodeOptionalFields(const QString &text, bool buffered);

/// Value of an attribute that is a text: UTF-8, no terminator.
QByteArray encodeText(const QString &text);
/// Value of an attribute that is a number: 32 bits, big-endian.
QByteArray encodeNumber(qint32 number);
/// Value of an attribute that is a flag: one byte, 1 or 0.
QByteArray encodeFlag(bool flag);

} // namespace ReportCodec
