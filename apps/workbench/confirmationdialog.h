// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "callconfirmation.h"

#include <QtWidgets/QDialog>

class QPushButton;

/// Asks whether a call is to be made, with Cancel as what every key but the button's own gives.
///
/// The key or the click that closed the window before must not answer: for a moment, until armed(),
/// only Escape does anything, and Enter never sends.
///
/// Its parent is a window of somebody else, which may be closed or destroyed while the question is
/// open: it is then withdrawn, as with Cancel. Ask with asks().
class ConfirmationDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int armedAfterMs = 600;

    explicit ConfirmationDialog(const CallConfirmation::Question &question,
                                QWidget *parent = nullptr);

    /// Ask over `parent`. \return whether it was confirmed; `parent` may be gone by then
    static bool asks(const CallConfirmation::Question &question, QWidget *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The buttons can be pressed from now on.
    void armed();

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPushButton *m_send;
    QPushButton *m_cancel;
    bool m_isArmed = false;
};
