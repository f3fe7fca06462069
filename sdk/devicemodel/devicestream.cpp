// SPDX-License-Identifier: Apache-2.0
#include "devicestream.h"

#include "attributeindex.h"
#include "attributevalue.h"
#include "bytereader.h"
#include "bytewriter.h"
#include "physicaldevice.h"

#include <QtCore/QBuffer>
#include <QtCore/QIODevice>

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr quint32 magic = 0x49444D31; // "IDM1"
constexpr quint16 formatVersion = 1;
constexpr int deepestNesting = 32;

// A list that claims more records grows as they come: claims alone must not take memory.
constexpr int mostReserved = 1024;

// Fewest bytes that a record takes: what a count is checked against.
constexpr int textBytes = 4;
constexpr int countBytes = 4;
constexpr int logicalDeviceBytes = 1 + textBytes + countBytes;
constexpr int logicalNodeBytes = 1 + 2 * textBytes + countBytes + 2 * (textBytes + countBytes) + 1;
constexpr int dataObjectBytes = 1 + countBytes + 2 * textBytes;
constexpr int nodeBytes = 4 + 1 + 2 * textBytes + countBytes;
constexpr int dataSetBytes = 1 + textBytes + 1 + countBytes;
constexpr int memberBytes = 1 + textBytes;
constexpr int reportBlockBytes = 1 + 1 + 5 * textBytes + 3 * 4 + 13;
constexpr int enumTypeBytes = 2 * textBytes + countBytes;
constexpr int enumValueBytes = 4 + textBytes;

/// All bytes that can be read from the device now, without taking them.
QByteArray availableBytes(QIODevice *device)
{
    constexpr qint64 firstPeek = qint64(64) * 1024;
    constexpr qint64 largestPeek = std::numeric_limits<int>::max() - 64;
    qint64 wanted = qBound(firstPeek, device->bytesAvailable() + 1, largestPeek);
    for (;;) {
        QByteArray bytes = device->peek(wanted);
        if (bytes.size() < wanted || wanted == largestPeek)
            return bytes;
        wanted = qMin(wanted * 2, largestPeek);
    }
}

class DeviceReader
{
public:
    DeviceReader(const char *bytes, int size, AttributeIndex &index)
        : m_in(bytes, size)
        , m_index(index)
    {
    }

    void read(PhysicalDevice &device)
    {
        if (m_in.number<quint32>() != magic || m_in.number<quint16>() != formatVersion) {
            m_in.refuse();
            return;
        }
        device.name = m_in.text();
        readList(device.logicalDevices, logicalDeviceBytes, &DeviceReader::readLogicalDevice);
        readList(device.dataSets, dataSetBytes, &DeviceReader::readDataSet);
        device.offline = m_in.flag();
        readEnumTypes(device.enumTypes);
    }

    int consumed() const { return m_in.consumed(); }
    QDataStream::Status status() const { return m_in.status(); }

private:
    /// Append the records of a list one by one, each before its own lists are read: what malformed
    /// bytes leave behind has an owner.
    template <typename Record>
    void readList(QList<Record *> &list, int recordBytes,
                  void (DeviceReader::*readRecord)(Record &))
    {
        const int count = m_in.count(recordBytes);
        list.reserve(qMin(count, mostReserved));
        for (int i = 0; i < count && m_in.ok(); ++i) {
            auto *record = new Record;
            list.append(record);
            (this->*readRecord)(*record);
        }
    }

    void readLogicalDevice(LogicalDevice &device)
    {
        device.present = m_in.flag();
        device.name = m_in.text();
        readList(device.logicalNodes, logicalNodeBytes, &DeviceReader::readLogicalNode);
    }

    void readLogicalNode(LogicalNode &node)
    {
        node.present = m_in.flag();
        node.lnClass = m_in.text();
        node.name = m_in.text();
        readList(node.dataObjects, dataObjectBytes, &DeviceReader::readDataObject);
        if (!m_in.ok())
            return;
        node.dataSetGroup->name = m_in.text();
        readList(node.dataSetGroup->dataSets, dataSetBytes, &DeviceReader::readDataSet);
        if (!m_in.ok())
            return;
        node.reportControls->name = m_in.text();
        readList(node.reportControls->blocks, reportBlockBytes, &DeviceReader::readReportBlock);
        if (m_in.flag()) {
            node.settingGroup = new SettingGroupControl;
            node.settingGroup->name = m_in.text();
            node.settingGroup->state = m_in.number<qint32>();
            node.settingGroup->numOfSG = m_in.number<qint32>();
            node.settingGroup->activeGroup = m_in.number<qint32>();
        }
    }

    void readDataObject(DataObject &object)
    {
        object.present = m_in.flag();
        readNodes(object.attributes, 1);
        object.type = m_in.text();
        object.name = m_in.text();
    }

