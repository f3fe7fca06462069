// SPDX-License-Identifier: Apache-2.0
#include "support/generateddevice.h"

#include <QtCore/QBuffer>
#include <QtCore/QDateTime>
#include <QtCore/QTemporaryFile>
#include <QtTest/QtTest>

#include <limits>

namespace {

/// A source that hands out its bytes once, in small pieces and without saying how many are left.
class SequentialSource : public QIODevice
{
public:
    explicit SequentialSource(const QByteArray &bytes)
        : m_bytes(bytes)
    {
        open(ReadOnly);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 size = qMin<qint64>(maxSize, m_bytes.size() - m_position);
        std::copy_n(m_bytes.constData() + m_position, size, data);
        m_position += size;
        return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_position = 0;
};

GeneratedDevice exampleDevice()
{
    GeneratedDevice device;
    device.logicalDevices = 2;
    device.logicalNodes = 5;
    device.leafAttributes = 600;
    device.arrayElements = 4;
    return device;
}

QDataStream::Status read(PhysicalDevice &device, const QByteArray &bytes)
{
    QDataStream stream(bytes);
    device.fromStream(stream);
    return stream.status();
}

/// The only attribute of a device of one attribute.
DataAttribute &addSingleAttribute(PhysicalDevice &device)
{
    auto *logicalDevice = new LogicalDevice;
    auto *node = new LogicalNode;
    auto *object = new DataObject;
    auto *dao = new DAO;
    dao->attribute = new DataAttribute;
    object->attributes << dao;
    node->dataObjects << object;
    logicalDevice->logicalNodes << node;
    device.logicalDevices << logicalDevice;
    return *dao->attribute;
}

QVariant valueReadBack(const QVariant &value)
{
    PhysicalDevice written;
    addSingleAttribute(written).value = value;
    PhysicalDevice device;
    if (read(device, deviceBytes(written)) != QDataStream::Ok)
        return QStringLiteral("not read");
    return device.logicalDevices.first()
        ->logicalNodes.first()
        ->dataObjects.first()
        ->attributes.first()
        ->attribute->value;
}

} // namespace

class tst_DeviceStream : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreWrittenAsQDataStreamWritesThem_data();
    void valuesAreWrittenAsQDataStreamWritesThem();
    void everyFieldComesBack();
    void bytesAloneAreThoseOfAStream();
    void aWholeDeviceComesBackIdentical();
    void anEmptyDeviceComesBack();
    void readingTwiceReplacesTheContent();
    void readingFromTheMiddleOfAStreamEndsBehindTheDevice_data();
    void readingFromTheMiddleOfAStreamEndsBehindTheDevice();
    void theStreamsOwnSettingsNeitherMatterNorChange();
    void equalTextsAreShared();
    void everyRepresentationOfAValueComesBack_data();
    void everyRepresentationOfAValueComesBack();
    void aValueOfAnotherTypeIsWrittenAsItsRepresentation();
    void anAttributeIsFoundByItsReferenceAfterReading();
    void dataNestedTooDeepIsLeftOutAndReported();
    void thirtyTwoLevelsComeBack();
    void nullAndEmptyTextsStayApart();
};

