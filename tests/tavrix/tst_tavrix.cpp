// SPDX-License-Identifier: Apache-2.0
#include "tavrix/forwardingbackend.h"

#include <tavrix/middleware.h>
#include <tavrix/tavrix.h>

#include <QtTest/QtTest>

#include <cstring>
#include <thread>
#include <vector>

class tst_Tavrix : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void aMiddlewareIsConnectedAsOftenAsAsked();
    void anUnknownMiddlewareIsUnavailableToEveryFunction();
    void aPostedRecordArrivesFilledUpWithZeros();
    void recordsKeepTheirOrderAlsoAcrossEvents();
    void aRecordMayHoldZerosAndTheWholeBlock();
    void aReceiverOwnsItsCopyOfTheBlock();
    void anEventWithoutRecordsIsASuccessWithAnEmptyList();
    void aFilledListIsFreedByTheNextReceive();
    void aFailedReceiveLeavesTheListEmpty();
    void aListMayBeDestroyedTwiceAndThenUsedAgain();
    void destroyingNoListDoesNothing();
    void anOverlongRecordIsRefusedAndNothingIsPosted();
    void tooManyRecordsAreRefusedAndNothingIsPosted();
    void theMostRecordsOfOneEventArrive();
    void postingWhereNobodyListensSucceeds();
    void badArgumentsAreRefused();
    void aFinishedThreadTakesItsPortsAndItsBoxWithIt();
    void aFinishedThreadEndsTheWaitOfOthersOnItsPort();
    void aThreadThatNeverConnectedLeavesNoBox();
};

namespace {

constexpr int noWait = 0;
constexpr int never = 60000;

/// The middleware that the test runs over; null is the boxes inside this process. A suite for
/// another one is one more row of initTestCase_data().
const char *address()
{
    QFETCH_GLOBAL(const QByteArray, middleware);
    return middleware.isNull() ? nullptr : middleware.constData();
}

/// A box of the test that runs, and a port on it.
class Box
{
public:
    explicit Box(const char *name = QTest::currentTestFunction())
        : m_name(name)
    {
        Tavrix::CreateEventBox(m_name, 100, 30000, address());
        Tavrix::ConnectPortForRecv(m_name, m_port, address());
        Tavrix::SetPersistent(m_name, false, address());
    }
    ~Box() { Tavrix::DisconnectPort(m_port); }
    Q_DISABLE_COPY(Box)

    const char *name() const { return m_name; }
    unsigned int port() const { return m_port; }
    int post(const QList<QByteArray> &records) const
    {
        return Tavrix::PostEvent(m_name, "K", records, address());
    }
    int receive(TavrixDataList &list, int count = 1) const
    {
        return Tavrix::ReceiveEventN(m_port, list, "K", noWait, count, address());
    }

private:
    const char *m_name;
    unsigned int m_port = 0;
};

QByteArray block(const TavrixDataList &list, int index)
{
    return QByteArray(list.array[index]->GetRawValue(), 512);
}

QByteArray filledUp(QByteArray record)
{
    return record.append(QByteArray(512 - record.size(), '\0'));
}

} // namespace

void tst_Tavrix::initTestCase_data()
{
    Tavrix::RegisterMiddleware("forwarding", [](const std::string &, const std::string &) {
        return std::make_shared<ForwardingBackend>(&std::chrono::steady_clock::now);
    });
    QTest::addColumn<QByteArray>("middleware");
    QTest::newRow("in this process") << QByteArray();
    QTest::newRow("by address") << QByteArray("forwarding:suite");
}

void tst_Tavrix::aMiddlewareIsConnectedAsOftenAsAsked()
{
    QCOMPARE(Tavrix::ConnectMid(address()), 0);
    QCOMPARE(Tavrix::ConnectMid(address()), 0);
}

void tst_Tavrix::anUnknownMiddlewareIsUnavailableToEveryFunction()
{
    const Box box;
    unsigned int port = 0;
    TavrixDataList list;
    QCOMPARE(Tavrix::ConnectMid("broker"), 2005);
    QCOMPARE(Tavrix::CreateEventBox("other", 1, 1, "broker"), 2005);
    QCOMPARE(Tavrix::SetPersistent(box.name(), true, nullptr, "domain"), 2005);
    QCOMPARE(Tavrix::ConnectPortForRecv(box.name(), port, "broker"), 2005);
    QCOMPARE(Tavrix::ReceiveEventN(box.port(), list, "K", 0, 1, "broker"), 2005);
    QCOMPARE(Tavrix::PostEvent(box.name(), "K", {}, nullptr, "domain"), 2005);
    QCOMPARE(box.receive(list), 2000);
    QCOMPARE(Tavrix::ConnectPortForRecv("other", port, address()), 2001);
}

