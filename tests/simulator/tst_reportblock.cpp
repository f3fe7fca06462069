// SPDX-License-Identifier: Apache-2.0
#include "mms/shorthand.h"
#include "simulator/manualclock.h"
#include "simulator/recordingclient.h"
#include "simulator/reportsegments.h"

#include "mms/datatext.h"
#include "mms/pdu.h"
#include "simulator/reportblock.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace std::chrono_literals;
using mms::Data;
using mms::DataAccessError;
using sim::Trigger;

namespace {

/// Data sets whose values a test sets by hand.
class Plant : public sim::ReportHost
{
public:
    std::shared_ptr<sim::DataSet> dataSet(const sim::Peer *client,
                                          const std::string &reference) override
    {
        if (reference.starts_with('@') && !client)
            return nullptr;
        const auto found = sets.find(reference);
        return found == sets.end() ? nullptr : found->second;
    }
    std::string reference(const sim::DataSet &, std::size_t member) override
    {
        return "LD/GGIO1$ST$Ind" + std::to_string(member + 1);
    }
    mms::AccessResult value(const sim::DataSet &, std::size_t member) override
    {
        return Data::integer(values[member]);
    }
    bool isMeasured(const sim::DataSet &, std::size_t member) override
    {
        return measured.count(member) != 0;
    }
    bool isReady(const sim::Peer &) override { return ready; }
    void send(sim::Peer &client, acsi::Report report) override
    {
        receivers.push_back(&client);
        sent.push_back(std::move(report));
    }

    void addSet(const std::string &reference, std::size_t members)
    {
        auto set = std::make_shared<sim::DataSet>();
        set->members.resize(members);
        sets[reference] = std::move(set);
    }

    std::map<std::string, std::shared_ptr<sim::DataSet>> sets;
    std::map<std::size_t, std::int64_t> values;
    std::set<std::size_t> measured;
    std::vector<acsi::Report> sent;
    std::vector<const sim::Peer *> receivers;
    bool ready = true;
};

class ReportBlockTest : public testing::Test
{
protected:
    ReportBlockTest()
    {
        m_plant.addSet("LD/LLN0$events", 3);
        m_plant.addSet("LD/LLN0$other", 2);
        m_plant.addSet("@own", 2);
        m_plant.addSet("LD/LLN0$nothing", 0);
        m_config.reference = "LD/LLN0$BR$events01";
        m_config.rptId = "events";
        m_config.datSet = "LD/LLN0$events";
        m_config.confRev = 7;
        m_config.optFlds.sequenceNumber = true;
        m_config.optFlds.bufferOverflow = true;
        m_config.optFlds.entryId = true;
        m_config.optFlds.reasonForInclusion = true;
        m_config.trgOps.dataChange = true;
        m_config.trgOps.generalInterrogation = true;
    }

    void make(bool buffered)
    {
        m_config.buffered = buffered;
        m_block = std::make_unique<sim::ReportBlock>(m_config, m_plant, m_clock);
    }

    /// "" when written, else the error's number.
    std::string write(sim::Peer &client, std::string_view attribute, const Data &data)
    {
        const auto refused = m_block->write(client, attribute, data);
        run();
        return refused ? mms::describe(*refused).english() : std::string();
    }
    std::string enable(sim::Peer &client) { return write(client, "RptEna", Data::boolean(true)); }
    std::string disable(sim::Peer &client) { return write(client, "RptEna", Data::boolean(false)); }

    void run()
    {
        for (auto time = m_block->deadline(); time && *time <= m_clock.steadyNow();
             time = m_block->deadline())
            m_block->advance();
    }
    void pass(std::chrono::milliseconds time)
    {
        for (std::chrono::milliseconds i{0}; i < time; ++i) {
            m_clock.advance(1ms);
            run();
        }
    }

    void change(std::size_t member, std::int64_t value, Trigger fired = Trigger::DataChange)
    {
        m_plant.values[member] = value;
        m_block->changed(member, fired);
        m_block->settle();
    }

