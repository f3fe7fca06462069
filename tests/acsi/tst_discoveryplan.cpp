// SPDX-License-Identifier: Apache-2.0
#include "acsi/discoveryplan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

namespace {

using namespace acsi;
using mms::CallFailure;
using mms::CallOutcome;
using mms::GetNameListRequest;
using mms::GetNameListResponse;
using mms::ObjectClass;
using mms::ObjectName;
using mms::ResponseService;
using mms::Scope;
using mms::TypeDescription;

std::vector<std::string> english(const std::vector<mms::Text> &texts)
{
    std::vector<std::string> result;
    for (const mms::Text &text : texts)
        result.push_back(text.english());
    return result;
}

const mms::ServiceError tooLarge{
    mms::ErrorClass::Resource, mms::serviceerrors::resourceOther, {}, {}, {}};
const mms::ServiceError denied{
    mms::ErrorClass::Access, mms::serviceerrors::accessDenied, {}, {}, {}};
const mms::RejectPdu rejected{1, mms::RejectedPdu::ConfirmedRequest,
                              mms::rejectcodes::requestMaxOutstandingExceeded};

TypeDescription nodeType()
{
    return TypeDescription::structure(
        {{"ST",
          TypeDescription::structure(
              {{"Pos", TypeDescription::structure({{"stVal", TypeDescription::boolean()}})},
               {"Beh", TypeDescription::structure({{"stVal", TypeDescription::integer(8)}})}})},
         {"CF", TypeDescription::structure(
                    {{"Pos",
                      TypeDescription::structure({{"ctlModel", TypeDescription::integer(8)}})}})}});
}

void addNames(const std::string &name, const TypeDescription &type, std::vector<std::string> &names)
{
    names.push_back(name);
    for (const auto &component : type.components)
        addNames(name + '$' + component.name, component.type, names);
}

/// Drives a plan against a server made of tables, as fast as the window allows: everything that is
/// on the way is answered at once, and that is one round trip.
class PlanDriver
{
public:
    explicit PlanDriver(std::size_t window, DiscoveryLimits limits = {})
        : plan(window, limits)
    {
    }

    std::vector<std::string> devices = {"LD0", "LD1"};
    std::vector<std::string> nodes = {"LLN0", "XCBR1", "XCBR10"};
    std::vector<std::string> dataSets;
    std::size_t pageSize = 7;
    /// Instead of the server's own answer.
    std::function<std::optional<CallOutcome>(const mms::RequestService &request)> instead;

    DiscoveryPlan plan;
    std::size_t roundTrips = 0;
    std::size_t requests = 0;
    std::size_t pages = 0;
    std::size_t mostOnTheWay = 0;
    std::size_t mostSinceConfusion = 0; ///< the same, since a test set it to 0
    std::vector<std::string> askedTypes;

    mms::Result<ServerDescription> run()
    {
        while (!plan.finished() && roundTrips < 10000) {
            std::vector<DiscoveryPlan::Request> sent;
            while (auto request = plan.next())
                sent.push_back(std::move(*request));
            mostOnTheWay = std::max(mostOnTheWay, plan.onTheWay());
            mostSinceConfusion = std::max(mostSinceConfusion, plan.onTheWay());
            EXPECT_EQ(plan.onTheWay(), sent.size());
            if (sent.empty()) {
                ADD_FAILURE() << "The plan neither ends nor asks.";
                break;
            }
            ++roundTrips;
            requests += sent.size();
            // The newest first: order must not matter.
            std::ranges::reverse(sent);
            for (DiscoveryPlan::Request &request : sent)
                plan.answered(request.step, answer(request.service.service()));
        }
        return plan.take();
    }

private:
    CallOutcome answer(const mms::RequestService &request)
    {
        if (instead) {
            if (auto outcome = instead(request))
                return std::move(*outcome);
        }
        if (const auto *list = std::get_if<GetNameListRequest>(&request))
            return ResponseService(names(*list));
        if (const auto *type = std::get_if<mms::GetVariableAccessAttributesRequest>(&request))
            return typeOf(std::get<ObjectName>(type->variable).item);
        if (std::holds_alternative<mms::GetNamedVariableListAttributesRequest>(request)) {
            mms::GetNamedVariableListAttributesResponse response;
            response.deletable = true;
            return ResponseService(std::move(response));
        }
        return ResponseService(mms::IdentifyResponse{"vendor", "model", "1.0", {}});
    }

