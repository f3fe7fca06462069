// SPDX-License-Identifier: Apache-2.0
#include "osi/tpkt.h"

#include <string>

namespace osi {

namespace {

constexpr std::uint8_t version = 3;

} // namespace

bool appendTpkt(Octets &out, Bytes payload)
{
    if (payload.empty() || payload.size() > maxTpktPayload)
        return false;
    const std::size_t length = payload.size() + tpktHeaderSize;
    out.insert(out.end(), {version, 0, static_cast<std::uint8_t>(length >> 8),
                           static_cast<std::uint8_t>(length & 0xff)});
    out.insert(out.end(), payload.begin(), payload.end());
    return true;
}

void TpktReader::append(Bytes octets)
{
    if (m_begin > 0) {
        m_buffer.erase(m_buffer.begin(), m_buffer.begin() + static_cast<std::ptrdiff_t>(m_begin));
        m_begin = 0;
    }
    m_buffer.insert(m_buffer.end(), octets.begin(), octets.end());
}

Result<std::optional<Bytes>> TpktReader::next()
{
    const Bytes rest = Bytes(m_buffer).subspan(m_begin);
    if (!rest.empty() && rest[0] != version) {
        return Error{
            say("The peer does not speak ISO transport over TCP: a packet begins with %1 instead of 3.",
                rest[0]),
            0};
    }
    if (rest.size() < tpktHeaderSize)
        return std::optional<Bytes>();
    const std::size_t length = static_cast<std::size_t>(rest[2]) << 8 | rest[3];
    if (length <= tpktHeaderSize)
        return Error{
            say("A transport packet says that it is %1 octets long, which leaves no room for its content.",
                length),
            2};
    if (rest.size() < length)
        return std::optional<Bytes>();
    m_begin += length;
    return std::optional<Bytes>(rest.subspan(tpktHeaderSize, length - tpktHeaderSize));
}

} // namespace osi
