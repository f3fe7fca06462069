// SPDX-License-Identifier: Apache-2.0
// How fast reports are taken apart and made; the rates count the values of members. The limit for
// decoding is 1,000,000 values a second, from the octets on, with 50 floating-point members.
#include "acsi/report.h"
#include "mms/pdu.h"

#include <benchmark/benchmark.h>

using namespace acsi;

namespace {

constexpr int memberCount = 50;

Report sample(bool everything)
{
    Report report;
    report.rptId = "Feeder1CTRL/LLN0$BR$brcbMeasurements";
    report.optFlds.sequenceNumber = true;
    report.optFlds.timeStamp = true;
    report.optFlds.reasonForInclusion = true;
    report.optFlds.dataSetName = true;
    report.optFlds.bufferOverflow = true;
    report.optFlds.entryId = true;
    report.optFlds.confRevision = true;
    report.optFlds.dataReference = everything;
    report.sqNum = 1000;
    report.timeOfEntry = mms::BinaryTime{18367123, std::uint16_t{13577}};
    report.datSet = "Feeder1CTRL/LLN0$dsMeasurements";
    report.bufOvfl = false;
    report.entryId = {0, 0, 0, 0, 0, 0, 1, 2};
    report.confRev = 1;
    report.dataSetSize = memberCount;
    for (std::size_t i = 0; i < memberCount; ++i) {
        report.members.push_back({i, everything ? "Feeder1MEAS/MMXU1$MX$TotW$mag$f" : "",
                                  Triggers{true},
                                  mms::Data::float32(static_cast<float>(i) * 1.25F)});
    }
    return report;
}

void countMembers(benchmark::State &state)
{
    state.SetItemsProcessed(state.iterations() * memberCount);
}

/// As it is done with what comes from the network.
void decodeOctets(benchmark::State &state, bool everything)
{
    const auto octets = mms::encode(mms::UnconfirmedPdu{encodeReport(sample(everything))});
    for (auto _ : state) {
        auto pdu = mms::decodePdu(octets);
        auto &service = std::get<mms::UnconfirmedPdu>(*pdu).service;
        auto report = decodeReport(std::move(std::get<mms::InformationReport>(service)));
        if (!report || report->members.size() != memberCount)
            state.SkipWithError("The report was not decoded.");
        benchmark::DoNotOptimize(report);
    }
    countMembers(state);
}

void encodeToOctets(benchmark::State &state, bool everything)
{
    const Report report = sample(everything);
    for (auto _ : state)
        benchmark::DoNotOptimize(mms::encode(mms::UnconfirmedPdu{encodeReport(report)}));
    countMembers(state);
}

BENCHMARK_CAPTURE(decodeOctets, floats, false);
BENCHMARK_CAPTURE(decodeOctets, floats_with_references, true);
BENCHMARK_CAPTURE(encodeToOctets, floats, false);
BENCHMARK_CAPTURE(encodeToOctets, floats_with_references, true);

} // namespace

BENCHMARK_MAIN();
