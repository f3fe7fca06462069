// SPDX-License-Identifier: Apache-2.0
#include "mms/data.h"
#include "mms/datatext.h"
#include "mms/shorthand.h"

#include "osi/bytes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace mms;
using wiretest::decodeData;
using wiretest::decodeTypeDescription;
using wiretest::encode;
using wiretest::fromHex;
using wiretest::packed;
using wiretest::toHex;

namespace {

struct Case
{
    Data data;
    const char *hex;
    const char *text;
};

std::vector<Case> cases()
{
    const BitString bits = BitString::fromText("0100000000001");
    return {
        {Data::array({Data::integer(1), Data::integer(2)}), "a106 850101 850102", "[1, 2]"},
        {Data::structure({}), "a200", "{}"},
        {Data::structure({Data::boolean(true), Data::array({})}), "a205 8301ff a100", "{true, []}"},
        {Data::boolean(false), "830100", "false"},
        {Data::bitString(bits), "8403034008", "'0100000000001'B"},
        {Data::bitString(BitString()), "840100", "''B"},
        {Data::bitString(BitString(72)), "840a00000000000000000000",
         "'000000000000000000000000000000000000000000000000000000000000000000000000'B"},
        {Data::integer(-129), "8502ff7f", "-129"},
        {Data::integer(std::numeric_limits<std::int64_t>::min()), "85088000000000000000",
         "-9223372036854775808"},
        {Data::unsignedInteger(std::numeric_limits<std::uint64_t>::max()), "860900ffffffffffffffff",
         "18446744073709551615"},
        {Data::float32(1.5F), "8705083fc00000", "1.5"},
        {Data::float64(-0.1), "87090bbfb999999999999a", "-0.1"},
        {Data::octetString(fromHex("cafe")), "8902cafe", "'cafe'H"},
        {Data::octetString(fromHex("000102030405060708")), "8909000102030405060708",
         "'000102030405060708'H"},
        {Data::visibleString(""), "8a00", "\"\""},
        {Data::visibleString("12345678"), "8a083132333435363738", "\"12345678\""},
        {Data::visibleString("123456789"), "8a09313233343536373839", "\"123456789\""},
        {Data::generalizedTime("20210304050607Z"), "8b0f32303231303330343035303630375a",
         "\"20210304050607Z\""},
        {Data::binaryTime({18367123, 13577}), "8c06011842933509", "2021-03-04T05:06:07.123Z"},
        {Data::binaryTime({18367123, {}}), "8c0401184293", "05:06:07.123"},
        {Data::bcd(42), "8d012a", "42"},
        {Data::booleanArray(bits), "8e03034008", "'0100000000001'B"},
        {Data::objectIdentifier(std::vector<std::uint32_t>{1, 0, 9506, 2, 1}), "8f0528ca220201",
         "1.0.9506.2.1"},
        {Data::mmsString("\xC3\xA4\""), "9003c3a422", "\"\\xc3\\xa4\\\"\""},
        {Data::utcTime({1614834367, 0x800000, 0x4A}), "910860406abf8000004a",
         "2021-03-04T05:06:07.500000Z clock-failure"},
    };
}

std::string errorOf(std::string_view hex)
{
    const auto result = decodeData(fromHex(hex));
    return result ? std::string() : result.error().message.english();
}

} // namespace

TEST(Data, everyKindIsWrittenReadAndShown)
{
    for (const Case &one : cases()) {
        EXPECT_EQ(toHex(encode(one.data)), packed(one.hex));
        const auto result = decodeData(fromHex(one.hex));
        ASSERT_TRUE(result) << one.hex << ": " << result.error().message;
        EXPECT_TRUE(*result == one.data) << one.hex;
        EXPECT_EQ(toText(*result), one.text);
    }
}

TEST(Data, oneOctetMoreOrLessIsAnError)
{
    for (const Case &one : cases()) {
        auto bytes = fromHex(one.hex);
        for (std::size_t size = 0; size < bytes.size(); ++size)
            EXPECT_FALSE(decodeData(Bytes(bytes).first(size))) << one.hex << ' ' << size;
        bytes.push_back(0);
        EXPECT_FALSE(decodeData(bytes)) << one.hex;
    }
}

