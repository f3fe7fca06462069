// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/forwardingdriverservice.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QMutex>
#include <QtCore/QString>

class PhysicalDevice;

/// The driver for devices without a connection: it answers with the model from their SCL file and
/// refuses everything else with "Not connected to the device". Any thread.
class OfflineDriverService : public ForwardingDriverService
{
public:
    OfflineDriverService() = default;

    /// Answer for the device with this IED of an SCL file, which is read at each request.
    /// @param ied may be empty when the file describes a single IED
    void addDevice(long deviceNo, const QString &file, const QString &ied);

    /// Answer for the device with a model that was imported before, in the form that
    /// PhysicalDevice::fromStream() reads.
    void holdModel(long deviceNo, const QByteArray &model);

    /// Answer for the device no longer.
    void removeDevice(long deviceNo);

    bool hasDevice(long deviceNo) const;

    /// The bytes of an IED's model, marked as offline: what holdModel() takes. The references of
    /// its attributes begin with offlineMark(), so that values of a connected device with the same
    /// logical devices are none of this one. Any thread.
    static QByteArray offlineModel(PhysicalDevice &device);
    /// No logical device has a name that begins so.
    static QString offlineMark() { return QStringLiteral("file:"); }

    OperationResult getIEDModel(long deviceNo, QByteArray &model, QString &error) override;
    OperationResult abortClose(long deviceNo) override;

protected:
    OperationResult call(const DriverCall &call) override;

private:
    struct Device
    {
        QString file; ///< empty: `model` is the answer
        QString ied;
        QByteArray model;
    };

    mutable QMutex m_mutex;
    QHash<long, Device> m_devices; ///< under m_mutex
};
