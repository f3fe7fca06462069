// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QMessageBox>

#include <functional>
#include <vector>

/// What a message box said.
struct ShownMessage
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
    QWidget *parent = nullptr;
};

/// Drives modal dialogs, message boxes and menus while a test's own thread is inside their exec().
///
/// Make it with its steps before the call that opens the first window. Each step is given the
/// topmost popup or modal window, as soon as there is one that no earlier step is still busy with;
/// a step that opens another window nests. After the limit everything still open is closed, so that
/// no test hangs, and finished() answers false.
class ModalDriver : public QObject
{
    Q_OBJECT

public:
    using Step = std::function<void(QWidget *)>;

    explicit ModalDriver(std::vector<Step> steps);

    /// Whether every step has run and the limit was not reached.
    bool finished() const;

    /// A step that records a message box and presses one of its buttons.
    static Step pressInMessageBox(QMessageBox::StandardButton button,
                                  ShownMessage *message = nullptr);

private:
    void look();
    void lookAgain();
    static QWidget *topmost();

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    std::size_t m_done = 0;
    bool m_limitReached = false;
    QList<QPointer<QWidget>> m_busyWith;
    QElapsedTimer m_sinceLastStep;
};
