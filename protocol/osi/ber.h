// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/vocabulary.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace osi {

using Bytes = std::span<const std::uint8_t>;

/// A string of bits as ASN.1 has it: bit 0 is the highest bit of the first octet. The bits of the
/// last octet that do not count are zero.
class BitString
{
public:
    BitString() = default;
    /// @a size bits, all zero.
    explicit BitString(std::size_t size);
    /// The first @a size bits of @a octets; missing octets count as zero.
    BitString(Bytes octets, std::size_t size);
    /// One bit for each character of @a text, set for '1'.
    static BitString fromText(std::string_view text);

    std::size_t size() const noexcept { return m_size; }
    /// Whether bit @a index is set; a bit beyond the end is not.
    bool test(std::size_t index) const noexcept;
    /// Sets bit @a index, and grows the string when it ends before.
    void set(std::size_t index, bool value = true);
    Bytes octets() const noexcept { return m_octets; }
    /// '0' and '1', bit 0 first.
    std::string toText() const;

    friend bool operator==(const BitString &, const BitString &) = default;

private:
    std::vector<std::uint8_t> m_octets;
    std::size_t m_size = 0;
};

namespace ber {

enum class TagClass : std::uint8_t { Universal, Application, Context, Private };

/// Class, form and number of an identifier (ITU-T X.690, 8.1.2). Numbers go up to 16383.
class Tag
{
public:
    /// No tag at all: what a reader sees at the end.
    constexpr Tag() = default;
    constexpr Tag(TagClass tagClass, bool constructed, std::uint32_t number)
        : m_key(present | static_cast<std::uint32_t>(tagClass) << 22 |
                (constructed ? formBit : 0U) | number)
    {
    }
    /// [number] of the context, primitive form.
    static constexpr Tag context(std::uint32_t number)
    {
        return Tag(TagClass::Context, false, number);
    }
    /// [number] of the context, constructed form.
    static constexpr Tag group(std::uint32_t number)
    {
        return Tag(TagClass::Context, true, number);
    }

    constexpr bool isNone() const { return m_key == 0; }
    constexpr TagClass tagClass() const { return static_cast<TagClass>(m_key >> 22 & 3U); }
    constexpr bool isConstructed() const { return (m_key & formBit) != 0; }
    constexpr std::uint32_t number() const { return m_key & numberMask; }
    constexpr bool isContext() const { return !isNone() && tagClass() == TagClass::Context; }

    friend constexpr bool operator==(Tag, Tag) = default;

private:
    static constexpr std::uint32_t present = 1U << 31;
    static constexpr std::uint32_t formBit = 1U << 21;
    static constexpr std::uint32_t numberMask = 0x3FFF;

    std::uint32_t m_key = 0;
};

namespace tags {
inline constexpr Tag boolean{TagClass::Universal, false, 1};
inline constexpr Tag integer{TagClass::Universal, false, 2};
inline constexpr Tag bitString{TagClass::Universal, false, 3};
inline constexpr Tag octetString{TagClass::Universal, false, 4};
inline constexpr Tag null{TagClass::Universal, false, 5};
inline constexpr Tag objectIdentifier{TagClass::Universal, false, 6};
inline constexpr Tag external{TagClass::Universal, true, 8};
inline constexpr Tag sequence{TagClass::Universal, true, 16};
inline constexpr Tag set{TagClass::Universal, true, 17};
inline constexpr Tag generalizedTime{TagClass::Universal, false, 24};
inline constexpr Tag graphicString{TagClass::Universal, false, 25};
inline constexpr Tag visibleString{TagClass::Universal, false, 26};
} // namespace tags

/// What a reader accepts at most.
struct Limits
{
    /// Constructed elements inside each other.
    std::size_t depth = 32;
    /// Octets of the whole input.
    std::size_t length = std::size_t{16} * 1024 * 1024;
    /// Elements that lists of unknown length may bring, all lists of one input together.
    std::size_t count = 1000000;
};

/// One element: its tag and the octets inside, without the end-of-contents of an indefinite length.
/// The view is valid as long as the bytes that were given to the Input.
struct Element
{
    Tag tag;
    Bytes content;
    /// Where the content begins in the input.
    std::size_t offset = 0;
};

class Reader;

/// Bytes being decoded, and the first error found in them. After an error every reader of the input
/// is at its end and every conversion yields an empty value, so that a decoder needs to look only
/// once, when it is through. Stays where it is while readers of it exist.
class Input
{
public:
    explicit Input(Bytes bytes, const Limits &limits = {});
    Input(const Input &) = delete;
    Input &operator=(const Input &) = delete;

    /// A reader of the outermost elements.
    Reader reader();

    bool failed() const noexcept { return m_error.has_value(); }
    /// Valid only when failed().
    const Error &error() const noexcept { return *m_error; }
    /// Notes an error; the first one stays.
    void fail(Text message, std::size_t offset);

    /// @a value when nothing failed, the error otherwise.
    template <typename T>
    Result<T> finish(T &&value)
    {
        if (m_error)
            return std::move(*m_error);
        return Result<T>(std::forward<T>(value));
    }

private:
    friend class Reader;

    Bytes m_bytes;
    Limits m_limits;
    std::size_t m_countLeft = 0;
    std::optional<Error> m_error;
};

/// Walks through the elements of one level. Definite and indefinite lengths are read alike.
/// A copy walks on its own. Not usable after its Input is gone.
class Reader
{
public:
    Input &input() const noexcept { return *m_input; }
    bool failed() const noexcept { return m_input->failed(); }
    /// No element is left, or the input failed.
    bool atEnd() const noexcept { return m_position == m_end || failed(); }
    /// Where the next element begins in the input.
    std::size_t offset() const noexcept
    {
        return static_cast<std::size_t>(m_position - m_input->m_bytes.data());
    }
    void fail(Text message) { m_input->fail(std::move(message), offset()); }

