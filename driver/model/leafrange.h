// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

/// Consecutive leaves of a device's model. Leaves are numbered in the order of the types, so that
/// all below any structure are consecutive.
struct LeafRange
{
    std::uint32_t first = 0;
    std::uint32_t count = 0;

    std::uint32_t end() const { return first + count; }
    friend bool operator==(const LeafRange &, const LeafRange &) = default;
};
