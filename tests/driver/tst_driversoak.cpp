// SPDX-License-Identifier: Apache-2.0
// Twenty devices that change 2,000 values a second in all, for as many seconds as SOAK_SECONDS says
// (by default ten minutes; less where it runs among the other tests).
#include "driver/indicatorfile.h"
#include "driver/simulatedstation.h"
#include "support/memoryuse.h"

#include <asio/io_context.hpp>
#include <asio/steady_timer.hpp>

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <ctime>

using namespace drivertest;
using std::chrono::milliseconds;

namespace {

constexpr int deviceCount = 20;
constexpr int nodes = 2;
constexpr int perNode = 50;
constexpr milliseconds period{100};
/// Of each device in a period: 2,000 changes a second in all.
constexpr int changes = 10;

int secondsToRun()
{
    constexpr int usual = 600;
    return qEnvironmentVariableIsSet("SOAK_SECONDS") ? qEnvironmentVariableIntValue("SOAK_SECONDS")
                                                     : usual;
}

} // namespace

class tst_DriverSoak : public QObject
{
    Q_OBJECT

public:
    /// Before Qt Test starts its watchdog, which ends a test function after five minutes.
    static void initMain()
    {
        constexpr int patience = 300; // seconds
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number((secondsToRun() + patience) * 1000));
    }

private slots:
    void manyDevicesReportForALongTime();
};

void tst_DriverSoak::manyDevicesReportForALongTime()
{
    const int seconds = secondsToRun();
    const QTemporaryDir folder;
    std::vector<IndicatorFile> files;
    std::vector<std::unique_ptr<SimulatedIed>> ieds;
    Listener listener;
    listener.keepHistory(false);
    IedDriverOptions options = listener.options();
    // Likewise what is kept for captures.
    options.captureOctets = 65536;
    ServedDriver driver(options);
    for (int i = 0; i < deviceCount; ++i) {
        // The buffers of buffered blocks would fill while the memory is watched.
        files.emplace_back("SOAK" + QByteArray::number(i), nodes, perNode, false);
        const QString path = folder.filePath(QStringLiteral("device%1.icd").arg(i));
        QVERIFY(files.back().write(path));
        ieds.push_back(std::make_unique<SimulatedIed>(path));
        driver.setDevice(configurationFor(*ieds.back(), i + 1));
        driver.connectDevice(i + 1);
    }
    for (int i = 0; i < deviceCount; ++i) {
        QVERIFY(listener.waitForState(i + 1, DeviceState::Online));
        ReportBlock block;
        block.trgOps = 0x64;
        block.optFlds[0] = 0x78;
        for (const char *name : {"LLN0$RP$urcb1", "LLN0$RP$urcb2"}) {
            QString error;
            QVERIFY2(driver.enableReportBlock(i + 1, files[static_cast<std::size_t>(i)].domain(),
                                              QString::fromLatin1(name), {}, {}, block,
                                              error) == OperationSucceeded,
                     qPrintable(error));
        }
    }

    asio::io_context clock;
    asio::steady_timer tick(clock);
    auto next = std::chrono::steady_clock::now();
    const auto end = next + std::chrono::seconds(seconds);
    const auto settled = next + std::chrono::seconds(seconds / 5);
    const std::clock_t cpuBefore = std::clock();
    qint64 atFirst = 0;
    qint64 made = 0;
    bool value = true;
    for (int round = 0; next < end; ++round) {
        const int first = round * changes % (nodes * perNode);
        if (first == 0)
            value = !value;
        for (std::size_t device = 0; device < ieds.size(); ++device) {
            asio::post(ieds[device]->device()->strand(), [&, device, first, value] {
                sim::Model &model = ieds[device]->device()->model();
                const sim::Model::Batch batch(model);
                for (int i = first; i < first + changes; ++i) {
                    model.set(model.find(files[device].domain().toStdString(),
                                         files[device].item(i).toStdString() + "$stVal"),
                              mms::Data::boolean(value));
                }
            });
            made += changes;
        }
        if (atFirst == 0 && next >= settled)
            atFirst = testsupport::memoryInUse();
        next += period;
        tick.expires_at(next);
        tick.wait();
    }
    const double cpu = static_cast<double>(std::clock() - cpuBefore) / CLOCKS_PER_SEC;
    const qint64 growth = testsupport::memoryInUse() - atFirst;

    // A last pattern: all of it arrives.
    for (std::size_t device = 0; device < ieds.size(); ++device) {
        const std::string domain = files[device].domain().toStdString();
        for (int i = 0; i < files[device].size(); ++i)
            ieds[device]->set(domain, files[device].item(i).toStdString() + "$stVal",
                              mms::Data::boolean(i % 3 == 0));
        for (int i = 0; i < files[device].size(); ++i)
            QVERIFY(listener.waitForValue(files[device].reference(i) + "$stVal", i % 3 == 0));
    }
    std::uint64_t reports = 0;
    for (std::size_t device = 0; device < ieds.size(); ++device) {
        const DeviceStatus status = driver.status(static_cast<long>(device) + 1);
        QCOMPARE(status.state, DeviceState::Online);
        QCOMPARE(status.reason, QString());
        QCOMPARE(status.counters.connections, std::uint64_t(1));
        QCOMPARE(status.counters.unclaimedReports, std::uint64_t(0));
        reports += status.counters.reports;
    }
    qInfo("%d s: %lld changes, %llu reports, %d values published, %.1f s of CPU with the devices', "
          "memory grew by %lld KiB",
          seconds, made, static_cast<unsigned long long>(reports), listener.published(), cpu,
          growth / 1024);
    QVERIFY(made >= qint64(seconds) * 1900);
    QVERIFY(growth < 8 << 20);
}

QTEST_GUILESS_MAIN(tst_DriverSoak)
#include "tst_driversoak.moc"
