// SPDX-License-Identifier: Apache-2.0
// Reports of 50 floating-point members each.
//
// Decode: from the octets of the PDU to members with their reasons, on one core; the rate counts
// members.
//
// The others go from a simulated IED to one client over loopback, with one thread for the device
// and one for the client. Paced: 20,000 reports a second, which must arrive without loss; "lost" is
// what is missing in the sequence numbers, "seconds" how long a second's reports took until the
// last of them was decoded. Burst: more than buffer and network take; where entries are lost the
// client is told, and "untold" counts the runs in which it was not.

#include "acsi/report.h"
#include "mms/shorthand.h"
#include "scl/reader.h"
#include "simulator/device.h"

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/steady_timer.hpp>
#include <benchmark/benchmark.h>

#include <ctime>
#include <future>
#include <thread>

namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t memberCount = 50;
constexpr std::uint64_t reportsPerSecond = 20000;

std::string description()
{
    std::string members;
    std::string nodes;
    for (std::uint32_t i = 1; i <= memberCount; ++i) {
        const std::string inst = std::to_string(i);
        members += "<FCDA ldInst=\"LD\" lnClass=\"GGIO\" lnInst=\"" + inst +
                   "\" doName=\"AnIn1\" daName=\"mag.f\" fc=\"MX\"/>";
        nodes += "<LN lnClass=\"GGIO\" inst=\"" + inst + "\" lnType=\"G\"/>";
    }
    return "<SCL xmlns=\"http://www.iec.ch/61850/2003/SCL\" version=\"2007\" revision=\"B\">"
           "<Header id=\"bench\"/><IED name=\"IED\"><AccessPoint name=\"S\"><Server>"
           "<Authentication none=\"true\"/><LDevice inst=\"LD\"><LN0 lnClass=\"LLN0\" inst=\"\" "
           "lnType=\"L\"><DataSet name=\"Values\">" +
           members +
           "</DataSet><ReportControl name=\"brcb\" datSet=\"Values\" confRev=\"1\" buffered=\"true\" "
           "indexed=\"false\"><TrgOps dchg=\"true\"/><OptFields seqNum=\"true\" bufOvfl=\"true\" "
           "reasonCode=\"true\" entryID=\"true\" timeStamp=\"true\"/><RptEnabled max=\"1\"/>"
           "</ReportControl></LN0>" +
           nodes +
           "</LDevice></Server></AccessPoint></IED><DataTypeTemplates>"
           "<LNodeType id=\"L\" lnClass=\"LLN0\"/>"
           "<LNodeType id=\"G\" lnClass=\"GGIO\"><DO name=\"AnIn1\" type=\"M\"/></LNodeType>"
           "<DOType id=\"M\" cdc=\"MV\"><DA name=\"mag\" fc=\"MX\" bType=\"Struct\" type=\"A\" "
           "dchg=\"true\"/></DOType><DAType id=\"A\"><BDA name=\"f\" bType=\"FLOAT32\"/></DAType>"
           "</DataTypeTemplates></SCL>";
}

/// An io_context with a thread of its own.
class Thread
{
public:
    ~Thread()
    {
        m_work.reset();
        m_thread.join();
    }
    asio::any_io_executor executor() { return m_context.get_executor(); }

private:
    asio::io_context m_context{1};
    asio::executor_work_guard<asio::io_context::executor_type> m_work =
        asio::make_work_guard(m_context);
    std::thread m_thread{[this] { m_context.run(); }};
};

/// A device, and a client for whom its report control block is enabled.
class Pair
{
public:
    explicit Pair(const scl::Ied &ied)
        : m_pace(m_server.executor())
    {
        sim::DeviceOptions options;
        options.server.address = "127.0.0.1";
        options.server.port = 0;
        m_device = sim::Device::create(m_server.executor(), ied, options);
        for (std::uint32_t i = 1; i <= memberCount; ++i)
            m_leaves.push_back(m_device->model()
                                   .find("IEDLD", "GGIO" + std::to_string(i) + "$MX$AnIn1$mag$f")
                                   .firstLeaf());
        const auto port = m_device->start();
        mms::Association::Handlers handlers;
        handlers.report = [this](mms::InformationReport report) { take(std::move(report)); };
        handlers.closed = [this](const mms::Text &) { m_closed.set_value(); };
        m_association = mms::Association::create(m_client.executor(), {}, std::move(handlers));
        std::promise<void> opened;
        m_association->connect("127.0.0.1", port ? *port : 0,
                               [&opened](const auto &) { opened.set_value(); });
        opened.get_future().wait();
        mms::WriteRequest enable;
        enable.variables = wiretest::variablesOf("IEDLD", {"LLN0$BR$brcb$RptEna"});
        enable.values = {mms::Data::boolean(true)};
        std::promise<void> enabled;
        m_association->call(enable, 5s, [&enabled](const auto &) { enabled.set_value(); });
        enabled.get_future().wait();
    }

    ~Pair()
    {
        m_association->abort(mms::verbatim("Done."));
        m_closed.get_future().wait();
        m_device->stop();
    }

    /// Makes @p count reports, @p atOnce behind each other every millisecond, and waits until the
    /// last one is decoded or told to be lost.
    void run(std::uint64_t count, std::uint64_t atOnce)
    {
        m_received = 0;
        m_lost = 0;
        m_overflows = 0;
        m_undecodable = 0;
        m_arrived = {};
        m_next = std::chrono::steady_clock::now();
        asio::dispatch(m_device->strand(), [this, count, atOnce] { produce(count, atOnce); });
        m_arrived.get_future().wait();
    }

