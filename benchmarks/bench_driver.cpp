// SPDX-License-Identifier: Apache-2.0
// What fifty devices that report cost the driver, and how soon their reports are live values.
#include "driver/indicatorfile.h"
#include "driver/model/sclimport.h"
#include "driver/service/ieddriver.h"
#include "simulator/device.h"

#include <devicemodel/mmsvalue.h>

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/post.hpp>
#include <asio/steady_timer.hpp>
#include <benchmark/benchmark.h>

#include <QtCore/QDataStream>
#include <QtCore/QHash>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <ctime>
#include <future>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr int deviceCount = 50;
constexpr int indications = 40;
constexpr milliseconds period{100};
constexpr int rounds = 100;

double secondsOf(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Simulated devices in a thread of their own, whose share of the time can be told apart.
class Devices
{
public:
    explicit Devices(int count)
        : m_work(asio::make_work_guard(m_context))
        , m_thread([this] { m_context.run(); })
    {
        for (int i = 0; i < count; ++i) {
            m_files.emplace_back("BENCH" + QByteArray::number(i), 1, indications, false);
            const QString path = m_folder.filePath(QStringLiteral("device%1.icd").arg(i));
            m_files.back().write(path);
            const scl::ReadResult file = SclImport::readFile(path);
            sim::DeviceOptions options;
            options.server.address = "127.0.0.1";
            options.server.port = 0;
            m_devices.push_back(sim::Device::create(m_context.get_executor(),
                                                    file.document->ieds.front(), options));
            m_ports.push_back(m_devices.back()->start().value());
        }
    }

    ~Devices()
    {
        for (const auto &device : m_devices)
            device->stop();
        m_devices.clear();
        m_work.reset();
        m_thread.join();
    }

    std::uint16_t port(std::size_t device) const { return m_ports[device]; }
    const drivertest::IndicatorFile &file(std::size_t device) const { return m_files[device]; }

    /// Changes the first indications of a device in one go; the time at which it was done.
    steady_clock::time_point change(std::size_t device, int count, bool value)
    {
        std::promise<steady_clock::time_point> done;
        asio::post(m_devices[device]->strand(), [&] {
            sim::Model &model = m_devices[device]->model();
            const sim::Model::Batch batch(model);
            for (int i = 0; i < count; ++i)
                model.set(model.find(m_files[device].domain().toStdString(),
                                     m_files[device].item(i).toStdString() + "$stVal"),
                          mms::Data::boolean(value));
            done.set_value(steady_clock::now());
        });
        return done.get_future().get();
    }

    double processorTime()
    {
        std::promise<double> time;
        asio::post(m_context, [&] { time.set_value(secondsOf(CLOCK_THREAD_CPUTIME_ID)); });
        return time.get_future().get();
    }

private:
    QTemporaryDir m_folder;
    std::vector<drivertest::IndicatorFile> m_files;
    asio::io_context m_context;
    asio::executor_work_guard<asio::io_context::executor_type> m_work;
    std::vector<std::shared_ptr<sim::Device>> m_devices;
    std::vector<std::uint16_t> m_ports;
    std::thread m_thread;
};

/// Takes the driver's live values: counts them, and notes when the one that is waited for comes.
class Receiver
{
public:
    IedDriverOptions options()
    {
        IedDriverOptions options;
        options.threads = 2;
        options.poster = [this](const QList<QByteArray> &records) { take(records); };
        options.observer.statusChanged = [this](const DeviceStatus &status) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_states[status.number] = status.state;
            m_changed.notify_all();
        };
        return options;
    }

    bool waitForOnline(int number)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(60),
                                  [&] { return m_states.value(number) == DeviceState::Online; });
    }

    void expect(const QString &reference, bool value)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_reference = reference;
        m_value = value;
        m_hasArrived = false;
    }
    steady_clock::time_point arrival()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, std::chrono::seconds(20), [&] { return m_hasArrived; });
        return m_hasArrived ? m_arrival : steady_clock::time_point::max();
    }

    std::int64_t records() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_records;
    }

private:
    void take(const QList<QByteArray> &records)
    {
        const auto now = steady_clock::now();
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_records += records.size();
        if (m_hasArrived || m_reference.isEmpty())
            return;
        for (const QByteArray &record : records) {
            MMSValue value;
            QDataStream stream(record);
            value.fromStream(stream);
            if (value.reference == m_reference && value.value == m_value) {
                m_hasArrived = true;
                m_arrival = now;
                m_changed.notify_all();
            }
        }
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<int, DeviceState> m_states;
    std::int64_t m_records = 0;
    QString m_reference;
    QVariant m_value;
    bool m_hasArrived = false;
    steady_clock::time_point m_arrival;
};

