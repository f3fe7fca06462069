// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include <remoteclient/records.h>

#include <QtCore/QBuffer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <atomic>
#include <random>
#include <thread>
#include <vector>

using namespace drivertest;

namespace {

const QString stationFile = QStringLiteral(STATION_FILE);
const QString control = QStringLiteral("BAY1E1CTRL");

/// One public call of the driver, with arguments that sometimes make sense.
struct Call
{
    const char *name;
    std::function<void(ServedDriver &driver, long device, std::mt19937 &chance)> make;
};

template <typename... Texts>
QString oneOf(std::mt19937 &chance, Texts... texts)
{
    const std::vector<const char *> all = {texts...};
    return QString::fromLatin1(all[chance() % all.size()]);
}

QString anyBlock(std::mt19937 &chance)
{
    return oneOf(chance, "LLN0$BR$brcbPositions01", "LLN0$RP$urcbPositions01",
                 "LLN0$RP$urcbPositions02", "LLN0$RP$gone");
}

QByteArray command(std::mt19937 &chance)
{
    ControlBlock block;
    block.objectReference = oneOf(chance, "QA1CSWI1$CO$Pos", "QB1CSWI1$CO$Pos");
    block.controlValue = static_cast<int>(chance() % 2);
    block.controlModel = static_cast<quint8>(chance() % 5);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    block.toStream(stream);
    return bytes;
}

DriverObserver ignoringObserver()
{
    DriverObserver observer;
    observer.statusChanged = [](const DeviceStatus &) {};
    return observer;
}

std::vector<Call> calls(const DeviceConfiguration &configuration, const QString &localFile)
{
    const auto error = [] {
        static thread_local QString text;
        return std::ref(text);
    };
    return {
        {"getIEDModel",
         [=](ServedDriver &driver, long device, std::mt19937 &) {
             QByteArray bytes;
             driver.getIEDModel(device, bytes, error());
         }},
        {"directories",
         [=](ServedDriver &driver, long device, std::mt19937 &) {
             QList<NameVaildValue> list;
             driver.getServerDirectory(device, list, error());
             driver.getLogicalDeviceDirectory(device, control, list, error());
             driver.getLogicalNodeDirectory(device, control, "LLN0", list, error());
             driver.getDataDirectory(device, control, "QA1CSWI1$ST$Pos", list, error());
             driver.getDataSetList(device, control, list, error());
             driver.getDataSetDirectory(device, control, "LLN0$Positions", list, error());
             driver.getXRCB(device, control, "LLN0", "BR", list, error());
             driver.getSGCBBlock(device, "BAY1E1PROT", list, error());
         }},
        {"readVariable",
         [=](ServedDriver &driver, long device, std::mt19937 &chance) {
             driver.readVariable(device, control,
                                 {oneOf(chance, "QA1CSWI1$ST$Pos", "LLN0$ST$Mod", "no$ST$Thing")},
                                 error());
         }},
        {"readDataSetValue",
         [=](ServedDriver &driver, long device, std::mt19937 &) {
             driver.readDataSetValue(device, control, "LLN0$Positions", error());
         }},
        {"writeVariable",
         [=](ServedDriver &driver, long device, std::mt19937 &chance) {
             QByteArray bytes;
             QDataStream stream(&bytes, QIODevice::WriteOnly);
             stream << QVariant(static_cast<int>(chance() % 100));
             driver.writeVariable(device, control, "QA1CSWI1$CF$Pos$sboTimeout", bytes, error());
         }},
        {"getBRCBValues",
         [=](ServedDriver &driver, long device, std::mt19937 &chance) {
             ReportBlock block;
             driver.getBRCBValues(device, control, anyBlock(chance), block, error());
         }},
        {"enableReportBlock",
         [=](ServedDriver &driver, long device, std::mt19937 &chance) {
             ReportBlock block;
             block.trgOps = 0x64;
             block.optFlds[0] = 0x78;
             driver.enableReportBlock(device, control, anyBlock(chance), {}, {}, block, error());
         }},
        {"disable",
         [=](ServedDriver &driver, long device, std::mt19937 &chance) {
             driver.writeValue(device, control, anyBlock(chance), "RptEna", QByteArray(1, '\0'),
                               error());
         }},
        {"writeValue",
         [=](ServedDriver &driver, long device, std::mt19937 &chance) {
             driver.writeValue(device, control, anyBlock(chance),
                               oneOf(chance, "GI", "Resv", "PurgeBuf"),
                               QByteArray(1, static_cast<char>(chance() % 2)), error());
         }},
        {"control",
         [=](ServedDriver &driver, long device, std::mt19937 &chance) {
             const QByteArray block = command(chance);
             driver.selectObject(device, control, "QA1CSWI1$CO$Pos", block, error());
             driver.controlObject(device, control, "QA1CSWI1$CO$Pos", command(chance), error());
             driver.cancelObject(device, control, "QA1CSWI1$CO$Pos", block, error());
         }},
        {"data sets",
         [=](ServedDriver &driver, long device, std::mt19937 &) {
             driver.createDataSet(device, "", "mine", "BAY1E1CTRL/QA1CSWI1$ST$Pos", 1, error());
             driver.deleteDataSet(device, "", "mine", error());
         }},
        {"files",
         [=](ServedDriver &driver, long device, std::mt19937 &) {
             QList<MMSFileEntry> entries;
             QByteArray content;
             driver.getFileDirectory(device, {}, {}, entries, error());
             driver.getFile(device, "gone.txt", content, error());
             driver.writeFile(device, localFile, "there.txt", error());
             driver.deleteFile(device, "there.txt", error());
         }},
        {"setting groups",
         [=](ServedDriver &driver, long device, std::mt19937 &chance) {
             SGCB block;
             QList<SGCBValue> values;
             const QString reference = QStringLiteral("BAY1E1PROT/LLN0$SP$SGCB");
             driver.getSGCB(device, reference, block, error());
             driver.selectEditSG(device, reference, 1 + static_cast<int>(chance() % 3), error());
             driver.getSGCBValue(device, reference, "SE", values, error());
             driver.setSGCBValues(device, reference, values, error());
             driver.selectActiveSG(device, reference, 1 + static_cast<int>(chance() % 2), error());
         }},
        {"connect",
         [](ServedDriver &driver, long device, std::mt19937 &) { driver.connectDevice(device); }},
        {"abortClose",
         [](ServedDriver &driver, long device, std::mt19937 &) { driver.abortClose(device); }},
        {"disconnect",
         [](ServedDriver &driver, long device, std::mt19937 &) {
             driver.disconnectDevice(device);
             driver.connectDevice(device);
         }},
        {"cancelReading",
         [](ServedDriver &driver, long device, std::mt19937 &) {
             driver.cancelReading(device);
             driver.connectDevice(device);
         }},
        {"status",
         [](ServedDriver &driver, long device, std::mt19937 &) {
             driver.status(device);
             const auto all = driver.subscribe(ignoringObserver());
             traceOf(driver, device);
             QBuffer out;
             out.open(QIODevice::WriteOnly);
             driver.saveCapture(device, out);
             driver.exportValues(device, out);
         }},
        {"setReadOnly",
         [](ServedDriver &driver, long, std::mt19937 &chance) {
             driver.setReadOnly(chance() % 4 == 0);
             driver.isReadOnly();
             driver.setReadOnly(false);
         }},
        {"setDevice",
         [=](ServedDriver &driver, long, std::mt19937 &) {
             driver.setDevice(configuration);
             driver.connectDevice(configuration.number);
         }},
        {"test",
         [=](ServedDriver &driver, long, std::mt19937 &) {
             DeviceConfiguration other = configuration;
             other.number = 9;
             driver.test(other);
         }},
        {"removeDevice",
         [=](ServedDriver &driver, long, std::mt19937 &) {
             DeviceConfiguration passing = configuration;
             passing.number = 3;
             driver.setDevice(passing);
             driver.connectDevice(3);
             driver.removeDevice(3);
         }},
    };
}

int secondsOf(const char *variable, int otherwise)
{
    bool isNumber = false;
    const int seconds = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? seconds : otherwise;
}

} // namespace

