// SPDX-License-Identifier: Apache-2.0
#include "mms/datacodec.h"

#include "mms/bigendian.h"

#include <algorithm>
#include <cstring>

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

namespace {

constexpr std::uint8_t floatExponentWidth = 8;
constexpr std::uint8_t doubleExponentWidth = 11;

constexpr wording::Pattern<0> noValue = "An element that is no value stands where a value belongs.";

/// The elements that are left, with all that groups among them hold.
std::size_t countNested(Reader reader)
{
    std::size_t count = 0;
    Element element;
    for (; reader.next(element); ++count) {
        if (element.tag.isConstructed())
            count += countNested(reader.enter(element));
    }
    return count;
}

/// The same in one go through the octets, as most values allow it. What lengths that contradict
/// each other lead to is any number.
std::optional<std::size_t> countNestedQuickly(Bytes content)
{
    std::size_t count = 0;
    const std::uint8_t *p = content.data();
    const std::uint8_t *const end = p + content.size();
    for (; p != end; ++count) {
        const auto left = static_cast<std::size_t>(end - p);
        if (left < 2 || (p[0] & 0x1FU) == 0x1F)
            return std::nullopt;
        std::size_t header = 2;
        std::size_t length = p[1];
        if (length >= 0x80) {
            header += length & 0x7FU;
            if (length == 0x80 || header > 4 || header > left)
                return std::nullopt;
            length = header == 3 ? p[2] : std::size_t{p[2]} << 8U | p[3];
        }
        if (length > left - header)
            return std::nullopt;
        p += (p[0] & 0x20U) != 0 ? header : header + length;
    }
    return count;
}

} // namespace

void DataCodec::readInto(Reader &reader, const Element &element, Data &data, Room *room)
{
    // Apart, because the many values without anything inside would pay for what groups need.
    struct Parts
    {
        [[gnu::always_inline]] static inline void leaf(Reader &reader, const Element &element,
                                                       Data &data)
        {
            const Bytes content = element.content;
            const auto kind = static_cast<Data::Kind>(element.tag.number());
            const auto refuse = [&](Text message) {
                reader.input().fail(std::move(message), element.offset);
            };
            // The value is a new one, so that nothing is to be released.
            const auto setNumber = [&](std::uint64_t bits) {
                data.m_kind = kind;
                data.m_size = 1;
                data.m_content.bits = bits;
            };
            const auto copyOctets = [&] {
                std::uint8_t *const place = data.makeRoom(kind, content.size());
                if (!content.empty())
                    std::memcpy(place, content.data(), content.size());
            };
            switch (kind) {
            case Data::Kind::Boolean:
                setNumber(reader.boolean(element) ? 1U : 0U);
                return;
            case Data::Kind::Integer:
                setNumber(static_cast<std::uint64_t>(reader.integer(element)));
                return;
            case Data::Kind::Unsigned:
            case Data::Kind::Bcd:
                setNumber(reader.unsignedInteger(element));
                return;
            case Data::Kind::FloatingPoint:
                if (content.size() == 5 && content[0] == floatExponentWidth) {
                    setNumber(bigEndian(content.subspan<1, 4>()));
                    data.m_width = 32;
                } else if (content.size() == 9 && content[0] == doubleExponentWidth) {
                    setNumber(bigEndian(content.subspan<1, 8>()));
                    data.m_width = 64;
                } else {
                    refuse(say("A floating-point number has neither 32 nor 64 bits."));
                }
                return;
            case Data::Kind::BitString:
            case Data::Kind::BooleanArray: {
                if (content.empty() || content[0] > 7 || (content.size() == 1 && content[0] != 0))
                    return refuse(say("A bit string does not say how many of its bits count."));
                const std::size_t octets = content.size() - 1;
                std::uint8_t *const place = data.makeRoom(kind, octets * 8 - content[0]);
                if (octets == 0)
                    return;
                std::memcpy(place, content.data() + 1, octets);
                place[octets - 1] =
                    static_cast<std::uint8_t>(place[octets - 1] & (0xFFU << content[0] & 0xFFU));
                return;
            }
            case Data::Kind::BinaryTime:
                if (content.size() != 4 && content.size() != 6)
                    return refuse(say("A binary time has neither 4 nor 6 octets."));
                return copyOctets();
            case Data::Kind::UtcTime:
                if (content.size() != 8)
                    return refuse(say("A UTC time has not 8 octets."));
                data.m_kind = kind;
                data.m_size = 8;
                std::memcpy(data.m_content.inside, content.data(), 8);
                return;
            // A value that is no object identifier must not cost the values beside it.
            case Data::Kind::ObjectIdentifier:
            case Data::Kind::OctetString:
            case Data::Kind::VisibleString:
            case Data::Kind::GeneralizedTime:
            case Data::Kind::MmsString:
                return copyOctets();
            case Data::Kind::Array:
            case Data::Kind::Structure:
                break;
            }
            refuse(say(noValue));
        }

        [[gnu::noinline]] static void group(Reader &reader, const Element &element, Data &data,
                                            Room *room)
        {
            const auto kind = static_cast<Data::Kind>(element.tag.number());
            if (kind != Data::Kind::Structure && kind != Data::Kind::Array) {
                reader.input().fail(say(noValue), element.offset);
                return;
            }
            Reader inner = reader.enter(element);
            data.m_kind = kind;
            const std::size_t count = inner.countAhead();
            if (count == 0)
                return;
            Room own;
            data.m_isBorrowed = room != nullptr;
            if (!room) {
                const auto quick = countNestedQuickly(element.content);
                const std::size_t all = quick ? *quick : countNested(inner);
                if (!inner.allow(all))
                    return;
                own.next = new Data[all];
                own.end = own.next + all;
                room = &own;
            }
            Data *place = room->next;
            const auto left = static_cast<std::size_t>(room->end - place);
            data.m_content.children = place;
            data.m_size = static_cast<std::uint32_t>(std::min(count, left));
            if (count > left) {
                inner.input().fail(say("An element is longer than the group that it is in."),
                                   element.offset);
                return;
            }
            room->next += count;
            Element child;
            for (; inner.next(child); ++place) {
                if (!child.tag.isContext())
                    inner.input().fail(say(noValue), child.offset);
                else if (child.tag.isConstructed())
                    group(inner, child, *place, room);
                else
                    leaf(inner, child, *place);
            }
        }
    };

    if (!element.tag.isContext())
        reader.input().fail(say(noValue), element.offset);
    else if (element.tag.isConstructed())
        Parts::group(reader, element, data, room);
    else
        Parts::leaf(reader, element, data);
}

