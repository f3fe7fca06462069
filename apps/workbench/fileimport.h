// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "importresult.h"

/// What the embedded driver takes out of an SCL file: a device's model, or a simulated device. An
/// ImportFunction.
ImportResult importFromFile(const ImportRequest &request, const std::atomic<bool> &cancelled,
                            const std::function<void(double)> &progress);
