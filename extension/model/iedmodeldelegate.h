// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QItemDelegate>

class QComboBox;
class QLineEdit;
class SclTemplateStore;

/// Editor of the device tree's value cells: a list of the allowed values for booleans and
/// enumerations, a line for anything else. Every line editor opens empty, and an edit left empty is
/// dropped by the model.
///
/// An edit is a command to a device, so nothing is committed in passing. A list opens with its
/// cell, only picking an entry commits it, at once, and a list that is closed without a choice
/// takes its editor with it. What was typed into a line is committed by Enter, Tab, or a click with
/// the left button elsewhere in the same view; when anything else takes the focus it is dropped,
/// and kept while only another window is active. A number is watched by a NumberGuard. GUI thread.
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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *createList(QWidget *parent, const QModelIndex &index) const;
    bool filterList(QComboBox *box, QEvent *event);
    bool filterLine(QLineEdit *line, QEvent *event);
    bool filterViewport(QWidget *viewport, QEvent *event);
    void sendPending();
    void commitList(QComboBox *box);
    void openList(QComboBox *box);
    void closeLater(QComboBox *box);

    const SclTemplateStore *m_templates;
    QPointer<QLineEdit> m_refusedLine;   ///< between the press and the release of a click
    QPersistentModelIndex m_pendingCell; ///< likewise, whose text a click elsewhere confirms
    QString m_pendingText;
    QString m_refusal;
};
