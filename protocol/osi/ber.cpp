// SPDX-License-Identifier: Apache-2.0
#include "osi/ber.h"

#include <algorithm>
#include <cstring>

namespace osi {

BitString::BitString(std::size_t size)
    : m_octets((size + 7) / 8)
    , m_size(size)
{
}

BitString::BitString(Bytes octets, std::size_t size)
    : BitString(size)
{
    std::copy_n(octets.begin(), std::min(octets.size(), m_octets.size()), m_octets.begin());
    if (size % 8 != 0)
        m_octets.back() = static_cast<std::uint8_t>(m_octets.back() & (0xFF00U >> (size % 8)));
}

BitString BitString::fromText(std::string_view text)
{
    BitString result(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        result.set(i, text[i] == '1');
    return result;
}

bool BitString::test(std::size_t index) const noexcept
{
    return index < m_size && (m_octets[index / 8] & (0x80U >> (index % 8))) != 0;
}

void BitString::set(std::size_t index, bool value)
{
    if (index >= m_size) {
        m_size = index + 1;
        m_octets.resize((m_size + 7) / 8);
    }
    const auto mask = static_cast<std::uint8_t>(0x80U >> (index % 8));
    std::uint8_t &octet = m_octets[index / 8];
    octet = static_cast<std::uint8_t>(value ? octet | mask : octet & ~mask);
}

std::string BitString::toText() const
{
    std::string result(m_size, '0');
    for (std::size_t i = 0; i < m_size; ++i) {
        if (test(i))
            result[i] = '1';
    }
    return result;
}

namespace ber {

Input::Input(Bytes bytes, const Limits &limits)
    : m_bytes(bytes)
    , m_limits(limits)
    , m_countLeft(limits.count)
{
    if (bytes.size() > limits.length)
        fail(say("The message is longer than allowed."), limits.length);
}

Reader Input::reader()
{
    return Reader(this, m_bytes.data(), m_bytes.data() + m_bytes.size(), 0);
}

void Input::fail(Text message, std::size_t offset)
{
    if (!m_error)
        m_error = Error{std::move(message), offset};
}

bool Reader::readHeader(const std::uint8_t *&position, Tag &tag, std::size_t &length,
                        bool &indefinite)
{
    const auto offsetOf = [this](const std::uint8_t *place) {
        return static_cast<std::size_t>(place - m_input->m_bytes.data());
    };
    const std::uint8_t *const begin = position;
    const auto truncated = [&] {
        m_input->fail(say("The message ends within an element."), offsetOf(begin));
        return false;
    };
    const std::uint8_t *p = position;
    if (p == m_end)
        return truncated();
    const std::uint8_t first = *p++;
    std::uint32_t number = first & 0x1FU;
    if (number == 0x1F) {
        number = 0;
        std::uint8_t octet = 0;
        do {
            if (p == m_end)
                return truncated();
            octet = *p++;
            number = number << 7 | (octet & 0x7FU);
            if (number > 0x3FFF) {
                m_input->fail(say("A tag number is too large."), offsetOf(begin));
                return false;
            }
        } while ((octet & 0x80U) != 0);
    }
    tag = Tag(static_cast<TagClass>(first >> 6), (first & 0x20U) != 0, number);

    if (p == m_end)
        return truncated();
    const std::uint8_t lengthOctet = *p++;
    indefinite = false;
    if (lengthOctet < 0x80) {
        length = lengthOctet;
    } else if (lengthOctet == 0x80) {
        if (!tag.isConstructed()) {
            m_input->fail(say("A primitive element has no definite length."), offsetOf(begin));
            return false;
        }
        indefinite = true;
        length = 0;
    } else {
        const std::size_t octets = lengthOctet & 0x7FU;
        if (octets > static_cast<std::size_t>(m_end - p))
            return truncated();
        length = 0;
        for (std::size_t i = 0; i < octets; ++i) {
            if (length > 0xFFFFFF) {
                m_input->fail(say("The length of an element is too large."), offsetOf(begin));
                return false;
            }
            length = length << 8 | *p++;
        }
    }
    if (length > static_cast<std::size_t>(m_end - p)) {
        m_input->fail(say("An element is longer than the message."), offsetOf(begin));
        return false;
    }
    position = p;
    return true;
}

/// The first of the two zero octets that end the contents begun at @a from; null when it fails.
const std::uint8_t *Reader::findEndOfContents(const std::uint8_t *from, std::size_t depth)
{
    const std::uint8_t *p = from;
    for (;;) {
        if (depth > m_input->m_limits.depth) {
            m_input->fail(say("The elements are nested too deeply."),
                          static_cast<std::size_t>(from - m_input->m_bytes.data()));
            return nullptr;
        }
        if (m_end - p >= 2 && p[0] == 0 && p[1] == 0)
            return p;
        Tag tag;
        std::size_t length = 0;
        bool indefinite = false;
        if (!readHeader(p, tag, length, indefinite))
            return nullptr;
        if (indefinite) {
            p = findEndOfContents(p, depth + 1);
            if (!p)
                return nullptr;
            p += 2;
        } else {
            p += length;
        }
    }
}

bool Reader::readSlowly(Element &element)
{
    const std::uint8_t *p = m_position;
    std::size_t length = 0;
    bool indefinite = false;
    if (!readHeader(p, element.tag, length, indefinite))
        return false;
    const std::uint8_t *end = p + length;
    const std::uint8_t *next = end;
    if (indefinite) {
        end = findEndOfContents(p, m_depth + 1);
        if (!end)
            return false;
        next = end + 2;
    }
    element.content = {p, end};
    element.offset = static_cast<std::size_t>(p - m_input->m_bytes.data());
    m_position = next;
    return true;
}

Tag Reader::peek()
{
    if (atEnd())
        return {};
    const std::uint8_t first = *m_position;
    if ((first & 0x1FU) != 0x1F)
        return Tag(static_cast<TagClass>(first >> 6), (first & 0x20U) != 0, first & 0x1FU);
    const std::uint8_t *p = m_position;
    Tag tag;
    std::size_t length = 0;
    bool indefinite = false;
    return readHeader(p, tag, length, indefinite) ? tag : Tag();
}

bool Reader::takeIf(Tag tag, Element &element)
{
    return peek() == tag && !tag.isNone() && next(element);
}

Element Reader::expect(Tag tag, std::string_view what)
{
    Element element;
    if (!failed() && peek() != tag)
        fail(m_position == m_end ? say("The element %1 is missing.", what)
                                 : say("The element %1 is not where it belongs.", what));
    else
        next(element);
    return failed() ? Element() : element;
}

Reader Reader::enter(const Element &element)
{
    if (m_depth + 1 > m_input->m_limits.depth)
        m_input->fail(say("The elements are nested too deeply."), element.offset);
    else if (!failed() && !element.tag.isConstructed())
        m_input->fail(say("A primitive element stands where a group belongs."), element.offset);
    const std::uint8_t *begin = failed() ? m_end : element.content.data();
    const std::uint8_t *end = failed() ? m_end : begin + element.content.size();
    return Reader(m_input, begin, end, m_depth + 1);
}

Reader Reader::expectGroup(Tag tag, std::string_view what)
{
    return enter(expect(tag, what));
}

std::size_t Reader::countRest()
{
    const std::size_t count = countAhead();
    return allow(count) ? count : 0;
}

bool Reader::allow(std::size_t count)
{
    if (count > m_input->m_countLeft)
        fail(say("The message holds more elements than allowed."));
    else
        m_input->m_countLeft -= count;
    return !failed();
}

std::size_t Reader::countAhead()
{
    if (failed())
        return 0;
    const std::uint8_t *p = m_position;
    std::size_t count = 0;
    for (; p != m_end; ++count) {
        const auto left = static_cast<std::size_t>(m_end - p);
        if (left >= 2 && (p[0] & 0x1FU) != 0x1F && p[1] < 0x80 && p[1] <= left - 2) [[likely]] {
            p += 2U + p[1];
            continue;
        }
        Reader ahead(m_input, p, m_end, m_depth);
        Element element;
        if (!ahead.readSlowly(element))
            return 0;
        p = ahead.m_position;
    }
    return count;
}

void Reader::expectEnd(std::string_view what)
{
    if (!atEnd())
        fail(say("Something stands behind the end of %1.", what));
}

bool Reader::boolean(const Element &element)
{
    if (failed())
        return false;
    if (element.content.size() != 1) {
        m_input->fail(say("A boolean has not one octet."), element.offset);
        return false;
    }
    return element.content[0] != 0;
}

std::int64_t Reader::integer(const Element &element, std::int64_t minimum, std::int64_t maximum)
{
    if (failed())
        return 0;
    const Bytes content = element.content;
    if (content.empty() || content.size() > 8) {
        m_input->fail(say("An integer has no octet or more than 8."), element.offset);
        return 0;
    }
    std::uint64_t bits = (content[0] & 0x80U) != 0 ? ~std::uint64_t{0} : 0;
    for (const std::uint8_t octet : content)
        bits = bits << 8 | octet;
    const auto value = static_cast<std::int64_t>(bits);
    if (value < minimum || value > maximum) {
        m_input->fail(say("An integer is out of its range."), element.offset);
        return 0;
    }
    return value;
}

std::uint64_t Reader::unsignedInteger(const Element &element, std::uint64_t maximum)
{
    if (failed())
        return 0;
    const Bytes content = element.content;
    if (content.empty() || content.size() > 9 || (content.size() == 9 && content[0] != 0)) {
        m_input->fail(say("An unsigned integer has no octet or more than 64 bits."),
                      element.offset);
        return 0;
    }
    std::uint64_t value = 0;
    for (const std::uint8_t octet : content)
        value = value << 8 | octet;
    if (value > maximum) {
        m_input->fail(say("An unsigned integer is out of its range."), element.offset);
        return 0;
    }
    return value;
}

std::string Reader::text(const Element &element)
{
    if (failed())
        return {};
    return std::string(reinterpret_cast<const char *>(element.content.data()),
                       element.content.size());
}

std::vector<std::uint8_t> Reader::octets(const Element &element)
{
    if (failed())
        return {};
    return {element.content.begin(), element.content.end()};
}

BitString Reader::bitString(const Element &element)
{
    if (failed())
        return {};
    const Bytes content = element.content;
    if (content.empty() || content[0] > 7 || (content.size() == 1 && content[0] != 0)) {
        m_input->fail(say("A bit string does not say how many of its bits count."), element.offset);
        return {};
    }
    return BitString(content.subspan(1), (content.size() - 1) * 8 - content[0]);
}

void Reader::null(const Element &element)
{
    if (!failed() && !element.content.empty())
        m_input->fail(say("An element that is empty by definition has content."), element.offset);
}

std::vector<std::uint32_t> Reader::objectIdentifier(const Element &element)
{
    std::vector<std::uint32_t> result;
    if (failed())
        return result;
    std::uint64_t number = 0;
    bool complete = false;
    for (const std::uint8_t octet : element.content) {
        number = number << 7 | (octet & 0x7FU);
        if (number > std::numeric_limits<std::uint32_t>::max()) {
            m_input->fail(say("A number of an object identifier is too large."), element.offset);
            return {};
        }
        complete = (octet & 0x80U) == 0;
        if (!complete)
            continue;
        if (result.empty()) {
            const std::uint64_t root = std::min<std::uint64_t>(number / 40, 2);
            result.push_back(static_cast<std::uint32_t>(root));
            number -= root * 40;
        }
        result.push_back(static_cast<std::uint32_t>(number));
        number = 0;
    }
    if (!complete) {
        m_input->fail(say("An object identifier ends within a number."), element.offset);
        return {};
    }
    return result;
}

Writer::Writer(std::size_t capacity)
    : m_buffer(new std::uint8_t[std::max<std::size_t>(capacity, 16)])
    , m_capacity(std::max<std::size_t>(capacity, 16))
    , m_begin(m_capacity)
{
}

void Writer::grow(std::size_t needed)
{
    // Long octets are followed by the headers of their groups.
    constexpr std::size_t headers = 64;
    const std::size_t used = size();
    const std::size_t capacity = std::max(m_capacity * 2, used + needed + headers);
    std::unique_ptr<std::uint8_t[]> buffer(new std::uint8_t[capacity]);
    std::memcpy(buffer.get() + capacity - used, m_buffer.get() + m_begin, used);
    m_buffer = std::move(buffer);
    m_capacity = capacity;
    m_begin = capacity - used;
}

std::vector<std::uint8_t> Writer::take()
{
    const Bytes written = view();
    std::vector<std::uint8_t> result(written.begin(), written.end());
    clear();
    return result;
}

void Writer::octets(Bytes bytes)
{
    if (bytes.empty())
        return;
    if (m_begin < bytes.size())
        grow(bytes.size());
    m_begin -= bytes.size();
    std::memcpy(m_buffer.get() + m_begin, bytes.data(), bytes.size());
}

void Writer::header(Tag tag, std::size_t length)
{
    if (length < 0x80) {
        octet(static_cast<std::uint8_t>(length));
    } else {
        std::uint8_t count = 0;
        for (std::size_t rest = length; rest != 0; rest >>= 8, ++count)
            octet(static_cast<std::uint8_t>(rest & 0xFFU));
        octet(static_cast<std::uint8_t>(0x80U | count));
    }
    const auto first = static_cast<std::uint8_t>(static_cast<unsigned>(tag.tagClass()) << 6 |
                                                 (tag.isConstructed() ? 0x20U : 0U));
    const std::uint32_t number = tag.number();
    if (number < 0x1F) {
        octet(static_cast<std::uint8_t>(first | number));
        return;
    }
    octet(static_cast<std::uint8_t>(number & 0x7FU));
    if (number > 0x7F)
        octet(static_cast<std::uint8_t>(0x80U | number >> 7));
    octet(static_cast<std::uint8_t>(first | 0x1FU));
}

void Writer::element(Tag tag, Bytes content)
{
    octets(content);
    header(tag, content.size());
}

void Writer::boolean(Tag tag, bool value)
{
    octet(value ? 0xFF : 0x00);
    header(tag, 1);
}

void Writer::integerContent(std::int64_t value)
{
    std::int64_t rest = value;
    std::uint8_t last = 0;
    do {
        last = static_cast<std::uint8_t>(rest & 0xFF);
        octet(last);
        rest >>= 8;
    } while (rest != ((last & 0x80U) != 0 ? -1 : 0));
}

void Writer::integer(Tag tag, std::int64_t value)
{
    const std::size_t mark = size();
    integerContent(value);
    close(tag, mark);
}

void Writer::unsignedInteger(Tag tag, std::uint64_t value)
{
    const std::size_t mark = size();
    std::uint64_t rest = value;
    std::uint8_t last = 0;
    do {
        last = static_cast<std::uint8_t>(rest & 0xFFU);
        octet(last);
        rest >>= 8;
    } while (rest != 0);
    if ((last & 0x80U) != 0)
        octet(0);
    close(tag, mark);
}

void Writer::text(Tag tag, std::string_view value)
{
    element(tag, {reinterpret_cast<const std::uint8_t *>(value.data()), value.size()});
}

void Writer::bitString(Tag tag, const BitString &value)
{
    bitString(tag, value.octets(), value.size());
}

void Writer::bitString(Tag tag, Bytes content, std::size_t size)
{
    octets(content);
    octet(static_cast<std::uint8_t>(content.size() * 8 - size));
    header(tag, content.size() + 1);
}

void Writer::objectIdentifier(Tag tag, std::span<const std::uint32_t> numbers)
{
    const std::size_t mark = this->size();
    const auto number = [this](std::uint64_t value) {
        std::uint8_t more = 0;
        do {
            octet(static_cast<std::uint8_t>(more | (value & 0x7FU)));
            more = 0x80;
            value >>= 7;
        } while (value != 0);
    };
    for (std::size_t i = numbers.size(); i > 2; --i)
        number(numbers[i - 1]);
    if (!numbers.empty())
        number(std::uint64_t{numbers[0]} * 40 + (numbers.size() > 1 ? numbers[1] : 0U));
    close(tag, mark);
}

} // namespace ber

} // namespace osi
