// SPDX-License-Identifier: Apache-2.0
#include "mms/associationtest.h"
#include "mms/shorthand.h"

#include "simulator/faults.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

using namespace wiretest;
using sim::Faults;

namespace {

std::string errorOf(std::string_view script)
{
    const auto faults = Faults::parse(script);
    return faults ? std::string() : faults.error().message.english();
}

class FaultsTest : public AssociationTest
{
protected:
    /// A client of a device with these faults, which soon forgets the calls that it gave up.
    void start(std::string_view script, Faults::Handlers handlers = {})
    {
        AssociationOptions options = quickOptions();
        options.grace = 1ms;
        ASSERT_TRUE(connect(startWithFaults(script, std::move(handlers)), options).ok());
    }

    std::uint16_t startWithFaults(std::string_view script, Faults::Handlers handlers = {})
    {
        const auto faults = Faults::parse(script, std::move(handlers));
        EXPECT_TRUE(faults.ok());
        ServerOptions options;
        options.association.link.interference = (*faults)->interference();
        options.association.link.establishTimeout = 300ms;
        return startServer(options);
    }

    bool isAnswered(std::chrono::milliseconds timeout = 10s)
    {
        return answerOf<IdentifyResponse>(call(IdentifyRequest(), timeout)) != nullptr;
    }

    CallOutcome readSome(std::chrono::milliseconds timeout = 10s)
    {
        return call(ReadRequest{false, variablesOf("LD", {"a", "b"})}, timeout);
    }
};

} // namespace

TEST(Faults, scriptsOfCommentsAndBlankLinesDoNothing)
{
    EXPECT_EQ(errorOf(""), "");
    EXPECT_EQ(errorOf("# nothing\n\n   \t\n  # delay\r\n"), "");
}

TEST(Faults, everyCaseHasAnExampleThatIsAScript)
{
    EXPECT_EQ(sim::faultCases().size(), 13U);
    for (const sim::FaultCase &each : sim::faultCases()) {
        EXPECT_EQ(errorOf(each.example), "");
        EXPECT_TRUE(each.example.starts_with(each.name));
        EXPECT_FALSE(each.purpose.empty());
        EXPECT_NE(sim::faultsHelp().find(each.example), std::string::npos);
    }
}

TEST(Faults, mistakesInAScriptAreToldWithTheirLine)
{
    EXPECT_EQ(errorOf("drop\nexplode on read"), "Line 2: \"explode\" is not a fault.");
    EXPECT_EQ(errorOf("drop on raed"), "Line 1: \"raed\" is not a service.");
    EXPECT_EQ(errorOf("drop on read,"), "Line 1: \"\" is not a service.");
    EXPECT_EQ(errorOf("\n\ndrop on"), "Line 3: \"on\" needs the names of services.");
    EXPECT_EQ(errorOf("delay on read"),
              "Line 1: \"delay\" needs a time such as 250ms, 1.5s or 2min.");
    EXPECT_EQ(errorOf("delay -1s"), "Line 1: \"delay\" needs a time such as 250ms, 1.5s or 2min.");
    EXPECT_EQ(errorOf("delay 1e300s"),
              "Line 1: \"delay\" needs a time such as 250ms, 1.5s or 2min.");
    EXPECT_EQ(errorOf("clock 5"), "Line 1: \"clock\" needs a step such as +1h or -30s.");
    EXPECT_EQ(errorOf("drop nth 0"), "Line 1: \"nth\" needs a whole number from 1.");
    EXPECT_EQ(errorOf("drop every"), "Line 1: \"every\" needs a whole number from 1.");
    EXPECT_EQ(errorOf("drop times -2"), "Line 1: \"times\" needs a whole number from 1.");
    EXPECT_EQ(errorOf("drop probability 1.5"),
              "Line 1: \"probability\" needs a number from 0 to 1.");
    EXPECT_EQ(errorOf("drop probability nan"),
              "Line 1: \"probability\" needs a number from 0 to 1.");
    EXPECT_EQ(errorOf("drop read"), "Line 1: \"read\" is not understood here.");
    EXPECT_EQ(errorOf("refuse sometimes"), "Line 1: \"sometimes\" is not understood here.");
    EXPECT_EQ(errorOf("noise 99999999"), "Line 1: \"99999999\" octets are too many.");
    EXPECT_EQ(errorOf("seed x"), "Line 1: \"seed\" needs one whole number.");
    EXPECT_EQ(errorOf("refuse on initiate"),
              "Line 1: \"refuse\" is possible only for confirmed services.");
}

