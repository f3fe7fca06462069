// SPDX-License-Identifier: Apache-2.0
#include "iedmodeldelegate.h"

#include "iedmodel.h"
#include "scltemplatestore.h"
#include "valuepresentation.h"

#include <devicemodel/physicaldevice.h>
#include <propertybrowser/numberguard.h>

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace {

constexpr int valueColumn = 1;
constexpr int editorOverlap = 2;

/// Set on a list in which the operator has not chosen yet. The view commits whatever editor it
/// closes, and the entry shown at first need not be the stored value.
const char untouched[] = "untouched";
/// Set on a list that has been on the screen, while it is being committed, and to the entry that
/// was committed last.
const char opened[] = "opened";
const char committing[] = "committing";
const char committed[] = "committed";

/// Set on the entries of a list while the button is down that opened the cell: it would pick what
/// it is let go over.
const char stillPressed[] = "stillPressed";

/// The cell of a line, and set on a line whose text the operator has released.
const char cellOfLine[] = "cell";
const char released[] = "released";

bool isEnter(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool isTab(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
}

/// What the model can read of a line.
QString textOf(const QLineEdit *line)
{
    const NumberGuard *const guard = NumberGuard::of(line);
    return guard ? guard->range().readable(line->text()) : line->text();
}

bool hasFocusInside(const QWidget *editor)
{
    const QWidget *focused = QApplication::focusWidget();
    return focused && (focused == editor || editor->isAncestorOf(focused));
}

bool isEnumerated(const QString &basicType)
{
    return basicType == QLatin1String("Enum") || basicType == QLatin1String("Dbpos") ||
           basicType == QLatin1String("Check");
}

void fillWithBooleans(QComboBox *box, const DataAttribute &attribute)
{
    box->addItem(QStringLiteral("False"), 0);
    box->addItem(QStringLiteral("true"), 1);
    box->setCurrentIndex(attribute.value.toInt() != 0 ? 1 : 0);
}

void fillWithEnumeration(QComboBox *box, const DataAttribute &attribute,
                         const PhysicalDevice &device, const SclTemplateStore &templates)
{
    const int stored = attribute.value.toInt();
    int current = 0;
    const auto addEntry = [&](int ordinal, const QString &text) {
        if (ordinal == stored)
            current = box->count();
        box->addItem(text, ordinal);
    };
    const EnumType enumeration = device.getEnumType(attribute.enumTypeId);
    if (!enumeration.id.isEmpty()) {
        for (auto it = enumeration.values.begin(); it != enumeration.values.end(); ++it)
            addEntry(it.key(), it.value());
    } else {
        const auto entries = templates.entries(attribute.enumTypeId);
        for (const SclTemplateStore::Entry &entry : entries)
            addEntry(entry.ordinal, entry.text);
    }
    box->setCurrentIndex(current);
}

} // namespace

IEDModelDelegate::IEDModelDelegate(const SclTemplateStore *templates, QObject *parent)
    : QItemDelegate(parent)
    , m_templates(templates)
{
}

QWidget *IEDModelDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    IEDNode *const node = index.column() == valueColumn ? IEDModel::nodeAt(index) : nullptr;
    const DataAttribute *const attribute = node ? node->dataAttribute() : nullptr;
    if (!attribute)
        return QItemDelegate::createEditor(parent, option, index);

    const bool isList =
        attribute->basicType == QLatin1String("BOOLEAN") || isEnumerated(attribute->basicType);
    QWidget *const editor =
        isList ? createList(parent, index) : QItemDelegate::createEditor(parent, option, index);
    if (!editor)
        return nullptr;
    editor->setAccessibleName(attribute->reference);
    parent->installEventFilter(const_cast<IEDModelDelegate *>(this));
    if (auto *const line = qobject_cast<QLineEdit *>(editor)) {
        line->setProperty(cellOfLine, QPersistentModelIndex(index));
        if (const auto range = numberRange(attribute->basicType))
            new NumberGuard(*range, line);
    }
    return editor;
}

