// SPDX-License-Identifier: Apache-2.0
#include "acsi/control.h"

#include "acsi/scripteddevice.h"
#include "mms/shorthand.h"

namespace {

using namespace acsi;
using namespace std::chrono_literals;
using acsitest::ScriptedDevice;
using mms::Data;
using mms::DataAccessError;
using Type = mms::TypeDescription;

Type commandType(bool withCheck)
{
    std::vector<Type::Component> components{
        {"ctlVal", Type::boolean()},
        {"origin",
         Type::structure({{"orCat", Type::integer(8)}, {"orIdent", Type::octetString(-64)}})},
        {"ctlNum", Type::unsignedInteger(8)},
        {"T", Type::utcTime()},
        {"Test", Type::boolean()}};
    if (withCheck)
        components.push_back({"Check", Type::bitString(-2)});
    return Type::structure(std::move(components));
}

/// What the device does with a command before, instead of and after its answer.
struct Reaction
{
    std::optional<LastApplError> errorBefore;
    std::optional<DataAccessError> refusal;
    bool terminates = false;
    std::optional<LastApplError> terminationError;
    std::uint8_t terminationNumber = 7;
    bool terminatesFirst = false;
    std::optional<LastApplError> errorAfter;
    bool aborts = false;
};

class ControlTest : public acsitest::DeviceTest
{
protected:
    void open(ControlModel model)
    {
        const Type command = commandType(true);
        device->domains["LD"].nodes["CSWI1"] = Type::structure(
            {{"CO",
              Type::structure({{"Pos", Type::structure({{"SBO", Type::visibleString(-129)},
                                                        {"SBOw", command},
                                                        {"Oper", command},
                                                        {"Cancel", commandType(false)}})}})}});
        const std::string pos = "LD/CSWI1$CF$Pos$";
        device->values[pos + "ctlModel"] = Data::integer(static_cast<int>(model));
        device->values[pos + "sboTimeout"] = Data::unsignedInteger(30000);
        device->values["LD/CSWI1$CO$Pos$SBO"] = Data::visibleString("LD/CSWI1$CO$Pos");
        for (const char *component : {"SBOw", "Oper", "Cancel"})
            device->values[std::string("LD/CSWI1$CO$Pos$") + component] = Data();
        device->intercept = [this](const auto &association, std::uint32_t invokeId,
                                   mms::RequestService &service) {
            return std::holds_alternative<mms::WriteRequest>(service) &&
                   react(association, invokeId);
        };
        connect();
        auto opened = run(ControlObject::open(client, *parseReference("LD/CSWI1$CO$Pos")));
        ASSERT_TRUE(opened.ok()) << opened.error().message;
        control = *opened;
    }

    void TearDown() override
    {
        // In the strand, like every use of it.
        if (control)
            asio::co_spawn(client->strand(), release(), asio::use_future).get();
        DeviceTest::TearDown();
    }

    ControlRequest request(std::uint8_t ctlNum = 7)
    {
        ControlRequest result;
        result.value = Data::boolean(true);
        result.originator = {2, {'t'}};
        result.ctlNum = ctlNum;
        return result;
    }

    LastApplError error(std::int32_t addCause, std::uint8_t ctlNum = 7,
                        const std::string &component = "$Oper")
    {
        return {"LD/CSWI1$CO$Pos" + component, 1, {2, {'t'}}, ctlNum, addCause};
    }

    void listen(wiretest::Awaited<ControlResult> &late)
    {
        asio::post(client->strand(), [this, take = late.setter()] {
            control->setLateHandler(
                [take](std::uint8_t, const ControlResult &result) { take(result); });
        });
    }

    Reaction reaction;
    std::shared_ptr<ControlObject> control;

private:
    asio::awaitable<void> release()
    {
        control.reset();
        co_return;
    }

    bool react(const std::shared_ptr<mms::Association> &association, std::uint32_t invokeId)
    {
        const auto terminate = [&] {
            ControlRequest sent = request(reaction.terminationNumber);
            association->report(commandTermination(*parseReference("LD/CSWI1$CO$Pos"),
                                                   *controlValue(commandType(true), sent),
                                                   reaction.terminationError));
        };
        if (reaction.errorBefore)
            association->report(toReport(*reaction.errorBefore));
        if (reaction.terminatesFirst)
            terminate();
        mms::WriteResponse response;
        response.results.push_back(reaction.refusal);
        association->respond(invokeId, response);
        if (reaction.terminates)
            terminate();
        if (reaction.errorAfter)
            association->report(toReport(*reaction.errorAfter));
        if (reaction.aborts)
            association->abort(mms::verbatim("The test wants it."));
        return true;
    }
};

} // namespace

