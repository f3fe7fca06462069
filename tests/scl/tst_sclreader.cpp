// SPDX-License-Identifier: Apache-2.0
#include "fixture.h"

#include <gtest/gtest.h>

#include <atomic>
#include <vector>

namespace {

std::string descriptionOf(const std::string &fixture)
{
    const scl::ReadResult result = readFixture(fixture);
    if (!result.document)
        return "error: " + result.errorText.english();
    const scl::LogicalNode *node = nodeNamed(*result.document, "GGIO1");
    return node ? std::string(node->desc) : "no such node";
}

void expectRefused(const std::string &fixture, scl::ReadError error, std::uint32_t line,
                   const std::string &part)
{
    const scl::ReadResult result = readFixture(fixture);
    EXPECT_EQ(result.document, nullptr) << fixture;
    EXPECT_EQ(result.error, error) << fixture;
    EXPECT_EQ(result.errorLine, line) << fixture;
    EXPECT_NE(result.errorText.english().find(part), std::string::npos) << result.errorText;
}

std::string nested(const std::string &open, const std::string &close, int times)
{
    std::string text = "<SCL>";
    for (int i = 0; i < times; ++i)
        text += open;
    for (int i = 0; i < times; ++i)
        text += close;
    return text + "</SCL>";
}

std::string deviceWithTypes(const std::string &types, const std::string &node = {})
{
    return "<SCL version=\"2007\" revision=\"B\"><IED name=\"A\"><AccessPoint name=\"S\"><Server>"
           "<LDevice inst=\"L\"><LN0 lnClass=\"LLN0\" inst=\"\" lnType=\"Z\">" +
           node + "</LN0></LDevice></Server></AccessPoint></IED><DataTypeTemplates>" + types +
           "</DataTypeTemplates></SCL>";
}

/// Types of the given number of levels, each with two or more of the next.
std::string typeBomb(int levels)
{
    std::string types =
        "<LNodeType id=\"Z\" lnClass=\"LLN0\"><DO name=\"d\" type=\"O\"/></LNodeType>"
        "<DOType id=\"O\" cdc=\"SPS\"><DA name=\"a\" fc=\"ST\" bType=\"Struct\" "
        "type=\"T0\"/></DOType>";
    for (int i = 0; i < levels; ++i) {
        const std::string next = std::to_string(i + 1);
        types += "<DAType id=\"T" + std::to_string(i) + "\">";
        for (const char *name : {"x", "y", "z"}) {
            types += std::string("<BDA name=\"") + name +
                     (i + 1 < levels ? "\" bType=\"Struct\" type=\"T" + next + "\"/>"
                                     : "\" bType=\"INT32\"/>");
        }
        types += "</DAType>";
    }
    return types;
}

} // namespace

TEST(SclReader, readsEveryUsualEncoding)
{
    EXPECT_EQ(descriptionOf("utf8.icd"), "Größe Ω");
    EXPECT_EQ(descriptionOf("utf8-bom.icd"), "Größe Ω");
    EXPECT_EQ(descriptionOf("utf16-le.icd"), "Größe Ω");
    EXPECT_EQ(descriptionOf("utf16-be.icd"), "Größe Ω");
    EXPECT_EQ(descriptionOf("iso-8859-1.icd"), "Größe");
    EXPECT_EQ(descriptionOf("windows-1252.icd"), "10 €");
}

TEST(SclReader, readsAnEncodingNameWithoutHyphenAndSaysSo)
{
    EXPECT_EQ(descriptionOf("encoding-utf8-unhyphenated.icd"), "Größe Ω");
    const scl::ReadResult result = readFixture("encoding-utf8-unhyphenated.icd");
    const scl::Finding *finding = findingWith(*result.document, "\"utf8\"");
    ASSERT_NE(finding, nullptr);
    EXPECT_EQ(finding->severity, scl::Severity::Info);
    EXPECT_EQ(finding->line, 1U);
}

TEST(SclReader, readsSingleBytesThatAreDeclaredAsUtf16AndSaysSo)
{
    EXPECT_EQ(descriptionOf("utf16-declared-only.icd"), "Größe Ω");
    const scl::ReadResult result = readFixture("utf16-declared-only.icd");
    EXPECT_NE(findingWith(*result.document, "\"utf-16\""), nullptr);
}

