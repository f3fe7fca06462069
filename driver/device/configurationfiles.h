// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/deviceconfiguration.h"

#include "osi/tls.h"

#include <QtCore/QStringList>

/// What a device's configuration names on this computer. Any thread.
namespace ConfigurationFiles {

osi::TlsOptions tlsOptions(const TlsConfiguration &tls);

/// One sentence for each file that is not there or cannot be used; reads those of TLS.
QStringList faults(const DeviceConfiguration &configuration);

} // namespace ConfigurationFiles
