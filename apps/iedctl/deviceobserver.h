// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/devicestatus.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <condition_variable>
#include <mutex>

class Output;

/// What the driver tells of the state of the one device: whether it has arrived, and when it goes
/// and comes back. The driver calls take() from any thread, the commands call the rest.
class DeviceObserver
{
public:
    void take(const DeviceStatus &status);

    /// Waits until the driver has the device's model, or knows why not; shows the progress to
    /// @p output. False when it was given up, with @p reason.
    bool waitForArrival(Output &output, QString &reason);

    /// An association with the device that was lost, or one that stands again.
    struct Turn
    {
        bool isLost = false;
        QDateTime time; ///< local time
        QString reason; ///< of a loss
    };
    /// What has happened since the last call, oldest first.
    QList<Turn> turns();

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    DeviceStatus m_status;
    bool m_wasOnline = false;
    bool m_isLost = false;
    QList<Turn> m_turns;
};
