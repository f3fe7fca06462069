// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QObject>

class QWidget;

/// Lets a modal window on its caller's stack end with the window that opened it.
///
/// A host may close or destroy a window of a tool while a dialog, a box or a menu of it is open.
/// The open one is then taken out of its dying parent, so that nobody but its caller destroys it,
/// and ends as if the operator had cancelled it, with everything that it has opened itself. Make
/// one right after the modal window, on the same stack. Whoever opened the window looks, once it
/// has ended, whether he is still there himself. GUI thread.
class ModalLife : public QObject
{
    Q_OBJECT

public:
    enum Bond {
        WithTheWindow,     ///< ends when the opener is closed, hidden or destroyed
        UntilItIsDestroyed ///< bears it that the opener is hidden
    };

    /// `opener` is the window it belongs to, by default its parent.
    explicit ModalLife(QWidget *window, QWidget *opener = nullptr, Bond bond = WithTheWindow);

    /// Run the window, a dialog. \return QDialog::Rejected at once when it has ended already
    int exec();

    /// Whether a window has ended with its opener, or was closed under what it had opened: there is
    /// nobody left to tell or to ask.
    static bool hasEnded(const QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void end();

    QWidget *const m_window;
    QWidget *const m_opener; ///< only compared once it may be gone
    const Bond m_bond;
};
