// SPDX-License-Identifier: Apache-2.0
#include "support/generateddevice.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QtEndian>
#include <QtTest/QtTest>

#include <random>

#ifdef Q_OS_LINUX
#include <malloc.h>
#endif

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size);

namespace {

constexpr int mutatedInputs = 20000;
constexpr qint64 longestReadingMs = 5000; // of one input of a few kilobytes, on a busy machine

QByteArray smallDevice(int leafAttributes = 60)
{
    GeneratedDevice device;
    device.leafAttributes = leafAttributes;
    device.arrayElements = 2;
    return device.bytes();
}

void readAny(const QByteArray &bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const quint8 *>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
}

/// Magic number, format version and name of a device; what follows is its list of logical devices.
QByteArray head()
{
    return PhysicalDevice().name.isNull() ? deviceBytes(PhysicalDevice()).left(4 + 2 + 4)
                                          : QByteArray();
}

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

const QByteArray nullText = number(0xFFFFFFFFU);

/// A device up to the list of attributes of its first data object.
QByteArray upToFirstDataObject()
{
    const QByteArray present(1, '\1');
    return head() + number(1) + present + nullText + number(1) + present + nullText + nullText +
           number(1) + present;
}

QDataStream::Status read(PhysicalDevice &device, const QByteArray &bytes)
{
    QDataStream stream(bytes);
    device.fromStream(stream);
    return stream.status();
}

} // namespace

class tst_DeviceStreamRobustness : public QObject
{
    Q_OBJECT

private slots:
    void aStreamCutAtAnyByteLeavesADestroyableDevice()
    {
        const QByteArray bytes = smallDevice(12);
        for (int size = 0; size < bytes.size(); ++size) {
            PhysicalDevice device;
            QVERIFY(read(device, bytes.left(size)) != QDataStream::Ok);
            readAny(bytes.left(size));
        }
    }

    void whatCameBeforeTheCutIsKept()
    {
        const QByteArray bytes = smallDevice();
        PhysicalDevice device;
        read(device, bytes.left(bytes.size() / 2));
        QCOMPARE(device.name, QStringLiteral("IED1"));
        QCOMPARE(device.logicalDevices.size(), 1);
        const QList<DataAttribute *> attributes = leafAttributes(device);
        QVERIFY(attributes.size() > 5 && attributes.size() < 60);
        QCOMPARE(device.findTag(attributes.first()->reference), attributes.first());
    }

    void theLogicalNodeThatWasCutHasItsGroupAndList()
    {
        PhysicalDevice device;
        read(device, upToFirstDataObject() + QByteArray(30, '\xFF'));
        QCOMPARE(device.logicalDevices.size(), 1);
        QCOMPARE(device.logicalDevices.first()->logicalNodes.size(), 1);
        const LogicalNode &node = *device.logicalDevices.first()->logicalNodes.first();
        QVERIFY(node.dataSetGroup);
        QVERIFY(node.reportControls);
        QVERIFY(deviceBytes(device).size() > 0);
    }

