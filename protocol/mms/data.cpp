// SPDX-License-Identifier: Apache-2.0
#include "mms/data.h"

#include "mms/codec.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstdio>
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

std::uint64_t bigEndian(Bytes octets)
{
    std::uint64_t value = 0;
    for (const std::uint8_t octet : octets)
        value = value << 8 | octet;
    return value;
}

/// The lowest @a size octets of @a value, highest first.
std::array<std::uint8_t, 8> bigEndian(std::uint64_t value, std::size_t size)
{
    std::array<std::uint8_t, 8> result{};
    for (std::size_t i = size; i-- > 0; value >>= 8)
        result[i] = static_cast<std::uint8_t>(value & 0xFFU);
    return result;
}

template <typename... Arguments>
std::string printed(const char *format, Arguments... arguments)
{
    char buffer[64];
    const int size = std::snprintf(buffer, sizeof buffer, format, arguments...);
    return std::string(buffer, static_cast<std::size_t>(std::max(size, 0)));
}

std::string hexText(Bytes octets)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string result;
    result.reserve(octets.size() * 2);
    for (const std::uint8_t octet : octets) {
        result += digits[octet >> 4];
        result += digits[octet & 15U];
    }
    return result;
}

template <typename Number>
std::string shortest(Number number)
{
    char buffer[64];
    const auto [end, failure] = std::to_chars(buffer, buffer + sizeof buffer, number);
    return failure == std::errc() ? std::string(buffer, end) : std::string();
}

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

Data Data::group(Kind kind, std::vector<Data> children)
{
    Data result;
    result.m_kind = kind;
    if (!children.empty()) {
        result.m_content.children = new Data[children.size()];
        result.m_size = static_cast<std::uint32_t>(children.size());
        std::move(children.begin(), children.end(), result.m_content.children);
    }
    return result;
}

Data Data::array(std::vector<Data> elements)
{
    return group(Kind::Array, std::move(elements));
}

Data Data::structure(std::vector<Data> members)
{
    return group(Kind::Structure, std::move(members));
}

Data Data::float32(float value)
{
    Data result = number(Kind::FloatingPoint, std::bit_cast<std::uint32_t>(value));
    result.m_width = 32;
    return result;
}

Data Data::float64(double value)
{
    Data result = number(Kind::FloatingPoint, std::bit_cast<std::uint64_t>(value));
    result.m_width = 64;
    return result;
}

std::uint8_t *Data::makeRoom(Kind kind, std::size_t size)
{
    m_kind = kind;
    m_size = static_cast<std::uint32_t>(size);
    const std::size_t octets = octetCount();
    if (octets <= insideSize)
        return m_content.inside;
    m_content.octets = new std::uint8_t[octets];
    return m_content.octets;
}

Data Data::withOctets(Kind kind, Bytes octets, std::size_t size)
{
    Data result;
    std::uint8_t *const room = result.makeRoom(kind, size);
    if (!octets.empty())
        std::memcpy(room, octets.data(), octets.size());
    return result;
}

Data Data::bitString(const mms::BitString &bits)
{
    return withOctets(Kind::BitString, bits.octets(), bits.size());
}

Data Data::booleanArray(const mms::BitString &bits)
{
    return withOctets(Kind::BooleanArray, bits.octets(), bits.size());
}

Data Data::octetString(Bytes octets)
{
    return withOctets(Kind::OctetString, octets, octets.size());
}

Data Data::visibleString(std::string_view text)
{
    return withOctets(Kind::VisibleString,
                      {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()},
                      text.size());
}

Data Data::mmsString(std::string_view text)
{
    Data result = visibleString(text);
    result.m_kind = Kind::MmsString;
    return result;
}

Data Data::generalizedTime(std::string_view text)
{
    Data result = visibleString(text);
    result.m_kind = Kind::GeneralizedTime;
    return result;
}

Data Data::binaryTime(const mms::BinaryTime &time)
{
    const std::uint64_t bits =
        time.days ? std::uint64_t{time.milliseconds} << 16 | *time.days : time.milliseconds;
    const std::size_t size = time.days ? 6 : 4;
    return withOctets(Kind::BinaryTime, Bytes(bigEndian(bits, size)).first(size), size);
}

Data Data::utcTime(const mms::UtcTime &time)
{
    const std::uint64_t bits = std::uint64_t{time.seconds} << 32 |
                               std::uint64_t{time.fraction & 0xFFFFFFU} << 8 | time.quality;
    return withOctets(Kind::UtcTime, bigEndian(bits, 8), 8);
}

