// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>

/// Whether a transfer gets on: each single request has its own time-out, but a device that hands a
/// file out in drops would keep a caller for as long as it likes. The slowest lines that are in use
/// carry ten times as much.
class TransferPace
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr std::chrono::seconds grace{60};
    static constexpr std::uint64_t leastOctetsPerSecond = 100;

    explicit TransferPace(Time begin)
        : m_begin(begin)
    {
    }

    bool isTooSlow(Time now, std::uint64_t octets) const
    {
        const auto time = std::chrono::floor<std::chrono::seconds>(now - m_begin);
        return time > grace &&
               octets < static_cast<std::uint64_t>(time.count()) * leastOctetsPerSecond;
    }

private:
    Time m_begin;
};
