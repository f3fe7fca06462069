// SPDX-License-Identifier: Apache-2.0
#include "driver/administration/driverobservers.h"

#include <QtCore/QSemaphore>
#include <QtTest/QtTest>

#include <stdexcept>
#include <thread>

namespace {

constexpr int patience = 20000; // milliseconds, for what must happen

/// What an observer was told, in words; any thread.
class Told
{
public:
    void add(const QString &news)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_news.append(news);
        }
        m_count.release();
    }
    /// The next @p count news; fewer when they do not come.
    QStringList take(int count)
    {
        QStringList result;
        for (int i = 0; i < count && m_count.tryAcquire(1, patience); ++i) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            result.append(m_news.takeFirst());
        }
        return result;
    }
    int waiting() const { return m_count.available(); }

    DriverObserver observer()
    {
        DriverObserver observer;
        observer.statusChanged = [this](const DeviceStatus &status) {
            add(QStringLiteral("%1 is %2").arg(status.number).arg(status.reason));
        };
        observer.deviceRemoved = [this](int number) {
            add(QStringLiteral("%1 is gone").arg(number));
        };
        observer.changed = [this](const DeviceChange &change) {
            add(QStringLiteral("%1 changed %2").arg(change.number).arg(change.reference));
        };
        observer.reportReceived = [this](const ReportEvent &event) {
            add(event.sequenceNumber
                    ? QStringLiteral("%1 reports %2").arg(event.number).arg(*event.sequenceNumber)
                    : QStringLiteral("%1 lacks %2").arg(event.number).arg(event.missing.left(2)));
        };
        return observer;
    }

private:
    std::mutex m_mutex;
    QStringList m_news;
    QSemaphore m_count;
};

/// Lines as they would be exchanged with a device.
class Lines : public TraceSource
{
public:
    explicit Lines(int count)
        : m_count(count)
    {
    }
    void add(int count) { m_count += count; }
    QVector<TraceLine> trace(int most, std::uint64_t after) const override
    {
        const int count = m_count;
        QVector<TraceLine> lines;
        for (int i = qMax(static_cast<int>(after), count - most) + 1; i <= count; ++i) {
            TraceLine line;
            line.number = static_cast<std::uint64_t>(i);
            lines.append(line);
        }
        return lines;
    }

private:
    std::atomic<int> m_count;
};

QString numbersOf(const QVector<TraceLine> &lines)
{
    return lines.isEmpty()
               ? QStringLiteral("none")
               : QStringLiteral("%1-%2").arg(lines.first().number).arg(lines.last().number);
}

ReportEvent reportOf(int number, quint32 sequence)
{
    ReportEvent event;
    event.number = number;
    event.sequenceNumber = sequence;
    return event;
}

DeviceChange changeOf(int number, const QString &reference)
{
    DeviceChange change;
    change.number = number;
    change.reference = reference;
    return change;
}

} // namespace

class tst_DriverObservers : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void whoSubscribesIsToldThePresentStateFirst();
    void nothingIsLostBetweenThePresentStateAndWhatComes();
    void newsComeInTheOrderOfWhatHappened();
    void whatIsTheSameIsNotToldAgain();
    void aDeviceThatIsTakenOffIsGone();
    void onlyWhatIsAskedForIsTold();
    void nothingComesAfterUnsubscribing();
    void unsubscribingWaitsForTheCallThatIsUnderWay();
    void anObserverMayUnsubscribeInItsOwnCall();
    void anObserverThatThrowsGoesOnToBeTold();
    void anObserverThatBlocksCostsNobodyElse();
    void reportsThatAreNotTakenInTimeGiveWayAndAreCounted();
    void statusesThatAreNotTakenInTimeGiveWayToNewerOnes();
    void whatWaitsAtTheEndOfTheDriverIsToldYet();
    void aTraceBeginsWithWhatIsRememberedAndLosesNothing();
    void aTraceGoesOnWithADeviceThatIsConfiguredAnew();

private:
    void start(const DriverObservers::Limits &limits);
    void be(int number, const QString &reason)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_devices[number].status.number = number;
            m_devices[number].status.reason = reason;
        }
        m_observers->deviceChanged(number);
    }
    void setTrace(int number, const std::shared_ptr<const TraceSource> &trace)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_devices[number].status.number = number;
            m_devices[number].trace = trace;
        }
        m_observers->deviceChanged(number);
    }
    void remove(int number)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_devices.erase(number);
        }
        m_observers->deviceChanged(number);
    }

    std::mutex m_mutex;
    std::map<int, DriverObservers::Device> m_devices;
    std::unique_ptr<DriverObservers> m_observers;
};

