// SPDX-License-Identifier: Apache-2.0
#include "acsi/reportblock.h"

#include "acsi/scripteddevice.h"
#include "mms/datatext.h"

#include <set>

namespace {

using namespace acsi;
using mms::Data;
using mms::DataAccessError;
using Type = mms::TypeDescription;

struct Attribute
{
    const char *name;
    Type type;
    Data value;
};

std::vector<Attribute> unbuffered()
{
    return {
        {"RptID", Type::visibleString(-129), Data::visibleString("id")},
        {"RptEna", Type::boolean(), Data::boolean(false)},
        {"Resv", Type::boolean(), Data::boolean(false)},
        {"DatSet", Type::visibleString(-129), Data::visibleString("LD/LLN0$dsA")},
        {"ConfRev", Type::unsignedInteger(32), Data::unsignedInteger(3)},
        {"OptFlds", Type::bitString(-10), Data::bitString(mms::BitString::fromText("0111100110"))},
        {"BufTm", Type::unsignedInteger(32), Data::unsignedInteger(100)},
        {"SqNum", Type::unsignedInteger(8), Data::unsignedInteger(4)},
        {"TrgOps", Type::bitString(-6), Data::bitString(mms::BitString::fromText("010011"))},
        {"IntgPd", Type::unsignedInteger(32), Data::unsignedInteger(5000)},
        {"GI", Type::boolean(), Data::boolean(false)},
        {"Owner", Type::octetString(-64), Data::octetString({})}};
}

std::vector<Attribute> buffered()
{
    std::vector<Attribute> result = unbuffered();
    std::erase_if(result, [](const Attribute &each) { return std::string(each.name) == "Resv"; });
    const std::vector<std::uint8_t> entry{0, 0, 0, 0, 0, 0, 0, 9};
    result.push_back({"PurgeBuf", Type::boolean(), Data::boolean(false)});
    result.push_back({"EntryID", Type::octetString(8), Data::octetString(entry)});
    result.push_back(
        {"TimeofEntry", Type::binaryTime(true), Data::binaryTime({5, std::uint16_t{13577}})});
    result.push_back({"ResvTms", Type::integer(16), Data::integer(0)});
    return result;
}

Type typeOf(const std::vector<Attribute> &attributes)
{
    std::vector<Type::Component> components;
    for (const Attribute &attribute : attributes)
        components.push_back({attribute.name, attribute.type});
    return Type::structure(std::move(components));
}

Data valueOf(const std::vector<Attribute> &attributes)
{
    std::vector<Data> members;
    for (const Attribute &attribute : attributes)
        members.push_back(attribute.value);
    return Data::structure(std::move(members));
}

class ReportBlockTest : public acsitest::DeviceTest
{
protected:
    void start(std::vector<Attribute> attributes, const std::string &constraint)
    {
        m_attributes = std::move(attributes);
        m_item = "LLN0$" + constraint + "$blk";
        block = *parseReference("LD/" + m_item);
        device->domains["LD"].nodes["LLN0"] =
            Type::structure({{constraint, Type::structure({{"blk", typeOf(m_attributes)}})}});
        update();
        device->intercept = [this](const auto &association, std::uint32_t invokeId,
                                   mms::RequestService &service) {
            const auto *write = std::get_if<mms::WriteRequest>(&service);
            return write && take(*association, invokeId, *write);
        };
        connect();
    }

    void set(const std::string &name, Data value)
    {
        for (Attribute &attribute : m_attributes) {
            if (name == attribute.name)
                attribute.value = std::move(value);
        }
        update();
    }

    std::string get(const std::string &name) const
    {
        return mms::toText(device->values.at("LD/" + m_item + '$' + name));
    }

    Reference block;
    /// "RptEna=true" in their order, refused ones as well.
    std::vector<std::string> writes;
    std::set<std::string> refusals; ///< "RptEna=true", or "Resv" for any value
    std::set<std::string> silences; ///< done, but not answered

private:
    void update()
    {
        device->values["LD/" + m_item] = valueOf(m_attributes);
        for (const Attribute &attribute : m_attributes)
            device->values["LD/" + m_item + '$' + attribute.name] = attribute.value;
    }

    bool take(mms::Association &association, std::uint32_t invokeId, const mms::WriteRequest &write)
    {
        const std::string item = toText(std::get<0>(write.variables).front());
        const std::string name = item.substr(item.rfind('$') + 1);
        const std::string text = name + '=' + mms::toText(write.values.front());
        writes.push_back(text);
        mms::WriteResponse response;
        response.results.emplace_back();
        if (refusals.count(text) != 0 || refusals.count(name) != 0)
            response.results.front() = DataAccessError::TemporarilyUnavailable;
        else
            set(name, write.values.front());
        if (silences.count(text) != 0)
            return true;
        association.respond(invokeId, response);
        return true;
    }

