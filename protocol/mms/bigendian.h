// SPDX-License-Identifier: Apache-2.0
// Shared by the sources of values; not for the folder's users.
#pragma once

#include "mms/vocabulary.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace mms {

/// The number that up to 8 octets are, the highest first.
inline std::uint64_t bigEndian(Bytes octets)
{
    std::uint64_t value = 0;
    for (const std::uint8_t octet : octets)
        value = value << 8 | octet;
    return value;
}

/// The lowest @a size octets of @a value, highest first.
inline std::array<std::uint8_t, 8> bigEndian(std::uint64_t value, std::size_t size)
{
    std::array<std::uint8_t, 8> result{};
    for (std::size_t i = size; i-- > 0; value >>= 8)
        result[i] = static_cast<std::uint8_t>(value & 0xFFU);
    return result;
}

} // namespace mms
