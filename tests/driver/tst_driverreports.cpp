// SPDX-License-Identifier: Apache-2.0
#include "driver/indicatorfile.h"
#include "driver/simulatedstation.h"

#include "acsi/reference.h"

#include <tavrix/tavrix.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <atomic>

using namespace drivertest;

namespace {

const QString stationFile = QStringLiteral(STATION_FILE);
const QString control = QStringLiteral("BAY1E1CTRL");
const QString buffered = QStringLiteral("LLN0$BR$brcbPositions01");
const QString unbuffered = QStringLiteral("LLN0$RP$urcbPositions01");
const QString breaker = QStringLiteral("BAY1E1CTRL/QA1CSWI1$ST$Pos$stVal");
const QString disconnector = QStringLiteral("BAY1E1CTRL/QB1CSWI1$ST$Pos$stVal");

const auto isReported = [](const MMSValue &value) {
    return (value.cause & PublishCause::Report) != 0;
};

/// Settings as the report dialog sends them.
ReportBlock dialogBlock(bool isBuffered)
{
    ReportBlock block;
    block.trgOps = 0x64;
    block.optFlds[0] = isBuffered ? 0x7b : 0x78;
    block.optFlds[1] = 0x80;
    return block;
}

QByteArray number(qint32 value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

/// A driver with one device, online and without polling.
class Station
{
public:
    explicit Station(DeviceConfiguration configuration)
        : m_driver(std::make_unique<ServedDriver>(m_listener.options()))
    {
        configuration.pollInterval = std::chrono::milliseconds(0);
        m_driver->setDevice(configuration);
        m_driver->connectDevice(1);
        m_isOnline = m_listener.waitForState(1, DeviceState::Online);
    }
    explicit Station(const SimulatedIed &ied)
        : Station(configurationFor(ied))
    {
    }

    bool isOnline() const { return m_isOnline; }
    ServedDriver &driver() { return *m_driver; }
    Listener &listener() { return m_listener; }
    const QString &error() const { return m_error; }

    ReportBlock block(const QString &reference, const QString &device = control)
    {
        ReportBlock result;
        m_result = m_driver->getBRCBValues(1, device, reference, result, m_error);
        return result;
    }
    bool write(const QString &reference, const QString &attribute, const QByteArray &bytes)
    {
        m_result = m_driver->writeValue(1, control, reference, attribute, bytes, m_error);
        return m_result == OperationSucceeded;
    }
    bool enable(const QString &reference, const ReportBlock &block, const QString &device = control)
    {
        m_result = m_driver->enableReportBlock(1, device, reference, {}, {}, block, m_error);
        return m_result == OperationSucceeded;
    }

private:
    Listener m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    bool m_isOnline = false;
    OperationResult m_result = OperationSucceeded;
    QString m_error;
};

mms::Data position(const char *bits)
{
    return mms::Data::bitString(mms::BitString::fromText(bits));
}

bool isEnabled(SimulatedIed &ied, const QString &block)
{
    return ied.value("BAY1E1CTRL", (block + "$RptEna").toStdString()).toBoolean().value_or(false);
}

} // namespace

class tst_DriverReports : public QObject
{
    Q_OBJECT

private slots:
    void aBlockIsToldAsTheDeviceHasIt();
    void theClientsTextsAreThoseOfTheFile();
    void whatIsNoBlockIsRefused();
    void attributesAreWrittenByTheirNames();
    void bytesThatAreNoValueAreNotSent();
    void dataSetsGoByTheNamesOfTheBrowser();
    void reportsBringValuesWithQualityTimeAndReason();
    void aModelTellsWhichBlocksOthersHaveEnabled();
    void anInterrogationBringsEveryMember();
    void qualitiesOfTheirOwnMembersGoWithTheValues();
    void aReservedBlockNamesItsOwner();
    void aRefusedAttributeIsNamedAndTheBlockGivenBack();
    void disablingReleasesTheBlock();
    void blocksAreReleasedOnLeaving();
    void aBufferedBlockResumesBehindItsLastEntry();
    void anUnbufferedBlockIsEnabledAgainAfterALoss();
    void aSubscriptionGoesOnWhenTheDeviceComesBackWithAnotherModel();
    void aBlockThatTheDeviceDisablesIsNoticed();
    void aReadOnlyDriverEnablesNothing();
    void segmentedReportsAreJoined();
    void reportedDataIsNotPolled();
    void aBurstOfTwentyThousandChangesArrivesComplete();
    void aBrowserThatNeverReadsCostsNothing();
};

void tst_DriverReports::aBlockIsToldAsTheDeviceHasIt()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    const ReportBlock first = station.block(buffered);
    QCOMPARE(station.error(), QString());
    QCOMPARE(first.reference, buffered);
    QCOMPARE(first.rptId, QStringLiteral("BAY1E1/Positions"));
    QCOMPARE(first.datSet, QStringLiteral("Positions"));
    QCOMPARE(first.confRev, 1);
    QCOMPARE(first.trgOps, quint8(0x64));
    QCOMPARE(first.optFldsText, QStringLiteral("0111101110"));
    QCOMPARE(first.optFlds[0], quint8(0x7b));
    QCOMPARE(first.optFlds[1], quint8(0x80));
    QCOMPARE(first.bufTm, 50);
    QCOMPARE(first.intgPd, 0);
    QVERIFY(!first.rptEna);
    QVERIFY(!first.resv);
    QCOMPARE(first.owner, QString());

