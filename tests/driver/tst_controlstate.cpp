// SPDX-License-Identifier: Apache-2.0
#include "driver/core/controlorder.h"
#include "driver/core/controlstate.h"

#include <QtTest/QtTest>

using std::chrono::milliseconds;
using std::chrono::seconds;
using Command = ControlState::Command;
using Model = acsi::ControlModel;
using Obstacle = ControlState::Obstacle;
using Outcome = acsi::ControlOutcome;
using Service = ControlState::Service;

namespace {

constexpr ControlState::Caller windowA = 11;
constexpr ControlState::Caller windowB = 12;

ControlBlock block(double value)
{
    ControlBlock result;
    result.objectReference = QStringLiteral("CSWI1$CO$Pos");
    result.controlValue = value;
    result.orCat = 3;
    result.controlModel = 4;
    return result;
}

ControlBlock emptyBlock()
{
    ControlBlock result;
    result.objectReference = QStringLiteral("CSWI1$CO$Pos");
    result.controlModel = 4;
    return result;
}

/// The machine, a clock in the hand, and numbers instead of pointers.
struct Bench
{
    ControlState state;
    ControlState::Time now{seconds(1000)};
    ControlState::Manner manner{Model::SelectEnhanced, seconds(30), false};

    int select(double value, ControlState::Caller caller = 0, bool granted = true)
    {
        const int number = sendSelect(value, caller);
        end(Service::Select, number, granted ? Outcome::Done : Outcome::Refused);
        return number;
    }
    int sendSelect(double value, ControlState::Caller caller = 0)
    {
        return sendNew(Service::Select, value, caller);
    }
    int send(double value) { return sendNew(Service::Operate, value, 0); }
    /// Operates what is selected, under its number.
    int sendSelected()
    {
        const Command command = *state.repeated(Service::Operate, manner.model, now);
        state.sent(Service::Operate, command);
        return command.request.ctlNum;
    }
    /// The device has taken it, and nobody waits for its end.
    void accept(int number) { end(Service::Operate, number, Outcome::Accepted); }
    void carryOut(int number) { end(Service::Operate, number, Outcome::Done); }
    void refuse(int number) { end(Service::Operate, number, Outcome::Refused); }
    void loseSight(int number) { end(Service::Operate, number, Outcome::Unknown); }
    void cancel(int number) { end(Service::Cancel, number, Outcome::Done); }
    void hear(int number, Outcome outcome)
    {
        state.heardLate(static_cast<std::uint8_t>(number), outcome);
    }
    void end(Service service, int number, Outcome outcome)
    {
        state.ended(service, static_cast<std::uint8_t>(number), outcome, manner, now);
    }

    Obstacle toOperate(const ControlBlock &record, ControlState::Caller caller = 0) const
    {
        return state.obstacle(Service::Operate, record, caller, now);
    }

    /// The number that a cancel carries; 0 for none.
    int cancels() const
    {
        const Command *command = state.cancellable(now);
        return command ? command->request.ctlNum : 0;
    }

private:
    int sendNew(Service service, double value, ControlState::Caller caller)
    {
        Command command;
        command.block = block(value);
        command.request.ctlNum = state.numberFor(service, manner.model, now);
        command.caller = caller;
        state.sent(service, command);
        return command.request.ctlNum;
    }
};

} // namespace

