// SPDX-License-Identifier: Apache-2.0
#include "propertydelegate.h"

#include "propertyeditors.h"
#include "qtproperty.h"
#include "qtvarianteditorfactory.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

#include <utility>

namespace {

/// Room for an editor inside the row, so that nothing of its text is cut.
constexpr int rowMargin = 8;

bool endsEditing(QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab ||
           key == Qt::Key_Backtab;
}

} // namespace

PropertyDelegate::PropertyDelegate(Lookup lookup, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_lookup(std::move(lookup))
{
}

QWidget *PropertyDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &index) const
{
    const Target target = m_lookup(index);
    if (!target.factory)
        return nullptr;
    QWidget *editor =
        target.factory->createEditor(target.property->propertyManager(), target.property, parent);
    if (editor) {
        editor->setAccessibleName(target.property->propertyName());
        m_openFactory = target.factory;
        emit accepted();
    }
    return editor;
}

void PropertyDelegate::setEditorData(QWidget *, const QModelIndex &) const
{
    // The factory has filled the editor; a change of the value from elsewhere must not overwrite
    // what the operator is typing.
}

void PropertyDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                    const QModelIndex &index) const
{
    const Target target = m_lookup(index);
    if (!target.factory)
        return;
    QString sentence;
    if (target.factory->holdsValue(editor, &sentence)) {
        target.factory->commit(editor, target.property->propertyManager(), target.property);
        emit accepted();
    } else {
        emit refused(
            tr("%1 \"%2\" keeps its value.").arg(sentence, target.property->propertyName()));
    }
}

QSize PropertyDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(qMax(size.height(), option.fontMetrics.height() + rowMargin));
    return size;
}

bool PropertyDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *editor = qobject_cast<QWidget *>(object);
    if (editor && m_openFactory && endsEditing(event)) {
        QString sentence;
        if (!m_openFactory->holdsValue(editor, &sentence)) {
            if (auto *told = dynamic_cast<PropertyEditor *>(editor))
                told->acknowledge();
            emit refused(sentence);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}
