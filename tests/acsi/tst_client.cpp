// SPDX-License-Identifier: Apache-2.0
#include "scripteddevice.h"

#include <asio/bind_cancellation_slot.hpp>
#include <asio/cancellation_signal.hpp>
#include <asio/post.hpp>

namespace {

using namespace acsi;
using namespace std::chrono_literals;
using acsitest::ScriptedDevice;
using mms::AccessResult;
using mms::Data;
using mms::DataAccessError;
using mms::ErrorClass;
using mms::ObjectName;
using mms::ServiceError;
using mms::VariableAccess;
using wiretest::Awaited;

const ServiceError denied{ErrorClass::Access, mms::serviceerrors::accessDenied, {}, {}, {}};

VariableAccess variable(const std::string &item)
{
    return {ObjectName::inDomain("LD0", item), {}};
}

class ClientTest : public acsitest::DeviceTest
{
protected:
    /// Variables "GGIO1$MX$AnIn1" and on, of which each has its number as value.
    std::vector<VariableAccess> addNumbers(std::size_t count)
    {
        std::vector<VariableAccess> result;
        for (std::size_t i = 0; i < count; ++i) {
            result.push_back(variable("GGIO1$MX$AnIn" + std::to_string(i)));
            device->values[toText(result.back())] = Data::unsignedInteger(i);
        }
        return result;
    }

