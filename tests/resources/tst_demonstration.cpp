// SPDX-License-Identifier: Apache-2.0
#include "scl/reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace {

const scl::Document &demonstration()
{
    static const scl::ReadResult result = scl::readFile(DEMONSTRATION_FILE);
    static const scl::Document empty;
    EXPECT_EQ(result.errorText, "");
    return result.document ? *result.document : empty;
}

template <typename Visitor>
void forEachNode(Visitor &&visit)
{
    for (const scl::Ied &ied : demonstration().ieds) {
        ied.forEachDevice([&](const scl::LogicalDevice &device) {
            for (const scl::LogicalNode &node : device.nodes)
                visit(device, node);
        });
    }
}

template <typename Visitor>
void forEachLeaf(const scl::DataNode &data, Visitor &&visit)
{
    if (data.isLeaf()) {
        visit(data);
        return;
    }
    data.forEachChild([&](const scl::DataNode &child) { forEachLeaf(child, visit); });
}

const scl::LogicalNode *findNode(std::string_view device, std::string_view name)
{
    const scl::LogicalNode *found = nullptr;
    forEachNode([&](const scl::LogicalDevice &candidate, const scl::LogicalNode &node) {
        if (candidate.inst == device && node.name == name)
            found = &node;
    });
    return found;
}

} // namespace

TEST(Demonstration, loadsWithoutAFinding)
{
    for (const scl::Finding &finding : demonstration().findings)
        ADD_FAILURE() << finding.line << ": " << finding.text;
    ASSERT_EQ(demonstration().ieds.size(), 1U);
    EXPECT_EQ(demonstration().schemaVersion(), "2007B4");
}

TEST(Demonstration, hasTheSizeOfARealBay)
{
    ASSERT_EQ(demonstration().ieds.size(), 1U);
    const scl::IedCounts counts = scl::countsOf(demonstration().ieds.front());
    EXPECT_GE(counts.logicalDevices, 3U);
    EXPECT_LE(counts.logicalDevices, 5U);
    EXPECT_GE(counts.logicalNodes, 25U);
    EXPECT_LE(counts.logicalNodes, 40U);
    EXPECT_GT(counts.attributes, 2000U);
}

TEST(Demonstration, holdsTheFunctionsOfABay)
{
    std::set<std::string_view> classes;
    forEachNode([&](const scl::LogicalDevice &, const scl::LogicalNode &node) {
        classes.insert(node.lnClass);
    });
    for (const char *lnClass : {"LLN0", "LPHD", "XCBR", "XSWI", "CSWI", "CILO", "MMXU", "MMTR",
                                "MHAI", "PTOC", "PDIS", "GGIO", "ATCC"})
        EXPECT_TRUE(classes.count(lnClass)) << lnClass;
}

TEST(Demonstration, hasControlsOfEveryControlModelAndKind)
{
    std::set<std::int64_t> models;
    std::set<std::string_view> operated; // classes of the objects that can be operated
    forEachNode([&](const scl::LogicalDevice &, const scl::LogicalNode &node) {
        node.forEachDataObject([&](const scl::DataNode &object) {
            const scl::DataNode model = object.child("ctlModel");
            if (!model.isValid())
                return;
            ASSERT_NE(model.value(), nullptr) << node.name << '.' << object.name();
            const std::int64_t ordinal = std::get<std::int64_t>(model.value()->value);
            models.insert(ordinal);
            EXPECT_EQ(object.child("Oper").isValid(), ordinal != 0);
            EXPECT_EQ(object.child("SBO").isValid(), ordinal == 2);
            EXPECT_EQ(object.child("SBOw").isValid(), ordinal == 4);
            EXPECT_EQ(object.child("Cancel").isValid(), ordinal == 2 || ordinal == 4);
            if (ordinal != 0)
                operated.insert(object.node().type->cdc);
        });
    });
    EXPECT_EQ(models, (std::set<std::int64_t>{0, 1, 2, 3, 4}));
    for (const char *cdc : {"SPC", "DPC", "ENC", "INC", "BSC", "ISC", "APC"})
        EXPECT_TRUE(operated.count(cdc)) << cdc;
}

