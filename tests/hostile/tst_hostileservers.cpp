// SPDX-License-Identifier: Apache-2.0
// Servers that misbehave at each step of a conversation with the driver.
#include "hostile/hostilestation.h"

#include "support/memoryuse.h"

#include <devicemodel/physicaldevice.h>

#include <QtTest/QtTest>

#include <atomic>
#include <future>
#include <thread>

using namespace drivertest;
using namespace hostile;
using std::chrono::milliseconds;

Q_DECLARE_METATYPE(hostile::Conduct)

namespace {

constexpr milliseconds callTimeout{400};
constexpr milliseconds operationTimeout{1500};
constexpr milliseconds connectTimeout{1500};
/// Of somebody who waits on a busy machine for what the driver ends by itself.
constexpr std::chrono::seconds patience{20};
constexpr int honestNumber = 100;
/// What a flood may take; most of it is what sanitizers and allocators keep.
constexpr qint64 tolerableGrowth = 96 << 20;

DeviceConfiguration configurationOf(HostileDevice &device, int number)
{
    DeviceConfiguration configuration = configurationFor(device.ied(), number);
    configuration.port = device.line().port();
    configuration.connectTimeout = connectTimeout;
    configuration.callTimeout = callTimeout;
    configuration.operationTimeout = operationTimeout;
    configuration.pollInterval = milliseconds(0);
    return configuration;
}

struct Ending
{
    OperationResult result = OperationSucceeded;
    QString error;
};

/// What an operator does to bring about a step.
Ending perform(ServedDriver &driver, int number, HostileDevice &device, Step step)
{
    Ending ending;
    switch (step) {
    case Step::Read:
        ending.result =
            driver.readVariable(number, device.domain(), {device.item(0)}, ending.error);
        break;
    case Step::Write: {
        ReportBlock block;
        block.trgOps = 0x44;
        ending.result = driver.enableReportBlock(number, device.domain(), "LLN0$RP$urcb1", {}, {},
                                                 block, ending.error);
        break;
    }
    case Step::FileList: {
        QList<MMSFileEntry> entries;
        ending.result = driver.getFileDirectory(number, {}, {}, entries, ending.error);
        break;
    }
    case Step::FileOpen:
    case Step::FileRead: {
        QByteArray content;
        ending.result = driver.getFile(number, "record.dat", content, ending.error);
        break;
    }
    default:
        driver.disconnectDevice(number);
        break;
    }
    return ending;
}

/// An operator who goes on working with another device meanwhile.
class Neighbour
{
public:
    Neighbour(ServedDriver &driver, HostileDevice &device)
        : m_thread([this, &driver, &device] {
            while (!m_isOver) {
                QString error;
                const OperationResult result =
                    driver.readVariable(honestNumber, device.domain(), {device.item(1)}, error);
                ++(result == OperationSucceeded ? m_readings : m_failures);
                std::this_thread::sleep_for(milliseconds(20));
            }
        })
    {
    }
    ~Neighbour() { stop(); }
    Q_DISABLE_COPY(Neighbour)

    void stop()
    {
        m_isOver = true;
        if (m_thread.joinable())
            m_thread.join();
    }
    int readings() const { return m_readings; }
    int failures() const { return m_failures; }

private:
    std::atomic<bool> m_isOver{false};
    std::atomic<int> m_readings{0};
    std::atomic<int> m_failures{0};
    std::thread m_thread;
};

} // namespace

class tst_HostileServers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void everyStepEndsWithASentenceAndHarmsNobody_data();
    void everyStepEndsWithASentenceAndHarmsNobody();
    void aServerThatIsExchangedInTheMiddleIsNotChanged();
    void forgedNamesAreToldInASentenceOrShownAsTheyAre_data();
    void forgedNamesAreToldInASentenceOrShownAsTheyAre();
    void aListOfFilesWithoutAnEndIsGivenUp_data();
    void aListOfFilesWithoutAnEndIsGivenUp();

private:
    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<HostileDevice>> m_devices; ///< in the order of the steps
    std::unique_ptr<HostileDevice> m_honest;
};

void tst_HostileServers::initTestCase()
{
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        m_devices.push_back(
            std::make_unique<HostileDevice>(m_folder.path(), "H" + QByteArray::number(int(i + 1))));
    }
    m_honest = std::make_unique<HostileDevice>(m_folder.path(), "HONEST");
}

