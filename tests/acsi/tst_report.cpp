// SPDX-License-Identifier: Apache-2.0
#include "acsi/report.h"

#include "mms/datatext.h"
#include "mms/pdu.h"
#include "osi/bytes.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace acsi;
using namespace std::chrono_literals;
using mms::AccessResult;
using mms::Data;

OptFlds everything()
{
    return {true, true, true, true, true, true, true, true, true};
}

Report fullReport()
{
    Report report;
    report.rptId = "Feeder/LLN0$BR$brcbA";
    report.optFlds = everything();
    report.sqNum = 17;
    report.timeOfEntry = mms::BinaryTime{18367123, std::uint16_t{13577}};
    report.datSet = "Feeder/LLN0$dsA";
    report.bufOvfl = true;
    report.entryId = {0, 0, 0, 0, 0, 0, 1, 2};
    report.confRev = 3;
    report.dataSetSize = 10;
    report.members.push_back(
        {1, "Feeder/MMXU1$MX$TotW$mag$f", Triggers{true}, Data::float32(1.5F)});
    report.members.push_back({9, "Feeder/XCBR1$ST$Pos$stVal",
                              Triggers{false, true, false, false, false, true},
                              mms::DataAccessError::TemporarilyUnavailable});
    return report;
}

mms::InformationReport information(std::vector<AccessResult> results)
{
    return {mms::ObjectName::ofVmd("RPT"), std::move(results)};
}

Report segment(std::uint32_t subSqNum, bool more, std::vector<std::size_t> indexes)
{
    Report report;
    report.rptId = "id";
    report.optFlds.segmentation = true;
    report.optFlds.sequenceNumber = true;
    report.sqNum = 5;
    report.subSqNum = subSqNum;
    report.moreSegmentsFollow = more;
    report.dataSetSize = 6;
    for (const std::size_t index : indexes)
        report.members.push_back({index, {}, {}, Data::unsignedInteger(index)});
    return report;
}

std::vector<std::size_t> indexesOf(const Report &report)
{
    std::vector<std::size_t> result;
    for (const ReportMember &member : report.members)
        result.push_back(member.index);
    return result;
}

} // namespace

TEST(OptionalFields, eachHasTheBitThatTheStandardGivesIt)
{
    const std::vector<std::pair<bool OptFlds::*, std::string>> bits = {
        {&OptFlds::sequenceNumber, "0100000000"},
        {&OptFlds::timeStamp, "0010000000"},
        {&OptFlds::reasonForInclusion, "0001000000"},
        {&OptFlds::dataSetName, "0000100000"},
        {&OptFlds::dataReference, "0000010000"},
        {&OptFlds::bufferOverflow, "0000001000"},
        {&OptFlds::entryId, "0000000100"},
        {&OptFlds::confRevision, "0000000010"},
        {&OptFlds::segmentation, "0000000001"}};
    for (const auto &[field, text] : bits) {
        OptFlds one;
        one.*field = true;
        EXPECT_EQ(one.toBits().toText(), text);
        EXPECT_EQ(OptFlds::from(mms::BitString::fromText(text)), one) << text;
    }
    EXPECT_EQ(OptFlds::from(mms::BitString::fromText("01")).sequenceNumber, true);
}

TEST(TriggerConditions, eachHasTheBitThatTheStandardGivesIt)
{
    const std::vector<std::pair<bool Triggers::*, std::string>> bits = {
        {&Triggers::dataChange, "010000"},           {&Triggers::qualityChange, "001000"},
        {&Triggers::dataUpdate, "000100"},           {&Triggers::integrity, "000010"},
        {&Triggers::generalInterrogation, "000001"}, {&Triggers::applicationTrigger, "0000001"}};
    for (const auto &[trigger, text] : bits) {
        Triggers one;
        one.*trigger = true;
        EXPECT_EQ(one.toBits().toText(), text);
        EXPECT_EQ(Triggers::from(mms::BitString::fromText(text)), one) << text;
        EXPECT_EQ(Triggers::from(Data::bitString(mms::BitString::fromText(text))), one) << text;
    }
}

