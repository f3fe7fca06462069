// SPDX-License-Identifier: Apache-2.0
#include "devicebuilder.h"
#include "testtemplates.h"

#include "model/iedmodel.h"

#include <QtTest/QtTest>

#include <memory>

using namespace DeviceBuilder;

namespace {

QString s(const char *text)
{
    return QString::fromLatin1(text);
}

/// Kind and name of each node, one line each, indented by depth.
void addLines(const IEDNode *node, int depth, QStringList &lines)
{
    lines << QString(depth, QLatin1Char(' ')) + QString::number(node->type) + QLatin1Char(' ') +
                 node->name();
    for (const IEDNode *const child : node->children)
        addLines(child, depth + 1, lines);
}

QStringList described(const IEDModel &model)
{
    QStringList lines;
    if (const IEDNode *const root = IEDModel::nodeAt(model.index(0, 0)))
        addLines(root, 0, lines);
    return lines;
}

QString pathOf(const QModelIndex &index)
{
    QStringList names;
    for (const IEDNode *node = IEDModel::nodeAt(index); node; node = node->parent)
        names.prepend(node->name());
    return names.join(QLatin1Char('>'));
}

/// "IED" with the logical devices "IEDCTRL" (LLN0 and a circuit breaker) and "IEDMEAS" (a
/// measuring unit with phase values and an array of harmonics).
std::unique_ptr<PhysicalDevice> makeDevice()
{
    auto device = std::make_unique<PhysicalDevice>();
    device->name = s("IED");

    LogicalDevice *const control = addLogicalDevice(*device, s("IEDCTRL"));
    LogicalNode *const zero = addLogicalNode(control, s("LLN0"), s("LLN0"));
    zero->settingGroup = new SettingGroupControl;
    zero->settingGroup->name = s("SGCB");
    zero->dataSetGroup->dataSets << newDataSet(s("Events"), 0, {s("IEDCTRL/XCBR1$ST$Pos")})
                                 << newDataSet(s("Empty"), 0, {});
    addReport(zero, s("brcb01"), s("BR"));
    addReport(zero, s("urcb01"), s("RP"));
    DataObject *const mode = addDataObject(zero, s("Mod"), s("ENC"));
    addAttribute(mode->attributes, s("stVal"), s("ST"), s("Enum"), 1,
                 s("IEDCTRL/LLN0$ST$Mod$stVal"));

    LogicalNode *const breaker = addLogicalNode(control, s("XCBR"), s("XCBR1"));
    DataObject *const position = addDataObject(breaker, s("Pos"), s("DPC"));
    addAttribute(position->attributes, s("stVal"), s("ST"), s("Dbpos"), 2,
                 s("IEDCTRL/XCBR1$ST$Pos$stVal"));
    DAO *const oper = addAttribute(position->attributes, s("Oper"), s("CO"), s("Struct"));
    addAttribute(oper->children, s("ctlVal"), s("CO"), s("BOOLEAN"), false,
                 s("IEDCTRL/XCBR1$CO$Pos$Oper$ctlVal"));
    DAO *const origin = addAttribute(oper->children, s("origin"), s("CO"), s("Struct"));
    addAttribute(origin->children, s("orCat"), s("CO"), s("Enum"), 0,
                 s("IEDCTRL/XCBR1$CO$Pos$Oper$origin$orCat"));

    LogicalDevice *const measurement = addLogicalDevice(*device, s("IEDMEAS"));
    LogicalNode *const unit = addLogicalNode(measurement, s("MMXU"), s("MMXU1"));
    DataObject *const voltage = addDataObject(unit, s("PhV"), s("WYE"));
    DAO *const phase = addSubDataObject(voltage->attributes, s("phsA"), s("CMV"));
    addAttribute(phase->children, s("q"), s("MX"), s("Quality"), s("0000000000000"),
                 s("IEDMEAS/MMXU1$MX$PhV$phsA$q"));
    DataObject *const harmonics = addDataObject(unit, s("HA"), s("HMV"));
    DAO *const array = addSubDataObject(harmonics->attributes, s("har"), s("CMV"));
    for (int i = 0; i < 3; ++i) {
        const QString name = s("har(%1)").arg(i);
        DAO *const element = addSubDataObject(array->children, name, s("CMV"));
        addAttribute(element->children, s("q"), s("MX"), s("Quality"), QVariant(),
                     s("IEDMEAS/MMXU1$MX$HA$%1$q").arg(name));
    }

    device->dataSets << newDataSet(s("Association"), 1, {s("IEDMEAS/MMXU1$MX$PhV")});
    device->rebuildIndex();
    return device;
}

} // namespace

