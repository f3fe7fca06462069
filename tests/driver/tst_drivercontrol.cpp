// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include "driver/core/controlorder.h"
#include "mms/datatext.h"

#include "acsi/control.h"

#include <QtCore/QDeadlineTimer>
#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using namespace drivertest;

namespace {

constexpr const char *bay = "BAY1E1CTRL";
constexpr const char *io = "BAY1E1IO";

/// The members of Oper, SBOw and Cancel as they stand in the simulated bay.
enum Member { CtlVal, Origin, CtlNum, Time, Test, Check };

struct Command
{
    QString device = io;
    QString object;
    quint8 model = 0;
    double value = 0;
    quint8 orCat = 3;
    quint8 check = 0;
    quint8 test = 0;

    QByteArray bytes() const
    {
        ControlBlock block;
        block.objectReference = object;
        block.controlValue = value;
        block.orCat = orCat;
        block.check = check;
        block.test = test;
        block.controlModel = model;
        return written(block);
    }

    /// What a tool sends that leaves the command to the selection.
    QByteArray emptyBytes() const
    {
        ControlBlock block;
        block.objectReference = object;
        block.controlModel = model;
        return written(block);
    }

private:
    static QByteArray written(const ControlBlock &block)
    {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        block.toStream(stream);
        return bytes;
    }
};

mms::Data member(const mms::Data &command, Member which)
{
    return command.children()[which];
}

mms::Data octets(const QByteArray &bytes)
{
    return mms::Data::octetString(mms::Bytes(reinterpret_cast<const std::uint8_t *>(bytes.data()),
                                             static_cast<std::size_t>(bytes.size())));
}

mms::Data position(const char *bits)
{
    return mms::Data::bitString(mms::BitString::fromText(bits));
}

} // namespace

class tst_DriverControl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void aDirectCommandHasTheFormOfTheLiveType_data();
    void aDirectCommandHasTheFormOfTheLiveType();
    void originTimeTestAndChecksAreSentAsGiven();
    void commandsAreNumberedPerObject();
    void aCommandAndItsOutcomeAreJournalled();
    void theStatusIsShownAfterACommand();
    void anObjectWithNormalSecurityIsSelectedByARead();
    void anObjectThatIsNotSelectedIsRefusedWithTheCause();
    void anEmptyOperateRepeatsTheSelection();
    void anEmptyOperateWithoutSelectionIsRefusedBeforeAnythingIsSent();
    void aSelectionServesOneCommand();
    void anObjectForManyCommandsStaysSelected();
    void aCommandOtherThanTheSelectedOneIsRefused();
    void aRefusedSelectEndsTheSelectionBefore();
    void aSelectionEndsWithItsTime();
    void aSelectionEndsWithTheAssociation();
    void cancelRepeatsTheSelection();
    void anObjectWithNormalSecurityIsCancelled();
    void aRefusalCarriesTheAdditionalCause_data();
    void aRefusalCarriesTheAdditionalCause();
    void theTerminationOfACommandIsAwaited();
    void aCommandWithoutTerminationEndsInTime();
    void aCommandThatEndsWithoutSuccessIsTold();
    void whatCannotBeSentIsRefused_data();
    void whatCannotBeSentIsRefused();
    void aCommandForAnotherControlModelIsRefused();
    void aRequestThatCannotBeReadIsRefused();
    void anObjectForStatusOnlyIsNotOperated();
    void aSilentDeviceEndsTheCommandInTime();
    void aCommandThatNobodyWaitsForIsJournalled();
    void anAssociationLostInACommandIsTold();
    void aReadOnlyDriverOperatesNothing();

private:
    std::unique_ptr<ServedDriver> connected(const SimulatedIed &ied, Listener &listener,
                                            std::chrono::milliseconds callTimeout);
    /// Lets the interlocking of the bay release all switches, or none.
    void release(bool isReleased);
    OperationResult select(const Command &command);
    OperationResult operate(const Command &command);
    OperationResult operateSelected(const Command &command);

    std::unique_ptr<SimulatedIed> m_ied;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    QString m_error;
};