TEST_F(ControlTest, openingReadsTheModelTheTypesAndTheTimeOuts)
{
    open(ControlModel::SelectEnhanced);
    ASSERT_TRUE(control);
    EXPECT_EQ(control->model(), ControlModel::SelectEnhanced);
    EXPECT_EQ(control->operType(), commandType(true));
    EXPECT_EQ(control->selectTimeout(), 30000ms);
    EXPECT_FALSE(control->operateTimeout());
}

TEST_F(ControlTest, anObjectWithoutAControlModelCannotBeOpened)
{
    connect();
    const auto opened = run(ControlObject::open(client, *parseReference("LD/CSWI1$CO$Pos")));
    ASSERT_FALSE(opened.ok());
    EXPECT_EQ(
        opened.error().message.english().find("The control model of LD/CSWI1.Pos cannot be read: "),
        0U);
}

TEST_F(ControlTest, namesThatAreNoDataObjectsCannotBeOpened)
{
    connect();
    for (const char *text : {"LD", "LD/CSWI1", "LD/CSWI1$CO", "LD/CSWI1$CO$Pos(3)"}) {
        EXPECT_FALSE(run(ControlObject::open(client, *parseReference(text))).ok()) << text;
    }
    EXPECT_TRUE(device->requests().empty());
}

TEST_F(ControlTest, anUnknownControlModelIsAnErrorInsteadOfAGuess)
{
    device->values["LD/CSWI1$CF$Pos$ctlModel"] = Data::integer(5);
    connect();
    EXPECT_FALSE(run(ControlObject::open(client, *parseReference("LD/CSWI1$CO$Pos"))).ok());
}

TEST_F(ControlTest, aStatusOnlyObjectCannotBeControlled)
{
    open(ControlModel::StatusOnly);
    EXPECT_FALSE(run(control->select(client, request())).ok);
    EXPECT_FALSE(run(control->operate(client, request())).ok);
    EXPECT_FALSE(run(control->cancel(client, request())).ok);
    EXPECT_TRUE(device->requestsOf<mms::WriteRequest>().empty());
}

TEST_F(ControlTest, selectionWithNormalSecurityIsARead)
{
    open(ControlModel::SelectNormal);
    EXPECT_TRUE(run(control->select(client, request())).ok);
    const auto reads = device->requestsOf<mms::ReadRequest>();
    EXPECT_EQ(toText(reads.back().variables),
              toText(wiretest::variablesOf("LD", {"CSWI1$CO$Pos$SBO"})));
    EXPECT_TRUE(device->requestsOf<mms::WriteRequest>().empty());
}

TEST_F(ControlTest, anEmptyAnswerToASelectionIsARefusal)
{
    open(ControlModel::SelectNormal);
    device->values["LD/CSWI1$CO$Pos$SBO"] = Data::visibleString("");
    const ControlResult result = run(control->select(client, request()));
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.message, "LD/CSWI1.Pos: the device refuses SBO: it gives no reason; another "
                              "client may have selected the object.");
}

TEST_F(ControlTest, selectionWithEnhancedSecurityIsAWriteOfTheCommand)
{
    open(ControlModel::SelectEnhanced);
    EXPECT_TRUE(run(control->select(client, request())).ok);
    const auto writes = device->requestsOf<mms::WriteRequest>();
    ASSERT_EQ(writes.size(), 1U);
    EXPECT_EQ(toText(writes[0].variables),
              toText(wiretest::variablesOf("LD", {"CSWI1$CO$Pos$SBOw"})));
    EXPECT_EQ(writes[0].values[0], *controlValue(commandType(true), request()));
}

TEST_F(ControlTest, modelsWithoutSelectionSaySo)
{
    open(ControlModel::DirectNormal);
    const ControlResult result = run(control->select(client, request()));
    EXPECT_EQ(result.message, "LD/CSWI1.Pos: its control model knows no selection.");
}

TEST_F(ControlTest, normalModelsDoNotWaitForATermination)
{
    open(ControlModel::DirectNormal);
    EXPECT_TRUE(run(control->operate(client, request(), 1h)).ok);
}

