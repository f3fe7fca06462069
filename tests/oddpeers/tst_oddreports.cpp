// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include "indicatorfile.h"

#include "acsi/report.h"
#include "mms/datatext.h"
#include "mms/pdu.h"
#include "osi/interference.h"

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
const std::string breakerItem = "QA1CSWI1$ST$Pos$stVal";
const std::string disconnectorItem = "QB1CSWI1$ST$Pos$stVal";

mms::Data position(const char *bits)
{
    return mms::Data::bitString(mms::BitString::fromText(bits));
}

/// Settings as the report dialog sends them: data and quality change, interrogation.
ReportBlock dialogBlock(bool isBuffered, bool withEntryId = true)
{
    ReportBlock block;
    block.trgOps = 0x64;
    block.optFlds[0] = isBuffered ? (withEntryId ? 0x7b : 0x7a) : 0x78;
    block.optFlds[1] = 0x80;
    return block;
}

/// A hand on the reports of a device on their way to its clients.
class ReportHand
{
public:
    /// False: the report is not sent.
    using Change = std::function<bool(mms::InformationReport &report)>;

    void set(Change change)
    {
        const std::lock_guard<std::mutex> lock(m_shared->mutex);
        m_shared->change = std::move(change);
    }

    sim::DeviceOptions options() const
    {
        sim::DeviceOptions options;
        options.server.association.link.interference = [shared = m_shared] {
            return std::make_unique<Hand>(shared);
        };
        return options;
    }

private:
    struct Shared
    {
        std::mutex mutex;
        Change change;
    };

    class Hand : public osi::Interference
    {
    public:
        explicit Hand(std::shared_ptr<Shared> shared)
            : m_shared(std::move(shared))
        {
        }

        Outgoing outgoing(mms::Bytes pdu) override
        {
            Outgoing result;
            result.pdus.emplace_back(pdu.begin(), pdu.end());
            auto decoded = mms::decodePdu(pdu);
            auto *unconfirmed = decoded ? std::get_if<mms::UnconfirmedPdu>(&*decoded) : nullptr;
            auto *report =
                unconfirmed ? std::get_if<mms::InformationReport>(&unconfirmed->service) : nullptr;
            const std::lock_guard<std::mutex> lock(m_shared->mutex);
            if (!report || !m_shared->change || !acsi::isReport(*report))
                return result;
            if (m_shared->change(*report))
                result.pdus.front() = mms::encode(*decoded);
            else
                result.pdus.clear();
            return result;
        }
        Incoming incoming(mms::Bytes) override { return {}; }

    private:
        std::shared_ptr<Shared> m_shared;
    };

    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};

/// A driver with one device, online, and everything it told.
class Station
{
public:
    explicit Station(DeviceConfiguration configuration, const QString &cacheFolder = {})
    {
        IedDriverOptions options = m_listener.options();
        const auto changed = options.observer.statusChanged;
        options.observer.statusChanged = [this, changed](const DeviceStatus &status) {
            {
                const std::lock_guard<std::mutex> lock(m_mutex);
                if (!status.reason.isEmpty() && !m_reasons.contains(status.reason))
                    m_reasons.append(status.reason);
            }
            changed(status);
        };
        options.observer.reportReceived = [this](const ReportEvent &event) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_events.append(event);
        };
        options.cacheFolder = cacheFolder;
        m_driver = std::make_unique<ServedDriver>(options);
        m_driver->setDevice(configuration);
        m_driver->connectDevice(1);
        m_isOnline = m_listener.waitForState(1, DeviceState::Online);
    }
    explicit Station(const SimulatedIed &ied)
        : Station(unpolled(ied))
    {
    }
    ~Station() { m_driver.reset(); }

    static DeviceConfiguration unpolled(const SimulatedIed &ied)
    {
        DeviceConfiguration configuration = configurationFor(ied);
        configuration.pollInterval = std::chrono::milliseconds(0);
        return configuration;
    }

    bool isOnline() const { return m_isOnline; }
    ServedDriver &driver() { return *m_driver; }
    Listener &listener() { return m_listener; }
    const QString &error() const { return m_error; }

    ReportBlock block(const QString &reference, const QString &device = control)
    {
        ReportBlock result;
        m_driver->getBRCBValues(1, device, reference, result, m_error);
        return result;
    }
    bool write(const QString &reference, const QString &attribute, const QByteArray &bytes,
               const QString &device = control)
    {
        return m_driver->writeValue(1, device, reference, attribute, bytes, m_error) ==
               OperationSucceeded;
    }
    bool disable(const QString &reference) { return write(reference, "RptEna", QByteArray(1, 0)); }
    bool enable(const QString &reference, const ReportBlock &block, const QString &device = control)
    {
        return m_driver->enableReportBlock(1, device, reference, {}, {}, block, m_error) ==
               OperationSucceeded;
    }

    QStringList reasons() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_reasons;
    }
    bool wasTold(const QString &part) const { return !reasons().filter(part).isEmpty(); }
    QList<ReportEvent> events() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_events;
    }
    bool isWell() { return m_driver->status(1).reason.isEmpty(); }
    DeviceCounters counters() { return m_driver->status(1).counters; }

