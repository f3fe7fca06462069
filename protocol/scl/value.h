// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory_resource>
#include <span>
#include <string_view>
#include <variant>

namespace scl {

/// Basic types of data attributes (IEC 61850-6, attribute `bType`).
/// All visible strings, all Unicode strings and all octet strings are one type each here; the exact
/// name with its length stays in `TemplateNode::basicTypeName`.
enum class BasicType : std::uint8_t {
    Struct,
    Boolean,
    Int8,
    Int16,
    Int24,
    Int32,
    Int64,
    Int128,
    Int8U,
    Int16U,
    Int24U,
    Int32U,
    Int64U,
    Float32,
    Float64,
    Enum,
    Dbpos,
    Tcmd,
    Check,
    Quality,
    Timestamp,
    EntryTime,
    VisString,
    Unicode,
    Octet,
    ObjRef,
    Currency,
    PhyComAddr,
    TrgOps,
    OptFlds,
    SvOptFlds,
    EntryId,
    Other ///< a name that no edition of the standard knows; values are kept as text
};

/// One literal of an enumeration.
struct EnumLiteral
{
    std::int32_t ordinal = 0;
    std::string_view text;
};

/// An enumeration type of the file. Views live as long as the `Document`.
struct Enumeration
{
    std::string_view id;
    std::span<const EnumLiteral> literals; ///< in the order of the file, ordinals unique
};

/// A configured value in the type of its attribute:
/// - no value: `std::monostate`
/// - BOOLEAN: `bool`
/// - signed integers, enumerations, Dbpos, Tcmd, Check: `std::int64_t` (the ordinal)
/// - unsigned integers: `std::uint64_t`
/// - FLOAT32, FLOAT64: `double`
/// - bit strings: text of '0' and '1', bit 0 first; Quality always 13 characters
/// - octet strings: text of hexadecimal digits
/// - time stamps: ISO 8601 text in UTC with milliseconds or finer
/// - everything else: the text
using Value =
    std::variant<std::monostate, bool, std::int64_t, std::uint64_t, double, std::string_view>;

/// What had to be forgiven to understand a text.
enum class ValueNote : std::uint8_t {
    None,
    Empty,           ///< nothing is written, and the type is not a text: no value
    OrdinalForText,  ///< an enumeration value given by its number
    Blanks,          ///< blanks around the text, or another case than the enumeration's
    BooleanSpelling, ///< a truth value that is neither "true" nor "false"
    Unfit            ///< not a value of the type: no value
};

struct ParsedValue
{
    Value value;
    ValueNote note = ValueNote::None;
};

/// Converts the text of a `Val` element.
/// @param enumeration may be null; then only ordinals of an Enum can be understood, and Dbpos, Tcmd
///        and Check use the literals of the standard.
/// @param memory holds texts that had to be rewritten; it must outlive the returned value, as must
///        @p text.
ParsedValue parseValue(BasicType type, const Enumeration *enumeration, std::string_view text,
                       std::pmr::memory_resource &memory);

/// Text without blanks, tabs and line ends at both sides.
std::string_view trimmed(std::string_view text);

/// Compares with the letters A to Z equal to a to z.
bool equalIgnoringCase(std::string_view left, std::string_view right);

} // namespace scl
