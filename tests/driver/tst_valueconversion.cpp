// SPDX-License-Identifier: Apache-2.0
#include "driver/model/valueconversion.h"

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using mms::Data;
using mms::TypeDescription;

Q_DECLARE_METATYPE(mms::Data)
Q_DECLARE_METATYPE(mms::TypeDescription)

namespace {

Data bits(const char *text)
{
    return Data::bitString(mms::BitString::fromText(text));
}

mms::UtcTime utc(std::uint32_t seconds, std::uint32_t fraction, std::uint8_t quality)
{
    mms::UtcTime time;
    time.seconds = seconds;
    time.fraction = fraction;
    time.quality = quality;
    return time;
}

QString failure(const mms::Result<Data> &result)
{
    return result ? QStringLiteral("no failure")
                  : QString::fromStdString(result.error().message.english());
}

QByteArray streamed(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

} // namespace

class tst_ValueConversion : public QObject
{
    Q_OBJECT

private slots:
    void valuesOfADeviceAreShownByTheirType_data();
    void valuesOfADeviceAreShownByTheirType();
    void structuresHaveNoValueOfTheirOwn();
    void valuesThatFitAreWritten_data();
    void valuesThatFitAreWritten();
    void valuesThatDoNotFitAreRefusedInWords_data();
    void valuesThatDoNotFitAreRefusedInWords();
    void everyValueThatIsShownCanBeWrittenBack_data();
    void everyValueThatIsShownCanBeWrittenBack();
    void onlyTypesOfAttributesAreReadFromBytes();
    void basicTypesAreNamedByWhatIsOnTheWire();
    void aTextOfWhichTheOperatorSawLessIsReadOnly();
};

void tst_ValueConversion::valuesOfADeviceAreShownByTheirType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<Data>("data");
    QTest::addColumn<QVariant>("shown");
    QTest::newRow("boolean") << "BOOLEAN" << Data::boolean(true) << QVariant(true);
    QTest::newRow("enumeration") << "Enum" << Data::integer(3) << QVariant(3);
    QTest::newRow("negative") << "INT8" << Data::integer(-5) << QVariant(-5);
    QTest::newRow("64 bits") << "INT64" << Data::integer(7) << QVariant(Q_INT64_C(7));
    QTest::newRow("64 bits unsigned")
        << "INT64U" << Data::unsignedInteger(std::numeric_limits<quint64>::max())
        << QVariant(std::numeric_limits<quint64>::max());
    QTest::newRow("32 bits unsigned")
        << "INT32U" << Data::unsignedInteger(4000000000U) << QVariant(4000000000U);
    QTest::newRow("8 bits unsigned") << "INT8U" << Data::unsignedInteger(255) << QVariant(255);
    QTest::newRow("float") << "FLOAT32" << Data::float32(1.5F) << QVariant(1.5F);
    QTest::newRow("double") << "FLOAT64" << Data::float64(1.25) << QVariant(1.25);
    QTest::newRow("double point on") << "Dbpos" << bits("10") << QVariant(2);
    QTest::newRow("double point bad") << "Dbpos" << bits("11") << QVariant(3);
    QTest::newRow("tap command") << "Tcmd" << bits("01") << QVariant(1);
    QTest::newRow("synchrocheck") << "Check" << bits("10") << QVariant(2);
    QTest::newRow("quality") << "Quality" << bits("0100000000010")
                             << QVariant(QStringLiteral("0100000000010"));
    QTest::newRow("short quality")
        << "Quality" << bits("01") << QVariant(QStringLiteral("01???????????"));
    QTest::newRow("quality without validity")
        << "Quality" << bits("0") << QVariant(QStringLiteral("11???????????"));
    QTest::newRow("quality without a bit")
        << "Quality" << bits("") << QVariant(QStringLiteral("11???????????"));
    QTest::newRow("quality that is none") << "Quality" << Data::booleanArray(mms::BitString())
                                          << QVariant(QStringLiteral("11???????????"));
    QTest::newRow("long quality") << "Quality" << bits("0000000000000101")
                                  << QVariant(QStringLiteral("0000000000000101"));
    QTest::newRow("half a double point") << "Dbpos" << bits("1") << QVariant(QStringLiteral("1?"));
    QTest::newRow("bits") << "OptFlds" << bits("0111110000")
                          << QVariant(QStringLiteral("0111110000"));
    const std::uint8_t octets[] = {0x00, 0xAF};
    QTest::newRow("octets") << "Octet64" << Data::octetString(octets)
                            << QVariant(QStringLiteral("00af"));
    QTest::newRow("text") << "VisString255" << Data::visibleString("hello")
                          << QVariant(QStringLiteral("hello"));
    QTest::newRow("unicode") << "Unicode255" << Data::mmsString("\xC3\xA4")
                             << QVariant(QString::fromUtf8("\xC3\xA4"));
    QTest::newRow("time") << "Timestamp" << Data::utcTime(utc(1614834367, 0x800000, 0x0A))
                          << QVariant(QStringLiteral("2021-03-04T05:06:07.500000Z"));
    mms::BinaryTime entry;
    entry.milliseconds = 1;
    entry.days = 0;
    QTest::newRow("entry time counts from 1984")
        << "EntryTime" << Data::binaryTime(entry)
        << QVariant(QStringLiteral("1984-01-01T00:00:00.001Z"));
    entry.milliseconds = 86400000;
    QTest::newRow("hours beyond a day")
        << "EntryTime" << Data::binaryTime(entry) << QVariant(QString());
    QTest::newRow("accuracy") << "Timestamp" << Data::utcTime(utc(0, 0x10624D, 0x47))
                              << QVariant(QStringLiteral(
                                     "1970-01-01T00:00:00.064000Z clock-failure accuracy-7"));
    QTest::newRow("not of its type") << "Dbpos" << Data::integer(2) << QVariant(2);
}