private:
    mutable std::mutex m_mutex;
    QStringList m_reasons; ///< each once
    QList<ReportEvent> m_events;
    Listener m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    bool m_isOnline = false;
    QString m_error;
};

bool isEnabled(SimulatedIed &ied, const QString &block)
{
    return ied.value("BAY1E1CTRL", (block + "$RptEna").toStdString()).toBoolean().value_or(false);
}

std::string textOf(SimulatedIed &ied, const QString &block, const char *attribute)
{
    return mms::toText(ied.value("BAY1E1CTRL", (block + '$' + attribute).toStdString()));
}

/// The writes of single attributes that a device was asked for, "RptEna=true", oldest first.
class Writes
{
public:
    /// Whether a write is to be refused, or done without an answer.
    enum class Fate { Done, Refused, Unanswered };
    using Decide = std::function<Fate(const QString &write)>;

    explicit Writes(SimulatedIed &ied, Decide decide = {})
    {
        ied.stop();
        ied.setRequestFilter(
            [this, &ied, decide](const std::shared_ptr<mms::Association> &association,
                                 std::uint32_t invokeId, mms::RequestService &request) {
                if (const auto *read = std::get_if<mms::ReadRequest>(&request))
                    countLook(*read);
                const auto *write = std::get_if<mms::WriteRequest>(&request);
                if (!write || m_isInside)
                    return false;
                const auto &places = std::get<std::vector<mms::VariableAccess>>(write->variables);
                const QString name = QString::fromStdString(mms::toText(places.front()));
                const QString text = name.section(QLatin1Char('$'), -1) + QLatin1Char('=') +
                                     QString::fromStdString(mms::toText(write->values.front()));
                const Fate fate = decide ? decide(text) : Fate::Done;
                {
                    const std::lock_guard<std::mutex> lock(m_mutex);
                    m_all.append(text);
                }
                if (fate == Fate::Refused) {
                    mms::WriteResponse response;
                    response.results.emplace_back(mms::DataAccessError::TemporarilyUnavailable);
                    association->respond(invokeId, response);
                } else if (fate == Fate::Unanswered) {
                    // Nobody waits for the answer to this one.
                    m_isInside = true;
                    ied.device()->request(association, invokeId + (1U << 30U), *write);
                    m_isInside = false;
                }
                return fate != Fate::Done;
            });
        ied.start();
    }

    /// How often somebody has looked at report control blocks so far.
    int looks() const { return m_looks; }
    QStringList all() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_all;
    }
    void clear()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_all.clear();
    }

private:
    void countLook(const mms::ReadRequest &read)
    {
        const auto *places = std::get_if<std::vector<mms::VariableAccess>>(&read.variables);
        if (!places || places->empty())
            return;
        const std::string name = mms::toText(places->front());
        if (name.find("$RP$") != std::string::npos || name.find("$BR$") != std::string::npos)
            ++m_looks;
    }

    std::atomic<int> m_looks{0};
    mutable std::mutex m_mutex;
    QStringList m_all;
    std::atomic<bool> m_isInside{false};
};

} // namespace

class tst_OddReports : public QObject
{
    Q_OBJECT

private slots:
    void whatTriggersDoNotCoverStaysCurrent();
    void aLostReportIsToldAndMadeGood();
    void aLostReportWithoutASuccessorIsMadeGood();
    void aLostSegmentIsMadeGood();
    void anOverflowIsToldUntilAnInterrogation();
    void aReportThatCannotBeDecodedIsToldAndPolledFor();
    void aReportOfAnotherDataSetIsToldAndMadeGood();
    void blocksOfOneIdentifierAreToldApart();
    void aBlockThatAnotherClientTookIsLeftAlone();
    void disablingEndsTheWaitingForABlock();
    void whoHasABlockIsTold();
    void anEnablingWithoutAnswerIsUndone();
    void anEnablingThatIsGivenUpIsUndone();
    void whatCannotBeUndoneIsInTheJournal();
    void withoutEntryIdsTheBlocksOwnIsUsed();
    void aBufferIsNotReplayedAfterARestartOfTheDriver();
    void anUnknownEntryIsTold();
    void whatWasNotEditedIsNotWritten();
    void aRefusedDisablingKeepsTheReservation();
    void everyReportIsAnEvent();
};