void tst_DeviceStream::everyFieldComesBack()
{
    PhysicalDevice written;
    written.name = QStringLiteral("IED \u4f4d");
    written.offline = true;
    DataAttribute &attribute = addSingleAttribute(written);
    attribute.present = false;
    attribute.name = QStringLiteral("stVal");
    attribute.fc = QStringLiteral("ST");
    attribute.enumTypeId = QStringLiteral("Beh");
    attribute.basicType = QStringLiteral("Enum");
    attribute.value = 3;
    attribute.reference = QStringLiteral("LD/LLN0$ST$Beh$stVal");
    LogicalDevice &logicalDevice = *written.logicalDevices.first();
    logicalDevice.present = false;
    logicalDevice.name = QStringLiteral("LD");
    LogicalNode &node = *logicalDevice.logicalNodes.first();
    node.present = false;
    node.lnClass = QStringLiteral("LLN0");
    node.name = QStringLiteral("LLN0 name");
    DataObject &object = *node.dataObjects.first();
    object.present = false;
    object.type = QStringLiteral("ENS");
    object.name = QStringLiteral("Beh");
    object.attributes.first()->state = 0xFFFFFFFEU;
    auto *subObject = new DAO;
    subObject->state = 0;
    subObject->subDataObject = new SubDataObject{QStringLiteral("phsA"), QStringLiteral("CMV")};
    object.attributes.first()->children << subObject;
    node.dataSetGroup->name = QStringLiteral("group");
    node.addDataSet(QStringLiteral("ds"));
    DataSet &dataSet = *node.dataSet(QStringLiteral("ds"));
    dataSet.state = 3;
    dataSet.deletable = true;
    dataSet.addElement({QStringLiteral("LD/LLN0$ST$Beh")});
    dataSet.members.first()->state = 2;
    node.reportControls->name = QStringLiteral("reports");
    auto *block = new ReportControlBlock;
    block->enabled = true;
    block->state = 2;
    block->name = QStringLiteral("brcb01");
    block->type = QStringLiteral("BR");
    block->reference = QStringLiteral("LLN0$BR$brcb01");
    block->rptId = QStringLiteral("id");
    block->dataSet = QStringLiteral("LLN0$ds");
    block->confRev = -1;
    block->integrityPeriod = 60000;
    block->bufferTime = 50;
    block->triggerQualityChange = true;
    block->triggerIntegrity = true;
    block->optSequenceNumber = true;
    block->optReasonForInclusion = true;
    block->optDataReference = true;
    block->optEntryId = true;
    node.reportControls->blocks << block;
    node.settingGroup = new SettingGroupControl{QStringLiteral("SGCB"), 2, 4, 3};
    auto *deviceDataSet = new DataSet;
    deviceDataSet->name = QStringLiteral("@ds");
    written.dataSets << deviceDataSet;
    EnumType type;
    type.id = QStringLiteral("Beh");
    type.values = {{-1, QStringLiteral("none")}, {3, QStringLiteral("test")}};
    written.enumTypes.insert(type.id, type);

    PhysicalDevice device;
    QCOMPARE(read(device, deviceBytes(written)), QDataStream::Ok);

    QCOMPARE(device.name, written.name);
    QVERIFY(device.offline);
    QCOMPARE(device.logicalDevices.size(), 1);
    QVERIFY(!device.logicalDevices.first()->present);
    QCOMPARE(device.logicalDevices.first()->name, QStringLiteral("LD"));
    const LogicalNode &readNode = *device.logicalDevices.first()->logicalNodes.first();
    QVERIFY(!readNode.present);
    QCOMPARE(readNode.lnClass, QStringLiteral("LLN0"));
    QCOMPARE(readNode.name, QStringLiteral("LLN0 name"));
    const DataObject &readObject = *readNode.dataObjects.first();
    QVERIFY(!readObject.present);
    QCOMPARE(readObject.type, QStringLiteral("ENS"));
    QCOMPARE(readObject.name, QStringLiteral("Beh"));
    const DAO &readDao = *readObject.attributes.first();
    QCOMPARE(readDao.state, 0xFFFFFFFEU);
    QVERIFY(!readDao.subDataObject);
    QVERIFY(!readDao.attribute->present);
    QCOMPARE(readDao.attribute->name, QStringLiteral("stVal"));
    QCOMPARE(readDao.attribute->fc, QStringLiteral("ST"));
    QCOMPARE(readDao.attribute->enumTypeId, QStringLiteral("Beh"));
    QCOMPARE(readDao.attribute->basicType, QStringLiteral("Enum"));
    QCOMPARE(readDao.attribute->value, QVariant(3));
    QCOMPARE(readDao.attribute->reference, QStringLiteral("LD/LLN0$ST$Beh$stVal"));
    const DAO &readSub = *readDao.children.first();
    QCOMPARE(readSub.state, 0U);
    QVERIFY(!readSub.attribute);
    QCOMPARE(readSub.subDataObject->name, QStringLiteral("phsA"));
    QCOMPARE(readSub.subDataObject->type, QStringLiteral("CMV"));
    QCOMPARE(readNode.dataSetGroup->name, QStringLiteral("group"));
    const DataSet &readDataSet = *readNode.dataSet(QStringLiteral("ds"));
    QCOMPARE(int(readDataSet.state), 3);
    QVERIFY(readDataSet.deletable);
    QCOMPARE(int(readDataSet.members.first()->state), 2);
    QCOMPARE(readDataSet.members.first()->reference, QStringLiteral("LD/LLN0$ST$Beh"));
    QCOMPARE(readNode.reportControls->name, QStringLiteral("reports"));
    const ReportControlBlock &readBlock = *readNode.reportControls->blocks.first();
    QVERIFY(readBlock.enabled);
    QCOMPARE(int(readBlock.state), 2);
    QCOMPARE(readBlock.name, QStringLiteral("brcb01"));
    QCOMPARE(readBlock.type, QStringLiteral("BR"));
    QCOMPARE(readBlock.reference, QStringLiteral("LLN0$BR$brcb01"));
    QCOMPARE(readBlock.rptId, QStringLiteral("id"));
    QCOMPARE(readBlock.dataSet, QStringLiteral("LLN0$ds"));
    QCOMPARE(readBlock.confRev, -1);
    QCOMPARE(readBlock.integrityPeriod, 60000);
    QCOMPARE(readBlock.bufferTime, 50);
    QVERIFY(!readBlock.triggerDataChange && readBlock.triggerQualityChange);
    QVERIFY(!readBlock.triggerDataUpdate && readBlock.triggerIntegrity);
    QVERIFY(!readBlock.triggerGeneralInterrogation && readBlock.optSequenceNumber);
    QVERIFY(!readBlock.optTimeStamp && readBlock.optReasonForInclusion);
    QVERIFY(!readBlock.optDataSetName && readBlock.optDataReference);
    QVERIFY(!readBlock.optBufferOverflow && readBlock.optEntryId && !readBlock.optConfRevision);
    QCOMPARE(readNode.settingGroup->name, QStringLiteral("SGCB"));
    QCOMPARE(readNode.settingGroup->state, 2);
    QCOMPARE(readNode.settingGroup->numOfSG, 4);
    QCOMPARE(readNode.settingGroup->activeGroup, 3);
    QCOMPARE(device.dataSets.size(), 1);
    QCOMPARE(device.dataSets.first()->name, QStringLiteral("@ds"));
    QCOMPARE(device.getEnumType(QStringLiteral("Beh")).values, type.values);
}