TEST(Data, copiesAndMovesKeepTheValue)
{
    for (const Case &one : cases()) {
        Data copy(one.data);
        EXPECT_TRUE(copy == one.data);
        Data moved(std::move(copy));
        EXPECT_TRUE(moved == one.data);
        Data assigned = Data::visibleString("a text that lies on the heap");
        assigned = moved;
        EXPECT_TRUE(assigned == one.data);
        const Data &same = assigned;
        assigned = same;
        EXPECT_TRUE(assigned == one.data);
        assigned = std::move(moved);
        EXPECT_TRUE(assigned == one.data);
    }
}

TEST(Data, aValueTakesSixteenOctets)
{
    EXPECT_EQ(sizeof(Data), 16U);
    EXPECT_EQ(sizeof(AccessResult), 16U);
}

TEST(Data, valuesOfDifferentKindsOrContentAreNotEqual)
{
    const auto all = cases();
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = 0; j < all.size(); ++j)
            EXPECT_EQ(all[i].data == all[j].data, i == j) << all[i].hex << ' ' << all[j].hex;
    }
    EXPECT_FALSE(Data::float32(1) == Data::float64(1));
}

TEST(Data, numbersConvertWhereTheyFit)
{
    EXPECT_EQ(Data::integer(-1).toInteger(), -1);
    EXPECT_EQ(Data::integer(-1).toUnsigned(), std::nullopt);
    EXPECT_EQ(Data::integer(7).toUnsigned(), 7U);
    EXPECT_EQ(Data::unsignedInteger(7).toInteger(), 7);
    EXPECT_EQ(Data::unsignedInteger(std::numeric_limits<std::uint64_t>::max()).toInteger(),
              std::nullopt);
    EXPECT_EQ(Data::float32(0.5F).toDouble(), 0.5);
    EXPECT_EQ(Data::float64(0.1).toDouble(), 0.1);
    EXPECT_EQ(Data::integer(1).toDouble(), std::nullopt);
    EXPECT_EQ(Data::boolean(true).toBoolean(), true);
    EXPECT_EQ(Data::boolean(true).toInteger(), std::nullopt);
    EXPECT_EQ(Data::visibleString("1").toInteger(), std::nullopt);
}

TEST(Data, aNanKeepsItsBits)
{
    for (const char *hex : {"8705087f800001", "87090b7ff0000000000001"}) {
        const auto bytes = fromHex(hex);
        const auto result = decodeData(bytes);
        ASSERT_TRUE(result);
        EXPECT_TRUE(std::isnan(*result->toDouble()));
        EXPECT_EQ(toHex(encode(*result)), toHex(bytes));
        EXPECT_TRUE(*result == *decodeData(bytes));
    }
}

TEST(Data, timesAreReadBack)
{
    const UtcTime utc{1614834367, 0xFFFFFF, 0x8A};
    EXPECT_EQ(Data::utcTime(utc).toUtcTime(), utc);
    const BinaryTime entry{86399999, 0};
    EXPECT_EQ(Data::binaryTime(entry).toBinaryTime(), entry);
    EXPECT_EQ(Data::boolean(true).toUtcTime(), std::nullopt);
    EXPECT_EQ(Data::utcTime(utc).toBinaryTime(), std::nullopt);
}

TEST(Data, bitsAreFoundByTheirNumber)
{
    const Data quality = Data::bitString(BitString::fromText("0100000000001"));
    EXPECT_EQ(quality.size(), 13U);
    EXPECT_TRUE(quality.testBit(1));
    EXPECT_TRUE(quality.testBit(12));
    EXPECT_FALSE(quality.testBit(0));
    EXPECT_FALSE(quality.testBit(13));
    EXPECT_EQ(quality.bits().toText(), "0100000000001");
    EXPECT_FALSE(Data::integer(-1).testBit(0));
}

TEST(Data, membersCanBeChangedInPlace)
{
    Data value = Data::structure({Data::integer(1), Data::visibleString("a")});
    value.children()[1] = Data::visibleString("a longer text than before");
    EXPECT_EQ(toText(value), "{1, \"a longer text than before\"}");
    EXPECT_EQ(value.children().size(), 2U);
    EXPECT_TRUE(Data::integer(1).children().empty());
}

TEST(Data, bitsThatDoNotCountAreDropped)
{
    const auto result = decodeData(fromHex("840204ff"));
    ASSERT_TRUE(result);
    EXPECT_TRUE(*result == Data::bitString(BitString::fromText("1111")));
    EXPECT_EQ(toHex(encode(*result)), "840204f0");
}

