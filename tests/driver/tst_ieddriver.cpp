// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace drivertest;

namespace {

const QString station = QStringLiteral(STATION_FILE);

/// Requests of a service that the driver has sent to the device.
int requests(ServedDriver &driver, int number, const QString &service)
{
    int count = 0;
    const QVector<TraceLine> lines = traceOf(driver, number);
    for (const TraceLine &line : lines)
        count += line.sent && line.text.contains(service);
    return count;
}

/// A port on which nobody listens.
std::uint16_t freePort()
{
    asio::io_context context;
    asio::ip::tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), 0});
    return acceptor.local_endpoint().port();
}

} // namespace

class tst_IedDriver : public QObject
{
    Q_OBJECT

private slots:
    void aDeviceIsFoundAndItsModelServed();
    void whatWasReadAtFirstIsInTheModel();
    void aSecondOpeningAsksForNoTypesAndANewAssociationForAll();
    void anUnreachableDeviceSaysWhy();
    void faultsOfAConfigurationChangeNothing();
    void devicesWithoutAnAddressAnswerFromTheirFile();
    void anUnknownDeviceIsNamed();
    void aServiceThatOutlivesItsDriverReachesNobody();
    void aDeviceThatComesBackIsConnectedAgain();
    void aSilentDeviceIsNoticedAndConnectedAgain();
    void anOperationOnASilentDeviceEndsInTime();
    void anAbortedDeviceIsConnectedAgainByItsNextUse();
    void aDisconnectedDeviceStaysSo();
    void whoConnectsALeftDeviceGetsANewAssociation();
    void devicesWithTheSameLogicalDevicesAreNotOnlineAtOnce();
    void anEditedDeviceKeepsItsNames();
    void readingTheModelCanBeCancelled();
    void theModelThatIsBeingReadIsNotWaitedFor();
    void connectionsCanBeTriedWithoutTheDeviceList();
    void theEndOfTheDriverWaitsForNobodyWhoDoesNotAnswer();
    void anOrderlyEndConcludesTheAssociation();
};

void tst_IedDriver::aDeviceIsFoundAndItsModelServed()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    QCOMPARE(driver.setDevice(configurationFor(ied)), QStringList());
    QCOMPARE(driver.status(1).state, DeviceState::Disconnected);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));

    const DeviceStatus status = driver.status(1);
    QCOMPARE(status.reason, QString());
    QVERIFY(!status.vendor.isEmpty());
    QVERIFY(status.roundTrip.count() > 0);
    QCOMPARE(status.counters.connections, std::uint64_t(1));
    QVERIFY(status.counters.sentPdus > 5);

    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
    const auto device = deviceFrom(bytes);
    QVERIFY(!device->offline);
    QCOMPARE(device->logicalDevices.size(), 4);
    const DataAttribute *position = device->findTag("BAY1E1CTRL/QA1CSWI1$ST$Pos$stVal");
    QVERIFY(position);
    QCOMPARE(position->basicType, QStringLiteral("Dbpos"));
    QCOMPARE(device->findTag("BAY1E1CTRL/LLN0$ST$Mod$stVal")->basicType, QStringLiteral("Enum"));
}

void tst_IedDriver::whatWasReadAtFirstIsInTheModel()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
    const auto device = deviceFrom(bytes);
    QCOMPARE(device->findTag("BAY1E1CTRL/QA1CSWI1$CF$Pos$ctlModel")->value, QVariant(4));
    const LogicalNode *zero = device->logicalDevices.first()->logicalNodes.first();
    QCOMPARE(zero->name, QStringLiteral("LLN0"));
    const DataSet *positions = zero->dataSet("Positions");
    QVERIFY(positions);
    QCOMPARE(positions->state, quint8(0));
    QVERIFY(positions->members.size() > 2);
    const auto &blocks = zero->reportControls->blocks;
    QVERIFY(!blocks.isEmpty());
    QCOMPARE(blocks.first()->dataSet, QStringLiteral("Positions"));
    QCOMPARE(blocks.first()->state, quint8(1));
    QVERIFY(listener.waitForValue("BAY1E1CTRL/QA1CSWI1$ST$Pos$stVal",
                                  [](const MMSValue &value) { return value.value.isValid(); }));
}

void tst_IedDriver::aSecondOpeningAsksForNoTypesAndANewAssociationForAll()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    const int types = requests(driver, 1, "getVariableAccessAttributes");
    QVERIFY(types > 0);
    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
    QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
    QCOMPARE(requests(driver, 1, "getVariableAccessAttributes"), types);

    driver.disconnectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QCOMPARE(requests(driver, 1, "getVariableAccessAttributes"), 2 * types);
}

