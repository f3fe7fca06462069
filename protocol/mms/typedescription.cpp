// SPDX-License-Identifier: Apache-2.0
#include "mms/typedescription.h"

#include "mms/codec.h"

#include <limits>

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;
using Kind = TypeDescription::Kind;

namespace {

TypeDescription ofSize(Kind kind, std::int32_t size)
{
    TypeDescription type;
    type.kind = kind;
    type.size = size;
    return type;
}

TypeDescription floatingPoint(std::uint8_t width, std::uint8_t exponentWidth)
{
    TypeDescription type = ofSize(Kind::FloatingPoint, width);
    type.exponentWidth = exponentWidth;
    return type;
}

std::uint8_t unsigned8(Reader &reader, const Element &element)
{
    return static_cast<std::uint8_t>(
        reader.unsignedInteger(element, std::numeric_limits<std::uint8_t>::max()));
}

bool readPacked(Reader &reader)
{
    Element element;
    return reader.takeIf(Tag::context(0), element) && reader.boolean(element);
}

TypeDescription readInside(Reader &reader, Tag group, std::string_view what)
{
    Reader inner = reader.expectGroup(group, what);
    TypeDescription type = TypeCodec::readNext(inner);
    inner.expectEnd("TypeSpecification");
    return type;
}

void writeInside(Writer &writer, Tag group, const TypeDescription &type)
{
    const std::size_t mark = writer.size();
    TypeCodec::write(writer, type);
    writer.close(group, mark);
}

bool isGroup(std::uint32_t number)
{
    return number <= 2 || number == static_cast<std::uint32_t>(Kind::FloatingPoint);
}

std::string withSize(const char *name, std::int32_t size)
{
    return name + ('(' + std::to_string(size) + ')');
}

} // namespace

TypeDescription TypeDescription::boolean()
{
    return ofSize(Kind::Boolean, 0);
}

TypeDescription TypeDescription::bitString(std::int32_t bits)
{
    return ofSize(Kind::BitString, bits);
}

TypeDescription TypeDescription::integer(std::uint8_t bits)
{
    return ofSize(Kind::Integer, bits);
}

TypeDescription TypeDescription::unsignedInteger(std::uint8_t bits)
{
    return ofSize(Kind::Unsigned, bits);
}

TypeDescription TypeDescription::float32()
{
    return floatingPoint(32, 8);
}

TypeDescription TypeDescription::float64()
{
    return floatingPoint(64, 11);
}

TypeDescription TypeDescription::octetString(std::int32_t octets)
{
    return ofSize(Kind::OctetString, octets);
}

TypeDescription TypeDescription::visibleString(std::int32_t octets)
{
    return ofSize(Kind::VisibleString, octets);
}

TypeDescription TypeDescription::mmsString(std::int32_t octets)
{
    return ofSize(Kind::MmsString, octets);
}

TypeDescription TypeDescription::binaryTime(bool withDate)
{
    TypeDescription type = ofSize(Kind::BinaryTime, 0);
    type.withDate = withDate;
    return type;
}

TypeDescription TypeDescription::utcTime()
{
    return ofSize(Kind::UtcTime, 0);
}

TypeDescription TypeDescription::array(std::uint32_t count, TypeDescription element)
{
    TypeDescription type = ofSize(Kind::Array, 0);
    type.elementCount = count;
    type.components.push_back({{}, std::move(element)});
    return type;
}

TypeDescription TypeDescription::structure(std::vector<Component> components)
{
    TypeDescription type = ofSize(Kind::Structure, 0);
    type.components = std::move(components);
    return type;
}

TypeDescription TypeDescription::named(ObjectName name)
{
    TypeDescription type = ofSize(Kind::TypeName, 0);
    type.typeName = std::make_shared<const ObjectName>(std::move(name));
    return type;
}

bool operator==(const TypeDescription &left, const TypeDescription &right)
{
    const bool sameName = left.typeName && right.typeName ? *left.typeName == *right.typeName
                                                          : left.typeName == right.typeName;
    return sameName && left.kind == right.kind && left.packed == right.packed &&
           left.withDate == right.withDate && left.exponentWidth == right.exponentWidth &&
           left.size == right.size && left.elementCount == right.elementCount &&
           left.components == right.components;
}

