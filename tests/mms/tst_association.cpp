// SPDX-License-Identifier: Apache-2.0
#include "mms/associationtest.h"
#include "mms/shorthand.h"
#include "osi/hostlookup.h"

#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>
#include <asio/post.hpp>

#include <future>
#include <stdexcept>
#include <thread>

using namespace wiretest;

TEST_F(AssociationTest, initiatesIdentifiesReadsAndConcludes)
{
    const auto negotiated = connect(startServer(), quickOptions());
    ASSERT_TRUE(negotiated.ok()) << negotiated.error().message;
    EXPECT_EQ(negotiated->maxPduSize, 65000);
    EXPECT_EQ(negotiated->maxOutstandingCalling, 5);
    const auto who = call(IdentifyRequest());
    ASSERT_NE(answerOf<IdentifyResponse>(who), nullptr) << failureText(who);
    EXPECT_EQ(answerOf<IdentifyResponse>(who)->vendor, "vendor");
    const auto read = call(ReadRequest{false, variablesOf("LD", {"a", "b", "c"})});
    ASSERT_NE(answerOf<ReadResponse>(read), nullptr) << failureText(read);
    EXPECT_EQ(answerOf<ReadResponse>(read)->results.size(), 3U);
    EXPECT_EQ(answerOf<ReadResponse>(read)->results[2], AccessResult(Data::unsignedInteger(2)));
    Awaited<Result<void>> concluded;
    m_client->conclude(concluded.setter());
    const auto result = concluded.get();
    EXPECT_TRUE(result.ok()) << result.error().message;
    EXPECT_EQ(m_clientEnd.get(), "The association was released.");
    EXPECT_EQ(m_device->end.get(), "The association was released.");
    EXPECT_EQ(failureOf(call(IdentifyRequest())), CallFailure::Kind::NotOpen);
}

TEST_F(AssociationTest, coroutinesConnectCallAndConclude)
{
    const std::uint16_t port = startServer();
    m_client = Association::create(m_loop.executor(), quickOptions(), {});
    Awaited<std::string> done;
    asio::co_spawn(
        m_loop.executor(),
        [client = m_client, port, finish = done.setter()]() -> asio::awaitable<void> {
            const auto opened = co_await client->connect("127.0.0.1", port);
            if (!opened) {
                finish(opened.error().message.english());
                co_return;
            }
            const auto outcome = co_await client->call(IdentifyRequest(), 10s);
            const auto concluded = co_await client->conclude();
            const auto *who = answerOf<IdentifyResponse>(outcome);
            finish(who && concluded ? who->model : failureText(outcome).english());
        },
        asio::detached);
    EXPECT_EQ(done.get(), "model");
}

TEST_F(AssociationTest, errorsAndRejectsOfTheServiceReachTheCaller)
{
    ASSERT_TRUE(connect(startServer(), quickOptions()).ok());
    const auto refused = call(FileDeleteRequest{{"x"}});
    const auto *error = std::get_if<ServiceError>(&refused);
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->errorClass, ErrorClass::File);
    EXPECT_FALSE(failureText(refused).empty());
    const auto rejected = call(FileCloseRequest{1});
    ASSERT_TRUE(std::holds_alternative<RejectPdu>(rejected));
    EXPECT_EQ(std::get<RejectPdu>(rejected).code, rejectcodes::requestUnrecognizedService);
}

TEST_F(AssociationTest, reportsReachTheClient)
{
    m_device->reportOnOpening = true;
    Awaited<InformationReport> report;
    Association::Handlers handlers;
    handlers.report = report.setter();
    ASSERT_TRUE(connect(startServer(), quickOptions(), std::move(handlers)).ok());
    EXPECT_EQ(report.get(), (InformationReport{ObjectName::ofVmd("RPT"), {Data::float32(1.5F)}}));
}

TEST_F(AssociationTest, thePduSizeIsKeptInBothDirections)
{
    AssociationOptions options = quickOptions();
    options.maxPduSize = 10;
    const auto negotiated = connect(startServer(), options);
    ASSERT_TRUE(negotiated.ok());
    EXPECT_EQ(negotiated->maxPduSize, smallestPduSize);
    const std::vector<std::string> many(200, "LLN0$ST$Mod");
    EXPECT_EQ(failureOf(call(ReadRequest{false, variablesOf("LD", many)})),
              CallFailure::Kind::TooLarge);
    const auto tooLong = call(GetNameListRequest());
    ASSERT_TRUE(std::holds_alternative<ServiceError>(tooLong));
    EXPECT_EQ(std::get<ServiceError>(tooLong).errorClass, ErrorClass::Resource);
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
}