    GetNameListResponse names(const GetNameListRequest &request)
    {
        std::vector<std::string> all;
        if (request.objectClass == ObjectClass::Domain) {
            all = devices;
        } else if (request.objectClass == ObjectClass::NamedVariable) {
            for (const std::string &node : nodes)
                addNames(node, nodeType(), all);
            ++pages;
        } else if (request.objectClass == ObjectClass::NamedVariableList) {
            if (request.scope == Scope::Domain)
                all = dataSets;
        } else {
            all = {"LLN0$log"};
        }
        std::ranges::sort(all);
        auto first = all.begin();
        if (request.continueAfter)
            first = std::ranges::upper_bound(all, *request.continueAfter);
        const auto left = static_cast<std::size_t>(all.end() - first);
        return {std::vector<std::string>(
                    first, first + static_cast<std::ptrdiff_t>(std::min(left, pageSize))),
                left > pageSize};
    }

    CallOutcome typeOf(std::string item)
    {
        askedTypes.push_back(item);
        const TypeDescription whole = nodeType();
        const TypeDescription *type = &whole;
        for (std::size_t at = item.find('$'); at != item.npos; at = item.find('$')) {
            item.erase(0, at + 1);
            const auto found = std::ranges::find(type->components, item.substr(0, item.find('$')),
                                                 &TypeDescription::Component::name);
            if (found == type->components.end())
                return denied;
            type = &found->type;
        }
        mms::GetVariableAccessAttributesResponse response;
        response.type = *type;
        return ResponseService(std::move(response));
    }
};

/// The item whose type a request asks for; empty for other requests.
std::string typeItem(const mms::RequestService &request)
{
    const auto *type = std::get_if<mms::GetVariableAccessAttributesRequest>(&request);
    return type ? std::get<ObjectName>(type->variable).item : std::string();
}

bool asksFor(const mms::RequestService &request, ObjectClass objectClass)
{
    const auto *list = std::get_if<GetNameListRequest>(&request);
    return list && list->objectClass == objectClass;
}

void expectWhole(const mms::Result<ServerDescription> &server)
{
    ASSERT_TRUE(server.ok()) << server.error().message;
    ASSERT_EQ(server->devices.size(), 2U);
    for (const DeviceDescription &device : server->devices) {
        ASSERT_EQ(device.nodes.size(), 3U);
        EXPECT_EQ(device.nodes[0].name, "LLN0");
        EXPECT_EQ(device.nodes[2].name, "XCBR10");
        for (const NodeDescription &node : device.nodes)
            EXPECT_EQ(node.type, nodeType()) << node.name;
    }
}

TEST(DiscoveryPlan, findsEverythingWithinItsWindow)
{
    for (const std::size_t window : {1U, 2U, 5U, 100U}) {
        PlanDriver driver(window);
        driver.dataSets = {"LLN0$a", "LLN0$b"};
        const auto server = driver.run();
        expectWhole(server);
        EXPECT_EQ(server->identity.vendor, "vendor");
        ASSERT_EQ(server->devices[1].dataSets.size(), 2U);
        EXPECT_EQ(server->devices[1].dataSets[0].name, ObjectName::inDomain("LD1", "LLN0$a"));
        EXPECT_TRUE(server->devices[1].dataSets[1].deletable);
        EXPECT_EQ(server->devices[0].journals, std::vector<std::string>{"LLN0$log"});
        EXPECT_TRUE(server->refused.empty());
        EXPECT_LE(driver.mostOnTheWay, window);
        EXPECT_EQ(driver.askedTypes.size(), 6U);
        EXPECT_EQ(driver.plan.done(), driver.requests);
        EXPECT_EQ(driver.plan.total(), driver.requests);
    }
}

TEST(DiscoveryPlan, nodesOfEqualTypeShareOneDescription)
{
    PlanDriver driver(5);
    const auto server = driver.run();
    expectWhole(server);
    const TypeDescription &first = server->devices[0].nodes[0].type;
    for (const DeviceDescription &device : server->devices) {
        for (const NodeDescription &node : device.nodes)
            EXPECT_EQ(&*node.type, &first) << node.name;
    }
    // Who changes one changes no other.
    SharedType changed = server->devices[0].nodes[0].type;
    changed.edit().components.clear();
    EXPECT_EQ(server->devices[0].nodes[0].type, nodeType());
}

TEST(DiscoveryPlan, needsFewRoundTripsForALargeDevice)
{
    PlanDriver driver(5);
    driver.devices = {"LD0", "LD1", "LD2", "LD3"};
    driver.nodes.clear();
    for (int i = 0; i < 50; ++i)
        driver.nodes.push_back("GGIO" + std::to_string(i));
    driver.pageSize = 100;
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    EXPECT_EQ(driver.askedTypes.size(), 200U);
    EXPECT_LE(static_cast<double>(driver.roundTrips),
              1.3 * (static_cast<double>(driver.pages) + 200.0 / 5.0));
    // Everything but the first answer fills the window.
    EXPECT_LE(driver.roundTrips, driver.requests / 5 + 3);
}

TEST(DiscoveryPlan, pagesOfADomainAreNeverAskedTwice)
{
    PlanDriver driver(5);
    std::vector<std::pair<std::string, std::string>> asked;
    driver.instead = [&asked](const auto &request) -> std::optional<CallOutcome> {
        if (asksFor(request, ObjectClass::NamedVariable)) {
            const auto &list = std::get<GetNameListRequest>(request);
            asked.emplace_back(list.domain, list.continueAfter.value_or(""));
        }
        return std::nullopt;
    };
    expectWhole(driver.run());
    std::ranges::sort(asked);
    EXPECT_EQ(std::ranges::adjacent_find(asked), asked.end());
    EXPECT_GT(asked.size(), 2U);
}

TEST(DiscoveryPlan, typeTooLargeIsAskedForByConstraintAndThenByData)
{
    for (const std::size_t window : {1U, 5U}) {
        PlanDriver driver(window);
        driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
            const std::string item = typeItem(request);
            if (item == "XCBR1" || item == "XCBR1$ST")
                return tooLarge;
            return std::nullopt;
        };
        const auto server = driver.run();
        ASSERT_TRUE(server.ok());
        EXPECT_TRUE(server->refused.empty());
        const TypeDescription &type = server->devices[0].nodes[1].type;
        ASSERT_EQ(type.components.size(), 2U);
        EXPECT_EQ(type.components[0].name, "ST");
        EXPECT_EQ(type.components[1], nodeType().components[1]);
        ASSERT_EQ(type.components[0].type.components.size(), 2U);
        EXPECT_EQ(type.components[0].type.components[0].name, "Beh");
        EXPECT_EQ(type.components[0].type.components[1],
                  nodeType().components[0].type.components[0]);
        EXPECT_EQ(server->devices[0].nodes[2].type, nodeType());
        EXPECT_EQ(std::ranges::count(driver.askedTypes, "XCBR1$ST$Pos"), 2);
    }
}

