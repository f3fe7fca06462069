// SPDX-License-Identifier: Apache-2.0
#include "simulator/controlledbay.h"
#include "simulator/manualclock.h"
#include "simulator/recordingclient.h"

#include "acsi/control.h"
#include "acsi/reference.h"
#include "acsi/report.h"
#include "simulator/engine.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using acsi::ControlRequest;
using mms::Data;
using mms::DataAccessError;

namespace {

/// A whole device without a network, in a test's time.
class EnginesTest : public testing::Test
{
protected:
    ~EnginesTest() override { m_engines.clear(); }

    sim::Part part(const std::string &item) const { return m_model.find("IED1LD", item); }

    mms::AccessResult read(const std::string &item, sim::Peer &client)
    {
        return m_access.read(client, part(item));
    }
    Data read(const std::string &item)
    {
        const auto result = read(item, m_client);
        EXPECT_TRUE(result.ok()) << item;
        return result.ok() ? result.data() : Data();
    }
    std::optional<DataAccessError> write(const std::string &item, const Data &value,
                                         sim::Peer &client)
    {
        return m_access.write(client, part(item), value);
    }
    std::optional<DataAccessError> write(const std::string &item, const Data &value)
    {
        return write(item, value, m_client);
    }
    void set(const std::string &item, Data value)
    {
        m_model.set(part(item).firstLeaf(), std::move(value));
    }

    void leave(sim::Peer &client)
    {
        for (const auto &engine : m_engines)
            engine->closed(client);
    }

    /// The reports that @p client got since the last time.
    static std::vector<acsi::Report> reports(simtest::RecordingClient &client)
    {
        std::vector<acsi::Report> result;
        for (mms::InformationReport &each : std::exchange(client.reports, {})) {
            EXPECT_TRUE(acsi::isReport(each));
            auto report = acsi::decodeReport(std::move(each));
            EXPECT_TRUE(report.ok());
            if (report)
                result.push_back(std::move(*report));
        }
        return result;
    }

    ControlRequest request(Data value)
    {
        ControlRequest result;
        result.value = std::move(value);
        result.originator = {2, {7}};
        result.ctlNum = 9;
        return result;
    }

    /// "+", or the additional cause of the refusal.
    std::string control(const std::string &object, const std::string &service,
                        const ControlRequest &request, simtest::RecordingClient &client)
    {
        const std::string item = object + '$' + service;
        const auto value = acsi::controlValue(part(item).type(), request);
        EXPECT_TRUE(value.ok()) << (value ? "" : value.error().message.english());
        if (!value)
            return "?";
        const std::size_t before = client.reports.size();
        if (!write(item, *value, client))
            return "+";
        if (client.reports.size() == before)
            return "-";
        const auto information = acsi::controlInformationFrom(client.reports.back());
        client.reports.pop_back();
        return std::to_string(information->applError->addCause);
    }
    std::string control(const std::string &object, const std::string &service,
                        const ControlRequest &request)
    {
        return control(object, service, request, m_client);
    }
    std::string operate(const std::string &object, Data value)
    {
        return control(object, "Oper", request(std::move(value)));
    }

    static Data on() { return Data::boolean(true); }
    static Data off() { return Data::boolean(false); }
    static Data position(const char *bits)
    {
        return Data::bitString(mms::BitString::fromText(bits));
    }

    simtest::DescribedIed m_ied = simtest::controlledBay();
    simtest::ManualClock m_clock;
    sim::Model m_model{*m_ied, m_clock.utcTime()};
    sim::Access m_access{m_model};
    sim::DataSets m_dataSets{m_model, *m_ied};
    std::vector<std::unique_ptr<sim::Engine>> m_engines =
        sim::makeEngines({m_model, m_access, m_dataSets, m_clock}, *m_ied);
    simtest::RecordingClient m_client{{192, 0, 2, 1}};
    simtest::RecordingClient m_other{{192, 0, 2, 2}};
};

} // namespace

