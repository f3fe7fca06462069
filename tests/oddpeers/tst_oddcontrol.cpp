// SPDX-License-Identifier: Apache-2.0
#include "simulatedstation.h"

#include "mms/datatext.h"

#include <remoteclient/driverserviceregistry.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <atomic>
#include <future>

using namespace drivertest;
using std::chrono::milliseconds;

namespace {

constexpr const char *bay = "BAY1E1CTRL";
constexpr const char *io = "BAY1E1IO";
constexpr int patience = 20000;
const QString unknown = QStringLiteral("It is not known whether the command was carried out; look "
                                       "at the position.");

/// The members of Oper, SBOw and Cancel as they stand in the simulated bay.
enum Member { CtlVal, Origin, CtlNum, Time, Test, Check };

struct Order
{
    QString device = io;
    QString object;
    quint8 model = 0;
    double value = 1;
    quint8 orCat = 3;
    quint8 check = 0;
    quint8 test = 0;
};

QByteArray written(const ControlBlock &block)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    block.toStream(stream);
    return bytes;
}

QByteArray bytesOf(const Order &order)
{
    ControlBlock block;
    block.objectReference = order.object;
    block.controlValue = order.value;
    block.orCat = order.orCat;
    block.check = order.check;
    block.test = order.test;
    block.controlModel = order.model;
    return written(block);
}

QByteArray emptyBytesOf(const Order &order)
{
    ControlBlock block;
    block.objectReference = order.object;
    block.controlModel = order.model;
    return written(block);
}

struct Answer
{
    OperationResult result = OperationFailed;
    QString error;

    explicit operator bool() const { return result == OperationSucceeded; }
};

/// A simulated bay and a driver that is connected to it.
struct Peer
{
    struct Manners
    {
        QString file = QStringLiteral(STATION_FILE);
        std::string faults;
        milliseconds callTimeout{5000};
        milliseconds operationTimeout{10000};
        sim::Device::RequestFilter filter;
        sim::Oddities oddities;
    };

    explicit Peer(const Manners &manners)
        : ied(manners.file, {}, manners.faults, optionsOf(manners))
        , driver(std::make_shared<ServedDriver>(listener.options()))
    {
        if (manners.filter) {
            ied.stop();
            ied.setRequestFilter(manners.filter);
            ied.start();
        }
        DeviceConfiguration configuration = configurationFor(ied);
        configuration.pollInterval = milliseconds(0);
        configuration.callTimeout = manners.callTimeout;
        configuration.operationTimeout = manners.operationTimeout;
        driver->setDevice(configuration);
        driver->connectDevice(1);
        if (!listener.waitForState(1, DeviceState::Online))
            qFatal("the simulated IED is not online");
    }

    static sim::DeviceOptions optionsOf(const Manners &manners)
    {
        sim::DeviceOptions options;
        options.oddities = manners.oddities;
        return options;
    }

    Answer select(const Order &order)
    {
        Answer answer;
        answer.result =
            driver->selectObject(1, order.device, order.object, bytesOf(order), answer.error);
        return answer;
    }
    Answer operate(const Order &order)
    {
        Answer answer;
        answer.result =
            driver->controlObject(1, order.device, order.object, bytesOf(order), answer.error);
        return answer;
    }
    Answer operateSelected(const Order &order)
    {
        Answer answer;
        answer.result =
            driver->controlObject(1, order.device, order.object, emptyBytesOf(order), answer.error);
        return answer;
    }
    Answer cancel(const Order &order)
    {
        Answer answer;
        answer.result =
            driver->cancelObject(1, order.device, order.object, emptyBytesOf(order), answer.error);
        return answer;
    }
    std::future<Answer> startToOperate(const Order &order)
    {
        return std::async(std::launch::async, [this, order] { return operate(order); });
    }

    mms::Data sent(const Order &order, const char *service)
    {
        return ied.value(order.device.toStdString(), order.object.toStdString() + '$' + service);
    }
    std::uint64_t sentNumber(const Order &order, const char *service)
    {
        const mms::Data command = sent(order, service);
        return command.size() > CtlNum ? command.children()[CtlNum].toUnsigned().value_or(0) : 0;
    }

