// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/caller.h>
#include <remoteclient/forwardingdriverservice.h>

#include <memory>

class DriverRuntime;

/// The driver as one caller has it. Any thread but the driver's own. It does not keep the driver
/// alive: after its end nobody can be reached.
class CallerService : public ForwardingDriverService
{
public:
    CallerService(std::weak_ptr<DriverRuntime> runtime, Caller caller);

protected:
    /// To the device, or to what is known of one that has no connection.
    OperationResult call(const DriverCall &call) override;

private:
    const std::weak_ptr<DriverRuntime> m_runtime;
    const Caller m_caller;
};
