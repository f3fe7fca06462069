// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "operationresult.h"
#include "remoteclientglobal.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <chrono>

/// One finished controller call, for a host's journal.
struct ControllerCall
{
    QDateTime started; ///< local time
    QString address;   ///< of the driver
    int driverNo = 0;
    long deviceNo = 0;
    QString operation; ///< name of the controller operation
    QString arguments; ///< the "in" arguments in short, one line
    OperationResult result = OperationSucceeded;
    QString error; ///< the error text that came back
    std::chrono::microseconds duration{0};
};

/// Told of every controller call of the process.
class REMOTECLIENT_EXPORT ControllerCallObserver
{
public:
    ControllerCallObserver() = default;
    virtual ~ControllerCallObserver();
    Q_DISABLE_COPY(ControllerCallObserver)

    /// Called in the calling thread after the call has ended. Must not call the controller.
    virtual void controllerCalled(const ControllerCall &call) = 0;

    /// Make `observer` the observer of the process (not owned), null for none. Set it while no
    /// controller call is under way.
    static void install(ControllerCallObserver *observer);
    static ControllerCallObserver *installed();
};
