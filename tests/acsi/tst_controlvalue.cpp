// SPDX-License-Identifier: Apache-2.0
#include "acsi/control.h"
#include "acsi/typedvalue.h"
#include "mms/datatext.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace {

using namespace acsi;
using mms::BitString;
using mms::Data;
using Type = mms::TypeDescription;

Type originType()
{
    return Type::structure({{"orCat", Type::integer(8)}, {"orIdent", Type::octetString(-64)}});
}

Type operType(Type ctlVal, bool withOperTm = false, bool withCheck = true)
{
    std::vector<Type::Component> components{{"ctlVal", std::move(ctlVal)}};
    if (withOperTm)
        components.push_back({"operTm", Type::utcTime()});
    components.push_back({"origin", originType()});
    components.push_back({"ctlNum", Type::unsignedInteger(8)});
    components.push_back({"T", Type::utcTime()});
    components.push_back({"Test", Type::boolean()});
    if (withCheck)
        components.push_back({"Check", Type::bitString(-2)});
    return Type::structure(std::move(components));
}

ControlRequest someRequest()
{
    ControlRequest request;
    request.value = Data::boolean(true);
    request.originator = {3, {'o', 'p'}};
    request.ctlNum = 7;
    request.time = {1614834367, 0x800000, 0x0A};
    request.interlockCheck = true;
    return request;
}

std::string converted(const Type &type, const Data &value)
{
    const auto result = valueOfType(type, value);
    return result ? mms::toText(*result) : "error";
}

} // namespace

TEST(TypedValue, numbersAndBooleansBecomeWhatTheDeviceWants)
{
    const auto coded = Type::bitString(2);
    EXPECT_EQ(converted(Type::boolean(), Data::integer(1)), "true");
    EXPECT_EQ(converted(Type::boolean(), Data::unsignedInteger(0)), "false");
    EXPECT_EQ(converted(Type::integer(32), Data::unsignedInteger(5)), "5");
    EXPECT_EQ(converted(Type::integer(32), Data::boolean(true)), "1");
    EXPECT_EQ(converted(Type::integer(32), Data::float32(-4)), "-4");
    EXPECT_EQ(converted(Type::unsignedInteger(8), Data::integer(255)), "255");
    EXPECT_EQ(valueOfType(Type::unsignedInteger(8), Data::integer(255))->kind(),
              Data::Kind::Unsigned);
    EXPECT_EQ(converted(Type::float32(), Data::integer(3)), "3");
    EXPECT_FALSE(valueOfType(Type::float32(), Data::float64(0.5))->isDouble());
    EXPECT_TRUE(valueOfType(Type::float64(), Data::float32(0.5F))->isDouble());
    EXPECT_EQ(converted(Type::visibleString(-10), Data::mmsString("a")), "\"a\"");
    EXPECT_EQ(converted(coded, Data::integer(0)), "'00'B");
    EXPECT_EQ(converted(coded, Data::integer(1)), "'01'B");
    EXPECT_EQ(converted(coded, Data::unsignedInteger(2)), "'10'B");
    EXPECT_EQ(converted(coded, Data::bitString(BitString::fromText("11"))), "'11'B");
}

TEST(TypedValue, whatDoesNotFitIsAnErrorThatNamesValueAndType)
{
    EXPECT_EQ(converted(Type::boolean(), Data::integer(2)), "error");
    EXPECT_EQ(converted(Type::integer(8), Data::integer(128)), "error");
    EXPECT_EQ(converted(Type::integer(8), Data::integer(-129)), "error");
    EXPECT_EQ(converted(Type::integer(32), Data::float32(1.5F)), "error");
    EXPECT_EQ(converted(Type::integer(64), Data::float64(1e19)), "error");
    EXPECT_EQ(converted(Type::integer(32), Data::float64(std::numeric_limits<double>::quiet_NaN())),
              "error");
    EXPECT_EQ(converted(Type::unsignedInteger(8), Data::integer(256)), "error");
    EXPECT_EQ(converted(Type::unsignedInteger(8), Data::integer(-1)), "error");
    EXPECT_EQ(converted(Type::float32(), Data::float64(1e300)), "error");
    EXPECT_EQ(converted(Type::bitString(2), Data::integer(4)), "error");
    EXPECT_EQ(converted(Type::bitString(2), Data::bitString(BitString(3))), "error");
    EXPECT_EQ(converted(Type::octetString(-2), Data::octetString(std::vector<std::uint8_t>(3))),
              "error");
    EXPECT_EQ(converted(Type::structure({{"a", Type::boolean()}}), Data::boolean(true)), "error");
    const auto error = valueOfType(Type::boolean(), Data::visibleString("on"));
    ASSERT_FALSE(error.ok());
    EXPECT_EQ(error.error().message,
              "The value \"on\" does not fit the type boolean of the device.");
}

