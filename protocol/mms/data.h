// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/times.h"
#include "mms/vocabulary.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mms {

/// A value as MMS carries it: one choice of Data (ISO 9506-2, 14.4.2), with everything inside it.
/// 16 octets; texts, octets and bits of up to 8 octets are kept inside. A default value is a
/// structure without members. Views of a value are valid until it is changed, moved or destroyed.
/// Numbers keep what they are, not how many octets carried them; a NaN keeps its bits.
class Data
{
public:
    /// The numbers are the tags of the choice.
    enum class Kind : std::uint8_t {
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
        BooleanArray = 14,
        ObjectIdentifier = 15,
        MmsString = 16,
        UtcTime = 17,
    };

    Data() noexcept = default;
    Data(const Data &other) { copyFrom(other); }
    Data(Data &&other) noexcept { stealFrom(other); }
    Data &operator=(const Data &other)
    {
        if (this != &other) {
            Data copy(other);
            release();
            stealFrom(copy);
        }
        return *this;
    }
    Data &operator=(Data &&other) noexcept
    {
        if (this != &other) {
            // What is assigned may be inside this value.
            Data taken(std::move(other));
            release();
            stealFrom(taken);
        }
        return *this;
    }
    ~Data() { release(); }

    static Data array(std::vector<Data> elements);
    static Data structure(std::vector<Data> members);
    static Data boolean(bool value) { return number(Kind::Boolean, value ? 1U : 0U); }
    static Data integer(std::int64_t value)
    {
        return number(Kind::Integer, static_cast<std::uint64_t>(value));
    }
    static Data unsignedInteger(std::uint64_t value) { return number(Kind::Unsigned, value); }
    static Data bcd(std::uint64_t value) { return number(Kind::Bcd, value); }
    static Data float32(float value);
    static Data float64(double value);
    static Data bitString(const mms::BitString &bits);
    static Data booleanArray(const mms::BitString &bits);
    static Data octetString(Bytes octets);
    static Data visibleString(std::string_view text);
    static Data mmsString(std::string_view text);
    static Data generalizedTime(std::string_view text);
    static Data binaryTime(const mms::BinaryTime &time);
    static Data utcTime(const mms::UtcTime &time);
    static Data objectIdentifier(std::span<const std::uint32_t> numbers);

    Kind kind() const noexcept { return m_kind; }
    /// Elements, members, bits or octets; 1 for a number.
    std::size_t size() const noexcept { return m_size; }

    /// What is in an array or structure; nothing for another kind.
    std::span<const Data> children() const noexcept
    {
        return isGroup() ? std::span<const Data>(m_content.children, m_size)
                         : std::span<const Data>();
    }
    std::span<Data> children() noexcept
    {
        return isGroup() ? std::span<Data>(m_content.children, m_size) : std::span<Data>();
    }

    // None where the value is of another kind or does not fit.
    std::optional<bool> toBoolean() const;
    std::optional<std::int64_t> toInteger() const;
    std::optional<std::uint64_t> toUnsigned() const;
    /// Of both widths.
    std::optional<double> toDouble() const;
    std::optional<mms::BinaryTime> toBinaryTime() const;
    std::optional<mms::UtcTime> toUtcTime() const;
    /// Whether a floating-point number has 64 bits.
    bool isDouble() const noexcept { return m_kind == Kind::FloatingPoint && m_width == 64; }

    // Empty where the value is of another kind.
    /// A visible-string, mMSString or generalized-time.
    std::string_view text() const noexcept;
    /// An octet-string, the octets of a bit-string or time, or a text's.
    Bytes octets() const noexcept;
    /// A bit-string or booleanArray.
    mms::BitString bits() const;
    /// Whether bit @a index of a bit-string is set; a bit beyond the end is not.
    bool testBit(std::size_t index) const noexcept;
    /// Empty for what is none, also where the octets of an object identifier are none.
    std::vector<std::uint32_t> toObjectIdentifier() const;

    friend bool operator==(const Data &left, const Data &right);

private:
    friend class AccessResult;
    friend class DataCodec;

    static constexpr Kind failureKind = static_cast<Kind>(0);
    static constexpr std::size_t insideSize = 8;