TEST(DiscoveryPlan, whatWasDescribedInPartsIsMarked)
{
    PlanDriver driver(5);
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        const std::string item = typeItem(request);
        if (item == "XCBR1" || item == "XCBR1$ST")
            return tooLarge;
        return std::nullopt;
    };
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    const NodeDescription &node = server->devices[0].nodes[1];
    EXPECT_EQ(node.inParts, (std::vector<std::string>{"XCBR1", "XCBR1$ST"}));
    EXPECT_FALSE(isToldWhole(node, "XCBR1"));
    EXPECT_FALSE(isToldWhole(node, "XCBR1$ST"));
    EXPECT_TRUE(isToldWhole(node, "XCBR1$ST$Pos"));
    EXPECT_TRUE(isToldWhole(node, "XCBR1$CF"));
    EXPECT_EQ(partsToldWhole(node, "XCBR1"),
              (std::vector<std::string>{"XCBR1$ST$Beh", "XCBR1$ST$Pos", "XCBR1$CF"}));
    EXPECT_EQ(partsToldWhole(node, "XCBR1$CF$Pos"), std::vector<std::string>{"XCBR1$CF$Pos"});
    const NodeDescription &whole = server->devices[0].nodes[2];
    EXPECT_TRUE(whole.inParts.empty());
    EXPECT_EQ(partsToldWhole(whole, "XCBR10$ST"), std::vector<std::string>{"XCBR10$ST"});
}

