// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driverservice.h"

#include <QtCore/QString>

#include <memory>

/// The driver services of this process by address. Safe to call from any thread.
namespace DriverServiceRegistry {

/// Make `service` answer at `address`; a service that was there before is replaced. The registry
/// shares its ownership until remove().
REMOTECLIENT_EXPORT void add(const QString &address, std::shared_ptr<DriverService> service);

/// Forget the service at `address`. A call that is under way there ends first in its own thread,
/// since callers share the ownership while they call.
REMOTECLIENT_EXPORT void remove(const QString &address);

/// The service at `address`; null when there is none.
REMOTECLIENT_EXPORT std::shared_ptr<DriverService> find(const QString &address);

} // namespace DriverServiceRegistry
