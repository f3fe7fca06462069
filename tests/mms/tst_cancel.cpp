// SPDX-License-Identifier: Apache-2.0
#include "mms/associationtest.h"

using namespace wiretest;

namespace {

/// Keeps status requests open and gives them up when it may.
class PatientDevice : public TestDevice
{
public:
    void request(const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                 RequestService request) override
    {
        if (std::holds_alternative<StatusRequest>(request))
            asked.setter()({association, invokeId});
        else
            TestDevice::request(association, invokeId, std::move(request));
    }

    bool cancel(const std::shared_ptr<Association> &, std::uint32_t) override { return givesUp; }

    bool givesUp = true;
    Awaited<std::pair<std::shared_ptr<Association>, std::uint32_t>> asked;
};

class Cancel : public AssociationTest
{
protected:
    Cancel() { m_device = m_patient; }

    /// A client and a hand-made peer that says that it knows Cancel, or not.
    void connectToPeer(bool knowsCancel)
    {
        Association::Handlers handlers;
        handlers.closed = [tell = m_clientEnd.setter()](const Text &reason) {
            tell(reason.english());
        };
        AssociationOptions options = quickOptions();
        options.maxOutstandingCalling = 1;
        m_client = Association::create(m_loop.executor(), options, std::move(handlers));
        Awaited<Result<InitiateParameters>> opened;
        m_client->connect("127.0.0.1", m_peer.port(), opened.setter());
        acceptByHand(m_peer, m_stack,
                     knowsCancel ? std::vector{Service::Cancel} : std::vector<Service>{});
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
        EXPECT_TRUE(pdu.ok());
        return pdu.ok() ? *pdu : Pdu();
    }

    void send(const Pdu &pdu) { m_peer.send(m_stack.send(encode(pdu)).octets); }

    /// Calls and gives up at once; the call's invoke id once the peer has it.
    std::uint32_t giveUpACall()
    {
        Awaited<CallOutcome> outcome;
        const auto id = m_client->call(StatusRequest(), 60s, outcome.setter());
        const Pdu request = next();
        EXPECT_TRUE(std::holds_alternative<ConfirmedRequestPdu>(request));
        m_client->cancel(id);
        EXPECT_EQ(failureOf(outcome.get()), CallFailure::Kind::Cancelled);
        return std::get<ConfirmedRequestPdu>(request).invokeId;
    }

    std::shared_ptr<PatientDevice> m_patient = std::make_shared<PatientDevice>();
    RawPeer m_peer;
    osi::Stack m_stack{osi::Stack::Role::Responder, {}};
    std::vector<osi::StackEvent> m_events;
};

const IdentifyResponse somebody{"v", "m", "r", {}};

} // namespace

TEST_F(Cancel, aPeerThatKnowsCancelIsToldOfACallThatIsGivenUp)
{
    connectToPeer(true);
    const std::uint32_t invokeId = giveUpACall();
    EXPECT_EQ(next(), Pdu(CancelRequestPdu{invokeId}));
    // The error that ends the call frees its place, the answer to the cancel does not.
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 60s, outcome.setter());
    send(CancelResponsePdu{invokeId});
    send(ConfirmedErrorPdu{
        invokeId, {}, {ErrorClass::ServicePreempt, serviceerrors::preemptCancel, {}, {}, {}}});
    const auto request = std::get<ConfirmedRequestPdu>(next());
    EXPECT_NE(request.invokeId, invokeId);
    send(ConfirmedResponsePdu{request.invokeId, somebody});
    EXPECT_NE(answerOf<IdentifyResponse>(outcome.get()), nullptr);
    EXPECT_EQ(m_client->counters().late, 1U);
}

TEST_F(Cancel, aPeerIsToldOfACallWhoseDeadlinePassed)
{
    connectToPeer(true);
    EXPECT_EQ(failureOf(call(StatusRequest(), 50ms)), CallFailure::Kind::TimedOut);
    const auto request = std::get<ConfirmedRequestPdu>(next());
    EXPECT_EQ(next(), Pdu(CancelRequestPdu{request.invokeId}));
}

TEST_F(Cancel, aCallThatThePeerDoesNotKnowAnyMoreFreesItsPlace)
{
    connectToPeer(true);
    const std::uint32_t invokeId = giveUpACall();
    next();
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 60s, outcome.setter());
    send(CancelErrorPdu{invokeId,
                        {ErrorClass::Cancel, serviceerrors::cancelInvokeIdUnknown, {}, {}, {}}});
    const auto request = std::get<ConfirmedRequestPdu>(next());
    send(ConfirmedResponsePdu{request.invokeId, somebody});
    EXPECT_NE(answerOf<IdentifyResponse>(outcome.get()), nullptr);
}