TEST(Data, whatIsNoValueIsSaid)
{
    const std::string noValue = "An element that is no value stands where a value belongs.";
    for (const char *hex : {"020100", "8000", "8800", "9200", "8200", "8100", "a500", "b100"})
        EXPECT_EQ(errorOf(hex), noValue) << hex;
    EXPECT_EQ(errorOf(""), "The element Data is missing.");
    EXPECT_EQ(errorOf("87020801"), "A floating-point number has neither 32 nor 64 bits.");
    EXPECT_EQ(errorOf("8705093fc00000"), "A floating-point number has neither 32 nor 64 bits.");
    EXPECT_EQ(errorOf("8c03000000"), "A binary time has neither 4 nor 6 octets.");
    EXPECT_EQ(errorOf("910700000000000000"), "A UTC time has not 8 octets.");
    EXPECT_EQ(errorOf("83020000"), "A boolean has not one octet.");
    EXPECT_EQ(errorOf("8500"), "An integer has no octet or more than 8.");
    EXPECT_EQ(errorOf("8400"), "A bit string does not say how many of its bits count.");
}

TEST(Data, octetsThatAreNoObjectIdentifierCostNoOtherValue)
{
    const auto bytes = fromHex("8f0188 850105");
    ber::Input input(bytes);
    ber::Reader reader = input.reader();
    const auto results = DataCodec::readResults(reader);
    ASSERT_FALSE(input.failed());
    ASSERT_EQ(results.size(), 2U);
    ASSERT_TRUE(results[0].ok());
    EXPECT_TRUE(results[0].data().toObjectIdentifier().empty());
    EXPECT_EQ(toText(results[0].data()), "'88'H");
    EXPECT_EQ(results[1].data().toInteger(), 5);
}

TEST(Data, aFailureInAListOfResultsIsNoValue)
{
    const auto bytes = fromHex("80010a 850105 800163");
    ber::Input input(bytes);
    ber::Reader reader = input.reader();
    const auto results = DataCodec::readResults(reader);
    ASSERT_FALSE(input.failed());
    ASSERT_EQ(results.size(), 3U);
    EXPECT_FALSE(results[0].ok());
    EXPECT_EQ(results[0].error(), DataAccessError::ObjectNonExistent);
    EXPECT_TRUE(results[1].ok());
    EXPECT_EQ(results[1].data().toInteger(), 5);
    EXPECT_EQ(describe(results[2].error()), "The device reports the unknown data access error 99.");
    EXPECT_EQ(toText(results[0]), "failure: The object does not exist");
}

TEST(TypeDescription, everyKindIsWrittenReadAndShown)
{
    using T = TypeDescription;
    T digits;
    digits.kind = T::Kind::Bcd;
    digits.size = 4;
    T generalizedTime;
    generalizedTime.kind = T::Kind::GeneralizedTime;
    T objectIdentifier;
    objectIdentifier.kind = T::Kind::ObjectIdentifier;
    T packedStructure = T::structure({{"", T::boolean()}});
    packedStructure.packed = true;
    const std::tuple<T, const char *, const char *> all[] = {
        {T::named(ObjectName::ofVmd("T")), "a003 800154", "type T"},
        {T::array(16, T::float32()), "a10d 810110 a208 a706 020120 020108",
         "[16] floating-point(32)"},
        {T::structure({{"q", T::bitString(-13)}}), "a20c a10a 3008 800171 a103 8401f3",
         "{q: bit-string(-13)}"},
        {packedStructure, "a20b 8001ff a106 3004 a102 8300", "{: boolean}"},
        {T::integer(32), "850120", "integer(32)"},
        {T::unsignedInteger(128), "86020080", "unsigned(128)"},
        {T::float64(), "a706 020140 02010b", "floating-point(64)"},
        {T::octetString(-64), "8901c0", "octet-string(-64)"},
        {T::visibleString(-255), "8a02ff01", "visible-string(-255)"},
        {generalizedTime, "8b00", "generalized-time"},
        {T::binaryTime(true), "8c01ff", "binary-time with date"},
        {T::binaryTime(false), "8c0100", "binary-time"},
        {digits, "8d0104", "bcd(4)"},
        {objectIdentifier, "8f00", "objId"},
        {T::mmsString(255), "900200ff", "mMSString(255)"},
        {T::utcTime(), "9100", "utc-time"},
    };
    for (const auto &[type, hex, text] : all) {
        auto bytes = fromHex(hex);
        const auto result = decodeTypeDescription(bytes);
        ASSERT_TRUE(result) << hex << ": " << result.error().message;
        EXPECT_TRUE(*result == type) << hex;
        EXPECT_EQ(toHex(encode(type)), toHex(bytes));
        EXPECT_EQ(toText(type), text);
        for (std::size_t size = 0; size < bytes.size(); ++size)
            EXPECT_FALSE(decodeTypeDescription(Bytes(bytes).first(size))) << hex << ' ' << size;
        bytes.push_back(0);
        EXPECT_FALSE(decodeTypeDescription(bytes)) << hex;
    }
}