TEST(ReportDecoding, theOctetsOfAReportWithEveryFieldGiveEveryField)
{
    const auto pdu =
        mms::decodePdu(wiretest::fromHex("a349 a047 a105 8003525054 a03e"
                                         "8a0172 8403067fc0 860111 8c06011842933509 8a0164 830101"
                                         "89080000000000000102 860103 860100 830100 84020640"
                                         "8a0178 8705083fc00000 84020240"));
    ASSERT_TRUE(pdu.ok()) << pdu.error().message;
    const auto decoded =
        decodeReport(std::get<mms::InformationReport>(std::get<mms::UnconfirmedPdu>(*pdu).service));
    ASSERT_TRUE(decoded.ok()) << decoded.error().message;
    Report expected = fullReport();
    expected.rptId = "r";
    expected.datSet = "d";
    expected.dataSetSize = 2;
    expected.members = {{1, "x", Triggers{true}, Data::float32(1.5F)}};
    EXPECT_EQ(*decoded, expected);
}

TEST(ReportDecoding, whatWasEncodedIsDecodedAsItWas)
{
    const Report report = fullReport();
    const auto decoded = decodeReport(encodeReport(report));
    ASSERT_TRUE(decoded.ok()) << decoded.error().message;
    EXPECT_EQ(*decoded, report);
}

TEST(ReportDecoding, fieldsComeInTheOrderOfTheStandard)
{
    const mms::InformationReport encoded = encodeReport(fullReport());
    EXPECT_EQ(std::get<mms::ObjectName>(encoded.variables), mms::ObjectName::ofVmd("RPT"));
    std::string text;
    for (const AccessResult &result : encoded.results)
        text += mms::toText(result) + '\n';
    EXPECT_EQ(text, R"("Feeder/LLN0$BR$brcbA"
'0111111111'B
17
2021-03-04T05:06:07.123Z
"Feeder/LLN0$dsA"
true
'0000000000000102'H
3
0
false
'0100000001'B
"Feeder/MMXU1$MX$TotW$mag$f"
"Feeder/XCBR1$ST$Pos$stVal"
1.5
)" + mms::toText(encoded.results[14]) +
                        R"(
'010000'B
'0010001'B
)");
    EXPECT_FALSE(encoded.results[14].ok());
}

TEST(ReportDecoding, aReportWithoutOptionalFieldsHasOnlyItsMembers)
{
    Report report;
    report.rptId = "";
    report.dataSetSize = 3;
    report.members.push_back({2, {}, {}, Data::boolean(true)});
    const auto encoded = encodeReport(report);
    EXPECT_EQ(encoded.results.size(), 4U);
    const auto decoded = decodeReport(encoded);
    ASSERT_TRUE(decoded.ok()) << decoded.error().message;
    EXPECT_EQ(*decoded, report);
    EXPECT_FALSE(decoded->sqNum);
    EXPECT_FALSE(decoded->members[0].reason);
}

TEST(ReportDecoding, aReportWithoutMembersIsAReport)
{
    Report report = fullReport();
    report.members.clear();
    report.dataSetSize = 0;
    const auto decoded = decodeReport(encodeReport(report));
    ASSERT_TRUE(decoded.ok()) << decoded.error().message;
    EXPECT_EQ(*decoded, report);
}

TEST(ReportDecoding, unbufferedBlocksMayLeaveOutTheFieldsOfBufferedOnes)
{
    const auto decoded = decodeReport(information(
        {Data::visibleString("id"), Data::bitString(mms::BitString::fromText("0100001110")),
         Data::unsignedInteger(9), Data::unsignedInteger(4),
         Data::bitString(mms::BitString::fromText("1")), Data::integer(7)}));
    ASSERT_TRUE(decoded.ok()) << decoded.error().message;
    EXPECT_FALSE(decoded->optFlds.bufferOverflow);
    EXPECT_FALSE(decoded->optFlds.entryId);
    EXPECT_FALSE(decoded->bufOvfl);
    EXPECT_EQ(decoded->confRev, 4U);
    EXPECT_EQ(decoded->members.at(0).value, AccessResult(Data::integer(7)));
}

TEST(ReportDecoding, aRefusedMemberKeepsItsPlaceAndItsError)
{
    const auto decoded = decodeReport(encodeReport(fullReport()));
    ASSERT_TRUE(decoded.ok());
    ASSERT_EQ(decoded->members.size(), 2U);
    EXPECT_EQ(decoded->members[1].index, 9U);
    EXPECT_EQ(decoded->members[1].value.error(), mms::DataAccessError::TemporarilyUnavailable);
}

