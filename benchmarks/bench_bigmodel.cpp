// SPDX-License-Identifier: Apache-2.0
// A device of 100,000 attributes (4 logical devices, 1,000 logical nodes), simulated in a process
// of its own on loopback, nothing known of it before.
//
// "over_foreign": from the wish to connect to the device being online with its model, over what a
// foreign client needs for the same names and types, one call after the other, keeping nothing
// (limit 4). It is missing where the foreign stack cannot be installed. "over_bare" is the same
// over our own client doing what the foreign one does. Medians of rounds in turn; "quickest" is the
// first of the quickest rounds, for a machine that is busy otherwise.
//
// "heap_per_attribute": heap that the driver keeps once the device is online, values of its
// configuration and the capture of the last PDUs included (limit 800); "heap_with_values" after the
// first round of polling. "resident_per_attribute" and "with_values" are the same as the system
// sees it.
#include "clientloop.h"

#include "driver/service/ieddriver.h"
#include "mms/pduservices.h"
#include "scl/reader.h"
#include "simulator/device.h"
#include "support/generatedscl.h"

#if defined(BENCH_WITH_FOREIGN_PEER)
#include "interop/foreignpeer.h"

#include <QtCore/QJsonArray>
#endif

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <ctime>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

#include <malloc.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

using std::chrono::steady_clock;

constexpr int attributes = 100000;
constexpr int devices = 4;
constexpr int nodesPerDevice = 250; ///< besides LLN0
constexpr int rounds = 7;
constexpr double foreignLimit = 4;
constexpr double bytesLimit = 800;

std::uint16_t serverPort = 0; ///< of the simulated device

/// Serves the device until the process that started this one has ended.
[[noreturn]] void serve(int portPipe)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    asio::io_context context;
    const auto work = asio::make_work_guard(context);
    const scl::ReadResult file =
        scl::readBytes(GeneratedScl{attributes, false, nodesPerDevice, 8}.text());
    sim::DeviceOptions options;
    options.server.address = "127.0.0.1";
    options.server.port = 0;
    const auto device =
        sim::Device::create(context.get_executor(), file.document->ieds.front(), options);
    const std::uint16_t port = device->start().value();
    if (write(portPipe, &port, sizeof port) == sizeof port)
        context.run();
    _exit(1);
}

/// Before any thread is started.
void startServer()
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const pid_t process = fork();
    if (process == 0)
        serve(ends[1]);
    if (process < 0 || read(ends[0], &serverPort, sizeof serverPort) != sizeof serverPort)
        throw std::runtime_error("the simulated device does not start");
    close(ends[0]);
    close(ends[1]);
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

std::string nodeName(int node)
{
    return node == 0 ? "LLN0" : "IOGGIO" + std::to_string(node);
}

/// The names of a domain, page after page.
asio::awaitable<mms::Result<void>> passNames(std::shared_ptr<acsi::Client> client,
                                             mms::GetNameListRequest request)
{
    for (bool more = true; more;) {
        const auto page = co_await client->ask<mms::GetNameListResponse>(request);
        if (!page)
            co_return page.error();
        more = page->moreFollows && !page->names.empty();
        if (more)
            request.continueAfter = page->names.back();
    }
    co_return mms::Result<void>();
}

/// Names and types of all nodes, nothing of which is kept.
asio::awaitable<mms::Result<void>> passModel(std::shared_ptr<acsi::Client> client)
{
    using mms::ObjectClass;
    std::vector<mms::GetNameListRequest> lists;
    lists.push_back({ObjectClass::Domain, mms::Scope::Vmd, {}, {}});
    std::vector<mms::ObjectName> nodes;
    for (int device = 1; device <= devices; ++device) {
        const std::string domain = "GENLD" + std::to_string(device);
        for (const ObjectClass kind :
             {ObjectClass::NamedVariable, ObjectClass::NamedVariableList, ObjectClass::Journal})
            lists.push_back({kind, mms::Scope::Domain, domain, {}});
        for (int node = 0; node <= nodesPerDevice; ++node)
            nodes.push_back(mms::ObjectName::inDomain(domain, nodeName(node)));
    }
    for (const mms::GetNameListRequest &list : lists) {
        const mms::Result<void> passed = co_await passNames(client, list);
        if (!passed)
            co_return passed.error();
    }
    for (const mms::ObjectName &node : nodes) {
        const auto type = co_await client->type(node);
        if (!type)
            co_return type.error();
    }
    co_return mms::Result<void>();
}

double secondsOfBarePass()
{
    ClientLoop loop;
    const auto start = steady_clock::now();
    const auto client = loop.connect(serverPort);
    loop.run(client, passModel(client));
    return secondsSince(start);
}

#if defined(BENCH_WITH_FOREIGN_PEER)
/// Of the foreign client, started once.
class ForeignPass
{
public:
    ForeignPass()
    {
        if (interop::Installation::get().python.isEmpty())
            return;
        m_client = std::make_unique<interop::ForeignPeer>(interop::ForeignPeer::Role::Client);
        for (int device = 1; device <= devices; ++device) {
            for (int node = 0; node <= nodesPerDevice; ++node)
                m_nodes.append(QJsonArray{QStringLiteral("GENLD%1").arg(device),
                                          QString::fromStdString(nodeName(node))});
        }
    }

