// SPDX-License-Identifier: Apache-2.0
#include "report/reportcodec.h"

#include <QtTest/QtTest>

namespace {

constexpr int triggerCombinations = 32;
constexpr int optionalFieldCombinations = 256;

/// The trigger options of bits 0 to 4 of a number, in the order of the form.
TriggerOptions triggerOptions(int combination)
{
    TriggerOptions options;
    options.dataChange = combination & 1;
    options.qualityChange = combination & 2;
    options.dataUpdate = combination & 4;
    options.integrity = combination & 8;
    options.generalInterrogation = combination & 16;
    return options;
}

/// The optional fields of bits 0 to 7 of a number, bit 0 the one with the lowest position.
OptionalFields optionalFields(int combination)
{
    OptionalFields fields;
    fields.sequenceNumber = combination & 1;
    fields.timeStamp = combination & 2;
    fields.reasonForInclusion = combination & 4;
    fields.dataSetName = combination & 8;
    fields.dataReference = combination & 16;
    fields.bufferOverflow = combination & 32;
    fields.entryId = combination & 64;
    fields.configurationRevision = combination & 128;
    return fields;
}

/// The same as the bit string that a device shows: the reserved bit, then one character per field.
QString optionalFieldsText(int combination, bool buffered)
{
    QString text = QStringLiteral("0000000000");
    for (int position = 1; position <= 8; ++position) {
        const bool onlyBuffered = position == 6 || position == 7;
        if ((combination & (1 << (position - 1))) && (buffered || !onlyBuffered))
            text[position] = QLatin1Char('1');
    }
    return text;
}

QByteArray bytesOf(const std::array<quint8, 2> &bytes)
{
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), 2);
}

bool operator==(const TriggerOptions &a, const TriggerOptions &b)
{
    return a.dataChange == b.dataChange && a.qualityChange == b.qualityChange &&
           a.dataUpdate == b.dataUpdate && a.integrity == b.integrity &&
           a.generalInterrogation == b.generalInterrogation;
}

bool operator==(const OptionalFields &a, const OptionalFields &b)
{
    return a.sequenceNumber == b.sequenceNumber && a.timeStamp == b.timeStamp &&
           a.reasonForInclusion == b.reasonForInclusion && a.dataSetName == b.dataSetName &&
           a.dataReference == b.dataReference && a.bufferOverflow == b.bufferOverflow &&
           a.entryId == b.entryId && a.configurationRevision == b.configurationRevision;
}

} // namespace

class tst_ReportCodec : public QObject
{
    Q_OBJECT

private slots:
    void everyCombinationOfTriggerOptionsHasItsByte();
    void reservedBitsOfTriggerOptionsAreIgnored();
    void everyCombinationOfOptionalFieldsHasItsBytes_data();
    void everyCombinationOfOptionalFieldsHasItsBytes();
    void everyOptionalFieldHasItsBit_data();
    void everyOptionalFieldHasItsBit();
    void everyTextOfOptionalFieldsIsReadBack_data();
    void everyTextOfOptionalFieldsIsReadBack();
    void aShortTextOfOptionalFieldsReadsAsNotSet_data();
    void aShortTextOfOptionalFieldsReadsAsNotSet();
    void onlyTheCharacterOneSetsAnOptionalField();
    void aBufferedBlockIsKnownByItsReference_data();
    void aBufferedBlockIsKnownByItsReference();
    void numbersAreBigEndian_data();
    void numbersAreBigEndian();
    void textsAreUtf8WithoutTerminator();
    void flagsAreOneByte();
};

void tst_ReportCodec::everyCombinationOfTriggerOptionsHasItsByte()
{
    const std::array<quint8, triggerCombinations> golden = {
        0x00, 0x40, 0x20, 0x60, 0x10, 0x50, 0x30, 0x70, 0x08, 0x48, 0x28,
        0x68, 0x18, 0x58, 0x38, 0x78, 0x04, 0x44, 0x24, 0x64, 0x14, 0x54,
        0x34, 0x74, 0x0c, 0x4c, 0x2c, 0x6c, 0x1c, 0x5c, 0x3c, 0x7c};
    for (int combination = 0; combination < triggerCombinations; ++combination) {
        const TriggerOptions options = triggerOptions(combination);
        const quint8 byte = golden[static_cast<std::size_t>(combination)];
        QCOMPARE(ReportCodec::encodeTriggerOptions(options), byte);
        QVERIFY(ReportCodec::decodeTriggerOptions(byte) == options);
    }
}

void tst_ReportCodec::reservedBitsOfTriggerOptionsAreIgnored()
{
    QVERIFY(ReportCodec::decodeTriggerOptions(0x83) == TriggerOptions());
    QVERIFY(ReportCodec::decodeTriggerOptions(0xff) == triggerOptions(31));
}

void tst_ReportCodec::everyCombinationOfOptionalFieldsHasItsBytes_data()
{
    QTest::addColumn<bool>("buffered");
    QTest::newRow("buffered") << true;
    QTest::newRow("unbuffered") << false;
}

void tst_ReportCodec::everyCombinationOfOptionalFieldsHasItsBytes()
{
    QFETCH(bool, buffered);
    for (int combination = 0; combination < optionalFieldCombinations; ++combination) {
        const QString bits = optionalFieldsText(combination, buffered).leftJustified(16, u'0');
        const auto expected = static_cast<quint16>(bits.toUInt(nullptr, 2));
        const auto bytes = ReportCodec::encodeOptionalFields(optionalFields(combination), buffered);
        QCOMPARE(static_cast<quint16>(bytes[0] << 8 | bytes[1]), expected);
    }
}

