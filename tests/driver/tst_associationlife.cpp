// SPDX-License-Identifier: Apache-2.0
#include "driver/core/associationlife.h"
#include "driver/core/deviceidentity.h"
#include "driver/core/signoflife.h"
#include "driver/core/transferpace.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

using namespace std::chrono_literals;
using Life = AssociationLife;
using What = Life::Step::What;
using Admission = Life::Admission::What;

namespace {

const Life::Time start = Life::Time() + 1h;

/// Pauses as long as their middle.
Life plainLife()
{
    return Life([] { return 0.5; });
}

/// An attempt that comes to nothing; how long the pause behind it is.
std::chrono::milliseconds pauseAfterFailure(Life &life, Life::Time now,
                                            Life::Failure how = Life::Failure::Lost)
{
    life.connecting();
    life.failed("It does not answer.", how);
    life.clearedUp(now);
    const Life::Step step = life.next(now);
    return step.what == What::Wait
               ? std::chrono::duration_cast<std::chrono::milliseconds>(step.until - now)
               : 0ms;
}

void beOnline(Life &life, Life::Time from)
{
    life.connecting();
    life.associated();
    life.ready(from);
}

void beLost(Life &life, Life::Time now)
{
    life.closed("The device is away.");
    life.clearedUp(now);
}

DeviceIdentity feeder()
{
    return {"10.0.0.1:102", "Maker", "Feeder", {"BAY1", "BAY2"}, {{"BAY1", "7"}}, "ab12"};
}

} // namespace

class tst_AssociationLife : public QObject
{
    Q_OBJECT

private slots:
    void aWantedDeviceIsConnectedAtOnce();
    void anAssociationGoesFromStepToStep();
    void whatFailsOrIsClosedIsClearedUpBeforeTheNextAttempt();
    void onlyADeviceThatWasOnlineIsTakenLeaveOf();
    void pausesGrowAndEnd();
    void shortPausesComeBackOnlyAfterAWhileOnline();
    void aLostDeviceIsTriedAgainWithinASecond();
    void devicesThatAreLostTogetherComeBackApart();
    void aConflictIsWaitedForLongUnlessNamesAreReleased();
    void wantingAgainEndsAPause();
    void whatWasGivenUpIsNoAttemptOfANewWish();
    void whatIsLeftIsLeftBeforeItIsConnectedAgain();
    void theReasonIsTheEndsOrTheLeavings();
    void anOutageBeginsOnceHoweverManyAttemptsThereAre();
    void theFirstAttemptIsWaitedFor();
    void nobodyWaitsForADeviceThatIsAway();
    void aModelThatIsBeingReadIsWaitedForAMomentOnly();
    void anAbortedDeviceIsDormant();
    void onlyAReadingIsCancelled();
    void aDeviceIsAskedForWhatItHas();
    void silenceIsJudgedOnlyAfterAQuestion();
    void whatADeviceSendsByItselfIsASignOfLife();
    void anIdentityIsKnownAgain();
    void aTransferMustGetOn();
};

void tst_AssociationLife::aWantedDeviceIsConnectedAtOnce()
{
    Life life = plainLife();
    QVERIFY(life.next(start).what == What::Rest);
    life.want(start);
    QVERIFY(life.next(start).what == What::Connect);
    life.leave();
    QVERIFY(life.next(start).what == What::ClearUp);
    life.clearedUp(start);
    QVERIFY(life.next(start).what == What::Rest);
    QVERIFY(life.phase() == Life::Phase::Left);
}

