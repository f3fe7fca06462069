// SPDX-License-Identifier: Apache-2.0
#include "scl/value.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>

namespace scl {
namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::string_view kept(std::string_view text, std::pmr::memory_resource &memory)
{
    if (text.empty())
        return {};
    auto *copy = static_cast<char *>(memory.allocate(text.size(), 1));
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
}

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

template <typename Number>
bool toNumber(std::string_view text, Number &number)
{
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return false;
    }
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && !text.empty();
}

bool isText(BasicType type)
{
    switch (type) {
    case BasicType::VisString:
    case BasicType::Unicode:
    case BasicType::ObjRef:
    case BasicType::Currency:
    case BasicType::Octet:
    case BasicType::EntryId:
    case BasicType::PhyComAddr:
    case BasicType::EntryTime:
    case BasicType::Other:
        return true;
    default:
        return false;
    }
}

ParsedValue parseBoolean(std::string_view text)
{
    if (text == "true")
        return {true, ValueNote::None};
    if (text == "false")
        return {false, ValueNote::None};
    if (text == "1" || equalIgnoringCase(text, "true") || equalIgnoringCase(text, "on"))
        return {true, ValueNote::BooleanSpelling};
    if (text == "0" || equalIgnoringCase(text, "false") || equalIgnoringCase(text, "off"))
        return {false, ValueNote::BooleanSpelling};
    return {{}, ValueNote::Unfit};
}

ParsedValue parseSigned(std::string_view text, int bits)
{
    std::int64_t number = 0;
    if (!toNumber(text, number))
        return {{}, ValueNote::Unfit};
    const std::int64_t largest = std::numeric_limits<std::int64_t>::max() >> (64 - bits);
    if (number > largest || number < -largest - 1)
        return {{}, ValueNote::Unfit};
    return {number, ValueNote::None};
}

ParsedValue parseUnsigned(std::string_view text, int bits)
{
    std::uint64_t number = 0;
    if (!toNumber(text, number))
        return {{}, ValueNote::Unfit};
    if (number > std::numeric_limits<std::uint64_t>::max() >> (64 - bits))
        return {{}, ValueNote::Unfit};
    return {number, ValueNote::None};
}

ParsedValue parseReal(std::string_view text, bool single)
{
    double number = 0;
    if (!toNumber(text, number))
        return {{}, ValueNote::Unfit};
    if (single && std::isfinite(number) &&
        std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max()))
        return {{}, ValueNote::Unfit};
    return {number, ValueNote::None};
}

struct CodedText
{
    std::string_view text;
    int ordinal;
};

constexpr std::array dbposTexts = {CodedText{"intermediate", 0},
                                   CodedText{"off", 1},
                                   CodedText{"on", 2},
                                   CodedText{"bad", 3},
                                   CodedText{"intermediate-state", 0},
                                   CodedText{"bad-state", 3},
                                   CodedText{"00", 0},
                                   CodedText{"01", 1},
                                   CodedText{"10", 2},
                                   CodedText{"11", 3}};
constexpr std::array tcmdTexts = {
    CodedText{"stop", 0}, CodedText{"lower", 1}, CodedText{"higher", 2}, CodedText{"reserved", 3},
    CodedText{"00", 0},   CodedText{"01", 1},    CodedText{"10", 2},     CodedText{"11", 3}};
constexpr std::array checkTexts = {
    CodedText{"none", 0},      CodedText{"no-check", 0},     CodedText{"interlock-check", 1},
    CodedText{"interlock", 1}, CodedText{"synchrocheck", 2}, CodedText{"both", 3},
    CodedText{"00", 0},        CodedText{"01", 1},           CodedText{"10", 2},
    CodedText{"11", 3}};

std::span<const CodedText> codedTexts(BasicType type)
{
    switch (type) {
    case BasicType::Dbpos:
        return dbposTexts;
    case BasicType::Tcmd:
        return tcmdTexts;
    case BasicType::Check:
        return checkTexts;
    default:
        return {};
    }
}