    std::vector<Attribute> m_attributes;
    std::string m_item;
};

using Writes = std::vector<std::string>;

} // namespace

TEST(ReportBlockValue, isReadByTheNamesOfItsType)
{
    std::vector<Attribute> attributes = buffered();
    std::ranges::reverse(attributes);
    const auto block = reportBlockFrom(typeOf(attributes), valueOf(attributes));
    ASSERT_TRUE(block.ok()) << block.error().message;
    EXPECT_TRUE(block->buffered);
    EXPECT_EQ(block->rptId, "id");
    EXPECT_EQ(block->datSet, "LD/LLN0$dsA");
    EXPECT_EQ(block->confRev, 3U);
    EXPECT_EQ(block->bufTm, 100U);
    EXPECT_EQ(block->sqNum, 4U);
    EXPECT_EQ(block->intgPd, 5000U);
    EXPECT_TRUE(block->optFlds.sequenceNumber);
    EXPECT_TRUE(block->trgOps.dataChange);
    EXPECT_TRUE(block->trgOps.generalInterrogation);
    EXPECT_FALSE(block->resv);
    EXPECT_EQ(block->entryId->back(), 9);
    EXPECT_EQ(block->timeOfEntry->milliseconds, 5U);
    EXPECT_EQ(block->resvTms, 0);
    EXPECT_TRUE(block->owner->empty());
}

TEST(ReportBlockValue, olderBlocksHaveLess)
{
    std::vector<Attribute> attributes = unbuffered();
    attributes.pop_back();
    const auto block = reportBlockFrom(typeOf(attributes), valueOf(attributes));
    ASSERT_TRUE(block.ok());
    EXPECT_FALSE(block->buffered);
    EXPECT_EQ(block->resv, false);
    EXPECT_FALSE(block->owner);
    EXPECT_FALSE(block->resvTms);
}

TEST(ReportBlockValue, anAttributeOfTheWrongTypeIsNamed)
{
    for (std::size_t i = 0; i < buffered().size(); ++i) {
        std::vector<Attribute> attributes = buffered();
        attributes[i].value = Data::float32(1);
        const auto block = reportBlockFrom(typeOf(attributes), valueOf(attributes));
        ASSERT_FALSE(block.ok()) << attributes[i].name;
        EXPECT_EQ(block.error().message.english().find(attributes[i].name), 0U)
            << block.error().message;
    }
}

TEST(ReportBlockValue, otherShapesAreErrors)
{
    std::vector<Attribute> fewer = unbuffered();
    fewer.pop_back();
    EXPECT_FALSE(reportBlockFrom(typeOf(unbuffered()), valueOf(fewer)).ok());
    EXPECT_FALSE(reportBlockFrom(Type::boolean(), Data::boolean(true)).ok());
    EXPECT_FALSE(reportBlockFrom(Type::structure({}), Data::structure({})).ok());
}

TEST(ReportBlockOwner, isAnAddressInWords)
{
    using Octets = std::vector<std::uint8_t>;
    EXPECT_EQ(ownerText(Octets{}), "");
    EXPECT_EQ(ownerText(Octets{0, 0, 0, 0}), "");
    EXPECT_EQ(ownerText(Octets{10, 0, 0, 5}), "10.0.0.5");
    Octets six(16);
    six[15] = 1;
    EXPECT_EQ(ownerText(six), "::1");
    EXPECT_EQ(ownerText(Octets{1, 2}), "'0102'H");
}

TEST_F(ReportBlockTest, enablingReservesWritesWhatDiffersAndEnables)
{
    start(unbuffered(), "RP");
    ReportSettings settings;
    settings.rptId = "id";
    settings.datSet = "LD/LLN0$dsB";
    settings.intgPd = 1000;
    settings.bufTm = 100;
    settings.trgOps = Triggers{true, true};
    settings.generalInterrogation = true;
    const auto enabled = run(enableReportBlock(client, block, settings));
    ASSERT_TRUE(enabled.ok()) << enabled.error().message;
    EXPECT_EQ(writes, (Writes{"Resv=true", "DatSet=\"LD/LLN0$dsB\"", "TrgOps='011000'B",
                              "IntgPd=1000", "RptEna=true", "GI=true"}));
    EXPECT_TRUE(enabled->rptEna);
    EXPECT_EQ(enabled->intgPd, 1000U);
    EXPECT_FALSE(enabled->buffered);
    EXPECT_TRUE(enabled->notes.empty());
}

