// SPDX-License-Identifier: Apache-2.0
#include "iedctl/references.h"

#include "support/generateddevice.h"

#include <QtTest/QtTest>

#include <memory>

namespace {

std::unique_ptr<DAO> leaf(const QString &name, const QString &reference, const QString &fc)
{
    auto node = std::make_unique<DAO>();
    node->attribute = new DataAttribute;
    node->attribute->name = name;
    node->attribute->fc = fc;
    node->attribute->basicType = QStringLiteral("INT32");
    node->attribute->reference = reference;
    return node;
}

/// "LD0" with a controllable object of several constraints and an array of two elements.
std::unique_ptr<PhysicalDevice> smallDevice()
{
    auto device = std::make_unique<PhysicalDevice>();
    auto *logicalDevice = new LogicalDevice;
    logicalDevice->name = QStringLiteral("LD0");
    device->logicalDevices.append(logicalDevice);
    auto *node = new LogicalNode;
    node->name = QStringLiteral("CSWI1");
    logicalDevice->logicalNodes.append(node);
    auto *pos = new DataObject;
    pos->name = QStringLiteral("Pos");
    node->dataObjects.append(pos);
    pos->attributes.append(leaf("stVal", "LD0/CSWI1$ST$Pos$stVal", "ST").release());
    pos->attributes.append(leaf("ctlModel", "LD0/CSWI1$CF$Pos$ctlModel", "CF").release());
    auto *posB = new DataObject;
    posB->name = QStringLiteral("PosB");
    node->dataObjects.append(posB);
    posB->attributes.append(leaf("stVal", "LD0/CSWI1$ST$PosB$stVal", "ST").release());
    auto *harmonics = new DataObject;
    harmonics->name = QStringLiteral("HA");
    node->dataObjects.append(harmonics);
    auto *array = new DAO;
    array->subDataObject = new SubDataObject{QStringLiteral("har"), {}};
    harmonics->attributes.append(array);
    for (int i = 0; i < 2; ++i) {
        auto *element = new DAO;
        element->subDataObject = new SubDataObject{QStringLiteral("har(%1)").arg(i), {}};
        array->children.append(element);
        element->children.append(
            leaf("mag", QStringLiteral("LD0/CSWI1$MX$HA$har(%1)$mag").arg(i), "MX").release());
    }
    device->rebuildIndex();
    return device;
}

QStringList referencesOf(const Selection &selection)
{
    QStringList references;
    for (const DataAttribute *attribute : selection.attributes)
        references.append(attribute->reference);
    return references;
}

} // namespace

class tst_IedctlReferences : public QObject
{
    Q_OBJECT

private slots:
    void aReferenceMeansWhatIsBelowIt_data();
    void aReferenceMeansWhatIsBelowIt();
    void whatIsNotThereIsNamed_data();
    void whatIsNotThereIsNamed();
    void aDataObjectIsFoundInBothNotations();
    void everyAttributeOfADeviceIsSelectedByItsOwnReference();
};

void tst_IedctlReferences::aReferenceMeansWhatIsBelowIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("toRead");
    QTest::addColumn<QStringList>("attributes");
    QTest::newRow("data object under all constraints")
        << "LD0/CSWI1.Pos" << QStringList{"CSWI1$ST$Pos", "CSWI1$CF$Pos"}
        << QStringList{"LD0/CSWI1$ST$Pos$stVal", "LD0/CSWI1$CF$Pos$ctlModel"};
    QTest::newRow("one constraint") << "LD0/CSWI1.Pos[CF]" << QStringList{"CSWI1$CF$Pos"}
                                    << QStringList{"LD0/CSWI1$CF$Pos$ctlModel"};
    QTest::newRow("as on the wire") << "LD0/CSWI1$ST$Pos" << QStringList{"CSWI1$ST$Pos"}
                                    << QStringList{"LD0/CSWI1$ST$Pos$stVal"};
    QTest::newRow("a whole constraint on the wire")
        << "LD0/CSWI1$ST" << QStringList{"CSWI1$ST"}
        << QStringList{"LD0/CSWI1$ST$Pos$stVal", "LD0/CSWI1$ST$PosB$stVal"};
    QTest::newRow("attribute") << "LD0/CSWI1.Pos.stVal" << QStringList{"CSWI1$ST$Pos$stVal"}
                               << QStringList{"LD0/CSWI1$ST$Pos$stVal"};
    QTest::newRow("whole array") << "LD0/CSWI1.HA.har" << QStringList{"CSWI1$MX$HA$har"}
                                 << QStringList{"LD0/CSWI1$MX$HA$har(0)$mag",
                                                "LD0/CSWI1$MX$HA$har(1)$mag"};
    QTest::newRow("element") << "LD0/CSWI1.HA.har(1)" << QStringList{"CSWI1$MX$HA$har(1)"}
                             << QStringList{"LD0/CSWI1$MX$HA$har(1)$mag"};
    QTest::newRow("logical node") << "LD0/CSWI1[MX]" << QStringList{"CSWI1$MX"}
                                  << QStringList{"LD0/CSWI1$MX$HA$har(0)$mag",
                                                 "LD0/CSWI1$MX$HA$har(1)$mag"};
}

void tst_IedctlReferences::aReferenceMeansWhatIsBelowIt()
{
    QFETCH(QString, text);
    const auto device = smallDevice();
    QString error;
    const Selection selection = selectData(*device, text, error);
    QCOMPARE(error, QString());
    QCOMPARE(selection.device, QString("LD0"));
    QTEST(selection.references, "toRead");
    QTEST(referencesOf(selection), "attributes");
}

void tst_IedctlReferences::whatIsNotThereIsNamed_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"LD1/CSWI1.Pos", "LD0/CSWI1.Po", "LD0/CSWI2", "", "/",
                             "LD0/CSWI1.Pos[ZZ]", "LD0/CSWI1.Pos]", "LD0/$", "LD0/CSWI1.HA.har(2)"})
        QTest::newRow(text) << QString(text);
}

void tst_IedctlReferences::whatIsNotThereIsNamed()
{
    QFETCH(QString, text);
    const auto device = smallDevice();
    QString error;
    const Selection selection = selectData(*device, text, error);
    QVERIFY(selection.attributes.isEmpty());
    QVERIFY(error.endsWith(QLatin1Char('.')));
}

void tst_IedctlReferences::aDataObjectIsFoundInBothNotations()
{
    const auto device = smallDevice();
    QString error;
    for (const char *text : {"LD0/CSWI1.Pos", "LD0/CSWI1$CO$Pos"}) {
        const ObjectSelection selection = findObject(*device, text, error);
        QVERIFY2(selection.object, text);
        QCOMPARE(selection.object->name, QString("Pos"));
        QCOMPARE(selection.node->name, QString("CSWI1"));
    }
    QVERIFY(!findObject(*device, "LD0/CSWI1", error).object);
    QVERIFY(error.contains("LD0/CSWI1"));
}

void tst_IedctlReferences::everyAttributeOfADeviceIsSelectedByItsOwnReference()
{
    const auto device = GeneratedDevice{2, 4, 120, 3, true}.make();
    const QList<DataAttribute *> leaves = leafAttributes(*device);
    QVERIFY(leaves.size() > 100);
    for (const DataAttribute *leaf : leaves) {
        QString error;
        const Selection selection = selectData(*device, leaf->reference, error);
        QCOMPARE(referencesOf(selection), QStringList{leaf->reference});
        QCOMPARE(selection.references, QStringList{leaf->reference.section('/', 1)});
    }
}

QTEST_APPLESS_MAIN(tst_IedctlReferences)
#include "tst_references.moc"