    const ReportBlock second = station.block(unbuffered);
    QCOMPARE(second.reference, unbuffered);
    QCOMPARE(second.rptId, QString());
    QCOMPARE(second.optFldsText, QStringLiteral("0111100010"));
    QCOMPARE(second.bufTm, 0);
}

void tst_DriverReports::theClientsTextsAreThoseOfTheFile()
{
    SimulatedIed ied(stationFile);
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.sclFile = stationFile;
    Station withFile(configuration);
    QVERIFY(withFile.isOnline());
    QVERIFY(withFile.write(buffered, "RptID", "mine"));
    QVERIFY(withFile.write(buffered, "DatSet", "Supervision"));
    const ReportBlock changed = withFile.block(buffered);
    QCOMPARE(changed.rptId, QStringLiteral("mine"));
    QCOMPARE(changed.datSet, QStringLiteral("Supervision"));
    QCOMPARE(changed.clientRptId, QStringLiteral("BAY1E1/Positions"));
    QCOMPARE(changed.clientDataSet, QStringLiteral("Positions"));
    QCOMPARE(withFile.block(unbuffered).clientRptId,
             QStringLiteral("BAY1E1CTRL/LLN0$RP$urcbPositions01"));
}

void tst_DriverReports::whatIsNoBlockIsRefused()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    station.block("LLN0$ST$Mod");
    QCOMPARE(station.error(),
             QStringLiteral("\"LLN0$ST$Mod\" does not name a report control block."));
    QVERIFY(!station.write("", "GI", "\1"));
    QVERIFY(station.error().contains("does not name a report control block"));
    station.block("LLN0$BR$gone");
    QVERIFY2(station.error().contains("gone"), qPrintable(station.error()));
    QVERIFY(!station.enable("LLN0$RP$gone", dialogBlock(false)));
    QVERIFY2(station.error().contains("gone"), qPrintable(station.error()));
}

void tst_DriverReports::attributesAreWrittenByTheirNames()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.write(buffered, "RptID", "other"), qPrintable(station.error()));
    QVERIFY2(station.write(buffered, "TrgOps", "\x48"), qPrintable(station.error()));
    QVERIFY2(station.write(buffered, "OptFlds", QByteArray("\x40\x80", 2)),
             qPrintable(station.error()));
    QVERIFY2(station.write(buffered, "IntgPd", number(4000)), qPrintable(station.error()));
    QVERIFY2(station.write(buffered, "BufTm", number(125)), qPrintable(station.error()));
    QVERIFY2(station.write(buffered, "PurgeBuf", "\1"), qPrintable(station.error()));
    const ReportBlock block = station.block(buffered);
    QCOMPARE(block.rptId, QStringLiteral("other"));
    QCOMPARE(block.trgOps, quint8(0x48));
    QCOMPARE(block.optFldsText, QStringLiteral("0100000010"));
    QCOMPARE(block.intgPd, 4000);
    QCOMPARE(block.bufTm, 125);

    QVERIFY(station.listener().waitForChanges(6));
    const DeviceChange change = station.listener().changes().at(4);
    QCOMPARE(change.operation, QStringLiteral("writeValue"));
    QCOMPARE(change.reference, QStringLiteral("BAY1E1CTRL/LLN0$BR$brcbPositions01$BufTm"));
    QCOMPARE(change.oldValue, QStringLiteral("50"));
    QCOMPARE(change.newValue, QStringLiteral("125"));
    QCOMPARE(change.error, QString());

    QVERIFY(station.write(unbuffered, "Resv", "\1"));
    QVERIFY(station.block(unbuffered).resv);
    QVERIFY(station.write(unbuffered, "Resv", QByteArray(1, '\0')));
    QVERIFY(!station.block(unbuffered).resv);
    // A buffered block is reserved for a time.
    QVERIFY2(station.write(buffered, "Resv", "\1"), qPrintable(station.error()));
    QVERIFY(station.block(buffered).resv);
    QVERIFY(!station.block(buffered).owner.isEmpty());
    QVERIFY(station.write(buffered, "Resv", QByteArray(1, '\0')));
    QVERIFY(!station.block(buffered).resv);
    // Only an enabled block can be interrogated.
    QVERIFY(!station.write(buffered, "GI", "\1"));
    QVERIFY2(station.error().contains("GI"), qPrintable(station.error()));
}

