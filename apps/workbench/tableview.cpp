// SPDX-License-Identifier: Apache-2.0
#include "tableview.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>

TableView::TableView(QWidget *parent)
    : QTreeView(parent)
{
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);

    auto *copy = new QAction(tr("&Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    addAction(copy);
    connect(copy, &QAction::triggered, this, [this] {
        if (const QString text = selectedText(); !text.isEmpty())
            QGuiApplication::clipboard()->setText(text);
    });
}

void TableView::setPlaceholder(const QString &text)
{
    m_placeholder = text;
    viewport()->update();
}

void TableView::setUsualWidth(int column, int width)
{
    header()->resizeSection(column, qMax(width, header()->sectionSizeHint(column)));
}

void TableView::followNewest()
{
    connect(model(), &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        m_showedNewest = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    });
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this] {
        if (m_showedNewest)
            scrollToBottom();
    });
}

QString TableView::selectedText() const
{
    if (!selectionModel())
        return {};
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QString lines;
    for (const QModelIndex &row : qAsConst(rows)) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column)
            cells << row.sibling(row.row(), column).data().toString();
        lines += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return lines;
}

void TableView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_placeholder.isEmpty() || (model() && model()->rowCount() > 0))
        return;
    constexpr int margin = 12;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}