void tst_HostileServers::cleanup()
{
    for (const auto &device : m_devices)
        device->line().behave();
}

void tst_HostileServers::cleanupTestCase()
{
    m_devices.clear();
    m_honest.reset();
}

void tst_HostileServers::everyStepEndsWithASentenceAndHarmsNobody_data()
{
    QTest::addColumn<hostile::Conduct>("conduct");
    QTest::addColumn<bool>("isBearable");
    for (const ConductCase &each : conductCases())
        QTest::newRow(each.name.data()) << each.conduct << each.isBearable;
}

void tst_HostileServers::everyStepEndsWithASentenceAndHarmsNobody()
{
    QFETCH(hostile::Conduct, conduct);
    QFETCH(bool, isBearable);
    Listener listener;
    listener.keepHistory(false);
    ServedDriver driver(listener.options());
    DeviceConfiguration neighbour = configurationOf(*m_honest, honestNumber);
    // The neighbour is measured by whether it goes on, not by how fast it does.
    neighbour.callTimeout = milliseconds(10000);
    neighbour.operationTimeout = milliseconds(20000);
    neighbour.pollInterval = milliseconds(100);
    driver.setDevice(neighbour);
    driver.connectDevice(honestNumber);
    const auto numberOf = [](std::size_t index) { return static_cast<int>(index) + 1; };
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        driver.setDevice(configurationOf(*m_devices[i], numberOf(i)));
        if (stepCases[i].isOpening)
            m_devices[i]->line().misbehave(stepCases[i].step, conduct);
        else
            driver.connectDevice(numberOf(i));
    }
    QVERIFY(listener.waitForState(honestNumber, DeviceState::Online));
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        if (!stepCases[i].isOpening)
            QVERIFY(listener.waitForState(numberOf(i), DeviceState::Online));
    }
    const qint64 before = testsupport::memoryInUse();
    Neighbour busy(driver, *m_honest);

    std::vector<std::future<Ending>> endings(stepCases.size());
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        const int number = numberOf(i);
        if (stepCases[i].isOpening) {
            driver.connectDevice(number);
            continue;
        }
        m_devices[i]->line().misbehave(stepCases[i].step, conduct);
        endings[i] = std::async(std::launch::async, perform, std::ref(driver), number,
                                std::ref(*m_devices[i]), stepCases[i].step);
    }
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        const StepCase &each = stepCases[i];
        const auto says = [&each](const QString &text) {
            return QByteArray(each.name) + ": " + text.toUtf8();
        };
        HostileLine &line = m_devices[i]->line();
        if (each.isOpening) {
            QVERIFY2(listener.waitForStatus(numberOf(i),
                                            [isBearable](const DeviceStatus &status) {
                                                return (status.state == DeviceState::Waiting &&
                                                        !status.reason.isEmpty()) ||
                                                       (isBearable &&
                                                        status.state == DeviceState::Online);
                                            }),
                     says(driver.status(numberOf(i)).reason).constData());
            const DeviceStatus status = driver.status(numberOf(i));
            QVERIFY2(status.reason.isEmpty() || isSentence(status.reason),
                     says(status.reason).constData());
        } else {
            QVERIFY2(endings[i].wait_for(patience) == std::future_status::ready,
                     says("does not end").constData());
            const Ending ending = endings[i].get();
            QVERIFY2((ending.result == OperationSucceeded) == ending.error.isEmpty(),
                     says(ending.error).constData());
            QVERIFY2(ending.error.isEmpty() || isSentence(ending.error),
                     says(ending.error).constData());
            if (each.step == Step::Conclude)
                QVERIFY(listener.waitForState(numberOf(i), DeviceState::Disconnected));
            else
                QVERIFY2(isBearable || ending.result != OperationSucceeded,
                         says("succeeded").constData());
        }
        QVERIFY2(line.reached() > 0, says("was not reached").constData());
        const bool isFlood = conduct == Conduct::EndlessParts || conduct == Conduct::HugePdu;
        if (isFlood && each.step != Step::Conclude)
            QVERIFY2(line.floodedOctets() > 0, says("was not flooded").constData());
    }
    busy.stop();
    QVERIFY(busy.readings() > 0);
    QCOMPARE(busy.failures(), 0);
    const qint64 growth = testsupport::memoryInUse() - before;
    QVERIFY2(growth < tolerableGrowth, qPrintable(QString::number(growth)));

    // Everybody behaves: what was left out of a model because it came too late is read anew.
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        m_devices[i]->line().behave();
        if (isBearable)
            driver.disconnectDevice(numberOf(i));
    }
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        if (isBearable)
            QVERIFY(listener.waitForState(numberOf(i), DeviceState::Disconnected));
        driver.connectDevice(numberOf(i));
    }
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        const StepCase &each = stepCases[i];
        HostileDevice &device = *m_devices[i];
        const bool isOn = device.toggle(2);
        listener.clear();
        QString error;
        // An association that looks sound may still have to be found out and made anew.
        QTRY_VERIFY2_WITH_TIMEOUT(driver.readVariable(numberOf(i), device.domain(),
                                                      {device.item(2)},
                                                      error) == OperationSucceeded,
                                  qPrintable(QString::fromLatin1(each.name) + ": " + error), 30000);
        QVERIFY2(listener.waitForValue(device.reference(2), isOn), each.name);
    }
}

