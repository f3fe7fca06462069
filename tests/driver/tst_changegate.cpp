// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include "simulator/directoryfiles.h"

#include <remoteclient/drivercall.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <atomic>
#include <map>

using namespace drivertest;

namespace {

constexpr int patience = 20000;

const QString control = QStringLiteral("BAY1E1CTRL");
const QString io = QStringLiteral("BAY1E1IO");
const QString protection = QStringLiteral("BAY1E1PROT");
const QString reportBlock = QStringLiteral("LLN0$RP$urcbPositions01");

template <typename Value>
QByteArray encoded(const Value &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

QByteArray command(const QString &object, quint8 model)
{
    ControlBlock block;
    block.objectReference = object;
    block.controlValue = 1;
    block.orCat = 3;
    block.controlModel = model;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    block.toStream(stream);
    return bytes;
}

bool isSignOfLife(const mms::RequestService &request)
{
    return std::holds_alternative<mms::StatusRequest>(request) ||
           std::holds_alternative<mms::IdentifyRequest>(request);
}

/// A selection with normal security is a read.
bool isSelection(const mms::RequestService &request)
{
    const auto *read = std::get_if<mms::ReadRequest>(&request);
    const auto *places =
        read ? std::get_if<std::vector<mms::VariableAccess>>(&read->variables) : nullptr;
    return places && places->size() == 1 && mms::toText(places->front()).ends_with("$SBO");
}

bool isChange(const mms::RequestService &request)
{
    return std::holds_alternative<mms::WriteRequest>(request) ||
           std::holds_alternative<mms::DefineNamedVariableListRequest>(request) ||
           std::holds_alternative<mms::DeleteNamedVariableListRequest>(request) ||
           std::holds_alternative<mms::ObtainFileRequest>(request) ||
           std::holds_alternative<mms::FileRenameRequest>(request) ||
           std::holds_alternative<mms::FileDeleteRequest>(request) || isSelection(request);
}

QString nameOf(DriverOperation operation)
{
    switch (operation) {
#define DRIVER_OPERATION(name, effect)                                                             \
    case DriverOperation::name:                                                                    \
        return QStringLiteral(#name);
        DRIVER_OPERATIONS(DRIVER_OPERATION)
#undef DRIVER_OPERATION
    }
    return {};
}

} // namespace

/// Everything that changes something on a device passes the gate: each operation of the driver that
/// does, and what the driver does by itself.
class tst_ChangeGate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyOperationThatChangesSomethingIsTried();
    void readOnlyRefusesBeforeAnythingIsSent_data() { operations(); }
    void readOnlyRefusesBeforeAnythingIsSent();
    void intentIsToldBeforeTheDeviceIsAskedAndOutcomeAfterwards_data() { operations(); }
    void intentIsToldBeforeTheDeviceIsAskedAndOutcomeAfterwards();
    void aChangeThatIsCancelledInTheMiddleIsToldAsUnknown_data() { operations(); }
    void aChangeThatIsCancelledInTheMiddleIsToldAsUnknown();
    void whatTheDriverGivesBackIsToldAsItsOwn();
    void whatTheDriverRestoresIsToldAsItsOwn();
    void readOnlyForbidsNoGivingBack();

private:
    using Call = std::function<OperationResult(tst_ChangeGate &test)>;
    struct Operation
    {
        Call prepare; ///< may be empty
        Call call;
    };

    static const std::map<DriverOperation, Operation> &all();
    static void operations();
    /// The operation, with what goes before it done and everything told and counted forgotten.
    Operation prepared(int number);
    OperationResult enable();
    /// The outcome that belongs to the intent; waits for it.
    DeviceChange outcomeOf(const DeviceChange &intent);
    QString local(const QString &name) const { return m_local->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_local;
    std::unique_ptr<QTemporaryDir> m_remote;
    std::unique_ptr<SimulatedIed> m_ied;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    QString m_error;
    std::atomic<int> m_requests{0};    ///< without signs of life
    std::atomic<int> m_untold{0};      ///< changes that came before their intent was told
    std::atomic<bool> m_isLost{false}; ///< the next change is not answered
    std::atomic<IedDriver *> m_cancelled{nullptr}; ///< whose operations end then
};

const std::map<DriverOperation, tst_ChangeGate::Operation> &tst_ChangeGate::all()
{
    using Test = tst_ChangeGate;
    const QString selected = QStringLiteral("GGIO2$CO$SPCSO3");
    const QString direct = QStringLiteral("GGIO2$CO$SPCSO2");
    const auto select = [selected](Test &test) {
        return test.m_driver->selectObject(1, io, selected, command(selected, 2), test.m_error);
    };
    const auto createDataSet = [](Test &test) {
        return test.m_driver->createDataSet(1, io, "LLN0$gate", "GGIO1$ST$Ind1", 0, test.m_error);
    };
    const auto edit = [](Test &test) {
        return test.m_driver->selectEditSG(1, protection, 2, test.m_error);
    };
    static const std::map<DriverOperation, Operation> operations{
        {DriverOperation::writeVariable,
         {{},
          [](Test &test) {
              return test.m_driver->writeVariable(1, control, "QA1CSWI1$CF$Pos$sboTimeout",
                                                  encoded(QVariant(777U)), test.m_error);
          }}},
        {DriverOperation::writeValue,
         {{},
          [](Test &test) {
              return test.m_driver->writeValue(1, control, reportBlock, "IntgPd",
                                               encoded(qint32(4000)), test.m_error);
          }}},
        {DriverOperation::selectObject, {{}, select}},
        {DriverOperation::controlObject,
         {{},
          [direct](Test &test) {
              return test.m_driver->controlObject(1, io, direct, command(direct, 1), test.m_error);
          }}},
        {DriverOperation::cancelObject,
         {select,
          [selected](Test &test) {
              return test.m_driver->cancelObject(1, io, selected, command(selected, 2),
                                                 test.m_error);
          }}},
        {DriverOperation::createDataSet, {{}, createDataSet}},
        {DriverOperation::deleteDataSet,
         {createDataSet,
          [](Test &test) {
              return test.m_driver->deleteDataSet(1, io, "LLN0$gate", test.m_error);
          }}},
        {DriverOperation::deleteFile,
         {{}, [](Test &test) { return test.m_driver->deleteFile(1, "there.txt", test.m_error); }}},
        {DriverOperation::writeFile,
         {{},
          [](Test &test) {
              return test.m_driver->writeFile(1, test.local("here.txt"), "new.txt", test.m_error);
          }}},
        {DriverOperation::enableReportBlock, {{}, [](Test &test) { return test.enable(); }}},
        {DriverOperation::setSGCBValues,
         {edit,
          [](Test &test) {
              return test.m_driver->setSGCBValues(
                  1, protection, {{"BAY1E1PROT/PTOC1$SE$OpDlTmms$setVal", 4711}}, test.m_error);
          }}},
        {DriverOperation::selectEditSG, {{}, edit}},
        {DriverOperation::selectActiveSG,
         {{},
          [](Test &test) {
              return test.m_driver->selectActiveSG(1, protection, 2, test.m_error);
          }}},
    };
    return operations;
}

void tst_ChangeGate::operations()
{
    QTest::addColumn<int>("operation");
    for (const auto &each : all())
        QTest::newRow(qPrintable(nameOf(each.first))) << static_cast<int>(each.first);
}

void tst_ChangeGate::init()
{
    m_local = std::make_unique<QTemporaryDir>();
    m_remote = std::make_unique<QTemporaryDir>();
    for (const QString &path :
         {local(QStringLiteral("here.txt")), m_remote->filePath(QStringLiteral("there.txt"))}) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("content");
    }
    sim::FileOptions files;
    files.directory = m_remote->path().toStdString();
    const auto served = sim::DirectoryFiles::create(files);
    QVERIFY(served.ok());
    sim::DeviceOptions options;
    options.files = *served;
    m_listener = std::make_unique<Listener>();
    const auto filter = [this](const auto &, std::uint32_t, mms::RequestService &request) {
        m_requests += isSignOfLife(request) ? 0 : 1;
        if (!isChange(request))
            return false;
        m_untold += m_listener->intents().isEmpty() ? 1 : 0;
        if (!m_isLost.exchange(false))
            return false;
        m_cancelled.load()->cancelOperations(1);
        return true;
    };
    m_ied = std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE), QString(), std::string(),
                                           options, filter);
    m_driver = std::make_unique<ServedDriver>(m_listener->options());
    DeviceConfiguration configuration = configurationFor(*m_ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    m_driver->setDevice(configuration);
    m_driver->connectDevice(1);
    QVERIFY(m_listener->waitForState(1, DeviceState::Online));
    m_isLost = false;
    m_cancelled = m_driver.get();
}