class tst_DeviceTree : public QObject
{
    Q_OBJECT

private slots:
    void aDeviceIsLaidOutInDisplayOrder();
    void anEmptyDeviceIsARootAlone();
    void settingGroupsBelongToALogicalNodeZeroThatHasThem_data();
    void settingGroupsBelongToALogicalNodeZeroThatHasThem();
    void everyLogicalNodeHasItsTwoGroups();
    void rowsAreThePositionsAmongTheChildren();
    void theResetBeginsBeforeTheOldTreeGoes();
    void settingNoDeviceClearsTheTree();
    void theAttributeIndexHoldsTheLeaves();
    void aLaterNodeOfTheSameAttributeReplacesTheEarlier();
    void theAttributeIndexFollowsTheDevice();

    void theRootIsTheOutermostAncestor();
    void aRowIsFoundOnlyInTheNodesOwnParent();
    void theLogicalDeviceOfANodeIncludesTheNodeItself();
    void theLogicalNodeOfANodeExcludesTheNodeItself();

    void aReferenceLeadsToItsNode_data();
    void aReferenceLeadsToItsNode();
    void aReferenceWithoutALogicalNodeOfTheDeviceIsInvalid_data();
    void aReferenceWithoutALogicalNodeOfTheDeviceIsInvalid();
    void aReferenceBeforeADeviceIsSetIsInvalid();
    void aLocatedIndexIsThatOfTheTree();
    void theDeletableMarkIsNoPartOfTheName();

    void aPersistentDataSetIsAddedToItsLogicalNode();
    void anAssociationsDataSetIsAddedToTheDevice();
    void aDataSetThatExistsTakesTheNewMembers_data();
    void aDataSetThatExistsTakesTheNewMembers();
    void aDataSetIsInsertedUnderGroupsAndTheRootOnly();
    void aDataSetIsRemovedFromItsLogicalNode();
    void aDataSetIsRemovedFromTheDevice();
    void onlyDataSetsAreRemoved();
    void theDeviceChangesWithinTheReset();
};

void tst_DeviceTree::aDeviceIsLaidOutInDisplayOrder()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());

    const char *const expected[] = {
        "0 IED",
        " 1 IEDCTRL",
        "  2 LLN0",
        "   6 SGCB",
        "   8 DataSet",
        "    9 Events",
        "     10 IEDCTRL/XCBR1$ST$Pos",
        "    9 Empty",
        "   11 ReportControl",
        "    12 brcb01",
        "    12 urcb01",
        "   3 Mod",
        "    7 stVal",
        "  2 XCBR1",
        "   8 DataSet",
        "   11 ReportControl",
        "   3 Pos",
        "    7 stVal",
        "    7 Oper",
        "     7 ctlVal",
        "     7 origin",
        "      7 orCat",
        " 1 IEDMEAS",
        "  2 MMXU1",
        "   8 DataSet",
        "   11 ReportControl",
        "   3 PhV",
        "    7 phsA",
        "     7 q",
        "   3 HA",
        "    7 har",
        "     7 har(0)",
        "      7 q",
        "     7 har(1)",
        "      7 q",
        "     7 har(2)",
        "      7 q",
        " 9 Association",
        "  10 IEDMEAS/MMXU1$MX$PhV",
    };
    QStringList lines;
    for (const char *const line : expected)
        lines << s(line);
    QCOMPARE(described(model), lines);
}

void tst_DeviceTree::anEmptyDeviceIsARootAlone()
{
    PhysicalDevice device;
    device.name = s("IED");
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(&device);
    QCOMPARE(described(model), QStringList({s("0 IED")}));
    QVERIFY(model.attributeIndex().isEmpty());
}

