// SPDX-License-Identifier: Apache-2.0
#include "event.h"

namespace Tavrix {

Event::Event(std::string_view key, std::size_t records, std::size_t bytes)
    : m_key(key)
{
    m_ends.reserve(records);
    m_bytes.reserve(bytes);
}

void Event::append(std::string_view record)
{
    m_bytes.append(record);
    m_ends.push_back(static_cast<std::uint32_t>(m_bytes.size()));
}

std::string_view Event::record(std::size_t index) const
{
    const std::size_t begin = index == 0 ? 0 : m_ends[index - 1];
    return std::string_view(m_bytes).substr(begin, m_ends[index] - begin);
}

std::size_t Event::cost() const
{
    return sizeof(Event) + m_key.size() + m_bytes.size() + m_ends.size() * sizeof(m_ends[0]);
}

} // namespace Tavrix