    /// What was sent since the last time: for each report "member=value" with the reasons.
    std::string sent()
    {
        std::string text;
        for (const acsi::Report &report : m_plant.sent) {
            text += text.empty() ? "" : " | ";
            if (report.bufOvfl.value_or(false))
                text += "overflow ";
            text += "#" + std::to_string(report.sqNum.value_or(0));
            for (const acsi::ReportMember &member : report.members) {
                text += " " + std::to_string(member.index) + "=" +
                        std::to_string(member.value.data().toInteger().value_or(-1));
                text += member.reason->dataChange ? "d" : "";
                text += member.reason->qualityChange ? "q" : "";
                text += member.reason->dataUpdate ? "u" : "";
                text += member.reason->integrity ? "i" : "";
                text += member.reason->generalInterrogation ? "g" : "";
            }
        }
        m_plant.sent.clear();
        return text;
    }

    std::string denied() const
    {
        return mms::describe(DataAccessError::ObjectAccessDenied).english();
    }
    std::string busy() const
    {
        return mms::describe(DataAccessError::TemporarilyUnavailable).english();
    }
    std::string invalid() const
    {
        return mms::describe(DataAccessError::ObjectValueInvalid).english();
    }
    std::string inconsistent() const
    {
        return mms::describe(DataAccessError::ObjectAttributeInconsistent).english();
    }
    Data value(std::string_view attribute) const { return m_block->value(attribute).value(); }

    simtest::ManualClock m_clock;
    Plant m_plant;
    simtest::RecordingClient m_client{{192, 0, 2, 1}};
    simtest::RecordingClient m_other{{192, 0, 2, 2}};
    sim::ReportControlBlock m_config;
    std::unique_ptr<sim::ReportBlock> m_block;
};

} // namespace

TEST_F(ReportBlockTest, anEnabledBlockReportsChangesItsOptionsAskFor)
{
    m_config.trgOps.qualityChange = true;
    make(false);
    change(0, 1);
    EXPECT_EQ(enable(m_client), "");
    change(0, 2);
    change(1, 3, Trigger::QualityChange);
    change(2, 4, Trigger::DataUpdate);
    EXPECT_EQ(sent(), "#0 0=2d | #1 1=3q");
    EXPECT_EQ(disable(m_client), "");
    change(0, 5);
    EXPECT_EQ(sent(), "");
}

TEST_F(ReportBlockTest, changesThatHappenTogetherComeInOneReport)
{
    make(false);
    enable(m_client);
    m_plant.values = {{0, 10}, {1, 11}, {2, 12}};
    m_block->changed(2, Trigger::DataChange);
    m_block->changed(0, Trigger::DataChange);
    m_block->changed(2, Trigger::DataChange | Trigger::DataUpdate);
    m_block->settle();
    EXPECT_EQ(sent(), "#0 0=10d 2=12d");
}

TEST_F(ReportBlockTest, anUpdateWithoutAChangeIsTriggeredByItsOwnOption)
{
    m_config.trgOps.dataUpdate = true;
    make(false);
    enable(m_client);
    change(0, 1, Trigger::DataUpdate);
    change(0, 2, Trigger::DataChange | Trigger::DataUpdate);
    EXPECT_EQ(sent(), "#0 0=1u | #1 0=2d");
}

TEST_F(ReportBlockTest, bufferTimeGathersChangesFromTheFirstOne)
{
    m_config.bufTm = 100;
    make(false);
    enable(m_client);
    change(0, 1);
    pass(60ms);
    change(1, 2);
    pass(39ms);
    EXPECT_EQ(sent(), "");
    pass(1ms);
    EXPECT_EQ(sent(), "#0 0=1d 1=2d");
    pass(200ms);
    EXPECT_EQ(sent(), "");
}

TEST_F(ReportBlockTest, aSecondStatusWithinTheBufferTimeSendsTheFirstOneAtOnce)
{
    m_config.bufTm = 100;
    make(false);
    enable(m_client);
    change(0, 1);
    change(1, 5);
    change(0, 2);
    EXPECT_EQ(sent(), "#0 0=1d 1=5d");
    pass(100ms);
    EXPECT_EQ(sent(), "#1 0=2d");
}

