// SPDX-License-Identifier: Apache-2.0
// What can be written in a script of faults, and what was written.
#pragma once

#include "mms/pdu.h"
#include "mms/vocabulary.h"

#include <bitset>
#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// One kind of misbehaviour that a script can ask for.
struct FaultCase
{
    std::string_view name;     ///< first word of a line of the script
    std::string_view argument; ///< as in a synopsis, "[OCTETS]"; may be empty
    std::string_view purpose;  ///< one sentence
    std::string_view example;  ///< a whole line of a script
};

/// Every kind, in the order of FaultKind and of the documentation.
std::span<const FaultCase> faultCases();

/// How a script is written, with every case; for a terminal.
std::string faultsHelp();

/// What goes wrong; faultCases() says more of each.
enum class FaultKind : std::uint8_t {
    Delay,
    Drop,
    Ignore,
    Duplicate,
    WrongInvokeId,
    Truncate,
    Garbage,
    Noise,
    Oversize,
    Refuse,
    Reject,
    Reset,
    Clock,
};

/// What a rule can be for: the services by their numbers, and the opening of an association.
inline constexpr std::size_t faultReportIndex =
    static_cast<std::size_t>(mms::Service::InformationReport);
inline constexpr std::size_t faultInitiateIndex = mms::serviceBits;
inline constexpr std::size_t faultServiceCount = faultInitiateIndex + 1;
using FaultServices = std::bitset<faultServiceCount>;

/// The error with which a service is refused.
struct FaultRefusal
{
    std::string_view name;
    mms::ErrorClass errorClass = mms::ErrorClass::Access;
    std::int32_t code = 0;
};

/// One line of a script.
struct FaultRule
{
    std::size_t line = 0; ///< from 1
    std::string text;     ///< the words of the line
    FaultKind kind = FaultKind::Delay;
    std::chrono::milliseconds time{0};
    std::optional<std::size_t> octets;
    FaultRefusal refusal;
    FaultServices services;
    // Which of the requests that fit, and how often.
    std::uint64_t first = 1;
    std::uint64_t every = 1;
    std::uint64_t times = UINT64_MAX;
    double probability = 1;
};

struct FaultScript
{
    std::vector<FaultRule> rules;
    /// What random numbers start with; the last of several.
    std::optional<std::uint64_t> seed;
};

/// The error names the line that is wrong.
mms::Result<FaultScript> readFaultScript(std::string_view text);

} // namespace sim