TEST(Demonstration, givesEverySettingAValueInEachGroup)
{
    std::uint32_t groups = 0;
    forEachNode([&](const scl::LogicalDevice &, const scl::LogicalNode &node) {
        if (node.settingControl)
            groups = node.settingControl->groupCount;
    });
    ASSERT_EQ(groups, 4U);

    std::set<std::string_view> functions;
    forEachNode([&](const scl::LogicalDevice &, const scl::LogicalNode &node) {
        node.forEachDataObject([&](const scl::DataNode &object) {
            forEachLeaf(object, [&](const scl::DataNode &leaf) {
                if (leaf.fc() != "SG")
                    return;
                functions.insert(node.lnClass);
                for (std::uint32_t group = 1; group <= groups; ++group) {
                    const bool given = std::any_of(leaf.values().begin(), leaf.values().end(),
                                                   [group](const scl::ConfiguredValue &value) {
                                                       return value.settingGroup == group;
                                                   });
                    EXPECT_TRUE(given) << node.name << '.' << object.name() << ' ' << group;
                }
            });
        });
    });
    EXPECT_GE(functions.size(), 2U);
}

TEST(Demonstration, showsAValueInEveryProcessAttribute)
{
    forEachNode([&](const scl::LogicalDevice &, const scl::LogicalNode &node) {
        node.forEachDataObject([&](const scl::DataNode &object) {
            forEachLeaf(object, [&](const scl::DataNode &leaf) {
                // Time stamps and the last commander are only known while a device runs.
                const scl::BasicType type = leaf.node().basicType;
                if ((leaf.fc() != "ST" && leaf.fc() != "MX") || type == scl::BasicType::Timestamp ||
                    type == scl::BasicType::Octet)
                    return;
                EXPECT_TRUE(leaf.value())
                    << node.name << '.' << object.name() << ' ' << leaf.name();
            });
        });
    });
}

TEST(Demonstration, hasIndexedAndSingleReportBlocksOfBothKinds)
{
    std::map<std::pair<bool, bool>, int> blocks;
    bool withoutDataSet = false;
    forEachNode([&](const scl::LogicalDevice &, const scl::LogicalNode &node) {
        for (const scl::ReportControlBlock &report : node.reports) {
            ++blocks[{report.buffered, report.indexed}];
            withoutDataSet = withoutDataSet || report.dataSetName.empty();
        }
    });
    EXPECT_EQ(blocks.size(), 4U);
    EXPECT_TRUE(withoutDataSet);
}

TEST(Demonstration, holdsArraysOfHarmonicsAndADataSetThatNamesSomeOfThem)
{
    const scl::LogicalNode *harmonics = findNode("MEAS", "MHAI1");
    ASSERT_NE(harmonics, nullptr);
    const scl::DataNode phase = harmonics->dataObject("HA").child("phsAHar");
    ASSERT_TRUE(phase.isValid());
    EXPECT_TRUE(phase.isArray());
    EXPECT_EQ(phase.arraySize(), 16U);

    bool elementInDataSet = false;
    forEachNode([&](const scl::LogicalDevice &, const scl::LogicalNode &node) {
        for (const scl::DataSet &dataSet : node.dataSets) {
            for (const scl::Fcda &member : dataSet.members) {
                EXPECT_TRUE(member.resolved) << member.reference;
                if (member.reference.find("phsAHar(3)") != std::string_view::npos)
                    elementInDataSet = true;
            }
        }
    });
    EXPECT_TRUE(elementInDataSet);
}

TEST(Demonstration, canBeReachedOnThisMachine)
{
    ASSERT_EQ(demonstration().ieds.size(), 1U);
    const scl::Ied &ied = demonstration().ieds.front();
    ASSERT_EQ(ied.accessPoints.size(), 1U);
    const scl::ConnectedAccessPoint *point =
        demonstration().findConnection(ied.name, ied.accessPoints.front().name);
    ASSERT_NE(point, nullptr);
    EXPECT_EQ(point->part("IP"), "127.0.0.1");
    EXPECT_EQ(point->part("MMS-Port"), "102");
}

TEST(Demonstration, carriesTextsBeyondAscii)
{
    const scl::LogicalNode *breaker = findNode("CTRL", "QA1CSWI1");
    ASSERT_NE(breaker, nullptr);
    const scl::ConfiguredValue *text = breaker->dataObject("Pos").child("dU").value();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text, "Leistungsschalter QA1, Abgang Süd");
}
