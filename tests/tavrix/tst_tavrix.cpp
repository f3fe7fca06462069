// SPDX-License-Identifier: Apache-2.0
#include <tavrix/tavrix.h>

#include <QtTest/QtTest>

#include <cstring>
#include <thread>
#include <vector>

class tst_Tavrix : public QObject
{
    Q_OBJECT

private slots:
    void theMiddlewareOfThisProcessNeedsNoAddress();
    void anotherMiddlewareIsUnavailableToEveryFunction();
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
    void badArgumentsAreRefused_data();
    void badArgumentsAreRefused();
    void aFinishedThreadTakesItsPortsAndItsBoxWithIt();
    void aFinishedThreadEndsTheWaitOfOthersOnItsPort();
    void aThreadThatNeverConnectedLeavesNoBox();
};

namespace {

constexpr int noWait = 0;
constexpr int never = 60000;

/// A box of the test that runs, and a port on it.
class Box
{
public:
    explicit Box(const char *name = QTest::currentTestFunction())
        : m_name(name)
    {
        Tavrix::CreateEventBox(m_name, 100, 30000);
        Tavrix::ConnectPortForRecv(m_name, m_port);
        Tavrix::SetPersistent(m_name, false);
    }
    ~Box() { Tavrix::DisconnectPort(m_port); }
    Q_DISABLE_COPY(Box)

    const char *name() const { return m_name; }
    unsigned int port() const { return m_port; }
    int post(const QList<QByteArray> &records) const
    {
        return Tavrix::PostEvent(m_name, "K", records);
    }
    int receive(TavrixDataList &list, int count = 1) const
    {
        return Tavrix::ReceiveEventN(m_port, list, "K", noWait, count);
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

void tst_Tavrix::theMiddlewareOfThisProcessNeedsNoAddress()
{
    QCOMPARE(Tavrix::ConnectMid(nullptr), 0);
    QCOMPARE(Tavrix::ConnectMid(nullptr), 0);
}

void tst_Tavrix::anotherMiddlewareIsUnavailableToEveryFunction()
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
    QCOMPARE(Tavrix::ConnectPortForRecv("other", port), 2001);
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
    Tavrix::PostEvent("copies", "K", {"abc"});
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
    QCOMPARE(Tavrix::PostEvent("nobody", "K", {"x"}), 0);
}

void tst_Tavrix::badArgumentsAreRefused_data()
{
    QTest::addColumn<int>("result");

    static const QByteArray overlong(256, 'x');
    static const QByteArray longest(255, 'x');
    TavrixDataList list;
    const unsigned int noPort = 0;
    unsigned int port = 0;
    QTest::newRow("box without a name") << Tavrix::CreateEventBox(nullptr, 1, 1);
    QTest::newRow("box with an empty name") << Tavrix::CreateEventBox("", 1, 1);
    QTest::newRow("box with too long a name") << Tavrix::CreateEventBox(overlong.constData(), 1, 1);
    QTest::newRow("box for no event") << Tavrix::CreateEventBox("bad", 0, 1);
    QTest::newRow("box with a negative capacity") << Tavrix::CreateEventBox("bad", -1, 1);
    QTest::newRow("box with no time to live") << Tavrix::CreateEventBox("bad", 1, 0);
    QTest::newRow("persistence without a name") << Tavrix::SetPersistent(nullptr, true);
    QTest::newRow("connection without a name") << Tavrix::ConnectPortForRecv(nullptr, port);
    QTest::newRow("connection with too long a name")
        << Tavrix::ConnectPortForRecv(overlong.constData(), port);
    QTest::newRow("receive of no event") << Tavrix::ReceiveEventN(noPort, list, "K", 0, 0);
    QTest::newRow("receive with a negative wait")
        << Tavrix::ReceiveEventN(noPort, list, "K", -1, 1);
    QTest::newRow("receive with too long a key")
        << Tavrix::ReceiveEventN(noPort, list, overlong.constData(), 0, 1);
    QTest::newRow("post without a prefix") << Tavrix::PostEvent(nullptr, "K", {});
    QTest::newRow("post without a key") << Tavrix::PostEvent("A", nullptr, {});
    QTest::newRow("post with an empty key") << Tavrix::PostEvent("A", "", {});
    QTest::newRow("post with too long a key") << Tavrix::PostEvent("A", overlong.constData(), {});
    QTest::newRow("post with too long a prefix")
        << Tavrix::PostEvent(overlong.constData(), "K", {});

    QCOMPARE(Tavrix::PostEvent(longest.constData(), longest.constData(), {}), 0);
    QCOMPARE(Tavrix::ConnectPortForRecv("bad", port), 2001);
}

void tst_Tavrix::badArgumentsAreRefused()
{
    QFETCH(int, result);
    QCOMPARE(result, 2003);
}

void tst_Tavrix::aFinishedThreadTakesItsPortsAndItsBoxWithIt()
{
    const char *const name = QTest::currentTestFunction();
    unsigned int port = 0;
    int connected = -1;
    std::thread([&] {
        Tavrix::CreateEventBox(name, 100, 30000);
        Tavrix::SetPersistent(name, false);
        connected = Tavrix::ConnectPortForRecv(name, port);
    }).join();
    QCOMPARE(connected, 0);
    TavrixDataList list;
    QCOMPARE(Tavrix::ReceiveEventN(port, list, nullptr, never, 1), 2001);
    QCOMPARE(Tavrix::ConnectPortForRecv(name, port), 2001);
}

void tst_Tavrix::aFinishedThreadEndsTheWaitOfOthersOnItsPort()
{
    const Box box;
    for (int round = 0; round < 100; ++round) {
        std::vector<int> results(2, -1);
        std::vector<std::thread> receivers;
        std::thread opener([&] {
            unsigned int port = 0;
            Tavrix::ConnectPortForRecv(box.name(), port);
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
    std::thread([&] {
        Tavrix::CreateEventBox(name, 100, 30000);
        Tavrix::SetPersistent(name, false);
    }).join();
    unsigned int port = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv(name, port), 2001);
}

QTEST_APPLESS_MAIN(tst_Tavrix)
#include "tst_tavrix.moc"