TypeDescription TypeCodec::read(Reader &reader, const Element &element)
{
    TypeDescription type;
    if (reader.failed())
        return type;
    const std::uint32_t number = element.tag.number();
    if (!element.tag.isContext() || element.tag.isConstructed() != isGroup(number)) {
        reader.input().fail(say("An element that is no type stands where a type belongs."),
                            element.offset);
        return type;
    }
    type.kind = static_cast<Kind>(number);
    switch (type.kind) {
    case Kind::TypeName: {
        Reader inner = reader.enter(element);
        type.typeName = std::make_shared<const ObjectName>(codec::readObjectName(inner));
        inner.expectEnd("typeName");
        return type;
    }
    case Kind::Array: {
        Reader inner = reader.enter(element);
        type.packed = readPacked(inner);
        type.elementCount = inner.unsigned32(inner.expect(Tag::context(1), "numberOfElements"));
        type.components.push_back({{}, readInside(inner, Tag::group(2), "elementType")});
        inner.expectEnd("array");
        return type;
    }
    case Kind::Structure: {
        Reader inner = reader.enter(element);
        type.packed = readPacked(inner);
        Reader list = inner.expectGroup(Tag::group(1), "components");
        type.components.reserve(list.countRest());
        while (!list.atEnd()) {
            Reader member = list.expectGroup(ber::tags::sequence, "components");
            TypeDescription::Component component;
            Element name;
            if (member.takeIf(Tag::context(0), name))
                component.name = member.text(name);
            component.type = readInside(member, Tag::group(1), "componentType");
            member.expectEnd("components");
            type.components.push_back(std::move(component));
        }
        inner.expectEnd("structure");
        return type;
    }
    case Kind::Integer:
    case Kind::Unsigned:
    case Kind::Bcd:
        type.size = unsigned8(reader, element);
        return type;
    case Kind::FloatingPoint: {
        Reader inner = reader.enter(element);
        type.size = unsigned8(inner, inner.expect(ber::tags::integer, "format-width"));
        type.exponentWidth = unsigned8(inner, inner.expect(ber::tags::integer, "exponent-width"));
        inner.expectEnd("floating-point");
        return type;
    }
    case Kind::BitString:
    case Kind::OctetString:
    case Kind::VisibleString:
    case Kind::MmsString:
        type.size = reader.integer32(element);
        return type;
    case Kind::BinaryTime:
        type.withDate = reader.boolean(element);
        return type;
    case Kind::Boolean:
    case Kind::GeneralizedTime:
    case Kind::ObjectIdentifier:
    case Kind::UtcTime:
        reader.null(element);
        return type;
    }
    reader.input().fail(say("An element that is no type stands where a type belongs."),
                        element.offset);
    return type;
}

TypeDescription TypeCodec::readNext(Reader &reader)
{
    Element element;
    if (!reader.next(element))
        reader.fail(say("The element %1 is missing.", "TypeSpecification"));
    return read(reader, element);
}

void TypeCodec::write(Writer &writer, const TypeDescription &type)
{
    const auto number = static_cast<std::uint32_t>(type.kind);
    const std::size_t mark = writer.size();
    switch (type.kind) {
    case Kind::TypeName:
        codec::write(writer, type.typeName ? *type.typeName : ObjectName());
        break;
    case Kind::Array:
        writeInside(writer, Tag::group(2),
                    type.components.empty() ? TypeDescription() : type.components.front().type);
        writer.unsignedInteger(Tag::context(1), type.elementCount);
        if (type.packed)
            writer.boolean(Tag::context(0), true);
        break;
    case Kind::Structure: {
        for (auto component = type.components.rbegin(); component != type.components.rend();
             ++component) {
            const std::size_t componentMark = writer.size();
            writeInside(writer, Tag::group(1), component->type);
            if (!component->name.empty())
                writer.text(Tag::context(0), component->name);
            writer.close(ber::tags::sequence, componentMark);
        }
        writer.close(Tag::group(1), mark);
        if (type.packed)
            writer.boolean(Tag::context(0), true);
        break;
    }
    case Kind::FloatingPoint:
        writer.unsignedInteger(ber::tags::integer, type.exponentWidth);
        writer.unsignedInteger(ber::tags::integer, static_cast<std::uint8_t>(type.size));
        break;
    case Kind::Integer:
    case Kind::Unsigned:
    case Kind::Bcd:
        writer.unsignedInteger(Tag::context(number), static_cast<std::uint8_t>(type.size));
        return;
    case Kind::BitString:
    case Kind::OctetString:
    case Kind::VisibleString:
    case Kind::MmsString:
        writer.integer(Tag::context(number), type.size);
        return;
    case Kind::BinaryTime:
        writer.boolean(Tag::context(number), type.withDate);
        return;
    case Kind::Boolean:
    case Kind::GeneralizedTime:
    case Kind::ObjectIdentifier:
    case Kind::UtcTime:
        writer.null(Tag::context(number));
        return;
    }
    writer.close(Tag::group(number), mark);
}

std::string toText(const TypeDescription &type)
{
    switch (type.kind) {
    case Kind::TypeName:
        return "type " + (type.typeName ? toText(*type.typeName) : std::string());
    case Kind::Array:
        return '[' + std::to_string(type.elementCount) + "] " +
               (type.components.empty() ? std::string() : toText(type.components.front().type));
    case Kind::Structure:
        return '{' +
               codec::joined(type.components,
                             [](const auto &component) {
                                 return component.name + ": " + toText(component.type);
                             }) +
               '}';
    case Kind::Boolean:
        return "boolean";
    case Kind::BitString:
        return withSize("bit-string", type.size);
    case Kind::Integer:
        return withSize("integer", type.size);
    case Kind::Unsigned:
        return withSize("unsigned", type.size);
    case Kind::FloatingPoint:
        return withSize("floating-point", type.size);
    case Kind::OctetString:
        return withSize("octet-string", type.size);
    case Kind::VisibleString:
        return withSize("visible-string", type.size);
    case Kind::GeneralizedTime:
        return "generalized-time";
    case Kind::BinaryTime:
        return type.withDate ? "binary-time with date" : "binary-time";
    case Kind::Bcd:
        return withSize("bcd", type.size);
    case Kind::ObjectIdentifier:
        return "objId";
    case Kind::MmsString:
        return withSize("mMSString", type.size);
    case Kind::UtcTime:
        return "utc-time";
    }
    return {};
}

} // namespace mms