TEST(DiscoveryPlan, orderOfPartsIsThatOfTheNamesAndConstraintsHaveTheirOwn)
{
    PlanDriver driver(5);
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        if (typeItem(request) == "XCBR1")
            return tooLarge;
        return std::nullopt;
    };
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    EXPECT_EQ(server->devices[0].nodes[1].type, nodeType());
    EXPECT_EQ(server->devices[0].nodes[1].inParts, std::vector<std::string>{"XCBR1"});
}

/// Types other than those of the table, by item.
auto typesOf(std::map<std::string, TypeDescription> types)
{
    return [types = std::move(types)](
               const mms::RequestService &request) -> std::optional<CallOutcome> {
        const auto found = types.find(typeItem(request));
        if (found == types.end())
            return std::nullopt;
        mms::GetVariableAccessAttributesResponse response;
        response.type = found->second;
        return CallOutcome(ResponseService(std::move(response)));
    };
}

TEST(DiscoveryPlan, arraysOfEnormousCountsAreLeftOutAndTheRestIsReadInParts)
{
    const TypeDescription plain =
        TypeDescription::structure({{"stVal", TypeDescription::boolean()}});
    const auto withArray = [&plain](const TypeDescription &array) {
        return TypeDescription::structure(
            {{"ST", TypeDescription::structure(
                        {{"Pos", plain},
                         {"Har", TypeDescription::structure(
                                     {{"before", TypeDescription::boolean()}, {"har", array}})}})},
             {"CF", plain}});
    };
    const TypeDescription huge = TypeDescription::array(4294967295U, TypeDescription::float32());
    const TypeDescription inside = TypeDescription::array(
        1000, TypeDescription::array(1000, TypeDescription::array(1000, plain)));
    const TypeDescription usual = TypeDescription::array(16, plain);
    PlanDriver driver(5);
    driver.devices = {"LD0"};
    driver.instead = typesOf(
        {{"LLN0", withArray(huge)}, {"XCBR1", withArray(inside)}, {"XCBR10", withArray(usual)}});
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    const TypeDescription left = TypeDescription::structure(
        {{"ST",
          TypeDescription::structure(
              {{"Pos", plain},
               {"Har", TypeDescription::structure({{"before", TypeDescription::boolean()}})}})},
         {"CF", plain}});
    for (const std::size_t i : {0U, 1U}) {
        const NodeDescription &node = server->devices[0].nodes[i];
        EXPECT_EQ(node.type, left) << mms::toText(node.type);
        EXPECT_EQ(node.inParts,
                  (std::vector<std::string>{node.name, node.name + "$ST", node.name + "$ST$Har"}));
        EXPECT_EQ(partsToldWhole(node, node.name + "$ST"),
                  (std::vector<std::string>{node.name + "$ST$Pos", node.name + "$ST$Har$before"}));
    }
    EXPECT_EQ(server->devices[0].nodes[2].type, withArray(usual));
    EXPECT_TRUE(server->devices[0].nodes[2].inParts.empty());
    auto leftOut = english(server->leftOut);
    std::ranges::sort(leftOut);
    EXPECT_EQ(leftOut,
              (std::vector<std::string>{
                  "LD0/LLN0$ST$Har$har is larger, or nested deeper, than what is taken; it "
                  "is left out.",
                  "LD0/XCBR1$ST$Har$har is larger, or nested deeper, than what is taken; it "
                  "is left out."}));
}

