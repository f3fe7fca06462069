// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/vocabulary.h"

#include <string>
#include <string_view>

namespace sim {

/// Ways in which a simulated device acts otherwise than most devices do, and may: what the standard
/// leaves open, and what real devices do in spite of it. A client that takes the usual for granted
/// shows it here. Faults (faults.h) disturb single PDUs; oddities are how the device is.
struct Oddities
{
    // Names and types

    bool namesInTypeOrder = false;
    bool fixedLengths = false;

    // Values

    // Reports

    // Control

    bool strictControl = false;
    bool slowControl = false;
    bool noCancelOfCommands = false;
    bool causeAfterAnswer = false;
    bool causeNamesObject = false;
    bool causeNamesReference = false;
    bool causeNamesOper = false;
    bool causeWithoutNumber = false;

    // Setting groups

    bool delayedActivation = false;
    bool keptEditGroup = false;
    bool writeOnlyEdit = false;
    bool sharedEdit = false;

    // Files

    bool unreadableFiles = false;
    bool emptyPages = false;
    bool shortTimes = false;
    bool cutFiles = false;
    bool refusedClose = false;

    // Associations

    bool noStatus = false;
};

/// @p oddities with the one of that name. The error names those that there are.
mms::Result<void> addOddity(Oddities &oddities, std::string_view name);

/// Every oddity with its purpose; for a terminal.
std::string odditiesHelp();

} // namespace sim