void tst_DriverReports::bytesThatAreNoValueAreNotSent()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY(!station.write(buffered, "IntgPd", "\1"));
    QCOMPARE(station.error(), QStringLiteral("The value for IntgPd has 1 bytes instead of 4."));
    QVERIFY(!station.write(buffered, "BufTm", number(-1)));
    QCOMPARE(station.error(), QStringLiteral("BufTm cannot be negative."));
    QVERIFY(!station.write(buffered, "TrgOps", ""));
    QVERIFY(!station.write(buffered, "OptFlds", "\1"));
    QVERIFY(!station.write(buffered, "GI", ""));
    QVERIFY(!station.write(buffered, "ConfRev", number(7)));
    QCOMPARE(
        station.error(),
        QStringLiteral("The attribute \"ConfRev\" of a report control block cannot be written."));
    ReportBlock block = dialogBlock(true);
    block.intgPd = -5;
    QVERIFY(!station.enable(buffered, block));
    QCOMPARE(station.error(),
             QStringLiteral("Buffer time and integrity period cannot be negative."));
    QVERIFY(station.listener().changes().isEmpty());
}

void tst_DriverReports::dataSetsGoByTheNamesOfTheBrowser()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    const auto onDevice = [&ied] {
        return QString::fromStdString(
            std::string(ied.value("BAY1E1CTRL", "LLN0$RP$urcbPositions01$DatSet").text()));
    };
    for (const char *name : {"Supervision", "LLN0$Supervision", "BAY1E1CTRL/LLN0$Supervision"}) {
        QVERIFY(station.write(unbuffered, "DatSet", "Positions"));
        QCOMPARE(onDevice(), QStringLiteral("BAY1E1CTRL/LLN0$Positions"));
        QVERIFY2(station.write(unbuffered, "DatSet", name), qPrintable(station.error()));
        QCOMPARE(onDevice(), QStringLiteral("BAY1E1CTRL/LLN0$Supervision"));
        QCOMPARE(station.block(unbuffered).datSet, QStringLiteral("Supervision"));
    }
    // One of another logical device keeps its whole name.
    QVERIFY2(station.write(unbuffered, "DatSet", "BAY1E1IO/LLN0$Outputs"),
             qPrintable(station.error()));
    QCOMPARE(station.block(unbuffered).datSet, QStringLiteral("BAY1E1IO/LLN0$Outputs"));
    QString error;
    QCOMPARE(station.driver().createDataSet(1, "", "mine", "BAY1E1CTRL/QA1CSWI1$ST$Pos", 1, error),
             OperationSucceeded);
    QVERIFY2(station.write(unbuffered, "DatSet", "@mine"), qPrintable(station.error()));
    QCOMPARE(station.block(unbuffered).datSet, QStringLiteral("@mine"));
    QVERIFY2(station.enable(unbuffered, dialogBlock(false)), qPrintable(station.error()));
    station.listener().clear();
    ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("01"));
    ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("10"));
    QVERIFY(station.listener().waitForValue(breaker, 2));
}

void tst_DriverReports::reportsBringValuesWithQualityTimeAndReason()
{
    SimulatedIed ied(stationFile);
    ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("01"));
    for (const QString &block : {buffered, unbuffered}) {
        Station station(ied);
        QVERIFY(station.isOnline());
        QVERIFY2(station.enable(block, dialogBlock(block == buffered)),
                 qPrintable(station.error()));
        const ReportBlock enabled = station.block(block);
        QVERIFY(enabled.rptEna);
        QVERIFY(!enabled.owner.isEmpty());
        station.listener().clear();
        ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("10"));
        QVERIFY(station.listener().waitForValue(
            breaker, [](const MMSValue &value) { return value.value == 2 && isReported(value); }));
        const MMSValue value = station.listener().value(breaker);
        QCOMPARE(value.cause, quint32(PublishCause::Report | 1));
        QCOMPARE(value.quality.size(), 13);
        QVERIFY(value.timeStamp.contains('T'));
        QCOMPARE(value.deviceNo, 1);
        QVERIFY(station.driver().status(1).counters.reports >= 1);
        QVERIFY(station.driver().status(1).counters.unclaimedReports == 0);

        QByteArray bytes;
        QString error;
        QCOMPARE(station.driver().getIEDModel(1, bytes, error), OperationSucceeded);
        const auto device = deviceFrom(bytes);
        for (const ReportControlBlock *shown :
             device->logicalDevices.first()->logicalNodes.first()->reportControls->blocks)
            QCOMPARE(shown->enabled, shown->reference == block);

        QVERIFY(station.write(block, "RptEna", QByteArray(1, '\0')));
        QVERIFY(!station.block(block).rptEna);
        ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("01"));
    }
}

