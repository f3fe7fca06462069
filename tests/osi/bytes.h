// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wiretest {

/// Octets of hexadecimal text; blanks count for nothing.
inline std::vector<std::uint8_t> fromHex(std::string_view text)
{
    std::vector<std::uint8_t> result;
    int high = -1;
    for (const char c : text) {
        int digit = -1;
        if (c >= '0' && c <= '9')
            digit = c - '0';
        else if (c >= 'a' && c <= 'f')
            digit = c - 'a' + 10;
        else
            continue;
        if (high < 0) {
            high = digit;
        } else {
            result.push_back(static_cast<std::uint8_t>(high * 16 + digit));
            high = -1;
        }
    }
    return result;
}

/// Octets as hexadecimal text without blanks.
template <typename Octets>
std::string toHex(const Octets &octets)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string result;
    for (const std::uint8_t octet : octets) {
        result += digits[octet >> 4];
        result += digits[octet & 15];
    }
    return result;
}

/// Hexadecimal text without its blanks.
inline std::string packed(std::string_view text)
{
    return toHex(fromHex(text));
}

} // namespace wiretest