TEST(DiscoveryPlan, whatIsNestedTooDeeplyIsLeftOut)
{
    TypeDescription deep = TypeDescription::boolean();
    for (int i = 0; i < 40; ++i)
        deep = TypeDescription::structure({{"a", deep}});
    PlanDriver driver(5);
    driver.devices = {"LD0"};
    driver.nodes = {"LLN0"};
    driver.instead = typesOf({{"LLN0", TypeDescription::structure({{"ST", deep}})}});
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    EXPECT_EQ(server->leftOut.size(), 1U);
    EXPECT_TRUE(partsToldWhole(server->devices[0].nodes[0], "LLN0$ST").empty());
}

TEST(DiscoveryPlan, limitsEndTheReadingWithASentence)
{
    const auto leftOut = [](DiscoveryLimits limits, auto change) {
        PlanDriver driver(5, limits);
        driver.pageSize = 100;
        change(driver);
        const auto server = driver.run();
        EXPECT_TRUE(server.ok());
        EXPECT_TRUE(driver.plan.finished());
        EXPECT_LT(driver.requests, 200U);
        return server ? english(server->leftOut) : std::vector<std::string>();
    };
    DiscoveryLimits limits;
    limits.devices = 3;
    EXPECT_EQ(leftOut(limits,
                      [](PlanDriver &driver) {
                          for (int i = 0; i < 1000; ++i)
                              driver.devices.push_back("MORE" + std::to_string(i));
                      }),
              std::vector<std::string>{
                  "The device has more than 3 logical devices; the others are left out."});
    limits = {};
    limits.nodes = 4;
    EXPECT_EQ(leftOut(limits, [](PlanDriver &) {}),
              std::vector<std::string>{
                  "The device has more than 4 logical nodes; the others are left out."});
    limits = {};
    limits.names = 1000;
    EXPECT_EQ(
        leftOut(limits,
                [](PlanDriver &driver) {
                    driver.nodes.clear();
                    for (int i = 0; i < 1000; ++i)
                        driver.nodes.push_back("GGIO" + std::to_string(i));
                }),
        std::vector<std::string>{"The device has more names than the 1,000 names and "
                                 "268,435,456 octets that are taken; the others are left out."});
    limits = {};
    limits.values = 7;
    EXPECT_EQ(leftOut(limits, [](PlanDriver &) {}),
              std::vector<std::string>{"The device describes more than the 7 values in 268,435,456 "
                                       "octets that are taken; the rest is left out."});
}

TEST(DiscoveryPlan, whatWasNotToldInTimeIsLeftOut)
{
    DiscoveryPlan plan(5);
    ASSERT_TRUE(plan.next());
    plan.timeIsOver();
    EXPECT_TRUE(plan.finished());
    const auto server = plan.take();
    ASSERT_TRUE(server.ok());
    EXPECT_EQ(english(server->leftOut),
              std::vector<std::string>{"The device took longer than 30 minutes to describe itself; "
                                       "what it had not told by then is left out."});
}

TEST(DiscoveryPlan, aKnownIdentityIsNotAskedFor)
{
    DiscoveryPlan plan(5, {}, mms::IdentifyResponse{"known", {}, {}, {}});
    while (const auto request = plan.next())
        EXPECT_FALSE(std::holds_alternative<mms::IdentifyRequest>(request->service.service()));
    plan.timeIsOver();
    EXPECT_EQ(plan.take()->identity.vendor, "known");
}