void tst_DriverControl::initTestCase()
{
    m_ied = std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE));
}

void tst_DriverControl::init()
{
    m_driver.reset();
    m_listener = std::make_unique<Listener>();
    m_driver = connected(*m_ied, *m_listener, std::chrono::seconds(5));
    m_ied->set(bay, "QA1XCBR1$ST$Pos$stVal", position("01"));
    m_ied->set(bay, "QA1CSWI1$ST$Pos$stVal", position("01"));
    m_ied->set(io, "GGIO2$ST$DPCSO1$stVal", position("01"));
    release(true);
    m_error.clear();
}

std::unique_ptr<ServedDriver> tst_DriverControl::connected(const SimulatedIed &ied,
                                                           Listener &listener,
                                                           std::chrono::milliseconds callTimeout)
{
    auto driver = std::make_unique<ServedDriver>(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    configuration.callTimeout = callTimeout;
    configuration.operationTimeout = std::min(configuration.operationTimeout, 9 * callTimeout);
    configuration.originatorIdentification = "desk 4";
    const QStringList faults = driver->setDevice(configuration);
    if (!faults.isEmpty())
        qFatal("%s", qPrintable(faults.join(' ')));
    driver->connectDevice(1);
    if (!listener.waitForState(1, DeviceState::Online))
        qFatal("the simulated IED is not online");
    return driver;
}

void tst_DriverControl::release(bool isReleased)
{
    for (const char *node : {"QA1CILO1", "QB1CILO1", "QC1CILO1"})
        m_ied->set(bay, std::string(node) + "$ST$EnaCls$stVal", mms::Data::boolean(isReleased));
}

OperationResult tst_DriverControl::select(const Command &command)
{
    return m_driver->selectObject(1, command.device, command.object, command.bytes(), m_error);
}

OperationResult tst_DriverControl::operate(const Command &command)
{
    return m_driver->controlObject(1, command.device, command.object, command.bytes(), m_error);
}

OperationResult tst_DriverControl::operateSelected(const Command &command)
{
    return m_driver->controlObject(1, command.device, command.object, command.emptyBytes(),
                                   m_error);
}

void tst_DriverControl::aDirectCommandHasTheFormOfTheLiveType_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("object");
    QTest::addColumn<int>("model");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("boolean") << io << "GGIO2$CO$SPCSO2" << 1 << 1.0 << "true";
    QTest::newRow("double point") << io << "GGIO2$CO$DPCSO1" << 3 << 1.0 << "true";
    QTest::newRow("integer") << io << "GGIO2$CO$ISCSO1" << 1 << 17.0 << "17";
    QTest::newRow("integer step") << bay << "ATCC1$CO$TapPos" << 3 << 12.0 << "12";
    QTest::newRow("analogue value") << io << "GGIO2$CO$AnOut1" << 1 << 12.5 << "{12.5}";
    QTest::newRow("enumeration") << bay << "LLN0$CO$Mod" << 1 << 1.0 << "1";
}

void tst_DriverControl::aDirectCommandHasTheFormOfTheLiveType()
{
    QFETCH(QString, device);
    QFETCH(QString, object);
    QFETCH(int, model);
    QFETCH(double, value);
    QFETCH(QString, expected);
    Command command;
    command.device = device;
    command.object = object;
    command.model = static_cast<quint8>(model);
    command.value = value;
    QVERIFY2(operate(command) == OperationSucceeded, qPrintable(m_error));
    const mms::Data sent = m_ied->value(device.toStdString(), object.toStdString() + "$Oper");
    QCOMPARE(sent.size(), std::size_t(6));
    QCOMPARE(QString::fromStdString(mms::toText(member(sent, CtlVal))), expected);
}