void tst_IedDriver::anUnreachableDeviceSaysWhy()
{
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration;
    configuration.number = 3;
    configuration.name = "AA1E1Q01";
    configuration.host = "127.0.0.1";
    configuration.port = freePort();
    QCOMPARE(driver.setDevice(configuration), QStringList());

    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(3, bytes, error), OperationNotConnected);
    QCOMPARE(error, QStringLiteral("Device 3 (AA1E1Q01) is not connected."));
    driver.connectDevice(3);
    QVERIFY(listener.waitForState(3, DeviceState::Waiting));
    QCOMPARE(driver.readVariable(3, "LD", {"GGIO1$ST$Ind1"}, error), OperationNotConnected);
    QVERIFY2(error.startsWith("Device 3 (AA1E1Q01) is not connected: "), qPrintable(error));
    QVERIFY2(error.contains("refused", Qt::CaseInsensitive), qPrintable(error));
}

void tst_IedDriver::faultsOfAConfigurationChangeNothing()
{
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration;
    configuration.number = 1;
    configuration.host = "127.0.0.1";
    QCOMPARE(driver.setDevice(configuration), QStringList("The device needs a name."));
    QCOMPARE(driver.status(1).number, 0);
}

void tst_IedDriver::devicesWithoutAnAddressAnswerFromTheirFile()
{
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration;
    configuration.number = 5;
    configuration.name = "BAY1";
    configuration.sclFile = station;
    QCOMPARE(driver.setDevice(configuration), QStringList());
    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(5, bytes, error), OperationSucceeded);
    QVERIFY(deviceFrom(bytes)->offline);
    QCOMPARE(driver.readVariable(5, "LD", {"GGIO1$ST$Ind1"}, error), OperationNotConnected);
    QCOMPARE(error, QStringLiteral("Not connected to the device"));
    driver.connectDevice(5);
    QCOMPARE(driver.abortClose(5), OperationNotConnected);
    driver.removeDevice(5);
    QCOMPARE(driver.getIEDModel(5, bytes, error), OperationFailed);
}

void tst_IedDriver::anUnknownDeviceIsNamed()
{
    Listener listener;
    ServedDriver driver(listener.options());
    QString error;
    QList<NameVaildValue> list;
    QCOMPARE(driver.getServerDirectory(9, list, error), OperationFailed);
    QCOMPARE(error, QStringLiteral("There is no device 9 on this driver."));
}

void tst_IedDriver::aServiceThatOutlivesItsDriverReachesNobody()
{
    auto driver = std::make_unique<IedDriver>();
    const std::shared_ptr<DriverService> service = driver->serviceFor(Caller::ofThisProcess());
    QString error;
    QList<NameVaildValue> list;
    QCOMPARE(service->getServerDirectory(7, list, error), OperationFailed);
    driver.reset();
    QCOMPARE(service->getServerDirectory(7, list, error), OperationDriverUnreachable);
    QVERIFY(!error.isEmpty());
    QCOMPARE(service->abortClose(7), OperationDriverUnreachable);
}

void tst_IedDriver::aDeviceThatComesBackIsConnectedAgain()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(100);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    for (int round = 0; round < 5; ++round) {
        ied.stop();
        QVERIFY(listener.waitForState(1, DeviceState::Waiting));
        QVERIFY(!driver.status(1).reason.isEmpty());
        listener.clear();
        ied.start();
        QVERIFY(listener.waitForState(1, DeviceState::Online));
        ied.set("BAY1E1IO", "GGIO1$ST$Ind1$stVal", mms::Data::boolean(round % 2 == 0));
        QVERIFY(listener.waitForValue("BAY1E1IO/GGIO1$ST$Ind1$stVal", round % 2 == 0));
    }
    QCOMPARE(driver.status(1).counters.connections, std::uint64_t(6));
}

void tst_IedDriver::aSilentDeviceIsNoticedAndConnectedAgain()
{
    SimulatedIed ied(station, {}, "ignore on status\n");
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    configuration.callTimeout = std::chrono::milliseconds(500);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    QVERIFY2(driver.status(1).reason.contains("has not answered") ||
                 driver.status(1).state != DeviceState::Waiting,
             qPrintable(driver.status(1).reason));
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.counters.connections >= 2;
    }));
}

void tst_IedDriver::anOperationOnASilentDeviceEndsInTime()
{
    SimulatedIed ied(station, {}, "ignore on getNameList from 31\n");
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.callTimeout = std::chrono::milliseconds(400);
    // Shorter than the usual time-out of a call, so that the sentence tells which of them it was.
    configuration.operationTimeout = std::chrono::milliseconds(4500);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    OperationResult result = OperationSucceeded;
    QString error;
    for (int i = 0; i < 50 && result == OperationSucceeded; ++i) {
        QList<NameVaildValue> list;
        result = driver.getServerDirectory(1, list, error);
    }
    QVERIFY(result != OperationSucceeded);
    QVERIFY(!error.isEmpty());
    QVERIFY2(!error.contains("has not finished the operation"), qPrintable(error));
}

void tst_IedDriver::anAbortedDeviceIsConnectedAgainByItsNextUse()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QCOMPARE(driver.abortClose(1), OperationSucceeded);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    QCOMPARE(driver.status(1).reason, QStringLiteral("Aborted by the operator."));
    QString error;
    QList<NameVaildValue> list;
    QCOMPARE(driver.getServerDirectory(1, list, error), OperationSucceeded);
    QCOMPARE(list.size(), 4);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
}

