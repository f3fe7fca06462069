// SPDX-License-Identifier: Apache-2.0
#include "iedctl/valuetext.h"

#include "driver/core/valuewords.h"

#include <devicemodel/physicaldevice.h>

#include <QtTest/QtTest>

#include <cstdint>
#include <limits>

class tst_IedctlValueText : public QObject
{
    Q_OBJECT

private slots:
    void textBecomesTheTypeOfTheAttribute_data();
    void textBecomesTheTypeOfTheAttribute();
    void whatDoesNotFitIsRefusedWithASentence_data();
    void whatDoesNotFitIsRefusedWithASentence();
    void aSettingKeepsTheTypeItHad();
    void aControlValueIsReadByItsType_data();
    void aControlValueIsReadByItsType();
    void modesHaveTheirNamesWithoutAFile();
    void aFloatIsShownSoThatItCanBeTyped();
    void enumerationsShowTheirEntries();
    void qualitiesAreSaidInWords_data();
    void qualitiesAreSaidInWords();
    void aFloatStaysTheNumberThatItWas();
    void integersThatJsonCannotHoldBecomeText();
};

namespace {

void addEnumeration(PhysicalDevice &device)
{
    EnumType beh;
    beh.id = QStringLiteral("Beh");
    beh.values = {
        {1, QStringLiteral("on")}, {2, QStringLiteral("blocked")}, {5, QStringLiteral("off")}};
    device.enumTypes.insert(beh.id, beh);
}

DataAttribute attributeOfType(const QString &type)
{
    DataAttribute attribute;
    attribute.basicType = type;
    if (type == QLatin1String("Enum"))
        attribute.enumTypeId = QStringLiteral("Beh");
    return attribute;
}

} // namespace

void tst_IedctlValueText::textBecomesTheTypeOfTheAttribute_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("boolean word") << "BOOLEAN"
                                  << "on" << QVariant(true);
    QTest::newRow("boolean digit") << "BOOLEAN"
                                   << "0" << QVariant(false);
    QTest::newRow("least") << "INT8"
                           << "-128" << QVariant(-128);
    QTest::newRow("hexadecimal") << "INT16U"
                                 << "0xFF" << QVariant(255U);
    QTest::newRow("64 bits") << "INT64"
                             << "-9223372036854775808"
                             << QVariant(std::numeric_limits<qlonglong>::min());
    QTest::newRow("greatest") << "INT64U"
                              << "18446744073709551615"
                              << QVariant(std::numeric_limits<qulonglong>::max());
    QTest::newRow("float") << "FLOAT32"
                           << "-1.5e3" << QVariant(-1500.0);
    QTest::newRow("entry") << "Enum"
                           << "Blocked" << QVariant(2);
    QTest::newRow("ordinal") << "Enum"
                             << "5" << QVariant(5);
    QTest::newRow("double point") << "Dbpos"
                                  << "off" << QVariant(1);
    QTest::newRow("step") << "Tcmd"
                          << "higher" << QVariant(2);
    QTest::newRow("quality") << "Quality"
                             << "0100000000000" << QVariant("0100000000000");
    QTest::newRow("text") << "VisString255"
                          << " as it is " << QVariant(" as it is ");
}

void tst_IedctlValueText::textBecomesTheTypeOfTheAttribute()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    PhysicalDevice device;
    addEnumeration(device);
    QString error;
    const QVariant parsed = ValueText::parse(device, attributeOfType(type), text, error);
    QCOMPARE(error, QString());
    QCOMPARE(parsed.userType(), value.userType());
    QCOMPARE(parsed, value);
}

void tst_IedctlValueText::whatDoesNotFitIsRefusedWithASentence_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("no truth") << "BOOLEAN"
                              << "maybe";
    QTest::newRow("one too small") << "INT8"
                                   << "-129";
    QTest::newRow("one too large") << "INT8U"
                                   << "256";
    QTest::newRow("sign") << "INT8U"
                          << "-1";
    QTest::newRow("fraction") << "INT32"
                              << "1.5";
    QTest::newRow("empty") << "INT32"
                           << "";
    QTest::newRow("one too large, 64 bits") << "INT64U"
                                            << "18446744073709551616";
    QTest::newRow("not finite") << "FLOAT32"
                                << "nan";
    QTest::newRow("infinite") << "FLOAT64"
                              << "inf";
    QTest::newRow("no entry") << "Enum"
                              << "nowhere";
    QTest::newRow("quality too short") << "Quality"
                                       << "010";
    QTest::newRow("quality of other characters") << "Quality"
                                                 << "01000000000x0";
}

