// SPDX-License-Identifier: Apache-2.0
#include "mms/data.h"
#include "mms/shorthand.h"
#include "mms/times.h"

#include "osi/bytes.h"

#include <gtest/gtest.h>

#include <random>

using namespace mms;
using wiretest::decodeData;
using wiretest::encode;
using wiretest::fromHex;
using wiretest::toHex;

namespace {

std::string wire(std::string_view text)
{
    const auto time = utcTimeFrom(text);
    return time ? toHex(encode(Data::utcTime(*time))) : "none";
}

std::string binaryWire(std::string_view text)
{
    const auto time = binaryTimeFrom(text);
    return time ? toHex(encode(Data::binaryTime(*time))) : "none";
}

} // namespace

TEST(Times, everyMillisecondIsShownAndReadAsItself)
{
    char text[40];
    for (unsigned i = 0; i < 1000; ++i) {
        std::snprintf(text, sizeof text, "2026-03-04T05:06:07.%03u000Z", i);
        const auto time = utcTimeFrom(text);
        ASSERT_TRUE(time) << text;
        EXPECT_EQ(toText(*time), text);
    }
}

TEST(Times, everyMicrosecondIsShownAndReadAsItself)
{
    char text[40];
    for (unsigned i = 0; i < 1000000; i += 7) {
        std::snprintf(text, sizeof text, "2026-03-04T05:06:07.%06uZ", i);
        const auto time = utcTimeFrom(text);
        ASSERT_TRUE(time) << text;
        ASSERT_EQ(toText(*time), text);
    }
}

TEST(Times, utcTimesOnTheWire)
{
    // 0.007 s are 117440.5 units, 0.001 s 16777.216.
    EXPECT_EQ(wire("1970-01-01T00:00:00Z"), "9108000000000000000a");
    EXPECT_EQ(wire("1970-01-01T00:00:00.001Z"), "9108000000000041890a");
    EXPECT_EQ(wire("1970-01-01T00:00:00.9999999Z"), "910800000000fffffe0a");
    EXPECT_EQ(wire("1970-01-01T00:00:00.99999999Z"), "9108000000010000000a");
    EXPECT_EQ(wire("2021-03-04T05:06:07.5Z"), "910860406abf8000000a");
    EXPECT_EQ(wire("2021-03-04T06:06:07.5+01:00"), "910860406abf8000000a");
    EXPECT_EQ(wire("2021-03-03T23:36:07.5-05:30"), "910860406abf8000000a");
    EXPECT_EQ(wire("2021-03-04T05:06:07"), "910860406abf0000000a");
    EXPECT_EQ(wire("2106-02-07T06:28:15Z"), "9108ffffffff0000000a");
    EXPECT_EQ(wire("2021-03-04T05:06:07Z leap-seconds-known clock-failure clock-not-synchronized"),
              "910860406abf000000ea");
    EXPECT_EQ(wire("2021-03-04T05:06:07Z clock-failure accuracy-7"), "910860406abf00000047");
}

TEST(Times, aTextThatIsNotWhollyATimeIsNone)
{
    for (const char *text : {"",
                             "2026-03-04",
                             "2026-03-04 05:06:07",
                             "2026-03-04T05:06:07,500Z",
                             "2026-03-04T05:06:07Z tomorrow",
                             "2026-03-04T05:06:07Z ",
                             " 2026-03-04T05:06:07Z",
                             "2026-03-04T05:06Z",
                             "2026-03-04T24:00:00Z",
                             "2026-03-04T05:60:07Z",
                             "2026-03-04T05:06:60Z",
                             "2026-02-29T05:06:07Z",
                             "2026-3-4T05:06:07Z",
                             "2026-03-04T05:06:07.Z",
                             "2026-03-04T05:06:07ZZ",
                             "2026-03-04T05:06:07+1:00",
                             "2026-03-04T05:06:07Z accuracy-32",
                             "2026-03-04T05:06:07Z accuracy-",
                             "2026-03-04T05:06:07Z accuracy-7 accuracy-7",
                             "2026-03-04T05:06:07Zclock-failure",
                             "2026-03-04T05:06:07Z clock-failure clock-failure",
                             "2026-03-04T05:06:07Z  clock-failure",
                             "1969-12-31T23:59:59Z",
                             "2106-02-07T06:28:16Z",
                             "2106-02-07T06:28:15.99999999Z",
                             "9999-01-01T00:00:00Z",
                             "0000-01-01T00:00:00Z",
                             "yesterday"})
        EXPECT_FALSE(utcTimeFrom(text)) << text;
}