void tst_Tavrix::aPostedRecordArrivesFilledUpWithZeros()
{
    const Box box;
    QCOMPARE(box.post({"abc"}), 0);
    TavrixDataList list;
    QCOMPARE(box.receive(list), 0);
    QCOMPARE(list.count, 1);
    QCOMPARE(block(list, 0), filledUp("abc"));
}

void tst_Tavrix::recordsKeepTheirOrderAlsoAcrossEvents()
{
    const Box box;
    box.post({"1", "2"});
    box.post({});
    box.post({"3"});
    TavrixDataList list;
    QCOMPARE(box.receive(list, 10), 0);
    QCOMPARE(list.count, 3);
    QCOMPARE(block(list, 0), filledUp("1"));
    QCOMPARE(block(list, 1), filledUp("2"));
    QCOMPARE(block(list, 2), filledUp("3"));
}

void tst_Tavrix::aRecordMayHoldZerosAndTheWholeBlock()
{
    const Box box;
    const QByteArray zeros("a\0b", 3);
    const QByteArray whole(512, 'w');
    box.post({zeros, whole});
    TavrixDataList list;
    QCOMPARE(box.receive(list), 0);
    QCOMPARE(block(list, 0), filledUp(zeros));
    QCOMPARE(block(list, 1), whole);
}

void tst_Tavrix::aReceiverOwnsItsCopyOfTheBlock()
{
    const Box one("copies 1");
    const Box two("copies 2");
    Tavrix::PostEvent("copies", "K", {"abc"}, address());
    TavrixDataList list;
    QCOMPARE(one.receive(list), 0);
    std::memset(list.array[0]->GetRawValue(), 'z', 512);
    TavrixDataList other;
    QCOMPARE(two.receive(other), 0);
    QCOMPARE(block(other, 0), filledUp("abc"));
}

void tst_Tavrix::anEventWithoutRecordsIsASuccessWithAnEmptyList()
{
    const Box box;
    QCOMPARE(box.post({}), 0);
    TavrixDataList list;
    QCOMPARE(box.receive(list), 0);
    QCOMPARE(list.count, 0);
    QCOMPARE(list.array, static_cast<TavrixData **>(nullptr));
    QCOMPARE(box.receive(list), 2000);
}

void tst_Tavrix::aFilledListIsFreedByTheNextReceive()
{
    const Box box;
    box.post({"1", "2"});
    box.post({"3"});
    TavrixDataList list;
    QCOMPARE(box.receive(list), 0);
    QCOMPARE(list.count, 2);
    QCOMPARE(box.receive(list), 0);
    QCOMPARE(list.count, 1);
    QCOMPARE(block(list, 0), filledUp("3"));
}

void tst_Tavrix::aFailedReceiveLeavesTheListEmpty()
{
    const Box box;
    box.post({"1"});
    TavrixDataList list;
    QCOMPARE(box.receive(list), 0);
    QCOMPARE(Tavrix::ReceiveEventN(0, list, "K", noWait, 1), 2001);
    QCOMPARE(list.count, 0);
    QCOMPARE(list.array, static_cast<TavrixData **>(nullptr));
}

void tst_Tavrix::aListMayBeDestroyedTwiceAndThenUsedAgain()
{
    const Box box;
    box.post({"1", "2"});
    box.post({"3"});
    TavrixDataList list;
    QCOMPARE(box.receive(list), 0);
    Tavrix::DestoryTavrixDataList(&list);
    QCOMPARE(list.count, 0);
    QCOMPARE(list.array, static_cast<TavrixData **>(nullptr));
    Tavrix::DestoryTavrixDataList(&list);
    QCOMPARE(list.count, 0);
    QCOMPARE(box.receive(list), 0);
    QCOMPARE(block(list, 0), filledUp("3"));
}

void tst_Tavrix::destroyingNoListDoesNothing()
{
    Tavrix::DestoryTavrixDataList(nullptr);
    TavrixDataList list;
    Tavrix::DestoryTavrixDataList(&list);
    QCOMPARE(list.count, 0);
}

void tst_Tavrix::anOverlongRecordIsRefusedAndNothingIsPosted()
{
    const Box box;
    QCOMPARE(box.post({"fits", QByteArray(513, 'x')}), 2004);
    TavrixDataList list;
    QCOMPARE(box.receive(list), 2000);
}

void tst_Tavrix::tooManyRecordsAreRefusedAndNothingIsPosted()
{
    const Box box;
    QList<QByteArray> records;
    for (int i = 0; i < 4097; ++i) {
        records.append("x");
    }
    QCOMPARE(box.post(records), 2003);
    TavrixDataList list;
    QCOMPARE(box.receive(list), 2000);
}

