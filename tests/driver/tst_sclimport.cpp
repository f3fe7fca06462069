// SPDX-License-Identifier: Apache-2.0
#include "driver/model/sclimport.h"

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

#include <memory>

namespace {

struct Imported
{
    scl::ReadResult file;
    std::unique_ptr<PhysicalDevice> device;
};

Imported import(const char *fixture)
{
    Imported result;
    result.file = SclImport::readFile(QStringLiteral(SCL_FIXTURES "/") + QLatin1String(fixture));
    if (result.file.document && !result.file.document->ieds.empty())
        result.device = SclImport::makeDevice(result.file.document->ieds.front());
    return result;
}

LogicalNode *nodeOf(const PhysicalDevice &device, const QString &logicalDevice, const QString &name)
{
    for (const LogicalDevice *candidate : device.logicalDevices) {
        if (candidate->name != logicalDevice)
            continue;
        for (LogicalNode *node : candidate->logicalNodes) {
            if (node->name == name)
                return node;
        }
    }
    return nullptr;
}

int typeOf(const QVariant &value)
{
    return static_cast<int>(value.type());
}

} // namespace

class tst_SclImport : public QObject
{
    Q_OBJECT

private slots:
    void namesDevicesNodesAndDataObjectsAsInReferences();
    void attributesAreFoundByTheirReference();
    void basicTypesAreSpelledAsInTheDeviceModel_data();
    void basicTypesAreSpelledAsInTheDeviceModel();
    void anArrayIsANodeWithoutAttributeWhoseElementsAreNumbered();
    void anArrayOfPlainAttributesHasAttributesAsElements();
    void configuredValuesHaveTheRepresentationOfTheirType_data();
    void configuredValuesHaveTheRepresentationOfTheirType();
    void aSettingHasTheValueOfTheActiveGroup();
    void anEditableSettingIsShownAsItsValueInForce();
    void enumerationsInUseComeWithTheDevice();
    void dataSetsOfALogicalNodeArePersistentWithTheirMembers();
    void membersThatDoNotExistAreMarkedAbsent();
    void everyInstanceOfAReportControlIsABlockWithItsSettings();
    void aReportControlWithoutItsDataSetIsMarkedAbsent();
    void theSettingGroupControlBelongsToItsLogicalNode();
    void whatTheFileDoesNotDefineIsNotPresent();
    void anAttributeWithoutConstraintHasNoReference();
    void theDeviceSurvivesItsByteForm();
    void theIedIsChosenByNameOrWhenItIsTheOnlyOne();
    void errorsNameTheLine();
};

void tst_SclImport::namesDevicesNodesAndDataObjectsAsInReferences()
{
    const Imported imported = import("device.icd");
    QVERIFY(imported.device);
    QCOMPARE(imported.device->name, QStringLiteral("BAY1"));
    QVERIFY(!imported.device->offline);
    QCOMPARE(imported.device->logicalDevices.size(), 2);
    QCOMPARE(imported.device->logicalDevices[0]->name, QStringLiteral("BAY1CTRL"));
    QCOMPARE(imported.device->logicalDevices[1]->name, QStringLiteral("FeederMeasurements"));
    const LogicalNode *node =
        nodeOf(*imported.device, QStringLiteral("BAY1CTRL"), QStringLiteral("Q0CSWI1"));
    QVERIFY(node);
    QVERIFY(node->present);
    QCOMPARE(node->lnClass, QStringLiteral("CSWI"));
    QCOMPARE(node->dataObjects.size(), 1);
    QCOMPARE(node->dataObjects[0]->name, QStringLiteral("Pos"));
    QCOMPARE(node->dataObjects[0]->type, QStringLiteral("DPC"));
    QStringList names;
    for (const DAO *attribute : qAsConst(node->dataObjects[0]->attributes))
        names << attribute->name();
    QCOMPARE(names, (QStringList{QStringLiteral("stVal"), QStringLiteral("q"), QStringLiteral("t"),
                                 QStringLiteral("ctlModel"), QStringLiteral("d")}));
    QCOMPARE(node->dataObjects[0]->possibleFC(),
             (QStringList{QStringLiteral("ST"), QStringLiteral("CF"), QStringLiteral("DC")}));
}