    SimulatedIed ied;
    Listener listener;
    std::shared_ptr<ServedDriver> driver;
};

/// The station with other texts in places.
class ChangedStation
{
public:
    ChangedStation()
    {
        QFile file(QStringLiteral(STATION_FILE));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("no station");
        m_text = file.readAll();
    }

    ChangedStation &addTo(const QByteArray &typeId, const QByteArray &element)
    {
        const int start = m_text.indexOf("id=\"" + typeId + '"');
        const int object = m_text.indexOf("</DOType>", start);
        const int attribute = m_text.indexOf("</DAType>", start);
        if (start < 0 || attribute < 0)
            qFatal("no type %s", typeId.constData());
        m_text.insert(object < 0 ? attribute : std::min(object, attribute), element);
        return *this;
    }
    ChangedStation &addType(const QByteArray &element)
    {
        m_text.insert(m_text.indexOf("</DataTypeTemplates>"), element);
        return *this;
    }
    ChangedStation &remove(const QByteArray &element)
    {
        if (!m_text.contains(element))
            qFatal("no %s", element.constData());
        m_text.replace(element, "");
        return *this;
    }

    QString file()
    {
        const QString path = m_folder.filePath(QStringLiteral("changed.scd"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(m_text) < 0)
            qFatal("no file");
        return path;
    }

private:
    QTemporaryDir m_folder;
    QByteArray m_text;
};

/// An object that is operated directly with enhanced security and can be cancelled.
class CancellableStation : public ChangedStation
{
public:
    CancellableStation()
    {
        addTo("SPC_directEnhanced",
              R"(<DA name="Cancel" fc="CO" bType="Struct" type="Bool_Cancel"/>)");
    }
};

Order directEnhanced(double value)
{
    Order order;
    order.object = "GGIO2$CO$SPCSO4";
    order.model = 3;
    order.value = value;
    return order;
}

Order direct(double value)
{
    Order order;
    order.object = "GGIO2$CO$SPCSO2";
    order.model = 1;
    order.value = value;
    return order;
}

Order selected(double value)
{
    Order order;
    order.object = "GGIO2$CO$SPCSO5";
    order.model = 4;
    order.value = value;
    return order;
}

bool isWrite(const mms::RequestService &request)
{
    return std::holds_alternative<mms::WriteRequest>(request);
}

bool isRead(const mms::RequestService &request)
{
    return std::holds_alternative<mms::ReadRequest>(request);
}

} // namespace

/// Devices that are slow, strict or silent about commands, or word their refusals otherwise.
class tst_OddControl : public QObject
{
    Q_OBJECT

private slots:
    void aCancelMeansTheCommandThatRuns();
    void aCommandWithoutAnswerCanBeCancelled();
    void aRefusedSelectCanBeCancelled();
    void aCheckThatTheDeviceHasNoPlaceForIsRefused();
    void aSetPointFollowsTheScaleOfTheDevice();
    void aSetPointWithoutAScaleIsRefused();
    void aSelectionBelongsToItsWindow();
    void aRefusedCancelEndsNoCommand_data();
    void aRefusedCancelEndsNoCommand();
    void theCauseOfARefusalIsFound_data();
    void theCauseOfARefusalIsFound();
    void aTerminationThatComesLateIsTold();
    void anAcceptanceThatComesLateIsTold();
    void anAssociationLostInACommandLeavesItUnknown();
    void aRefusalByTheServiceIsARefusal_data();
    void aRefusalByTheServiceIsARefusal();
    void readOnlyIsLookedAtRightBeforeACommand();
    void readOnlyForbidsNoCancelOfACommandThatRuns();
    void aCommandIsDoneAlsoWhenItsStatusCannotBeRead();
    void theSettingsOfTheObjectAreReadWithEachCommand();
    void theOldValueOfTheJournalIsThatOfTheDevice();
    void refusalsBeforeTheDeviceAreJournalled();
    void categoriesEndWithEight();
};