TEST_F(EnginesTest, reportBlocksShowWhatTheFileConfigures)
{
    EXPECT_EQ(read("LLN0$BR$brcb01$RptID"), Data::visibleString("b"));
    EXPECT_EQ(read("LLN0$BR$brcb01$DatSet"), Data::visibleString("IED1LD/LLN0$Positions"));
    EXPECT_EQ(read("LLN0$BR$brcb01$ConfRev"), Data::unsignedInteger(4));
    EXPECT_EQ(acsi::Triggers::from(read("LLN0$BR$brcb01$TrgOps").bits()).integrity, true);
    EXPECT_EQ(acsi::OptFlds::from(read("LLN0$BR$brcb01$OptFlds").bits()).entryId, true);
    EXPECT_EQ(read("LLN0$RP$meas$BufTm"), Data::unsignedInteger(100));
    EXPECT_EQ(read("LLN0$RP$meas$IntgPd"), Data::unsignedInteger(1000));
    EXPECT_TRUE(part("LLN0$RP$urcb02").isValid());
}

TEST_F(EnginesTest, aChangeOfTheModelIsReportedByTheMemberThatHoldsIt)
{
    ASSERT_EQ(write("LLN0$RP$urcb01$RptEna", on()), std::nullopt);
    set("XCBR1$ST$Pos$stVal", position("10"));
    set("XCBR1$ST$Pos$stVal", position("10"));
    set("CSWI1$ST$Pos$q", position("0000000000010"));
    const auto received = reports(m_client);
    ASSERT_EQ(received.size(), 2U);
    EXPECT_EQ(received[0].rptId, "u");
    EXPECT_EQ(received[0].dataSetSize, 3U);
    ASSERT_EQ(received[0].members.size(), 1U);
    EXPECT_EQ(received[0].members[0].index, 1U);
    EXPECT_EQ(received[0].members[0].reference, "IED1LD/XCBR1$ST$Pos$stVal");
    EXPECT_TRUE(received[0].members[0].reason->dataChange);
    EXPECT_EQ(received[0].members[0].value.data(), position("10"));
    ASSERT_EQ(received[1].members.size(), 1U);
    EXPECT_EQ(received[1].members[0].index, 0U);
    EXPECT_TRUE(received[1].members[0].reason->qualityChange);
    EXPECT_EQ(received[1].sqNum, 1U);
    EXPECT_EQ(read("LLN0$RP$urcb01$SqNum"), Data::unsignedInteger(2));
    EXPECT_EQ(read("LLN0$RP$urcb01$Owner"), Data::octetString(m_client.address()));
}

TEST_F(EnginesTest, valuesThatAreSetTogetherAreReportedTogether)
{
    write("LLN0$RP$urcb01$RptEna", on());
    {
        const sim::Model::Batch batch(m_model);
        set("XCBR1$ST$Pos$q", position("0000000000010"));
        set("XCBR1$ST$Pos$stVal", position("10"));
    }
    const auto received = reports(m_client);
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0].members.size(), 2U);
}

TEST_F(EnginesTest, eachInstanceOfABlockServesAnotherClient)
{
    write("LLN0$RP$urcb01$RptEna", on());
    EXPECT_EQ(write("LLN0$RP$urcb01$RptEna", on(), m_other),
              DataAccessError::TemporarilyUnavailable);
    EXPECT_EQ(write("LLN0$RP$urcb02$RptEna", on(), m_other), std::nullopt);
    set("XCBR1$ST$Pos$stVal", position("10"));
    EXPECT_EQ(reports(m_client).size(), 1U);
    EXPECT_EQ(reports(m_other).size(), 1U);
    leave(m_client);
    set("XCBR1$ST$Pos$stVal", position("01"));
    EXPECT_EQ(reports(m_client).size(), 0U);
    EXPECT_EQ(reports(m_other).size(), 1U);
    EXPECT_EQ(read("LLN0$RP$urcb01$RptEna"), off());
}

TEST_F(EnginesTest, timesOfBlocksAreKept)
{
    write("LLN0$RP$meas$RptEna", on());
    set("MMXU1$MX$Hz$mag$f", Data::float32(50));
    set("MMXU1$MX$Hz$mag$f", Data::float32(51));
    m_clock.advance(99ms);
    EXPECT_EQ(m_client.reports.size(), 0U);
    m_clock.advance(1ms);
    auto received = reports(m_client);
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0].members[0].value.data(), Data::float32(51));
    m_clock.advance(900ms);
    received = reports(m_client);
    ASSERT_EQ(received.size(), 1U);
    EXPECT_TRUE(received[0].members[0].reason->integrity);
    EXPECT_EQ(received[0].members.size(), 2U);
    m_clock.advance(5s);
    EXPECT_EQ(m_client.reports.size(), 5U);
}

