// SPDX-License-Identifier: Apache-2.0
#include "devicebuilder.h"
#include "testtemplates.h"

#include "model/valuepresentation.h"

#include <QtTest/QtTest>

#include <limits>

namespace {

const QByteArray templateXml =
    "<DataTypeTemplate>"
    "<EnumType id=\"Dbpos\"><EnumVal ord=\"2\">on</EnumVal></EnumType>"
    "<EnumType id=\"Tcmd\"><EnumVal ord=\"1\">lower</EnumVal></EnumType>"
    "<EnumType id=\"Check\"><EnumVal ord=\"3\">both checks</EnumVal></EnumType>"
    "<EnumType id=\"Beh\"><EnumVal ord=\"1\">on</EnumVal><EnumVal ord=\"9\">template only"
    "</EnumVal></EnumType>"
    "<EnumType id=\"Odd\"><EnumVal ord=\"1\">%2 and %1</EnumVal></EnumType>"
    "</DataTypeTemplate>";

DataAttribute attributeOf(const QString &basicType, const QVariant &value,
                          const QString &enumTypeId = QString())
{
    DataAttribute attribute;
    attribute.basicType = basicType;
    attribute.value = value;
    attribute.enumTypeId = enumTypeId;
    return attribute;
}

QVariant text(const char *value)
{
    return QString::fromLatin1(value);
}

template <typename T>
QVariant typed(T value)
{
    return QVariant::fromValue(value);
}

} // namespace

class tst_ValuePresentation : public QObject
{
    Q_OBJECT

private slots:
    void codedValuesAreShownByName_data();
    void codedValuesAreShownByName();
    void booleansAreShownAsWords_data();
    void booleansAreShownAsWords();
    void floatsAreShownAsNumbers_data();
    void floatsAreShownAsNumbers();
    void otherValuesAreShownAsStored_data();
    void otherValuesAreShownAsStored();
    void qualitiesAreShownByTheNamesOfTheirBits_data();
    void qualitiesAreShownByTheNamesOfTheirBits();
    void aQualityAttributeShowsItsNames();
    void editedTextsBecomeTypedValues_data();
    void editedTextsBecomeTypedValues();
    void anEditedTextOfAnUnconvertedTypeIsPassedAsGiven();
};

void tst_ValuePresentation::codedValuesAreShownByName_data()
{
    QTest::addColumn<QString>("basicType");
    QTest::addColumn<QString>("enumTypeId");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");

    QTest::newRow("the device's own enumeration") << "Enum"
                                                  << "Mode" << QVariant(1) << "active";
    QTest::newRow("ordinal the device does not list") << "Enum"
                                                      << "Mode" << QVariant(9) << "";
    QTest::newRow("device before template") << "Enum"
                                            << "Beh" << QVariant(1) << "enabled";
    QTest::newRow("device knows the id, template the ordinal") << "Enum"
                                                               << "Beh" << QVariant(9) << "";
    QTest::newRow("template text") << "Enum"
                                   << "Odd" << QVariant(1) << "%2 and %1 (1)";
    QTest::newRow("template without the ordinal") << "Enum"
                                                  << "Odd" << QVariant(2) << "Not Represented";
    QTest::newRow("id nobody knows") << "Enum"
                                     << "Nowhere" << QVariant(1) << "Not Represented";
    QTest::newRow("enumeration without an id") << "Enum"
                                               << "" << QVariant(1) << "Not Represented";
    QTest::newRow("ordinal as text") << "Enum"
                                     << "Mode" << text("1") << "active";
    QTest::newRow("no value known") << "Enum"
                                    << "Mode" << QVariant() << "";

    QTest::newRow("double point by the device") << "Dbpos"
                                                << "Mode" << QVariant(1) << "active";
    QTest::newRow("double point, unlisted by the device") << "Dbpos"
                                                          << "Mode" << QVariant(2) << "";
    QTest::newRow("double point by its type name") << "Dbpos"
                                                   << "" << QVariant(2) << "on (2)";
    QTest::newRow("double point, unknown id: by its type name") << "Dbpos"
                                                                << "Odd" << QVariant(2) << "on (2)";
    QTest::newRow("double point, unlisted") << "Dbpos"
                                            << "" << QVariant(3) << "Not Represented";
    QTest::newRow("command by its type name") << "Tcmd"
                                              << "Odd" << QVariant(1) << "lower (1)";
    QTest::newRow("command by the device") << "Tcmd"
                                           << "Mode" << QVariant(1) << "active";
    QTest::newRow("check by its type name") << "Check"
                                            << "" << QVariant(3) << "both checks (3)";
    QTest::newRow("check by the device") << "Check"
                                         << "Mode" << QVariant(1) << "active";
}