    std::string addText(const std::string &item, std::size_t size)
    {
        const std::string text(size, 'x');
        device->values["LD0/" + item] = Data::visibleString(text);
        return text;
    }
};

using AcsiClient = ClientTest;

TEST_F(AcsiClient, failedConnectionSaysWhyAndClosesNothing)
{
    const std::uint16_t port = wiretest::RawPeer().port();
    const auto connected = tryToConnect(port);
    ASSERT_FALSE(connected.ok());
    EXPECT_NE(connected.error().message.english().find("No connection to 127.0.0.1"),
              std::string::npos);
}

TEST_F(AcsiClient, itDeclaresWhatItServes)
{
    const auto sent = std::make_shared<mms::Octets>();
    clientOptions.association.link.trace = [sent](osi::Direction direction, mms::Bytes pdu) {
        if (direction == osi::Direction::Sent && sent->empty())
            sent->assign(pdu.begin(), pdu.end());
    };
    connect();
    const auto pdu = mms::decodePdu(*sent);
    ASSERT_TRUE(pdu.ok());
    const auto *request = std::get_if<mms::InitiateRequestPdu>(&*pdu);
    ASSERT_NE(request, nullptr);
    // ISO 9506-2, ServiceSupportOptions: fileOpen, fileRead, fileClose, informationReport,
    // conclude.
    std::vector<std::size_t> declared;
    for (std::size_t bit = 0; bit < request->parameters.services.size(); ++bit) {
        if (request->parameters.services.test(bit))
            declared.push_back(bit);
    }
    EXPECT_EQ(declared, (std::vector<std::size_t>{72, 73, 74, 79, 83}));
}

TEST_F(AcsiClient, closingConcludesAndIsHeardOnce)
{
    connect();
    EXPECT_TRUE(client->isOpen());
    asio::co_spawn(client->strand(), client->close(), asio::use_future).get();
    EXPECT_EQ(ended.get(), "The association was released.");
    EXPECT_FALSE(client->isOpen());
    EXPECT_EQ(client->closeReason(), "The association was released.");
    asio::co_spawn(client->strand(), client->close(), asio::use_future).get();
}

TEST_F(AcsiClient, callsAfterTheEndFailWithItsReason)
{
    connect();
    client->abort(mms::verbatim("Enough of it."));
    EXPECT_EQ(ended.get(), "Enough of it.");
    const auto value = run(client->readOne(variable("GGIO1$MX$AnIn1")));
    ASSERT_FALSE(value.ok());
    EXPECT_EQ(value.error().message, "Enough of it.");
    const auto names = run(client->nameList(mms::ObjectClass::Domain, mms::Scope::Vmd));
    ASSERT_FALSE(names.ok());
    EXPECT_EQ(names.error().message, "Enough of it.");
}

TEST_F(AcsiClient, associationEndsWithTheClient)
{
    Awaited<mms::Text> gone;
    class Watching : public ScriptedDevice
    {
    public:
        void closed(const AssociationPointer &, const mms::Text &reason) override { heard(reason); }
        std::function<void(mms::Text)> heard;
    };
    const auto watching = std::make_shared<Watching>();
    watching->heard = gone.setter();
    device = watching;
    connect();
    client.reset();
    EXPECT_FALSE(gone.get().empty());
}

TEST_F(AcsiClient, namesComePageByPage)
{
    device->pageSize = 3;
    for (const char *name : {"A", "B", "C", "D", "E", "F", "G"})
        device->domains[name];
    connect();
    const auto names = run(client->nameList(mms::ObjectClass::Domain, mms::Scope::Vmd));
    ASSERT_TRUE(names.ok());
    EXPECT_EQ(*names, (std::vector<std::string>{"A", "B", "C", "D", "E", "F", "G"}));
    const auto asked = device->requestsOf<mms::GetNameListRequest>();
    ASSERT_EQ(asked.size(), 3U);
    EXPECT_EQ(asked[2].continueAfter, "F");
}

TEST_F(AcsiClient, repeatedPagesEndWithAnError)
{
    device->intercept = [](const auto &association, std::uint32_t invokeId, const auto &) {
        association->respond(invokeId, mms::GetNameListResponse{{"A", "B"}, true});
        return true;
    };
    connect();
    const auto names = run(client->nameList(mms::ObjectClass::Domain, mms::Scope::Vmd));
    ASSERT_FALSE(names.ok());
    EXPECT_EQ(names.error().message, "The device repeats the same page of names.");
    EXPECT_EQ(device->requests().size(), 2U);
}

TEST_F(AcsiClient, pageMayBeginWithTheNameItFollowsOrBeEmpty)
{
    device->intercept = [](const auto &association, std::uint32_t invokeId, auto &request) {
        const auto after = std::get<mms::GetNameListRequest>(request).continueAfter;
        mms::GetNameListResponse page;
        page.moreFollows = true;
        if (!after)
            page.names = {"A", "B"};
        else if (*after == "B")
            page.names = {"B", "C"};
        association->respond(invokeId, page);
        return true;
    };
    connect();
    const auto names = run(client->nameList(mms::ObjectClass::Domain, mms::Scope::Vmd));
    ASSERT_TRUE(names.ok());
    EXPECT_EQ(*names, (std::vector<std::string>{"A", "B", "C"}));
}

TEST_F(AcsiClient, typeIsAskedForByName)
{
    const auto type = mms::TypeDescription::structure({{"ST", mms::TypeDescription::boolean()}});
    device->domains["LD0"].nodes["GGIO1"] = type;
    connect();
    const auto found = run(client->type(ObjectName::inDomain("LD0", "GGIO1")));
    ASSERT_TRUE(found.ok());
    EXPECT_EQ(*found, type);
    const auto missing = run(client->type(ObjectName::inDomain("LD0", "GGIO2")));
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.error().message, "The object does not exist.");
}

TEST_F(AcsiClient, longListsAreReadInSeveralRequestsInOrder)
{
    serverOptions.maxPduSize = 1000;
    const auto variables = addNumbers(200);
    connect();
    const auto results = run(client->read(variables));
    ASSERT_TRUE(results.ok()) << results.error().message;
    ASSERT_EQ(results->size(), 200U);
    for (std::size_t i = 0; i < 200; ++i)
        EXPECT_EQ((*results)[i], AccessResult(Data::unsignedInteger(i)));
    const auto asked = device->requestsOf<mms::ReadRequest>();
    std::size_t octets = 0;
    for (const mms::ReadRequest &request : asked) {
        const std::size_t size = mms::encode(mms::ConfirmedRequestPdu{1, request}).size();
        EXPECT_LE(size, 1000U);
        octets += size;
    }
    EXPECT_EQ(asked.size(), octets / 1000 + 1);
}

