// SPDX-License-Identifier: Apache-2.0
#include "support/generateddevice.h"

#include <benchmark/benchmark.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>

#include <algorithm>
#include <functional>
#include <limits>
#include <malloc.h>
#include <memory>
#include <random>
#include <time.h>
#include <vector>

namespace {

constexpr int deviceSize = 100000;
constexpr int largeDeviceSize = 1000000;
constexpr int smallDeviceSize = 10000;
constexpr int leafAttributesPerNode = 150;

// Leaves 170 of 600 bytes for what the tools keep beside an attribute.
constexpr double heapPerAttributeLimit = 430;

GeneratedDevice deviceOf(int leafAttributes)
{
    GeneratedDevice device;
    device.logicalDevices = 8;
    device.logicalNodes = leafAttributes / device.logicalDevices / leafAttributesPerNode + 1;
    device.leafAttributes = leafAttributes;
    device.arrayElements = 16;
    return device;
}

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

/// Quickest of several runs: what the machine does when nothing else disturbs it.
double quickestOf(int runs, const std::function<void()> &prepare, const std::function<void()> &work)
{
    double quickest = std::numeric_limits<double>::max();
    for (int i = 0; i < runs; ++i) {
        prepare();
        quickest = std::min(quickest, secondsOf(work));
    }
    return quickest;
}

/// One plain pass over a device's bytes: every field in order, with QDataStream, into one flat
/// vector per kind of field; no object, no look-up, no check.
class PlainPass
{
public:
    explicit PlainPass(const QByteArray &bytes)
        : m_stream(bytes)
    {
        m_stream.setVersion(QDataStream::Qt_5_12);
    }

    void run()
    {
        number<quint32>();
        number<quint16>();
        text();
        list([this] { logicalDevice(); });
        list([this] { dataSet(); });
        flag();
        list([this] {
            text();
            text();
            list([this] {
                number<qint32>();
                text();
            });
        });
    }

    bool complete() const { return m_stream.status() == QDataStream::Ok && m_stream.atEnd(); }
    std::size_t textCount() const { return m_texts.size(); }

private:
    template <typename Record>
    void list(const Record &record)
    {
        const quint32 count = number<quint32>();
        for (quint32 i = 0; i < count; ++i)
            record();
    }

    void logicalDevice()
    {
        flag();
        text();
        list([this] { logicalNode(); });
    }

    void logicalNode()
    {
        flag();
        text();
        text();
        list([this] {
            flag();
            nodes();
            text();
            text();
        });
        text();
        list([this] { dataSet(); });
        text();
        list([this] {
            flag();
            number<quint8>();
            for (int i = 0; i < 5; ++i)
                text();
            for (int i = 0; i < 3; ++i)
                number<qint32>();
            for (int i = 0; i < 13; ++i)
                flag();
        });
        if (flag()) {
            text();
            for (int i = 0; i < 3; ++i)
                number<qint32>();
        }
    }

    void nodes()
    {
        list([this] {
            number<quint32>();
            if (flag()) {
                flag();
                for (int i = 0; i < 4; ++i)
                    text();
                QVariant value;
                m_stream >> value;
                m_values.push_back(value);
                text();
            } else {
                text();
                text();
            }
            nodes();
        });
    }

    void dataSet()
    {
        number<quint8>();
        text();
        flag();
        list([this] {
            number<quint8>();
            text();
        });
    }

    template <typename Number>
    Number number()
    {
        Number value;
        m_stream >> value;
        m_numbers.push_back(static_cast<qint64>(value));
        return value;
    }

    bool flag()
    {
        bool value;
        m_stream >> value;
        m_flags.push_back(value);
        return value;
    }

    void text()
    {
        QString value;
        m_stream >> value;
        m_texts.push_back(value);
    }

