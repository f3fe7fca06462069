// SPDX-License-Identifier: Apache-2.0
#include "acsi/settinggroup.h"

#include "acsi/scripteddevice.h"

namespace {

using namespace acsi;
using mms::Data;
using Type = mms::TypeDescription;

Type blockType()
{
    return Type::structure({{"NumOfSG", Type::unsignedInteger(8)},
                            {"ActSG", Type::unsignedInteger(8)},
                            {"EditSG", Type::unsignedInteger(8)},
                            {"CnfEdit", Type::boolean()},
                            {"LActTm", Type::utcTime()}});
}

Data blockValue()
{
    return Data::structure({Data::unsignedInteger(4), Data::unsignedInteger(2),
                            Data::unsignedInteger(0), Data::boolean(false),
                            Data::utcTime({1614834367, 0, 0})});
}

class SettingGroupTest : public acsitest::DeviceTest
{
protected:
    void SetUp() override
    {
        device->domains["LD"].nodes["LLN0"] =
            Type::structure({{"SP", Type::structure({{"SGCB", blockType()}})}});
        device->values["LD/LLN0$SP$SGCB"] = blockValue();
        for (const char *attribute : {"ActSG", "EditSG", "CnfEdit"})
            device->values[std::string("LD/LLN0$SP$SGCB$") + attribute] = Data();
        connect();
    }

    const Data &written(const std::string &attribute) const
    {
        return device->values.at("LD/LLN0$SP$SGCB$" + attribute);
    }

    const Reference block = *parseReference("LD/LLN0$SP$SGCB");
};

} // namespace

TEST(SettingGroupValue, isReadByTheNamesOfItsType)
{
    const auto block = settingGroupBlockFrom(blockType(), blockValue());
    ASSERT_TRUE(block.ok()) << block.error().message;
    EXPECT_EQ(block->numOfSG, 4U);
    EXPECT_EQ(block->actSG, 2U);
    EXPECT_EQ(block->editSG, 0U);
    EXPECT_FALSE(block->cnfEdit);
    EXPECT_EQ(block->lActTm->seconds, 1614834367U);
    EXPECT_FALSE(block->resvTms);
}

TEST(SettingGroupValue, whatDoesNotFitIsNamed)
{
    for (std::size_t i = 0; i < 5; ++i) {
        Data value = blockValue();
        value.children()[i] = Data::float32(1);
        const auto block = settingGroupBlockFrom(blockType(), value);
        ASSERT_FALSE(block.ok()) << i;
        EXPECT_EQ(block.error().message.english().find(blockType().components[i].name), 0U);
    }
    EXPECT_FALSE(settingGroupBlockFrom(Type::structure({}), Data::structure({})).ok());
    EXPECT_FALSE(settingGroupBlockFrom(blockType(), Data::structure({})).ok());
}

TEST_F(SettingGroupTest, theBlockIsReadFromTheDevice)
{
    const auto read = run(readSettingGroupBlock(client, block));
    ASSERT_TRUE(read.ok()) << read.error().message;
    EXPECT_EQ(read->actSG, 2U);
    const auto missing = run(readSettingGroupBlock(client, *parseReference("LD/LLN0$SP$Other")));
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.error().message.english().find("The type of LD/LLN0.Other cannot be read: "),
              0U);
}

TEST_F(SettingGroupTest, selectingEditingAndConfirmingWriteTheBlock)
{
    EXPECT_TRUE(run(selectActiveGroup(client, block, 3)).ok());
    EXPECT_EQ(written("ActSG"), Data::unsignedInteger(3));
    EXPECT_TRUE(run(selectEditGroup(client, block, 2)).ok());
    EXPECT_EQ(written("EditSG"), Data::unsignedInteger(2));
    EXPECT_TRUE(run(confirmEdit(client, block)).ok());
    EXPECT_EQ(written("CnfEdit"), Data::boolean(true));
    EXPECT_TRUE(run(selectEditGroup(client, block, 0)).ok());
    EXPECT_EQ(written("EditSG"), Data::unsignedInteger(0));
}

TEST_F(SettingGroupTest, groupZeroCannotBecomeActive)
{
    EXPECT_FALSE(run(selectActiveGroup(client, block, 0)).ok());
    EXPECT_TRUE(device->requestsOf<mms::WriteRequest>().empty());
}

TEST_F(SettingGroupTest, aDeviceThatWantsNumbersWithSignGetsThem)
{
    device->domains["LD"].nodes["LLN0"] = Type::structure(
        {{"SP", Type::structure({{"SGCB", Type::structure({{"ActSG", Type::integer(8)}})}})}});
    device->intercept = [](const auto &association, std::uint32_t invokeId,
                           mms::RequestService &service) {
        const auto *write = std::get_if<mms::WriteRequest>(&service);
        if (!write || write->values.front().kind() == Data::Kind::Integer)
            return false;
        association->respond(invokeId,
                             mms::WriteResponse{{mms::DataAccessError::TypeInconsistent}});
        return true;
    };
    EXPECT_TRUE(run(selectActiveGroup(client, block, 3)).ok());
    EXPECT_EQ(written("ActSG"), Data::integer(3));
}

TEST_F(SettingGroupTest, aRefusalNamesTheAttribute)
{
    device->values.erase("LD/LLN0$SP$SGCB$EditSG");
    const auto refused = run(selectEditGroup(client, block, 9));
    ASSERT_FALSE(refused.ok());
    EXPECT_EQ(refused.error().message,
              "EditSG of LD/LLN0.SGCB cannot be written: " +
                  mms::describe(mms::DataAccessError::ObjectNonExistent).english());
}
