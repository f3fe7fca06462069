// SPDX-License-Identifier: Apache-2.0
#include "osi/ber.h"

#include "osi/bytes.h"

#include <gtest/gtest.h>

#include <limits>

using namespace osi;
using namespace osi::ber;
using wiretest::fromHex;
using wiretest::toHex;

namespace {

/// The error of reading everything that is in some bytes, empty when they can be read.
std::string errorOf(const std::vector<std::uint8_t> &bytes, const Limits &limits = {})
{
    Input input(bytes, limits);
    const auto walk = [](auto &&self, Reader reader) -> void {
        Element element;
        while (reader.next(element)) {
            if (element.tag.isConstructed())
                self(self, reader.enter(element));
        }
    };
    walk(walk, input.reader());
    return input.failed() ? input.error().message.english() : std::string();
}

std::string written(void (*write)(Writer &))
{
    Writer writer(16);
    write(writer);
    return toHex(writer.view());
}

/// The first element, converted.
template <typename Function>
auto converted(std::string_view hex, Function function, std::string *error = nullptr)
{
    const auto bytes = fromHex(hex);
    Input input(bytes);
    Reader reader = input.reader();
    Element element;
    reader.next(element);
    auto result = function(reader, element);
    if (error)
        *error = input.failed() ? input.error().message.english() : std::string();
    return result;
}

} // namespace

TEST(Ber, tagsAndLengthsOfEverySizeAreWritten)
{
    Writer writer(16);
    writer.header(Tag::context(0), 0);
    EXPECT_EQ(toHex(writer.view()), "8000");
    writer.clear();
    writer.header(Tag::group(30), 127);
    EXPECT_EQ(toHex(writer.view()), "be7f");
    writer.clear();
    writer.header(Tag::group(31), 128);
    EXPECT_EQ(toHex(writer.view()), "bf1f8180");
    writer.clear();
    writer.header(Tag::context(77), 65535);
    EXPECT_EQ(toHex(writer.view()), "9f4d82ffff");
    writer.clear();
    writer.header(Tag(TagClass::Application, true, 1000), 65536);
    EXPECT_EQ(toHex(writer.view()), "7f876883010000");
}

TEST(Ber, aGroupIsClosedAroundWhatWasWrittenInIt)
{
    Writer writer(16);
    const std::size_t mark = writer.size();
    writer.text(tags::visibleString, "item");
    writer.text(tags::visibleString, "domain");
    writer.close(Tag::group(1), mark);
    EXPECT_EQ(toHex(writer.view()), "a10e1a06646f6d61696e1a046974656d");
    EXPECT_EQ(writer.take().size(), 16U);
    EXPECT_EQ(writer.size(), 0U);
}

TEST(Ber, integersTakeTheFewestOctets)
{
    const std::pair<std::int64_t, const char *> cases[] = {
        {0, "020100"},
        {127, "02017f"},
        {128, "02020080"},
        {-1, "0201ff"},
        {-128, "020180"},
        {-129, "0202ff7f"},
        {32767, "02027fff"},
        {32768, "0203008000"},
        {-32768, "02028000"},
        {65535, "020300ffff"},
        {std::numeric_limits<std::int64_t>::max(), "02087fffffffffffffff"},
        {std::numeric_limits<std::int64_t>::min(), "02088000000000000000"}};
    for (const auto &[value, hex] : cases) {
        Writer writer;
        writer.integer(tags::integer, value);
        EXPECT_EQ(toHex(writer.view()), hex);
        EXPECT_EQ(converted(hex, [](Reader &r, const Element &e) { return r.integer(e); }), value);
    }
}

TEST(Ber, unsignedIntegersKeepTheirHighestBit)
{
    const std::pair<std::uint64_t, const char *> cases[] = {
        {0, "020100"},
        {255, "020200ff"},
        {4294967295U, "020500ffffffff"},
        {std::numeric_limits<std::uint64_t>::max(), "020900ffffffffffffffff"}};
    for (const auto &[value, hex] : cases) {
        Writer writer;
        writer.unsignedInteger(tags::integer, value);
        EXPECT_EQ(toHex(writer.view()), hex);
        EXPECT_EQ(converted(hex, [](Reader &r, const Element &e) { return r.unsignedInteger(e); }),
                  value);
    }
}

TEST(Ber, anUnsignedIntegerWithoutItsLeadingZeroIsUnderstood)
{
    EXPECT_EQ(
        converted("0204ffffffff", [](Reader &r, const Element &e) { return r.unsigned32(e); }),
        4294967295U);
}

