// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/loopback.h"
#include "osi/bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>

namespace wiretest {

using namespace mms;
using namespace std::chrono_literals;

/// Identifies itself, reads every variable as its number in the list, refuses to delete files, has
/// more names than fit, and never answers a status request.
class TestDevice : public ServerHandler
{
public:
    void opened(const std::shared_ptr<Association> &association) override
    {
        ++openings;
        if (reportOnOpening)
            association->report({ObjectName::ofVmd("RPT"), {Data::float32(1.5F)}});
    }

    void request(const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                 RequestService request) override
    {
        if (std::holds_alternative<IdentifyRequest>(request)) {
            association->respond(invokeId, IdentifyResponse{"vendor", "model", "1.0", {}});
        } else if (const auto *read = std::get_if<ReadRequest>(&request)) {
            ReadResponse response;
            const auto *list = std::get_if<std::vector<VariableAccess>>(&read->variables);
            for (std::size_t i = 0; list && i < list->size(); ++i)
                response.results.emplace_back(Data::unsignedInteger(i));
            association->respond(invokeId, response);
        } else if (std::holds_alternative<FileDeleteRequest>(request)) {
            association->fail(invokeId,
                              {ErrorClass::File, serviceerrors::fileNonExistent, {}, {}, {}});
        } else if (std::holds_alternative<GetNameListRequest>(request)) {
            association->respond(
                invokeId, GetNameListResponse{std::vector<std::string>(9000, "LLN0$ST$Mod"), true});
        } else if (!std::holds_alternative<StatusRequest>(request)) {
            association->reject(invokeId, rejectcodes::requestUnrecognizedService);
        }
    }

    void refused(const mms::Text &) override { ++refusals; }

    void closed(const std::shared_ptr<Association> &, const mms::Text &reason) override
    {
        if (!m_ended.exchange(true))
            end.setter()(reason.english());
    }

    bool reportOnOpening = false;
    std::atomic<int> openings{0};
    std::atomic<int> refusals{0};
    /// Why the first association ended.
    Awaited<std::string> end;

private:
    std::atomic<bool> m_ended{false};
};

inline AssociationOptions quickOptions()
{
    AssociationOptions options;
    options.link.establishTimeout = 5s;
    options.link.releaseTimeout = 5s;
    return options;
}

class AssociationTest : public testing::Test
{
protected:
    void TearDown() override
    {
        if (m_server)
            m_server->stop();
        if (m_client)
            m_client->abort(mms::verbatim("The test is over."));
    }

    std::uint16_t startServer(ServerOptions options = {})
    {
        options.address = "127.0.0.1";
        options.port = 0;
        m_server = Server::create(m_loop.executor(), options, m_device);
        const auto port = m_server->start();
        EXPECT_TRUE(port.ok());
        return port ? *port : 0;
    }

    Result<InitiateParameters> connect(std::uint16_t port, AssociationOptions options,
                                       Association::Handlers handlers = {})
    {
        m_clientEnd = {};
        if (!handlers.closed)
            handlers.closed = [tell = m_clientEnd.setter()](const mms::Text &reason) {
                tell(reason.english());
            };
        m_client = Association::create(m_loop.executor(), std::move(options), std::move(handlers));
        Awaited<Result<InitiateParameters>> opened;
        m_client->connect("127.0.0.1", port, opened.setter());
        return opened.get();
    }

    CallOutcome call(RequestService request, std::chrono::milliseconds timeout = 10s)
    {
        Awaited<CallOutcome> outcome;
        m_client->call(std::move(request), timeout, outcome.setter());
        return outcome.get();
    }

    /// Accepts the association of the client that is connecting, and then stands still.
    void acceptByHand(RawPeer &peer, osi::Stack &stack, const std::vector<Service> &services = {})
    {
        peer.accept();
        std::vector<osi::StackEvent> events;
        ASSERT_TRUE(peer.feed(stack, events));
        const auto *asked = std::get_if<osi::AssociateIndication>(&events.front());
        ASSERT_NE(asked, nullptr);
        const auto pdu = decodePdu(asked->pdu);
        ASSERT_TRUE(pdu.ok());
        InitiateParameters parameters = std::get<InitiateRequestPdu>(*pdu).parameters;
        for (const Service service : services)
            parameters.services.set(static_cast<std::size_t>(service));
        peer.send(stack.accept(encode(InitiateResponsePdu{parameters})).octets);
    }

    void connectToRawPeer(RawPeer &peer, osi::Stack &stack)
    {
        Association::Handlers handlers;
        handlers.closed = [tell = m_clientEnd.setter()](const mms::Text &reason) {
            tell(reason.english());
        };
        m_client = Association::create(m_loop.executor(), quickOptions(), std::move(handlers));
        Awaited<Result<InitiateParameters>> opened;
        m_client->connect("127.0.0.1", peer.port(), opened.setter());
        acceptByHand(peer, stack);
        ASSERT_TRUE(opened.get().ok());
    }

    CallFailure::Kind failureOf(const CallOutcome &outcome)
    {
        const auto *none = std::get_if<CallFailure>(&outcome);
        EXPECT_NE(none, nullptr);
        return none ? none->kind : CallFailure::Kind::NotOpen;
    }

    Loop m_loop;
    std::shared_ptr<TestDevice> m_device = std::make_shared<TestDevice>();
    std::shared_ptr<Server> m_server;
    std::shared_ptr<Association> m_client;
    Awaited<std::string> m_clientEnd;
};

} // namespace wiretest