void tst_OddReports::whatTriggersDoNotCoverStaysCurrent()
{
    SimulatedIed ied(stationFile);
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(100);
    Station station(configuration);
    QVERIFY(station.isOnline());
    ReportBlock block = dialogBlock(false);
    block.trgOps = 0x44; // data change and interrogation
    QVERIFY2(station.enable(unbuffered, block), qPrintable(station.error()));
    station.listener().clear();
    ied.set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$q",
            mms::Data::bitString(mms::BitString::fromText("0100000000000")));
    QVERIFY(station.listener().waitForValue("BAY1E1CTRL/QA1CSWI1$ST$Pos$q",
                                            QVariant(QStringLiteral("0100000000000"))));
}

void tst_OddReports::aLostReportIsToldAndMadeGood()
{
    ReportHand hand;
    SimulatedIed ied(stationFile, {}, {}, hand.options());
    ied.set("BAY1E1CTRL", breakerItem, position("01"));
    ied.set("BAY1E1CTRL", disconnectorItem, position("01"));
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(unbuffered, dialogBlock(false)), qPrintable(station.error()));
    QVERIFY(station.write(unbuffered, "GI", "\1"));
    QVERIFY(station.listener().waitForValue(breaker, 1));
    std::atomic<int> left{1};
    hand.set([&left](mms::InformationReport &) { return left-- <= 0; });
    station.listener().clear();
    ied.set("BAY1E1CTRL", breakerItem, position("10"));
    ied.set("BAY1E1CTRL", disconnectorItem, position("10"));
    QVERIFY(station.listener().waitForValue(disconnector, 2));
    QVERIFY(station.listener().waitForValue(breaker, 2));
    QTRY_VERIFY_WITH_TIMEOUT(station.isWell(), 20000);
    QVERIFY2(station.wasTold("Reports of BAY1E1CTRL/LLN0$RP$urcbPositions01 are missing"),
             qPrintable(station.reasons().join('\n')));
    QCOMPARE(station.counters().reportGaps, std::uint64_t(1));
    QCOMPARE(station.counters().dataSetReadings, std::uint64_t(1));
    const QList<ReportEvent> events = station.events();
    QVERIFY(std::any_of(events.begin(), events.end(),
                        [](const ReportEvent &event) { return !event.missing.isEmpty(); }));
}

void tst_OddReports::aLostReportWithoutASuccessorIsMadeGood()
{
    ReportHand hand;
    SimulatedIed ied(stationFile, {}, {}, hand.options());
    ied.set("BAY1E1CTRL", breakerItem, position("01"));
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(unbuffered, dialogBlock(false)), qPrintable(station.error()));
    QVERIFY(station.write(unbuffered, "GI", "\1"));
    QVERIFY(station.listener().waitForValue(breaker, 1));
    hand.set([](mms::InformationReport &) { return false; });
    for (const char *bits : {"00", "01", "00", "10"})
        ied.set("BAY1E1CTRL", breakerItem, position(bits));
    // Nothing comes any more that could show a gap, but the block counts what it has sent.
    QVERIFY(station.listener().waitForValue(breaker, 2));
    QCOMPARE(station.counters().reportGaps, std::uint64_t(1));
}

void tst_OddReports::aLostSegmentIsMadeGood()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("segments.icd");
    const IndicatorFile file("SEGMENTS", 1, 100);
    QVERIFY(file.write(path));
    ReportHand hand;
    SimulatedIed ied(path, {}, {}, hand.options());
    DeviceConfiguration configuration = Station::unpolled(ied);
    configuration.maxPduSize = DeviceConfiguration::smallestPduSize;
    configuration.sclFile = path;
    Station station(configuration);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable("LLN0$RP$urcb1", dialogBlock(false), file.domain()),
             qPrintable(station.error()));
    std::atomic<int> number{0};
    hand.set([&number](mms::InformationReport &) { return ++number != 2; });
    station.listener().clear();
    ied.act([&](sim::Device &device) {
        const sim::Model::Batch batch(device.model());
        for (int i = 0; i < file.size(); ++i) {
            device.model().set(device.model().find(file.domain().toStdString(),
                                                   file.item(i).toStdString() + "$stVal"),
                               mms::Data::boolean(true));
        }
    });
    for (int i = 0; i < file.size(); ++i)
        QVERIFY(station.listener().waitForValue(file.reference(i) + "$stVal", true));
    QVERIFY(number > 2);
    QVERIFY(station.counters().reportGaps >= 1);
    QTRY_VERIFY_WITH_TIMEOUT(station.isWell(), 20000);
}

