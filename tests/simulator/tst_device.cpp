// SPDX-License-Identifier: Apache-2.0
#include "mms/shorthand.h"
#include "simulator/describedied.h"
#include "simulator/device.h"
#include "simulator/devicetest.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace mms;
using simtest::Caller;
using simtest::localOptions;
using simtest::RunningDevice;

constexpr const char *domain = "IED1LD";

class DeviceTest : public testing::Test
{
protected:
    ErrorClass errorOf(const CallOutcome &outcome)
    {
        const auto *error = std::get_if<ServiceError>(&outcome);
        EXPECT_TRUE(error) << failureText(outcome);
        return error ? error->errorClass : ErrorClass::Others;
    }

    wiretest::Loop loop;
    simtest::DescribedIed ied = simtest::bay();
    RunningDevice running{loop.executor(), *ied};
    Caller caller{loop.executor(), running.port};
};

TEST_F(DeviceTest, itTellsWhoItIsAndThatItIsWell)
{
    const auto identity = caller.answer<IdentifyResponse>(IdentifyRequest());
    EXPECT_EQ(identity.vendor, "Maker");
    EXPECT_EQ(identity.model, "Relay");
    EXPECT_EQ(identity.revision, "2.1");
    EXPECT_EQ(caller.answer<StatusResponse>(StatusRequest()).physicalStatus, 0);
    EXPECT_TRUE(caller.opened()->supports(Service::Read));
    EXPECT_TRUE(caller.opened()->supports(Service::DefineNamedVariableList));
    EXPECT_FALSE(caller.opened()->supports(Service::FileOpen)) << "it has no files";
}

TEST_F(DeviceTest, namesOfEveryClassAreListed)
{
    EXPECT_EQ(caller.names(ObjectClass::Domain, {}), std::vector<std::string>{domain});
    EXPECT_GT(caller.names(ObjectClass::NamedVariable, domain).size(), 50U);
    EXPECT_EQ(caller.names(ObjectClass::NamedVariableList, domain),
              std::vector<std::string>{"LLN0$Positions"});
    EXPECT_EQ(caller.names(ObjectClass::Journal, domain), std::vector<std::string>{"LLN0$Events"});
    EXPECT_TRUE(caller.names(ObjectClass::NamedVariable, {}).empty());
    EXPECT_TRUE(caller.names(ObjectClass::NamedVariableList, {}).empty());
}

TEST_F(DeviceTest, nameListsOfWhatDoesNotExistAreErrors)
{
    EXPECT_EQ(errorOf(caller.call(
                  GetNameListRequest{ObjectClass::NamedVariable, Scope::Domain, "OTHER", {}})),
              ErrorClass::Access);
    for (const ObjectClass objectClass :
         {ObjectClass::NamedVariable, ObjectClass::NamedVariableList, ObjectClass::Journal}) {
        EXPECT_EQ(
            errorOf(caller.call(GetNameListRequest{objectClass, Scope::Domain, domain, "Nothing"})),
            ErrorClass::Access);
    }
    EXPECT_EQ(errorOf(caller.call(GetNameListRequest{ObjectClass::Semaphore, Scope::Vmd, {}, {}})),
              ErrorClass::Access);
}

TEST_F(DeviceTest, pagesOfNamesFitASmallPdu)
{
    AssociationOptions options;
    options.maxPduSize = smallestPduSize;
    Caller small(loop.executor(), running.port, options);
    EXPECT_EQ(small.names(ObjectClass::NamedVariable, domain),
              caller.names(ObjectClass::NamedVariable, domain));
}

TEST_F(DeviceTest, namesAreSortedUnlessTheOrderOfTheTypesIsAskedFor)
{
    sim::DeviceOptions options = localOptions();
    options.oddities.namesInTypeOrder = true;
    RunningDevice other(loop.executor(), *ied, options);
    AssociationOptions small;
    small.maxPduSize = smallestPduSize;
    Caller inPages(loop.executor(), other.port, small);
    std::vector<std::string> names = inPages.names(ObjectClass::NamedVariable, domain);
    const auto at = [&names](std::string_view name) { return std::ranges::find(names, name); };
    EXPECT_LT(at("XCBR10$ST$Pos$stVal"), at("XCBR10$ST$Pos$q")) << "as in the type";
    EXPECT_LT(at("XCBR1"), at("XCBR10"));
    EXPECT_LT(at("XCBR10"), at("MHAI1")) << "as in the description";
    const std::vector<std::string> sorted = caller.names(ObjectClass::NamedVariable, domain);
    EXPECT_TRUE(std::ranges::is_sorted(sorted));
    EXPECT_NE(names, sorted);
    std::ranges::sort(names);
    EXPECT_EQ(names, sorted) << "the same names";
}