void tst_AssociationLife::anAssociationGoesFromStepToStep()
{
    Life life = plainLife();
    life.want(start);
    QVERIFY(life.phase() == Life::Phase::Waiting && !life.isKept());
    life.connecting();
    QVERIFY(life.next(start).what == What::Connect && !life.isKept());
    life.associated();
    QVERIFY(life.next(start).what == What::Read && life.isKept());
    life.ready(start);
    QVERIFY(life.next(start).what == What::Serve && life.isKept());
    QVERIFY(life.phase() == Life::Phase::Online);
    life.leave();
    QVERIFY(life.next(start).what == What::TakeLeave && !life.isKept());
    life.clearedUp(start);
    QVERIFY(life.next(start).what == What::Rest);
    // What comes too late changes nothing.
    life.connecting();
    life.associated();
    life.ready(start);
    life.failed("late");
    life.closed("late");
    life.clearedUp(start);
    QVERIFY(life.phase() == Life::Phase::Left);
    QCOMPARE(life.reason(), QString());
}

void tst_AssociationLife::whatFailsOrIsClosedIsClearedUpBeforeTheNextAttempt()
{
    Life life = plainLife();
    life.want(start);
    life.connecting();
    life.failed("refused");
    QVERIFY(life.next(start).what == What::ClearUp);
    // An attempt that comes about all the same is no association.
    life.associated();
    QVERIFY(life.phase() == Life::Phase::Ending);
    life.clearedUp(start);
    QVERIFY(life.next(start).what == What::Wait);
    life.want(start);
    life.connecting();
    life.associated();
    life.closed("cut");
    QVERIFY(life.next(start).what == What::ClearUp);
    life.ready(start);
    QVERIFY(life.phase() == Life::Phase::Ending);
}

void tst_AssociationLife::onlyADeviceThatWasOnlineIsTakenLeaveOf()
{
    Life life = plainLife();
    life.want(start);
    life.connecting();
    life.associated();
    life.leave();
    QVERIFY(life.next(start).what == What::ClearUp);
    life.clearedUp(start);
    life.want(start);
    beOnline(life, start);
    life.leave();
    QVERIFY(life.next(start).what == What::TakeLeave);
    life.clearedUp(start);
    life.want(start);
    life.connecting();
    life.failed("refused");
    QVERIFY(life.next(start).what == What::ClearUp);
}

void tst_AssociationLife::pausesGrowAndEnd()
{
    Life life = plainLife();
    life.want(start);
    for (const auto expected : {200ms, 400ms, 800ms, 1600ms, 2000ms, 2000ms, 2000ms}) {
        QVERIFY(pauseAfterFailure(life, start) == expected);
        QVERIFY(life.next(start + expected - 1ms).what == What::Wait);
        QVERIFY(life.next(start + expected).what == What::Connect);
    }
}

void tst_AssociationLife::shortPausesComeBackOnlyAfterAWhileOnline()
{
    Life life = plainLife();
    life.want(start);
    for (int i = 0; i < 4; ++i)
        pauseAfterFailure(life, start);
    beOnline(life, start);
    beLost(life, start + 9999ms);
    QVERIFY(life.next(start + 9999ms).until == start + 9999ms + 2000ms);
    beOnline(life, start);
    beLost(life, start + 10000ms);
    QVERIFY(life.next(start + 10000ms).until == start + 10000ms + 200ms);
}

void tst_AssociationLife::aLostDeviceIsTriedAgainWithinASecond()
{
    Life life([] { return 1.0; });
    life.want(start);
    beOnline(life, start);
    beLost(life, start + 1min);
    QVERIFY(life.next(start + 1min + 1s).what == What::Connect);
    // However long it is away, the next attempt is never further off than this.
    for (int i = 0; i < 100; ++i)
        QVERIFY(pauseAfterFailure(life, start + 2min) <= 3s);
}