void tst_DeviceTree::settingGroupsBelongToALogicalNodeZeroThatHasThem_data()
{
    QTest::addColumn<QString>("lnClass");
    QTest::addColumn<bool>("hasSettingGroups");
    QTest::addColumn<QList<quint32>>("kinds");
    const QList<quint32> with = {SettingGroupNode, DataSetGroupNode, ReportControlGroupNode};
    const QList<quint32> without = {DataSetGroupNode, ReportControlGroupNode};
    QTest::newRow("logical node zero with") << "LLN0" << true << with;
    QTest::newRow("logical node zero without") << "LLN0" << false << without;
    QTest::newRow("another class with") << "PTOC" << true << without;
    QTest::newRow("nearly the class") << "lln0" << true << without;
}

void tst_DeviceTree::settingGroupsBelongToALogicalNodeZeroThatHasThem()
{
    QFETCH(QString, lnClass);
    QFETCH(bool, hasSettingGroups);
    PhysicalDevice device;
    LogicalNode *const logicalNode =
        addLogicalNode(addLogicalDevice(device, s("LD")), lnClass, s("LLN0"));
    if (hasSettingGroups)
        logicalNode->settingGroup = new SettingGroupControl;
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(&device);

    QList<quint32> kinds;
    const QModelIndex logicalNodeIndex = model.index(0, 0, model.index(0, 0, model.index(0, 0)));
    for (const IEDNode *const child : IEDModel::nodeAt(logicalNodeIndex)->children)
        kinds << child->type;
    QTEST(kinds, "kinds");
}

void tst_DeviceTree::everyLogicalNodeHasItsTwoGroups()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QModelIndex breaker = model.indexForReference(s("IEDCTRL/XCBR1"));
    QCOMPARE(IEDModel::nodeAt(model.index(0, 0, breaker))->type, DataSetGroupNode);
    QCOMPARE(model.rowCount(model.index(0, 0, breaker)), 0);
    QCOMPARE(IEDModel::nodeAt(model.index(1, 0, breaker))->type, ReportControlGroupNode);
    QCOMPARE(model.rowCount(model.index(1, 0, breaker)), 0);
}

void tst_DeviceTree::rowsAreThePositionsAmongTheChildren()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    QList<const IEDNode *> waiting = {IEDModel::nodeAt(model.index(0, 0))};
    int seen = 0;
    while (!waiting.isEmpty()) {
        const IEDNode *const node = waiting.takeFirst();
        for (int row = 0; row < node->children.size(); ++row) {
            QCOMPARE(node->children.at(row)->row, row);
            QCOMPARE(IEDModel::rowOfChild(node, node->children.at(row)), row);
            QCOMPARE(node->children.at(row)->parent, node);
            waiting << node->children.at(row);
            ++seen;
        }
    }
    QCOMPARE(seen, described(model).size() - 1);
}

void tst_DeviceTree::theResetBeginsBeforeTheOldTreeGoes()
{
    const auto first = makeDevice();
    PhysicalDevice second;
    second.name = s("Other");
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(first.get());

    QStringList seen;
    const auto note = [&] {
        seen << s("%1 with %2 children")
                    .arg(model.data(model.index(0, 0)).toString())
                    .arg(model.rowCount(model.index(0, 0)));
    };
    connect(&model, &IEDModel::modelAboutToBeReset, this, note);
    connect(&model, &IEDModel::modelReset, this, note);
    model.setDevice(&second);
    QCOMPARE(seen, QStringList({s("IED with 3 children"), s("Other with 0 children")}));
}

void tst_DeviceTree::settingNoDeviceClearsTheTree()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    QSignalSpy reset(&model, &IEDModel::modelReset);
    model.setDevice(nullptr);
    QCOMPARE(reset.count(), 1);
    QVERIFY(!IEDModel::nodeAt(model.index(0, 0)));
    QVERIFY(model.attributeIndex().isEmpty());
    QVERIFY(!model.indexForReference(s("IEDCTRL/LLN0")).isValid());
    QCOMPARE(model.rowCount(), 1);
}

void tst_DeviceTree::theAttributeIndexHoldsTheLeaves()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());

    QCOMPARE(model.attributeIndex().size(), 8);
    DataAttribute *const category = device->findTag(s("IEDCTRL/XCBR1$CO$Pos$Oper$origin$orCat"));
    QVERIFY(category);
    const IEDNode *const node = model.attributeIndex().value(category);
    QVERIFY(node);
    QCOMPARE(node->dataAttribute(), category);
    QCOMPARE(node->name(), s("orCat"));
    const IEDNode *const origin = node->parent;
    QVERIFY(origin->dataAttribute());
    QVERIFY(!model.attributeIndex().contains(origin->dataAttribute()));
}

