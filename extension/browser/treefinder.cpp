// SPDX-License-Identifier: Apache-2.0
#include "treefinder.h"

#include "nodereferences.h"

#include "model/iedmodel.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

namespace {

const IEDNode *lastBelow(const IEDNode *node)
{
    while (!node->children.isEmpty())
        node = node->children.last();
    return node;
}

/// The node after this one in the order of a tree that is wholly expanded; the root after the last.
const IEDNode *following(const IEDNode *node)
{
    if (!node->children.isEmpty())
        return node->children.first();
    while (node->parent) {
        if (node->row + 1 < node->parent->children.size())
            return node->parent->children.at(node->row + 1);
        node = node->parent;
    }
    return node;
}

/// The node before this one, likewise.
const IEDNode *preceding(const IEDNode *node)
{
    if (!node->parent)
        return lastBelow(node);
    return node->row > 0 ? lastBelow(node->parent->children.at(node->row - 1)) : node->parent;
}

bool matches(const IEDNode *node, const QString &text)
{
    return node->name().contains(text, Qt::CaseInsensitive) ||
           fullReference(node).contains(text, Qt::CaseInsensitive);
}

} // namespace

TreeFinder::TreeFinder(QTreeView *view, QWidget *parent)
    : QWidget(parent)
    , m_view(view)
    , m_text(new QLineEdit(this))
    , m_notFound(new QLabel(tr("Not found"), this))
{
    m_text->setPlaceholderText(tr("Find by name or reference"));
    m_text->setAccessibleName(m_text->placeholderText());
    m_text->setMinimumWidth(280);
    m_notFound->hide();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_notFound);

    connect(m_text, &QLineEdit::textEdited, this, [this] { find(Direction::Forward, true); });
    m_view->installEventFilter(this);
    m_text->installEventFilter(this);
    hide();
}

bool TreeFinder::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (watched == m_view ? handleTreeKey(*key) : handleLineKey(*key))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool TreeFinder::handleTreeKey(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Find)) {
        open();
        return true;
    }
    if (event.matches(QKeySequence::Copy)) {
        copyReference();
        return true;
    }
    return false;
}

bool TreeFinder::handleLineKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        find(event.modifiers().testFlag(Qt::ShiftModifier) ? Direction::Backward
                                                           : Direction::Forward,
             false);
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return false;
    }
}

void TreeFinder::open()
{
    show();
    m_text->selectAll();
    m_text->setFocus(Qt::ShortcutFocusReason);
}

void TreeFinder::close()
{
    hide();
    m_view->setFocus(Qt::OtherFocusReason);
}

void TreeFinder::find(Direction direction, bool includingCurrent)
{
    const auto *model = static_cast<const IEDModel *>(m_view->model());
    const QString text = m_text->text();
    const IEDNode *start = IEDModel::nodeAt(m_view->currentIndex());
    if (!start)
        start = IEDModel::nodeAt(model->index(0, 0));
    if (text.isEmpty() || !start) {
        m_notFound->hide();
        return;
    }

    const IEDNode *node = start;
    bool found = includingCurrent && matches(node, text);
    while (!found) {
        node = direction == Direction::Forward ? following(node) : preceding(node);
        found = matches(node, text);
        if (node == start)
            break;
    }
    m_notFound->setVisible(!found);
    if (found) {
        const QModelIndex index = model->indexOf(node);
        m_view->setCurrentIndex(index);
        m_view->scrollTo(index);
    }
}

void TreeFinder::copyReference() const
{
    if (const IEDNode *node = IEDModel::nodeAt(m_view->currentIndex()))
        QGuiApplication::clipboard()->setText(fullReference(node));
}