void tst_AssociationLife::devicesThatAreLostTogetherComeBackApart()
{
    std::mt19937 engine(1);
    std::uniform_real_distribution<double> fractions;
    std::set<std::chrono::milliseconds> pauses;
    for (int device = 0; device < 50; ++device) {
        Life life([&] { return fractions(engine); });
        life.want(start);
        beOnline(life, start);
        beLost(life, start + 1min);
        pauses.insert(std::chrono::duration_cast<std::chrono::milliseconds>(
            life.next(start + 1min).until - (start + 1min)));
    }
    QVERIFY(*pauses.begin() >= 100ms);
    QVERIFY(*pauses.rbegin() < 300ms);
    QVERIFY(*pauses.rbegin() - *pauses.begin() > 150ms);
    QVERIFY(pauses.size() > 25);
    QVERIFY(Life::spread(200ms, 7.0) == 300ms);
}

void tst_AssociationLife::aConflictIsWaitedForLongUnlessNamesAreReleased()
{
    Life life = plainLife();
    life.want(start);
    QVERIFY(pauseAfterFailure(life, start, Life::Failure::Conflict) == 30s);
    life.namesReleased(start + 1s);
    QVERIFY(life.next(start + 1s).until == start + 1s + 200ms);
    // What has nothing to do with names is not hurried by them.
    const auto pause = pauseAfterFailure(life, start + 2s);
    life.namesReleased(start + 2s);
    QVERIFY(life.next(start + 2s).until == start + 2s + pause);
}

void tst_AssociationLife::wantingAgainEndsAPause()
{
    Life life = plainLife();
    life.want(start);
    pauseAfterFailure(life, start, Life::Failure::Conflict);
    life.want(start + 1s);
    QVERIFY(life.next(start + 1s).what == What::Connect);
}

void tst_AssociationLife::whatWasGivenUpIsNoAttemptOfANewWish()
{
    Life life = plainLife();
    life.want(start);
    life.connecting();
    life.leave();
    life.want(start + 1s);
    QVERIFY(life.next(start + 1s).what == What::ClearUp);
    life.clearedUp(start + 2s);
    QVERIFY(life.isFirstAttempt());
    QVERIFY(life.next(start + 2s).what == What::Connect);
    // The next one counts, as the first.
    QCOMPARE(pauseAfterFailure(life, start + 3s), Life::firstPause);
    QVERIFY(!life.isFirstAttempt());
}

void tst_AssociationLife::whatIsLeftIsLeftBeforeItIsConnectedAgain()
{
    Life life = plainLife();
    life.want(start);
    beOnline(life, start);
    life.leave();
    life.want(start + 1s);
    QVERIFY(life.isWanted() && !life.isKept());
    QVERIFY(life.next(start + 1s).what == What::TakeLeave);
    QVERIFY(life.admit(true, start + 1s, start + 1s, start + 9s).what == Admission::Wait);
    life.clearedUp(start + 2s);
    QVERIFY(life.next(start + 2s).what == What::Connect);
    QVERIFY(life.awaySince() == start + 1s);
    // Who leaves in a pause has nothing to wait for either.
    life.leave();
    life.want(start + 3s);
    life.leave();
    life.clearedUp(start + 3s);
    QVERIFY(life.phase() == Life::Phase::Left);
}

void tst_AssociationLife::theReasonIsTheEndsOrTheLeavings()
{
    Life life = plainLife();
    life.want(start);
    life.connecting();
    life.failed("refused");
    life.clearedUp(start);
    QCOMPARE(life.reason(), QString("refused"));
    life.connecting();
    QCOMPARE(life.reason(), QString("refused"));
    life.associated();
    QCOMPARE(life.reason(), QString());
    // Why the model cannot be read says more than that the association was closed.
    life.closed("closed");
    QCOMPARE(life.reason(), QString("closed"));
    life.failed("no names");
    life.clearedUp(start);
    QCOMPARE(life.reason(), QString("no names"));
    beOnline(life, start);
    life.leave("left");
    life.closed("released");
    QCOMPARE(life.reason(), QString("released"));
    life.clearedUp(start);
    QCOMPARE(life.reason(), QString("left"));
}

