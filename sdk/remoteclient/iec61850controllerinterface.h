// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "forwardingdriverservice.h"

#include <QtCore/QString>

/// The client services of one driver, as the operator's tools call them.
///
/// The operations, their arguments and their order are those of DriverService; "in" arguments are
/// const references. Each is forwarded to the DriverService registered for the address given to
/// setLocation(), and answers with its result. When no service answers there, an operation returns
/// OperationDriverUnreachable. The look-up is made at each call, so that a driver may come and go.
/// Every call blocks until the driver has answered, retries nothing, and is reported to the
/// ControllerCallObserver of the process. What changes something on a device needs the consent of
/// the process's ControllerCallGuard; the driver's part is carried out by its ControllerCallRunner.
class REMOTECLIENT_EXPORT IEC61850ControllerInterface : public ForwardingDriverService
{
public:
    IEC61850ControllerInterface();
    ~IEC61850ControllerInterface() override;

    /// Where the driver is. `driverNo` is the number of the driver (channel) there.
    void setLocation(const QString &address, int driverNo);

    using ForwardingDriverService::getFile;
    using ForwardingDriverService::writeFile;
    /// Fetch a file of the IED into memory, at most MemoryFileSink::largestFile octets. Only a
    /// success changes `content`.
    OperationResult getFile(long deviceNo, const QString &fileName, QByteArray &content,
                            QString &error);
    /// Send `localFile` of this computer to the IED as `fileName`.
    OperationResult writeFile(long deviceNo, const QString &localFile, const QString &fileName,
                              QString &error);

protected:
    OperationResult call(const DriverCall &call) override;

private:
    const quint64 m_number; ///< see ControllerCaller
    QString m_address;
    int m_driverNo = 0;
};
