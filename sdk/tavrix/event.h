// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tavrix {

/// One posted event: records under a key, packed into one block of bytes. Shared, unchanged, by all
/// boxes that hold it. The two numbers of the constructor are what append() will bring in all.
class Event
{
public:
    Event(std::string_view key, std::size_t records, std::size_t bytes);

    void append(std::string_view record);

    const std::string &key() const { return m_key; }
    std::size_t recordCount() const { return m_ends.size(); }
    /// The bytes of a record as they were appended; valid as long as the event.
    std::string_view record(std::size_t index) const;
    /// What the event takes of a box's bytes.
    std::size_t cost() const;

private:
    std::string m_key;
    std::string m_bytes;
    std::vector<std::uint32_t> m_ends;
};

} // namespace Tavrix
