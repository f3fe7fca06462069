// SPDX-License-Identifier: Apache-2.0
#pragma once

class DriverConsolInterface;
class QWidget;

/// What a host gives the plug-in to work with. The host owns it and both objects and keeps them
/// alive as long as a tool of the plug-in is open.
struct HostTaskContext
{
    DriverConsolInterface *console = nullptr; ///< says where the driver's service is
    QWidget *mainWindow = nullptr;            ///< parent of the windows that the plug-in opens
};