void tst_SclImport::attributesAreFoundByTheirReference()
{
    const Imported imported = import("device.icd");
    for (const char *reference :
         {"BAY1CTRL/Q0CSWI1$ST$Pos$stVal", "BAY1CTRL/PTOC1$SG$StrVal$setMag$f",
          "BAY1CTRL/PTOC1$SG$StrVal$setMag",
          "FeederMeasurements/MHAI1$MX$HA$phsAHar(4)$cVal$mag$f"}) {
        const DataAttribute *attribute = imported.device->findTag(QLatin1String(reference));
        QVERIFY2(attribute, reference);
        QCOMPARE(attribute->reference, QLatin1String(reference));
    }
    QVERIFY(!imported.device->findTag(
        QStringLiteral("FeederMeasurements/MHAI1$MX$HA$phsAHar(5)$cVal$mag$f")));
    QVERIFY(!imported.device->findTag(QStringLiteral("BAY1CTRL/Q0CSWI1$MX$Pos$stVal")));
    QCOMPARE(imported.device->findTag(QStringLiteral("BAY1CTRL/PTOC1$SG$StrVal$setMag$f"))->fc,
             QStringLiteral("SG"));
}

void tst_SclImport::basicTypesAreSpelledAsInTheDeviceModel_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("basicType");
    QTest::addColumn<QString>("enumTypeId");
    QTest::newRow("double point") << "BAY1CTRL/Q0CSWI1$ST$Pos$stVal"
                                  << "Dbpos"
                                  << "";
    QTest::newRow("quality") << "BAY1CTRL/Q0CSWI1$ST$Pos$q"
                             << "Quality"
                             << "";
    QTest::newRow("time stamp") << "BAY1CTRL/Q0CSWI1$ST$Pos$t"
                                << "Timestamp"
                                << "";
    QTest::newRow("enumeration") << "BAY1CTRL/Q0CSWI1$CF$Pos$ctlModel"
                                 << "Enum"
                                 << "ctlModel";
    QTest::newRow("text") << "BAY1CTRL/Q0CSWI1$DC$Pos$d"
                          << "VisString255"
                          << "";
    QTest::newRow("float") << "BAY1CTRL/PTOC1$SG$StrVal$setMag$f"
                           << "FLOAT32"
                           << "";
    QTest::newRow("unsigned") << "FeederMeasurements/MHAI1$CF$HA$numHar"
                              << "INT16U"
                              << "";
}

void tst_SclImport::basicTypesAreSpelledAsInTheDeviceModel()
{
    QFETCH(QString, reference);
    const Imported imported = import("device.icd");
    const DataAttribute *attribute = imported.device->findTag(reference);
    QVERIFY(attribute);
    QTEST(attribute->basicType, "basicType");
    QTEST(attribute->enumTypeId, "enumTypeId");
}

void tst_SclImport::anArrayIsANodeWithoutAttributeWhoseElementsAreNumbered()
{
    const Imported imported = import("device.icd");
    const LogicalNode *node =
        nodeOf(*imported.device, QStringLiteral("FeederMeasurements"), QStringLiteral("MHAI1"));
    const DAO *array = node->dataObjects[0]->getDAOByName(QStringLiteral("phsAHar"));
    QVERIFY(array);
    QVERIFY(!array->attribute);
    QCOMPARE(array->subDataObject->type, QStringLiteral("CMV"));
    QCOMPARE(array->children.size(), 5);
    const DAO *element = array->children[2];
    QVERIFY(!element->attribute);
    QCOMPARE(element->subDataObject->name, QStringLiteral("phsAHar(2)"));
    QCOMPARE(element->subDataObject->type, QStringLiteral("CMV"));
    const DAO *f = element->getDAOByName(QStringLiteral("cVal"))
                       ->getDAOByName(QStringLiteral("mag"))
                       ->getDAOByName(QStringLiteral("f"));
    QCOMPARE(f->attribute->value, QVariant(1.25F));
    QVERIFY(!imported.device
                 ->findTag(QStringLiteral("FeederMeasurements/MHAI1$MX$HA$phsAHar(1)$cVal$mag$f"))
                 ->value.isValid());
}

void tst_SclImport::anArrayOfPlainAttributesHasAttributesAsElements()
{
    const Imported imported = import("array-members.icd");
    const LogicalNode *node =
        nodeOf(*imported.device, QStringLiteral("IED1LD"), QStringLiteral("MHAI1"));
    const DAO *list = node->dataObjects[0]->getDAOByName(QStringLiteral("list"));
    QVERIFY(list);
    QVERIFY(!list->attribute);
    QCOMPARE(list->children.size(), 3);
    QVERIFY(list->children[2]->attribute);
    QCOMPARE(list->children[2]->attribute->name, QStringLiteral("list(2)"));
    QCOMPARE(list->children[2]->attribute->value.toInt(), 30);
    QCOMPARE(imported.device->findTag(QStringLiteral("IED1LD/MHAI1$CF$HA$list(2)")),
             list->children[2]->attribute);
}

