// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/vocabulary.h"
#include "osi/interference.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
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

/// Every kind, in the order of the documentation.
std::span<const FaultCase> faultCases();

/// How a script is written, with every case; for a terminal.
std::string faultsHelp();

/// Misbehaviour of a simulated device on purpose: a list of rules, read from a script, that says
/// what goes wrong, with which services, and how often. A rule counts the requests that it fits on
/// all links together. What goes wrong is decided when a request comes in; where several rules
/// decide about one PDU, delays add up, clocks jump, and of the rest the first rule holds.
///
/// May be shared by any number of links and threads.
class Faults : public std::enable_shared_from_this<Faults>
{
    struct Private
    {
    };

public:
    struct Handlers
    {
        /// The clock of the device is to jump. In the strand of an association.
        std::function<void(std::chrono::milliseconds step)> clockJumps;
        /// A rule was applied: its line, as it is written. In the strand of an association.
        std::function<void(std::size_t line, const std::string &text)> applied;
    };

    /// The error names the line that is wrong.
    static mms::Result<std::shared_ptr<Faults>> parse(std::string_view script,
                                                      Handlers handlers = {});
    static mms::Result<std::shared_ptr<Faults>> load(const std::string &path,
                                                     Handlers handlers = {});
    explicit Faults(Private);
    ~Faults();

    /// For LinkOptions::interference.
    std::function<std::unique_ptr<osi::Interference>()> interference();

private:
    class Script;
    class Disturbance;
    struct Rule;
    struct Decision;
    struct State;

    Decision decide(std::size_t service);
    mms::Octets randomOctets(std::size_t count);
    std::size_t randomBelow(std::size_t limit);

    std::unique_ptr<State> m_state;
};

} // namespace sim