Data Data::objectIdentifier(std::span<const std::uint32_t> numbers)
{
    Writer writer(32);
    writer.objectIdentifier(ber::tags::objectIdentifier, numbers);
    const Bytes content = writer.view().subspan(2);
    return withOctets(Kind::ObjectIdentifier, content, content.size());
}

void Data::freeMemory() noexcept
{
    if (isGroup())
        delete[] m_content.children;
    else
        delete[] m_content.octets;
}

void Data::stealBorrowed(Data &other) noexcept
{
    auto *const children = new Data[other.m_size];
    for (std::uint32_t i = 0; i < other.m_size; ++i)
        children[i].stealFrom(other.m_content.children[i]);
    m_kind = other.m_kind;
    m_width = other.m_width;
    m_isBorrowed = false;
    m_size = other.m_size;
    m_content.children = children;
    other.m_kind = Kind::Structure;
    other.m_isBorrowed = false;
    other.m_size = 0;
}

void Data::copyFrom(const Data &other)
{
    if (!other.ownsMemory() && !other.m_isBorrowed) {
        m_content = other.m_content;
    } else if (other.isGroup()) {
        m_content.children = new Data[other.m_size];
        std::copy_n(other.m_content.children, other.m_size, m_content.children);
    } else {
        m_content.octets = new std::uint8_t[other.octetCount()];
        std::memcpy(m_content.octets, other.m_content.octets, other.octetCount());
    }
    m_kind = other.m_kind;
    m_width = other.m_width;
    m_size = other.m_size;
}

std::optional<bool> Data::toBoolean() const
{
    if (m_kind != Kind::Boolean)
        return std::nullopt;
    return m_content.bits != 0;
}

std::optional<std::int64_t> Data::toInteger() const
{
    const auto value = static_cast<std::int64_t>(m_content.bits);
    if (m_kind == Kind::Integer ||
        ((m_kind == Kind::Unsigned || m_kind == Kind::Bcd) && value >= 0))
        return value;
    return std::nullopt;
}

std::optional<std::uint64_t> Data::toUnsigned() const
{
    if (m_kind == Kind::Unsigned || m_kind == Kind::Bcd ||
        (m_kind == Kind::Integer && static_cast<std::int64_t>(m_content.bits) >= 0))
        return m_content.bits;
    return std::nullopt;
}

std::optional<double> Data::toDouble() const
{
    if (m_kind != Kind::FloatingPoint)
        return std::nullopt;
    if (m_width == 64)
        return std::bit_cast<double>(m_content.bits);
    return std::bit_cast<float>(static_cast<std::uint32_t>(m_content.bits));
}

std::optional<mms::BinaryTime> Data::toBinaryTime() const
{
    if (m_kind != Kind::BinaryTime)
        return std::nullopt;
    const Bytes bytes = octets();
    mms::BinaryTime time;
    time.milliseconds = static_cast<std::uint32_t>(bigEndian(bytes.first(4)));
    if (bytes.size() == 6)
        time.days = static_cast<std::uint16_t>(bigEndian(bytes.subspan(4)));
    return time;
}

std::optional<mms::UtcTime> Data::toUtcTime() const
{
    if (m_kind != Kind::UtcTime)
        return std::nullopt;
    const std::uint64_t bits = bigEndian(octets());
    return mms::UtcTime{static_cast<std::uint32_t>(bits >> 32),
                        static_cast<std::uint32_t>(bits >> 8 & 0xFFFFFFU),
                        static_cast<std::uint8_t>(bits & 0xFFU)};
}