void tst_DriverReports::aModelTellsWhichBlocksOthersHaveEnabled()
{
    SimulatedIed ied(stationFile);
    Station looking(ied);
    QVERIFY(looking.isOnline());
    const auto isShownEnabled = [&] {
        QByteArray bytes;
        QString error;
        if (looking.driver().getIEDModel(1, bytes, error) != OperationSucceeded)
            return false;
        const auto device = deviceFrom(bytes);
        for (const ReportControlBlock *shown :
             device->logicalDevices.first()->logicalNodes.first()->reportControls->blocks) {
            if (shown->reference == unbuffered)
                return shown->enabled;
        }
        return false;
    };
    QVERIFY(!isShownEnabled());
    {
        Station other(ied);
        QVERIFY(other.isOnline());
        QVERIFY2(other.enable(unbuffered, dialogBlock(false)), qPrintable(other.error()));
        QVERIFY(isShownEnabled());
        QVERIFY(other.write(unbuffered, "RptEna", QByteArray(1, '\0')));
    }
    QVERIFY(!isShownEnabled());
}

void tst_DriverReports::anInterrogationBringsEveryMember()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(unbuffered, dialogBlock(false)), qPrintable(station.error()));
    station.listener().clear();
    QVERIFY2(station.write(unbuffered, "GI", "\1"), qPrintable(station.error()));
    for (const QString &reference :
         {breaker, disconnector, QStringLiteral("BAY1E1CTRL/QC1CSWI1$ST$Pos$stVal"),
          QStringLiteral("BAY1E1CTRL/LLN0$ST$Loc$stVal")}) {
        QVERIFY2(station.listener().waitForValue(reference,
                                                 [](const MMSValue &value) {
                                                     return value.cause ==
                                                            (PublishCause::Report | 16);
                                                 }),
                 qPrintable(reference));
    }
}

void tst_DriverReports::qualitiesOfTheirOwnMembersGoWithTheValues()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY(station.write(unbuffered, "DatSet", "Interlocking"));
    QVERIFY2(station.enable(unbuffered, dialogBlock(false)), qPrintable(station.error()));
    station.listener().clear();
    QVERIFY2(station.write(unbuffered, "GI", "\1"), qPrintable(station.error()));
    const QString released = QStringLiteral("BAY1E1CTRL/QA1CILO1$ST$EnaOpn$stVal");
    QVERIFY(station.listener().waitForValue(released, isReported));
    const MMSValue value = station.listener().value(released);
    QCOMPARE(value.quality.size(), 13);
    QCOMPARE(value.quality,
             station.listener().value("BAY1E1CTRL/QA1CILO1$ST$EnaOpn$q").value.toString());
    // The entry's time stands in for a time that the data set does not have.
    QVERIFY(!value.timeStamp.isEmpty());
}

void tst_DriverReports::aReservedBlockNamesItsOwner()
{
    SimulatedIed ied(stationFile);
    Station first(ied);
    Station second(ied);
    QVERIFY(first.isOnline() && second.isOnline());
    QVERIFY2(first.enable(buffered, dialogBlock(true)), qPrintable(first.error()));
    QVERIFY(!second.enable(buffered, dialogBlock(true)));
    QVERIFY2(second.error().contains("another association of this computer (127.0.0.1)"),
             qPrintable(second.error()));
    QCOMPARE(second.block(buffered).owner, QStringLiteral("127.0.0.1"));
    QVERIFY(second.block(buffered).rptEna);
    // The refusal has not disturbed the owner.
    first.listener().clear();
    ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("01"));
    ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("10"));
    QVERIFY(first.listener().waitForValue(breaker, isReported));
    QVERIFY(second.listener().waitForChanges(1));
    QVERIFY(second.listener().changes().first().error.contains("127.0.0.1"));
}

