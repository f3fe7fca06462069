// SPDX-License-Identifier: Apache-2.0
#include "simulator/access.h"
#include "simulator/describedied.h"
#include "simulator/recordingclient.h"

#include <gtest/gtest.h>

namespace {

using namespace sim;
using mms::AlternateAccess;
using mms::Data;
using mms::DataAccessError;
using mms::ObjectName;
using mms::VariableAccess;

class AccessTest : public testing::Test
{
protected:
    static VariableAccess variable(std::string_view item, std::vector<AlternateAccess> parts = {})
    {
        return {ObjectName::inDomain("IED1LD", item), std::move(parts)};
    }
    mms::AccessResult read(std::string_view item, std::vector<AlternateAccess> parts = {})
    {
        return access.read(client, variable(item, std::move(parts)));
    }
    std::optional<DataAccessError> write(std::string_view item, const Data &value)
    {
        return access.write(client, variable(item), value);
    }
    Part find(std::string_view item) const { return model.find("IED1LD", item); }

    simtest::DescribedIed ied = simtest::bay();
    Model model{*ied, {}};
    Access access{model};
    simtest::RecordingClient client;
};

/// Notes what is asked of it.
class TestObject : public Object
{
public:
    explicit TestObject(Model &model)
        : m_model(model)
    {
    }
    void refresh() override { ++refreshed; }
    std::optional<mms::AccessResult> read(Peer &, const Part &part) override
    {
        lastRead = m_model.itemName(part);
        return answer;
    }
    std::optional<DataAccessError> write(Peer &, const Part &part, const Data &value) override
    {
        lastWritten = m_model.itemName(part);
        m_model.set(part, value);
        return std::nullopt;
    }