    QDataStream m_stream;
    std::vector<qint64> m_numbers;
    std::vector<char> m_flags;
    std::vector<QString> m_texts;
    std::vector<QVariant> m_values;
};

void report(benchmark::State &state, double ratio, double limit)
{
    state.counters["ratio"] = ratio;
    state.counters["limit"] = limit;
}

void readDevice(const QByteArray &bytes, PhysicalDevice &device)
{
    QDataStream stream(bytes);
    device.fromStream(stream);
}

/// fromStream of 100,000 attributes over one plain pass of the same bytes.
void readingOverPlainPass(benchmark::State &state)
{
    const QByteArray bytes = deviceOf(deviceSize).bytes();
    double reading = 0;
    double plain = 0;
    for (auto _ : state) {
        std::unique_ptr<PhysicalDevice> device;
        std::unique_ptr<PlainPass> pass;
        reading = quickestOf(
            9, [&] { device = std::make_unique<PhysicalDevice>(); },
            [&] { readDevice(bytes, *device); });
        if (leafAttributes(*device).size() != deviceSize)
            state.SkipWithError("the device was not read whole");
        device.reset();
        plain = quickestOf(
            9, [&] { pass = std::make_unique<PlainPass>(bytes); }, [&] { pass->run(); });
        if (!pass->complete())
            state.SkipWithError("the plain pass does not match the byte form");
    }
    report(state, reading / plain, 3.0);
    state.counters["reading_ms"] = reading * 1e3;
    state.counters["plain_ms"] = plain * 1e3;
}
BENCHMARK(readingOverPlainPass)->Iterations(1)->Unit(benchmark::kMillisecond);

/// Heap of a device that was read, per leaf attribute.
void heapPerAttribute(benchmark::State &state)
{
    const QByteArray bytes = deviceOf(deviceSize).bytes();
    double perAttribute = 0;
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        auto device = std::make_unique<PhysicalDevice>();
        readDevice(bytes, *device);
        const std::size_t after = mallinfo2().uordblks + mallinfo2().hblkhd;
        perAttribute = static_cast<double>(after - before) / deviceSize;
    }
    report(state, perAttribute / heapPerAttributeLimit, 1.0);
    state.counters["bytes_per_attribute"] = perAttribute;
    state.counters["stream_bytes_per_attribute"] = static_cast<double>(bytes.size()) / deviceSize;
}
BENCHMARK(heapPerAttribute)->Iterations(1)->Unit(benchmark::kMillisecond);

/// Nanoseconds of one findTag in a device, over `lookUps` references spread over the whole of it.
/// Each reference is a text of its own, made in the order of the look-ups, as a live value brings
/// it.
double findTagNanoseconds(int leaves, int lookUps)
{
    const std::unique_ptr<PhysicalDevice> source = deviceOf(leaves).make();
    const QByteArray bytes = deviceBytes(*source);
    PhysicalDevice device;
    readDevice(bytes, device);

    const QList<DataAttribute *> attributes = leafAttributes(*source);
    std::vector<int> order(static_cast<std::size_t>(lookUps));
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<int>(i % static_cast<std::size_t>(attributes.size()));
    std::shuffle(order.begin(), order.end(), std::mt19937(4711));

    std::vector<QString> references;
    references.reserve(order.size());
    for (const int i : order) {
        const QString &reference = attributes.at(i)->reference;
        references.emplace_back(reference.constData(), reference.size());
    }
    int found = 0;
    const double seconds = quickestOf(
        5, [&] { found = 0; },
        [&] {
            for (const QString &reference : references)
                found += device.findTag(reference) != nullptr;
        });
    return found == lookUps ? seconds * 1e9 / lookUps : -1;
}

/// findTag at 1,000,000 attributes over findTag at 10,000; as many look-ups in both.
void findTagLargeOverSmall(benchmark::State &state)
{
    double small = 0;
    double large = 0;
    for (auto _ : state) {
        small = findTagNanoseconds(smallDeviceSize, largeDeviceSize);
        large = findTagNanoseconds(largeDeviceSize, largeDeviceSize);
        if (small < 0 || large < 0)
            state.SkipWithError("a reference was not found");
    }
    report(state, large / small, 3.0);
    state.counters["small_ns"] = small;
    state.counters["large_ns"] = large;
}
BENCHMARK(findTagLargeOverSmall)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