TEST_F(AssociationTest, longAnswersArriveThroughManyTransportUnits)
{
    AssociationOptions options = quickOptions();
    options.link.stack.transport.unitSize = 128;
    ServerOptions server;
    server.association.maxPduSize = 200000;
    options.maxPduSize = 200000;
    ASSERT_TRUE(connect(startServer(server), options).ok());
    const auto names = call(GetNameListRequest());
    ASSERT_NE(answerOf<GetNameListResponse>(names), nullptr) << failureText(names);
    EXPECT_EQ(answerOf<GetNameListResponse>(names)->names.size(), 9000U);
}

TEST_F(AssociationTest, aCallWithoutAnswerEndsAtItsDeadlineAndOthersGoOn)
{
    ASSERT_TRUE(connect(startServer(), quickOptions()).ok());
    Awaited<CallOutcome> silent;
    const auto begin = std::chrono::steady_clock::now();
    m_client->call(StatusRequest(), 150ms, silent.setter());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    EXPECT_EQ(failureOf(silent.get()), CallFailure::Kind::TimedOut);
    const auto took = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(took, 150ms);
    EXPECT_LT(took, 3s);
}

TEST_F(AssociationTest, callsBeyondTheOutstandingLimitWaitAndAllAreAnswered)
{
    ServerOptions server;
    server.association.maxOutstandingCalled = 3;
    const auto negotiated = connect(startServer(server), quickOptions());
    ASSERT_TRUE(negotiated.ok());
    EXPECT_EQ(negotiated->maxOutstandingCalling, 3);
    constexpr int calls = 500;
    std::atomic<int> answers{0};
    Awaited<int> all;
    for (int i = 0; i < calls; ++i) {
        m_client->call(IdentifyRequest(), 30s,
                       [&answers, done = all.setter()](const CallOutcome &outcome) {
                           EXPECT_NE(answerOf<IdentifyResponse>(outcome), nullptr);
                           if (++answers == calls)
                               done(calls);
                       });
    }
    EXPECT_EQ(all.get(), calls);
}

TEST_F(AssociationTest, aCancelledCallEndsAtOnce)
{
    ASSERT_TRUE(connect(startServer(), quickOptions()).ok());
    Awaited<CallOutcome> outcome;
    const auto id = m_client->call(StatusRequest(), 60s, outcome.setter());
    m_client->cancel(id);
    EXPECT_EQ(failureOf(outcome.get()), CallFailure::Kind::Cancelled);
}

TEST_F(AssociationTest, anAbortEndsCallsOnThisSideAndTheAssociationOnTheOther)
{
    ASSERT_TRUE(connect(startServer(), quickOptions()).ok());
    Awaited<CallOutcome> outcome;
    m_client->call(StatusRequest(), 60s, outcome.setter());
    m_client->abort(mms::verbatim("The operator gave up."));
    const auto lost = outcome.get();
    EXPECT_EQ(failureOf(lost), CallFailure::Kind::Lost);
    EXPECT_EQ(failureText(lost), "The operator gave up.");
    EXPECT_EQ(m_device->end.get(), "The peer aborted the association.");
}

TEST_F(AssociationTest, onlyTheRightPasswordOpensAnAssociation)
{
    ServerOptions server;
    server.association.link.stack.association.authentication =
        osi::acse::Authentication{osi::acse::passwordMechanism, fromHex("736563726574")};
    const std::uint16_t port = startServer(server);
    const auto without = connect(port, quickOptions());
    ASSERT_FALSE(without.ok());
    EXPECT_NE(without.error().message.english().find("an authentication is required"),
              std::string::npos);
    AssociationOptions wrong = quickOptions();
    wrong.link.stack.association.authentication =
        osi::acse::Authentication{osi::acse::passwordMechanism, fromHex("00")};
    EXPECT_FALSE(connect(port, wrong).ok());
    EXPECT_EQ(m_device->openings, 0);
    AssociationOptions right = quickOptions();
    right.link.stack.association.authentication =
        server.association.link.stack.association.authentication;
    EXPECT_TRUE(connect(port, right).ok());
}