void tst_AssociationLife::anOutageBeginsOnceHoweverManyAttemptsThereAre()
{
    Life life = plainLife();
    QVERIFY(!life.awaySince());
    life.want(start);
    QVERIFY(life.awaySince() == start);
    pauseAfterFailure(life, start + 1s);
    pauseAfterFailure(life, start + 2s);
    QVERIFY(life.awaySince() == start);
    beOnline(life, start + 3s);
    QVERIFY(!life.awaySince());
    beLost(life, start + 1min);
    pauseAfterFailure(life, start + 2min);
    life.connecting();
    life.associated();
    QVERIFY(life.awaySince() == start + 1min);
    life.leave();
    QVERIFY(!life.awaySince());
}

void tst_AssociationLife::theFirstAttemptIsWaitedFor()
{
    Life life = plainLife();
    QVERIFY(!life.isFirstAttempt());
    life.want(start);
    QVERIFY(life.isFirstAttempt());
    pauseAfterFailure(life, start);
    QVERIFY(!life.isFirstAttempt());
    life.leave();
    life.want(start + 1s);
    QVERIFY(life.isFirstAttempt());
}

void tst_AssociationLife::nobodyWaitsForADeviceThatIsAway()
{
    Life life = plainLife();
    const auto ask = [&](Life::Time now) { return life.admit(true, now, start, start + 30s); };
    QVERIFY(ask(start).what == Admission::NotConnected);
    life.want(start);
    life.connecting();
    QVERIFY(ask(start).what == Admission::Wait);
    QVERIFY(ask(start).until == start + 30s);
    QVERIFY(ask(start + 30s).what == Admission::NotConnected);
    life.failed("refused");
    QVERIFY(ask(start + 1s).what == Admission::Wait);
    life.clearedUp(start + 1s);
    QVERIFY(ask(start + 1s).what == Admission::NotConnected);
    // Nor for its next attempts.
    life.connecting();
    QVERIFY(ask(start + 2s).what == Admission::NotConnected);
    life.associated();
    life.ready(start + 3s);
    QVERIFY(ask(start + 3s).what == Admission::Enter);
    life.closed("cut");
    QVERIFY(ask(start + 4s).what == Admission::NotConnected);
}

void tst_AssociationLife::aModelThatIsBeingReadIsWaitedForAMomentOnly()
{
    Life life = plainLife();
    life.want(start);
    life.connecting();
    life.associated();
    const auto ask = [&](bool needsModel, Life::Time now, Life::Time deadline) {
        return life.admit(needsModel, now, start, deadline);
    };
    QVERIFY(ask(false, start, start + 30s).what == Admission::Enter);
    QVERIFY(ask(true, start, start + 30s).what == Admission::Wait);
    QVERIFY(ask(true, start, start + 30s).until == start + 500ms);
    QVERIFY(ask(true, start + 500ms, start + 30s).what == Admission::ModelIsUnread);
    QVERIFY(ask(true, start, start + 100ms).until == start + 100ms);
    QVERIFY(ask(true, start + 100ms, start + 100ms).what == Admission::ModelIsUnread);
    life.ready(start);
    QVERIFY(ask(true, start + 500ms, start + 30s).what == Admission::Enter);
}

void tst_AssociationLife::anAbortedDeviceIsDormant()
{
    Life life = plainLife();
    const auto admission = [&life] { return life.admit(true, start, start, start + 30s).what; };
    QVERIFY(!life.abort("Aborted."));
    QVERIFY(admission() == Admission::NotConnected);
    life.want(start);
    beOnline(life, start);
    QVERIFY(life.abort("Aborted."));
    QVERIFY(!life.isWanted() && admission() == Admission::Want);
    life.clearedUp(start);
    QCOMPARE(life.reason(), QString("Aborted."));
    QVERIFY(life.phase() == Life::Phase::Left && admission() == Admission::Want);
    life.want(start);
    QVERIFY(life.isWanted() && admission() == Admission::Wait);
    // A device that is left sleeps no more.
    life.abort("Aborted.");
    life.leave();
    QVERIFY(admission() == Admission::NotConnected);
}

