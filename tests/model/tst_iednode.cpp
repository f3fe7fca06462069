// SPDX-License-Identifier: Apache-2.0
#include "devicebuilder.h"

#include "model/iednode.h"

#include <QtTest/QtTest>

class tst_IEDNode : public QObject
{
    Q_OBJECT

private slots:
    void theKindsHaveTheirFixedNumbers();
    void theKindFollowsFromTheObject();
    void anAccessorOfAnotherKindAnswersNull();
    void aNewNodeIsTheLastChildOfItsParent();
    void aNameIsThatOfTheObject();
    void theAttributeIsThatOfTheWrappedDao();
};

void tst_IEDNode::theKindsHaveTheirFixedNumbers()
{
    QCOMPARE(quint32(PhysicalDeviceNode), 0u);
    QCOMPARE(quint32(LogicalDeviceNode), 1u);
    QCOMPARE(quint32(LogicalNodeNode), 2u);
    QCOMPARE(quint32(DataObjectNode), 3u);
    QCOMPARE(quint32(SettingGroupNode), 6u);
    QCOMPARE(quint32(DataAttributeNode), 7u);
    QCOMPARE(quint32(DataSetGroupNode), 8u);
    QCOMPARE(quint32(DataSetNode), 9u);
    QCOMPARE(quint32(DataSetMemberNode), 10u);
    QCOMPARE(quint32(ReportControlGroupNode), 11u);
    QCOMPARE(quint32(ReportControlNode), 12u);
}

void tst_IEDNode::theKindFollowsFromTheObject()
{
    PhysicalDevice device;
    LogicalDevice logicalDevice;
    LogicalNode logicalNode;
    DataObject dataObject;
    SettingGroupControl settingGroup;
    DAO dao;
    DataSetGroup group;
    DataSet dataSet;
    DataSetMember member;
    ReportControlBlockList list;
    ReportControlBlock block;

    IEDNode root(&device);
    QCOMPARE(root.type, PhysicalDeviceNode);
    QCOMPARE(root.physicalDevice(), &device);
    QVERIFY(!root.parent);
    const auto *node = new IEDNode(&logicalDevice, &root);
    QCOMPARE(node->type, LogicalDeviceNode);
    QCOMPARE(node->logicalDevice(), &logicalDevice);
    node = new IEDNode(&logicalNode, &root);
    QCOMPARE(node->type, LogicalNodeNode);
    QCOMPARE(node->logicalNode(), &logicalNode);
    node = new IEDNode(&dataObject, &root);
    QCOMPARE(node->type, DataObjectNode);
    QCOMPARE(node->dataObject(), &dataObject);
    node = new IEDNode(&settingGroup, &root);
    QCOMPARE(node->type, SettingGroupNode);
    QCOMPARE(node->settingGroup(), &settingGroup);
    node = new IEDNode(&dao, &root);
    QCOMPARE(node->type, DataAttributeNode);
    QCOMPARE(node->dao(), &dao);
    node = new IEDNode(&group, &root);
    QCOMPARE(node->type, DataSetGroupNode);
    QCOMPARE(node->dataSetGroup(), &group);
    node = new IEDNode(&dataSet, &root);
    QCOMPARE(node->type, DataSetNode);
    QCOMPARE(node->dataSet(), &dataSet);
    node = new IEDNode(&member, &root);
    QCOMPARE(node->type, DataSetMemberNode);
    QCOMPARE(node->dataSetMember(), &member);
    node = new IEDNode(&list, &root);
    QCOMPARE(node->type, ReportControlGroupNode);
    QCOMPARE(node->reportControlList(), &list);
    node = new IEDNode(&block, &root);
    QCOMPARE(node->type, ReportControlNode);
    QCOMPARE(node->reportControl(), &block);
}

void tst_IEDNode::anAccessorOfAnotherKindAnswersNull()
{
    PhysicalDevice device;
    DataSet dataSet;
    IEDNode root(&device);
    const auto *const node = new IEDNode(&dataSet, &root);

    QVERIFY(!root.dataSet());
    QVERIFY(!root.dataAttribute());
    QVERIFY(!node->physicalDevice());
    QVERIFY(!node->logicalDevice());
    QVERIFY(!node->logicalNode());
    QVERIFY(!node->dataObject());
    QVERIFY(!node->settingGroup());
    QVERIFY(!node->dao());
    QVERIFY(!node->dataAttribute());
    QVERIFY(!node->dataSetGroup());
    QVERIFY(!node->dataSetMember());
    QVERIFY(!node->reportControlList());
    QVERIFY(!node->reportControl());
}