void tst_OddReports::anOverflowIsToldUntilAnInterrogation()
{
    ReportHand hand;
    SimulatedIed ied(stationFile, {}, {}, hand.options());
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(buffered, dialogBlock(true)), qPrintable(station.error()));
    std::atomic<int> left{1};
    hand.set([&left](mms::InformationReport &information) {
        auto report = acsi::decodeReport(information);
        if (!report || left-- <= 0)
            return true;
        report->bufOvfl = true;
        information = acsi::encodeReport(*report);
        return true;
    });
    ied.set("BAY1E1CTRL", breakerItem, position("01"));
    ied.set("BAY1E1CTRL", breakerItem, position("10"));
    const QString sentence = QStringLiteral(
        "The buffer of BAY1E1CTRL/LLN0$BR$brcbPositions01 has overflown: older changes are lost.");
    QVERIFY(station.listener().waitForStatus(
        1, [&](const DeviceStatus &status) { return status.reason == sentence; }));
    QVERIFY(station.counters().reportGaps >= 1);
    QTRY_VERIFY_WITH_TIMEOUT(station.counters().dataSetReadings >= 1, 20000);
    // What is lost stays lost when the data has been read.
    QCOMPARE(station.driver().status(1).reason, sentence);
    QVERIFY2(station.write(buffered, "GI", "\1"), qPrintable(station.error()));
    QTRY_VERIFY_WITH_TIMEOUT(station.isWell(), 20000);
}

void tst_OddReports::aReportThatCannotBeDecodedIsToldAndPolledFor()
{
    ReportHand hand;
    SimulatedIed ied(stationFile, {}, {}, hand.options());
    ied.set("BAY1E1CTRL", breakerItem, position("01"));
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = std::chrono::milliseconds(100);
    Station station(configuration);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(unbuffered, dialogBlock(false)), qPrintable(station.error()));
    // Data references are announced and missing.
    hand.set([](mms::InformationReport &information) {
        auto &fields = information.results.at(1).data();
        acsi::OptFlds announced = acsi::OptFlds::from(fields.bits());
        announced.dataReference = true;
        fields = mms::Data::bitString(announced.toBits());
        return true;
    });
    for (const int value : {2, 1, 2}) {
        ied.set("BAY1E1CTRL", breakerItem, position(value == 2 ? "10" : "01"));
        QVERIFY(station.listener().waitForValue(breaker, value));
    }
    QVERIFY2(station.wasTold("A report of the device could not be read: "),
             qPrintable(station.reasons().join('\n')));
    QVERIFY(station.counters().unreadableReports >= 1);
    hand.set({});
    station.listener().clear();
    QTRY_VERIFY_WITH_TIMEOUT(station.isWell(), 20000);
}

void tst_OddReports::aReportOfAnotherDataSetIsToldAndMadeGood()
{
    ReportHand hand;
    SimulatedIed ied(stationFile, {}, {}, hand.options());
    ied.set("BAY1E1CTRL", breakerItem, position("01"));
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(unbuffered, dialogBlock(false)), qPrintable(station.error()));
    QVERIFY(station.write(unbuffered, "GI", "\1"));
    QVERIFY(station.listener().waitForValue(breaker, 1));
    hand.set([](mms::InformationReport &information) {
        auto report = acsi::decodeReport(information);
        if (report) {
            report->datSet = "BAY1E1CTRL/LLN0$Supervision";
            information = acsi::encodeReport(*report);
        }
        return true;
    });
    station.listener().clear();
    ied.set("BAY1E1CTRL", breakerItem, position("10"));
    QVERIFY(station.listener().waitForValue(breaker, 2));
    const MMSValue value = station.listener().value(breaker);
    QCOMPARE(value.cause, quint32(PublishCause::Polled));
    QVERIFY2(station.wasTold("is of another data set than the block had"),
             qPrintable(station.reasons().join('\n')));
    QTRY_VERIFY_WITH_TIMEOUT(station.isWell(), 20000);
}

