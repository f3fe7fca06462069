// SPDX-License-Identifier: Apache-2.0
// What an operator waits for in front of a large device, offscreen.
//
// Collapse All: on a tree of as many attributes that is wholly expanded; "expand_all" is the time
// of opening it before.
//
// Live values: a new value for each attribute of such a tree and the repaint, in an order that is
// not the tree's; "ratio" is over the tree's own order (limit 3).
//
// Find: a text that names every tenth attribute, counted and shown.
//
// Settings: a list of as many rows from empty to shown; "per_row_us" must not grow with the rows.
#include "browser/devicetree.h"
#include "browser/treefinder.h"
#include "model/iedmodel.h"
#include "model/scltemplatestore.h"
#include "support/generateddevice.h"

#include <propertybrowser/qttreepropertybrowser.h>
#include <propertybrowser/qtvarianteditorfactory.h>
#include <propertybrowser/qtvariantproperty.h>
#include <propertybrowser/qtvariantpropertymanager.h>

#include <benchmark/benchmark.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

double seconds(Clock::time_point since)
{
    return std::chrono::duration<double>(Clock::now() - since).count();
}

/// A shown tree of a device, set up as the browser does it.
class ShownTree
{
public:
    explicit ShownTree(int leafAttributesOfDevice)
    {
        GeneratedDevice generated;
        generated.logicalNodes = leafAttributesOfDevice / 100;
        generated.leafAttributes = leafAttributesOfDevice;
        m_device = generated.make();
        m_model.setDevice(m_device.get());
        view.setUniformRowHeights(true);
        view.setModel(&m_model);
        view.resize(785, 460);
        view.show();
        QCoreApplication::processEvents();
    }
    ~ShownTree() { m_model.setDevice(nullptr); }

    void expandAll()
    {
        view.expandRecursively(m_model.index(0, 0));
        QCoreApplication::processEvents();
    }
    QModelIndex root() const { return m_model.index(0, 0); }

    /// A new value of every attribute; `stride` is prime to their number.
    QList<MMSValue> newValues(int stride)
    {
        const QList<DataAttribute *> leaves = leafAttributes(*m_device);
        QList<MMSValue> values;
        for (int i = 0; i < leaves.size(); ++i) {
            MMSValue value;
            value.reference = leaves.at(int(qint64(i) * stride % leaves.size()))->reference;
            value.value = ++m_count;
            values << value;
        }
        return values;
    }
    void update(const QList<MMSValue> &values)
    {
        m_model.updateValues(values);
        QCoreApplication::processEvents();
    }

private:
    const SclTemplateStore m_templates;
    std::unique_ptr<PhysicalDevice> m_device;
    IEDModel m_model{&m_templates};
    int m_count = 0;

public:
    DeviceTree view;
};

void collapseAll(benchmark::State &state)
{
    ShownTree tree(int(state.range(0)));
    double opening = 0;
    for (auto _ : state) {
        const auto begun = Clock::now();
        tree.expandAll();
        opening += seconds(begun);
        const auto closing = Clock::now();
        tree.view.collapseRecursively(tree.root());
        QCoreApplication::processEvents();
        state.SetIterationTime(seconds(closing));
    }
    state.counters["expand_all_ms"] = opening / double(state.iterations()) * 1000;
}
BENCHMARK(collapseAll)
    ->Arg(20000)
    ->Arg(100000)
    ->Arg(200000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void liveValues(benchmark::State &state)
{
    ShownTree tree(int(state.range(0)));
    tree.expandAll();
    const QList<MMSValue> inOrder = tree.newValues(1);
    const QList<MMSValue> mixed = tree.newValues(7919);
    double ordered = 0;
    double all = 0;
    for (auto _ : state) {
        auto begun = Clock::now();
        tree.update(inOrder);
        ordered += seconds(begun);
        begun = Clock::now();
        tree.update(mixed);
        const double taken = seconds(begun);
        all += taken;
        state.SetIterationTime(taken);
    }
    state.counters["ratio"] = all / ordered;
}
BENCHMARK(liveValues)
    ->Arg(20000)
    ->Arg(100000)
    ->Arg(200000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void find(benchmark::State &state)
{
    ShownTree tree(int(state.range(0)));
    TreeFinder finder(&tree.view, nullptr);
    auto *line = finder.findChild<QLineEdit *>();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    bool other = false;
    for (auto _ : state) {
        // Another text each time, so that it is searched for and not only gone on from.
        other = !other;
        line->setText(other ? QStringLiteral(".q") : QStringLiteral(".t"));
        const auto begun = Clock::now();
        QCoreApplication::sendEvent(line, &enter);
        state.SetIterationTime(seconds(begun));
    }
}
BENCHMARK(find)->Arg(20000)->Arg(200000)->UseManualTime()->Unit(benchmark::kMillisecond);

void settings(benchmark::State &state)
{
    const int rows = int(state.range(0));
    for (auto _ : state) {
        QtVariantPropertyManager manager;
        QtVariantEditorFactory factory;
        QtTreePropertyBrowser browser;
        browser.setFactoryForManager(&manager, &factory);
        browser.setResizeMode(QtTreePropertyBrowser::ResizeToContents);
        browser.setPropertiesWithoutValueMarked(true);
        browser.resize(445, 500);
        browser.show();
        QCoreApplication::processEvents();
        const auto begun = Clock::now();
        for (int row = 0; row < rows; ++row) {
            QtVariantProperty *property =
                manager.addProperty(QMetaType::Double, QStringLiteral("PTOC1$SG$Str%1").arg(row));
            property->setValue(row / 8.0);
            browser.addProperty(property);
        }
        QCoreApplication::processEvents();
        state.SetIterationTime(seconds(begun));
        state.counters["per_row_us"] = seconds(begun) / rows * 1e6;
    }
}
BENCHMARK(settings)->Arg(400)->Arg(800)->Arg(4000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