TEST(TypedValue, extremeNumbersKeepTheirValue)
{
    constexpr auto lowest = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(converted(Type::integer(64), Data::integer(lowest)), std::to_string(lowest));
    EXPECT_EQ(converted(Type::unsignedInteger(64), Data::unsignedInteger(~0ULL)),
              std::to_string(~0ULL));
    EXPECT_EQ(converted(Type::integer(64), Data::unsignedInteger(~0ULL)), "error");
    EXPECT_EQ(converted(Type::integer(8), Data::integer(-128)), "-128");
}

TEST(TypedValue, analogueValuesAreMadeOfOneNumber)
{
    const Type onlyF = Type::structure({{"f", Type::float32()}});
    const Type onlyI = Type::structure({{"i", Type::integer(32)}});
    const Type both = Type::structure({{"i", Type::integer(32)}, {"f", Type::float32()}});
    EXPECT_EQ(converted(onlyF, Data::float64(1.5)), "{1.5}");
    EXPECT_EQ(converted(onlyF, Data::integer(2)), "{2}");
    EXPECT_EQ(converted(onlyI, Data::integer(2)), "{2}");
    EXPECT_EQ(converted(onlyI, Data::float32(2)), "{2}");
    EXPECT_EQ(converted(onlyI, Data::float32(2.5F)), "error");
    EXPECT_EQ(converted(both, Data::float32(2.75F)), "{3, 2.75}");
    EXPECT_EQ(converted(both, Data::integer(-4)), "{-4, -4}");
    EXPECT_EQ(converted(both, Data::float32(1e20F)), "error");
    EXPECT_EQ(converted(onlyF, Data::structure({Data::float64(1.5)})), "{1.5}");
    EXPECT_EQ(converted(onlyF, Data::visibleString("1.5")), "error");
}

TEST(ControlValue, holdsThePartsInTheOrderAndTypesOfTheDevice)
{
    const auto value = controlValue(operType(Type::boolean()), someRequest());
    ASSERT_TRUE(value.ok()) << value.error().message;
    EXPECT_EQ(mms::toText(*value).substr(0, 28), "{true, {3, '6f70'H}, 7, 2021");
    ASSERT_EQ(value->children().size(), 6U);
    EXPECT_EQ(value->children()[2].kind(), Data::Kind::Unsigned);
    EXPECT_EQ(value->children()[5].bits().toText(), "01");
}

TEST(ControlValue, aTimeToOperateIsZeroUnlessItIsGiven)
{
    ControlRequest request = someRequest();
    const Type type = operType(Type::boolean(), true);
    auto value = controlValue(type, request);
    ASSERT_TRUE(value.ok());
    EXPECT_EQ(value->children()[1].toUtcTime(), mms::UtcTime{});
    request.operateTime = mms::UtcTime{1700000000, 0, 0};
    value = controlValue(type, request);
    ASSERT_TRUE(value.ok());
    EXPECT_EQ(value->children()[1].toUtcTime(), request.operateTime);
}

TEST(ControlValue, aTimeToOperateWithoutAPlaceForItIsAnErrorInsteadOfAnImmediateCommand)
{
    ControlRequest request = someRequest();
    request.operateTime = mms::UtcTime{1700000000, 0, 0};
    EXPECT_FALSE(controlValue(operType(Type::boolean()), request).ok());
}

