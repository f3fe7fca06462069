// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtWidgets/QWidget>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QTreeView;

/// Finding and copying in a device tree by keyboard: Ctrl+F opens a line to search by name or
/// reference, Enter goes to the next match and Shift+Enter to the one before, Escape closes the
/// line; Ctrl+C copies the reference of the current node. Changes nothing on the device. GUI
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
    void copyReference() const;

    QTreeView *m_view;
    QLineEdit *m_text;
    QLabel *m_notFound;
};
