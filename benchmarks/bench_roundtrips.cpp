// SPDX-License-Identifier: Apache-2.0
// What a long way to the device costs: discovery and files over 20 ms, and a read after a silence.
// The ratios are those of one run; each has its limit beside it.
#include "clientloop.h"
#include "delayingproxy.h"

#include "acsi/discovery.h"
#include "acsi/files.h"
#include "scl/reader.h"
#include "simulator/device.h"
#include "simulator/directoryfiles.h"
#include "support/generatedscl.h"

#include <asio/read.hpp>
#include <asio/steady_timer.hpp>
#include <asio/this_coro.hpp>
#include <asio/use_awaitable.hpp>
#include <asio/write.hpp>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds roundTrip{20};
constexpr double roundTripSeconds = 0.02;
constexpr int outstanding = 5;
/// 4 logical devices of 50 nodes besides LLN0, of 100 attributes each.
const GeneratedScl largeDevice{20000, false, 50, 8};
constexpr std::size_t fileSize = 10000000;

/// A simulated device with a file, served by a thread of its own.
class Simulated
{
public:
    Simulated()
        : m_folder(std::filesystem::temp_directory_path() /
                   ("roundtrips-" + std::to_string(getpid())))
    {
        const scl::ReadResult read = scl::readBytes(largeDevice.text());
        std::filesystem::create_directories(m_folder);
        std::ofstream(m_folder / "record.dat", std::ios::binary)
            << std::string(fileSize, 'r') << std::flush;
        sim::FileOptions files;
        files.directory = m_folder;
        sim::DeviceOptions options;
        options.server.address = "127.0.0.1";
        options.server.port = 0;
        options.files = *sim::DirectoryFiles::create(files);
        m_device = sim::Device::create(m_loop.executor(), read.document->ieds.front(), options);
        m_port = *m_device->start();
    }

    ~Simulated()
    {
        m_device->stop();
        const sim::Device::Strand strand = m_device->strand();
        asio::post(strand, [device = std::move(m_device)] {});
        std::filesystem::remove_all(m_folder);
    }

    std::uint16_t port() const { return m_port; }

private:
    std::filesystem::path m_folder;
    wiretest::Loop m_loop;
    std::shared_ptr<sim::Device> m_device;
    std::uint16_t m_port = 0;
};

struct Requests
{
    int pages = 0;
    int types = 0;
    int all = 0;
};

acsi::ClientOptions counting(const std::shared_ptr<Requests> &requests)
{
    acsi::ClientOptions options;
    options.association.link.trace = [requests](osi::Direction direction, mms::Bytes octets) {
        if (direction != osi::Direction::Sent)
            return;
        const auto pdu = mms::decodePdu(octets);
        const auto *request = pdu ? std::get_if<mms::ConfirmedRequestPdu>(&*pdu) : nullptr;
        if (!request)
            return;
        ++requests->all;
        if (std::holds_alternative<mms::GetNameListRequest>(request->request))
            ++requests->pages;
        if (std::holds_alternative<mms::GetVariableAccessAttributesRequest>(request->request))
            ++requests->types;
    };
    return options;
}

double secondsOfDiscovery(ClientLoop &loop, std::uint16_t port, int atATime, Requests &requests)
{
    const auto counted = std::make_shared<Requests>();
    const auto client = loop.connect(port, counting(counted));
    acsi::DiscoveryOptions options;
    options.outstanding = atATime;
    const auto start = std::chrono::steady_clock::now();
    const auto found = loop.run(client, acsi::discover(client, options));
    const double seconds = secondsSince(start);
    if (!found.refused.empty() || found.devices.size() != 4 || found.devices[3].nodes.size() != 51)
        throw std::runtime_error("not everything was discovered");
    requests = *counted;
    return seconds;
}

