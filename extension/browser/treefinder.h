// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QTreeView;
struct IEDNode;

/// Finding and copying in a device tree by keyboard: Ctrl+F opens a line to search by name or
/// reference, written as "LD/LN$FC$DO$da" or as "LD/LN.DO.da" or a part of these. Enter goes to the
/// next match and Shift+Enter to the one before, and the line says how many there are; Escape
/// closes it. Ctrl+C copies the reference of the current node. Changes nothing on the device. GUI
/// thread.
class TreeFinder : public QWidget
{
    Q_OBJECT

public:
    /// A hidden line for a view on an IEDModel; the caller places it in a layout.
    TreeFinder(QTreeView *view, QWidget *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Direction { Forward, Backward };

    bool handleTreeKey(const QKeyEvent &event);
    bool handleLineKey(const QKeyEvent &event);
    void open();
    void close();
    void find(Direction direction, bool includingCurrent);
    void forget();
    void copyReference() const;

    QTreeView *m_view;
    QLineEdit *m_text;
    QLabel *m_result;
    QString m_searched;               ///< what m_found are the matches of
    QVector<const IEDNode *> m_found; ///< in the order of the tree
};