void tst_SclImport::configuredValuesHaveTheRepresentationOfTheirType_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("enumeration by ordinal") << "CF$Obj$byOrdinal" << QVariant(5);
    QTest::newRow("enumeration with blanks") << "CF$Obj$byBlanks" << QVariant(5);
    QTest::newRow("unknown literal") << "CF$Obj$byUnknown" << QVariant();
    QTest::newRow("False") << "CF$Obj$flagFalse" << QVariant(false);
    QTest::newRow("on") << "CF$Obj$flagOn" << QVariant(true);
    QTest::newRow("1") << "CF$Obj$flagOne" << QVariant(true);
    QTest::newRow("no truth value") << "CF$Obj$flagBad" << QVariant();
    QTest::newRow("empty number") << "CF$Obj$number" << QVariant();
    QTest::newRow("out of range") << "CF$Obj$small" << QVariant();
    QTest::newRow("decimal comma") << "CF$Obj$real" << QVariant();
    QTest::newRow("empty text") << "DC$Obj$label" << QVariant(QString());
    QTest::newRow("double point") << "ST$Obj$position" << QVariant(2);
    QTest::newRow("time stamp") << "ST$Obj$moment"
                                << QVariant(QStringLiteral("2021-03-04T04:06:07.500Z"));
    QTest::newRow("quality") << "ST$Obj$quality" << QVariant(QStringLiteral("0000000000001"));
    QTest::newRow("octets") << "CF$Obj$octets" << QVariant(QStringLiteral("0aFF"));
}

void tst_SclImport::configuredValuesHaveTheRepresentationOfTheirType()
{
    QFETCH(QString, attribute);
    QFETCH(QVariant, value);
    const Imported imported = import("odd-values.icd");
    const DataAttribute *found =
        imported.device->findTag(QStringLiteral("IED1LD/GGIO1$") + attribute);
    QVERIFY(found);
    QCOMPARE(typeOf(found->value), typeOf(value));
    QCOMPARE(found->value, value);
}

void tst_SclImport::aSettingHasTheValueOfTheActiveGroup()
{
    const Imported imported = import("device.icd");
    const DataAttribute *setting =
        imported.device->findTag(QStringLiteral("BAY1CTRL/PTOC1$SG$StrVal$setMag$f"));
    QCOMPARE(setting->value, QVariant(200.5F));
}

void tst_SclImport::anEditableSettingIsShownAsItsValueInForce()
{
    const Imported imported = import("editable-setting.icd");
    const DataAttribute *setting =
        imported.device->findTag(QStringLiteral("FEEDERPROT/PTOC1$SG$OpDlTmms$setVal"));
    QVERIFY(setting);
    QCOMPARE(setting->fc, QStringLiteral("SG"));
    QCOMPARE(setting->value, QVariant(150));
    QVERIFY(!imported.device->findTag(QStringLiteral("FEEDERPROT/PTOC1$SE$OpDlTmms$setVal")));
}

void tst_SclImport::enumerationsInUseComeWithTheDevice()
{
    const Imported imported = import("device.icd");
    const EnumType model = imported.device->getEnumType(QStringLiteral("ctlModel"));
    QCOMPARE(model.id, QStringLiteral("ctlModel"));
    QCOMPARE(model.values.value(4), QStringLiteral("sbo-with-enhanced-security"));
    QCOMPARE(imported.device->findTag(QStringLiteral("BAY1CTRL/Q0CSWI1$CF$Pos$ctlModel"))->value,
             QVariant(4));
    QVERIFY(
        import("missing-enumtype.icd").device->getEnumType(QStringLiteral("Gone")).id.isEmpty());
}

void tst_SclImport::dataSetsOfALogicalNodeArePersistentWithTheirMembers()
{
    const Imported imported = import("device.icd");
    const LogicalNode *zero =
        nodeOf(*imported.device, QStringLiteral("BAY1CTRL"), QStringLiteral("LLN0"));
    const DataSet *set = zero->dataSet(QStringLiteral("state"));
    QVERIFY(set);
    QCOMPARE(set->state, quint8(0));
    QVERIFY(!set->deletable);
    QCOMPARE(set->members.size(), 4);
    QCOMPARE(set->members[0]->state, quint8(1));
    QCOMPARE(set->members[0]->reference, QStringLiteral("BAY1CTRL/Q0CSWI1$ST$Pos$stVal"));
    QCOMPARE(set->members[2]->reference,
             QStringLiteral("FeederMeasurements/MHAI1$MX$HA$phsAHar(2)$cVal$mag$f"));
    QVERIFY(imported.device->dataSets.isEmpty());
}

