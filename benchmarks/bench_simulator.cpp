// SPDX-License-Identifier: Apache-2.0
// How soon a simulated device serves, and how fast it answers.
#include "scl/reader.h"
#include "simulator/device.h"
#include "support/generatedscl.h"

#include <asio/io_context.hpp>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <memory>

namespace {

constexpr int deviceSize = 100000;
constexpr int runs = 5;
constexpr int leavesPerNode = 148;

double secondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Seconds from the end of the parse until the device listens, and has answered what the first
/// client asks for: the first page of names and a type, in every logical device.
void readyToServe(benchmark::State &state, const GeneratedScl &file, std::size_t devices)
{
    const scl::ReadResult result = scl::readBytes(file.text());
    if (!result.document || !result.document->findings.empty()) {
        state.SkipWithError("the generated file does not load cleanly");
        return;
    }
    const scl::Ied &ied = result.document->ieds.front();
    double quickest = std::numeric_limits<double>::max();
    std::size_t leaves = 0;
    for (auto _ : state) {
        for (int i = 0; i < runs; ++i) {
            asio::io_context context;
            sim::DeviceOptions options;
            options.server.address = "127.0.0.1";
            options.server.port = 0;
            const auto start = std::chrono::steady_clock::now();
            const auto device = sim::Device::create(context.get_executor(), ied, options);
            const auto port = device->start();
            for (const sim::Model::Domain &domain : device->model().domains()) {
                const auto page = device->model().variableNames(domain, {}, 65000);
                benchmark::DoNotOptimize(page);
                benchmark::DoNotOptimize(device->model().logicalNode(domain.firstNode).type());
            }
            quickest = std::min(quickest, secondsSince(start));
            leaves = device->model().leafCount();
            if (!port || device->model().domains().size() != devices) {
                state.SkipWithError("the device is not the one that was meant");
                return;
            }
            device->stop();
            context.run();
        }
    }
    state.counters["ready_ms"] = quickest * 1e3;
    state.counters["limit_ms"] = 1000;
    state.counters["attributes"] = static_cast<double>(leaves);
}

void readyInOneLogicalDevice(benchmark::State &state)
{
    readyToServe(state, {deviceSize, false, deviceSize / leavesPerNode + 1}, 1);
}
BENCHMARK(readyInOneLogicalDevice)->Iterations(1)->Unit(benchmark::kMillisecond);

void readyInTenLogicalDevices(benchmark::State &state)
{
    readyToServe(state, {deviceSize, false, deviceSize / leavesPerNode / 10 + 1}, 10);
}
BENCHMARK(readyInTenLogicalDevices)->Iterations(1)->Unit(benchmark::kMillisecond);

/// All names of a logical device with 100,000 attributes over those of one with 10,000, page by
/// page: linear in the number of names is 10.
void allNames(benchmark::State &state)
{
    const auto secondsFor = [](int size, std::size_t &names) {
        const auto result =
            scl::readBytes(GeneratedScl{size, false, size / leavesPerNode + 1}.text());
        const sim::Model model(result.document->ieds.front(), {});
        double quickest = std::numeric_limits<double>::max();
        for (int i = 0; i < runs; ++i) {
            names = 0;
            std::string last;
            const auto start = std::chrono::steady_clock::now();
            for (bool more = true; more;) {
                const auto page = model.variableNames(model.domains().front(), last, 1000);
                more = page->moreFollows;
                names += page->names.size();
                last = page->names.back();
            }
            quickest = std::min(quickest, secondsSince(start));
        }
        return quickest;
    };
    for (auto _ : state) {
        std::size_t few = 0;
        std::size_t many = 0;
        const double small = secondsFor(10000, few);
        const double large = secondsFor(100000, many);
        state.counters["ratio"] = large / small;
        state.counters["limit"] = 13;
        state.counters["names"] = static_cast<double>(many);
        state.counters["names_per_second"] = static_cast<double>(many) / large;
    }
}
BENCHMARK(allNames)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
