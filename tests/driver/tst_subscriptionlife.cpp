// SPDX-License-Identifier: Apache-2.0
#include "driver/core/subscriptionlife.h"
#include "driver/device/lastentries.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace std::chrono_literals;

namespace {

using Life = SubscriptionLife;
using Result = Life::Result;
using State = Life::State;

const Life::Time start = Life::Time() + 1h;
const QString held = QStringLiteral("held");
const QString refused = QStringLiteral("refused");

} // namespace

class tst_SubscriptionLife : public QObject
{
    Q_OBJECT

private slots:
    void anEnabledBlockIsTakenUntilItStops();
    void aHeldBlockIsLookedAtAgainAndAgain();
    void refusalsAreRepeatedLessAndLessOften();
    void onlyAnotherOutcomeIsNews();
    void anAssociationThatStandsAgainIsTriedAtOnce();
    void aDataSetIsReadAtOnceAndNotTooOften();
    void whatGoesMissingWhileReadingIsReadAgain();
    void aReadingThatFailsIsRepeatedLater();
    void entriesAreKeptByTheirTerms();
    void entriesOutliveTheDriver();
    void entriesOfAnotherDeviceAndBrokenFilesAreNothing();
};

void tst_SubscriptionLife::anEnabledBlockIsTakenUntilItStops()
{
    Life life;
    QVERIFY(life.isDue(start));
    life.begin();
    QVERIFY(life.state() == State::Enabling);
    QVERIFY(!life.isDue(start));
    QVERIFY(life.ended(Result::Enabled, {}, start));
    QVERIFY(life.isTaking());
    QVERIFY(!life.isDue(start + 1h));
    life.stopped(start + 1s);
    QVERIFY(!life.isTaking());
    QVERIFY(life.isDue(start + 1s));
}

void tst_SubscriptionLife::aHeldBlockIsLookedAtAgainAndAgain()
{
    Life life;
    Life::Time now = start;
    for (int i = 0; i < 20; ++i) {
        life.begin();
        QCOMPARE(life.ended(Result::Held, held, now), i == 0);
        QVERIFY(life.isHeld());
        QCOMPARE(life.sentence(), held);
        QVERIFY(!life.isDue(now + 2999ms));
        QVERIFY(life.isDue(now += 3s));
    }
}

void tst_SubscriptionLife::refusalsAreRepeatedLessAndLessOften()
{
    Life life;
    Life::Time now = start;
    for (const auto pause : {3s, 6s, 12s, 24s, 30s, 30s}) {
        life.begin();
        life.ended(Result::Refused, refused, now);
        QVERIFY(!life.isDue(now + pause - 1ms));
        QVERIFY(life.isDue(now += pause));
    }
    // Once it is free it is looked at as often as before.
    life.begin();
    life.ended(Result::Held, held, now);
    QVERIFY(life.isDue(now + 3s));
}

void tst_SubscriptionLife::onlyAnotherOutcomeIsNews()
{
    Life life;
    QVERIFY(life.ended(Result::Refused, refused, start));
    QVERIFY(!life.ended(Result::Refused, refused, start));
    QVERIFY(life.ended(Result::Refused, held, start));
    QVERIFY(life.ended(Result::Held, held, start));
    QVERIFY(life.ended(Result::Enabled, {}, start));
    QVERIFY(life.sentence().isEmpty());
    QVERIFY(!life.ended(Result::Enabled, {}, start));
    // A block that was lost and is enabled again is news, one that is refused as before is not.
    life.closed();
    QVERIFY(life.ended(Result::Enabled, {}, start));
    QVERIFY(life.ended(Result::Held, held, start));
    life.closed();
    QVERIFY(!life.ended(Result::Held, held, start));
}

void tst_SubscriptionLife::anAssociationThatStandsAgainIsTriedAtOnce()
{
    Life life;
    for (int i = 0; i < 5; ++i)
        life.ended(Result::Refused, refused, start);
    life.closed();
    QVERIFY(life.isDue(start));
    life.ended(Result::Refused, refused, start);
    QVERIFY(life.isDue(start + 3s));
}

