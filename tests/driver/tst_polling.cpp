// SPDX-License-Identifier: Apache-2.0
#include "driver/core/polling.h"

#include <QtTest/QtTest>

#include <string>
#include <vector>

using namespace std::chrono_literals;
using acsi::FunctionalConstraint;
using Kind = acsi::ReadAnswer::Kind;
using Pace = ValueCurrency::Pace;
using Reply = ValueCurrency::Reply;
using What = Polling::Step::What;

namespace {

const Polling::Time begin = Polling::Time() + 1000h;

ValueCurrency::Part part(const std::string &name, std::uint32_t leaf)
{
    ValueCurrency::Part result;
    result.reference.node = name;
    result.leaves = {leaf, 1};
    result.octets = 10;
    return result;
}

/// A device of single values, which are not divided: "fast", "slow" and "configuration".
Polling device(std::chrono::milliseconds interval, std::size_t places = 1)
{
    ValueCurrency::Options options;
    options.interval = interval;
    options.places = places;
    options.room = 10;
    options.slowRounds = 10;
    Polling polling(
        3, [](const ValueCurrency::Part &) { return std::vector<ValueCurrency::Part>(); }, options);
    polling.currency().add(Pace::Fast, part("fast", 0));
    polling.currency().add(Pace::Slow, part("slow", 1));
    polling.currency().add(Pace::Configuration, part("configuration", 2));
    return polling;
}

std::string asked(Polling &polling, const Polling::Step &step)
{
    return step.what == What::Ask && step.question.parts.size() == 1
               ? polling.currency().part(step.question.parts.front()).reference.node
               : std::string();
}

acsi::ReadAnswer values(std::size_t count)
{
    acsi::ReadAnswer answer;
    answer.kind = Kind::Results;
    answer.results.assign(count, mms::AccessResult(mms::Data::boolean(true)));
    return answer;
}

acsi::ReadAnswer without(Kind kind)
{
    acsi::ReadAnswer answer;
    answer.kind = kind;
    return answer;
}

void answer(Polling &polling, const Polling::Step &step, Polling::Time now,
            const acsi::ReadAnswer &answer)
{
    polling.answered(step.question, answer, now,
                     [](const acsi::Reference &, const mms::Data &) { return true; });
}

/// Answers everything until the first round is over and has been told.
Polling::Step afterTheFirstRound(Polling &polling, Polling::Time now)
{
    polling.start(now);
    Polling::Step step = polling.next(now);
    while (step.what == What::Ask || step.what == What::Tell) {
        if (step.what == What::Ask)
            answer(polling, step, now, values(1));
        step = polling.next(now);
    }
    return step;
}

} // namespace

class tst_Polling : public QObject
{
    Q_OBJECT

private slots:
    void statusAndMeasurementsAreFastConfigurationAndControlsAreNot();
    void theConfigurationIsReadAloneAndOnce();
    void aRoundIsAskedForAnsweredAndFollowedByTheNext();
    void anAnswerIsAwaitedWhileAPlaceIsTaken();
    void withoutRoundsItEnds();
    void newsAreToldAfterARoundAndThenEverySecond();
    void whatAnAnswerMeans_data();
    void whatAnAnswerMeans();
    void aRequestThatWasNotSentIsSentAgain();
    void aValueThatDoesNotFitIsRefused();
};

void tst_Polling::statusAndMeasurementsAreFastConfigurationAndControlsAreNot()
{
    QVERIFY(Polling::paceOf(FunctionalConstraint::ST) == Pace::Fast);
    QVERIFY(Polling::paceOf(FunctionalConstraint::MX) == Pace::Fast);
    QVERIFY(Polling::paceOf(FunctionalConstraint::SP) == Pace::Slow);
    QVERIFY(Polling::paceOf(FunctionalConstraint::DC) == Pace::Slow);
    QVERIFY(Polling::paceOf(FunctionalConstraint::CF) == Pace::Configuration);
    for (const auto none :
         {FunctionalConstraint::CO, FunctionalConstraint::BR, FunctionalConstraint::RP})
        QVERIFY(!Polling::paceOf(none));
}

void tst_Polling::theConfigurationIsReadAloneAndOnce()
{
    Polling polling = device(1s);
    polling.readConfiguration();
    const Polling::Step step = polling.next(begin);
    QCOMPARE(asked(polling, step), std::string("configuration"));
    QVERIFY(polling.next(begin).what == What::Listen);
    answer(polling, step, begin + 10ms, values(1));
    QVERIFY(polling.next(begin + 10ms).what == What::Done);
    // Rounds go on without it, until it is the turn of all the rest.
    polling.start(begin + 20ms);
    QCOMPARE(asked(polling, polling.next(begin + 20ms)), std::string("fast"));
}

void tst_Polling::aRoundIsAskedForAnsweredAndFollowedByTheNext()
{
    Polling polling = device(1s);
    const Polling::Step pause = afterTheFirstRound(polling, begin);
    QVERIFY(pause.what == What::Pause);
    QVERIFY(pause.until == begin + 1s);
    QVERIFY(polling.next(begin + 999ms).what == What::Pause);
    const Polling::Step step = polling.next(begin + 1s);
    QCOMPARE(asked(polling, step), std::string("fast"));
    answer(polling, step, begin + 1s, values(1));
    QVERIFY(polling.next(begin + 1s).until == begin + 2s);
}

