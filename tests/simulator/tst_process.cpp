// SPDX-License-Identifier: Apache-2.0
#include "simulator/process.h"

#include <gtest/gtest.h>

using acsi::ControlRequest;
using mms::Data;
using sim::AddCause;
using sim::ControlConditions;
using sim::ControlKind;
using sim::ControlRange;
using sim::ControlTarget;
using sim::DoublePosition;

namespace {

Data command(const char *bits)
{
    return Data::bitString(mms::BitString::fromText(bits));
}

ControlRange between(double minimum, double maximum, double step = 1)
{
    ControlRange range;
    range.minimum = minimum;
    range.maximum = maximum;
    range.step = step;
    return range;
}

void expectPosition(const ControlTarget &target, const Data &position)
{
    EXPECT_EQ(target.cause, AddCause::None);
    EXPECT_EQ(target.position, position);
}

} // namespace

TEST(Process, everyControllableClassIsKnown)
{
    for (const char *cdc : {"SPC", "DPC", "INC", "ENC", "BSC", "ISC", "APC", "BAC"})
        EXPECT_TRUE(sim::controlKindOf(cdc).has_value()) << cdc;
    EXPECT_FALSE(sim::controlKindOf("SPS").has_value());
    EXPECT_FALSE(sim::controlKindOf("").has_value());
}

TEST(Process, doublePointsKeepTheOrderOfTheirBits)
{
    EXPECT_EQ(sim::toData(DoublePosition::Off), command("01"));
    EXPECT_EQ(sim::toData(DoublePosition::On), command("10"));
    EXPECT_EQ(sim::doublePositionFrom(command("00")), DoublePosition::Intermediate);
    EXPECT_EQ(sim::doublePositionFrom(command("11")), DoublePosition::Bad);
}

TEST(Process, aSwitchMovesUnlessItIsThere)
{
    const Data on = Data::boolean(true);
    const Data off = Data::boolean(false);
    const auto at = [](const Data &value, const char *position) {
        return sim::targetOf(ControlKind::DoublePoint, value, command(position), {});
    };
    expectPosition(at(on, "01"), command("10"));
    expectPosition(at(off, "10"), command("01"));
    expectPosition(at(on, "00"), command("10"));
    EXPECT_EQ(at(on, "10").cause, AddCause::PositionReached);
    EXPECT_EQ(at(off, "01").cause, AddCause::PositionReached);
    expectPosition(sim::targetOf(ControlKind::SinglePoint, on, on, {}), on);
}

TEST(Process, numbersStayWithinTheirLimits)
{
    const auto to = [](std::int64_t value) {
        return sim::targetOf(ControlKind::Number, Data::integer(value), Data::integer(0),
                             between(-5, 5));
    };
    expectPosition(to(5), Data::integer(5));
    EXPECT_EQ(to(6).cause, AddCause::InconsistentParameters);
    EXPECT_EQ(to(-6).cause, AddCause::InconsistentParameters);
}

TEST(Process, tapsGoOneStepAndNotBeyondTheLast)
{
    const auto at = [](const char *bits, std::int64_t step) {
        return sim::targetOf(ControlKind::BinaryStep, command(bits), Data::integer(step), {});
    };
    expectPosition(at("10", 3), Data::integer(4));
    expectPosition(at("01", 3), Data::integer(2));
    expectPosition(at("00", 3), Data::integer(3));
    EXPECT_EQ(at("11", 3).cause, AddCause::InconsistentParameters);
    EXPECT_EQ(at("10", 63).cause, AddCause::StepLimit);
    EXPECT_EQ(at("01", -64).cause, AddCause::StepLimit);
    const auto limited =
        sim::targetOf(ControlKind::BinaryStep, command("10"), Data::integer(17), between(1, 17));
    EXPECT_EQ(limited.cause, AddCause::StepLimit);
    expectPosition(sim::targetOf(ControlKind::IntegerStep, Data::integer(9), Data::integer(0), {}),
                   Data::integer(9));
    EXPECT_EQ(
        sim::targetOf(ControlKind::IntegerStep, Data::integer(64), Data::integer(0), {}).cause,
        AddCause::StepLimit);
}