void tst_DeviceTree::aLaterNodeOfTheSameAttributeReplacesTheEarlier()
{
    PhysicalDevice device;
    DataObject *const dataObject =
        addDataObject(addLogicalNode(addLogicalDevice(device, s("LD")), s("GGIO"), s("GGIO1")),
                      s("Ind1"), s("SPS"));
    DAO *const first = addAttribute(dataObject->attributes, s("stVal"), s("ST"), s("BOOLEAN"));
    DAO *const second = addAttribute(dataObject->attributes, s("stVal"), s("ST"), s("BOOLEAN"));
    delete second->attribute;
    second->attribute = first->attribute;
    {
        const TestTemplates templates;
        IEDModel model(&templates);
        model.setDevice(&device);
        QCOMPARE(model.attributeIndex().size(), 1);
        QCOMPARE(model.attributeIndex().value(first->attribute)->dao(), second);
    }
    second->attribute = nullptr;
}

void tst_DeviceTree::theAttributeIndexFollowsTheDevice()
{
    const auto first = makeDevice();
    const auto second = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(first.get());
    model.setDevice(second.get());
    const QString reference = s("IEDCTRL/XCBR1$ST$Pos$stVal");
    QVERIFY(!model.attributeIndex().contains(first->findTag(reference)));
    QVERIFY(model.attributeIndex().contains(second->findTag(reference)));
}

void tst_DeviceTree::theRootIsTheOutermostAncestor()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    IEDNode *const root = IEDModel::nodeAt(model.index(0, 0));
    IEDNode *const leaf =
        IEDModel::nodeAt(model.indexForReference(s("IEDMEAS/MMXU1$MX$PhV$phsA$q")));
    QCOMPARE(IEDModel::rootNode(leaf), root);
    QCOMPARE(IEDModel::rootNode(root), root);
    QVERIFY(!IEDModel::rootNode(nullptr));
}

void tst_DeviceTree::aRowIsFoundOnlyInTheNodesOwnParent()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const IEDNode *const root = IEDModel::nodeAt(model.index(0, 0));
    const IEDNode *const breaker = IEDModel::nodeAt(model.indexForReference(s("IEDCTRL/XCBR1")));
    QCOMPARE(IEDModel::rowOfChild(breaker->parent, breaker), 1);
    QCOMPARE(IEDModel::rowOfChild(root, breaker), -1);
    QCOMPARE(IEDModel::rowOfChild(breaker, root), -1);
    QCOMPARE(IEDModel::rowOfChild(nullptr, root), -1);
    QCOMPARE(IEDModel::rowOfChild(root, nullptr), -1);
}

void tst_DeviceTree::theLogicalDeviceOfANodeIncludesTheNodeItself()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QModelIndex root = model.index(0, 0);
    QCOMPARE(IEDModel::logicalDeviceName(IEDModel::nodeAt(model.index(1, 0, root))), s("IEDMEAS"));
    QCOMPARE(IEDModel::logicalDeviceName(IEDModel::nodeAt(
                 model.indexForReference(s("IEDCTRL/XCBR1$CO$Pos$Oper$origin$orCat")))),
             s("IEDCTRL"));
    QCOMPARE(IEDModel::logicalDeviceName(IEDModel::nodeAt(root)), QString());
    QCOMPARE(IEDModel::logicalDeviceName(IEDModel::nodeAt(model.index(2, 0, root))), QString());
    QCOMPARE(IEDModel::logicalDeviceName(nullptr), QString());
}

void tst_DeviceTree::theLogicalNodeOfANodeExcludesTheNodeItself()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const auto at = [&](const char *reference) {
        return IEDModel::nodeAt(model.indexForReference(s(reference)));
    };
    QCOMPARE(IEDModel::logicalNodeName(at("IEDCTRL/XCBR1$CO$Pos$Oper$origin$orCat")), s("XCBR1"));
    QCOMPARE(IEDModel::logicalNodeName(at("IEDCTRL/XCBR1$ST$Pos")), s("XCBR1"));
    QCOMPARE(IEDModel::logicalNodeName(at("IEDCTRL/XCBR1")), QString());
    QCOMPARE(IEDModel::logicalNodeName(IEDModel::nodeAt(model.index(0, 0))), QString());
    QCOMPARE(IEDModel::logicalNodeName(nullptr), QString());
}

