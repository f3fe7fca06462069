// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/driveradministration.h"
#include "driver/device/pducapture.h"

#include "osi/hostlookup.h"

#include <remoteclient/caller.h>
#include <remoteclient/driverservice.h>

#include <functional>
#include <memory>

class DriverRuntime;

struct IedDriverOptions
{
    int threads = 2;
    /// Folder of what is remembered of devices between starts; empty for none.
    QString cacheFolder;
    /// Octets of the last PDUs that are kept of each device, for captures and traces.
    std::size_t captureOctets = PduCapture::defaultLimit;
    /// Takes the records of live-value events, in one thread at a time; the event middleware unless
    /// given.
    std::function<void(const QList<QByteArray> &records)> poster;
    /// Writes down every change that the driver makes on a device, or tries to, before who wanted
    /// it is answered; in one of the driver's threads, several devices at a time. Must not call the
    /// driver. Who only wants to know of changes subscribes.
    std::function<void(const DeviceChange &)> journal;
    /// Subscribes before anything happens; is told all until the driver's end.
    DriverObserver observer;
    /// Looks up names of hosts; the system unless given. Called in any thread, several at a time.
    osi::HostLookup::Function lookUp;
};

/// The driver: devices by number, reached over MMS or known only from their SCL file.
///
/// Every function may be called from any thread but the driver's own. The destructor leaves all
/// devices in an orderly way; no call may be under way.
class IedDriver : public DriverAdministration
{
public:
    explicit IedDriver(IedDriverOptions options = {});
    ~IedDriver() override;

    QStringList faults(const DeviceConfiguration &configuration) const override;
    QStringList setDevice(const DeviceConfiguration &configuration) override;
    /// As OfflineDriverService::holdModel().
    void holdModel(long deviceNo, const QByteArray &model) override;
    void removeDevice(long deviceNo) override;

    void connectDevice(long deviceNo) override;
    void disconnectDevice(long deviceNo) override;
    void cancelReading(long deviceNo) override;
    void cancelOperations(long deviceNo) override;

    DeviceStatus status(long deviceNo) const override;
    std::unique_ptr<DriverSubscription> subscribe(DriverObserver observer) override;
    std::unique_ptr<DriverSubscription> followTrace(long deviceNo, int most,
                                                    TraceObserver observer) override;

    void setReadOnly(bool readOnly) override;
    bool isReadOnly() const override;

    QString saveCapture(long deviceNo, QIODevice &out) const override;
    QString exportValues(long deviceNo, QIODevice &out) override;

    DeviceTestResult test(const DeviceConfiguration &configuration) override;

    /// The operations on devices as one caller has them: what is done through the service was done
    /// by him. They block the calling thread until the device has answered, at the latest until the
    /// device's time is over. A service may outlive the driver; then nobody can be reached.
    std::shared_ptr<DriverService> serviceFor(const Caller &caller);

private:
    std::shared_ptr<DriverRuntime> m_runtime;
};
