// SPDX-License-Identifier: Apache-2.0
#include "simulator/initialvalues.h"

#include "acsi/typedvalue.h"
#include "osi/ber.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace sim {

namespace {

using scl::BasicType;
using Kind = mms::TypeDescription::Kind;

constexpr std::int64_t controlModelDirect = 1;
constexpr std::uint64_t selectTimeout = 30000;
constexpr std::uint64_t operateTimeout = 10000;
constexpr std::uint64_t mainsFrequency = 50;

/// Two bits, the first one the higher.
mms::Data codedEnumeration(std::int64_t ordinal)
{
    const auto bits = static_cast<std::uint64_t>(ordinal);
    mms::BitString text(2);
    text.set(0, (bits & 2U) != 0);
    text.set(1, (bits & 1U) != 0);
    return mms::Data::bitString(text);
}

std::int64_t initialOrdinal(const LeafPlace &place)
{
    const auto *enumeration = place.leaf.enumeration == 0
                                  ? nullptr
                                  : &place.layout.enumerations[place.leaf.enumeration - 1];
    const auto has = [enumeration](std::int64_t ordinal) {
        return !enumeration || std::ranges::binary_search(enumeration->ordinals, ordinal);
    };
    const bool isState =
        place.leaf.name == "stVal" && (place.dataObject == "Mod" || place.dataObject == "Beh" ||
                                       place.dataObject.ends_with("Health"));
    const bool startsAtOne = isState || place.leaf.name == "SIUnit";
    if (startsAtOne && has(1))
        return 1;
    if (place.leaf.name == "ctlModel" && place.controllable && has(controlModelDirect))
        return controlModelDirect;
    return has(0) ? 0 : enumeration->ordinals.front();
}

std::uint64_t initialNumber(const LeafPlace &place)
{
    if (place.leaf.fc != Fc::CF)
        return 0;
    if (place.leaf.name == "sboTimeout")
        return selectTimeout;
    if (place.leaf.name == "operTimeout")
        return operateTimeout;
    if (place.leaf.name == "frequency")
        return mainsFrequency;
    return 0;
}

mms::Data cut(const LayoutNode &leaf, std::string_view text)
{
    mms::TypeDescription type;
    type.kind = leaf.mmsKind;
    type.size = leaf.size;
    const auto value = [&leaf](std::string_view all) {
        return leaf.mmsKind == Kind::MmsString ? mms::Data::mmsString(all)
                                               : mms::Data::visibleString(all);
    };
    while (!acsi::fitsLength(type, value(text))) {
        // Not within a character of several octets.
        unsigned char last = 0;
        do {
            last = static_cast<unsigned char>(text.back());
            text.remove_suffix(1);
        } while (!text.empty() && (last & 0xC0U) == 0x80U);
    }
    return value(text);
}

std::vector<std::uint8_t> octetsFrom(std::string_view hex)
{
    std::vector<std::uint8_t> octets;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        std::uint8_t octet = 0;
        std::from_chars(hex.data() + i, hex.data() + i + 2, octet, 16);
        octets.push_back(octet);
    }
    return octets;
}

std::optional<mms::Data> fromText(const LayoutNode &leaf, std::string_view text)
{
    switch (leaf.mmsKind) {
    case Kind::BitString: {
        const auto bits = static_cast<std::size_t>(std::abs(leaf.size));
        auto value = mms::BitString::fromText(text.substr(0, bits));
        if (value.size() < bits)
            value.set(bits - 1, false);
        return mms::Data::bitString(value);
    }
    case Kind::OctetString: {
        auto octets = octetsFrom(text);
        const auto size = static_cast<std::size_t>(std::abs(leaf.size));
        if (octets.size() > size || leaf.size > 0)
            octets.resize(size);
        return mms::Data::octetString(octets);
    }
    case Kind::VisibleString:
    case Kind::MmsString:
        return cut(leaf, text);
    case Kind::UtcTime:
        if (const auto time = mms::utcTimeFrom(text))
            return mms::Data::utcTime(*time);
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace

mms::Data initialValue(const LeafPlace &place, const mms::UtcTime &now)
{
    const LayoutNode &leaf = place.leaf;
    switch (leaf.mmsKind) {
    case Kind::Boolean:
        return mms::Data::boolean(false);
    case Kind::Integer:
        return mms::Data::integer(leaf.basicType == BasicType::Enum
                                      ? initialOrdinal(place)
                                      : static_cast<std::int64_t>(initialNumber(place)));
    case Kind::Unsigned:
        return mms::Data::unsignedInteger(initialNumber(place));
    case Kind::FloatingPoint: {
        const double value = leaf.name == "scaleFactor" ? 1 : 0;
        return leaf.size == 64 ? mms::Data::float64(value)
                               : mms::Data::float32(static_cast<float>(value));
    }
    case Kind::BitString:
        if (leaf.basicType == BasicType::Dbpos)
            return codedEnumeration(1);
        return mms::Data::bitString(mms::BitString(static_cast<std::size_t>(std::abs(leaf.size))));
    case Kind::OctetString:
        return mms::Data::octetString(
            std::vector<std::uint8_t>(leaf.size > 0 ? static_cast<std::size_t>(leaf.size) : 0));
    case Kind::MmsString:
        return mms::Data::mmsString({});
    case Kind::BinaryTime: {
        mms::BinaryTime time;
        if (leaf.withDate)
            time.days = 0;
        return mms::Data::binaryTime(time);
    }
    case Kind::UtcTime:
        return mms::Data::utcTime(leaf.fc == Fc::CO ? mms::UtcTime() : now);
    default:
        return mms::Data::visibleString({});
    }
}

std::optional<mms::Data> configuredData(const LayoutNode &leaf, const scl::Value &value)
{
    if (const auto *text = std::get_if<std::string_view>(&value))
        return fromText(leaf, *text);
    if (const auto *flag = std::get_if<bool>(&value)) {
        if (leaf.mmsKind == Kind::Boolean)
            return mms::Data::boolean(*flag);
    } else if (const auto *number = std::get_if<std::int64_t>(&value)) {
        if (leaf.mmsKind == Kind::Integer)
            return mms::Data::integer(*number);
        if (leaf.mmsKind == Kind::BitString)
            return codedEnumeration(*number);
    } else if (const auto *natural = std::get_if<std::uint64_t>(&value)) {
        if (leaf.mmsKind == Kind::Unsigned)
            return mms::Data::unsignedInteger(*natural);
    } else if (const auto *real = std::get_if<double>(&value)) {
        if (leaf.mmsKind == Kind::FloatingPoint)
            return leaf.size == 64 ? mms::Data::float64(*real)
                                   : mms::Data::float32(static_cast<float>(*real));
    }
    return std::nullopt;
}

} // namespace sim
