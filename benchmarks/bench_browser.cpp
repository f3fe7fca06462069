// SPDX-License-Identifier: Apache-2.0
// The browser on a connected device, offscreen.
//
// Opening: from the request to the shown tree of a device that the driver has discovered, over
// fromStream() and the building of the tree for the same bytes ("ratio", limit 2; medians).
// "quickest" is the ratio of the quickest rounds and "cpu_ratio" that of the processor time in all
// threads, for a machine that is busy otherwise. "driver_ms" is the driver's share: its answer.
//
// Latency: from the change of a value in a simulated IED over a report to the repainted cell, at
// 2,000 changes a second; a change that was overtaken by a newer one of its value counts until that
// is painted. Median and 99th percentile in milliseconds (limits 120 and 250), and the longest time
// in which the GUI event loop was busy.
#include "driver/simulatedstation.h"

#include "browser/iedmodelview.h"
#include "model/iedmodel.h"
#include "support/generatedscl.h"

#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>
#include <remoteclient/driverserviceregistry.h>

#include <asio/steady_timer.hpp>
#include <benchmark/benchmark.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtGui/QPaintEvent>
#include <QtGui/QRegion>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <array>
#include <atomic>
#include <ctime>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int deviceNo = 1;
constexpr int members = 50;
constexpr int changesPerTick = 10;
constexpr std::chrono::milliseconds tick{5};
constexpr int changes = 2000 * 10;

QString storedFile(const QTemporaryDir &folder, const std::string &text)
{
    QFile file(folder.filePath(QStringLiteral("device.icd")));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), qint64(text.size())) < 0)
        qFatal("the file cannot be written");
    return file.fileName();
}

/// A device with 50 measured values in a data set that a block reports without delay.
std::string reportingDevice()
{
    std::string references;
    std::string nodes;
    for (int i = 1; i <= members; ++i) {
        const std::string inst = std::to_string(i);
        references += "<FCDA ldInst=\"LD\" lnClass=\"GGIO\" lnInst=\"" + inst +
                      "\" doName=\"AnIn1\" daName=\"mag.f\" fc=\"MX\"/>";
        nodes += "<LN lnClass=\"GGIO\" inst=\"" + inst + "\" lnType=\"G\"/>";
    }
    return "<SCL xmlns=\"http://www.iec.ch/61850/2003/SCL\" version=\"2007\" revision=\"B\">"
           "<Header id=\"bench\"/><IED name=\"IED\"><AccessPoint name=\"S\"><Server>"
           "<Authentication none=\"true\"/><LDevice inst=\"LD\"><LN0 lnClass=\"LLN0\" inst=\"\" "
           "lnType=\"L\"><DataSet name=\"Values\">" +
           references +
           "</DataSet><ReportControl name=\"urcb\" datSet=\"Values\" rptID=\"r\" confRev=\"1\" "
           "buffered=\"false\" indexed=\"false\"><TrgOps dchg=\"true\"/><OptFields seqNum=\"true\" "
           "timeStamp=\"true\"/><RptEnabled max=\"1\"/></ReportControl></LN0>" +
           nodes +
           "</LDevice></Server></AccessPoint></IED><DataTypeTemplates>"
           "<LNodeType id=\"L\" lnClass=\"LLN0\"/>"
           "<LNodeType id=\"G\" lnClass=\"GGIO\"><DO name=\"AnIn1\" type=\"M\"/></LNodeType>"
           "<DOType id=\"M\" cdc=\"MV\"><DA name=\"mag\" fc=\"MX\" bType=\"Struct\" type=\"A\" "
           "dchg=\"true\"/></DOType><DAType id=\"A\"><BDA name=\"f\" bType=\"FLOAT32\"/></DAType>"
           "</DataTypeTemplates></SCL>";
}

class Console : public DriverConsolInterface
{
public:
    QString currentAddress() override { return QStringLiteral("bench"); }
    OperationResult getLoc(long, long, QString &location) override
    {
        location = currentAddress();
        return OperationSucceeded;
    }
};

/// A simulated IED, the driver that is connected to it, and what a browser needs of a host.
class Host
{
public:
    explicit Host(const std::string &scl)
        : m_ied(storedFile(m_folder, scl))
    {
        const auto online = std::make_shared<std::atomic<bool>>(false);
        IedDriverOptions options;
        options.observer.statusChanged = [online](const DeviceStatus &status) {
            *online = *online || status.state == DeviceState::Online;
        };
        m_driver = std::make_shared<IedDriver>(options);
        DeviceConfiguration configuration = drivertest::configurationFor(m_ied, deviceNo);
        configuration.pollInterval = std::chrono::milliseconds(0);
        m_driver->setDevice(configuration);
        m_driver->connectDevice(deviceNo);
        QElapsedTimer waited;
        for (waited.start(); !*online;) {
            if (waited.hasExpired(60000))
                qFatal("the device is not online");
            QThread::yieldCurrentThread();
        }
        m_service = m_driver->serviceFor(Caller::ofThisProcess());
        DriverServiceRegistry::add(m_console.currentAddress(), m_service);
        m_context.console = &m_console;
        m_context.mainWindow = &m_mainWindow;
    }
    ~Host()
    {
        DriverServiceRegistry::remove(m_console.currentAddress());
        m_driver.reset();
    }

