// SPDX-License-Identifier: Apache-2.0
// Devices that exchange themselves, say nothing, or say it late; names that nobody resolves.
#include "driver/simulatedstation.h"

#include "driver/device/deviceconnection.h"

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

#include <stdexcept>
#include <thread>

using namespace drivertest;
using namespace std::chrono_literals;

namespace {

const QString station = QStringLiteral(STATION_FILE);
const QString exchanged =
    QStringLiteral("This is not the device that the window was opened for: open it again.");

int requests(ServedDriver &driver, int number, const QString &service)
{
    int count = 0;
    const QVector<TraceLine> lines = traceOf(driver, number);
    for (const TraceLine &line : lines)
        count += line.sent && line.text.contains(service);
    return count;
}

QString write(ServedDriver &driver, const QString &text)
{
    QByteArray value;
    QDataStream stream(&value, QIODevice::WriteOnly);
    stream << QVariant(text);
    QString error;
    driver.writeVariable(1, "BAY1E1IO", "GGIO1$DC$NamPlt$d", value, error);
    return error;
}

QString openModel(ServedDriver &driver)
{
    QByteArray model;
    QString error;
    driver.getIEDModel(1, model, error);
    return error;
}

bool isOnlineFor(const DeviceStatus &status, std::uint64_t connections)
{
    return status.state == DeviceState::Online && status.counters.connections >= connections;
}

/// A name server that answers for one name only when it is told to.
class NameServer
{
public:
    osi::HostLookup::Function function() const
    {
        return [state = m_state](const std::string &name) -> osi::HostAddresses {
            if (name.compare(0, 4, "slow") == 0) {
                std::unique_lock<std::mutex> lock(state->mutex);
                state->changed.wait(lock, [&] { return state->isOpen; });
                return {{}, wording::verbatim("nobody knows it")};
            }
            if (name == "quick.example")
                return {{asio::ip::make_address("127.0.0.1")}, {}};
            return {{}, wording::verbatim("no such name")};
        };
    }

    ~NameServer()
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->isOpen = true;
        m_state->changed.notify_all();
    }

private:
    struct State
    {
        std::mutex mutex;
        std::condition_variable changed;
        bool isOpen = false;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace

class tst_OddAssociations : public QObject
{
    Q_OBJECT

private slots:
    void aDeviceThatWasExchangedIsNotChanged();
    void anEditedAddressIsAnotherDevice();
    void whoNeverAskedForTheModelIsBoundToNothing();
    void aDeviceThatNeverIdentifiesItselfIsAskedOnce();
    void statusIsAskedForOnlyWhereItIsDeclared_data();
    void statusIsAskedForOnlyWhereItIsDeclared();
    void aQuestionWithoutAPlaceIsNoSilence();
    void aSlowNameHoldsNobodyElse();
    void aNameThatDoesNotExistIsTold();
    void anOutageHasOneBeginning();
    void anExceptionEndsInAStateWithAReason();
    void aDrippingFileCanBeCancelled();
    void readingTheModelEndsWhenTheDeviceIsLeft();
};

void tst_OddAssociations::aDeviceThatWasExchangedIsNotChanged()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QCOMPARE(openModel(driver), QString());
    const QString before = write(driver, "x");
    QVERIFY2(before != exchanged, qPrintable(before));
    ied.stop();
    QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    ied.options().identity.vendor = "Feeder 99";
    ied.start();
    QVERIFY(listener.waitForStatus(
        1, [](const DeviceStatus &status) { return isOnlineFor(status, 2); }));
    QCOMPARE(write(driver, "x"), exchanged);
    QString error;
    QCOMPARE(driver.deleteFile(1, "COMTRADE/a.cfg", error), OperationFailed);
    QCOMPARE(error, exchanged);
    // Looking is not forbidden.
    QCOMPARE(driver.readVariable(1, "BAY1E1IO", {"GGIO1$ST$Ind1"}, error), OperationSucceeded);
    QCOMPARE(openModel(driver), QString());
    QCOMPARE(write(driver, "x"), before);
}

void tst_OddAssociations::anEditedAddressIsAnotherDevice()
{
    SimulatedIed first(station);
    SimulatedIed second(station);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(first);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QCOMPARE(openModel(driver), QString());
    const QString before = write(driver, "x");
    configuration.port = second.port();
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QTRY_VERIFY_WITH_TIMEOUT(driver.status(1).state == DeviceState::Online, 20000);
    QCOMPARE(write(driver, "x"), exchanged);
    // Another time-out is no other device.
    configuration.port = first.port();
    configuration.callTimeout += 1s;
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QTRY_VERIFY_WITH_TIMEOUT(driver.status(1).state == DeviceState::Online, 20000);
    QCOMPARE(write(driver, "x"), before);
}

void tst_OddAssociations::whoNeverAskedForTheModelIsBoundToNothing()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    const QString before = write(driver, "x");
    ied.stop();
    QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    ied.options().identity.model = "Feeder 99";
    ied.start();
    QVERIFY(listener.waitForStatus(
        1, [](const DeviceStatus &status) { return isOnlineFor(status, 2); }));
    QCOMPARE(write(driver, "x"), before);
}