TEST(ReportDecoding, eachFieldOfTheWrongTypeIsNamed)
{
    const mms::InformationReport good = encodeReport(fullReport());
    const std::vector<std::pair<std::size_t, std::string>> fields = {
        {0, "RptID"},
        {1, "OptFlds"},
        {2, "SqNum"},
        {3, "TimeOfEntry"},
        {4, "DatSet"},
        {5, "BufOvfl"},
        {6, "EntryID"},
        {7, "ConfRev"},
        {8, "SubSqNum"},
        {9, "MoreSegmentsFollow"},
        {10, "Inclusion"},
        {11, "DataRef of the member 2"},
        {15, "ReasonCode of the member 2"},
        {16, "ReasonCode of the member 10"}};
    for (const auto &[index, name] : fields) {
        for (const AccessResult &bad : {AccessResult(Data::float32(1)),
                                        AccessResult(mms::DataAccessError::ObjectAccessDenied)}) {
            mms::InformationReport report = good;
            report.results[index] = bad;
            const auto decoded = decodeReport(report);
            ASSERT_FALSE(decoded.ok()) << name;
            EXPECT_NE(decoded.error().message.english().find(name), std::string::npos)
                << decoded.error().message;
        }
    }
}

TEST(ReportDecoding, numbersThatDoNotFitAreErrors)
{
    mms::InformationReport report = encodeReport(fullReport());
    report.results[2] = Data::unsignedInteger(0x100000000);
    EXPECT_FALSE(decodeReport(report).ok());
    report.results[2] = Data::integer(-1);
    EXPECT_FALSE(decodeReport(report).ok());
    report.results[2] = Data::integer(0x7FFFFFFF);
    EXPECT_TRUE(decodeReport(report).ok());
}

TEST(ReportDecoding, aReportCutAnywhereIsAnError)
{
    const mms::InformationReport good = encodeReport(fullReport());
    for (std::size_t size = 0; size < good.results.size(); ++size) {
        mms::InformationReport report = good;
        report.results.erase(report.results.begin() + static_cast<std::ptrdiff_t>(size),
                             report.results.end());
        const auto decoded = decodeReport(report);
        ASSERT_FALSE(decoded.ok()) << size;
        EXPECT_FALSE(decoded.error().message.empty());
    }
}

TEST(ReportDecoding, moreOrFewerValuesThanTheInclusionStringSaysAreCountedInTheError)
{
    mms::InformationReport report = encodeReport(fullReport());
    report.results.emplace_back(Data::boolean(true));
    const auto more = decodeReport(report);
    ASSERT_FALSE(more.ok());
    EXPECT_EQ(more.error().message, "The report says that it brings 2 members, which are 6 values, "
                                    "but it has 7.");
}

TEST(ReportDecoding, otherInformationReportsAreNotReports)
{
    const mms::InformationReport other{
        std::vector{mms::VariableAccess{mms::ObjectName::ofVmd("LastApplError"), {}}},
        {Data::boolean(true)}};
    EXPECT_FALSE(isReport(other));
    const auto decoded = decodeReport(other);
    ASSERT_FALSE(decoded.ok());
    EXPECT_NE(decoded.error().message.english().find("LastApplError"), std::string::npos);
    EXPECT_FALSE(isReport({mms::ObjectName::inDomain("RPT", "RPT"), {}}));
    EXPECT_TRUE(isReport(information({})));
}

TEST(ReportAssembling, aReportInOnePartIsWholeAtOnce)
{
    ReportAssembler assembler;
    const Report report = fullReport();
    const auto whole = assembler.take(report, {});
    ASSERT_TRUE(whole);
    EXPECT_EQ(*whole, report);
    EXPECT_EQ(assembler.dropped(), 0U);
}

TEST(ReportAssembling, theLastPartGivesTheWholeReportInTheOrderOfTheDataSet)
{
    ReportAssembler assembler;
    EXPECT_FALSE(assembler.take(segment(0, true, {0, 4}), {}));
    EXPECT_FALSE(assembler.take(segment(1, true, {1}), {}));
    const auto whole = assembler.take(segment(2, false, {2, 5}), {});
    ASSERT_TRUE(whole);
    EXPECT_EQ(indexesOf(*whole), (std::vector<std::size_t>{0, 1, 2, 4, 5}));
    EXPECT_EQ(whole->subSqNum, 0U);
    EXPECT_FALSE(whole->moreSegmentsFollow);
    EXPECT_EQ(whole->sqNum, 5U);
    EXPECT_EQ(assembler.dropped(), 0U);
}

