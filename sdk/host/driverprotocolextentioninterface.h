// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QList>
#include <QtCore/QtPlugin>

class QAction;
struct HostTaskContext;

/// What a host knows of a protocol extension: the interface of the plug-in object. GUI thread.
///
/// The order of the virtual functions is part of the binary interface.
class DriverProtocolExtentionInterface
{
public:
    virtual ~DriverProtocolExtentionInterface() = default;

    /// True once initialize() has run.
    virtual bool isInitialized() = 0;

    /// Set-up of the extension, once per process; further calls do nothing.
    virtual void initialize() = 0;

    virtual bool isAvailable() = 0;

    /// The operator's selection, used by the next action that is triggered: number of the driver
    /// (channel), number of the device on it, a third number passed through, and the host's
    /// context (not owned, not null).
    virtual void setTaskContext(int driverNo, int deviceNo, int taskParameter,
                                HostTaskContext *context) = 0;

    /// The actions to show to the operator; empty before initialize(). The extension owns them.
    virtual QList<QAction *> actions() = 0;

    /// Whether the extension serves drivers of this protocol; 4 is IEC 61850.
    virtual bool supportsProtocol(int protocolType) = 0;
};

Q_DECLARE_INTERFACE(DriverProtocolExtentionInterface, "com.brimwell.kestrelon.protocolExtention")