void tst_ChangeGate::cleanup()
{
    m_driver.reset();
    m_ied.reset();
}

tst_ChangeGate::Operation tst_ChangeGate::prepared(int number)
{
    const Operation operation = all().at(static_cast<DriverOperation>(number));
    if (operation.prepare && operation.prepare(*this) != OperationSucceeded)
        qFatal("%s", qPrintable(m_error));
    // What the operation shows afterwards is read.
    int seen = -1;
    while (seen != m_requests) {
        seen = m_requests;
        QTest::qWait(200);
    }
    m_listener->clear();
    m_requests = 0;
    m_untold = 0;
    return operation;
}

OperationResult tst_ChangeGate::enable()
{
    ReportBlock block;
    block.trgOps = 0x64;
    block.optFlds[0] = 0x78;
    block.optFlds[1] = 0x80;
    return m_driver->enableReportBlock(1, control, reportBlock, QString(), QString(), block,
                                       m_error);
}

DeviceChange tst_ChangeGate::outcomeOf(const DeviceChange &intent)
{
    QDeadlineTimer deadline(patience);
    while (!deadline.hasExpired()) {
        const QList<DeviceChange> changes = m_listener->changes();
        for (const DeviceChange &each : changes) {
            if (each.id == intent.id)
                return each;
        }
        QTest::qWait(10);
    }
    return {};
}

