// SPDX-License-Identifier: Apache-2.0
#include "devicetree.h"

#include "model/iedmodel.h"

#include <devicemodel/dataobject.h>

#include <QtWidgets/QStyle>

#include <functional>

namespace {

constexpr int valueColumn = 1;

/// As long as a time is that its device does not call in question.
const QString anyTime = QStringLiteral("2000-00-00T00:00:00.000000Z");

bool isTime(const IEDNode *node)
{
    const DataAttribute *const attribute = node->dataAttribute();
    return attribute && attribute->basicType == QLatin1String("Timestamp");
}

} // namespace

DeviceTree::DeviceTree(QWidget *parent)
    : QTreeView(parent)
{
}

void DeviceTree::collapseRecursively(const QModelIndex &index)
{
    const std::function<void(const QModelIndex &)> collapseFrom = [&](const QModelIndex &each) {
        for (int row = 0; row < model()->rowCount(each); ++row)
            collapseFrom(model()->index(row, 0, each));
        collapse(each);
    };
    // Without a layout to keep right, a node is collapsed without a look at the others.
    scheduleDelayedItemsLayout();
    collapseFrom(index.siblingAtColumn(0));
    executeDelayedItemsLayout();
}

void DeviceTree::makeRoomForTimes(const QModelIndex &index, bool anywhereBelow)
{
    const IEDNode *const node = IEDModel::nodeAt(index);
    if (!node)
        return;
    const std::function<void(const IEDNode *)> look = [&](const IEDNode *above) {
        for (const IEDNode *child : above->children) {
            makeRoomFor(child);
            if (anywhereBelow)
                look(child);
        }
    };
    look(node);
}

void DeviceTree::makeRoomFor(const IEDNode *node)
{
    if (!isTime(node))
        return;
    const QString text = node->dataAttribute()->value.toString();
    const QString &longest = text.size() > anyTime.size() ? text : anyTime;
    // Once: a width that the operator has chosen since then stays.
    if (longest.size() <= m_timeLength)
        return;
    m_timeLength = longest.size();
    // The delegate asks for room beside a text on both sides, and the view for its grid.
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const int width = fontMetrics().horizontalAdvance(longest) + 4 * margin + 1;
    if (columnWidth(valueColumn) < width)
        setColumnWidth(valueColumn, width);
}

void DeviceTree::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                             const QVector<int> &roles)
{
    if (topLeft != bottomRight || topLeft.column() != valueColumn) {
        QTreeView::dataChanged(topLeft, bottomRight, roles);
        return;
    }
    // The view looks for each index among all that is expanded: not for one that nobody sees.
    if (m_changed.isEmpty())
        QMetaObject::invokeMethod(this, &DeviceTree::showChangedValues, Qt::QueuedConnection);
    m_changed.insert(topLeft.internalPointer());
}

void DeviceTree::showChangedValues()
{
    const QSet<const void *> changed = std::move(m_changed);
    m_changed.clear();
    QModelIndex row = indexAt(QPoint(0, 0)).siblingAtColumn(0);
    for (; row.isValid() && visualRect(row).top() < viewport()->height(); row = indexBelow(row)) {
        if (!changed.contains(row.internalPointer()))
            continue;
        makeRoomFor(IEDModel::nodeAt(row));
        const QModelIndex value = row.siblingAtColumn(valueColumn);
        QTreeView::dataChanged(value, value);
    }
}

bool DeviceTree::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const QModelIndex value = index.siblingAtColumn(valueColumn);
    if (trigger == EditKeyPressed && value != index && value.flags().testFlag(Qt::ItemIsEditable)) {
        setCurrentIndex(value);
        return QTreeView::edit(value, trigger, event);
    }
    return QTreeView::edit(index, trigger, event);
}
