// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QStyledItemDelegate>

#include <functional>

class QtProperty;
class QtVariantEditorFactory;

/// Opens, commits and cancels the editors of a property tree's value column.
class PropertyDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// What an index shows, and the factory of its editor, null when it cannot be edited.
    struct Target
    {
        QtProperty *property = nullptr;
        QtVariantEditorFactory *factory = nullptr;
    };
    using Lookup = std::function<Target(const QModelIndex &)>;

    PropertyDelegate(Lookup lookup, QObject *parent);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

signals:
    /// An editor was opened or its content taken: an earlier refusal is history.
    void accepted() const;
    /// What stands in the editor is no value; `sentence` says what is expected.
    void refused(const QString &sentence) const;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    Lookup m_lookup;
    mutable QPointer<QtVariantEditorFactory> m_openFactory;
};
