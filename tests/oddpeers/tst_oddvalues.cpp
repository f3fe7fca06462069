// SPDX-License-Identifier: Apache-2.0
#include "indicatorfile.h"
#include "simulatedstation.h"

#include "acsi/reference.h"

#include "model/iedmodel.h"
#include "model/scltemplatestore.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <map>

using namespace drivertest;
using mms::DataAccessError;
using std::chrono::milliseconds;

namespace {

bool isAtOrBelow(const std::string &item, const std::string &whole)
{
    return item.compare(0, whole.size(), whole) == 0 &&
           (item.size() == whole.size() || item[whole.size()] == '$');
}

/// A device that reads otherwise: refuses data, and with it all that contains it, keeps silent when
/// it is asked for some, or answers later. Set up from any thread.
class OddReads
{
public:
    explicit OddReads(const QString &file, sim::DeviceOptions options = {})
        : m_ied(
              file, {}, {}, std::move(options),
              [this](const std::shared_ptr<mms::Association> &association, std::uint32_t invokeId,
                     mms::RequestService &request) { return take(association, invokeId, request); })
    {
    }

    SimulatedIed &ied() { return m_ied; }

    void refuse(const std::string &item, DataAccessError error)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_refused[item] = error;
    }
    void keepSilent(const std::string &item)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_silent = item;
    }
    /// The next answer that holds the item is kept until release().
    void hold(const std::string &item)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_held = item;
    }
    bool isHolding() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_isHolding;
    }
    /// In time for the call.
    void release()
    {
        m_ied.act([this](sim::Device &) {
            m_association->respond(m_invokeId, std::move(m_response));
            m_association.reset();
        });
    }
    void refuseWrites() { m_refusesWrites = true; }
    void beNormal()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_refused.clear();
        m_silent.clear();
        m_held.clear();
    }
    /// How often that item was asked for, itself.
    int asked(const std::string &item) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = m_asked.find(item);
        return found == m_asked.end() ? 0 : found->second;
    }

private:
    bool take(const std::shared_ptr<mms::Association> &association, std::uint32_t invokeId,
              const mms::RequestService &request)
    {
        if (const auto *write = std::get_if<mms::WriteRequest>(&request);
            write && m_refusesWrites) {
            mms::WriteResponse response;
            response.results.assign(write->values.size(), DataAccessError::ObjectAccessDenied);
            association->respond(invokeId, std::move(response));
            return true;
        }
        const auto *read = std::get_if<mms::ReadRequest>(&request);
        const auto *variables =
            read ? std::get_if<std::vector<mms::VariableAccess>>(&read->variables) : nullptr;
        return variables && take(association, invokeId, *variables);
    }

    bool take(const std::shared_ptr<mms::Association> &association, std::uint32_t invokeId,
              const std::vector<mms::VariableAccess> &variables)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const std::shared_ptr<sim::Device> device = m_ied.device();
        mms::ReadResponse response;
        bool isHeld = false;
        for (const mms::VariableAccess &variable : variables) {
            const auto reference = acsi::referenceOf(variable);
            if (!reference)
                return false;
            const std::string item = acsi::itemText(*reference);
            ++m_asked[item];
            if (!m_silent.empty() && (isAtOrBelow(m_silent, item) || isAtOrBelow(item, m_silent)))
                return true;
            isHeld = isHeld || (!m_held.empty() && isAtOrBelow(m_held, item));
            const auto refused =
                std::find_if(m_refused.begin(), m_refused.end(), [&](const auto &each) {
                    return isAtOrBelow(each.first, item) || isAtOrBelow(item, each.first);
                });
            if (refused != m_refused.end()) {
                response.results.emplace_back(refused->second);
                continue;
            }
            simtest::RecordingClient client;
            response.results.push_back(
                device->access().read(client, device->model().find(reference->device, item)));
        }
        if (!isHeld) {
            if (m_refused.empty())
                return false;
            association->respond(invokeId, std::move(response));
            return true;
        }
        m_held.clear();
        m_isHolding = true;
        m_association = association;
        m_invokeId = invokeId;
        m_response = std::move(response);
        return true;
    }

    std::atomic<bool> m_refusesWrites{false};
    mutable std::mutex m_mutex;
    std::map<std::string, DataAccessError> m_refused;
    std::string m_silent;
    std::string m_held;
    bool m_isHolding = false;
    std::map<std::string, int> m_asked;
    std::shared_ptr<mms::Association> m_association;
    std::uint32_t m_invokeId = 0;
    mms::ReadResponse m_response;
    SimulatedIed m_ied; ///< the last: its thread uses all the others
};

} // namespace