void tst_DriverControl::originTimeTestAndChecksAreSentAsGiven()
{
    Command command;
    command.object = "GGIO2$CO$ISCSO1";
    command.model = 1;
    const auto oper = [this] { return m_ied->value(io, "GGIO2$CO$ISCSO1$Oper"); };
    const auto state = [this] { return m_ied->value(io, "GGIO2$ST$ISCSO1$stVal"); };
    for (quint8 check = 0; check <= 3; ++check) {
        command.check = check;
        command.orCat = static_cast<quint8>(1 + check);
        command.value = 30 + check;
        const QDateTime before = QDateTime::currentDateTimeUtc();
        QVERIFY2(operate(command) == OperationSucceeded, qPrintable(m_error));
        const mms::Data sent = oper();
        QVERIFY(member(sent, Origin).children()[0].toInteger() == command.orCat);
        QCOMPARE(member(sent, Origin).children()[1], octets("desk 4"));
        const auto time = member(sent, Time).toUtcTime();
        QVERIFY(time.has_value());
        QVERIFY(time->seconds >= before.toSecsSinceEpoch());
        QVERIFY(time->seconds <= QDateTime::currentSecsSinceEpoch());
        QCOMPARE(member(sent, Test), mms::Data::boolean(false));
        QCOMPARE(member(sent, Check).testBit(0), (check & 2) != 0); // synchrocheck
        QCOMPARE(member(sent, Check).testBit(1), (check & 1) != 0); // interlock check
        QTRY_COMPARE(state(), mms::Data::integer(30 + check));
    }
    // A device that is not being tested refuses a test, but it has seen the flag.
    command.test = 1;
    QCOMPARE(operate(command), OperationFailed);
    QCOMPARE(member(oper(), Test), mms::Data::boolean(true));
}

void tst_DriverControl::commandsAreNumberedPerObject()
{
    Command first;
    first.object = "GGIO2$CO$ISCSO1";
    first.model = 1;
    Command second;
    second.object = "GGIO2$CO$SPCSO2";
    second.model = 1;
    const auto number = [this](const char *item) {
        return member(m_ied->value(io, item), CtlNum).toUnsigned().value_or(0);
    };
    const auto operateUntilDone = [&](double value) {
        first.value = value;
        QCOMPARE(operate(first), OperationSucceeded);
        QTRY_COMPARE(m_ied->value(io, "GGIO2$ST$ISCSO1$stVal"),
                     mms::Data::integer(static_cast<int>(value)));
    };
    for (const unsigned expected : {1U, 2U}) {
        operateUntilDone(50 + expected);
        QCOMPARE(number("GGIO2$CO$ISCSO1$Oper"), std::uint64_t(expected));
    }
    QCOMPARE(operate(second), OperationSucceeded);
    QCOMPARE(number("GGIO2$CO$SPCSO2$Oper"), std::uint64_t(1));
    operateUntilDone(53);
    QCOMPARE(number("GGIO2$CO$ISCSO1$Oper"), std::uint64_t(3));
}

void tst_DriverControl::aCommandAndItsOutcomeAreJournalled()
{
    m_ied->set(io, "GGIO2$ST$SPCSO2$stVal", mms::Data::boolean(false));
    QCOMPARE(m_driver->readVariable(1, io, {"GGIO2$ST$SPCSO2"}, m_error), OperationSucceeded);
    Command command;
    command.object = "GGIO2$CO$SPCSO2";
    command.model = 1;
    command.value = 1;
    command.check = 1;
    QCOMPARE(operate(command), OperationSucceeded);
    QTRY_COMPARE(m_ied->value(io, "GGIO2$ST$SPCSO2$stVal"), mms::Data::boolean(true));
    command.test = 1;
    QCOMPARE(operate(command), OperationFailed);
    QVERIFY(m_listener->waitForChanges(2));
    const DeviceChange done = m_listener->changes().at(0);
    QCOMPARE(done.number, 1);
    QCOMPARE(done.operation, QString("controlObject"));
    QCOMPARE(done.reference, QString("BAY1E1IO/GGIO2$CO$SPCSO2"));
    QCOMPARE(done.oldValue, QString("false"));
    QCOMPARE(done.newValue, QString("1, category 3, interlock check"));
    QCOMPARE(done.error, QString());
    QCOMPARE(done.additionalCause, QString());
    const DeviceChange refused = m_listener->changes().at(1);
    QCOMPARE(refused.newValue, QString("1, category 3, interlock check, test"));
    QCOMPARE(refused.error, m_error);
    QCOMPARE(refused.additionalCause, QString("blocked by the mode of the logical node"));
}

