// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/simulation.h"

#include <string>
#include <variant>
#include <vector>

namespace iedsim {

/// What a run of the program is asked to do.
struct CommandLine
{
    std::vector<std::string> files;
    /// IEDs to simulate; empty for the only one of each file.
    std::vector<std::string> ieds;
    bool allIeds = false;
    bool list = false;
    bool quiet = false;
    sim::SimulationOptions simulation;
};

/// What ends the program before it does anything: help, or a mistake.
struct Ending
{
    std::string text;
    int status = 0;
};

/// Exit statuses.
inline constexpr int failureStatus = 1;
inline constexpr int usageStatus = 2;

std::variant<CommandLine, Ending> parseCommandLine(int argc, const char *const *argv);

} // namespace iedsim
