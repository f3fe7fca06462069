// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/loopback.h"
#include "simulator/device.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace simtest {

/// A client of a device, waiting for each answer.
class Caller
{
public:
    /// Connects; isOpen() tells whether that worked.
    Caller(asio::any_io_executor executor, std::uint16_t port, mms::AssociationOptions options = {},
           mms::Association::Handlers handlers = {})
    {
        handlers.closed = m_closed.setter();
        m_association =
            mms::Association::create(std::move(executor), std::move(options), std::move(handlers));
        wiretest::Awaited<mms::Result<mms::InitiateParameters>> opened;
        m_association->connect("127.0.0.1", port, opened.setter());
        m_opened = opened.get();
    }
    ~Caller()
    {
        m_association->abort(mms::verbatim("The test is over."));
        if (isOpen())
            m_closed.get();
    }

    bool isOpen() const { return m_opened.ok(); }
    const mms::Result<mms::InitiateParameters> &opened() const { return m_opened; }
    mms::Association &association() { return *m_association; }

    mms::CallOutcome call(mms::RequestService request)
    {
        wiretest::Awaited<mms::CallOutcome> outcome;
        m_association->call(std::move(request), std::chrono::seconds(20), outcome.setter());
        return outcome.get();
    }

    /// The answer; a failure of the test, and an empty one, where there is none.
    template <typename Response>
    Response answer(mms::RequestService request)
    {
        const mms::CallOutcome outcome = call(std::move(request));
        const auto *response = mms::answerOf<Response>(outcome);
        EXPECT_TRUE(response) << mms::failureText(outcome);
        return response ? *response : Response();
    }

    /// All names of a class in a domain, or of the whole device where @p domain is empty.
    std::vector<std::string> names(mms::ObjectClass objectClass, const std::string &domain)
    {
        std::vector<std::string> names;
        for (bool more = true; more;) {
            mms::GetNameListRequest request{
                objectClass, domain.empty() ? mms::Scope::Vmd : mms::Scope::Domain, domain, {}};
            if (!names.empty())
                request.continueAfter = names.back();
            auto page = answer<mms::GetNameListResponse>(request);
            more = page.moreFollows && !page.names.empty();
            names.insert(names.end(), page.names.begin(), page.names.end());
        }
        return names;
    }

private:
    wiretest::Awaited<mms::Text> m_closed;
    std::shared_ptr<mms::Association> m_association;
    mms::Result<mms::InitiateParameters> m_opened = mms::Error{mms::verbatim("not yet"), 0};
};

inline sim::DeviceOptions localOptions()
{
    sim::DeviceOptions options;
    options.server.address = "127.0.0.1";
    options.server.port = 0;
    return options;
}

/// A device that serves while it lives.
class RunningDevice
{
public:
    RunningDevice(asio::any_io_executor executor, const scl::Ied &ied,
                  sim::DeviceOptions options = localOptions())
        : device(sim::Device::create(std::move(executor), ied, std::move(options)))
    {
        const auto started = device->start();
        EXPECT_TRUE(started.ok());
        port = started ? *started : 0;
    }
    ~RunningDevice() { device->stop(); }

    std::shared_ptr<sim::Device> device;
    std::uint16_t port = 0;
};

} // namespace simtest
