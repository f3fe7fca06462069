// SPDX-License-Identifier: Apache-2.0
#include "driver/core/associationlife.h"
#include "driver/core/deviceidentity.h"
#include "driver/device/transferpace.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

using namespace std::chrono_literals;
using Life = AssociationLife;
using What = Life::Step::What;

namespace {

const Life::Time start = Life::Time() + 1h;

/// Pauses as long as their middle.
Life plainLife()
{
    return Life([] { return 0.5; });
}

/// An attempt that comes to nothing; how long the pause behind it is.
std::chrono::milliseconds pauseAfterFailure(Life &life, Life::Time now,
                                            Life::Ending how = Life::Ending::Failed)
{
    life.connecting();
    life.ended(now, how);
    const Life::Step step = life.next(now);
    return step.what == What::Wait
               ? std::chrono::duration_cast<std::chrono::milliseconds>(step.until - now)
               : 0ms;
}

void beOnline(Life &life, Life::Time from)
{
    life.connecting();
    life.associated();
    life.online(from);
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
    void pausesGrowAndEnd();
    void shortPausesComeBackOnlyAfterAWhileOnline();
    void devicesThatAreLostTogetherComeBackApart();
    void aConflictIsWaitedForLongUnlessNamesAreReleased();
    void wantingAgainEndsAPause();
    void whatWasGivenUpIsNoAttemptOfANewWish();
    void anOutageBeginsOnceHoweverManyAttemptsThereAre();
    void theFirstAttemptIsWaitedFor();
    void anAbortedDeviceIsDormant();
    void aDeviceIsAskedForWhatItHas();
    void silenceIsJudgedOnlyAfterAQuestion();
    void whatADeviceSendsByItselfIsASignOfLife();
    void anIdentityIsKnownAgain();
    void aTransferMustGetOn();
};

void tst_AssociationLife::aWantedDeviceIsConnectedAtOnce()
{
    Life life = plainLife();
    QVERIFY(life.next(start).what == What::End);
    life.want(start);
    QVERIFY(life.next(start).what == What::Connect);
    life.leave();
    QVERIFY(life.next(start).what == What::End);
    life.over();
    QVERIFY(life.phase() == Life::Phase::Left);
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
    life.ended(start + 9999ms, Life::Ending::Failed);
    QVERIFY(life.next(start + 9999ms).until == start + 9999ms + 2000ms);
    beOnline(life, start);
    life.ended(start + 10000ms, Life::Ending::Failed);
    QVERIFY(life.next(start + 10000ms).until == start + 10000ms + 200ms);
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
        life.ended(start + 1min, Life::Ending::Failed);
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
    QVERIFY(pauseAfterFailure(life, start, Life::Ending::Conflict) == 30s);
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
    pauseAfterFailure(life, start, Life::Ending::Conflict);
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
    life.ended(start + 2s, Life::Ending::Failed);
    QVERIFY(life.isFirstAttempt());
    QVERIFY(life.next(start + 2s).what == What::Connect);
    // The next one counts, as the first.
    QCOMPARE(pauseAfterFailure(life, start + 3s), Life::firstPause);
    QVERIFY(!life.isFirstAttempt());
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
    life.ended(start + 1min, Life::Ending::Failed);
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

void tst_AssociationLife::anAbortedDeviceIsDormant()
{
    Life life = plainLife();
    life.abort();
    QVERIFY(!life.isDormant());
    life.want(start);
    life.abort();
    QVERIFY(life.isDormant() && !life.isWanted());
    life.want(start);
    QVERIFY(!life.isDormant() && life.isWanted());
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