std::string_view Data::text() const noexcept
{
    if (m_kind != Kind::VisibleString && m_kind != Kind::MmsString &&
        m_kind != Kind::GeneralizedTime)
        return {};
    const Bytes bytes = octets();
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

Bytes Data::octets() const noexcept
{
    if (!isOctets())
        return {};
    const std::size_t count = octetCount();
    return {count > insideSize ? m_content.octets : m_content.inside, count};
}

mms::BitString Data::bits() const
{
    return isBits() ? mms::BitString(octets(), m_size) : mms::BitString();
}

bool Data::testBit(std::size_t index) const noexcept
{
    return isBits() && index < m_size && (octets()[index / 8] & (0x80U >> (index % 8))) != 0;
}

std::vector<std::uint32_t> Data::toObjectIdentifier() const
{
    if (m_kind != Kind::ObjectIdentifier)
        return {};
    const Bytes bytes = octets();
    ber::Input input(bytes);
    return input.reader().objectIdentifier({ber::tags::objectIdentifier, bytes, 0});
}

bool operator==(const Data &left, const Data &right)
{
    if (left.m_kind != right.m_kind || left.m_size != right.m_size)
        return false;
    if (left.isGroup()) {
        const auto a = left.children();
        const auto b = right.children();
        return std::equal(a.begin(), a.end(), b.begin());
    }
    if (left.isOctets()) {
        const Bytes a = left.octets();
        const Bytes b = right.octets();
        return std::equal(a.begin(), a.end(), b.begin());
    }
    return left.m_width == right.m_width && left.m_content.bits == right.m_content.bits;
}

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

Result<Data> decodeData(Bytes bytes, const ber::Limits &limits)
{
    ber::Input input(bytes, limits);
    Reader reader = input.reader();
    Data data = DataCodec::readNext(reader);
    reader.expectEnd("Data");
    return input.finish(std::move(data));
}

std::vector<std::uint8_t> encode(const Data &data)
{
    Writer writer;
    DataCodec::write(writer, data);
    return writer.take();
}

Text describe(DataAccessError error)
{
    switch (error) {
    case DataAccessError::ObjectInvalidated:
        return say("The object is no longer valid.");
    case DataAccessError::HardwareFault:
        return say("The device reports a hardware fault.");
    case DataAccessError::TemporarilyUnavailable:
        return say("The object is not available at the moment.");
    case DataAccessError::ObjectAccessDenied:
        return say("Access to the object is denied.");
    case DataAccessError::ObjectUndefined:
        return say("The object is not defined.");
    case DataAccessError::InvalidAddress:
        return say("The address is not valid.");
    case DataAccessError::TypeUnsupported:
        return say("The type is not supported.");
    case DataAccessError::TypeInconsistent:
        return say("The value has not the type of the object.");
    case DataAccessError::ObjectAttributeInconsistent:
        return say("The attributes of the object contradict each other.");
    case DataAccessError::ObjectAccessUnsupported:
        return say("The object cannot be accessed in this way.");
    case DataAccessError::ObjectNonExistent:
        return say("The object does not exist.");
    case DataAccessError::ObjectValueInvalid:
        return say("The value is not allowed for the object.");
    }
    return say("The device reports the unknown data access error %1.",
               static_cast<std::int32_t>(error));
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        const auto octet = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            result += '\\';
            result += c;
        } else if (octet < 0x20 || octet >= 0x7F) {
            result += printed("\\x%02x", static_cast<unsigned>(octet));
        } else {
            result += c;
        }
    }
    return result + '"';
}

std::string toText(const Data &data)
{
    switch (data.kind()) {
    case Data::Kind::Array:
    case Data::Kind::Structure: {
        const bool isArray = data.kind() == Data::Kind::Array;
        std::string result(1, isArray ? '[' : '{');
        for (const Data &child : data.children()) {
            if (result.size() > 1)
                result += ", ";
            result += toText(child);
        }
        return result + (isArray ? ']' : '}');
    }
    case Data::Kind::Boolean:
        return *data.toBoolean() ? "true" : "false";
    case Data::Kind::Integer:
        return std::to_string(*data.toInteger());
    case Data::Kind::Unsigned:
    case Data::Kind::Bcd:
        return std::to_string(*data.toUnsigned());
    case Data::Kind::FloatingPoint:
        return data.isDouble() ? shortest(*data.toDouble())
                               : shortest(static_cast<float>(*data.toDouble()));
    case Data::Kind::BitString:
    case Data::Kind::BooleanArray:
        return '\'' + data.bits().toText() + "'B";
    case Data::Kind::OctetString:
        return '\'' + hexText(data.octets()) + "'H";
    case Data::Kind::VisibleString:
    case Data::Kind::MmsString:
    case Data::Kind::GeneralizedTime:
        return quoted(data.text());
    case Data::Kind::BinaryTime:
        return toText(*data.toBinaryTime());
    case Data::Kind::UtcTime:
        return toText(*data.toUtcTime());
    case Data::Kind::ObjectIdentifier: {
        std::string result;
        const std::vector<std::uint32_t> numbers = data.toObjectIdentifier();
        if (numbers.empty())
            return '\'' + hexText(data.octets()) + "'H";
        for (const std::uint32_t number : numbers)
            result.append(result.empty() ? "" : ".").append(std::to_string(number));
        return result;
    }
    }
    return {};
}

std::string toText(const AccessResult &result)
{
    return result.ok() ? toText(result.data())
                       : "failure: " + codec::withoutFullStop(describe(result.error()));
}

} // namespace mms