TEST_F(ReportBlockTest, aSecondMeasurementWithinTheBufferTimeReplacesTheFirstOne)
{
    m_plant.measured = {0};
    m_config.bufTm = 100;
    make(false);
    enable(m_client);
    change(0, 1);
    change(0, 2);
    pass(100ms);
    EXPECT_EQ(sent(), "#0 0=2d");
}

TEST_F(ReportBlockTest, generalInterrogationReportsEverythingBehindWhatWaits)
{
    m_config.bufTm = 1000;
    make(false);
    m_plant.values = {{0, 1}, {1, 2}, {2, 3}};
    EXPECT_EQ(write(m_client, "GI", Data::boolean(true)), busy());
    enable(m_client);
    change(1, 9);
    EXPECT_EQ(write(m_client, "GI", Data::boolean(true)), "");
    EXPECT_EQ(sent(), "#0 1=9d | #1 0=1g 1=9g 2=3g");
    EXPECT_EQ(value("GI"), Data::boolean(false));
    EXPECT_EQ(write(m_other, "GI", Data::boolean(true)), busy());
}

TEST_F(ReportBlockTest, generalInterrogationIsRefusedWhereItsOptionIsOff)
{
    m_config.trgOps.generalInterrogation = false;
    make(false);
    enable(m_client);
    EXPECT_EQ(write(m_client, "GI", Data::boolean(true)), inconsistent());
    EXPECT_EQ(sent(), "");
}

TEST_F(ReportBlockTest, integrityReportsComeInTheirPeriodAndMissedOnesAreLeftOut)
{
    m_config.trgOps.integrity = true;
    m_config.intgPd = 50;
    make(false);
    enable(m_client);
    pass(49ms);
    EXPECT_EQ(sent(), "");
    pass(1ms);
    EXPECT_EQ(sent(), "#0 0=0i 1=0i 2=0i");
    m_clock.advance(175ms);
    run();
    EXPECT_EQ(sent(), "#1 0=0i 1=0i 2=0i");
    pass(25ms);
    EXPECT_EQ(sent(), "#2 0=0i 1=0i 2=0i");
}

TEST_F(ReportBlockTest, whileEnabledItsAttributesCannotBeWritten)
{
    make(true);
    enable(m_client);
    EXPECT_EQ(write(m_client, "RptID", Data::visibleString("x")), busy());
    EXPECT_EQ(write(m_client, "DatSet", Data::visibleString("LD/LLN0$other")), busy());
    EXPECT_EQ(write(m_client, "BufTm", Data::unsignedInteger(3)), busy());
    EXPECT_EQ(write(m_client, "EntryID", Data::octetString(std::vector<std::uint8_t>(8))), busy());
    EXPECT_EQ(write(m_client, "PurgeBuf", Data::boolean(true)), busy());
    disable(m_client);
    EXPECT_EQ(write(m_client, "BufTm", Data::unsignedInteger(3)), "");
    EXPECT_EQ(value("BufTm"), Data::unsignedInteger(3));
}

TEST_F(ReportBlockTest, whatTheDeviceSetsCannotBeWritten)
{
    make(true);
    EXPECT_EQ(write(m_client, "ConfRev", Data::unsignedInteger(1)), denied());
    EXPECT_EQ(write(m_client, "SqNum", Data::unsignedInteger(1)), denied());
    EXPECT_EQ(write(m_client, "Owner", Data::octetString({})), denied());
    EXPECT_EQ(write(m_client, "TimeofEntry", value("TimeofEntry")), denied());
}

TEST_F(ReportBlockTest, aBlockWithoutADataSetCannotBeEnabled)
{
    m_config.datSet.clear();
    make(false);
    EXPECT_EQ(enable(m_client), inconsistent());
    EXPECT_EQ(write(m_client, "DatSet", Data::visibleString("LD/LLN0$nothing")), "");
    EXPECT_EQ(enable(m_client), inconsistent());
    EXPECT_EQ(write(m_client, "DatSet", Data::visibleString("LD/LLN0$missing")), invalid());
    EXPECT_EQ(write(m_client, "DatSet", Data::visibleString("LD/LLN0$other")), "");
    EXPECT_EQ(enable(m_client), "");
}

