// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "records.h"
#include "remoteclientglobal.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

/// A controller call that is about to change something on a device.
struct GuardedCall
{
    enum Kind {
        Command,    ///< select or operate an object, make a setting group the active one
        Withdrawal, ///< cancel a command
        Change      ///< anything else: values, settings, data sets, report blocks, files
    };

    Kind kind = Change;
    QString address; ///< of the driver
    int driverNo = 0;
    long deviceNo = 0;
    QString operation; ///< name of the controller operation
    QString arguments; ///< in short, one line, as in ControllerCall

    QString logicalDevice;
    /// What is changed, in the form of the operation: a variable, a control object, a data set, a
    /// report control block, a file of the device. Empty for setting groups.
    QString object;
    /// What it is to become; invalid where the operation has no value. A setting group's number,
    /// the settings as one text, the local file that is sent.
    QVariant newValue;
    /// Of a control operation: everything that goes with the value.
    bool isControl = false;
    ControlBlock control;
};

/// Asked before every controller call of the process that changes something on a device.
class REMOTECLIENT_EXPORT ControllerCallGuard
{
public:
    ControllerCallGuard() = default;
    virtual ~ControllerCallGuard();
    Q_DISABLE_COPY(ControllerCallGuard)

    /// One sentence when the call must not be made: it is then what the call fails with, and the
    /// driver learns nothing of it. Empty to let it pass. Called in the calling thread, which may
    /// be kept waiting; must not make a call that changes something.
    virtual QString refusal(const GuardedCall &call) = 0;

    /// Make `guard` the guard of the process (not owned), null for none. Set it while no controller
    /// call is under way.
    static void install(ControllerCallGuard *guard);
    static ControllerCallGuard *installed();
};