QWidget *IEDModelDelegate::createList(QWidget *parent, const QModelIndex &index) const
{
    IEDNode *const node = IEDModel::nodeAt(index);
    const DataAttribute &attribute = *node->dataAttribute();
    auto *const box = new QComboBox(parent);
    if (attribute.basicType == QLatin1String("BOOLEAN")) {
        fillWithBooleans(box, attribute);
    } else {
        fillWithEnumeration(box, attribute, *IEDModel::rootNode(node)->physicalDevice(),
                            *m_templates);
    }
    box->setProperty(untouched, true);
    const auto choose = [box] { box->setProperty(untouched, false); };
    const auto activated = QOverload<int>::of(&QComboBox::activated);
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(box, activated, box, choose);
    connect(box, indexChanged, box, choose);
    connect(box, indexChanged, this, &IEDModelDelegate::emitCommitData);
    // Picking the entry that is shown already is a choice as well, be it not the stored value.
    connect(box, activated, this, [this, box](int entry) {
        const QVariant last = box->property(committed);
        if (!last.isValid() || last.toInt() != entry)
            const_cast<IEDModelDelegate *>(this)->commitList(box);
    });
    return box;
}

void IEDModelDelegate::setEditorData(QWidget *, const QModelIndex &) const {}

void IEDModelDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    if (const auto *const box = qobject_cast<const QComboBox *>(editor);
        box && index.column() == valueColumn) {
        if (box->currentIndex() >= 0 && !box->property(untouched).toBool())
            model->setData(index, box->currentData(Qt::UserRole).toInt(), Qt::EditRole);
        return;
    }
    const auto *const line = qobject_cast<const QLineEdit *>(editor);
    if (!line || !line->property(cellOfLine).isValid() || !line->isModified()) {
        QItemDelegate::setModelData(editor, model, index);
        return;
    }
    // The view commits whatever editor it closes, for whatever reason.
    if (line->property(released).toBool())
        model->setData(index, textOf(line), Qt::EditRole);
}

void IEDModelDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &) const
{
    editor->setGeometry(
        option.rect.adjusted(-editorOverlap, -editorOverlap, editorOverlap, editorOverlap));
}

void IEDModelDelegate::emitCommitData()
{
    if (auto *const box = qobject_cast<QComboBox *>(sender()))
        commitList(box);
}

void IEDModelDelegate::commitList(QComboBox *box)
{
    // Whoever writes the value may ask or show a message: the list must outlive that.
    const QPointer<QComboBox> list(box);
    box->setProperty(committed, box->currentIndex());
    box->setProperty(committing, true);
    emit commitData(box);
    if (!list)
        return;
    list->setProperty(committing, false);
    list->setProperty(untouched, true);
    closeLater(list);
}

bool IEDModelDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (auto *const box = qobject_cast<QComboBox *>(watched))
        return filterList(box, event);
    if (auto *const line = qobject_cast<QLineEdit *>(watched);
        line && line->property(cellOfLine).isValid()) {
        return filterLine(line, event);
    }
    auto *const widget = qobject_cast<QWidget *>(watched);
    if (widget && widget->property(stillPressed).isValid()) {
        const bool isRelease = event->type() == QEvent::MouseButtonRelease;
        const bool isFirst = isRelease && widget->property(stillPressed).toBool();
        if (isRelease || event->type() == QEvent::MouseButtonPress)
            widget->setProperty(stillPressed, false);
        return isFirst;
    }
    if (widget && qobject_cast<QAbstractItemView *>(widget->parentWidget()))
        return filterViewport(widget, event);
    if (widget && event->type() == QEvent::Hide) {
        if (auto *const box = qobject_cast<QComboBox *>(widget->parentWidget())) {
            closeLater(box);
            return false;
        }
    }
    return QItemDelegate::eventFilter(watched, event);
}

bool IEDModelDelegate::filterList(QComboBox *box, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        QMetaObject::invokeMethod(
            box, [this, box] { openList(box); }, Qt::QueuedConnection);
        return false;
    case QEvent::Wheel:
        return true;
    case QEvent::KeyPress: {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (isEnter(key) || isTab(key) || key.matches(QKeySequence::Cancel))
            break;
        if (!box->property(opened).toBool())
            return false;
        // A list that was open must not be stepped through behind its back.
        if (box->view()->isVisible())
            QCoreApplication::sendEvent(box->view(), event);
        return true;
    }
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason &&
            !box->view()->isVisible() && !box->property(committing).toBool() &&
            !hasFocusInside(box)) {
            emit closeEditor(box, NoHint);
        }
        return false;
    default:
        break;
    }
    return QItemDelegate::eventFilter(box, event);
}