void tst_DriverControl::theStatusIsShownAfterACommand()
{
    Command command;
    command.object = "GGIO2$CO$DPCSO1";
    command.model = 3;
    command.value = 1;
    m_listener->clear();
    QVERIFY2(operate(command) == OperationSucceeded, qPrintable(m_error));
    QVERIFY(m_listener->waitForValue("BAY1E1IO/GGIO2$ST$DPCSO1$stVal", 2));
}

void tst_DriverControl::anObjectWithNormalSecurityIsSelectedByARead()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO3";
    command.model = 2;
    const mms::Data before = m_ied->value(io, "GGIO2$CO$SPCSO3$Oper");
    QVERIFY2(m_driver->selectObject(1, io, command.object, command.emptyBytes(), m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(m_ied->value(io, "GGIO2$CO$SPCSO3$Oper"), before);
    command.value = 1;
    QVERIFY2(operate(command) == OperationSucceeded, qPrintable(m_error));
    QVERIFY(m_listener->waitForChanges(2));
    QCOMPARE(m_listener->changes().at(0).operation, QString("selectObject"));
    QCOMPARE(m_listener->changes().at(0).newValue, QString());
    // The select and its command are one, so they have one number.
    const mms::Data sent = m_ied->value(io, "GGIO2$CO$SPCSO3$Oper");
    QVERIFY(member(sent, CtlNum).toUnsigned() == 1U);
    QCOMPARE(member(sent, CtlVal), mms::Data::boolean(true));
}

void tst_DriverControl::anObjectThatIsNotSelectedIsRefusedWithTheCause()
{
    Command command;
    command.object = "GGIO2$CO$ISCSO2";
    command.model = 2;
    command.value = 4;
    QCOMPARE(operate(command), OperationFailed);
    QVERIFY2(m_error.contains("the object is not selected"), qPrintable(m_error));
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().at(0).additionalCause, QString("the object is not selected"));
}

void tst_DriverControl::anEmptyOperateRepeatsTheSelection()
{
    Command command;
    command.device = bay;
    command.object = "QA1CSWI1$CO$Pos";
    command.model = 4;
    command.value = 1;
    command.orCat = 2;
    command.check = 3;
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    const mms::Data selected = m_ied->value(bay, "QA1CSWI1$CO$Pos$SBOw");
    QVERIFY2(operateSelected(command) == OperationSucceeded, qPrintable(m_error));
    const mms::Data sent = m_ied->value(bay, "QA1CSWI1$CO$Pos$Oper");
    for (const Member each : {CtlVal, Origin, CtlNum, Test, Check})
        QCOMPARE(member(sent, each), member(selected, each));
    QCOMPARE(member(sent, CtlVal), mms::Data::boolean(true));
    QCOMPARE(m_ied->value(bay, "QA1CSWI1$ST$Pos$stVal"), position("10"));
    QVERIFY(m_listener->waitForChanges(2));
    QCOMPARE(m_listener->changes().at(1).newValue,
             QString("1, category 2, interlock check, synchrocheck"));
}

void tst_DriverControl::anEmptyOperateWithoutSelectionIsRefusedBeforeAnythingIsSent()
{
    Command command;
    command.device = bay;
    command.object = "QA1CSWI1$CO$Pos";
    command.model = 4;
    const auto mentions = [this] {
        int count = 0;
        const QVector<TraceLine> lines = traceOf(*m_driver, 1);
        for (const TraceLine &line : lines)
            count += line.text.contains("QA1CSWI1$CO$Pos") ||
                     line.text.contains("QA1CSWI1$CF$Pos$ctlModel");
        return count;
    };
    const int before = mentions();
    QCOMPARE(operateSelected(command), OperationFailed);
    QCOMPARE(m_error, QString("Select the object first"));
    m_error.clear();
    QCOMPARE(m_driver->cancelObject(1, bay, command.object, command.emptyBytes(), m_error),
             OperationFailed);
    QCOMPARE(m_error, QString("Select the object first"));
    command.value = 1;
    QCOMPARE(operate(command), OperationFailed);
    QCOMPARE(m_error, QString("Select the object first"));
    QCOMPARE(mentions(), before);
    QCOMPARE(m_ied->value(bay, "QA1CSWI1$ST$Pos$stVal"), position("01"));
    // The same look finds the command when there is one.
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    QVERIFY(mentions() > before);
}