TEST_F(AcsiClient, singleRequestIsUsedWhileItFits)
{
    const auto variables = addNumbers(500);
    connect();
    const auto results = run(client->read(variables));
    ASSERT_TRUE(results.ok());
    EXPECT_EQ(device->requests().size(), 1U);
    EXPECT_TRUE(run(client->read({})).ok());
    EXPECT_EQ(device->requests().size(), 1U);
}

TEST_F(AcsiClient, requestsOfALongListAreOnTheWayTogether)
{
    serverOptions.maxPduSize = 1000;
    serverOptions.maxOutstandingCalled = 3;
    const auto variables = addNumbers(200);
    const auto held =
        std::make_shared<std::vector<std::pair<std::uint32_t, mms::RequestService>>>();
    const auto answered = std::make_shared<bool>(false);
    device->intercept = [this, held, answered](const auto &association, std::uint32_t invokeId,
                                               auto &request) {
        if (*answered)
            return false;
        held->emplace_back(invokeId, request);
        if (held->size() == 3) {
            *answered = true;
            for (auto call = held->rbegin(); call != held->rend(); ++call)
                device->answer(association, call->first, call->second);
        }
        return true;
    };
    connect();
    const auto results = run(client->read(variables));
    ASSERT_TRUE(results.ok()) << results.error().message;
    for (std::size_t i = 0; i < 200; ++i)
        EXPECT_EQ((*results)[i], AccessResult(Data::unsignedInteger(i)));
}

TEST_F(AcsiClient, answersTooLargeForThePduAreAskedForInHalves)
{
    serverOptions.maxPduSize = 1000;
    std::vector<VariableAccess> variables;
    for (int i = 0; i < 9; ++i) {
        const std::string item = "GGIO1$DC$Long" + std::to_string(i);
        variables.push_back(variable(item));
        addText(item, i == 4 ? 2000 : 300);
    }
    connect();
    const auto results = run(client->read(variables));
    ASSERT_TRUE(results.ok()) << results.error().message;
    for (std::size_t i = 0; i < 9; ++i) {
        if (i == 4)
            EXPECT_EQ((*results)[i], AccessResult(DataAccessError::ObjectAccessUnsupported));
        else
            EXPECT_EQ((*results)[i].data().text(), std::string(300, 'x')) << i;
    }
}

TEST_F(AcsiClient, valueTooLargeForThePduIsAnError)
{
    serverOptions.maxPduSize = 1000;
    addText("GGIO1$DC$Long", 2000);
    connect();
    const auto results = run(client->read({variable("GGIO1$DC$Long")}));
    ASSERT_FALSE(results.ok());
    EXPECT_FALSE(results.error().message.empty());
    EXPECT_FALSE(run(client->readOne(variable("GGIO1$DC$Long"))).ok());
}

TEST_F(AcsiClient, variableThatConfusesThePeerDoesNotSpoilTheOthers)
{
    const auto variables = addNumbers(50);
    device->refused[toText(variables[17])] = denied;
    connect();
    const auto results = run(client->read(variables));
    ASSERT_TRUE(results.ok());
    for (std::size_t i = 0; i < 50; ++i) {
        EXPECT_EQ((*results)[i], i == 17 ? AccessResult(DataAccessError::ObjectAccessDenied)
                                         : AccessResult(Data::unsignedInteger(i)));
    }
}