void tst_ValueConversion::valuesOfADeviceAreShownByTheirType()
{
    QFETCH(const QString, type);
    QFETCH(const Data, data);
    QFETCH(const QVariant, shown);
    const QVariant value = ValueConversion::toVariant(type, data);
    QCOMPARE(value, shown);
    QCOMPARE(value.userType(), shown.userType());
}

void tst_ValueConversion::structuresHaveNoValueOfTheirOwn()
{
    QVERIFY(
        !ValueConversion::toVariant("Struct", Data::structure({Data::boolean(true)})).isValid());
}

void tst_ValueConversion::valuesThatFitAreWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<TypeDescription>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Data>("written");
    const auto row = [](const char *title, const char *name, const TypeDescription &type,
                        const QVariant &value, const Data &written) {
        QTest::newRow(title) << QString::fromLatin1(name) << type << value << written;
    };
    row("lowest of INT8", "INT8", TypeDescription::integer(8), -128, Data::integer(-128));
    row("highest of INT8U", "INT8U", TypeDescription::unsignedInteger(8), 255,
        Data::unsignedInteger(255));
    row("lowest of INT64", "INT64", TypeDescription::integer(64),
        std::numeric_limits<qint64>::min(), Data::integer(std::numeric_limits<qint64>::min()));
    row("highest of INT64U", "INT64U", TypeDescription::unsignedInteger(64),
        std::numeric_limits<quint64>::max(),
        Data::unsignedInteger(std::numeric_limits<quint64>::max()));
    row("a number as text", "INT32", TypeDescription::integer(32), QStringLiteral("-7"),
        Data::integer(-7));
    row("a number as truth", "BOOLEAN", TypeDescription::boolean(), 1, Data::boolean(true));
    row("truth as text", "BOOLEAN", TypeDescription::boolean(), QStringLiteral("False"),
        Data::boolean(false));
    row("float", "FLOAT32", TypeDescription::float32(), 2.5F, Data::float32(2.5F));
    row("float from an integer", "FLOAT32", TypeDescription::float32(), 3, Data::float32(3.0F));
    row("double", "FLOAT64", TypeDescription::float64(), 1e300, Data::float64(1e300));
    row("double point", "Dbpos", TypeDescription::bitString(2), 1, bits("01"));
    row("check", "Check", TypeDescription::bitString(-2), 3, bits("11"));
    row("enumeration", "Enum", TypeDescription::integer(8), 5, Data::integer(5));
    row("quality", "Quality", TypeDescription::bitString(-13), QStringLiteral("0000000000010"),
        bits("0000000000010"));
    row("text", "VisString64", TypeDescription::visibleString(-64), QStringLiteral("abc"),
        Data::visibleString("abc"));
    row("empty text", "VisString64", TypeDescription::visibleString(-64), QString(),
        Data::visibleString(""));
    row("unicode", "Unicode255", TypeDescription::mmsString(-255), QString::fromUtf8("\xC3\xA4"),
        Data::mmsString("\xC3\xA4"));
    const std::uint8_t octets[] = {0x0A, 0xFF};
    row("octets", "Octet64", TypeDescription::octetString(-64), QStringLiteral("0aFF"),
        Data::octetString(octets));
    row("time", "Timestamp", TypeDescription::utcTime(), QStringLiteral("2021-03-04T05:06:07.500Z"),
        Data::utcTime(utc(1614834367, 0x800000, 0x0A)));
    row("time with its quality", "Timestamp", TypeDescription::utcTime(),
        QStringLiteral("2021-03-04T05:06:07.500Z clock-not-synchronized accuracy-31"),
        Data::utcTime(utc(1614834367, 0x800000, 0x3F)));
    row("entry time without a date", "EntryTime", TypeDescription::binaryTime(false),
        QStringLiteral("05:06:07.123"), Data::binaryTime({18367123, {}}));
    row("greatest float as it is shown", "FLOAT32", TypeDescription::float32(),
        QStringLiteral("3.4028235e+38"), Data::float32(std::numeric_limits<float>::max()));
    row("least float as it is shown", "FLOAT32", TypeDescription::float32(),
        QStringLiteral("1e-45"), Data::float32(std::numeric_limits<float>::denorm_min()));
    row("zero", "FLOAT32", TypeDescription::float32(), QStringLiteral("-0.0"),
        Data::float32(-0.0F));
    row("24 bits as 32", "INT24", TypeDescription::integer(32), -(1 << 23),
        Data::integer(-(1 << 23)));
    row(
        "digits", "BCD",
        [] {
            TypeDescription type;
            type.kind = TypeDescription::Kind::Bcd;
            type.size = 4;
            return type;
        }(),
        9999, Data::bcd(9999));
    row("255 characters of two octets", "Unicode255", TypeDescription::mmsString(-255),
        QString(255, QChar(0x00E4)), Data::mmsString(QString(255, QChar(0x00E4)).toStdString()));
    row("short text of a fixed length", "VisString129", TypeDescription::visibleString(129),
        QStringLiteral("abc"), Data::visibleString("abc"));
    row("short octets of a fixed length", "Octet64", TypeDescription::octetString(64),
        QStringLiteral("0aff"), Data::octetString(octets));
    row("short unicode of a fixed length", "Unicode255", TypeDescription::mmsString(255),
        QStringLiteral("abc"), Data::mmsString("abc"));
}

