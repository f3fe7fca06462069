// SPDX-License-Identifier: Apache-2.0
#include "mms/associationtest.h"

using namespace wiretest;

namespace {

InformationReport floats(std::size_t count)
{
    InformationReport report{ObjectName::ofVmd("RPT"), {}};
    for (std::size_t i = 0; i < count; ++i)
        report.results.emplace_back(Data::float32(static_cast<float>(i)));
    return report;
}

/// Numbered reports of 50 members, sent as fast as the network takes them: the server holds back
/// while more than a limit waits, and goes on when half of it is gone.
class Stream : public std::enable_shared_from_this<Stream>
{
public:
    Stream(std::shared_ptr<Association> association, std::uint32_t count)
        : m_association(std::move(association))
        , m_count(count)
    {
    }

    static constexpr std::size_t mostQueued = 256 * 1024;

    void go()
    {
        for (; m_next < m_count; ++m_next) {
            if (m_association->queued() > mostQueued) {
                ++pauses;
                m_association->whenQueued(mostQueued / 2,
                                          [self = shared_from_this()] { self->go(); });
                return;
            }
            InformationReport report = floats(50);
            report.results.front() = Data::unsignedInteger(m_next);
            m_association->report(std::move(report), [this](ReportFate fate) {
                if (fate != ReportFate::Queued)
                    ++lost;
            });
            longestQueue = std::max(longestQueue.load(), m_association->queued());
        }
    }

    std::atomic<int> pauses{0};
    std::atomic<int> lost{0};
    std::atomic<std::size_t> longestQueue{0};

private:
    std::shared_ptr<Association> m_association;
    std::uint32_t m_count;
    std::uint32_t m_next = 0;
};

class Reporter : public TestDevice
{
public:
    void opened(const std::shared_ptr<Association> &association) override
    {
        TestDevice::opened(association);
        accepted.setter()(association);
    }

    Awaited<std::shared_ptr<Association>> accepted;
};

class Reports : public AssociationTest
{
protected:
    Reports() { m_device = m_reporter; }

    ReportFate send(const std::shared_ptr<Association> &association, InformationReport report)
    {
        Awaited<ReportFate> fate;
        association->report(std::move(report), fate.setter());
        return fate.get();
    }

    std::shared_ptr<Reporter> m_reporter = std::make_shared<Reporter>();
};

} // namespace

TEST_F(Reports, theServerHearsWhichReportIsTooLong)
{
    ServerOptions server;
    server.association.maxPduSize = 1000;
    Awaited<InformationReport> received;
    Association::Handlers handlers;
    handlers.report = received.setter();
    ASSERT_TRUE(connect(startServer(server), quickOptions(), handlers).ok());
    const auto association = m_reporter->accepted.get();
    EXPECT_EQ(association->pduSize(), 1000U);
    std::size_t fits = 1;
    while (encode(UnconfirmedPdu{floats(fits + 1)}).size() <= association->pduSize())
        ++fits;
    EXPECT_EQ(send(association, floats(fits + 1)), ReportFate::TooLong);
    EXPECT_EQ(association->counters().unsent, 1U);
    EXPECT_EQ(send(association, floats(fits)), ReportFate::Queued);
    EXPECT_EQ(received.get(), floats(fits));
    m_client->abort(mms::verbatim("The test is over."));
    m_reporter->end.get();
    EXPECT_EQ(send(association, floats(1)), ReportFate::NotOpen);
    EXPECT_EQ(association->counters().unsent, 2U);
}

TEST_F(Reports, aServerThatHoldsBackLosesNoneOfManyReports)
{
    constexpr std::uint32_t count = 20000;
    Awaited<std::uint32_t> last;
    std::uint32_t next = 0;
    std::uint32_t gaps = 0;
    Association::Handlers handlers;
    handlers.report = [&, done = last.setter()](const InformationReport &report) {
        if (report.results.size() != 50 || report.results.front().data().toUnsigned() != next)
            ++gaps;
        if (++next == count)
            done(next);
    };
    ASSERT_TRUE(connect(startServer(), quickOptions(), handlers).ok());
    const auto association = m_reporter->accepted.get();
    const auto stream = std::make_shared<Stream>(association, count);
    asio::post(association->strand(), [stream] { stream->go(); });
    EXPECT_EQ(last.get(), count);
    EXPECT_EQ(gaps, 0U);
    EXPECT_EQ(stream->lost, 0);
    EXPECT_GT(stream->pauses, 0);
    EXPECT_LT(stream->longestQueue, Stream::mostQueued + 1000);
}

TEST_F(Reports, whoWaitsForTheQueueHearsNothingAfterTheEnd)
{
    ASSERT_TRUE(connect(startServer(), quickOptions()).ok());
    const auto association = m_reporter->accepted.get();
    Awaited<bool> atOnce;
    association->whenQueued(0, [done = atOnce.setter()] { done(true); });
    EXPECT_TRUE(atOnce.get());
    m_client->abort(mms::verbatim("The test is over."));
    m_reporter->end.get();
    std::atomic<bool> called{false};
    association->whenQueued(0, [&called] { called = true; });
    send(association, floats(1));
    EXPECT_FALSE(called);
}