TEST(ReportAssembling, partsThatDoNotContinueWhatWaitsAreDroppedAndCounted)
{
    struct Case
    {
        const char *what;
        std::function<void(Report &)> change;
    };
    const std::vector<Case> cases = {
        {"a missing part", [](Report &report) { report.subSqNum = 2; }},
        {"the same part again",
         [](Report &report) {
             report.subSqNum = 0;
             report.moreSegmentsFollow = true;
         }},
        {"another report", [](Report &report) { report.sqNum = 6; }},
        {"another entry", [](Report &report) { report.entryId = {1}; }},
        {"another data set", [](Report &report) { report.dataSetSize = 7; }},
        {"more members than the data set has",
         [](Report &report) {
             for (std::size_t i = 0; i < 6; ++i)
                 report.members.push_back({i, {}, {}, Data::boolean(true)});
         }},
    };
    for (const Case &each : cases) {
        ReportAssembler assembler;
        EXPECT_FALSE(assembler.take(segment(0, true, {0}), {})) << each.what;
        Report next = segment(1, false, {1});
        each.change(next);
        EXPECT_FALSE(assembler.take(next, {})) << each.what;
        EXPECT_EQ(assembler.dropped(), next.subSqNum == 0 ? 1U : 2U) << each.what;
    }
}

TEST(ReportAssembling, aPartWithoutPredecessorIsDroppedAndCounted)
{
    ReportAssembler assembler;
    EXPECT_FALSE(assembler.take(segment(1, false, {1}), {}));
    EXPECT_EQ(assembler.dropped(), 1U);
}

TEST(ReportAssembling, partsThatWaitTooLongAreDropped)
{
    ReportAssembler assembler(10s);
    const ReportAssembler::Time start{};
    EXPECT_FALSE(assembler.take(segment(0, true, {0}), start));
    EXPECT_FALSE(assembler.take(segment(1, true, {1}), start + 10s));
    EXPECT_FALSE(assembler.take(segment(2, true, {2}), start + 20s));
    EXPECT_EQ(assembler.dropped(), 0U);
    EXPECT_FALSE(assembler.take(segment(3, false, {3}), start + 31s));
    EXPECT_EQ(assembler.dropped(), 4U);
}

TEST(ReportAssembling, blocksDoNotDisturbEachOther)
{
    ReportAssembler assembler;
    Report other = segment(0, true, {0});
    other.rptId = "other";
    EXPECT_FALSE(assembler.take(segment(0, true, {0}), {}));
    EXPECT_FALSE(assembler.take(other, {}));
    EXPECT_TRUE(assembler.take(segment(1, false, {1}), {}));
    other = segment(1, false, {1});
    other.rptId = "other";
    EXPECT_TRUE(assembler.take(other, {}));
}

TEST(ReportAssembling, veryManyUnfinishedReportsDoNotPileUp)
{
    ReportAssembler assembler;
    ReportAssembler::Time now{};
    for (int i = 0; i < 1000; ++i) {
        Report first = segment(0, true, {0});
        first.rptId = std::to_string(i);
        assembler.take(first, now += 1ms);
    }
    EXPECT_EQ(assembler.dropped(), 1000U - 256U);
    Report last = segment(1, false, {1});
    last.rptId = "999";
    EXPECT_TRUE(assembler.take(last, now));
}

TEST(ReportAssembling, whatContinuesAWaitingReportIsKnown)
{
    ReportAssembler assembler(10s);
    const ReportAssembler::Time start{};
    EXPECT_FALSE(assembler.continues(segment(1, true, {1})));
    EXPECT_FALSE(assembler.take(segment(0, true, {0}), start));
    EXPECT_TRUE(assembler.continues(segment(1, true, {1})));
    EXPECT_FALSE(assembler.continues(segment(2, true, {1})));
    assembler.expire(start + 10s);
    EXPECT_EQ(assembler.dropped(), 0U);
    assembler.expire(start + 11s);
    EXPECT_EQ(assembler.dropped(), 1U);
    EXPECT_FALSE(assembler.continues(segment(1, true, {1})));
}

TEST(ReportDecoding, theIdOfAReportThatCannotBeReadIsStillThere)
{
    mms::InformationReport broken = encodeReport(fullReport());
    broken.results.pop_back();
    EXPECT_FALSE(decodeReport(broken).ok());
    EXPECT_EQ(reportIdOf(broken), fullReport().rptId);
    broken.results.front() = Data::boolean(true);
    EXPECT_EQ(reportIdOf(broken), "");
    broken.results.clear();
    EXPECT_EQ(reportIdOf(broken), "");
}