class tst_ControlState : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreNeverZeroAndNeverThoseOfACommandThatRuns();
    void aRefusedCommandIsNeverCancelledInsteadOfTheOneThatRuns();
    void aCommandWhoseOutcomeIsUnknownCanBeCancelled();
    void aCommandIsForgottenAfterItsEndOrRefusal();
    void aCommandThatRunsGoesBeforeOneWithoutAnswer();
    void anObjectThatTellsOfNoEndKeepsTheLastAcceptedCommand();
    void aSelectThatWasRefusedOrUnansweredCanBeCancelled();
    void aRefusedSelectLeavesTheOneBeforeToBeGivenBack();
    void aSelectThatWasNotSentLeavesTheOneBefore();
    void aRefusedSelectLeavesNoDoubtOfTheNext();
    void theSelectionIsCancelledUntilItIsUsed();
    void aGrantedSelectEndsWhatWasUnknownBefore();
    void aSelectionLastsAsLongAsTheDeviceSays();
    void anEmptyRecordUsesTheSelectionOfItsOwnWindowOnly();
    void anEmptyRecordAfterADifferentSelectIsRefusedWhereNobodyIsKnown();
    void selectingTheSameAgainLeavesNoDoubt();
    void anotherCommandThanTheSelectedOneIsRefused();
    void aCommandThatWasNotSentLeavesTheSelection();
    void aSelectionForManyCommandsStays();
    void doubtLastsUntilTheCommandIsKnownToBeOver();
    void onlyASelectedObjectOfTheEnhancedModelIsOperatedOrGivenBack();
    void theNormalModelRefusesWhatAnotherWindowHasSelected();
    void aDirectCommandIsWhatTheRecordSays();
    void aCommandGoesUnderTheNumberOfItsSelection();
    void aCancelRepeatsWhatRuns();
    void whatNobodyKnowsIsHeardLateForNothing();
    void nothingOutlivesTheAssociation();
    void theEndOfACommandIsAwaitedAsLongAsTheDeviceSays();
};

void tst_ControlState::numbersAreNeverZeroAndNeverThoseOfACommandThatRuns()
{
    Bench bench;
    const int running = bench.send(1);
    QCOMPARE(running, 1);
    bench.accept(running);
    for (int i = 2; i <= 255; ++i)
        QCOMPARE(int(bench.state.numberFor(Service::Select, bench.manner.model, bench.now)), i);
    QCOMPARE(int(bench.state.numberFor(Service::Select, bench.manner.model, bench.now)), 2);
}

void tst_ControlState::aRefusedCommandIsNeverCancelledInsteadOfTheOneThatRuns()
{
    Bench bench;
    const int on = bench.send(1);
    bench.accept(on);
    const int off = bench.send(0);
    QCOMPARE(bench.cancels(), on);
    bench.refuse(off);
    QCOMPARE(bench.cancels(), on);
    QVERIFY(!bench.state.command(static_cast<std::uint8_t>(off)));
}

void tst_ControlState::aCommandWhoseOutcomeIsUnknownCanBeCancelled()
{
    Bench bench;
    bench.select(1);
    const int operated = bench.sendSelected();
    bench.loseSight(operated);
    bench.now += seconds(3600);
    QCOMPARE(bench.cancels(), operated);
    QVERIFY(bench.state.isRunning());
    bench.hear(operated, Outcome::Accepted);
    QCOMPARE(bench.cancels(), operated);
    QVERIFY(bench.state.isInDoubt());
}

void tst_ControlState::aCommandIsForgottenAfterItsEndOrRefusal()
{
    Bench bench;
    for (const Outcome outcome : {Outcome::Done, Outcome::Failed, Outcome::Refused}) {
        bench.end(Service::Operate, bench.send(1), outcome);
        QCOMPARE(bench.cancels(), 0);
        QVERIFY(!bench.state.isRunning());
        const int lost = bench.send(1);
        bench.loseSight(lost);
        QCOMPARE(bench.cancels(), lost);
        bench.hear(lost, outcome);
        QCOMPARE(bench.cancels(), 0);
        QVERIFY(!bench.state.isInDoubt());
    }
}

void tst_ControlState::aCommandThatRunsGoesBeforeOneWithoutAnswer()
{
    Bench bench;
    const int on = bench.send(1);
    bench.accept(on);
    const int off = bench.send(0);
    bench.loseSight(off);
    QCOMPARE(bench.cancels(), on);
    bench.hear(on, Outcome::Done);
    QCOMPARE(bench.cancels(), off);
}

void tst_ControlState::anObjectThatTellsOfNoEndKeepsTheLastAcceptedCommand()
{
    Bench bench;
    bench.manner.model = Model::DirectNormal;
    const int first = bench.send(1);
    bench.carryOut(first);
    QCOMPARE(bench.cancels(), first);
    const int second = bench.send(0);
    bench.carryOut(second);
    QCOMPARE(bench.cancels(), second);
    QVERIFY(!bench.state.command(static_cast<std::uint8_t>(first)));
    bench.cancel(second);
    QCOMPARE(bench.cancels(), 0);
}