TEST_F(DeviceTest, typesAndValuesTooLargeForThePduAreErrorsAndTheirPartsCanBeAsked)
{
    AssociationOptions options;
    options.maxPduSize = smallestPduSize;
    Caller small(loop.executor(), running.port, options);
    EXPECT_EQ(errorOf(small.call(
                  GetVariableAccessAttributesRequest{ObjectName::inDomain(domain, "LLN0")})),
              ErrorClass::Resource);
    const auto part = small.answer<GetVariableAccessAttributesResponse>(
        GetVariableAccessAttributesRequest{ObjectName::inDomain(domain, "LLN0$ST")});
    EXPECT_EQ(part.type.components.size(), 1U);
    EXPECT_EQ(errorOf(small.call(ReadRequest{
                  false, wiretest::variablesOf(domain, std::vector<std::string>(40, "XCBR1"))})),
              ErrorClass::Resource);
    EXPECT_TRUE(
        small.answer<ReadResponse>(ReadRequest{false, wiretest::variablesOf(domain, {"XCBR1$ST"})})
            .results.front()
            .ok());
}

TEST_F(DeviceTest, theTypeOfALogicalNodeIsToldWhole)
{
    const auto response = caller.answer<GetVariableAccessAttributesResponse>(
        GetVariableAccessAttributesRequest{ObjectName::inDomain(domain, "XCBR1")});
    EXPECT_FALSE(response.deletable);
    EXPECT_EQ(response.type, running.device->model().find(domain, "XCBR1").type());
    EXPECT_EQ(errorOf(caller.call(
                  GetVariableAccessAttributesRequest{ObjectName::inDomain(domain, "XCBR2")})),
              ErrorClass::Access);
    EXPECT_EQ(errorOf(caller.call(GetVariableAccessAttributesRequest{Address()})),
              ErrorClass::Access);
}

TEST_F(DeviceTest, aReadAnswersEachVariableByItself)
{
    const auto variables = wiretest::variablesOf(domain, {"LLN0$ST$Mod$stVal", "LLN0$ST$Mod$none"});
    const auto response = caller.answer<ReadResponse>(ReadRequest{true, variables});
    ASSERT_EQ(response.results.size(), 2U);
    EXPECT_EQ(response.results[0].data().toInteger(), 1);
    EXPECT_EQ(response.results[1].error(), DataAccessError::ObjectNonExistent);
    EXPECT_EQ(response.variables, variables);
}

TEST_F(DeviceTest, aDataSetIsReadByItsName)
{
    const auto response = caller.answer<ReadResponse>(
        ReadRequest{false, ObjectName::inDomain(domain, "LLN0$Positions")});
    ASSERT_EQ(response.results.size(), 2U);
    EXPECT_EQ(response.results[0].data().children().size(), 3U);
    EXPECT_EQ(response.results[1].data().toDouble(), 0.0);
    EXPECT_EQ(errorOf(caller.call(ReadRequest{false, ObjectName::inDomain(domain, "LLN0$None")})),
              ErrorClass::Access);
}

TEST_F(DeviceTest, aWriteAnswersEachVariableByItself)
{
    const auto response = caller.answer<WriteResponse>(
        WriteRequest{wiretest::variablesOf(domain, {"XCBR1$CF$Pos$sboTimeout", "XCBR1$DC$Pos$d",
                                                    "XCBR1$CF$Pos$none"}),
                     {Data::unsignedInteger(7), Data::visibleString("x"), Data::boolean(true)}});
    ASSERT_EQ(response.results.size(), 3U);
    EXPECT_EQ(response.results[0], std::nullopt);
    EXPECT_EQ(response.results[1], DataAccessError::ObjectAccessDenied);
    EXPECT_EQ(response.results[2], DataAccessError::ObjectNonExistent);
    const auto read = caller.answer<ReadResponse>(
        ReadRequest{false, wiretest::variablesOf(domain, {"XCBR1$CF$Pos$sboTimeout"})});
    EXPECT_EQ(read.results.front().data().toUnsigned(), 7U);
}

