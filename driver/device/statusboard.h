// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/devicestatus.h"
#include "driver/core/associationlife.h"
#include "pducapture.h"

#include <QtCore/QMap>

#include <functional>
#include <memory>
#include <mutex>

struct DeviceConfiguration;

/// How a device is, for those who look on: the phase of its association's life as a state, what is
/// wrong with it, counters. Any thread unless it is said otherwise.
class StatusBoard
{
public:
    using Changed = std::function<void()>;

    /// @p changed is called in the thread of the change.
    StatusBoard(const DeviceConfiguration &configuration, std::shared_ptr<const PduCapture> capture,
                Changed changed);

    DeviceStatus status() const;
    void update(const std::function<void(DeviceStatus &)> &change);
    /// Adds to one of the counters of the status; tells nobody.
    void count(std::uint64_t DeviceCounters::*counter, std::uint64_t by = 1);

    // In the strand of the device:

    /// Shows the phase as a state; what is ending is shown as before.
    void show(const AssociationLife &life, AssociationLife::Time now);
    /// One sentence on something that does not work; an empty one takes it away. While the device
    /// is online they are the reason of its state.
    void setProblem(const QString &source, const QString &sentence, const AssociationLife &life);

private:
    QString problems() const;

    const std::shared_ptr<const PduCapture> m_capture;
    const Changed m_changed;
    QMap<QString, QString> m_problems; ///< by source; in the strand
    mutable std::mutex m_mutex;
    DeviceStatus m_status;
};