TEST(Times, everyQualityOfATimeIsToldApartAndReadBack)
{
    for (unsigned quality = 0; quality < 256; ++quality) {
        const UtcTime time{1614834367, 0x800000, static_cast<std::uint8_t>(quality)};
        EXPECT_EQ(utcTimeFrom(toText(time)), time) << toText(time);
    }
    EXPECT_EQ(toText(UtcTime{0, 0, 10}), "1970-01-01T00:00:00.000000Z");
    EXPECT_EQ(toText(UtcTime{0, 0, 7}), "1970-01-01T00:00:00.000000Z accuracy-7");
    EXPECT_EQ(toText(UtcTime{0, 0, 31}), "1970-01-01T00:00:00.000000Z accuracy-31");
    EXPECT_EQ(toText(UtcTime{0, 0, 0x60}),
              "1970-01-01T00:00:00.000000Z clock-failure clock-not-synchronized accuracy-0");
    EXPECT_EQ(toText(UtcTime{4294967295U, 0, 0x8A}),
              "2106-02-07T06:28:15.000000Z leap-seconds-known");
    EXPECT_EQ(toText(UtcTime{1614834367, 0xFFFFFF, 10}), "2021-03-04T05:06:08.000000Z");
}

TEST(Times, anyFractionIsShownToTheNearestMicrosecond)
{
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        const UtcTime time{static_cast<std::uint32_t>(random()) & 0x7FFFFFFFU,
                           static_cast<std::uint32_t>(random()) & 0xFFFFFFU, 10};
        const auto again = utcTimeFrom(toText(time));
        ASSERT_TRUE(again) << toText(time);
        const auto units = [](const UtcTime &each) {
            return (std::int64_t{each.seconds} << 24) + each.fraction;
        };
        // Half a microsecond is a little more than eight units.
        ASSERT_LE(std::abs(units(*again) - units(time)), 9) << toText(time);
    }
}

TEST(Times, momentsOfTheClockAreTheNearestUnit)
{
    using namespace std::chrono;
    const auto at = [](nanoseconds since) { return utcTimeAt(sys_time<nanoseconds>(since), 0x0A); };
    EXPECT_EQ(at(milliseconds(1)), (UtcTime{0, 16777, 10}));
    EXPECT_EQ(at(milliseconds(7)), (UtcTime{0, 117441, 10}));
    EXPECT_EQ(at(nanoseconds(999999999)), (UtcTime{1, 0, 10}));
    EXPECT_EQ(at(nanoseconds(-1)), (UtcTime{0, 0, 10}));
    EXPECT_EQ(at(seconds(-1)), std::nullopt);
    EXPECT_EQ(at(seconds(4294967296)), std::nullopt);
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(momentOf<milliseconds>(*at(milliseconds(i))).time_since_epoch().count(), i);
}

TEST(Times, binaryTimesOnTheWire)
{
    EXPECT_EQ(binaryWire("1984-01-01T00:00:00.001Z"), "8c06000000010000");
    EXPECT_EQ(binaryWire("2021-03-04T05:06:07.123Z"), "8c06011842933509");
    EXPECT_EQ(binaryWire("2021-03-04T05:06:07.1226Z"), "8c06011842933509");
    EXPECT_EQ(binaryWire("2021-03-04T23:59:59.9996Z"), "8c0600000000350a");
    EXPECT_EQ(binaryWire("05:06:07.123"), "8c0401184293");
    EXPECT_EQ(binaryWire("00:00:00"), "8c0400000000");
    EXPECT_EQ(binaryWire("23:59:59.999"), "8c0405265bff");
    for (const char *text : {"24:00:00", "23:59:59.9999", "5:06:07", "05:06:07Z", "05:06:07 ",
                             "1983-12-31T23:59:59.999Z", "2163-06-07T00:00:00Z", "1984-01-01",
                             "1984-01-01T00:00:00Z accuracy-7"})
        EXPECT_EQ(binaryWire(text), "none") << text;
    EXPECT_EQ(binaryWire("2163-06-06T00:00:00Z"), "8c0600000000ffff");
}

TEST(Times, everyBinaryTimeIsReadBack)
{
    std::mt19937 random(2);
    for (int i = 0; i < 20000; ++i) {
        BinaryTime time{static_cast<std::uint32_t>(random() % 86400000U), {}};
        if (i % 2 == 0)
            time.days = static_cast<std::uint16_t>(random());
        ASSERT_EQ(binaryTimeFrom(toText(time)), time) << toText(time);
    }
}

TEST(Times, hoursBeyondADayAreNotShown)
{
    EXPECT_TRUE(isTimeOfDay({86399999, 0}));
    EXPECT_FALSE(isTimeOfDay({86400000, 0}));
    EXPECT_EQ(toText(BinaryTime{90000000, 0}), "1984-01-01 without a time of day (90000000 ms)");
    EXPECT_EQ(toText(BinaryTime{4294967295U, {}}), "without a time of day (4294967295 ms)");
}

TEST(Times, aTimeOfOneOctetMoreOrLessIsRefused)
{
    for (const char *hex : {"910760406abf800000", "910960406abf8000000a00", "8c03011842",
                            "8c050118429335", "8c0701184293350900", "9100", "8c00"})
        EXPECT_FALSE(decodeData(fromHex(hex))) << hex;
}