TEST_F(AssociationTest, aServerTakesTheSmallPduSizeThatAPeerProposes)
{
    const std::uint16_t port = startServer();
    RawPeer peer;
    peer.connect(port);
    osi::Stack stack(osi::Stack::Role::Initiator, {});
    InitiateParameters parameters;
    parameters.maxPduSize = 512;
    peer.send(stack.connect(encode(InitiateRequestPdu{parameters})).octets);
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    const auto *confirm = std::get_if<osi::AssociateConfirm>(&events.front());
    ASSERT_TRUE(confirm);
    const auto pdu = decodePdu(confirm->pdu);
    ASSERT_TRUE(pdu.ok());
    const auto *response = std::get_if<InitiateResponsePdu>(&*pdu);
    ASSERT_TRUE(response);
    EXPECT_EQ(response->parameters.maxPduSize, 512);
}

TEST_F(AssociationTest, aServerRefusesAPduSizeThatIsTooSmallToWorkWith)
{
    const std::uint16_t port = startServer();
    RawPeer peer;
    peer.connect(port);
    osi::Stack stack(osi::Stack::Role::Initiator, {});
    InitiateParameters parameters;
    parameters.maxPduSize = 63;
    peer.send(stack.connect(encode(InitiateRequestPdu{parameters})).octets);
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    ASSERT_TRUE(std::holds_alternative<osi::AssociateRefused>(events.front()));
    const auto pdu = decodePdu(std::get<osi::AssociateRefused>(events.front()).pdu);
    ASSERT_TRUE(pdu.ok());
    EXPECT_EQ(std::get<InitiateErrorPdu>(*pdu).error.errorClass, ErrorClass::Initiate);
    EXPECT_TRUE(peer.receive().empty());
}

TEST_F(AssociationTest, connectionsBeyondTheLimitAreClosedAndTheOthersLive)
{
    ServerOptions server;
    server.maxAssociations = 1;
    const std::uint16_t port = startServer(server);
    ASSERT_TRUE(connect(port, quickOptions()).ok());
    RawPeer second;
    second.connect(port);
    EXPECT_TRUE(second.receive().empty());
    EXPECT_EQ(m_device->refusals, 1);
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
}

TEST_F(AssociationTest, aServerCutsOffAPeerThatSaysNothing)
{
    ServerOptions server;
    server.association.link.establishTimeout = 100ms;
    RawPeer peer;
    peer.connect(startServer(server));
    EXPECT_TRUE(peer.receive().empty());
}

TEST_F(AssociationTest, aServerCutsOffAPeerThatDoesNotReadAnswers)
{
    ServerOptions server;
    server.association.link.sendTimeout = 200ms;
    server.association.maxPduSize = 200000;
    server.association.maxOutstandingCalled = 2000;
    RawPeer peer;
    peer.connect(startServer(server));
    osi::Stack stack(osi::Stack::Role::Initiator, {});
    InitiateParameters parameters;
    parameters.maxPduSize = 200000;
    parameters.maxOutstandingCalling = 2000;
    peer.send(stack.connect(encode(InitiateRequestPdu{parameters})).octets);
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    Octets requests;
    for (std::uint32_t i = 0; i < 200; ++i) {
        const auto octets = stack.send(encode(ConfirmedRequestPdu{i, GetNameListRequest()})).octets;
        requests.insert(requests.end(), octets.begin(), octets.end());
    }
    peer.send(requests);
    EXPECT_EQ(m_device->end.get(), "The peer does not read what it is sent.");
}

TEST_F(AssociationTest, theFirstCallAfterASilenceIsOnItsWayBeforeTheCallerGoesOn)
{
    RawPeer peer;
    osi::Stack stack(osi::Stack::Role::Responder, {});
    connectToRawPeer(peer, stack);
    std::promise<void> arrived;
    Awaited<bool> wasInTime;
    // While the handler holds the strand, nothing but the call itself can send.
    m_client->call(IdentifyRequest(), 20s,
                   [this, hasArrived = arrived.get_future().share(),
                    set = wasInTime.setter()](const CallOutcome &) {
                       m_client->call(IdentifyRequest(), 20s, [](const CallOutcome &) {});
                       set(hasArrived.wait_for(10s) == std::future_status::ready);
                   });
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    const auto head = peekPdu(std::get<osi::PduIndication>(events.front()).pdu);
    ASSERT_TRUE(head && head->invokeId);
    std::this_thread::sleep_for(20ms); // the silence
    const IdentifyResponse who{"v", "m", "r", {}};
    peer.send(stack.send(encode(ConfirmedResponsePdu{*head->invokeId, who})).octets);
    events.clear();
    ASSERT_TRUE(peer.feed(stack, events));
    arrived.set_value();
    EXPECT_TRUE(wasInTime.get());
}

