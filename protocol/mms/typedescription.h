// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"
#include "mms/objectname.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace mms {

/// The type of a variable (ISO 9506-2, TypeSpecification), with everything inside it.
struct TypeDescription
{
    struct Component;

    /// The numbers are the tags of the choice; the kinds of values, and a type known by its name.
    enum class Kind : std::uint8_t {
        TypeName = 0,
        Array = 1,
        Structure = 2,
        Boolean = 3,
        BitString = 4,
        Integer = 5,
        Unsigned = 6,
        FloatingPoint = 7,
        OctetString = 9,
        VisibleString = 10,
        GeneralizedTime = 11,
        BinaryTime = 12,
        Bcd = 13,
        ObjectIdentifier = 15,
        MmsString = 16,
        UtcTime = 17,
    };

    Kind kind = Kind::Structure;
    /// Of arrays and structures.
    bool packed = false;
    /// Whether a binary time has a date.
    bool withDate = false;
    /// Bits of the exponent of a floating-point number.
    std::uint8_t exponentWidth = 0;
    /// Bits of an integer, unsigned, floating-point number or bit string; octets of an octet or
    /// character string; digits of a BCD. Strings of variable length have the negative of their
    /// greatest size.
    std::int32_t size = 0;
    /// Of an array.
    std::uint32_t elementCount = 0;
    /// The components of a structure; one without a name for the elements of an array.
    std::vector<Component> components;
    /// Of a type known by its name, otherwise null.
    std::shared_ptr<const ObjectName> typeName;

    static TypeDescription boolean();
    static TypeDescription bitString(std::int32_t bits);
    static TypeDescription integer(std::uint8_t bits);
    static TypeDescription unsignedInteger(std::uint8_t bits);
    static TypeDescription float32();
    static TypeDescription float64();
    static TypeDescription octetString(std::int32_t octets);
    static TypeDescription visibleString(std::int32_t octets);
    static TypeDescription mmsString(std::int32_t octets);
    static TypeDescription binaryTime(bool withDate);
    static TypeDescription utcTime();
    static TypeDescription array(std::uint32_t count, TypeDescription element);
    static TypeDescription structure(std::vector<Component> components);
    static TypeDescription named(ObjectName name);

    friend bool operator==(const TypeDescription &left, const TypeDescription &right);
};

struct TypeDescription::Component
{
    /// Empty for a component without a name.
    std::string name;
    TypeDescription type;

    friend bool operator==(const Component &, const Component &) = default;
};

/// Reading and writing of types as elements.
class TypeCodec
{
public:
    static TypeDescription read(ber::Reader &reader, const ber::Element &element);
    static TypeDescription readNext(ber::Reader &reader);
    static void write(ber::Writer &writer, const TypeDescription &type);
};

/// For traces: "{stVal: boolean, q: bit-string(-13), t: utc-time}", "[16] floating-point(32)".
std::string toText(const TypeDescription &type);

} // namespace mms