    void readNodes(QList<DAO *> &nodes, int depth)
    {
        const int count = m_in.count(nodeBytes);
        if (count > 0 && depth > deepestNesting) {
            m_in.refuse();
            return;
        }
        nodes.reserve(qMin(count, mostReserved));
        for (int i = 0; i < count && m_in.ok(); ++i) {
            auto *node = new DAO;
            nodes.append(node);
            node->state = m_in.number<quint32>();
            if (m_in.flag()) {
                node->attribute = new DataAttribute;
                readAttribute(*node->attribute);
            } else {
                node->subDataObject = new SubDataObject;
                node->subDataObject->name = m_in.text();
                node->subDataObject->type = m_in.text();
            }
            readNodes(node->children, depth + 1);
        }
    }

    void readAttribute(DataAttribute &attribute)
    {
        attribute.present = m_in.flag();
        attribute.name = m_in.text();
        attribute.fc = m_in.text();
        attribute.enumTypeId = m_in.text();
        attribute.basicType = m_in.text();
        attribute.value = readValue();
        attribute.reference = m_in.uniqueText();
        m_index.add(&attribute);
    }

    QVariant readValue()
    {
        const quint32 type = m_in.number<quint32>();
        const bool null = m_in.flag();
        QVariant value;
        switch (type) {
        case AttributeValue::Invalid:
            return value;
        case AttributeValue::Bool:
            value = m_in.flag();
            break;
        case AttributeValue::Int:
            value = m_in.number<qint32>();
            break;
        case AttributeValue::UInt:
            value = m_in.number<quint32>();
            break;
        case AttributeValue::LongLong:
            value = m_in.number<qint64>();
            break;
        case AttributeValue::ULongLong:
            value = m_in.number<quint64>();
            break;
        case AttributeValue::Double:
            value = m_in.real();
            break;
        case AttributeValue::Float: {
            const double number = m_in.real();
            if (std::isfinite(number) && std::abs(number) > std::numeric_limits<float>::max())
                m_in.refuse();
            else
                value = static_cast<float>(number);
            break;
        }
        case AttributeValue::Text:
            value = m_in.text();
            break;
        case AttributeValue::Bytes:
            value = m_in.bytes();
            break;
        default:
            m_in.refuse();
            break;
        }
        return null && m_in.ok() ? QVariant(static_cast<QVariant::Type>(type)) : value;
    }

    void readDataSet(DataSet &dataSet)
    {
        dataSet.state = m_in.number<quint8>();
        dataSet.name = m_in.text();
        dataSet.deletable = m_in.flag();
        readList(dataSet.members, memberBytes, &DeviceReader::readMember);
    }

    void readMember(DataSetMember &member)
    {
        member.state = m_in.number<quint8>();
        member.reference = m_in.text();
    }

    void readReportBlock(ReportControlBlock &block)
    {
        block.enabled = m_in.flag();
        block.state = m_in.number<quint8>();
        block.name = m_in.text();
        block.type = m_in.text();
        block.reference = m_in.text();
        block.rptId = m_in.text();
        block.dataSet = m_in.text();
        block.confRev = m_in.number<qint32>();
        block.integrityPeriod = m_in.number<qint32>();
        block.bufferTime = m_in.number<qint32>();
        block.triggerDataChange = m_in.flag();
        block.triggerQualityChange = m_in.flag();
        block.triggerDataUpdate = m_in.flag();
        block.triggerIntegrity = m_in.flag();
        block.triggerGeneralInterrogation = m_in.flag();
        block.optSequenceNumber = m_in.flag();
        block.optTimeStamp = m_in.flag();
        block.optReasonForInclusion = m_in.flag();
        block.optDataSetName = m_in.flag();
        block.optDataReference = m_in.flag();
        block.optBufferOverflow = m_in.flag();
        block.optEntryId = m_in.flag();
        block.optConfRevision = m_in.flag();
    }

    void readEnumTypes(QMap<QString, EnumType> &types)
    {
        const int count = m_in.count(enumTypeBytes);
        for (int i = 0; i < count && m_in.ok(); ++i) {
            const QString key = m_in.text();
            EnumType &type = types[key];
            type.id = m_in.text();
            type.values.clear();
            const int values = m_in.count(enumValueBytes);
            for (int j = 0; j < values && m_in.ok(); ++j) {
                const qint32 ordinal = m_in.number<qint32>();
                type.values.insert(ordinal, m_in.text());
            }
        }
    }

    ByteReader m_in;
    AttributeIndex &m_index;
};

class DeviceWriter
{
public:
    const ByteWriter &out() const { return m_out; }
    QByteArray takeBytes() { return m_out.takeBytes(); }
    /// Whether something is nested too deeply to be written.
    bool hasLeftOut() const { return m_leftOut; }

    void write(const PhysicalDevice &device)
    {
        m_out << magic << formatVersion << device.name;
        writeList(device.logicalDevices, &DeviceWriter::writeLogicalDevice);
        writeList(device.dataSets, &DeviceWriter::writeDataSet);
        m_out << device.offline;
        writeEnumTypes(device.enumTypes);
    }

private:
    template <typename Record>
    void writeList(const QList<Record *> &list, void (DeviceWriter::*writeRecord)(const Record &))
    {
        m_out << static_cast<quint32>(list.size());
        for (const Record *record : list)
            (this->*writeRecord)(*record);
    }

