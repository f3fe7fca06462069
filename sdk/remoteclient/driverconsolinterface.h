// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "operationresult.h"
#include "remoteclientglobal.h"

#include <QtCore/QString>

/// The host's console of its drivers: says where a driver's service is. The host implements it.
/// GUI thread.
class REMOTECLIENT_EXPORT DriverConsolInterface
{
public:
    DriverConsolInterface() = default;
    virtual ~DriverConsolInterface();
    Q_DISABLE_COPY(DriverConsolInterface)

    /// Address of the driver's service, as IEC61850ControllerInterface::setLocation() takes it.
    virtual QString currentAddress() = 0;

    /// Text of the place where the device is, for the operator.
    virtual OperationResult getLoc(long driverNo, long deviceNo, QString &location) = 0;
};
