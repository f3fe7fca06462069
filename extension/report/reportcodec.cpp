// SPDX-License-Identifier: Apache-2.0
#include "reportcodec.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

namespace {

enum TriggerBit : quint8 {
    DataChangeBit = 0x40,
    QualityChangeBit = 0x20,
    DataUpdateBit = 0x10,
    IntegrityBit = 0x08,
    GeneralInterrogationBit = 0x04,
};

/// Numbers of the bits, counted from the most significant bit of the first byte.
enum OptionalFieldPosition {
    SequenceNumberPosition = 1,
    TimeStampPosition = 2,
    ReasonForInclusionPosition = 3,
    DataSetNamePosition = 4,
    DataReferencePosition = 5,
    BufferOverflowPosition = 6,
    EntryIdPosition = 7,
    ConfigurationRevisionPosition = 8,
};

} // namespace

bool ReportCodec::isBufferedBlock(const QString &reference)
{
    return reference.contains(QLatin1String("$BR"));
}

quint8 ReportCodec::encodeTriggerOptions(const TriggerOptions &options)
{
    const auto bit = [](bool set, TriggerBit value) { return set ? value : 0; };
    return static_cast<quint8>(
        bit(options.dataChange, DataChangeBit) | bit(options.qualityChange, QualityChangeBit) |
        bit(options.dataUpdate, DataUpdateBit) | bit(options.integrity, IntegrityBit) |
        bit(options.generalInterrogation, GeneralInterrogationBit));
}

TriggerOptions ReportCodec::decodeTriggerOptions(quint8 bits)
{
    TriggerOptions options;
    options.dataChange = bits & DataChangeBit;
    options.qualityChange = bits & QualityChangeBit;
    options.dataUpdate = bits & DataUpdateBit;
    options.integrity = bits & IntegrityBit;
    options.generalInterrogation = bits & GeneralInterrogationBit;
    return options;
}

std::array<quint8, 2> ReportCodec::encodeOptionalFields(const OptionalFields &fields, bool buffered)
{
    std::array<quint8, 2> bytes = {0, 0};
    const auto setIf = [&bytes](bool set, OptionalFieldPosition position) {
        quint8 &byte = bytes[static_cast<std::size_t>(position / 8)];
        if (set)
            byte = static_cast<quint8>(byte | (0x80U >> (position % 8)));
    };
    setIf(fields.sequenceNumber, SequenceNumberPosition);
    setIf(fields.timeStamp, TimeStampPosition);
    setIf(fields.reasonForInclusion, ReasonForInclusionPosition);
    setIf(fields.dataSetName, DataSetNamePosition);
    setIf(fields.dataReference, DataReferencePosition);
    setIf(buffered && fields.bufferOverflow, BufferOverflowPosition);
    setIf(buffered && fields.entryId, EntryIdPosition);
    setIf(fields.configurationRevision, ConfigurationRevisionPosition);
    return bytes;
}

OptionalFields ReportCodec::decodeOptionalFields(const QString &text, bool buffered)
{
    const auto isSet = [&text](OptionalFieldPosition position) {
        return position < text.size() && text.at(position) == QLatin1Char('1');
    };
    OptionalFields fields;
    fields.sequenceNumber = isSet(SequenceNumberPosition);
    fields.timeStamp = isSet(TimeStampPosition);
    fields.reasonForInclusion = isSet(ReasonForInclusionPosition);
    fields.dataSetName = isSet(DataSetNamePosition);
    fields.dataReference = isSet(DataReferencePosition);
    fields.bufferOverflow = buffered && isSet(BufferOverflowPosition);
    fields.entryId = buffered && isSet(EntryIdPosition);
    fields.configurationRevision = isSet(ConfigurationRevisionPosition);
    return fields;
}

QByteArray ReportCodec::encodeText(const QString &text)
{
    return text.toUtf8();
}

QByteArray ReportCodec::encodeNumber(qint32 number)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::BigEndian);
    stream << number;
    return bytes;
}

QByteArray ReportCodec::encodeFlag(bool flag)
{
    return QByteArray(1, flag ? '\x01' : '\x00');
}