    /// The tag of the next element; none at the end.
    Tag peek();
    /// Steps over the next element; false at the end and when it cannot be read.
    bool next(Element &element)
    {
        if (atEnd())
            return false;
        const auto left = static_cast<std::size_t>(m_end - m_position);
        if (left >= 2) [[likely]] {
            const std::uint8_t first = m_position[0];
            const std::size_t length = m_position[1];
            if ((first & 0x1FU) != 0x1F && length < 0x80 && length <= left - 2) [[likely]] {
                element.tag =
                    Tag(static_cast<TagClass>(first >> 6), (first & 0x20U) != 0, first & 0x1FU);
                element.content = {m_position + 2, length};
                element.offset = offset() + 2;
                m_position += 2 + length;
                return true;
            }
        }
        return readSlowly(element);
    }
    /// Steps over the next element when it has this tag.
    bool takeIf(Tag tag, Element &element);
    /// Steps over the next element, which must have this tag; @a what is its name in the standard.
    Element expect(Tag tag, std::string_view what);
    /// A reader of what is inside a constructed element.
    Reader enter(const Element &element);
    /// expect() and enter().
    Reader expectGroup(Tag tag, std::string_view what);
    /// Elements of this level that are left, taken from the count that the limits allow.
    std::size_t countRest();
    /// Elements of this level that are left; none where they cannot be read.
    std::size_t countAhead();
    /// Takes so many elements from the count that the limits allow; false when it is used up.
    bool allow(std::size_t count);
    /// Fails when an element is left; @a what is the name of the level in the standard.
    void expectEnd(std::string_view what);

    // What a primitive element holds. An element that holds something else fails the input.
    bool boolean(const Element &element);
    /// At most 8 octets.
    std::int64_t integer(const Element &element,
                         std::int64_t minimum = std::numeric_limits<std::int64_t>::min(),
                         std::int64_t maximum = std::numeric_limits<std::int64_t>::max());
    /// The octets as a number without sign, as some peers leave the leading zero octet away.
    std::uint64_t
    unsignedInteger(const Element &element,
                    std::uint64_t maximum = std::numeric_limits<std::uint64_t>::max());
    std::uint32_t unsigned32(const Element &element)
    {
        return static_cast<std::uint32_t>(
            unsignedInteger(element, std::numeric_limits<std::uint32_t>::max()));
    }
    std::int32_t integer32(const Element &element)
    {
        return static_cast<std::int32_t>(integer(element, std::numeric_limits<std::int32_t>::min(),
                                                 std::numeric_limits<std::int32_t>::max()));
    }
    std::string text(const Element &element);
    std::vector<std::uint8_t> octets(const Element &element);
    BitString bitString(const Element &element);
    void null(const Element &element);
    /// The numbers of an object identifier.
    std::vector<std::uint32_t> objectIdentifier(const Element &element);

private:
    friend class Input;
    Reader(Input *input, const std::uint8_t *begin, const std::uint8_t *end, std::size_t depth)
        : m_input(input)
        , m_position(begin)
        , m_end(end)
        , m_depth(depth)
    {
    }

    bool readSlowly(Element &element);
    const std::uint8_t *findEndOfContents(const std::uint8_t *from, std::size_t depth);
    bool readHeader(const std::uint8_t *&position, Tag &tag, std::size_t &length, bool &indefinite);

    Input *m_input;
    const std::uint8_t *m_position;
    const std::uint8_t *m_end;
    std::size_t m_depth;
};

/// Writes elements back to front: what shall stand last is written first, and a group is closed by
/// writing its tag and length before its content. So every length is definite and known, and a
/// lower layer puts its headers in front without copying.
class Writer
{
public:
    explicit Writer(std::size_t capacity = 256);

    /// Octets written.
    std::size_t size() const noexcept { return m_capacity - m_begin; }
    /// What was written; valid until the next call that writes, clears or takes.
    Bytes view() const noexcept { return {m_buffer.get() + m_begin, size()}; }
    std::vector<std::uint8_t> take();
    void clear() noexcept { m_begin = m_capacity; }

    void octet(std::uint8_t value)
    {
        if (m_begin == 0)
            grow(1);
        m_buffer[--m_begin] = value;
    }
    void octets(Bytes bytes);
    void header(Tag tag, std::size_t length);
    /// The header of a group whose content was written since size() was @a mark.
    void close(Tag tag, std::size_t mark) { header(tag, size() - mark); }

    void element(Tag tag, Bytes content);
    void boolean(Tag tag, bool value);
    void integer(Tag tag, std::int64_t value);
    /// Without the header.
    void integerContent(std::int64_t value);
    void unsignedInteger(Tag tag, std::uint64_t value);
    void text(Tag tag, std::string_view value);
    void bitString(Tag tag, const BitString &value);
    void bitString(Tag tag, Bytes content, std::size_t size);
    void null(Tag tag) { header(tag, 0); }
    void objectIdentifier(Tag tag, std::span<const std::uint32_t> numbers);

private:
    void grow(std::size_t needed);

    std::unique_ptr<std::uint8_t[]> m_buffer;
    std::size_t m_capacity;
    std::size_t m_begin;
};

/// Why an association ends with a peer whose octets are no message.
inline Text unreadable(const Error &error)
{
    return say("What the peer sent cannot be read: %1.", error.message);
}

} // namespace ber

} // namespace osi
