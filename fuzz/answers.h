// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "material.h"

#include "mms/data.h"
#include "mms/datacodec.h"
#include "mms/typedescription.h"

namespace fuzz {

/// A type as a hostile server may describe one: any nesting up to @p depth, any counts and sizes.
inline mms::TypeDescription typeFrom(Material &material, int depth)
{
    using mms::TypeDescription;
    switch (material.below(depth > 0 ? 16 : 11)) {
    case 0:
        return TypeDescription::boolean();
    case 1:
        return TypeDescription::bitString(
            material.below(2) == 0 ? -13 : static_cast<std::int32_t>(material.number()));
    case 2:
        return TypeDescription::integer(material.octet());
    case 3:
        return TypeDescription::unsignedInteger(material.octet());
    case 4:
        return TypeDescription::float32();
    case 5:
        return TypeDescription::float64();
    case 6:
        return TypeDescription::octetString(static_cast<std::int8_t>(material.octet()));
    case 7:
        return TypeDescription::visibleString(static_cast<std::int8_t>(material.octet()));
    case 8:
        return TypeDescription::mmsString(-255);
    case 9:
        return TypeDescription::binaryTime(material.below(2) == 0);
    case 10:
        return TypeDescription::utcTime();
    case 11: {
        constexpr std::array<std::uint32_t, 6> counts = {0, 1, 3, 40, 100'000, 0xFFFFFFFF};
        const std::size_t choice = material.below(8);
        const std::uint32_t count =
            choice < counts.size() ? counts[choice] : material.number() % 1000;
        return TypeDescription::array(count, typeFrom(material, depth - 1));
    }
    default: {
        std::vector<TypeDescription::Component> components(material.below(6));
        for (TypeDescription::Component &component : components) {
            component.name = name(material);
            component.type = typeFrom(material, depth - 1);
        }
        return TypeDescription::structure(std::move(components));
    }
    }
}

/// A value of the type, which now and then is not what the type says. Arrays are cut once there are
/// @p room elements in all of them together.
inline mms::Data valueFrom(Material &material, const mms::TypeDescription &type,
                           std::uint32_t &room)
{
    using mms::Data;
    using Kind = mms::TypeDescription::Kind;
    if (material.octet() > 250) {
        const auto octets = material.chunk();
        osi::ber::Input input(octets, {});
        osi::ber::Reader reader = input.reader();
        Data raw = mms::DataCodec::readNext(reader);
        const auto read = input.finish(std::move(raw));
        return read ? *read : Data::integer(-1);
    }
    switch (type.kind) {
    case Kind::Structure: {
        std::vector<Data> members;
        for (const auto &component : type.components)
            members.push_back(valueFrom(material, component.type, room));
        return Data::structure(std::move(members));
    }
    case Kind::Array: {
        std::vector<Data> elements;
        const std::uint32_t count = type.components.empty() ? 0 : type.elementCount;
        for (std::uint32_t i = 0; i < count && room > 0; ++i) {
            --room;
            elements.push_back(valueFrom(material, type.components.front().type, room));
        }
        return Data::array(std::move(elements));
    }
    case Kind::Boolean:
        return Data::boolean(material.below(2) != 0);
    case Kind::BitString:
        return Data::bitString(mms::BitString(material.below(2) == 0 ? 13 : material.octet()));
    case Kind::Integer:
        return Data::integer(static_cast<std::int32_t>(material.number()));
    case Kind::Unsigned:
        return Data::unsignedInteger(material.number());
    case Kind::FloatingPoint:
        return type.size == 64 ? Data::float64(material.number() * 1e290)
                               : Data::float32(static_cast<float>(material.number()));
    case Kind::OctetString:
        return Data::octetString(material.chunk());
    case Kind::VisibleString:
        return Data::visibleString(name(material));
    case Kind::MmsString:
        return Data::mmsString(name(material));
    case Kind::BinaryTime:
        return Data::binaryTime({material.number(), material.octet()});
    case Kind::UtcTime:
        return Data::utcTime({material.number(), material.number() >> 8U, material.octet()});
    default:
        return Data::integer(0);
    }
}

inline mms::Data valueFrom(Material &material, const mms::TypeDescription &type)
{
    std::uint32_t room = 300;
    return valueFrom(material, type, room);
}

} // namespace fuzz
