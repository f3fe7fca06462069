// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/ber.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace osi {

/// Octets that are owned, where Bytes are somebody else's.
using Octets = std::vector<std::uint8_t>;

/// Length of the header in front of every packet (RFC 1006, section 6).
inline constexpr std::size_t tpktHeaderSize = 4;
/// Longest content of a packet; the length field counts the header as well.
inline constexpr std::size_t maxTpktPayload = 65535 - tpktHeaderSize;

/// Append one packet to @p out; false, with @p out unchanged, when @p payload is empty or longer
/// than maxTpktPayload.
bool appendTpkt(Octets &out, Bytes payload);

/// Cuts a stream of octets into packets (RFC 1006). Not thread-safe.
///
/// After an error the stream has lost its frame: next() repeats the error from then on.
class TpktReader
{
public:
    /// Add octets as they came from the network, in portions of any size.
    void append(Bytes octets);

    /// The content of the next whole packet, or no value while one is incomplete. The view lives
    /// until the next call of append().
    Result<std::optional<Bytes>> next();

    /// Octets received that belong to no packet returned so far.
    std::size_t pending() const { return m_buffer.size() - m_begin; }

private:
    Octets m_buffer;
    std::size_t m_begin = 0;
};

} // namespace osi