TEST_F(ReportBlockTest, aBufferedBlockIsReservedForATimeAndResumesAfterAnEntry)
{
    start(buffered(), "BR");
    ReportSettings settings;
    settings.resumeAfter = std::vector<std::uint8_t>{0, 0, 0, 0, 0, 0, 0, 3};
    const auto enabled = run(enableReportBlock(client, block, settings));
    ASSERT_TRUE(enabled.ok()) << enabled.error().message;
    EXPECT_EQ(writes, (Writes{"ResvTms=60", "EntryID='0000000000000003'H", "RptEna=true"}));
    EXPECT_TRUE(enabled->buffered);
}

TEST_F(ReportBlockTest, aBlockThatDoesNotKnowTheEntryAnyMoreIsEnabledAndSaysSo)
{
    start(buffered(), "BR");
    refusals = {"EntryID"};
    ReportSettings settings;
    settings.resumeAfter = std::vector<std::uint8_t>(8, 1);
    const auto enabled = run(enableReportBlock(client, block, settings));
    ASSERT_TRUE(enabled.ok()) << enabled.error().message;
    EXPECT_TRUE(enabled->rptEna);
    ASSERT_EQ(enabled->notes.size(), 1U);
    EXPECT_EQ(enabled->notes[0].english().find("EntryID of LD/LLN0.blk cannot be written: "), 0U);
}

TEST_F(ReportBlockTest, aRefusedReservationTimeLetsTheNextWriteDecide)
{
    start(buffered(), "BR");
    refusals = {"ResvTms"};
    EXPECT_TRUE(run(enableReportBlock(client, block, {})).ok());
}

TEST_F(ReportBlockTest, aBlockReservedByConfigurationIsNotReservedAgain)
{
    start(buffered(), "BR");
    set("ResvTms", Data::integer(-1));
    EXPECT_TRUE(run(enableReportBlock(client, block, {})).ok());
    EXPECT_EQ(writes, (Writes{"RptEna=true"}));
}

TEST_F(ReportBlockTest, aBlockOfThisAssociationIsDisabledBeforeItIsChanged)
{
    start(unbuffered(), "RP");
    set("RptEna", Data::boolean(true));
    ReportSettings settings;
    settings.isOwn = true;
    EXPECT_TRUE(run(enableReportBlock(client, block, settings)).ok());
    EXPECT_EQ(writes, (Writes{"RptEna=false", "Resv=true", "RptEna=true"}));
}

TEST_F(ReportBlockTest, aBlockThatSomebodyElseEnabledIsNotWritten)
{
    start(unbuffered(), "RP");
    set("RptEna", Data::boolean(true));
    set("Owner", Data::octetString(std::vector<std::uint8_t>{10, 0, 0, 5}));
    const auto enabled = run(enableReportBlock(client, block, {}));
    ASSERT_FALSE(enabled.ok());
    EXPECT_EQ(enabled.error().message, "LD/LLN0.blk is enabled already."
                                       " The block belongs to the client 10.0.0.5.");
    EXPECT_EQ(writes, Writes{});
    EXPECT_EQ(get("RptEna"), "true");
}

TEST_F(ReportBlockTest, aBlockOfAnotherClientNamesIt)
{
    start(unbuffered(), "RP");
    set("RptEna", Data::boolean(true));
    set("Owner", Data::octetString(std::vector<std::uint8_t>{10, 0, 0, 5}));
    refusals = {"RptEna", "Resv"};
    ReportSettings settings;
    settings.isOwn = true;
    const auto enabled = run(enableReportBlock(client, block, settings));
    ASSERT_FALSE(enabled.ok());
    EXPECT_EQ(enabled.error().message,
              "LD/LLN0.blk is enabled already. RptEna of LD/LLN0.blk cannot be written: " +
                  mms::describe(DataAccessError::TemporarilyUnavailable).english() +
                  " The block belongs to the client 10.0.0.5.");
    EXPECT_EQ(writes, (Writes{"RptEna=false"}));
}

TEST_F(ReportBlockTest, aReservedBlockNamesItsOwner)
{
    start(unbuffered(), "RP");
    set("Owner", Data::octetString(std::vector<std::uint8_t>{10, 0, 0, 5}));
    refusals = {"Resv"};
    const auto enabled = run(enableReportBlock(client, block, {}));
    ASSERT_FALSE(enabled.ok());
    EXPECT_EQ(enabled.error().message.english().find("Resv of LD/LLN0.blk cannot be written: "),
              0U);
    EXPECT_NE(enabled.error().message.english().find("10.0.0.5"), std::string::npos);
}

