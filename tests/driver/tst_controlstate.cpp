// SPDX-License-Identifier: Apache-2.0
#include "driver/core/controlorder.h"
#include "driver/core/controlstate.h"

#include <QtTest/QtTest>

using std::chrono::milliseconds;
using std::chrono::seconds;
using Command = ControlState::Command;
using Obstacle = ControlState::Obstacle;

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

    int select(double value, ControlState::Caller caller = 0, bool granted = true)
    {
        const int number = sendSelect(value, caller);
        if (granted)
            state.selectGranted(static_cast<std::uint8_t>(number), seconds(30), now);
        else
            state.selectRefused(static_cast<std::uint8_t>(number));
        return number;
    }
    int sendSelect(double value, ControlState::Caller caller = 0)
    {
        const Command command = made(value, state.newNumber(), caller);
        state.selectSent(command);
        return command.request.ctlNum;
    }
    int send(double value)
    {
        const Command command = made(value, state.newNumber(), 0);
        state.operateSent(command);
        return command.request.ctlNum;
    }
    /// Operates what is selected, under its number.
    int sendSelected()
    {
        const Command command = *state.selection(now);
        state.operateSent(command);
        return command.request.ctlNum;
    }
    void accept(int number, bool terminates = true, bool staysSelected = false)
    {
        state.operateAccepted(static_cast<std::uint8_t>(number), terminates, staysSelected,
                              seconds(30), now);
    }
    void refuse(int number) { state.operateRefused(static_cast<std::uint8_t>(number)); }
    void end(int number) { state.operateEnded(static_cast<std::uint8_t>(number)); }
    void loseSight(int number) { state.operateUnknown(static_cast<std::uint8_t>(number)); }

    /// The number that a cancel carries; 0 for none.
    int cancels() const
    {
        const Command *command = state.cancellable(now);
        return command ? command->request.ctlNum : 0;
    }

private:
    static Command made(double value, std::uint8_t number, ControlState::Caller caller)
    {
        Command command;
        command.block = block(value);
        command.request.ctlNum = number;
        command.caller = caller;
        return command;
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
        QCOMPARE(int(bench.state.newNumber()), i);
    QCOMPARE(int(bench.state.newNumber()), 2);
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
    bench.accept(operated);
    bench.loseSight(operated);
    QCOMPARE(bench.cancels(), operated);
}

void tst_ControlState::aCommandIsForgottenAfterItsEndOrRefusal()
{
    Bench bench;
    const int first = bench.send(1);
    bench.accept(first);
    bench.end(first);
    QCOMPARE(bench.cancels(), 0);
    QVERIFY(!bench.state.isRunning());
    const int second = bench.send(1);
    bench.loseSight(second);
    bench.refuse(second);
    QCOMPARE(bench.cancels(), 0);
}

void tst_ControlState::aCommandThatRunsGoesBeforeOneWithoutAnswer()
{
    Bench bench;
    const int on = bench.send(1);
    bench.accept(on);
    const int off = bench.send(0);
    bench.loseSight(off);
    QCOMPARE(bench.cancels(), on);
    bench.end(on);
    QCOMPARE(bench.cancels(), off);
}

void tst_ControlState::anObjectThatTellsOfNoEndKeepsTheLastAcceptedCommand()
{
    Bench bench;
    const int first = bench.send(1);
    bench.accept(first, false);
    QCOMPARE(bench.cancels(), first);
    const int second = bench.send(0);
    bench.accept(second, false);
    QCOMPARE(bench.cancels(), second);
    QVERIFY(!bench.state.command(static_cast<std::uint8_t>(first)));
    bench.state.cancelled(static_cast<std::uint8_t>(second));
    QCOMPARE(bench.cancels(), 0);
}

void tst_ControlState::aSelectThatWasRefusedOrUnansweredCanBeCancelled()
{
    Bench bench;
    const int refused = bench.select(1, 0, false);
    QVERIFY(!bench.state.selection(bench.now));
    QCOMPARE(bench.cancels(), refused);
    bench.state.cancelled(static_cast<std::uint8_t>(refused));
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
    bench.state.selectWithdrawn(static_cast<std::uint8_t>(bench.sendSelect(0)));
    QVERIFY(bench.state.selection(bench.now));
    QCOMPARE(bench.state.obstacle(emptyBlock(), 0, bench.now), Obstacle::None);
    QCOMPARE(bench.cancels(), granted);
}

void tst_ControlState::aRefusedSelectLeavesNoDoubtOfTheNext()
{
    Bench bench;
    bench.select(1, 0, false);
    bench.select(0);
    QCOMPARE(bench.state.obstacle(emptyBlock(), 0, bench.now), Obstacle::None);
}

