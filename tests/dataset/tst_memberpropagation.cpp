// SPDX-License-Identifier: Apache-2.0
#include <rapidcheck.h>

#include "dataset/datasetselectwidget.h"
#include "model/devicebuilder.h"

#include <QtCore/QSet>
#include <QtTest/QTest>
#include <QtWidgets/QTreeWidget>

#include <memory>
#include <vector>

using namespace DeviceBuilder;

namespace {

using Items = std::vector<QTreeWidgetItem *>;

const QStringList constraints = {"ST", "MX", "CF"};
constexpr int kindsOfStep = 16;
constexpr int recipeCodes = kindsOfStep * 3;

/// Builds a device from any codes: each adds something to what the ones before have made.
std::unique_ptr<PhysicalDevice> makeDevice(const std::vector<int> &recipe)
{
    auto device = std::make_unique<PhysicalDevice>();
    LogicalNode *node = addLogicalNode(addLogicalDevice(*device, "LD"), "GGIO", "GGIO");
    DataObject *object = addDataObject(node, "Object", "X");
    addAttribute(object->attributes, "first", "ST", "INT32");
    QList<QList<DAO *> *> branch = {&object->attributes};
    int number = 0;
    for (const int code : recipe) {
        const QString name = QStringLiteral("n%1").arg(++number);
        const QString &constraint = constraints.at(code / kindsOfStep);
        switch (code % kindsOfStep) {
        case 0:
            node = addLogicalNode(addLogicalDevice(*device, name), "GGIO", "GGIO");
            object = addDataObject(node, "Object", "X");
            branch = {&object->attributes};
            break;
        case 1:
            node = addLogicalNode(device->logicalDevices.last(), "GGIO", name);
            object = addDataObject(node, "Object", "X");
            branch = {&object->attributes};
            break;
        case 2:
        case 3:
            object = addDataObject(node, name, "X");
            branch = {&object->attributes};
            break;
        case 4:
        case 5:
        case 6:
            branch << &addAttribute(*branch.last(), name, constraint, "Struct")->children;
            break;
        case 7:
            branch << &addSubDataObject(*branch.last(), name, "Y")->children;
            break;
        case 8:
        case 9:
            if (branch.size() > 1)
                branch.removeLast();
            break;
        default:
            addAttribute(*branch.last(), name, constraint, "INT32");
        }
    }
    return device;
}

bool hasCheckBox(const QTreeWidgetItem *item)
{
    return item->flags().testFlag(Qt::ItemIsUserCheckable);
}

void gather(QTreeWidgetItem *item, Items &checkable)
{
    if (hasCheckBox(item))
        checkable.push_back(item);
    for (int row = 0; row < item->childCount(); ++row)
        gather(item->child(row), checkable);
}

void gatherLeaves(const QTreeWidgetItem *item, QSet<const QTreeWidgetItem *> &leaves)
{
    if (item->childCount() == 0)
        leaves.insert(item);
    for (int row = 0; row < item->childCount(); ++row)
        gatherLeaves(item->child(row), leaves);
}

QSet<const QTreeWidgetItem *> leavesOf(const QTreeWidgetItem *item)
{
    QSet<const QTreeWidgetItem *> leaves;
    gatherLeaves(item, leaves);
    return leaves;
}

/// What an item's own leaves say of it.
Qt::CheckState expectedState(const QTreeWidgetItem *item,
                             const QSet<const QTreeWidgetItem *> &ticked)
{
    const QSet<const QTreeWidgetItem *> leaves = leavesOf(item);
    if (ticked.contains(leaves))
        return Qt::Checked;
    return ticked.intersects(leaves) ? Qt::PartiallyChecked : Qt::Unchecked;
}

Qt::CheckState stateByChildren(const QTreeWidgetItem *item)
{
    int checked = 0;
    int unchecked = 0;
    for (int row = 0; row < item->childCount(); ++row) {
        checked += item->child(row)->checkState(0) == Qt::Checked ? 1 : 0;
        unchecked += item->child(row)->checkState(0) == Qt::Unchecked ? 1 : 0;
    }
    if (checked == item->childCount())
        return Qt::Checked;
    return unchecked == item->childCount() ? Qt::Unchecked : Qt::PartiallyChecked;
}

QString referenceOf(const QTreeWidgetItem *item)
{
    QStringList names;
    for (; item; item = item->parent())
        names.prepend(item->text(0));
    const QString logicalDevice = names.takeFirst();
    return logicalDevice + QLatin1Char('/') + names.join(QLatin1Char('$'));
}

} // namespace

class tst_MemberPropagation : public QObject
{
    Q_OBJECT

private slots:
    void marksAndMembersAgreeWithTheTickedLeavesAfterAnyClicks();
};

void tst_MemberPropagation::marksAndMembersAgreeWithTheTickedLeavesAfterAnyClicks()
{
    int partialMarksSeen = 0;
    int membersSeen = 0;

    const auto anyOf = [](int count) {
        return rc::gen::container<std::vector<int>>(
            rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, count)));
    };
    const auto property = [&] {
        const std::vector<int> recipe = *anyOf(recipeCodes);
        const std::vector<int> clicks = *anyOf(10000);
        const std::unique_ptr<PhysicalDevice> device = makeDevice(recipe);
        DatasetSelectWidget picker(nullptr);
        picker.setDevice(device.get());
        auto *tree = picker.findChild<QTreeWidget *>();
        Items items;
        for (int row = 0; row < tree->topLevelItemCount(); ++row)
            gather(tree->topLevelItem(row), items);

        QSet<const QTreeWidgetItem *> ticked;
        for (const int click : clicks) {
            QTreeWidgetItem *item = items.at(static_cast<std::size_t>(click) % items.size());
            if (expectedState(item, ticked) == Qt::Checked)
                ticked.subtract(leavesOf(item));
            else
                ticked.unite(leavesOf(item));
            tree->setCurrentItem(item);
            QTest::keyClick(tree, Qt::Key_Space);

            for (const QTreeWidgetItem *shown : items) {
                RC_ASSERT(shown->checkState(0) == expectedState(shown, ticked));
                if (shown->childCount() > 0)
                    RC_ASSERT(shown->checkState(0) == stateByChildren(shown));
                partialMarksSeen += shown->checkState(0) == Qt::PartiallyChecked ? 1 : 0;
            }
        }

        // Nothing above a member is ticked as a whole, and every ticked leaf is below one member.
        const QStringList members = picker.members();
        QStringList expected;
        QSet<const QTreeWidgetItem *> covered;
        for (const QTreeWidgetItem *item : items) {
            if (expectedState(item, ticked) != Qt::Checked ||
                (hasCheckBox(item->parent()) &&
                 expectedState(item->parent(), ticked) == Qt::Checked))
                continue;
            expected << referenceOf(item);
            RC_ASSERT(!covered.intersects(leavesOf(item)));
            covered.unite(leavesOf(item));
        }
        RC_ASSERT(members == expected);
        RC_ASSERT(covered == ticked);
        membersSeen += members.size();
    };

    QVERIFY(rc::check("marks and members agree with the ticked leaves", property));
    QVERIFY2(partialMarksSeen > 100, "the trees were too small to show anything");
    QVERIFY2(membersSeen > 100, "too few members were picked to show anything");
}

QTEST_MAIN(tst_MemberPropagation)
#include "tst_memberpropagation.moc"
