// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/driveradministration.h"

#include <remoteclient/driverservice.h>

#include <QtCore/QString>

#include <functional>
#include <memory>

/// A driver as programs know one. It ends with the last who shares its administration; who has the
/// service only reaches nobody from then on.
struct EmbeddedDriver
{
    std::shared_ptr<DriverAdministration> administration;
    std::shared_ptr<DriverService> service; ///< what the user of this process has
};

struct EmbeddedDriverOptions
{
    /// Folder of what is remembered of devices between starts; empty for none.
    QString cacheFolder;
    /// As IedDriverOptions::journal.
    std::function<void(const DeviceChange &change)> journal;
};

/// A driver in this process.
EmbeddedDriver startEmbeddedDriver(const EmbeddedDriverOptions &options);