TEST(SclReader, namesTheEditionOfAFile)
{
    const scl::ReadResult first = readFixture("edition1.icd");
    EXPECT_EQ(first.document->edition(), "1");
    EXPECT_EQ(first.document->schemaVersion(), "2003");
    const scl::ReadResult second = readFixture("utf8.icd");
    EXPECT_EQ(second.document->edition(), "2");
    EXPECT_EQ(second.document->schemaVersion(), "2007B");
    const scl::ReadResult third = readFixture("device.icd");
    EXPECT_EQ(third.document->edition(), "2.1");
    EXPECT_EQ(third.document->schemaVersion(), "2007B4");
}

TEST(SclReader, readsTheOldNamespaceNoneAndAPrefixedOne)
{
    for (const char *fixture :
         {"old-namespace.icd", "no-namespace.icd", "prefixed-namespace.icd", "utf8.icd"}) {
        const scl::ReadResult result = readFixture(fixture);
        ASSERT_NE(result.document, nullptr) << fixture;
        ASSERT_EQ(result.document->ieds.size(), 1U) << fixture;
        EXPECT_EQ(scl::countsOf(result.document->ieds.front()).attributes, 3U) << fixture;
    }
    EXPECT_NE(findingWith(*readFixture("old-namespace.icd").document, "2001/SCL"), nullptr);
    EXPECT_NE(findingWith(*readFixture("no-namespace.icd").document, "no name space"), nullptr);
    EXPECT_TRUE(readFixture("prefixed-namespace.icd").document->findings.empty());
}

TEST(SclReader, refusesWhatIsNotWellFormedWithTheLine)
{
    expectRefused("not-well-formed.icd", scl::ReadError::NotWellFormed, 6, "mismatched tag");
    expectRefused("truncated.icd", scl::ReadError::NotWellFormed, 23, "not well-formed");
    expectRefused("wrong-encoding.icd", scl::ReadError::NotWellFormed, 10, "encoding");
}

TEST(SclReader, refusesXmlOfAnotherKind)
{
    expectRefused("not-scl.xml", scl::ReadError::NotScl, 2, "\"project\"");
}

TEST(SclReader, refusesEntityDeclarationsWithoutExpandingThem)
{
    expectRefused("entity.icd", scl::ReadError::NotWellFormed, 3, "entity");
    expectRefused("external-dtd.icd", scl::ReadError::NotWellFormed, 2, "external");
}

TEST(SclReader, refusesFilesWithoutContentOrThatCannotBeOpened)
{
    EXPECT_EQ(scl::readBytes("").error, scl::ReadError::NotWellFormed);
    EXPECT_EQ(scl::readBytes(" \n\t").errorText, "The file is empty.");
    EXPECT_EQ(scl::readBytes(std::string(100, '\0')).error, scl::ReadError::NotWellFormed);
    const scl::ReadResult missing = readFixture("no such file.icd");
    EXPECT_EQ(missing.error, scl::ReadError::CannotRead);
    EXPECT_NE(missing.errorText.english().find("no such file.icd"), std::string::npos);
    EXPECT_EQ(readFixture(".").error, scl::ReadError::CannotRead);
}

TEST(SclReader, aFileWithoutDevicesIsAnEmptyDocument)
{
    const scl::ReadResult result = scl::readBytes("<SCL version=\"2007\"/>");
    ASSERT_NE(result.document, nullptr);
    EXPECT_TRUE(result.document->ieds.empty());
    EXPECT_TRUE(result.errorText.empty());
}

TEST(SclReader, endsAtTheByteLimit)
{
    scl::ReadOptions options;
    options.maxBytes = 1000;
    const scl::ReadResult result = readFixture("device.icd", options);
    EXPECT_EQ(result.document, nullptr);
    EXPECT_EQ(result.error, scl::ReadError::TooLarge);
    EXPECT_NE(result.errorText.english().find("1000 bytes"), std::string::npos);
    EXPECT_EQ(scl::readBytes("<SCL>" + std::string(2000, ' ') + "</SCL>", options).error,
              scl::ReadError::TooLarge);
}

TEST(SclReader, endsAtTheDepthLimitAlsoWithinSkippedElements)
{
    EXPECT_EQ(scl::readBytes(nested("<Private>", "</Private>", 126)).error, scl::ReadError::None);
    for (const char *name : {"Private", "IED", "Services"}) {
        const std::string open = std::string("<") + name + ">";
        const std::string close = std::string("</") + name + ">";
        EXPECT_EQ(scl::readBytes(nested(open, close, 5000)).error, scl::ReadError::TooLarge)
            << name;
    }
}