TEST_F(AssociationTest, whoWaitsForAnAnswerGoesOnBeforeTheContextTurnsToOthers)
{
    const std::uint16_t port = startServer();
    const auto haveOthersRun = std::make_shared<bool>(false);
    AssociationOptions options = quickOptions();
    options.link.trace = [this, haveOthersRun](osi::Direction direction, Bytes) {
        if (direction == osi::Direction::Received)
            asio::post(m_client->strand(), [haveOthersRun] { *haveOthersRun = true; });
    };
    ASSERT_TRUE(connect(port, options).ok());
    Awaited<bool> wasLast;
    const auto wait = [haveOthersRun, client = m_client,
                       tell = wasLast.setter()]() -> asio::awaitable<void> {
        *haveOthersRun = false;
        const CallOutcome outcome = co_await client->call(IdentifyRequest(), 10s);
        tell(*haveOthersRun || !answerOf<IdentifyResponse>(outcome));
    };
    asio::co_spawn(m_client->strand(), wait, asio::detached);
    EXPECT_FALSE(wasLast.get());
}

TEST_F(AssociationTest, anAssociationInAStrandUsesThatStrand)
{
    const osi::Strand strand = osi::strandOn(m_loop.executor());
    EXPECT_EQ(Association::create(strand, quickOptions(), {})->strand(), strand);
    EXPECT_NE(Association::create(m_loop.executor(), quickOptions(), {})->strand(), strand);
}

TEST_F(AssociationTest, whatTheNetworkDoesNotTakeAtOnceFollowsWhole)
{
    // More than the buffers of both ends hold.
    constexpr std::int32_t pduSize = 14000000;
    RawPeer peer;
    osi::StackOptions patient;
    patient.transport.maxMessage = static_cast<std::size_t>(pduSize);
    osi::Stack stack(osi::Stack::Role::Responder, patient);
    AssociationOptions options = quickOptions();
    options.maxPduSize = pduSize;
    m_client = Association::create(m_loop.executor(), options, {});
    Awaited<Result<InitiateParameters>> opened;
    m_client->connect("127.0.0.1", peer.port(), opened.setter());
    acceptByHand(peer, stack);
    ASSERT_TRUE(opened.get().ok());
    std::this_thread::sleep_for(20ms); // the silence
    Octets octets(13000000);
    for (std::size_t i = 0; i < octets.size(); ++i)
        octets[i] = static_cast<std::uint8_t>(i % 251);
    const WriteRequest request{variablesOf("LD", {"a"}), {Data::octetString(octets)}};
    Awaited<CallOutcome> first;
    Awaited<CallOutcome> second;
    m_client->call(request, 20s, first.setter());
    m_client->call(IdentifyRequest(), 20s, second.setter());
    std::vector<Pdu> arrived;
    while (arrived.size() < 2) {
        std::vector<osi::StackEvent> events;
        ASSERT_TRUE(peer.feed(stack, events));
        for (const osi::StackEvent &event : events) {
            auto pdu = decodePdu(std::get<osi::PduIndication>(event).pdu);
            ASSERT_TRUE(pdu.ok());
            arrived.push_back(*std::move(pdu));
        }
    }
    EXPECT_EQ(std::get<WriteRequest>(std::get<ConfirmedRequestPdu>(arrived[0]).request), request);
    EXPECT_TRUE(
        std::holds_alternative<IdentifyRequest>(std::get<ConfirmedRequestPdu>(arrived[1]).request));
}

TEST_F(AssociationTest, garbageInsteadOfAnAssociationIsCutOff)
{
    ServerOptions server;
    server.association.link.establishTimeout = 200ms;
    const std::uint16_t port = startServer(server);
    for (const std::string_view garbage : {"474554202f20485454502f312e310d0a0d0a", "0300000702f080",
                                           "03000005ff", "030000", "0300000b06e0000000010000"}) {
        RawPeer peer;
        peer.connect(port);
        peer.send(fromHex(garbage));
        peer.send(fromHex("47"));
        while (!peer.receive().empty()) {
        }
    }
    EXPECT_TRUE(connect(port, quickOptions()).ok());
}

