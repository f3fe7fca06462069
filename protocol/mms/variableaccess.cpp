// SPDX-License-Identifier: Apache-2.0
#include "mms/variableaccess.h"

#include "mms/codec.h"
#include "mms/data.h"
#include "mms/datatext.h"

namespace mms {

namespace {

AlternateAccess part(AlternateAccess::Kind kind, std::vector<AlternateAccess> parts)
{
    AlternateAccess result;
    result.kind = kind;
    result.parts = std::move(parts);
    return result;
}

} // namespace

AlternateAccess AlternateAccess::ofComponent(std::string_view component,
                                             std::vector<AlternateAccess> parts)
{
    AlternateAccess result = part(Kind::Component, std::move(parts));
    result.component = component;
    return result;
}

AlternateAccess AlternateAccess::ofElement(std::uint32_t index, std::vector<AlternateAccess> parts)
{
    AlternateAccess result = part(Kind::Index, std::move(parts));
    result.index = index;
    return result;
}

AlternateAccess AlternateAccess::ofElements(std::uint32_t first, std::uint32_t count,
                                            std::vector<AlternateAccess> parts)
{
    AlternateAccess result = part(Kind::IndexRange, std::move(parts));
    result.index = first;
    result.count = count;
    return result;
}

AlternateAccess AlternateAccess::ofAllElements(std::vector<AlternateAccess> parts)
{
    return part(Kind::AllElements, std::move(parts));
}

std::string toText(const Address &address)
{
    if (address.kind == Address::Kind::Numeric)
        return "address " + std::to_string(address.number);
    return "address " + quoted(address.symbol);
}

std::string toText(const VariableSpecification &specification)
{
    if (const auto *name = std::get_if<ObjectName>(&specification))
        return toText(*name);
    if (const auto *address = std::get_if<Address>(&specification))
        return toText(*address);
    return "invalidated";
}

std::string toText(const std::vector<AlternateAccess> &parts)
{
    const auto one = [](const AlternateAccess &access) {
        std::string text = access.name ? quoted(*access.name) + '=' : std::string();
        switch (access.kind) {
        case AlternateAccess::Kind::Component:
            text += '.' + quoted(access.component).substr(1);
            text.pop_back();
            break;
        case AlternateAccess::Kind::Index:
            text += '(' + std::to_string(access.index) + ')';
            break;
        case AlternateAccess::Kind::IndexRange:
            text += '(' + std::to_string(access.index) + ".." +
                    (access.count == 0
                         ? std::string()
                         : std::to_string(std::uint64_t{access.index} + access.count - 1)) +
                    ')';
            break;
        case AlternateAccess::Kind::AllElements:
            text += "(*)";
            break;
        }
        return text + toText(access.parts);
    };
    const std::string text = codec::joined(parts, one);
    return parts.size() > 1 ? '{' + text + '}' : text;
}

std::string toText(const VariableAccess &access)
{
    return toText(access.variable) + toText(access.parts);
}

std::string toText(const VariableAccessSpecification &specification)
{
    if (const auto *name = std::get_if<ObjectName>(&specification))
        return "list " + toText(*name);
    return codec::joined(std::get<0>(specification),
                         [](const VariableAccess &access) { return toText(access); });
}

namespace codec {

Address readAddress(Reader &reader)
{
    Address address;
    Element element;
    if (reader.takeIf(Tag::context(0), element)) {
        address.number = reader.unsigned32(element);
    } else if (reader.takeIf(Tag::context(1), element)) {
        address.kind = Address::Kind::Symbolic;
        address.symbol = reader.text(element);
    } else if (reader.takeIf(Tag::context(2), element)) {
        address.kind = Address::Kind::Unconstrained;
        address.symbol = reader.text(element);
    } else {
        reader.fail(say("The element %1 is missing or of an unknown kind.", "Address"));
    }
    return address;
}

void write(Writer &writer, const Address &address)
{
    if (address.kind == Address::Kind::Numeric)
        writer.unsignedInteger(Tag::context(0), address.number);
    else
        writer.text(Tag::context(address.kind == Address::Kind::Symbolic ? 1 : 2), address.symbol);
}

VariableSpecification readVariableSpecification(Reader &reader)
{
    Element element;
    if (reader.peek() == Tag::group(0))
        return readObjectName(reader, Tag::group(0), "name");
    if (reader.takeIf(Tag::group(1), element)) {
        Reader inner = reader.enter(element);
        Address address = readAddress(inner);
        inner.expectEnd("Address");
        return address;
    }
    if (reader.takeIf(Tag::context(4), element)) {
        reader.null(element);
        return InvalidatedVariable();
    }
    reader.fail(say("The element %1 is missing or of an unknown kind.", "VariableSpecification"));
    return InvalidatedVariable();
}

void write(Writer &writer, const VariableSpecification &specification)
{
    const std::size_t mark = writer.size();
    if (const auto *name = std::get_if<ObjectName>(&specification)) {
        write(writer, Tag::group(0), *name);
    } else if (const auto *address = std::get_if<Address>(&specification)) {
        write(writer, *address);
        writer.close(Tag::group(1), mark);
    } else {
        writer.null(Tag::context(4));
    }
}

namespace {

// The tags of a selection: 0 to 3 inside a selectAlternateAccess, 1 to 4 in a selectAccess.
constexpr std::uint32_t wholeOffset = 1;

std::vector<AlternateAccess> readAlternateAccess(Reader reader);

void readSelection(Reader &reader, std::uint32_t offset, AlternateAccess &access)
{
    Element element;
    if (reader.takeIf(Tag::context(offset), element)) {
        access.kind = AlternateAccess::Kind::Component;
        access.component = reader.text(element);
    } else if (reader.takeIf(Tag::context(offset + 1), element)) {
        access.kind = AlternateAccess::Kind::Index;
        access.index = reader.unsigned32(element);
    } else if (reader.takeIf(Tag::group(offset + 2), element)) {
        access.kind = AlternateAccess::Kind::IndexRange;
        Reader range = reader.enter(element);
        access.index = range.unsigned32(range.expect(Tag::context(0), "lowIndex"));
        access.count = range.unsigned32(range.expect(Tag::context(1), "numberOfElements"));
        range.expectEnd("indexRange");
    } else if (reader.takeIf(Tag::context(offset + 3), element)) {
        access.kind = AlternateAccess::Kind::AllElements;
        reader.null(element);
    } else {
        reader.fail(
            say("The element %1 is missing or of an unknown kind.", "AlternateAccessSelection"));
    }
}

void readPart(Reader &reader, AlternateAccess &access)
{
    Element element;
    if (!reader.takeIf(Tag::group(0), element))
        return readSelection(reader, wholeOffset, access);
    Reader inner = reader.enter(element);
    readSelection(inner, 0, access);
    access.parts = readAlternateAccess(inner.expectGroup(ber::tags::sequence, "AlternateAccess"));
    inner.expectEnd("AlternateAccess");
}

std::vector<AlternateAccess> readAlternateAccess(Reader reader)
{
    std::vector<AlternateAccess> result;
    result.reserve(reader.countRest());
    while (!reader.atEnd()) {
        AlternateAccess &access = result.emplace_back();
        Element element;
        if (reader.takeIf(Tag::group(5), element)) {
            Reader inner = reader.enter(element);
            access.name = inner.text(inner.expect(Tag::context(0), "componentName"));
            readPart(inner, access);
            inner.expectEnd("named");
        } else {
            readPart(reader, access);
        }
    }
    return result;
}

void writeSelection(Writer &writer, std::uint32_t offset, const AlternateAccess &access)
{
    const std::size_t mark = writer.size();
    switch (access.kind) {
    case AlternateAccess::Kind::Component:
        writer.text(Tag::context(offset), access.component);
        return;
    case AlternateAccess::Kind::Index:
        writer.unsignedInteger(Tag::context(offset + 1), access.index);
        return;
    case AlternateAccess::Kind::IndexRange:
        writer.unsignedInteger(Tag::context(1), access.count);
        writer.unsignedInteger(Tag::context(0), access.index);
        writer.close(Tag::group(offset + 2), mark);
        return;
    case AlternateAccess::Kind::AllElements:
        writer.null(Tag::context(offset + 3));
        return;
    }
}

void writeAlternateAccess(Writer &writer, const std::vector<AlternateAccess> &parts)
{
    for (auto access = parts.rbegin(); access != parts.rend(); ++access) {
        const std::size_t mark = writer.size();
        if (access->parts.empty()) {
            writeSelection(writer, wholeOffset, *access);
        } else {
            writeAlternateAccess(writer, access->parts);
            writer.close(ber::tags::sequence, mark);
            writeSelection(writer, 0, *access);
            writer.close(Tag::group(0), mark);
        }
        if (access->name) {
            writer.text(Tag::context(0), *access->name);
            writer.close(Tag::group(5), mark);
        }
    }
}

} // namespace

std::vector<VariableAccess> readVariableList(Reader reader)
{
    std::vector<VariableAccess> result;
    result.reserve(reader.countRest());
    while (!reader.atEnd()) {
        Reader member = reader.expectGroup(ber::tags::sequence, "listOfVariable");
        VariableAccess &access = result.emplace_back();
        access.variable = readVariableSpecification(member);
        Element element;
        if (member.takeIf(Tag::group(5), element))
            access.parts = readAlternateAccess(member.enter(element));
        member.expectEnd("listOfVariable");
    }
    return result;
}

void write(Writer &writer, const std::vector<VariableAccess> &list)
{
    for (auto access = list.rbegin(); access != list.rend(); ++access) {
        const std::size_t mark = writer.size();
        if (!access->parts.empty()) {
            writeAlternateAccess(writer, access->parts);
            writer.close(Tag::group(5), mark);
        }
        write(writer, access->variable);
        writer.close(ber::tags::sequence, mark);
    }
}

VariableAccessSpecification readVariableAccessSpecification(Reader &reader)
{
    Element element;
    if (reader.takeIf(Tag::group(0), element))
        return readVariableList(reader.enter(element));
    if (reader.peek() == Tag::group(1))
        return readObjectName(reader, Tag::group(1), "variableListName");
    reader.fail(
        say("The element %1 is missing or of an unknown kind.", "variableAccessSpecification"));
    return std::vector<VariableAccess>();
}

void write(Writer &writer, const VariableAccessSpecification &specification)
{
    if (const auto *name = std::get_if<ObjectName>(&specification))
        return write(writer, Tag::group(1), *name);
    const std::size_t mark = writer.size();
    write(writer, std::get<0>(specification));
    writer.close(Tag::group(0), mark);
}

} // namespace codec

} // namespace mms
