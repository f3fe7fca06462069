// SPDX-License-Identifier: Apache-2.0
#include <devicemodel/mmsvalue.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

#include <limits>
#include <type_traits>
#include <utility>

namespace {

QByteArray bytesOf(const MMSValue &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    value.toStream(stream);
    return bytes;
}

/// Through a record of the event middleware: always whole, filled up with zeros.
MMSValue throughRecord(const MMSValue &value)
{
    const QByteArray bytes = bytesOf(value).leftJustified(MMSValue::rawSize, '\0');
    MMSValue result;
    QDataStream stream(bytes);
    result.fromStream(stream);
    return result;
}

MMSValue example()
{
    MMSValue value;
    value.value = 1.5F;
    value.reference = QStringLiteral("IED1LD0/MMXU1$MX$PhV$phsA$cVal$mag$f");
    value.quality = QStringLiteral("0100000000001");
    value.timeStamp = QStringLiteral("2021-03-04T05:06:07.123Z ClockNotSynchronized");
    value.deviceNo = -3;
    value.cause = 0xFEDCBA98U;
    return value;
}

QString ellipsis()
{
    return QStringLiteral("\u2026");
}

} // namespace

class tst_MMSValue : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldComesBack()
    {
        const MMSValue value = throughRecord(example());
        QCOMPARE(value.value, QVariant(1.5F));
        QCOMPARE(value.value.userType(), int(QMetaType::Float));
        QCOMPARE(value.reference, example().reference);
        QCOMPARE(value.quality, example().quality);
        QCOMPARE(value.timeStamp, example().timeStamp);
        QCOMPARE(value.deviceNo, -3);
        QCOMPARE(value.cause, 0xFEDCBA98U);
    }

    void aValueIsMovedNotCopied()
    {
        static_assert(std::is_nothrow_move_constructible<MMSValue>::value, "grows in vectors");
        MMSValue from = example();
        from.value = QStringLiteral("a text");
        from.reference = QString(40, QLatin1Char('r'));
        const QChar *const reference = from.reference.constData();
        MMSValue to(std::move(from));
        QVERIFY(to.reference.constData() == reference);
        QVERIFY(to.reference.isDetached());
        MMSValue assigned;
        assigned = std::move(to);
        QVERIFY(assigned.reference.constData() == reference);
        QVERIFY(assigned.reference.isDetached());
        QCOMPARE(assigned.value, QVariant(QStringLiteral("a text")));
        QCOMPARE(assigned.cause, example().cause);
    }

    void everyRepresentationOfAValueComesBackExactly_data()
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
        QTest::newRow("smallest float") << QVariant(std::numeric_limits<float>::denorm_min());
        QTest::newRow("double") << QVariant(0.1);
        QTest::newRow("infinity") << QVariant(std::numeric_limits<double>::infinity());
        QTest::newRow("empty text") << QVariant(QStringLiteral(""));
        QTest::newRow("text") << QVariant(QString::fromUtf8("Größe 位置 \xF0\x9F\x94\x8C"));
        QTest::newRow("bytes") << QVariant(QByteArray("\0\x80\xFF", 3));
    }

    void everyRepresentationOfAValueComesBackExactly()
    {
        QFETCH(QVariant, value);
        MMSValue written = example();
        written.value = value;
        const MMSValue read = throughRecord(written);
        QCOMPARE(read.value.userType(), value.userType());
        QCOMPARE(read.value, value);
        QCOMPARE(read.reference, written.reference);
    }

    void theLongestVisibleStringAndReferenceFitUncut()
    {
        MMSValue written;
        written.value = QString(255, QLatin1Char('v'));
        written.reference = QString(129, QLatin1Char('r'));
        written.quality = QString(15, QLatin1Char('1'));
        written.timeStamp = QString(95, QLatin1Char('t'));
        // Two bytes are kept for the alphabet of a narrow text.
        QCOMPARE(bytesOf(written).size(), MMSValue::rawSize - 2);
        QVERIFY(written.keepsValueWhole());
        const MMSValue read = throughRecord(written);
        QCOMPARE(read.value, written.value);
        QCOMPARE(read.reference, written.reference);
        QCOMPARE(read.quality, written.quality);
        QCOMPARE(read.timeStamp, written.timeStamp);
    }

    void nonAsciiTextsFitUncutAsFarAsTheBytesAllow()
    {
        MMSValue written;
        written.value = QString(85, QChar(0x4F4D)); // 255 bytes of UTF-8
        written.reference = QString(64, QChar(0x00DF));
        written.timeStamp = QStringLiteral("2021-03-04T05:06:07.123Z");
        const MMSValue read = throughRecord(written);
        QCOMPARE(read.value, written.value);
        QCOMPARE(read.reference, written.reference);
    }

    void aTextOfOneAlphabetAndTheLongestReferenceFitUncut_data()
    {
        QTest::addColumn<QString>("text");
        const QString ascii = QStringLiteral("MW, 50 Hz ");
        QTest::newRow("of two bytes each") << QString(255, QChar(0x00DF));
        QTest::newRow("Cyrillic") << (ascii + QString(245, QChar(0x0436)));
        QTest::newRow("both ends of an alphabet")
            << (QString(100, QChar(0x0391)) + QString(155, QChar(0x0410)));
        QTest::newRow("of three bytes each") << (ascii + QString(245, QChar(0x3042)));
        QTest::newRow("the last characters") << QString(255, QChar(0xFFFD));
    }

    void aTextOfOneAlphabetAndTheLongestReferenceFitUncut()
    {
        QFETCH(QString, text);
        MMSValue written;
        written.value = text;
        written.reference = QString(129, QLatin1Char('r'));
        written.quality = QString(15, QLatin1Char('1'));
        written.timeStamp = QString(95, QLatin1Char('t'));
        QVERIFY(written.keepsValueWhole());
        QVERIFY(bytesOf(written).size() <= MMSValue::rawSize);
        const MMSValue read = throughRecord(written);
        QCOMPARE(read.value, written.value);
        QCOMPARE(read.reference, written.reference);
        QCOMPARE(read.quality, written.quality);
        QCOMPARE(read.timeStamp, written.timeStamp);
    }

    void aNarrowTextHasOnlyCharactersThatThereAre()
    {
        const auto read = [](const QByteArray &bytes) {
            MMSValue value;
            QDataStream stream(bytes);
            value.fromStream(stream);
            return value.value;
        };
        const QByteArray rest(14, '\0');
        QCOMPARE(read(QByteArray("\x01\xFE\x04\x00\x00\x02\x41\x80", 8) + rest),
                 QVariant(QStringLiteral("A") + QChar(0x0400)));
        QCOMPARE(read(QByteArray("\x01\xFE\xFF\x91\x00\x01\xFD", 7) + rest), QVariant());
        QCOMPARE(read(QByteArray("\x01\xFE\x04\x00\x00\x02\x41\x00", 8) + rest),
                 QVariant(QStringLiteral("A")));
    }

    void aByteOrderMarkIsPartOfTheText()
    {
        MMSValue written = example();
        written.value = QString(2, QChar(QChar::ByteOrderMark)) + QLatin1Char('a');
        QCOMPARE(throughRecord(written).value, written.value);
    }

    void aValueThatIsCutCanBeTold()
    {
        MMSValue written = example();
        written.value = QString(600, QLatin1Char('v'));
        QVERIFY(!written.keepsValueWhole());
        written.value = QString(200, QChar(0x00DF)) + QString(200, QChar(0x4F4D));
        QVERIFY(!written.keepsValueWhole());
        QVERIFY(throughRecord(written).value.toString().endsWith(ellipsis()));
        written.value = 42;
        QVERIFY(written.keepsValueWhole());
    }

    void aShortReferenceLeavesRoomForALongValue()
    {
        MMSValue written;
        written.value = QString(450, QLatin1Char('v'));
        written.reference = QStringLiteral("L/N$ST$a");
        QCOMPARE(throughRecord(written).value, written.value);
    }

    void aTextThatDoesNotFitIsCutAtACharacterAndMarked_data()
    {
        QTest::addColumn<QString>("character");
        QTest::newRow("one byte") << QStringLiteral("v");
        QTest::newRow("two bytes") << QStringLiteral("\u00df");
        QTest::newRow("three bytes") << QStringLiteral("\u4f4d");
        QTest::newRow("four bytes") << QString::fromUtf8("\xF0\x9F\x94\x8C");
    }

    void aTextThatDoesNotFitIsCutAtACharacterAndMarked()
    {
        QFETCH(QString, character);
        for (int length = 100; length < 600; length += 7) {
            MMSValue written = example();
            written.value = character.repeated(length);
            const QByteArray bytes = bytesOf(written);
            QVERIFY(bytes.size() <= MMSValue::rawSize);
            const MMSValue read = throughRecord(written);
            QCOMPARE(read.reference, written.reference);
            QString text = read.value.toString();
            if (text == written.value.toString())
                continue;
            QVERIFY(text.endsWith(ellipsis()));
            text.chop(1);
            QCOMPARE(text, character.repeated(text.size() / character.size()));
            QVERIFY(bytes.size() > MMSValue::rawSize - 4);
        }
    }

    void overlongTextsOfEveryKindLeaveAReadableRecord()
    {
        MMSValue written;
        written.value = QString(1000, QLatin1Char('v'));
        written.reference = QString(1000, QLatin1Char('r'));
        written.quality = QString(1000, QLatin1Char('1'));
        written.timeStamp = QString(1000, QLatin1Char('t'));
        QVERIFY(bytesOf(written).size() <= MMSValue::rawSize);
        const MMSValue read = throughRecord(written);
        QCOMPARE(read.value.toString(), QString(252, QLatin1Char('v')) + ellipsis());
        QVERIFY(read.reference.endsWith(ellipsis()) && read.reference.size() >= 127);
        QVERIFY(read.quality.endsWith(ellipsis()));
        QVERIFY(read.timeStamp.endsWith(ellipsis()));
    }

    void bytesThatDoNotFitBecomeCutHexadecimalText()
    {
        MMSValue written;
        written.value = QByteArray(600, '\xAB');
        const QString text = throughRecord(written).value.toString();
        QVERIFY(text.startsWith(QStringLiteral("abab")));
        QVERIFY(text.endsWith(ellipsis()));
    }

    void severalValuesFollowEachOtherOnAStream()
    {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        for (int i = 0; i < 3; ++i) {
            MMSValue value = example();
            value.value = i;
            value.toStream(out);
        }
        QDataStream in(bytes);
        for (int i = 0; i < 3; ++i) {
            MMSValue value;
            value.fromStream(in);
            QCOMPARE(value.value, QVariant(i));
        }
        QVERIFY(in.atEnd());
        QCOMPARE(in.status(), QDataStream::Ok);
    }

    void theStreamsOwnSettingsNeitherMatterNorChange()
    {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::ReadWrite);
        stream.setVersion(QDataStream::Qt_4_5);
        stream.setByteOrder(QDataStream::LittleEndian);
        stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
        MMSValue written = example();
        written.value = 0.1;
        written.toStream(stream);
        QVERIFY(bytes == bytesOf(written));
        stream.device()->seek(0);
        MMSValue read;
        read.fromStream(stream);
        QCOMPARE(read.value, QVariant(0.1));
        QCOMPARE(stream.version(), int(QDataStream::Qt_4_5));
        QCOMPARE(stream.byteOrder(), QDataStream::LittleEndian);
        QCOMPARE(stream.floatingPointPrecision(), QDataStream::SinglePrecision);
    }

    void malformedBytesLeaveADefaultValue_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("zeros") << QByteArray(MMSValue::rawSize, '\0');
        QTest::newRow("ones") << QByteArray(MMSValue::rawSize, '\xFF');
        QByteArray otherVersion = bytesOf(example());
        otherVersion[0] = 2;
        QTest::newRow("other version") << otherVersion;
        for (const int type : {7, 8, 9, 31, 127, 255}) {
            QByteArray otherType = bytesOf(example());
            otherType[1] = static_cast<char>(type);
            QTest::newRow(qPrintable(QStringLiteral("type %1").arg(type))) << otherType;
        }
    }

    void malformedBytesLeaveADefaultValue()
    {
        QFETCH(QByteArray, bytes);
        MMSValue value = example();
        QDataStream stream(bytes);
        value.fromStream(stream);
        QVERIFY(stream.status() != QDataStream::Ok);
        QVERIFY(!value.value.isValid());
        QVERIFY(value.reference.isEmpty());
        QVERIFY(value.quality.isEmpty());
        QVERIFY(value.timeStamp.isEmpty());
        QCOMPARE(value.deviceNo, 0);
        QCOMPARE(value.cause, 0U);
    }

    void aValueTruncatedAnywhereIsLeftDefault()
    {
        const QByteArray bytes = bytesOf(example());
        for (int size = 0; size < bytes.size(); ++size) {
            MMSValue value = example();
            QDataStream stream(bytes.left(size));
            value.fromStream(stream);
            QVERIFY(value.reference.isEmpty());
            QVERIFY(!value.value.isValid());
        }
    }

    void copiesAreIndependent()
    {
        MMSValue first = example();
        MMSValue second(first);
        second.reference = QStringLiteral("other");
        first = second;
        second.value = 2;
        QCOMPARE(first.reference, QStringLiteral("other"));
        QCOMPARE(first.value, QVariant(1.5F));
    }

    void aValueTravelsInAVariant()
    {
        const QVariant variant = QVariant::fromValue(example());
        QCOMPARE(variant.value<MMSValue>().reference, example().reference);
    }
};

QTEST_APPLESS_MAIN(tst_MMSValue)
#include "tst_mmsvalue.moc"