void tst_DriverControl::aSelectionServesOneCommand()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO5";
    command.model = 4;
    command.value = 1;
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    QVERIFY2(operateSelected(command) == OperationSucceeded, qPrintable(m_error));
    QCOMPARE(operateSelected(command), OperationFailed);
    QCOMPARE(m_error, QString("Select the object first"));
}

void tst_DriverControl::anObjectForManyCommandsStaysSelected()
{
    m_ied->set(io, "GGIO2$CF$SPCSO5$sboClass", mms::Data::integer(1));
    QCOMPARE(m_driver->readVariable(1, io, {"GGIO2$CF$SPCSO5$sboClass"}, m_error),
             OperationSucceeded);
    Command command;
    command.object = "GGIO2$CO$SPCSO5";
    command.model = 4;
    command.value = 1;
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    QVERIFY2(operateSelected(command) == OperationSucceeded, qPrintable(m_error));
    QVERIFY2(operateSelected(command) == OperationSucceeded, qPrintable(m_error));
    QVERIFY2(m_driver->cancelObject(1, io, command.object, command.emptyBytes(), m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    m_ied->set(io, "GGIO2$CF$SPCSO5$sboClass", mms::Data::integer(0));
}

void tst_DriverControl::aCommandOtherThanTheSelectedOneIsRefused()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO5";
    command.model = 4;
    command.value = 1;
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    Command other = command;
    other.value = 0;
    QCOMPARE(operate(other), OperationFailed);
    QCOMPARE(m_error, QString("The command is not the one that was selected."));
    QVERIFY2(operate(command) == OperationSucceeded, qPrintable(m_error));
}

void tst_DriverControl::aRefusedSelectEndsTheSelectionBefore()
{
    Command command;
    command.device = bay;
    command.object = "QA1CSWI1$CO$Pos";
    command.model = 4;
    command.value = 1;
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    Command other = command;
    other.value = 0;
    QCOMPARE(select(other), OperationFailed);
    QVERIFY2(m_error.contains("the position has been reached already"), qPrintable(m_error));
    QCOMPARE(operateSelected(command), OperationFailed);
    QCOMPARE(m_error, QString("Select the object first"));
    QCOMPARE(m_ied->value(bay, "QA1CSWI1$ST$Pos$stVal"), position("01"));
}

void tst_DriverControl::aSelectionEndsWithItsTime()
{
    m_ied->set(io, "GGIO2$CF$SPCSO5$sboTimeout", mms::Data::unsignedInteger(20));
    Command command;
    command.object = "GGIO2$CO$SPCSO5";
    command.model = 4;
    command.value = 1;
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    const QDeadlineTimer end(20);
    QTRY_VERIFY(end.hasExpired());
    QCOMPARE(operateSelected(command), OperationFailed);
    QCOMPARE(m_error, QString("Select the object first"));
    m_ied->set(io, "GGIO2$CF$SPCSO5$sboTimeout", mms::Data::unsignedInteger(30000));
}

void tst_DriverControl::aSelectionEndsWithTheAssociation()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO5";
    command.model = 4;
    command.value = 1;
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    m_ied->stop();
    QVERIFY(m_listener->waitForStatus(
        1, [](const DeviceStatus &status) { return status.state != DeviceState::Online; }));
    m_ied->start();
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.counters.connections == 2;
    }));
    QCOMPARE(operateSelected(command), OperationFailed);
    QCOMPARE(m_error, QString("Select the object first"));
}