void tst_Tavrix::theMostRecordsOfOneEventArrive()
{
    const Box box;
    QList<QByteArray> records;
    for (int i = 0; i < 4096; ++i) {
        records.append(QByteArray::number(i));
    }
    QCOMPARE(box.post(records), 0);
    TavrixDataList list;
    QCOMPARE(box.receive(list), 0);
    QCOMPARE(list.count, 4096);
    QCOMPARE(block(list, 4095), filledUp("4095"));
}

void tst_Tavrix::postingWhereNobodyListensSucceeds()
{
    QCOMPARE(Tavrix::PostEvent("nobody", "K", {"x"}, address()), 0);
}

void tst_Tavrix::badArgumentsAreRefused()
{
    const QByteArray overlong(256, 'x');
    const QByteArray longest(255, 'x');
    const unsigned int noPort = 0;
    const char *const at = address();
    TavrixDataList list;
    unsigned int port = 0;
    const std::vector<std::pair<const char *, int>> results{
        {"box without a name", Tavrix::CreateEventBox(nullptr, 1, 1, at)},
        {"box with an empty name", Tavrix::CreateEventBox("", 1, 1, at)},
        {"box with too long a name", Tavrix::CreateEventBox(overlong.constData(), 1, 1, at)},
        {"box for no event", Tavrix::CreateEventBox("bad", 0, 1, at)},
        {"box with a negative capacity", Tavrix::CreateEventBox("bad", -1, 1, at)},
        {"box with no time to live", Tavrix::CreateEventBox("bad", 1, 0, at)},
        {"persistence without a name", Tavrix::SetPersistent(nullptr, true, at)},
        {"connection without a name", Tavrix::ConnectPortForRecv(nullptr, port, at)},
        {"connection with too long a name",
         Tavrix::ConnectPortForRecv(overlong.constData(), port, at)},
        {"receive of no event", Tavrix::ReceiveEventN(noPort, list, "K", 0, 0, at)},
        {"receive with a negative wait", Tavrix::ReceiveEventN(noPort, list, "K", -1, 1, at)},
        {"receive with too long a key",
         Tavrix::ReceiveEventN(noPort, list, overlong.constData(), 0, 1, at)},
        {"post without a prefix", Tavrix::PostEvent(nullptr, "K", {}, at)},
        {"post without a key", Tavrix::PostEvent("A", nullptr, {}, at)},
        {"post with an empty key", Tavrix::PostEvent("A", "", {}, at)},
        {"post with too long a key", Tavrix::PostEvent("A", overlong.constData(), {}, at)},
        {"post with too long a prefix", Tavrix::PostEvent(overlong.constData(), "K", {}, at)},
    };
    for (const auto &[call, result] : results) {
        QVERIFY2(result == 2003, call);
    }
    QCOMPARE(Tavrix::PostEvent(longest.constData(), longest.constData(), {}, at), 0);
    QCOMPARE(Tavrix::ConnectPortForRecv("bad", port, at), 2001);
}

void tst_Tavrix::aFinishedThreadTakesItsPortsAndItsBoxWithIt()
{
    const char *const name = QTest::currentTestFunction();
    const char *const at = address();
    unsigned int port = 0;
    int connected = -1;
    std::thread([&] {
        Tavrix::CreateEventBox(name, 100, 30000, at);
        Tavrix::SetPersistent(name, false, at);
        connected = Tavrix::ConnectPortForRecv(name, port, at);
    }).join();
    QCOMPARE(connected, 0);
    TavrixDataList list;
    QCOMPARE(Tavrix::ReceiveEventN(port, list, nullptr, never, 1), 2001);
    QCOMPARE(Tavrix::ConnectPortForRecv(name, port, at), 2001);
}

void tst_Tavrix::aFinishedThreadEndsTheWaitOfOthersOnItsPort()
{
    const Box box;
    const char *const at = address();
    for (int round = 0; round < 100; ++round) {
        std::vector<int> results(2, -1);
        std::vector<std::thread> receivers;
        std::thread opener([&] {
            unsigned int port = 0;
            Tavrix::ConnectPortForRecv(box.name(), port, at);
            for (int &result : results) {
                receivers.emplace_back([port, &result] {
                    TavrixDataList list;
                    result = Tavrix::ReceiveEventN(port, list, nullptr, never, 1);
                });
            }
        });
        opener.join();
        for (std::thread &receiver : receivers) {
            receiver.join();
        }
        QCOMPARE(results, std::vector<int>(2, 2001));
    }
}

void tst_Tavrix::aThreadThatNeverConnectedLeavesNoBox()
{
    const char *const name = QTest::currentTestFunction();
    const char *const at = address();
    std::thread([&] {
        Tavrix::CreateEventBox(name, 100, 30000, at);
        Tavrix::SetPersistent(name, false, at);
    }).join();
    unsigned int port = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv(name, port, at), 2001);
}

QTEST_APPLESS_MAIN(tst_Tavrix)
#include "tst_tavrix.moc"