void tst_DeviceStream::aWholeDeviceComesBackIdentical()
{
    const QByteArray bytes = exampleDevice().bytes();
    PhysicalDevice device;
    QCOMPARE(read(device, bytes), QDataStream::Ok);
    QCOMPARE(leafAttributes(device).size(), 600);
    QVERIFY(deviceBytes(device) == bytes);
}

void tst_DeviceStream::anEmptyDeviceComesBack()
{
    const PhysicalDevice empty;
    PhysicalDevice device;
    QCOMPARE(read(device, deviceBytes(empty)), QDataStream::Ok);
    QVERIFY(device.name.isEmpty());
    QVERIFY(device.logicalDevices.isEmpty());
}

void tst_DeviceStream::readingTwiceReplacesTheContent()
{
    const QByteArray large = exampleDevice().bytes();
    GeneratedDevice other;
    other.leafAttributes = 7;
    PhysicalDevice device;
    read(device, large);
    const QString gone = leafAttributes(device).last()->reference;
    read(device, other.bytes());
    QCOMPARE(leafAttributes(device).size(), 7);
    QCOMPARE(device.logicalDevices.size(), 1);
    QVERIFY(!device.findTag(gone));
    QVERIFY(deviceBytes(device) == other.bytes());
}

void tst_DeviceStream::readingFromTheMiddleOfAStreamEndsBehindTheDevice_data()
{
    QTest::addColumn<QString>("source");
    for (const char *source : {"bytes", "buffer", "file", "sequential", "bytes in a transaction"})
        QTest::newRow(source) << QString::fromLatin1(source);
}