void tst_OddReports::blocksOfOneIdentifierAreToldApart()
{
    const QTemporaryDir folder;
    const IndicatorFile file("TWINS", 2, 10);
    QVERIFY(file.write(folder.filePath("twins.icd")));
    SimulatedIed ied(folder.filePath("twins.icd"));
    Station station(ied);
    QVERIFY(station.isOnline());
    ReportBlock block = dialogBlock(false);
    block.rptId = QStringLiteral("same");
    block.optFlds[0] = 0x60; // without data set name
    for (const char *name : {"LLN0$RP$urcb1", "LLN0$RP$urcb2"})
        QVERIFY2(station.enable(name, block, file.domain()), qPrintable(station.error()));
    QCOMPARE(station.block("LLN0$RP$urcb1", file.domain()).optFldsText.at(4), QLatin1Char('0'));
    QCOMPARE(station.block("LLN0$RP$urcb2", file.domain()).optFldsText.at(4), QLatin1Char('1'));
    station.listener().clear();
    for (const int index : {13, 4, 17, 8}) {
        ied.set(file.domain().toStdString(), file.item(index).toStdString() + "$stVal",
                mms::Data::boolean(true));
        QVERIFY(station.listener().waitForValue(file.reference(index) + "$stVal", true));
        const int twin = (index + 10) % 20;
        QVERIFY(station.listener().value(file.reference(twin) + "$stVal").value != true);
    }
    QVERIFY(station.isWell());
}

void tst_OddReports::aBlockThatAnotherClientTookIsLeftAlone()
{
    SimulatedIed ied(stationFile);
    Writes writes(ied);
    Station first(ied);
    Station second(ied);
    QVERIFY(first.isOnline() && second.isOnline());
    QVERIFY2(first.enable(unbuffered, dialogBlock(false)), qPrintable(first.error()));
    QCOMPARE(first.driver().abortClose(1), OperationSucceeded);
    QVERIFY(first.listener().waitForState(1, DeviceState::Disconnected));
    QTRY_VERIFY_WITH_TIMEOUT(!isEnabled(ied, unbuffered), 20000);
    QVERIFY2(second.enable(unbuffered, dialogBlock(false)), qPrintable(second.error()));
    writes.clear();
    first.listener().clear();
    first.driver().connectDevice(1);
    QVERIFY(first.listener().waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online &&
               status.reason.contains("is enabled by another association of this computer");
    }));
    // Two more looks at it, and two by the other one.
    const int looks = writes.looks();
    QTRY_VERIFY_WITH_TIMEOUT(writes.looks() >= looks + 4, 60000);
    QCOMPARE(writes.all(), QStringList());
    QCOMPARE(first.listener().changes().size(), 1);
    QVERIFY(first.listener().changes().first().error.contains("It was left alone."));
    QVERIFY(second.disable(unbuffered));
    QVERIFY(first.listener().waitForStatus(
        1, [](const DeviceStatus &status) { return status.reason.isEmpty(); }));
    QVERIFY(isEnabled(ied, unbuffered));
    QCOMPARE(first.listener().changes().size(), 2);
}

void tst_OddReports::disablingEndsTheWaitingForABlock()
{
    SimulatedIed ied(stationFile);
    Writes writes(ied);
    Station first(ied);
    Station second(ied);
    QVERIFY(first.isOnline() && second.isOnline());
    // Of two blocks that somebody else has, one is given up. The other is still looked at.
    for (const QString &name : {unbuffered, buffered})
        QVERIFY2(first.enable(name, dialogBlock(name == buffered)), qPrintable(first.error()));
    QCOMPARE(first.driver().abortClose(1), OperationSucceeded);
    QVERIFY(first.listener().waitForState(1, DeviceState::Disconnected));
    for (const QString &name : {unbuffered, buffered}) {
        QTRY_VERIFY_WITH_TIMEOUT(!isEnabled(ied, name), 20000);
        QVERIFY2(second.enable(name, dialogBlock(name == buffered)), qPrintable(second.error()));
    }
    first.driver().connectDevice(1);
    QVERIFY(first.listener().waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.reason.contains("is enabled by");
    }));
    QVERIFY2(first.disable(unbuffered), qPrintable(first.error()));
    QVERIFY(isEnabled(ied, unbuffered));
    QVERIFY(second.disable(unbuffered));
    // Every block is looked at after the same time: whoever has looked twice at the other one,
    // first and second alike, would have taken this one by now.
    const int looks = writes.looks();
    QTRY_VERIFY_WITH_TIMEOUT(writes.looks() >= looks + 4, 60000);
    QVERIFY(!isEnabled(ied, unbuffered));
    QVERIFY(second.disable(buffered));
    QTRY_VERIFY_WITH_TIMEOUT(isEnabled(ied, buffered), 20000);
    QVERIFY(!isEnabled(ied, unbuffered));
}

