// SPDX-License-Identifier: Apache-2.0
#include "simulator/manualclock.h"
#include "simulator/recordingclient.h"

#include "simulator/settinggroups.h"

#include <gtest/gtest.h>

#include <utility>

using namespace std::chrono_literals;
using mms::Data;
using mms::DataAccessError;

namespace {

class Store : public sim::SettingGroupHost
{
public:
    void activate(std::uint32_t group) override { note("activate", group); }
    void edit(std::uint32_t group) override { note("edit", group); }
    void keep(std::uint32_t group) override { note("keep", group); }
    std::string take() { return std::exchange(m_log, {}); }

private:
    void note(const char *what, std::uint32_t group)
    {
        m_log += (m_log.empty() ? "" : " ") + std::string(what) + std::to_string(group);
    }

    std::string m_log;
};

class SettingGroupsTest : public testing::Test
{
protected:
    std::optional<DataAccessError> active(sim::Peer &client, std::uint64_t group)
    {
        return m_groups.write(client, "ActSG", Data::unsignedInteger(group));
    }
    std::optional<DataAccessError> edit(sim::Peer &client, std::uint64_t group)
    {
        return m_groups.write(client, "EditSG", Data::unsignedInteger(group));
    }
    std::optional<DataAccessError> confirm(sim::Peer &client)
    {
        return m_groups.write(client, "CnfEdit", Data::boolean(true));
    }
    Data value(std::string_view attribute) { return m_groups.value(attribute).value(); }

    simtest::ManualClock m_clock;
    Store m_store;
    simtest::RecordingClient m_client;
    simtest::RecordingClient m_other;
    sim::SettingGroups m_groups{{4, 2, 60s}, m_store, m_clock};
};

constexpr auto busy = DataAccessError::TemporarilyUnavailable;
constexpr auto invalid = DataAccessError::ObjectValueInvalid;
constexpr auto denied = DataAccessError::ObjectAccessDenied;

} // namespace

TEST_F(SettingGroupsTest, startsWithWhatIsConfigured)
{
    EXPECT_EQ(value("NumOfSG"), Data::unsignedInteger(4));
    EXPECT_EQ(value("ActSG"), Data::unsignedInteger(2));
    EXPECT_EQ(value("EditSG"), Data::unsignedInteger(0));
    EXPECT_EQ(value("CnfEdit"), Data::boolean(false));
    EXPECT_EQ(value("ResvTms"), Data::unsignedInteger(60));
    EXPECT_FALSE(m_groups.value("Other").has_value());
}

TEST_F(SettingGroupsTest, anotherActiveGroupTakesEffectAtOnceWithItsTime)
{
    m_clock.advance(5s);
    EXPECT_EQ(active(m_client, 3), std::nullopt);
    EXPECT_EQ(m_store.take(), "activate3");
    EXPECT_EQ(value("ActSG"), Data::unsignedInteger(3));
    EXPECT_EQ(value("LActTm"), Data::utcTime(m_clock.utcTime()));
    EXPECT_EQ(active(m_client, 0), invalid);
    EXPECT_EQ(active(m_client, 5), invalid);
    EXPECT_EQ(m_store.take(), "");
}

TEST_F(SettingGroupsTest, aConfirmedEditIsKept)
{
    EXPECT_EQ(edit(m_client, 3), std::nullopt);
    EXPECT_TRUE(m_groups.isEditing());
    EXPECT_EQ(m_groups.writeSetting(m_client), std::nullopt);
    EXPECT_EQ(m_store.take(), "edit3");
    EXPECT_EQ(confirm(m_client), std::nullopt);
    EXPECT_EQ(m_store.take(), "keep3");
    EXPECT_EQ(value("EditSG"), Data::unsignedInteger(0));
    EXPECT_EQ(m_groups.writeSetting(m_client), busy);
    EXPECT_EQ(confirm(m_client), busy);
}

TEST_F(SettingGroupsTest, aConfirmedEditOfTheActiveGroupTakesEffect)
{
    edit(m_client, 2);
    confirm(m_client);
    EXPECT_EQ(m_store.take(), "edit2 keep2 activate2");
}

TEST_F(SettingGroupsTest, onlyOneClientEdits)
{
    edit(m_client, 1);
    EXPECT_EQ(edit(m_other, 1), busy);
    EXPECT_EQ(edit(m_other, 0), busy);
    EXPECT_EQ(m_groups.writeSetting(m_other), busy);
    EXPECT_EQ(confirm(m_other), busy);
    EXPECT_EQ(m_store.take(), "edit1");
    EXPECT_EQ(active(m_other, 1), std::nullopt);
}

