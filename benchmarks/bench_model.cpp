// SPDX-License-Identifier: Apache-2.0
#include "model/iedmodel.h"
#include "model/scltemplatestore.h"
#include "support/generateddevice.h"

#include <benchmark/benchmark.h>

#include <QtCore/QDataStream>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <ctime>
#include <functional>
#include <limits>
#include <malloc.h>
#include <memory>
#include <random>

namespace {

constexpr int deviceSize = 100000;
constexpr int updateSize = 20000;

GeneratedDevice generatedDevice()
{
    GeneratedDevice device;
    device.logicalDevices = 8;
    device.logicalNodes = 32;
    device.leafAttributes = deviceSize;
    device.arrayElements = 16;
    return device;
}

std::unique_ptr<PhysicalDevice> readDevice(const QByteArray &bytes)
{
    auto device = std::make_unique<PhysicalDevice>();
    QDataStream stream(bytes);
    device->fromStream(stream);
    return device;
}

/// Processor time of this thread, which other programs on the machine do not lengthen.
double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

double secondsOf(const std::function<void()> &work)
{
    const double start = threadSeconds();
    work();
    return threadSeconds() - start;
}

/// Quickest of several runs.
double quickestOf(int runs, const std::function<void()> &prepare, const std::function<void()> &work)
{
    double quickest = std::numeric_limits<double>::max();
    for (int i = 0; i < runs; ++i) {
        prepare();
        quickest = std::min(quickest, secondsOf(work));
    }
    return quickest;
}

std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void report(benchmark::State &state, double ratio, double limit)
{
    state.counters["ratio"] = ratio;
    state.counters["limit"] = limit;
}

/// Building the tree of 100,000 attributes over reading the device from its bytes.
void treeBuildingOverReading(benchmark::State &state)
{
    const QByteArray bytes = generatedDevice().bytes();
    const SclTemplateStore templates;
    double reading = 0;
    double building = 0;
    for (auto _ : state) {
        std::unique_ptr<PhysicalDevice> device;
        reading = quickestOf(
            9, [&] { device = std::make_unique<PhysicalDevice>(); },
            [&] {
                QDataStream stream(bytes);
                device->fromStream(stream);
            });
        IEDModel model(&templates);
        building = quickestOf(
            9, [&] { model.setDevice(nullptr); }, [&] { model.setDevice(device.get()); });
        if (model.attributeIndex().size() != deviceSize)
            state.SkipWithError("the tree is not whole");
    }
    report(state, building / reading, 0.5);
    state.counters["building_ms"] = building * 1e3;
    state.counters["reading_ms"] = reading * 1e3;
}
BENCHMARK(treeBuildingOverReading)->Iterations(1)->Unit(benchmark::kMillisecond);

/// Heap of a device and its tree, per leaf attribute.
void heapPerAttribute(benchmark::State &state)
{
    const QByteArray bytes = generatedDevice().bytes();
    const SclTemplateStore templates;
    double ofDevice = 0;
    double ofTree = 0;
    for (auto _ : state) {
        IEDModel model(&templates);
        const std::size_t before = heapInUse();
        const auto device = readDevice(bytes);
        const std::size_t withDevice = heapInUse();
        model.setDevice(device.get());
        const std::size_t withTree = heapInUse();
        ofDevice = static_cast<double>(withDevice - before) / deviceSize;
        ofTree = static_cast<double>(withTree - withDevice) / deviceSize;
        model.setDevice(nullptr);
    }
    report(state, (ofDevice + ofTree) / 600.0, 1.0);
    state.counters["device_bytes"] = ofDevice;
    state.counters["tree_bytes"] = ofTree;
}
BENCHMARK(heapPerAttribute)->Iterations(1)->Unit(benchmark::kMillisecond);

enum Order { AsInTheDevice, Shuffled };

/// New values for attributes spread evenly over the device. Each reference is a text of its own, as
/// a live value brings it.
QList<MMSValue> liveValues(const PhysicalDevice &device, Order order)
{
    const QList<DataAttribute *> attributes = leafAttributes(device);
    QList<MMSValue> values;
    values.reserve(updateSize);
    const int step = attributes.size() / updateSize;
    for (int i = 0; i < updateSize; ++i) {
        const DataAttribute *const attribute = attributes.at(i * step);
        MMSValue value;
        value.reference = QString(attribute->reference.constData(), attribute->reference.size());
        value.value = attribute->value;
        values.append(value);
    }
    if (order == Shuffled)
        std::shuffle(values.begin(), values.end(), std::mt19937(4711));
    return values;
}

struct ViewTimes
{
    double update;
    double painting;
};

/// How long an update takes with a tree view on the model, all nodes expanded and the window shown,
/// and the painting that follows.
ViewTimes timesWithView(IEDModel &model, const QList<MMSValue> &values)
{
    QTreeView view;
    view.setUniformRowHeights(true);
    view.setModel(&model);
    view.resize(785, 460);
    view.show();
    view.expandAll();
    view.scrollTo(model.indexForReference(values.first().reference));
    QApplication::processEvents();
    int seen = 0;
    QObject::connect(&model, &IEDModel::dataChanged, &view, [&seen] { ++seen; });
    ViewTimes times{};
    times.update = quickestOf(
        2, [] { QApplication::processEvents(); }, [&] { model.updateValues(values); });
    times.painting = secondsOf([] { QApplication::processEvents(); });
    return seen == 2 * values.size() ? times : ViewTimes{};
}

/// Live values per second through the model of 100,000 attributes, over the 1,000,000 required; and
/// the share of a view's work when there is one.
void liveUpdates(benchmark::State &state, Order order)
{
    const auto device = readDevice(generatedDevice().bytes());
    const SclTemplateStore templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QList<MMSValue> values = liveValues(*device, order);
    double alone = 0;
    ViewTimes withView{};
    for (auto _ : state) {
        alone = quickestOf(
            9, [] {}, [&] { model.updateValues(values); });
        withView = timesWithView(model, values);
        if (withView.update <= 0)
            state.SkipWithError("not every value was repainted");
    }
    report(state, updateSize / alone / 1e6, 1.0);
    state.counters["model_values_per_s"] = updateSize / alone;
    state.counters["model_ms"] = alone * 1e3;
    state.counters["with_view_ms"] = withView.update * 1e3;
    state.counters["view_share"] = 1 - alone / withView.update;
    state.counters["paint_ms"] = withView.painting * 1e3;
}
BENCHMARK_CAPTURE(liveUpdates, as_in_the_device, AsInTheDevice)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(liveUpdates, shuffled, Shuffled)->Iterations(1)->Unit(benchmark::kMillisecond);

class Templates : public SclTemplateStore
{
public:
    using SclTemplateStore::load;
};

/// Reading the compiled-in templates, which is done for the first browser window.
void templateLoading(benchmark::State &state)
{
    Templates templates;
    for (auto _ : state) {
        templates.load(QStringLiteral(":/850Ext/model/61850Details EDITION 2.xml"));
        if (!templates.hasEnumeration(QStringLiteral("Beh")))
            state.SkipWithError("the templates were not read");
    }
    state.counters["limit_ms"] = 50;
}
BENCHMARK(templateLoading)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