TEST(Process, setPointsKeepTheFormOfTheMeasuredValue)
{
    const Data five = Data::structure({Data::float32(5)});
    expectPosition(sim::targetOf(ControlKind::AnalogueSet, five, Data::float32(0), {}),
                   Data::float32(5));
    expectPosition(sim::targetOf(ControlKind::AnalogueSet, five, Data::integer(0), {}),
                   Data::integer(5));
    expectPosition(sim::targetOf(ControlKind::AnalogueSet, Data::structure({Data::integer(7)}),
                                 Data::float64(0), {}),
                   Data::float64(7));
    EXPECT_EQ(sim::targetOf(ControlKind::AnalogueSet, five, Data::float32(0), between(0, 4)).cause,
              AddCause::InconsistentParameters);
    EXPECT_EQ(
        sim::targetOf(ControlKind::AnalogueSet, Data::structure({}), Data::float32(0), {}).cause,
        AddCause::InconsistentParameters);
    expectPosition(sim::targetOf(ControlKind::AnalogueSteps, command("10"), Data::float32(1),
                                 between(0, 2, 0.5)),
                   Data::float32(1.5));
    EXPECT_EQ(sim::targetOf(ControlKind::AnalogueSteps, command("01"), Data::float32(0),
                            between(0, 2, 0.5))
                  .cause,
              AddCause::StepLimit);
}

TEST(Process, theModeDecidesAboutTestAndRealControls)
{
    const auto forbidden = [](std::int32_t behaviour, bool test, bool controlsMode = false) {
        ControlConditions conditions;
        conditions.behaviour = behaviour;
        conditions.controlsMode = controlsMode;
        ControlRequest request;
        request.test = test;
        return sim::forbids(conditions, request, false);
    };
    EXPECT_EQ(forbidden(1, false), AddCause::None);
    EXPECT_EQ(forbidden(1, true), AddCause::BlockedByMode);
    EXPECT_EQ(forbidden(2, false), AddCause::BlockedByMode);
    EXPECT_EQ(forbidden(3, false), AddCause::BlockedByMode);
    EXPECT_EQ(forbidden(3, true), AddCause::None);
    EXPECT_EQ(forbidden(4, true), AddCause::None);
    EXPECT_EQ(forbidden(5, false), AddCause::BlockedByMode);
    EXPECT_EQ(forbidden(5, true), AddCause::BlockedByMode);
    EXPECT_EQ(forbidden(5, false, true), AddCause::None);
}

TEST(Process, localControlKeepsOthersAway)
{
    ControlConditions conditions;
    conditions.local = true;
    const auto from = [&](std::int32_t category) {
        ControlRequest request;
        request.originator.category = category;
        return sim::forbids(conditions, request, false);
    };
    EXPECT_EQ(from(1), AddCause::None);
    EXPECT_EQ(from(2), AddCause::BlockedBySwitchingHierarchy);
    EXPECT_EQ(from(3), AddCause::BlockedBySwitchingHierarchy);
    EXPECT_EQ(from(4), AddCause::None);
    EXPECT_EQ(from(5), AddCause::BlockedBySwitchingHierarchy);
    EXPECT_EQ(from(6), AddCause::BlockedBySwitchingHierarchy);
    EXPECT_EQ(from(7), AddCause::None);
}

TEST(Process, interlockingAndSynchrocheckAreAskedOnlyWhenTheControlSaysSo)
{
    ControlConditions conditions;
    conditions.interlocked = true;
    conditions.unsynchronized = true;
    ControlRequest request;
    EXPECT_EQ(sim::forbids(conditions, request, true), AddCause::None);
    request.synchrocheck = true;
    EXPECT_EQ(sim::forbids(conditions, request, true), AddCause::BlockedBySynchrocheck);
    EXPECT_EQ(sim::forbids(conditions, request, false), AddCause::None);
    request.interlockCheck = true;
    EXPECT_EQ(sim::forbids(conditions, request, false), AddCause::BlockedByInterlocking);
}

TEST(Process, blockingAndBadHealthForbidWhateverIsAsked)
{
    ControlConditions conditions;
    conditions.blocked = true;
    EXPECT_EQ(sim::forbids(conditions, {}, true), AddCause::BlockedByCommand);
    conditions.unhealthy = true;
    EXPECT_EQ(sim::forbids(conditions, {}, true), AddCause::BlockedByHealth);
}