void tst_ReportCodec::everyOptionalFieldHasItsBit_data()
{
    QTest::addColumn<int>("combination");
    QTest::addColumn<QByteArray>("buffered");
    QTest::addColumn<QByteArray>("unbuffered");

    const auto row = [](const char *name, int combination, const char *buffered,
                        const char *unbuffered) {
        QTest::newRow(name) << combination << QByteArray::fromHex(buffered)
                            << QByteArray::fromHex(unbuffered);
    };
    row("none", 0, "0000", "0000");
    row("sequence number", 1, "4000", "4000");
    row("time stamp", 2, "2000", "2000");
    row("reason for inclusion", 4, "1000", "1000");
    row("data set name", 8, "0800", "0800");
    row("data reference", 16, "0400", "0400");
    row("buffer overflow", 32, "0200", "0000");
    row("entry id", 64, "0100", "0000");
    row("configuration revision", 128, "0080", "0080");
    row("all", 255, "7f80", "7c80");
}

void tst_ReportCodec::everyOptionalFieldHasItsBit()
{
    QFETCH(int, combination);
    const OptionalFields fields = optionalFields(combination);
    QTEST(bytesOf(ReportCodec::encodeOptionalFields(fields, true)), "buffered");
    QTEST(bytesOf(ReportCodec::encodeOptionalFields(fields, false)), "unbuffered");
}

void tst_ReportCodec::everyTextOfOptionalFieldsIsReadBack_data()
{
    everyCombinationOfOptionalFieldsHasItsBytes_data();
}

void tst_ReportCodec::everyTextOfOptionalFieldsIsReadBack()
{
    QFETCH(bool, buffered);
    for (int combination = 0; combination < optionalFieldCombinations; ++combination) {
        OptionalFields expected = optionalFields(combination);
        expected.bufferOverflow = expected.bufferOverflow && buffered;
        expected.entryId = expected.entryId && buffered;
        const QString text = optionalFieldsText(combination, true);
        QVERIFY(ReportCodec::decodeOptionalFields(text, buffered) == expected);
        QVERIFY(ReportCodec::decodeOptionalFields(text.left(9), buffered) == expected);
    }
}

void tst_ReportCodec::aShortTextOfOptionalFieldsReadsAsNotSet_data()
{
    QTest::addColumn<int>("length");
    for (int length = 0; length <= 9; ++length)
        QTest::addRow("%d characters", length) << length;
}

void tst_ReportCodec::aShortTextOfOptionalFieldsReadsAsNotSet()
{
    QFETCH(int, length);
    // Character i stands for combination bit i - 1: a text of n characters tells of n - 1 fields.
    const int told = length == 0 ? 0 : (1 << (length - 1)) - 1;
    QVERIFY(ReportCodec::decodeOptionalFields(QString(length, u'1'), true) == optionalFields(told));
}

void tst_ReportCodec::onlyTheCharacterOneSetsAnOptionalField()
{
    QVERIFY(ReportCodec::decodeOptionalFields(QStringLiteral("1tTx2 \u0661\u00b9Y"), true) ==
            OptionalFields());
}

void tst_ReportCodec::aBufferedBlockIsKnownByItsReference_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<bool>("buffered");
    QTest::newRow("buffered") << QStringLiteral("LLN0$BR$brcbMX01") << true;
    QTest::newRow("no separator behind") << QStringLiteral("LLN0$BRcb") << true;
    QTest::newRow("name that begins like the mark") << QStringLiteral("LLN0$RP$BRmx") << true;
    QTest::newRow("unbuffered") << QStringLiteral("LLN0$RP$urcbBR") << false;
    QTest::newRow("lower case") << QStringLiteral("LLN0$br$brcbMX01") << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_ReportCodec::aBufferedBlockIsKnownByItsReference()
{
    QFETCH(QString, reference);
    QTEST(ReportCodec::isBufferedBlock(reference), "buffered");
}

void tst_ReportCodec::numbersAreBigEndian_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("zero") << 0 << QByteArray::fromHex("00000000");
    QTest::newRow("1000") << 1000 << QByteArray::fromHex("000003e8");
    QTest::newRow("100000") << 100000 << QByteArray::fromHex("000186a0");
    QTest::newRow("negative") << -2 << QByteArray::fromHex("fffffffe");
}

void tst_ReportCodec::numbersAreBigEndian()
{
    QFETCH(int, number);
    QTEST(ReportCodec::encodeNumber(number), "bytes");
}

void tst_ReportCodec::textsAreUtf8WithoutTerminator()
{
    QCOMPARE(ReportCodec::encodeText(QString()), QByteArray());
    QCOMPARE(ReportCodec::encodeText(QStringLiteral("r\u00e9p\u4e2d")),
             QByteArray::fromHex("72c3a970e4b8ad"));
}

void tst_ReportCodec::flagsAreOneByte()
{
    QCOMPARE(ReportCodec::encodeFlag(true), QByteArray::fromHex("01"));
    QCOMPARE(ReportCodec::encodeFlag(false), QByteArray::fromHex("00"));
}

QTEST_APPLESS_MAIN(tst_ReportCodec)
#include "tst_reportcodec.moc"