void tst_OddControl::aCancelMeansTheCommandThatRuns()
{
    CancellableStation station;
    Peer::Manners manners;
    manners.file = station.file();
    manners.oddities.strictControl = true;
    manners.oddities.slowControl = true;
    Peer peer(manners);
    auto running = peer.startToOperate(directEnhanced(1));
    QTRY_COMPARE_WITH_TIMEOUT(peer.sentNumber(directEnhanced(1), "Oper"), 1U, patience);

    const Answer refused = peer.operate(directEnhanced(0));
    QCOMPARE(refused.result, OperationFailed);
    QVERIFY2(refused.error.contains("a command is being executed already"),
             qPrintable(refused.error));
    const Answer cancelled = peer.cancel(directEnhanced(0));
    QVERIFY2(cancelled, qPrintable(cancelled.error));
    QCOMPARE(peer.sentNumber(directEnhanced(1), "Cancel"), 1U);
    QCOMPARE(peer.sent(directEnhanced(1), "Cancel").children()[CtlVal], mms::Data::boolean(true));
    const Answer ended = running.get();
    QCOMPARE(ended.result, OperationFailed);
    QVERIFY2(ended.error.contains("ended by a cancel"), qPrintable(ended.error));
}

void tst_OddControl::aCommandWithoutAnswerCanBeCancelled()
{
    Peer::Manners manners;
    manners.faults = "drop on write nth 2 times 1";
    manners.callTimeout = milliseconds(700);
    manners.oddities.strictControl = true;
    manners.oddities.slowControl = true;
    Peer peer(manners);
    QVERIFY(peer.select(selected(1)));
    const Answer lost = peer.operateSelected(selected(1));
    QCOMPARE(lost.result, OperationFailed);
    QVERIFY2(lost.error.endsWith(unknown), qPrintable(lost.error));
    QVERIFY(peer.listener.waitForChanges(2));
    QCOMPARE(peer.listener.changes().at(1).error, lost.error);
    QVERIFY(peer.listener.waitForStatus(
        1, [](const DeviceStatus &status) { return status.reason.endsWith(unknown); }));

    const Answer cancelled = peer.cancel(selected(1));
    QVERIFY2(cancelled, qPrintable(cancelled.error));
    QCOMPARE(peer.sentNumber(selected(1), "Cancel"), peer.sentNumber(selected(1), "Oper"));
    // The device tells of the end of the command though nobody waits for it.
    QTRY_VERIFY_WITH_TIMEOUT(
        [&] {
            const QList<DeviceChange> changes = peer.listener.changes();
            return std::any_of(changes.cbegin(), changes.cend(), [](const DeviceChange &each) {
                return each.newValue.endsWith("(told late)") &&
                       each.additionalCause == "ended by a cancel";
            });
        }(),
        patience);
}

void tst_OddControl::aRefusedSelectCanBeCancelled()
{
    Peer peer({});
    peer.ied.set(bay, "QA1CSWI1$ST$Loc$stVal", mms::Data::boolean(true));
    Order order;
    order.device = bay;
    order.object = "QA1CSWI1$CO$Pos";
    order.model = 4;
    QVERIFY(!peer.select(order));
    // It is asked for, which a device may answer as it likes.
    const Answer cancelled = peer.cancel(order);
    QVERIFY2(cancelled.error.contains("the object is not selected"), qPrintable(cancelled.error));
    QCOMPARE(peer.sentNumber(order, "Cancel"), peer.sentNumber(order, "SBOw"));
}