TEST(ControlValue, aTestWithoutAPlaceForItIsAnErrorInsteadOfARealCommand)
{
    ControlRequest request = someRequest();
    request.interlockCheck = false;
    const Type type = Type::structure({{"ctlVal", Type::boolean()}});
    EXPECT_TRUE(controlValue(type, request).ok());
    request.test = true;
    EXPECT_FALSE(controlValue(type, request).ok());
}

TEST(ControlValue, aCheckWithoutAPlaceForItIsAnErrorInsteadOfACommandWithoutIt)
{
    const Type type = operType(Type::boolean(), false, false);
    ControlRequest request = someRequest();
    ASSERT_TRUE(request.interlockCheck);
    EXPECT_EQ(controlValue(type, request).error().message, "The device cannot check interlocking.");
    request.interlockCheck = false;
    request.synchrocheck = true;
    EXPECT_EQ(controlValue(type, request).error().message, "The device cannot check synchronism.");
    request.synchrocheck = false;
    const auto value = controlValue(type, request);
    ASSERT_TRUE(value.ok());
    EXPECT_EQ(value->children().size(), 5U);
}

TEST(ControlValue, aSetPointOfTwoPartsFollowsItsScale)
{
    const Type both = Type::structure({{"i", Type::integer(16)}, {"f", Type::float32()}});
    const Type type = Type::structure({{"ctlVal", both}});
    const auto sent = [&](double number, const std::optional<AnalogueScale> &scale) {
        ControlRequest request;
        request.value = Data::float64(number);
        const auto value = controlValue(type, request, scale);
        return value ? mms::toText(value->children()[0]) : value.error().message.english();
    };
    EXPECT_EQ(sent(12.5, AnalogueScale{0.1, 0}), "{125, 12.5}");
    // As a device says it, in single precision.
    EXPECT_EQ(sent(12.5, AnalogueScale{static_cast<double>(0.1F), 0}), "{125, 12.5}");
    EXPECT_EQ(sent(12.5, AnalogueScale{0.5, 10}), "{5, 12.5}");
    EXPECT_EQ(sent(12, std::nullopt), "{12, 12}");
    EXPECT_EQ(sent(12.5, std::nullopt), "ctlVal: The device wants 12.5 also as a whole number, but "
                                        "does not say by which scale (sVC).");
    EXPECT_NE(sent(5000, AnalogueScale{0.1, 0}).find("ctlVal: i: "), std::string::npos);
}

TEST(ControlValue, anOriginatorIdentificationBeyond64OctetsIsRefusedNotCut)
{
    ControlRequest request = someRequest();
    request.originator.identification.assign(64, 'x');
    EXPECT_TRUE(controlValue(operType(Type::boolean()), request).ok());
    request.originator.identification.assign(65, 'x');
    const auto value = controlValue(operType(Type::boolean()), request);
    ASSERT_FALSE(value.ok());
    EXPECT_EQ(value.error().message, "origin: The originator identification has 65 octets; at most "
                                     "64 are allowed.");
}

TEST(ControlValue, whatTheDeviceWantsAndNobodyKnowsIsNamed)
{
    ControlRequest request = someRequest();
    request.interlockCheck = false;
    const auto value = controlValue(
        Type::structure({{"ctlVal", Type::boolean()}, {"magic", Type::boolean()}}), request);
    ASSERT_FALSE(value.ok());
    EXPECT_NE(value.error().message.english().find("\"magic\""), std::string::npos);
    EXPECT_FALSE(controlValue(Type::structure({}), someRequest()).ok());
    EXPECT_FALSE(controlValue(Type::boolean(), someRequest()).ok());
}

TEST(ControlValue, aValueOfTheWrongTypeNamesCtlVal)
{
    ControlRequest request = someRequest();
    request.value = Data::visibleString("on");
    const auto value = controlValue(operType(Type::boolean()), request);
    ASSERT_FALSE(value.ok());
    EXPECT_EQ(value.error().message.english().substr(0, 8), "ctlVal: ");
}

