// SPDX-License-Identifier: Apache-2.0
#include "simulator/faultylink.h"

#include <algorithm>
#include <string>

namespace sim {

namespace {

void setInvokeId(mms::Pdu &pdu, std::uint32_t invokeId)
{
    if (auto *response = std::get_if<mms::ConfirmedResponsePdu>(&pdu))
        response->invokeId = invokeId;
    else if (auto *error = std::get_if<mms::ConfirmedErrorPdu>(&pdu))
        error->invokeId = invokeId;
    else if (auto *reject = std::get_if<mms::RejectPdu>(&pdu))
        reject->invokeId = invokeId;
}

} // namespace

osi::Interference::Incoming FaultyLink::incoming(mms::Bytes pdu)
{
    const auto head = mms::peekPdu(pdu);
    if (!head || head->type != requestType || !head->invokeId || !head->service)
        return {};
    const FaultDecision decision = m_rules->decide(*head->service);
    m_decisions.erase(*head->invokeId);
    if (decision.kind == FaultKind::Ignore)
        return {false, {}};
    if (decision.kind == FaultKind::Refuse) {
        const FaultRefusal &refusal = decision.refusal;
        return {false,
                mms::encode(mms::ConfirmedErrorPdu{
                    *head->invokeId,
                    std::nullopt,
                    {refusal.errorClass, refusal.code, std::nullopt, std::nullopt, std::nullopt}})};
    }
    if (decision.kind == FaultKind::Reject) {
        return {false,
                mms::encode(mms::RejectPdu{head->invokeId, mms::RejectedPdu::ConfirmedRequest,
                                           mms::rejectcodes::requestUnrecognizedService})};
    }
    if (!decision.isNothing())
        m_decisions.insert_or_assign(*head->invokeId, decision);
    return {};
}

FaultDecision FaultyLink::decisionFor(const std::optional<mms::PduHead> &head, mms::Bytes pdu)
{
    if (!head || head->type == requestType)
        return {};
    if (head->type == initiateResponseType) {
        const auto answer = mms::decodePdu(pdu);
        const auto *response = answer ? std::get_if<mms::InitiateResponsePdu>(&*answer) : nullptr;
        if (response && response->parameters.maxPduSize)
            m_pduSize = static_cast<std::size_t>(std::max(*response->parameters.maxPduSize, 0));
        return m_rules->decide(faultInitiateIndex);
    }
    if (head->type == unconfirmedType)
        return m_rules->decide(faultReportIndex);
    const auto found = head->invokeId && head->type <= rejectType
                           ? m_decisions.find(*head->invokeId)
                           : m_decisions.end();
    if (found == m_decisions.end())
        return {};
    const FaultDecision decision = found->second;
    m_decisions.erase(found);
    return decision;
}

osi::Interference::Outgoing FaultyLink::outgoing(mms::Bytes pdu)
{
    const FaultDecision decision = decisionFor(mms::peekPdu(pdu), pdu);
    Outgoing outgoing;
    outgoing.delay = decision.delay;
    outgoing.pdus.emplace_back(pdu.begin(), pdu.end());
    if (decision.kind)
        apply(decision, pdu, outgoing);
    return outgoing;
}

void FaultyLink::apply(const FaultDecision &decision, mms::Bytes pdu, Outgoing &outgoing)
{
    constexpr std::size_t defaultNoise = 64;
    constexpr std::uint32_t idStep = 1000;
    mms::Octets &octets = outgoing.pdus.front();
    switch (*decision.kind) {
    case FaultKind::Drop:
        outgoing.pdus.clear();
        break;
    case FaultKind::Duplicate:
        outgoing.pdus.emplace_back(pdu.begin(), pdu.end());
        break;
    case FaultKind::WrongInvokeId:
        if (auto decoded = mms::decodePdu(pdu)) {
            setInvokeId(*decoded, mms::peekPdu(pdu)->invokeId.value_or(0) + idStep);
            octets = mms::encode(*decoded);
        }
        break;
    case FaultKind::Truncate:
        octets.resize(std::min(decision.octets.value_or(octets.size() / 2), octets.size() - 1));
        break;
    case FaultKind::Garbage:
        if (!decision.octets) {
            octets = m_rules->randomOctets(octets.size());
            break;
        }
        for (std::size_t i = 0; i < *decision.octets; ++i)
            octets[m_rules->randomBelow(octets.size())] = m_rules->randomOctets(1).front();
        break;
    case FaultKind::Noise:
        outgoing.noise = m_rules->randomOctets(decision.octets.value_or(defaultNoise));
        break;
    case FaultKind::Oversize: {
        mms::ConfirmedErrorPdu error;
        error.invokeId = mms::peekPdu(pdu)->invokeId.value_or(0);
        error.error.additionalDescription = std::string(m_pduSize, '?');
        octets = mms::encode(error);
        break;
    }
    case FaultKind::Reset:
        outgoing.resetAfter = decision.octets.value_or(octets.size() / 2);
        break;
    case FaultKind::Delay:
    case FaultKind::Ignore:
    case FaultKind::Refuse:
    case FaultKind::Reject:
    case FaultKind::Clock:
        break;
    }
}

} // namespace sim