TEST_F(DeviceTest, aWriteWithAnotherNumberOfValuesIsRejected)
{
    const auto outcome =
        caller.call(WriteRequest{wiretest::variablesOf(domain, {"XCBR1$CF$Pos$sboTimeout"}), {}});
    const auto *reject = std::get_if<RejectPdu>(&outcome);
    ASSERT_TRUE(reject);
    EXPECT_EQ(reject->code, rejectcodes::requestInvalidArgument);
}

TEST_F(DeviceTest, dataSetsAreMadeTellTheirMembersAndAreDeleted)
{
    const auto name = ObjectName::inDomain(domain, "LLN0$Made");
    const std::vector<VariableAccess> members{
        {ObjectName::inDomain(domain, "XCBR1$ST$Pos$stVal"), {}},
        {ObjectName::inDomain(domain, "MHAI1$MX$HA$phsAHar"), {AlternateAccess::ofElement(1)}}};
    caller.answer<DefineNamedVariableListResponse>(DefineNamedVariableListRequest{name, members});
    const auto told = caller.answer<GetNamedVariableListAttributesResponse>(
        GetNamedVariableListAttributesRequest{name});
    EXPECT_TRUE(told.deletable);
    EXPECT_EQ(told.members, members);
    EXPECT_EQ(caller.names(ObjectClass::NamedVariableList, domain),
              (std::vector<std::string>{"LLN0$Made", "LLN0$Positions"}));
    EXPECT_EQ(
        caller
            .answer<DeleteNamedVariableListResponse>(DeleteNamedVariableListRequest{0, {name}, {}})
            .deleted,
        1U);
    EXPECT_EQ(errorOf(caller.call(GetNamedVariableListAttributesRequest{name})),
              ErrorClass::Access);
}

TEST_F(DeviceTest, dataSetsOfAnAssociationAreGoneAfterIt)
{
    const auto name = ObjectName::ofAssociation("Own");
    {
        Caller first(loop.executor(), running.port);
        first.answer<DefineNamedVariableListResponse>(DefineNamedVariableListRequest{
            name, {{ObjectName::inDomain(domain, "XCBR1$ST$Pos"), {}}}});
        EXPECT_EQ(first
                      .answer<GetNameListResponse>(GetNameListRequest{
                          ObjectClass::NamedVariableList, Scope::Association, {}, {}})
                      .names,
                  std::vector<std::string>{"Own"});
        EXPECT_EQ(errorOf(caller.call(GetNamedVariableListAttributesRequest{name})),
                  ErrorClass::Access);
    }
    Caller second(loop.executor(), running.port);
    EXPECT_EQ(errorOf(second.call(GetNamedVariableListAttributesRequest{name})),
              ErrorClass::Access);
}

TEST_F(DeviceTest, journalsAreEmptyAndOthersDoNotExist)
{
    ReadJournalRequest request;
    request.journal = ObjectName::inDomain(domain, "LLN0$Events");
    EXPECT_TRUE(caller.answer<ReadJournalResponse>(request).entries.empty());
    request.journal.item = "LLN0$Other";
    EXPECT_EQ(errorOf(caller.call(request)), ErrorClass::Access);
}

TEST_F(DeviceTest, withoutFilesFileServicesAreRejected)
{
    const auto outcome = caller.call(FileDirectoryRequest());
    const auto *reject = std::get_if<RejectPdu>(&outcome);
    ASSERT_TRUE(reject);
    EXPECT_EQ(reject->code, rejectcodes::requestUnrecognizedService);
}

