// SPDX-License-Identifier: Apache-2.0
#include <devicemodel/mmsvalue.h>
#include <listener/mmslistener.h>
#include <tavrix/tavrix.h>

#include <QtCore/QDataStream>
#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

#include <chrono>
#include <condition_variable>
#include <mutex>

/// Collects what a listener emits, in the listener's own thread.
class Mailbox
{
public:
    explicit Mailbox(MMSListener &listener)
    {
        QObject::connect(
            &listener, &MMSListener::processMMSMessage, &listener,
            [this](const QList<MMSValue> &values) {
                const std::lock_guard<std::mutex> lock(m_mutex);
                for (const MMSValue &value : values) {
                    m_references.append(value.reference);
                }
                m_changed.notify_all();
            },
            Qt::DirectConnection);
    }

    /// The references received, once there are so many or the limit is reached.
    QStringList await(int count, std::chrono::milliseconds limit = std::chrono::minutes(1))
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, limit, [&] { return m_references.size() >= count; });
        return m_references;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    QStringList m_references;
};

/// Stands for the window: takes batches in the thread it lives in and ends its event loop with the
/// last one it waits for.
class Window : public QObject
{
    Q_OBJECT

public:
    QList<QList<MMSValue>> batches;
    QList<QThread *> threads;
    QEventLoop loop;

public slots:
    void updateMMSValue(const QList<MMSValue> &values)
    {
        batches.append(values);
        threads.append(QThread::currentThread());
        loop.quit();
    }
};

class tst_MMSListener : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<QList<MMSValue>>("QList<MMSValue>");
        QCOMPARE(Tavrix::ConnectMid(nullptr), 0);
    }
    void aPostedValueReachesTheWindowInItsOwnThread();
    void everyListenerReceivesEveryEventOnce();
    void eventsUnderAnotherKeyAreLeftAlone();
    void theListenerMakesItsBoxAndTheBoxEndsWithTheThread();
    void aListenerThatLostItsPortConnectsAgain();
    void stoppingWhileWaitingTakesNoLongerThanTheWait();
    void stoppingRightAfterStartingNeverHangs();
    void aStoppedListenerReceivesAgainAfterAnotherStart();
};

namespace {

constexpr char allListeners[] = "MMS_DATACHANGE:";

MMSValue valueOf(const QString &reference, const QVariant &value = 1)
{
    MMSValue mmsValue;
    mmsValue.reference = reference;
    mmsValue.value = value;
    return mmsValue;
}

QByteArray recordOf(const MMSValue &value)
{
    QByteArray record;
    QDataStream stream(&record, QIODevice::WriteOnly);
    value.toStream(stream);
    return record;
}

int post(const QString &reference)
{
    return Tavrix::PostEvent(allListeners, "MMS_VALUE", {recordOf(valueOf(reference))});
}

/// Makes the listener's box before the listener does, so that no event is posted too early.
void makeBox(const MMSListener &listener)
{
    const QByteArray name = listener.eventBoxName().toLatin1();
    QCOMPARE(Tavrix::CreateEventBox(name.constData(), 20005, 30000), 0);
    QCOMPARE(Tavrix::SetPersistent(name.constData(), false), 0);
}

/// Looks by way of a port: a box that waits for its first one is gone afterwards.
bool hasBox(const MMSListener &listener)
{
    const QByteArray name = listener.eventBoxName().toLatin1();
    unsigned int port = 0;
    if (Tavrix::ConnectPortForRecv(name.constData(), port) != 0) {
        return false;
    }
    Tavrix::DisconnectPort(port);
    return true;
}

} // namespace

void tst_MMSListener::aPostedValueReachesTheWindowInItsOwnThread()
{
    Window window;
    MMSListener listener(&window);
    connect(&listener, SIGNAL(processMMSMessage(const QList<MMSValue> &)), &window,
            SLOT(updateMMSValue(const QList<MMSValue> &)));
    makeBox(listener);
    MMSValue value = valueOf(QStringLiteral("LD0/GGIO1$ST$Ind1$stVal"), true);
    value.quality = QStringLiteral("0000000000000");
    value.deviceNo = 3;
    QCOMPARE(Tavrix::PostEvent(allListeners, "MMS_VALUE",
                               {recordOf(value), recordOf(valueOf(QStringLiteral("LD0/b")))}),
             0);
    listener.start(QThread::InheritPriority);
    QTimer::singleShot(60000, &window.loop, &QEventLoop::quit);
    window.loop.exec();
    listener.stop();

    QCOMPARE(window.batches.size(), 1);
    QCOMPARE(window.threads, QList<QThread *>{QThread::currentThread()});
    QCOMPARE(window.batches[0].size(), 2);
    QCOMPARE(window.batches[0][0].reference, value.reference);
    QCOMPARE(window.batches[0][0].value, QVariant(true));
    QCOMPARE(window.batches[0][0].quality, value.quality);
    QCOMPARE(window.batches[0][0].deviceNo, 3);
    QCOMPARE(window.batches[0][1].reference, QStringLiteral("LD0/b"));
}