TEST_F(ReportBlockTest, anotherDataSetCountsTheConfigurationRevisionAndHoldsTheSet)
{
    make(false);
    EXPECT_EQ(m_plant.sets["LD/LLN0$events"]->users, 1U);
    write(m_client, "DatSet", Data::visibleString("LD/LLN0$other"));
    EXPECT_EQ(value("ConfRev"), Data::unsignedInteger(8));
    EXPECT_EQ(m_plant.sets["LD/LLN0$events"]->users, 0U);
    EXPECT_EQ(m_plant.sets["LD/LLN0$other"]->users, 1U);
    write(m_client, "DatSet", Data::visibleString("LD/LLN0$other"));
    EXPECT_EQ(value("ConfRev"), Data::unsignedInteger(8));
    m_block.reset();
    EXPECT_EQ(m_plant.sets["LD/LLN0$other"]->users, 0U);
}

TEST_F(ReportBlockTest, dataSetsOfAnAssociationServeOnlyItsUnbufferedBlocks)
{
    make(true);
    EXPECT_EQ(write(m_client, "DatSet", Data::visibleString("@own")), invalid());
    make(false);
    EXPECT_EQ(write(m_client, "DatSet", Data::visibleString("@own")), "");
    EXPECT_EQ(enable(m_other), inconsistent());
    EXPECT_EQ(enable(m_client), "");
    m_block->closed(m_client);
    EXPECT_EQ(value("DatSet"), Data::visibleString("LD/LLN0$events"));
    EXPECT_EQ(m_plant.sets["@own"]->users, 0U);
}

TEST_F(ReportBlockTest, anUnbufferedBlockBelongsToWhoReservedIt)
{
    make(false);
    EXPECT_EQ(write(m_client, "Resv", Data::boolean(true)), "");
    EXPECT_EQ(value("Resv"), Data::boolean(true));
    EXPECT_EQ(value("Owner"), Data::octetString(std::vector<std::uint8_t>{192, 0, 2, 1}));
    EXPECT_EQ(enable(m_other), busy());
    EXPECT_EQ(write(m_other, "Resv", Data::boolean(true)), busy());
    EXPECT_EQ(write(m_other, "Resv", Data::boolean(false)), busy());
    EXPECT_EQ(write(m_other, "BufTm", Data::unsignedInteger(1)), busy());
    EXPECT_EQ(enable(m_client), "");
    EXPECT_EQ(disable(m_other), busy());
    EXPECT_EQ(disable(m_client), "");
    EXPECT_EQ(value("Resv"), Data::boolean(true));
    EXPECT_EQ(write(m_client, "Resv", Data::boolean(false)), "");
    EXPECT_EQ(value("Owner"), Data::octetString({}));
    EXPECT_EQ(enable(m_other), "");
}

TEST_F(ReportBlockTest, enablingReservesUntilDisabled)
{
    make(false);
    enable(m_client);
    EXPECT_EQ(value("Resv"), Data::boolean(true));
    EXPECT_EQ(enable(m_client), "");
    EXPECT_EQ(enable(m_other), busy());
    disable(m_client);
    EXPECT_EQ(value("Resv"), Data::boolean(false));
    EXPECT_EQ(enable(m_other), "");
}

TEST_F(ReportBlockTest, anUnbufferedBlockIsFreeWhenItsClientHasLeft)
{
    make(false);
    write(m_client, "Resv", Data::boolean(true));
    enable(m_client);
    m_block->closed(m_other);
    EXPECT_TRUE(m_block->isEnabled());
    m_block->closed(m_client);
    EXPECT_FALSE(m_block->isEnabled());
    change(0, 1);
    EXPECT_EQ(enable(m_other), "");
    change(0, 2);
    EXPECT_EQ(sent(), "#0 0=2d");
    EXPECT_EQ(m_plant.receivers.back(), &m_other);
}