    static Data number(Kind kind, std::uint64_t bits) noexcept
    {
        Data result;
        result.m_kind = kind;
        result.m_size = 1;
        result.m_content.bits = bits;
        return result;
    }
    static Data withOctets(Kind kind, Bytes octets, std::size_t size);
    static Data group(Kind kind, std::vector<Data> children);

    bool isGroup() const noexcept { return m_kind == Kind::Structure || m_kind == Kind::Array; }
    bool isBits() const noexcept
    {
        return m_kind == Kind::BitString || m_kind == Kind::BooleanArray;
    }
    bool isOctets() const noexcept
    {
        return isBits() || (m_kind >= Kind::OctetString && m_kind != Kind::Bcd);
    }
    std::size_t octetCount() const noexcept { return isBits() ? (m_size + 7U) / 8U : m_size; }
    bool ownsMemory() const noexcept
    {
        return isGroup() ? m_size != 0 && !m_isBorrowed : isOctets() && octetCount() > insideSize;
    }
    void release() noexcept
    {
        if (ownsMemory())
            freeMemory();
    }
    void freeMemory() noexcept;
    void stealFrom(Data &other) noexcept
    {
        if (other.m_isBorrowed) {
            stealBorrowed(other);
            return;
        }
        m_kind = other.m_kind;
        m_width = other.m_width;
        m_size = other.m_size;
        m_content = other.m_content;
        other.m_kind = Kind::Structure;
        other.m_size = 0;
    }
    void stealBorrowed(Data &other) noexcept;
    void copyFrom(const Data &other);
    /// Room for octets of a value that holds none yet.
    std::uint8_t *makeRoom(Kind kind, std::size_t size)
    {
        m_kind = kind;
        m_size = static_cast<std::uint32_t>(size);
        const std::size_t octets = octetCount();
        if (octets <= insideSize)
            return m_content.inside;
        m_content.octets = new std::uint8_t[octets];
        return m_content.octets;
    }

    union Content {
        std::uint64_t bits;
        std::uint8_t inside[insideSize];
        std::uint8_t *octets;
        Data *children;
    };

    Kind m_kind = Kind::Structure;
    std::uint8_t m_width = 0;
    /// A group that was read within another one: the outermost group owns one block with the
    /// children of all of them.
    bool m_isBorrowed = false;
    std::uint32_t m_size = 0;
    Content m_content = {};
};

static_assert(sizeof(Data) == 16);

/// Why a single variable could not be read or written (ISO 9506-2, DataAccessError). A number that
/// the standard does not know is kept.
enum class DataAccessError : std::int32_t {
    ObjectInvalidated = 0,
    HardwareFault = 1,
    TemporarilyUnavailable = 2,
    ObjectAccessDenied = 3,
    ObjectUndefined = 4,
    InvalidAddress = 5,
    TypeUnsupported = 6,
    TypeInconsistent = 7,
    ObjectAttributeInconsistent = 8,
    ObjectAccessUnsupported = 9,
    ObjectNonExistent = 10,
    ObjectValueInvalid = 11,
};

/// A sentence for the operator.
Text describe(DataAccessError error);

/// What one variable of a read or report gave: a value, or why there is none.
class AccessResult
{
public:
    AccessResult(Data data) noexcept
        : m_data(std::move(data))
    {
    }
    AccessResult(DataAccessError error) noexcept
        : m_data(Data::number(Data::failureKind, static_cast<std::uint32_t>(error)))
    {
    }

    bool ok() const noexcept { return m_data.m_kind != Data::failureKind; }
    /// Only when ok().
    const Data &data() const &noexcept { return m_data; }
    Data &data() &noexcept { return m_data; }
    Data &&data() &&noexcept { return std::move(m_data); }
    /// Only when not ok().
    DataAccessError error() const noexcept
    {
        return static_cast<DataAccessError>(static_cast<std::uint32_t>(m_data.m_content.bits));
    }

    friend bool operator==(const AccessResult &, const AccessResult &) = default;

private:
    friend class DataCodec;

    Data m_data;
};

} // namespace mms