/// Values of devices that answer late, in parts, or not at all: what the driver takes for current.
class tst_OddValues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void anOutageSaysSinceWhenItLasts();
    void theValuesOfALostDeviceAreKnownToBeOld();

    void aNodeThatIsRefusedForOneValueIsReadInParts();
    void anOperatorsReadOfARefusedNodeIsReadInParts();
    void aNodeThatIsTooLargeForAnAnswerIsReadInPartsFromThenOn();
    void whatIsUnavailableForAWhileComesBackByItself();
    void whatIsRefusedComesBackByAReadByHand();
    void aNodeThatDoesNotAnswerFreezesNothing();

    void anOlderAnswerDoesNotOverwriteANewerRead();
    void anOlderAnswerDoesNotOverwriteAnAcceptedWrite();

    void aQualityThatAloneTurnsBadSendsTheValueAgain();
    void notANumberIsPublishedOnceAndASmallChangeIsAChange();

    void aRefusedWriteShowsTheDevicesValueAgain();
    void theSameTextIsSentAgainAfterARefusal();

private:
    bool connect(SimulatedIed &ied, milliseconds pollInterval,
                 milliseconds callTimeout = milliseconds(1000));
    bool waitForPolls(SimulatedIed &ied);

    QTemporaryDir m_folder;
    IndicatorFile m_file{"ODD", 3, 2};
    QString m_path;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    QString m_error;
    bool m_pulse = false;
};

void tst_OddValues::initTestCase()
{
    m_path = m_folder.filePath(QStringLiteral("odd.icd"));
    QVERIFY(m_file.write(m_path));
}

void tst_OddValues::init()
{
    m_listener = std::make_unique<Listener>();
    m_driver = std::make_unique<ServedDriver>(m_listener->options());
    m_pulse = false;
}

void tst_OddValues::cleanup()
{
    m_driver.reset();
    m_listener.reset();
}

bool tst_OddValues::connect(SimulatedIed &ied, milliseconds pollInterval, milliseconds callTimeout)
{
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = pollInterval;
    configuration.callTimeout = callTimeout;
    if (m_driver->setDevice(configuration) != QStringList())
        return false;
    m_driver->connectDevice(1);
    const bool isOnline = m_listener->waitForState(1, DeviceState::Online);
    if (!isOnline)
        qWarning("%s", qPrintable(m_driver->status(1).reason));
    return isOnline;
}

/// Until values have been polled that changed since.
bool tst_OddValues::waitForPolls(SimulatedIed &ied)
{
    for (int i = 0; i < 2; ++i) {
        m_pulse = !m_pulse;
        ied.set("ODDLD", "GGIO1$ST$Ind1$stVal", mms::Data::boolean(m_pulse));
        if (!m_listener->waitForValue("ODDLD/GGIO1$ST$Ind1$stVal", m_pulse))
            return false;
    }
    return true;
}

void tst_OddValues::theValuesOfALostDeviceAreKnownToBeOld()
{
    SimulatedIed ied(m_path);
    QVERIFY(connect(ied, milliseconds(100)));
    QVERIFY(waitForPolls(ied));
    QCOMPARE(m_driver->status(1).staleValues, 0);
    ied.stop();
    QVERIFY(m_listener->waitForState(1, DeviceState::Waiting));
    const DeviceStatus lost = m_driver->status(1);
    // Value, quality and time of each indication, and the configuration revision.
    QCOMPARE(lost.staleValues, 3 * m_file.size() + 1);
    QVERIFY(lost.staleSince.isValid());
    QVERIFY(lost.staleSince <= QDateTime::currentDateTime());
    ied.start();
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.staleValues == 0;
    }));
    QVERIFY(!m_driver->status(1).staleSince.isValid());
}

