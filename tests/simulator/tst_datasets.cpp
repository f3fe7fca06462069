// SPDX-License-Identifier: Apache-2.0
#include "simulator/datasets.h"
#include "simulator/describedied.h"
#include "simulator/recordingclient.h"

#include <gtest/gtest.h>

namespace {

using namespace sim;
using mms::AlternateAccess;
using mms::ErrorClass;
using mms::ObjectName;
using mms::Scope;
using mms::VariableAccess;

const ObjectName described = ObjectName::inDomain("IED1LD", "LLN0$Positions");
const ObjectName made = ObjectName::inDomain("IED1LD", "LLN0$Made");
const ObjectName own = ObjectName::ofAssociation("Own");

VariableAccess position(std::string_view node = "XCBR1")
{
    return {ObjectName::inDomain("IED1LD", std::string(node) + "$ST$Pos"), {}};
}

class DataSetsTest : public testing::Test
{
protected:
    std::optional<mms::ServiceError> define(const ObjectName &name,
                                            std::vector<VariableAccess> members = {position()})
    {
        return dataSets.define(client, {name, std::move(members)});
    }
    mms::DeleteNamedVariableListResponse remove(const mms::DeleteNamedVariableListRequest &request)
    {
        const auto result = dataSets.remove(client, request);
        EXPECT_TRUE(std::holds_alternative<mms::DeleteNamedVariableListResponse>(result));
        return std::get<mms::DeleteNamedVariableListResponse>(result);
    }

    simtest::DescribedIed ied = simtest::bay();
    Model model{*ied, {}};
    DataSets dataSets{model, *ied, {2, 1, 3}};
    simtest::RecordingClient client;
    simtest::RecordingClient other;
};

TEST_F(DataSetsTest, thoseOfTheFileAreThereWithTheirMembers)
{
    const auto found = dataSets.find(&client, described);
    ASSERT_TRUE(found);
    EXPECT_FALSE(found->deletable);
    ASSERT_EQ(found->members.size(), 2U);
    EXPECT_EQ(model.itemName(found->members[0].part), "XCBR1$ST$Pos");
    EXPECT_EQ(model.itemName(found->members[1].part), "MHAI1$MX$HA$phsAHar(2)$cVal$mag$f");
    EXPECT_EQ(std::get<ObjectName>(found->members[1].access.variable).item, "MHAI1$MX$HA$phsAHar");
    EXPECT_EQ(found, dataSets.find(nullptr, "IED1LD/LLN0$Positions"));
}

TEST_F(DataSetsTest, oneThatWasMadeCanBeFoundAndDeleted)
{
    EXPECT_EQ(define(made), std::nullopt);
    const auto found = dataSets.find(&other, made);
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->deletable);
    const auto response = remove({0, {made, ObjectName::inDomain("IED1LD", "LLN0$None")}, {}});
    EXPECT_EQ(response.matched, 1U);
    EXPECT_EQ(response.deleted, 1U);
    EXPECT_FALSE(dataSets.find(&client, made));
}

TEST_F(DataSetsTest, oneOfAnAssociationIsSeenByItAloneAndGoesWithIt)
{
    EXPECT_EQ(define(own), std::nullopt);
    EXPECT_TRUE(dataSets.find(&client, own));
    EXPECT_TRUE(dataSets.find(&client, "@Own"));
    EXPECT_FALSE(dataSets.find(&other, own));
    EXPECT_EQ(dataSets.names(client, Scope::Association, {})->size(), 1U);
    EXPECT_EQ(dataSets.names(other, Scope::Association, {})->size(), 0U);
    dataSets.forget(client);
    EXPECT_FALSE(dataSets.find(&client, own));
}

TEST_F(DataSetsTest, thoseOfTheFileAndThoseInUseAreNotDeleted)
{
    ASSERT_EQ(define(made), std::nullopt);
    dataSets.find(&client, made)->users = 1;
    auto response = remove({0, {described, made}, {}});
    EXPECT_EQ(response.matched, 2U);
    EXPECT_EQ(response.deleted, 0U);
    dataSets.find(&client, made)->users = 0;
    response = remove({2, {}, "IED1LD"});
    EXPECT_EQ(response.matched, 2U);
    EXPECT_EQ(response.deleted, 1U);
    EXPECT_TRUE(dataSets.find(&client, described));
}

TEST_F(DataSetsTest, deletingAllOfTheAssociationLeavesTheDomains)
{
    ASSERT_EQ(define(made), std::nullopt);
    ASSERT_EQ(define(own), std::nullopt);
    EXPECT_EQ(remove({1, {}, {}}).deleted, 1U);
    EXPECT_TRUE(dataSets.find(&client, made));
    EXPECT_FALSE(dataSets.find(&client, own));
}

TEST_F(DataSetsTest, membersMustExist)
{
    const auto error = define(made, {position(), position("XCBR7")});
    ASSERT_TRUE(error);
    EXPECT_EQ(error->errorClass, ErrorClass::Definition);
    EXPECT_EQ(error->code, mms::serviceerrors::definitionObjectUndefined);
    EXPECT_FALSE(dataSets.find(&client, made));
    EXPECT_TRUE(define(made, {{ObjectName::inDomain("IED1LD", "MHAI1$MX$HA$phsAHar"),
                               {AlternateAccess::ofElement(3)}}}));
    EXPECT_TRUE(define(made, {{ObjectName::inDomain("IED1LD", "XCBR1"), {}}}))
        << "a logical node as a whole has no constraint";
    EXPECT_TRUE(define(made, {}));
}

TEST_F(DataSetsTest, namesAreTakenOnceAndLimitsHold)
{
    EXPECT_EQ(define(made), std::nullopt);
    EXPECT_EQ(define(made)->code, mms::serviceerrors::definitionObjectExists);
    EXPECT_EQ(define(described)->code, mms::serviceerrors::definitionObjectExists);
    EXPECT_EQ(define(ObjectName::inDomain("IED1LD", "LLN0$Second")), std::nullopt);
    EXPECT_EQ(define(ObjectName::inDomain("IED1LD", "LLN0$Third"))->errorClass,
              ErrorClass::Resource);
    EXPECT_EQ(define(own, {position(), position(), position(), position()})->errorClass,
              ErrorClass::Resource);
    EXPECT_EQ(define(own), std::nullopt);
    EXPECT_EQ(define(ObjectName::ofAssociation("More"))->errorClass, ErrorClass::Resource);
}

TEST_F(DataSetsTest, namesAndScopesThatCannotBeAreRefused)
{
    EXPECT_TRUE(define(ObjectName::ofVmd("Set")));
    EXPECT_TRUE(define(ObjectName::inDomain("OTHER", "LLN0$Set")));
    EXPECT_TRUE(define(ObjectName::inDomain("IED1LD", "LLN0$a b")));
    EXPECT_TRUE(define(ObjectName::ofAssociation("")));
    EXPECT_EQ(dataSets.names(client, Scope::Domain, "OTHER"), nullptr);
    EXPECT_EQ(dataSets.names(client, Scope::Domain, "IED1LD")->size(), 1U);
    EXPECT_FALSE(dataSets.find(&client, "nonsense"));
    EXPECT_FALSE(dataSets.find(&client, ""));
}

} // namespace
