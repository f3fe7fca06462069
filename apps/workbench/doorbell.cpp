// SPDX-License-Identifier: Apache-2.0
#include "doorbell.h"

Doorbell::Doorbell(std::chrono::milliseconds pause, QObject *parent)
    : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, &Doorbell::answer);
}

void Doorbell::ring()
{
    if (!m_isRung.exchange(true))
        QMetaObject::invokeMethod(this, "answer", Qt::QueuedConnection);
}

void Doorbell::answer()
{
    // Otherwise the end of the pause answers.
    if (m_pause.isActive() || !m_isRung.exchange(false))
        return;
    m_pause.start();
    emit rung();
}