void discovery(benchmark::State &state)
{
    const Simulated device;
    const DelayingProxy network(device.port(), roundTrip);
    ClientLoop loop;
    for (auto _ : state) {
        Requests requests;
        const double together = secondsOfDiscovery(loop, network.port(), outstanding, requests);
        const double oneByOne = secondsOfDiscovery(loop, network.port(), 1, requests);
        const double trips = requests.pages + static_cast<double>(requests.types) / outstanding;
        state.counters["round_trips"] = together / roundTripSeconds;
        state.counters["over_ideal"] = together / roundTripSeconds / trips;
        state.counters["over_ideal_limit"] = 1.3;
        state.counters["faster"] = oneByOne / together;
        state.counters["faster_limit"] = 4;
        state.counters["pages"] = requests.pages;
        state.counters["types"] = requests.types;
        state.counters["requests"] = requests.all;
    }
}
BENCHMARK(discovery)->Iterations(1)->Unit(benchmark::kMillisecond);

double secondsOfDownload(ClientLoop &loop, std::uint16_t port, int atATime)
{
    acsi::ClientOptions options;
    options.outstandingFileReads = atATime;
    const auto client = loop.connect(port, options);
    std::size_t received = 0;
    const auto start = std::chrono::steady_clock::now();
    const auto announced = loop.run(
        client, acsi::download(client, "record.dat", [&](std::span<const std::uint8_t> block) {
            received += block.size();
            return true;
        }));
    const double seconds = secondsSince(start);
    if (announced != fileSize || received != fileSize)
        throw std::runtime_error("the file is not whole");
    return seconds;
}

void download(benchmark::State &state)
{
    const Simulated device;
    const DelayingProxy network(device.port(), roundTrip);
    ClientLoop loop;
    for (auto _ : state) {
        const double together = secondsOfDownload(loop, network.port(), outstanding);
        const double oneByOne = secondsOfDownload(loop, network.port(), 1);
        state.counters["faster"] = oneByOne / together;
        state.counters["faster_limit"] = 4;
        state.counters["seconds"] = together;
    }
}
BENCHMARK(download)->Iterations(1)->Unit(benchmark::kMillisecond);

using Seconds = std::vector<double>;

double median(Seconds seconds)
{
    std::ranges::sort(seconds);
    return seconds[seconds.size() / 2];
}

/// How long each of @p count reads takes, @p silence after the one before.
asio::awaitable<mms::Result<Seconds>> reads(std::shared_ptr<acsi::Client> client,
                                            mms::VariableAccess variable, int count,
                                            std::chrono::milliseconds silence)
{
    Seconds result;
    asio::steady_timer pause(client->strand());
    for (int i = 0; i < count; ++i) {
        if (silence.count() > 0) {
            pause.expires_after(silence);
            co_await pause.async_wait(asio::use_awaitable);
        }
        const auto start = std::chrono::steady_clock::now();
        const auto value = co_await client->readOne(variable);
        if (!value)
            co_return value.error();
        result.push_back(secondsSince(start));
    }
    co_return result;
}

asio::awaitable<void> sendBack(asio::ip::tcp::socket socket)
{
    socket.set_option(asio::ip::tcp::no_delay(true));
    std::array<std::uint8_t, 256> buffer{};
    for (;;) {
        const std::size_t count =
            co_await socket.async_read_some(asio::buffer(buffer), asio::use_awaitable);
        co_await asio::async_write(socket, asio::buffer(buffer, count), asio::use_awaitable);
    }
}

asio::awaitable<void> echo(asio::ip::tcp::acceptor &acceptor)
{
    for (;;) {
        asio::ip::tcp::socket socket = co_await acceptor.async_accept(asio::use_awaitable);
        asio::co_spawn(acceptor.get_executor(), sendBack(std::move(socket)), asio::detached);
    }
}

/// The same of a bare socket and as many octets: what waking two threads costs on this machine.
asio::awaitable<mms::Result<Seconds>> echoes(std::uint16_t port, int count,
                                             std::chrono::milliseconds silence)
{
    constexpr std::size_t octetsOfARead = 80;
    const auto executor = co_await asio::this_coro::executor;
    asio::ip::tcp::socket socket(executor);
    const asio::ip::tcp::endpoint endpoint(asio::ip::address_v4::loopback(), port);
    co_await socket.async_connect(endpoint, asio::use_awaitable);
    socket.set_option(asio::ip::tcp::no_delay(true));
    std::array<std::uint8_t, octetsOfARead> buffer{};
    Seconds result;
    asio::steady_timer pause(executor);
    for (int i = 0; i < count; ++i) {
        if (silence.count() > 0) {
            pause.expires_after(silence);
            co_await pause.async_wait(asio::use_awaitable);
        }
        const auto start = std::chrono::steady_clock::now();
        co_await asio::async_write(socket, asio::buffer(buffer), asio::use_awaitable);
        co_await asio::async_read(socket, asio::buffer(buffer), asio::use_awaitable);
        result.push_back(secondsSince(start));
    }
    co_return result;
}

