// SPDX-License-Identifier: Apache-2.0
#include "scl/value.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

using scl::BasicType;
using scl::ValueNote;

constexpr std::array behLiterals = {scl::EnumLiteral{1, "on"}, scl::EnumLiteral{2, " blocked "},
                                    scl::EnumLiteral{-5, "7"}, scl::EnumLiteral{9, ""}};
constexpr scl::Enumeration beh{"Beh", behLiterals};

class SclValue : public testing::Test
{
protected:
    scl::ParsedValue parse(BasicType type, std::string_view text,
                           const scl::Enumeration *enumeration = nullptr)
    {
        return scl::parseValue(type, enumeration, text, m_memory);
    }

    void expectUnfit(BasicType type, std::string_view text,
                     const scl::Enumeration *enumeration = nullptr)
    {
        const scl::ParsedValue parsed = parse(type, text, enumeration);
        EXPECT_EQ(parsed.note, ValueNote::Unfit) << text;
        EXPECT_TRUE(std::holds_alternative<std::monostate>(parsed.value)) << text;
    }

    template <typename Expected>
    void expectValue(BasicType type, std::string_view text, Expected expected,
                     ValueNote note = ValueNote::None,
                     const scl::Enumeration *enumeration = nullptr)
    {
        const scl::ParsedValue parsed = parse(type, text, enumeration);
        EXPECT_EQ(parsed.note, note) << text;
        ASSERT_TRUE(std::holds_alternative<Expected>(parsed.value)) << text;
        EXPECT_EQ(std::get<Expected>(parsed.value), expected) << text;
    }

private:
    std::pmr::monotonic_buffer_resource m_memory;
};

} // namespace

TEST_F(SclValue, truthValuesAreUnderstoodInAllTheirSpellings)
{
    expectValue(BasicType::Boolean, "true", true);
    expectValue(BasicType::Boolean, "false", false);
    for (const char *text : {"1", "True", "TRUE", "on"})
        expectValue(BasicType::Boolean, text, true, ValueNote::BooleanSpelling);
    for (const char *text : {"0", "False", "off"})
        expectValue(BasicType::Boolean, text, false, ValueNote::BooleanSpelling);
    expectUnfit(BasicType::Boolean, "2");
    expectUnfit(BasicType::Boolean, "yes please");
}

TEST_F(SclValue, integersKeepToTheRangeOfTheirType)
{
    expectValue(BasicType::Int8, "-128", std::int64_t{-128});
    expectValue(BasicType::Int8, "+127", std::int64_t{127});
    expectUnfit(BasicType::Int8, "128");
    expectUnfit(BasicType::Int8, "+-1");
    expectValue(BasicType::Int16, "32767", std::int64_t{32767});
    expectUnfit(BasicType::Int16, "-32769");
    expectUnfit(BasicType::Int24, "8388608");
    expectValue(BasicType::Int32, "-2147483648", std::int64_t{-2147483648LL});
    expectUnfit(BasicType::Int32, "2147483648");
    expectValue(BasicType::Int64, "-9223372036854775808", std::numeric_limits<std::int64_t>::min());
    expectUnfit(BasicType::Int64, "9223372036854775808");
    expectValue(BasicType::Int8U, "255", std::uint64_t{255});
    expectUnfit(BasicType::Int8U, "256");
    expectUnfit(BasicType::Int16U, "-1");
    expectUnfit(BasicType::Int32U, "4294967296");
    expectValue(BasicType::Int64U, "18446744073709551615", ~std::uint64_t{0});
    expectUnfit(BasicType::Int32, "12abc");
    expectUnfit(BasicType::Int32, "1.0");
}

TEST_F(SclValue, numbersWithBlanksAroundThemAreUnderstood)
{
    expectValue(BasicType::Int32, " 12\n", std::int64_t{12}, ValueNote::Blanks);
    expectValue(BasicType::Float32, "\t1.5", 1.5, ValueNote::Blanks);
}

TEST_F(SclValue, floatsAreReadWithPointAndExponentOnly)
{
    expectValue(BasicType::Float32, "1.5E3", 1500.0);
    expectValue(BasicType::Float64, "-1e300", -1e300);
    expectValue(BasicType::Float32, "INF", std::numeric_limits<double>::infinity());
    expectUnfit(BasicType::Float32, "1e300");
    expectUnfit(BasicType::Float64, "1e400");
    expectUnfit(BasicType::Float32, "1,5");
}