TEST(Faults, aScriptThatCannotBeReadIsToldWithItsName)
{
    const auto missing = Faults::load("/nowhere/script");
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.error().message, "The script of faults \"/nowhere/script\" cannot be read.");
    const auto path = std::filesystem::temp_directory_path() / "tst_faults.script";
    std::ofstream(path) << "drop\nbad\n";
    const auto wrong = Faults::load(path.string());
    std::filesystem::remove(path);
    ASSERT_FALSE(wrong.ok());
    EXPECT_EQ(wrong.error().message, path.string() + ": Line 2: \"bad\" is not a fault.");
    const auto directory = Faults::load(std::filesystem::temp_directory_path().string());
    EXPECT_FALSE(directory.ok());
}

TEST_F(FaultsTest, delayedAnswersComeLateAndOthersPassThem)
{
    start("delay 400ms on read");
    const auto begin = std::chrono::steady_clock::now();
    Awaited<CallOutcome> late;
    m_client->call(ReadRequest{false, variablesOf("LD", {"a"})}, 10s, late.setter());
    EXPECT_TRUE(isAnswered());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 400ms);
    EXPECT_NE(answerOf<ReadResponse>(late.get()), nullptr);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 400ms);
}

TEST_F(FaultsTest, delaysThatAreUnderWayEndWithTheAssociation)
{
    start("delay 1h on read");
    Awaited<CallOutcome> late;
    m_client->call(ReadRequest{false, variablesOf("LD", {"a"})}, 10s, late.setter());
    EXPECT_TRUE(isAnswered());
    m_client->abort(mms::verbatim("Enough."));
    EXPECT_EQ(failureOf(late.get()), CallFailure::Kind::Lost);
}

TEST_F(FaultsTest, droppedAnswersNeverCome)
{
    start("drop on read nth 2");
    EXPECT_NE(answerOf<ReadResponse>(readSome()), nullptr);
    EXPECT_EQ(failureOf(readSome(100ms)), CallFailure::Kind::TimedOut);
    EXPECT_NE(answerOf<ReadResponse>(readSome()), nullptr);
}

TEST_F(FaultsTest, ignoredRequestsDoNotReachTheDevice)
{
    start("ignore times 12");
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(failureOf(call(IdentifyRequest(), 20ms)), CallFailure::Kind::TimedOut);
    EXPECT_TRUE(isAnswered());
}

TEST_F(FaultsTest, aSecondAnswerToTheSameCallIsCountedAsLate)
{
    start("duplicate on identify");
    EXPECT_TRUE(isAnswered());
    EXPECT_NE(answerOf<ReadResponse>(readSome()), nullptr);
    EXPECT_EQ(m_client->counters().late, 1U);
}

TEST_F(FaultsTest, answersOfAnotherCallAreCountedAndTheCallTimesOut)
{
    start("wrong-invoke-id on read");
    EXPECT_EQ(failureOf(readSome(150ms)), CallFailure::Kind::TimedOut);
    EXPECT_TRUE(isAnswered());
    EXPECT_EQ(m_client->counters().unknown, 1U);
}

TEST_F(FaultsTest, truncatedAnswersAreNoAnswers)
{
    start("truncate on read\ntruncate 1 on getNameList");
    EXPECT_EQ(failureOf(readSome(100ms)), CallFailure::Kind::TimedOut);
    EXPECT_EQ(failureOf(call(GetNameListRequest(), 100ms)), CallFailure::Kind::TimedOut);
    EXPECT_TRUE(isAnswered());
    EXPECT_EQ(m_client->counters().malformed, 2U);
}

TEST_F(FaultsTest, garbageInAnswersEndsEveryCallInTime)
{
    start("seed 3\ngarbage on read\ngarbage 3 on identify");
    for (int i = 0; i < 50; ++i) {
        readSome(20ms);
        call(IdentifyRequest(), 20ms);
    }
    const auto counters = m_client->counters();
    EXPECT_GT(counters.malformed + counters.unknown + counters.late, 20U);
}

TEST_F(FaultsTest, noiseOnTheNetworkEndsTheAssociation)
{
    start("seed 1\nnoise 200 on identify");
    call(IdentifyRequest(), 5s);
    EXPECT_FALSE(m_clientEnd.get().empty());
}

TEST_F(FaultsTest, oversizeAnswersAreLongerThanWasAgreed)
{
    const std::uint16_t port = startWithFaults("oversize on read");
    AssociationOptions options = quickOptions();
    options.maxPduSize = 2000;
    std::atomic<std::size_t> longest{0};
    options.link.trace = [&longest](osi::Direction direction, Bytes pdu) {
        if (direction == osi::Direction::Received)
            longest = std::max<std::size_t>(longest, pdu.size());
    };
    ASSERT_TRUE(connect(port, options).ok());
    EXPECT_EQ(answerOf<ReadResponse>(readSome(500ms)), nullptr);
    EXPECT_GT(longest, 2000U);
    EXPECT_LT(longest, 2100U);
}