TEST(DiscoveryPlan, refusedObjectsAreNamedAndLeftOut)
{
    PlanDriver driver(5);
    driver.dataSets = {"LLN0$a", "LLN0$b"};
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        const std::string item = typeItem(request);
        if (item == "XCBR1" || item == "XCBR10$ST")
            return denied;
        if (item == "XCBR10")
            return tooLarge;
        const auto *list = std::get_if<mms::GetNamedVariableListAttributesRequest>(&request);
        if (list && list->name.item == "LLN0$a")
            return denied;
        if (asksFor(request, ObjectClass::Journal))
            return denied;
        return std::nullopt;
    };
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    const DeviceDescription &device = server->devices[0];
    EXPECT_EQ(device.nodes[0].type, nodeType());
    EXPECT_EQ(device.nodes[1].type, TypeDescription());
    EXPECT_EQ(device.nodes[2].type, TypeDescription::structure({nodeType().components[1]}));
    ASSERT_EQ(device.dataSets.size(), 1U);
    EXPECT_EQ(device.dataSets[0].name.item, "LLN0$b");
    EXPECT_TRUE(device.journals.empty());
    auto refused = english(server->refused);
    std::ranges::sort(refused);
    EXPECT_EQ(refused, (std::vector<std::string>{"LD0/LLN0$a: Access to the object is denied.",
                                                 "LD0/XCBR10$ST: Access to the object is denied.",
                                                 "LD0/XCBR1: Access to the object is denied.",
                                                 "LD1/LLN0$a: Access to the object is denied.",
                                                 "LD1/XCBR10$ST: Access to the object is denied.",
                                                 "LD1/XCBR1: Access to the object is denied."}));
}

TEST(DiscoveryPlan, namesThatNoReferenceCanHaveAreLeftOutAndTheRestIsReadInParts)
{
    PlanDriver driver(5);
    driver.devices = {"LD0"};
    driver.nodes = {"LLN0"};
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        if (typeItem(request) != "LLN0")
            return std::nullopt;
        const TypeDescription flag = TypeDescription::boolean();
        const TypeDescription odd = TypeDescription::structure({{"x", flag}, {"x", flag}});
        mms::GetVariableAccessAttributesResponse response;
        response.type = TypeDescription::structure(
            {{"ST", TypeDescription::structure(
                        {{"Pos$stVal", flag},
                         {"Pos", TypeDescription::structure({{"stVal", flag}, {"", flag}})},
                         {"Beh", flag},
                         {"har(3)", flag},
                         {"Beh", flag},
                         {"Arr", TypeDescription::array(2, odd)},
                         {"Ind", flag}})}});
        return ResponseService(std::move(response));
    };
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    const NodeDescription &node = server->devices.at(0).nodes.at(0);
    EXPECT_EQ(node.type, TypeDescription::structure(
                             {{"ST", TypeDescription::structure(
                                         {{"Pos", TypeDescription::structure(
                                                      {{"stVal", TypeDescription::boolean()}})},
                                          {"Ind", TypeDescription::boolean()}})}}));
    EXPECT_EQ(node.inParts, (std::vector<std::string>{"LLN0", "LLN0$ST", "LLN0$ST$Pos"}));
    EXPECT_EQ(server->leftOut.size(), 5U); // the same sentence is said once
    for (const std::string &sentence : english(server->leftOut)) {
        EXPECT_TRUE(sentence.ends_with(
            " has a name that is none, or that something else has; it is left out."))
            << sentence;
    }
}

