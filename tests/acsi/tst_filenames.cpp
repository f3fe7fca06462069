// SPDX-License-Identifier: Apache-2.0
#include "acsi/filenames.h"

#include <gtest/gtest.h>

namespace {

using namespace acsi;
using Names = std::vector<std::string>;

std::vector<mms::DirectoryEntry> entries(const std::vector<mms::FileName> &names)
{
    std::vector<mms::DirectoryEntry> result;
    for (const mms::FileName &name : names)
        result.push_back({name, {7, "20210304050607.123Z"}});
    return result;
}

Names level(const std::string &directory, const std::vector<mms::FileName> &names)
{
    Names result;
    for (const FileEntry &entry : oneLevel(directory, entries(names)))
        result.push_back(entry.name);
    return result;
}

} // namespace

TEST(FileNames, haveSlashesAndNoneAtTheBeginning)
{
    EXPECT_EQ(plainName(mms::FileName{"/a/b"}), "a/b");
    EXPECT_EQ(plainName(mms::FileName{"\\a\\b\\"}), "a/b/");
    EXPECT_EQ(plainName(mms::FileName{"a", "b", "c.txt"}), "a/b/c.txt");
    EXPECT_EQ(plainName(mms::FileName{"a/", "b"}), "a/b");
    EXPECT_EQ(plainName(mms::FileName{}), "");
    EXPECT_EQ(plainName(mms::FileName{"", ""}), "");
}

TEST(FileNames, areTriedAsGivenFirst)
{
    EXPECT_EQ(spellingsOf("f"), (Names{"f", "/f", "\\f"}));
    EXPECT_EQ(spellingsOf("/a/f"), (Names{"/a/f", "a/f", "a\\f", "\\a\\f"}));
    EXPECT_EQ(spellingsOf("\\f"), (Names{"\\f", "f", "/f"}));
}

TEST(FileNames, ofDirectoriesAreTriedInEveryForm)
{
    using Spellings = std::vector<std::optional<std::string>>;
    EXPECT_EQ(directorySpellingsOf(""), (Spellings{std::nullopt, "/", "\\"}));
    EXPECT_EQ(directorySpellingsOf("/"), (Spellings{std::nullopt, "/", "\\"}));
    EXPECT_EQ(directorySpellingsOf("a"), (Spellings{"a/", "a", "/a/", "a\\", "\\a"}));
}

TEST(DirectoryLevel, keepsSizesAndTimesOfFiles)
{
    const auto files = oneLevel("", entries({{"a.txt"}, {"sub/b.txt"}}));
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].size, 7U);
    EXPECT_EQ(files[0].lastModified, "20210304050607.123Z");
    EXPECT_FALSE(files[0].isDirectory());
    EXPECT_TRUE(files[1].isDirectory());
    EXPECT_EQ(files[1].size, 0U);
}

TEST(DirectoryLevel, isCutFromAFlatListOfEverything)
{
    EXPECT_EQ(level("", {{"a"}, {"s/b"}, {"s/c"}, {"s/t/d"}}), (Names{"a", "s/"}));
    EXPECT_EQ(level("s", {{"a"}, {"s/b"}, {"s/c"}, {"s/t/d"}}), (Names{"b", "c", "t/"}));
    EXPECT_EQ(level("s/t", {{"a"}, {"s/b"}, {"s/t/d"}}), (Names{"d"}));
}

TEST(DirectoryLevel, takesCompleteAndRelativeNamesAndAnySeparator)
{
    EXPECT_EQ(level("s", {{"b"}, {"t/"}}), (Names{"b", "t/"}));
    EXPECT_EQ(level("s/", {{"\\s\\b"}, {"\\s\\t\\"}}), (Names{"b", "t/"}));
    EXPECT_EQ(level("/s", {{"s", "b"}}), (Names{"b"}));
}

TEST(DirectoryLevel, leavesOutItselfAndItsParentAndWhatComesTwice)
{
    EXPECT_EQ(level("s", {{"s/"}, {"s/."}, {"s/b"}, {"s/b"}}), (Names{"b"}));
    EXPECT_EQ(level("", {{"./"}, {"../"}, {"."}, {".."}, {""}, {"/"}}), Names{});
}