TEST_F(ReportBlockTest, aRefusedAttributeIsNamedAndTheReservationIsGivenUp)
{
    start(unbuffered(), "RP");
    refusals = {"DatSet"};
    ReportSettings settings;
    settings.datSet = "LD/LLN0$dsB";
    const auto enabled = run(enableReportBlock(client, block, settings));
    ASSERT_FALSE(enabled.ok());
    EXPECT_EQ(enabled.error().message,
              "DatSet of LD/LLN0.blk cannot be written: " +
                  mms::describe(DataAccessError::TemporarilyUnavailable).english());
    EXPECT_EQ(writes, (Writes{"Resv=true", "DatSet=\"LD/LLN0$dsB\"", "Resv=false"}));
    EXPECT_EQ(get("RptEna"), "false");
}

TEST_F(ReportBlockTest, aBufferedBlockThatCannotBeEnabledIsGivenUp)
{
    start(buffered(), "BR");
    refusals = {"RptEna=true"};
    EXPECT_FALSE(run(enableReportBlock(client, block, {})).ok());
    EXPECT_EQ(writes, (Writes{"ResvTms=60", "RptEna=true", "ResvTms=0"}));
}

TEST_F(ReportBlockTest, anAttributeThatTheBlockDoesNotHaveIsNamed)
{
    std::vector<Attribute> attributes = unbuffered();
    std::erase_if(attributes,
                  [](const Attribute &each) { return std::string(each.name) == "IntgPd"; });
    start(attributes, "RP");
    ReportSettings settings;
    settings.intgPd = 1000;
    const auto enabled = run(enableReportBlock(client, block, settings));
    ASSERT_FALSE(enabled.ok());
    EXPECT_EQ(enabled.error().message, "LD/LLN0.blk has no IntgPd.");
}

TEST_F(ReportBlockTest, aRefusedInterrogationLeavesTheBlockEnabledAndSaysSo)
{
    start(unbuffered(), "RP");
    refusals = {"GI"};
    ReportSettings settings;
    settings.generalInterrogation = true;
    const auto enabled = run(enableReportBlock(client, block, settings));
    ASSERT_TRUE(enabled.ok()) << enabled.error().message;
    EXPECT_TRUE(enabled->rptEna);
    EXPECT_EQ(enabled->notes.size(), 1U);
}

TEST_F(ReportBlockTest, disablingGivesUpTheReservation)
{
    start(unbuffered(), "RP");
    EXPECT_TRUE(run(disableReportBlock(client, block)).ok());
    EXPECT_EQ(writes, (Writes{"RptEna=false", "Resv=false"}));
    writes.clear();
    refusals = {"RptEna"};
    EXPECT_FALSE(run(disableReportBlock(client, block)).ok());
    EXPECT_EQ(writes, (Writes{"RptEna=false"}));
}

TEST_F(ReportBlockTest, disablingLeavesTheReservationOfTheConfiguration)
{
    start(buffered(), "BR");
    set("ResvTms", Data::integer(-1));
    EXPECT_TRUE(run(disableReportBlock(client, block)).ok());
    EXPECT_EQ(writes, (Writes{"RptEna=false"}));
}

TEST_F(ReportBlockTest, whatWasWrittenBeforeARefusalIsWrittenBack)
{
    start(unbuffered(), "RP");
    refusals = {"TrgOps"};
    ReportSettings settings;
    settings.rptId = "mine";
    settings.bufTm = 7;
    settings.trgOps = Triggers{true, true};
    ASSERT_FALSE(run(enableReportBlock(client, block, settings)).ok());
    EXPECT_EQ(writes, (Writes{"Resv=true", "RptID=\"mine\"", "BufTm=7", "TrgOps='011000'B",
                              "BufTm=100", "RptID=\"id\"", "Resv=false"}));
    EXPECT_EQ(get("RptID"), "\"id\"");
}