void IEDModelDelegate::openList(QComboBox *box)
{
    if (!box->isVisible() || box->count() == 0 || box->property(opened).toBool())
        return;
    box->setProperty(opened, true);
    QWidget *const popup = box->view()->parentWidget();
    popup->installEventFilter(this);
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        box->view()->viewport()->setProperty(stillPressed, true);
        box->view()->viewport()->installEventFilter(this);
    }
    if (!box->view()->isVisible())
        box->showPopup();
}

void IEDModelDelegate::closeLater(QComboBox *box)
{
    // A choice is told only after its list was closed.
    QMetaObject::invokeMethod(
        box,
        [this, box] {
            if (!box->property(committing).toBool())
                emit closeEditor(box, NoHint);
        },
        Qt::QueuedConnection);
}

bool IEDModelDelegate::filterLine(QLineEdit *line, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (!isEnter(key) && !isTab(key))
            return QItemDelegate::eventFilter(line, event);
        NumberGuard *const guard = NumberGuard::of(line);
        if (guard && line->isModified() && !guard->confirmed())
            return true;
        line->setProperty(released, true);
        EndEditHint next = SubmitModelCache;
        if (isTab(key))
            next = key.key() == Qt::Key_Tab ? EditNextItem : EditPreviousItem;
        // The line is to be through with the key before the write asks or says something.
        QMetaObject::invokeMethod(
            line,
            [this, line = QPointer<QLineEdit>(line), next] {
                emit commitData(line);
                if (line)
                    emit closeEditor(line, next);
            },
            Qt::QueuedConnection);
        return isTab(key);
    }
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        // With its window, which may be shown again.
        QMetaObject::invokeMethod(
            line, [this, line] { emit closeEditor(line, NoHint); }, Qt::QueuedConnection);
        return false;
    }
    if (event->type() != QEvent::FocusOut)
        return QItemDelegate::eventFilter(line, event);

    const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
    const QWidget *const view = line->parentWidget()->parentWidget();
    const bool isClickInView =
        reason == Qt::MouseFocusReason && QApplication::focusWidget() == view;
    const bool isStill = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    // Of a click in the view the press follows, and with it which button it was.
    if (!isClickInView && !isStill && !hasFocusInside(line))
        emit closeEditor(line, NoHint);
    return false;
}

bool IEDModelDelegate::filterViewport(QWidget *viewport, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        if (m_refusedLine) {
            m_refusedLine->setFocus();
            if (NumberGuard *const guard = NumberGuard::of(m_refusedLine))
                guard->tell(m_refusal);
            m_refusedLine.clear();
            return true;
        }
        sendPending();
        return false;
    }
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    const auto lines = viewport->findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    for (QLineEdit *line : lines) {
        if (!line->isVisible() || !line->property(cellOfLine).isValid())
            continue;
        if (static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton || !line->isModified()) {
            emit closeEditor(line, NoHint);
            continue;
        }
        NumberGuard *const guard = NumberGuard::of(line);
        m_refusal = guard ? guard->faultAtEnd() : QString();
        if (!m_refusal.isEmpty()) {
            m_refusedLine = line;
            return true;
        }
        // What the write asks or says must not come in the middle of the click.
        m_pendingCell = line->property(cellOfLine).value<QPersistentModelIndex>();
        m_pendingText = textOf(line);
        emit closeEditor(line, NoHint);
    }
    return false;
}

void IEDModelDelegate::sendPending()
{
    const QPersistentModelIndex cell = m_pendingCell;
    m_pendingCell = QPersistentModelIndex();
    if (!cell.isValid())
        return;
    QMetaObject::invokeMethod(
        this,
        [cell, text = m_pendingText] {
            if (cell.isValid()) {
                const_cast<QAbstractItemModel *>(cell.model())->setData(cell, text, Qt::EditRole);
            }
        },
        Qt::QueuedConnection);
}