class tst_DriverThreads : public QObject
{
    Q_OBJECT

private slots:
    void everyCallFromSeveralThreadsAtOnce();
    void enablingAndDisablingOneBlockAtOnce();
};

void tst_DriverThreads::everyCallFromSeveralThreadsAtOnce()
{
    const QTemporaryDir folder;
    QFile local(folder.filePath("local.txt"));
    QVERIFY(local.open(QIODevice::WriteOnly));
    local.write("content");
    local.close();
    SimulatedIed ied(stationFile);
    Listener listener;
    listener.keepHistory(false);
    IedDriverOptions options = listener.options();
    options.cacheFolder = folder.filePath("cache");
    std::atomic<int> events{0};
    options.observer.reportReceived = [&events](const ReportEvent &) { ++events; };
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(100);
    configuration.callTimeout = std::chrono::milliseconds(2000);
    configuration.operationTimeout = std::chrono::milliseconds(4000);
    const std::vector<Call> all = calls(configuration, local.fileName());
    std::atomic<int> made{0};
    {
        ServedDriver driver(options);
        QVERIFY(driver.setDevice(configuration).isEmpty());
        driver.connectDevice(1);
        QVERIFY(listener.waitForState(1, DeviceState::Online));
        const auto end = std::chrono::steady_clock::now() +
                         std::chrono::seconds(secondsOf("DRIVER_THREADS_SECONDS", 6));
        std::vector<std::thread> threads;
        for (unsigned int i = 0; i < 6; ++i) {
            threads.emplace_back([&, i] {
                std::mt19937 chance(i + 1);
                while (std::chrono::steady_clock::now() < end) {
                    // Devices that are there, and one that is not.
                    const long device = chance() % 10 == 0 ? 7 : 1;
                    all[chance() % all.size()].make(driver, device, chance);
                    ++made;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        qInfo("%d calls, %d report events", made.load(), events.load());
        QVERIFY(made > 0);
        // It still works.
        driver.setReadOnly(false);
        driver.setDevice(configuration);
        driver.connectDevice(1);
        QVERIFY(listener.waitForState(1, DeviceState::Online));
        QList<NameVaildValue> list;
        QString error;
        QTRY_COMPARE_WITH_TIMEOUT(driver.getServerDirectory(1, list, error), OperationSucceeded,
                                  20000);
    }
}

void tst_DriverThreads::enablingAndDisablingOneBlockAtOnce()
{
    SimulatedIed ied(stationFile);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    const QString name = QStringLiteral("LLN0$RP$urcbPositions01");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&driver, &name, i] {
            ReportBlock block;
            block.trgOps = 0x64;
            block.optFlds[0] = 0x78;
            QString error;
            for (int round = 0; round < 10; ++round) {
                if (i % 2 == 0)
                    driver.enableReportBlock(1, control, name, {}, {}, block, error);
                else
                    driver.writeValue(1, control, name, "RptEna", QByteArray(1, '\0'), error);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    // Whoever came last is obeyed, and the block answers as ever.
    QString error;
    QCOMPARE(driver.writeValue(1, control, name, "RptEna", QByteArray(1, '\0'), error),
             OperationSucceeded);
    ReportBlock block;
    QCOMPARE(driver.getBRCBValues(1, control, name, block, error), OperationSucceeded);
    QVERIFY(!block.rptEna);
    QVERIFY(!block.resv);
    QCOMPARE(driver.status(1).state, DeviceState::Online);
}

QTEST_GUILESS_MAIN(tst_DriverThreads)
#include "tst_driverthreads.moc"