void tst_ValueConversion::valuesThatFitAreWritten()
{
    QFETCH(const QString, name);
    QFETCH(const TypeDescription, type);
    QFETCH(const QVariant, value);
    QFETCH(const Data, written);
    const mms::Result<Data> result = ValueConversion::toData(name, type, value);
    QVERIFY2(result.ok(), qPrintable(failure(result)));
    QVERIFY(*result == written);
}

void tst_ValueConversion::valuesThatDoNotFitAreRefusedInWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<TypeDescription>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const char *title, const char *name, const TypeDescription &type,
                        const QVariant &value, const QByteArray &sentence) {
        QTest::newRow(title) << QString::fromLatin1(name) << type << value
                             << QString::fromUtf8(sentence);
    };
    row("too large", "INT8U", TypeDescription::unsignedInteger(8), 300, "300 does not fit INT8U.");
    row("negative", "INT16U", TypeDescription::unsignedInteger(16), -1, "-1 does not fit INT16U.");
    row("one above", "INT8", TypeDescription::integer(8), 128, "128 does not fit INT8.");
    row("one below", "INT8", TypeDescription::integer(8), -129, "-129 does not fit INT8.");
    row("wider on the wire than its name", "INT24U", TypeDescription::unsignedInteger(32), 1 << 24,
        "16777216 does not fit INT24U.");
    row("fraction", "INT32", TypeDescription::integer(32), 1.5, "1.5 does not fit INT32.");
    row("word", "INT32", TypeDescription::integer(32), QStringLiteral("on"),
        "on does not fit INT32.");
    row("truth beyond", "BOOLEAN", TypeDescription::boolean(), 2, "2 does not fit BOOLEAN.");
    row("float too large", "FLOAT32", TypeDescription::float32(), 1e39,
        "1e+39 does not fit FLOAT32.");
    row("not a number", "FLOAT32", TypeDescription::float32(), std::nan(""),
        "nan is no finite number.");
    row("infinite", "FLOAT64", TypeDescription::float64(), std::numeric_limits<double>::infinity(),
        "inf is no finite number.");
    row("double point beyond", "Dbpos", TypeDescription::bitString(2), 4, "4 does not fit Dbpos.");
    row("quality of another length", "Quality", TypeDescription::bitString(13),
        QStringLiteral("01"), "01 does not fit Quality.");
    row("bits that are none", "OptFlds", TypeDescription::bitString(-10), QStringLiteral("012"),
        "012 does not fit OptFlds.");
    row("text too long", "VisString32", TypeDescription::visibleString(-32), QString(33, 'x'),
        "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx does not fit VisString32.");
    row("text of other letters", "VisString64", TypeDescription::visibleString(-64),
        QString::fromUtf8("\xC3\xA4"),
        "\"\xC3\xA4\" holds characters that VisString64 does not have.");
    row("octets that are none", "Octet64", TypeDescription::octetString(-64), QStringLiteral("0g"),
        "0g does not fit Octet64.");
    row("no time", "Timestamp", TypeDescription::utcTime(), QStringLiteral("yesterday"),
        "yesterday does not fit Timestamp.");
    row("time before 1970", "Timestamp", TypeDescription::utcTime(),
        QStringLiteral("1969-12-31T23:59:59Z"), "1969-12-31T23:59:59Z does not fit Timestamp.");
    for (const char *text : {"2026-03-04 05:06:07", "2026-03-04T05:06:07,500Z",
                             "2026-03-04T05:06:07Z tomorrow", "2026-03-04", "07,500Z"})
        row(text, "Timestamp", TypeDescription::utcTime(), QString::fromLatin1(text),
            QByteArray(text) + " does not fit Timestamp.");
    row("entry time with a date too much", "EntryTime", TypeDescription::binaryTime(false),
        QStringLiteral("1984-01-01T00:00:00.001Z"),
        "1984-01-01T00:00:00.001Z does not fit EntryTime.");
    row("entry time without its date", "EntryTime", TypeDescription::binaryTime(true),
        QStringLiteral("05:06:07.123"), "05:06:07.123 does not fit EntryTime.");
    row("a day of more than 24 hours", "EntryTime", TypeDescription::binaryTime(false),
        QStringLiteral("25:00:00.000"), "25:00:00.000 does not fit EntryTime.");
    row("rounds to infinity", "FLOAT32", TypeDescription::float32(),
        QStringLiteral("3.4028236e+38"), "3.4028236e+38 does not fit FLOAT32.");
    row("rounds to zero", "FLOAT32", TypeDescription::float32(), 1e-46,
        "1e-46 does not fit FLOAT32.");
    row("rounds to zero as text", "FLOAT64", TypeDescription::float64(), QStringLiteral("1e-400"),
        "1e-400 does not fit FLOAT64.");
    row("24 bits as 32, one above", "INT24", TypeDescription::integer(32), 1 << 23,
        "8388608 does not fit INT24.");
    row("quality not in full length", "Quality", TypeDescription::bitString(-13),
        QStringLiteral("010000000000"), "010000000000 does not fit Quality.");
    row("quality with unknown bits", "Quality", TypeDescription::bitString(-13),
        QStringLiteral("01???????????"), "01??????????? does not fit Quality.");
    row("unicode of 256 characters", "Unicode255", TypeDescription::mmsString(-255),
        QString(256, QChar('x')), QByteArray(256, 'x') + " does not fit Unicode255.");
    row("unicode counted in octets", "Unicode32", TypeDescription::mmsString(-32),
        QString(17, QChar(0x00E4)),
        QString(17, QChar(0x00E4)).toUtf8() + " does not fit Unicode32.");
    row("what stands for octets that are no text", "Unicode255", TypeDescription::mmsString(-255),
        QString(QChar(QChar::ReplacementCharacter)),
        "\"\xEF\xBF\xBD\" holds characters that Unicode255 does not have.");
    row("more than a fixed length", "VisString8", TypeDescription::visibleString(8),
        QStringLiteral("123456789"), "123456789 does not fit VisString8.");
    TypeDescription bcd;
    bcd.kind = TypeDescription::Kind::Bcd;
    bcd.size = 4;
    row("too many digits", "BCD", bcd, 10000, "10000 does not fit BCD.");
    row("negative digits", "BCD", bcd, -1, "-1 does not fit BCD.");
    TypeDescription generalized;
    generalized.kind = TypeDescription::Kind::GeneralizedTime;
    row("no generalized time", "GeneralizedTime", generalized, QStringLiteral("20211304050607Z"),
        "20211304050607Z does not fit GeneralizedTime.");
    row("nothing", "INT8", TypeDescription::integer(8), QVariant(), "There is no value to write.");
    row("structure", "Struct", TypeDescription::structure({}), 1,
        "A value of type Struct cannot be written as a whole.");
}

