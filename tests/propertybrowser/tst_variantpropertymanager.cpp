// SPDX-License-Identifier: Apache-2.0
#include <propertybrowser/qtvariantproperty.h>
#include <propertybrowser/qtvariantpropertymanager.h>

#include <QtCore/QDateTime>
#include <QtCore/QTimeZone>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <cmath>
#include <limits>
#include <memory>

class tst_VariantPropertyManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyTypeIsKnownOrMakesNoProperty_data();
    void everyTypeIsKnownOrMakesNoProperty();
    void aNewPropertyHoldsTheDefaultValueOfItsType_data();
    void aNewPropertyHoldsTheDefaultValueOfItsType();
    void aSetValueIsConvertedToThePropertysType();
    void whatTheTypeCannotHoldChangesNothing_data();
    void whatTheTypeCannotHoldChangesNothing();
    void theLastOfSeventeenDigitsCountsAsAChange();
    void anEqualValueIsNoChange_data();
    void anEqualValueIsNoChange();
    void sameMomentInAnotherZoneIsAChange();
    void aForeignPropertyHasNoValueHere();
    void clearingDeletesEveryProperty();
    void aDeletedPropertyIsForgotten();
    void valuesAreShownWithEveryDigit_data();
    void valuesAreShownWithEveryDigit();
    void aSinglePrecisionNumberIsShownWithItsOwnDigits_data();
    void aSinglePrecisionNumberIsShownWithItsOwnDigits();
    void aPropertyHasAtMostOneParent();
    void aGroupCannotContainItself();
    void deletingAGroupLeavesItsSubPropertiesAlive();
    void aGroupHasNoValue();
};

void tst_VariantPropertyManager::initTestCase()
{
    qRegisterMetaType<QtProperty *>();
}

void tst_VariantPropertyManager::everyTypeIsKnownOrMakesNoProperty_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("known");

    QTest::newRow("bool") << int(QMetaType::Bool) << true;
    QTest::newRow("int") << int(QMetaType::Int) << true;
    QTest::newRow("unsigned int") << int(QMetaType::UInt) << true;
    QTest::newRow("long long") << int(QMetaType::LongLong) << true;
    QTest::newRow("unsigned long long") << int(QMetaType::ULongLong) << true;
    QTest::newRow("double") << int(QMetaType::Double) << true;
    QTest::newRow("string") << int(QMetaType::QString) << true;
    QTest::newRow("date") << int(QMetaType::QDate) << true;
    QTest::newRow("time") << int(QMetaType::QTime) << true;
    QTest::newRow("date-time") << int(QMetaType::QDateTime) << true;
    QTest::newRow("char") << int(QMetaType::QChar) << true;
    QTest::newRow("group") << QtVariantPropertyManager::groupTypeId() << true;
    QTest::newRow("float") << int(QMetaType::Float) << false;
    QTest::newRow("short") << int(QMetaType::Short) << false;
    QTest::newRow("byte array") << int(QMetaType::QByteArray) << false;
    QTest::newRow("list") << int(QMetaType::QVariantList) << false;
    QTest::newRow("unknown") << int(QMetaType::UnknownType) << false;
    QTest::newRow("no meta type at all") << 1'000'000 << false;
}

void tst_VariantPropertyManager::everyTypeIsKnownOrMakesNoProperty()
{
    QFETCH(int, type);
    QFETCH(bool, known);
    QtVariantPropertyManager manager;
    QCOMPARE(manager.isPropertyTypeSupported(type), known);

    QtVariantProperty *property = manager.addProperty(type, QStringLiteral("StrVal"));
    QCOMPARE(property != nullptr, known);
    QCOMPARE(manager.properties().size(), known ? 1 : 0);
    if (property) {
        QCOMPARE(property->propertyName(), QStringLiteral("StrVal"));
        QCOMPARE(property->propertyType(), type);
        QCOMPARE(property->propertyManager(), &manager);
    }
}

void tst_VariantPropertyManager::aNewPropertyHoldsTheDefaultValueOfItsType_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("bool") << QVariant(false);
    QTest::newRow("int") << QVariant(0);
    QTest::newRow("unsigned int") << QVariant(0U);
    QTest::newRow("long long") << QVariant(0LL);
    QTest::newRow("unsigned long long") << QVariant(0ULL);
    QTest::newRow("double") << QVariant(0.0);
    QTest::newRow("string") << QVariant(QString());
    QTest::newRow("date") << QVariant(QDate());
}

void tst_VariantPropertyManager::aNewPropertyHoldsTheDefaultValueOfItsType()
{
    QFETCH(QVariant, value);
    QtVariantPropertyManager manager;
    const QtVariantProperty *property = manager.addProperty(value.userType());
    QCOMPARE(property->value(), value);
    QCOMPARE(property->value().userType(), value.userType());
    QCOMPARE(property->value().isNull(), value.isNull());
}

