// SPDX-License-Identifier: Apache-2.0
#include "osi/pcapng.h"

#include <string_view>

namespace osi::pcapng {

namespace {

constexpr std::uint32_t blockSection = 0x0a0d0d0a;
constexpr std::uint32_t blockInterface = 1;
constexpr std::uint32_t blockPacket = 6;
constexpr std::uint32_t byteOrder = 0x1a2b3c4d;
constexpr std::uint32_t linkTypeExportedPdu = 252;
constexpr std::uint16_t optionFlags = 2;
constexpr std::uint16_t optionTimeResolution = 9;
constexpr std::uint32_t inbound = 1;
constexpr std::uint32_t outbound = 2;
constexpr std::uint32_t nanoseconds = 9;
// Tag 12 names the dissector; tag 0 ends the tags. They are big-endian.
constexpr std::string_view dissector{"\0\x0c\0\x04mms\0\0\0\0\0", 12};

void put16(Octets &out, std::uint16_t value)
{
    out.push_back(static_cast<std::uint8_t>(value & 0xff));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}

void put32(Octets &out, std::uint32_t value)
{
    put16(out, static_cast<std::uint16_t>(value & 0xffff));
    put16(out, static_cast<std::uint16_t>(value >> 16));
}

void option(Octets &out, std::uint16_t code, std::uint16_t length, std::uint32_t value)
{
    put16(out, code);
    put16(out, length);
    put32(out, value);
    put32(out, 0);
}

void block(Octets &out, std::uint32_t type, const Octets &body)
{
    constexpr std::uint32_t frame = 12;
    const std::uint32_t length = static_cast<std::uint32_t>(body.size()) + frame;
    put32(out, type);
    put32(out, length);
    out.insert(out.end(), body.begin(), body.end());
    put32(out, length);
}

} // namespace

Octets fileHeader()
{
    Octets section;
    put32(section, byteOrder);
    put16(section, 1);
    put16(section, 0);
    put32(section, 0xffffffff);
    put32(section, 0xffffffff);
    Octets interface;
    put32(interface, linkTypeExportedPdu);
    put32(interface, 0);
    option(interface, optionTimeResolution, 1, nanoseconds);
    Octets out;
    block(out, blockSection, section);
    block(out, blockInterface, interface);
    return out;
}

Octets packet(Direction direction, std::chrono::system_clock::time_point time, Bytes pdu)
{
    const auto stamp = static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(time.time_since_epoch()).count());
    const auto length = static_cast<std::uint32_t>(dissector.size() + pdu.size());
    Octets body;
    put32(body, 0);
    put32(body, static_cast<std::uint32_t>(stamp >> 32));
    put32(body, static_cast<std::uint32_t>(stamp & 0xffffffff));
    put32(body, length);
    put32(body, length);
    body.insert(body.end(), dissector.begin(), dissector.end());
    body.insert(body.end(), pdu.begin(), pdu.end());
    while (body.size() % 4 != 0)
        body.push_back(0);
    option(body, optionFlags, 4, direction == Direction::Received ? inbound : outbound);
    Octets out;
    block(out, blockPacket, body);
    return out;
}

} // namespace osi::pcapng