TEST_F(AcsiClient, answerOfTheWrongLengthIsAskedForAgainInHalves)
{
    const auto variables = addNumbers(8);
    device->intercept = [](const auto &association, std::uint32_t invokeId, auto &request) {
        const auto &list = std::get<0>(std::get<mms::ReadRequest>(request).variables);
        if (list.size() < 3)
            return false;
        mms::ReadResponse response;
        response.results.emplace_back(Data::unsignedInteger(1));
        association->respond(invokeId, response);
        return true;
    };
    connect();
    const auto results = run(client->read(variables));
    ASSERT_TRUE(results.ok());
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ((*results)[i], AccessResult(Data::unsignedInteger(i)));
}

TEST_F(AcsiClient, missingServiceIsAskedForOnce)
{
    const auto variables = addNumbers(50);
    device->intercept = [](const auto &association, std::uint32_t invokeId, const auto &) {
        association->reject(invokeId, mms::rejectcodes::requestUnrecognizedService);
        return true;
    };
    connect();
    EXPECT_FALSE(run(client->read(variables)).ok());
    EXPECT_EQ(device->requests().size(), 1U);
}

TEST_F(AcsiClient, silentDeviceEndsAReadAtItsTimeLimit)
{
    clientOptions.callTimeout = 30ms;
    const auto variables = addNumbers(2);
    device->intercept = [](const auto &...) { return true; };
    connect();
    const auto results = run(client->read(variables));
    ASSERT_FALSE(results.ok());
    EXPECT_EQ(results.error().message, "The peer did not answer in time.");
    EXPECT_TRUE(client->isOpen());
}

TEST_F(AcsiClient, associationLostInTheMiddleOfAReadEndsItWithTheReason)
{
    serverOptions.maxPduSize = 1000;
    const auto variables = addNumbers(200);
    device->intercept = [](const auto &association, std::uint32_t, const auto &) {
        association->abort(mms::verbatim("Power failed."));
        return true;
    };
    connect();
    const auto results = run(client->read(variables));
    ASSERT_FALSE(results.ok());
    EXPECT_EQ(results.error().message, ended.get());
}

TEST_F(AcsiClient, accessErrorOfOneVariableIsASentence)
{
    connect();
    const auto value = run(client->readOne(variable("GGIO1$MX$None")));
    ASSERT_FALSE(value.ok());
    EXPECT_EQ(value.error().message, mms::describe(DataAccessError::ObjectNonExistent));
}

TEST_F(AcsiClient, dataSetIsReadAsAWhole)
{
    auto &list = device->domains["LD0"].lists["LLN0$ds"];
    list.members = addNumbers(5);
    connect();
    const auto results = run(client->readList(ObjectName::inDomain("LD0", "LLN0$ds")));
    ASSERT_TRUE(results.ok());
    EXPECT_EQ(results->size(), 5U);
    EXPECT_EQ(device->requests().size(), 1U);
}

TEST_F(AcsiClient, dataSetTooLargeForThePduIsReadInParts)
{
    serverOptions.maxPduSize = 1000;
    auto &list = device->domains["LD0"].lists["LLN0$ds"];
    for (int i = 0; i < 10; ++i) {
        const std::string item = "GGIO1$DC$Long" + std::to_string(i);
        list.members.push_back(variable(item));
        addText(item, 200);
    }
    connect();
    const auto results = run(client->readList(ObjectName::inDomain("LD0", "LLN0$ds")));
    ASSERT_TRUE(results.ok()) << results.error().message;
    ASSERT_EQ(results->size(), 10U);
    for (const AccessResult &result : *results)
        EXPECT_EQ(result.data().text(), std::string(200, 'x'));
}

TEST_F(AcsiClient, refusedDataSetSaysWhy)
{
    device->domains["LD0"].lists["LLN0$ds"].members = addNumbers(2);
    device->refused["LD0/LLN0$ds"] = denied;
    connect();
    const auto results = run(client->readList(ObjectName::inDomain("LD0", "LLN0$ds")));
    ASSERT_FALSE(results.ok());
    EXPECT_EQ(results.error().message, mms::describe(denied));
}