void tst_DriverObservers::init()
{
    m_devices.clear();
    start(DriverObservers::Limits());
}

void tst_DriverObservers::start(const DriverObservers::Limits &limits)
{
    m_observers = std::make_unique<DriverObservers>(
        [this](int number) -> std::optional<DriverObservers::Device> {
            const std::lock_guard<std::mutex> lock(m_mutex);
            const auto found = m_devices.find(number);
            if (found == m_devices.end())
                return std::nullopt;
            return found->second;
        },
        limits);
}

void tst_DriverObservers::whoSubscribesIsToldThePresentStateFirst()
{
    be(1, "away");
    be(2, "there");
    be(1, "there");
    Told told;
    const auto subscription = m_observers->add(told.observer());
    be(2, "away");
    QCOMPARE(told.take(3), (QStringList{"1 is there", "2 is there", "2 is away"}));
}

void tst_DriverObservers::nothingIsLostBetweenThePresentStateAndWhatComes()
{
    constexpr int last = 2000;
    start({last + 1, 1}); // none gives way
    be(1, "0");
    std::thread device([this] {
        for (int i = 1; i <= last; ++i)
            be(1, QString::number(i));
    });
    for (int subscriber = 0; subscriber < 20; ++subscriber) {
        std::mutex mutex;
        QVector<int> seen;
        QSemaphore hasEnded;
        DriverObserver observer;
        observer.statusChanged = [&](const DeviceStatus &status) {
            const std::lock_guard<std::mutex> lock(mutex);
            seen.append(status.reason.toInt());
            if (seen.last() == last || seen.size() == 50)
                hasEnded.release();
        };
        const auto subscription = m_observers->add(observer);
        const bool ended = hasEnded.tryAcquire(1, patience);
        const std::lock_guard<std::mutex> lock(mutex);
        if (!ended || seen.isEmpty()) {
            device.join();
            QFAIL("no news");
        }
        for (int i = 1; i < qMin(seen.size(), 50); ++i) {
            if (seen[i] != seen[i - 1] + 1) {
                const int before = seen[i - 1];
                const int behind = seen[i];
                device.join();
                QCOMPARE(behind, before + 1);
            }
        }
    }
    device.join();
}

void tst_DriverObservers::newsComeInTheOrderOfWhatHappened()
{
    Told told;
    const auto subscription = m_observers->add(told.observer());
    be(1, "there");
    m_observers->tell(reportOf(1, 7));
    m_observers->tell(changeOf(1, "Pos"));
    m_observers->tell(reportOf(2, 1));
    be(1, "away");
    remove(1);
    be(1, "back");
    QCOMPARE(told.take(7), (QStringList{"1 is there", "1 reports 7", "1 changed Pos", "2 reports 1",
                                        "1 is away", "1 is gone", "1 is back"}));
}

void tst_DriverObservers::whatIsTheSameIsNotToldAgain()
{
    Told told;
    const auto subscription = m_observers->add(told.observer());
    be(1, "there");
    be(1, "there");
    m_observers->devicesChanged();
    be(1, "away");
    QCOMPARE(told.take(2), (QStringList{"1 is there", "1 is away"}));
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_devices[1].status.counters.reports = 3;
    }
    m_observers->devicesChanged();
    QCOMPARE(told.take(1), QStringList("1 is away"));
    QCOMPARE(told.waiting(), 0);
}

void tst_DriverObservers::aDeviceThatIsTakenOffIsGone()
{
    be(1, "there");
    be(2, "there");
    remove(1);
    Told told;
    const auto subscription = m_observers->add(told.observer());
    remove(2);
    remove(2);
    be(3, "there");
    QCOMPARE(told.take(3), (QStringList{"2 is there", "2 is gone", "3 is there"}));
}

void tst_DriverObservers::onlyWhatIsAskedForIsTold()
{
    QVERIFY(!m_observers->wantReports());
    Told told;
    DriverObserver observer;
    observer.changed = told.observer().changed;
    const auto subscription = m_observers->add(observer);
    QVERIFY(!m_observers->wantReports());
    be(1, "there");
    m_observers->tell(reportOf(1, 1));
    remove(1);
    m_observers->tell(changeOf(1, "Pos"));
    QCOMPARE(told.take(1), QStringList("1 changed Pos"));
    auto other = m_observers->add(told.observer());
    QVERIFY(m_observers->wantReports());
    other.reset();
    QVERIFY(!m_observers->wantReports());
}

