// SPDX-License-Identifier: Apache-2.0
#include "driver/administration/publishcause.h"
#include "driver/device/livevalues.h"

#include <tavrix/tavrix.h>

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>

#include <QtCore/QDataStream>
#include <QtCore/QHash>
#include <QtCore/QSemaphore>
#include <QtTest/QtTest>

#include <mutex>
#include <thread>

namespace {

/// A thread for the values, and the events that came of them.
class Publisher
{
public:
    Publisher()
        : m_work(asio::make_work_guard(m_context))
        , m_thread([this] { m_context.run(); })
    {
    }

    ~Publisher()
    {
        m_work.reset();
        m_thread.join();
    }

    std::shared_ptr<LiveValues> withCollector()
    {
        return LiveValues::create(m_context.get_executor(),
                                  [this](const QList<QByteArray> &records) {
                                      const std::lock_guard<std::mutex> lock(m_mutex);
                                      m_events.append(records);
                                      m_arrived.release(records.size());
                                  });
    }

    std::shared_ptr<LiveValues> withMiddleware()
    {
        return LiveValues::create(m_context.get_executor());
    }

    bool wait(int records) { return m_arrived.tryAcquire(records, 20000); }
    QList<QList<QByteArray>> events()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_events;
    }

private:
    asio::io_context m_context;
    asio::executor_work_guard<asio::io_context::executor_type> m_work;
    std::mutex m_mutex;
    QList<QList<QByteArray>> m_events;
    QSemaphore m_arrived;
    std::thread m_thread;
};

MMSValue value(const QString &reference, const QVariant &content)
{
    MMSValue result;
    result.reference = reference;
    result.value = content;
    return result;
}

MMSValue read(const QByteArray &record)
{
    MMSValue result;
    QDataStream stream(record);
    result.fromStream(stream);
    return result;
}

} // namespace

class tst_LiveValues : public QObject
{
    Q_OBJECT

private slots:
    void valuesOfAnIntervalComeInOneEventInOrder();
    void onlyTheNewestValueOfAReferenceIsPosted();
    void anAnswerStaysOneWhenItIsReadAgain();
    void manyValuesAreSplitIntoSeveralEvents();
    void twentyThousandReferencesReachAnOpenBrowserComplete();
    void nobodyHasToListen();
};

void tst_LiveValues::valuesOfAnIntervalComeInOneEventInOrder()
{
    Publisher publisher;
    const auto values = publisher.withCollector();
    values->publish({value("a", 1), value("b", 2)});
    values->publish({value("c", QStringLiteral("x"))});
    QVERIFY(publisher.wait(3));
    QCOMPARE(publisher.events().size(), 1);
    const QList<QByteArray> records = publisher.events().first();
    QCOMPARE(records.size(), 3);
    QCOMPARE(read(records.at(0)).reference, QStringLiteral("a"));
    QCOMPARE(read(records.at(1)).value, QVariant(2));
    QCOMPARE(read(records.at(2)).value, QVariant(QStringLiteral("x")));
}

void tst_LiveValues::onlyTheNewestValueOfAReferenceIsPosted()
{
    Publisher publisher;
    const auto values = publisher.withCollector();
    std::vector<MMSValue> burst;
    for (int i = 0; i <= 100; ++i)
        burst.push_back(value("a", i));
    values->publish(burst);
    values->publish({value("b", 0)});
    QVERIFY(publisher.wait(2));
    const QList<QByteArray> records = publisher.events().first();
    QCOMPARE(records.size(), 2);
    QCOMPARE(read(records.at(0)).value, QVariant(100));
}

void tst_LiveValues::anAnswerStaysOneWhenItIsReadAgain()
{
    Publisher publisher;
    const auto values = publisher.withCollector();
    MMSValue answer = value("a", 1);
    answer.cause = PublishCause::Read;
    MMSValue polled = value("a", 2);
    polled.cause = PublishCause::Polled;
    values->publish({answer});
    values->publish({polled});
    QVERIFY(publisher.wait(1));
    const MMSValue posted = read(publisher.events().first().first());
    QCOMPARE(posted.value, QVariant(2));
    QCOMPARE(posted.cause, quint32(PublishCause::Read));
}

void tst_LiveValues::manyValuesAreSplitIntoSeveralEvents()
{
    Publisher publisher;
    const auto values = publisher.withCollector();
    std::vector<MMSValue> burst;
    for (int i = 0; i < 10000; ++i)
        burst.push_back(value(QString::number(i), i));
    values->publish(burst);
    QVERIFY(publisher.wait(10000));
    const QList<QList<QByteArray>> events = publisher.events();
    QCOMPARE(events.size(), 3);
    QCOMPARE(events.at(0).size(), 4096);
    QCOMPARE(events.at(2).size(), 10000 - 2 * 4096);
}

void tst_LiveValues::twentyThousandReferencesReachAnOpenBrowserComplete()
{
    const char *box = "MMS_DATACHANGE:{burst}";
    QCOMPARE(Tavrix::CreateEventBox(box, 20005, 30000), int(Tavrix::Success));
    unsigned int port = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv(box, port), int(Tavrix::Success));
    QCOMPARE(Tavrix::SetPersistent(box, false), int(Tavrix::Success));

    Publisher publisher;
    const auto values = publisher.withMiddleware();
    constexpr int count = 20000;
    constexpr int rounds = 3;
    for (int round = 1; round <= rounds; ++round) {
        std::vector<MMSValue> burst;
        for (int i = 0; i < count; ++i)
            burst.push_back(value(QStringLiteral("LD/GGIO1$ST$Ind%1$stVal").arg(i), round));
        values->publish(std::move(burst));
    }

    QHash<QString, int> newest;
    int complete = 0;
    while (complete < count) {
        TavrixDataList list;
        QCOMPARE(Tavrix::ReceiveEventN(port, list, "MMS_VALUE", 5000, 1), int(Tavrix::Success));
        for (int i = 0; i < list.count; ++i) {
            const MMSValue received =
                read(QByteArray(list.array[i]->GetRawValue(), Tavrix::rawValueSize));
            int &known = newest[received.reference];
            QVERIFY(received.value.toInt() > known);
            known = received.value.toInt();
            complete += known == rounds;
        }
    }
    QCOMPARE(newest.size(), count);
    QCOMPARE(Tavrix::DisconnectPort(port), int(Tavrix::Success));
}

void tst_LiveValues::nobodyHasToListen()
{
    Publisher publisher;
    const auto values = publisher.withMiddleware();
    values->publish({value("a", 1)});
    values->publish({});
    values->flush();
}

QTEST_GUILESS_MAIN(tst_LiveValues)
#include "tst_livevalues.moc"
