// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicechange.h"
#include "devicestatus.h"
#include "reportevent.h"
#include "traceline.h"

#include <QtCore/QVector>

#include <functional>

/// Whom a driver tells what happens on its devices; what is empty is not told.
///
/// All functions of one observer are called in one thread, which is his alone, one at a time and in
/// the order of what happened. He may take his time, and may throw: that costs nobody else
/// anything. Who does not keep up loses what newer news make needless: of a device the oldest
/// statuses, and the oldest reports, which the next event says. Changes are never left out.
struct DriverObserver
{
    /// At first every device with an address as it is, then every change of its state, and its
    /// counts as they grow, some times a second at most.
    std::function<void(const DeviceStatus &status)> statusChanged;
    /// The device has been taken off the driver, or has no address any more.
    std::function<void(int deviceNo)> deviceRemoved;
    /// A change that the driver made on a device, or tried to.
    std::function<void(const DeviceChange &change)> changed;
    /// A report as it came, or what is missing.
    std::function<void(const ReportEvent &event)> reportReceived;

    bool isEmpty() const { return !statusChanged && !deviceRemoved && !changed && !reportReceived; }
};

/// Whom a driver tells what it exchanges with a device: at first what it remembers, then what
/// comes. Called like a DriverObserver's functions. Who does not keep up finds numbers missing.
using TraceObserver = std::function<void(const QVector<TraceLine> &lines)>;

/// Lasts as long as somebody is told. When its destructor returns, nothing is called any more: it
/// waits for a call that is under way, unless it is that call that unsubscribes. What was not told
/// yet is dropped; but once the driver is gone, all of it is told first. May outlive the driver.
class DriverSubscription
{
public:
    DriverSubscription() = default;
    virtual ~DriverSubscription();
    Q_DISABLE_COPY(DriverSubscription)
};