void tst_DriverObservers::nothingComesAfterUnsubscribing()
{
    Told told;
    Told other;
    auto subscription = m_observers->add(told.observer());
    const auto remaining = m_observers->add(other.observer());
    be(1, "there");
    QCOMPARE(told.take(1), QStringList("1 is there"));
    subscription.reset();
    be(1, "away");
    QCOMPARE(other.take(2), (QStringList{"1 is there", "1 is away"}));
    QCOMPARE(told.waiting(), 0);
}

void tst_DriverObservers::unsubscribingWaitsForTheCallThatIsUnderWay()
{
    QSemaphore hasBegun;
    QSemaphore mayEnd;
    std::atomic<int> ended{0};
    DriverObserver observer;
    observer.statusChanged = [&](const DeviceStatus &) {
        hasBegun.release();
        mayEnd.acquire();
        ++ended;
    };
    auto subscription = m_observers->add(observer);
    be(1, "there");
    be(1, "away");
    QVERIFY(hasBegun.tryAcquire(1, patience));
    QSemaphore isUnsubscribed;
    std::thread unsubscribing([&] {
        subscription.reset();
        isUnsubscribed.release();
    });
    const bool hasWaited = !isUnsubscribed.tryAcquire(1, 200);
    mayEnd.release(2);
    unsubscribing.join();
    QVERIFY(hasWaited);
    // Of the two calls only the one that was under way.
    QCOMPARE(ended, 1);
    QCOMPARE(hasBegun.available(), 0);
}

void tst_DriverObservers::anObserverMayUnsubscribeInItsOwnCall()
{
    Told told;
    std::mutex mutex;
    std::unique_ptr<DriverSubscription> subscription;
    DriverObserver observer;
    observer.statusChanged = [&](const DeviceStatus &status) {
        const std::lock_guard<std::mutex> lock(mutex);
        subscription.reset();
        told.add(status.reason);
    };
    {
        const std::lock_guard<std::mutex> lock(mutex);
        subscription = m_observers->add(observer);
        be(1, "there");
        be(1, "away");
    }
    QCOMPARE(told.take(1), QStringList("there"));
    Told other;
    const auto remaining = m_observers->add(other.observer());
    be(1, "back");
    QCOMPARE(other.take(2), (QStringList{"1 is away", "1 is back"}));
    QCOMPARE(told.waiting(), 0);
}

void tst_DriverObservers::anObserverThatThrowsGoesOnToBeTold()
{
    Told told;
    DriverObserver observer;
    observer.statusChanged = [&](const DeviceStatus &status) {
        told.add(status.reason);
        if (status.reason == "away")
            throw std::runtime_error("out of ideas");
        if (status.reason == "lost")
            throw 1;
    };
    QTest::ignoreMessage(QtWarningMsg, "DriverObserver: out of ideas");
    QTest::ignoreMessage(QtWarningMsg, "DriverObserver: ?");
    const auto subscription = m_observers->add(observer);
    Told other;
    const auto remaining = m_observers->add(other.observer());
    for (const char *reason : {"away", "lost", "there"})
        be(1, reason);
    QCOMPARE(told.take(3), (QStringList{"away", "lost", "there"}));
    QCOMPARE(other.take(3), (QStringList{"1 is away", "1 is lost", "1 is there"}));
}

void tst_DriverObservers::anObserverThatBlocksCostsNobodyElse()
{
    QSemaphore mayEnd;
    DriverObserver observer;
    observer.statusChanged = [&](const DeviceStatus &) { mayEnd.acquire(); };
    auto blocked = m_observers->add(observer);
    Told told;
    const auto subscription = m_observers->add(told.observer());
    for (int i = 0; i < 100; ++i) {
        be(1, QString::number(i));
        QCOMPARE(told.take(1), QStringList(QStringLiteral("1 is %1").arg(i)));
    }
    mayEnd.release(100);
}