void tst_IedctlValueText::whatDoesNotFitIsRefusedWithASentence()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    PhysicalDevice device;
    addEnumeration(device);
    QString error;
    QVERIFY(!ValueText::parse(device, attributeOfType(type), text, error).isValid());
    QVERIFY(error.endsWith(QLatin1Char('.')));
}

void tst_IedctlValueText::aSettingKeepsTheTypeItHad()
{
    QString error;
    const QVariant number = ValueText::parseLike(QVariant(3), "12", error);
    QCOMPARE(number.userType(), int(QMetaType::Int));
    QCOMPARE(number.toInt(), 12);
    const QVariant real = ValueText::parseLike(QVariant(3.0F), "0.5", error);
    QCOMPARE(real.userType(), int(QMetaType::Float));
    QCOMPARE(real.toFloat(), 0.5F);
    QVERIFY(!ValueText::parseLike(QVariant(3), "4294967296", error).isValid());
    QVERIFY(!ValueText::parseLike(QVariant(3U), "-1", error).isValid());
    QVERIFY(!ValueText::parseLike(QVariant(true), "2", error).isValid());
    QVERIFY(!error.isEmpty());
}

void tst_IedctlValueText::aControlValueIsReadByItsType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *title, const char *type, const char *status, const char *text,
                        const QVariant &value) {
        QTest::newRow(title) << type << status << text << value;
    };
    const QVariant refused;
    row("switch on", "BOOLEAN", "Dbpos", "on", 1.0);
    row("switch off", "BOOLEAN", "Dbpos", "OFF", 0.0);
    row("switch by number", "BOOLEAN", "Dbpos", "1", 1.0);
    row("switch beyond", "BOOLEAN", "Dbpos", "2", refused);
    row("tap command", "Tcmd", "", "higher", 2.0);
    row("tap command by number", "Tcmd", "", "1", 1.0);
    row("tap command as a switch", "Tcmd", "", "on", refused);
    row("mode", "Enum", "Enum", "off", 5.0);
    row("mode by number", "Enum", "Enum", "2", 2.0);
    row("mode that is none", "Enum", "Enum", "true", refused);
    row("mode that the device describes as a number", "INT8", "Enum", "off", 5.0);
    row("number", "INT32", "INT32", "-7", -7.0);
    row("number with a word", "INT32", "INT32", "on", refused);
    row("number with a fraction", "INT32", "INT32", "1.5", refused);
    row("number beyond", "INT8", "INT32", "128", refused);
    row("set point", "Struct", "", "12.5", 12.5);
    row("set point with a word", "Struct", "", "on", refused);
    row("set point that is none", "Struct", "", "nan", refused);
    row("set point of one number", "FLOAT32", "", "off", refused);
    row("command that is not described", "", "Dbpos", "on", 1.0);
}

void tst_IedctlValueText::aControlValueIsReadByItsType()
{
    QFETCH(QString, type);
    QFETCH(QString, status);
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    PhysicalDevice device;
    addEnumeration(device);
    DataObject object;
    const auto leaf = [](const QString &name, const QString &basicType) {
        auto *node = new DAO;
        node->attribute = new DataAttribute(attributeOfType(basicType));
        node->attribute->name = name;
        return node;
    };
    if (!status.isEmpty())
        object.attributes.append(leaf(QStringLiteral("stVal"), status));
    if (!type.isEmpty()) {
        auto *oper = new DAO;
        oper->attribute = new DataAttribute;
        oper->attribute->name = QStringLiteral("Oper");
        oper->children.append(leaf(QStringLiteral("ctlVal"), type));
        if (type == QLatin1String("Enum"))
            oper->children.last()->attribute->enumTypeId.clear();
        object.attributes.append(oper);
    }
    QString error;
    const double parsed = ValueText::parseControl(device, object, text, error);
    QCOMPARE(error.isEmpty(), value.isValid());
    QVERIFY2(error.isEmpty() || error.endsWith(QLatin1Char('.')), qPrintable(error));
    if (value.isValid())
        QCOMPARE(parsed, value.toDouble());
}

