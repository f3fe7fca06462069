// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mms {

/// A moment as utc-time carries it (IEC 61850-8-1, 8.1.3.7).
struct UtcTime
{
    /// Since 1970-01-01 00:00:00 UTC.
    std::uint32_t seconds = 0;
    /// Of a second, in units of 2^-24 s; 24 bits.
    std::uint32_t fraction = 0;
    /// Bit 7 leap seconds known, bit 6 clock failure, bit 5 clock not synchronized, bits 4 to 0
    /// accuracy in bits of the fraction.
    std::uint8_t quality = 0;

    friend bool operator==(const UtcTime &, const UtcTime &) = default;
};

/// A time of day, with or without a date (ISO 9506-2, TimeOfDay).
struct BinaryTime
{
    /// Since midnight.
    std::uint32_t milliseconds = 0;
    /// Since 1984-01-01.
    std::optional<std::uint16_t> days;

    friend bool operator==(const BinaryTime &, const BinaryTime &) = default;
};

/// The accuracy of a time to the millisecond (class T1), which texts do not mention.
constexpr std::uint8_t millisecondAccuracy = 10;

/// The nearest time that utc-time can carry; none before 1970 and after 2106.
std::optional<UtcTime> utcTimeAt(std::chrono::sys_time<std::chrono::nanoseconds> moment,
                                 std::uint8_t quality);
/// To the nearest unit of @a Duration: a fraction that came from one is that one again.
template <typename Duration>
std::chrono::sys_time<Duration> momentOf(const UtcTime &time)
{
    constexpr auto units = static_cast<std::uint64_t>(Duration::period::den);
    static_assert(Duration::period::num == 1);
    const std::uint64_t fraction = time.fraction & 0xFFFFFFU;
    return std::chrono::sys_time<Duration>(
        std::chrono::seconds(time.seconds) +
        Duration((fraction * units + (std::uint64_t{1} << 23U)) >> 24U));
}

/// Whether the milliseconds are within a day.
bool isTimeOfDay(const BinaryTime &time);

/// "2021-03-04T05:06:07.123456Z", to the nearest microsecond, with the clock flags behind it that
/// are set and, unless it is that of milliseconds, the accuracy: " clock-failure accuracy-7".
std::string toText(const UtcTime &time);
/// "2021-03-04T05:06:07.123Z", or "05:06:07.123" without a date.
std::string toText(const BinaryTime &time);

/// The inverse, to the nearest unit; without "Z" the time is UTC as well, and an offset such as
/// "+01:00" may stand in its place. None for a text that is not a time from its first to its last
/// character.
std::optional<UtcTime> utcTimeFrom(std::string_view text);
std::optional<BinaryTime> binaryTimeFrom(std::string_view text);

} // namespace mms