void tst_SclImport::membersThatDoNotExistAreMarkedAbsent()
{
    const Imported imported = import("missing-members.icd");
    const DataSet *set = nodeOf(*imported.device, QStringLiteral("IED1LD"), QStringLiteral("LLN0"))
                             ->dataSet(QStringLiteral("mixed"));
    QCOMPARE(set->members.size(), 8);
    QCOMPARE(set->members[0]->state, quint8(1));
    for (int i = 1; i < 8; ++i)
        QCOMPARE(set->members[i]->state, quint8(0));
}

void tst_SclImport::everyInstanceOfAReportControlIsABlockWithItsSettings()
{
    const Imported imported = import("device.icd");
    const auto &blocks =
        nodeOf(*imported.device, QStringLiteral("BAY1CTRL"), QStringLiteral("LLN0"))
            ->reportControls->blocks;
    QStringList references;
    for (const ReportControlBlock *block : blocks)
        references << block->reference;
    QCOMPARE(references,
             (QStringList{QStringLiteral("LLN0$BR$brcb01"), QStringLiteral("LLN0$BR$brcb02"),
                          QStringLiteral("LLN0$BR$brcb03"), QStringLiteral("LLN0$RP$urcb"),
                          QStringLiteral("LLN0$RP$plain01")}));
    const ReportControlBlock &buffered = *blocks[1];
    QCOMPARE(buffered.name, QStringLiteral("brcb02"));
    QCOMPARE(buffered.type, QStringLiteral("BR"));
    QCOMPARE(buffered.state, quint8(1));
    QVERIFY(!buffered.enabled);
    QCOMPARE(buffered.rptId, QStringLiteral("events"));
    QCOMPARE(buffered.dataSet, QStringLiteral("state"));
    QCOMPARE(buffered.confRev, 7);
    QCOMPARE(buffered.integrityPeriod, 60000);
    QCOMPARE(buffered.bufferTime, 50);
    QVERIFY(buffered.triggerDataChange);
    QVERIFY(buffered.triggerQualityChange);
    QVERIFY(!buffered.triggerDataUpdate);
    QVERIFY(buffered.triggerIntegrity);
    QVERIFY(buffered.triggerGeneralInterrogation);
    QVERIFY(buffered.optSequenceNumber);
    QVERIFY(buffered.optTimeStamp);
    QVERIFY(buffered.optReasonForInclusion);
    QVERIFY(buffered.optDataSetName);
    QVERIFY(!buffered.optDataReference);
    QVERIFY(buffered.optBufferOverflow);
    QVERIFY(buffered.optEntryId);
    QVERIFY(buffered.optConfRevision);
    const ReportControlBlock &unbuffered = *blocks[3];
    QCOMPARE(unbuffered.type, QStringLiteral("RP"));
    QVERIFY(!unbuffered.optBufferOverflow);
    QVERIFY(!unbuffered.triggerGeneralInterrogation);
}

void tst_SclImport::aReportControlWithoutItsDataSetIsMarkedAbsent()
{
    const Imported imported = import("missing-data-set.icd");
    const auto &blocks = nodeOf(*imported.device, QStringLiteral("IED1LD"), QStringLiteral("LLN0"))
                             ->reportControls->blocks;
    QCOMPARE(blocks.size(), 1);
    QCOMPARE(blocks[0]->state, quint8(0));
    QCOMPARE(blocks[0]->dataSet, QStringLiteral("gone"));
}

void tst_SclImport::theSettingGroupControlBelongsToItsLogicalNode()
{
    const Imported imported = import("device.icd");
    const LogicalNode *zero =
        nodeOf(*imported.device, QStringLiteral("BAY1CTRL"), QStringLiteral("LLN0"));
    QVERIFY(zero->settingGroup);
    QCOMPARE(zero->settingGroup->numOfSG, 4);
    QCOMPARE(zero->settingGroup->activeGroup, 2);
    QCOMPARE(zero->settingGroup->state, 1);
    QVERIFY(!nodeOf(*imported.device, QStringLiteral("FeederMeasurements"), QStringLiteral("LLN0"))
                 ->settingGroup);
}

