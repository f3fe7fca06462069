// SPDX-License-Identifier: Apache-2.0
// How fast PDUs are read and written; the rates count the octets of the PDU. What associations that
// stand idle cost; limits are 64 KiB of memory for each end and 0.1 % of a core for all.
#include "mms/loopback.h"
#include "mms/pdu.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <ctime>

using namespace mms;

namespace {

const BitString goodQuality(13);
const UtcTime someTime{1614834367, 0x800000, 0x0A};

/// 50 floating-point numbers, as a read of measured values answers.
Pdu floats()
{
    ReadResponse response;
    for (int i = 0; i < 50; ++i)
        response.results.emplace_back(Data::float32(static_cast<float>(i) * 1.25F));
    return ConfirmedResponsePdu{1000, response};
}

/// 50 measured values with quality and time, as a read of whole objects answers.
Pdu measuredValues()
{
    ReadResponse response;
    for (int i = 0; i < 50; ++i) {
        response.results.emplace_back(
            Data::structure({Data::structure({Data::float32(static_cast<float>(i) * 1.25F)}),
                             Data::bitString(goodQuality), Data::utcTime(someTime)}));
    }
    return ConfirmedResponsePdu{1000, response};
}

/// 20 names, as a read of name plates answers.
Pdu texts()
{
    ReadResponse response;
    for (int i = 0; i < 20; ++i) {
        response.results.emplace_back(
            Data::structure({Data::visibleString("Vendor of substation equipment"),
                             Data::visibleString("Bay controller, revision C"),
                             Data::visibleString("IED1LD0/LLN0")}));
    }
    return ConfirmedResponsePdu{1000, response};
}

/// A report of 50 floating-point numbers with the fields before them.
Pdu report()
{
    InformationReport report{ObjectName::ofVmd("RPT"), {}};
    report.results.emplace_back(Data::visibleString("IED1LD0/LLN0$RP$urcb01"));
    report.results.emplace_back(Data::bitString(BitString::fromText("0111110000")));
    report.results.emplace_back(Data::unsignedInteger(4711));
    report.results.emplace_back(Data::binaryTime({18367123, 13577}));
    report.results.emplace_back(Data::bitString(BitString(50)));
    for (int i = 0; i < 50; ++i)
        report.results.emplace_back(Data::float32(static_cast<float>(i) * 1.25F));
    return UnconfirmedPdu{report};
}

/// @p values counts the values of variables in the PDU.
void decode(benchmark::State &state, const Pdu &pdu, std::int64_t values = 0)
{
    const auto bytes = encode(pdu);
    for (auto _ : state) {
        auto result = decodePdu(bytes);
        benchmark::DoNotOptimize(result);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
    if (values > 0)
        state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * values);
}

void write(benchmark::State &state, const Pdu &pdu)
{
    ber::Writer writer(64 * 1024);
    std::size_t size = 0;
    for (auto _ : state) {
        writer.clear();
        mms::write(writer, pdu);
        benchmark::DoNotOptimize(writer.view().data());
        size = writer.size();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * size));
}

class SilentDevice : public ServerHandler
{
    void request(const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                 RequestService) override
    {
        association->reject(invokeId, rejectcodes::requestUnrecognizedService);
    }
};

/// Associations of this process with itself that have exchanged a call and then say nothing.
void idle(benchmark::State &state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    for (auto _ : state) {
        wiretest::Loop loop;
        ServerOptions options;
        options.address = "127.0.0.1";
        options.port = 0;
        options.maxAssociations = count;
        const auto server =
            Server::create(loop.executor(), options, std::make_shared<SilentDevice>());
        const auto port = server->start();
        if (!port) {
            state.SkipWithError(port.error().message.english().c_str());
            break;
        }
        const auto memory = mallinfo2().uordblks;
        std::vector<std::shared_ptr<Association>> clients;
        for (std::size_t i = 0; i < count; ++i) {
            clients.push_back(Association::create(loop.executor(), {}, {}));
            wiretest::Awaited<Result<InitiateParameters>> opened;
            clients.back()->connect("127.0.0.1", *port, opened.setter());
            wiretest::Awaited<CallOutcome> answered;
            if (!opened.get())
                state.SkipWithError("An association was not opened.");
            clients.back()->call(IdentifyRequest(), std::chrono::seconds(1), answered.setter());
            answered.get();
        }
        state.counters["octets_per_end"] = benchmark::Counter(
            static_cast<double>(mallinfo2().uordblks - memory) / static_cast<double>(2 * count));
        // The deadlines of the calls pass first.
        std::this_thread::sleep_for(std::chrono::milliseconds(1500));
        const std::clock_t used = std::clock();
        constexpr double watched = 3.0;
        std::this_thread::sleep_for(std::chrono::duration<double>(watched));
        state.counters["percent_of_a_core"] = benchmark::Counter(
            100.0 * static_cast<double>(std::clock() - used) / CLOCKS_PER_SEC / watched);
        for (const auto &client : clients)
            client->abort(mms::verbatim("The end."));
        server->stop();
    }
}

} // namespace

BENCHMARK(idle)->Arg(100)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decode, floats, floats());
BENCHMARK_CAPTURE(decode, measuredValues, measuredValues());
BENCHMARK_CAPTURE(decode, texts, texts());
BENCHMARK_CAPTURE(decode, report, report(), 50);
BENCHMARK_CAPTURE(write, floats, floats());
BENCHMARK_CAPTURE(write, measuredValues, measuredValues());
BENCHMARK_CAPTURE(write, texts, texts());
BENCHMARK_CAPTURE(write, report, report());

BENCHMARK_MAIN();
