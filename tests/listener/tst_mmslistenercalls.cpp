// SPDX-License-Identifier: Apache-2.0
#include "recordingmiddleware.h"

#include <listener/mmslistener.h>

#include <QtCore/QDataStream>
#include <QtCore/QMetaMethod>
#include <QtTest/QtTest>

#include <memory>
#include <mutex>

using namespace std::chrono_literals;

/// The listener, and the lists it emitted.
class ObservedListener
{
public:
    ObservedListener()
    {
        QObject::connect(
            &m_listener, &MMSListener::processMMSMessage, &m_listener,
            [this](const QList<MMSValue> &values) {
                const std::lock_guard<std::mutex> lock(m_mutex);
                m_batches.append(values);
                RecordingMiddleware::instance().note(
                    QStringLiteral("processMMSMessage(%1)").arg(values.size()),
                    std::chrono::steady_clock::now());
            },
            Qt::DirectConnection);
    }

    MMSListener &operator*() { return m_listener; }
    MMSListener *operator->() { return &m_listener; }

    QList<QList<MMSValue>> batches()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_batches;
    }

private:
    std::mutex m_mutex;
    QList<QList<MMSValue>> m_batches;
    MMSListener m_listener{nullptr};
};

class tst_MMSListenerCalls : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_middleware.reset(); }
    void constructingAndDestroyingTouchesNothing();
    void theClassHasOneSignalAndNoSlotOfItsOwn();
    void theBoxNameIsThePrefixAndAUuid();
    void twoListenersHaveTwoBoxes();
    void aMissingBoxIsCreatedInTheFirstPassAndConnectedInTheSecond();
    void anotherConnectErrorIsTriedAgain();
    void nothingReceivedKeepsThePort();
    void anyOtherReceiveErrorConnectsAgain_data();
    void anyOtherReceiveErrorConnectsAgain();
    void aReceivedEventIsEmittedThenReleasedAfterAPause();
    void everyRecordBecomesAValueInOrder();
    void aRecordThatIsNoValueBecomesAnEmptyOne();
    void anEventWithoutRecordsIsEmittedAsAnEmptyList();
    void recordsOfAFailedReceiveAreReleasedAndNotEmitted();
    void passesAreFiveMillisecondsApart();
    void aStopRequestEndsTheThreadAfterTheReceiveInCourse();
    void aStopRequestAfterADeliveredEventEndsTheThread();
    void aStopRequestDuringTheConnectSkipsTheReceive();
    void aStopRequestBeforeTheThreadBeginsEndsItAfterOnePass();
    void aStoppedListenerStartsAgain();
    void stoppingAListenerThatNeverRanReturnsAtOnce();
    void destroyingARunningListenerStopsIt();

private:
    /// Runs a listener through the script and stops it.
    void runScript(ObservedListener &listener)
    {
        listener->start();
        QVERIFY(m_middleware.awaitEnd());
        listener->stop();
        QVERIFY(listener->isFinished());
    }

    RecordingMiddleware &m_middleware = RecordingMiddleware::instance();
};

namespace {

const QString connectsFrom0 = QStringLiteral("ConnectPortForRecv(\"BOX\", 0, null, null)");
const QString connectsFrom7 = QStringLiteral("ConnectPortForRecv(\"BOX\", 7, null, null)");
const QString creates = QStringLiteral("CreateEventBox(\"BOX\", 20005, 30000, null, null)");
const QString setsPersistence = QStringLiteral("SetPersistent(\"BOX\", false, null, null)");
const QString receivesFrom7 =
    QStringLiteral("ReceiveEventN(7, empty, \"MMS_VALUE\", 500, 1, null, null)");
const QString receivesFrom8 =
    QStringLiteral("ReceiveEventN(8, empty, \"MMS_VALUE\", 500, 1, null, null)");
const QString releasesNone = QStringLiteral("DestoryTavrixDataList(0)");

QByteArray recordOf(const QString &reference, const QVariant &value)
{
    MMSValue mmsValue;
    mmsValue.reference = reference;
    mmsValue.value = value;
    QByteArray record;
    QDataStream stream(&record, QIODevice::WriteOnly);
    mmsValue.toStream(stream);
    return record;
}

} // namespace