void tst_Polling::anAnswerIsAwaitedWhileAPlaceIsTaken()
{
    Polling polling = device(1s, 2);
    polling.start(begin);
    const Polling::Step first = polling.next(begin);
    QCOMPARE(asked(polling, first), std::string("fast"));
    const Polling::Step second = polling.next(begin);
    QCOMPARE(asked(polling, second), std::string("slow"));
    QVERIFY(polling.next(begin).what == What::Listen);
    answer(polling, second, begin, values(1));
    QVERIFY(polling.next(begin).what == What::Listen);
    answer(polling, first, begin, values(1));
    QVERIFY(polling.next(begin).what != What::Listen);
}

void tst_Polling::withoutRoundsItEnds()
{
    Polling polling = device(0s);
    QVERIFY(afterTheFirstRound(polling, begin).what == What::Done);
}

void tst_Polling::newsAreToldAfterARoundAndThenEverySecond()
{
    Polling polling = device(10s, 2);
    polling.start(begin);
    const Polling::Step fast = polling.next(begin);
    const Polling::Step slow = polling.next(begin);
    acsi::ReadAnswer unavailable;
    unavailable.kind = Kind::Results;
    unavailable.results = {mms::DataAccessError::TemporarilyUnavailable};
    answer(polling, fast, begin, unavailable);
    // Nothing is told before the first round is over.
    QVERIFY(polling.next(begin + 5s).what == What::Listen);
    answer(polling, slow, begin + 5s, values(1));
    QVERIFY(polling.next(begin + 5s).what == What::Tell);
    QVERIFY(polling.next(begin + 5s).what == What::Pause);
    QCOMPARE(polling.currency().summary().stale, 1U);
    // While a round goes on it is told once in a second at most.
    polling.currency().ask(Pace::Fast);
    polling.currency().ask(Pace::Slow);
    const auto turn = [&](Polling::Time now) {
        polling.currency().take(0, ValueCurrency::Source::Report, now);
        Polling::Step step = polling.next(now);
        while (step.what == What::Ask)
            step = polling.next(now);
        return step.what;
    };
    QVERIFY(turn(begin + 6s) == What::Tell);
    QVERIFY(turn(begin + 6999ms) == What::Listen);
    QVERIFY(turn(begin + 7s) == What::Tell);
    QVERIFY(polling.next(begin + 7s).what == What::Listen);
}

void tst_Polling::whatAnAnswerMeans_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("refused");
    QTest::addColumn<bool>("isSilent");
    const auto row = [](const char *name, Kind kind, mms::DataAccessError error, int refused,
                        bool isSilent) {
        QTest::newRow(name) << static_cast<int>(kind) << static_cast<int>(error) << refused
                            << isSilent;
    };
    using Error = mms::DataAccessError;
    row("too large", Kind::TooLarge, Error::ObjectInvalidated, 1, false);
    row("refused, denied", Kind::Refused, Error::ObjectAccessDenied, 1, false);
    row("refused, undefined", Kind::Refused, Error::ObjectUndefined, 1, false);
    row("refused, not there", Kind::Refused, Error::ObjectNonExistent, 1, false);
    row("refused, for the moment", Kind::Refused, Error::TemporarilyUnavailable, 0, false);
    row("rejected", Kind::Ended, Error::ObjectInvalidated, 0, false);
    row("silent", Kind::Silent, Error::ObjectInvalidated, 0, true);
}

void tst_Polling::whatAnAnswerMeans()
{
    QFETCH(int, kind);
    QFETCH(int, error);
    QFETCH(int, refused);
    QFETCH(bool, isSilent);
    Polling polling = device(1s);
    polling.start(begin);
    const Polling::Step step = polling.next(begin);
    QCOMPARE(asked(polling, step), std::string("fast"));
    acsi::ReadAnswer said = without(static_cast<Kind>(kind));
    said.error = static_cast<mms::DataAccessError>(error);
    answer(polling, step, begin, said);
    const ValueCurrency::Summary summary = polling.currency().summary();
    QCOMPARE(int(summary.refused), refused);
    QCOMPARE(int(summary.stale), 1 - refused);
    QCOMPARE(summary.isSilent, isSilent);
}

void tst_Polling::aRequestThatWasNotSentIsSentAgain()
{
    Polling polling = device(1s);
    polling.start(begin);
    answer(polling, polling.next(begin), begin, without(Kind::NotSent));
    QCOMPARE(asked(polling, polling.next(begin)), std::string("fast"));
    QCOMPARE(polling.currency().summary().stale, 0U);
}

void tst_Polling::aValueThatDoesNotFitIsRefused()
{
    Polling polling = device(1s);
    polling.start(begin);
    const Polling::Step step = polling.next(begin);
    std::string taken;
    polling.answered(step.question, values(1), begin,
                     [&taken](const acsi::Reference &reference, const mms::Data &value) {
                         taken = reference.node;
                         return !value.toBoolean().value_or(false);
                     });
    QCOMPARE(taken, std::string("fast"));
    QCOMPARE(polling.currency().summary().refused, 1U);
}

QTEST_GUILESS_MAIN(tst_Polling)
#include "tst_polling.moc"
