// SPDX-License-Identifier: Apache-2.0
#include "treefinder.h"

#include "nodereferences.h"

#include "model/iedmodel.h"

#include <devicemodel/dataobject.h>

#include <QtCore/QStringMatcher>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace {

/// All nodes that a text names, in the order of a tree that is wholly expanded. A path grows with
/// the way down instead of being put together for each node, since a device may have many.
class Search
{
public:
    explicit Search(const QString &text)
        : m_text(text, Qt::CaseInsensitive)
    {
    }

    QVector<const IEDNode *> from(const IEDNode *root)
    {
        visit(root, 0, 0);
        return m_found;
    }

private:
    bool isNamed(const QString &text) const { return m_text.indexIn(text) >= 0; }

    bool matches(const IEDNode *node) const
    {
        if (isNamed(node->type == DataObjectNode || node->type == DataAttributeNode ? m_path
                                                                                    : node->name()))
            return true;
        if (const DataAttribute *const attribute = node->dataAttribute()) {
            return attribute->reference.startsWith(m_logicalDevice) ? isNamed(attribute->reference)
                                                                    : isNamed(fullReference(node));
        }
        return node->type != DataObjectNode && node->type != DataAttributeNode &&
               isNamed(fullReference(node));
    }

    /// `above` is the length of the parent's path, `farther` that of the path above the parent.
    void visit(const IEDNode *node, int above, int farther)
    {
        int begin = above;
        switch (node->type) {
        case LogicalDeviceNode:
            m_path = node->name();
            m_logicalDevice = m_path + QLatin1Char('/');
            break;
        case LogicalNodeNode:
            m_path = m_logicalDevice + node->name();
            break;
        case DataObjectNode:
        case DataAttributeNode: {
            // An array element bears the array's name already.
            const QString name = node->name();
            if (name.startsWith(node->parent->name() + QLatin1Char('(')))
                begin = farther;
            m_path.truncate(begin);
            m_path.append(QLatin1Char('.')).append(name);
            break;
        }
        default:
            break;
        }
        if (matches(node))
            m_found.append(node);
        const int length = m_path.size();
        for (const IEDNode *child : node->children)
            visit(child, length, begin);
    }

    const QStringMatcher m_text;
    QString m_path;
    QString m_logicalDevice;
    QVector<const IEDNode *> m_found;
};

int depthOf(const IEDNode *node)
{
    int depth = 0;
    for (; node->parent; node = node->parent)
        ++depth;
    return depth;
}

/// Whether a node stands before another one of its tree.
bool isBefore(const IEDNode *one, const IEDNode *other)
{
    const int oneDepth = depthOf(one);
    const int otherDepth = depthOf(other);
    for (int depth = oneDepth; depth > otherDepth; --depth)
        one = one->parent;
    for (int depth = otherDepth; depth > oneDepth; --depth)
        other = other->parent;
    if (one == other)
        return oneDepth < otherDepth;
    while (one->parent != other->parent) {
        one = one->parent;
        other = other->parent;
    }
    return one->row < other->row;
}

} // namespace

TreeFinder::TreeFinder(QTreeView *view, QWidget *parent)
    : QWidget(parent)
    , m_view(view)
    , m_text(new QLineEdit(this))
    , m_result(new QLabel(tr("Not found"), this))
{
    m_text->setPlaceholderText(tr("Find by name or reference"));
    m_text->setAccessibleName(m_text->placeholderText());
    m_text->setMinimumWidth(280);
    m_result->hide();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_result);

    connect(m_text, &QLineEdit::textEdited, this, [this] { find(Direction::Forward, true); });
    connect(m_view->model(), &QAbstractItemModel::modelAboutToBeReset, this, &TreeFinder::forget);
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
    const IEDNode *root = IEDModel::nodeAt(model->index(0, 0));
    const QString text = m_text->text();
    if (text.isEmpty() || !root) {
        m_result->hide();
        return;
    }
    if (text != m_searched) {
        m_found = Search(text).from(root);
        m_searched = text;
    }
    m_result->show();
    if (m_found.isEmpty()) {
        m_result->setText(tr("Not found"));
        return;
    }

    const IEDNode *current = IEDModel::nodeAt(m_view->currentIndex());
    const auto first = m_found.cbegin();
    const auto last = m_found.cend();
    auto match = std::lower_bound(first, last, current ? current : root, isBefore);
    if (direction == Direction::Backward)
        match = (match == first ? last : match) - 1;
    else if (!includingCurrent && match != last && *match == current)
        ++match;
    if (match == last)
        match = first;

    m_result->setText(tr("%1 of %2").arg(match - first + 1).arg(m_found.size()));
    const QModelIndex index = model->indexOf(*match);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void TreeFinder::forget()
{
    m_found.clear();
    m_searched.clear();
    m_result->hide();
}

void TreeFinder::copyReference() const
{
    if (const IEDNode *node = IEDModel::nodeAt(m_view->currentIndex()))
        QGuiApplication::clipboard()->setText(fullReference(node));
}
