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

    using ForwardingDriverService::getFile;
    using ForwardingDriverService::writeFile;
    OperationResult getFile(long deviceNo, const QString &fileName, QByteArray &content,
                            QString &error)
    {
        MemoryFileSink sink(fileName);
        const OperationResult result = getFile(deviceNo, fileName, sink, error);
        if (result == OperationSucceeded)
            content = std::move(sink.content);
        return result;
    }
    OperationResult writeFile(long deviceNo, const QString &localFile, const QString &fileName,
                              QString &error)
    {
        LocalFileSource source(localFile);
        return writeFile(deviceNo, source, fileName, error);
    }

protected:
    OperationResult call(const DriverCall &call) override { return call.carryOut(*m_service); }

private:
    std::shared_ptr<DriverService> m_service;
};

} // namespace drivertest