void tst_IedctlValueText::modesHaveTheirNamesWithoutAFile()
{
    PhysicalDevice device;
    DataAttribute mode;
    mode.basicType = QStringLiteral("Enum");
    mode.enumTypeId = QStringLiteral("Mod");
    QString error;
    QCOMPARE(ValueText::parse(device, mode, "off", error), QVariant(5));
    QCOMPARE(ValueWords::text(device, &mode, 4), QString("test/blocked (4)"));
    mode.enumTypeId = QStringLiteral("HealthKind");
    QCOMPARE(ValueWords::text(device, &mode, 3), QString("Alarm (3)"));
    mode.enumTypeId = QStringLiteral("CtlModelKind");
    QCOMPARE(ValueWords::text(device, &mode, 4), QString("sbo-with-enhanced-security (4)"));
    mode.enumTypeId = QStringLiteral("MultiplierKind");
    QCOMPARE(ValueWords::text(device, &mode, -3), QString("m (-3)"));
    mode.enumTypeId = QStringLiteral("OpModKnd");
    QVERIFY(!ValueText::parse(device, mode, "off", error).isValid());
    QVERIFY(error.contains("no known entries"));
}

void tst_IedctlValueText::aFloatIsShownSoThatItCanBeTyped()
{
    PhysicalDevice device;
    DataAttribute value;
    value.basicType = QStringLiteral("FLOAT32");
    QString error;
    for (const float number : {std::numeric_limits<float>::max(), 0.1F, 16777217.0F, 1e-45F}) {
        const QString shown = ValueWords::text(device, &value, number);
        const QVariant typed = ValueText::parse(device, value, shown, error);
        QVERIFY2(typed.isValid(), qPrintable(error));
        QCOMPARE(static_cast<float>(qMin(typed.toDouble(), 3.4028234663852886e38)), number);
    }
}

void tst_IedctlValueText::enumerationsShowTheirEntries()
{
    PhysicalDevice device;
    addEnumeration(device);
    const DataAttribute mode = attributeOfType(QStringLiteral("Enum"));
    QCOMPARE(ValueWords::text(device, &mode, 2), QString("blocked (2)"));
    QCOMPARE(ValueWords::text(device, &mode, 9), QString("9"));
    QCOMPARE(ValueWords::text(device, nullptr, 0.1F), QString("0.1"));
    QCOMPARE(ValueWords::text(device, nullptr, QVariant()), QString());
}

void tst_IedctlValueText::qualitiesAreSaidInWords_data()
{
    QTest::addColumn<QString>("bits");
    QTest::addColumn<QString>("words");
    QTest::newRow("good") << "0000000000000"
                          << "good";
    QTest::newRow("invalid") << "0110000000000"
                             << "invalid, overflow";
    QTest::newRow("questionable") << "1100000100000"
                                  << "questionable, old data";
    QTest::newRow("reserved") << "1000000000000"
                              << "reserved";
    QTest::newRow("details") << "0101111111111"
                             << "invalid, out of range, bad reference, oscillatory, failure, old "
                                "data, inconsistent, inaccurate, substituted, test, operator "
                                "blocked";
    QTest::newRow("short") << "01"
                           << "invalid";
    QTest::newRow("not sent") << "00???????????"
                              << "good, partly unknown";
    QTest::newRow("none") << ""
                          << "";
}

void tst_IedctlValueText::qualitiesAreSaidInWords()
{
    QFETCH(QString, bits);
    QFETCH(QString, words);
    QCOMPARE(ValueWords::quality(bits), words);
    PhysicalDevice device;
    const DataAttribute quality = attributeOfType(QStringLiteral("Quality"));
    if (!bits.isEmpty()) {
        QCOMPARE(ValueWords::text(device, &quality, bits),
                 QStringLiteral("%1 (%2)").arg(words, bits));
    }
}

void tst_IedctlValueText::aFloatStaysTheNumberThatItWas()
{
    QCOMPARE(ValueText::toJson(12.4F), QJsonValue(12.4));
    QCOMPARE(ValueText::toJson(0.76F), QJsonValue(0.76));
    QCOMPARE(ValueText::toJson(std::numeric_limits<float>::infinity()), QJsonValue("inf"));
    QCOMPARE(ValueText::toJson(12.4), QJsonValue(12.4));
}

void tst_IedctlValueText::integersThatJsonCannotHoldBecomeText()
{
    QCOMPARE(ValueText::toJson(QVariant(Q_INT64_C(9007199254740992))).toDouble(),
             9007199254740992.0);
    QCOMPARE(ValueText::toJson(QVariant(std::numeric_limits<qulonglong>::max())).toString(),
             QString("18446744073709551615"));
    QCOMPARE(ValueText::toJson(QVariant(true)), QJsonValue(true));
    QCOMPARE(ValueText::toJson(QVariant()), QJsonValue());
}

QTEST_APPLESS_MAIN(tst_IedctlValueText)
#include "tst_valuetext.moc"
