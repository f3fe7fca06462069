// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/faultrules.h"

#include "mms/pdu.h"
#include "osi/interference.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace sim {

/// The effects of faults on one link: asks the rules about each PDU and delays, drops, changes or
/// answers it as they say. What goes wrong with an answer is decided when its request comes in.
class FaultyLink : public osi::Interference
{
public:
    explicit FaultyLink(std::shared_ptr<FaultRules> rules)
        : m_rules(std::move(rules))
    {
    }

    Outgoing outgoing(mms::Bytes pdu) override;
    Incoming incoming(mms::Bytes pdu) override;

private:
    static constexpr std::uint32_t requestType = 0;
    static constexpr std::uint32_t unconfirmedType = 3;
    static constexpr std::uint32_t rejectType = 4;
    static constexpr std::uint32_t initiateResponseType = 9;

    FaultDecision decisionFor(const std::optional<mms::PduHead> &head, mms::Bytes pdu);
    void apply(const FaultDecision &decision, mms::Bytes pdu, Outgoing &outgoing);

    std::shared_ptr<FaultRules> m_rules;
    std::map<std::uint32_t, FaultDecision> m_decisions;
    std::size_t m_pduSize = 65536;
};

} // namespace sim
