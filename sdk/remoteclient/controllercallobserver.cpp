// SPDX-License-Identifier: Apache-2.0
#include "controllercallobserver.h"

#include <atomic>

namespace {
std::atomic<ControllerCallObserver *> installedObserver{nullptr};
}

ControllerCallObserver::~ControllerCallObserver() = default;

void ControllerCallObserver::install(ControllerCallObserver *observer)
{
    installedObserver = observer;
}

ControllerCallObserver *ControllerCallObserver::installed()
{
    return installedObserver;
}