void tst_OddReports::whoHasABlockIsTold()
{
    SimulatedIed ied(stationFile);
    Station first(ied);
    Station second(ied);
    QVERIFY(first.isOnline() && second.isOnline());
    QVERIFY2(first.enable(buffered, dialogBlock(true)), qPrintable(first.error()));
    const QString sentence =
        QStringLiteral("BAY1E1CTRL/LLN0$BR$brcbPositions01 is enabled by another association of "
                       "this computer (127.0.0.1).");
    // As the dialog does when it opens.
    QVERIFY(second.block(buffered).rptEna);
    QCOMPARE(second.driver().status(1).reason, sentence);
    QVERIFY(!second.enable(buffered, dialogBlock(true)));
    QCOMPARE(second.error(), sentence + " It was left alone.");
    QVERIFY(!second.disable(buffered));
    QVERIFY2(second.error().contains("another association of this computer"),
             qPrintable(second.error()));
    QVERIFY(!second.write(buffered, "BufTm", QByteArray("\0\0\0\7", 4)));
    QVERIFY2(second.error().endsWith(sentence), qPrintable(second.error()));
    QVERIFY(isEnabled(ied, buffered));
    // The one that has it is told nothing of the kind.
    QVERIFY(first.block(buffered).rptEna);
    QVERIFY(first.isWell());
    QVERIFY(first.disable(buffered));
    QVERIFY(second.listener().waitForStatus(
        1, [](const DeviceStatus &status) { return status.reason.isEmpty(); }));
}