    std::uint64_t received() const { return m_received; }
    std::uint64_t lost() const { return m_lost; }
    std::uint64_t overflows() const { return m_overflows; }
    std::uint64_t undecodable() const { return m_undecodable; }

private:
    void produce(std::uint64_t left, std::uint64_t atOnce)
    {
        for (std::uint64_t i = 0; i < atOnce && left > 0; ++i, --left) {
            const sim::Model::Batch batch(m_device->model());
            // The last one is known by its values.
            m_value = left == 1 ? lastValue : m_value < 1000 ? m_value + 1 : 1;
            for (const sim::Leaf leaf : m_leaves)
                m_device->model().set(leaf, mms::Data::float32(m_value));
        }
        if (left == 0)
            return;
        m_next += 1ms;
        m_pace.expires_at(m_next);
        m_pace.async_wait([this, left, atOnce](const asio::error_code &) {
            asio::dispatch(m_device->strand(), [this, left, atOnce] { produce(left, atOnce); });
        });
    }

    void take(mms::InformationReport information)
    {
        const auto report = acsi::decodeReport(std::move(information));
        if (!report || !report->sqNum || report->members.size() != memberCount) {
            ++m_undecodable;
            return;
        }
        m_lost += (*report->sqNum - m_expected) & 0xffffU;
        m_expected = (*report->sqNum + 1) & 0xffffU;
        m_overflows += report->bufOvfl.value_or(false) ? 1 : 0;
        ++m_received;
        if (report->members.back().value.data().toDouble() == lastValue)
            m_arrived.set_value();
    }

    static constexpr float lastValue = -1;

    Thread m_server;
    Thread m_client;
    asio::steady_timer m_pace;
    std::chrono::steady_clock::time_point m_next;
    std::shared_ptr<sim::Device> m_device;
    std::vector<sim::Leaf> m_leaves;
    float m_value = 0;

    std::shared_ptr<mms::Association> m_association;
    std::promise<void> m_closed;
    std::promise<void> m_arrived;
    std::uint32_t m_expected = 0;
    std::uint64_t m_received = 0;
    std::uint64_t m_lost = 0;
    std::uint64_t m_overflows = 0;
    std::uint64_t m_undecodable = 0;
};

scl::ReadResult read()
{
    scl::ReadResult result = scl::readBytes(description());
    if (!result.document)
        std::abort();
    return result;
}

void decode(benchmark::State &state)
{
    acsi::Report report;
    report.rptId = "IEDLD/LLN0$BR$brcb";
    report.optFlds.sequenceNumber = true;
    report.optFlds.timeStamp = true;
    report.optFlds.reasonForInclusion = true;
    report.optFlds.bufferOverflow = true;
    report.optFlds.entryId = true;
    report.sqNum = 4711;
    report.timeOfEntry = mms::BinaryTime{18367123, 13577};
    report.bufOvfl = false;
    report.entryId = {0, 0, 0, 0, 0, 0, 18, 103};
    report.dataSetSize = memberCount;
    for (std::uint32_t i = 0; i < memberCount; ++i) {
        acsi::ReportMember member{
            i, {}, std::nullopt, mms::Data::float32(static_cast<float>(i) * 1.25F)};
        member.reason.emplace().dataChange = true;
        report.members.push_back(std::move(member));
    }
    const mms::Octets octets = mms::encode(mms::UnconfirmedPdu{acsi::encodeReport(report)});
    for ([[maybe_unused]] auto _ : state) {
        auto pdu = mms::decodePdu(octets);
        auto *unconfirmed = pdu ? std::get_if<mms::UnconfirmedPdu>(&*pdu) : nullptr;
        auto *information =
            unconfirmed ? std::get_if<mms::InformationReport>(&unconfirmed->service) : nullptr;
        if (!information) {
            state.SkipWithError("the report was not read back");
            return;
        }
        auto decoded = acsi::decodeReport(std::move(*information));
        if (!decoded || decoded->members.size() != memberCount) {
            state.SkipWithError("the report was not decoded");
            return;
        }
        benchmark::DoNotOptimize(decoded);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * memberCount);
    state.counters["limit_items_per_second"] = 1e6;
}
BENCHMARK(decode);

double cpuSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void paced(benchmark::State &state)
{
    const scl::ReadResult file = read();
    Pair pair(file.document->ieds.front());
    std::uint64_t missing = 0;
    double longest = 0;
    double cpu = 0;
    for ([[maybe_unused]] auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        const double cpuBegin = cpuSeconds();
        pair.run(reportsPerSecond, reportsPerSecond / 1000);
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
        cpu += cpuSeconds() - cpuBegin;
        longest = std::max(longest, took.count());
        missing += reportsPerSecond - pair.received() + pair.lost() + pair.undecodable();
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["lost"] = static_cast<double>(missing);
    state.counters["seconds"] = longest;
    state.counters["cores"] = cpu / longest / runs;
    state.counters["limit_lost"] = 0;
    state.counters["limit_seconds"] = 1.05;
}
BENCHMARK(paced)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void burst(benchmark::State &state)
{
    constexpr std::uint64_t count = 100000;
    const scl::ReadResult file = read();
    Pair pair(file.document->ieds.front());
    double lost = 0;
    double untold = 0;
    double received = 0;
    for ([[maybe_unused]] auto _ : state) {
        pair.run(count, count);
        const std::uint64_t missing = count - pair.received();
        lost += static_cast<double>(missing);
        received += static_cast<double>(pair.received());
        untold += missing > 0 && pair.overflows() == 0 ? 1 : 0;
    }
    state.counters["lost"] = lost / static_cast<double>(state.iterations());
    state.counters["received"] = received / static_cast<double>(state.iterations());
    state.counters["untold"] = untold;
    state.counters["limit_untold"] = 0;
}
BENCHMARK(burst)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

} // namespace

BENCHMARK_MAIN();
