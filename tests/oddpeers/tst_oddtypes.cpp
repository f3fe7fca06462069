// SPDX-License-Identifier: Apache-2.0
#include "simulatedstation.h"

#include <remoteclient/records.h>

#include <QtTest/QtTest>

#include <algorithm>
#include <mutex>

using namespace drivertest;

namespace {

const QString position = QStringLiteral("BAY1E1CTRL/QA1XCBR1$ST$Pos$stVal");

/// A bay whose answers to single reads can be replaced.
class LyingBay
{
public:
    LyingBay()
        : m_ied(QStringLiteral(STATION_FILE))
    {
        m_ied.stop();
        m_ied.setRequestFilter([this](const std::shared_ptr<mms::Association> &association,
                                      std::uint32_t invokeId, mms::RequestService &request) {
            const auto *read = std::get_if<mms::ReadRequest>(&request);
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_item.empty() || !read ||
                mms::toText(read->variables).find(m_item) == std::string::npos)
                return false;
            mms::ReadResponse response;
            response.results.emplace_back(m_answer);
            association->respond(invokeId, response);
            return true;
        });
        m_ied.start();
        m_driver = std::make_unique<ServedDriver>(m_listener.options());
        DeviceConfiguration configuration = configurationFor(m_ied);
        configuration.pollInterval = std::chrono::milliseconds(0);
        m_driver->setDevice(configuration);
        m_driver->connectDevice(1);
    }
    ~LyingBay() { m_driver.reset(); }

    SimulatedIed &ied() { return m_ied; }
    Listener &listener() { return m_listener; }
    bool isOnline() { return m_listener.waitForState(1, DeviceState::Online); }

    void answer(const std::string &item, const mms::Data &data)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_item = item;
        m_answer = data;
    }
    OperationResult read(const QString &item, QString &error)
    {
        m_listener.clear();
        return m_driver->readVariable(1, QStringLiteral("BAY1E1CTRL"), {item}, error);
    }
    /// Whether the last read published nothing of the reference.
    bool nothingCame(const QString &reference)
    {
        // What is read afterwards is published afterwards.
        QString error;
        const QString later = QStringLiteral("QA1CSWI1$CF$Pos$ctlModel");
        if (m_driver->readVariable(1, QStringLiteral("BAY1E1CTRL"), {later}, error) !=
                OperationSucceeded ||
            !m_listener.waitForValue(QStringLiteral("BAY1E1CTRL/") + later,
                                     [](const MMSValue &value) { return wasRead(value); }))
            return false;
        const QList<MMSValue> history = m_listener.history(reference);
        return std::none_of(history.cbegin(), history.cend(), wasRead);
    }

private:
    /// Not what the driver reads of its own accord when it is online.
    static bool wasRead(const MMSValue &value) { return value.cause == PublishCause::Read; }

    std::mutex m_mutex;
    std::string m_item;
    mms::Data m_answer;
    SimulatedIed m_ied;
    Listener m_listener;
    std::unique_ptr<ServedDriver> m_driver;
};

} // namespace

/// Devices that send or describe values otherwise than they should.
class tst_OddTypes : public QObject
{
    Q_OBJECT

private slots:
    void aStructureInAnotherOrderIsToldAndNotTaken();
    void aNumberInPlaceOfABooleanIsToldAndNotTaken();
    void bitsOfAQualityThatDidNotComeAreNotGood();
    void aDeviceThatDescribesFixedLengthsTakesShorterOnes();
};

void tst_OddTypes::aStructureInAnotherOrderIsToldAndNotTaken()
{
    LyingBay bay;
    QVERIFY(bay.isOnline());
    const mms::Data right = bay.ied().value("BAY1E1CTRL", "QA1XCBR1$ST$Pos");
    std::vector<mms::Data> members(right.children().begin(), right.children().end());
    std::reverse(members.begin(), members.end());
    bay.answer("QA1XCBR1$ST$Pos", mms::Data::structure(std::move(members)));
    QString error;
    QCOMPARE(bay.read(QStringLiteral("QA1XCBR1$ST$Pos"), error), OperationFailed);
    QVERIFY2(error.contains(QLatin1String("the value does not have the form of its type")),
             qPrintable(error));
    QVERIFY(bay.nothingCame(position));
}

void tst_OddTypes::aNumberInPlaceOfABooleanIsToldAndNotTaken()
{
    LyingBay bay;
    QVERIFY(bay.isOnline());
    bay.answer("QA1XCBR1$ST$Loc$stVal", mms::Data::integer(5));
    QString error;
    QCOMPARE(bay.read(QStringLiteral("QA1XCBR1$ST$Loc$stVal"), error), OperationFailed);
    QVERIFY2(error.contains(QLatin1String("the value does not have the form of its type")),
             qPrintable(error));
    QVERIFY(bay.nothingCame(QStringLiteral("BAY1E1CTRL/QA1XCBR1$ST$Loc$stVal")));
}

void tst_OddTypes::bitsOfAQualityThatDidNotComeAreNotGood()
{
    LyingBay bay;
    QVERIFY(bay.isOnline());
    const QString quality = QStringLiteral("BAY1E1CTRL/QA1XCBR1$ST$Pos$q");
    QString error;
    bay.answer("QA1XCBR1$ST$Pos$q", mms::Data::bitString(mms::BitString()));
    QCOMPARE(bay.read(QStringLiteral("QA1XCBR1$ST$Pos$q"), error), OperationSucceeded);
    QVERIFY(bay.listener().waitForValue(quality, QStringLiteral("11???????????")));
    bay.answer("QA1XCBR1$ST$Pos$q", mms::Data::bitString(mms::BitString::fromText("01000")));
    QCOMPARE(bay.read(QStringLiteral("QA1XCBR1$ST$Pos$q"), error), OperationSucceeded);
    QVERIFY(bay.listener().waitForValue(quality, QStringLiteral("01000????????")));
}

void tst_OddTypes::aDeviceThatDescribesFixedLengthsTakesShorterOnes()
{
    sim::DeviceOptions options;
    options.oddities.fixedLengths = true;
    SimulatedIed ied(QStringLiteral(STATION_FILE), {}, {}, options);
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    ControlBlock block;
    block.objectReference = QStringLiteral("QA1CSWI1$CO$Pos");
    block.controlModel = 4;
    block.controlValue = 0;
    block.orCat = 3;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    block.toStream(stream);
    QString error;
    const OperationResult selected =
        driver.selectObject(1, QStringLiteral("BAY1E1CTRL"), block.objectReference, bytes, error);
    QVERIFY2(selected == OperationSucceeded, qPrintable(error));
}

QTEST_GUILESS_MAIN(tst_OddTypes)
#include "tst_oddtypes.moc"