TEST_F(SclValue, enumerationsAreReadByTextThenByOrdinal)
{
    expectValue(BasicType::Enum, "on", std::int64_t{1}, ValueNote::None, &beh);
    expectValue(BasicType::Enum, "blocked", std::int64_t{2}, ValueNote::Blanks, &beh);
    expectValue(BasicType::Enum, " ON ", std::int64_t{1}, ValueNote::Blanks, &beh);
    expectValue(BasicType::Enum, "7", std::int64_t{-5}, ValueNote::None, &beh);
    expectValue(BasicType::Enum, "2", std::int64_t{2}, ValueNote::OrdinalForText, &beh);
    expectValue(BasicType::Enum, "-5", std::int64_t{-5}, ValueNote::OrdinalForText, &beh);
    expectValue(BasicType::Enum, "", std::int64_t{9}, ValueNote::None, &beh);
    expectUnfit(BasicType::Enum, "3", &beh);
    expectUnfit(BasicType::Enum, "sideways", &beh);
}

TEST_F(SclValue, anEnumerationThatIsMissingStillTakesOrdinals)
{
    expectValue(BasicType::Enum, "42", std::int64_t{42}, ValueNote::OrdinalForText);
    expectUnfit(BasicType::Enum, "on");
}

TEST_F(SclValue, codedEnumerationsHaveTextsOfTheirOwn)
{
    expectValue(BasicType::Dbpos, "intermediate", std::int64_t{0});
    expectValue(BasicType::Dbpos, "off", std::int64_t{1});
    expectValue(BasicType::Dbpos, "on", std::int64_t{2});
    expectValue(BasicType::Dbpos, "bad-state", std::int64_t{3});
    expectValue(BasicType::Dbpos, "10", std::int64_t{2});
    expectValue(BasicType::Dbpos, "3", std::int64_t{3}, ValueNote::OrdinalForText);
    expectUnfit(BasicType::Dbpos, "4");
    expectValue(BasicType::Tcmd, "higher", std::int64_t{2});
    expectValue(BasicType::Check, "synchrocheck", std::int64_t{2});
    expectValue(BasicType::Check, "interlock-check", std::int64_t{1});
}

TEST_F(SclValue, qualitiesHaveThirteenBits)
{
    expectValue(BasicType::Quality, "0100000000010", std::string_view("0100000000010"));
    expectUnfit(BasicType::Quality, "0");
    expectUnfit(BasicType::Quality, "00000000000002");
}

TEST_F(SclValue, timeStampsBecomeUtcWithMilliseconds)
{
    expectValue(BasicType::Timestamp, "2021-03-04T05:06:07Z",
                std::string_view("2021-03-04T05:06:07.000Z"));
    expectValue(BasicType::Timestamp, "2021-03-04T00:06:07.5+01:00",
                std::string_view("2021-03-03T23:06:07.500Z"));
    expectValue(BasicType::Timestamp, "1999-12-31T23:59:59.123456-00:30",
                std::string_view("2000-01-01T00:29:59.123456Z"));
    for (const char *text :
         {"yesterday", "2021-02-30T00:00:00Z", "2021-03-04T25:00:00Z", "2021-03-04T05:06:07.Z",
          "2021-03-04T05:06:07Zulu", "2021-03-04T05:06"})
        expectUnfit(BasicType::Timestamp, text);
}

TEST_F(SclValue, textsAreKeptAsTheyAreWritten)
{
    expectValue(BasicType::VisString, " a b ", std::string_view(" a b "));
    expectValue(BasicType::Unicode, "\n   Größe\n  ", std::string_view("Größe"));
    expectValue(BasicType::VisString, "", std::string_view());
    expectValue(BasicType::Other, "warm", std::string_view("warm"));
    expectValue(BasicType::Octet, " 0aFF ", std::string_view("0aFF"));
}

TEST_F(SclValue, anEmptyTextIsNoValueOfATypeThatIsNotAText)
{
    for (const BasicType type : {BasicType::Boolean, BasicType::Int32, BasicType::Float32,
                                 BasicType::Dbpos, BasicType::Quality, BasicType::Timestamp}) {
        const scl::ParsedValue parsed = parse(type, " ");
        EXPECT_EQ(parsed.note, ValueNote::Empty);
        EXPECT_TRUE(std::holds_alternative<std::monostate>(parsed.value));
    }
}