void tst_OddReports::anEnablingWithoutAnswerIsUndone()
{
    SimulatedIed ied(stationFile);
    Writes writes(ied, [](const QString &write) {
        return write == QLatin1String("RptEna=true") ? Writes::Fate::Unanswered
                                                     : Writes::Fate::Done;
    });
    DeviceConfiguration configuration = Station::unpolled(ied);
    configuration.callTimeout = std::chrono::milliseconds(1000);
    Station station(configuration);
    QVERIFY(station.isOnline());
    const std::string before = textOf(ied, unbuffered, "RptID");
    ReportBlock block = dialogBlock(false);
    block.rptId = QStringLiteral("mine");
    QVERIFY(!station.enable(unbuffered, block));
    QVERIFY2(!station.error().contains("127.0.0.1"), qPrintable(station.error()));
    QTRY_VERIFY_WITH_TIMEOUT(!isEnabled(ied, unbuffered), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(textOf(ied, unbuffered, "RptID"), before, 20000);
    QTRY_COMPARE_WITH_TIMEOUT(textOf(ied, unbuffered, "Resv"), std::string("false"), 20000);
    // The try, and what the driver has undone by itself.
    QVERIFY(station.listener().waitForChanges(2));
    const QList<DeviceChange> changes = station.listener().changes();
    QCOMPARE(changes.size(), 2);
    QVERIFY(!changes.first().error.isEmpty() && !changes.first().isDriversOwn);
    QVERIFY(changes.last().error.isEmpty() && changes.last().isDriversOwn);
}

void tst_OddReports::anEnablingThatIsGivenUpIsUndone()
{
    SimulatedIed ied(stationFile);
    Writes writes(ied, [](const QString &write) {
        return write == QLatin1String("RptEna=true") ? Writes::Fate::Unanswered
                                                     : Writes::Fate::Done;
    });
    DeviceConfiguration configuration = Station::unpolled(ied);
    configuration.callTimeout = std::chrono::milliseconds(3000);
    configuration.operationTimeout = configuration.callTimeout;
    Station station(configuration);
    QVERIFY(station.isOnline());
    const std::string before = textOf(ied, unbuffered, "RptID");
    ReportBlock block = dialogBlock(false);
    block.rptId = QStringLiteral("mine");
    QVERIFY(!station.enable(unbuffered, block));
    QVERIFY2(station.error().contains("has not finished"), qPrintable(station.error()));
    QTRY_VERIFY_WITH_TIMEOUT(!isEnabled(ied, unbuffered), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(textOf(ied, unbuffered, "RptID"), before, 20000);
    QTRY_COMPARE_WITH_TIMEOUT(textOf(ied, unbuffered, "Resv"), std::string("false"), 20000);
    QVERIFY(station.listener().waitForChanges(1));
    QVERIFY(station.listener().changes().first().error.contains("was not enabled in time"));
}

void tst_OddReports::whatCannotBeUndoneIsInTheJournal()
{
    SimulatedIed ied(stationFile);
    std::atomic<bool> isWritten{false};
    Writes writes(ied, [&isWritten](const QString &write) {
        if (write.startsWith(QLatin1String("RptID="))) {
            return isWritten.exchange(true) ? Writes::Fate::Refused : Writes::Fate::Done;
        }
        return write.startsWith(QLatin1String("RptEna=true")) ? Writes::Fate::Refused
                                                              : Writes::Fate::Done;
    });
    Station station(ied);
    QVERIFY(station.isOnline());
    ReportBlock block = dialogBlock(false);
    block.rptId = QStringLiteral("mine");
    QVERIFY(!station.enable(unbuffered, block));
    QVERIFY(station.listener().waitForChanges(2));
    QVERIFY2(station.listener().changes().last().error.endsWith("as it was written: RptID."),
             qPrintable(station.listener().changes().last().error));
}

void tst_OddReports::withoutEntryIdsTheBlocksOwnIsUsed()
{
    SimulatedIed ied(stationFile);
    ied.set("BAY1E1CTRL", breakerItem, position("01"));
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(buffered, dialogBlock(true, false)), qPrintable(station.error()));
    QCOMPARE(station.block(buffered).optFldsText.at(7), QLatin1Char('0'));
    ied.set("BAY1E1CTRL", breakerItem, position("10"));
    QVERIFY(station.listener().waitForValue(breaker, [](const MMSValue &value) {
        return value.value == 2 && (value.cause & PublishCause::Report) != 0;
    }));
    const std::uint64_t before = station.counters().reports;
    // Left in an orderly way, the driver asks the block how far it has come.
    station.driver().disconnectDevice(1);
    QVERIFY(station.listener().waitForState(1, DeviceState::Disconnected));
    station.listener().clear();
    ied.set("BAY1E1CTRL", disconnectorItem, position("00"));
    ied.set("BAY1E1CTRL", disconnectorItem, position("10"));
    station.driver().connectDevice(1);
    QVERIFY(station.listener().waitForValue(disconnector, 2));
    QTRY_COMPARE_WITH_TIMEOUT(station.counters().reports, before + 2, 20000);
    const QList<MMSValue> again = station.listener().history(breaker);
    QVERIFY(std::none_of(again.begin(), again.end(), [](const MMSValue &value) {
        return (value.cause & PublishCause::Report) != 0;
    }));
}

void tst_OddReports::aBufferIsNotReplayedAfterARestartOfTheDriver()
{
    const QTemporaryDir folder;
    SimulatedIed ied(stationFile);
    ied.set("BAY1E1CTRL", breakerItem, position("01"));
    for (int round = 0; round < 3; ++round) {
        Station station(Station::unpolled(ied), folder.path());
        QVERIFY(station.isOnline());
        station.listener().clear();
        QVERIFY2(station.enable(buffered, dialogBlock(true)), qPrintable(station.error()));
        for (const char *bits : {"00", round % 2 == 0 ? "10" : "01"})
            ied.set("BAY1E1CTRL", breakerItem, position(bits));
        QVERIFY(station.listener().waitForValue(breaker, round % 2 == 0 ? 2 : 1));
        QTRY_VERIFY_WITH_TIMEOUT(station.events().size() >= 2, 20000);
        // The entries of this round, and none of the rounds before.
        if (round > 0)
            QCOMPARE(station.events().size(), 2);
    }
    // With another setting the device has emptied the buffer: nothing to go on behind.
    Station station(Station::unpolled(ied), folder.path());
    QVERIFY(station.isOnline());
    ReportBlock changed = dialogBlock(true);
    changed.bufTm = 1;
    QVERIFY2(station.enable(buffered, changed), qPrintable(station.error()));
    QVERIFY(station.isWell());
    QCOMPARE(station.counters().reportGaps, std::uint64_t(0));
}

void tst_OddReports::anUnknownEntryIsTold()
{
    SimulatedIed ied(stationFile);
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(buffered, dialogBlock(true)), qPrintable(station.error()));
    ied.set("BAY1E1CTRL", breakerItem, position("00"));
    ied.set("BAY1E1CTRL", breakerItem, position("10"));
    QVERIFY(station.listener().waitForValue(breaker, 2));
    // A device that was started anew knows no entry of the time before.
    ied.stop();
    QVERIFY(station.listener().waitForState(1, DeviceState::Waiting));
    ied.start();
    QVERIFY(station.listener().waitForChanges(2));
    QTRY_VERIFY_WITH_TIMEOUT(station.counters().reportGaps == 1, 20000);
    QTRY_VERIFY_WITH_TIMEOUT(
        station.wasTold("does not know the last entry of BAY1E1CTRL/LLN0$BR$brcbPositions01"),
        20000);
    QTRY_VERIFY_WITH_TIMEOUT(station.isWell(), 20000);
}