void tst_ValueConversion::valuesThatDoNotFitAreRefusedInWords()
{
    QFETCH(const QString, name);
    QFETCH(const TypeDescription, type);
    QFETCH(const QVariant, value);
    QFETCH(const QString, sentence);
    QCOMPARE(failure(ValueConversion::toData(name, type, value)), sentence);
}

void tst_ValueConversion::everyValueThatIsShownCanBeWrittenBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<TypeDescription>("type");
    QTest::addColumn<Data>("data");
    QTest::newRow("INT8") << "INT8" << TypeDescription::integer(8) << Data::integer(-1);
    QTest::newRow("INT64") << "INT64" << TypeDescription::integer(64)
                           << Data::integer(std::numeric_limits<qint64>::max());
    QTest::newRow("INT32U") << "INT32U" << TypeDescription::unsignedInteger(32)
                            << Data::unsignedInteger(0xFFFFFFFFU);
    QTest::newRow("FLOAT32") << "FLOAT32" << TypeDescription::float32() << Data::float32(0.1F);
    QTest::newRow("FLOAT64") << "FLOAT64" << TypeDescription::float64() << Data::float64(0.1);
    QTest::newRow("Dbpos") << "Dbpos" << TypeDescription::bitString(2) << bits("10");
    QTest::newRow("Quality") << "Quality" << TypeDescription::bitString(-13)
                             << bits("1100000000000");
    QTest::newRow("Timestamp") << "Timestamp" << TypeDescription::utcTime()
                               << Data::utcTime(utc(1614834367, 0xC00000, 0x0A));
    mms::BinaryTime entry;
    entry.milliseconds = 86399999;
    entry.days = 15000;
    QTest::newRow("EntryTime") << "EntryTime" << TypeDescription::binaryTime(true)
                               << Data::binaryTime(entry);
    entry.days.reset();
    QTest::newRow("EntryTime of 4 octets")
        << "EntryTime" << TypeDescription::binaryTime(false) << Data::binaryTime(entry);
    QTest::newRow("Timestamp with a failed clock")
        << "Timestamp" << TypeDescription::utcTime() << Data::utcTime(utc(1614834367, 16777, 0xFF));
    QTest::newRow("greatest FLOAT32") << "FLOAT32" << TypeDescription::float32()
                                      << Data::float32(std::numeric_limits<float>::max());
    QTest::newRow("quality of 16 bits")
        << "BitString16" << TypeDescription::bitString(16) << bits("1100000000000101");
}