TEST_F(FaultsTest, refusedServicesAnswerWithTheErrorThatWasAskedFor)
{
    start("refuse on read times 1\nrefuse file-busy on fileOpen\nreject on identify");
    const auto denied = readSome();
    ASSERT_TRUE(std::holds_alternative<ServiceError>(denied));
    EXPECT_EQ(std::get<ServiceError>(denied).errorClass, ErrorClass::Access);
    EXPECT_EQ(std::get<ServiceError>(denied).code, serviceerrors::accessDenied);
    EXPECT_NE(answerOf<ReadResponse>(readSome()), nullptr);
    const auto busy = call(FileOpenRequest{{"x"}, 0});
    ASSERT_TRUE(std::holds_alternative<ServiceError>(busy));
    EXPECT_EQ(std::get<ServiceError>(busy).code, serviceerrors::fileBusy);
    const auto rejected = call(IdentifyRequest());
    ASSERT_TRUE(std::holds_alternative<RejectPdu>(rejected));
    EXPECT_EQ(std::get<RejectPdu>(rejected).code, rejectcodes::requestUnrecognizedService);
}

TEST_F(FaultsTest, aResetInMidAnswerLosesTheCallAndBothEndsHearOfIt)
{
    start("reset 20 on read");
    EXPECT_TRUE(isAnswered());
    EXPECT_EQ(failureOf(readSome()), CallFailure::Kind::Lost);
    EXPECT_NE(m_clientEnd.get().find("broke"), std::string::npos);
    EXPECT_FALSE(m_device->end.get().empty());
}

TEST_F(FaultsTest, anAssociationThatIsNeverConfirmedEndsInTime)
{
    const std::uint16_t port = startWithFaults("drop on initiate");
    EXPECT_FALSE(connect(port, quickOptions()).ok());
}

TEST_F(FaultsTest, reportsCanBeDropped)
{
    m_device->reportOnOpening = true;
    const std::uint16_t port = startWithFaults("drop on informationReport");
    std::atomic<int> reports{0};
    Association::Handlers handlers;
    handlers.report = [&reports](const InformationReport &) { ++reports; };
    ASSERT_TRUE(connect(port, quickOptions(), std::move(handlers)).ok());
    EXPECT_TRUE(isAnswered());
    EXPECT_EQ(reports, 0);
}

TEST_F(FaultsTest, clockJumpsAndWhatWasAppliedAreTold)
{
    std::chrono::milliseconds sum{0};
    std::vector<std::string> applied;
    Faults::Handlers handlers;
    handlers.clockJumps = [&sum](std::chrono::milliseconds step) { sum += step; };
    handlers.applied = [&applied](std::size_t line, const std::string &text) {
        applied.push_back(std::to_string(line) + " " + text);
    };
    start("# jumps\nclock +1h on identify nth 2\nclock  -1.5s on identify  from 3 # later",
          std::move(handlers));
    EXPECT_TRUE(isAnswered());
    EXPECT_TRUE(isAnswered());
    EXPECT_TRUE(isAnswered());
    EXPECT_EQ(sum, 1h - 1500ms);
    EXPECT_EQ(applied, (std::vector<std::string>{"2 clock +1h on identify nth 2",
                                                 "3 clock -1.5s on identify from 3"}));
}

TEST_F(FaultsTest, conditionsNameWhichRequestsGoWrong)
{
    start("refuse on identify from 2 every 3 times 2");
    std::string pattern;
    for (int i = 0; i < 10; ++i)
        pattern += isAnswered() ? '.' : 'x';
    EXPECT_EQ(pattern, ".x..x.....");
}

TEST_F(FaultsTest, theSameSeedGivesTheSameFaults)
{
    const auto patternOf = [this](std::string_view script) {
        start(script);
        std::string pattern;
        for (int i = 0; i < 64; ++i)
            pattern += isAnswered() ? '.' : 'x';
        m_server->stop();
        m_client->abort(mms::verbatim("Next."));
        m_clientEnd.get();
        m_clientEnd = {};
        m_device = std::make_shared<TestDevice>();
        return pattern;
    };
    const std::string first = patternOf("seed 5\nrefuse probability 0.25");
    EXPECT_EQ(first, patternOf("seed 5\nrefuse probability 0.25"));
    EXPECT_NE(first, patternOf("seed 6\nrefuse probability 0.25"));
    const auto wrong = std::ranges::count(first, 'x');
    EXPECT_GT(wrong, 4);
    EXPECT_LT(wrong, 32);
}
