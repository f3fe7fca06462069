// SPDX-License-Identifier: Apache-2.0
#include "driver/indicatorfile.h"
#include "driver/simulatedstation.h"
#include "driver/switchedfaults.h"
#include "support/memoryuse.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <array>

using namespace drivertest;
using std::chrono::milliseconds;

namespace {

constexpr milliseconds callTimeout{300};
constexpr milliseconds operationTimeout{1000};
/// Within which the device is used again once it behaves.
constexpr milliseconds recovery{20000};

/// What an operation came to.
struct Ending
{
    OperationResult result = OperationSucceeded;
    QString error;
};

using Call = std::function<OperationResult(ServedDriver &, QString &)>;

} // namespace

class tst_DriverFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyOperationEndsInTimeAndTheDeviceRecovers_data();
    void everyOperationEndsInTimeAndTheDeviceRecovers();
    void reportsGoOnAfterFaults_data();
    void reportsGoOnAfterFaults();
    void connectionsThatFailAreMadeLater_data();
    void connectionsThatFailAreMadeLater();
    void aDeviceThatIsKilledAgainAndAgainIsBackSoon();

private:
    static Ending perform(ServedDriver &driver, const Call &call);
    std::vector<Call> calls() const;
    DeviceConfiguration hurried(const SimulatedIed &ied) const;

    QTemporaryDir m_folder;
    const IndicatorFile m_file{"FAULTS", 2, 20};
    QString m_path;
    QString m_domain;
    QString m_value;
};

void tst_DriverFaults::initTestCase()
{
    m_path = m_folder.filePath("faults.icd");
    QVERIFY(m_file.write(m_path));
    m_domain = QString::fromLatin1(m_file.domain());
    m_value = m_file.reference(0) + QStringLiteral("$stVal");
}

Ending tst_DriverFaults::perform(ServedDriver &driver, const Call &call)
{
    Ending ending;
    ending.result = call(driver, ending.error);
    return ending;
}

/// One of each kind of operation.
std::vector<Call> tst_DriverFaults::calls() const
{
    const QString domain = m_domain;
    return {
        [domain](ServedDriver &driver, QString &error) {
            return driver.readVariable(1, domain, {"GGIO1$ST$Ind1", "GGIO2$ST$Ind2"}, error);
        },
        [](ServedDriver &driver, QString &error) {
            QList<NameVaildValue> list;
            return driver.getServerDirectory(1, list, error);
        },
        [domain](ServedDriver &driver, QString &error) {
            QList<NameVaildValue> list;
            return driver.getLogicalNodeDirectory(1, domain, "GGIO1", list, error);
        },
        [domain](ServedDriver &driver, QString &error) {
            QList<NameVaildValue> list;
            return driver.getDataSetDirectory(1, domain, "LLN0$Set1", list, error);
        },
        [domain](ServedDriver &driver, QString &error) {
            return driver.readDataSetValue(1, domain, "LLN0$Set2", error);
        },
        [domain](ServedDriver &driver, QString &error) {
            QByteArray value;
            QDataStream stream(&value, QIODevice::WriteOnly);
            stream << QVariant(QStringLiteral("other"));
            return driver.writeVariable(1, domain, "LLN0$DC$NamPlt$configRev", value, error);
        },
        [domain](ServedDriver &driver, QString &error) {
            return driver.createDataSet(1, domain, "LLN0$made", domain + "/GGIO1$ST$Ind1", 0,
                                        error);
        },
        [domain](ServedDriver &driver, QString &error) {
            return driver.deleteDataSet(1, domain, "LLN0$made", error);
        },
        [domain](ServedDriver &driver, QString &error) {
            ReportBlock block;
            return driver.getBRCBValues(1, domain, "LLN0$BR$brcb1", block, error);
        },
        [domain](ServedDriver &driver, QString &error) {
            ReportBlock block;
            block.trgOps = 0x44;
            return driver.enableReportBlock(1, domain, "LLN0$RP$urcb1", {}, {}, block, error);
        },
        [](ServedDriver &driver, QString &error) {
            QByteArray bytes;
            return driver.getIEDModel(1, bytes, error);
        },
    };
}

