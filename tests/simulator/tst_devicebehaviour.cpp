// SPDX-License-Identifier: Apache-2.0
#include "mms/shorthand.h"
#include "simulator/controlledbay.h"
#include "simulator/devicetest.h"

#include "acsi/control.h"
#include "acsi/report.h"

#include <asio/co_spawn.hpp>
#include <asio/use_future.hpp>

#include <condition_variable>
#include <deque>
#include <mutex>

using namespace std::chrono_literals;
using mms::Data;
using mms::DataAccessError;
using simtest::Caller;

namespace {

/// Information reports in the order in which they come.
class Inbox
{
public:
    mms::Association::Handlers handlers()
    {
        mms::Association::Handlers handlers;
        handlers.report = [this](mms::InformationReport report) {
            const std::lock_guard lock(m_mutex);
            m_reports.push_back(std::move(report));
            m_arrived.notify_one();
        };
        return handlers;
    }

    acsi::Report next()
    {
        std::unique_lock lock(m_mutex);
        if (!m_arrived.wait_for(lock, 20s, [this] { return !m_reports.empty(); })) {
            ADD_FAILURE() << "no report came";
            return {};
        }
        auto report = acsi::decodeReport(std::move(m_reports.front()));
        m_reports.pop_front();
        EXPECT_TRUE(report.ok());
        return report ? std::move(*report) : acsi::Report();
    }

    bool isEmpty()
    {
        const std::lock_guard lock(m_mutex);
        return m_reports.empty();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::deque<mms::InformationReport> m_reports;
};

class DeviceBehaviourTest : public testing::Test
{
protected:
    static std::string write(Caller &caller, const std::string &item, const Data &value)
    {
        mms::WriteRequest request;
        request.variables = wiretest::variablesOf("IED1LD", {item});
        request.values = {value};
        const auto answer = caller.answer<mms::WriteResponse>(std::move(request));
        if (answer.results.size() != 1)
            return "no result";
        return answer.results[0] ? mms::describe(*answer.results[0]).english() : std::string();
    }

    static Data read(Caller &caller, const std::string &item)
    {
        mms::ReadRequest request;
        request.variables = wiretest::variablesOf("IED1LD", {item});
        const auto answer = caller.answer<mms::ReadResponse>(std::move(request));
        EXPECT_TRUE(answer.results.size() == 1 && answer.results[0].ok()) << item;
        return answer.results.size() == 1 && answer.results[0].ok() ? answer.results[0].data()
                                                                    : Data();
    }

    /// Something done in the device's strand.
    template <typename Action>
    void inDevice(Action action)
    {
        wiretest::Awaited<bool> done;
        asio::dispatch(m_running.device->strand(), [&, finished = done.setter()] {
            action(*m_running.device);
            finished(true);
        });
        done.get();
    }

    void set(const std::string &item, const Data &value)
    {
        inDevice([&](sim::Device &device) {
            device.model().set(device.model().find("IED1LD", item).firstLeaf(), value);
        });
    }

    /// Selects where the model wants that, operates and waits for the end. "done", or the service
    /// that was refused with the additional cause.
    std::string operate(const std::string &object)
    {
        const auto connected =
            await(m_loop.executor(),
                  acsi::Client::connect(m_loop.executor(), "127.0.0.1", m_running.port, {}));
        if (!connected)
            return connected.error().message.english();
        const auto strand = (*connected)->strand();
        std::string result = "no such object";
        if (const auto reference = acsi::parseReference(object)) {
            auto opened = await(strand, acsi::ControlObject::open(*connected, *reference));
            result = opened ? operate(*connected, **opened) : opened.error().message.english();
            // It is destroyed where it lived.
            asio::dispatch(strand, [control = std::move(opened)] {});
        }
        asio::co_spawn(strand, (*connected)->close(), asio::use_future).get();
        return result;
    }

    static Data position(const char *bits)
    {
        return Data::bitString(mms::BitString::fromText(bits));
    }

    wiretest::Loop m_loop;
    simtest::DescribedIed m_ied = simtest::controlledBay();
    simtest::RunningDevice m_running{m_loop.executor(), *m_ied};

private:
    template <typename T>
    static asio::awaitable<void> deliver(asio::awaitable<T> awaitable, std::function<void(T)> taker)
    {
        taker(co_await std::move(awaitable));
    }

    template <typename Executor, typename T>
    static T await(const Executor &executor, asio::awaitable<T> awaitable)
    {
        wiretest::Awaited<T> result;
        asio::co_spawn(executor, deliver(std::move(awaitable), result.setter()), asio::use_future)
            .get();
        return result.get();
    }