void tst_OddAssociations::aDeviceThatNeverIdentifiesItselfIsAskedOnce()
{
    SimulatedIed ied(station, {}, "ignore on identify\n");
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    // With a single place a question without an answer would hold up everything.
    configuration.outstandingCalls = 1;
    configuration.callTimeout = 1s;
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QCOMPARE(driver.status(1).vendor, QString());
    const int asked = requests(driver, 1, "identify");
    for (int round = 2; round < 4; ++round) {
        ied.stop();
        QVERIFY(listener.waitForState(1, DeviceState::Waiting));
        ied.start();
        QVERIFY(listener.waitForStatus(1, [round](const DeviceStatus &status) {
            return isOnlineFor(status, static_cast<std::uint64_t>(round));
        }));
    }
    QCOMPARE(requests(driver, 1, "identify"), asked);
}

void tst_OddAssociations::statusIsAskedForOnlyWhereItIsDeclared_data()
{
    QTest::addColumn<QByteArray>("faults");
    QTest::addColumn<QString>("service");
    QTest::newRow("identify") << QByteArray() << "identify";
    QTest::newRow("read") << QByteArray("ignore on identify\n") << "LLN0$ST$Mod$stVal";
}

void tst_OddAssociations::statusIsAskedForOnlyWhereItIsDeclared()
{
    QFETCH(QByteArray, faults);
    QFETCH(QString, service);
    sim::DeviceOptions options;
    options.oddities.noStatus = true;
    SimulatedIed ied(station, {}, faults.toStdString(), options);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = 0ms;
    configuration.callTimeout = 1s;
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    const int before = requests(driver, 1, service);
    QTRY_VERIFY_WITH_TIMEOUT(requests(driver, 1, service) >= before + 2, 20000);
    QCOMPARE(requests(driver, 1, "status"), 0);
    QCOMPARE(driver.status(1).counters.connections, std::uint64_t(1));
}

void tst_OddAssociations::aQuestionWithoutAPlaceIsNoSilence()
{
    SimulatedIed ied(station);
    ied.stop();
    ied.setRequestFilter([](const auto &, std::uint32_t, mms::RequestService &request) {
        // One data set is never read.
        const auto *read = std::get_if<mms::ReadRequest>(&request);
        return read && std::holds_alternative<mms::ObjectName>(read->variables);
    });
    ied.start();
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = 0ms;
    // The place is kept longer than a silent device is left alone.
    configuration.callTimeout = 2s;
    configuration.outstandingCalls = 1;
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    std::atomic<bool> isOver{false};
    std::thread reader([&] {
        QString error;
        driver.readDataSetValue(1, "BAY1E1IO", "LLN0$Indications", error);
        isOver = true;
    });
    const bool isTold = listener.waitForStatus(
        1, [](const DeviceStatus &status) { return status.reason.contains("waits for a place"); });
    reader.join();
    QVERIFY2(isTold, qPrintable(driver.status(1).reason));
    QVERIFY(listener.waitForStatus(
        1, [](const DeviceStatus &status) { return status.reason.isEmpty(); }));
    QCOMPARE(driver.status(1).counters.connections, std::uint64_t(1));
}

void tst_OddAssociations::aSlowNameHoldsNobodyElse()
{
    SimulatedIed ied(station);
    SimulatedIed other(station);
    const NameServer names;
    Listener listener;
    {
        IedDriverOptions options = listener.options();
        options.lookUp = names.function();
        ServedDriver driver(options);
        DeviceConfiguration slow = configurationFor(ied, 1);
        slow.host = "slow.example";
        slow.connectTimeout = 600s;
        DeviceConfiguration quick = configurationFor(ied, 2);
        quick.host = "quick.example";
        driver.setDevice(slow);
        driver.setDevice(quick);
        driver.connectDevice(1);
        QVERIFY(listener.waitForState(1, DeviceState::Connecting));
        driver.connectDevice(2);
        QVERIFY(listener.waitForState(2, DeviceState::Online));
        driver.disconnectDevice(2);
        QVERIFY(listener.waitForState(2, DeviceState::Disconnected));
        driver.setDevice(configurationFor(other, 3));
        driver.connectDevice(3);
        QVERIFY(listener.waitForState(3, DeviceState::Online));
        QVERIFY(driver.status(1).state == DeviceState::Connecting);
    }
    // Not even the end of the driver waits for the name.
    QVERIFY(listener.lastState(1) == DeviceState::Disconnected);
}