void tst_HostileServers::aServerThatIsExchangedInTheMiddleIsNotChanged()
{
    HostileDevice &first = *m_devices[0];
    HostileDevice &second = *m_devices[1];
    first.line().behave();
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationOf(first, 1);
    configuration.callTimeout = milliseconds(5000);
    configuration.operationTimeout = milliseconds(15000);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QByteArray model;
    QString error;
    QCOMPARE(driver.getIEDModel(1, model, error), OperationSucceeded);

    // Whoever answers at the address now is another device with the same manners.
    second.ied().stop();
    second.ied().options().identity.vendor = "Somebody else";
    second.ied().start();
    first.line().exchange(second.ied().port());
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.vendor == "Somebody else";
    }));
    listener.clear();
    QByteArray value;
    QDataStream stream(&value, QIODevice::WriteOnly);
    stream << QVariant(QStringLiteral("other"));
    for (const QString &domain : {first.domain(), second.domain()}) {
        QVERIFY(driver.writeVariable(1, domain, "LLN0$DC$NamPlt$configRev", value, error) !=
                OperationSucceeded);
        QCOMPARE(error,
                 QStringLiteral(
                     "This is not the device that the window was opened for: open it again."));
    }
    // Nothing is shown of the one under the names of the other.
    QVERIFY(driver.readVariable(1, first.domain(), {first.item(0)}, error) != OperationSucceeded);
    QVERIFY2(isSentence(error), qPrintable(error));
    QVERIFY(listener.values().keys().filter(first.domain()).isEmpty());
    first.line().exchange(first.ied().port());
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.vendor != "Somebody else";
    }));
    QCOMPARE(driver.readVariable(1, first.domain(), {first.item(0)}, error), OperationSucceeded);
}

void tst_HostileServers::forgedNamesAreToldInASentenceOrShownAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("for a terminal") << QByteArray("LLN0\x1b]0;owned\x07\x1b[2J\r\n");
    QTest::newRow("of a path") << QByteArray("../../../etc/passwd");
    QTest::newRow("of no length") << QByteArray();
    QTest::newRow("of 60,000 octets") << QByteArray(60000, 'N');
    QTest::newRow("with a zero in it") << QByteArray("LLN0\0ST", 7);
    QTest::newRow("of steps only") << QByteArray("$$$$$$$$$$$$$$$$");
    QTest::newRow("of no text") << QByteArray("\xff\xfe\x80LLN0");
    QTest::newRow("of a table's formula") << QByteArray("=cmd|' /C calc'!A0,\"\n");
    QTest::newRow("of rich text") << QByteArray("<img src=http://127.0.0.1/x>");
}

