// SPDX-License-Identifier: Apache-2.0
#include "fixture.h"

#include <gtest/gtest.h>

namespace {

class SclModel : public testing::Test
{
protected:
    void SetUp() override
    {
        m_result = readFixture("device.icd");
        ASSERT_NE(m_result.document, nullptr) << m_result.errorText;
        ASSERT_EQ(document().ieds.size(), 1U);
    }

    const scl::Document &document() const { return *m_result.document; }
    const scl::Ied &ied() const { return document().ieds.front(); }
    const scl::LogicalNode &node(std::string_view name) const
    {
        return *nodeNamed(document(), name);
    }
    const scl::ReportControlBlock &report(std::size_t index) const
    {
        return node("LLN0").reports[index];
    }

private:
    scl::ReadResult m_result;
};

std::string pathsBelow(const scl::DataNode &data)
{
    std::string text;
    data.forEachChild([&text](const scl::DataNode &child) {
        text += child.name();
        if (child.element() >= 0)
            text += "(" + std::to_string(child.element()) + ")";
        text += child.isLeaf() ? " " : "[" + pathsBelow(child) + "] ";
    });
    return text.empty() ? text : text.substr(0, text.size() - 1);
}

template <typename Expected>
Expected valueOf(const scl::DataNode &data, std::uint32_t group = 1)
{
    const scl::ConfiguredValue *configured = data.value(group);
    return configured && std::holds_alternative<Expected>(configured->value)
               ? std::get<Expected>(configured->value)
               : Expected{};
}

} // namespace

TEST_F(SclModel, aConsistentFileHasNoFindings)
{
    for (const scl::Finding &finding : document().findings)
        ADD_FAILURE() << finding.line << " " << finding.path << ": " << finding.text;
    EXPECT_FALSE(document().hasErrors);
}

TEST_F(SclModel, describesTheIedAndItsServices)
{
    EXPECT_EQ(document().headerId, "device");
    EXPECT_EQ(document().toolId, "editor");
    EXPECT_EQ(ied().name, "BAY1");
    EXPECT_EQ(ied().type, "Bay unit");
    EXPECT_EQ(ied().manufacturer, "Maker");
    EXPECT_EQ(ied().configVersion, "1.2");
    EXPECT_EQ(ied().desc, "Feeder");
    ASSERT_TRUE(ied().services.present);
    EXPECT_EQ(ied().services.nameLength, 64U);
    ASSERT_NE(ied().services.find("ConfDataSet"), nullptr);
    EXPECT_EQ(ied().services.find("ConfDataSet")->attribute("maxAttributes"), "200");
    ASSERT_NE(ied().services.find("ClientServices/TimeSyncProt"), nullptr);
    EXPECT_EQ(ied().services.find("ClientServices/TimeSyncProt")->attribute("sntp"), "true");
    EXPECT_EQ(ied().services.find("FileHandling"), nullptr);
}

TEST_F(SclModel, sharesAServerBetweenAccessPointsAndCountsItOnce)
{
    ASSERT_EQ(ied().accessPoints.size(), 3U);
    const scl::AccessPoint &own = ied().accessPoints[0];
    const scl::AccessPoint &shared = ied().accessPoints[1];
    ASSERT_NE(own.server, nullptr);
    EXPECT_EQ(own.server->timeout, 20U);
    EXPECT_EQ(shared.server, own.server);
    EXPECT_EQ(shared.serverAt, "S1");
    const scl::AccessPoint &client = ied().accessPoints[2];
    EXPECT_EQ(client.server, nullptr);
    ASSERT_EQ(client.nodes.size(), 1U);
    EXPECT_EQ(client.nodes.front().name, "IHMI1");

    const scl::IedCounts counts = scl::countsOf(ied());
    EXPECT_EQ(counts.logicalDevices, 2U);
    EXPECT_EQ(counts.logicalNodes, 5U);
    EXPECT_EQ(counts.dataObjects, 5U);
    EXPECT_EQ(counts.attributes, 3U + 5U + 1U + 3U + 16U);
    EXPECT_EQ(counts.dataSets, 1U);
    EXPECT_EQ(counts.dataSetMembers, 4U);
    EXPECT_EQ(counts.bufferedReports, 3U);
    EXPECT_EQ(counts.unbufferedReports, 2U);
}

