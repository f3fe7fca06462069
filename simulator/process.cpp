// SPDX-License-Identifier: Apache-2.0
#include "simulator/process.h"

#include <array>
#include <utility>

namespace sim {

namespace {

constexpr std::int64_t firstStep = -64;
constexpr std::int64_t lastStep = 63;

constexpr std::int32_t modeBlocked = 2;
constexpr std::int32_t modeTest = 3;
constexpr std::int32_t modeTestBlocked = 4;
constexpr std::int32_t modeOff = 5;

/// 1 for down, 2 for up, 0 for stop.
unsigned directionOf(const mms::Data &value)
{
    if (value.kind() == mms::Data::Kind::BitString)
        return (value.testBit(0) ? 2U : 0U) + (value.testBit(1) ? 1U : 0U);
    return static_cast<unsigned>(value.toInteger().value_or(0));
}

bool isWithin(double value, const ControlRange &range)
{
    return (!range.minimum || value >= *range.minimum) &&
           (!range.maximum || value <= *range.maximum);
}

const mms::Data *numberIn(const mms::Data &value)
{
    if (value.kind() != mms::Data::Kind::Structure)
        return &value;
    return value.children().empty() ? nullptr : &value.children().front();
}

std::optional<double> asDouble(const mms::Data &value)
{
    if (const auto real = value.toDouble())
        return real;
    if (const auto number = value.toInteger())
        return static_cast<double>(*number);
    return std::nullopt;
}

mms::Data likewise(const mms::Data &pattern, double value)
{
    if (pattern.kind() != mms::Data::Kind::FloatingPoint)
        return mms::Data::integer(static_cast<std::int64_t>(value));
    return pattern.isDouble() ? mms::Data::float64(value)
                              : mms::Data::float32(static_cast<float>(value));
}

ControlTarget failed(AddCause cause)
{
    return {cause, mms::Data()};
}

ControlTarget stepTo(std::int64_t step, const ControlRange &range)
{
    if (step < firstStep || step > lastStep || !isWithin(static_cast<double>(step), range))
        return failed(AddCause::StepLimit);
    return {AddCause::None, mms::Data::integer(step)};
}

ControlTarget analogueTarget(const mms::Data &value, const mms::Data &position,
                             const ControlRange &range)
{
    const mms::Data *number = numberIn(value);
    const auto target = number ? asDouble(*number) : std::nullopt;
    if (!target || !isWithin(*target, range))
        return failed(AddCause::InconsistentParameters);
    return {AddCause::None, likewise(position, *target)};
}

} // namespace

std::optional<ControlKind> controlKindOf(std::string_view cdc)
{
    static constexpr std::array<std::pair<std::string_view, ControlKind>, 8> kinds{{
        {"SPC", ControlKind::SinglePoint},
        {"DPC", ControlKind::DoublePoint},
        {"INC", ControlKind::Number},
        {"ENC", ControlKind::Number},
        {"BSC", ControlKind::BinaryStep},
        {"ISC", ControlKind::IntegerStep},
        {"APC", ControlKind::AnalogueSet},
        {"BAC", ControlKind::AnalogueSteps},
    }};
    for (const auto &[name, kind] : kinds) {
        if (name == cdc)
            return kind;
    }
    return std::nullopt;
}

mms::Data toData(DoublePosition position)
{
    const auto number = static_cast<unsigned>(position);
    mms::BitString bits(2);
    bits.set(0, (number & 2U) != 0);
    bits.set(1, (number & 1U) != 0);
    return mms::Data::bitString(bits);
}

DoublePosition doublePositionFrom(const mms::Data &data)
{
    return static_cast<DoublePosition>(directionOf(data) & 3U);
}

ControlTarget targetOf(ControlKind kind, const mms::Data &value, const mms::Data &position,
                       const ControlRange &range)
{
    switch (kind) {
    case ControlKind::SinglePoint:
        return {AddCause::None, value};
    case ControlKind::DoublePoint: {
        const auto target =
            value.toBoolean().value_or(false) ? DoublePosition::On : DoublePosition::Off;
        if (doublePositionFrom(position) == target)
            return failed(AddCause::PositionReached);
        return {AddCause::None, toData(target)};
    }
    case ControlKind::Number: {
        const auto number = value.toInteger();
        if (!number || !isWithin(static_cast<double>(*number), range))
            return failed(AddCause::InconsistentParameters);
        return {AddCause::None, mms::Data::integer(*number)};
    }
    case ControlKind::BinaryStep: {
        const std::int64_t now = position.toInteger().value_or(0);
        switch (directionOf(value)) {
        case 0:
            return {AddCause::None, mms::Data::integer(now)};
        case 1:
            return stepTo(now - 1, range);
        case 2:
            return stepTo(now + 1, range);
        default:
            return failed(AddCause::InconsistentParameters);
        }
    }
    case ControlKind::IntegerStep:
        return stepTo(value.toInteger().value_or(lastStep + 1), range);
    case ControlKind::AnalogueSet:
        return analogueTarget(value, position, range);
    case ControlKind::AnalogueSteps: {
        const double now = asDouble(position).value_or(0);
        const unsigned direction = directionOf(value);
        if (direction > 2)
            return failed(AddCause::InconsistentParameters);
        const double target = direction == 1   ? now - range.step
                              : direction == 2 ? now + range.step
                                               : now;
        if (!isWithin(target, range))
            return failed(AddCause::StepLimit);
        return {AddCause::None, likewise(position, target)};
    }
    }
    return failed(AddCause::NotSupported);
}

bool closes(ControlKind kind, const mms::Data &value)
{
    return (kind == ControlKind::DoublePoint || kind == ControlKind::SinglePoint) &&
           value.toBoolean().value_or(false);
}

AddCause forbids(const ControlConditions &conditions, const acsi::ControlRequest &request,
                 bool closing)
{
    if (!conditions.controlsMode) {
        const bool testing =
            conditions.behaviour == modeTest || conditions.behaviour == modeTestBlocked;
        if (conditions.behaviour == modeOff || conditions.behaviour == modeBlocked ||
            request.test != testing)
            return AddCause::BlockedByMode;
        // Station and remote control, by hand or automatic, give way to somebody at the bay.
        const std::int32_t category = request.originator.category;
        const bool fromAfar = category == 2 || category == 3 || category == 5 || category == 6;
        if (conditions.local && fromAfar)
            return AddCause::BlockedBySwitchingHierarchy;
    }
    if (conditions.unhealthy)
        return AddCause::BlockedByHealth;
    if (conditions.blocked)
        return AddCause::BlockedByCommand;
    if (request.interlockCheck && conditions.interlocked)
        return AddCause::BlockedByInterlocking;
    if (request.synchrocheck && closing && conditions.unsynchronized)
        return AddCause::BlockedBySynchrocheck;
    return AddCause::None;
}

} // namespace sim