TEST(ControlValue, theObjectOfAnErrorIsReadInEachWayToWriteIt)
{
    const auto read = [](std::string_view text) {
        const auto name = controlledNameFrom(text);
        return name ? name->object + " " + name->service : std::string("none");
    };
    EXPECT_EQ(read("LD/CSWI1$CO$Pos$Oper"), "LD/CSWI1.Pos Oper");
    EXPECT_EQ(read("LD/CSWI1$CO$Pos"), "LD/CSWI1.Pos ");
    EXPECT_EQ(read("LD/CSWI1.Pos"), "LD/CSWI1.Pos ");
    EXPECT_EQ(read("LD/CSWI1.Pos.SBOw"), "LD/CSWI1.Pos SBOw");
    EXPECT_EQ(read("LD/CSWI1$Pos$Cancel"), "LD/CSWI1.Pos Cancel");
    EXPECT_EQ(read("LD/GGIO1$CO$Grp$Ind$SBO"), "LD/GGIO1.Grp.Ind SBO");
    for (const char *text : {"", "LD", "/", "LD/", "LD/CSWI1", "/CSWI1$CO$Pos"})
        EXPECT_EQ(read(text), "none") << text;
}

TEST(ControlRequestReading, givesBackWhatWasWritten)
{
    for (const bool withOperTm : {false, true}) {
        ControlRequest request = someRequest();
        request.test = true;
        request.synchrocheck = true;
        if (withOperTm)
            request.operateTime = mms::UtcTime{1700000000, 1, 2};
        const Type type = operType(Type::boolean(), withOperTm);
        const auto read = controlRequestFrom(type, *controlValue(type, request));
        ASSERT_TRUE(read.ok()) << read.error().message;
        EXPECT_EQ(read->value, request.value);
        EXPECT_EQ(read->originator, request.originator);
        EXPECT_EQ(read->ctlNum, request.ctlNum);
        EXPECT_EQ(read->time, request.time);
        EXPECT_EQ(read->operateTime, request.operateTime);
        EXPECT_EQ(read->test, true);
        EXPECT_EQ(read->synchrocheck, true);
        EXPECT_EQ(read->interlockCheck, true);
    }
}

TEST(ControlRequestReading, aTimeToOperateOfZeroIsNone)
{
    const Type type = operType(Type::boolean(), true);
    const auto read = controlRequestFrom(type, *controlValue(type, someRequest()));
    ASSERT_TRUE(read.ok());
    EXPECT_FALSE(read->operateTime);
}

TEST(ControlRequestReading, valuesOfOtherShapesAreErrors)
{
    const Type type = operType(Type::boolean());
    const Data good = *controlValue(type, someRequest());
    EXPECT_FALSE(controlRequestFrom(type, Data::boolean(true)).ok());
    EXPECT_FALSE(controlRequestFrom(Type::boolean(), Data::boolean(true)).ok());
    for (std::size_t i = 0; i < good.children().size(); ++i) {
        Data bad = good;
        bad.children()[i] = Data::visibleString("x");
        EXPECT_FALSE(controlRequestFrom(type, bad).ok()) << i;
        std::vector<Data> fewer(good.children().begin(), good.children().end());
        fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(i));
        EXPECT_FALSE(controlRequestFrom(type, Data::structure(fewer)).ok()) << i;
    }
}

TEST(LastApplErrorValue, givesBackWhatWasWritten)
{
    const LastApplError error{"LD/CSWI1$CO$Pos$Oper", 1, {2, {'a'}}, 9, 10};
    const auto read = lastApplErrorFrom(toData(error));
    ASSERT_TRUE(read.ok()) << read.error().message;
    EXPECT_EQ(*read, error);
}

TEST(LastApplErrorValue, otherShapesAreErrors)
{
    const Data good = toData({"LD/CSWI1$CO$Pos$Oper", 1, {2, {'a'}}, 9, 10});
    for (std::size_t i = 0; i < good.children().size(); ++i) {
        Data bad = good;
        bad.children()[i] = Data::float32(1);
        EXPECT_FALSE(lastApplErrorFrom(bad).ok()) << i;
    }
    EXPECT_FALSE(lastApplErrorFrom(Data::structure({})).ok());
    EXPECT_FALSE(lastApplErrorFrom(Data::boolean(true)).ok());
}

