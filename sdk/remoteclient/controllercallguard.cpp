// SPDX-License-Identifier: Apache-2.0
#include "controllercallguard.h"

#include <atomic>

namespace {
std::atomic<ControllerCallGuard *> installedGuard{nullptr};
}

ControllerCallGuard::~ControllerCallGuard() = default;

void ControllerCallGuard::install(ControllerCallGuard *guard)
{
    installedGuard = guard;
}

ControllerCallGuard *ControllerCallGuard::installed()
{
    return installedGuard;
}