DeviceConfiguration tst_DriverFaults::hurried(const SimulatedIed &ied) const
{
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = milliseconds(100);
    configuration.callTimeout = callTimeout;
    configuration.operationTimeout = operationTimeout;
    return configuration;
}

void tst_DriverFaults::everyOperationEndsInTimeAndTheDeviceRecovers_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("isHarmless");
    for (const sim::FaultCase &each : sim::faultCases()) {
        const QByteArray name(each.name.data(), static_cast<int>(each.name.size()));
        QByteArray rule = name;
        if (name == "delay")
            rule += " 2s";
        else if (name == "clock")
            rule += " +1h";
        const bool isHarmless = name == "clock" || name == "duplicate";
        QTest::newRow(name.constData()) << rule << isHarmless;
        QTest::newRow((name + " now and then").constData())
            << QByteArray("seed 7\n" + rule + " probability 0.3") << true;
    }
}

void tst_DriverFaults::everyOperationEndsInTimeAndTheDeviceRecovers()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, isHarmless);
    SwitchedFaults faults(script.toStdString());
    sim::DeviceOptions options;
    options.server.association.link.interference = faults.interference();
    SimulatedIed ied(m_path, {}, {}, options);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(hurried(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));

    faults.set(true);
    int failures = 0;
    for (const Call &call : calls()) {
        const Ending ending = perform(driver, call);
        QVERIFY((ending.result == OperationSucceeded) == ending.error.isEmpty());
        failures += ending.result != OperationSucceeded;
    }
    QVERIFY(isHarmless || failures > 0);

    faults.set(false);
    const QDeadlineTimer end(recovery);
    Ending last;
    do {
        QVERIFY(listener.waitForState(1, DeviceState::Online));
        last = perform(driver, calls().front());
    } while (last.result != OperationSucceeded && !end.hasExpired());
    QVERIFY2(last.result == OperationSucceeded, qPrintable(last.error));
    listener.clear();
    ied.set(m_domain.toStdString(), "GGIO1$ST$Ind1$stVal", mms::Data::boolean(true));
    QVERIFY(listener.waitForValue(m_value, true));
}

void tst_DriverFaults::reportsGoOnAfterFaults_data()
{
    QTest::addColumn<QByteArray>("script");
    for (const char *rule :
         {"delay 300ms", "drop", "duplicate", "truncate", "garbage", "noise", "reset"})
        QTest::newRow(rule) << QByteArray(rule) + " on informationReport";
}

void tst_DriverFaults::reportsGoOnAfterFaults()
{
    QFETCH(QByteArray, script);
    SwitchedFaults faults(script.toStdString());
    sim::DeviceOptions options;
    options.server.association.link.interference = faults.interference();
    SimulatedIed ied(m_path, {}, {}, options);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = hurried(ied);
    configuration.pollInterval = milliseconds(0);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QString error;
    ReportBlock block;
    block.trgOps = 0x44;
    block.optFlds[0] = 0x79;
    QCOMPARE(driver.enableReportBlock(1, m_domain, "LLN0$BR$brcb1", {}, {}, block, error),
             OperationSucceeded);
    faults.set(true);
    for (int i = 0; i < 10; ++i)
        ied.set(m_domain.toStdString(), "GGIO1$ST$Ind1$stVal", mms::Data::boolean(i % 2 == 0));
    // An answer behind the reports: they have been sent, and come apart, by now.
    perform(driver, calls().front());
    faults.set(false);
    const QDeadlineTimer end(recovery);
    bool arrived = false;
    for (int i = 0; !arrived && !end.hasExpired(); ++i) {
        QVERIFY(listener.waitForState(1, DeviceState::Online));
        listener.clear();
        ied.set(m_domain.toStdString(), "GGIO1$ST$Ind2$stVal", mms::Data::boolean(i % 2 == 0));
        perform(driver, calls().front());
        const QString second = m_file.reference(1) + QStringLiteral("$stVal");
        const bool isOnline = driver.status(1).state == DeviceState::Online;
        arrived = isOnline && listener.waitForValue(second, [](const MMSValue &value) {
            return (value.cause & PublishCause::Report) != 0;
        });
    }
    QVERIFY(arrived);
}

