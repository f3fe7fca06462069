// SPDX-License-Identifier: Apache-2.0
#include "mms/data.h"

#include "mms/bigendian.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace mms {

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
    ber::Writer writer(32);
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

} // namespace mms