void tst_VariantPropertyManager::aSetValueIsConvertedToThePropertysType()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(QMetaType::Double);
    QSignalSpy changes(&manager, &QtVariantPropertyManager::valueChanged);

    property->setValue(QVariant(1.5F));
    QCOMPARE(manager.value(property), QVariant(1.5));
    QCOMPARE(manager.value(property).userType(), int(QMetaType::Double));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.at(0).at(0).value<QtProperty *>(), static_cast<QtProperty *>(property));
    QCOMPARE(changes.at(0).at(1).value<QVariant>(), QVariant(1.5));

    manager.setValue(property, QStringLiteral("2.25"));
    QCOMPARE(property->value(), QVariant(2.25));
}

void tst_VariantPropertyManager::whatTheTypeCannotHoldChangesNothing_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("words for a number")
        << int(QMetaType::Int) << QVariant(7) << QVariant(QStringLiteral("seven"));
    QTest::newRow("33 bits for 32")
        << int(QMetaType::Int) << QVariant(7) << QVariant(Q_INT64_C(4294967303));
    QTest::newRow("32 bits unsigned for signed")
        << int(QMetaType::Int) << QVariant(7) << QVariant(4294967295U);
    QTest::newRow("negative for unsigned") << int(QMetaType::UInt) << QVariant(7U) << QVariant(-1);
    QTest::newRow("negative for 64 bits unsigned")
        << int(QMetaType::ULongLong) << QVariant(7ULL) << QVariant(-1);
    QTest::newRow("64 bits unsigned for signed")
        << int(QMetaType::LongLong) << QVariant(7LL)
        << QVariant(std::numeric_limits<qulonglong>::max());
    QTest::newRow("a fraction for an integer")
        << int(QMetaType::Int) << QVariant(7) << QVariant(1.5);
    QTest::newRow("a list") << int(QMetaType::Double) << QVariant(7.0)
                            << QVariant(QVariantList{1, 2});
    QTest::newRow("nothing") << int(QMetaType::QString) << QVariant(QStringLiteral("kept"))
                             << QVariant();
}

void tst_VariantPropertyManager::whatTheTypeCannotHoldChangesNothing()
{
    QFETCH(int, type);
    QFETCH(QVariant, before);
    QFETCH(QVariant, value);
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(type);
    property->setValue(before);
    QSignalSpy changes(&manager, &QtVariantPropertyManager::valueChanged);

    property->setValue(value);
    QCOMPARE(property->value(), before);
    QCOMPARE(changes.size(), 0);
}

void tst_VariantPropertyManager::theLastOfSeventeenDigitsCountsAsAChange()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(QMetaType::Double);
    property->setValue(0.1);
    QSignalSpy changes(&manager, &QtVariantPropertyManager::valueChanged);

    const double next = std::nextafter(0.1, 1.0);
    property->setValue(next);
    QCOMPARE(changes.size(), 1);
    QVERIFY(property->value().toDouble() == next);
}

void tst_VariantPropertyManager::anEqualValueIsNoChange_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("number") << QVariant(42);
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN());
    QTest::newRow("text") << QVariant(QStringLiteral("A"));
    QTest::newRow("moment") << QVariant(QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3, 4), Qt::UTC));
}

void tst_VariantPropertyManager::anEqualValueIsNoChange()
{
    QFETCH(QVariant, value);
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(value.userType());
    property->setValue(value);
    QSignalSpy changes(&manager, &QtVariantPropertyManager::valueChanged);

    property->setValue(value);
    QCOMPARE(changes.size(), 0);
}

void tst_VariantPropertyManager::sameMomentInAnotherZoneIsAChange()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(QMetaType::QDateTime);
    const QDateTime utc(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC);
    const QDateTime east = utc.toOffsetFromUtc(3600);
    property->setValue(utc);
    property->setValue(east);
    QCOMPARE(property->value().toDateTime().offsetFromUtc(), 3600);
}

void tst_VariantPropertyManager::aForeignPropertyHasNoValueHere()
{
    QtVariantPropertyManager owner;
    QtVariantPropertyManager other;
    QtVariantProperty *property = owner.addProperty(QMetaType::Int);
    property->setValue(5);

    QVERIFY(!other.value(property).isValid());
    QVERIFY(!other.variantProperty(property));
    other.setValue(property, 6);
    QCOMPARE(owner.value(property), QVariant(5));
    QVERIFY(!owner.value(nullptr).isValid());
}

void tst_VariantPropertyManager::clearingDeletesEveryProperty()
{
    QtVariantPropertyManager manager;
    for (int i = 0; i < 3; ++i)
        manager.addProperty(QMetaType::Int);
    QSignalSpy destroyed(&manager, &QtVariantPropertyManager::propertyDestroyed);
    manager.clear();
    QCOMPARE(destroyed.size(), 3);
    QVERIFY(manager.properties().isEmpty());
}

void tst_VariantPropertyManager::aDeletedPropertyIsForgotten()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *first = manager.addProperty(QMetaType::Int);
    QtVariantProperty *second = manager.addProperty(QMetaType::Int);
    delete first;
    QCOMPARE(manager.properties(), QList<QtProperty *>{second});
}