void tst_ControlState::theSelectionIsCancelledUntilItIsUsed()
{
    Bench bench;
    const int selected = bench.select(1);
    QCOMPARE(bench.cancels(), selected);
    QCOMPARE(bench.sendSelected(), selected);
    QVERIFY(!bench.state.selection(bench.now));
    bench.accept(selected);
    bench.end(selected);
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
    QCOMPARE(bench.state.obstacle(emptyBlock(), 0, bench.now), Obstacle::NotSelected);
    // The device's clock may be another.
    QCOMPARE(bench.cancels(), selected);
    const int endless = bench.sendSelect(1);
    bench.state.selectGranted(static_cast<std::uint8_t>(endless), milliseconds(0), bench.now);
    bench.now += seconds(100000);
    QVERIFY(bench.state.selection(bench.now));
}

void tst_ControlState::anEmptyRecordUsesTheSelectionOfItsOwnWindowOnly()
{
    Bench bench;
    bench.select(1, windowA);
    QCOMPARE(bench.state.obstacle(emptyBlock(), windowA, bench.now), Obstacle::None);
    bench.select(0, windowB);
    QCOMPARE(bench.state.obstacle(emptyBlock(), windowA, bench.now), Obstacle::SelectedByOther);
    QCOMPARE(bench.state.obstacle(block(1), windowA, bench.now), Obstacle::SelectedByOther);
    QCOMPARE(bench.state.obstacle(emptyBlock(), windowB, bench.now), Obstacle::None);
    // Also when the first has run out before.
    Bench late;
    late.select(1, windowA);
    late.now += seconds(31);
    late.select(0, windowB);
    QCOMPARE(late.state.obstacle(emptyBlock(), windowA, late.now), Obstacle::SelectedByOther);
    // One window may change its mind.
    bench.select(1, windowB);
    QCOMPARE(bench.state.obstacle(emptyBlock(), windowB, bench.now), Obstacle::None);
}

void tst_ControlState::anEmptyRecordAfterADifferentSelectIsRefusedWhereNobodyIsKnown()
{
    Bench bench;
    bench.select(1);
    bench.select(0);
    QCOMPARE(bench.state.obstacle(emptyBlock(), 0, bench.now), Obstacle::SelectedAgain);
    // A record that says what it means is clear.
    QCOMPARE(bench.state.obstacle(block(0), 0, bench.now), Obstacle::None);
    QCOMPARE(bench.state.obstacle(block(1), 0, bench.now), Obstacle::NotTheSelected);
    bench.state.cancelled(static_cast<std::uint8_t>(bench.cancels()));
    bench.select(1);
    QCOMPARE(bench.state.obstacle(emptyBlock(), 0, bench.now), Obstacle::None);
}

void tst_ControlState::selectingTheSameAgainLeavesNoDoubt()
{
    Bench bench;
    bench.select(1);
    bench.select(1);
    QCOMPARE(bench.state.obstacle(emptyBlock(), 0, bench.now), Obstacle::None);
}

void tst_ControlState::anotherCommandThanTheSelectedOneIsRefused()
{
    Bench bench;
    bench.select(1, windowA);
    QCOMPARE(bench.state.obstacle(block(1), windowA, bench.now), Obstacle::None);
    QCOMPARE(bench.state.obstacle(block(0), windowA, bench.now), Obstacle::NotTheSelected);
    ControlBlock tested = block(1);
    tested.test = 1;
    QCOMPARE(bench.state.obstacle(tested, windowA, bench.now), Obstacle::NotTheSelected);
}

void tst_ControlState::aCommandThatWasNotSentLeavesTheSelection()
{
    Bench bench;
    bench.select(1);
    const int number = bench.sendSelected();
    bench.state.operateWithdrawn(static_cast<std::uint8_t>(number));
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
    bench.accept(number, true, true);
    // While the command runs a cancel is about it.
    QVERIFY(bench.state.isRunning());
    bench.end(number);
    bench.now += seconds(20);
    QVERIFY(bench.state.selection(bench.now));
    QCOMPARE(bench.state.obstacle(emptyBlock(), 0, bench.now), Obstacle::None);
}

void tst_ControlState::doubtLastsUntilTheCommandIsKnownToBeOver()
{
    Bench bench;
    const int running = bench.send(1);
    bench.accept(running);
    QVERIFY(!bench.state.isInDoubt());
    bench.loseSight(running);
    QVERIFY(bench.state.isInDoubt());
    // That another one is refused says nothing of it.
    bench.refuse(bench.send(0));
    QVERIFY(bench.state.isInDoubt());
    bench.end(running);
    QVERIFY(!bench.state.isInDoubt());
    const int silent = bench.send(1);
    bench.loseSight(silent);
    QVERIFY(bench.state.isInDoubt());
    bench.accept(bench.send(0), false);
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
    QCOMPARE(int(bench.state.newNumber()), 3);
}

QTEST_APPLESS_MAIN(tst_ControlState)
#include "tst_controlstate.moc"
