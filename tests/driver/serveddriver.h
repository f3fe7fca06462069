// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/service/ieddriver.h"

#include <remoteclient/forwardingdriverservice.h>

#include <memory>
#include <utility>

namespace drivertest {

/// A driver with the service by which a test calls it.
class ServedDriver : public IedDriver, public ForwardingDriverService
{
public:
    explicit ServedDriver(IedDriverOptions options = {})
        : IedDriver(std::move(options))
        , m_service(serviceFor(tester()))
    {
    }

    /// Whom the journal names.
    static Caller tester()
    {
        return {QStringLiteral("tester"), QStringLiteral("desk"), QStringLiteral("test 1")};
    }

protected:
    OperationResult call(const DriverCall &call) override { return call.carryOut(*m_service); }

private:
    std::shared_ptr<DriverService> m_service;
};

} // namespace drivertest