void tst_ValuePresentation::codedValuesAreShownByName()
{
    QFETCH(QString, basicType);
    QFETCH(QString, enumTypeId);
    QFETCH(QVariant, value);
    QFETCH(QString, shown);
    PhysicalDevice device;
    DeviceBuilder::addEnumeration(device, QStringLiteral("Mode"), {{1, QStringLiteral("active")}});
    DeviceBuilder::addEnumeration(device, QStringLiteral("Beh"), {{1, QStringLiteral("enabled")}});
    const TestTemplates templates(templateXml);

    const QVariant presented =
        presentedValue(attributeOf(basicType, value, enumTypeId), device, templates);
    QCOMPARE(presented.userType(), int(QMetaType::QString));
    QCOMPARE(presented.toString(), shown);
}

void tst_ValuePresentation::booleansAreShownAsWords_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("true") << QVariant(true) << "true";
    QTest::newRow("false") << QVariant(false) << "False";
    QTest::newRow("1") << QVariant(1) << "true";
    QTest::newRow("0") << QVariant(0) << "False";
    QTest::newRow("2") << QVariant(2) << "False";
    QTest::newRow("text 1") << text("1") << "true";
    QTest::newRow("no value known") << QVariant() << "False";
}

void tst_ValuePresentation::booleansAreShownAsWords()
{
    QFETCH(QVariant, value);
    const QVariant shown = presentedValue(attributeOf(QStringLiteral("BOOLEAN"), value),
                                          PhysicalDevice(), TestTemplates());
    QCOMPARE(shown.userType(), int(QMetaType::QString));
    QTEST(shown.toString(), "shown");
}

void tst_ValuePresentation::floatsAreShownAsNumbers_data()
{
    QTest::addColumn<QString>("basicType");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("shown");
    QTest::newRow("single") << "FLOAT32" << typed(1.5f) << 1.5;
    QTest::newRow("double") << "FLOAT64" << typed(-2.25) << -2.25;
    QTest::newRow("held as text") << "FLOAT32" << text("0.5") << 0.5;
    QTest::newRow("any name with FLOAT") << "SFLOAT16" << typed(3) << 3.0;
}

void tst_ValuePresentation::floatsAreShownAsNumbers()
{
    QFETCH(QString, basicType);
    QFETCH(QVariant, value);
    const QVariant shown =
        presentedValue(attributeOf(basicType, value), PhysicalDevice(), TestTemplates());
    QCOMPARE(shown.userType(), int(QMetaType::Double));
    QTEST(shown.toDouble(), "shown");
}

void tst_ValuePresentation::otherValuesAreShownAsStored_data()
{
    QTest::addColumn<QString>("basicType");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("integer") << "INT32" << typed(-7);
    QTest::newRow("unsigned integer") << "INT32U" << typed(4000000000u);
    QTest::newRow("long integer") << "INT64" << typed(std::numeric_limits<qlonglong>::min());
    QTest::newRow("text") << "VisString255" << text("vendor");
    QTest::newRow("time stamp") << "Timestamp" << text("2024-05-01T12:00:00.000Z");
    QTest::newRow("lower-case float is no float") << "Float32" << text("x");
    QTest::newRow("lower-case boolean is no boolean") << "Boolean" << QVariant(true);
    QTest::newRow("no value known") << "INT32" << QVariant();
}

void tst_ValuePresentation::otherValuesAreShownAsStored()
{
    QFETCH(QString, basicType);
    QFETCH(QVariant, value);
    const QVariant shown =
        presentedValue(attributeOf(basicType, value), PhysicalDevice(), TestTemplates());
    QCOMPARE(shown.userType(), value.userType());
    QCOMPARE(shown, value);
}

