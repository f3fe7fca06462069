// SPDX-License-Identifier: Apache-2.0
#include "driver/core/valuewords.h"

#include <devicemodel/physicaldevice.h>

#include <QtTest/QtTest>

class tst_ValueWords : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void changesAreSaidInWords_data();
    void changesAreSaidInWords();
    void theDevicesOwnEntriesComeFirst();

private:
    PhysicalDevice m_device;
};

void tst_ValueWords::initTestCase()
{
    auto *logicalDevice = new LogicalDevice;
    logicalDevice->name = QStringLiteral("LD0");
    m_device.logicalDevices.append(logicalDevice);
    auto *node = new LogicalNode;
    node->name = QStringLiteral("X1");
    logicalDevice->logicalNodes.append(node);
    const auto add = [node](const QString &object, const QString &fc, const QString &name,
                            const QString &type, const QString &enumeration = {}) {
        auto *data = new DataObject;
        data->name = object;
        auto *leaf = new DAO;
        leaf->attribute = new DataAttribute;
        leaf->attribute->name = name;
        leaf->attribute->fc = fc;
        leaf->attribute->basicType = type;
        leaf->attribute->enumTypeId = enumeration;
        leaf->attribute->reference = QStringLiteral("LD0/X1$%1$%2$%3").arg(fc, object, name);
        data->attributes.append(leaf);
        node->dataObjects.append(data);
    };
    add("Pos", "ST", "stVal", "Dbpos");
    add("Ind", "ST", "stVal", "BOOLEAN");
    add("Mod", "ST", "stVal", "Enum", "BehaviourModeKind");
    add("Mod", "CF", "ctlModel", "Enum", "CtlModelKind");
    add("Own", "CF", "kind", "Enum", "OwnKind");
    add("Ind", "SV", "subQ", "Quality");
    add("Dir", "SG", "setVal", "Enum", "CtlModelKind");
    add("A", "MX", "mxVal", "FLOAT32");
    EnumType own;
    own.id = QStringLiteral("OwnKind");
    own.values.insert(1, QStringLiteral("ours"));
    m_device.enumTypes.insert(own.id, own);
    m_device.rebuildIndex();
}

void tst_ValueWords::changesAreSaidInWords_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QStringList>("raw");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("switch") << "controlObject"
                            << "LD0/X1$CO$Pos" << QStringList{"1", "1, category 3, test"}
                            << QStringList{"off (1)", "on (1), category remote-control (3), test"};
    QTest::newRow("boolean") << "selectObject"
                             << "LD0/X1$CO$Ind" << QStringList{"false", "0"}
                             << QStringList{"", "off (0)"};
    QTest::newRow("mode") << "controlObject"
                          << "LD0/X1$CO$Mod" << QStringList{"1", "3, category 2"}
                          << QStringList{"on (1)", "test (3), category station-control (2)"};
    QTest::newRow("set point") << "controlObject"
                               << "LD0/X1$CO$A" << QStringList{"1.5", "12.5, category 3"}
                               << QStringList{"", "12.5, category remote-control (3)"};
    QTest::newRow("unknown category")
        << "controlObject"
        << "LD0/X9$CO$Pos" << QStringList{"", "1, category 9, test"} << QStringList{"", ""};
    QTest::newRow("cancel") << "cancelObject"
                            << "LD0/X1$CO$Pos" << QStringList{"", ""} << QStringList{"", ""};
    QTest::newRow("enumeration") << "writeVariable"
                                 << "LD0/X1$CF$Mod$ctlModel" << QStringList{"0", "4"}
                                 << QStringList{"status-only (0)",
                                                "sbo-with-enhanced-security (4)"};
    QTest::newRow("unknown entry")
        << "writeVariable"
        << "LD0/X1$CF$Mod$ctlModel" << QStringList{"", "77"} << QStringList{"", ""};
    QTest::newRow("quality") << "writeVariable"
                             << "LD0/X1$SV$Ind$subQ"
                             << QStringList{"0000000000000", "0100000000010"}
                             << QStringList{"good (0000000000000)",
                                            "invalid, test (0100000000010)"};
    QTest::newRow("setting") << "setSGCBValues"
                             << "LD0/X1$SE$Dir$setVal" << QStringList{"0", "1"}
                             << QStringList{"status-only (0)", "direct-with-normal-security (1)"};
    QTest::newRow("trigger options")
        << "writeValue"
        << "LD0/LLN0$BR$b01$TrgOps" << QStringList{"'000000'B", "010001"}
        << QStringList{"none ('000000'B)", "dchg gi (010001)"};
    QTest::newRow("buffer time") << "writeValue"
                                 << "LD0/LLN0$BR$b01$BufTm" << QStringList{"50", "125"}
                                 << QStringList{"", ""};
    QTest::newRow("report block")
        << "enableReportBlock"
        << "LD0/LLN0$BR$b01"
        << QStringList{"",
                       "enabled, RptID=a, DatSet=b, TrgOps=010001, OptFlds=0111000000, BufTm=0, "
                       "IntgPd=0"}
        << QStringList{"", "enabled, RptID=a, DatSet=b, TrgOps=dchg gi (010001), OptFlds=seqNum "
                           "timeStamp reasonCode (0111000000), BufTm=0, IntgPd=0"};
    QTest::newRow("nothing known")
        << "writeVariable"
        << "LD0/X9$CF$Mod$ctlModel" << QStringList{"0", "4"} << QStringList{"", ""};
}

void tst_ValueWords::changesAreSaidInWords()
{
    QFETCH(QString, operation);
    QFETCH(QString, reference);
    QFETCH(QStringList, raw);
    QFETCH(QStringList, words);
    DeviceChange change;
    change.operation = operation;
    change.reference = reference;
    change.oldValue = raw.at(0);
    change.newValue = raw.at(1);
    ValueWords::addWords(change, m_device);
    QCOMPARE(change.oldWords, words.at(0));
    QCOMPARE(change.newWords, words.at(1));
    QCOMPARE(change.oldValue, raw.at(0));
    QCOMPARE(change.newValue, raw.at(1));
}

void tst_ValueWords::theDevicesOwnEntriesComeFirst()
{
    const DataAttribute *own = m_device.findTag(QStringLiteral("LD0/X1$CF$Own$kind"));
    QVERIFY(own);
    QCOMPARE(ValueWords::text(m_device, own, 1), QStringLiteral("ours (1)"));
    QCOMPARE(ValueWords::text(m_device, own, 2), QStringLiteral("2"));
    QCOMPARE(ValueWords::text(m_device, nullptr, 12.4F), QStringLiteral("12.4"));
    QCOMPARE(ValueWords::text(m_device, own, QVariant()), QString());
}

QTEST_APPLESS_MAIN(tst_ValueWords)
#include "tst_valuewords.moc"