void tst_DriverObservers::reportsThatAreNotTakenInTimeGiveWayAndAreCounted()
{
    start({3, 3});
    Told told;
    QSemaphore mayBegin;
    DriverObserver observer = told.observer();
    observer.changed = [&](const DeviceChange &) { mayBegin.acquire(); };
    const auto subscription = m_observers->add(observer);
    m_observers->tell(changeOf(1, "Pos"));
    for (quint32 i = 0; i < 3; ++i)
        QCOMPARE(m_observers->tell(reportOf(1, i)), std::uint64_t(0));
    QCOMPARE(m_observers->tell(reportOf(2, 0)), std::uint64_t(0));
    for (quint32 i = 3; i < 5; ++i)
        QCOMPARE(m_observers->tell(reportOf(1, i)), std::uint64_t(1));
    mayBegin.release();
    QCOMPARE(told.take(5), (QStringList{"1 lacks 2 ", "1 reports 2", "1 reports 3", "1 reports 4",
                                        "2 reports 0"}));
    QCOMPARE(m_observers->tell(reportOf(1, 5)), std::uint64_t(0));
    QCOMPARE(told.take(1), QStringList("1 reports 5"));
}

void tst_DriverObservers::statusesThatAreNotTakenInTimeGiveWayToNewerOnes()
{
    start({3, 3});
    Told told;
    QSemaphore mayBegin;
    DriverObserver observer = told.observer();
    observer.changed = [&](const DeviceChange &) { mayBegin.acquire(); };
    const auto subscription = m_observers->add(observer);
    m_observers->tell(changeOf(1, "Pos"));
    be(2, "there");
    for (int i = 0; i < 100; ++i)
        be(1, QString::number(i));
    mayBegin.release();
    QCOMPARE(told.take(4), (QStringList{"2 is there", "1 is 97", "1 is 98", "1 is 99"}));
    QCOMPARE(told.waiting(), 0);
}

void tst_DriverObservers::whatWaitsAtTheEndOfTheDriverIsToldYet()
{
    Told told;
    QSemaphore mayBegin;
    DriverObserver observer = told.observer();
    observer.statusChanged = [&](const DeviceStatus &) { mayBegin.acquire(); };
    auto subscription = m_observers->add(observer);
    be(1, "there");
    m_observers->tell(changeOf(1, "Pos"));
    m_observers->tell(reportOf(1, 1));
    m_observers.reset();
    mayBegin.release();
    subscription.reset();
    QCOMPARE(told.waiting(), 2);
    QCOMPARE(told.take(2), (QStringList{"1 changed Pos", "1 reports 1"}));
}

void tst_DriverObservers::aTraceBeginsWithWhatIsRememberedAndLosesNothing()
{
    const auto lines = std::make_shared<Lines>(5);
    setTrace(1, lines);
    setTrace(2, std::make_shared<Lines>(7));
    Told told;
    Told none;
    const auto subscription = m_observers->addTrace(
        1, 3, [&told](const QVector<TraceLine> &each) { told.add(numbersOf(each)); });
    const auto empty = m_observers->addTrace(
        3, 3, [&none](const QVector<TraceLine> &each) { none.add(numbersOf(each)); });
    QCOMPARE(told.take(1), QStringList("3-5"));
    QCOMPARE(none.take(1), QStringList("none"));
    m_observers->exchanged(1);
    m_observers->exchanged(2);
    lines->add(2);
    m_observers->exchanged(1);
    QCOMPARE(told.take(1), QStringList("6-7"));
    lines->add(10);
    m_observers->exchanged(1);
    QCOMPARE(told.take(1), QStringList("15-17"));
    QCOMPARE(told.waiting(), 0);
    QCOMPARE(none.waiting(), 0);
}

void tst_DriverObservers::aTraceGoesOnWithADeviceThatIsConfiguredAnew()
{
    Told told;
    const auto subscription = m_observers->addTrace(
        1, 10, [&told](const QVector<TraceLine> &each) { told.add(numbersOf(each)); });
    QCOMPARE(told.take(1), QStringList("none"));
    setTrace(1, std::make_shared<Lines>(4));
    QCOMPARE(told.take(1), QStringList("1-4"));
    remove(1);
    const auto lines = std::make_shared<Lines>(0);
    setTrace(1, lines);
    m_observers->exchanged(1);
    lines->add(1);
    m_observers->exchanged(1);
    QCOMPARE(told.take(1), QStringList("1-1"));
}

QTEST_GUILESS_MAIN(tst_DriverObservers)
#include "tst_driverobservers.moc"