TEST_F(Cancel, aRejectedCancelEndsNoCallAndIsNotRepeated)
{
    connectToPeer(true);
    const std::uint32_t invokeId = giveUpACall();
    EXPECT_EQ(next(), Pdu(CancelRequestPdu{invokeId}));
    send(RejectPdu{invokeId, RejectedPdu::CancelRequest, 0});
    send(ConfirmedResponsePdu{invokeId, somebody});
    const std::uint32_t second = giveUpACall();
    send(ConfirmedResponsePdu{second, somebody});
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 60s, outcome.setter());
    const auto request = std::get<ConfirmedRequestPdu>(next());
    send(ConfirmedResponsePdu{request.invokeId, somebody});
    EXPECT_NE(answerOf<IdentifyResponse>(outcome.get()), nullptr);
    EXPECT_EQ(m_client->counters().late, 2U);
}

TEST_F(Cancel, aPeerThatDoesNotKnowCancelIsNotAsked)
{
    connectToPeer(false);
    const std::uint32_t invokeId = giveUpACall();
    send(ConfirmedResponsePdu{invokeId, somebody});
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 60s, outcome.setter());
    const auto request = std::get<ConfirmedRequestPdu>(next());
    send(ConfirmedResponsePdu{request.invokeId, somebody});
    EXPECT_NE(answerOf<IdentifyResponse>(outcome.get()), nullptr);
}

TEST_F(Cancel, aServerGivesUpARequestAndDropsItsLateAnswer)
{
    ServerOptions server;
    server.association.services.set(static_cast<std::size_t>(Service::Cancel));
    std::vector<std::string> lines;
    AssociationOptions options = quickOptions();
    options.link.trace = [&lines](osi::Direction direction, Bytes pdu) {
        if (direction == osi::Direction::Received)
            lines.push_back(toText(*decodePdu(pdu)));
    };
    ASSERT_TRUE(connect(startServer(server), options).ok());
    Awaited<CallOutcome> outcome;
    const auto id = m_client->call(StatusRequest(), 60s, outcome.setter());
    const auto [association, invokeId] = m_patient->asked.get();
    m_client->cancel(id);
    EXPECT_EQ(failureOf(outcome.get()), CallFailure::Kind::Cancelled);
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    association->respond(invokeId, StatusResponse());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[1], "cancel-ResponsePDU 1");
    EXPECT_EQ(lines[2].find("confirmed-ErrorPDU 1 service-preempt"), 0U) << lines[2];
}

TEST_F(Cancel, aServerThatGoesOnAnswersTheRequestAllTheSame)
{
    m_patient->givesUp = false;
    ServerOptions server;
    server.association.services.set(static_cast<std::size_t>(Service::Cancel));
    ASSERT_TRUE(connect(startServer(server), quickOptions()).ok());
    Awaited<CallOutcome> outcome;
    const auto id = m_client->call(StatusRequest(), 60s, outcome.setter());
    const auto [association, invokeId] = m_patient->asked.get();
    m_client->cancel(id);
    EXPECT_EQ(failureOf(outcome.get()), CallFailure::Kind::Cancelled);
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    EXPECT_EQ(m_client->counters().late, 0U);
    association->respond(invokeId, StatusResponse());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    EXPECT_EQ(m_client->counters().late, 1U);
}

TEST_F(Cancel, aServerSaysThatItDoesNotKnowTheInvokeId)
{
    RawPeer peer;
    peer.connect(startServer());
    osi::Stack stack(osi::Stack::Role::Initiator, {});
    InitiateParameters parameters;
    parameters.maxPduSize = 65000;
    peer.send(stack.connect(encode(InitiateRequestPdu{parameters})).octets);
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    peer.send(stack.send(encode(CancelRequestPdu{77})).octets);
    events.clear();
    ASSERT_TRUE(peer.feed(stack, events));
    const auto pdu = decodePdu(std::get<osi::PduIndication>(events.front()).pdu);
    ASSERT_TRUE(pdu.ok());
    const CancelErrorPdu unknown{
        77, {ErrorClass::Cancel, serviceerrors::cancelInvokeIdUnknown, {}, {}, {}}};
    EXPECT_EQ(*pdu, Pdu(unknown));
}