void tst_ValueConversion::everyValueThatIsShownCanBeWrittenBack()
{
    QFETCH(const QString, name);
    QFETCH(const TypeDescription, type);
    QFETCH(const Data, data);
    const mms::Result<Data> again =
        ValueConversion::toData(name, type, ValueConversion::toVariant(name, data));
    QVERIFY2(again.ok(), qPrintable(failure(again)));
    QVERIFY(*again == data);
}

void tst_ValueConversion::onlyTypesOfAttributesAreReadFromBytes()
{
    QVariant value;
    QVERIFY(ValueConversion::readVariant(streamed(42), value));
    QCOMPARE(value, QVariant(42));
    QVERIFY(ValueConversion::readVariant(streamed(QStringLiteral("on")), value));
    QCOMPARE(value, QVariant(QStringLiteral("on")));
    QVERIFY(ValueConversion::readVariant(streamed(2.5F), value));
    QCOMPARE(value, QVariant(2.5F));

    QVERIFY(!ValueConversion::readVariant(streamed(QVariantList{1, 2}), value));
    QVERIFY(!ValueConversion::readVariant(streamed(QVariant()), value));
    QVERIFY(!ValueConversion::readVariant(QByteArray(), value));
    QVERIFY(!ValueConversion::readVariant(streamed(42).chopped(1), value));
    QVERIFY(!ValueConversion::readVariant(streamed(42) + 'x', value));
}

