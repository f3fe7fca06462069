// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/controlmachine.h"

#include "acsi/control.h"
#include "mms/data.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace sim {

/// What a controllable object moves, by its common data class.
enum class ControlKind : std::uint8_t {
    SinglePoint,   ///< SPC
    DoublePoint,   ///< DPC
    Number,        ///< INC and ENC
    BinaryStep,    ///< BSC: one step up or down
    IntegerStep,   ///< ISC: to a step
    AnalogueSet,   ///< APC
    AnalogueSteps, ///< BAC: up or down by the step size
};

/// None for a class that cannot be controlled.
std::optional<ControlKind> controlKindOf(std::string_view cdc);

/// Position of a double point (Dbpos) as the wire has it.
enum class DoublePosition : std::uint8_t { Intermediate = 0, Off = 1, On = 2, Bad = 3 };
mms::Data toData(DoublePosition position);
DoublePosition doublePositionFrom(const mms::Data &data);

/// The range of a set point or step; none where the object has no limit.
struct ControlRange
{
    std::optional<double> minimum;
    std::optional<double> maximum;
    double step = 1;
};

/// Where a control leads to, or why it leads nowhere.
struct ControlTarget
{
    AddCause cause = AddCause::None;
    mms::Data position; ///< when the cause is None
};

/// @p position is that of the object now, in the form of its status: stVal, posVal or mxVal's
/// number.
ControlTarget targetOf(ControlKind kind, const mms::Data &value, const mms::Data &position,
                       const ControlRange &range);

/// Whether the control closes something: what a synchrocheck is for.
bool closes(ControlKind kind, const mms::Data &value);

/// What surrounds a controllable object at a moment.
struct ControlConditions
{
    /// Beh of the logical node (IEC 61850-7-4): 1 on, 2 blocked, 3 test, 4 test and blocked, 5 off.
    std::int32_t behaviour = 1;
    /// Controls of the operating mode itself have to work in every mode.
    bool controlsMode = false;
    bool local = false;     ///< switched to local
    bool unhealthy = false; ///< Health is alarm
    bool blocked = false;   ///< operation in this direction is blocked
    bool interlocked = false;
    bool unsynchronized = false;
};

/// The first condition that forbids the control.
AddCause forbids(const ControlConditions &conditions, const acsi::ControlRequest &request,
                 bool closing);

} // namespace sim
