// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deviceconfiguration.h"
#include "devicestatus.h"
#include "devicetestresult.h"
#include "driverobserver.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

class QIODevice;

/// What is done with a driver besides the operations of DriverService: which devices it has,
/// whether it reaches them, what it has exchanged with them. Devices are told apart by their
/// number, from 1.
///
/// Every function may be called from any thread but the driver's own; observers may call all of
/// them. Those that say nothing of a device that is not there do nothing for it.
class DriverAdministration
{
public:
    DriverAdministration() = default;
    virtual ~DriverAdministration();
    Q_DISABLE_COPY(DriverAdministration)

    /// One sentence for each fault that setDevice() and test() would find; empty for a
    /// configuration that can be used. Files are looked for where the driver runs.
    virtual QStringList faults(const DeviceConfiguration &configuration) const = 0;
    /// Add a device, or give a device of that number another configuration; it is disconnected
    /// then. The faults of the configuration, in which case nothing is changed; empty when it was
    /// taken.
    virtual QStringList setDevice(const DeviceConfiguration &configuration) = 0;
    /// Answer for the number, as a device without an address, with a model that was imported
    /// before, in the form that PhysicalDevice::fromStream() reads.
    virtual void holdModel(long deviceNo, const QByteArray &model) = 0;
    virtual void removeDevice(long deviceNo) = 0;

    /// Want an association with the device; does nothing for one without an address.
    virtual void connectDevice(long deviceNo) = 0;
    virtual void disconnectDevice(long deviceNo) = 0;
    /// Stop reading the device's model; it is then disconnected.
    virtual void cancelReading(long deviceNo) = 0;
    /// End every operation that is under way on the device, whatever it waits for. Who called it is
    /// told at once that it was cancelled; what the device was asked before may still be done.
    virtual void cancelOperations(long deviceNo) = 0;

    /// Number 0 when there is no such device, or none with an address.
    virtual DeviceStatus status(long deviceNo) const = 0;

    /// Tells the observer of all devices from now on, as long as the subscription lives.
    [[nodiscard]] virtual std::unique_ptr<DriverSubscription>
    subscribe(DriverObserver observer) = 0;
    /// The same for what is exchanged with a device, be it on the driver already or not, whatever
    /// associations it belongs to. @param most lines that a call tells; older ones are left out
    [[nodiscard]] virtual std::unique_ptr<DriverSubscription>
    followTrace(long deviceNo, int most, TraceObserver observer) = 0;

    /// Refuse every operation that changes something on a device.
    virtual void setReadOnly(bool readOnly) = 0;
    virtual bool isReadOnly() const = 0;

    /// Write the device's last PDUs as a pcapng capture; one sentence when that fails.
    virtual QString saveCapture(long deviceNo, QIODevice &out) const = 0;
    /// Write reference, functional constraint, type and last known value of every attribute as CSV
    /// (RFC 4180, UTF-8); one sentence when that fails.
    virtual QString exportValues(long deviceNo, QIODevice &out) = 0;

    /// Makes an association apart from the device list, asks who is there, and leaves. Blocks at
    /// most for the time-outs of the configuration.
    virtual DeviceTestResult test(const DeviceConfiguration &configuration) = 0;
};