/// One sentence what went wrong; empty when all devices report.
QString connectAll(IedDriver &driver, Receiver &receiver, const Devices &devices)
{
    for (int i = 0; i < deviceCount; ++i) {
        DeviceConfiguration configuration;
        configuration.number = i + 1;
        configuration.name = QStringLiteral("device %1").arg(i);
        configuration.host = QStringLiteral("127.0.0.1");
        configuration.port = devices.port(static_cast<std::size_t>(i));
        driver.setDevice(configuration);
        driver.connectDevice(i + 1);
    }
    const std::shared_ptr<DriverService> service = driver.serviceFor(Caller::ofThisProcess());
    for (int i = 0; i < deviceCount; ++i) {
        if (!receiver.waitForOnline(i + 1))
            return QStringLiteral("A device did not come online.");
        ReportBlock block;
        block.trgOps = 0x64;
        block.optFlds[0] = 0x78;
        QString error;
        service->enableReportBlock(
            i + 1, QString::fromLatin1(devices.file(static_cast<std::size_t>(i)).domain()),
            QStringLiteral("LLN0$RP$urcb1"), {}, {}, block, error);
        if (!error.isEmpty())
            return error;
    }
    return {};
}

/// Seconds of processor time for 1,000 member values a second, in the driver alone: without the
/// devices and without the thread that makes the changes.
void reportingDevices(benchmark::State &state)
{
    const auto perReport = static_cast<int>(state.range(0));
    Devices devices(deviceCount);
    Receiver receiver;
    IedDriver driver(receiver.options());
    const QString problem = connectAll(driver, receiver, devices);
    if (!problem.isEmpty()) {
        state.SkipWithError(problem.toUtf8().constData());
        return;
    }
    const auto driverTime = [&devices] {
        return secondsOf(CLOCK_PROCESS_CPUTIME_ID) - secondsOf(CLOCK_THREAD_CPUTIME_ID) -
               devices.processorTime();
    };
    asio::io_context clock;
    asio::steady_timer tick(clock);
    for (auto _ : state) {
        const std::int64_t recordsBefore = receiver.records();
        const double before = driverTime();
        const auto start = steady_clock::now();
        for (int round = 0; round < rounds; ++round) {
            for (std::size_t i = 0; i < deviceCount; ++i)
                devices.change(i, perReport, round % 2 == 0);
            tick.expires_at(start + (round + 1) * period);
            tick.wait();
        }
        const double seconds = std::chrono::duration<double>(steady_clock::now() - start).count();
        const double members = static_cast<double>(rounds) * deviceCount * perReport;
        const double perSecond = members / seconds;
        state.counters["members_per_second"] = perSecond;
        state.counters["records_per_member"] =
            static_cast<double>(receiver.records() - recordsBefore) / members;
        state.counters["cpu_percent_per_1000"] =
            (driverTime() - before) / seconds / perSecond * 1000 * 100;
    }
}
BENCHMARK(reportingDevices)->Arg(4)->Arg(indications)->Iterations(1)->Unit(benchmark::kSecond);

/// From a change in a device to the posted record, while all fifty report 2,000 changes a second.
void changeToRecord(benchmark::State &state)
{
    Devices devices(deviceCount);
    Receiver receiver;
    IedDriver driver(receiver.options());
    const QString problem = connectAll(driver, receiver, devices);
    if (!problem.isEmpty()) {
        state.SkipWithError(problem.toUtf8().constData());
        return;
    }
    asio::io_context clock;
    asio::steady_timer tick(clock);
    for (auto _ : state) {
        std::vector<double> latencies;
        const auto start = steady_clock::now();
        for (int round = 0; round < 2 * rounds; ++round) {
            const bool value = round % 2 == 0;
            const std::size_t measured = static_cast<std::size_t>(round) % deviceCount;
            receiver.expect(devices.file(measured).reference(0) + QStringLiteral("$stVal"), value);
            steady_clock::time_point changed;
            for (std::size_t i = 0; i < deviceCount; ++i) {
                const auto at = devices.change(i, 4, value);
                if (i == measured)
                    changed = at;
            }
            const auto arrived = receiver.arrival();
            if (arrived == steady_clock::time_point::max()) {
                state.SkipWithError("a change did not arrive");
                return;
            }
            latencies.push_back(
                std::chrono::duration<double, std::milli>(arrived - changed).count());
            tick.expires_at(start + (round + 1) * period);
            tick.wait();
        }
        std::sort(latencies.begin(), latencies.end());
        state.counters["median_ms"] = latencies[latencies.size() / 2];
        state.counters["p99_ms"] = latencies[latencies.size() * 99 / 100];
        state.counters["worst_ms"] = latencies.back();
    }
}
BENCHMARK(changeToRecord)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

BENCHMARK_MAIN();
