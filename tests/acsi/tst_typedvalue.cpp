// SPDX-License-Identifier: Apache-2.0
#include "acsi/typedvalue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using namespace acsi;
using mms::Data;
using mms::TypeDescription;

namespace {

Data bits(const char *text)
{
    return Data::bitString(mms::BitString::fromText(text));
}

std::string umlauts(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += "\xC3\xA4";
    return text;
}

} // namespace

TEST(TypedValue, whatWasSentInAnotherTypeIsTold)
{
    EXPECT_TRUE(isSentAs(TypeDescription::boolean(), Data::boolean(true)));
    EXPECT_FALSE(isSentAs(TypeDescription::boolean(), Data::integer(5)));
    EXPECT_FALSE(isSentAs(TypeDescription::boolean(), Data::unsignedInteger(1)));
    EXPECT_FALSE(isSentAs(TypeDescription::integer(32), Data::unsignedInteger(1)));
    EXPECT_FALSE(isSentAs(TypeDescription::unsignedInteger(32), Data::integer(1)));
    EXPECT_FALSE(isSentAs(TypeDescription::float32(), Data::float64(1)));
    EXPECT_FALSE(isSentAs(TypeDescription::float64(), Data::float32(1)));
    EXPECT_FALSE(isSentAs(TypeDescription::visibleString(-255), Data::mmsString("a")));
    EXPECT_FALSE(isSentAs(TypeDescription::utcTime(), Data::binaryTime({0, 0})));
    EXPECT_FALSE(isSentAs(TypeDescription::boolean(), Data::structure({Data::boolean(true)})));
    EXPECT_TRUE(isSentAs(TypeDescription::binaryTime(true), Data::binaryTime({86399999, 0})));
    EXPECT_FALSE(isSentAs(TypeDescription::binaryTime(true), Data::binaryTime({86400000, 0})));
}

TEST(TypedValue, everyBitOfACodedEnumerationMustCome)
{
    for (const int size : {2, -2}) {
        EXPECT_TRUE(isSentAs(TypeDescription::bitString(size), bits("10")));
        EXPECT_FALSE(isSentAs(TypeDescription::bitString(size), bits("1")));
        EXPECT_FALSE(isSentAs(TypeDescription::bitString(size), bits("100")));
        EXPECT_FALSE(isSentAs(TypeDescription::bitString(size), bits("0000000000000")));
    }
}

TEST(TypedValue, bitsOfAQualityMayBeMissingWhereTheLengthVaries)
{
    EXPECT_TRUE(isSentAs(TypeDescription::bitString(-13), bits("01")));
    EXPECT_TRUE(isSentAs(TypeDescription::bitString(-13), bits("0100000000000")));
    EXPECT_FALSE(isSentAs(TypeDescription::bitString(-13), bits("01000000000000")));
    EXPECT_FALSE(isSentAs(TypeDescription::bitString(13), bits("010000000000")));
    EXPECT_FALSE(isSentAs(TypeDescription::bitString(13), bits("01000000000000")));
}

TEST(TypedValue, rangesAndLengthsAreTheDevicesOwnAffair)
{
    EXPECT_TRUE(isSentAs(TypeDescription::integer(8), Data::integer(300)));
    EXPECT_TRUE(isSentAs(TypeDescription::visibleString(4), Data::visibleString("a")));
    EXPECT_TRUE(isSentAs(TypeDescription::visibleString(-4), Data::visibleString("abcdef")));
    EXPECT_TRUE(isSentAs(TypeDescription::octetString(-1), Data::octetString({})));
}

TEST(TypedValue, aFixedLengthIsTheGreatest)
{
    EXPECT_TRUE(checkType(TypeDescription::octetString(64), Data::octetString({})));
    EXPECT_TRUE(checkType(TypeDescription::visibleString(129), Data::visibleString("ab")));
    EXPECT_TRUE(
        checkType(TypeDescription::visibleString(129), Data::visibleString(std::string(129, 'a'))));
    EXPECT_FALSE(
        checkType(TypeDescription::visibleString(129), Data::visibleString(std::string(130, 'a'))));
    EXPECT_FALSE(checkType(TypeDescription::bitString(13), bits("01")));
    const auto text = valueOfType(TypeDescription::visibleString(129), Data::mmsString("ab"));
    ASSERT_TRUE(text);
    EXPECT_TRUE(*text == Data::visibleString("ab"));
}

TEST(TypedValue, unicodeOf255CountsCharactersAndEveryOtherLengthOctets)
{
    const auto fits = [](int size, const std::string &text) {
        return fitsLength(TypeDescription::mmsString(size), Data::mmsString(text));
    };
    EXPECT_TRUE(fits(-255, umlauts(255)));
    EXPECT_TRUE(fits(255, umlauts(255)));
    EXPECT_FALSE(fits(-255, umlauts(256)));
    EXPECT_FALSE(fits(-255, umlauts(255) + "a"));
    EXPECT_TRUE(fits(-32, umlauts(16)));
    EXPECT_FALSE(fits(-32, umlauts(16) + "a"));
    EXPECT_FALSE(
        fitsLength(TypeDescription::visibleString(-255), Data::visibleString(umlauts(255))));
    EXPECT_TRUE(fits(0, umlauts(1000)));
}

TEST(TypedValue, theNearestFloatIsNeitherInfinityNorZeroForAnotherNumber)
{
    constexpr float greatest = std::numeric_limits<float>::max();
    constexpr float least = std::numeric_limits<float>::denorm_min();
    EXPECT_EQ(nearestFloat(3.4028235e38), greatest);
    EXPECT_EQ(nearestFloat(-3.4028235e38), -greatest);
    EXPECT_EQ(nearestFloat(3.4028235677973362e38), greatest);
    EXPECT_EQ(nearestFloat(3.4028235677973366e38), std::nullopt);
    EXPECT_EQ(nearestFloat(-1e39), std::nullopt);
    EXPECT_EQ(nearestFloat(1e-45), least);
    EXPECT_EQ(nearestFloat(-1e-45), -least);
    EXPECT_EQ(nearestFloat(7e-46), std::nullopt);
    EXPECT_EQ(nearestFloat(0.0), 0.0F);
    EXPECT_TRUE(std::isnan(*nearestFloat(std::nan(""))));
    EXPECT_TRUE(std::isinf(*nearestFloat(std::numeric_limits<double>::infinity())));
    EXPECT_FALSE(valueOfType(TypeDescription::float32(), Data::float64(1e-300)));
    EXPECT_FALSE(valueOfType(TypeDescription::float32(), Data::float64(1e300)));
}