TEST_F(ReportBlockTest, aBufferedBlockStaysReservedForAWhileAfterItsClientHasLeft)
{
    make(true);
    EXPECT_EQ(write(m_client, "ResvTms", Data::integer(-1)), invalid());
    EXPECT_EQ(write(m_client, "ResvTms", Data::integer(5)), "");
    enable(m_client);
    m_block->closed(m_client);
    EXPECT_EQ(value("RptEna"), Data::boolean(false));
    EXPECT_EQ(value("ResvTms"), Data::integer(5));
    EXPECT_EQ(enable(m_other), busy());
    pass(4999ms);
    EXPECT_EQ(enable(m_other), busy());
    simtest::RecordingClient again({192, 0, 2, 1});
    EXPECT_EQ(enable(again), "");
    m_block->closed(again);
    pass(5000ms);
    EXPECT_EQ(value("ResvTms"), Data::integer(0));
    EXPECT_EQ(enable(m_other), "");
}

TEST_F(ReportBlockTest, writingNoReservationTimeFreesABufferedBlock)
{
    make(true);
    write(m_client, "ResvTms", Data::integer(5));
    EXPECT_EQ(write(m_other, "ResvTms", Data::integer(0)), busy());
    EXPECT_EQ(write(m_client, "ResvTms", Data::integer(0)), "");
    EXPECT_EQ(enable(m_other), "");
}

TEST_F(ReportBlockTest, aBufferedBlockKeepsWhatHappensWhileNobodyListens)
{
    make(true);
    change(0, 1);
    change(1, 2);
    EXPECT_EQ(sent(), "");
    enable(m_client);
    EXPECT_EQ(sent(), "#0 0=1d | #1 1=2d");
    m_block->closed(m_client);
    change(2, 3);
    pass(10s);
    enable(m_client);
    EXPECT_EQ(sent(), "#0 0=1d | #1 1=2d | #2 2=3d");
}

TEST_F(ReportBlockTest, resumingBehindAnEntrySendsOnlyWhatCameAfterIt)
{
    make(true);
    change(0, 1);
    change(0, 2);
    change(0, 3);
    enable(m_client);
    const std::vector<std::uint8_t> second = m_plant.sent[1].entryId;
    const std::vector<std::uint8_t> last = m_plant.sent[2].entryId;
    EXPECT_EQ(value("EntryID"), Data::octetString(last));
    sent();
    disable(m_client);
    EXPECT_EQ(write(m_client, "EntryID", Data::octetString(second)), "");
    enable(m_client);
    EXPECT_EQ(sent(), "#0 0=3d");
    disable(m_client);
    change(0, 4);
    EXPECT_NE(value("EntryID"), Data::octetString(last));
    EXPECT_EQ(write(m_client, "EntryID", Data::octetString(last)), "");
    enable(m_client);
    EXPECT_EQ(sent(), "#0 0=4d");
    disable(m_client);
    EXPECT_EQ(write(m_client, "EntryID", Data::octetString(std::vector<std::uint8_t>(8))), "");
    enable(m_client);
    EXPECT_EQ(sent(), "#0 0=1d | #1 0=2d | #2 0=3d | #3 0=4d");
}

TEST_F(ReportBlockTest, resumingBehindAnUnknownEntryIsRefused)
{
    make(true);
    change(0, 1);
    EXPECT_EQ(write(m_client, "EntryID",
                    Data::octetString(std::vector<std::uint8_t>{0, 0, 0, 0, 0, 0, 0, 1})),
              invalid());
    EXPECT_EQ(write(m_client, "EntryID",
                    Data::octetString(std::vector<std::uint8_t>{9, 0, 0, 0, 0, 0, 0, 1})),
              invalid());
    EXPECT_EQ(write(m_client, "EntryID", Data::octetString(std::vector<std::uint8_t>{1})),
              invalid());
}