void tst_IedDriver::aDisconnectedDeviceStaysSo()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    driver.disconnectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    QString error;
    QList<NameVaildValue> list;
    QCOMPARE(driver.getServerDirectory(1, list, error), OperationNotConnected);
    QCOMPARE(error, QStringLiteral("Device 1 (IED1) is not connected."));
}

void tst_IedDriver::whoConnectsALeftDeviceGetsANewAssociation()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    driver.disconnectDevice(1);
    driver.connectDevice(1);
    // It waits for that association as for a first one.
    QString error;
    QList<NameVaildValue> list;
    QVERIFY2(driver.getServerDirectory(1, list, error) == OperationSucceeded, qPrintable(error));
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.counters.connections == 2;
    }));
    QCOMPARE(requests(driver, 1, "conclude"), 1);
}

void tst_IedDriver::devicesWithTheSameLogicalDevicesAreNotOnlineAtOnce()
{
    SimulatedIed first(station);
    SimulatedIed second(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(first, 1));
    driver.setDevice(configurationFor(second, 2));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    driver.connectDevice(2);
    QVERIFY(listener.waitForState(2, DeviceState::Waiting));
    const QString reason = driver.status(2).reason;
    QVERIFY2(reason.contains("is online already as part of Device 1 (IED1)"), qPrintable(reason));
    driver.disconnectDevice(1);
    QVERIFY(listener.waitForState(2, DeviceState::Online));
}

void tst_IedDriver::anEditedDeviceKeepsItsNames()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    driver.setDevice(configuration);
    driver.setDevice(configurationFor(ied, 2));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    for (int edits = 0; edits < 5; ++edits) {
        configuration.outstandingCalls = 2 + edits;
        QVERIFY(driver.setDevice(configuration).isEmpty());
        driver.connectDevice(1);
        QTRY_VERIFY(driver.status(1).state == DeviceState::Online);
    }
    driver.connectDevice(2);
    QVERIFY(listener.waitForState(2, DeviceState::Waiting));
    QVERIFY2(driver.status(2).reason.contains("is online already as part of Device 1 (IED1)"),
             qPrintable(driver.status(2).reason));
}

void tst_IedDriver::readingTheModelCanBeCancelled()
{
    SimulatedIed ied(station, {}, "delay 200ms on getVariableAccessAttributes\n");
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.outstandingCalls = 1;
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::ReadingModel && status.modelStepsDone > 4;
    }));
    driver.cancelReading(1);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    QCOMPARE(driver.status(1).reason, QStringLiteral("Reading the model was cancelled."));
}

void tst_IedDriver::theModelThatIsBeingReadIsNotWaitedFor()
{
    SimulatedIed ied(station, {}, "delay 200ms on getVariableAccessAttributes\n");
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.outstandingCalls = 1;
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::ReadingModel && status.modelSteps > 0;
    }));
    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(1, bytes, error), OperationNotConnected);
    const QRegularExpression form(
        "^The model of Device 1 \\(IED1\\) is being read: \\d+ of \\d+\\.$");
    QVERIFY2(form.match(error).hasMatch(), qPrintable(error));
    driver.cancelReading(1);
}

void tst_IedDriver::connectionsCanBeTriedWithoutTheDeviceList()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    const DeviceTestResult found = driver.test(configurationFor(ied));
    QCOMPARE(found.error, QString());
    QCOMPARE(found.logicalDevices, 4);
    QVERIFY(!found.vendor.isEmpty());
    QVERIFY(found.roundTrip.count() > 0);

    DeviceConfiguration nowhere = configurationFor(ied);
    nowhere.port = freePort();
    const DeviceTestResult missing = driver.test(nowhere);
    QVERIFY2(missing.error.contains("refused", Qt::CaseInsensitive), qPrintable(missing.error));
    nowhere.name.clear();
    QCOMPARE(driver.test(nowhere).error, QStringLiteral("The device needs a name."));
    QCOMPARE(driver.status(1).number, 0);
}

void tst_IedDriver::theEndOfTheDriverWaitsForNobodyWhoDoesNotAnswer()
{
    // Somebody who accepts connections and never says a word.
    asio::io_context context;
    asio::ip::tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), 0});
    Listener listener;
    {
        ServedDriver driver(listener.options());
        DeviceConfiguration configuration;
        configuration.number = 1;
        configuration.name = "mute";
        configuration.host = "127.0.0.1";
        configuration.port = acceptor.local_endpoint().port();
        configuration.connectTimeout = std::chrono::milliseconds(60000);
        driver.setDevice(configuration);
        driver.connectDevice(1);
        QVERIFY(listener.waitForState(1, DeviceState::Connecting));
    }
    // The attempt was given up, and not only cut off when the driver's patience was over.
    QVERIFY(listener.lastState(1) == DeviceState::Disconnected);
}

void tst_IedDriver::anOrderlyEndConcludesTheAssociation()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    driver.disconnectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    QCOMPARE(requests(driver, 1, "conclude"), 1);
}

QTEST_GUILESS_MAIN(tst_IedDriver)
#include "tst_ieddriver.moc"