void tst_MMSListenerCalls::constructingAndDestroyingTouchesNothing()
{
    {
        const MMSListener listener(nullptr);
        QVERIFY(!listener.isRunning());
    }
    QCOMPARE(m_middleware.texts(), QStringList());

    QObject window;
    QCOMPARE((new MMSListener(&window))->parent(), &window);
}

void tst_MMSListenerCalls::theClassHasOneSignalAndNoSlotOfItsOwn()
{
    const QMetaObject &meta = MMSListener::staticMetaObject;
    QCOMPARE(meta.className(), "MMSListener");
    QCOMPARE(meta.superClass(), &QThread::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             QByteArray("processMMSMessage(QList<MMSValue>)"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_MMSListenerCalls::theBoxNameIsThePrefixAndAUuid()
{
    m_middleware.connects(0, 7);
    ObservedListener listener;
    runScript(listener);
    QCOMPARE(m_middleware.boxNames(), QStringList(listener->eventBoxName()));
    const QRegularExpression form(QStringLiteral(
        "^MMS_DATACHANGE:\\{[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\}$"));
    QVERIFY2(form.match(listener->eventBoxName()).hasMatch(), qPrintable(listener->eventBoxName()));
}

void tst_MMSListenerCalls::twoListenersHaveTwoBoxes()
{
    ObservedListener one;
    ObservedListener two;
    runScript(one);
    m_middleware.connects(0, 7);
    runScript(two);
    QCOMPARE(m_middleware.boxNames(), QStringList({one->eventBoxName(), two->eventBoxName()}));
    QVERIFY(one->eventBoxName() != two->eventBoxName());
}

void tst_MMSListenerCalls::aMissingBoxIsCreatedInTheFirstPassAndConnectedInTheSecond()
{
    m_middleware.connects(2001).connects(0, 7);
    ObservedListener listener;
    runScript(listener);
    QCOMPARE(m_middleware.texts(), QStringList({connectsFrom0, creates, setsPersistence,
                                                connectsFrom0, receivesFrom7, releasesNone}));
    for (const RecordingMiddleware::Call &call : m_middleware.calls()) {
        QVERIFY(call.thread != QThread::currentThreadId());
    }
}

void tst_MMSListenerCalls::anotherConnectErrorIsTriedAgain()
{
    m_middleware.connects(2000).connects(1).connects(-1).connects(0, 7);
    ObservedListener listener;
    runScript(listener);
    QCOMPARE(m_middleware.texts(), QStringList({connectsFrom0, connectsFrom0, connectsFrom0,
                                                connectsFrom0, receivesFrom7, releasesNone}));
}

void tst_MMSListenerCalls::nothingReceivedKeepsThePort()
{
    m_middleware.connects(0, 7).receives(2000).receives(2000);
    ObservedListener listener;
    runScript(listener);
    QCOMPARE(m_middleware.texts(),
             QStringList({connectsFrom0, receivesFrom7, releasesNone, receivesFrom7, releasesNone,
                          receivesFrom7, releasesNone}));
    QCOMPARE(listener.batches().size(), 0);
}

void tst_MMSListenerCalls::anyOtherReceiveErrorConnectsAgain_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("box gone") << 2001;
    QTest::newRow("unknown error") << 1;
    QTest::newRow("negative") << -1;
}

void tst_MMSListenerCalls::anyOtherReceiveErrorConnectsAgain()
{
    QFETCH(int, result);
    m_middleware.connects(0, 7).receives(result).connects(0, 8);
    ObservedListener listener;
    runScript(listener);
    QCOMPARE(m_middleware.texts(), QStringList({connectsFrom0, receivesFrom7, releasesNone,
                                                connectsFrom7, receivesFrom8, releasesNone}));
    QCOMPARE(listener.batches().size(), 0);
}

void tst_MMSListenerCalls::aReceivedEventIsEmittedThenReleasedAfterAPause()
{
    m_middleware.connects(0, 7).receives(0, {recordOf(QStringLiteral("a"), 1)});
    ObservedListener listener;
    runScript(listener);
    QCOMPARE(
        m_middleware.texts(),
        QStringList({connectsFrom0, receivesFrom7, QStringLiteral("processMMSMessage(1)"),
                     QStringLiteral("DestoryTavrixDataList(1)"), receivesFrom7, releasesNone}));
    const auto calls = m_middleware.calls();
    QVERIFY(calls[3].begin - calls[2].end >= 50ms);
}

void tst_MMSListenerCalls::everyRecordBecomesAValueInOrder()
{
    m_middleware.connects(0, 7)
        .receives(0, {recordOf(QStringLiteral("LD/LN$ST$a"), 1),
                      recordOf(QStringLiteral("LD/LN$ST$b"), QStringLiteral("text"))})
        .receives(0, {recordOf(QStringLiteral("LD/LN$MX$c"), 2.5f)});
    ObservedListener listener;
    runScript(listener);
    const QList<QList<MMSValue>> batches = listener.batches();
    QCOMPARE(batches.size(), 2);
    QCOMPARE(batches[0].size(), 2);
    QCOMPARE(batches[0][0].reference, QStringLiteral("LD/LN$ST$a"));
    QCOMPARE(batches[0][0].value, QVariant(1));
    QCOMPARE(batches[0][1].reference, QStringLiteral("LD/LN$ST$b"));
    QCOMPARE(batches[0][1].value, QVariant(QStringLiteral("text")));
    QCOMPARE(batches[1].size(), 1);
    QCOMPARE(batches[1][0].reference, QStringLiteral("LD/LN$MX$c"));
    QCOMPARE(batches[1][0].value, QVariant(2.5f));
}

void tst_MMSListenerCalls::aRecordThatIsNoValueBecomesAnEmptyOne()
{
    m_middleware.connects(0, 7).receives(
        0, {QByteArray(512, '\xff'), recordOf(QStringLiteral("good"), 1)});
    ObservedListener listener;
    runScript(listener);
    const QList<QList<MMSValue>> batches = listener.batches();
    QCOMPARE(batches.size(), 1);
    QCOMPARE(batches[0].size(), 2);
    QCOMPARE(batches[0][0].reference, QString());
    QCOMPARE(batches[0][0].value, QVariant());
    QCOMPARE(batches[0][1].reference, QStringLiteral("good"));
}

void tst_MMSListenerCalls::anEventWithoutRecordsIsEmittedAsAnEmptyList()
{
    m_middleware.connects(0, 7).receives(0);
    ObservedListener listener;
    runScript(listener);
    const QList<QList<MMSValue>> batches = listener.batches();
    QCOMPARE(batches.size(), 1);
    QVERIFY(batches[0].isEmpty());
}

void tst_MMSListenerCalls::recordsOfAFailedReceiveAreReleasedAndNotEmitted()
{
    m_middleware.connects(0, 7).receives(2000, {"a"}).receives(9, {"b", "c"});
    ObservedListener listener;
    runScript(listener);
    QCOMPARE(m_middleware.texts().mid(1, 4),
             QStringList({receivesFrom7, QStringLiteral("DestoryTavrixDataList(1)"), receivesFrom7,
                          QStringLiteral("DestoryTavrixDataList(2)")}));
    QCOMPARE(listener.batches().size(), 0);
}

void tst_MMSListenerCalls::passesAreFiveMillisecondsApart()
{
    m_middleware.connects(1).connects(2001).connects(0, 7).receives(2001).connects(0, 7);
    ObservedListener listener;
    runScript(listener);
    const auto calls = m_middleware.calls();
    int passes = 0;
    for (std::size_t i = 1; i < calls.size(); ++i) {
        if (calls[i].text.startsWith(QLatin1String("ConnectPortForRecv"))) {
            ++passes;
            QVERIFY(calls[i].begin - calls[i - 1].end >= 5ms);
        }
    }
    QCOMPARE(passes, 3);
}

void tst_MMSListenerCalls::aStopRequestEndsTheThreadAfterTheReceiveInCourse()
{
    m_middleware.connects(0, 7);
    ObservedListener listener;
    listener->start();
    // The receive in course ends no earlier than the stop request.
    QVERIFY(m_middleware.awaitEnd());
    listener->stop();
    QVERIFY(listener->isFinished());
    QCOMPARE(m_middleware.texts(), QStringList({connectsFrom0, receivesFrom7, releasesNone}));
}

void tst_MMSListenerCalls::aStopRequestAfterADeliveredEventEndsTheThread()
{
    m_middleware.connects(0, 7).receives(0, {recordOf(QStringLiteral("a"), 1)});
    ObservedListener listener;
    QObject::connect(
        &*listener, &MMSListener::processMMSMessage, &*listener,
        [] {
            while (!QThread::currentThread()->isInterruptionRequested()) {
                QThread::yieldCurrentThread();
            }
        },
        Qt::DirectConnection);
    listener->start();
    while (listener.batches().isEmpty()) {
        QThread::yieldCurrentThread();
    }
    listener->stop();
    QCOMPARE(m_middleware.texts(),
             QStringList({connectsFrom0, receivesFrom7, QStringLiteral("processMMSMessage(1)"),
                          QStringLiteral("DestoryTavrixDataList(1)")}));
}

void tst_MMSListenerCalls::aStopRequestDuringTheConnectSkipsTheReceive()
{
    ObservedListener listener;
    m_middleware.connects(0, 7).afterStopRequest().receives(0);
    listener->start();
    listener->stop();
    QCOMPARE(m_middleware.texts(), QStringList(connectsFrom0));
    QCOMPARE(listener.batches().size(), 0);
}

void tst_MMSListenerCalls::aStopRequestBeforeTheThreadBeginsEndsItAfterOnePass()
{
    m_middleware.connects(2001);
    ObservedListener listener;
    QObject::connect(
        &*listener, &QThread::started, &*listener,
        [] {
            while (!QThread::currentThread()->isInterruptionRequested()) {
                QThread::yieldCurrentThread();
            }
        },
        Qt::DirectConnection);
    listener->start();
    listener->stop();
    QVERIFY(listener->isFinished());
    QCOMPARE(m_middleware.texts(), QStringList({connectsFrom0, creates, setsPersistence}));
}

void tst_MMSListenerCalls::aStoppedListenerStartsAgain()
{
    ObservedListener listener;
    for (int round = 0; round < 3; ++round) {
        m_middleware.reset();
        m_middleware.connects(0, 7).receives(2000);
        runScript(listener);
        QCOMPARE(m_middleware.texts(), QStringList({connectsFrom0, receivesFrom7, releasesNone,
                                                    receivesFrom7, releasesNone}));
    }
}

void tst_MMSListenerCalls::stoppingAListenerThatNeverRanReturnsAtOnce()
{
    ObservedListener listener;
    listener->stop();
    QVERIFY(!listener->isRunning());
    m_middleware.connects(0, 7);
    runScript(listener);
    QCOMPARE(m_middleware.texts(), QStringList({connectsFrom0, receivesFrom7, releasesNone}));
}

void tst_MMSListenerCalls::destroyingARunningListenerStopsIt()
{
    m_middleware.connects(0, 7);
    auto listener = std::make_unique<MMSListener>(nullptr);
    listener->start();
    QVERIFY(m_middleware.awaitEnd());
    listener.reset();
    QCOMPARE(m_middleware.texts(), QStringList({connectsFrom0, receivesFrom7, releasesNone}));
}

QTEST_GUILESS_MAIN(tst_MMSListenerCalls)
#include "tst_mmslistenercalls.moc"