void tst_DeviceStream::readingFromTheMiddleOfAStreamEndsBehindTheDevice()
{
    QFETCH(QString, source);
    const QByteArray bytes = exampleDevice().bytes();
    QByteArray message;
    {
        QDataStream stream(&message, QIODevice::WriteOnly);
        stream << QStringLiteral("before");
        stream.writeRawData(bytes.constData(), bytes.size());
        stream << QStringLiteral("behind");
        stream.writeRawData(bytes.constData(), bytes.size());
        stream << QStringLiteral("end");
    }
    std::unique_ptr<QIODevice> device;
    if (source == QLatin1String("file")) {
        auto file = std::make_unique<QTemporaryFile>();
        QVERIFY(file->open());
        file->write(message);
        file->seek(0);
        device = std::move(file);
    } else if (source == QLatin1String("sequential")) {
        device = std::make_unique<SequentialSource>(message);
    } else if (source == QLatin1String("buffer")) {
        device = std::make_unique<QBuffer>(&message);
        device->open(QIODevice::ReadOnly);
    }
    const bool transaction = source.endsWith(QLatin1String("transaction"));
    QDataStream ofBytes(message);
    QDataStream ofDevice(device.get());
    QDataStream &stream = device ? ofDevice : ofBytes;
    if (transaction)
        stream.startTransaction();

    QString text;
    stream >> text;
    QCOMPARE(text, QStringLiteral("before"));
    for (const char *next : {"behind", "end"}) {
        PhysicalDevice read;
        read.fromStream(stream);
        QCOMPARE(stream.status(), QDataStream::Ok);
        QVERIFY(deviceBytes(read) == bytes);
        stream >> text;
        QCOMPARE(text, QString::fromLatin1(next));
    }
    if (transaction)
        QVERIFY(stream.commitTransaction());
    QVERIFY(stream.atEnd());
}

void tst_DeviceStream::bytesAloneAreThoseOfAStream()
{
    const auto device = exampleDevice().make();
    QVERIFY(device->toBytes() == deviceBytes(*device));
    QVERIFY(PhysicalDevice().toBytes() == deviceBytes(PhysicalDevice()));
}

void tst_DeviceStream::theStreamsOwnSettingsNeitherMatterNorChange()
{
    const auto device = exampleDevice().make();
    const QByteArray expected = deviceBytes(*device);

    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_4_5);
    out.setByteOrder(QDataStream::LittleEndian);
    out.setFloatingPointPrecision(QDataStream::SinglePrecision);
    device->toStream(out);
    QVERIFY(bytes == expected);
    QCOMPARE(out.version(), int(QDataStream::Qt_4_5));
    QCOMPARE(out.byteOrder(), QDataStream::LittleEndian);
    QCOMPARE(out.floatingPointPrecision(), QDataStream::SinglePrecision);

    QDataStream in(bytes);
    in.setVersion(QDataStream::Qt_4_5);
    in.setByteOrder(QDataStream::LittleEndian);
    PhysicalDevice read;
    read.fromStream(in);
    QVERIFY(deviceBytes(read) == expected);
    QCOMPARE(in.version(), int(QDataStream::Qt_4_5));
    QCOMPARE(in.byteOrder(), QDataStream::LittleEndian);
}