TEST_F(ReportBlockTest, purgingForgetsTheBuffer)
{
    for (const bool purges : {false, true}) {
        make(true);
        change(0, 1);
        EXPECT_EQ(write(m_client, "PurgeBuf", Data::boolean(purges)), "");
        EXPECT_EQ(value("PurgeBuf"), Data::boolean(false));
        enable(m_client);
        EXPECT_EQ(sent(), purges ? "" : "#0 0=1d");
    }
}

TEST_F(ReportBlockTest, otherTriggersForgetTheBufferAndTheSameOnesDoNot)
{
    for (const bool changes : {false, true}) {
        make(true);
        change(0, 1);
        EXPECT_EQ(write(m_client, "TrgOps", value("TrgOps")), "");
        EXPECT_EQ(write(m_client, "OptFlds", value("OptFlds")), "");
        if (changes) {
            EXPECT_EQ(write(m_client, "IntgPd", Data::unsignedInteger(1000)), "");
        }
        enable(m_client);
        EXPECT_EQ(sent(), changes ? "" : "#0 0=1d");
    }
}

TEST_F(ReportBlockTest, anOverflowingBufferLosesTheOldestAndTellsItOnce)
{
    m_config.bufferOctets = 1000;
    make(true);
    for (int i = 0; i < 20; ++i)
        change(0, i);
    enable(m_client);
    const std::size_t kept = m_plant.sent.size();
    ASSERT_GT(kept, 1U);
    ASSERT_LT(kept, 20U);
    for (std::size_t i = 0; i < kept; ++i)
        EXPECT_EQ(m_plant.sent[i].members[0].value.data(), Data::integer(20 - kept + i));
    EXPECT_EQ(m_plant.sent[0].bufOvfl, true);
    EXPECT_EQ(m_plant.sent[1].bufOvfl, false);
}

TEST_F(ReportBlockTest, entriesThatWereSentLeaveTheBufferWithoutAnOverflow)
{
    m_config.bufferOctets = 1000;
    make(true);
    enable(m_client);
    for (int i = 0; i < 20; ++i)
        change(0, i);
    EXPECT_EQ(m_plant.sent.size(), 20U);
    EXPECT_EQ(sent().find("overflow"), std::string::npos);
}

TEST_F(ReportBlockTest, aClientThatIsBehindGetsTheRestOfTheBufferLater)
{
    make(true);
    enable(m_client);
    m_plant.ready = false;
    change(0, 1);
    change(0, 2);
    EXPECT_EQ(sent(), "");
    EXPECT_EQ(m_block->heldBack(), &m_client);
    m_plant.ready = true;
    m_block->drain();
    EXPECT_EQ(sent(), "#0 0=1d | #1 0=2d");
    EXPECT_EQ(m_block->heldBack(), nullptr);
}

TEST_F(ReportBlockTest, anUnbufferedReportThatIsLostLeavesAGapInTheNumbers)
{
    make(false);
    enable(m_client);
    change(0, 1);
    m_plant.ready = false;
    change(0, 2);
    change(0, 3);
    m_plant.ready = true;
    change(0, 4);
    EXPECT_EQ(sent(), "#0 0=1d | #3 0=4d");
}

TEST_F(ReportBlockTest, sequenceNumbersStartAnewAndWrapAtTheirWidth)
{
    make(false);
    enable(m_client);
    for (int i = 0; i < 257; ++i)
        change(0, i);
    EXPECT_EQ(m_plant.sent[255].sqNum, 255U);
    EXPECT_EQ(m_plant.sent[256].sqNum, 0U);
    disable(m_client);
    sent();
    enable(m_client);
    change(0, 1);
    EXPECT_EQ(sent(), "#0 0=1d");
}