TEST_F(SclModel, namesLogicalDevicesByLdNameOrByIedAndInstance)
{
    ASSERT_NE(deviceNamed(ied(), "CTRL"), nullptr);
    EXPECT_EQ(deviceNamed(ied(), "CTRL")->name, "BAY1CTRL");
    EXPECT_EQ(deviceNamed(ied(), "CTRL")->desc, "Control");
    ASSERT_NE(deviceNamed(ied(), "MEAS"), nullptr);
    EXPECT_EQ(deviceNamed(ied(), "MEAS")->name, "FeederMeasurements");
    EXPECT_EQ(deviceNamed(ied(), "GONE"), nullptr);
}

TEST_F(SclModel, namesLogicalNodesByPrefixClassAndInstance)
{
    const scl::LogicalDevice &device = *deviceNamed(ied(), "CTRL");
    ASSERT_EQ(device.nodes.size(), 3U);
    EXPECT_EQ(device.nodes[0].name, "LLN0");
    EXPECT_EQ(device.nodes[1].name, "Q0CSWI1");
    EXPECT_EQ(device.nodes[1].lnClass, "CSWI");
    EXPECT_EQ(device.nodes[1].desc, "Breaker");
    EXPECT_EQ(device.nodes[2].name, "PTOC1");
}

TEST_F(SclModel, resolvesAttributesWithConstraintTypeAndEnumeration)
{
    const scl::DataNode position = node("Q0CSWI1").dataObject("Pos");
    ASSERT_TRUE(position.isValid());
    EXPECT_EQ(position.node().kind, scl::NodeKind::DataObject);
    EXPECT_EQ(position.node().type->cdc, "DPC");
    EXPECT_EQ(pathsBelow(position), "stVal q t ctlModel d");
    const scl::DataNode model = position.child("ctlModel");
    EXPECT_EQ(model.fc(), "CF");
    EXPECT_EQ(model.node().basicType, scl::BasicType::Enum);
    ASSERT_NE(model.node().enumeration, nullptr);
    EXPECT_EQ(model.node().enumeration->id, "ctlModel");
    EXPECT_EQ(position.child("stVal").node().basicTypeName, "Dbpos");
    EXPECT_TRUE(position.child("stVal").node().dataChange);
    EXPECT_FALSE(position.child("gone").isValid());
    EXPECT_FALSE(node("Q0CSWI1").dataObject("Gone").isValid());

    const scl::DataNode f = node("PTOC1").dataObject("StrVal").child("setMag").child("f");
    EXPECT_EQ(f.fc(), "SG") << "inherited from the attribute around it";
}

TEST_F(SclModel, anInstanceValueComesBeforeTheDefaultOfItsType)
{
    const scl::DataNode position = node("Q0CSWI1").dataObject("Pos");
    EXPECT_EQ(valueOf<std::int64_t>(position.child("stVal")), 2);
    EXPECT_EQ(valueOf<std::int64_t>(position.child("ctlModel")), 4);
    EXPECT_EQ(valueOf<std::string_view>(position.child("d")), "Q0 position");
    EXPECT_EQ(position.child("q").value(), nullptr);
    EXPECT_EQ(position.desc(), "Position");
}

TEST_F(SclModel, aSettingHasAValuePerGroup)
{
    const scl::DataNode f = node("PTOC1").dataObject("StrVal").child("setMag").child("f");
    EXPECT_EQ(f.values().size(), 2U);
    EXPECT_DOUBLE_EQ(valueOf<double>(f, 1), 100.0);
    EXPECT_DOUBLE_EQ(valueOf<double>(f, 2), 200.5);
    EXPECT_EQ(f.value(3), nullptr);
    EXPECT_EQ(f.shortAddress(), "7.1");
}