TEST_F(EnginesTest, aBufferedBlockIsReplayedAfterItsWriteWasAnswered)
{
    set("XCBR1$ST$Pos$stVal", position("10"));
    set("XCBR1$ST$Pos$stVal", position("01"));
    EXPECT_EQ(write("LLN0$BR$brcb01$RptEna", on()), std::nullopt);
    EXPECT_EQ(m_client.reports.size(), 0U);
    m_clock.advance(0ms);
    const auto received = reports(m_client);
    ASSERT_EQ(received.size(), 2U);
    EXPECT_EQ(received[0].entryId.size(), 8U);
    EXPECT_EQ(received[0].datSet, "IED1LD/LLN0$Positions");
    EXPECT_EQ(received[1].confRev, 4U);
    EXPECT_EQ(read("LLN0$BR$brcb01$EntryID"), Data::octetString(received[1].entryId));
    leave(m_client);
    set("XCBR1$ST$Pos$stVal", position("10"));
    EXPECT_EQ(write("LLN0$BR$brcb01$EntryID", Data::octetString(received[1].entryId)),
              std::nullopt);
    write("LLN0$BR$brcb01$RptEna", on());
    m_clock.advance(0ms);
    EXPECT_EQ(reports(m_client).size(), 1U);
}

TEST_F(EnginesTest, aClientWhoseNetworkIsFullGetsTheBufferOnceItHasRoom)
{
    write("LLN0$BR$brcb01$RptEna", on());
    m_clock.advance(0ms);
    m_client.waiting = 10 * 1024 * 1024;
    set("XCBR1$ST$Pos$stVal", position("10"));
    set("XCBR1$ST$Pos$stVal", position("01"));
    EXPECT_EQ(m_client.reports.size(), 0U);
    m_client.waiting = 0;
    ASSERT_TRUE(m_client.onCaughtUp);
    m_client.onCaughtUp();
    EXPECT_EQ(reports(m_client).size(), 2U);
}

TEST_F(EnginesTest, aDataSetThatABlockUsesIsNotDeleted)
{
    mms::DefineNamedVariableListRequest define;
    define.name = mms::ObjectName::inDomain("IED1LD", "LLN0$Mine");
    mms::VariableAccess member;
    member.variable = mms::ObjectName::inDomain("IED1LD", "MMXU1$MX$Hz");
    define.members = {member};
    ASSERT_EQ(m_dataSets.define(m_client, define), std::nullopt);
    EXPECT_EQ(write("LLN0$RP$urcb01$DatSet", Data::visibleString("IED1LD/LLN0$Mine")),
              std::nullopt);
    EXPECT_EQ(read("LLN0$RP$urcb01$ConfRev"), Data::unsignedInteger(2));
    mms::DeleteNamedVariableListRequest remove;
    remove.names = {define.name};
    const auto deletedOf = [&] {
        const auto answer = m_dataSets.remove(m_client, remove);
        const auto *response = std::get_if<mms::DeleteNamedVariableListResponse>(&answer);
        return response ? response->deleted : 0;
    };
    EXPECT_EQ(deletedOf(), 0U);
    write("LLN0$RP$urcb01$RptEna", on());
    set("MMXU1$MX$Hz$mag$f", Data::float32(50));
    EXPECT_EQ(reports(m_client).size(), 1U);
    write("LLN0$RP$urcb01$RptEna", off());
    write("LLN0$RP$urcb01$DatSet", Data::visibleString(""));
    EXPECT_EQ(deletedOf(), 1U);
}

