// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/faultrules.h"

#include "osi/interference.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace sim {

/// Misbehaviour of a simulated device on purpose: a list of rules, read from a script, that says
/// what goes wrong (faultscript.h), with which services and how often (faultrules.h), and what that
/// does to a link (faultylink.h).
///
/// May be shared by any number of links and threads.
class Faults
{
    struct Private
    {
    };

public:
    using Handlers = FaultRules::Handlers;

    /// The error names the line that is wrong.
    static mms::Result<std::shared_ptr<Faults>> parse(std::string_view script,
                                                      Handlers handlers = {});
    static mms::Result<std::shared_ptr<Faults>> load(const std::string &path,
                                                     Handlers handlers = {});
    Faults(Private, std::shared_ptr<FaultRules> rules);

    /// For LinkOptions::interference.
    std::function<std::unique_ptr<osi::Interference>()> interference();

private:
    const std::shared_ptr<FaultRules> m_rules;
};

} // namespace sim