void tst_DriverReports::aRefusedAttributeIsNamedAndTheBlockGivenBack()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    ReportBlock block = dialogBlock(false);
    block.datSet = QStringLiteral("Gone");
    QVERIFY(!station.enable(unbuffered, block));
    QVERIFY2(station.error().contains("DatSet of BAY1E1CTRL/LLN0.urcbPositions01"),
             qPrintable(station.error()));
    QVERIFY(!isEnabled(ied, unbuffered));
    QVERIFY(!station.block(unbuffered).resv);

    // A buffered block does not take a data set of an association.
    QString error;
    QCOMPARE(station.driver().createDataSet(1, "", "mine", "BAY1E1CTRL/QA1CSWI1$ST$Pos", 1, error),
             OperationSucceeded);
    block = dialogBlock(true);
    block.datSet = QStringLiteral("@mine");
    QVERIFY(!station.enable(buffered, block));
    QVERIFY2(station.error().contains("DatSet of BAY1E1CTRL/LLN0.brcbPositions01"),
             qPrintable(station.error()));
    QVERIFY(!isEnabled(ied, buffered));
    QVERIFY(!station.block(buffered).resv);
    QVERIFY(station.listener().waitForChanges(2));
    QVERIFY(!station.listener().changes().last().error.isEmpty());
    // What is left of it does not hinder the next try.
    QVERIFY2(station.enable(buffered, dialogBlock(true)), qPrintable(station.error()));
}

void tst_DriverReports::disablingReleasesTheBlock()
{
    SimulatedIed ied(stationFile);
    Station first(ied);
    Station second(ied);
    QVERIFY(first.isOnline() && second.isOnline());
    for (const QString &block : {buffered, unbuffered}) {
        QVERIFY2(first.enable(block, dialogBlock(block == buffered)), qPrintable(first.error()));
        QVERIFY(first.write(block, "RptEna", QByteArray(1, '\0')));
        QVERIFY(!first.block(block).resv);
        QVERIFY2(second.enable(block, dialogBlock(block == buffered)), qPrintable(second.error()));
    }
}

void tst_DriverReports::blocksAreReleasedOnLeaving()
{
    SimulatedIed ied(stationFile);
    {
        Station station(ied);
        QVERIFY(station.isOnline());
        QVERIFY(station.enable(buffered, dialogBlock(true)));
        QVERIFY(station.enable(unbuffered, dialogBlock(false)));
        QVERIFY(station.write("LLN0$BR$brcbPositions02", "Resv", "\1"));
        QVERIFY(isEnabled(ied, buffered) && isEnabled(ied, unbuffered));
        station.driver().disconnectDevice(1);
        QVERIFY(station.listener().waitForState(1, DeviceState::Disconnected));
        QVERIFY(!isEnabled(ied, buffered) && !isEnabled(ied, unbuffered));
        for (const char *name : {"brcbPositions01", "brcbPositions02"}) {
            const std::string item = std::string("LLN0$BR$") + name;
            QCOMPARE(ied.value("BAY1E1CTRL", item + "$ResvTms").toInteger().value_or(-1),
                     std::int64_t(0));
        }
        // Who comes back goes on with what he had.
        station.driver().connectDevice(1);
        QTRY_VERIFY_WITH_TIMEOUT(isEnabled(ied, buffered) && isEnabled(ied, unbuffered), 20000);
    }
    // The end of the driver is a leaving as well.
    QVERIFY(!isEnabled(ied, buffered) && !isEnabled(ied, unbuffered));
}

void tst_DriverReports::aBufferedBlockResumesBehindItsLastEntry()
{
    SimulatedIed ied(stationFile);
    ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("01"));
    ied.set("BAY1E1CTRL", "QB1CSWI1$ST$Pos$stVal", position("01"));
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY(station.enable(buffered, dialogBlock(true)));
    station.listener().clear();
    ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal", position("10"));
    QVERIFY(station.listener().waitForValue(breaker, isReported));

    QCOMPARE(station.driver().abortClose(1), OperationSucceeded);
    QVERIFY(station.listener().waitForState(1, DeviceState::Disconnected));
    station.listener().clear();
    // While nobody is there.
    ied.set("BAY1E1CTRL", "QB1CSWI1$ST$Pos$stVal", position("10"));
    QList<NameVaildValue> list;
    QString error;
    QCOMPARE(station.driver().getServerDirectory(1, list, error), OperationSucceeded);
    QVERIFY(station.listener().waitForValue(disconnector, [](const MMSValue &value) {
        return value.value == 2 && value.cause == (PublishCause::Report | 1);
    }));
    QVERIFY(isEnabled(ied, buffered));
    const QList<MMSValue> former = station.listener().history(breaker);
    QVERIFY(std::none_of(former.begin(), former.end(), isReported));
    QCOMPARE(station.driver().status(1).reason, QString());
}