TEST_F(EnginesTest, aLongReportComesInSegmentsThatFitTheClient)
{
    m_client.longestPdu = 150;
    write("LLN0$RP$urcb01$TrgOps", Data::bitString(mms::BitString::fromText("011001")));
    write("LLN0$RP$urcb01$RptEna", on());
    EXPECT_EQ(write("LLN0$RP$urcb01$GI", on()), std::nullopt);
    m_clock.advance(0ms);
    const auto parts = reports(m_client);
    ASSERT_GT(parts.size(), 1U);
    EXPECT_TRUE(parts[0].moreSegmentsFollow);
    acsi::ReportAssembler assembler;
    std::optional<acsi::Report> whole;
    for (const acsi::Report &each : parts)
        whole = assembler.take(each, {});
    ASSERT_TRUE(whole.has_value());
    EXPECT_EQ(whole->members.size(), 3U);
}

TEST_F(EnginesTest, aSwitchIsSelectedAndGoesThroughItsIntermediatePosition)
{
    const auto close = request(on());
    EXPECT_EQ(control("CSWI1$CO$Pos", "Oper", close), "18");
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", close), "+");
    EXPECT_EQ(read("CSWI1$ST$Pos$stSeld"), on());
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", close, m_other), "19");
    EXPECT_EQ(control("CSWI1$CO$Pos", "Oper", close), "+");
    EXPECT_EQ(read("CSWI1$ST$Pos$stVal"), position("00"));
    EXPECT_EQ(read("XCBR1$ST$Pos$stVal"), position("00"));
    m_clock.advance(60ms);
    EXPECT_EQ(read("CSWI1$ST$Pos$stVal"), position("10"));
    EXPECT_EQ(read("XCBR1$ST$Pos$stVal"), position("10"));
    EXPECT_EQ(read("CSWI1$ST$Pos$stSeld"), off());
    EXPECT_EQ(read("CSWI1$ST$Pos$t"), Data::utcTime(m_clock.utcTime()));
    EXPECT_EQ(read("CSWI1$ST$Pos$origin$orCat"), Data::integer(2));
    EXPECT_EQ(read("CSWI1$ST$Pos$origin$orIdent"), Data::octetString(std::vector<std::uint8_t>{7}));
    EXPECT_EQ(read("CSWI1$ST$Pos$ctlNum"), Data::unsignedInteger(9));
    ASSERT_EQ(m_client.reports.size(), 1U);
    const auto end = acsi::controlInformationFrom(m_client.reports[0]);
    ASSERT_TRUE(end && end->terminated);
    EXPECT_TRUE(end->positive);
    EXPECT_EQ(acsi::toText(*end->terminated), "IED1LD/CSWI1$CO$Pos");
    m_client.reports.clear();
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", close), "5");
}

TEST_F(EnginesTest, aSwitchObjectThatOnlyShowsItsStateIsNotOperated)
{
    EXPECT_EQ(operate("XCBR1$CO$Pos", on()), "1");
    EXPECT_EQ(read("XCBR1$CO$Pos$SBO"), Data::visibleString(""));
}

TEST_F(EnginesTest, readingTheSelectionSelectsAndReadingAroundItDoesNot)
{
    EXPECT_TRUE(read("GGIO1$CO$SPCSO2", m_client).ok());
    EXPECT_EQ(operate("GGIO1$CO$SPCSO2", on()), "18");
    EXPECT_EQ(read("GGIO1$CO$SPCSO2$SBO"), Data::visibleString("IED1LD/GGIO1$CO$SPCSO2"));
    EXPECT_EQ(read("GGIO1$CO$SPCSO2$SBO", m_other).data(), Data::visibleString(""));
    EXPECT_EQ(operate("GGIO1$CO$SPCSO2", on()), "+");
    m_clock.advance(1s);
    EXPECT_EQ(read("GGIO1$ST$SPCSO2$stVal"), on());
    EXPECT_EQ(m_client.reports.size(), 0U);
}

TEST_F(EnginesTest, theSelectionTimeIsTheConfiguredOne)
{
    EXPECT_EQ(write("GGIO1$CF$SPCSO2$sboTimeout", Data::unsignedInteger(200)), std::nullopt);
    read("GGIO1$CO$SPCSO2$SBO");
    m_clock.advance(200ms);
    EXPECT_EQ(operate("GGIO1$CO$SPCSO2", on()), "18");
}

