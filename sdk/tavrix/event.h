// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tavrix {

/// One posted event: records under a key, packed into one block of bytes. Shared, unchanged, by all
/// boxes that hold it.
class Event
{
public:
    /// @param records @param bytes what append() will bring in all
    Event(std::string_view key, std::size_t records, std::size_t bytes)
        : m_key(key)
    {
        m_ends.reserve(records);
        m_bytes.reserve(bytes);
    }

    void append(std::string_view record)
    {
        m_bytes.append(record);
        m_ends.push_back(static_cast<std::uint32_t>(m_bytes.size()));
    }

    const std::string &key() const { return m_key; }
    std::size_t recordCount() const { return m_ends.size(); }
    /// The bytes of a record as they were appended; valid as long as the event.
    std::string_view record(std::size_t index) const
    {
        const std::size_t begin = index == 0 ? 0 : m_ends[index - 1];
        return std::string_view(m_bytes).substr(begin, m_ends[index] - begin);
    }
    /// What the event takes of a box's bytes.
    std::size_t cost() const
    {
        return sizeof(Event) + m_key.size() + m_bytes.size() + m_ends.size() * sizeof(m_ends[0]);
    }

private:
    std::string m_key;
    std::string m_bytes;
    std::vector<std::uint32_t> m_ends;
};

} // namespace Tavrix