void tst_OddValues::aNodeThatIsRefusedForOneValueIsReadInParts()
{
    OddReads reads(m_path);
    SimulatedIed &ied = reads.ied();
    reads.refuse("GGIO2$ST$Ind1$t", DataAccessError::ObjectAccessDenied);
    QVERIFY(connect(ied, milliseconds(100)));
    QVERIFY(m_listener->waitForStatus(
        1, [](const DeviceStatus &status) { return status.refusedValues == 1; }));
    QCOMPARE(m_driver->status(1).reason,
             QStringLiteral("Values that the device refuses and that are not asked for again: 1 ("
                            "ODDLD/GGIO2$ST$Ind1$t)."));
    for (const char *item : {"GGIO2$ST$Ind1$stVal", "GGIO2$ST$Ind2$stVal"}) {
        ied.set("ODDLD", item, mms::Data::boolean(true));
        QVERIFY(m_listener->waitForValue(QStringLiteral("ODDLD/") + item, true));
    }
    // What is refused stays out.
    const int asked = reads.asked("GGIO2$ST$Ind1$t");
    const int whole = reads.asked("GGIO2$ST");
    QVERIFY(waitForPolls(ied));
    QCOMPARE(reads.asked("GGIO2$ST$Ind1$t"), asked);
    QCOMPARE(reads.asked("GGIO2$ST"), whole);
    QCOMPARE(m_driver->status(1).staleValues, 0);
}

void tst_OddValues::anOperatorsReadOfARefusedNodeIsReadInParts()
{
    OddReads reads(m_path);
    SimulatedIed &ied = reads.ied();
    QVERIFY(connect(ied, milliseconds(0)));
    reads.refuse("GGIO2$ST$Ind1$t", DataAccessError::ObjectAccessDenied);
    ied.set("ODDLD", "GGIO2$ST$Ind1$stVal", mms::Data::boolean(true));
    QCOMPARE(m_driver->readVariable(1, "ODDLD", {"GGIO2$ST"}, m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("GGIO2$ST$Ind1$t: "), qPrintable(m_error));
    QVERIFY2(!m_error.contains("stVal"), qPrintable(m_error));
    QVERIFY(m_listener->waitForValue("ODDLD/GGIO2$ST$Ind1$stVal", true));
    // Of what gives nothing at all the whole is named, and what is misspelt stops nothing.
    reads.refuse("GGIO3", DataAccessError::ObjectAccessDenied);
    ied.set("ODDLD", "GGIO2$ST$Ind2$stVal", mms::Data::boolean(true));
    QCOMPARE(m_driver->readVariable(1, "ODDLD", {"GGIO3$ST", "GGIO2$XX", "GGIO2$ST$Ind2"}, m_error),
             OperationFailed);
    QVERIFY2(m_error.contains("GGIO2$XX"), qPrintable(m_error));
    QVERIFY2(m_error.contains("GGIO3$ST: "), qPrintable(m_error));
    QVERIFY(m_listener->waitForValue("ODDLD/GGIO2$ST$Ind2$stVal", true));
}

void tst_OddValues::aNodeThatIsTooLargeForAnAnswerIsReadInPartsFromThenOn()
{
    const IndicatorFile file("ODD", 2, 100);
    const QString path = m_folder.filePath(QStringLiteral("large.icd"));
    QVERIFY(file.write(path));
    sim::DeviceOptions options;
    options.server.association.maxPduSize = 2000;
    OddReads reads(path, options);
    SimulatedIed &ied = reads.ied();
    QVERIFY(connect(ied, milliseconds(100)));
    for (const int index : {0, 99, 100, 199}) {
        ied.set("ODDLD", file.item(index).toStdString() + "$stVal", mms::Data::boolean(true));
        QVERIFY(m_listener->waitForValue(file.reference(index) + "$stVal", true));
    }
    const int whole = reads.asked("GGIO1$ST");
    const int parts = reads.asked("GGIO1$ST$Ind1");
    // More than one slow round, in which nothing is tried anew.
    for (int i = 0; i < 12; ++i)
        QVERIFY(waitForPolls(ied));
    QCOMPARE(reads.asked("GGIO1$ST"), whole);
    QVERIFY(reads.asked("GGIO1$ST$Ind1") > parts);
    QCOMPARE(m_driver->status(1).refusedValues, 0);
    QCOMPARE(m_driver->status(1).staleValues, 0);
}

void tst_OddValues::whatIsUnavailableForAWhileComesBackByItself()
{
    OddReads reads(m_path);
    SimulatedIed &ied = reads.ied();
    QVERIFY(connect(ied, milliseconds(100)));
    QVERIFY(waitForPolls(ied));
    reads.refuse("GGIO2$ST$Ind1", DataAccessError::TemporarilyUnavailable);
    QVERIFY(m_listener->waitForStatus(
        1, [](const DeviceStatus &status) { return status.staleValues == 3; }));
    QVERIFY2(m_driver->status(1).reason.contains("cannot give ODDLD/GGIO2$ST$Ind1 "),
             qPrintable(m_driver->status(1).reason));
    QCOMPARE(m_driver->status(1).refusedValues, 0);
    ied.set("ODDLD", "GGIO2$ST$Ind1$stVal", mms::Data::boolean(true));
    // The others are as they were.
    ied.set("ODDLD", "GGIO2$ST$Ind2$stVal", mms::Data::boolean(true));
    QVERIFY(m_listener->waitForValue("ODDLD/GGIO2$ST$Ind2$stVal", true));
    reads.beNormal();
    QVERIFY(m_listener->waitForValue("ODDLD/GGIO2$ST$Ind1$stVal", true));
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &status) {
        return status.staleValues == 0 && status.reason.isEmpty();
    }));
}