void tst_DeviceStream::equalTextsAreShared()
{
    GeneratedDevice generated = exampleDevice();
    generated.leafAttributes = 3000;
    PhysicalDevice device;
    read(device, generated.bytes());
    QHash<QString, const QChar *> places;
    const auto shared = [&places](const QString &text) {
        if (text.isEmpty())
            return true;
        return *places.insert(text, places.value(text, text.constData())) == text.constData();
    };
    for (const DataAttribute *attribute : leafAttributes(device)) {
        QVERIFY(shared(attribute->name));
        QVERIFY(shared(attribute->fc));
        QVERIFY(shared(attribute->enumTypeId));
        QVERIFY(shared(attribute->basicType));
        if (attribute->basicType == QLatin1String("Quality"))
            QVERIFY(shared(*static_cast<const QString *>(attribute->value.constData())));
    }
    for (const LogicalDevice *logicalDevice : qAsConst(device.logicalDevices)) {
        for (const LogicalNode *node : qAsConst(logicalDevice->logicalNodes)) {
            QVERIFY(shared(node->lnClass));
            for (const DataObject *object : qAsConst(node->dataObjects))
                QVERIFY(shared(object->type) && shared(object->name));
        }
    }
    QVERIFY(places.size() > 20);
}

void tst_DeviceStream::everyRepresentationOfAValueComesBack_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("none") << QVariant();
    QTest::newRow("true") << QVariant(true);
    QTest::newRow("false") << QVariant(false);
    QTest::newRow("int") << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("uint") << QVariant(std::numeric_limits<uint>::max());
    QTest::newRow("64 bit") << QVariant(std::numeric_limits<qlonglong>::min());
    QTest::newRow("unsigned 64 bit") << QVariant(std::numeric_limits<qulonglong>::max());
    QTest::newRow("float") << QVariant(0.1F);
    QTest::newRow("largest float") << QVariant(std::numeric_limits<float>::max());
    QTest::newRow("infinite float") << QVariant(-std::numeric_limits<float>::infinity());
    QTest::newRow("double") << QVariant(0.1);
    QTest::newRow("smallest double") << QVariant(std::numeric_limits<double>::denorm_min());
    QTest::newRow("text") << QVariant(QString::fromUtf8("Größe 位置 \xF0\x9F\x94\x8C"));
    QTest::newRow("empty text") << QVariant(QStringLiteral(""));
    QTest::newRow("long text") << QVariant(QString(100000, QLatin1Char('x')));
    QTest::newRow("bytes") << QVariant(QByteArray("\0\x80\xFF", 3));
    QTest::newRow("null int") << QVariant(QVariant::Int);
    QTest::newRow("null text") << QVariant(QVariant::String);
}

void tst_DeviceStream::everyRepresentationOfAValueComesBack()
{
    QFETCH(QVariant, value);
    const QVariant read = valueReadBack(value);
    QCOMPARE(read.userType(), value.userType());
    QCOMPARE(read.isNull(), value.isNull());
    QCOMPARE(read, value);
}

void tst_DeviceStream::aValueOfAnotherTypeIsWrittenAsItsRepresentation()
{
    QCOMPARE(valueReadBack(QVariant::fromValue(short(-5))), QVariant(-5));
    QCOMPARE(valueReadBack(QVariant::fromValue(uchar(200))), QVariant(200));
    QCOMPARE(valueReadBack(QVariant::fromValue(-7L)), QVariant(-7LL));
    QCOMPARE(valueReadBack(QVariant::fromValue(7UL)), QVariant(7ULL));
    QCOMPARE(valueReadBack(QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3, 4), Qt::UTC)).userType(),
             int(QMetaType::QString));
    QVERIFY(!valueReadBack(QVariantMap{{QStringLiteral("a"), 1}}).isValid());
    QVERIFY(!valueReadBack(QVariant::fromValue<QObject *>(this)).isValid());
}

void tst_DeviceStream::anAttributeIsFoundByItsReferenceAfterReading()
{
    PhysicalDevice device;
    read(device, exampleDevice().bytes());
    for (DataAttribute *attribute : leafAttributes(device))
        QCOMPARE(device.findTag(attribute->reference), attribute);
}