void tst_OddReports::whatWasNotEditedIsNotWritten()
{
    SimulatedIed ied(stationFile);
    Writes writes(ied);
    Station station(ied);
    QVERIFY(station.isOnline());
    // An identifier that is no UTF-8, and periods that the form cannot show.
    QVERIFY(station.write(unbuffered, "RptID", QByteArray("\xc4pfel")));
    QVERIFY(station.write(unbuffered, "IntgPd", QByteArray("\0\3\x0d\x40", 4))); // 200,000
    QVERIFY(station.write(unbuffered, "BufTm", QByteArray("\0\3\x0d\x40", 4)));
    const std::string identifier = textOf(ied, unbuffered, "RptID");
    const ReportBlock shown = station.block(unbuffered);
    QCOMPARE(shown.intgPd, 200000);
    writes.clear();
    ReportBlock edited = shown;
    edited.intgPd = 100000;
    edited.bufTm = 99999;
    QVERIFY2(station.enable(unbuffered, edited), qPrintable(station.error()));
    QCOMPARE(writes.all(), (QStringList{"Resv=true", "RptEna=true"}));
    QCOMPARE(textOf(ied, unbuffered, "RptID"), identifier);
    QVERIFY(station.disable(unbuffered));
    // "Change" beside an identifier that was left as it is keeps its octets.
    QVERIFY(station.write(unbuffered, "RptID", shown.rptId.toUtf8()));
    QCOMPARE(textOf(ied, unbuffered, "RptID"), identifier);
    writes.clear();
    edited = station.block(unbuffered);
    edited.bufTm = 7;
    QVERIFY2(station.enable(unbuffered, edited), qPrintable(station.error()));
    QCOMPARE(writes.all(), (QStringList{"Resv=true", "BufTm=7", "RptEna=true"}));
}

void tst_OddReports::aRefusedDisablingKeepsTheReservation()
{
    SimulatedIed ied(stationFile);
    Writes writes(ied, [](const QString &write) {
        return write == QLatin1String("RptEna=false") ? Writes::Fate::Refused : Writes::Fate::Done;
    });
    Station station(ied);
    QVERIFY(station.isOnline());
    QVERIFY2(station.enable(unbuffered, dialogBlock(false)), qPrintable(station.error()));
    writes.clear();
    QVERIFY(!station.disable(unbuffered));
    QCOMPARE(writes.all(), QStringList("RptEna=false"));
    QVERIFY(station.block(unbuffered).resv);
    // Its reports are still taken.
    station.listener().clear();
    ied.set("BAY1E1CTRL", breakerItem, position("00"));
    ied.set("BAY1E1CTRL", breakerItem, position("10"));
    QVERIFY(station.listener().waitForValue(breaker, 2));
}

void tst_OddReports::everyReportIsAnEvent()
{
    SimulatedIed ied(stationFile);
    ied.set("BAY1E1CTRL", breakerItem, position("00"));
    Station station(ied);
    QVERIFY(station.isOnline());
    ReportBlock block = dialogBlock(true);
    block.bufTm = 0;
    QVERIFY2(station.enable(buffered, block), qPrintable(station.error()));
    constexpr int changes = 200;
    ied.act([&](sim::Device &device) {
        for (int i = 0; i < changes; ++i) {
            device.model().set(device.model().find("BAY1E1CTRL", breakerItem),
                               position(i % 2 == 0 ? "01" : "10"));
        }
    });
    QTRY_VERIFY_WITH_TIMEOUT(station.events().size() >= changes, 20000);
    const QList<ReportEvent> events = station.events();
    QCOMPARE(events.size(), changes);
    for (int i = 0; i < changes; ++i) {
        const ReportEvent &event = events.at(i);
        QCOMPARE(event.number, 1);
        QCOMPARE(event.block, control + '/' + buffered);
        QCOMPARE(*event.sequenceNumber, quint32(i));
        QCOMPARE(event.entryId.size(), 8);
        QVERIFY(!event.timeOfEntry.isEmpty());
        QVERIFY(event.arrival.isValid());
        QVERIFY(event.missing.isEmpty());
        const auto member =
            std::find_if(event.members.begin(), event.members.end(),
                         [](const ReportEventMember &each) { return each.reference == breaker; });
        QVERIFY(member != event.members.end());
        QCOMPARE(member->value.toInt(), i % 2 == 0 ? 1 : 2);
        QCOMPARE(*member->reason, 1U);
        QCOMPARE(member->quality.size(), 13);
        QVERIFY(!member->timeStamp.isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_OddReports)
#include "tst_oddreports.moc"