    int refreshed = 0;
    std::string lastRead;
    std::string lastWritten;
    std::optional<mms::AccessResult> answer;

private:
    Model &m_model;
};

TEST_F(AccessTest, everyNodeCanBeRead)
{
    EXPECT_EQ(read("XCBR1$ST$Pos$stVal").data().bits().toText(), "01");
    EXPECT_EQ(read("XCBR1$ST$Pos").data().children().size(), 3U);
    EXPECT_EQ(read("XCBR1$ST").data().children().size(), 1U);
    EXPECT_EQ(read("XCBR1").data().children().size(), 6U);
}

TEST_F(AccessTest, whatDoesNotExistIsToldAsSuch)
{
    EXPECT_EQ(read("XCBR1$ST$Pos$nothing").error(), DataAccessError::ObjectNonExistent);
    EXPECT_EQ(access.read(client, {ObjectName::inDomain("OTHER", "XCBR1"), {}}).error(),
              DataAccessError::ObjectNonExistent);
    EXPECT_EQ(access.read(client, {ObjectName::ofVmd("XCBR1"), {}}).error(),
              DataAccessError::ObjectNonExistent);
    EXPECT_EQ(access.read(client, {mms::Address(), {}}).error(),
              DataAccessError::ObjectAccessUnsupported);
    EXPECT_EQ(write("XCBR1$CF$Pos$nothing", Data::boolean(true)),
              DataAccessError::ObjectNonExistent);
}

TEST_F(AccessTest, alternateAccessReadsElementsRangesAndComponents)
{
    const char *array = "MHAI1$MX$HA$phsAHar";
    const auto magnitude = [] {
        return std::vector<AlternateAccess>{AlternateAccess::ofComponent(
            "cVal", {AlternateAccess::ofComponent("mag", {AlternateAccess::ofComponent("f")})})};
    };
    EXPECT_EQ(read(array, {AlternateAccess::ofElement(1, magnitude())}).data().toDouble(), 4.5);
    EXPECT_EQ(
        read(array, {AlternateAccess::ofElement(1, {AlternateAccess::ofComponent("cVal$mag$f")})})
            .data()
            .toDouble(),
        4.5);
    const auto two = read(array, {AlternateAccess::ofElements(1, 2, magnitude())});
    ASSERT_TRUE(two.ok());
    EXPECT_EQ(two.data(), Data::array({Data::float32(4.5F), Data::float32(0)}));
    const auto all = read(array, {AlternateAccess::ofAllElements(magnitude())});
    ASSERT_TRUE(all.ok());
    EXPECT_EQ(all.data().children().size(), 3U);
    const auto toTheEnd = read(array, {AlternateAccess::ofElements(1, 0)});
    ASSERT_TRUE(toTheEnd.ok());
    EXPECT_EQ(toTheEnd.data().children().size(), 2U);
    const auto several = read(
        "XCBR1$ST$Pos", {AlternateAccess::ofComponent("q"), AlternateAccess::ofComponent("stVal")});
    ASSERT_TRUE(several.ok());
    EXPECT_EQ(several.data().children()[0].size(), 13U);
    EXPECT_EQ(several.data().children()[1].size(), 2U);
}

TEST_F(AccessTest, alternateAccessThatDoesNotFitIsRefused)
{
    EXPECT_EQ(read("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElement(3)}).error(),
              DataAccessError::ObjectNonExistent);
    EXPECT_EQ(read("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElements(2, 2)}).error(),
              DataAccessError::ObjectNonExistent);
    EXPECT_EQ(read("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElements(0xFFFFFFFF, 1)}).error(),
              DataAccessError::ObjectNonExistent);
    EXPECT_EQ(read("XCBR1$ST$Pos", {AlternateAccess::ofElement(0)}).error(),
              DataAccessError::ObjectAttributeInconsistent);
    EXPECT_EQ(read("XCBR1$ST$Pos", {AlternateAccess::ofComponent("")}).error(),
              DataAccessError::ObjectNonExistent);
}

TEST_F(AccessTest, configurationSubstitutionBlockingAndSetPointsCanBeWritten)
{
    EXPECT_EQ(write("XCBR1$CF$Pos$sboTimeout", Data::unsignedInteger(5)), std::nullopt);
    EXPECT_EQ(write("XCBR1$SV$Pos$subEna", Data::boolean(true)), std::nullopt);
    EXPECT_EQ(write("XCBR1$BL$Pos$blkEna", Data::boolean(true)), std::nullopt);
    EXPECT_EQ(write("PTOC1$SP$StrVal$setMag2", Data::structure({Data::float32(2)})), std::nullopt);
    EXPECT_EQ(read("XCBR1$CF$Pos$sboTimeout").data().toUnsigned(), 5U);
    EXPECT_EQ(read("PTOC1$SP$StrVal$setMag2$f").data().toDouble(), 2.0);
}

TEST_F(AccessTest, processValuesDescriptionsAndSettingsAreNotWritten)
{
    const Data closed = Data::bitString(mms::BitString::fromText("10"));
    EXPECT_EQ(write("XCBR1$ST$Pos$stVal", closed), DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(write("XCBR1$DC$Pos$d", Data::visibleString("x")),
              DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(write("PTOC1$SG$StrVal$setMag$f", Data::float32(1)),
              DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(write("LLN0$GO$gcb$GoEna", Data::boolean(true)), DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(write("XCBR1", Data::boolean(true)), DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(read("XCBR1$ST$Pos$stVal").data().bits().toText(), "01");
}

TEST_F(AccessTest, whatTheFileMarksAsReadOnlyIsNotWrittenEvenAsAPart)
{
    EXPECT_EQ(write("XCBR1$CF$Pos$ctlModel", Data::integer(1)),
              DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(write("XCBR1$CF$Pos", Data::structure({Data::integer(1), Data::unsignedInteger(1)})),
              DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(write("XCBR10$CF$Pos$ctlModel", Data::integer(0)), std::nullopt);
}

TEST_F(AccessTest, rulesDecideWhatCanBeWritten)
{
    Access free(model, WriteRules{Fc::ST, Fc::MX});
    EXPECT_EQ(free.write(client, variable("XCBR1$ST$Pos$stVal"),
                         Data::bitString(mms::BitString::fromText("10"))),
              std::nullopt);
    EXPECT_EQ(free.write(client, variable("XCBR1$CF$Pos$sboTimeout"), Data::unsignedInteger(1)),
              DataAccessError::ObjectAccessDenied);
}

TEST_F(AccessTest, someElementsOfAnArrayAreWrittenTogether)
{
    Access free(model, WriteRules{Fc::MX});
    const Data second = read("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElement(1)}).data();
    const Data third = read("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElement(2)}).data();
    const auto elements = variable("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElements(1, 2)});
    EXPECT_EQ(free.write(client, elements, Data::array({third, second})), std::nullopt);
    EXPECT_EQ(read("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElement(1)}).data(), third);
    EXPECT_EQ(read("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElement(2)}).data(), second);
    EXPECT_EQ(free.write(client, elements, Data::array({second})),
              DataAccessError::TypeInconsistent);
    EXPECT_EQ(free.write(client, elements, Data::array({second, Data::boolean(true)})),
              DataAccessError::TypeInconsistent);
    EXPECT_EQ(free.write(client,
                         variable("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElements(2, 2)}),
                         Data::array({second, third})),
              DataAccessError::ObjectNonExistent);
    EXPECT_EQ(read("MHAI1$MX$HA$phsAHar", {AlternateAccess::ofElement(1)}).data(), third);
}

TEST_F(AccessTest, aValueThatDoesNotFitChangesNothing)
{
    EXPECT_EQ(write("XCBR1$CF$Pos$sboTimeout", Data::integer(5)),
              DataAccessError::TypeInconsistent);
    EXPECT_EQ(write("XCBR10$CF$Pos", Data::structure({Data::integer(7), Data::unsignedInteger(1)})),
              DataAccessError::ObjectValueInvalid);
    EXPECT_EQ(read("XCBR10$CF$Pos$sboTimeout").data().toUnsigned(), 30000U);
}

TEST_F(AccessTest, anElementOfAnArrayCanBeWritten)
{
    Access free(model, WriteRules{Fc::MX});
    const auto element =
        variable("MHAI1$MX$HA$phsAHar",
                 {AlternateAccess::ofElement(2, {AlternateAccess::ofComponent("cVal$mag$f")})});
    EXPECT_EQ(free.write(client, element, Data::float32(9)), std::nullopt);
    EXPECT_EQ(free.read(client, element).data().toDouble(), 9.0);
}

TEST_F(AccessTest, anObjectDecidesAboutItsPartAndWhatIsInside)
{
    const auto object = std::make_shared<TestObject>(model);
    access.attach(find("XCBR1$CO$Pos"), object);
    object->answer = Data::boolean(true);
    EXPECT_EQ(read("XCBR1$CO$Pos$Oper$ctlVal").data().toBoolean(), true);
    EXPECT_EQ(object->lastRead, "XCBR1$CO$Pos$Oper$ctlVal");
    object->answer.reset();
    EXPECT_EQ(read("XCBR1$CO$Pos$Oper$ctlVal").data().toBoolean(), false);
    EXPECT_EQ(write("XCBR1$CO$Pos$Oper$ctlVal", Data::boolean(true)), std::nullopt);
    EXPECT_EQ(object->lastWritten, "XCBR1$CO$Pos$Oper$ctlVal");
    EXPECT_EQ(write("XCBR1$CO$Pos$Oper$ctlVal", Data::integer(1)),
              DataAccessError::TypeInconsistent);
    EXPECT_EQ(write("XCBR10$CO$Pos$Oper$ctlVal", Data::boolean(true)),
              DataAccessError::ObjectAccessDenied);
}

TEST_F(AccessTest, readingMoreThanAnObjectRefreshesItButDoesNotAskIt)
{
    const auto object = std::make_shared<TestObject>(model);
    access.attach(find("XCBR1$CO$Pos"), object);
    EXPECT_TRUE(read("XCBR1").ok());
    EXPECT_EQ(object->refreshed, 1);
    EXPECT_EQ(object->lastRead, "");
    EXPECT_TRUE(read("XCBR1$ST").ok());
    EXPECT_TRUE(read("XCBR10").ok());
    EXPECT_EQ(object->refreshed, 1);
}

TEST_F(AccessTest, theOnlyObjectOfAConstraintIsNotTheConstraint)
{
    const auto object = std::make_shared<TestObject>(model);
    access.attach(find("LLN0$BR$brcb"), object);
    EXPECT_TRUE(read("LLN0$BR").ok());
    EXPECT_EQ(object->lastRead, "");
    EXPECT_EQ(object->refreshed, 1);
    EXPECT_EQ(write("LLN0$BR", model.value(find("LLN0$BR"))), DataAccessError::ObjectAccessDenied);
}

TEST_F(AccessTest, anInnerObjectDecidesBeforeAnOuterOne)
{
    const auto outer = std::make_shared<TestObject>(model);
    const auto inner = std::make_shared<TestObject>(model);
    access.attach(find("XCBR1$CO"), outer);
    access.attach(find("XCBR1$CO$Pos$Oper"), inner);
    EXPECT_EQ(write("XCBR1$CO$Pos$Oper$ctlVal", Data::boolean(true)), std::nullopt);
    EXPECT_EQ(write("XCBR1$CO$Pos$SBOw$ctlVal", Data::boolean(true)), std::nullopt);
    EXPECT_EQ(inner->lastWritten, "XCBR1$CO$Pos$Oper$ctlVal");
    EXPECT_EQ(outer->lastWritten, "XCBR1$CO$Pos$SBOw$ctlVal");
}

} // namespace
