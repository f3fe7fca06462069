// SPDX-License-Identifier: Apache-2.0
// How fast PDUs are read and written; the rates count the octets of the PDU.
#include "mms/pdu.h"

#include <benchmark/benchmark.h>

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

} // namespace

BENCHMARK_CAPTURE(decode, floats, floats());
BENCHMARK_CAPTURE(decode, measuredValues, measuredValues());
BENCHMARK_CAPTURE(decode, texts, texts());
BENCHMARK_CAPTURE(decode, report, report(), 50);
BENCHMARK_CAPTURE(write, floats, floats());
BENCHMARK_CAPTURE(write, measuredValues, measuredValues());
BENCHMARK_CAPTURE(write, texts, texts());
BENCHMARK_CAPTURE(write, report, report());

BENCHMARK_MAIN();
