// SPDX-License-Identifier: Apache-2.0
#include "driver/device/operationcalls.h"

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/post.hpp>
#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>

#include <QtTest/QtTest>

#include <future>
#include <stdexcept>
#include <thread>

using std::chrono::steady_clock;

namespace {

const QString late = QStringLiteral("It has not finished.");
constexpr std::chrono::hours anHour{1};

/// Tells that a coroutine is over, however it ended.
struct Ended
{
    std::promise<void> &promise;
    explicit Ended(std::promise<void> &ended)
        : promise(ended)
    {
    }
    ~Ended() { promise.set_value(); }
    Q_DISABLE_COPY(Ended)
};

asio::awaitable<Outcome> give(Outcome outcome)
{
    co_return outcome;
}

asio::awaitable<Outcome> fall()
{
    throw std::runtime_error("the sky");
    co_return Outcome();
}

/// Would end after an hour.
asio::awaitable<Outcome> waitForAnHour(OperationCalls::Strand strand, std::promise<void> &begun,
                                       std::promise<void> &ended)
{
    const Ended atTheEnd(ended);
    begun.set_value();
    asio::steady_timer timer(strand, anHour);
    co_await timer.async_wait(asio::use_awaitable);
    co_return Outcome();
}

} // namespace

class tst_OperationCalls : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theOutcomeOfTheWorkIsTheCallers();
    void workThatIsLateIsCancelledAndNotWaitedFor();
    void allThatIsUnderWayIsCancelledAtOnce();
    void anExceptionBecomesASentence();

private:
    Outcome call(steady_clock::time_point deadline, OperationCalls::Work work)
    {
        return m_calls->call(m_calls, deadline, std::move(work), late);
    }

    std::unique_ptr<asio::io_context> m_context;
    std::shared_ptr<OperationCalls> m_calls;
    std::thread m_thread;
    std::unique_ptr<asio::executor_work_guard<asio::io_context::executor_type>> m_work;
    std::unique_ptr<OperationCalls::Strand> m_strand;
};

void tst_OperationCalls::init()
{
    m_context = std::make_unique<asio::io_context>();
    m_work = std::make_unique<asio::executor_work_guard<asio::io_context::executor_type>>(
        m_context->get_executor());
    m_strand = std::make_unique<OperationCalls::Strand>(osi::strandOn(m_context->get_executor()));
    m_calls = std::make_shared<OperationCalls>(*m_strand);
    m_thread = std::thread([this] { m_context->run(); });
}

void tst_OperationCalls::cleanup()
{
    m_work.reset();
    m_thread.join();
    m_calls.reset();
    m_strand.reset();
    m_context.reset();
}

void tst_OperationCalls::theOutcomeOfTheWorkIsTheCallers()
{
    const steady_clock::time_point end = steady_clock::now() + anHour;
    QVERIFY(call(end, [] { return give(Outcome()); }));
    const Outcome refused = call(end, [] {
        return give(Outcome{OperationNotConnected, QStringLiteral("Away.")});
    });
    QCOMPARE(refused.result, OperationNotConnected);
    QCOMPARE(refused.error, QString("Away."));
}

void tst_OperationCalls::workThatIsLateIsCancelledAndNotWaitedFor()
{
    std::promise<void> begun;
    std::promise<void> ended;
    // The time is over before the work begins.
    const Outcome outcome =
        call(steady_clock::now(), [&] { return waitForAnHour(*m_strand, begun, ended); });
    QCOMPARE(outcome.result, OperationFailed);
    QCOMPARE(outcome.error, late);
    // An hour is not waited for in the strand either.
    ended.get_future().wait();
}

void tst_OperationCalls::allThatIsUnderWayIsCancelledAtOnce()
{
    std::promise<void> begun;
    std::promise<void> ended;
    std::thread canceller([&] {
        begun.get_future().wait();
        asio::post(*m_strand, [this] { m_calls->cancelAll(); });
    });
    const Outcome outcome =
        call(steady_clock::now() + anHour, [&] { return waitForAnHour(*m_strand, begun, ended); });
    canceller.join();
    QCOMPARE(outcome.result, OperationFailed);
    QCOMPARE(outcome.error, QString("The operation was cancelled."));
    ended.get_future().wait();
}

void tst_OperationCalls::anExceptionBecomesASentence()
{
    const Outcome outcome = call(steady_clock::now() + anHour, [] { return fall(); });
    QCOMPARE(outcome.result, OperationFailed);
    QCOMPARE(outcome.error,
             QString("An internal error of the driver ended the association: the sky."));
}

QTEST_GUILESS_MAIN(tst_OperationCalls)
#include "tst_operationcalls.moc"
