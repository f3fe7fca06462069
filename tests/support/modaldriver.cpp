// SPDX-License-Identifier: Apache-2.0
#include "modaldriver.h"

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <utility>

namespace {

constexpr int lookEveryMs = 5;
constexpr int limitMs = 10000;

} // namespace

ModalDriver::ModalDriver(std::vector<Step> steps)
    : m_steps(std::move(steps))
{
    m_sinceLastStep.start();
    lookAgain();
}

bool ModalDriver::finished() const
{
    return m_done == m_steps.size() && !m_limitReached;
}

ModalDriver::Step ModalDriver::pressInMessageBox(QMessageBox::StandardButton button,
                                                 ShownMessage *message)
{
    return [button, message](QWidget *window) {
        auto *box = qobject_cast<QMessageBox *>(window);
        if (!box) {
            qWarning("Expected a message box, found a %s.", window->metaObject()->className());
            window->close();
            return;
        }
        if (message) {
            message->title = box->windowTitle();
            message->text = box->text();
            message->icon = box->icon();
            message->buttons = box->standardButtons();
            message->parent = box->parentWidget();
        }
        if (QAbstractButton *found = box->button(button))
            found->click();
        else
            box->close();
    };
}

void ModalDriver::lookAgain()
{
    QTimer::singleShot(lookEveryMs, this, &ModalDriver::look);
}

void ModalDriver::look()
{
    // Before anything else: a step may sit in a nested event loop, and a timer does not fire again
    // while its own handler runs.
    lookAgain();
    QWidget *window = topmost();
    if (!window)
        return;
    if (m_sinceLastStep.elapsed() >= limitMs) {
        m_limitReached = true;
        if (auto *dialog = qobject_cast<QDialog *>(window))
            dialog->reject();
        else
            window->close();
        return;
    }
    if (m_next == m_steps.size() || m_busyWith.contains(window))
        return;

    const Step step = m_steps[m_next++];
    m_busyWith.append(window);
    m_sinceLastStep.restart();
    step(window);
    m_busyWith.removeLast();
    m_sinceLastStep.restart();
    ++m_done;
}

QWidget *ModalDriver::topmost()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    return QApplication::activeModalWidget();
}
