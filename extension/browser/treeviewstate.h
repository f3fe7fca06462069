// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>

class QTreeView;

/// What an operator sees of a tree - what is expanded, the current item, the scroll position - kept
/// over a reset of its IEDModel. Nodes are found again by their names from the root down.
class TreeViewState
{
public:
    explicit TreeViewState(const QTreeView &view);

    /// Bring the view back to the state; what no longer exists is passed over.
    void restore(QTreeView &view) const;

private:
    QSet<QString> m_expanded;
    QString m_current;
    int m_horizontal;
    int m_vertical;
};