void tst_MMSListener::everyListenerReceivesEveryEventOnce()
{
    MMSListener one(nullptr);
    MMSListener two(nullptr);
    Mailbox ofOne(one);
    Mailbox ofTwo(two);
    makeBox(one);
    makeBox(two);
    one.start();
    two.start();
    const QStringList references{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    for (const QString &reference : references) {
        QCOMPARE(post(reference), 0);
    }
    QCOMPARE(ofOne.await(3), references);
    QCOMPARE(ofTwo.await(3), references);
    one.stop();
    two.stop();
    QCOMPARE(ofOne.await(3), references);
    QCOMPARE(ofTwo.await(3), references);
}

void tst_MMSListener::eventsUnderAnotherKeyAreLeftAlone()
{
    MMSListener listener(nullptr);
    Mailbox mailbox(listener);
    makeBox(listener);
    Tavrix::PostEvent(allListeners, "OTHER", {recordOf(valueOf(QStringLiteral("other")))});
    post(QStringLiteral("mine"));
    listener.start();
    QCOMPARE(mailbox.await(1), QStringList(QStringLiteral("mine")));
}

void tst_MMSListener::theListenerMakesItsBoxAndTheBoxEndsWithTheThread()
{
    MMSListener listener(nullptr);
    Mailbox mailbox(listener);
    listener.start();
    // Until the box stands, nobody gets what is posted.
    QStringList received;
    QElapsedTimer timer;
    timer.start();
    while (received.isEmpty() && timer.elapsed() < 60000) {
        QCOMPARE(post(QStringLiteral("a")), 0);
        received = mailbox.await(1, std::chrono::milliseconds(5));
    }
    QCOMPARE(received.value(0), QStringLiteral("a"));
    listener.stop();
    QVERIFY(!hasBox(listener));
}

void tst_MMSListener::aListenerThatLostItsPortConnectsAgain()
{
    MMSListener listener(nullptr);
    Mailbox mailbox(listener);
    makeBox(listener);
    listener.start();
    post(QStringLiteral("before"));
    QCOMPARE(mailbox.await(1), QStringList(QStringLiteral("before")));

    const QByteArray name = listener.eventBoxName().toLatin1();
    unsigned int own = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv(name.constData(), own), 0);
    for (unsigned int port = 1; port < own; ++port) {
        Tavrix::DisconnectPort(port);
    }
    post(QStringLiteral("after"));
    QCOMPARE(mailbox.await(2), QStringList({QStringLiteral("before"), QStringLiteral("after")}));
    Tavrix::DisconnectPort(own);
}

void tst_MMSListener::stoppingWhileWaitingTakesNoLongerThanTheWait()
{
    MMSListener listener(nullptr);
    Mailbox mailbox(listener);
    makeBox(listener);
    post(QStringLiteral("a"));
    listener.start();
    QCOMPARE(mailbox.await(1).size(), 1);
    QElapsedTimer timer;
    timer.start();
    listener.stop();
    QVERIFY(listener.isFinished());
    // 555 ms, and room for a machine that is busy with other things.
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void tst_MMSListener::stoppingRightAfterStartingNeverHangs()
{
    MMSListener listener(nullptr);
    for (int round = 0; round < 100; ++round) {
        listener.start();
        listener.stop();
        QVERIFY(listener.isFinished());
        QVERIFY(!hasBox(listener));
    }
}

void tst_MMSListener::aStoppedListenerReceivesAgainAfterAnotherStart()
{
    MMSListener listener(nullptr);
    Mailbox mailbox(listener);
    for (int round = 1; round <= 3; ++round) {
        makeBox(listener);
        post(QString::number(round));
        listener.start();
        QCOMPARE(mailbox.await(round).size(), round);
        listener.stop();
        QVERIFY(!hasBox(listener));
    }
}

QTEST_GUILESS_MAIN(tst_MMSListener)
#include "tst_mmslistener.moc"
