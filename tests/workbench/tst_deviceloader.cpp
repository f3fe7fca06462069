// SPDX-License-Identifier: Apache-2.0
#include "workbench/deviceloader.h"

#include <QtCore/QSemaphore>
#include <QtCore/QThread>
#include <QtTest/QtTest>

namespace {

struct Outcome
{
    int ticket;
    ImportResult result;
    QThread *thread;
};

ImportResult imported(const ImportRequest &request)
{
    ImportResult result;
    result.status = ImportResult::Imported;
    result.ied = request.ied;
    return result;
}

} // namespace

class tst_DeviceLoader : public QObject
{
    Q_OBJECT

private slots:
    void aFileIsReadOutsideTheGuiThreadAndReportedInIt();
    void filesAreReadInTheOrderOfTheRequests();
    void aQuickLoadIsNeverCalledSlow();
    void aSlowLoadReportsItsProgress();
    void cancellingReportsEverythingThatWaits();
    void aFileReadToItsEndWhileBeingCancelledIsCancelled();
    void theLoaderCanBeDestroyedWhileItLoads();
    void theLoaderCanBeUsedAgainAfterCancelling();
};

void tst_DeviceLoader::aFileIsReadOutsideTheGuiThreadAndReportedInIt()
{
    QThread *importThread = nullptr;
    DeviceLoader loader([&](const ImportRequest &request, const auto &, const auto &) {
        importThread = QThread::currentThread();
        return imported(request);
    });
    QVector<Outcome> outcomes;
    connect(&loader, &DeviceLoader::finished, this, [&](int ticket, const ImportResult &result) {
        outcomes.append({ticket, result, QThread::currentThread()});
    });
    const int ticket = loader.load({QStringLiteral("a.scd"), QStringLiteral("A")});
    QVERIFY(loader.isBusy());
    QTRY_COMPARE(outcomes.size(), 1);
    QCOMPARE(outcomes[0].ticket, ticket);
    QCOMPARE(outcomes[0].result.status, ImportResult::Imported);
    QCOMPARE(outcomes[0].result.ied, QStringLiteral("A"));
    QCOMPARE(outcomes[0].thread, QThread::currentThread());
    QVERIFY(importThread && importThread != QThread::currentThread());
    QVERIFY(!loader.isBusy());
}

void tst_DeviceLoader::filesAreReadInTheOrderOfTheRequests()
{
    DeviceLoader loader(
        [](const ImportRequest &request, const auto &, const auto &) { return imported(request); });
    QVector<int> tickets;
    connect(&loader, &DeviceLoader::finished, this,
            [&](int ticket, const ImportResult &) { tickets << ticket; });
    QSignalSpy idle(&loader, &DeviceLoader::idle);
    QVector<int> expected;
    for (int i = 0; i < 20; ++i)
        expected << loader.load({QString::number(i), {}});
    QTRY_COMPARE(tickets.size(), expected.size());
    QCOMPARE(tickets, expected);
    QCOMPARE(idle.size(), 1);
}

void tst_DeviceLoader::aQuickLoadIsNeverCalledSlow()
{
    DeviceLoader loader(
        [](const ImportRequest &request, const auto &, const auto &) { return imported(request); });
    QSignalSpy slow(&loader, &DeviceLoader::slow);
    QSignalSpy idle(&loader, &DeviceLoader::idle);
    loader.load({QStringLiteral("a.scd"), {}});
    QVERIFY(idle.wait());
    // Waits past the time at which a load that is still under way would be called slow.
    QVERIFY(!slow.wait(static_cast<int>(2 * DeviceLoader::slowAfter.count())));
}