void tst_HostileServers::forgedNamesAreToldInASentenceOrShownAsTheyAre()
{
    QFETCH(QByteArray, name);
    HostileDevice &device = *m_devices[2];
    device.line().behave();
    device.ied().stop();
    device.ied().setRequestFilter([name](const std::shared_ptr<mms::Association> &association,
                                         std::uint32_t invokeId, mms::RequestService &request) {
        if (!std::holds_alternative<mms::GetNameListRequest>(request))
            return false;
        const std::string forged = name.toStdString();
        association->respond(
            invokeId, mms::GetNameListResponse{
                          {"LD", forged, forged + "$ST$Ind1", "LLN0$ST$" + forged, forged}, false});
        return true;
    });
    device.ied().start();
    device.line().exchange(device.ied().port());

    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationOf(device, 1);
    configuration.callTimeout = milliseconds(5000);
    configuration.operationTimeout = milliseconds(15000);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online ||
               (status.state == DeviceState::Waiting && !status.reason.isEmpty());
    }));
    const DeviceStatus status = driver.status(1);
    if (status.state == DeviceState::Online) {
        QByteArray bytes;
        QString error;
        QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
        PhysicalDevice model;
        QDataStream stream(bytes);
        model.fromStream(stream);
        QCOMPARE(stream.status(), QDataStream::Ok);
        QVERIFY(stream.atEnd());
    }
    QVERIFY2(status.reason.isEmpty() || isSentence(status.reason), qPrintable(status.reason));

    // With its own names again it is read again.
    driver.disconnectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Disconnected));
    device.ied().stop();
    device.ied().setRequestFilter({});
    device.ied().start();
    device.line().exchange(device.ied().port());
    driver.connectDevice(1);
    QString error;
    QTRY_VERIFY2_WITH_TIMEOUT(driver.readVariable(1, device.domain(), {device.item(0)}, error) ==
                                  OperationSucceeded,
                              qPrintable(error), 30000);
}

void tst_HostileServers::aListOfFilesWithoutAnEndIsGivenUp_data()
{
    QTest::addColumn<int>("namesInAPage");
    QTest::addColumn<bool>("areNew");
    QTest::newRow("always the same names") << 100 << false;
    QTest::newRow("always new names") << 100 << true;
    QTest::newRow("pages without a name") << 0 << false;
}

void tst_HostileServers::aListOfFilesWithoutAnEndIsGivenUp()
{
    QFETCH(int, namesInAPage);
    QFETCH(bool, areNew);
    HostileDevice &device = *m_devices[3];
    device.line().behave();
    device.ied().stop();
    const auto pages = std::make_shared<std::atomic<int>>(0);
    device.ied().setRequestFilter([=](const std::shared_ptr<mms::Association> &association,
                                      std::uint32_t invokeId, mms::RequestService &request) {
        if (!std::holds_alternative<mms::FileDirectoryRequest>(request))
            return false;
        const int page = ++*pages;
        mms::FileDirectoryResponse answer;
        for (int i = 0; i < namesInAPage; ++i) {
            const int number = areNew ? page * namesInAPage + i : i;
            answer.entries.push_back({{"record" + std::to_string(number)}, {}});
        }
        answer.moreFollows = true;
        association->respond(invokeId, std::move(answer));
        return true;
    });
    device.ied().start();
    device.line().exchange(device.ied().port());

    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationOf(device, 1);
    configuration.callTimeout = milliseconds(3000);
    configuration.operationTimeout = milliseconds(6000);
    QCOMPARE(driver.setDevice(configuration), QStringList());
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    const qint64 before = testsupport::memoryInUse();
    QList<MMSFileEntry> entries;
    QString error;
    QVERIFY(driver.getFileDirectory(1, {}, {}, entries, error) != OperationSucceeded);
    QVERIFY2(isSentence(error), qPrintable(error));
    QVERIFY(*pages > 1);
    const qint64 growth = testsupport::memoryInUse() - before;
    QVERIFY2(growth < tolerableGrowth, qPrintable(QString::number(growth)));

    // Nobody asks on for what nobody waits for, and other things go on.
    QTRY_VERIFY2_WITH_TIMEOUT(driver.readVariable(1, device.domain(), {device.item(0)}, error) ==
                                  OperationSucceeded,
                              qPrintable(error), 30000);
    const int asked = *pages;
    QCOMPARE(driver.readVariable(1, device.domain(), {device.item(1)}, error), OperationSucceeded);
    QCOMPARE(int(*pages), asked);
    device.ied().stop();
    device.ied().setRequestFilter({});
    device.ied().start();
}

QTEST_GUILESS_MAIN(tst_HostileServers)
#include "tst_hostileservers.moc"