TEST_F(AcsiClient, longListsAreWrittenInSeveralRequests)
{
    serverOptions.maxPduSize = 1000;
    const auto variables = addNumbers(100);
    std::vector<Data> values;
    for (int i = 0; i < 100; ++i)
        values.push_back(Data::integer(-i));
    connect();
    const auto results = run(client->write(variables, values));
    ASSERT_TRUE(results.ok()) << results.error().message;
    for (std::size_t i = 0; i < 100; ++i) {
        EXPECT_EQ((*results)[i], std::nullopt);
        EXPECT_EQ(device->values[toText(variables[i])], values[i]);
    }
    EXPECT_GT(device->requests().size(), 1U);
    EXPECT_FALSE(run(client->write(variables, {})).ok());
}

TEST_F(AcsiClient, variableThatCannotBeWrittenDoesNotSpoilTheOthers)
{
    const auto variables = addNumbers(6);
    device->refused[toText(variables[3])] = denied;
    device->values.erase(toText(variables[5]));
    connect();
    const auto results = run(client->write(variables, std::vector<Data>(6, Data::boolean(true))));
    ASSERT_TRUE(results.ok());
    for (std::size_t i = 0; i < 6; ++i) {
        const auto expected = i == 3   ? std::optional(DataAccessError::ObjectAccessDenied)
                              : i == 5 ? std::optional(DataAccessError::ObjectNonExistent)
                                       : std::nullopt;
        EXPECT_EQ((*results)[i], expected) << i;
    }
}

TEST_F(AcsiClient, writeTooLargeForThePduIsAnErrorAndSendsNothing)
{
    serverOptions.maxPduSize = 1000;
    addText("GGIO1$DC$Long", 1);
    connect();
    const auto written = run(
        client->writeOne(variable("GGIO1$DC$Long"), Data::visibleString(std::string(2000, 'y'))));
    ASSERT_FALSE(written.ok());
    EXPECT_NE(written.error().message.english().find("1000 octets"), std::string::npos);
    EXPECT_TRUE(device->requests().empty());
}

TEST_F(AcsiClient, writeWithAnUnreadableAnswerIsNotRepeated)
{
    const auto variables = addNumbers(4);
    device->intercept = [](const auto &association, std::uint32_t invokeId, const auto &) {
        association->respond(invokeId, mms::WriteResponse());
        return true;
    };
    connect();
    EXPECT_FALSE(run(client->write(variables, std::vector<Data>(4, Data::boolean(true)))).ok());
    EXPECT_EQ(device->requests().size(), 1U);
}

TEST_F(AcsiClient, reportsGoToTheFirstHandlerThatTakesThem)
{
    connect();
    const auto heard = std::make_shared<std::vector<std::string>>();
    Awaited<int> third;
    const auto addHandlers = [&]() -> asio::awaitable<int> {
        const auto removed = std::make_shared<Client::Registration>();
        client->addInformationHandler([this, heard, removed](const mms::InformationReport &) {
            heard->push_back("first");
            client->remove(*removed);
            return false;
        });
        *removed = client->addInformationHandler([heard](const mms::InformationReport &) {
            heard->push_back("removed");
            return true;
        });
        client->addInformationHandler(
            [this, heard, done = third.setter()](const mms::InformationReport &report) {
                heard->push_back("third");
                if (report.results.size() == 1)
                    return false;
                done(static_cast<int>(client->unclaimedReports()));
                return true;
            });
        co_return 0;
    };
    run(addHandlers());
    const auto report = [this](std::size_t size) {
        mms::InformationReport information;
        information.variables = ObjectName::ofVmd("RPT");
        information.results.assign(size, AccessResult(Data::boolean(true)));
        device->association()->report(information);
    };
    report(1);
    report(2);
    EXPECT_EQ(third.get(), 1);
    EXPECT_EQ(*heard, (std::vector<std::string>{"first", "third", "first", "third"}));
}

