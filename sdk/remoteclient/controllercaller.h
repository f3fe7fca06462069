// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "remoteclientglobal.h"

#include <QtCore/QtGlobal>

/// Whose call a driver is carrying out. What a tool has begun on a device (a group chosen for
/// editing, an object selected) is its own: another tool of the same host must not go on with it.
namespace ControllerCaller {

/// The number of the IEC61850ControllerInterface whose call this thread is in; 0 outside of a call
/// and for calls that do not come through a controller. A number is given once only.
REMOTECLIENT_EXPORT quint64 current();

} // namespace ControllerCaller
