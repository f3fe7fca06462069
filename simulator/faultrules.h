// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/faultscript.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace sim {

/// What goes wrong with one PDU.
struct FaultDecision
{
    std::chrono::milliseconds delay{0};
    std::optional<FaultKind> kind;
    std::optional<std::size_t> octets;
    FaultRefusal refusal;

    bool isNothing() const { return delay.count() <= 0 && !kind; }
};

/// The rules of a script at work: counts the requests that each fits, on all links together, and
/// decides. Where several rules decide about one PDU, delays add up, clocks jump, and of the rest
/// the first rule holds. Any number of threads.
class FaultRules
{
public:
    struct Handlers
    {
        /// The clock of the device is to jump. In the thread that called decide().
        std::function<void(std::chrono::milliseconds step)> clockJumps;
        /// A rule was applied: its line, as it is written. In the thread that called decide().
        std::function<void(std::size_t line, const std::string &text)> applied;
    };

    FaultRules(FaultScript script, Handlers handlers);

    /// @param service number as in FaultServices
    FaultDecision decide(std::size_t service);
    mms::Octets randomOctets(std::size_t count);
    /// @param limit not 0
    std::size_t randomBelow(std::size_t limit);

private:
    struct Counted
    {
        FaultRule rule;
        std::uint64_t fitted = 0;
        std::uint64_t done = 0;
    };

    std::mutex m_mutex;
    std::mt19937_64 m_random;
    std::vector<Counted> m_rules;
    const Handlers m_handlers;
};

} // namespace sim