TEST_F(EnginesTest, aLostClientLosesItsSelection)
{
    read("GGIO1$CO$SPCSO2$SBO");
    leave(m_client);
    EXPECT_EQ(read("GGIO1$CO$SPCSO2$SBO", m_other).data(),
              Data::visibleString("IED1LD/GGIO1$CO$SPCSO2"));
}

TEST_F(EnginesTest, interlockingAndSynchrocheckAreThoseOfTheBay)
{
    auto close = request(on());
    close.interlockCheck = true;
    close.synchrocheck = true;
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", close), "+");
    EXPECT_EQ(control("CSWI1$CO$Pos", "Cancel", request(on())), "+");
    set("RSYN1$ST$Rel$stVal", off());
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", close), "11");
    set("CILO1$ST$EnaCls$stVal", off());
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", close), "10");
    close.interlockCheck = false;
    close.synchrocheck = false;
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", close), "+");
    EXPECT_EQ(control("CSWI1$CO$Pos", "Cancel", close), "+");
    set("XCBR1$ST$BlkCls$stVal", on());
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", close), "24");
}

TEST_F(EnginesTest, whoSwitchesTheBayToLocalKeepsTheStationAway)
{
    set("LLN0$ST$Loc$stVal", on());
    EXPECT_EQ(operate("GGIO1$CO$SPCSO1", on()), "2");
    auto atTheBay = request(on());
    atTheBay.originator.category = 1;
    EXPECT_EQ(control("GGIO1$CO$SPCSO1", "Oper", atTheBay), "+");
}

TEST_F(EnginesTest, theModeOfTheDeviceReachesItsNodesAndTheirControls)
{
    EXPECT_EQ(operate("LLN0$CO$Mod", Data::integer(3)), "+");
    m_clock.advance(1s);
    EXPECT_EQ(read("LLN0$ST$Mod$stVal"), Data::integer(3));
    EXPECT_EQ(read("LLN0$ST$Beh$stVal"), Data::integer(3));
    EXPECT_EQ(read("CSWI1$ST$Beh$stVal"), Data::integer(3));
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", request(on())), "8");
    auto test = request(on());
    test.test = true;
    EXPECT_EQ(control("CSWI1$CO$Pos", "SBOw", test), "+");
    EXPECT_EQ(control("CSWI1$CO$Pos", "Oper", test), "+");
    m_clock.advance(60ms);
    EXPECT_TRUE(read("CSWI1$ST$Pos$q").testBit(11));
    EXPECT_EQ(operate("CSWI1$CO$Mod", Data::integer(2)), "+");
    m_clock.advance(1s);
    EXPECT_EQ(read("CSWI1$ST$Beh$stVal"), Data::integer(4));
    EXPECT_EQ(operate("LLN0$CO$Mod", Data::integer(1)), "+");
    m_clock.advance(1s);
    EXPECT_EQ(read("CSWI1$ST$Beh$stVal"), Data::integer(2));
    EXPECT_EQ(operate("LLN0$CO$Mod", Data::integer(7)), "-");
}

TEST_F(EnginesTest, setPointsAndStepsFollowTheirControls)
{
    EXPECT_EQ(operate("GGIO1$CO$ISCSO1", Data::integer(7)), "+");
    EXPECT_EQ(operate("GGIO1$CO$AnOut1", Data::structure({Data::float32(12.5F)})), "+");
    EXPECT_EQ(operate("ATCC1$CO$TapChg", position("10")), "+");
    EXPECT_EQ(operate("ATCC1$CO$TapPos", Data::integer(-3)), "+");
    EXPECT_EQ(read("ATCC1$ST$TapChg$valWTr$transInd"), on());
    m_clock.advance(1s);
    EXPECT_EQ(read("GGIO1$ST$ISCSO1$stVal"), Data::integer(7));
    EXPECT_EQ(read("GGIO1$MX$AnOut1$mxVal$f"), Data::float32(12.5F));
    EXPECT_EQ(read("ATCC1$ST$TapChg$valWTr"), Data::structure({Data::integer(1), off()}));
    EXPECT_EQ(read("ATCC1$ST$TapPos$valWTr$posVal"), Data::integer(-3));
    EXPECT_EQ(operate("GGIO1$CO$ISCSO1", Data::integer(11)), "26");
    EXPECT_EQ(operate("ATCC1$CO$TapPos", Data::integer(64)), "7");
}