TEST(TypeDescription, typesOfDifferentContentAreNotEqual)
{
    using T = TypeDescription;
    EXPECT_FALSE(T::integer(8) == T::integer(16));
    EXPECT_FALSE(T::named(ObjectName::ofVmd("a")) == T::named(ObjectName::ofVmd("b")));
    EXPECT_TRUE(T::named(ObjectName::ofVmd("a")) == T::named(ObjectName::ofVmd("a")));
    EXPECT_FALSE(T::structure({{"a", T::boolean()}}) == T::structure({{"b", T::boolean()}}));
}

TEST(TypeDescription, whatIsNoTypeIsSaid)
{
    for (const char *hex : {"020100", "8e00", "8800", "8100", "8700", "a300"}) {
        const auto result = decodeTypeDescription(fromHex(hex));
        ASSERT_FALSE(result) << hex;
        EXPECT_EQ(result.error().message,
                  "An element that is no type stands where a type belongs.");
    }
}

namespace {

/// Groups within groups, texts inside and outside of the values among them.
Data nested()
{
    return Data::structure(
        {Data::structure({Data::float32(1.5F), Data::visibleString("a text of many octets")}),
         Data::array({Data::structure({Data::visibleString("short")}), Data::structure({}),
                      Data::structure({Data::array({Data::integer(1), Data::integer(2)})})}),
         Data::octetString(std::vector<std::uint8_t>(200, 7))});
}

Data decoded()
{
    const auto result = decodeData(encode(nested()));
    EXPECT_TRUE(result.ok());
    return result.ok() ? *result : Data();
}

} // namespace

TEST(Data, whatIsTakenOutOfADecodedValueOutlivesIt)
{
    Data taken;
    Data copied;
    {
        auto whole = decodeData(encode(nested()));
        ASSERT_TRUE(whole.ok());
        copied = whole->children()[1];
        taken = std::move(whole->children()[1]);
        EXPECT_EQ(whole->children()[1], Data());
        EXPECT_EQ(whole->children()[0], nested().children()[0]);
    }
    EXPECT_EQ(taken, nested().children()[1]);
    EXPECT_EQ(copied, nested().children()[1]);
    Data deeper = std::move(taken.children()[2].children()[0]);
    taken = {};
    EXPECT_EQ(deeper, Data::array({Data::integer(1), Data::integer(2)}));
}

TEST(Data, aDecodedValueCanBeChangedLikeAnyOther)
{
    Data value = decoded();
    value.children()[0] = Data::structure({Data::visibleString("another text of many octets")});
    value.children()[1].children()[2] = value.children()[0];
    Data copy = value;
    value = std::move(value.children()[1]);
    EXPECT_EQ(value.children()[2],
              Data::structure({Data::visibleString("another text of many octets")}));
    EXPECT_EQ(copy.children()[1], value);
    std::swap(copy.children()[0], copy.children()[1]);
    EXPECT_EQ(copy.children()[0], value);
    std::vector<Data> list(3, decoded());
    list.insert(list.begin(), std::move(list.back().children()[0]));
    list.erase(list.begin() + 1);
    EXPECT_EQ(list.front(), nested().children()[0]);
    EXPECT_EQ(list[1], nested());
}

TEST(Data, lengthsThatContradictEachOtherAreAnError)
{
    // A group of two octets whose member claims five, while the groups around it would have them.
    for (const char *hex : {"a20d a204 a202 8505 830100 830101", "a20b a202 8505 830100 830101 83",
                            "a208 a102 a204 8301 ff83", "a280 a203 a205 8301 ff00 0000"}) {
        const auto result = decodeData(fromHex(hex));
        EXPECT_FALSE(result.ok()) << hex;
    }
}