ParsedValue parseOrdinal(BasicType type, const Enumeration *enumeration, std::string_view text)
{
    const std::string_view bare = trimmed(text);
    if (enumeration) {
        for (const EnumLiteral &literal : enumeration->literals) {
            if (literal.text == text)
                return {std::int64_t{literal.ordinal}, ValueNote::None};
        }
        for (const EnumLiteral &literal : enumeration->literals) {
            if (equalIgnoringCase(trimmed(literal.text), bare))
                return {std::int64_t{literal.ordinal}, ValueNote::Blanks};
        }
    }
    for (const CodedText &coded : codedTexts(type)) {
        if (equalIgnoringCase(coded.text, bare)) {
            return {std::int64_t{coded.ordinal},
                    coded.text == text ? ValueNote::None : ValueNote::Blanks};
        }
    }
    std::int32_t ordinal = 0;
    if (!toNumber(bare, ordinal))
        return {{}, ValueNote::Unfit};
    bool known = type == BasicType::Enum ? !enumeration : ordinal >= 0 && ordinal <= 3;
    if (enumeration) {
        for (const EnumLiteral &literal : enumeration->literals)
            known = known || literal.ordinal == ordinal;
    }
    if (!known)
        return {{}, ValueNote::Unfit};
    return {std::int64_t{ordinal}, ValueNote::OrdinalForText};
}

ParsedValue parseBits(std::string_view text, std::size_t exactly)
{
    if (text.find_first_not_of("01") != std::string_view::npos ||
        (exactly != 0 && text.size() != exactly))
        return {{}, ValueNote::Unfit};
    return {text, ValueNote::None};
}

ParsedValue parseOctets(std::string_view text)
{
    if (text.size() % 2 != 0 ||
        text.find_first_not_of("0123456789abcdefABCDEF") != std::string_view::npos)
        return {{}, ValueNote::Unfit};
    return {text, ValueNote::None};
}

class Cursor
{
public:
    explicit Cursor(std::string_view text)
        : m_text(text)
    {
    }

    bool number(std::size_t digits, int &result)
    {
        if (m_text.size() < digits)
            return false;
        result = 0;
        for (std::size_t i = 0; i < digits; ++i) {
            if (m_text[i] < '0' || m_text[i] > '9')
                return false;
            result = result * 10 + (m_text[i] - '0');
        }
        m_text.remove_prefix(digits);
        return true;
    }

    bool literal(char c)
    {
        if (!m_text.starts_with(c))
            return false;
        m_text.remove_prefix(1);
        return true;
    }

    std::string_view digits()
    {
        std::size_t count = 0;
        while (count < m_text.size() && m_text[count] >= '0' && m_text[count] <= '9')
            ++count;
        const std::string_view result = m_text.substr(0, count);
        m_text.remove_prefix(count);
        return result;
    }

    bool atEnd() const { return m_text.empty(); }

private:
    std::string_view m_text;
};