void tst_ChangeGate::everyOperationThatChangesSomethingIsTried()
{
    QStringList changing;
#define DRIVER_OPERATION(name, effect)                                                             \
    if (DriverEffect::effect != DriverEffect::Reads)                                               \
        changing.append(QStringLiteral(#name));
    DRIVER_OPERATIONS(DRIVER_OPERATION)
#undef DRIVER_OPERATION
    QStringList tried;
    for (const auto &each : all())
        tried.append(nameOf(each.first));
    QCOMPARE(tried, changing);
}

void tst_ChangeGate::readOnlyRefusesBeforeAnythingIsSent()
{
    QFETCH(int, operation);
    const Operation tried = prepared(operation);
    m_driver->setReadOnly(true);
    QCOMPARE(tried.call(*this), OperationFailed);
    QVERIFY2(m_error.contains("read-only"), qPrintable(m_error));
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_requests.load(), 0);
    QCOMPARE(m_listener->intents().size(), 1);
    QCOMPARE(m_listener->changes().size(), 1);
    const DeviceChange outcome = outcomeOf(m_listener->intents().first());
    QCOMPARE(outcome.state, DeviceChange::State::Failed);
    QCOMPARE(outcome.error, m_error);
    QCOMPARE(outcome.number, 1);
}

void tst_ChangeGate::intentIsToldBeforeTheDeviceIsAskedAndOutcomeAfterwards()
{
    QFETCH(int, operation);
    const Operation tried = prepared(operation);
    QVERIFY2(tried.call(*this) == OperationSucceeded, qPrintable(m_error));
    QCOMPARE(m_untold.load(), 0);
    const QList<DeviceChange> intents = m_listener->intents();
    QVERIFY(!intents.isEmpty());
    for (const DeviceChange &intent : intents) {
        QCOMPARE(intent.state, DeviceChange::State::Begun);
        QVERIFY(!intent.isDriversOwn);
        QVERIFY(!intent.operation.isEmpty() && !intent.reference.isEmpty());
        const DeviceChange outcome = outcomeOf(intent);
        QCOMPARE(outcome.state, DeviceChange::State::Done);
        QCOMPARE(outcome.operation, intent.operation);
        QCOMPARE(outcome.error, QString());
    }
    QCOMPARE(m_listener->changes().size(), intents.size());
}

void tst_ChangeGate::aChangeThatIsCancelledInTheMiddleIsToldAsUnknown()
{
    QFETCH(int, operation);
    const Operation tried = prepared(operation);
    m_isLost = true;
    QCOMPARE(tried.call(*this), OperationFailed);
    QVERIFY(!m_isLost);
    QCOMPARE(m_untold.load(), 0);
    const QList<DeviceChange> intents = m_listener->intents();
    QVERIFY(!intents.isEmpty());
    for (const DeviceChange &intent : intents) {
        if (intent.isDriversOwn)
            continue;
        const DeviceChange outcome = outcomeOf(intent);
        QCOMPARE(outcome.state, DeviceChange::State::Unknown);
        QVERIFY(!outcome.error.isEmpty());
    }
}

void tst_ChangeGate::whatTheDriverGivesBackIsToldAsItsOwn()
{
    QVERIFY2(enable() == OperationSucceeded, qPrintable(m_error));
    QVERIFY2(m_driver->selectEditSG(1, protection, 2, m_error) == OperationSucceeded,
             qPrintable(m_error));
    m_listener->clear();
    m_driver->disconnectDevice(1);
    QVERIFY(m_listener->waitForState(1, DeviceState::Disconnected));
    QSet<QString> given;
    const QList<DeviceChange> intents = m_listener->intents();
    for (const DeviceChange &intent : intents) {
        QVERIFY(intent.isDriversOwn);
        const DeviceChange outcome = outcomeOf(intent);
        QCOMPARE(outcome.state, DeviceChange::State::Done);
        QVERIFY(outcome.isDriversOwn);
        given.insert(outcome.reference + '=' + outcome.newValue);
    }
    QCOMPARE(given, (QSet<QString>{control + '/' + reportBlock + "$RptEna=false",
                                   protection + "/LLN0$SP$SGCB$EditSG=0"}));
}

void tst_ChangeGate::whatTheDriverRestoresIsToldAsItsOwn()
{
    QVERIFY2(enable() == OperationSucceeded, qPrintable(m_error));
    m_listener->clear();
    m_ied->stop();
    QVERIFY(m_listener->waitForState(1, DeviceState::Waiting));
    m_ied->start();
    QTRY_VERIFY_WITH_TIMEOUT(!m_listener->intents().isEmpty(), patience);
    const DeviceChange intent = m_listener->intents().first();
    QCOMPARE(intent.operation, QStringLiteral("enableReportBlock"));
    QVERIFY(intent.isDriversOwn);
    const DeviceChange outcome = outcomeOf(intent);
    QCOMPARE(outcome.state, DeviceChange::State::Done);
    QVERIFY(outcome.isDriversOwn);
}

void tst_ChangeGate::readOnlyForbidsNoGivingBack()
{
    QVERIFY2(enable() == OperationSucceeded, qPrintable(m_error));
    m_listener->clear();
    m_driver->setReadOnly(true);
    m_driver->disconnectDevice(1);
    QVERIFY(m_listener->waitForState(1, DeviceState::Disconnected));
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().first().state, DeviceChange::State::Done);
}

QTEST_GUILESS_MAIN(tst_ChangeGate)
#include "tst_changegate.moc"