TEST_F(AssociationTest, aSilentPeerEndsTheAttemptToConnectInTime)
{
    RawPeer peer;
    AssociationOptions options = quickOptions();
    options.link.establishTimeout = 150ms;
    const auto begin = std::chrono::steady_clock::now();
    const auto opened = connect(peer.port(), options);
    ASSERT_FALSE(opened.ok());
    EXPECT_EQ(opened.error().message, "The peer did not complete the association in time.");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 3s);
}

TEST_F(AssociationTest, aRefusedConnectionIsSaidWithHostAndPort)
{
    const std::uint16_t port = RawPeer().port();
    const auto opened = connect(port, quickOptions());
    ASSERT_FALSE(opened.ok());
    EXPECT_NE(opened.error().message.english().find("127.0.0.1 port " + std::to_string(port)),
              std::string::npos);
}

TEST_F(AssociationTest, aConclusionThatIsNotAnsweredEndsByItsDeadline)
{
    RawPeer peer;
    osi::Stack stack(osi::Stack::Role::Responder, {});
    Association::Handlers handlers;
    AssociationOptions options = quickOptions();
    options.link.releaseTimeout = 150ms;
    m_client = Association::create(m_loop.executor(), options, std::move(handlers));
    Awaited<Result<InitiateParameters>> opened;
    m_client->connect("127.0.0.1", peer.port(), opened.setter());
    acceptByHand(peer, stack);
    ASSERT_TRUE(opened.get().ok());
    Awaited<Result<void>> concluded;
    m_client->conclude(concluded.setter());
    const auto result = concluded.get();
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().message, "The peer did not answer the release in time.");
}

TEST_F(AssociationTest, lateAndUnknownAnswersAreCountedAndDropped)
{
    RawPeer peer;
    osi::Stack stack(osi::Stack::Role::Responder, {});
    connectToRawPeer(peer, stack);
    EXPECT_EQ(failureOf(call(StatusRequest(), 50ms)), CallFailure::Kind::TimedOut);
    const IdentifyResponse who{"v", "m", "r", {}};
    peer.send(stack.send(encode(ConfirmedResponsePdu{1, who})).octets);
    peer.send(stack.send(encode(ConfirmedResponsePdu{4711, who})).octets);
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 10s, outcome.setter());
    peer.send(stack.send(encode(ConfirmedResponsePdu{2, who})).octets);
    // The answer may overtake the call; then it is unknown, and the next one comes.
    std::vector<osi::StackEvent> events;
    while (peer.feed(stack, events)) {
        const auto head = peekPdu(std::get<osi::PduIndication>(events.back()).pdu);
        if (head && head->invokeId == 2U)
            break;
        events.clear();
    }
    peer.send(stack.send(encode(ConfirmedResponsePdu{2, who})).octets);
    EXPECT_NE(answerOf<IdentifyResponse>(outcome.get()), nullptr);
    EXPECT_EQ(m_client->counters().late, 1U);
    EXPECT_GE(m_client->counters().unknown, 1U);
}

TEST_F(AssociationTest, aMalformedAnswerIsRejectedAndEndsOnlyItsCall)
{
    RawPeer peer;
    osi::Stack stack(osi::Stack::Role::Responder, {});
    connectToRawPeer(peer, stack);
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 10s, outcome.setter());
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    peer.send(stack.send(fromHex("a107 020101 a202 8005")).octets);
    EXPECT_EQ(failureOf(outcome.get()), CallFailure::Kind::Malformed);
    events.clear();
    ASSERT_TRUE(peer.feed(stack, events));
    const auto rejected = decodePdu(std::get<osi::PduIndication>(events.front()).pdu);
    ASSERT_TRUE(rejected.ok());
    EXPECT_EQ(std::get<RejectPdu>(*rejected),
              (RejectPdu{1, RejectedPdu::ConfirmedResponse, rejectcodes::responseInvalidResult}));
    EXPECT_EQ(m_client->counters().malformed, 1U);
}