void tst_DeviceLoader::aSlowLoadReportsItsProgress()
{
    QSemaphore mayEnd;
    DeviceLoader loader([&](const ImportRequest &request, const auto &, const auto &progress) {
        progress(0.25);
        mayEnd.acquire();
        return imported(request);
    });
    QSignalSpy slow(&loader, &DeviceLoader::slow);
    QSignalSpy progressed(&loader, &DeviceLoader::progressed);
    QSignalSpy idle(&loader, &DeviceLoader::idle);
    QElapsedTimer timer;
    timer.start();
    loader.load({QStringLiteral("a.scd"), {}});
    QVERIFY(slow.wait());
    // Qt's coarse timers may fire up to five per cent early.
    QVERIFY(timer.elapsed() >= DeviceLoader::slowAfter.count() * 9 / 10);
    QTRY_VERIFY(!progressed.isEmpty());
    QCOMPARE(progressed.last().at(0).toString(), QStringLiteral("a.scd"));
    QCOMPARE(progressed.last().at(1).toInt(), 250);
    mayEnd.release();
    QVERIFY(idle.wait());
    QCOMPARE(slow.size(), 1);
}

void tst_DeviceLoader::cancellingReportsEverythingThatWaits()
{
    QSemaphore begun;
    DeviceLoader loader(
        [&](const ImportRequest &, const std::atomic<bool> &cancelled, const auto &) {
            begun.release();
            while (!cancelled)
                QThread::yieldCurrentThread();
            ImportResult result;
            result.status = ImportResult::Cancelled;
            return result;
        });
    QVector<ImportResult::Status> states;
    connect(&loader, &DeviceLoader::finished, this,
            [&](int, const ImportResult &result) { states << result.status; });
    loader.load({QStringLiteral("a.scd"), {}});
    loader.load({QStringLiteral("b.scd"), {}});
    QVERIFY(begun.tryAcquire(1, 5000));
    loader.cancel();
    QTRY_COMPARE(states.size(), 2);
    QCOMPARE(states,
             (QVector<ImportResult::Status>{ImportResult::Cancelled, ImportResult::Cancelled}));
    QVERIFY2(!begun.tryAcquire(), "a request that was cancelled while it waited is not begun");
}

void tst_DeviceLoader::aFileReadToItsEndWhileBeingCancelledIsCancelled()
{
    QSemaphore begun;
    QSemaphore mayEnd;
    DeviceLoader loader([&](const ImportRequest &request, const auto &, const auto &) {
        begun.release();
        mayEnd.acquire();
        return imported(request);
    });
    QVector<ImportResult> results;
    connect(&loader, &DeviceLoader::finished, this,
            [&](int, const ImportResult &result) { results << result; });
    loader.load({QStringLiteral("a.scd"), QStringLiteral("A")});
    QVERIFY(begun.tryAcquire(1, 5000));
    loader.cancel();
    mayEnd.release();
    QTRY_COMPARE(results.size(), 1);
    QCOMPARE(results[0].status, ImportResult::Cancelled);
}

void tst_DeviceLoader::theLoaderCanBeDestroyedWhileItLoads()
{
    QSemaphore begun;
    bool reported = false;
    {
        DeviceLoader loader(
            [&](const ImportRequest &request, const std::atomic<bool> &cancelled, const auto &) {
                begun.release();
                while (!cancelled)
                    QThread::yieldCurrentThread();
                return imported(request);
            });
        connect(&loader, &DeviceLoader::finished, this, [&] { reported = true; });
        loader.load({QStringLiteral("a.scd"), {}});
        loader.load({QStringLiteral("b.scd"), {}});
        QVERIFY(begun.tryAcquire(1, 5000));
    }
    QCoreApplication::processEvents();
    QVERIFY(!reported);
}

void tst_DeviceLoader::theLoaderCanBeUsedAgainAfterCancelling()
{
    DeviceLoader loader(
        [](const ImportRequest &request, const auto &, const auto &) { return imported(request); });
    QVector<ImportResult::Status> states;
    connect(&loader, &DeviceLoader::finished, this,
            [&](int, const ImportResult &result) { states << result.status; });
    loader.load({QStringLiteral("a.scd"), {}});
    loader.cancel();
    QTRY_COMPARE(states.size(), 1);
    loader.load({QStringLiteral("a.scd"), {}});
    QTRY_COMPARE(states.size(), 2);
    QCOMPARE(states[1], ImportResult::Imported);
}

QTEST_GUILESS_MAIN(tst_DeviceLoader)
#include "tst_deviceloader.moc"