void tst_OddControl::aCheckThatTheDeviceHasNoPlaceForIsRefused()
{
    ChangedStation station;
    station.remove(R"(<BDA name="Check" bType="Check"/>)");
    Peer::Manners manners;
    manners.file = station.file();
    Peer peer(manners);
    for (const Order &plain : {direct(1), selected(1)}) {
        Order order = plain;
        order.check = 1;
        const char *service = order.model == 4 ? "SBOw" : "Oper";
        const mms::Data before = peer.sent(order, service);
        const Answer answer = order.model == 4 ? peer.select(order) : peer.operate(order);
        QCOMPARE(answer.result, OperationFailed);
        QVERIFY2(answer.error.endsWith("The device cannot check interlocking."),
                 qPrintable(answer.error));
        QCOMPARE(peer.sent(order, service), before);
        order.check = 2;
        const Answer other = order.model == 4 ? peer.select(order) : peer.operate(order);
        QVERIFY2(other.error.endsWith("The device cannot check synchronism."),
                 qPrintable(other.error));
    }
    QVERIFY(peer.operate(direct(1)));
    // A cancel asks for no checks, whatever the record says.
    QVERIFY(peer.select(selected(1)));
    Order cancelled = selected(1);
    cancelled.check = 3;
    QString error;
    QVERIFY2(peer.driver->cancelObject(1, io, cancelled.object, bytesOf(cancelled), error) ==
                 OperationSucceeded,
             qPrintable(error));
    QVERIFY(peer.listener.waitForChanges(7));
    QCOMPARE(peer.listener.changes().last().newValue, QString("1, category 3"));
}

void tst_OddControl::aSetPointFollowsTheScaleOfTheDevice()
{
    ChangedStation station;
    station.addTo("AnalogueValue_f", R"(<BDA name="i" bType="INT32"/>)")
        .addTo("APC_direct", R"(<DA name="sVC" fc="CF" bType="Struct" type="Scale"/>)")
        .addType(R"(<DAType id="Scale"><BDA name="scaleFactor" bType="FLOAT32"><Val>0.1</Val></BDA>
                    <BDA name="offset" bType="FLOAT32"><Val>0</Val></BDA></DAType>)");
    Peer::Manners manners;
    manners.file = station.file();
    Peer peer(manners);
    Order order;
    order.object = "GGIO2$CO$AnOut1";
    order.model = 1;
    order.value = 12.5;
    const Answer answer = peer.operate(order);
    QVERIFY2(answer, qPrintable(answer.error));
    QCOMPARE(QString::fromStdString(mms::toText(peer.sent(order, "Oper").children()[CtlVal])),
             QString("{12.5, 125}"));
}

void tst_OddControl::aSetPointWithoutAScaleIsRefused()
{
    ChangedStation station;
    station.addTo("AnalogueValue_f", R"(<BDA name="i" bType="INT32"/>)");
    Peer::Manners manners;
    manners.file = station.file();
    Peer peer(manners);
    Order order;
    order.object = "GGIO2$CO$AnOut1";
    order.model = 1;
    order.value = 12.5;
    const Answer answer = peer.operate(order);
    QCOMPARE(answer.result, OperationFailed);
    QVERIFY2(answer.error.contains("does not say by which scale"), qPrintable(answer.error));
    order.value = 12;
    QVERIFY(peer.operate(order));
}

void tst_OddControl::aSelectionBelongsToItsWindow()
{
    Peer peer({});
    DriverServiceRegistry::add("odd control", peer.driver);
    IEC61850ControllerInterface first;
    IEC61850ControllerInterface second;
    first.setLocation("odd control", 0);
    second.setLocation("odd control", 0);
    QString error;
    const Order on = selected(1);
    const Order off = selected(0);
    QVERIFY(first.selectObject(1, io, on.object, bytesOf(on), error) == OperationSucceeded);
    QVERIFY(second.selectObject(1, io, off.object, bytesOf(off), error) == OperationSucceeded);
    const mms::Data before = peer.sent(on, "Oper");
    QCOMPARE(first.controlObject(1, io, on.object, emptyBytesOf(on), error), OperationFailed);
    QCOMPARE(error, QString("Another window has selected the object since: select it here first."));
    QCOMPARE(peer.sent(on, "Oper"), before);
    QVERIFY2(second.controlObject(1, io, off.object, emptyBytesOf(off), error) ==
                 OperationSucceeded,
             qPrintable(error));
    DriverServiceRegistry::remove("odd control");

    // Callers that are not known may be any.
    QVERIFY(peer.select(on));
    QVERIFY(peer.select(off));
    const Answer empty = peer.operateSelected(off);
    QVERIFY2(empty.error.contains("which one is meant is not known"), qPrintable(empty.error));
    QVERIFY(peer.operate(off));
}