void tst_OddAssociations::aNameThatDoesNotExistIsTold()
{
    const NameServer names;
    Listener listener;
    IedDriverOptions options = listener.options();
    options.lookUp = names.function();
    ServedDriver driver(options);
    DeviceConfiguration configuration;
    configuration.number = 1;
    configuration.name = "nowhere";
    configuration.host = "nowhere.example";
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    QCOMPARE(driver.status(1).reason,
             QString("The name \"nowhere.example\" cannot be resolved: no such name."));

    configuration.number = 2;
    configuration.host = "slowest.example";
    configuration.connectTimeout = 200ms;
    driver.setDevice(configuration);
    driver.connectDevice(2);
    QVERIFY(listener.waitForState(2, DeviceState::Waiting));
    QCOMPARE(driver.status(2).reason,
             QString("The name \"slowest.example\" was not resolved in time."));
}

void tst_OddAssociations::anOutageHasOneBeginning()
{
    SimulatedIed ied(station);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    ied.stop();
    QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    const QDateTime since = driver.status(1).since;
    const QDateTime lostSince = driver.status(1).lostSince;
    QVERIFY(lostSince.isValid());
    // Three attempts more, each of which may be over at once.
    QVERIFY(listener.waitForVisits(1, DeviceState::Waiting, 4));
    QCOMPARE(driver.status(1).since, since);
    QCOMPARE(driver.status(1).lostSince, lostSince);
    ied.start();
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QVERIFY(driver.status(1).since > since);
    QVERIFY(!driver.status(1).lostSince.isValid());
}

void tst_OddAssociations::anExceptionEndsInAStateWithAReason()
{
    SimulatedIed ied(station);
    asio::io_context context;
    ConnectionEnvironment environment;
    environment.values = LiveValues::create(context.get_executor(), [](const auto &) {});
    environment.claim = [](const QStringList &) { return QString(); };
    environment.release = [] {};
    bool mayThrow = true;
    QString reason;
    QVector<DeviceState> states;
    environment.statusChanged = [&](const DeviceConnection &connection) {
        const DeviceStatus status = connection.status();
        states.append(status.state);
        if (status.state == DeviceState::Waiting)
            reason = status.reason;
        if (status.state == DeviceState::ReadingModel && std::exchange(mayThrow, false))
            throw std::runtime_error("out of ideas");
    };
    const auto connection = DeviceConnection::create(context.get_executor(), configurationFor(ied),
                                                     std::move(environment));
    connection->connect();
    // In this thread, so that what is told needs no lock.
    const auto runUntil = [&](DeviceState state) {
        const auto end = std::chrono::steady_clock::now() + Listener::patience;
        while (!states.contains(state) && std::chrono::steady_clock::now() < end)
            context.run_one_for(std::chrono::milliseconds(100));
        return states.contains(state);
    };
    QVERIFY(runUntil(DeviceState::Waiting));
    QCOMPARE(reason,
             QString("An internal error of the driver ended the association: out of ideas."));
    QVERIFY(runUntil(DeviceState::Online));
    connection->disconnect();
    connection->cutOff();
    context.run_for(std::chrono::seconds(1));
}

void tst_OddAssociations::aDrippingFileCanBeCancelled()
{
    SimulatedIed ied(station);
    ied.stop();
    ied.setRequestFilter([](const std::shared_ptr<mms::Association> &association,
                            std::uint32_t invokeId, mms::RequestService &request) {
        if (std::holds_alternative<mms::FileOpenRequest>(request)) {
            mms::FileOpenResponse response;
            response.frsmId = 1;
            response.attributes.size = 1000000;
            association->respond(invokeId, response);
            return true;
        }
        if (std::holds_alternative<mms::FileReadRequest>(request)) {
            mms::FileReadResponse response;
            response.data = {0x41};
            response.moreFollows = true;
            association->respond(invokeId, response);
            return true;
        }
        return false;
    });
    ied.start();
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QString error;
    OperationResult result = OperationSucceeded;
    std::thread caller([&] {
        QByteArray content;
        result = driver.getFile(1, "drops.cfg", content, error);
    });
    [&] { QTRY_VERIFY_WITH_TIMEOUT(requests(driver, 1, "fileRead") > 5, 20000); }();
    driver.cancelOperations(1);
    caller.join();
    QCOMPARE(result, OperationFailed);
    QCOMPARE(error, QString("The operation was cancelled."));
    QCOMPARE(driver.readVariable(1, "BAY1E1IO", {"GGIO1$ST$Ind1"}, error), OperationSucceeded);
}

void tst_OddAssociations::readingTheModelEndsWhenTheDeviceIsLeft()
{
    SimulatedIed ied(station, {}, "delay 500ms on getNameList\n");
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.outstandingCalls = 1;
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::ReadingModel));
    driver.disconnectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    // It was left in the middle of the names, and in an orderly way.
    QVERIFY(requests(driver, 1, "getNameList") < 4);
    QCOMPARE(requests(driver, 1, "conclude"), 1);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::ReadingModel));
    driver.cancelReading(1);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    QCOMPARE(driver.status(1).reason, QString("Reading the model was cancelled."));
}

QTEST_GUILESS_MAIN(tst_OddAssociations)
#include "tst_oddassociations.moc"