TEST_F(SclModel, anArrayTakesItsSizeFromTheAttributeItNames)
{
    const scl::DataNode harmonics = node("MHAI1").dataObject("HA").child("phsAHar");
    ASSERT_TRUE(harmonics.isArray());
    ASSERT_TRUE(harmonics.arraySize().has_value());
    EXPECT_EQ(*harmonics.arraySize(), 5U) << "the instance says 5, the type 3";
    EXPECT_EQ(harmonics.leafCount(), 15U);
    const scl::DataNode second = harmonics.elementAt(2);
    EXPECT_DOUBLE_EQ(valueOf<double>(second.child("cVal").child("mag").child("f")), 1.25);
    EXPECT_EQ(harmonics.elementAt(1).child("cVal").child("mag").child("f").value(), nullptr);
    EXPECT_FALSE(harmonics.child("cVal").isValid()) << "only an element has children of the type";
}

TEST_F(SclModel, resolvesMembersOfDataSets)
{
    const scl::DataSet *state = dataSetNamed(node("LLN0"), "state");
    ASSERT_NE(state, nullptr);
    EXPECT_EQ(state->desc, "Positions");
    ASSERT_EQ(state->members.size(), 4U);
    EXPECT_EQ(state->members[0].reference, "BAY1CTRL/Q0CSWI1$ST$Pos$stVal");
    EXPECT_EQ(state->members[1].reference, "BAY1CTRL/Q0CSWI1$ST$Pos");
    EXPECT_EQ(state->members[2].reference, "FeederMeasurements/MHAI1$MX$HA$phsAHar(2)$cVal$mag$f");
    EXPECT_EQ(state->members[3].reference, "FeederMeasurements/MHAI1$MX$HA$phsAHar(1)$q");
    for (const scl::Fcda &member : state->members) {
        EXPECT_TRUE(member.resolved) << member.reference;
        EXPECT_NE(member.node, nullptr) << member.reference;
    }
    EXPECT_EQ(state->members[0].node->name, "stVal");
    EXPECT_EQ(dataSetNamed(node("LLN0"), "gone"), nullptr);
}

TEST_F(SclModel, readsEverySettingOfAReportControlBlock)
{
    ASSERT_EQ(node("LLN0").reports.size(), 3U);
    const scl::ReportControlBlock &buffered = report(0);
    EXPECT_EQ(buffered.name, "brcb");
    EXPECT_EQ(buffered.desc, "Events");
    EXPECT_EQ(buffered.reportId, "events");
    EXPECT_TRUE(buffered.buffered);
    EXPECT_EQ(buffered.confRev, 7U);
    EXPECT_EQ(buffered.bufferTime, 50U);
    EXPECT_EQ(buffered.integrityPeriod, 60000U);
    EXPECT_EQ(buffered.dataSet, dataSetNamed(node("LLN0"), "state"));
    EXPECT_TRUE(buffered.triggers.dataChange);
    EXPECT_TRUE(buffered.triggers.qualityChange);
    EXPECT_FALSE(buffered.triggers.dataUpdate);
    EXPECT_TRUE(buffered.triggers.integrity);
    EXPECT_TRUE(buffered.triggers.generalInterrogation);
    EXPECT_TRUE(buffered.fields.sequenceNumber);
    EXPECT_TRUE(buffered.fields.timeStamp);
    EXPECT_TRUE(buffered.fields.dataSetName);
    EXPECT_TRUE(buffered.fields.reasonForInclusion);
    EXPECT_FALSE(buffered.fields.dataReference);
    EXPECT_TRUE(buffered.fields.entryId);
    EXPECT_TRUE(buffered.fields.configurationRevision);
    EXPECT_TRUE(buffered.fields.bufferOverflow);
    ASSERT_EQ(buffered.clients.size(), 1U);
    EXPECT_EQ(buffered.clients.front().iedName, "HMI");

    const scl::ReportControlBlock &unbuffered = report(1);
    EXPECT_FALSE(unbuffered.buffered);
    EXPECT_FALSE(unbuffered.triggers.generalInterrogation);
    EXPECT_TRUE(unbuffered.reportId.empty());
}