    drivertest::SimulatedIed &ied() { return m_ied; }
    DriverService &service() { return *m_service; }
    std::unique_ptr<IEDModelView> open()
    {
        auto view = std::make_unique<IEDModelView>(1, deviceNo, 0, &m_context, &m_mainWindow);
        if (!view->init())
            qFatal("the browser does not open");
        return view;
    }

private:
    QTemporaryDir m_folder;
    drivertest::SimulatedIed m_ied;
    std::shared_ptr<IedDriver> m_driver;
    std::shared_ptr<DriverService> m_service;
    Console m_console;
    QWidget m_mainWindow;
    HostTaskContext m_context;
};

/// What a piece of work costs, round by round, in seconds: as a clock on the wall sees it, and of
/// processor time in all threads, which does not depend on what else the machine does.
struct Costs
{
    void begin()
    {
        // What the round before has given back is put in order first: otherwise whoever asks for
        // much memory next would pay for that.
        QByteArray(100000, '\0');
        clock = Clock::now();
        work = std::clock();
    }
    double end()
    {
        worked.push_back(double(std::clock() - work) / CLOCKS_PER_SEC);
        elapsed.push_back(std::chrono::duration<double>(Clock::now() - clock).count());
        return elapsed.back();
    }
    static double median(std::vector<double> values)
    {
        std::ranges::sort(values);
        return values[values.size() / 2];
    }

    Clock::time_point clock;
    std::clock_t work = 0;
    std::vector<double> elapsed;
    std::vector<double> worked;
};

void opening(benchmark::State &state)
{
    GeneratedScl generated;
    generated.leafAttributes = 20000;
    Host host(generated.text());
    QByteArray bytes;
    QString error;
    host.service().getIEDModel(deviceNo, bytes, error);
    const SclTemplateStore templates;
    Costs browser;
    Costs answer;
    Costs plain;
    for (auto _ : state) {
        browser.begin();
        const auto view = host.open();
        view->show();
        QCoreApplication::processEvents();
        state.SetIterationTime(browser.end());

        answer.begin();
        host.service().getIEDModel(deviceNo, bytes, error);
        answer.end();

        plain.begin();
        PhysicalDevice device;
        QDataStream stream(bytes);
        device.fromStream(stream);
        IEDModel model(&templates);
        model.setDevice(&device);
        plain.end();
        model.setDevice(nullptr);
    }
    state.counters["limit"] = 2;
    state.counters["ratio"] = Costs::median(browser.elapsed) / Costs::median(plain.elapsed);
    state.counters["quickest"] =
        *std::ranges::min_element(browser.elapsed) / *std::ranges::min_element(plain.elapsed);
    state.counters["cpu_ratio"] = Costs::median(browser.worked) / Costs::median(plain.worked);
    state.counters["browser_ms"] = Costs::median(browser.elapsed) * 1000;
    state.counters["browser_cpu_ms"] = Costs::median(browser.worked) * 1000;
    state.counters["driver_ms"] = Costs::median(answer.elapsed) * 1000;
    state.counters["plain_ms"] = Costs::median(plain.elapsed) * 1000;
}
BENCHMARK(opening)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Changes values in the device's strand, ten every five milliseconds. The value of a change is its
/// number.
class Changer : public std::enable_shared_from_this<Changer>
{
public:
    explicit Changer(sim::Device &device)
        : m_device(device)
        , m_timer(device.strand())
        , m_made(changes)
    {
        for (int i = 1; i <= members; ++i)
            m_parts.push_back(
                device.model().find("IEDLD", "GGIO" + std::to_string(i) + "$MX$AnIn1$mag$f"));
    }

    void start()
    {
        m_next = Clock::now();
        step();
    }
    /// When change number @p index was made; known before it can be seen anywhere.
    Clock::time_point made(int index) const { return m_made[std::size_t(index)].load(); }

private:
    void step()
    {
        for (int i = 0; i < changesPerTick && m_count < changes; ++i, ++m_count) {
            m_made[std::size_t(m_count)] = Clock::now();
            m_device.model().set(m_parts[std::size_t(m_count % members)],
                                 mms::Data::float32(static_cast<float>(m_count)));
        }
        if (m_count == changes)
            return;
        m_next += tick;
        m_timer.expires_at(m_next);
        m_timer.async_wait([self = shared_from_this()](const asio::error_code &error) {
            if (!error)
                self->step();
        });
    }

