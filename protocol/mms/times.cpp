// SPDX-License-Identifier: Apache-2.0
#include "mms/times.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>

namespace mms {

namespace {

using namespace std::chrono;

using Moment = sys_time<nanoseconds>;

constexpr std::uint32_t millisecondsPerDay = 86400000;
constexpr sys_days binaryTimeEpoch = year(1984) / January / day(1);

constexpr std::uint8_t accuracyBits = 0x1F;
constexpr std::string_view accuracyWord = "accuracy-";

struct ClockFlag
{
    std::uint8_t bit;
    std::string_view word;
};
constexpr std::array<ClockFlag, 3> clockFlags = {
    {{0x80, "leap-seconds-known"}, {0x40, "clock-failure"}, {0x20, "clock-not-synchronized"}}};

template <typename... Arguments>
std::string printed(const char *format, Arguments... arguments)
{
    char buffer[64];
    const int size = std::snprintf(buffer, sizeof buffer, format, arguments...);
    return std::string(buffer, static_cast<std::size_t>(std::max(size, 0)));
}

std::string dateText(sys_days moment)
{
    const year_month_day date(moment);
    return printed("%04d-%02u-%02u", static_cast<int>(date.year()),
                   static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
}

/// @param digits of the fraction
template <typename Duration>
std::string clockText(Duration sinceMidnight, int digits)
{
    const hh_mm_ss<Duration> clock(sinceMidnight);
    return printed("%02d:%02d:%02d.%0*lld", static_cast<int>(clock.hours().count()),
                   static_cast<int>(clock.minutes().count()),
                   static_cast<int>(clock.seconds().count()), digits,
                   static_cast<long long>(clock.subseconds().count()));
}

/// Goes through a text; everything that it takes must be there.
class Scanner
{
public:
    explicit Scanner(std::string_view text)
        : m_rest(text)
    {
    }

    bool isAtEnd() const { return m_rest.empty(); }

    bool take(std::string_view expected)
    {
        if (!m_rest.starts_with(expected))
            return false;
        m_rest.remove_prefix(expected.size());
        return true;
    }

    /// A number of exactly so many digits.
    bool number(std::size_t digits, unsigned &value)
    {
        if (m_rest.size() < digits ||
            !std::all_of(m_rest.begin(), m_rest.begin() + digits, isDigit))
            return false;
        value = 0;
        for (const char c : m_rest.substr(0, digits))
            value = value * 10 + static_cast<unsigned>(c - '0');
        m_rest.remove_prefix(digits);
        return true;
    }

    /// Digits behind a point, as many as there are; at least one.
    bool fraction(nanoseconds &value)
    {
        std::size_t count = 0;
        std::int64_t result = 0;
        constexpr std::size_t kept = 9;
        for (; count < m_rest.size() && isDigit(m_rest[count]); ++count) {
            if (count < kept)
                result = result * 10 + (m_rest[count] - '0');
        }
        for (std::size_t i = count; i < kept; ++i)
            result *= 10;
        m_rest.remove_prefix(count);
        value = nanoseconds(result);
        return count > 0;
    }

private:
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }

    std::string_view m_rest;
};

bool takeDate(Scanner &scanner, sys_days &date)
{
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    if (!scanner.number(4, year) || !scanner.take("-") || !scanner.number(2, month) ||
        !scanner.take("-") || !scanner.number(2, day))
        return false;
    const auto result = std::chrono::year(static_cast<int>(year)) / std::chrono::month(month) /
                        std::chrono::day(day);
    date = result.ok() ? sys_days(result) : sys_days();
    return result.ok();
}

/// "05:06:07" with or without a fraction.
bool takeClock(Scanner &scanner, nanoseconds &sinceMidnight)
{
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;
    if (!scanner.number(2, hour) || !scanner.take(":") || !scanner.number(2, minute) ||
        !scanner.take(":") || !scanner.number(2, second) || hour > 23 || minute > 59 || second > 59)
        return false;
    nanoseconds fraction{0};
    if (scanner.take(".") && !scanner.fraction(fraction))
        return false;
    sinceMidnight = hours(hour) + minutes(minute) + seconds(second) + fraction;
    return true;
}

/// "Z", "+01:00" or nothing.
bool takeZone(Scanner &scanner, minutes &offset)
{
    offset = minutes(0);
    if (scanner.take("Z"))
        return true;
    const bool isEast = scanner.take("+");
    if (!isEast && !scanner.take("-"))
        return true;
    unsigned hour = 0;
    unsigned minute = 0;
    if (!scanner.number(2, hour) || !scanner.take(":") || !scanner.number(2, minute) || hour > 23 ||
        minute > 59)
        return false;
    offset = hours(hour) + minutes(minute);
    if (!isEast)
        offset = -offset;
    return true;
}

bool takeMoment(Scanner &scanner, Moment &moment)
{
    sys_days date;
    nanoseconds sinceMidnight{0};
    minutes offset{0};
    if (!takeDate(scanner, date) || !scanner.take("T") || !takeClock(scanner, sinceMidnight) ||
        !takeZone(scanner, offset))
        return false;
    // The years beyond what 64 bits count in nanoseconds fit no time of a device either.
    if (date < binaryTimeEpoch - years(20) || date > binaryTimeEpoch + years(200))
        return false;
    moment = Moment(date) + sinceMidnight - offset;
    return true;
}

bool takeAccuracy(Scanner &scanner, std::uint8_t &accuracy)
{
    unsigned number = 0;
    if (!scanner.number(2, number) && !scanner.number(1, number))
        return false;
    accuracy = static_cast<std::uint8_t>(number);
    return number <= accuracyBits;
}

/// The words behind the time, each at most once.
bool takeQuality(Scanner &scanner, std::uint8_t &quality)
{
    quality = 0;
    std::optional<std::uint8_t> accuracy;
    while (scanner.take(" ")) {
        if (!accuracy && scanner.take(accuracyWord)) {
            if (!takeAccuracy(scanner, accuracy.emplace()))
                return false;
            continue;
        }
        const auto flag =
            std::find_if(clockFlags.begin(), clockFlags.end(), [&](const ClockFlag &each) {
                return (quality & each.bit) == 0 && scanner.take(each.word);
            });
        if (flag == clockFlags.end())
            return false;
        quality = static_cast<std::uint8_t>(quality | flag->bit);
    }
    quality = static_cast<std::uint8_t>(quality | accuracy.value_or(millisecondAccuracy));
    return true;
}

} // namespace

std::optional<UtcTime> utcTimeAt(Moment moment, std::uint8_t quality)
{
    auto whole = floor<seconds>(moment);
    constexpr std::uint64_t perSecond = 1000000000;
    const auto rest = static_cast<std::uint64_t>((moment - whole).count());
    auto fraction = ((rest << 24U) + perSecond / 2) / perSecond;
    if (fraction >> 24U != 0) {
        fraction = 0;
        whole += seconds(1);
    }
    const auto count = whole.time_since_epoch().count();
    if (count < 0 || count > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return UtcTime{static_cast<std::uint32_t>(count), static_cast<std::uint32_t>(fraction),
                   quality};
}

bool isTimeOfDay(const BinaryTime &time)
{
    return time.milliseconds < millisecondsPerDay;
}

std::string toText(const UtcTime &time)
{
    const auto moment = momentOf<microseconds>(time);
    const auto date = floor<days>(moment);
    std::string result = dateText(date) + 'T' + clockText(moment - date, 6) + 'Z';
    for (const ClockFlag &flag : clockFlags) {
        if ((time.quality & flag.bit) != 0)
            result.append(1, ' ').append(flag.word);
    }
    const unsigned accuracy = time.quality & accuracyBits;
    if (accuracy != millisecondAccuracy)
        result.append(1, ' ').append(accuracyWord).append(std::to_string(accuracy));
    return result;
}

std::string toText(const BinaryTime &time)
{
    std::string date;
    if (time.days)
        date = dateText(binaryTimeEpoch + days(*time.days));
    if (!isTimeOfDay(time)) {
        return date + (time.days ? " " : "") + "without a time of day (" +
               std::to_string(time.milliseconds) + " ms)";
    }
    const std::string clock = clockText(milliseconds(time.milliseconds), 3);
    return time.days ? date + 'T' + clock + 'Z' : clock;
}

std::optional<UtcTime> utcTimeFrom(std::string_view text)
{
    Scanner scanner(text);
    Moment moment;
    std::uint8_t quality = 0;
    if (!takeMoment(scanner, moment) || !takeQuality(scanner, quality) || !scanner.isAtEnd())
        return std::nullopt;
    return utcTimeAt(moment, quality);
}

std::optional<BinaryTime> binaryTimeFrom(std::string_view text)
{
    BinaryTime result;
    Scanner scanner(text);
    nanoseconds sinceMidnight{0};
    if (takeClock(scanner, sinceMidnight) && scanner.isAtEnd()) {
        result.milliseconds =
            static_cast<std::uint32_t>(round<milliseconds>(sinceMidnight).count());
        return isTimeOfDay(result) ? std::optional(result) : std::nullopt;
    }
    scanner = Scanner(text);
    Moment moment;
    if (!takeMoment(scanner, moment) || !scanner.isAtEnd())
        return std::nullopt;
    const auto nearest = round<milliseconds>(moment);
    const auto date = floor<days>(nearest);
    const auto count = (date - binaryTimeEpoch).count();
    if (count < 0 || count > std::numeric_limits<std::uint16_t>::max())
        return std::nullopt;
    result.milliseconds = static_cast<std::uint32_t>((nearest - date).count());
    result.days = static_cast<std::uint16_t>(count);
    return result;
}

} // namespace mms
