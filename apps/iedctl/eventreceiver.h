// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/reportevent.h"

#include <QtCore/QList>

#include <condition_variable>
#include <mutex>

/// Report events on their way from the driver's threads to a command. Any thread.
class EventReceiver
{
public:
    /// Events are kept from now on; those before are of no command.
    void listen();
    /// For DriverObserver::reportReceived.
    void take(const ReportEvent &event);
    /// Events that came, oldest first; waits for one at most @p waitMs milliseconds.
    QList<ReportEvent> receive(int waitMs);

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    QList<ReportEvent> m_events;
    bool m_listens = false;
};