void tst_DeviceTree::aReferenceLeadsToItsNode_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("path");
    QTest::newRow("leaf") << "IEDCTRL/XCBR1$ST$Pos$stVal"
                          << "IED>IEDCTRL>XCBR1>Pos>stVal";
    QTest::newRow("nested leaf") << "IEDCTRL/XCBR1$CO$Pos$Oper$origin$orCat"
                                 << "IED>IEDCTRL>XCBR1>Pos>Oper>origin>orCat";
    QTest::newRow("sub data object") << "IEDMEAS/MMXU1$MX$PhV$phsA"
                                     << "IED>IEDMEAS>MMXU1>PhV>phsA";
    QTest::newRow("data object") << "IEDCTRL/XCBR1$ST$Pos"
                                 << "IED>IEDCTRL>XCBR1>Pos";
    QTest::newRow("functional constraint of a logical node") << "IEDCTRL/XCBR1$ST"
                                                             << "IED>IEDCTRL>XCBR1";
    QTest::newRow("logical node") << "IEDCTRL/XCBR1"
                                  << "IED>IEDCTRL>XCBR1";
    QTest::newRow("any functional constraint") << "IEDCTRL/XCBR1$??$Pos$stVal"
                                               << "IED>IEDCTRL>XCBR1>Pos>stVal";
    QTest::newRow("no functional constraint") << "IEDCTRL/XCBR1$$Pos$stVal"
                                              << "IED>IEDCTRL>XCBR1>Pos>stVal";
    QTest::newRow("deeper than the tree") << "IEDCTRL/XCBR1$ST$Pos$stVal$bit"
                                          << "IED>IEDCTRL>XCBR1>Pos>stVal";
    QTest::newRow("unknown component in between") << "IEDCTRL/XCBR1$CO$Pos$Absent$Oper$ctlVal"
                                                  << "IED>IEDCTRL>XCBR1>Pos>Oper>ctlVal";
    QTest::newRow("unknown data object") << "IEDCTRL/XCBR1$ST$Absent"
                                         << "IED>IEDCTRL>XCBR1";
    QTest::newRow("empty components") << "IEDCTRL/XCBR1$ST$$Pos$$stVal$"
                                      << "IED>IEDCTRL>XCBR1>Pos>stVal";
    QTest::newRow("array element") << "IEDMEAS/MMXU1$MX$HA$har(2)"
                                   << "IED>IEDMEAS>MMXU1>HA>har>har(2)";
    QTest::newRow("attribute of an array element") << "IEDMEAS/MMXU1$MX$HA$har(1)$q"
                                                   << "IED>IEDMEAS>MMXU1>HA>har>har(1)>q";
    QTest::newRow("element that the array lacks") << "IEDMEAS/MMXU1$MX$HA$har(3)"
                                                  << "IED>IEDMEAS>MMXU1>HA";
    QTest::newRow("data set") << "IEDCTRL/LLN0$DS$DataSet$Events"
                              << "IED>IEDCTRL>LLN0>DataSet>Events";
}

void tst_DeviceTree::aReferenceLeadsToItsNode()
{
    QFETCH(QString, reference);
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QModelIndex found = model.indexForReference(reference);
    QVERIFY(found.isValid());
    QTEST(pathOf(found), "path");
}

void tst_DeviceTree::aReferenceWithoutALogicalNodeOfTheDeviceIsInvalid_data()
{
    QTest::addColumn<QString>("reference");
    QTest::newRow("empty") << "";
    QTest::newRow("no slash") << "IEDCTRL";
    QTest::newRow("no slash, but a path") << "XCBR1$ST$Pos";
    QTest::newRow("unknown logical device") << "IEDPROT/XCBR1$ST$Pos$stVal";
    QTest::newRow("other spelling") << "iedctrl/XCBR1$ST$Pos$stVal";
    QTest::newRow("unknown logical node") << "IEDCTRL/XCBR2$ST$Pos$stVal";
    QTest::newRow("logical node of another device") << "IEDMEAS/XCBR1";
    QTest::newRow("empty logical node") << "IEDCTRL/";
    QTest::newRow("empty logical device") << "/XCBR1";
    QTest::newRow("a data set is no logical device") << "Association/XCBR1";
    QTest::newRow("second slash") << "IEDCTRL/XCBR1/ST";
}