void tst_OddValues::whatIsRefusedComesBackByAReadByHand()
{
    OddReads reads(m_path);
    SimulatedIed &ied = reads.ied();
    reads.refuse("GGIO2$ST$Ind1$stVal", DataAccessError::ObjectAccessDenied);
    QVERIFY(connect(ied, milliseconds(100)));
    QVERIFY(m_listener->waitForStatus(
        1, [](const DeviceStatus &status) { return status.refusedValues == 1; }));
    reads.beNormal();
    QCOMPARE(m_driver->readVariable(1, "ODDLD", {"GGIO2$ST$Ind1"}, m_error), OperationSucceeded);
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &status) {
        return status.refusedValues == 0 && status.reason.isEmpty();
    }));
    ied.set("ODDLD", "GGIO2$ST$Ind1$stVal", mms::Data::boolean(true));
    QVERIFY(m_listener->waitForValue("ODDLD/GGIO2$ST$Ind1$stVal", true));
}

void tst_OddValues::aNodeThatDoesNotAnswerFreezesNothing()
{
    OddReads reads(m_path);
    SimulatedIed &ied = reads.ied();
    QVERIFY(connect(ied, milliseconds(100)));
    QVERIFY(waitForPolls(ied));
    reads.keepSilent("GGIO2$ST");
    // The silent part is found; the others are current again, and stay so.
    QVERIFY(m_listener->waitForStatus(
        1, [](const DeviceStatus &status) { return status.staleValues == 6; }));
    const DeviceStatus status = m_driver->status(1);
    QCOMPARE(status.state, DeviceState::Online);
    QVERIFY2(status.reason.contains("does not answer when it is asked for ODDLD/GGIO2$ST"),
             qPrintable(status.reason));
    QVERIFY(status.staleSince.isValid());
    for (int i = 0; i < 5; ++i)
        QVERIFY(waitForPolls(ied));
    ied.set("ODDLD", "GGIO2$ST$Ind1$stVal", mms::Data::boolean(true));
    reads.beNormal();
    QVERIFY(m_listener->waitForValue("ODDLD/GGIO2$ST$Ind1$stVal", true));
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &known) {
        return known.staleValues == 0 && known.reason.isEmpty();
    }));
}

void tst_OddValues::anOlderAnswerDoesNotOverwriteANewerRead()
{
    OddReads reads(m_path);
    SimulatedIed &ied = reads.ied();
    QVERIFY(connect(ied, milliseconds(100), milliseconds(8000)));
    QVERIFY(waitForPolls(ied));
    reads.hold("GGIO1$ST$Ind2$stVal");
    QTRY_VERIFY_WITH_TIMEOUT(reads.isHolding(), 10000);
    ied.set("ODDLD", "GGIO1$ST$Ind2$stVal", mms::Data::boolean(true));
    const QString reference = QStringLiteral("ODDLD/GGIO1$ST$Ind2$stVal");
    QCOMPARE(m_driver->readVariable(1, "ODDLD", {"GGIO1$ST$Ind2$stVal"}, m_error),
             OperationSucceeded);
    QVERIFY(m_listener->waitForValue(reference, true));
    m_listener->clear();
    reads.release();
    QVERIFY(waitForPolls(ied));
    for (const MMSValue &value : m_listener->history(reference))
        QCOMPARE(value.value, QVariant(true));
}

