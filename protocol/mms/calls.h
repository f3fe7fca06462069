// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <vector>

namespace mms {

/// Which calls of a client wait, are on the way or have been given up: a plain object that is told
/// the time. Not thread-safe.
///
/// At most a limit of calls is on the way at once; the others wait in order. A call that was given
/// up after it was sent keeps its place until its answer comes or its grace is over, because the
/// peer still works on it.
class CallTable
{
public:
    using Clock = std::chrono::steady_clock;
    using Ticket = std::uint64_t;

    struct Sent
    {
        Ticket ticket = 0;
        std::uint32_t invokeId = 0;
    };

    struct Counters
    {
        std::uint64_t late = 0;    ///< answers to calls that had been given up
        std::uint64_t unknown = 0; ///< answers to invoke ids that nobody used
    };

    /// The first invoke id is the one behind @p lastInvokeId.
    explicit CallTable(std::size_t limit, std::chrono::milliseconds grace,
                       std::uint32_t lastInvokeId = 0);

    void setLimit(std::size_t limit);
    /// A new call, behind those that wait. One that @p leavesPlace has none any more once it is
    /// given up.
    Ticket add(Clock::time_point deadline, bool leavesPlace = false);
    /// The next call to be sent, with a new invoke id; none when none waits or the limit is
    /// reached.
    std::optional<Sent> next();
    /// An answer came: the call it belongs to, which is over now; none for a late or unknown
    /// answer.
    std::optional<Ticket> answered(std::uint32_t invokeId);
    /// The invoke id of a call that is on the way.
    std::optional<std::uint32_t> invokeIdOf(Ticket ticket) const;
    /// The invoke id of a call that was sent and is not answered, given up or not.
    std::optional<std::uint32_t> placeOf(Ticket ticket) const;
    /// The peer does not work on a call any more: when it was given up, its place is free.
    void forget(std::uint32_t invokeId);
    /// Give up a call; false when it is over already.
    bool cancel(Ticket ticket, Clock::time_point now);
    /// The calls whose deadline has passed, oldest first. They are over now.
    std::vector<Ticket> expire(Clock::time_point now);
    /// When expire() is to be called next.
    std::optional<Clock::time_point> nextDeadline() const;
    /// All calls that are not over, oldest first. They are over now.
    std::vector<Ticket> clear();

    std::size_t onTheWay() const { return m_sent.size(); }
    std::size_t waiting() const { return m_waiting.size(); }
    const Counters &counters() const { return m_counters; }

private:
    struct Waiting
    {
        Ticket ticket;
        Clock::time_point deadline;
        bool leavesPlace;
    };
    struct OnTheWay
    {
        Ticket ticket;
        Clock::time_point deadline;
        bool givenUp;
        bool leavesPlace;
    };

    std::size_t m_limit;
    std::chrono::milliseconds m_grace;
    Ticket m_lastTicket = 0;
    std::uint32_t m_lastInvokeId;
    bool m_hasWrapped = false;
    std::deque<Waiting> m_waiting;
    std::map<std::uint32_t, OnTheWay> m_sent;
    Counters m_counters;
};

} // namespace mms