void tst_ControlState::aSelectThatWasRefusedOrUnansweredCanBeCancelled()
{
    Bench bench;
    const int refused = bench.select(1, 0, false);
    QVERIFY(!bench.state.selection(bench.now));
    QCOMPARE(bench.cancels(), refused);
    bench.cancel(refused);
    QCOMPARE(bench.cancels(), 0);
    const int unanswered = bench.sendSelect(1);
    QCOMPARE(bench.cancels(), unanswered);
    // But not before a command that runs.
    Bench other;
    const int running = other.send(1);
    other.accept(running);
    other.select(0, 0, false);
    QCOMPARE(other.cancels(), running);
}

void tst_ControlState::aRefusedSelectLeavesTheOneBeforeToBeGivenBack()
{
    Bench bench;
    const int granted = bench.select(1);
    bench.select(0, 0, false);
    QVERIFY(!bench.state.selection(bench.now));
    QCOMPARE(bench.cancels(), granted);
}

void tst_ControlState::aSelectThatWasNotSentLeavesTheOneBefore()
{
    Bench bench;
    const int granted = bench.select(1);
    bench.end(Service::Select, bench.sendSelect(0), Outcome::NotSent);
    QVERIFY(bench.state.selection(bench.now));
    QCOMPARE(bench.toOperate(emptyBlock(), 0), Obstacle::None);
    QCOMPARE(bench.cancels(), granted);
}

void tst_ControlState::aRefusedSelectLeavesNoDoubtOfTheNext()
{
    Bench bench;
    bench.select(1, 0, false);
    bench.select(0);
    QCOMPARE(bench.toOperate(emptyBlock(), 0), Obstacle::None);
}

void tst_ControlState::theSelectionIsCancelledUntilItIsUsed()
{
    Bench bench;
    const int selected = bench.select(1);
    QCOMPARE(bench.cancels(), selected);
    QCOMPARE(bench.sendSelected(), selected);
    QVERIFY(!bench.state.selection(bench.now));
    bench.carryOut(selected);
    QCOMPARE(bench.cancels(), 0);
}

void tst_ControlState::aGrantedSelectEndsWhatWasUnknownBefore()
{
    Bench bench;
    const int lost = bench.send(1);
    bench.loseSight(lost);
    const int selected = bench.select(0);
    QCOMPARE(bench.cancels(), selected);
    QVERIFY(!bench.state.isRunning());
}

void tst_ControlState::aSelectionLastsAsLongAsTheDeviceSays()
{
    Bench bench;
    const int selected = bench.select(1);
    bench.now += milliseconds(29999);
    QVERIFY(bench.state.selection(bench.now));
    bench.now += milliseconds(1);
    QVERIFY(!bench.state.selection(bench.now));
    QCOMPARE(bench.toOperate(emptyBlock(), 0), Obstacle::NotSelected);
    // The device's clock may be another.
    QCOMPARE(bench.cancels(), selected);
    const int endless = bench.sendSelect(1);
    bench.manner.selectTimeout = milliseconds(0);
    bench.end(Service::Select, endless, Outcome::Done);
    bench.now += seconds(100000);
    QVERIFY(bench.state.selection(bench.now));
}

void tst_ControlState::anEmptyRecordUsesTheSelectionOfItsOwnWindowOnly()
{
    Bench bench;
    bench.select(1, windowA);
    QCOMPARE(bench.toOperate(emptyBlock(), windowA), Obstacle::None);
    bench.select(0, windowB);
    QCOMPARE(bench.toOperate(emptyBlock(), windowA), Obstacle::SelectedByOther);
    QCOMPARE(bench.toOperate(block(1), windowA), Obstacle::SelectedByOther);
    QCOMPARE(bench.toOperate(emptyBlock(), windowB), Obstacle::None);
    // Also when the first has run out before.
    Bench late;
    late.select(1, windowA);
    late.now += seconds(31);
    late.select(0, windowB);
    QCOMPARE(late.toOperate(emptyBlock(), windowA), Obstacle::SelectedByOther);
    // One window may change its mind.
    bench.select(1, windowB);
    QCOMPARE(bench.toOperate(emptyBlock(), windowB), Obstacle::None);
}