TEST_F(ControlTest, aRefusalGivesTheAdditionalCause)
{
    open(ControlModel::DirectNormal);
    reaction.errorBefore = error(10);
    reaction.refusal = DataAccessError::ObjectAccessDenied;
    const ControlResult result = run(control->operate(client, request()));
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.message, "LD/CSWI1.Pos: the device refuses Oper: blocked by interlocking.");
    EXPECT_EQ(result.applError, error(10));
}

TEST_F(ControlTest, theTestThatFailedIsNamedBesideTheCause)
{
    open(ControlModel::DirectNormal);
    reaction.errorBefore = error(16);
    reaction.errorBefore->error = 2;
    reaction.refusal = DataAccessError::ObjectAccessDenied;
    EXPECT_EQ(run(control->operate(client, request())).message,
              "LD/CSWI1.Pos: the device refuses Oper: the time for it is over (the time-out test "
              "failed).");
}

TEST_F(ControlTest, aRefusalWithoutACauseGivesTheAccessError)
{
    open(ControlModel::DirectNormal);
    reaction.refusal = DataAccessError::ObjectAccessDenied;
    const ControlResult result = run(control->operate(client, request()));
    EXPECT_FALSE(result.applError);
    EXPECT_NE(
        result.message.english().find(mms::describe(DataAccessError::ObjectAccessDenied).english()),
        std::string::npos);
}

TEST_F(ControlTest, causesOfOtherCommandsAreNotTakenForThisOne)
{
    open(ControlModel::DirectNormal);
    reaction.refusal = DataAccessError::ObjectAccessDenied;
    LastApplError otherObject = error(10);
    otherObject.controlObject = "LD/CSWI1$CO$Pos2$Oper";
    const std::vector<LastApplError> others = {error(10, 8), otherObject, error(10, 7, "$Cancel")};
    for (const LastApplError &other : others) {
        reaction.errorBefore = other;
        EXPECT_FALSE(run(control->operate(client, request())).applError) << other.controlObject;
    }
    EXPECT_EQ(client->unclaimedReports(), others.size());
}

TEST_F(ControlTest, aCauseOfThePreviousCommandIsForgotten)
{
    open(ControlModel::DirectNormal);
    reaction.errorBefore = error(10);
    reaction.refusal = DataAccessError::ObjectAccessDenied;
    EXPECT_TRUE(run(control->operate(client, request())).applError);
    reaction.errorBefore.reset();
    EXPECT_FALSE(run(control->operate(client, request())).applError);
}

TEST_F(ControlTest, enhancedModelsWaitForTheTermination)
{
    open(ControlModel::DirectEnhanced);
    reaction.terminates = true;
    EXPECT_TRUE(run(control->operate(client, request(), 1h)).ok);
}

TEST_F(ControlTest, aTerminationThatOvertakesTheAnswerCounts)
{
    open(ControlModel::DirectEnhanced);
    reaction.terminatesFirst = true;
    EXPECT_TRUE(run(control->operate(client, request(), 1h)).ok);
}

TEST_F(ControlTest, aNegativeTerminationGivesTheAdditionalCause)
{
    open(ControlModel::SelectEnhanced);
    reaction.terminates = true;
    reaction.terminationError = error(17);
    const ControlResult result = run(control->operate(client, request(), 1h));
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.message, "LD/CSWI1.Pos: the command ended without success: ended by a trip.");
    EXPECT_EQ(result.applError, error(17));
}

TEST_F(ControlTest, anErrorAfterAcceptanceEndsTheCommandWithoutSuccess)
{
    open(ControlModel::DirectEnhanced);
    reaction.errorAfter = error(16);
    const ControlResult result = run(control->operate(client, request(), 1h));
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.applError, error(16));
}

TEST_F(ControlTest, theTerminationOfAnotherCommandDoesNotCount)
{
    open(ControlModel::DirectEnhanced);
    reaction.terminates = true;
    reaction.terminationNumber = 6;
    const ControlResult result = run(control->operate(client, request(), 100ms));
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(client->unclaimedReports(), 1U);
}

TEST_F(ControlTest, aMissingTerminationIsNoSuccess)
{
    open(ControlModel::DirectEnhanced);
    const ControlResult result = run(control->operate(client, request(), 100ms));
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.message, "LD/CSWI1.Pos: the device accepted the command, but has not told "
                              "within 0.1 s how it ended.");
}

TEST_F(ControlTest, theEndOfTheAssociationEndsTheWaitForATermination)
{
    open(ControlModel::DirectEnhanced);
    reaction.aborts = true;
    const ControlResult result = run(control->operate(client, request(), 1h));
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(
        result.message.english().find("LD/CSWI1.Pos: the device accepted the command, but the "
                                      "association ended before the command: "),
        0U)
        << result.message;
}

