// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtWidgets/QItemDelegate>

class SclTemplateStore;

/// Editor of the device tree's value cells: a list of the allowed values for booleans and
/// enumerations, a line for anything else. Picking an entry of a list commits it at once. Every
/// line editor opens empty, and an edit left empty is dropped by the model. GUI thread.
class IEDModelDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    /// For views on an IEDModel. `templates` outlives the delegate.
    explicit IEDModelDelegate(const SclTemplateStore *templates, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    /// Does nothing: a list is filled when it is created, and stays as it is while values change.
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;

    /// Hand the code of a list's current entry to the model; nothing for a list without one, or one
    /// in which nothing was chosen.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

public slots:
    /// Commit the list that sent the signal.
    void emitCommitData();

private:
    const SclTemplateStore *m_templates;
};
