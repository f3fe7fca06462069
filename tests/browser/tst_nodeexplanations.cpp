// SPDX-License-Identifier: Apache-2.0
#include "browserfixture.h"

#include "browser/nodeexplanations.h"
#include "model/iedmodel.h"
#include "model/sclexplanations.h"

#include <QtGui/QHelpEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>

namespace {

/// The first node that a function accepts, from this one down.
template <typename Accept>
const IEDNode *findNode(const IEDNode *node, Accept accept)
{
    if (accept(node))
        return node;
    for (const IEDNode *child : node->children) {
        if (const IEDNode *found = findNode(child, accept))
            return found;
    }
    return nullptr;
}

} // namespace

class tst_NodeExplanations : public QObject
{
    Q_OBJECT

private slots:
    void aClassItsDataAndTheirAttributesAreExplained();
    void theEnumerationOfTheDeviceIsShown();
    void anAttributeOfASubDataObjectIsExplained();
    void otherNodesHaveNoTip();
    void theTreeShowsTheTipUnderThePointer();
    void theModelAnswersNoTipOfItsOwn();
};

void tst_NodeExplanations::aClassItsDataAndTheirAttributesAreExplained()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const SclExplanations explanations;
    const IEDNode *const root = IEDModel::nodeAt(BrowserFixture::tree(*view)->model()->index(0, 0));
    const IEDNode *const breaker = findNode(root, [](const IEDNode *node) {
        return node->logicalNode() && node->logicalNode()->lnClass == "XCBR";
    });
    QVERIFY(breaker);
    QVERIFY(nodeExplanation(breaker, explanations)
                .contains(explanations.logicalNodeClass("XCBR").toHtmlEscaped()));
    const IEDNode *const position = findNode(
        breaker, [](const IEDNode *node) { return node->dataObject() && node->name() == "Pos"; });
    QVERIFY(position);
    QVERIFY(nodeExplanation(position, explanations).contains("Data type: DPC"));
    const IEDNode *const status = findNode(position, [](const IEDNode *node) {
        return node->dataAttribute() && node->name() == "stVal";
    });
    QVERIFY(status);
    const QString tip = nodeExplanation(status, explanations);
    QVERIFY(tip.contains("Functional constraint: ST"));
    QVERIFY(tip.contains("2 = on"));
}

void tst_NodeExplanations::theEnumerationOfTheDeviceIsShown()
{
    PhysicalDevice device;
    EnumType own;
    own.id = QStringLiteral("OwnBehaviour");
    own.values = {{1, QStringLiteral("awake")}, {2, QStringLiteral("asleep")}};
    device.enumTypes.insert(own.id, own);
    LogicalNode logicalNode;
    logicalNode.lnClass = logicalNode.name = QStringLiteral("LLN0");
    DataObject behaviour;
    behaviour.name = QStringLiteral("Beh");
    behaviour.type = QStringLiteral("ENS");
    DAO status;
    status.attribute = new DataAttribute;
    status.attribute->name = QStringLiteral("stVal");
    status.attribute->fc = QStringLiteral("ST");
    status.attribute->basicType = QStringLiteral("Enum");
    status.attribute->enumTypeId = own.id;

    IEDNode root(&device);
    LogicalDevice logicalDevice;
    auto *const deviceNode = new IEDNode(&logicalDevice, &root);
    auto *const classNode = new IEDNode(&logicalNode, deviceNode);
    auto *const objectNode = new IEDNode(&behaviour, classNode);
    const auto *const node = new IEDNode(&status, objectNode);
    const SclExplanations explanations;
    QVERIFY(nodeExplanation(node, explanations).contains("Values: 1 = awake, 2 = asleep"));
}

void tst_NodeExplanations::anAttributeOfASubDataObjectIsExplained()
{
    LogicalNode logicalNode;
    logicalNode.lnClass = QStringLiteral("MMXU");
    DataObject current;
    current.name = QStringLiteral("A");
    current.type = QStringLiteral("WYE");
    DAO phase;
    phase.subDataObject = new SubDataObject{QStringLiteral("phsA"), QStringLiteral("CMV")};
    DAO value;
    value.attribute = new DataAttribute;
    value.attribute->name = QStringLiteral("cVal");
    value.attribute->fc = QStringLiteral("MX");
    value.attribute->basicType = QStringLiteral("Struct");

    PhysicalDevice device;
    IEDNode root(&device);
    auto *const classNode = new IEDNode(&logicalNode, &root);
    auto *const objectNode = new IEDNode(&current, classNode);
    auto *const phaseNode = new IEDNode(&phase, objectNode);
    const auto *const valueNode = new IEDNode(&value, phaseNode);
    const SclExplanations explanations;
    QVERIFY(nodeExplanation(phaseNode, explanations).contains("Data type: CMV"));
    QVERIFY(nodeExplanation(valueNode, explanations).contains("Data type: Vector"));
}

void tst_NodeExplanations::otherNodesHaveNoTip()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const SclExplanations explanations;
    const IEDNode *const root = IEDModel::nodeAt(BrowserFixture::tree(*view)->model()->index(0, 0));
    QVERIFY(nodeExplanation(nullptr, explanations).isEmpty());
    QVERIFY(nodeExplanation(root, explanations).isEmpty());
    for (const IEDNodeType type :
         {LogicalDeviceNode, DataSetNode, DataSetMemberNode, ReportControlNode, SettingGroupNode}) {
        const IEDNode *const node =
            findNode(root, [type](const IEDNode *candidate) { return candidate->type == type; });
        QVERIFY2(node, qPrintable(QString::number(type)));
        QVERIFY(nodeExplanation(node, explanations).isEmpty());
    }
}

void tst_NodeExplanations::theTreeShowsTheTipUnderThePointer()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    QTreeView *const tree = BrowserFixture::tree(*view);
    const IEDNode *const breaker =
        findNode(IEDModel::nodeAt(tree->model()->index(0, 0)), [](const IEDNode *node) {
            return node->logicalNode() && node->logicalNode()->lnClass == "XCBR";
        });
    QVERIFY(breaker);
    const auto *const model = qobject_cast<const IEDModel *>(tree->model());
    QVERIFY(model);
    const QModelIndex index = model->indexOf(breaker);
    tree->scrollTo(index);
    const QPoint position = tree->visualRect(index).center();
    QHelpEvent event(QEvent::ToolTip, position, tree->viewport()->mapToGlobal(position));
    QVERIFY(QCoreApplication::sendEvent(tree->viewport(), &event));
    const SclExplanations explanations;
    QCOMPARE(QToolTip::text(), nodeExplanation(breaker, explanations));
    QToolTip::hideText();
}

void tst_NodeExplanations::theModelAnswersNoTipOfItsOwn()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const QAbstractItemModel *const model = BrowserFixture::tree(*view)->model();
    for (int column = 0; column < model->columnCount(); ++column)
        QVERIFY(!model->index(0, column).data(Qt::ToolTipRole).isValid());
}

QTEST_MAIN(tst_NodeExplanations)
#include "tst_nodeexplanations.moc"