TEST_F(ControlTest, aCauseThatComesJustAfterTheRefusalCounts)
{
    open(ControlModel::DirectNormal);
    reaction.refusal = DataAccessError::ObjectAccessDenied;
    reaction.errorAfter = error(10);
    const ControlResult result = run(control->operate(client, request()));
    EXPECT_EQ(result.message, "LD/CSWI1.Pos: the device refuses Oper: blocked by interlocking.");
    EXPECT_EQ(result.outcome, ControlOutcome::Refused);
}

TEST_F(ControlTest, aCauseIsUnderstoodWhenOnlyOneCallCanBeMeant)
{
    open(ControlModel::SelectEnhanced);
    reaction.refusal = DataAccessError::ObjectAccessDenied;
    for (const char *name :
         {"LD/CSWI1.Pos", "LD/CSWI1$CO$Pos", "LD/CSWI1$CO$Pos$Oper", "LD/CSWI1$CO$Pos$SBOw"}) {
        for (const std::uint8_t number : {std::uint8_t{0}, std::uint8_t{7}}) {
            LastApplError given = error(10, number);
            given.controlObject = name;
            reaction.errorBefore = given;
            EXPECT_EQ(run(control->select(client, request())).applError, given) << name;
        }
    }
}

TEST_F(ControlTest, aRefusalWithoutACauseInItsErrorGivesTheAccessError)
{
    open(ControlModel::DirectNormal);
    reaction.refusal = DataAccessError::TemporarilyUnavailable;
    reaction.errorBefore = error(25);
    reaction.errorBefore->error = 0;
    EXPECT_EQ(run(control->operate(client, request())).message,
              "LD/CSWI1.Pos: the device refuses Oper: " +
                  mms::describe(DataAccessError::TemporarilyUnavailable).english());
}

TEST_F(ControlTest, aRefusalByServiceErrorOrRejectIsARefusal)
{
    open(ControlModel::DirectNormal);
    bool rejects = false;
    device->intercept = [&rejects](const auto &association, std::uint32_t invokeId,
                                   mms::RequestService &service) {
        if (!std::holds_alternative<mms::WriteRequest>(service))
            return false;
        if (rejects)
            association->reject(invokeId, mms::rejectcodes::requestUnrecognizedService);
        else
            association->fail(invokeId, {mms::ErrorClass::Service,
                                         mms::serviceerrors::serviceObjectStateConflict,
                                         {},
                                         {},
                                         {}});
        return true;
    };
    for (const bool reject : {false, true}) {
        rejects = reject;
        const ControlResult result = run(control->operate(client, request()));
        EXPECT_EQ(result.outcome, ControlOutcome::Refused);
        EXPECT_EQ(result.message.english().find("LD/CSWI1.Pos: the device refuses Oper: "), 0U)
            << result.message;
    }
}

TEST_F(ControlTest, anErrorOfNoneInATerminationIsSuccess)
{
    open(ControlModel::DirectEnhanced);
    reaction.terminates = true;
    reaction.terminationError = error(25);
    reaction.terminationError->error = 0;
    EXPECT_TRUE(run(control->operate(client, request(), 1h)).ok);
    reaction.terminationError->error = 1;
    EXPECT_FALSE(run(control->operate(client, request(), 1h)).ok);
}

TEST_F(ControlTest, theCauseOfAnotherObjectInATerminationIsNotShown)
{
    open(ControlModel::DirectEnhanced);
    reaction.terminates = true;
    reaction.terminationError = error(10);
    reaction.terminationError->controlObject = "LD/CSWI2$CO$Pos$Oper";
    const ControlResult result = run(control->operate(client, request(), 1h));
    EXPECT_FALSE(result.applError);
    EXPECT_EQ(result.message, "LD/CSWI1.Pos: the command ended without success: the device does "
                              "not say why.");
}

TEST_F(ControlTest, aTerminationThatNobodyWaitsForAnyMoreIsHeard)
{
    open(ControlModel::DirectEnhanced);
    wiretest::Awaited<ControlResult> late;
    listen(late);
    EXPECT_EQ(run(control->operate(client, request(), 50ms)).outcome, ControlOutcome::Accepted);
    device->association()->report(commandTermination(*parseReference("LD/CSWI1$CO$Pos"),
                                                     *controlValue(commandType(true), request()),
                                                     error(17)));
    const ControlResult told = late.get();
    EXPECT_EQ(told.outcome, ControlOutcome::Failed);
    EXPECT_EQ(told.applError, error(17));
}