TEST_F(DeviceTest, severalDevicesLiveInOneProcess)
{
    RunningDevice second(loop.executor(), *ied);
    ASSERT_NE(second.port, running.port);
    Caller other(loop.executor(), second.port);
    ASSERT_TRUE(other.isOpen());
    const auto variables = wiretest::variablesOf(domain, {"XCBR1$CF$Pos$sboTimeout"});
    other.answer<WriteResponse>(WriteRequest{variables, {Data::unsignedInteger(7)}});
    const auto here = caller.answer<ReadResponse>(ReadRequest{false, variables});
    const auto there = other.answer<ReadResponse>(ReadRequest{false, variables});
    EXPECT_EQ(here.results.front().data().toUnsigned(), 30000U);
    EXPECT_EQ(there.results.front().data().toUnsigned(), 7U);
}

TEST_F(DeviceTest, aPasswordIsDemandedWhereOneIsSet)
{
    auto options = localOptions();
    const std::string password = "secret";
    const osi::acse::Authentication authentication{osi::acse::passwordMechanism,
                                                   {password.begin(), password.end()}};
    options.server.association.link.stack.association.authentication = authentication;
    RunningDevice guarded(loop.executor(), *ied, options);
    EXPECT_FALSE(Caller(loop.executor(), guarded.port).isOpen());
    AssociationOptions knowing;
    knowing.link.stack.association.authentication = authentication;
    EXPECT_TRUE(Caller(loop.executor(), guarded.port, knowing).isOpen());
}

/// Notes who comes and goes, and answers nothing.
class WatchingEngine : public sim::Engine
{
public:
    struct Seen
    {
        std::vector<sim::Peer *> clients;
        wiretest::Awaited<bool> left;
    };
    explicit WatchingEngine(std::shared_ptr<Seen> seen)
        : m_seen(std::move(seen))
    {
    }
    void opened(sim::Peer &client) override
    {
        m_seen->clients.push_back(&client);
        client.report({ObjectName::ofVmd("RPT"), {Data::boolean(true)}});
    }
    void closed(sim::Peer &client) override
    {
        std::erase(m_seen->clients, &client);
        m_seen->left.setter()(true);
    }

private:
    std::shared_ptr<Seen> m_seen;
};

TEST_F(DeviceTest, enginesHearOfClientsAndReportToThem)
{
    const auto seen = std::make_shared<WatchingEngine::Seen>();
    const auto device = sim::Device::create(loop.executor(), *ied, localOptions());
    device->addEngine(std::make_unique<WatchingEngine>(seen));
    const auto port = device->start();
    ASSERT_TRUE(port.ok());
    wiretest::Awaited<InformationReport> report;
    Association::Handlers handlers;
    handlers.report = report.setter();
    {
        Caller watched(loop.executor(), *port, {}, handlers);
        EXPECT_EQ(std::get<ObjectName>(report.get().variables), ObjectName::ofVmd("RPT"));
    }
    EXPECT_TRUE(seen->left.get());
    EXPECT_TRUE(seen->clients.empty());
    device->stop();
}

TEST_F(DeviceTest, aRequestFilterMayTakeRequests)
{
    const auto device = sim::Device::create(loop.executor(), *ied, localOptions());
    device->setRequestFilter([](const std::shared_ptr<Association> &association,
                                std::uint32_t invokeId, RequestService &request) {
        if (!std::holds_alternative<IdentifyRequest>(request))
            return false;
        association->fail(invokeId, {ErrorClass::VmdState, 1, {}, {}, {}});
        return true;
    });
    const auto port = device->start();
    ASSERT_TRUE(port.ok());
    {
        Caller filtered(loop.executor(), *port);
        EXPECT_EQ(errorOf(filtered.call(IdentifyRequest())), ErrorClass::VmdState);
        EXPECT_EQ(filtered.answer<StatusResponse>(StatusRequest()).logicalStatus, 0);
    }
    device->stop();
}

TEST_F(DeviceTest, stoppingEndsTheAssociations)
{
    wiretest::Awaited<mms::Text> closed;
    Association::Handlers handlers;
    handlers.closed = closed.setter();
    const auto association = Association::create(loop.executor(), {}, handlers);
    wiretest::Awaited<Result<InitiateParameters>> opened;
    association->connect("127.0.0.1", running.port, opened.setter());
    ASSERT_TRUE(opened.get().ok());
    running.device->stop();
    EXPECT_FALSE(closed.get().empty());
    EXPECT_FALSE(Caller(loop.executor(), running.port).isOpen());
}

} // namespace