TEST(Ber, numbersOutOfRangeAreRefused)
{
    std::string error;
    (void)converted(
        "020500ffffffff", [](Reader &r, const Element &e) { return r.integer32(e); }, &error);
    EXPECT_EQ(error, "An integer is out of its range.");
    (void)converted(
        "02050100000000", [](Reader &r, const Element &e) { return r.unsigned32(e); }, &error);
    EXPECT_EQ(error, "An unsigned integer is out of its range.");
    (void)converted(
        "0200", [](Reader &r, const Element &e) { return r.integer(e); }, &error);
    EXPECT_EQ(error, "An integer has no octet or more than 8.");
    (void)converted(
        "02090102030405060708", [](Reader &r, const Element &e) { return r.integer(e); }, &error);
    EXPECT_NE(error, "");
    (void)converted(
        "0209010203040506070809", [](Reader &r, const Element &e) { return r.unsignedInteger(e); },
        &error);
    EXPECT_EQ(error, "An unsigned integer has no octet or more than 64 bits.");
}

TEST(Ber, bitStringsKeepTheirLengthAndOrder)
{
    const BitString quality = BitString::fromText("0100000000001");
    EXPECT_EQ(toHex(quality.octets()), "4008");
    EXPECT_EQ(written([](Writer &w) {
                  w.bitString(tags::bitString, BitString::fromText("0100000000001"));
              }),
              "0303034008");
    EXPECT_EQ(converted("0303034008", [](Reader &r, const Element &e) { return r.bitString(e); }),
              quality);
    EXPECT_EQ(converted("030100", [](Reader &r, const Element &e) { return r.bitString(e); }),
              BitString());
    EXPECT_TRUE(quality.test(1));
    EXPECT_TRUE(quality.test(12));
    EXPECT_FALSE(quality.test(13));
}

TEST(Ber, bitsThatDoNotCountAreZero)
{
    EXPECT_EQ(converted("030204ff", [](Reader &r, const Element &e) { return r.bitString(e); }),
              BitString::fromText("1111"));
}

TEST(Ber, aBitStringGrowsWhereABitIsSet)
{
    BitString bits;
    bits.set(9);
    EXPECT_EQ(bits.toText(), "0000000001");
    bits.set(9, false);
    EXPECT_EQ(bits, BitString(10));
}

TEST(Ber, aBitStringThatClaimsMoreUnusedBitsThanItHasIsRefused)
{
    for (const char *hex : {"0300", "030101", "03020800"}) {
        std::string error;
        (void)converted(
            hex, [](Reader &r, const Element &e) { return r.bitString(e); }, &error);
        EXPECT_EQ(error, "A bit string does not say how many of its bits count.") << hex;
    }
}

TEST(Ber, objectIdentifiersAreReadAndWritten)
{
    using Numbers = std::vector<std::uint32_t>;
    const std::pair<Numbers, const char *> cases[] = {
        {{1, 0, 9506, 2, 1}, "060528ca220201"}, {{2, 1, 1}, "06025101"}, {{2, 999}, "06028837"}};
    for (const auto &[numbers, hex] : cases) {
        Writer writer;
        writer.objectIdentifier(tags::objectIdentifier, numbers);
        EXPECT_EQ(toHex(writer.view()), hex);
        EXPECT_EQ(converted(hex, [](Reader &r, const Element &e) { return r.objectIdentifier(e); }),
                  numbers);
    }
    std::string error;
    for (const char *hex : {"0600", "060128aa", "060188"}) {
        const auto bytes = fromHex(hex);
        (void)converted(
            hex, [](Reader &r, const Element &e) { return r.objectIdentifier(e); }, &error);
        EXPECT_EQ(error.empty(), bytes[1] == 1 && bytes[2] == 0x28) << hex;
    }
}

TEST(Ber, indefiniteLengthsReadLikeDefiniteOnes)
{
    // [1] { [2] { BOOLEAN }, BOOLEAN }, INTEGER 5; the first two without a definite length
    const auto bytes = fromHex("a180 a280 0101ff 0000 010100 0000 020105");
    Input input(bytes);
    Reader outer = input.reader();
    Reader first = outer.expectGroup(Tag::group(1), "first");
    Reader second = first.expectGroup(Tag::group(2), "second");
    EXPECT_TRUE(second.boolean(second.expect(tags::boolean, "flag")));
    EXPECT_TRUE(second.atEnd());
    EXPECT_FALSE(first.boolean(first.expect(tags::boolean, "flag")));
    first.expectEnd("first");
    EXPECT_EQ(outer.integer(outer.expect(tags::integer, "number")), 5);
    outer.expectEnd("message");
    EXPECT_FALSE(input.failed());
}