Data DataCodec::read(Reader &reader, const Element &element)
{
    Data data;
    if (!reader.failed())
        readInto(reader, element, data);
    return data;
}

Data DataCodec::readNext(Reader &reader)
{
    Element element;
    if (!reader.next(element))
        reader.fail(say("The element %1 is missing.", "Data"));
    return read(reader, element);
}

std::vector<Data> DataCodec::readAll(Reader &reader)
{
    std::vector<Data> result(reader.countRest());
    Element element;
    for (auto place = result.begin(); reader.next(element); ++place)
        readInto(reader, element, *place);
    return result;
}

std::vector<AccessResult> DataCodec::readResults(Reader &reader)
{
    std::vector<AccessResult> result;
    result.reserve(reader.countRest());
    Element element;
    while (reader.next(element)) {
        if (element.tag == Tag::context(0))
            result.emplace_back(static_cast<DataAccessError>(reader.integer32(element)));
        else
            readInto(reader, element, result.emplace_back(Data()).m_data);
    }
    return result;
}

void DataCodec::write(Writer &writer, const Data &data)
{
    const auto number = static_cast<std::uint32_t>(data.m_kind);
    switch (data.m_kind) {
    case Data::Kind::Array:
    case Data::Kind::Structure: {
        const std::size_t mark = writer.size();
        const auto children = data.children();
        for (std::size_t i = children.size(); i-- > 0;)
            write(writer, children[i]);
        writer.close(Tag::group(number), mark);
        return;
    }
    case Data::Kind::Boolean:
        writer.boolean(Tag::context(number), data.m_content.bits != 0);
        return;
    case Data::Kind::Integer:
        writer.integer(Tag::context(number), static_cast<std::int64_t>(data.m_content.bits));
        return;
    case Data::Kind::Unsigned:
    case Data::Kind::Bcd:
        writer.unsignedInteger(Tag::context(number), data.m_content.bits);
        return;
    case Data::Kind::FloatingPoint: {
        const std::size_t size = data.m_width / 8U;
        writer.octets(Bytes(bigEndian(data.m_content.bits, size)).first(size));
        writer.octet(size == 8 ? doubleExponentWidth : floatExponentWidth);
        writer.header(Tag::context(number), size + 1);
        return;
    }
    case Data::Kind::BitString:
    case Data::Kind::BooleanArray:
        writer.bitString(Tag::context(number), data.octets(), data.m_size);
        return;
    case Data::Kind::OctetString:
    case Data::Kind::VisibleString:
    case Data::Kind::GeneralizedTime:
    case Data::Kind::BinaryTime:
    case Data::Kind::ObjectIdentifier:
    case Data::Kind::MmsString:
    case Data::Kind::UtcTime:
        writer.element(Tag::context(number), data.octets());
        return;
    }
}

void DataCodec::write(Writer &writer, const AccessResult &result)
{
    if (result.ok())
        write(writer, result.data());
    else
        writer.integer(Tag::context(0), static_cast<std::int32_t>(result.error()));
}

} // namespace mms