void tst_DriverReports::anUnbufferedBlockIsEnabledAgainAfterALoss()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    ReportBlock block = dialogBlock(false);
    block.datSet = QStringLiteral("Supervision");
    block.rptId = QStringLiteral("again");
    QVERIFY(station.enable(unbuffered, block));
    for (int round = 0; round < 3; ++round) {
        ied.stop();
        QVERIFY(station.listener().waitForState(1, DeviceState::Waiting));
        ied.start();
        QVERIFY(station.listener().waitForChanges(round + 2));
        // A device that was started anew has forgotten the settings.
        const ReportBlock now = station.block(unbuffered);
        QVERIFY(now.rptEna);
        QCOMPARE(now.rptId, block.rptId);
        QCOMPARE(now.datSet, block.datSet);
        ied.set("BAY1E1CTRL", "SIMG1$ST$InsAlm$stVal", mms::Data::boolean(true));
        QVERIFY(station.listener().waitForValue("BAY1E1CTRL/SIMG1$ST$InsAlm$stVal", isReported));
    }
}

void tst_DriverReports::aSubscriptionGoesOnWhenTheDeviceComesBackWithAnotherModel()
{
    const QTemporaryDir folder;
    const IndicatorFile file("OTHER", 1, 3);
    const QString block = QStringLiteral("LLN0$RP$urcb1");
    QVERIFY(file.write(folder.filePath("before.icd")));
    // The same data set, before whose data others have come, and a status of another type.
    QByteArray text = file.text();
    const QByteArray node = "<LNodeType id=\"GGIO_1\" lnClass=\"GGIO\">";
    QVERIFY(text.contains(node));
    text.replace(node,
                 node + "<DO name=\"Alm\" type=\"SPS_1\"/><DO name=\"IntIn1\" type=\"INS_1\"/>");
    text.replace("<DOType id=\"SPS_1\" cdc=\"SPS\">",
                 "<DOType id=\"INS_1\" cdc=\"INS\"><DA name=\"stVal\" bType=\"INT32\" fc=\"ST\" "
                 "dchg=\"true\"/></DOType><DOType id=\"SPS_1\" cdc=\"SPS\">"
                 "<DA name=\"subEna\" bType=\"BOOLEAN\" fc=\"ST\"/>");
    QFile other(folder.filePath("after.icd"));
    QVERIFY(other.open(QIODevice::WriteOnly) && other.write(text) == text.size());
    other.close();

    SimulatedIed before(folder.filePath("before.icd"));
    Station station(before);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(block, dialogBlock(false), file.domain()), qPrintable(station.error()));
    const std::string domain = file.domain().toStdString();
    const std::string item = file.item(1).toStdString() + "$stVal";
    const QString reference = file.reference(1) + "$stVal";
    const auto isReportedAsTrue = [](const MMSValue &value) {
        return isReported(value) && value.value == true;
    };
    before.set(domain, item, mms::Data::boolean(true));
    QVERIFY(station.listener().waitForValue(reference, isReportedAsTrue));

    before.stop();
    QVERIFY(station.listener().waitForState(1, DeviceState::Waiting));
    station.listener().clear();
    sim::DeviceOptions options;
    options.server.port = before.port();
    SimulatedIed after(other.fileName(), {}, {}, options);
    QVERIFY(station.listener().waitForChanges(1));
    QVERIFY(station.block(block, file.domain()).rptEna);
    after.set(domain, item, mms::Data::boolean(true));
    QVERIFY(station.listener().waitForValue(reference, isReportedAsTrue));
    const QHash<QString, MMSValue> values = station.listener().values();
    QVERIFY(std::none_of(values.begin(), values.end(), [&](const MMSValue &value) {
        return isReported(value) && !value.reference.startsWith(file.reference(1));
    }));
    QCOMPARE(station.driver().status(1).reason, QString());
}

void tst_DriverReports::aBlockThatTheDeviceDisablesIsNoticed()
{
    SimulatedIed ied(stationFile);
    ied.stop();
    const auto mayAct = std::make_shared<std::atomic<bool>>(false);
    ied.setRequestFilter([mayAct, &ied](const std::shared_ptr<mms::Association> &association,
                                        std::uint32_t, mms::RequestService &request) {
        const auto *read = std::get_if<mms::ReadRequest>(&request);
        if (!*mayAct || !read || mms::toText(read->variables).find("$RptEna") == std::string::npos)
            return false;
        *mayAct = false;
        // Nobody waits for the answer to this one.
        constexpr std::uint32_t nobodys = 1U << 30U;
        mms::WriteRequest write;
        write.variables = std::vector<mms::VariableAccess>{acsi::accessOf(
            *acsi::parseReference((control + '/' + unbuffered + "$RptEna").toStdString()))};
        write.values.push_back(mms::Data::boolean(false));
        ied.device()->request(association, nobodys, write);
        return false;
    });
    ied.start();
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY(station.enable(unbuffered, dialogBlock(false)));
    *mayAct = true;
    QVERIFY(station.listener().waitForStatus(1, [](const DeviceStatus &status) {
        return status.reason ==
               "The device has disabled BAY1E1CTRL/LLN0$RP$urcbPositions01 by itself.";
    }));
    // It is enabled again, and nothing is left to complain about.
    QVERIFY(station.listener().waitForStatus(
        1, [](const DeviceStatus &status) { return status.reason.isEmpty(); }));
    QVERIFY(isEnabled(ied, unbuffered));
    QVERIFY(station.listener().changes().size() >= 3);
}

