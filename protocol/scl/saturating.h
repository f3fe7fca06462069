// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <limits>

namespace scl {

/// Largest number, which stands for itself and everything above.
constexpr std::uint64_t saturated = std::numeric_limits<std::uint64_t>::max();

constexpr std::uint64_t saturatingAdd(std::uint64_t left, std::uint64_t right)
{
    return left > saturated - right ? saturated : left + right;
}

constexpr std::uint64_t saturatingMultiply(std::uint64_t left, std::uint64_t right)
{
    return right != 0 && left > saturated / right ? saturated : left * right;
}

} // namespace scl