/// Somebody who sends back what comes, in a thread of its own.
class Echo
{
public:
    Echo()
        : m_acceptor(m_context, {asio::ip::address_v4::loopback(), 0})
    {
        asio::co_spawn(m_context, echo(m_acceptor), asio::detached);
        m_thread = std::thread([this] { m_context.run(); });
    }

    ~Echo()
    {
        m_context.stop();
        m_thread.join();
    }

    std::uint16_t port() { return m_acceptor.local_endpoint().port(); }

private:
    asio::io_context m_context;
    asio::ip::tcp::acceptor m_acceptor;
    std::thread m_thread;
};

/// The median of reads with as many on the way as were agreed.
double inBusyStream(ClientLoop &loop, const std::shared_ptr<acsi::Client> &client,
                    const mms::VariableAccess &variable, int count)
{
    std::vector<wiretest::Awaited<mms::Result<Seconds>>> streams;
    for (int i = 0; i < outstanding; ++i)
        streams.push_back(loop.start(client->strand(), reads(client, variable, count, {})));
    Seconds together;
    for (auto &stream : streams) {
        const auto seconds = stream.get();
        if (!seconds)
            throw std::runtime_error(seconds.error().message.english());
        together.insert(together.end(), seconds->begin(), seconds->end());
    }
    return median(std::move(together));
}

void afterSilence(benchmark::State &state)
{
    constexpr std::chrono::milliseconds silence(100);
    const Simulated device;
    const DelayingProxy network(device.port(), roundTrip);
    ClientLoop loop;
    const auto far = loop.connect(network.port());
    const mms::VariableAccess variable{mms::ObjectName::inDomain("GENLD1", "LLN0$ST$Mod$stVal"),
                                       {}};
    for (auto _ : state) {
        const double busy = inBusyStream(loop, far, variable, 50);
        const double silent = median(loop.run(far, reads(far, variable, 30, silence)));
        state.counters["ratio"] = silent / busy;
        state.counters["limit"] = 1;
        state.counters["busy_us"] = busy * 1e6;
        state.counters["after_silence_us"] = silent * 1e6;
    }
}
BENCHMARK(afterSilence)->Iterations(1)->Unit(benchmark::kMillisecond);

/// Without a network between them the two wake a machine that sleeps: the echo is what that costs.
/// They take turns, so that what else the machine does meets both.
void nearAfterSilence(benchmark::State &state)
{
    constexpr std::chrono::milliseconds silence(100);
    constexpr int rounds = 20;
    constexpr int ofEach = 10;
    const Simulated device;
    Echo echo;
    ClientLoop loop;
    const auto client = loop.connect(device.port());
    const mms::VariableAccess variable{mms::ObjectName::inDomain("GENLD1", "LLN0$ST$Mod$stVal"),
                                       {}};
    for (auto _ : state) {
        state.counters["busy_us"] = inBusyStream(loop, client, variable, 2000) * 1e6;
        Seconds ofReads;
        Seconds ofEchoes;
        for (int round = 0; round < rounds; ++round) {
            const Seconds read = loop.run(client, reads(client, variable, ofEach, silence));
            ofReads.insert(ofReads.end(), read.begin(), read.end());
            const auto echoed = loop.run(loop.executor(), echoes(echo.port(), ofEach, silence));
            ofEchoes.insert(ofEchoes.end(), echoed->begin(), echoed->end());
        }
        state.counters["read_us"] = median(ofReads) * 1e6;
        state.counters["echo_us"] = median(ofEchoes) * 1e6;
        state.counters["ratio"] = median(ofReads) / median(ofEchoes);
        state.counters["limit"] = 1.5;
    }
}
BENCHMARK(nearAfterSilence)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
