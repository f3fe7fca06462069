// SPDX-License-Identifier: Apache-2.0
#include "eventreceiver.h"

#include <chrono>

void EventReceiver::listen()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_listens = true;
    m_events.clear();
}

void EventReceiver::take(const ReportEvent &event)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_listens)
        return;
    m_events.append(event);
    m_changed.notify_all();
}

QList<ReportEvent> EventReceiver::receive(int waitMs)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, std::chrono::milliseconds(waitMs),
                       [this] { return !m_events.empty(); });
    QList<ReportEvent> events;
    events.swap(m_events);
    return events;
}