void tst_OddValues::anOlderAnswerDoesNotOverwriteAnAcceptedWrite()
{
    OddReads reads(QStringLiteral(STATION_FILE));
    SimulatedIed &ied = reads.ied();
    QVERIFY(connect(ied, milliseconds(100), milliseconds(8000)));
    const QString reference = QStringLiteral("BAY1E1CTRL/QA1CSWI1$CF$Pos$sboTimeout");
    const auto written = [this](quint32 value) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << QVariant(value);
        return m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", bytes,
                                       m_error) == OperationSucceeded &&
               m_driver->readVariable(1, "BAY1E1CTRL", {"QA1CSWI1$CF$Pos$sboTimeout"}, m_error) ==
                   OperationSucceeded;
    };
    QVERIFY2(written(41), qPrintable(m_error));
    QVERIFY(m_listener->waitForValue(reference, 41U));
    reads.hold("QA1CSWI1$CF$Pos$sboTimeout");
    QTRY_VERIFY_WITH_TIMEOUT(reads.isHolding(), 15000);
    QVERIFY2(written(42), qPrintable(m_error));
    QVERIFY(m_listener->waitForValue(reference, 42U));
    m_listener->clear();
    reads.release();
    // The next slow round finds the same.
    const int asked = reads.asked("QA1CSWI1$CF");
    QTRY_VERIFY_WITH_TIMEOUT(reads.asked("QA1CSWI1$CF") > asked + 1, 15000);
    for (const MMSValue &value : m_listener->history(reference))
        QCOMPARE(value.value, QVariant(42U));
}

void tst_OddValues::aQualityThatAloneTurnsBadSendsTheValueAgain()
{
    SimulatedIed ied(m_path);
    QVERIFY(connect(ied, milliseconds(100)));
    const QString reference = QStringLiteral("ODDLD/GGIO1$ST$Ind2$stVal");
    ied.set("ODDLD", "GGIO1$ST$Ind2$stVal", mms::Data::boolean(true));
    QVERIFY(m_listener->waitForValue(reference, true));
    m_listener->clear();
    // Nothing but "invalid".
    ied.set("ODDLD", "GGIO1$ST$Ind2$q",
            mms::Data::bitString(mms::BitString::fromText("0100000000000")));
    QVERIFY(m_listener->waitForValue(reference, [](const MMSValue &value) {
        return value.quality == "0100000000000" && value.value == true;
    }));
    // Also when the quality is asked for alone.
    ied.set("ODDLD", "GGIO1$ST$Ind2$q",
            mms::Data::bitString(mms::BitString::fromText("1100000000000")));
    QCOMPARE(m_driver->readVariable(1, "ODDLD", {"GGIO1$ST$Ind2$q"}, m_error), OperationSucceeded);
    QVERIFY(m_listener->waitForValue(reference, [](const MMSValue &value) {
        return value.quality == "1100000000000" && value.value == true;
    }));
}

void tst_OddValues::notANumberIsPublishedOnceAndASmallChangeIsAChange()
{
    SimulatedIed ied(QStringLiteral(STATION_FILE));
    QVERIFY(connect(ied, milliseconds(100)));
    const std::string item = "MMXU1$MX$TotW$mag$f";
    const QString reference = QStringLiteral("BAY1E1MEAS/MMXU1$MX$TotW$mag$f");
    ied.set("BAY1E1MEAS", item, mms::Data::float32(std::numeric_limits<float>::quiet_NaN()));
    QVERIFY(m_listener->waitForValue(
        reference, [](const MMSValue &value) { return std::isnan(value.value.toFloat()); }));
    m_listener->clear();
    const float small = 1.0F;
    const float next = std::nextafter(small, 2.0F);
    bool on = ied.value("BAY1E1IO", "GGIO1$ST$Ind1$stVal").toBoolean().value_or(false);
    for (int i = 0; i < 3; ++i) {
        on = !on;
        ied.set("BAY1E1IO", "GGIO1$ST$Ind1$stVal", mms::Data::boolean(on));
        QVERIFY(m_listener->waitForValue("BAY1E1IO/GGIO1$ST$Ind1$stVal", on));
    }
    QCOMPARE(m_listener->history(reference).size(), 0);
    for (const float value : {small, next}) {
        ied.set("BAY1E1MEAS", item, mms::Data::float32(value));
        QVERIFY(m_listener->waitForValue(reference, [value](const MMSValue &record) {
            return std::equal_to<>()(record.value.toFloat(), value);
        }));
    }
}

