// SPDX-License-Identifier: Apache-2.0
#include "modallife.h"

#include <QtCore/QEvent>
#include <QtCore/QVariant>
#include <QtWidgets/QDialog>

namespace {
constexpr char endedProperty[] = "endedWithItsOpener";
}

ModalLife::ModalLife(QWidget *window, QWidget *opener, Bond bond)
    : m_window(window)
    , m_opener(opener ? opener : window->parentWidget())
    , m_bond(bond)
{
    if (!m_opener)
        return;
    if (hasEnded(m_opener)) {
        end();
        return;
    }
    m_opener->installEventFilter(this);
    // Sent before the children of the opener are destroyed.
    connect(m_opener, &QObject::destroyed, this, [this] {
        if (m_window->parentWidget() == m_opener)
            m_window->setParent(nullptr, m_window->windowFlags());
        end();
    });
}

int ModalLife::exec()
{
    auto *const dialog = qobject_cast<QDialog *>(m_window);
    return dialog && !hasEnded(dialog) ? dialog->exec() : int(QDialog::Rejected);
}

bool ModalLife::hasEnded(const QWidget *window)
{
    // Whoever shows a window again has made use of it again.
    return window && !window->isVisible() && window->property(endedProperty).toBool();
}

bool ModalLife::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_opener) {
        const bool isHidden = event->type() == QEvent::Hide && !event->spontaneous();
        if (isHidden && m_bond == WithTheWindow) {
            m_opener->setProperty(endedProperty, true);
            end();
        } else if (event->type() == QEvent::DynamicPropertyChange && hasEnded(m_opener)) {
            // An opener that was not on the screen ends without being hidden.
            end();
        }
    }
    return QObject::eventFilter(watched, event);
}

void ModalLife::end()
{
    if (hasEnded(m_window))
        return;
    m_window->setProperty(endedProperty, true);
    // Not close(): a box without a button for it does not let itself be closed.
    if (auto *const dialog = qobject_cast<QDialog *>(m_window))
        dialog->reject();
    else
        m_window->close();
}