    sim::Device &m_device;
    asio::steady_timer m_timer;
    std::vector<sim::Part> m_parts;
    std::vector<std::atomic<Clock::time_point>> m_made;
    Clock::time_point m_next;
    int m_count = 0;
};

/// Watches the repainted cells of a browser.
class Painted : public QObject
{
public:
    Painted(QTreeView &tree, const Changer &changer)
        : m_tree(tree)
        , m_changer(changer)
    {
        m_shown.fill(-1);
        tree.viewport()->installEventFilter(this);
        QObject::connect(
            tree.model(), &QAbstractItemModel::dataChanged, this, [this](const QModelIndex &first) {
                const DataAttribute *attribute = IEDModel::nodeAt(first)->dataAttribute();
                if (attribute && attribute->value.isValid())
                    m_waiting.push_back({first, qRound(attribute->value.toDouble())});
            });
    }

    bool isComplete() const { return m_latencies.size() == std::size_t(changes - members); }
    std::vector<double> &latencies() { return m_latencies; }

private:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        // The cells are painted while the event is handled, so it is handled here and now.
        m_tree.viewport()->removeEventFilter(this);
        QCoreApplication::sendEvent(m_tree.viewport(), event);
        m_tree.viewport()->installEventFilter(this);
        const auto now = Clock::now();
        const QRegion region = static_cast<const QPaintEvent *>(event)->region();
        const auto left =
            std::stable_partition(m_waiting.begin(), m_waiting.end(), [&](const Waiting &waiting) {
                return region.intersects(m_tree.visualRect(waiting.cell));
            });
        for (auto waiting = m_waiting.begin(); waiting != left; ++waiting) {
            const int change = waiting->change;
            int &shown = m_shown[std::size_t(change % members)];
            // The first round sets values that the device may have had before.
            for (int each = std::max(shown + members, change % members + members); each <= change;
                 each += members) {
                m_latencies.push_back(
                    std::chrono::duration<double, std::milli>(now - m_changer.made(each)).count());
            }
            shown = std::max(shown, change);
        }
        m_waiting.erase(m_waiting.begin(), left);
        return true;
    }

    struct Waiting
    {
        QModelIndex cell;
        int change;
    };

    QTreeView &m_tree;
    const Changer &m_changer;
    std::vector<Waiting> m_waiting;
    std::array<int, members> m_shown{};
    std::vector<double> m_latencies;
};

void latency(benchmark::State &state)
{
    for (auto _ : state) {
        Host host(reportingDevice());
        const auto view = host.open();
        auto *tree = view->findChild<QTreeView *>(QStringLiteral("modelView"));
        tree->expandAll();
        // All values are in sight.
        view->resize(900, 10000);
        view->show();
        QCoreApplication::processEvents();

        ReportBlock block;
        QString error;
        const QString name = QStringLiteral("LLN0$RP$urcb");
        const QString device = QStringLiteral("IEDLD");
        if (host.service().getBRCBValues(deviceNo, device, name, block, error) !=
                OperationSucceeded ||
            host.service().enableReportBlock(deviceNo, device, name, block.rptId, QString(), block,
                                             error) != OperationSucceeded) {
            state.SkipWithError(qPrintable(error));
            return;
        }
        std::shared_ptr<Changer> changer;
        host.ied().act(
            [&](sim::Device &simulated) { changer = std::make_shared<Changer>(simulated); });
        Painted painted(*tree, *changer);
        host.ied().act([&](sim::Device &) { changer->start(); });

        // What a timer of no delay waits is how long the event loop was busy.
        double busiest = 0;
        QElapsedTimer running;
        QElapsedTimer sincePause;
        running.start();
        sincePause.start();
        while (!painted.isComplete() && !running.hasExpired(30000)) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
            busiest = std::max(busiest, double(sincePause.nsecsElapsed()) / 1e6);
            sincePause.restart();
        }
        if (!painted.isComplete()) {
            state.SkipWithError("not every change was painted");
            return;
        }
        std::vector<double> &all = painted.latencies();
        std::sort(all.begin(), all.end());
        state.SetIterationTime(double(running.elapsed()) / 1000);
        state.counters["median_ms"] = all[all.size() / 2];
        state.counters["p99_ms"] = all[all.size() * 99 / 100];
        state.counters["busiest_ms"] = busiest;
    }
}
BENCHMARK(latency)->UseManualTime()->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    // As the plug-in does before it opens browsers.
    qRegisterMetaType<QList<MMSValue>>();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
