// SPDX-License-Identifier: Apache-2.0
#include "acsi/discovery.h"

#include "scripteddevice.h"

namespace {

using namespace acsi;
using namespace std::chrono_literals;
using mms::ObjectName;
using mms::TypeDescription;

TypeDescription nodeType()
{
    return TypeDescription::structure(
        {{"MX",
          TypeDescription::structure(
              {{"har", TypeDescription::array(16, TypeDescription::structure(
                                                      {{"mag", TypeDescription::float32()}}))}})},
         {"CF", TypeDescription::structure(
                    {{"Mod",
                      TypeDescription::structure({{"ctlModel", TypeDescription::integer(8)}})}})}});
}

TypeDescription longNodeType()
{
    TypeDescription data = TypeDescription::structure({});
    for (int i = 0; i < 60; ++i)
        data.components.push_back({"Anything" + std::to_string(i), TypeDescription::float32()});
    return TypeDescription::structure({{"CF", nodeType().components[1].type},
                                       {"SP", TypeDescription::structure({{"Long", data}})}});
}

class AcsiDiscovery : public acsitest::DeviceTest
{
protected:
    void fill()
    {
        for (const char *name : {"LD0", "LD1"}) {
            auto &domain = device->domains[name];
            for (int i = 1; i <= 20; ++i)
                domain.nodes["GGIO" + std::to_string(i)] = nodeType();
            domain.lists["LLN0$ds"] = {true, {{ObjectName::inDomain(name, "GGIO1$MX$har"), {}}}};
            domain.journals = {"LLN0$log"};
        }
        device->associationLists["mine"];
    }
};

TEST_F(AcsiDiscovery, findsAWholeDevice)
{
    fill();
    connect();
    std::size_t lastDone = 0;
    std::size_t lastTotal = 0;
    DiscoveryOptions options;
    options.progress = [&](std::size_t done, std::size_t total) {
        EXPECT_GE(done, lastDone);
        EXPECT_LE(done, total);
        lastDone = done;
        lastTotal = total;
    };
    const auto server = run(discover(client, options));
    ASSERT_TRUE(server.ok()) << server.error().message;
    EXPECT_EQ(server->identity.model, "model");
    ASSERT_EQ(server->devices.size(), 2U);
    for (const DeviceDescription &found : server->devices) {
        ASSERT_EQ(found.nodes.size(), 20U);
        for (const NodeDescription &node : found.nodes)
            EXPECT_EQ(node.type, nodeType());
        ASSERT_EQ(found.dataSets.size(), 1U);
        EXPECT_EQ(found.dataSets[0].members, device->domains[found.name].lists["LLN0$ds"].members);
        EXPECT_EQ(found.journals, std::vector<std::string>{"LLN0$log"});
    }
    ASSERT_EQ(server->associationDataSets.size(), 1U);
    EXPECT_EQ(server->associationDataSets[0].name, ObjectName::ofAssociation("mine"));
    EXPECT_TRUE(server->refused.empty());
    EXPECT_GT(lastDone, 40U);
    EXPECT_EQ(lastDone, lastTotal);
    EXPECT_EQ(device->requests().size(), lastDone);
}

TEST_F(AcsiDiscovery, typesTooLargeForThePduAreTakenInParts)
{
    serverOptions.maxPduSize = 1000;
    device->pageSize = 20;
    device->domains["LD0"].nodes["GGIO1"] = longNodeType();
    connect();
    const auto server = run(discover(client));
    ASSERT_TRUE(server.ok()) << server.error().message;
    EXPECT_TRUE(server->refused.empty());
    const TypeDescription &type = server->devices[0].nodes[0].type;
    const TypeDescription *data = typeBelow(type, "SP", "Long");
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->components.size(), 60U);
    EXPECT_NE(typeBelow(type, "CF", "Mod$ctlModel"), nullptr);
}

TEST_F(AcsiDiscovery, silentRequestIsAskedAgainAlone)
{
    fill();
    clientOptions.callTimeout = 500ms;
    clientOptions.association.grace = 10ms;
    const auto first = std::make_shared<bool>(true);
    device->intercept = [first](const auto &, std::uint32_t, const mms::RequestService &request) {
        return std::holds_alternative<mms::GetVariableAccessAttributesRequest>(request) &&
               std::exchange(*first, false);
    };
    connect();
    const auto server = run(discover(client));
    ASSERT_TRUE(server.ok()) << server.error().message;
    EXPECT_TRUE(server->refused.empty());
    for (const NodeDescription &node : server->devices[0].nodes)
        EXPECT_EQ(node.type, nodeType());
}

TEST_F(AcsiDiscovery, cancellingFromAnotherThreadEndsItSoon)
{
    fill();
    DiscoveryOptions options;
    options.cancelled = std::make_shared<std::atomic<bool>>(false);
    device->intercept = [cancelled = options.cancelled](const auto &, std::uint32_t,
                                                        const mms::RequestService &request) {
        if (!std::holds_alternative<mms::GetVariableAccessAttributesRequest>(request))
            return false;
        *cancelled = true;
        return true;
    };
    clientOptions.callTimeout = 60s;
    connect();
    const auto begin = std::chrono::steady_clock::now();
    const auto server = run(discover(client, options));
    ASSERT_FALSE(server.ok());
    EXPECT_EQ(server.error().message, "The discovery was cancelled.");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 30s);
    EXPECT_TRUE(client->isOpen());
}

TEST_F(AcsiDiscovery, lostAssociationIsTheReasonOfTheError)
{
    fill();
    device->intercept = [](const auto &association, std::uint32_t,
                           const mms::RequestService &request) {
        if (!std::holds_alternative<mms::GetVariableAccessAttributesRequest>(request))
            return false;
        association->abort(mms::verbatim("Power failed."));
        return true;
    };
    connect();
    const auto server = run(discover(client));
    ASSERT_FALSE(server.ok());
    EXPECT_EQ(server.error().message, ended.get());
}

TEST(TypeBelow, findsDataAndElements)
{
    const TypeDescription type = nodeType();
    EXPECT_EQ(typeBelow(type, "MX", ""), &type.components[0].type);
    ASSERT_NE(typeBelow(type, "MX", "har(15)$mag"), nullptr);
    EXPECT_EQ(*typeBelow(type, "MX", "har(15)$mag"), TypeDescription::float32());
    ASSERT_NE(typeBelow(type, "MX", "har"), nullptr);
    EXPECT_EQ(typeBelow(type, "MX", "har")->kind, TypeDescription::Kind::Array);
}

TEST(TypeBelow, findsNothingElse)
{
    const TypeDescription type = nodeType();
    for (const char *path : {"har(16)", "har()", "har(", "har(x)", "har(1)x", "har$mag", "har(0)$x",
                             "none", "$", "har(0)$mag$f", "har(0)$mag(0)"})
        EXPECT_EQ(typeBelow(type, "MX", path), nullptr) << path;
    EXPECT_EQ(typeBelow(type, "ST", ""), nullptr);
    EXPECT_EQ(typeBelow(TypeDescription(), "ST", "Mod"), nullptr);
}

} // namespace