TEST(DiscoveryPlan, refusedNamesOfOneDeviceDoNotSpoilTheOthers)
{
    PlanDriver driver(5);
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        const auto *list = std::get_if<GetNameListRequest>(&request);
        if (list && list->domain == "LD0")
            return denied;
        return std::nullopt;
    };
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    EXPECT_TRUE(server->devices[0].nodes.empty());
    EXPECT_EQ(server->devices[1].nodes.size(), 3U);
    EXPECT_EQ(english(server->refused),
              (std::vector<std::string>{
                  "The names of the data sets of LD0: Access to the object is denied.",
                  "The names of the data of LD0: Access to the object is denied."}));
}

TEST(DiscoveryPlan, deviceThatListsNothingIsAnError)
{
    PlanDriver driver(5);
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        if (asksFor(request, ObjectClass::Domain))
            return denied;
        return std::nullopt;
    };
    const auto server = driver.run();
    ASSERT_FALSE(server.ok());
    EXPECT_EQ(server.error().message, "The device does not list its logical devices: Access to "
                                      "the object is denied.");
}

TEST(DiscoveryPlan, peerConfusedBySeveralRequestsIsAskedOneByOne)
{
    const std::vector<CallOutcome> confusions = {
        rejected,
        CallFailure{CallFailure::Kind::TimedOut, mms::verbatim("The peer did not answer in time.")},
        CallFailure{CallFailure::Kind::Malformed, mms::verbatim("The answer cannot be read.")},
        ResponseService(mms::StatusResponse()),
    };
    for (const CallOutcome &confusion : confusions) {
        PlanDriver driver(5);
        driver.instead = [&](const auto &) -> std::optional<CallOutcome> {
            if (driver.plan.onTheWay() <= 1)
                return std::nullopt;
            driver.mostSinceConfusion = 0;
            return confusion;
        };
        const auto server = driver.run();
        expectWhole(server);
        EXPECT_GT(driver.mostOnTheWay, 1U);
        EXPECT_EQ(driver.mostSinceConfusion, 1U);
        EXPECT_TRUE(server->refused.empty());
    }
}

TEST(DiscoveryPlan, answersOfAConfusedPeerThatFitAreKept)
{
    PlanDriver driver(5);
    bool first = true;
    driver.instead = [&](const auto &request) -> std::optional<CallOutcome> {
        if (typeItem(request).empty() || !std::exchange(first, false))
            return std::nullopt;
        driver.mostSinceConfusion = 0;
        return rejected;
    };
    expectWhole(driver.run());
    EXPECT_EQ(driver.mostSinceConfusion, 1U);
    EXPECT_EQ(driver.askedTypes.size(), 6U);
}

TEST(DiscoveryPlan, rejectedJournalsAndListsOfTheAssociationAreNoConfusion)
{
    PlanDriver driver(5);
    driver.instead = [&](const auto &request) -> std::optional<CallOutcome> {
        const auto *list = std::get_if<GetNameListRequest>(&request);
        if (!std::holds_alternative<mms::IdentifyRequest>(request) &&
            !asksFor(request, ObjectClass::Journal) && !(list && list->scope == Scope::Association))
            return std::nullopt;
        driver.mostSinceConfusion = 0;
        return rejected;
    };
    const auto server = driver.run();
    expectWhole(server);
    EXPECT_TRUE(server->refused.empty());
    EXPECT_GT(driver.mostSinceConfusion, 1U);
}

TEST(DiscoveryPlan, silenceAboutJournalsIsNotTheEnd)
{
    PlanDriver driver(1);
    std::size_t asked = 0;
    driver.instead = [&asked](const auto &request) -> std::optional<CallOutcome> {
        if (!asksFor(request, ObjectClass::Journal))
            return std::nullopt;
        ++asked;
        return CallFailure{CallFailure::Kind::TimedOut,
                           mms::verbatim("The peer did not answer in time.")};
    };
    expectWhole(driver.run());
    EXPECT_EQ(asked, 1U);
}

