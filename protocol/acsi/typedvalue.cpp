// SPDX-License-Identifier: Apache-2.0
#include "acsi/typedvalue.h"

#include "mms/datatext.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace acsi {

using wording::say;

namespace {

using mms::Data;
using mms::TypeDescription;
using Kind = TypeDescription::Kind;

mms::Error doesNotFit(const TypeDescription &type, const Data &value)
{
    return {say("The value %1 does not fit the type %2 of the device.", mms::toText(value),
                mms::toText(type)),
            0};
}

std::uint64_t lengthOf(const TypeDescription &type)
{
    return static_cast<std::uint64_t>(std::abs(static_cast<std::int64_t>(type.size)));
}

/// Bits are counted exactly where the size is not the negative of the greatest.
bool fitsBits(const TypeDescription &type, std::size_t bits)
{
    if (type.size == 0)
        return true;
    return type.size > 0 ? bits == lengthOf(type) : bits <= lengthOf(type);
}

bool fitsInteger(const TypeDescription &type, std::int64_t value)
{
    if (type.size <= 0 || type.size >= 64)
        return true;
    const std::int64_t limit = std::int64_t{1} << (type.size - 1);
    return value >= -limit && value < limit;
}

bool fitsUnsigned(const TypeDescription &type, std::uint64_t value)
{
    return type.size <= 0 || type.size >= 64 || value >> type.size == 0;
}

/// Exactly the whole number that @p number is.
std::optional<std::int64_t> wholeNumber(double number)
{
    constexpr double limit = 9223372036854775808.0;
    if (std::trunc(number) != number || number < -limit || number >= limit)
        return std::nullopt;
    return static_cast<std::int64_t>(number);
}

/// Booleans, and numbers without a fraction, as a signed number.
std::optional<std::int64_t> toSigned(const Data &value)
{
    if (const auto boolean = value.toBoolean())
        return *boolean ? 1 : 0;
    if (const auto number = value.toDouble())
        return wholeNumber(*number);
    return value.toInteger();
}

std::optional<std::uint64_t> toNatural(const Data &value)
{
    if (const auto number = value.toUnsigned())
        return number;
    const auto number = toSigned(value);
    if (!number || *number < 0)
        return std::nullopt;
    return static_cast<std::uint64_t>(*number);
}

std::optional<double> toReal(const Data &value)
{
    if (const auto number = value.toDouble())
        return number;
    if (const auto number = value.toUnsigned())
        return static_cast<double>(*number);
    if (const auto number = value.toInteger())
        return static_cast<double>(*number);
    if (const auto boolean = value.toBoolean())
        return *boolean ? 1.0 : 0.0;
    return std::nullopt;
}

std::optional<Data> toFloat(const TypeDescription &type, double number)
{
    if (type.size == 64)
        return Data::float64(number);
    const auto nearest = nearestFloat(number);
    return nearest ? std::optional(Data::float32(*nearest)) : std::nullopt;
}

std::optional<Data> toCodedEnum(const TypeDescription &type, std::uint64_t number)
{
    const std::size_t width = lengthOf(type);
    if (width == 0 || (width < 64 && number >> width != 0))
        return std::nullopt;
    mms::BitString bits(width);
    for (std::size_t i = 0; i < width && i < 64; ++i)
        bits.set(width - 1 - i, (number >> i & 1U) != 0);
    return Data::bitString(bits);
}

bool isAnalogueValue(const TypeDescription &type)
{
    return type.kind == Kind::Structure && !type.components.empty() &&
           std::ranges::all_of(type.components, [](const TypeDescription::Component &component) {
               return (component.name == "i" && component.type.kind == Kind::Integer) ||
                      (component.name == "f" && component.type.kind == Kind::FloatingPoint);
           });
}

std::optional<Data> toAnalogueValue(const TypeDescription &type, const Data &value)
{
    std::vector<Data> members;
    const bool both = type.components.size() > 1;
    for (const TypeDescription::Component &component : type.components) {
        const auto real = toReal(value);
        if (!real)
            return std::nullopt;
        const bool round = both && component.type.kind == Kind::Integer && value.toDouble();
        auto member = valueOfType(component.type, round ? Data::float64(std::round(*real)) : value);
        if (!member)
            return std::nullopt;
        members.push_back(*std::move(member));
    }
    return Data::structure(std::move(members));
}

/// What @p value becomes as one of @p type, which is no group; nothing when it does not fit.
std::optional<Data> converted(const TypeDescription &type, const Data &value)
{
    switch (type.kind) {
    case Kind::Boolean:
        if (const auto number = toNatural(value); number && *number <= 1)
            return Data::boolean(*number == 1);
        return std::nullopt;
    case Kind::Integer:
        if (const auto number = toSigned(value); number && fitsInteger(type, *number))
            return Data::integer(*number);
        return std::nullopt;
    case Kind::Unsigned:
        if (const auto number = toNatural(value); number && fitsUnsigned(type, *number))
            return Data::unsignedInteger(*number);
        return std::nullopt;
    case Kind::FloatingPoint:
        if (const auto number = toReal(value))
            return toFloat(type, *number);
        return std::nullopt;
    case Kind::BitString:
        if (const auto number = toNatural(value))
            return toCodedEnum(type, *number);
        return std::nullopt;
    case Kind::VisibleString:
        if (value.kind() == Data::Kind::MmsString && fitsLength(type, value))
            return Data::visibleString(value.text());
        return std::nullopt;
    case Kind::MmsString:
        if (value.kind() == Data::Kind::VisibleString && fitsLength(type, value))
            return Data::mmsString(value.text());
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace

const TypeDescription *componentOf(const TypeDescription &structure, std::string_view name)
{
    if (structure.kind != Kind::Structure)
        return nullptr;
    const auto found =
        std::ranges::find(structure.components, name, &TypeDescription::Component::name);
    return found == structure.components.end() ? nullptr : &found->type;
}

std::optional<float> nearestFloat(double number)
{
    if (!std::isfinite(number))
        return static_cast<float>(number);
    // Half a unit above the greatest number begins what rounds to infinity.
    constexpr double greatest = std::numeric_limits<float>::max();
    constexpr double limit = 3.4028235677973366e38;
    if (std::abs(number) >= limit)
        return std::nullopt;
    const auto result = static_cast<float>(std::clamp(number, -greatest, greatest));
    if (result == 0 && number != 0)
        return std::nullopt;
    return result;
}

bool fitsLength(const TypeDescription &type, const Data &value)
{
    constexpr std::uint64_t charactersOfUnicode255 = 255;
    const std::uint64_t limit = lengthOf(type);
    if (limit == 0 || value.size() <= limit)
        return true;
    if (type.kind != Kind::MmsString || limit != charactersOfUnicode255)
        return false;
    const auto characters = std::ranges::count_if(value.text(), [](char octet) {
        return (static_cast<unsigned char>(octet) & 0xC0U) != 0x80U;
    });
    return static_cast<std::uint64_t>(characters) <= limit;
}

bool isSentAs(const TypeDescription &type, const Data &value)
{
    const bool isGroup = value.kind() == Data::Kind::Structure || value.kind() == Data::Kind::Array;
    if (type.kind == Kind::TypeName)
        return !isGroup;
    if (static_cast<int>(type.kind) != static_cast<int>(value.kind()))
        return false;
    constexpr std::uint64_t codedBits = 2;
    switch (type.kind) {
    case Kind::Structure:
        return value.size() == type.components.size();
    case Kind::Array:
        return value.size() == type.elementCount && !type.components.empty();
    case Kind::FloatingPoint:
        return (type.size == 64) == value.isDouble();
    case Kind::BitString:
        // Every bit of a coded enumeration is needed, however its length is described.
        return lengthOf(type) == codedBits ? value.size() == codedBits
                                           : fitsBits(type, value.size());
    case Kind::BinaryTime:
        return mms::isTimeOfDay(*value.toBinaryTime());
    default:
        return true;
    }
}

mms::Result<void> checkType(const TypeDescription &type, const Data &value)
{
    if (static_cast<int>(type.kind) != static_cast<int>(value.kind()))
        return doesNotFit(type, value);
    const std::span<const Data> children = value.children();
    bool fits = true;
    switch (type.kind) {
    case Kind::Array:
        if (children.size() != type.elementCount || type.components.empty())
            return doesNotFit(type, value);
        for (const Data &child : children) {
            if (auto result = checkType(type.components.front().type, child); !result)
                return result;
        }
        break;
    case Kind::Structure:
        if (children.size() != type.components.size())
            return doesNotFit(type, value);
        for (std::size_t i = 0; i < children.size(); ++i) {
            if (auto result = checkType(type.components[i].type, children[i]); !result)
                return result;
        }
        break;
    case Kind::Integer:
        fits = value.toInteger() && fitsInteger(type, *value.toInteger());
        break;
    case Kind::Unsigned:
        fits = value.toUnsigned() && fitsUnsigned(type, *value.toUnsigned());
        break;
    case Kind::FloatingPoint:
        fits = (type.size == 64) == value.isDouble();
        break;
    case Kind::BitString:
        fits = fitsBits(type, value.size());
        break;
    case Kind::OctetString:
    case Kind::VisibleString:
    case Kind::MmsString:
        fits = fitsLength(type, value);
        break;
    default:
        break;
    }
    if (!fits)
        return doesNotFit(type, value);
    return {};
}

mms::Result<Data> valueOfType(const TypeDescription &type, const Data &value)
{
    if (checkType(type, value))
        return value;
    const std::span<const Data> children = value.children();
    const bool isGroup = value.kind() == Data::Kind::Structure || value.kind() == Data::Kind::Array;
    if (isAnalogueValue(type) && !isGroup) {
        if (auto result = toAnalogueValue(type, value))
            return *std::move(result);
        return doesNotFit(type, value);
    }
    if (type.kind == Kind::Structure || type.kind == Kind::Array) {
        const bool isArray = type.kind == Kind::Array;
        const std::size_t count = isArray ? type.elementCount : type.components.size();
        if (static_cast<int>(type.kind) != static_cast<int>(value.kind()) ||
            children.size() != count || type.components.empty())
            return doesNotFit(type, value);
        std::vector<Data> members;
        for (std::size_t i = 0; i < count; ++i) {
            auto member = valueOfType(type.components[isArray ? 0 : i].type, children[i]);
            if (!member)
                return member;
            members.push_back(*std::move(member));
        }
        return isArray ? Data::array(std::move(members)) : Data::structure(std::move(members));
    }
    if (auto result = converted(type, value))
        return *std::move(result);
    return doesNotFit(type, value);
}

} // namespace acsi