void tst_DriverReports::aReadOnlyDriverEnablesNothing()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY(station.enable(unbuffered, dialogBlock(false)));
    station.driver().setReadOnly(true);
    QVERIFY(!station.enable(buffered, dialogBlock(true)));
    QVERIFY(!station.write(unbuffered, "RptEna", QByteArray(1, '\0')));
    QVERIFY(isEnabled(ied, unbuffered));
    QVERIFY(station.block(unbuffered).rptEna);
    ied.stop();
    QVERIFY(station.listener().waitForState(1, DeviceState::Waiting));
    ied.start();
    QVERIFY(station.listener().waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.reason.contains("read-only");
    }));
    QVERIFY(!isEnabled(ied, unbuffered));
    station.driver().setReadOnly(false);
    QVERIFY(station.listener().waitForStatus(
        1, [](const DeviceStatus &status) { return status.reason.isEmpty(); }));
    QVERIFY(isEnabled(ied, unbuffered));
}

void tst_DriverReports::segmentedReportsAreJoined()
{
    // The list of the members does not fit the PDU either: the file has to know them, or the
    // reports have to name them.
    const QTemporaryDir folder;
    const QString path = folder.filePath("segments.icd");
    const IndicatorFile file("SEGMENTS", 1, 200);
    QVERIFY(file.write(path));
    SimulatedIed ied(path);
    for (const bool hasFile : {true, false}) {
        DeviceConfiguration configuration = configurationFor(ied);
        configuration.maxPduSize = DeviceConfiguration::smallestPduSize;
        if (hasFile)
            configuration.sclFile = path;
        Station station(configuration);
        QVERIFY(station.isOnline());
        for (const char *name : {"LLN0$RP$urcb1", "LLN0$BR$brcb1"}) {
            const QString block = QString::fromLatin1(name);
            QVERIFY2(station.enable(block, dialogBlock(block.contains("$BR$")), file.domain()),
                     qPrintable(station.error()));
            QCOMPARE(station.block(block, file.domain()).optFldsText.at(5),
                     QLatin1Char(hasFile ? '0' : '1'));
            station.listener().clear();
            const std::uint64_t reports = station.driver().status(1).counters.reports;
            QString error;
            QCOMPARE(station.driver().writeValue(1, file.domain(), block, "GI", "\1", error),
                     OperationSucceeded);
            QVERIFY(
                station.listener().waitForReferences(3 * file.size(), PublishCause::Report | 16));
            QCOMPARE(station.driver().status(1).counters.reports, reports + 1);
            QCOMPARE(station.driver().status(1).reason, QString());
            QCOMPARE(station.driver().writeValue(1, file.domain(), block, "RptEna",
                                                 QByteArray(1, '\0'), error),
                     OperationSucceeded);
        }
    }
}

void tst_DriverReports::reportedDataIsNotPolled()
{
    const QTemporaryDir folder;
    const IndicatorFile file("POLLED", 2, 10);
    QVERIFY(file.write(folder.filePath("polled.icd")));
    SimulatedIed ied(folder.filePath("polled.icd"));
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(100);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QString error;
    QCOMPARE(driver.enableReportBlock(1, file.domain(), "LLN0$RP$urcb1", {}, {}, dialogBlock(false),
                                      error),
             OperationSucceeded);
    listener.clear();
    for (int i = 0; i < 5; ++i) {
        const bool value = i % 2 == 0;
        ied.set(file.domain().toStdString(), file.item(0).toStdString() + "$stVal",
                mms::Data::boolean(value));
        ied.set(file.domain().toStdString(), file.item(10).toStdString() + "$stVal",
                mms::Data::boolean(value));
        QVERIFY(listener.waitForValue(file.reference(0) + "$stVal", value));
        QVERIFY(listener.waitForValue(file.reference(10) + "$stVal", value));
    }
    const QList<MMSValue> reported = listener.history(file.reference(0) + "$stVal");
    QVERIFY(std::all_of(reported.begin(), reported.end(), isReported));
    const QList<MMSValue> polled = listener.history(file.reference(10) + "$stVal");
    QVERIFY(std::none_of(polled.begin(), polled.end(), isReported));
}