TEST(DiscoveryPlan, silenceAboutOneObjectIsNamed)
{
    PlanDriver driver(1);
    driver.dataSets = {"LLN0$a", "LLN0$b"};
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        const auto *list = std::get_if<mms::GetNamedVariableListAttributesRequest>(&request);
        if (!list || list->name.item != "LLN0$a")
            return std::nullopt;
        return CallFailure{CallFailure::Kind::TimedOut,
                           mms::verbatim("The peer did not answer in time.")};
    };
    const auto server = driver.run();
    expectWhole(server);
    EXPECT_EQ(english(server->refused),
              (std::vector<std::string>{"LD0/LLN0$a: The peer did not answer in time.",
                                        "LD1/LLN0$a: The peer did not answer in time."}));
    EXPECT_EQ(server->devices[1].dataSets.size(), 1U);
}

TEST(DiscoveryPlan, deadDeviceIsGivenUpSoon)
{
    PlanDriver driver(5);
    driver.instead = [&driver](const auto &) -> std::optional<CallOutcome> {
        if (driver.requests < 20)
            return std::nullopt;
        return CallFailure{CallFailure::Kind::TimedOut,
                           mms::verbatim("The peer did not answer in time.")};
    };
    const auto server = driver.run();
    ASSERT_FALSE(server.ok());
    EXPECT_EQ(server.error().message, "The device does not answer any more.");
    EXPECT_LE(driver.requests, 30U);
}

TEST(DiscoveryPlan, lostAssociationEndsIt)
{
    PlanDriver driver(5);
    driver.instead = [&driver](const auto &) -> std::optional<CallOutcome> {
        if (driver.requests < 10)
            return std::nullopt;
        return CallFailure{CallFailure::Kind::Lost,
                           mms::verbatim("The peer closed the network connection.")};
    };
    const auto server = driver.run();
    ASSERT_FALSE(server.ok());
    EXPECT_EQ(server.error().message, "The peer closed the network connection.");
}

TEST(DiscoveryPlan, repeatedPagesAreNamedAndEndTheList)
{
    PlanDriver driver(5);
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        if (asksFor(request, ObjectClass::NamedVariable))
            return ResponseService(GetNameListResponse{{"LLN0", "LLN0$ST"}, true});
        return std::nullopt;
    };
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    ASSERT_EQ(server->devices[0].nodes.size(), 1U);
    EXPECT_EQ(server->devices[0].nodes[0].type, nodeType());
    EXPECT_EQ(server->refused.size(), 2U);
}

TEST(DiscoveryPlan, nodeIsFoundByTheNamesOfItsParts)
{
    PlanDriver driver(5);
    driver.devices = {"LD0"};
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        if (asksFor(request, ObjectClass::NamedVariable))
            return ResponseService(GetNameListResponse{{"LLN0$ST$Beh", "LLN0$ST$Pos"}, false});
        if (typeItem(request) == "LLN0" || typeItem(request) == "LLN0$ST")
            return tooLarge;
        return std::nullopt;
    };
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    ASSERT_EQ(server->devices[0].nodes.size(), 1U);
    const TypeDescription &type = server->devices[0].nodes[0].type;
    ASSERT_NE(typeBelow(type, "ST", "Pos$stVal"), nullptr);
    EXPECT_EQ(*typeBelow(type, "ST", "Pos$stVal"), TypeDescription::boolean());
}

TEST(DiscoveryPlan, variableThatIsNoLogicalNodeIsNamed)
{
    PlanDriver driver(5);
    driver.instead = [](const auto &request) -> std::optional<CallOutcome> {
        if (typeItem(request) != "XCBR1")
            return std::nullopt;
        mms::GetVariableAccessAttributesResponse response;
        response.type = TypeDescription::boolean();
        return ResponseService(std::move(response));
    };
    const auto server = driver.run();
    ASSERT_TRUE(server.ok());
    EXPECT_EQ(server->devices[0].nodes[1].type, TypeDescription());
    EXPECT_EQ(server->refused.size(), 2U);
}

} // namespace