TEST_F(AssociationTest, aMalformedRequestIsRejectedByTheServer)
{
    RawPeer peer;
    peer.connect(startServer());
    osi::Stack stack(osi::Stack::Role::Initiator, {});
    InitiateParameters parameters;
    parameters.maxPduSize = 65000;
    peer.send(stack.connect(encode(InitiateRequestPdu{parameters})).octets);
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    peer.send(stack.send(fromHex("a006 020109 a401 00")).octets);
    events.clear();
    ASSERT_TRUE(peer.feed(stack, events));
    const auto rejected = decodePdu(std::get<osi::PduIndication>(events.front()).pdu);
    ASSERT_TRUE(rejected.ok());
    EXPECT_EQ(std::get<RejectPdu>(*rejected),
              (RejectPdu{9, RejectedPdu::ConfirmedRequest, rejectcodes::requestInvalidArgument}));
    peer.send(stack.send(fromHex("bf7f00")).octets);
    events.clear();
    ASSERT_TRUE(peer.feed(stack, events));
    const auto unknown = decodePdu(std::get<osi::PduIndication>(events.front()).pdu);
    EXPECT_EQ(std::get<RejectPdu>(*unknown).rejected, RejectedPdu::PduError);
}

TEST_F(AssociationTest, aLostConnectionEndsAllCallsAndSaysSo)
{
    RawPeer peer;
    osi::Stack stack(osi::Stack::Role::Responder, {});
    connectToRawPeer(peer, stack);
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 60s, outcome.setter());
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    peer.close();
    EXPECT_EQ(failureOf(outcome.get()), CallFailure::Kind::Lost);
    EXPECT_EQ(m_clientEnd.get(), "The peer closed the network connection.");
}

TEST_F(AssociationTest, theTraceSeesEveryPduInBothDirections)
{
    AssociationOptions options = quickOptions();
    std::vector<std::string> lines;
    options.link.trace = [&lines](osi::Direction direction, Bytes pdu) {
        lines.push_back((direction == osi::Direction::Sent ? "> " : "< ") +
                        std::to_string(peekPdu(pdu)->type));
    };
    ASSERT_TRUE(connect(startServer(), options).ok());
    call(IdentifyRequest());
    Awaited<Result<void>> concluded;
    m_client->conclude(concluded.setter());
    EXPECT_TRUE(concluded.get().ok());
    EXPECT_EQ(m_clientEnd.get(), "The association was released.");
    EXPECT_EQ(lines, (std::vector<std::string>{"> 8", "< 9", "> 0", "< 1", "> 11", "< 12"}));
}

namespace {

class ThrowingDevice : public TestDevice
{
public:
    void request(const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                 RequestService request) override
    {
        if (std::holds_alternative<StatusRequest>(request))
            throw std::runtime_error("no status");
        TestDevice::request(association, invokeId, std::move(request));
    }
};

} // namespace

TEST_F(AssociationTest, aHandlerThatThrowsEndsItsAssociationAndNoOther)
{
    m_device = std::make_shared<ThrowingDevice>();
    const std::uint16_t port = startServer();
    ASSERT_TRUE(connect(port, quickOptions()).ok());
    EXPECT_EQ(failureOf(call(StatusRequest())), CallFailure::Kind::Lost);
    EXPECT_EQ(m_device->end.get(), "An internal error ended the association: no status.");
    ASSERT_TRUE(connect(port, quickOptions()).ok());
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
}

TEST_F(AssociationTest, concludingWaitsForTheCallsThatAreUnderWay)
{
    RawPeer peer;
    osi::Stack stack{osi::Stack::Role::Responder, {}};
    connectToRawPeer(peer, stack);
    std::vector<osi::StackEvent> events;
    const auto next = [&]() -> Pdu {
        while (events.empty()) {
            if (!peer.feed(stack, events))
                return RejectPdu();
        }
        const auto pdu = decodePdu(std::get<osi::PduIndication>(events.front()).pdu);
        events.erase(events.begin());
        return pdu.ok() ? *pdu : Pdu();
    };
    Awaited<CallOutcome> outcome;
    m_client->call(IdentifyRequest(), 10s, outcome.setter());
    const auto request = std::get<ConfirmedRequestPdu>(next());
    Awaited<Result<void>> concluded;
    m_client->conclude(concluded.setter());
    Awaited<CallOutcome> refused;
    m_client->call(IdentifyRequest(), 10s, refused.setter());
    const auto tooLate = refused.get();
    EXPECT_EQ(failureText(tooLate), "The association is being concluded.");
    peer.send(
        stack.send(encode(ConfirmedResponsePdu{request.invokeId, IdentifyResponse()})).octets);
    EXPECT_NE(answerOf<IdentifyResponse>(outcome.get()), nullptr);
    EXPECT_TRUE(std::holds_alternative<ConcludeRequestPdu>(next()));
    peer.close();
    EXPECT_FALSE(concluded.get().ok());
}