void tst_ValuePresentation::qualitiesAreShownByTheNamesOfTheirBits_data()
{
    QTest::addColumn<QString>("bits");
    QTest::addColumn<QString>("shown");
    QTest::newRow("all clear") << "0000000000000"
                               << "Good Process";
    QTest::newRow("empty") << ""
                           << "Good Process";
    QTest::newRow("one bit") << "1"
                             << "Reserved Process";
    QTest::newRow("one bit, clear") << "0"
                                    << "Good Process";
    QTest::newRow("validity alone") << "00"
                                    << "Good Process";
    QTest::newRow("invalid") << "0100000000000"
                             << "Invalid Process";
    QTest::newRow("questionable") << "1100000000000"
                                  << "Questionable Process";
    QTest::newRow("reserved") << "1000000000000"
                              << "Reserved Process";
    QTest::newRow("no bit string") << "xy"
                                   << "Good Process";
    QTest::newRow("detail 0") << "0010000000000"
                              << "Good OverFlow,Process";
    QTest::newRow("detail 1") << "0001000000000"
                              << "Good OutOfRange,Process";
    QTest::newRow("detail 2") << "0000100000000"
                              << "Good BadReference,Process";
    QTest::newRow("detail 3") << "0000010000000"
                              << "Good Oscillatory,Process";
    QTest::newRow("detail 4") << "0000001000000"
                              << "Good Failure,Process";
    QTest::newRow("detail 5") << "0000000100000"
                              << "Good OldData,Process";
    QTest::newRow("detail 6") << "0000000010000"
                              << "Good Inconsistent,Process";
    QTest::newRow("detail 7") << "0000000001000"
                              << "Good Inaccurate,Process";
    QTest::newRow("detail 8") << "0000000000100"
                              << "Good Substituted";
    QTest::newRow("detail 9") << "0000000000010"
                              << "Good Test,Process";
    QTest::newRow("detail 10") << "0000000000001"
                               << "Good Process,OperateBlocked";
    QTest::newRow("details 1 and 7") << "0101000001000"
                                     << "Invalid OutOfRange,Inaccurate,Process";
    QTest::newRow("everything")
        << "1111111111111"
        << "Questionable OverFlow,OutOfRange,BadReference,Failure,OldData,Inconsistent,"
           "Oscillatory,Test,Inaccurate,Substituted,OperateBlocked";
    QTest::newRow("longer than a quality") << "01000000000001111"
                                           << "Invalid Process";
    QTest::newRow("cut after detail 3") << "000001"
                                        << "Good Oscillatory,Process";
}

void tst_ValuePresentation::qualitiesAreShownByTheNamesOfTheirBits()
{
    QFETCH(QString, bits);
    QTEST(qualityText(bits), "shown");
}

void tst_ValuePresentation::aQualityAttributeShowsItsNames()
{
    const QVariant shown =
        presentedValue(attributeOf(QStringLiteral("Quality"), QStringLiteral("0100000000100")),
                       PhysicalDevice(), TestTemplates());
    QCOMPARE(shown, QVariant(QStringLiteral("Invalid Substituted")));
}