void tst_OddControl::aRefusedCancelEndsNoCommand_data()
{
    QTest::addColumn<int>("which");

    QTest::newRow("names the service") << 0;
    QTest::newRow("names the object") << 1;
    QTest::newRow("names the reference") << 2;
    QTest::newRow("names Oper") << 3;
    QTest::newRow("no number") << 4;
}

void tst_OddControl::aRefusedCancelEndsNoCommand()
{
    QFETCH(int, which);
    CancellableStation station;
    Peer::Manners manners;
    manners.file = station.file();
    manners.oddities.slowControl = true;
    manners.oddities.noCancelOfCommands = true;
    manners.oddities.causeNamesObject = which == 1;
    manners.oddities.causeNamesReference = which == 2;
    manners.oddities.causeNamesOper = which == 3;
    manners.oddities.causeWithoutNumber = which == 4;
    Peer peer(manners);
    auto running = peer.startToOperate(directEnhanced(1));
    QTRY_COMPARE_WITH_TIMEOUT(peer.sentNumber(directEnhanced(1), "Oper"), 1U, patience);
    const Answer cancelled = peer.cancel(directEnhanced(1));
    QCOMPARE(cancelled.result, OperationFailed);
    QVERIFY2(cancelled.error.contains("the device refuses Cancel: the service is not supported"),
             qPrintable(cancelled.error));
    const Answer ended = running.get();
    QVERIFY2(ended, qPrintable(ended.error));
}

void tst_OddControl::theCauseOfARefusalIsFound_data()
{
    QTest::addColumn<int>("which");

    QTest::newRow("names the object") << 0;
    QTest::newRow("names the reference") << 1;
    QTest::newRow("names Oper") << 2;
    QTest::newRow("no number") << 3;
    QTest::newRow("after the answer") << 4;
}

void tst_OddControl::theCauseOfARefusalIsFound()
{
    QFETCH(int, which);
    Peer::Manners manners;
    manners.oddities.causeNamesObject = which == 0;
    manners.oddities.causeNamesReference = which == 1;
    manners.oddities.causeNamesOper = which == 2;
    manners.oddities.causeWithoutNumber = which == 3;
    manners.oddities.causeAfterAnswer = which == 4;
    Peer peer(manners);
    peer.ied.set(bay, "QA1CSWI1$ST$Loc$stVal", mms::Data::boolean(true));
    Order order;
    order.device = bay;
    order.object = "QA1CSWI1$CO$Pos";
    order.model = 4;
    const Answer answer = peer.select(order);
    QVERIFY2(answer.error.contains("the device refuses SBOw: blocked because the switching "
                                   "authority lies elsewhere"),
             qPrintable(answer.error));
}

void tst_OddControl::aTerminationThatComesLateIsTold()
{
    Peer::Manners manners;
    manners.faults = "delay 4s on informationReport";
    Peer peer(manners);
    peer.ied.set(io, "GGIO2$CF$SPCSO4$operTimeout", mms::Data::unsignedInteger(100));
    const Answer lost = peer.operate(directEnhanced(1));
    QCOMPARE(lost.result, OperationFailed);
    QVERIFY2(lost.error.contains("has not told within 2.1 s how it ended") &&
                 lost.error.endsWith(unknown),
             qPrintable(lost.error));
    peer.listener.clear();
    QVERIFY(peer.listener.waitForChanges(1));
    const DeviceChange told = peer.listener.changes().first();
    QCOMPARE(told.operation, QString("controlObject"));
    QCOMPARE(told.newValue, QString("1, category 3 (told late)"));
    QCOMPARE(told.error, QString());
    QVERIFY(peer.listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.reason ==
               "BAY1E1IO/GGIO2.SPCSO4: the command that was not answered in time was carried out.";
    }));
    // An open window sees what became of it.
    QVERIFY(peer.listener.waitForValue("BAY1E1IO/GGIO2$ST$SPCSO4$stVal", true));
}