void tst_DriverControl::cancelRepeatsTheSelection()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO5";
    command.model = 4;
    command.value = 1;
    QVERIFY2(select(command) == OperationSucceeded, qPrintable(m_error));
    const mms::Data selected = m_ied->value(io, "GGIO2$CO$SPCSO5$SBOw");
    QVERIFY2(m_driver->cancelObject(1, io, command.object, command.emptyBytes(), m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    const mms::Data sent = m_ied->value(io, "GGIO2$CO$SPCSO5$Cancel");
    for (const Member each : {CtlVal, Origin, CtlNum, Test})
        QCOMPARE(member(sent, each), member(selected, each));
    QCOMPARE(m_ied->value(io, "GGIO2$ST$SPCSO5$stSeld"), mms::Data::boolean(false));
    QCOMPARE(operateSelected(command), OperationFailed);
    QCOMPARE(m_error, QString("Select the object first"));
}

void tst_DriverControl::anObjectWithNormalSecurityIsCancelled()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO3";
    command.model = 2;
    QVERIFY2(m_driver->selectObject(1, io, command.object, command.emptyBytes(), m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    command.orCat = 2;
    QVERIFY2(m_driver->cancelObject(1, io, command.object, command.bytes(), m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    const mms::Data sent = m_ied->value(io, "GGIO2$CO$SPCSO3$Cancel");
    QVERIFY(member(sent, CtlNum).toUnsigned() == 1U);
    QVERIFY(member(sent, Origin).children()[0].toInteger() == 2);
    QCOMPARE(operate(command), OperationFailed);
    QVERIFY2(m_error.contains("the object is not selected"), qPrintable(m_error));
}

void tst_DriverControl::aRefusalCarriesTheAdditionalCause_data()
{
    QTest::addColumn<bool>("isLocal");
    QTest::addColumn<QString>("cause");

    QTest::newRow("interlocking") << false << "blocked by interlocking";
    QTest::newRow("local") << true
                           << "blocked because the switching authority lies elsewhere (local or "
                              "remote)";
}

void tst_DriverControl::aRefusalCarriesTheAdditionalCause()
{
    QFETCH(bool, isLocal);
    QFETCH(QString, cause);
    release(isLocal);
    m_ied->set(bay, "QA1CSWI1$ST$Loc$stVal", mms::Data::boolean(isLocal));
    Command command;
    command.device = bay;
    command.object = "QA1CSWI1$CO$Pos";
    command.model = 4;
    command.value = 1;
    command.check = 1;
    const OperationResult result = select(command);
    m_ied->set(bay, "QA1CSWI1$ST$Loc$stVal", mms::Data::boolean(false));
    QCOMPARE(result, OperationFailed);
    QVERIFY2(m_error.contains("BAY1E1CTRL/QA1CSWI1.Pos") && m_error.contains(cause),
             qPrintable(m_error));
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().at(0).additionalCause, cause);
    QCOMPARE(m_listener->changes().at(0).error, m_error);
}

void tst_DriverControl::theTerminationOfACommandIsAwaited()
{
    Command command;
    command.object = "GGIO2$CO$DPCSO1";
    command.model = 3;
    command.value = 1;
    QVERIFY2(operate(command) == OperationSucceeded, qPrintable(m_error));
    // The switch has not only begun to move.
    QCOMPARE(m_ied->value(io, "GGIO2$ST$DPCSO1$stVal"), position("10"));
}

void tst_DriverControl::aCommandWithoutTerminationEndsInTime()
{
    SimulatedIed ied(QStringLiteral(STATION_FILE), {}, "drop on informationReport");
    Listener listener;
    const auto driver = connected(ied, listener, std::chrono::seconds(5));
    ied.set(io, "GGIO2$CF$SPCSO4$operTimeout", mms::Data::unsignedInteger(100));
    Command command;
    command.object = "GGIO2$CO$SPCSO4";
    command.model = 3;
    command.value = 1;
    QCOMPARE(driver->controlObject(1, io, command.object, command.bytes(), m_error),
             OperationFailed);
    QVERIFY2(m_error.contains("the device accepted the command, but has not told within 2.1 s"),
             qPrintable(m_error));
}

void tst_DriverControl::aCommandThatEndsWithoutSuccessIsTold()
{
    // A tap changer takes longer than that.
    m_ied->set(bay, "ATCC1$CF$TapPos$operTimeout", mms::Data::unsignedInteger(50));
    Command command;
    command.device = bay;
    command.object = "ATCC1$CO$TapPos";
    command.model = 3;
    command.value = 9;
    const OperationResult result = operate(command);
    m_ied->set(bay, "ATCC1$CF$TapPos$operTimeout", mms::Data::unsignedInteger(10000));
    QCOMPARE(result, OperationFailed);
    QVERIFY2(m_error.contains("the command ended without success: the time for it is over"),
             qPrintable(m_error));
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().at(0).additionalCause, QString("the time for it is over"));
}

void tst_DriverControl::whatCannotBeSentIsRefused_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("check");
    QTest::addColumn<int>("test");
    QTest::addColumn<QString>("sentence");

    const QString number = "GGIO2$CO$ISCSO1";
    QTest::newRow("not a number") << number << std::nan("") << 0 << 0
                                  << "The control value is no finite number.";
    QTest::newRow("infinite") << number << std::numeric_limits<double>::infinity() << 0 << 0
                              << "The control value is no finite number.";
    QTest::newRow("fraction") << number << 1.5 << 0 << 0 << "1.5 does not fit";
    QTest::newRow("too large") << number << 3e9 << 0 << 0 << "does not fit";
    QTest::newRow("no boolean") << "GGIO2$CO$SPCSO2" << 2.0 << 0 << 0 << "2 does not fit";
    QTest::newRow("no float") << "GGIO2$CO$AnOut1" << 1e300 << 0 << 0 << "does not fit";
    QTest::newRow("checks") << number << 1.0 << 4 << 0 << "4 is no code of the check conditions.";
    QTest::newRow("test") << number << 1.0 << 0 << 2 << "The test flag is 0 or 1, not 2.";
}

void tst_DriverControl::whatCannotBeSentIsRefused()
{
    QFETCH(QString, object);
    QFETCH(double, value);
    QFETCH(int, check);
    QFETCH(int, test);
    QFETCH(QString, sentence);
    Command command;
    command.object = object;
    command.model = 1;
    command.value = value;
    command.check = static_cast<quint8>(check);
    command.test = static_cast<quint8>(test);
    const mms::Data before = m_ied->value(io, object.toStdString() + "$Oper");
    QCOMPARE(operate(command), OperationFailed);
    QVERIFY2(m_error.contains(sentence), qPrintable(m_error));
    QCOMPARE(m_ied->value(io, object.toStdString() + "$Oper"), before);
}

void tst_DriverControl::aCommandForAnotherControlModelIsRefused()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO2";
    for (const quint8 model : {quint8(0), quint8(2), quint8(3)}) {
        command.model = model;
        const mms::Data before = m_ied->value(io, "GGIO2$CO$SPCSO2$Oper");
        QCOMPARE(operateSelected(command), OperationFailed);
        QVERIFY2(m_error.contains("has the control model 1, but the command was made for " +
                                  QString::number(model)),
                 qPrintable(m_error));
        QCOMPARE(m_ied->value(io, "GGIO2$CO$SPCSO2$Oper"), before);
    }
}