void tst_ControlState::anEmptyRecordAfterADifferentSelectIsRefusedWhereNobodyIsKnown()
{
    Bench bench;
    bench.select(1);
    bench.select(0);
    QCOMPARE(bench.toOperate(emptyBlock(), 0), Obstacle::SelectedAgain);
    // A record that says what it means is clear.
    QCOMPARE(bench.toOperate(block(0), 0), Obstacle::None);
    QCOMPARE(bench.toOperate(block(1), 0), Obstacle::NotTheSelected);
    bench.cancel(bench.cancels());
    bench.select(1);
    QCOMPARE(bench.toOperate(emptyBlock(), 0), Obstacle::None);
}

void tst_ControlState::selectingTheSameAgainLeavesNoDoubt()
{
    Bench bench;
    bench.select(1);
    bench.select(1);
    QCOMPARE(bench.toOperate(emptyBlock(), 0), Obstacle::None);
}

void tst_ControlState::anotherCommandThanTheSelectedOneIsRefused()
{
    Bench bench;
    bench.select(1, windowA);
    QCOMPARE(bench.toOperate(block(1), windowA), Obstacle::None);
    QCOMPARE(bench.toOperate(block(0), windowA), Obstacle::NotTheSelected);
    ControlBlock tested = block(1);
    tested.test = 1;
    QCOMPARE(bench.toOperate(tested, windowA), Obstacle::NotTheSelected);
}

void tst_ControlState::aCommandThatWasNotSentLeavesTheSelection()
{
    Bench bench;
    bench.select(1);
    const int number = bench.sendSelected();
    bench.end(Service::Operate, number, Outcome::NotSent);
    QVERIFY(!bench.state.isRunning());
    QVERIFY(bench.state.selection(bench.now));
    bench.now += seconds(30);
    QVERIFY(!bench.state.selection(bench.now));
}

void tst_ControlState::aSelectionForManyCommandsStays()
{
    Bench bench;
    bench.select(1);
    const int number = bench.sendSelected();
    bench.now += seconds(20);
    // While the command runs a cancel is about it.
    QVERIFY(bench.state.isRunning());
    bench.manner.isOperateMany = true;
    bench.carryOut(number);
    bench.now += seconds(20);
    QVERIFY(bench.state.selection(bench.now));
    QCOMPARE(bench.toOperate(emptyBlock(), 0), Obstacle::None);
}

void tst_ControlState::doubtLastsUntilTheCommandIsKnownToBeOver()
{
    Bench bench;
    const int running = bench.send(1);
    QVERIFY(!bench.state.isInDoubt());
    bench.accept(running);
    QVERIFY(bench.state.isInDoubt());
    // That another one is refused says nothing of it.
    bench.refuse(bench.send(0));
    QVERIFY(bench.state.isInDoubt());
    bench.hear(running, Outcome::Failed);
    QVERIFY(!bench.state.isInDoubt());
    const int silent = bench.send(1);
    bench.loseSight(silent);
    QVERIFY(bench.state.isInDoubt());
    bench.manner.model = Model::DirectNormal;
    bench.carryOut(bench.send(0));
    QVERIFY(!bench.state.isInDoubt());
}

void tst_ControlState::theEndOfACommandIsAwaitedAsLongAsTheDeviceSays()
{
    using ControlOrder::terminationPatience;
    QCOMPARE(terminationPatience({}).count(), 30000);
    QCOMPARE(terminationPatience(milliseconds(0)).count(), 30000);
    QCOMPARE(terminationPatience(milliseconds(100)).count(), 2100);
    QCOMPARE(terminationPatience(seconds(180)).count(), 182000);
    QCOMPARE(terminationPatience(seconds(100000)).count(), 3602000);
}

void tst_ControlState::onlyASelectedObjectOfTheEnhancedModelIsOperatedOrGivenBack()
{
    Bench bench;
    const auto obstacle = [&bench](Service service) {
        return bench.state.obstacle(service, block(1), 0, bench.now);
    };
    QCOMPARE(obstacle(Service::Select), Obstacle::None);
    QCOMPARE(obstacle(Service::Operate), Obstacle::NotSelected);
    QCOMPARE(obstacle(Service::Cancel), Obstacle::NotSelected);
    QVERIFY(!bench.state.repeated(Service::Operate, Model::SelectEnhanced, bench.now));
    bench.select(1);
    for (const Service service : {Service::Select, Service::Operate, Service::Cancel})
        QCOMPARE(obstacle(service), Obstacle::None);
    QVERIFY(!bench.state.needsRecord(Service::Cancel, bench.now));
    QVERIFY(bench.state.needsRecord(Service::Operate, bench.now));
}

