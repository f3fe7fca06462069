// SPDX-License-Identifier: Apache-2.0
#include "simulator/faultrules.h"

#include <utility>

namespace sim {

FaultRules::FaultRules(FaultScript script, Handlers handlers)
    : m_handlers(std::move(handlers))
{
    if (script.seed)
        m_random.seed(*script.seed);
    for (FaultRule &rule : script.rules)
        m_rules.push_back({std::move(rule), 0, 0});
}

FaultDecision FaultRules::decide(std::size_t service)
{
    FaultDecision decision;
    std::chrono::milliseconds step{0};
    std::vector<std::pair<std::size_t, std::string>> applied;
    {
        const std::lock_guard lock(m_mutex);
        for (Counted &counted : m_rules) {
            const FaultRule &rule = counted.rule;
            if (service >= faultServiceCount || !rule.services.test(service))
                continue;
            ++counted.fitted;
            if (counted.fitted < rule.first || (counted.fitted - rule.first) % rule.every != 0 ||
                counted.done >= rule.times) {
                continue;
            }
            // The 53 bits that a double can hold.
            const double drawn = static_cast<double>(m_random() >> 11) * 0x1p-53;
            if (drawn >= rule.probability)
                continue;
            if (rule.kind == FaultKind::Delay) {
                decision.delay += rule.time;
            } else if (rule.kind == FaultKind::Clock) {
                step += rule.time;
            } else if (!decision.kind) {
                decision.kind = rule.kind;
                decision.octets = rule.octets;
                decision.refusal = rule.refusal;
            } else {
                continue;
            }
            ++counted.done;
            applied.emplace_back(rule.line, rule.text);
        }
    }
    if (step.count() != 0 && m_handlers.clockJumps)
        m_handlers.clockJumps(step);
    if (m_handlers.applied) {
        for (const auto &[line, text] : applied)
            m_handlers.applied(line, text);
    }
    return decision;
}

mms::Octets FaultRules::randomOctets(std::size_t count)
{
    const std::lock_guard lock(m_mutex);
    mms::Octets octets(count);
    for (std::uint8_t &octet : octets)
        octet = static_cast<std::uint8_t>(m_random());
    return octets;
}

std::size_t FaultRules::randomBelow(std::size_t limit)
{
    const std::lock_guard lock(m_mutex);
    return static_cast<std::size_t>(m_random() % limit);
}

} // namespace sim