TEST_F(ReportBlockTest, reportsCarryWhatTheBlockIsCalled)
{
    m_config.rptId.clear();
    m_config.optFlds.dataReference = true;
    make(true);
    change(1, 1);
    m_clock.advance(3s);
    enable(m_client);
    ASSERT_EQ(m_plant.sent.size(), 1U);
    const acsi::Report &report = m_plant.sent[0];
    EXPECT_EQ(report.rptId, "LD/LLN0$BR$events01");
    EXPECT_EQ(report.datSet, "LD/LLN0$events");
    EXPECT_EQ(report.confRev, 7U);
    EXPECT_EQ(report.dataSetSize, 3U);
    EXPECT_EQ(report.members[0].reference, "LD/GGIO1$ST$Ind2");
    // 2021-03-04 05:06:07, when the change happened.
    EXPECT_EQ(report.timeOfEntry, (mms::BinaryTime{18367000, std::uint16_t(13577)}));
    EXPECT_EQ(value("TimeofEntry"), Data::binaryTime(*report.timeOfEntry));
}

TEST(ReportSegments, aLongReportIsDividedSoThatEachPartFits)
{
    acsi::Report report;
    report.rptId = "long";
    report.optFlds.sequenceNumber = true;
    report.optFlds.dataReference = true;
    report.optFlds.reasonForInclusion = true;
    report.sqNum = 4;
    report.dataSetSize = 200;
    for (std::size_t i = 0; i < 200; ++i)
        report.members.push_back({i, "LD/MMXU1$MX$PhV$phsA" + std::to_string(i), acsi::Triggers(),
                                  Data::structure({Data::float64(1.5), Data::integer(-70000)})});
    const auto parts = sim::segments(report, 1000);
    ASSERT_GT(parts.size(), 5U);
    std::size_t members = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::size_t size =
            mms::encode(mms::UnconfirmedPdu{acsi::encodeReport(parts[i])}).size();
        EXPECT_LE(size, 1000U);
        EXPECT_GT(size, i + 1 < parts.size() ? 800U : 0U);
        EXPECT_EQ(parts[i].subSqNum, i);
        EXPECT_EQ(parts[i].moreSegmentsFollow, i + 1 < parts.size());
        EXPECT_TRUE(parts[i].optFlds.segmentation);
        EXPECT_EQ(parts[i].sqNum, 4U);
        for (const acsi::ReportMember &member : parts[i].members)
            EXPECT_EQ(member.index, members++);
    }
    EXPECT_EQ(members, 200U);
}

TEST(ReportSegments, aReportThatFitsStaysWhole)
{
    acsi::Report report;
    report.dataSetSize = 1;
    report.members.push_back({0, {}, {}, Data::integer(1)});
    const auto parts = sim::segments(report, 1000);
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_FALSE(parts[0].optFlds.segmentation);
}

TEST(ReportSegments, aMemberThatFitsNoPduIsToldAsAnError)
{
    acsi::Report report;
    report.dataSetSize = 2;
    report.members.push_back({0, {}, {}, Data::visibleString(std::string(2000, 'x'))});
    report.members.push_back({1, {}, {}, Data::integer(1)});
    const auto parts = sim::segments(report, 1000);
    ASSERT_EQ(parts.size(), 1U);
    ASSERT_FALSE(parts[0].members[0].value.ok());
    EXPECT_EQ(parts[0].members[0].value.error(), DataAccessError::ObjectAccessUnsupported);
    EXPECT_TRUE(parts[0].members[1].value.ok());
}

TEST(ReportSegments, sizesOfValuesAreThoseOnTheWire)
{
    for (const Data &data :
         {Data::boolean(true), Data::integer(0), Data::integer(127), Data::integer(128),
          Data::integer(-128), Data::integer(-129), Data::integer(1LL << 40),
          Data::unsignedInteger(255), Data::unsignedInteger(~0ULL), Data::float32(1),
          Data::float64(1), Data::bitString(mms::BitString(13)), Data::visibleString("abc"),
          Data::visibleString(std::string(300, 'a')), Data::utcTime({}),
          Data::binaryTime({1, std::uint16_t(1)}), Data::octetString({}),
          Data::structure({Data::boolean(true), Data::structure({Data::float32(1)})}),
          Data::array(std::vector<Data>(70, Data::integer(1)))})
        EXPECT_EQ(sim::reportedSize(data), wiretest::encode(data).size()) << mms::toText(data);
}