void tst_SubscriptionLife::aDataSetIsReadAtOnceAndNotTooOften()
{
    DataSetMending mending;
    QVERIFY(!mending.isDue(start));
    mending.need();
    QVERIFY(mending.isDue(start));
    mending.begin(start);
    QVERIFY(!mending.isDue(start));
    QVERIFY(mending.ended(true, start));
    QVERIFY(!mending.isNeeded());
    mending.need();
    QVERIFY(!mending.isDue(start + 999ms));
    QVERIFY(mending.isDue(start + 1s));
    mending.reset();
    QVERIFY(!mending.isNeeded());
}

void tst_SubscriptionLife::whatGoesMissingWhileReadingIsReadAgain()
{
    DataSetMending mending;
    mending.need();
    mending.begin(start);
    mending.need();
    QVERIFY(!mending.ended(true, start + 100ms));
    QVERIFY(mending.isNeeded());
    QVERIFY(mending.isDue(start + 1s));
    mending.begin(start + 1s);
    QVERIFY(mending.ended(true, start + 1s));
}

void tst_SubscriptionLife::aReadingThatFailsIsRepeatedLater()
{
    DataSetMending mending;
    mending.need();
    mending.begin(start);
    QVERIFY(!mending.ended(false, start + 500ms));
    QVERIFY(!mending.isDue(start + 3s));
    QVERIFY(mending.isDue(start + 3500ms));
}

void tst_SubscriptionLife::entriesAreKeptByTheirTerms()
{
    LastEntries entries({}, "device");
    const LastEntries::Terms terms{"set", "id", "011001", 50, 0};
    QVERIFY(!entries.find("block", terms));
    entries.set("block", terms, {1, 2});
    QVERIFY(entries.find("block", terms) == LastEntries::EntryId({1, 2}));
    QVERIFY(!entries.find("other", terms));
    for (const LastEntries::Terms &changed : {LastEntries::Terms{"other", "id", "011001", 50, 0},
                                              LastEntries::Terms{"set", "other", "011001", 50, 0},
                                              LastEntries::Terms{"set", "id", "010001", 50, 0},
                                              LastEntries::Terms{"set", "id", "011001", 51, 0},
                                              LastEntries::Terms{"set", "id", "011001", 50, 1}})
        QVERIFY(!entries.find("block", changed));
    entries.forget("block");
    QVERIFY(!entries.find("block", terms));
}

void tst_SubscriptionLife::entriesOutliveTheDriver()
{
    const QTemporaryDir folder;
    // Octets that are no text survive as well.
    const LastEntries::Terms terms{"set", QByteArray("\xff\xfe"), "011001", 4000000000U, 7};
    {
        LastEntries entries(folder.filePath("made/when/needed"), "device");
        entries.set("block", terms, {0, 255});
        entries.save();
    }
    const LastEntries again(folder.filePath("made/when/needed"), "device");
    QVERIFY(again.find("block", terms) == LastEntries::EntryId({0, 255}));
    const LastEntries other(folder.filePath("made/when/needed"), "other device");
    QVERIFY(!other.find("block", terms));
}

void tst_SubscriptionLife::entriesOfAnotherDeviceAndBrokenFilesAreNothing()
{
    const QTemporaryDir folder;
    const LastEntries::Terms terms{"set", "id", "011001", 50, 0};
    {
        LastEntries entries(folder.path(), "device");
        entries.set("block", terms, {1});
        entries.save();
    }
    const QStringList names = QDir(folder.path()).entryList({"*.entries"});
    QCOMPARE(names.size(), 1);
    QFile file(folder.filePath(names.first()));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray content = file.readAll();
    for (const QByteArray &broken :
         {content.left(content.size() / 2), QByteArray("[]"), QByteArray(),
          QByteArray(content).replace("\"device\":\"device\"", "\"device\":\"else\"")}) {
        QVERIFY(file.resize(0) && file.seek(0) && file.write(broken) == broken.size());
        QVERIFY(file.flush());
        const LastEntries entries(folder.path(), "device");
        QVERIFY(!entries.find("block", terms));
    }
}

QTEST_GUILESS_MAIN(tst_SubscriptionLife)
#include "tst_subscriptionlife.moc"