void tst_DeviceTree::aReferenceWithoutALogicalNodeOfTheDeviceIsInvalid()
{
    QFETCH(QString, reference);
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    QVERIFY(!model.indexForReference(reference).isValid());
}

void tst_DeviceTree::aReferenceBeforeADeviceIsSetIsInvalid()
{
    const TestTemplates templates;
    const IEDModel model(&templates);
    QVERIFY(!model.indexForReference(s("IEDCTRL/XCBR1")).isValid());
}

void tst_DeviceTree::aLocatedIndexIsThatOfTheTree()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QModelIndex root = model.index(0, 0);
    const QModelIndex breaker = model.index(1, 0, model.index(0, 0, root));
    QCOMPARE(model.indexForReference(s("IEDCTRL/XCBR1")), breaker);
    const QModelIndex oper = model.index(1, 0, model.index(2, 0, breaker));
    QCOMPARE(model.indexForReference(s("IEDCTRL/XCBR1$CO$Pos$Oper")), oper);
}

void tst_DeviceTree::theDeletableMarkIsNoPartOfTheName()
{
    const auto device = makeDevice();
    device->logicalDevices.first()->logicalNodes.first()->dataSet(s("Events"))->deletable = true;
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QModelIndex found = model.indexForReference(s("IEDCTRL/LLN0$$DataSet$Events"));
    QCOMPARE(pathOf(found), s("IED>IEDCTRL>LLN0>DataSet>Events"));
    QCOMPARE(model.data(found).toString(), s("Events(Deletable)"));
}

void tst_DeviceTree::aPersistentDataSetIsAddedToItsLogicalNode()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    LogicalNode *const breaker = device->logicalDevices.first()->logicalNodes.last();
    const QModelIndex group = model.index(0, 0, model.indexForReference(s("IEDCTRL/XCBR1")));

    QSignalSpy reset(&model, &IEDModel::modelReset);
    DataSet *const added = model.insertDataSet(
        IEDModel::nodeAt(group), s("New"), {s("IEDCTRL/XCBR1$ST$Pos"), s("IEDCTRL/LLN0$ST$Mod")});
    QVERIFY(added);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(breaker->dataSet(s("New")), added);
    QCOMPARE(int(added->state), 0);
    QVERIFY(added->deletable);
    QCOMPARE(added->members.size(), 2);
    QCOMPARE(added->members.last()->reference, s("IEDCTRL/LLN0$ST$Mod"));

    const QModelIndex shown = model.indexForReference(s("IEDCTRL/XCBR1$$DataSet$New"));
    QCOMPARE(IEDModel::nodeAt(shown)->dataSet(), added);
    QCOMPARE(model.data(shown).toString(), s("New(Deletable)"));
    QCOMPARE(model.rowCount(shown), 2);
}

void tst_DeviceTree::anAssociationsDataSetIsAddedToTheDevice()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());

    DataSet *const added = model.insertDataSet(IEDModel::nodeAt(model.index(0, 0)), s("@New"),
                                               {s("IEDCTRL/XCBR1$ST$Pos")});
    QVERIFY(added);
    QCOMPARE(device->dataSets.last(), added);
    QCOMPARE(int(added->state), 1);
    QVERIFY(added->deletable);
    const QModelIndex shown = model.index(3, 0, model.index(0, 0));
    QCOMPARE(IEDModel::nodeAt(shown)->dataSet(), added);
    QCOMPARE(model.data(shown).toString(), s("@New(Deletable)"));
    QCOMPARE(model.data(model.index(0, 0, shown)).toString(), s("IEDCTRL/XCBR1$ST$Pos"));
}

void tst_DeviceTree::aDataSetThatExistsTakesTheNewMembers_data()
{
    QTest::addColumn<bool>("ofTheDevice");
    QTest::newRow("of a logical node") << false;
    QTest::newRow("of the device") << true;
}

