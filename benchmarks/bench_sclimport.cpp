// SPDX-License-Identifier: Apache-2.0
#include "driver/model/sclimport.h"
#include "support/generatedscl.h"

#include <benchmark/benchmark.h>

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <time.h>

namespace {

constexpr int deviceSize = 60000;
constexpr int runs = 15;

/// Seconds of processor time, so that other work on the machine counts for little.
double secondsOf(const std::function<void()> &work)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    return now() - start;
}

/// Import of a file (parse, resolve, build the device) over fromStream of the device that results,
/// each the quickest of several runs that take turns.
void importOverReading(benchmark::State &state, const GeneratedScl &file)
{
    const std::string text = file.text();
    double import = 0;
    double parsing = 0;
    double reading = 0;
    std::uint64_t attributes = 0;
    for (auto _ : state) {
        import = parsing = reading = std::numeric_limits<double>::max();
        QByteArray bytes;
        for (int i = 0; i < runs; ++i) {
            std::unique_ptr<PhysicalDevice> device;
            scl::ReadResult result;
            const double parsed = secondsOf([&] { result = scl::readBytes(text); });
            if (!result.document || result.document->ieds.size() != 1 ||
                !result.document->findings.empty()) {
                state.SkipWithError("the generated file does not load cleanly");
                return;
            }
            const double built =
                secondsOf([&] { device = SclImport::makeDevice(result.document->ieds.front()); });
            attributes = scl::countsOf(result.document->ieds.front()).attributes;
            parsing = std::min(parsing, parsed);
            import = std::min(import, parsed + built);
            if (bytes.isEmpty()) {
                QDataStream stream(&bytes, QIODevice::WriteOnly);
                device->toStream(stream);
            }
            device.reset();
            result.document.reset();

            device = std::make_unique<PhysicalDevice>();
            QDataStream stream(bytes);
            reading = std::min(reading, secondsOf([&] { device->fromStream(stream); }));
            if (stream.status() != QDataStream::Ok) {
                state.SkipWithError("the device was not read whole");
                return;
            }
        }
    }
    state.counters["ratio"] = import / reading;
    state.counters["limit"] = 3.0;
    state.counters["attributes"] = static_cast<double>(attributes);
    state.counters["file_bytes"] = static_cast<double>(text.size());
    state.counters["parse_resolve_ms"] = parsing * 1e3;
    state.counters["import_ms"] = import * 1e3;
    state.counters["reading_ms"] = reading * 1e3;
}

void importFlat(benchmark::State &state)
{
    importOverReading(state, {deviceSize, false});
}
BENCHMARK(importFlat)->Iterations(1)->Unit(benchmark::kMillisecond);

void importThroughArrays(benchmark::State &state)
{
    importOverReading(state, {deviceSize, true});
}
BENCHMARK(importThroughArrays)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
