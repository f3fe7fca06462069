// SPDX-License-Identifier: Apache-2.0
#include "controllercallrunner.h"

#include <atomic>

namespace {
std::atomic<ControllerCallRunner *> installedRunner{nullptr};
}

ControllerCallRunner::~ControllerCallRunner() = default;

void ControllerCallRunner::install(ControllerCallRunner *runner)
{
    installedRunner = runner;
}

ControllerCallRunner *ControllerCallRunner::installed()
{
    return installedRunner;
}