TEST_F(AcsiClient, requestsOfThePeerAreTakenOrRejected)
{
    connect();
    const auto addHandler = [&]() -> asio::awaitable<Client::Registration> {
        co_return client->addRequestHandler([this](std::uint32_t invokeId,
                                                   const mms::RequestService &request) {
            if (!std::holds_alternative<mms::IdentifyRequest>(request))
                return false;
            client->association().respond(invokeId, mms::IdentifyResponse{"us", "client", "1", {}});
            return true;
        });
    };
    const auto registration = run(addHandler());
    const auto callBack = [this](mms::RequestService request) {
        Awaited<mms::CallOutcome> outcome;
        device->association()->call(std::move(request), 10s, outcome.setter());
        return outcome.get();
    };
    const auto taken = callBack(mms::IdentifyRequest());
    ASSERT_NE(mms::answerOf<mms::IdentifyResponse>(taken), nullptr);
    EXPECT_TRUE(std::holds_alternative<mms::RejectPdu>(callBack(mms::StatusRequest())));
    const auto removeHandler = [&]() -> asio::awaitable<int> {
        client->remove(registration);
        co_return 0;
    };
    run(removeHandler());
    EXPECT_TRUE(std::holds_alternative<mms::RejectPdu>(callBack(mms::IdentifyRequest())));
}

TEST_F(AcsiClient, cancelledReadGivesUpItsCallsAndLeavesTheClientUsable)
{
    serverOptions.maxPduSize = 1000;
    const auto variables = addNumbers(200);
    Awaited<int> asked;
    const auto silent = std::make_shared<std::atomic<bool>>(true);
    device->intercept = [silent, first = std::make_shared<bool>(true),
                         tell = asked.setter()](const auto &...) {
        if (*silent && std::exchange(*first, false))
            tell(1);
        return silent->load();
    };
    clientOptions.association.grace = 1ms;
    connect();
    asio::cancellation_signal signal;
    Awaited<bool> over;
    const auto delivered = std::make_shared<bool>(false);
    using Results = mms::Result<std::vector<AccessResult>>;
    asio::co_spawn(
        client->strand(),
        deliver<Results>(client->read(variables),
                         [delivered](const Results &results) { *delivered = results.ok(); }),
        asio::bind_cancellation_slot(
            signal.slot(),
            [done = over.setter(), delivered](const std::exception_ptr &) { done(!*delivered); }));
    asked.get();
    asio::post(client->strand(), [&signal] { signal.emit(asio::cancellation_type::terminal); });
    EXPECT_TRUE(over.get());
    *silent = false;
    const auto results = run(client->read(variables));
    ASSERT_TRUE(results.ok()) << results.error().message;
    EXPECT_EQ((*results)[199], AccessResult(Data::unsignedInteger(199)));
}

TEST_F(AcsiClient, cancelledConnectionAttemptEndsAtOnce)
{
    wiretest::RawPeer peer;
    asio::cancellation_signal signal;
    Awaited<bool> over;
    const auto connected = std::make_shared<bool>(false);
    using Connected = mms::Result<std::shared_ptr<ChangingClient>>;
    asio::co_spawn(
        executor(),
        deliver<Connected>(Client::connect(executor(), "127.0.0.1", peer.port(), clientOptions),
                           [connected](const Connected &result) { *connected = result.ok(); }),
        asio::bind_cancellation_slot(
            signal.slot(),
            [done = over.setter(), connected](const std::exception_ptr &) { done(*connected); }));
    peer.accept();
    EXPECT_FALSE(peer.receive().empty());
    asio::post(executor(), [&signal] { signal.emit(asio::cancellation_type::terminal); });
    EXPECT_FALSE(over.get());
    while (!peer.receive().empty()) {
    }
}

} // namespace