TEST_F(EnginesTest, anOperationForLaterHappensThen)
{
    auto later = request(on());
    later.operateTime = mms::UtcTime{m_clock.utcTime().seconds + 2, 0, 0};
    EXPECT_EQ(control("GGIO1$CO$SPCSO3", "Oper", later), "+");
    m_clock.advance(1900ms);
    EXPECT_EQ(read("GGIO1$ST$SPCSO3$stVal"), off());
    m_clock.advance(200ms);
    EXPECT_EQ(read("GGIO1$ST$SPCSO3$stVal"), on());
    EXPECT_EQ(m_client.reports.size(), 1U);
}

TEST_F(EnginesTest, partsOfAControlCannotBeWritten)
{
    EXPECT_EQ(write("GGIO1$CO$SPCSO1$Oper$ctlVal", on()), DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(write("GGIO1$CO$SPCSO1$Oper$Test", on()), DataAccessError::ObjectAccessDenied);
}

TEST_F(EnginesTest, eachSettingGroupHasValuesOfItsOwn)
{
    EXPECT_EQ(read("LLN0$SP$SGCB$NumOfSG"), Data::unsignedInteger(3));
    EXPECT_EQ(read("LLN0$SP$SGCB$ActSG"), Data::unsignedInteger(2));
    EXPECT_EQ(read("PTOC1$SG$StrVal$setMag$f"), Data::float32(2.5F));
    EXPECT_EQ(write("LLN0$SP$SGCB$ActSG", Data::unsignedInteger(3)), std::nullopt);
    EXPECT_EQ(read("PTOC1$SG$StrVal$setMag$f"), Data::float32(3.5F));
    EXPECT_EQ(write("LLN0$SP$SGCB$ActSG", Data::unsignedInteger(4)),
              DataAccessError::ObjectValueInvalid);
    EXPECT_EQ(write("PTOC1$SG$StrVal$setMag$f", Data::float32(1)),
              DataAccessError::ObjectAccessDenied);
}

TEST_F(EnginesTest, settingsAreEditedBesideTheActiveOnesAndConfirmed)
{
    const std::string edited = "PTOC1$SE$StrVal$setMag$f";
    EXPECT_EQ(read(edited, m_client), mms::AccessResult(DataAccessError::TemporarilyUnavailable));
    EXPECT_EQ(write(edited, Data::float32(9)), DataAccessError::TemporarilyUnavailable);
    EXPECT_EQ(write("LLN0$SP$SGCB$EditSG", Data::unsignedInteger(2)), std::nullopt);
    EXPECT_EQ(read(edited), Data::float32(2.5F));
    EXPECT_EQ(write(edited, Data::float32(9)), std::nullopt);
    EXPECT_EQ(write(edited, Data::float32(8), m_other), DataAccessError::TemporarilyUnavailable);
    EXPECT_EQ(read(edited), Data::float32(9));
    EXPECT_EQ(read("PTOC1$SG$StrVal$setMag$f"), Data::float32(2.5F));
    EXPECT_EQ(write("LLN0$SP$SGCB$CnfEdit", on()), std::nullopt);
    EXPECT_EQ(read("PTOC1$SG$StrVal$setMag$f"), Data::float32(9));
    EXPECT_EQ(read("LLN0$SP$SGCB$EditSG"), Data::unsignedInteger(0));
    EXPECT_EQ(read("LLN0$SP$SGCB$CnfEdit"), off());
}

TEST_F(EnginesTest, anEditThatIsNotConfirmedIsForgotten)
{
    const std::string edited = "PTOC1$SE$StrVal$setMag$f";
    write("LLN0$SP$SGCB$EditSG", Data::unsignedInteger(1));
    write(edited, Data::float32(9));
    leave(m_client);
    EXPECT_EQ(write("LLN0$SP$SGCB$EditSG", Data::unsignedInteger(1), m_other), std::nullopt);
    EXPECT_EQ(read(edited, m_other).data(), Data::float32(1.5F));
    m_clock.advance(30s);
    EXPECT_EQ(read("LLN0$SP$SGCB$EditSG"), Data::unsignedInteger(0));
}
