// SPDX-License-Identifier: Apache-2.0
// The workbench with devices that are reached over MMS on the loopback interface.
#include "workbench/embeddedconsole.h"
#include "workbench/fileimport.h"
#include "workbench/simulateddevice.h"
#include "workbench/workbench.h"

#include "driver/model/sclimport.h"

#include <remoteclient/driverserviceregistry.h>
#include <remoteclient/records.h>

#include <QtCore/QDataStream>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

namespace {

const QString logicalDevice = QStringLiteral("FEEDER2CTRL");
const QString controlModel = QStringLiteral("XCBR1$CF$Pos$ctlModel");

QByteArray encoded(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_12);
    stream << value;
    return bytes;
}

} // namespace

class tst_ConnectedDevices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFirstStartIsConnectedToASimulatedBayWhoseValuesMove();
    void theListTellsStateIdentityRoundTripAndCounts();
    void aStoppedSimulationStaysInTheListAndStartsAgain();
    void aSimulatedDeviceComesBackAtTheNextStart();
    void aDeviceThatWasLeftIsNotConnectedAtTheNextStart();
    void anAddedDeviceIsConnectedAndRemembered();
    void aDeviceThatCannotBeReachedSaysWhy();
    void aConnectedDeviceWhoseFileCannotBeReadSaysSo();
    void faultsOfAConfigurationChangeNothing();
    void anEditedDeviceIsReachedAtItsNewAddress();
    void aDeviceOfAFileCanGetAnAddress();
    void readOnlyRefusesChangesInTheDriverAndIsRemembered();
    void whatIsWrittenIsInTheJournalWithItsOldAndNewValue();
    void everyKindOfChangeIsInTheJournalWithItsResult();
    void theConsoleTellsWhereADeviceIsReached();

private:
    void start();
    static DriverService &service()
    {
        return *DriverServiceRegistry::find(EmbeddedConsole::address);
    }
    const DeviceListModel::Device &device(int number)
    {
        const DeviceListModel::Device *found = m_workbench->devices().device(number);
        if (!found)
            qFatal("no device %d", number);
        return *found;
    }
    QString cell(int column) const
    {
        return m_workbench->devices().index(0, column).data().toString();
    }
    bool isOnline(int number)
    {
        const DeviceListModel::Device *found = m_workbench->devices().device(number);
        return found && found->isUsable();
    }
    /// A simulated device that the workbench knows nothing of.
    std::unique_ptr<SimulatedDevice> simulate() const;
    DeviceRecord recordFor(const SimulatedDevice &simulated) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench> m_workbench;
};

void tst_ConnectedDevices::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    start();
}

void tst_ConnectedDevices::cleanup()
{
    m_workbench.reset();
}

void tst_ConnectedDevices::start()
{
    m_workbench.reset();
    Workbench::Options options;
    options.settingsFile = m_folder->filePath(QStringLiteral("workbench.ini"));
    options.journalFile = m_folder->filePath(QStringLiteral("journal/changes.csv"));
    options.cacheFolder = m_folder->filePath(QStringLiteral("cache"));
    options.import = importFromFile;
    m_workbench = std::make_unique<Workbench>(options);
}

std::unique_ptr<SimulatedDevice> tst_ConnectedDevices::simulate() const
{
    const scl::ReadResult file = SclImport::readFile(QStringLiteral(":/workbench/unfinished.icd"));
    QString error;
    const scl::Ied *ied = SclImport::chooseIed(*file.document, {}, error);
    auto device = SimulatedDevice::start(*ied, false, 0, error);
    if (!device)
        qFatal("%s", qPrintable(error));
    return device;
}

DeviceRecord tst_ConnectedDevices::recordFor(const SimulatedDevice &simulated) const
{
    DeviceRecord record;
    record.configuration.name = QStringLiteral("Feeder");
    record.configuration.host = QStringLiteral("127.0.0.1");
    record.configuration.port = simulated.port();
    return record;
}