TEST_F(AssociationTest, callsWithoutAnAnswerAreGivenUpWhenTheAssociationIsConcluded)
{
    AssociationOptions options = quickOptions();
    options.concludePatience = 50ms;
    ASSERT_TRUE(connect(startServer(), options).ok());
    Awaited<CallOutcome> outcome;
    m_client->call(StatusRequest(), 1h, outcome.setter());
    Awaited<Result<void>> concluded;
    m_client->conclude(concluded.setter());
    const auto given = outcome.get();
    EXPECT_EQ(failureOf(given), CallFailure::Kind::Cancelled);
    EXPECT_EQ(failureText(given), "The association is being concluded.");
    // The server still works on the call, so it does not conclude; the client does not wait longer
    // than for any release.
    m_client->abort(mms::verbatim("Enough."));
    EXPECT_FALSE(concluded.get().ok());
}

TEST_F(AssociationTest, aServerConcludesAfterItsAnswers)
{
    class SlowDevice : public TestDevice
    {
    public:
        void request(const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                     RequestService) override
        {
            asked.setter()({association, invokeId});
        }
        Awaited<std::pair<std::shared_ptr<Association>, std::uint32_t>> asked;
    };
    const auto device = std::make_shared<SlowDevice>();
    m_device = device;
    const std::uint16_t port = startServer();
    RawPeer peer;
    peer.connect(port);
    osi::Stack stack{osi::Stack::Role::Initiator, {}};
    peer.send(stack.connect(encode(InitiateRequestPdu{InitiateParameters()})).octets);
    std::vector<osi::StackEvent> events;
    ASSERT_TRUE(peer.feed(stack, events));
    ASSERT_TRUE(std::holds_alternative<osi::AssociateConfirm>(events.front()));
    events.clear();
    peer.send(stack.send(encode(ConfirmedRequestPdu{7, IdentifyRequest()})).octets);
    peer.send(stack.send(encode(ConcludeRequestPdu())).octets);
    const auto [association, invokeId] = device->asked.get();
    association->respond(invokeId, IdentifyResponse());
    std::vector<Pdu> answers;
    while (answers.size() < 2 && peer.feed(stack, events)) {
        for (const osi::StackEvent &event : events)
            answers.push_back(*decodePdu(std::get<osi::PduIndication>(event).pdu));
        events.clear();
    }
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_TRUE(std::holds_alternative<ConfirmedResponsePdu>(answers[0]));
    EXPECT_TRUE(std::holds_alternative<ConcludeResponsePdu>(answers[1]));
}

TEST_F(AssociationTest, aCallThatFoundNoPlaceSaysSo)
{
    AssociationOptions options = quickOptions();
    options.maxOutstandingCalling = 1;
    ASSERT_TRUE(connect(startServer(), options).ok());
    const auto first = call(StatusRequest(), 50ms);
    ASSERT_EQ(failureOf(first), CallFailure::Kind::TimedOut);
    EXPECT_TRUE(std::get<CallFailure>(first).wasSent);
    const auto second = call(IdentifyRequest(), 50ms);
    ASSERT_EQ(failureOf(second), CallFailure::Kind::TimedOut);
    EXPECT_FALSE(std::get<CallFailure>(second).wasSent);
    EXPECT_EQ(failureText(second), "The request was not sent: it waited for a place behind calls "
                                   "that the peer has not answered.");
}

TEST_F(AssociationTest, aCallThatLeavesItsPlaceHoldsNobodyUp)
{
    AssociationOptions options = quickOptions();
    options.maxOutstandingCalling = 1;
    options.grace = 1h;
    ASSERT_TRUE(connect(startServer(), options).ok());
    Awaited<CallOutcome> outcome;
    m_client->call(StatusRequest(), 50ms, outcome.setter(), GivenUpCall::LeavesItsPlace);
    EXPECT_EQ(failureOf(outcome.get()), CallFailure::Kind::TimedOut);
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
}