TEST_F(SclModel, anIndexedReportControlBlockHasNumberedInstances)
{
    const auto names = [](const scl::ReportControlBlock &control) {
        return std::vector<std::string>(control.instanceNames.begin(), control.instanceNames.end());
    };
    EXPECT_EQ(names(report(0)), (std::vector<std::string>{"brcb01", "brcb02", "brcb03"}));
    EXPECT_EQ(names(report(1)), std::vector<std::string>{"urcb"}) << "not indexed";
    EXPECT_EQ(names(report(2)), std::vector<std::string>{"plain01"}) << "indexed by default";
}

TEST_F(SclModel, readsTheOtherControlBlocks)
{
    const scl::LogicalNode &zero = node("LLN0");
    ASSERT_NE(zero.settingControl, nullptr);
    EXPECT_EQ(zero.settingControl->groupCount, 4U);
    EXPECT_EQ(zero.settingControl->activeGroup, 2U);
    ASSERT_EQ(zero.gooseControls.size(), 1U);
    EXPECT_EQ(zero.gooseControls.front().appId, "bay1gcb");
    EXPECT_EQ(zero.gooseControls.front().type, "GOOSE");
    EXPECT_EQ(zero.gooseControls.front().confRev, 5U);
    EXPECT_NE(zero.gooseControls.front().dataSet, nullptr);
    ASSERT_EQ(zero.sampledValueControls.size(), 1U);
    EXPECT_EQ(zero.sampledValueControls.front().svId, "sv1");
    EXPECT_EQ(zero.sampledValueControls.front().sampleRate, 80U);
    EXPECT_EQ(zero.sampledValueControls.front().asduCount, 2U);
    EXPECT_TRUE(zero.sampledValueControls.front().refreshTime);
    ASSERT_EQ(zero.logControls.size(), 1U);
    EXPECT_EQ(zero.logControls.front().logName, "CTRL");
    EXPECT_FALSE(zero.logControls.front().enabled);
    EXPECT_EQ(zero.logControls.front().integrityPeriod, 1000U);
    ASSERT_EQ(zero.logs.size(), 1U);
    EXPECT_EQ(zero.logs.front(), "CTRL");
}

TEST_F(SclModel, readsTheAddressesOfAnAccessPoint)
{
    const scl::ConnectedAccessPoint *connection = document().findConnection("BAY1", "S1");
    ASSERT_NE(connection, nullptr);
    EXPECT_EQ(connection->subNetwork, "Station");
    EXPECT_EQ(connection->subNetworkType, "8-MMS");
    EXPECT_EQ(connection->part("IP"), "192.0.2.7");
    EXPECT_EQ(connection->part("OSI-TSEL"), "0001");
    EXPECT_EQ(connection->part("MMS-Port"), "");
    ASSERT_EQ(connection->goose.size(), 1U);
    EXPECT_EQ(connection->goose.front().controlBlock, "gcb");
    EXPECT_EQ(connection->goose.front().minTime, 4U);
    EXPECT_EQ(connection->goose.front().maxTime, 2000U);
    ASSERT_EQ(connection->sampledValues.size(), 1U);
    EXPECT_FALSE(connection->sampledValues.front().minTime.has_value());
    EXPECT_EQ(document().findConnection("BAY1", "S2"), nullptr);
}

TEST_F(SclModel, findsIedsAndEnumerationsByName)
{
    EXPECT_EQ(document().findIed("BAY1"), &ied());
    EXPECT_EQ(document().findIed("BAY2"), nullptr);
    ASSERT_NE(enumerationNamed(document(), "Beh"), nullptr);
    EXPECT_EQ(enumerationNamed(document(), "Beh")->literals.size(), 2U);
    EXPECT_EQ(enumerationNamed(document(), "Gone"), nullptr);
}