    void writeLogicalDevice(const LogicalDevice &device)
    {
        m_out << device.present << device.name;
        writeList(device.logicalNodes, &DeviceWriter::writeLogicalNode);
    }

    void writeLogicalNode(const LogicalNode &node)
    {
        m_out << node.present << node.lnClass << node.name;
        writeList(node.dataObjects, &DeviceWriter::writeDataObject);
        m_out << node.dataSetGroup->name;
        writeList(node.dataSetGroup->dataSets, &DeviceWriter::writeDataSet);
        m_out << node.reportControls->name;
        writeList(node.reportControls->blocks, &DeviceWriter::writeReportBlock);
        m_out << (node.settingGroup != nullptr);
        if (const SettingGroupControl *control = node.settingGroup)
            m_out << control->name << control->state << control->numOfSG << control->activeGroup;
    }

    void writeDataObject(const DataObject &object)
    {
        m_out << object.present;
        writeNodes(object.attributes, 1);
        m_out << object.type << object.name;
    }

    void writeNodes(const QList<DAO *> &nodes, int depth)
    {
        if (!nodes.isEmpty() && depth > deepestNesting) {
            m_out << quint32(0);
            m_leftOut = true;
            return;
        }
        m_out << static_cast<quint32>(nodes.size());
        for (const DAO *node : nodes) {
            m_out << node->state << (node->attribute != nullptr);
            if (node->attribute)
                writeAttribute(*node->attribute);
            else if (node->subDataObject)
                m_out << node->subDataObject->name << node->subDataObject->type;
            else
                m_out << QString() << QString();
            writeNodes(node->children, depth + 1);
        }
    }

    void writeAttribute(const DataAttribute &attribute)
    {
        m_out << attribute.present << attribute.name << attribute.fc << attribute.enumTypeId
              << attribute.basicType << AttributeValue::represented(attribute.value)
              << attribute.reference;
    }

    void writeDataSet(const DataSet &dataSet)
    {
        m_out << dataSet.state << dataSet.name << dataSet.deletable;
        writeList(dataSet.members, &DeviceWriter::writeMember);
    }

    void writeMember(const DataSetMember &member) { m_out << member.state << member.reference; }

    void writeReportBlock(const ReportControlBlock &block)
    {
        m_out << block.enabled << block.state << block.name << block.type << block.reference
              << block.rptId << block.dataSet << block.confRev << block.integrityPeriod
              << block.bufferTime << block.triggerDataChange << block.triggerQualityChange
              << block.triggerDataUpdate << block.triggerIntegrity
              << block.triggerGeneralInterrogation << block.optSequenceNumber << block.optTimeStamp
              << block.optReasonForInclusion << block.optDataSetName << block.optDataReference
              << block.optBufferOverflow << block.optEntryId << block.optConfRevision;
    }

    void writeEnumTypes(const QMap<QString, EnumType> &types)
    {
        m_out << static_cast<quint32>(types.size());
        for (auto type = types.cbegin(); type != types.cend(); ++type) {
            m_out << type.key() << type->id << static_cast<quint32>(type->values.size());
            for (auto value = type->values.cbegin(); value != type->values.cend(); ++value)
                m_out << static_cast<qint32>(value.key()) << value.value();
        }
    }

    ByteWriter m_out;
    bool m_leftOut = false;
};

} // namespace

void DeviceStream::read(QDataStream &stream, PhysicalDevice &device, AttributeIndex &index)
{
    QIODevice *source = stream.device();
    if (!source || !source->isReadable()) {
        stream.setStatus(QDataStream::ReadPastEnd);
        return;
    }
    if (stream.status() != QDataStream::Ok)
        return;

    // A buffer's bytes are read where they are; any other device gives them up by peeking.
    QByteArray bytes;
    qint64 start = 0;
    if (const auto *buffer = qobject_cast<QBuffer *>(source)) {
        bytes = buffer->data();
        start = qMin<qint64>(source->pos(), bytes.size());
    } else {
        bytes = availableBytes(source);
    }

    DeviceReader reader(bytes.constData() + start, static_cast<int>(bytes.size() - start), index);
    reader.read(device);
    source->skip(reader.consumed());
    stream.setStatus(reader.status());
}

void DeviceStream::write(QDataStream &stream, const PhysicalDevice &device)
{
    DeviceWriter writer;
    writer.write(device);
    stream.writeRawData(writer.out().data(), writer.out().size());
    // Not before the end: a stream takes no more bytes once its status is bad.
    if (writer.hasLeftOut())
        stream.setStatus(QDataStream::WriteFailed);
}

QByteArray DeviceStream::bytes(const PhysicalDevice &device)
{
    DeviceWriter writer;
    writer.write(device);
    return writer.takeBytes();
}
