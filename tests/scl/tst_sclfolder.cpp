// SPDX-License-Identifier: Apache-2.0
// Reads every file of a folder of real devices and compares the numbers with the table that the
// folder's README.md holds.
#include "scl/reader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace {

std::vector<std::string> cells(const std::string &row)
{
    std::vector<std::string> result;
    std::size_t begin = row.find('|');
    while (begin != std::string::npos) {
        const std::size_t end = row.find('|', begin + 1);
        if (end == std::string::npos)
            break;
        std::string cell = row.substr(begin + 1, end - begin - 1);
        cell.erase(0, cell.find_first_not_of(' '));
        cell.erase(cell.find_last_not_of(' ') + 1);
        result.push_back(cell);
        begin = end;
    }
    return result;
}

std::uint64_t numberIn(std::string cell)
{
    std::erase(cell, ',');
    return std::stoull(cell);
}

struct Expected
{
    std::string edition;
    scl::IedCounts counts;
    std::uint64_t ieds = 0;
};

std::map<std::string, Expected> expectedNumbers(const std::filesystem::path &readme)
{
    std::map<std::string, Expected> result;
    std::ifstream file(readme);
    std::vector<std::string> header;
    for (std::string line; std::getline(file, line);) {
        const std::vector<std::string> row = cells(line);
        if (row.empty()) {
            header.clear();
        } else if (header.empty()) {
            header = row;
        } else if (header.size() > 7 && header[7] == "attributes" && row.size() == header.size() &&
                   row[0].find_first_not_of('-') != std::string::npos) {
            Expected expected;
            expected.edition = row[2];
            expected.ieds = numberIn(row[3]);
            expected.counts.logicalDevices = numberIn(row[4]);
            expected.counts.logicalNodes = numberIn(row[5]);
            expected.counts.dataObjects = numberIn(row[6]);
            expected.counts.attributes = numberIn(row[7]);
            result.emplace(row[0], expected);
        }
    }
    return result;
}

} // namespace

TEST(SclFolder, everyFileLoadsWithTheNumbersOfItsTable)
{
    const std::filesystem::path folder = SCL_FOLDER;
    const auto expectedByFile = expectedNumbers(folder / "README.md");
    ASSERT_GE(expectedByFile.size(), 20U);
    std::size_t read = 0;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (name == "README.md")
            continue;
        SCOPED_TRACE(name);
        const auto found = expectedByFile.find(name);
        ASSERT_NE(found, expectedByFile.end());
        const scl::ReadResult result = scl::readFile(entry.path().string());
        ASSERT_NE(result.document, nullptr) << result.errorText;
        scl::IedCounts total;
        for (const scl::Ied &ied : result.document->ieds) {
            const scl::IedCounts counts = scl::countsOf(ied);
            total.logicalDevices += counts.logicalDevices;
            total.logicalNodes += counts.logicalNodes;
            total.dataObjects += counts.dataObjects;
            total.attributes += counts.attributes;
        }
        const Expected &expected = found->second;
        EXPECT_EQ(result.document->ieds.size(), expected.ieds);
        EXPECT_EQ(total.logicalDevices, expected.counts.logicalDevices);
        EXPECT_EQ(total.logicalNodes, expected.counts.logicalNodes);
        EXPECT_EQ(total.dataObjects, expected.counts.dataObjects);
        EXPECT_EQ(total.attributes, expected.counts.attributes);
        const std::string edition = result.document->schemaVersion();
        EXPECT_EQ(edition == "2003" ? "1 (2003)" : edition, expected.edition);
        ++read;
    }
    EXPECT_EQ(read, expectedByFile.size());
}
