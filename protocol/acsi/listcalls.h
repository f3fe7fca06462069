// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/association.h"

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace acsi {

/// Some variables of a list that are asked for together.
struct ListRange
{
    std::size_t first = 0;
    std::size_t count = 0;
};

/// Octets that a PDU takes with all its lengths at their longest.
std::size_t longestSize(mms::RequestService request);

/// A list of things of these @p sizes in as few ranges as fit @p room; what fits nowhere stands
/// alone.
std::deque<ListRange> listRanges(const std::vector<std::size_t> &sizes, std::size_t room);

/// Nothing more can be expected of the association or of this peer's service.
bool endsAll(const mms::CallOutcome &outcome);

/// The error of a single variable that could not be asked for.
mms::DataAccessError accessErrorOf(const mms::CallOutcome &outcome);

/// One sentence why there is no answer that fits the question.
mms::Text whyNot(const mms::CallOutcome &outcome);

/// A long list on its way in several calls: gives ranges to ask for, takes what became of them.
class ListCalls
{
public:
    ListCalls(std::deque<ListRange> waiting, std::size_t size)
        : m_waiting(std::move(waiting))
        , m_size(size)
    {
    }

    bool idle() const { return m_waiting.empty(); }
    ListRange next()
    {
        const ListRange range = m_waiting.front();
        m_waiting.pop_front();
        return range;
    }
    /// The range was refused as a whole; it is asked for in halves. True when it is of only one.
    bool refused(const ListRange &range)
    {
        if (range.count > 1) {
            const std::size_t half = range.count / 2;
            m_waiting.push_front({range.first + half, range.count - half});
            m_waiting.push_front({range.first, half});
            return false;
        }
        ++m_refused;
        return true;
    }
    /// Not a single one could be asked for.
    bool hasFailed() const { return m_refused > 0 && m_refused >= m_size; }

private:
    std::deque<ListRange> m_waiting;
    std::size_t m_size;
    std::size_t m_refused = 0;
};

template <typename T>
std::vector<T> listPart(const std::vector<T> &list, const ListRange &range)
{
    const auto first = list.begin() + static_cast<std::ptrdiff_t>(range.first);
    return std::vector<T>(first, first + static_cast<std::ptrdiff_t>(range.count));
}

} // namespace acsi