void tst_ValueConversion::basicTypesAreNamedByWhatIsOnTheWire()
{
    QCOMPARE(ValueConversion::basicTypeOf(TypeDescription::integer(32)), QStringLiteral("INT32"));
    QCOMPARE(ValueConversion::basicTypeOf(TypeDescription::unsignedInteger(8)),
             QStringLiteral("INT8U"));
    QCOMPARE(ValueConversion::basicTypeOf(TypeDescription::bitString(-13)),
             QStringLiteral("Quality"));
    QCOMPARE(ValueConversion::basicTypeOf(TypeDescription::visibleString(-129)),
             QStringLiteral("VisString129"));
    QVERIFY(ValueConversion::fits("Enum", TypeDescription::integer(8)));
    QVERIFY(ValueConversion::fits("Dbpos", TypeDescription::bitString(2)));
    QVERIFY(!ValueConversion::fits("Dbpos", TypeDescription::integer(8)));
    QVERIFY(!ValueConversion::fits("INT32", TypeDescription::integer(8)));
    QVERIFY(!ValueConversion::fits("FLOAT64", TypeDescription::float32()));
    QVERIFY(ValueConversion::fits("INT24", TypeDescription::integer(32)));
    QVERIFY(ValueConversion::fits("INT24U", TypeDescription::unsignedInteger(32)));
    QVERIFY(!ValueConversion::fits("INT24", TypeDescription::unsignedInteger(32)));
    QVERIFY(!ValueConversion::fits("INT16", TypeDescription::integer(32)));
}

void tst_ValueConversion::aTextOfWhichTheOperatorSawLessIsReadOnly()
{
    const QString reference = QStringLiteral("LD0/GGIO1$DC$NamPlt$dU");
    QCOMPARE(ValueConversion::whyReadOnly(reference, QStringLiteral("Feeder")), QString());
    QCOMPARE(ValueConversion::whyReadOnly(reference, QString(255, QChar(0x00E4))), QString());
    QCOMPARE(ValueConversion::whyReadOnly(reference, 7), QString());
    QCOMPARE(ValueConversion::whyReadOnly(reference, QString(600, QLatin1Char('x'))),
             QStringLiteral("The text of LD0/GGIO1$DC$NamPlt$dU is longer than can be shown, so it "
                            "can only be read."));
    const QVariant latin1 =
        ValueConversion::toVariant("VisString255", Data::visibleString("Abzweig S\xFC\x64"));
    QCOMPARE(ValueConversion::whyReadOnly(reference, latin1),
             QStringLiteral("LD0/GGIO1$DC$NamPlt$dU holds octets that are no text, so it can only "
                            "be read."));
}

QTEST_GUILESS_MAIN(tst_ValueConversion)
#include "tst_valueconversion.moc"