void tst_DriverReports::aBurstOfTwentyThousandChangesArrivesComplete()
{
    const QTemporaryDir folder;
    const IndicatorFile file("BURST", 10, 100);
    QVERIFY(file.write(folder.filePath("burst.icd")));
    SimulatedIed ied(folder.filePath("burst.icd"));
    Station station(ied);
    QVERIFY(station.isOnline());
    for (int i = 1; i <= 10; ++i) {
        QVERIFY2(station.enable(QStringLiteral("LLN0$RP$urcb%1").arg(i), dialogBlock(false),
                                file.domain()),
                 qPrintable(station.error()));
    }
    station.listener().clear();
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        ied.act([&](sim::Device &device) {
            const sim::Model::Batch batch(device.model());
            for (int i = 0; i < file.size(); ++i) {
                // The last round leaves a pattern that no other round has.
                const bool value = round == rounds - 1 ? i % 3 == 0 : round % 2 == 0;
                device.model().set(device.model().find(file.domain().toStdString(),
                                                       file.item(i).toStdString() + "$stVal"),
                                   mms::Data::boolean(value));
            }
        });
    }
    for (int i = 0; i < file.size(); ++i) {
        const bool expected = i % 3 == 0;
        // An indication that the last round left as it was is not reported by it.
        const QString reference = file.reference(i) + "$stVal";
        QVERIFY2(station.listener().waitForValue(reference, expected), qPrintable(reference));
    }
    QCOMPARE(station.driver().status(1).state, DeviceState::Online);
}

void tst_DriverReports::aBrowserThatNeverReadsCostsNothing()
{
    const QTemporaryDir folder;
    const IndicatorFile file("UNREAD", 10, 100);
    QVERIFY(file.write(folder.filePath("unread.icd")));
    SimulatedIed ied(folder.filePath("unread.icd"));
    const char *const unread = "MMS_DATACHANGE:unread";
    const char *const open = "MMS_DATACHANGE:open";
    for (const char *name : {unread, open})
        QCOMPARE(Tavrix::CreateEventBox(name, 20005, 30000), 0);
    unsigned int port = 0;
    QCOMPARE(Tavrix::ConnectPortForRecv(open, port), 0);
    Listener listener;
    IedDriverOptions options = listener.options();
    options.poster = {};
    ServedDriver driver(options);
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    driver.setDevice(configuration);
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QString error;
    for (int i = 1; i <= 10; ++i) {
        QCOMPARE(driver.enableReportBlock(1, file.domain(), QStringLiteral("LLN0$RP$urcb%1").arg(i),
                                          {}, {}, dialogBlock(false), error),
                 OperationSucceeded);
    }
    QHash<QString, QVariant> received;
    for (int round = 0; round < 30; ++round) {
        ied.act([&](sim::Device &device) {
            const sim::Model::Batch batch(device.model());
            for (int i = 0; i < file.size(); ++i) {
                device.model().set(device.model().find(file.domain().toStdString(),
                                                       file.item(i).toStdString() + "$stVal"),
                                   mms::Data::boolean(round % 2 == 0));
            }
        });
        // The open box is read as fast as it is filled; each round is seen whole.
        const QString last = file.reference(file.size() - 1) + "$stVal";
        const QDeadlineTimer end(std::chrono::seconds(20));
        int complete = 0;
        while (complete < file.size() && !end.hasExpired()) {
            TavrixDataList list;
            if (Tavrix::ReceiveEventN(port, list, "MMS_VALUE", 500, 1) != 0)
                continue;
            for (int i = 0; i < list.count; ++i) {
                MMSValue value;
                QDataStream stream(QByteArray(list.array[i]->GetRawValue(), MMSValue::rawSize));
                value.fromStream(stream);
                received.insert(value.reference, value.value);
            }
            complete = 0;
            for (int i = 0; i < file.size(); ++i)
                complete +=
                    received.value(file.reference(i) + "$stVal") == QVariant(round % 2 == 0);
        }
        QCOMPARE(complete, file.size());
    }
    QCOMPARE(driver.status(1).state, DeviceState::Online);
    Tavrix::DisconnectPort(port);
    for (const char *name : {unread, open})
        Tavrix::SetPersistent(name, false);
}

QTEST_GUILESS_MAIN(tst_DriverReports)
#include "tst_driverreports.moc"