void tst_DriverFaults::connectionsThatFailAreMadeLater_data()
{
    QTest::addColumn<QByteArray>("script");
    for (const char *rule :
         {"delay 2s on initiate", "drop on initiate", "truncate on initiate", "garbage on initiate",
          "noise on initiate", "reset on initiate", "ignore on getNameList",
          "refuse no-resource on getNameList", "reject on getVariableAccessAttributes",
          "oversize on getVariableAccessAttributes", "truncate on getVariableAccessAttributes",
          "wrong-invoke-id on getNameList", "refuse on getNamedVariableListAttributes"})
        QTest::newRow(rule) << QByteArray(rule);
}

void tst_DriverFaults::connectionsThatFailAreMadeLater()
{
    QFETCH(QByteArray, script);
    SwitchedFaults faults(script.toStdString());
    sim::DeviceOptions options;
    options.server.association.link.interference = faults.interference();
    SimulatedIed ied(m_path, {}, {}, options);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = hurried(ied);
    configuration.connectTimeout = milliseconds(500);
    driver.setDevice(configuration);
    faults.set(true);
    driver.connectDevice(1);
    // Either no association comes about, or the device is used as far as it answers.
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return (status.state == DeviceState::Waiting && !status.reason.isEmpty()) ||
               (status.state == DeviceState::ReadingModel && status.modelSteps > 0) ||
               status.state == DeviceState::Online;
    }));
    const Ending during = perform(driver, calls().back());
    QVERIFY((during.result == OperationSucceeded) == during.error.isEmpty());
    faults.set(false);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    // A model that was read while the device refused things is not kept for good.
    driver.disconnectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
    const auto device = deviceFrom(bytes);
    QVERIFY(device->findTag(m_value));
    QCOMPARE(device->logicalDevices.first()->logicalNodes.first()->dataSetGroup->dataSets.size(),
             2);
    QCOMPARE(driver.status(1).refusedObjects, 0);
}

void tst_DriverFaults::aDeviceThatIsKilledAgainAndAgainIsBackSoon()
{
    const int rounds = qEnvironmentVariableIsSet("DRIVER_RESTARTS")
                           ? qEnvironmentVariableIntValue("DRIVER_RESTARTS")
                           : 10;
    SimulatedIed ied(m_path);
    Listener listener;
    listener.keepHistory(false);
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = milliseconds(0);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QString error;
    ReportBlock block;
    block.trgOps = 0x44;
    block.optFlds[0] = 0x79;
    for (const char *name : {"LLN0$RP$urcb1", "LLN0$BR$brcb2"}) {
        QCOMPARE(
            driver.enableReportBlock(1, m_domain, QString::fromLatin1(name), {}, {}, block, error),
            OperationSucceeded);
    }
    qint64 atFirst = 0;
    for (int round = 0; round < rounds; ++round) {
        ied.stop();
        QVERIFY(listener.waitForState(1, DeviceState::Waiting));
        listener.clear();
        ied.start();
        for (const int index : {0, 20}) {
            // One by a block of each kind. They are not enabled yet when the value changes: it is
            // brought by whatever looks at it first.
            ied.set(m_domain.toStdString(), m_file.item(index).toStdString() + "$stVal",
                    mms::Data::boolean(round % 2 == 0));
            QVERIFY(listener.waitForValue(m_file.reference(index) + "$stVal", round % 2 == 0));
        }
        if (round == rounds / 5)
            atFirst = testsupport::memoryInUse();
    }
    const qint64 growth = testsupport::memoryInUse() - atFirst;
    qInfo("%d restarts, memory grew by %lld KiB", rounds, growth / 1024);
    QVERIFY(growth < 4 << 20);
    QCOMPARE(driver.status(1).counters.connections, std::uint64_t(rounds + 1));
}

QTEST_GUILESS_MAIN(tst_DriverFaults)
#include "tst_driverfaults.moc"