TEST(ControlReports, aTerminationSaysOfWhichObjectAndHow)
{
    const Reference object = *parseReference("LD/CSWI1$CO$Pos");
    const Data oper = *controlValue(operType(Type::boolean()), someRequest());
    const auto positive = controlInformationFrom(commandTermination(object, oper));
    ASSERT_TRUE(positive);
    EXPECT_EQ(positive->terminated, object);
    EXPECT_TRUE(positive->positive);
    EXPECT_EQ(positive->oper, oper);
    EXPECT_FALSE(positive->applError);

    const LastApplError error{"LD/CSWI1$CO$Pos$Oper", 0, {}, 7, 17};
    const auto negative = controlInformationFrom(commandTermination(object, oper, error));
    ASSERT_TRUE(negative);
    EXPECT_EQ(negative->terminated, object);
    EXPECT_FALSE(negative->positive);
    EXPECT_EQ(negative->applError, error);
}

TEST(ControlReports, anErrorAloneNamesNoTerminatedObject)
{
    const LastApplError error{"LD/CSWI1$CO$Pos$Oper", 1, {}, 7, 10};
    const auto information = controlInformationFrom(toReport(error));
    ASSERT_TRUE(information);
    EXPECT_FALSE(information->terminated);
    EXPECT_FALSE(information->positive);
    EXPECT_EQ(information->applError, error);
}

TEST(ControlReports, otherReportsAreNone)
{
    using Variables = std::vector<mms::VariableAccess>;
    EXPECT_FALSE(controlInformationFrom({mms::ObjectName::ofVmd("RPT"), {Data::boolean(true)}}));
    EXPECT_FALSE(controlInformationFrom({Variables{}, {}}));
    EXPECT_FALSE(
        controlInformationFrom({Variables{{mms::ObjectName::ofVmd("LastApplError"), {}}}, {}}));
    EXPECT_FALSE(controlInformationFrom(
        {Variables{{mms::ObjectName::inDomain("LD", "CSWI1$ST$Pos$Oper"), {}}},
         {Data::boolean(true)}}));
    EXPECT_FALSE(controlInformationFrom(
        {Variables{{mms::ObjectName::inDomain("LD", "$Oper"), {}}}, {Data::boolean(true)}}));
}

TEST(ControlReports, anErrorThatCannotBeReadIsStillNoSuccess)
{
    const auto information = controlInformationFrom(
        {std::vector{mms::VariableAccess{mms::ObjectName::ofVmd("LastApplError"), {}}},
         {Data::boolean(true)}});
    ASSERT_TRUE(information);
    EXPECT_FALSE(information->positive);
    EXPECT_FALSE(information->applError);
}

TEST(ControlWords, everyAdditionalCauseHasItsOwn)
{
    std::set<std::string> texts;
    for (std::int32_t cause = 0; cause <= 27; ++cause)
        texts.insert(additionalCauseText(cause).english());
    EXPECT_EQ(texts.size(), 28U);
    EXPECT_EQ(additionalCauseText(10), "blocked by interlocking");
    EXPECT_EQ(additionalCauseText(11), "blocked by synchrocheck");
    EXPECT_EQ(additionalCauseText(18), "the object is not selected");
    EXPECT_EQ(additionalCauseText(27), "locked by another client");
    EXPECT_EQ(additionalCauseText(28), "additional cause 28");
    EXPECT_EQ(additionalCauseText(-1), "additional cause -1");
}

TEST(ControlWords, everyErrorHasItsOwn)
{
    std::set<std::string> texts;
    for (std::int32_t error = 0; error <= 4; ++error)
        texts.insert(controlErrorText(error).english());
    EXPECT_EQ(texts.size(), 5U);
    EXPECT_EQ(controlErrorText(4), "control error 4");
}