ParsedValue parseTimestamp(std::string_view text, std::pmr::memory_resource &memory)
{
    constexpr ParsedValue unfit{{}, ValueNote::Unfit};
    Cursor cursor(text);
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (!cursor.number(4, year) || !cursor.literal('-') || !cursor.number(2, month) ||
        !cursor.literal('-') || !cursor.number(2, day))
        return unfit;
    std::string fraction = "000";
    int offset = 0;
    if (cursor.literal('T') || cursor.literal(' ')) {
        if (!cursor.number(2, hour) || !cursor.literal(':') || !cursor.number(2, minute) ||
            !cursor.literal(':') || !cursor.number(2, second))
            return unfit;
        if (cursor.literal('.') || cursor.literal(',')) {
            fraction = cursor.digits();
            if (fraction.empty() || fraction.size() > 9)
                return unfit;
            while (fraction.size() < 3)
                fraction += '0';
        }
        const bool ahead = cursor.literal('+');
        if (ahead || cursor.literal('-')) {
            int hours = 0;
            int minutes = 0;
            if (!cursor.number(2, hours))
                return unfit;
            cursor.literal(':');
            if (!cursor.number(2, minutes) || hours > 14 || minutes > 59)
                return unfit;
            offset = (hours * 60 + minutes) * (ahead ? -1 : 1);
        } else {
            cursor.literal('Z');
        }
    }
    const std::chrono::year_month_day date{std::chrono::year{year},
                                           std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    if (!cursor.atEnd() || !date.ok() || hour > 23 || minute > 59 || second > 59)
        return unfit;
    const std::chrono::sys_seconds moment = std::chrono::sys_days{date} + std::chrono::hours{hour} +
                                            std::chrono::minutes{minute + offset} +
                                            std::chrono::seconds{second};
    const auto days = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day utcDate{days};
    const std::chrono::hh_mm_ss time{moment - days};
    std::array<char, 64> buffer{};
    const int size =
        std::snprintf(buffer.data(), buffer.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%sZ",
                      static_cast<int>(utcDate.year()), static_cast<unsigned>(utcDate.month()),
                      static_cast<unsigned>(utcDate.day()), static_cast<int>(time.hours().count()),
                      static_cast<int>(time.minutes().count()),
                      static_cast<int>(time.seconds().count()), fraction.c_str());
    return {kept(std::string_view(buffer.data(), static_cast<std::size_t>(size)), memory),
            ValueNote::None};
}

ParsedValue parseBare(BasicType type, std::string_view text, std::pmr::memory_resource &memory)
{
    switch (type) {
    case BasicType::Boolean:
        return parseBoolean(text);
    case BasicType::Int8:
        return parseSigned(text, 8);
    case BasicType::Int16:
        return parseSigned(text, 16);
    case BasicType::Int24:
        return parseSigned(text, 24);
    case BasicType::Int32:
        return parseSigned(text, 32);
    case BasicType::Int64:
    case BasicType::Int128:
        return parseSigned(text, 64);
    case BasicType::Int8U:
        return parseUnsigned(text, 8);
    case BasicType::Int16U:
        return parseUnsigned(text, 16);
    case BasicType::Int24U:
        return parseUnsigned(text, 24);
    case BasicType::Int32U:
        return parseUnsigned(text, 32);
    case BasicType::Int64U:
        return parseUnsigned(text, 64);
    case BasicType::Float32:
        return parseReal(text, true);
    case BasicType::Float64:
        return parseReal(text, false);
    case BasicType::Quality:
        return parseBits(text, 13);
    case BasicType::TrgOps:
    case BasicType::OptFlds:
    case BasicType::SvOptFlds:
        return parseBits(text, 0);
    case BasicType::Timestamp:
        return parseTimestamp(text, memory);
    default:
        return {{}, ValueNote::Unfit};
    }
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool equalIgnoringCase(std::string_view left, std::string_view right)
{
    if (left.size() != right.size())
        return false;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (lower(left[i]) != lower(right[i]))
            return false;
    }
    return true;
}

ParsedValue parseValue(BasicType type, const Enumeration *enumeration, std::string_view text,
                       std::pmr::memory_resource &memory)
{
    if (isText(type)) {
        // Line ends come from the file's layout, blanks within a line from the person who wrote it.
        if (text.find('\n') != std::string_view::npos)
            text = trimmed(text);
        if ((type == BasicType::Octet || type == BasicType::EntryId) &&
            parseOctets(trimmed(text)).note == ValueNote::None)
            return {trimmed(text), ValueNote::None};
        if (type == BasicType::EntryId)
            return {{}, trimmed(text).empty() ? ValueNote::Empty : ValueNote::Unfit};
        return {text, ValueNote::None};
    }
    const std::string_view bare = trimmed(text);
    switch (type) {
    case BasicType::Enum:
    case BasicType::Dbpos:
    case BasicType::Tcmd:
    case BasicType::Check:
        if (bare.empty()) {
            // An empty literal is allowed for an enumeration ("SIUnit" has one).
            if (enumeration && type == BasicType::Enum) {
                for (const EnumLiteral &literal : enumeration->literals) {
                    if (trimmed(literal.text).empty())
                        return {std::int64_t{literal.ordinal}, ValueNote::None};
                }
            }
            return {{}, ValueNote::Empty};
        }
        return parseOrdinal(type, enumeration, text);
    default:
        break;
    }
    if (bare.empty())
        return {{}, ValueNote::Empty};
    ParsedValue parsed = parseBare(type, bare, memory);
    if (parsed.note == ValueNote::None && bare.size() != text.size())
        parsed.note = ValueNote::Blanks;
    return parsed;
}

} // namespace scl
