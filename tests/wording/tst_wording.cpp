// SPDX-License-Identifier: Apache-2.0
#include "wording/text.h"

#include <gtest/gtest.h>

#include <map>

using namespace wording;

namespace {

std::string inChinese(const Text &text)
{
    static const std::map<std::string, std::string> words{
        {"%1 cannot be written: %2.", "%1无法写入：%2。"},
        {"Access to the object is denied.", "对象拒绝访问。"},
        {"The block belongs to the client %1.", "该块属于客户端%1。"}};
    return text.inLanguage([](const std::string &english) { return words.at(english); });
}

const Text denied = say("Access to the object is denied.");

} // namespace

TEST(Wording, argumentsAreTextsStringsAndNumbers)
{
    const std::string name = "LD/LLN0.blk";
    EXPECT_EQ(say("%2 of %1 has %3.", name, std::string_view("Resv"), -7),
              "Resv of LD/LLN0.blk has -7.");
    EXPECT_EQ(say("%1%2.", "%2", "%1"), "%2%1.");
    EXPECT_EQ(say("100 %.").english(), "100 %.");
}

TEST(Wording, aSentenceWithinAnotherLosesItsFullStop)
{
    EXPECT_EQ(say("%1 cannot be written: %2.", "Resv", denied),
              "Resv cannot be written: Access to the object is denied.");
    EXPECT_EQ(say("It is so (%1).", denied), "It is so (Access to the object is denied).");
    EXPECT_EQ(say("%1 (%2).", denied, "error 9"), "Access to the object is denied (error 9).");
    EXPECT_EQ(say("%1; it is not known.", denied),
              "Access to the object is denied; it is not known.");
    EXPECT_EQ(say("%1 That is all.", denied), "Access to the object is denied. That is all.");
}

TEST(Wording, aNameKeepsItsFullStop)
{
    EXPECT_EQ(say("Look at %1.", "notes."), "Look at notes..");
    EXPECT_EQ(say("Look at %1.", verbatim("It is late.")), "Look at It is late.");
    EXPECT_EQ(say("Look: %1.", verbatim("It goes on...")), "Look: It goes on....");
}

TEST(Wording, sentencesBehindEachOtherHaveFullStops)
{
    const Text owner = say("The block belongs to the client %1.", "10.0.0.5");
    EXPECT_EQ(sentences(denied, owner),
              "Access to the object is denied. The block belongs to the client 10.0.0.5.");
    EXPECT_EQ(sentences(verbatim("The device is busy"), owner),
              "The device is busy. The block belongs to the client 10.0.0.5.");
    EXPECT_EQ(sentences(denied, Text()), denied);
    EXPECT_TRUE(sentences(Text(), Text()).empty());
}

TEST(Wording, eachPartIsInTheReadersLanguage)
{
    const Text text = sentences(say("%1 cannot be written: %2.", "Resv", denied),
                                say("The block belongs to the client %1.", "10.0.0.5"));
    EXPECT_EQ(inChinese(text), "Resv无法写入：对象拒绝访问。该块属于客户端10.0.0.5。");
}

TEST(Wording, whatTheSystemSaysIsKnownByItsCode)
{
    const auto refused = std::make_error_code(std::errc::connection_refused);
    EXPECT_EQ(ofSystem(refused), "Connection refused");
    std::string asked;
    ofSystem(refused).inLanguage([&](const std::string &words) { return asked = words; });
    EXPECT_EQ(asked, "Connection refused");
    const auto rare = std::make_error_code(std::errc::protocol_not_supported);
    EXPECT_EQ(ofSystem(rare), rare.message());
}

TEST(Wording, anEmptyTextSaysNothing)
{
    EXPECT_TRUE(Text().empty());
    EXPECT_TRUE(verbatim("").empty());
    EXPECT_EQ(Text().english(), "");
    EXPECT_EQ(inChinese(Text()), "");
}