TEST_F(ControlTest, anAnswerThatNobodyWaitsForAnyMoreIsHeard)
{
    clientOptions.callTimeout = 500ms;
    open(ControlModel::DirectNormal);
    wiretest::Awaited<ControlResult> late;
    listen(late);
    std::atomic<std::uint32_t> asked{0};
    device->intercept = [&asked](const auto &, std::uint32_t invokeId,
                                 mms::RequestService &service) {
        if (!std::holds_alternative<mms::WriteRequest>(service))
            return false;
        asked = invokeId;
        return true;
    };
    const ControlResult result = run(control->operate(client, request()));
    EXPECT_EQ(result.outcome, ControlOutcome::Unknown);
    EXPECT_EQ(result.message, "LD/CSWI1.Pos: Oper got no answer within 0.5 s.");
    device->association()->respond(asked, mms::WriteResponse{{std::nullopt}});
    EXPECT_EQ(late.get().outcome, ControlOutcome::Done);
}

TEST_F(ControlTest, theEndOfTheAssociationLeavesACommandUnknown)
{
    open(ControlModel::DirectNormal);
    device->intercept = [](const auto &association, std::uint32_t, mms::RequestService &service) {
        if (!std::holds_alternative<mms::WriteRequest>(service))
            return false;
        association->abort(mms::verbatim("The test wants it."));
        return true;
    };
    EXPECT_EQ(run(control->operate(client, request())).outcome, ControlOutcome::Unknown);
    EXPECT_EQ(run(control->operate(client, request())).outcome, ControlOutcome::NotSent);
}

TEST_F(ControlTest, cancelWritesTheCommandWithoutChecks)
{
    open(ControlModel::SelectNormal);
    EXPECT_TRUE(run(control->cancel(client, request())).ok);
    const auto writes = device->requestsOf<mms::WriteRequest>();
    ASSERT_EQ(writes.size(), 1U);
    EXPECT_EQ(writes[0].values[0], *controlValue(commandType(false), request()));
}

TEST_F(ControlTest, whatACancelHasNoPlaceForKeepsNobodyFromCancelling)
{
    open(ControlModel::SelectNormal);
    ControlRequest given = request();
    given.interlockCheck = true;
    given.operateTime = mms::UtcTime{1700000000, 0, 0};
    EXPECT_TRUE(run(control->cancel(client, given)).ok);
    EXPECT_EQ(device->requestsOf<mms::WriteRequest>().back().values[0],
              *controlValue(commandType(false), request()));
}

TEST_F(ControlTest, aCommandCanBeCancelledWhileItIsExecuted)
{
    open(ControlModel::DirectEnhanced);
    device->intercept = [this](const auto &association, std::uint32_t invokeId,
                               mms::RequestService &service) {
        const auto *write = std::get_if<mms::WriteRequest>(&service);
        if (!write)
            return false;
        const bool isCancel = write->values.front().size() == 5;
        association->respond(invokeId, mms::WriteResponse{{std::nullopt}});
        if (isCancel)
            association->report(commandTermination(
                *parseReference("LD/CSWI1$CO$Pos"),
                *controlValue(commandType(true), this->request()), this->error(15)));
        return true;
    };
    auto operating =
        asio::co_spawn(client->strand(), control->operate(client, request(), 1h), asio::use_future);
    while (device->requestsOf<mms::WriteRequest>().empty())
        std::this_thread::yield();
    EXPECT_TRUE(run(control->cancel(client, request())).ok);
    const ControlResult result = operating.get();
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.applError, error(15));
}

TEST_F(ControlTest, whatDoesNotFitTheDeviceIsNotSent)
{
    open(ControlModel::DirectNormal);
    ControlRequest bad = request();
    bad.originator.identification.assign(65, 'x');
    EXPECT_EQ(run(control->operate(client, bad)).message,
              "LD/CSWI1.Pos: origin: The originator identification has 65 octets; at most 64 are "
              "allowed.");
    EXPECT_TRUE(device->requestsOf<mms::WriteRequest>().empty());
}

TEST_F(ControlTest, afterTheEndOfTheAssociationACommandFailsAtOnce)
{
    open(ControlModel::DirectNormal);
    asio::co_spawn(client->strand(), client->close(), asio::use_future).get();
    const ControlResult result = run(control->operate(client, request()));
    EXPECT_FALSE(result.ok);
    EXPECT_FALSE(result.message.empty());
}