void tst_OddControl::anAcceptanceThatComesLateIsTold()
{
    Peer::Manners manners;
    manners.faults = "delay 2s on write times 1";
    manners.callTimeout = milliseconds(500);
    Peer peer(manners);
    const Answer lost = peer.operate(direct(1));
    QCOMPARE(lost.result, OperationFailed);
    QVERIFY2(lost.error.contains("Oper got no answer within 0.5 s.") &&
                 lost.error.endsWith(unknown),
             qPrintable(lost.error));
    QVERIFY(peer.listener.waitForChanges(2));
    QCOMPARE(peer.listener.changes().at(0).error, lost.error);
    QCOMPARE(peer.listener.changes().at(1).newValue, QString("1, category 3 (told late)"));
    QCOMPARE(peer.listener.changes().at(1).error, QString());
    // The next command takes the sentence away.
    QVERIFY(peer.operate(direct(0)));
    QVERIFY(peer.listener.waitForStatus(
        1, [](const DeviceStatus &status) { return status.reason.isEmpty(); }));
}

void tst_OddControl::anAssociationLostInACommandLeavesItUnknown()
{
    Peer::Manners manners;
    manners.faults = "reset 0 on write times 1";
    Peer peer(manners);
    const Answer lost = peer.operate(direct(1));
    QCOMPARE(lost.result, OperationFailed);
    QVERIFY2(lost.error.contains("Oper got no answer") && lost.error.endsWith(unknown),
             qPrintable(lost.error));
    QVERIFY(peer.listener.waitForChanges(1));
    QCOMPARE(peer.listener.changes().first().error, lost.error);
    // Also behind the outage the device's state says so.
    QVERIFY(peer.listener.waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.counters.connections == 2 &&
               status.reason.endsWith(unknown);
    }));
}

void tst_OddControl::aRefusalByTheServiceIsARefusal_data()
{
    QTest::addColumn<QString>("fault");

    QTest::newRow("service error") << "refuse state-conflict on write times 1";
    QTest::newRow("reject") << "reject on write times 1";
}

void tst_OddControl::aRefusalByTheServiceIsARefusal()
{
    QFETCH(QString, fault);
    Peer::Manners manners;
    manners.faults = fault.toStdString();
    Peer peer(manners);
    const Answer answer = peer.operate(directEnhanced(1));
    QCOMPARE(answer.result, OperationFailed);
    QVERIFY2(answer.error.contains("the device refuses Oper: ") &&
                 !answer.error.contains("no answer") && !answer.error.contains(unknown),
             qPrintable(answer.error));
    QVERIFY(peer.driver->status(1).reason.isEmpty());
}

void tst_OddControl::readOnlyIsLookedAtRightBeforeACommand()
{
    const auto armed = std::make_shared<std::atomic<bool>>(false);
    const auto target = std::make_shared<std::atomic<ServedDriver *>>(nullptr);
    Peer::Manners manners;
    manners.filter = [armed, target](const auto &, std::uint32_t, mms::RequestService &request) {
        // While the driver asks for the control model somebody turns the key.
        if (isRead(request) && armed->exchange(false))
            target->load()->setReadOnly(true);
        return false;
    };
    Peer peer(manners);
    *target = peer.driver.get();
    for (const Order &order : {direct(1), selected(1)}) {
        const char *service = order.model == 4 ? "SBOw" : "Oper";
        const mms::Data before = peer.sent(order, service);
        peer.driver->setReadOnly(false);
        *armed = true;
        const Answer answer = order.model == 4 ? peer.select(order) : peer.operate(order);
        QCOMPARE(answer.result, OperationFailed);
        QVERIFY2(answer.error.contains("read-only"), qPrintable(answer.error));
        QCOMPARE(peer.sent(order, service), before);
    }
}