void tst_OddValues::aRefusedWriteShowsTheDevicesValueAgain()
{
    SimulatedIed ied(QStringLiteral(STATION_FILE));
    QVERIFY(connect(ied, milliseconds(0)));
    const QString reference = QStringLiteral("BAY1E1CTRL/QA1XCBR1$ST$Pos$stVal");
    ied.set("BAY1E1CTRL", "QA1XCBR1$ST$Pos$stVal",
            mms::Data::bitString(mms::BitString::fromText("10")));
    m_listener->clear();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QVariant(1);
    QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1XCBR1$ST$Pos$stVal", bytes, m_error),
             OperationFailed);
    // What the device has, not what was known of it.
    QVERIFY(m_listener->waitForValue(reference, 2));
    // And again, for who reads a box first.
    m_listener->clear();
    QVERIFY(m_listener->waitForValue(reference, 2));
    m_listener->clear();
    QVERIFY(m_listener->waitForValue(reference, 2));
}

void tst_OddValues::theSameTextIsSentAgainAfterARefusal()
{
    OddReads reads(QStringLiteral(STATION_FILE));
    SimulatedIed &ied = reads.ied();
    QVERIFY(connect(ied, milliseconds(100)));
    QByteArray bytes;
    QCOMPARE(m_driver->getIEDModel(1, bytes, m_error), OperationSucceeded);
    const auto device = deviceFrom(bytes);
    const SclTemplateStore templates;
    IEDModel model(&templates);
    model.setDevice(device.get());
    const QString reference = QStringLiteral("BAY1E1CTRL/QA1CSWI1$CF$Pos$sboTimeout");
    const QModelIndex name = model.indexForReference(reference);
    const QModelIndex cell = name.sibling(name.row(), 1);
    const QString before = cell.data().toString();
    QVERIFY(!before.isEmpty());

    const auto update = [&] {
        model.updateValues(m_listener->values().values());
        m_listener->clear();
    };
    reads.refuseWrites();
    int sent = 0;
    QObject::connect(
        &model, &IEDModel::needWriteValue, &model, [&](const QModelIndex &, const QVariant &value) {
            ++sent;
            QByteArray written;
            QDataStream stream(&written, QIODevice::WriteOnly);
            stream << value;
            QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", written,
                                             m_error),
                     OperationFailed);
            // The box is read for a while; live values come meanwhile.
            QVERIFY(m_listener->waitForValue(reference, [](const MMSValue &) { return true; }));
            update();
        });
    for (int attempt = 1; attempt <= 2; ++attempt) {
        model.setData(cell, QStringLiteral("4711"));
        QCOMPARE(sent, attempt);
        QTRY_VERIFY_WITH_TIMEOUT((update(), cell.data().toString() == before), 10000);
    }
}

void tst_OddValues::anOutageSaysSinceWhenItLasts()
{
    SimulatedIed ied(QStringLiteral(STATION_FILE));
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QVERIFY(!driver.status(1).lostSince.isValid());

    const QDateTime before = QDateTime::currentDateTime();
    ied.stop();
    QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    const QDateTime lost = driver.status(1).lostSince;
    QVERIFY(lost >= before);
    // Each attempt begins a state of its own, but the outage is one.
    for (int attempt = 0; attempt < 2; ++attempt) {
        QVERIFY(listener.waitForState(1, DeviceState::Connecting));
        QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    }
    QCOMPARE(driver.status(1).since, lost);
    QCOMPARE(driver.status(1).lostSince, lost);

    ied.start();
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QVERIFY(!driver.status(1).lostSince.isValid());
}

QTEST_MAIN(tst_OddValues)
#include "tst_oddvalues.moc"
