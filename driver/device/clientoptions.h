// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"

struct DeviceConfiguration;

/// How the device is connected to, as its configuration says; names of hosts are looked up and PDUs
/// traced as the caller adds.
acsi::ClientOptions clientOptionsFor(const DeviceConfiguration &configuration);
