// SPDX-License-Identifier: Apache-2.0
#include "mms/associationtest.h"

using namespace wiretest;

namespace {

/// Counts the requests for a sign of life that arrive, and tells of the third.
class CountingDevice : public TestDevice
{
public:
    void request(const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                 RequestService request) override
    {
        if (std::holds_alternative<IdentifyRequest>(request) && ++identified == 3)
            third.setter()(true);
        TestDevice::request(association, invokeId, std::move(request));
    }

    std::atomic<int> identified{0};
    Awaited<bool> third;
};

class KeepAlive : public AssociationTest
{
protected:
    KeepAlive() { m_device = m_counting; }

    /// A client with these options and a peer that answers nothing by itself.
    void connectToPeer(const AssociationOptions &options, const std::vector<Service> &services = {})
    {
        Association::Handlers handlers;
        handlers.closed = [tell = m_clientEnd.setter()](const Text &reason) {
            tell(reason.english());
        };
        m_client = Association::create(m_loop.executor(), options, std::move(handlers));
        Awaited<Result<InitiateParameters>> opened;
        m_client->connect("127.0.0.1", m_peer.port(), opened.setter());
        acceptByHand(m_peer, m_stack, services);
        ASSERT_TRUE(opened.get().ok());
    }

    Pdu next()
    {
        while (m_events.empty()) {
            if (!m_peer.feed(m_stack, m_events))
                return ConcludeResponsePdu();
        }
        const auto pdu = decodePdu(std::get<osi::PduIndication>(m_events.front()).pdu);
        m_events.erase(m_events.begin());
        return pdu.ok() ? *pdu : Pdu();
    }

    std::shared_ptr<CountingDevice> m_counting = std::make_shared<CountingDevice>();
    RawPeer m_peer;
    osi::Stack m_stack{osi::Stack::Role::Responder, {}};
    std::vector<osi::StackEvent> m_events;
};

AssociationOptions keepingAlive(std::chrono::milliseconds silence)
{
    AssociationOptions options = quickOptions();
    options.keepAlive = silence;
    options.keepAliveTimeout = 150ms;
    return options;
}

} // namespace

TEST_F(KeepAlive, ASilentPeerIsNoticed)
{
    const auto begin = std::chrono::steady_clock::now();
    connectToPeer(keepingAlive(100ms));
    EXPECT_EQ(m_clientEnd.get(), "The peer gave no sign of life in time.");
    const auto took = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(took, 250ms);
    EXPECT_LT(took, 5s);
}

TEST_F(KeepAlive, StatusIsAskedForWhereThePeerHasItAndAnyAnswerIsASignOfLife)
{
    connectToPeer(keepingAlive(20ms), {Service::Status});
    for (int i = 0; i < 3; ++i) {
        const auto request = std::get<ConfirmedRequestPdu>(next());
        EXPECT_TRUE(std::holds_alternative<StatusRequest>(request.request));
        m_peer.send(m_stack
                        .send(encode(RejectPdu{request.invokeId, RejectedPdu::ConfirmedRequest,
                                               rejectcodes::requestUnrecognizedService}))
                        .octets);
    }
}

TEST_F(KeepAlive, AnAssociationWithAPeerThatAnswersStaysOpen)
{
    ASSERT_TRUE(connect(startServer(), keepingAlive(20ms)).ok());
    EXPECT_TRUE(m_counting->third.get());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
}

TEST_F(KeepAlive, WhatThePeerSendsByItselfIsASignOfLife)
{
    connectToPeer(keepingAlive(100ms));
    const auto request = std::get<ConfirmedRequestPdu>(next());
    EXPECT_TRUE(std::holds_alternative<IdentifyRequest>(request.request));
    // Instead of an answer comes a report; the association lives, and is asked again later.
    const InformationReport report{ObjectName::ofVmd("RPT"), {Data::float32(1.5F)}};
    m_peer.send(m_stack.send(encode(UnconfirmedPdu{report})).octets);
    const auto again = std::get<ConfirmedRequestPdu>(next());
    EXPECT_NE(again.invokeId, request.invokeId);
}

TEST_F(KeepAlive, CallsThatWaitForTheirAnswerAreNotDisturbed)
{
    AssociationOptions options = keepingAlive(20ms);
    options.maxOutstandingCalling = 1;
    connectToPeer(options);
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 400ms, outcome.setter());
    EXPECT_EQ(failureOf(outcome.get()), CallFailure::Kind::TimedOut);
    const auto request = std::get<ConfirmedRequestPdu>(next());
    EXPECT_TRUE(std::holds_alternative<IdentifyRequest>(request.request));
    m_peer.send(
        m_stack.send(encode(ConfirmedResponsePdu{request.invokeId, IdentifyResponse()})).octets);
    EXPECT_TRUE(std::holds_alternative<ConfirmedRequestPdu>(next()));
}

TEST_F(KeepAlive, AServerCutsOffAClientThatIsIdleForTooLong)
{
    ServerOptions server;
    server.association.idleLimit = 150ms;
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_TRUE(connect(startServer(server), quickOptions()).ok());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    EXPECT_EQ(m_device->end.get(), "The peer said nothing for 150 ms.");
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 150ms);
    EXPECT_EQ(m_clientEnd.get(), "The peer aborted the association.");
}

TEST_F(KeepAlive, AClientThatAsksForSignsOfLifeIsNotIdle)
{
    ServerOptions server;
    server.association.idleLimit = 1s;
    ASSERT_TRUE(connect(startServer(server), keepingAlive(400ms)).ok());
    EXPECT_TRUE(m_counting->third.get());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
}