    void otherBytesAreNoDevice_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("zeros") << QByteArray(1000, '\0');
        QTest::newRow("text") << QByteArray("<?xml version=\"1.0\"?><SCL/>");
        QByteArray laterVersion = smallDevice();
        laterVersion[5] = 2;
        QTest::newRow("later format version") << laterVersion;
    }

    void otherBytesAreNoDevice()
    {
        QFETCH(QByteArray, bytes);
        PhysicalDevice device;
        QVERIFY(read(device, bytes) != QDataStream::Ok);
        QVERIFY(device.name.isEmpty());
        QVERIFY(device.logicalDevices.isEmpty());
    }

    void aStreamWithoutASourceLeavesAnEmptyDevice()
    {
        PhysicalDevice device;
        device.name = QStringLiteral("before");
        QDataStream stream;
        device.fromStream(stream);
        QVERIFY(device.name.isEmpty());
        QCOMPARE(stream.status(), QDataStream::ReadPastEnd);
    }

    void aHugeCountEndsTheReadingAtOnce_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray present(1, '\1');
        for (const quint32 count : {0xFFFFFFFFU, 0x80000000U, 0x7FFFFFFFU, 100000000U, 100U}) {
            const QByteArray tail = number(count) + QByteArray(50, '\0');
            const auto name = [count](const char *list) {
                return QByteArray(list) + ' ' + QByteArray::number(count);
            };
            QTest::newRow(name("logical devices")) << head() + tail;
            QTest::newRow(name("logical nodes")) << head() + number(1) + present + nullText + tail;
            QTest::newRow(name("data objects")) << head() + number(1) + present + nullText +
                                                       number(1) + present + nullText + nullText +
                                                       tail;
            QTest::newRow(name("attributes")) << upToFirstDataObject() + tail;
            QTest::newRow(name("data sets")) << head() + number(0) + tail;
            QTest::newRow(name("enumerations")) << head() + number(0) + number(0) + present + tail;
            // All ones is the length of a null text.
            QTest::newRow(name("length of the name"))
                << head().left(6) + number(count & ~1U) + QByteArray(50, '\0');
        }
    }

    void aHugeCountEndsTheReadingAtOnce()
    {
        QFETCH(QByteArray, bytes);
        PhysicalDevice device;
        QVERIFY(read(device, bytes) != QDataStream::Ok);
        QVERIFY(deviceBytes(device).size() > 0);
    }

    void deepNestingEndsTheReading()
    {
        QByteArray bytes = upToFirstDataObject();
        for (int level = 0; level < 10000; ++level)
            bytes += number(1) + number(1) + QByteArray(1, '\0') + nullText + nullText;
        bytes += number(0) + QByteArray(1000, '\0');
        PhysicalDevice device;
        QCOMPARE(read(device, bytes), QDataStream::ReadCorruptData);
        const DAO *node = device.logicalDevices.first()
                              ->logicalNodes.first()
                              ->dataObjects.first()
                              ->attributes.first();
        int levels = 1;
        for (; !node->children.isEmpty(); ++levels)
            node = node->children.first();
        QCOMPARE(levels, 32);
    }

    void aValueOfAForeignTypeEndsTheReading_data()
    {
        QTest::addColumn<quint32>("type");
        for (const int type :
             {7, 8, 9, 11, 13, 16, 17, 28, 31, 32, 39, 41, 50, 64, 127, 1023, 1024})
            QTest::newRow(QByteArray::number(type)) << static_cast<quint32>(type);
        QTest::newRow("largest") << 0xFFFFFFFFU;
    }

    void aValueOfAForeignTypeEndsTheReading()
    {
        QFETCH(quint32, type);
        const QByteArray attribute = number(1) + number(1) + QByteArray("\1\1", 2) + nullText +
                                     nullText + nullText + nullText + number(type) +
                                     QByteArray(200, '\0');
        PhysicalDevice device;
        QCOMPARE(read(device, upToFirstDataObject() + attribute), QDataStream::ReadCorruptData);
    }

    void aFloatOutOfRangeEndsTheReading()
    {
        const double number64 = 1e300;
        QByteArray encoded(8, '\0');
        quint64 bits;
        memcpy(&bits, &number64, sizeof bits);
        qToBigEndian(bits, encoded.data());
        const QByteArray attribute = number(1) + number(1) + QByteArray("\1\1", 2) + nullText +
                                     nullText + nullText + nullText + number(QMetaType::Float) +
                                     QByteArray(1, '\0') + encoded + QByteArray(200, '\0');
        PhysicalDevice device;
        QCOMPARE(read(device, upToFirstDataObject() + attribute), QDataStream::ReadCorruptData);
    }

    void claimsInTheBytesTakeNoMemoryOfTheirOwn()
    {
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        // A chain of lists each of which claims as many records as could be there.
        QByteArray bytes = upToFirstDataObject();
        constexpr int size = 4000000;
        for (int level = 0; level < 32; ++level) {
            const int left = size - bytes.size() - 4;
            bytes += number(static_cast<quint32>(left / 17)) + number(1) + QByteArray(1, '\0') +
                     nullText + nullText;
        }
        bytes += QByteArray(size - bytes.size(), '\xFF');
        const auto used = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
        const std::size_t before = used();
        PhysicalDevice device;
        QVERIFY(read(device, bytes) != QDataStream::Ok);
        QVERIFY(used() - before < std::size_t(size));
#else
        QSKIP("the memory in use cannot be told with this C library or sanitizer");
#endif
    }

    void mutatedDevicesLeaveADestroyableDevice()
    {
        const QList<QByteArray> seeds{smallDevice(5), smallDevice(60),
                                      deviceBytes(PhysicalDevice())};
        std::mt19937 random(20240229);
        qint64 longest = 0;
        for (int i = 0; i < mutatedInputs; ++i) {
            QByteArray bytes = seeds.at(i % seeds.size());
            const auto below = [&random](int limit) {
                return static_cast<int>(random() % static_cast<quint32>(limit));
            };
            for (int flips = 1 + below(8); flips > 0; --flips) {
                const int position = below(bytes.size());
                bytes[position] = static_cast<char>(bytes.at(position) ^ (1 << below(8)));
            }
            if (below(4) == 0)
                bytes.truncate(below(bytes.size()));
            if (below(4) == 0 && bytes.size() > 8)
                bytes.replace(below(bytes.size() - 4), 4, number(static_cast<quint32>(random())));
            QElapsedTimer timer;
            timer.start();
            readAny(bytes);
            longest = qMax(longest, timer.elapsed());
        }
        QVERIFY2(longest < longestReadingMs, QByteArray::number(longest));
    }
};

QTEST_APPLESS_MAIN(tst_DeviceStreamRobustness)
#include "tst_devicestreamrobustness.moc"