void tst_IEDNode::aNewNodeIsTheLastChildOfItsParent()
{
    PhysicalDevice device;
    DataSet first;
    DataSet second;
    IEDNode root(&device);
    auto *const firstNode = new IEDNode(&first, &root);
    auto *const secondNode = new IEDNode(&second, &root);
    QCOMPARE(root.children, QList<IEDNode *>({firstNode, secondNode}));
    QCOMPARE(firstNode->parent, &root);
    QCOMPARE(firstNode->row, 0);
    QCOMPARE(secondNode->row, 1);
    QCOMPARE(root.row, 0);
}

void tst_IEDNode::aNameIsThatOfTheObject()
{
    PhysicalDevice device;
    device.name = QStringLiteral("IED");
    auto *const logicalDevice = DeviceBuilder::addLogicalDevice(device, QStringLiteral("IEDPROT"));
    auto *const logicalNode = DeviceBuilder::addLogicalNode(logicalDevice, QStringLiteral("LLN0"),
                                                            QStringLiteral("LLN0"));
    logicalNode->dataSetGroup->name = QStringLiteral("Data sets");
    logicalNode->reportControls->name = QStringLiteral("Reports");
    logicalNode->settingGroup = new SettingGroupControl;
    logicalNode->settingGroup->name = QStringLiteral("SGCB");
    auto *const dataObject =
        DeviceBuilder::addDataObject(logicalNode, QStringLiteral("Mod"), QStringLiteral("ENC"));
    DAO *const attribute =
        DeviceBuilder::addAttribute(dataObject->attributes, QStringLiteral("stVal"),
                                    QStringLiteral("ST"), QStringLiteral("Enum"));
    DAO *const subObject = DeviceBuilder::addSubDataObject(
        dataObject->attributes, QStringLiteral("phsA"), QStringLiteral("CMV"));
    DataSet *const dataSet =
        DeviceBuilder::newDataSet(QStringLiteral("Events"), 0, {QStringLiteral("a/b$c$d")});
    dataSet->deletable = true;
    logicalNode->dataSetGroup->dataSets.append(dataSet);
    ReportControlBlock *const block =
        DeviceBuilder::addReport(logicalNode, QStringLiteral("brcb01"), QStringLiteral("BR"));

    IEDNode root(&device);
    QCOMPARE(root.name(), QStringLiteral("IED"));
    QCOMPARE((new IEDNode(logicalDevice, &root))->name(), QStringLiteral("IEDPROT"));
    QCOMPARE((new IEDNode(logicalNode, &root))->name(), QStringLiteral("LLN0"));
    QCOMPARE((new IEDNode(dataObject, &root))->name(), QStringLiteral("Mod"));
    QCOMPARE((new IEDNode(logicalNode->settingGroup, &root))->name(), QStringLiteral("SGCB"));
    QCOMPARE((new IEDNode(attribute, &root))->name(), QStringLiteral("stVal"));
    QCOMPARE((new IEDNode(subObject, &root))->name(), QStringLiteral("phsA"));
    QCOMPARE((new IEDNode(logicalNode->dataSetGroup, &root))->name(), QStringLiteral("Data sets"));
    QCOMPARE((new IEDNode(dataSet, &root))->name(), QStringLiteral("Events"));
    QCOMPARE((new IEDNode(dataSet->members.first(), &root))->name(), QStringLiteral("a/b$c$d"));
    QCOMPARE((new IEDNode(logicalNode->reportControls, &root))->name(), QStringLiteral("Reports"));
    QCOMPARE((new IEDNode(block, &root))->name(), QStringLiteral("brcb01"));
}

void tst_IEDNode::theAttributeIsThatOfTheWrappedDao()
{
    PhysicalDevice device;
    QList<DAO *> daos;
    DAO *const attribute = DeviceBuilder::addAttribute(
        daos, QStringLiteral("q"), QStringLiteral("ST"), QStringLiteral("Quality"));
    DAO *const subObject =
        DeviceBuilder::addSubDataObject(daos, QStringLiteral("phsA"), QStringLiteral("CMV"));
    {
        IEDNode root(&device);
        QCOMPARE((new IEDNode(attribute, &root))->dataAttribute(), attribute->attribute);
        QVERIFY(!(new IEDNode(subObject, &root))->dataAttribute());
    }
    qDeleteAll(daos);
}

QTEST_GUILESS_MAIN(tst_IEDNode)
#include "tst_iednode.moc"
