// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controllercallobserver.h"
#include "remoteclientglobal.h"

#include <functional>

/// Carries out what the driver does for every controller call of the process, so that a host can do
/// something while a slow device is waited for.
class REMOTECLIENT_EXPORT ControllerCallRunner
{
public:
    ControllerCallRunner() = default;
    virtual ~ControllerCallRunner();
    Q_DISABLE_COPY(ControllerCallRunner)

    /// Must have run `work` once, in whatever thread, when it returns. Called in the calling
    /// thread, after the guard; `call` has no result yet. Whatever it lets happen meanwhile must
    /// not destroy what made the call.
    virtual void run(const ControllerCall &call, const std::function<void()> &work) = 0;

    /// Make `runner` the runner of the process (not owned), null for none: then the calling thread
    /// does the work. Set it while no controller call is under way.
    static void install(ControllerCallRunner *runner);
    static ControllerCallRunner *installed();
};