    bool isThere() const { return m_client && m_client->isReady(); }

    double seconds()
    {
        ask(QStringLiteral("connect"), {{QStringLiteral("port"), serverPort}});
        const double passed =
            ask(QStringLiteral("timediscovery"),
                {{QStringLiteral("items"), m_nodes}, {QStringLiteral("count"), 1}});
        ask(QStringLiteral("close"), {});
        return passed;
    }

private:
    double ask(const QString &command, const QJsonObject &arguments)
    {
        const QJsonValue answer = m_client->ask(command, arguments);
        if (answer.isUndefined())
            throw std::runtime_error(m_client->failure().toStdString());
        return answer.toDouble();
    }

    std::unique_ptr<interop::ForeignPeer> m_client;
    QJsonArray m_nodes;
};
#else
class ForeignPass
{
public:
    static bool isThere() { return false; }
    static double seconds() { return 0; }
};
#endif

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// As the system sees it.
double residentMemory()
{
    long long pages = 0;
    if (std::FILE *file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%*s %lld", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// A driver of its own with the device, from the wish to connect on.
class Connected
{
public:
    explicit Connected(std::chrono::milliseconds pollInterval)
        : m_driver(options())
    {
        DeviceConfiguration configuration;
        configuration.number = 1;
        configuration.name = QStringLiteral("GEN");
        configuration.host = QStringLiteral("127.0.0.1");
        configuration.port = serverPort;
        configuration.pollInterval = pollInterval;
        m_driver.setDevice(configuration);
        m_driver.connectDevice(1);
        std::unique_lock<std::mutex> lock(m_mutex);
        const bool isOnline =
            m_changed.wait_for(lock, std::chrono::seconds(120), [this] { return m_isOnline; });
        if (!isOnline)
            throw std::runtime_error("the device is not online");
    }

    /// What a browser is given; the octets are not kept.
    int giveModel()
    {
        QByteArray model;
        QString error;
        if (m_driver.serviceFor(Caller())->getIEDModel(1, model, error) != OperationSucceeded)
            throw std::runtime_error(error.toStdString());
        return model.size();
    }

    /// Until the first round of polling has brought every value.
    void awaitValues()
    {
        const auto known = [this] {
            return m_driver.status(1).counters.publishedValues >=
                   static_cast<std::uint64_t>(attributes);
        };
        for (int i = 0; !known(); ++i) {
            if (i > 6000)
                throw std::runtime_error("the values are not all there");
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
    }

private:
    IedDriverOptions options()
    {
        IedDriverOptions options;
        options.poster = [](const QList<QByteArray> &) {};
        options.observer.statusChanged = [this](const DeviceStatus &status) {
            if (status.state != DeviceState::Online)
                return;
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_isOnline = true;
            m_changed.notify_all();
        };
        return options;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOnline = false;
    IedDriver m_driver;
};

void connecting(benchmark::State &state)
{
    ForeignPass foreign;
    for (auto _ : state) {
        std::vector<double> theirs;
        std::vector<double> bare;
        std::vector<double> ours;
        std::vector<double> work;
        for (int i = 0; i < rounds; ++i) {
            if (foreign.isThere())
                theirs.push_back(foreign.seconds());
            bare.push_back(secondsOfBarePass());
            const std::clock_t workBefore = std::clock();
            const auto start = steady_clock::now();
            Connected connected(std::chrono::minutes(60));
            connected.giveModel();
            ours.push_back(secondsSince(start));
            work.push_back(static_cast<double>(std::clock() - workBefore) / CLOCKS_PER_SEC);
        }
        state.counters["limit"] = foreignLimit;
        state.counters["over_bare"] = median(ours) / median(bare);
        state.counters["ours_ms"] = median(ours) * 1e3;
        state.counters["our_cpu_ms"] = median(work) * 1e3;
        state.counters["bare_ms"] = median(bare) * 1e3;
        state.counters["our_best_ms"] = *std::ranges::min_element(ours) * 1e3;
        if (theirs.empty())
            continue;
        state.counters["over_foreign"] = median(ours) / median(theirs);
        state.counters["quickest"] =
            *std::ranges::min_element(ours) / *std::ranges::min_element(theirs);
        state.counters["theirs_ms"] = median(theirs) * 1e3;
        state.counters["their_best_ms"] = *std::ranges::min_element(theirs) * 1e3;
    }
}

void memory(benchmark::State &state)
{
    for (auto _ : state) {
        const double residentBefore = residentMemory();
        const double heapBefore = heapInUse();
        Connected connected(std::chrono::milliseconds(0));
        state.counters["limit"] = bytesLimit;
        state.counters["resident_per_attribute"] = (residentMemory() - residentBefore) / attributes;
        state.counters["heap_per_attribute"] = (heapInUse() - heapBefore) / attributes;
        connected.giveModel();
        connected.awaitValues();
        state.counters["with_values"] = (residentMemory() - residentBefore) / attributes;
        state.counters["heap_with_values"] = (heapInUse() - heapBefore) / attributes;
    }
}
// First, while nothing has left memory to the allocator that would be used again unseen.
BENCHMARK(memory)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(connecting)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    startServer();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