void tst_AssociationLife::onlyAReadingIsCancelled()
{
    Life life = plainLife();
    life.want(start);
    life.connecting();
    QVERIFY(!life.cancelReading("Cancelled."));
    life.associated();
    QVERIFY(life.cancelReading("Cancelled."));
    QVERIFY(!life.cancelReading("Cancelled."));
    life.clearedUp(start);
    QVERIFY(life.phase() == Life::Phase::Left);
    QCOMPARE(life.reason(), QString("Cancelled."));
    life.want(start);
    beOnline(life, start);
    QVERIFY(!life.cancelReading("Cancelled."));
    QVERIFY(life.isKept());
}

void tst_AssociationLife::aDeviceIsAskedForWhatItHas()
{
    using Question = SignOfLife::Question;
    QVERIFY(SignOfLife::questionFor(true, true, true) == Question::Status);
    QVERIFY(SignOfLife::questionFor(false, true, true) == Question::Identify);
    QVERIFY(SignOfLife::questionFor(false, true, false) == Question::Read);
    QVERIFY(SignOfLife::questionFor(false, false, true) == Question::Read);
}

void tst_AssociationLife::silenceIsJudgedOnlyAfterAQuestion()
{
    using Judgement = SignOfLife::Judgement;
    SignOfLife sign(start);
    QVERIFY(sign.due(start) == start + 2s);
    QVERIFY(sign.due(start + 9s) == start + 10s);
    sign.asked(start + 2s);
    QVERIFY(sign.due(start + 11s) == start + 12s);
    QVERIFY(sign.judge(false, false, start) == Judgement::Waits);
    QVERIFY(sign.judge(false, true, start) == Judgement::Silent);
    QVERIFY(sign.judge(true, true, start) == Judgement::Alive);
}

void tst_AssociationLife::whatADeviceSendsByItselfIsASignOfLife()
{
    SignOfLife sign(start);
    sign.asked(start + 2s);
    QVERIFY(sign.judge(false, true, start + 2s) == SignOfLife::Judgement::Alive);
    QVERIFY(sign.judge(false, true, start + 1999ms) == SignOfLife::Judgement::Silent);
}

void tst_AssociationLife::anIdentityIsKnownAgain()
{
    QVERIFY(feeder().fits(feeder()));
    QVERIFY(!DeviceIdentity().fits(DeviceIdentity()));
    DeviceIdentity other = feeder();
    other.vendor.clear();
    QVERIFY(feeder().fits(other) && other.fits(feeder()));
    other.vendor = "Another";
    QVERIFY(!other.fits(feeder()));
    const auto differs = [](const std::function<void(DeviceIdentity &)> &change) {
        DeviceIdentity changed = feeder();
        change(changed);
        return !changed.fits(feeder());
    };
    QVERIFY(differs([](DeviceIdentity &each) { each.address = "10.0.0.2:102"; }));
    QVERIFY(differs([](DeviceIdentity &each) { each.model = "Feeder 99"; }));
    QVERIFY(differs([](DeviceIdentity &each) { each.logicalDevices.append("BAY3"); }));
    QVERIFY(differs([](DeviceIdentity &each) { each.revisions["BAY1"] = "8"; }));
    QVERIFY(differs([](DeviceIdentity &each) { each.certificate.clear(); }));
}

void tst_AssociationLife::aTransferMustGetOn()
{
    TransferPace pace(start);
    QVERIFY(!pace.isTooSlow(start + 60s, 0));
    QVERIFY(pace.isTooSlow(start + 61s, 6099));
    QVERIFY(!pace.isTooSlow(start + 61s, 6100));
    QVERIFY(pace.isTooSlow(start + 600s, 59999));
}

QTEST_GUILESS_MAIN(tst_AssociationLife)
#include "tst_associationlife.moc"
