// SPDX-License-Identifier: Apache-2.0
#include "mms/calls.h"

#include <algorithm>

namespace mms {

namespace {

// Some peers read invoke ids as signed numbers.
constexpr std::uint32_t largestInvokeId = 0x7fffffff;

} // namespace

CallTable::CallTable(std::size_t limit, std::chrono::milliseconds grace, std::uint32_t lastInvokeId)
    : m_limit(limit)
    , m_grace(grace)
    , m_lastInvokeId(lastInvokeId)
{
}

void CallTable::setLimit(std::size_t limit)
{
    m_limit = std::max<std::size_t>(limit, 1);
}

CallTable::Ticket CallTable::add(Clock::time_point deadline, bool leavesPlace)
{
    m_waiting.push_back({++m_lastTicket, deadline, leavesPlace});
    return m_lastTicket;
}

std::optional<CallTable::Sent> CallTable::next()
{
    if (m_waiting.empty() || m_sent.size() >= m_limit)
        return std::nullopt;
    do {
        const bool wraps = m_lastInvokeId >= largestInvokeId;
        m_hasWrapped = m_hasWrapped || wraps;
        m_lastInvokeId = wraps ? 1 : m_lastInvokeId + 1;
    } while (m_sent.contains(m_lastInvokeId));
    const Waiting call = m_waiting.front();
    m_waiting.pop_front();
    m_sent.emplace(m_lastInvokeId, OnTheWay{call.ticket, call.deadline, false, call.leavesPlace});
    return Sent{call.ticket, m_lastInvokeId};
}

std::optional<CallTable::Ticket> CallTable::answered(std::uint32_t invokeId)
{
    const auto found = m_sent.find(invokeId);
    if (found == m_sent.end()) {
        const std::uint32_t largestUsed = m_hasWrapped ? largestInvokeId : m_lastInvokeId;
        ++(invokeId != 0 && invokeId <= largestUsed ? m_counters.late : m_counters.unknown);
        return std::nullopt;
    }
    const OnTheWay call = found->second;
    m_sent.erase(found);
    if (!call.givenUp)
        return call.ticket;
    ++m_counters.late;
    return std::nullopt;
}

std::optional<std::uint32_t> CallTable::invokeIdOf(Ticket ticket) const
{
    for (const auto &[invokeId, call] : m_sent) {
        if (call.ticket == ticket && !call.givenUp)
            return invokeId;
    }
    return std::nullopt;
}

std::optional<std::uint32_t> CallTable::placeOf(Ticket ticket) const
{
    for (const auto &[invokeId, call] : m_sent) {
        if (call.ticket == ticket)
            return invokeId;
    }
    return std::nullopt;
}

void CallTable::forget(std::uint32_t invokeId)
{
    const auto found = m_sent.find(invokeId);
    if (found != m_sent.end() && found->second.givenUp)
        m_sent.erase(found);
}

bool CallTable::cancel(Ticket ticket, Clock::time_point now)
{
    const auto waiting = std::ranges::find(m_waiting, ticket, &Waiting::ticket);
    if (waiting != m_waiting.end()) {
        m_waiting.erase(waiting);
        return true;
    }
    const auto invokeId = invokeIdOf(ticket);
    if (!invokeId)
        return false;
    OnTheWay &call = m_sent.at(*invokeId);
    call.givenUp = true;
    call.deadline = call.leavesPlace ? now : now + m_grace;
    return true;
}

std::vector<CallTable::Ticket> CallTable::expire(Clock::time_point now)
{
    std::vector<Ticket> result;
    std::erase_if(m_sent, [now](const auto &entry) {
        return entry.second.givenUp && entry.second.deadline <= now;
    });
    for (auto &[invokeId, call] : m_sent) {
        if (call.givenUp || call.deadline > now)
            continue;
        result.push_back(call.ticket);
        call.givenUp = true;
        call.deadline = call.leavesPlace ? now : now + m_grace;
    }
    std::erase_if(m_waiting, [now, &result](const Waiting &call) {
        if (call.deadline > now)
            return false;
        result.push_back(call.ticket);
        return true;
    });
    std::ranges::sort(result);
    return result;
}

std::optional<CallTable::Clock::time_point> CallTable::nextDeadline() const
{
    std::optional<Clock::time_point> result;
    const auto consider = [&result](Clock::time_point deadline) {
        if (!result || deadline < *result)
            result = deadline;
    };
    for (const auto &[invokeId, call] : m_sent)
        consider(call.deadline);
    for (const Waiting &call : m_waiting)
        consider(call.deadline);
    return result;
}

std::vector<CallTable::Ticket> CallTable::clear()
{
    std::vector<Ticket> result;
    for (const auto &[invokeId, call] : m_sent) {
        if (!call.givenUp)
            result.push_back(call.ticket);
    }
    for (const Waiting &call : m_waiting)
        result.push_back(call.ticket);
    m_sent.clear();
    m_waiting.clear();
    std::ranges::sort(result);
    return result;
}

} // namespace mms
