// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driverobserver.h"
#include "tracesource.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

/// The observers of a driver: the driver tells here, each of them is called in a thread of his own.
/// Remembers what it has told of the devices, so that who subscribes gets the same, then whatever
/// changes, nothing twice and nothing missing between. Any thread.
class DriverObservers
{
public:
    /// A device as it is now.
    struct Device
    {
        DeviceStatus status;
        std::shared_ptr<const TraceSource> trace;
    };
    /// Nothing when there is no such device, or none with an address. Called under a lock; must
    /// call nothing here.
    using Look = std::function<std::optional<Device>(int deviceNo)>;

    /// How many statuses and reports of a device wait for an observer at most.
    struct Limits
    {
        std::size_t statuses = 1000;
        std::size_t reports = 10000;
    };

    explicit DriverObservers(Look look);
    DriverObservers(Look look, Limits limits);
    ~DriverObservers();
    Q_DISABLE_COPY(DriverObservers)

    std::unique_ptr<DriverSubscription> add(DriverObserver observer);
    /// @param most lines of a call
    std::unique_ptr<DriverSubscription> addTrace(int deviceNo, int most, TraceObserver observer);

    /// Something about the device is different, or it came or went: looks and tells.
    void deviceChanged(int deviceNo);
    /// The same for all devices that were told of.
    void devicesChanged();
    void tell(const DeviceChange &change);
    /// Whether anybody wants reports.
    bool wantReports() const;
    /// The number of older reports that were dropped for this one.
    std::uint64_t tell(const ReportEvent &event);
    /// Something was exchanged with the device.
    void exchanged(int deviceNo);

    /// The end of the driver: nothing is told any more but what waits already.
    void close();

private:
    class ObserverCourier;
    class TraceCourier;

    void lookAt(int deviceNo);
    void forgetStopped();

    const Look m_look;
    const Limits m_limits;
    mutable std::mutex m_mutex;
    std::map<int, Device> m_told; ///< by number
    std::vector<std::shared_ptr<ObserverCourier>> m_observers;
    std::vector<std::shared_ptr<TraceCourier>> m_tracers;
    std::atomic<bool> m_isTraced{false}; ///< there may be tracers
    bool m_isClosed = false;
};