void tst_DriverControl::aRequestThatCannotBeReadIsRefused()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO2";
    command.model = 1;
    const QByteArray bytes = command.bytes();
    for (const QByteArray &broken :
         {QByteArray(), bytes.left(bytes.size() - 1), bytes + '\0', QByteArray(30, '\xFF')}) {
        QCOMPARE(m_driver->controlObject(1, io, command.object, broken, m_error), OperationFailed);
        QCOMPARE(m_error, QString("The control request cannot be read."));
    }
    QCOMPARE(m_driver->controlObject(1, io, "GGIO2$CO$SPCSO3", bytes, m_error), OperationFailed);
    QCOMPARE(m_error,
             QString("The control request is for GGIO2$CO$SPCSO2, not for GGIO2$CO$SPCSO3."));
    command.object = "GGIO2$CO$Gone";
    QCOMPARE(operate(command), OperationFailed);
    QVERIFY2(m_error.contains("GGIO2.Gone"), qPrintable(m_error));
    command.object = "GGIO2$ST";
    QCOMPARE(operate(command), OperationFailed);
    QVERIFY(!m_error.isEmpty());
}

void tst_DriverControl::anObjectForStatusOnlyIsNotOperated()
{
    Command command;
    command.object = "GGIO2$CO$SPCSO1";
    QCOMPARE(operate(command), OperationFailed);
    QVERIFY2(m_error.contains("cannot be operated"), qPrintable(m_error));
    QCOMPARE(select(command), OperationFailed);
    QVERIFY2(m_error.contains("knows no selection"), qPrintable(m_error));
}