void tst_VariantPropertyManager::valuesAreShownWithEveryDigit_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("true") << QVariant(true) << "True";
    QTest::newRow("false") << QVariant(false) << "False";
    QTest::newRow("int") << QVariant(-5) << "-5";
    QTest::newRow("smallest long long")
        << QVariant(std::numeric_limits<qlonglong>::min()) << "-9223372036854775808";
    QTest::newRow("largest unsigned long long")
        << QVariant(std::numeric_limits<qulonglong>::max()) << "18446744073709551615";
    QTest::newRow("tenth") << QVariant(0.1) << "0.1";
    QTest::newRow("seventeen digits") << QVariant(0.30000000000000004) << "0.30000000000000004";
    QTest::newRow("million") << QVariant(1e6) << "1000000";
    QTest::newRow("ten thousandth") << QVariant(-0.0001) << "-0.0001";
    QTest::newRow("very large") << QVariant(1e15) << "1e+15";
    QTest::newRow("very small") << QVariant(1.25e-6) << "1.25e-06";
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << "nan";
    QTest::newRow("infinite") << QVariant(-std::numeric_limits<double>::infinity()) << "-inf";
    QTest::newRow("text") << QVariant(QStringLiteral("a b")) << "a b";
    QTest::newRow("date") << QVariant(QDate(2024, 2, 29)) << "2024-02-29";
    QTest::newRow("time") << QVariant(QTime(1, 2, 3, 4)) << "01:02:03.004";
    QTest::newRow("moment in UTC")
        << QVariant(QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3, 4), Qt::UTC))
        << "2024-02-29T01:02:03.004Z";
    QTest::newRow("moment of an offset")
        << QVariant(QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3, 4), Qt::OffsetFromUTC, 7200))
        << "2024-02-29T01:02:03.004+02:00";
    QTest::newRow("no moment") << QVariant(QDateTime()) << "";
    QTest::newRow("character") << QVariant(QChar(u'x')) << "x";
    QTest::newRow("no character") << QVariant(QChar()) << "";
}

void tst_VariantPropertyManager::valuesAreShownWithEveryDigit()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(value.userType());
    property->setValue(value);
    QCOMPARE(property->valueText(), text);
}

void tst_VariantPropertyManager::aSinglePrecisionNumberIsShownWithItsOwnDigits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("tenth of a float") << double(0.1F) << "0.1";
    QTest::newRow("nine digits") << double(16777217.5F) << "16777218";
    QTest::newRow("a double that no float holds") << 0.30000000000000004 << "0.30000000000000004";
    QTest::newRow("beyond the float's range") << 1e300 << "1e+300";
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "inf";
    QTest::newRow("largest float") << double(std::numeric_limits<float>::max()) << "3.4028235e+38";
    QTest::newRow("smallest float") << double(std::numeric_limits<float>::denorm_min()) << "1e-45";
    QTest::newRow("million") << 1e6 << "1000000";
    QTest::newRow("zero") << 0.0 << "0";
}

void tst_VariantPropertyManager::aSinglePrecisionNumberIsShownWithItsOwnDigits()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(QMetaType::Double);
    property->setValue(value);
    QSignalSpy changes(&manager, &QtVariantPropertyManager::propertyChanged);
    property->setSinglePrecision(true);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(property->valueText(), text);
    QVERIFY(property->value().toDouble() == value);
}

void tst_VariantPropertyManager::aPropertyHasAtMostOneParent()
{
    QtVariantPropertyManager manager;
    QtProperty *one = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    QtProperty *other = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    QtProperty *value = manager.addProperty(QMetaType::Int);

    one->addSubProperty(value);
    other->addSubProperty(value);
    other->addSubProperty(nullptr);
    QCOMPARE(value->parentProperty(), one);
    QCOMPARE(one->subProperties(), QList<QtProperty *>{value});
    QVERIFY(other->subProperties().isEmpty());

    one->removeSubProperty(value);
    other->addSubProperty(value);
    QCOMPARE(value->parentProperty(), other);
}

void tst_VariantPropertyManager::aGroupCannotContainItself()
{
    QtVariantPropertyManager manager;
    QtProperty *outer = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    QtProperty *inner = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    outer->addSubProperty(inner);

    inner->addSubProperty(outer);
    outer->addSubProperty(outer);
    QVERIFY(inner->subProperties().isEmpty());
    QVERIFY(!outer->parentProperty());
}

void tst_VariantPropertyManager::deletingAGroupLeavesItsSubPropertiesAlive()
{
    QtVariantPropertyManager manager;
    QtProperty *group = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    QtVariantProperty *value = manager.addProperty(QMetaType::Int);
    group->addSubProperty(value);
    delete group;
    QVERIFY(!value->parentProperty());
    QCOMPARE(manager.properties(), QList<QtProperty *>{value});
}

void tst_VariantPropertyManager::aGroupHasNoValue()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *group = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    group->setValue(5);
    QVERIFY(!group->hasValue());
    QVERIFY(!group->value().isValid());
    QVERIFY(manager.addProperty(QMetaType::Int)->hasValue());
}

QTEST_GUILESS_MAIN(tst_VariantPropertyManager)
#include "tst_variantpropertymanager.moc"
