// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/loopback.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <deque>
#include <mutex>

namespace interop {

/// A client association whose calls wait for their answer, for tests that run beside it.
class Session
{
public:
    using RequestHandler =
        std::function<void(const std::shared_ptr<mms::Association> &association,
                           std::uint32_t invokeId, const mms::RequestService &request)>;

    /// Before connect(): answer what the peer asks for, in the association's strand.
    void serve(RequestHandler handler) { m_requestHandler = std::move(handler); }

    mms::Result<mms::InitiateParameters> connect(std::uint16_t port,
                                                 mms::AssociationOptions options = {})
    {
        mms::Association::Handlers handlers;
        handlers.report = [news = m_news](mms::InformationReport report) {
            const std::lock_guard lock(news->mutex);
            news->reports.push_back(std::move(report));
            news->changed.notify_all();
        };
        handlers.closed = m_closed.setter();
        if (m_requestHandler) {
            handlers.request = m_requestHandler;
            // A peer that fetches files asks for the services it needs.
            options.services.set(static_cast<std::size_t>(mms::Service::FileOpen));
            options.services.set(static_cast<std::size_t>(mms::Service::FileRead));
            options.services.set(static_cast<std::size_t>(mms::Service::FileClose));
        }
        m_association = mms::Association::create(m_loop.executor(), std::move(options), handlers);
        wiretest::Awaited<mms::Result<mms::InitiateParameters>> opened;
        m_association->connect("127.0.0.1", port, opened.setter());
        return opened.get();
    }

    ~Session()
    {
        if (m_association)
            m_association->abort(mms::verbatim("The test is over."));
    }

    mms::CallOutcome call(mms::RequestService request)
    {
        wiretest::Awaited<mms::CallOutcome> outcome;
        m_association->call(std::move(request), std::chrono::seconds(10), outcome.setter());
        return outcome.get();
    }

    /// The answer of a service; a failure of the test, and an empty answer, when there is none.
    template <typename Response>
    Response ask(mms::RequestService request)
    {
        const mms::CallOutcome outcome = call(std::move(request));
        const auto *response = mms::answerOf<Response>(outcome);
        EXPECT_NE(response, nullptr) << mms::failureText(outcome);
        return response ? *response : Response();
    }

    /// The value of one variable, or why there is none.
    mms::AccessResult read(const std::string &domain, const std::string &item)
    {
        return readPart(domain, item, {});
    }

    mms::AccessResult readPart(const std::string &domain, const std::string &item,
                               std::vector<mms::AlternateAccess> parts)
    {
        const auto response = ask<mms::ReadResponse>(mms::ReadRequest{
            false, std::vector<mms::VariableAccess>{
                       {mms::ObjectName::inDomain(domain, item), std::move(parts)}}});
        return response.results.size() == 1
                   ? response.results.front()
                   : mms::AccessResult(mms::DataAccessError::ObjectUndefined);
    }

    /// The next report; none after ten seconds.
    std::optional<mms::InformationReport> nextReport()
    {
        std::unique_lock lock(m_news->mutex);
        if (!m_news->changed.wait_for(lock, std::chrono::seconds(10),
                                      [this] { return !m_news->reports.empty(); }))
            return {};
        auto report = std::move(m_news->reports.front());
        m_news->reports.pop_front();
        return report;
    }

    mms::Association &association() { return *m_association; }
    /// Waits for the end of the association.
    std::string closeReason() { return m_closed.get().english(); }

private:
    struct News
    {
        std::mutex mutex;
        std::condition_variable changed;
        std::deque<mms::InformationReport> reports;
    };

    RequestHandler m_requestHandler;
    wiretest::Loop m_loop;
    std::shared_ptr<News> m_news = std::make_shared<News>();
    wiretest::Awaited<mms::Text> m_closed;
    std::shared_ptr<mms::Association> m_association;
};

} // namespace interop