TEST(SclReader, refusesTypesThatMultiplyBeyondTheLimit)
{
    const scl::ReadResult result = scl::readBytes(deviceWithTypes(typeBomb(25)));
    EXPECT_EQ(result.document, nullptr);
    EXPECT_EQ(result.error, scl::ReadError::TooLarge);
    EXPECT_NE(result.errorText.english().find("\"A\""), std::string::npos);
    EXPECT_EQ(scl::readBytes(deviceWithTypes(typeBomb(4))).error, scl::ReadError::None);
}

TEST(SclReader, leavesOutWhatIsNestedDeeperThanTheLimit)
{
    scl::ReadOptions options;
    options.maxDataDepth = 5;
    const scl::ReadResult result = scl::readBytes(deviceWithTypes(typeBomb(8)), options);
    ASSERT_NE(result.document, nullptr);
    EXPECT_NE(findingWith(*result.document, "deeper than 5"), nullptr);
    EXPECT_EQ(scl::countsOf(result.document->ieds.front()).attributes, 0U);
}

TEST(SclReader, refusesHugeArrays)
{
    const std::string node = "<LNodeType id=\"Z\" lnClass=\"LLN0\"><DO name=\"d\" type=\"O\"/>"
                             "</LNodeType><DOType id=\"O\" cdc=\"SPS\">";
    EXPECT_EQ(scl::readBytes(deviceWithTypes(node + "<DA name=\"a\" fc=\"ST\" bType=\"INT32\" "
                                                    "count=\"4000000000\"/></DOType>"))
                  .error,
              scl::ReadError::TooLarge);
    EXPECT_EQ(scl::readBytes(deviceWithTypes(node + "<SDO name=\"s\" type=\"gone\" "
                                                    "count=\"4000000000\"/></DOType>"))
                  .error,
              scl::ReadError::TooLarge);
    EXPECT_EQ(
        scl::readBytes(deviceWithTypes(node + "<DA name=\"n\" fc=\"CF\" bType=\"INT32U\">"
                                              "<Val>4000000</Val></DA><DA name=\"a\" fc=\"ST\" "
                                              "bType=\"Struct\" type=\"T\" count=\"n\"/></DOType>"
                                              "<DAType id=\"T\"><BDA name=\"n\" bType=\"INT32U\">"
                                              "<Val>4000000</Val></BDA><BDA name=\"b\" "
                                              "bType=\"INT32\" count=\"n\"/></DAType>"))
            .error,
        scl::ReadError::TooLarge);
}

TEST(SclReader, keepsNoMoreFindingsThanAskedForAndCountsTheRest)
{
    scl::ReadOptions options;
    options.maxFindings = 2;
    const scl::ReadResult result = readFixture("odd-values.icd", options);
    ASSERT_NE(result.document, nullptr);
    EXPECT_EQ(result.document->findings.size(), 2U);
    EXPECT_EQ(result.document->findingsLeftOut, 9U);
    EXPECT_TRUE(result.document->hasErrors);
}

TEST(SclReader, reportsProgressFromStartToEnd)
{
    std::vector<double> steps;
    scl::ReadOptions options;
    options.progress = [&steps](double share) { steps.push_back(share); };
    const scl::ReadResult result = readFixture("device.icd", options);
    ASSERT_NE(result.document, nullptr);
    ASSERT_FALSE(steps.empty());
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_GE(steps.front(), 0.0);
    EXPECT_DOUBLE_EQ(steps.back(), 1.0);
}

TEST(SclReader, stopsWhenItIsCancelled)
{
    std::atomic<bool> cancelled{true};
    scl::ReadOptions options;
    options.cancelled = &cancelled;
    EXPECT_EQ(readFixture("device.icd", options).error, scl::ReadError::Cancelled);

    cancelled = false;
    options.progress = [&cancelled](double) { cancelled = true; };
    const scl::ReadResult result = readFixture("device.icd", options);
    EXPECT_EQ(result.error, scl::ReadError::Cancelled);
    EXPECT_EQ(result.document, nullptr);
}

TEST(SclReader, readsTokensLongerThanItsBuffer)
{
    const std::string text(3'000'000, 'x');
    const scl::ReadResult result =
        scl::readBytes("<SCL><Header id=\"" + text + "\"/><Private>" + text + "</Private></SCL>");
    ASSERT_NE(result.document, nullptr);
    EXPECT_EQ(result.document->headerId.size(), text.size());
}