void tst_DriverControl::aSilentDeviceEndsTheCommandInTime()
{
    SimulatedIed ied(QStringLiteral(STATION_FILE), {}, "ignore on write");
    Listener listener;
    const auto driver = connected(ied, listener, std::chrono::milliseconds(500));
    Command command;
    command.object = "GGIO2$CO$SPCSO2";
    command.model = 1;
    QCOMPARE(driver->controlObject(1, io, command.object, command.bytes(), m_error),
             OperationFailed);
    // The call ended by its own time-out; otherwise the operation would have by the operation's.
    QVERIFY2(m_error.contains("Oper got no answer"), qPrintable(m_error));
    QVERIFY(listener.waitForChanges(1));
    QCOMPARE(listener.changes().at(0).error, m_error);
}

void tst_DriverControl::aCommandThatNobodyWaitsForIsJournalled()
{
    SimulatedIed ied(QStringLiteral(STATION_FILE), {}, "delay 150ms on read\nignore on write");
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.callTimeout = std::chrono::milliseconds(300);
    configuration.operationTimeout = std::chrono::milliseconds(300);
    QCOMPARE(driver.setDevice(configuration), QStringList());
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    Command command;
    command.object = "GGIO2$CO$SPCSO2";
    command.model = 1;
    QCOMPARE(driver.controlObject(1, io, command.object, command.bytes(), m_error),
             OperationFailed);
    QCOMPARE(m_error,
             QString("Device 1 (IED1) has not finished the operation within 0.3 seconds."));
    QVERIFY(listener.waitForChanges(1));
    QCOMPARE(listener.changes().at(0).reference, QString("BAY1E1IO/GGIO2$CO$SPCSO2"));
    QVERIFY2(!listener.changes().at(0).error.isEmpty(), qPrintable(listener.changes().at(0).error));
}

void tst_DriverControl::anAssociationLostInACommandIsTold()
{
    SimulatedIed ied(QStringLiteral(STATION_FILE), {}, "reset 0 on write times 1");
    Listener listener;
    const auto driver = connected(ied, listener, std::chrono::seconds(5));
    Command command;
    command.object = "GGIO2$CO$SPCSO2";
    command.model = 1;
    QCOMPARE(driver->controlObject(1, io, command.object, command.bytes(), m_error),
             OperationFailed);
    QVERIFY2(m_error.contains("BAY1E1IO/GGIO2.SPCSO2: Oper got no answer"), qPrintable(m_error));
    QVERIFY(listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.counters.connections == 2;
    }));
    QVERIFY2(driver->controlObject(1, io, command.object, command.bytes(), m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
}

void tst_DriverControl::aReadOnlyDriverOperatesNothing()
{
    m_driver->setReadOnly(true);
    Command command;
    command.object = "GGIO2$CO$SPCSO2";
    command.model = 1;
    command.value = 1;
    const mms::Data before = m_ied->value(io, "GGIO2$CO$SPCSO2$Oper");
    QCOMPARE(select(command), OperationFailed);
    QCOMPARE(operate(command), OperationFailed);
    QVERIFY2(m_error.contains("read-only"), qPrintable(m_error));
    QCOMPARE(m_driver->cancelObject(1, io, command.object, command.bytes(), m_error),
             OperationFailed);
    QCOMPARE(m_ied->value(io, "GGIO2$CO$SPCSO2$Oper"), before);
}

QTEST_GUILESS_MAIN(tst_DriverControl)
#include "tst_drivercontrol.moc"