TEST_F(ReportBlockTest, anEnablingWithoutAnswerLeavesItsTraceAndCanBeUndone)
{
    start(unbuffered(), "RP");
    silences = {"RptEna=true"};
    ReportSettings settings;
    settings.rptId = "mine";
    const auto trace = std::make_shared<ReportBlockTrace>();
    ASSERT_FALSE(run(enableReportBlock(client, block, settings, trace)).ok());
    EXPECT_TRUE(trace->isUncertain);
    std::vector<std::string> left;
    for (const ReportBlockTrace::Change &change : trace->changes)
        left.push_back(change.attribute);
    EXPECT_EQ(left, (std::vector<std::string>{"Resv", "RptID", "RptEna"}));
    // The device has done what it did not answer.
    EXPECT_EQ(get("RptEna"), "true");

    writes.clear();
    refusals = {"RptID"};
    const auto never = std::chrono::steady_clock::time_point::max();
    EXPECT_FALSE(run(undoReportBlock(client, block, trace, never)));
    EXPECT_EQ(writes, (Writes{"RptEna=false", "RptID=\"id\"", "Resv=false"}));
    ASSERT_EQ(trace->changes.size(), 1U);
    EXPECT_EQ(trace->changes.front().attribute, "RptID");
    refusals.clear();
    const auto longAgo = std::chrono::steady_clock::time_point::min();
    EXPECT_FALSE(run(undoReportBlock(client, block, trace, longAgo)));
    EXPECT_EQ(trace->changes.size(), 1U);
    EXPECT_TRUE(run(undoReportBlock(client, block, trace, never)));
    EXPECT_TRUE(trace->changes.empty());
    EXPECT_EQ(get("RptID"), "\"id\"");
}

TEST_F(ReportBlockTest, aRefusedUndoOfWhatIsAsItWasIsNoRest)
{
    start(unbuffered(), "RP");
    refusals = {"BufTm"};
    const auto trace = std::make_shared<ReportBlockTrace>();
    trace->changes.push_back({"BufTm", Data::unsignedInteger(100)});
    EXPECT_TRUE(
        run(undoReportBlock(client, block, trace, std::chrono::steady_clock::time_point::max())));
    EXPECT_TRUE(trace->changes.empty());
}

TEST(ReportBlockHolder, isToldByOwnerFlagAndReservation)
{
    using Who = ReportHolder::Who;
    const std::vector<std::uint8_t> own{10, 0, 0, 1};
    ReportBlock each;
    EXPECT_EQ(holderOf(each, own).who, Who::Nobody);
    each.resvTms = -1;
    EXPECT_EQ(holderOf(each, own).who, Who::Nobody);
    each.resvTms = 5;
    EXPECT_EQ(holderOf(each, own).who, Who::Somebody);
    EXPECT_FALSE(holderOf(each, own).isEnabled);
    each.owner = own;
    EXPECT_EQ(holderOf(each, own).who, Who::SameAddress);
    each.owner = std::vector<std::uint8_t>{10, 0, 0, 2};
    each.rptEna = true;
    EXPECT_EQ(holderOf(each, own).who, Who::OtherAddress);
    EXPECT_EQ(holderOf(each, own).address, "10.0.0.2");
    EXPECT_TRUE(holderOf(each, own).isEnabled);
    each.owner = std::vector<std::uint8_t>(4);
    EXPECT_EQ(holderOf(each, own).who, Who::Somebody);
}

TEST_F(ReportBlockTest, disablingABufferedBlockGivesUpTheReservation)
{
    start(buffered(), "BR");
    EXPECT_TRUE(run(disableReportBlock(client, block)).ok());
    EXPECT_EQ(writes, (Writes{"RptEna=false", "ResvTms=0"}));
}

TEST_F(ReportBlockTest, aBlockThatIsNotThereIsNamed)
{
    start(unbuffered(), "RP");
    const Reference other = *parseReference("LD/LLN0$RP$other");
    for (const auto &message : {run(readReportBlock(client, other)).error().message,
                                run(enableReportBlock(client, other, {})).error().message,
                                run(disableReportBlock(client, other)).error().message}) {
        EXPECT_EQ(message.english().find("The type of LD/LLN0.other cannot be read: "), 0U)
            << message;
    }
}

TEST_F(ReportBlockTest, singleAttributesAreWrittenAsGiven)
{
    start(unbuffered(), "RP");
    EXPECT_TRUE(run(writeReportAttribute(client, block, "BufTm", Data::unsignedInteger(7))).ok());
    EXPECT_EQ(get("BufTm"), "7");
    EXPECT_EQ(run(readReportBlock(client, block))->bufTm, 7U);
    refusals = {"BufTm"};
    const auto refused =
        run(writeReportAttribute(client, block, "BufTm", Data::unsignedInteger(8)));
    ASSERT_FALSE(refused.ok());
    EXPECT_EQ(refused.error().message.english().find("BufTm of LD/LLN0.blk cannot be written: "),
              0U);
}
