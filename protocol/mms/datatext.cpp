// SPDX-License-Identifier: Apache-2.0
#include "mms/datatext.h"

#include "mms/codec.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace mms {

namespace {

template <typename... Arguments>
std::string printed(const char *format, Arguments... arguments)
{
    char buffer[64];
    const int size = std::snprintf(buffer, sizeof buffer, format, arguments...);
    return std::string(buffer, static_cast<std::size_t>(std::max(size, 0)));
}

std::string hexText(Bytes octets)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string result;
    result.reserve(octets.size() * 2);
    for (const std::uint8_t octet : octets) {
        result += digits[octet >> 4];
        result += digits[octet & 15U];
    }
    return result;
}

template <typename Number>
std::string shortest(Number number)
{
    char buffer[64];
    const auto [end, failure] = std::to_chars(buffer, buffer + sizeof buffer, number);
    return failure == std::errc() ? std::string(buffer, end) : std::string();
}

} // namespace

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        const auto octet = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            result += '\\';
            result += c;
        } else if (octet < 0x20 || octet >= 0x7F) {
            result += printed("\\x%02x", static_cast<unsigned>(octet));
        } else {
            result += c;
        }
    }
    return result + '"';
}

std::string toText(const Data &data)
{
    switch (data.kind()) {
    case Data::Kind::Array:
    case Data::Kind::Structure: {
        const bool isArray = data.kind() == Data::Kind::Array;
        std::string result(1, isArray ? '[' : '{');
        for (const Data &child : data.children()) {
            if (result.size() > 1)
                result += ", ";
            result += toText(child);
        }
        return result + (isArray ? ']' : '}');
    }
    case Data::Kind::Boolean:
        return *data.toBoolean() ? "true" : "false";
    case Data::Kind::Integer:
        return std::to_string(*data.toInteger());
    case Data::Kind::Unsigned:
    case Data::Kind::Bcd:
        return std::to_string(*data.toUnsigned());
    case Data::Kind::FloatingPoint:
        return data.isDouble() ? shortest(*data.toDouble())
                               : shortest(static_cast<float>(*data.toDouble()));
    case Data::Kind::BitString:
    case Data::Kind::BooleanArray:
        return '\'' + data.bits().toText() + "'B";
    case Data::Kind::OctetString:
        return '\'' + hexText(data.octets()) + "'H";
    case Data::Kind::VisibleString:
    case Data::Kind::MmsString:
    case Data::Kind::GeneralizedTime:
        return quoted(data.text());
    case Data::Kind::BinaryTime:
        return toText(*data.toBinaryTime());
    case Data::Kind::UtcTime:
        return toText(*data.toUtcTime());
    case Data::Kind::ObjectIdentifier: {
        std::string result;
        const std::vector<std::uint32_t> numbers = data.toObjectIdentifier();
        if (numbers.empty())
            return '\'' + hexText(data.octets()) + "'H";
        for (const std::uint32_t number : numbers)
            result.append(result.empty() ? "" : ".").append(std::to_string(number));
        return result;
    }
    }
    return {};
}

std::string toText(const AccessResult &result)
{
    return result.ok() ? toText(result.data())
                       : "failure: " + codec::withoutFullStop(describe(result.error()));
}

} // namespace mms