TEST(Ber, anIndefiniteLengthMustEnd)
{
    EXPECT_EQ(errorOf(fromHex("a180 0101ff 00")), "The message ends within an element.");
    EXPECT_EQ(errorOf(fromHex("a180 0101ff")), "The message ends within an element.");
    EXPECT_EQ(errorOf(fromHex("8180 0000")), "A primitive element has no definite length.");
}

TEST(Ber, longFormsOfLengthsAndTagsAreRead)
{
    EXPECT_EQ(errorOf(fromHex("810201")), "An element is longer than the message.");
    EXPECT_EQ(errorOf(fromHex("8184 00000001 05")), "");
    EXPECT_EQ(errorOf(fromHex("8185 0000000001 05")), "");
    EXPECT_EQ(errorOf(fromHex("8185 0100000001 05")), "The length of an element is too large.");
    EXPECT_EQ(errorOf(fromHex("9f4d 00")), "");
    EXPECT_EQ(errorOf(fromHex("9f ff7f 00")), "");
    EXPECT_EQ(errorOf(fromHex("9f 818000 00")), "A tag number is too large.");
}

TEST(Ber, everyTruncationIsAnErrorAndNeverReadBeyond)
{
    const auto whole = fromHex("bf4d 8109 a180 0101ff 0000 0500");
    EXPECT_EQ(errorOf(whole), "");
    for (std::size_t size = 1; size < whole.size(); ++size)
        EXPECT_NE(errorOf({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}), "");
}

TEST(Ber, nestingIsLimited)
{
    std::vector<std::uint8_t> definite;
    std::vector<std::uint8_t> indefinite;
    for (int level = 0; level < 33; ++level) {
        definite.insert(definite.begin(), {0x30, static_cast<std::uint8_t>(definite.size())});
        indefinite.insert(indefinite.begin(), {0x30, 0x80});
        indefinite.insert(indefinite.end(), {0, 0});
    }
    EXPECT_EQ(errorOf(definite), "The elements are nested too deeply.");
    EXPECT_EQ(errorOf(indefinite), "The elements are nested too deeply.");
    definite.erase(definite.begin(), definite.begin() + 2);
    indefinite.erase(indefinite.begin(), indefinite.begin() + 2);
    indefinite.erase(indefinite.end() - 2, indefinite.end());
    EXPECT_EQ(errorOf(definite), "");
    EXPECT_EQ(errorOf(indefinite), "");
}

TEST(Ber, lengthAndCountAreLimited)
{
    const auto bytes = fromHex("30060101ff0101ff");
    EXPECT_EQ(errorOf(bytes, Limits{.length = 7}), "The message is longer than allowed.");
    Input allowed(bytes, Limits{.length = 8, .count = 2});
    EXPECT_EQ(allowed.reader().expectGroup(tags::sequence, "list").countRest(), 2U);
    Input refused(bytes, Limits{.count = 1});
    EXPECT_EQ(refused.reader().expectGroup(tags::sequence, "list").countRest(), 0U);
    ASSERT_TRUE(refused.failed());
    EXPECT_EQ(refused.error().message, "The message holds more elements than allowed.");
}

TEST(Ber, theFirstErrorIsKeptWithItsPlace)
{
    const auto bytes = fromHex("0101ff 020105");
    Input input(bytes);
    Reader reader = input.reader();
    reader.expect(tags::boolean, "flag");
    EXPECT_EQ(reader.offset(), 3U);
    EXPECT_TRUE(reader.expect(tags::boolean, "second flag").tag.isNone());
    reader.expect(tags::integer, "number");
    ASSERT_TRUE(input.failed());
    EXPECT_EQ(input.error().message, "The element second flag is not where it belongs.");
    EXPECT_EQ(input.error().offset, 3U);
    EXPECT_TRUE(reader.atEnd());
    const Result<int> result = input.finish(5);
    EXPECT_FALSE(result.ok());
    EXPECT_EQ(result.error().offset, 3U);
}

TEST(Ber, whatIsMissingOrTooMuchIsSaid)
{
    const auto bytes = fromHex("0101ff");
    Input missing(bytes);
    Reader reader = missing.reader();
    reader.expect(tags::boolean, "flag");
    reader.expect(tags::integer, "number");
    EXPECT_EQ(missing.error().message, "The element number is missing.");

    Input tooMuch(bytes);
    tooMuch.reader().expectEnd("the answer");
    EXPECT_EQ(tooMuch.error().message, "Something stands behind the end of the answer.");
}