namespace {

std::unique_ptr<PhysicalDevice> deviceOfDepth(int levels)
{
    auto device = std::make_unique<PhysicalDevice>();
    addSingleAttribute(*device).name = QStringLiteral("level 1");
    DAO *last = device->logicalDevices.first()
                    ->logicalNodes.first()
                    ->dataObjects.first()
                    ->attributes.first();
    for (int level = 2; level <= levels; ++level) {
        auto *child = new DAO;
        child->subDataObject = new SubDataObject{QStringLiteral("level %1").arg(level), QString()};
        last->children << child;
        last = child;
    }
    return device;
}

QString deepestName(const PhysicalDevice &device)
{
    const DAO *node = device.logicalDevices.first()
                          ->logicalNodes.first()
                          ->dataObjects.first()
                          ->attributes.first();
    while (!node->children.isEmpty())
        node = node->children.first();
    return node->name();
}

} // namespace

void tst_DeviceStream::dataNestedTooDeepIsLeftOutAndReported()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    deviceOfDepth(10000)->toStream(out);
    QCOMPARE(out.status(), QDataStream::WriteFailed);
    QVERIFY(deviceOfDepth(10000)->toBytes() == bytes);
    PhysicalDevice device;
    QCOMPARE(read(device, bytes), QDataStream::Ok);
    QCOMPARE(deepestName(device), QStringLiteral("level 32"));
}

void tst_DeviceStream::thirtyTwoLevelsComeBack()
{
    PhysicalDevice device;
    QCOMPARE(read(device, deviceBytes(*deviceOfDepth(32))), QDataStream::Ok);
    QCOMPARE(deepestName(device), QStringLiteral("level 32"));
}

void tst_DeviceStream::nullAndEmptyTextsStayApart()
{
    PhysicalDevice written;
    DataAttribute &attribute = addSingleAttribute(written);
    attribute.name = QStringLiteral("");
    attribute.reference = QStringLiteral("");
    PhysicalDevice device;
    read(device, deviceBytes(written));
    const DataAttribute &back = *leafAttributes(device).first();
    QVERIFY(back.name.isEmpty() && !back.name.isNull());
    QVERIFY(back.reference.isEmpty() && !back.reference.isNull());
    QVERIFY(back.fc.isNull());
}

void tst_DeviceStream::valuesAreWrittenAsQDataStreamWritesThem_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("none") << QVariant();
    QTest::newRow("true") << QVariant(true);
    QTest::newRow("integer") << QVariant(-7);
    QTest::newRow("unsigned") << QVariant(4000000000U);
    QTest::newRow("long") << QVariant(qlonglong(-9000000000000000000LL));
    QTest::newRow("unsigned long") << QVariant(qulonglong(18000000000000000000ULL));
    QTest::newRow("double") << QVariant(3.25);
    QTest::newRow("float") << QVariant(0.1F);
    QTest::newRow("text") << QVariant(QString::fromUtf8("d\xc3\xa9part"));
    QTest::newRow("empty text") << QVariant(QStringLiteral(""));
    QTest::newRow("null text") << QVariant(QString());
    QTest::newRow("bytes") << QVariant(QByteArray("\1\0\2", 3));
    QTest::newRow("null integer") << QVariant(QVariant::Int);
    QTest::newRow("null variant text") << QVariant(QVariant::String);
}

void tst_DeviceStream::valuesAreWrittenAsQDataStreamWritesThem()
{
    QFETCH(QVariant, value);
    PhysicalDevice device;
    auto *logicalDevice = new LogicalDevice;
    device.logicalDevices.append(logicalDevice);
    auto *node = new LogicalNode;
    logicalDevice->logicalNodes.append(node);
    auto *object = new DataObject;
    node->dataObjects.append(object);
    auto *dao = new DAO;
    object->attributes.append(dao);
    dao->attribute = new DataAttribute;
    dao->attribute->basicType = QStringLiteral("before");
    dao->attribute->value = value;
    dao->attribute->reference = QStringLiteral("behind");

    QByteArray expected;
    QDataStream reference(&expected, QIODevice::WriteOnly);
    reference.setVersion(QDataStream::Qt_5_12);
    reference << QStringLiteral("before") << value << QStringLiteral("behind");
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    device.toStream(stream);
    QVERIFY(bytes.contains(expected));
}

QTEST_APPLESS_MAIN(tst_DeviceStream)
#include "tst_devicestream.moc"
