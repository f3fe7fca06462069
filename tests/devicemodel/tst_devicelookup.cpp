// SPDX-License-Identifier: Apache-2.0
#include "support/generateddevice.h"

#include <QtTest/QtTest>

namespace {

DataAttribute *addAttribute(DataObject &object, const QString &reference)
{
    auto *node = new DAO;
    node->attribute = new DataAttribute;
    node->attribute->reference = reference;
    object.attributes << node;
    return node->attribute;
}

/// A device of one data object.
struct SmallDevice
{
    SmallDevice()
        : object(new DataObject)
    {
        auto *logicalDevice = new LogicalDevice;
        auto *node = new LogicalNode;
        node->dataObjects << object;
        logicalDevice->logicalNodes << node;
        device.logicalDevices << logicalDevice;
    }

    PhysicalDevice device;
    DataObject *object;
};

} // namespace

class tst_DeviceLookup : public QObject
{
    Q_OBJECT

private slots:
    void everyAttributeIsFoundByItsReference()
    {
        GeneratedDevice generated;
        generated.logicalDevices = 3;
        generated.logicalNodes = 9;
        generated.leafAttributes = 20000;
        generated.arrayElements = 5;
        const auto device = generated.make();
        const QList<DataAttribute *> attributes = leafAttributes(*device);
        QCOMPARE(attributes.size(), 20000);
        for (DataAttribute *attribute : attributes)
            QCOMPARE(device->findTag(attribute->reference), attribute);
    }

    void aStructuredAttributeIsFoundToo()
    {
        const auto device = GeneratedDevice().make();
        const DataAttribute *found =
            device->findTag(QStringLiteral("IED1LD0/MMXU1$MX$PhV$phsA$cVal"));
        QVERIFY(found);
        QCOMPARE(found->name, QStringLiteral("cVal"));
    }

    void onlyAnExactlyEqualReferenceIsFound()
    {
        SmallDevice small;
        DataAttribute *attribute = addAttribute(*small.object, QStringLiteral("LD/LN$ST$Pos$q"));
        DataAttribute *withBlank = addAttribute(*small.object, QStringLiteral("LD/LN$ST$Pos$q "));
        DataAttribute *withoutPath = addAttribute(*small.object, QStringLiteral("LD/LN"));
        DataAttribute *withEmptyPath = addAttribute(*small.object, QStringLiteral("LD/LN$"));
        DataAttribute *foreign =
            addAttribute(*small.object, QString::fromUtf8("Поле/LN$ST$Größe$位置"));
        small.device.rebuildIndex();

        QCOMPARE(small.device.findTag(QStringLiteral("LD/LN$ST$Pos$q")), attribute);
        QCOMPARE(small.device.findTag(QStringLiteral("LD/LN$ST$Pos$q ")), withBlank);
        QCOMPARE(small.device.findTag(QStringLiteral("LD/LN")), withoutPath);
        QCOMPARE(small.device.findTag(QStringLiteral("LD/LN$")), withEmptyPath);
        QCOMPARE(small.device.findTag(QString::fromUtf8("Поле/LN$ST$Größe$位置")), foreign);
        for (const char *absent : {"", "LD/LN$ST", "LD/LN$ST$Pos", "ld/LN$ST$Pos$q", "$", "LD/LN$$",
                                   "LD/LN$ST$Pos$q$", "XX/LN$ST$Pos$q"})
            QVERIFY2(!small.device.findTag(QString::fromLatin1(absent)), absent);
        QVERIFY(!small.device.findTag(QString()));
    }

    void theFirstOfEqualReferencesIsFound()
    {
        SmallDevice small;
        DataAttribute *first = addAttribute(*small.object, QStringLiteral("L/N$SG$a"));
        addAttribute(*small.object, QStringLiteral("L/N$SG$a"));
        small.device.rebuildIndex();
        QCOMPARE(small.device.findTag(QStringLiteral("L/N$SG$a")), first);
    }

    void attributesWithoutAReferenceAreNotFound()
    {
        SmallDevice small;
        addAttribute(*small.object, QString());
        small.device.rebuildIndex();
        QVERIFY(!small.device.findTag(QString()));
        QVERIFY(!small.device.findTag(QStringLiteral("")));
    }

    void theLookUpFollowsTheModelOnlyWhenItIsRebuilt()
    {
        SmallDevice small;
        small.device.rebuildIndex();
        DataAttribute *attribute = addAttribute(*small.object, QStringLiteral("L/N$ST$a"));
        QVERIFY(!small.device.findTag(attribute->reference));
        small.device.rebuildIndex();
        QCOMPARE(small.device.findTag(attribute->reference), attribute);
    }

    void aClearedDeviceFindsNothing()
    {
        const auto device = GeneratedDevice().make();
        const QString reference = leafAttributes(*device).first()->reference;
        QVERIFY(device->findTag(reference));
        device->clear();
        QVERIFY(!device->findTag(reference));
        QVERIFY(device->name.isEmpty());
        QVERIFY(device->logicalDevices.isEmpty());
        QVERIFY(device->dataSets.isEmpty());
        QVERIFY(device->enumTypes.isEmpty());
    }

    void anEnumerationIsFoundByItsId()
    {
        const auto device = GeneratedDevice().make();
        const EnumType found = device->getEnumType(QStringLiteral("orCat"));
        QCOMPARE(found.id, QStringLiteral("orCat"));
        QCOMPARE(found.values.value(1), QStringLiteral("bay-control"));
        QVERIFY(device->getEnumType(QStringLiteral("orcat")).id.isEmpty());
    }

    void anEmptyEnumerationIdFindsNothing()
    {
        PhysicalDevice device;
        EnumType nameless;
        nameless.id = QStringLiteral("hidden");
        device.enumTypes.insert(QString(), nameless);
        QVERIFY(device.getEnumType(QString()).id.isEmpty());
        QVERIFY(device.getEnumType(QStringLiteral("")).id.isEmpty());
    }

    void aDataSetOfTheDeviceIsRemovedAndAForeignOneLeftAlone()
    {
        const auto device = GeneratedDevice().make();
        QCOMPARE(device->dataSets.size(), 1);
        DataSet foreign;
        DataSet *ofNode = device->logicalDevices.first()->logicalNodes.first()->dataSet(
            QStringLiteral("dsState"));
        QVERIFY(ofNode);
        device->removeDS(&foreign);
        device->removeDS(ofNode);
        device->removeDS(nullptr);
        QCOMPARE(device->dataSets.size(), 1);
        QCOMPARE(ofNode->name, QStringLiteral("dsState"));
        device->removeDS(device->dataSets.first());
        QVERIFY(device->dataSets.isEmpty());
    }

    void aNewDeviceIsOnlineAndEmpty()
    {
        const PhysicalDevice device;
        QVERIFY(!device.offline);
        QVERIFY(!device.findTag(QStringLiteral("LD/LN$ST$Pos$q")));
        QVERIFY(device.getEnumType(QStringLiteral("orCat")).id.isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_DeviceLookup)
#include "tst_devicelookup.moc"