void tst_ControlState::theNormalModelRefusesWhatAnotherWindowHasSelected()
{
    Bench bench;
    bench.manner.model = Model::SelectNormal;
    ControlBlock record = block(1);
    record.controlModel = 2;
    // The device itself knows whether it is selected.
    QCOMPARE(bench.toOperate(record, windowA), Obstacle::None);
    bench.select(1, windowB);
    QCOMPARE(bench.toOperate(record, windowA), Obstacle::SelectedByOther);
    QCOMPARE(bench.toOperate(record, windowB), Obstacle::None);
    QCOMPARE(bench.toOperate(record), Obstacle::None);
}

void tst_ControlState::aDirectCommandIsWhatTheRecordSays()
{
    Bench bench;
    bench.select(1, windowB);
    for (const Model model : {Model::DirectNormal, Model::DirectEnhanced}) {
        ControlBlock record = block(0);
        record.controlModel = static_cast<quint8>(model);
        QCOMPARE(bench.toOperate(record, windowA), Obstacle::None);
        QVERIFY(!bench.state.repeated(Service::Operate, model, bench.now));
        QCOMPARE(bench.state.obstacle(Service::Cancel, record, windowA, bench.now), Obstacle::None);
    }
}

void tst_ControlState::aCommandGoesUnderTheNumberOfItsSelection()
{
    Bench bench;
    bench.manner.model = Model::SelectNormal;
    const int selected = bench.select(1);
    // Selecting again is another one.
    QVERIFY(bench.state.numberFor(Service::Select, Model::SelectNormal, bench.now) != selected);
    QCOMPARE(int(bench.state.numberFor(Service::Cancel, Model::SelectNormal, bench.now)), selected);
    QCOMPARE(bench.send(1), selected);
    bench.carryOut(selected);
    bench.now += seconds(31);
    QVERIFY(bench.send(1) != selected);
}

void tst_ControlState::aCancelRepeatsWhatRuns()
{
    Bench bench;
    bench.manner.model = Model::SelectNormal;
    const auto repeated = [&bench] {
        const Command *command =
            bench.state.repeated(Service::Cancel, bench.manner.model, bench.now);
        return command ? int(command->request.ctlNum) : 0;
    };
    // Of a selection by reading the device knows no more than the number.
    const int selected = bench.select(1);
    QCOMPARE(repeated(), 0);
    QCOMPARE(bench.send(1), selected);
    QCOMPARE(repeated(), selected);
    bench.carryOut(selected);
    bench.cancel(selected);
    QCOMPARE(repeated(), 0);
    bench.manner.model = Model::SelectEnhanced;
    QCOMPARE(repeated(), 0);
    const int again = bench.select(1);
    QCOMPARE(repeated(), again);
}

void tst_ControlState::whatNobodyKnowsIsHeardLateForNothing()
{
    Bench bench;
    const int running = bench.send(1);
    bench.accept(running);
    for (const Outcome outcome : {Outcome::Accepted, Outcome::Done, Outcome::Failed})
        bench.hear(running + 1, outcome);
    bench.end(Service::Operate, running + 1, Outcome::Done);
    bench.end(Service::Select, running + 1, Outcome::Done);
    QCOMPARE(bench.cancels(), running);
    QVERIFY(bench.state.isInDoubt());
    QVERIFY(!bench.state.selection(bench.now));
}

void tst_ControlState::nothingOutlivesTheAssociation()
{
    Bench bench;
    bench.send(1);
    bench.select(0);
    bench.state.associationEnded();
    QCOMPARE(bench.cancels(), 0);
    QVERIFY(!bench.state.isRunning());
    QVERIFY(!bench.state.selection(bench.now));
    // Numbers go on: the device may remember the last one.
    QCOMPARE(int(bench.state.numberFor(Service::Select, bench.manner.model, bench.now)), 3);
}

QTEST_APPLESS_MAIN(tst_ControlState)
#include "tst_controlstate.moc"