TEST_F(AssociationTest, connectionsOfOnePeerThatAreNoAssociationsAreLimited)
{
    ServerOptions server;
    server.maxHalfOpenOfPeer = 2;
    const std::uint16_t port = startServer(server);
    RawPeer first;
    RawPeer second;
    first.connect(port);
    second.connect(port);
    RawPeer third;
    third.connect(port);
    EXPECT_TRUE(third.receive().empty());
    EXPECT_EQ(m_device->refusals, 1);
    // A place is free again once one has gone, or has become an association.
    first.close();
    Result<InitiateParameters> opened = Error{mms::verbatim("not tried"), 0};
    for (int attempt = 0; attempt < 100 && !opened; ++attempt)
        opened = connect(port, quickOptions());
    EXPECT_TRUE(opened.ok());
    RawPeer fourth;
    fourth.connect(port);
    EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    second.close();
    fourth.close();
}

TEST(HostLookup, addressesAreTakenAsTheyAre)
{
    EXPECT_EQ(osi::numericAddress("10.1.2.3"), asio::ip::make_address("10.1.2.3"));
    EXPECT_EQ(osi::numericAddress("::1"), asio::ip::make_address("::1"));
    EXPECT_EQ(osi::numericAddress("[::1]"), asio::ip::make_address("::1"));
    EXPECT_FALSE(osi::numericAddress("bay1.example"));
    EXPECT_FALSE(osi::numericAddress("10.1.2"));
    EXPECT_FALSE(osi::numericAddress("[]"));
    EXPECT_FALSE(osi::numericAddress(""));
}

TEST(HostLookup, aNameIsAskedForOnceAtATime)
{
    std::promise<void> gate;
    const auto opened = gate.get_future().share();
    std::atomic<int> asked{0};
    const auto slow = [&asked, opened](const std::string &) {
        ++asked;
        opened.wait();
        return osi::HostAddresses{{asio::ip::make_address("10.1.2.3")}, {}};
    };
    Awaited<osi::HostAddresses> first;
    Awaited<osi::HostAddresses> second;
    const osi::HostLookup one("twice.example", slow, first.setter());
    const osi::HostLookup two("twice.example", slow, second.setter());
    {
        // Nobody hears of what was let go.
        const osi::HostLookup forgotten("twice.example", slow,
                                        [](const osi::HostAddresses &) { FAIL(); });
    }
    gate.set_value();
    EXPECT_EQ(first.get().addresses, second.get().addresses);
    EXPECT_EQ(asked, 1);
}

TEST(HostLookup, aFunctionThatThrowsFoundNothing)
{
    Awaited<osi::HostAddresses> found;
    const osi::HostLookup lookup(
        "broken.example",
        [](const std::string &) -> osi::HostAddresses { throw std::runtime_error("it broke"); },
        found.setter());
    EXPECT_EQ(found.get().error, "it broke");
}

TEST_F(AssociationTest, anAddressInBracketsIsReached)
{
    ServerOptions options;
    options.address = "::1";
    options.port = 0;
    m_server = Server::create(m_loop.executor(), options, m_device);
    const auto port = m_server->start();
    if (!port)
        GTEST_SKIP() << "This computer has no IPv6.";
    m_client = Association::create(m_loop.executor(), quickOptions(), {});
    Awaited<Result<InitiateParameters>> opened;
    m_client->connect("[::1]", *port, opened.setter());
    EXPECT_TRUE(opened.get().ok());
}

TEST_F(AssociationTest, anAttemptUnderWayGoesWithItsContext)
{
    RawPeer peer;
    std::weak_ptr<Association> attempt;
    {
        asio::io_context context;
        const auto association = Association::create(context.get_executor(), quickOptions(), {});
        attempt = association;
        association->connect("127.0.0.1", peer.port(), [](const Result<InitiateParameters> &) {});
        context.run_for(50ms);
    }
    EXPECT_TRUE(attempt.expired());
}

TEST_F(AssociationTest, aServerCutsOffAClientThatIsIdleForTooLong)
{
    ServerOptions server;
    server.association.idleLimit = 150ms;
    ASSERT_TRUE(connect(startServer(server), quickOptions()).ok());
    EXPECT_EQ(m_device->end.get(), "The peer said nothing for 150 ms.");
    EXPECT_EQ(m_clientEnd.get(), "The peer aborted the association.");
}

TEST_F(AssociationTest, aClientThatCallsNowAndThenIsNotIdle)
{
    ServerOptions server;
    server.association.idleLimit = 1s;
    ASSERT_TRUE(connect(startServer(server), quickOptions()).ok());
    for (int i = 0; i < 4; ++i) {
        std::this_thread::sleep_for(350ms);
        EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
    }
}