void tst_DeviceTree::aDataSetThatExistsTakesTheNewMembers()
{
    QFETCH(bool, ofTheDevice);
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    LogicalNode *const zero = device->logicalDevices.first()->logicalNodes.first();
    DataSet *const before = ofTheDevice ? device->dataSets.first() : zero->dataSet(s("Events"));
    const QModelIndex parent =
        ofTheDevice ? model.index(0, 0) : model.indexForReference(s("IEDCTRL/LLN0$$DataSet"));

    DataSet *const after =
        model.insertDataSet(IEDModel::nodeAt(parent), before->name, {s("IEDCTRL/LLN0$ST$Mod")});
    QCOMPARE(after, before);
    QVERIFY(after->deletable);
    QCOMPARE(after->members.size(), 1);
    QCOMPARE(after->members.first()->reference, s("IEDCTRL/LLN0$ST$Mod"));
    QCOMPARE(device->dataSets.size(), 1);
    QCOMPARE(zero->dataSetGroup->dataSets.size(), 2);
}

void tst_DeviceTree::aDataSetIsInsertedUnderGroupsAndTheRootOnly()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QStringList before = described(model);
    QSignalSpy reset(&model, &IEDModel::modelReset);
    QVERIFY(!model.insertDataSet(nullptr, s("New"), {}));
    for (const char *const reference :
         {"IEDCTRL/XCBR1", "IEDCTRL/XCBR1$ST$Pos", "IEDCTRL/LLN0$$DataSet$Events",
          "IEDCTRL/LLN0$$ReportControl"}) {
        const QModelIndex parent = model.indexForReference(s(reference));
        QVERIFY2(!model.insertDataSet(IEDModel::nodeAt(parent), s("New"), {}), reference);
    }
    QCOMPARE(reset.count(), 0);
    QCOMPARE(described(model), before);
}

void tst_DeviceTree::aDataSetIsRemovedFromItsLogicalNode()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    LogicalNode *const zero = device->logicalDevices.first()->logicalNodes.first();
    QSignalSpy reset(&model, &IEDModel::modelReset);
    const QModelIndex shown = model.indexForReference(s("IEDCTRL/LLN0$$DataSet$Events"));
    QVERIFY(model.removeDataSet(IEDModel::nodeAt(shown)));
    QCOMPARE(reset.count(), 1);
    QVERIFY(!zero->dataSet(s("Events")));
    QCOMPARE(zero->dataSetGroup->dataSets.size(), 1);
    QCOMPARE(model.rowCount(model.indexForReference(s("IEDCTRL/LLN0$$DataSet"))), 1);
}

void tst_DeviceTree::aDataSetIsRemovedFromTheDevice()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    QVERIFY(model.removeDataSet(IEDModel::nodeAt(model.index(2, 0, model.index(0, 0)))));
    QVERIFY(device->dataSets.isEmpty());
    QCOMPARE(model.rowCount(model.index(0, 0)), 2);
}

void tst_DeviceTree::onlyDataSetsAreRemoved()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QStringList before = described(model);
    QSignalSpy reset(&model, &IEDModel::modelReset);
    QVERIFY(!model.removeDataSet(nullptr));
    QVERIFY(!model.removeDataSet(IEDModel::nodeAt(model.index(0, 0))));
    QVERIFY(!model.removeDataSet(
        IEDModel::nodeAt(model.indexForReference(s("IEDCTRL/LLN0$$DataSet")))));
    QCOMPARE(reset.count(), 0);
    QCOMPARE(described(model), before);
}

void tst_DeviceTree::theDeviceChangesWithinTheReset()
{
    const auto device = makeDevice();
    const TestTemplates templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    QList<int> sizes;
    const auto note = [&] { sizes << device->dataSets.size(); };
    connect(&model, &IEDModel::modelAboutToBeReset, this, note);
    connect(&model, &IEDModel::modelReset, this, note);
    model.insertDataSet(IEDModel::nodeAt(model.index(0, 0)), s("New"), {});
    QCOMPARE(sizes, QList<int>({1, 2}));
    model.removeDataSet(IEDModel::nodeAt(model.index(2, 0, model.index(0, 0))));
    QCOMPARE(sizes, QList<int>({1, 2, 2, 1}));
}

QTEST_MAIN(tst_DeviceTree)
#include "tst_devicetree.moc"
