// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <memory_resource>
#include <string_view>

namespace sim {

/// A copy of a text that lives as long as what @p memory hands out.
inline std::string_view keep(std::pmr::memory_resource &memory, std::string_view text)
{
    if (text.empty())
        return {};
    auto *copy = static_cast<char *>(memory.allocate(text.size(), 1));
    std::ranges::copy(text, copy);
    return {copy, text.size()};
}

} // namespace sim
