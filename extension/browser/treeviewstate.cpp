// SPDX-License-Identifier: Apache-2.0
#include "treeviewstate.h"

#include "model/iednode.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

namespace {

/// Kind and name tell siblings apart; the separator occurs in no name.
QString childPath(const QString &parentPath, const QModelIndex &index)
{
    const auto *node = static_cast<const IEDNode *>(index.internalPointer());
    return parentPath + QChar(QChar::LineFeed) + QString::number(node->type) + node->name();
}

template <typename Visit>
void visitChildren(const QAbstractItemModel &model, const QModelIndex &parent,
                   const QString &parentPath, Visit visit)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (!index.internalPointer())
            return;
        const QString path = childPath(parentPath, index);
        // Only what could be seen has a state: below a collapsed node there is nothing to keep.
        if (visit(index, path))
            visitChildren(model, index, path, visit);
    }
}

} // namespace

TreeViewState::TreeViewState(const QTreeView &view)
    : m_horizontal(view.horizontalScrollBar()->value())
    , m_vertical(view.verticalScrollBar()->value())
{
    const QModelIndex current = view.currentIndex().sibling(view.currentIndex().row(), 0);
    visitChildren(*view.model(), {}, {}, [&](const QModelIndex &index, const QString &path) {
        if (index == current)
            m_current = path;
        const bool expanded = view.isExpanded(index);
        if (expanded)
            m_expanded.insert(path);
        return expanded;
    });
}

void TreeViewState::restore(QTreeView &view) const
{
    QModelIndex current;
    {
        const QSignalBlocker quiet(&view);
        visitChildren(*view.model(), {}, {}, [&](const QModelIndex &index, const QString &path) {
            if (path == m_current)
                current = index;
            const bool expanded = m_expanded.contains(path);
            if (expanded)
                view.expand(index);
            return expanded;
        });
    }
    if (current.isValid())
        view.setCurrentIndex(current);
    // The scroll bars have their ranges only after the layout.
    view.doItemsLayout();
    view.horizontalScrollBar()->setValue(m_horizontal);
    view.verticalScrollBar()->setValue(m_vertical);
}
