// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QSet>
#include <QtWidgets/QTreeView>

struct IEDNode;

/// The tree view of the browser, on an IEDModel: what a QTreeView does, in a time that grows with
/// what is on the screen and not with what is expanded.
///
/// Values that change are taken together and repainted in the next round of the event loop, and
/// only those that are on the screen. F2 edits the value of the current row, whichever of its cells
/// is the current one. The value column grows once for the times that it has to show. GUI thread.
class DeviceTree : public QTreeView
{
    Q_OBJECT

public:
    explicit DeviceTree(QWidget *parent = nullptr);

    /// Collapse an index and all below it, the deepest first, and lay the tree out once.
    void collapseRecursively(const QModelIndex &index);

    /// Let the value column show the times right below an index, which has been expanded, or
    /// anywhere below it.
    void makeRoomForTimes(const QModelIndex &index, bool anywhereBelow = false);

    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = {}) override;

    using QTreeView::edit;

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;

private:
    void showChangedValues();
    void makeRoomFor(const IEDNode *node);

    QSet<const void *> m_changed; ///< nodes whose value has changed; only compared
    int m_timeLength = 0;         ///< of the longest time that the value column was made to fit
};