    static std::string operate(const std::shared_ptr<acsi::ChangingClient> &client,
                               acsi::ControlObject &control)
    {
        const auto causeOf = [](const acsi::ControlResult &result) {
            return result.applError ? std::to_string(result.applError->addCause)
                                    : result.message.english();
        };
        acsi::ControlRequest request;
        request.value = Data::boolean(true);
        request.originator = {2, {1}};
        request.ctlNum = 3;
        request.interlockCheck = true;
        if (control.model() == acsi::ControlModel::SelectNormal ||
            control.model() == acsi::ControlModel::SelectEnhanced) {
            const acsi::ControlResult selected =
                await(client->strand(), control.select(client, request));
            if (!selected)
                return "select " + causeOf(selected);
        }
        const acsi::ControlResult operated =
            await(client->strand(), control.operate(client, request));
        return operated ? "done" : "operate " + causeOf(operated);
    }
};

} // namespace

TEST_F(DeviceBehaviourTest, controlsOfEveryModelReachTheProcess)
{
    EXPECT_EQ(operate("IED1LD/CSWI1$CO$Pos"), "done");
    Caller caller(m_loop.executor(), m_running.port);
    EXPECT_EQ(read(caller, "XCBR1$ST$Pos$stVal"), position("10"));
    EXPECT_EQ(operate("IED1LD/GGIO1$CO$SPCSO1"), "done");
    EXPECT_EQ(operate("IED1LD/GGIO1$CO$SPCSO2"), "done");
    EXPECT_EQ(operate("IED1LD/GGIO1$CO$SPCSO3"), "done");
    EXPECT_EQ(read(caller, "GGIO1$ST$SPCSO3$stVal"), Data::boolean(true));
}

TEST_F(DeviceBehaviourTest, refusedControlsSayWhy)
{
    set("CILO1$ST$EnaCls$stVal", Data::boolean(false));
    EXPECT_EQ(operate("IED1LD/CSWI1$CO$Pos"), "select 10");
    set("LLN0$ST$Loc$stVal", Data::boolean(true));
    EXPECT_EQ(operate("IED1LD/GGIO1$CO$SPCSO3"), "operate 2");
}

TEST_F(DeviceBehaviourTest, anOperationIsReportedToWhoListens)
{
    Inbox inbox;
    Caller listener(m_loop.executor(), m_running.port, {}, inbox.handlers());
    EXPECT_EQ(write(listener, "LLN0$RP$urcb01$RptEna", Data::boolean(true)), "");
    EXPECT_EQ(operate("IED1LD/CSWI1$CO$Pos"), "done");
    std::vector<std::string> positions;
    while (positions.empty() || positions.back() != "10") {
        for (const acsi::ReportMember &member : inbox.next().members) {
            if (member.reference == "IED1LD/XCBR1$ST$Pos$stVal")
                positions.push_back(member.value.data().bits().toText());
        }
        if (HasFailure())
            break;
    }
    EXPECT_EQ(positions, (std::vector<std::string>{"00", "10"}));
}

TEST_F(DeviceBehaviourTest, aGeneralInterrogationFollowsItsAnswer)
{
    Inbox inbox;
    Caller listener(m_loop.executor(), m_running.port, {}, inbox.handlers());
    write(listener, "LLN0$RP$urcb01$RptEna", Data::boolean(true));
    EXPECT_EQ(write(listener, "LLN0$RP$urcb01$GI", Data::boolean(true)), "");
    const acsi::Report report = inbox.next();
    ASSERT_EQ(report.members.size(), 3U);
    EXPECT_TRUE(report.members[0].reason->generalInterrogation);
    EXPECT_EQ(report.members[1].value.data(), position("01"));
}

TEST_F(DeviceBehaviourTest, aBufferedBlockResumesOnTheNextAssociation)
{
    std::vector<std::uint8_t> seen;
    {
        Inbox inbox;
        Caller first(m_loop.executor(), m_running.port, {}, inbox.handlers());
        EXPECT_EQ(write(first, "LLN0$BR$brcb01$ResvTms", Data::integer(60)), "");
        EXPECT_EQ(write(first, "LLN0$BR$brcb01$RptEna", Data::boolean(true)), "");
        EXPECT_EQ(read(first, "LLN0$BR$brcb01$Owner"),
                  Data::octetString(std::vector<std::uint8_t>{127, 0, 0, 1}));
        set("XCBR1$ST$Pos$stVal", position("10"));
        seen = inbox.next().entryId;
    }
    Inbox inbox;
    Caller second(m_loop.executor(), m_running.port, {}, inbox.handlers());
    set("XCBR1$ST$Pos$stVal", position("00"));
    set("XCBR1$ST$Pos$stVal", position("01"));
    EXPECT_EQ(write(second, "LLN0$BR$brcb01$EntryID", Data::octetString(seen)), "");
    EXPECT_EQ(write(second, "LLN0$BR$brcb01$RptEna", Data::boolean(true)), "");
    EXPECT_EQ(inbox.next().members[0].value.data(), position("00"));
    const acsi::Report last = inbox.next();
    EXPECT_EQ(last.members[0].value.data(), position("01"));
    EXPECT_EQ(last.sqNum, 1U);
    EXPECT_EQ(last.bufOvfl, false);
}

TEST_F(DeviceBehaviourTest, aBlockIsFreeOnceItsClientHasLeft)
{
    Caller second(m_loop.executor(), m_running.port);
    {
        Caller first(m_loop.executor(), m_running.port);
        EXPECT_EQ(write(first, "LLN0$RP$meas$RptEna", Data::boolean(true)), "");
        EXPECT_NE(write(second, "LLN0$RP$meas$RptEna", Data::boolean(true)), "");
        wiretest::Awaited<mms::Result<void>> concluded;
        first.association().conclude(concluded.setter());
        EXPECT_TRUE(concluded.get().ok());
    }
    // The device has heard of the end before it answered the conclusion, or hears of it next.
    std::string refused = "not asked";
    for (int i = 0; i < 1000 && !refused.empty(); ++i)
        refused = write(second, "LLN0$RP$meas$RptEna", Data::boolean(true));
    EXPECT_EQ(refused, "");
}

TEST_F(DeviceBehaviourTest, aReportLongerThanThePduComesInSegments)
{
    Inbox inbox;
    mms::AssociationOptions options;
    options.maxPduSize = mms::smallestPduSize;
    Caller listener(m_loop.executor(), m_running.port, options, inbox.handlers());
    mms::DefineNamedVariableListRequest define;
    define.name = mms::ObjectName::ofAssociation("Wide");
    for (int i = 0; i < 4; ++i) {
        for (const char *item : {"CSWI1$ST$Pos", "GGIO1$ST$SPCSO1", "GGIO1$ST$SPCSO2",
                                 "MMXU1$MX$Hz", "ATCC1$ST$TapChg", "LLN0$ST$Mod"}) {
            mms::VariableAccess member;
            member.variable = mms::ObjectName::inDomain("IED1LD", item);
            define.members.push_back(member);
        }
    }
    listener.answer<mms::DefineNamedVariableListResponse>(define);
    EXPECT_EQ(write(listener, "LLN0$RP$urcb01$DatSet", Data::visibleString("@Wide")), "");
    EXPECT_EQ(write(listener, "LLN0$RP$urcb01$RptEna", Data::boolean(true)), "");
    EXPECT_EQ(write(listener, "LLN0$RP$urcb01$GI", Data::boolean(true)), "");
    acsi::ReportAssembler assembler;
    acsi::Report part = inbox.next();
    EXPECT_TRUE(part.moreSegmentsFollow);
    std::optional<acsi::Report> whole;
    while (!(whole = assembler.take(part, std::chrono::steady_clock::now())) && !HasFailure())
        part = inbox.next();
    ASSERT_TRUE(whole.has_value());
    EXPECT_EQ(whole->datSet, "");
    EXPECT_EQ(whole->members.size(), 24U);
}

TEST_F(DeviceBehaviourTest, settingsAreChangedByGroupAndByEdit)
{
    Caller caller(m_loop.executor(), m_running.port);
    const std::string active = "PTOC1$SG$StrVal$setMag$f";
    const std::string edited = "PTOC1$SE$StrVal$setMag$f";
    EXPECT_EQ(read(caller, active), Data::float32(2.5F));
    EXPECT_EQ(write(caller, "LLN0$SP$SGCB$EditSG", Data::unsignedInteger(1)), "");
    EXPECT_EQ(read(caller, edited), Data::float32(1.5F));
    EXPECT_EQ(write(caller, edited, Data::float32(7)), "");
    EXPECT_EQ(write(caller, "LLN0$SP$SGCB$CnfEdit", Data::boolean(true)), "");
    EXPECT_EQ(read(caller, active), Data::float32(2.5F));
    EXPECT_EQ(write(caller, "LLN0$SP$SGCB$ActSG", Data::unsignedInteger(1)), "");
    EXPECT_EQ(read(caller, active), Data::float32(7));
}