void tst_SclImport::whatTheFileDoesNotDefineIsNotPresent()
{
    const Imported withoutNode = import("missing-lnodetype.icd");
    const LogicalNode *node =
        nodeOf(*withoutNode.device, QStringLiteral("IED1LD"), QStringLiteral("GGIO1"));
    QVERIFY(node);
    QVERIFY(!node->present);
    QVERIFY(node->dataSetGroup);
    QVERIFY(node->reportControls);

    const Imported withoutObject = import("missing-dotype.icd");
    const DataObject *object =
        nodeOf(*withoutObject.device, QStringLiteral("IED1LD"), QStringLiteral("GGIO1"))
            ->dataObjects[0];
    QVERIFY(!object->present);
    QCOMPARE(object->type, QStringLiteral("Gone"));

    const Imported withoutStructure = import("missing-datype.icd");
    const DAO *structure =
        nodeOf(*withoutStructure.device, QStringLiteral("IED1LD"), QStringLiteral("GGIO1"))
            ->dataObjects[0]
            ->getDAOByName(QStringLiteral("origin"));
    QCOMPARE(structure->state, quint32(0));
    QVERIFY(!structure->attribute->present);
}

void tst_SclImport::anAttributeWithoutConstraintHasNoReference()
{
    const Imported imported = import("attribute-without-fc.icd");
    const DataObject *object =
        nodeOf(*imported.device, QStringLiteral("IED1LD"), QStringLiteral("GGIO1"))->dataObjects[0];
    const DataAttribute *attribute = object->getDAOByName(QStringLiteral("q"))->attribute;
    QVERIFY(attribute->fc.isEmpty());
    QVERIFY(attribute->reference.isEmpty());
    QVERIFY(!attribute->present);
    QVERIFY(imported.device->findTag(QStringLiteral("IED1LD/GGIO1$ST$Ind1$stVal")));
}

void tst_SclImport::theDeviceSurvivesItsByteForm()
{
    for (const char *fixture : {"device.icd", "odd-values.icd", "array-members.icd",
                                "self-referring-types.icd", "basic-types.icd"}) {
        const Imported imported = import(fixture);
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        imported.device->toStream(out);
        QCOMPARE(out.status(), QDataStream::Ok);
        PhysicalDevice again;
        QDataStream in(bytes);
        again.fromStream(in);
        QCOMPARE(in.status(), QDataStream::Ok);
        QByteArray secondBytes;
        QDataStream secondOut(&secondBytes, QIODevice::WriteOnly);
        again.toStream(secondOut);
        QCOMPARE(secondBytes, bytes);
    }
}

void tst_SclImport::theIedIsChosenByNameOrWhenItIsTheOnlyOne()
{
    const Imported single = import("device.icd");
    QString error;
    QCOMPARE(SclImport::chooseIed(*single.file.document, QString(), error),
             &single.file.document->ieds.front());
    QCOMPARE(SclImport::chooseIed(*single.file.document, QStringLiteral("BAY1"), error),
             &single.file.document->ieds.front());
    QVERIFY(!SclImport::chooseIed(*single.file.document, QStringLiteral("BAY2"), error));
    QCOMPARE(error, QStringLiteral("There is no IED \"BAY2\" in the file."));
    const Imported several = import("structure-mistakes.scd");
    QVERIFY(!SclImport::chooseIed(*several.file.document, QString(), error));
    QCOMPARE(error, QStringLiteral("The file describes several IEDs; one must be chosen."));
    const scl::ReadResult none = scl::readBytes("<SCL/>");
    QVERIFY(!SclImport::chooseIed(*none.document, QString(), error));
    QCOMPARE(error, QStringLiteral("The file describes no IED."));
}

void tst_SclImport::errorsNameTheLine()
{
    QCOMPARE(SclImport::errorText(import("not-scl.xml").file),
             QStringLiteral("Line 2: This is not an SCL file: its root element is \"project\"."));
    QVERIFY(SclImport::errorText(import("device.icd").file).isEmpty());
    const scl::ReadResult missing = SclImport::readFile(QStringLiteral(":/no/such/resource.icd"));
    QVERIFY(!missing.document);
    QVERIFY(SclImport::errorText(missing).contains(QStringLiteral(":/no/such/resource.icd")));
}

QTEST_GUILESS_MAIN(tst_SclImport)
#include "tst_sclimport.moc"