void tst_OddControl::readOnlyForbidsNoCancelOfACommandThatRuns()
{
    CancellableStation station;
    Peer::Manners manners;
    manners.file = station.file();
    manners.oddities.slowControl = true;
    Peer peer(manners);
    auto running = peer.startToOperate(directEnhanced(1));
    QTRY_COMPARE_WITH_TIMEOUT(peer.sentNumber(directEnhanced(1), "Oper"), 1U, patience);
    peer.driver->setReadOnly(true);
    QVERIFY(!peer.cancel(selected(1)));
    const Answer cancelled = peer.cancel(directEnhanced(1));
    QVERIFY2(cancelled, qPrintable(cancelled.error));
    QVERIFY(running.get().error.contains("ended by a cancel"));
}

void tst_OddControl::aCommandIsDoneAlsoWhenItsStatusCannotBeRead()
{
    const auto written = std::make_shared<std::atomic<bool>>(false);
    Peer::Manners manners;
    manners.callTimeout = milliseconds(4000);
    manners.operationTimeout = milliseconds(4000);
    manners.filter = [written](const auto &, std::uint32_t, mms::RequestService &request) {
        if (isWrite(request))
            *written = true;
        return isRead(request) && *written;
    };
    Peer peer(manners);
    const Answer answer = peer.operate(direct(1));
    QVERIFY2(answer, qPrintable(answer.error));
    QVERIFY(peer.listener.waitForChanges(1));
    QCOMPARE(peer.listener.changes().first().error, QString());
}

void tst_OddControl::theSettingsOfTheObjectAreReadWithEachCommand()
{
    Peer peer({});
    peer.ied.set(io, "GGIO2$CF$SPCSO5$sboClass", mms::Data::integer(1));
    QVERIFY(peer.select(selected(1)));
    QVERIFY(peer.operateSelected(selected(1)));
    QVERIFY(peer.operateSelected(selected(1)));
    peer.ied.set(io, "GGIO2$CF$SPCSO5$sboClass", mms::Data::integer(0));
    QVERIFY(peer.operateSelected(selected(1)));
    QCOMPARE(peer.operateSelected(selected(1)).error, QString("Select the object first"));
}

void tst_OddControl::theOldValueOfTheJournalIsThatOfTheDevice()
{
    Peer peer({});
    peer.ied.set(io, "GGIO2$ST$SPCSO2$stVal", mms::Data::boolean(true));
    QVERIFY(peer.operate(direct(0)));
    QVERIFY(peer.listener.waitForChanges(1));
    QCOMPARE(peer.listener.changes().first().oldValue, QString("true"));
}

void tst_OddControl::refusalsBeforeTheDeviceAreJournalled()
{
    Peer peer({});
    peer.driver->setReadOnly(true);
    Order order = direct(1);
    QVERIFY(!peer.operate(order));
    QVERIFY(!peer.cancel(order));
    peer.driver->setReadOnly(false);
    QVERIFY(!peer.operateSelected(selected(1)));
    order.check = 9;
    QVERIFY(!peer.operate(order));
    QVERIFY(peer.listener.waitForChanges(4));
    const QStringList operations{"controlObject", "cancelObject", "controlObject", "controlObject"};
    for (int i = 0; i < 4; ++i) {
        const DeviceChange tried = peer.listener.changes().at(i);
        QCOMPARE(tried.operation, operations.at(i));
        QVERIFY(!tried.error.isEmpty());
        QVERIFY(tried.reference.startsWith("BAY1E1IO/GGIO2$CO$SPCSO"));
    }
}

void tst_OddControl::categoriesEndWithEight()
{
    Peer peer({});
    Order order = direct(1);
    order.orCat = 9;
    QCOMPARE(peer.operate(order).error,
             QString("9 is no originator category; they go from 0 to 8."));
    order.orCat = 8;
    QVERIFY(peer.operate(order));
    // A record of a cancel is looked at where it is what is sent.
    Order normal;
    normal.object = "GGIO2$CO$SPCSO3";
    normal.model = 2;
    QVERIFY(peer.select(normal));
    normal.orCat = 9;
    QString error;
    QCOMPARE(peer.driver->cancelObject(1, io, normal.object, bytesOf(normal), error),
             OperationFailed);
    QCOMPARE(error, QString("9 is no originator category; they go from 0 to 8."));
}

QTEST_GUILESS_MAIN(tst_OddControl)
#include "tst_oddcontrol.moc"
