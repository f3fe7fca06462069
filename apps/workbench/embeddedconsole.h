// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/driverconsolinterface.h>

class DeviceListModel;

/// The workbench's console: one driver, embedded in this process. GUI thread.
class EmbeddedConsole : public DriverConsolInterface
{
public:
    static const QString address; ///< where the embedded driver's service is registered
    static constexpr int driverNo = 1;

    /// @param devices not owned; must outlive the console
    explicit EmbeddedConsole(const DeviceListModel &devices);

    QString currentAddress() override;

    /// The device's address and port, or its SCL file; fails for a driver or device that is not
    /// there.
    OperationResult getLoc(long driverNumber, long deviceNo, QString &location) override;

private:
    const DeviceListModel &m_devices;
};