void tst_ValuePresentation::editedTextsBecomeTypedValues_data()
{
    QTest::addColumn<QString>("basicType");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("edited");
    QTest::addColumn<QVariant>("expected");
    QTest::addColumn<bool>("changed");

    QTest::newRow("float") << "FLOAT32" << typed(1.0f) << text("2.5") << typed(2.5f) << true;
    QTest::newRow("same float") << "FLOAT32" << typed(0.1f) << text("0.1") << typed(0.1f) << false;
    QTest::newRow("same as float only")
        << "FLOAT32" << typed(0.1) << text("0.1") << typed(0.1f) << false;
    QTest::newRow("float that is none")
        << "FLOAT32" << typed(1.0f) << text("abc") << typed(0.0f) << true;
    QTest::newRow("beyond the largest float")
        << "FLOAT32" << typed(1.0f) << text("1e39") << typed(0.0f) << true;
    QTest::newRow("beyond the largest float, negative")
        << "FLOAT32" << typed(0.0f) << text("-3.5e38") << typed(0.0f) << false;
    QTest::newRow("beyond the largest double as float")
        << "FLOAT32" << typed(1.0f) << text("1e400") << typed(0.0f) << true;
    QTest::newRow("infinity as such") << "FLOAT32" << typed(1.0f) << text("inf")
                                      << typed(std::numeric_limits<float>::infinity()) << true;
    QTest::newRow("beyond the largest double")
        << "FLOAT64" << typed(1.0) << text("-1e309") << typed(0.0) << true;
    QTest::newRow("double") << "FLOAT64" << typed(1.0) << text("0.12345678901234567")
                            << typed(0.12345678901234567) << true;
    QTest::newRow("same double") << "FLOAT64" << typed(0.5) << text("5e-1") << typed(0.5) << false;
    QTest::newRow("long") << "INT64" << typed(qlonglong(0)) << text("-9223372036854775808")
                          << typed(std::numeric_limits<qlonglong>::min()) << true;
    QTest::newRow("same long") << "INT64" << typed(qlonglong(5)) << text("5") << typed(qlonglong(5))
                               << false;
    QTest::newRow("unsigned long")
        << "INT64U" << typed(qulonglong(0)) << text("18446744073709551615")
        << typed(std::numeric_limits<qulonglong>::max()) << true;
    QTest::newRow("unsigned long that is none")
        << "INT64U" << typed(qulonglong(3)) << text("-1") << typed(qulonglong(0)) << true;
    QTest::newRow("unsigned") << "INT32U" << typed(0u) << text("4294967295") << typed(4294967295u)
                              << true;
    QTest::newRow("same unsigned") << "INT32U" << typed(7u) << text("7") << typed(7u) << false;
    QTest::newRow("8 bits") << "INT8" << typed(1) << text("-5") << typed(-5) << true;
    QTest::newRow("16 bits unsigned")
        << "INT16U" << typed(1u) << text("65535") << typed(65535) << true;
    QTest::newRow("32 bits") << "INT32" << typed(1) << text("12") << typed(12) << true;
    QTest::newRow("any name with INT") << "INT128" << typed(1) << text("3") << typed(3) << true;
    QTest::newRow("too large") << "INT32" << typed(1) << text("2147483648") << typed(0) << true;
    QTest::newRow("a hexadecimal number is none")
        << "INT32" << typed(1) << text("0x10") << typed(0) << true;
    QTest::newRow("text against an unknown value")
        << "INT32" << QVariant() << text("none") << typed(0) << false;
    QTest::newRow("enumeration") << "Enum" << typed(1) << QVariant(2) << typed(2) << true;
    QTest::newRow("same enumeration") << "Enum" << typed(2) << QVariant(2) << typed(2) << false;
    QTest::newRow("boolean") << "BOOLEAN" << typed(false) << QVariant(1) << typed(1) << true;
    QTest::newRow("same boolean") << "BOOLEAN" << typed(true) << QVariant(1) << typed(1) << false;
    QTest::newRow("double point") << "Dbpos" << typed(1) << text("2") << typed(2) << true;
    QTest::newRow("check") << "Check" << typed(1) << text("0") << typed(0) << true;
    QTest::newRow("command") << "Tcmd" << typed(1) << text("1") << typed(1) << false;
}

void tst_ValuePresentation::editedTextsBecomeTypedValues()
{
    QFETCH(QString, basicType);
    QFETCH(QVariant, stored);
    QFETCH(QVariant, edited);
    QFETCH(QVariant, expected);
    const EditedValue read = readEditedValue(attributeOf(basicType, stored), edited);
    QVERIFY(read.converted);
    QCOMPARE(read.typedValue.userType(), expected.userType());
    QCOMPARE(read.typedValue, expected);
    QTEST(read.changed, "changed");
}

void tst_ValuePresentation::anEditedTextOfAnUnconvertedTypeIsPassedAsGiven()
{
    const DataAttribute attribute =
        attributeOf(QStringLiteral("VisString255"), QStringLiteral("old"));
    const EditedValue same = readEditedValue(attribute, QStringLiteral("old"));
    QVERIFY(!same.changed);
    const EditedValue other = readEditedValue(attribute, QStringLiteral("new"));
    QVERIFY(other.changed);
    QVERIFY(!other.converted);
    QCOMPARE(other.typedValue, QVariant(QStringLiteral("new")));
    const EditedValue number = readEditedValue(attribute, 12);
    QVERIFY(number.changed);
    QCOMPARE(number.typedValue.userType(), int(QMetaType::Int));
}

QTEST_GUILESS_MAIN(tst_ValuePresentation)
#include "tst_valuepresentation.moc"