TEST_F(SettingGroupsTest, anEditThatIsGivenUpIsForgotten)
{
    edit(m_client, 1);
    EXPECT_EQ(edit(m_client, 0), std::nullopt);
    EXPECT_FALSE(m_groups.isEditing());
    EXPECT_EQ(edit(m_other, 4), std::nullopt);
    EXPECT_EQ(m_store.take(), "edit1 edit4");
    EXPECT_EQ(edit(m_other, 5), invalid);
    EXPECT_EQ(value("EditSG"), Data::unsignedInteger(4));
}

TEST_F(SettingGroupsTest, aClientThatLeavesEndsItsEdit)
{
    edit(m_client, 1);
    m_groups.closed(m_other);
    EXPECT_TRUE(m_groups.isEditing());
    m_groups.closed(m_client);
    EXPECT_FALSE(m_groups.isEditing());
    EXPECT_EQ(edit(m_other, 1), std::nullopt);
}

TEST_F(SettingGroupsTest, anEditWithoutActivityEnds)
{
    edit(m_client, 1);
    m_clock.advance(59s);
    m_groups.advance();
    EXPECT_EQ(m_groups.writeSetting(m_client), std::nullopt);
    m_clock.advance(59s);
    m_groups.advance();
    EXPECT_TRUE(m_groups.isEditing());
    m_clock.advance(1s);
    m_groups.advance();
    EXPECT_FALSE(m_groups.isEditing());
    EXPECT_EQ(m_groups.deadline(), std::nullopt);
}

TEST_F(SettingGroupsTest, whatTheDeviceSetsCannotBeWritten)
{
    EXPECT_EQ(m_groups.write(m_client, "NumOfSG", Data::unsignedInteger(1)), denied);
    EXPECT_EQ(m_groups.write(m_client, "LActTm", Data::utcTime({})), denied);
    EXPECT_EQ(m_groups.write(m_client, "ResvTms", Data::unsignedInteger(1)), denied);
}

TEST_F(SettingGroupsTest, anActivationMayTakeItsTime)
{
    sim::SettingGroups::Config config{4, 2, 60s};
    config.activationDelay = 500ms;
    sim::SettingGroups groups(config, m_store, m_clock);
    EXPECT_EQ(groups.write(m_client, "ActSG", Data::unsignedInteger(3)), std::nullopt);
    EXPECT_EQ(m_store.take(), "");
    EXPECT_EQ(groups.value("ActSG"), Data::unsignedInteger(2));
    EXPECT_EQ(groups.deadline(), m_clock.steadyNow() + 500ms);
    m_clock.advance(499ms);
    groups.advance();
    EXPECT_EQ(groups.value("ActSG"), Data::unsignedInteger(2));
    m_clock.advance(1ms);
    groups.advance();
    EXPECT_EQ(m_store.take(), "activate3");
    EXPECT_EQ(groups.value("ActSG"), Data::unsignedInteger(3));
    EXPECT_FALSE(groups.deadline().has_value());
}

TEST_F(SettingGroupsTest, aConfirmedGroupMayStayTheEditedOne)
{
    sim::SettingGroups::Config config{4, 2, 60s};
    config.keepsEdited = true;
    sim::SettingGroups groups(config, m_store, m_clock);
    EXPECT_EQ(groups.write(m_client, "EditSG", Data::unsignedInteger(3)), std::nullopt);
    EXPECT_EQ(groups.write(m_client, "CnfEdit", Data::boolean(true)), std::nullopt);
    EXPECT_EQ(groups.value("EditSG"), Data::unsignedInteger(3));
    EXPECT_EQ(groups.write(m_other, "EditSG", Data::unsignedInteger(1)), busy);
    EXPECT_EQ(groups.write(m_client, "EditSG", Data::unsignedInteger(0)), std::nullopt);
    EXPECT_EQ(groups.value("EditSG"), Data::unsignedInteger(0));
}

TEST_F(SettingGroupsTest, anEditMayBeEverybodys)
{
    sim::SettingGroups::Config config{4, 2, 60s};
    config.isShared = true;
    sim::SettingGroups groups(config, m_store, m_clock);
    EXPECT_EQ(groups.writeSetting(m_other), busy);
    EXPECT_EQ(groups.write(m_client, "EditSG", Data::unsignedInteger(3)), std::nullopt);
    EXPECT_EQ(groups.writeSetting(m_other), std::nullopt);
    EXPECT_EQ(groups.write(m_other, "CnfEdit", Data::boolean(true)), std::nullopt);
}