void tst_ConnectedDevices::theFirstStartIsConnectedToASimulatedBayWhoseValuesMove()
{
    const QAbstractItemModelTester tester(&m_workbench->devices(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_workbench->restoreDevices();
    QTRY_VERIFY_WITH_TIMEOUT(isOnline(1), 20000);
    QVERIFY(device(1).record.simulated);
    const std::uint64_t published = device(1).status.counters.publishedValues;
    QTRY_VERIFY_WITH_TIMEOUT(device(1).status.counters.publishedValues > published, 20000);
    QByteArray model;
    QString error;
    QCOMPARE(service().getIEDModel(1, model, error), OperationSucceeded);
    QVERIFY(!model.isEmpty());
}

void tst_ConnectedDevices::theListTellsStateIdentityRoundTripAndCounts()
{
    m_workbench->simulate(QStringLiteral(":/workbench/unfinished.icd"));
    QTRY_VERIFY(isOnline(1));
    QCOMPARE(cell(DeviceListModel::StateColumn), QStringLiteral("Connected"));
    QTRY_VERIFY(!cell(DeviceListModel::IdentityColumn).isEmpty());
    QTRY_VERIFY(cell(DeviceListModel::RoundTripColumn).endsWith(QLatin1String(" ms")));
    QTRY_VERIFY(cell(DeviceListModel::ValuesColumn) != QLatin1String("0"));
    const QString counts = m_workbench->devices()
                               .index(0, DeviceListModel::ValuesColumn)
                               .data(Qt::ToolTipRole)
                               .toString();
    QVERIFY2(counts.contains(QStringLiteral("Connections: 1")), qPrintable(counts));
}

void tst_ConnectedDevices::aStoppedSimulationStaysInTheListAndStartsAgain()
{
    m_workbench->simulate(QStringLiteral(":/workbench/unfinished.icd"));
    QTRY_VERIFY(isOnline(1));
    const int port = device(1).record.configuration.port;
    m_workbench->stopSimulation(1);
    QCOMPARE(cell(DeviceListModel::StateColumn), QStringLiteral("Simulation stopped"));
    QVERIFY(!isOnline(1));
    m_workbench->startSimulation(1);
    QTRY_VERIFY(isOnline(1));
    QCOMPARE(device(1).record.configuration.port, port);
    QCOMPARE(m_workbench->devices().rowCount(), 1);
}

void tst_ConnectedDevices::aSimulatedDeviceComesBackAtTheNextStart()
{
    m_workbench->simulate(QStringLiteral(":/workbench/unfinished.icd"));
    QTRY_VERIFY(isOnline(1));
    start();
    m_workbench->restoreDevices();
    QCOMPARE(m_workbench->devices().rowCount(), 1);
    QTRY_VERIFY(isOnline(1));
    QVERIFY(device(1).record.simulated);
}

void tst_ConnectedDevices::aDeviceThatWasLeftIsNotConnectedAtTheNextStart()
{
    const auto simulated = simulate();
    QVERIFY(m_workbench->put(recordFor(*simulated)).isEmpty());
    QTRY_VERIFY(isOnline(1));
    m_workbench->disconnectDevice(1);
    QTRY_COMPARE(device(1).status.state, DeviceState::Disconnected);
    QCOMPARE(cell(DeviceListModel::StateColumn), QStringLiteral("Not connected"));

    start();
    m_workbench->restoreDevices();
    QCOMPARE(m_workbench->devices().rowCount(), 1);
    QVERIFY(!device(1).isWanted());
    m_workbench->connectDevice(1);
    QTRY_VERIFY(isOnline(1));
    start();
    m_workbench->restoreDevices();
    QTRY_VERIFY(isOnline(1));
}

void tst_ConnectedDevices::anAddedDeviceIsConnectedAndRemembered()
{
    const auto simulated = simulate();
    QSignalSpy opened(m_workbench.get(), &Workbench::deviceOpened);
    DeviceRecord record = recordFor(*simulated);
    record.configuration.pollInterval = std::chrono::milliseconds(700);
    QVERIFY(m_workbench->put(record).isEmpty());
    QCOMPARE(opened.size(), 1);
    QTRY_VERIFY(isOnline(1));
    QCOMPARE(cell(DeviceListModel::NameColumn), QStringLiteral("Feeder"));
    QCOMPARE(cell(DeviceListModel::SourceColumn),
             QStringLiteral("127.0.0.1:%1").arg(simulated->port()));
    const DeviceStore store(m_folder->filePath(QStringLiteral("workbench.ini")));
    QCOMPARE(store.devices().size(), 1);
    record.configuration.number = 1;
    QVERIFY(store.devices()[0].configuration == record.configuration);
}

void tst_ConnectedDevices::aDeviceThatCannotBeReachedSaysWhy()
{
    auto simulated = simulate();
    const DeviceRecord record = recordFor(*simulated);
    simulated.reset();
    QVERIFY(m_workbench->put(record).isEmpty());
    QTRY_COMPARE(device(1).status.state, DeviceState::Waiting);
    const QString state = cell(DeviceListModel::StateColumn);
    QVERIFY2(state.startsWith(QLatin1String("Trying again: ")), qPrintable(state));
    QVERIFY2(state.contains(QStringLiteral("refused"), Qt::CaseInsensitive), qPrintable(state));
    QVERIFY(!isOnline(1));
}

void tst_ConnectedDevices::aConnectedDeviceWhoseFileCannotBeReadSaysSo()
{
    const auto simulated = simulate();
    QFile file(m_folder->filePath(QStringLiteral("damaged.scd")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<SCL") == 4);
    file.close();
    DeviceRecord record = recordFor(*simulated);
    record.configuration.sclFile = file.fileName();
    QVERIFY(m_workbench->put(record).isEmpty());
    QTRY_VERIFY(isOnline(1));
    const QString state = cell(DeviceListModel::StateColumn);
    QVERIFY2(state.startsWith(QLatin1String("Connected: ")) && state.endsWith(QLatin1Char('.')),
             qPrintable(state));
}

void tst_ConnectedDevices::faultsOfAConfigurationChangeNothing()
{
    DeviceRecord record;
    record.configuration.port = 0;
    const QStringList faults = m_workbench->put(record);
    QVERIFY2(faults.contains(QStringLiteral("The device needs a name.")),
             qPrintable(faults.join('\n')));
    QVERIFY(faults.size() >= 3);
    QCOMPARE(m_workbench->devices().rowCount(), 0);
    QVERIFY(DeviceStore(m_folder->filePath(QStringLiteral("workbench.ini"))).isFirstStart());
}

void tst_ConnectedDevices::anEditedDeviceIsReachedAtItsNewAddress()
{
    auto first = simulate();
    const auto second = simulate();
    QVERIFY(m_workbench->put(recordFor(*first)).isEmpty());
    QTRY_VERIFY(isOnline(1));
    DeviceRecord edited = device(1).record;
    edited.configuration.name = QStringLiteral("Other");
    edited.configuration.port = second->port();
    QVERIFY(m_workbench->put(edited).isEmpty());
    first.reset();
    QTRY_VERIFY(isOnline(1));
    QCOMPARE(m_workbench->devices().rowCount(), 1);
    QCOMPARE(cell(DeviceListModel::NameColumn), QStringLiteral("Other"));
    QCOMPARE(device(1).record.configuration.port, second->port());
}

void tst_ConnectedDevices::aDeviceOfAFileCanGetAnAddress()
{
    m_workbench->open(QStringLiteral(":/workbench/unfinished.icd"));
    QTRY_VERIFY(isOnline(1));
    QCOMPARE(cell(DeviceListModel::StateColumn), QStringLiteral("Offline model"));
    const auto simulated = simulate();
    DeviceRecord edited = device(1).record;
    edited.configuration.host = QStringLiteral("127.0.0.1");
    edited.configuration.port = simulated->port();
    QVERIFY(m_workbench->put(edited).isEmpty());
    QTRY_VERIFY(isOnline(1));
    QCOMPARE(cell(DeviceListModel::StateColumn), QStringLiteral("Connected"));
}

void tst_ConnectedDevices::readOnlyRefusesChangesInTheDriverAndIsRemembered()
{
    const auto simulated = simulate();
    QVERIFY(m_workbench->put(recordFor(*simulated)).isEmpty());
    QTRY_VERIFY(isOnline(1));
    QSignalSpy changed(m_workbench.get(), &Workbench::readOnlyChanged);
    m_workbench->setReadOnly(true);
    QCOMPARE(changed.size(), 1);
    QString error;
    QVERIFY(service().writeVariable(1, logicalDevice, controlModel, encoded(4), error) !=
            OperationSucceeded);
    QVERIFY2(error.contains(QStringLiteral("read-only")), qPrintable(error));

    start();
    QVERIFY(m_workbench->isReadOnly());
    m_workbench->setReadOnly(false);
    start();
    QVERIFY(!m_workbench->isReadOnly());
}

void tst_ConnectedDevices::whatIsWrittenIsInTheJournalWithItsOldAndNewValue()
{
    const auto simulated = simulate();
    QVERIFY(m_workbench->put(recordFor(*simulated)).isEmpty());
    QTRY_VERIFY(isOnline(1));
    QString error;
    QCOMPARE(service().writeVariable(1, logicalDevice, controlModel, encoded(4), error),
             OperationSucceeded);
    ChangeJournal &changes = m_workbench->changes();
    QTRY_COMPARE(changes.rowCount(), 1);
    const auto text = [&changes](int column) { return changes.index(0, column).data().toString(); };
    QCOMPARE(text(ChangeJournal::DeviceColumn), QStringLiteral("Feeder (1)"));
    QCOMPARE(text(ChangeJournal::OperationColumn), QStringLiteral("writeVariable"));
    QCOMPARE(text(ChangeJournal::ReferenceColumn), logicalDevice + '/' + controlModel);
    QCOMPARE(text(ChangeJournal::OldValueColumn), QStringLiteral("status-only (0)"));
    QCOMPARE(text(ChangeJournal::NewValueColumn), QStringLiteral("sbo-with-enhanced-security (4)"));
    QCOMPARE(text(ChangeJournal::ResultColumn), QStringLiteral("OK"));
    QFile file(changes.file());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY2(content.contains(",1,Feeder,writeVariable,FEEDER2CTRL/XCBR1$CF$Pos$ctlModel,0,4,OK,"),
             content.constData());
}

void tst_ConnectedDevices::everyKindOfChangeIsInTheJournalWithItsResult()
{
    m_workbench->openDemonstration();
    QTRY_VERIFY_WITH_TIMEOUT(isOnline(1), 20000);
    DriverService &driver = service();
    ControlBlock command;
    command.objectReference = QStringLiteral("GGIO2$CO$SPCSO2");
    command.controlModel = 1;
    command.controlValue = 1;
    command.check = 1;
    const auto operate = [&](QString &error) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        command.toStream(stream);
        return driver.controlObject(1, QStringLiteral("BAY1E1IO"), command.objectReference, bytes,
                                    error);
    };
    const QString localFile = m_folder->filePath(QStringLiteral("sent.txt"));
    QFile sent(localFile);
    QVERIFY(sent.open(QIODevice::WriteOnly) && sent.write("hello") == 5);
    sent.close();

    QString error;
    QCOMPARE(operate(error), OperationSucceeded);
    command.test = 1;
    QVERIFY(operate(error) != OperationSucceeded);
    const QString refusal = error;
    QCOMPARE(driver.selectActiveSG(1, QStringLiteral("BAY1E1PROT"), 2, error), OperationSucceeded);
    QCOMPARE(driver.createDataSet(1, QStringLiteral("BAY1E1IO"), QStringLiteral("LLN0$made"),
                                  QStringLiteral("BAY1E1IO/GGIO1$ST$Ind1"), 0, error),
             OperationSucceeded);
    ReportBlock block;
    const QString report = QStringLiteral("LLN0$BR$brcbPositions01");
    QCOMPARE(driver.getBRCBValues(1, QStringLiteral("BAY1E1CTRL"), report, block, error),
             OperationSucceeded);
    block.rptEna = true;
    QVERIFY2(driver.enableReportBlock(1, QStringLiteral("BAY1E1CTRL"), report, block.rptId,
                                      block.datSet, block, error) == OperationSucceeded,
             qPrintable(error));
    LocalFileSource source(localFile);
    QVERIFY2(driver.writeFile(1, source, QStringLiteral("sent.txt"), error) == OperationSucceeded,
             qPrintable(error));
    QCOMPARE(driver.deleteFile(1, QStringLiteral("sent.txt"), error), OperationSucceeded);

    const ChangeJournal &changes = m_workbench->changes();
    QStringList operations;
    const auto done = [&] {
        operations.clear();
        for (int row = 0; row < changes.rowCount(); ++row) {
            operations << changes.index(row, ChangeJournal::OperationColumn).data().toString();
        }
        return operations.contains(QStringLiteral("deleteFile"));
    };
    QTRY_VERIFY(done());
    operations.removeDuplicates();
    QCOMPARE(operations,
             (QStringList{QStringLiteral("controlObject"), QStringLiteral("selectActiveSG"),
                          QStringLiteral("createDataSet"), QStringLiteral("enableReportBlock"),
                          QStringLiteral("writeFile"), QStringLiteral("deleteFile")}));
    QCOMPARE(changes.index(0, ChangeJournal::ResultColumn).data().toString(), QStringLiteral("OK"));
    QCOMPARE(changes.index(1, ChangeJournal::ResultColumn).data().toString(), refusal);
    QVERIFY(!changes.index(1, ChangeJournal::CauseColumn).data().toString().isEmpty());
}

void tst_ConnectedDevices::theConsoleTellsWhereADeviceIsReached()
{
    const auto simulated = simulate();
    QVERIFY(m_workbench->put(recordFor(*simulated)).isEmpty());
    QString location;
    QCOMPARE(m_workbench->context().console->getLoc(EmbeddedConsole::driverNo, 1, location),
             OperationSucceeded);
    QCOMPARE(location, QStringLiteral("127.0.0.1:%1").arg(simulated->port()));
}

QTEST_MAIN(tst_ConnectedDevices)
#include "tst_connecteddevices.moc"
