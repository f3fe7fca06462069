// SPDX-License-Identifier: Apache-2.0
// The workbench with a driver that is none: what such a driver tells is all that it learns.
#include "workbench/devicelistmodel.h"
#include "workbench/doorbell.h"
#include "workbench/tracemodel.h"
#include "workbench/workbench.h"

#include "driver/administration/driverobservers.h"
#include "driver/service/offlinedriverservice.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <map>
#include <mutex>
#include <thread>

namespace {

/// Lines that a test puts there.
class Lines : public TraceSource
{
public:
    void add(const QString &text)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        TraceLine line;
        line.number = static_cast<std::uint64_t>(m_lines.size()) + 1;
        line.text = text;
        m_lines.append(line);
    }
    QVector<TraceLine> trace(int most, std::uint64_t after) const override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_lines.mid(qMax(static_cast<int>(after), m_lines.size() - most));
    }

private:
    mutable std::mutex m_mutex;
    QVector<TraceLine> m_lines;
};

/// Has the devices that it is given, and says of them what a test wants.
class TalkingDriver : public DriverAdministration
{
public:
    /// Any thread.
    void say(const DeviceStatus &status)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_devices[status.number].status = status;
        }
        m_observers.deviceChanged(status.number);
    }
    void say(const DeviceChange &change) { m_observers.tell(change); }
    void exchange(int number, const QString &text)
    {
        m_lines->add(text);
        m_observers.exchanged(number);
    }
    int questions() const { return m_questions; }

    QStringList faults(const DeviceConfiguration &) const override { return {}; }
    QStringList setDevice(const DeviceConfiguration &configuration) override
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_devices[configuration.number].status.number = configuration.number;
            m_devices[configuration.number].trace = m_lines;
        }
        m_observers.deviceChanged(configuration.number);
        return {};
    }
    void holdModel(long, const QByteArray &) override {}
    void removeDevice(long deviceNo) override
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_devices.erase(static_cast<int>(deviceNo));
        }
        m_observers.deviceChanged(static_cast<int>(deviceNo));
    }
    void connectDevice(long) override {}
    void disconnectDevice(long) override {}
    void cancelReading(long) override {}
    void cancelOperations(long) override {}
    DeviceStatus status(long deviceNo) const override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_questions;
        const auto found = m_devices.find(static_cast<int>(deviceNo));
        return found == m_devices.end() ? DeviceStatus() : found->second.status;
    }
    std::unique_ptr<DriverSubscription> subscribe(DriverObserver observer) override
    {
        return m_observers.add(std::move(observer));
    }
    std::unique_ptr<DriverSubscription> followTrace(long deviceNo, int most,
                                                    TraceObserver observer) override
    {
        return m_observers.addTrace(static_cast<int>(deviceNo), most, std::move(observer));
    }
    void setReadOnly(bool) override {}
    bool isReadOnly() const override { return false; }
    QString saveCapture(long, QIODevice &) const override { return {}; }
    QString exportValues(long, QIODevice &) override { return {}; }
    DeviceTestResult test(const DeviceConfiguration &) override { return {}; }

private:
    std::optional<DriverObservers::Device> look(int number) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = m_devices.find(number);
        if (found == m_devices.end())
            return std::nullopt;
        return found->second;
    }

    const std::shared_ptr<Lines> m_lines = std::make_shared<Lines>();
    mutable std::mutex m_mutex;
    mutable std::atomic<int> m_questions{0};
    std::map<int, DriverObservers::Device> m_devices;
    DriverObservers m_observers{[this](int number) { return look(number); }};
};

DeviceStatus statusOf(DeviceState state, const QString &reason = {})
{
    DeviceStatus status;
    status.number = 1;
    status.state = state;
    status.reason = reason;
    return status;
}

} // namespace

class tst_DriverNews : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theLossOfADeviceIsShownWithoutAsking();
    void countsAreShownAsTheyAreTold();
    void aFloodOfNewsIsTakenAtTheGuisPace();
    void whatIsChangedComesIntoTheTable();
    void nothingIsTakenAfterTheEndOfTheWorkbench();
    void exchangedPdusAreShownInTheirOrder();
    void aFloodOfPdusLeavesTheNewest();
    void theFirstRingIsAnsweredAtOnceTheOthersTogether();

private:
    const DeviceListModel::Device &device() { return *m_workbench->devices().device(1); }
    QString state()
    {
        return m_workbench->devices().index(0, DeviceListModel::StateColumn).data().toString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<TalkingDriver> m_driver;
    std::unique_ptr<Workbench> m_workbench;
};

void tst_DriverNews::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_driver = std::make_shared<TalkingDriver>();
    Workbench::Options options;
    options.settingsFile = m_folder->filePath(QStringLiteral("workbench.ini"));
    options.driver = [this](const EmbeddedDriverOptions &) {
        return EmbeddedDriver{m_driver, std::make_shared<OfflineDriverService>()};
    };
    m_workbench = std::make_unique<Workbench>(options);
    DeviceRecord record;
    record.configuration.name = QStringLiteral("Feeder");
    record.configuration.host = QStringLiteral("192.0.2.1");
    QCOMPARE(m_workbench->put(record), QStringList());
}

void tst_DriverNews::cleanup()
{
    m_workbench.reset();
    m_driver.reset();
}

void tst_DriverNews::theLossOfADeviceIsShownWithoutAsking()
{
    const int questions = m_driver->questions();
    m_driver->say(statusOf(DeviceState::Online));
    QTRY_VERIFY(device().isUsable());
    QCOMPARE(state(), QStringLiteral("Connected"));
    m_driver->say(statusOf(DeviceState::Waiting, QStringLiteral("The device is away.")));
    QTRY_VERIFY(!device().isUsable());
    QCOMPARE(state(), QStringLiteral("Trying again: The device is away."));
    QCOMPARE(m_driver->questions(), questions);
}

void tst_DriverNews::countsAreShownAsTheyAreTold()
{
    DeviceStatus status = statusOf(DeviceState::Online);
    for (std::uint64_t count = 1; count <= 3; ++count) {
        status.counters.reports = count;
        m_driver->say(status);
        QTRY_COMPARE(device().status.counters.reports, count);
    }
}

void tst_DriverNews::aFloodOfNewsIsTakenAtTheGuisPace()
{
    constexpr std::uint64_t last = 2000;
    m_driver->say(statusOf(DeviceState::Online));
    QTRY_VERIFY(device().isUsable());
    int shown = 0;
    const auto counting =
        connect(&m_workbench->devices(), &QAbstractItemModel::dataChanged, [&shown] { ++shown; });
    QElapsedTimer timer;
    timer.start();
    std::thread talking([this] {
        DeviceStatus status = statusOf(DeviceState::Online);
        for (std::uint64_t count = 1; count <= last; ++count) {
            status.counters.reports = count;
            m_driver->say(status);
        }
    });
    const bool hasCome =
        QTest::qWaitFor([this] { return device().status.counters.reports == last; }, 20000);
    // Timers of Qt may be early by a twentieth.
    const qint64 pauses = timer.elapsed() * 21 / (20 * Doorbell::defaultPause.count());
    disconnect(counting);
    talking.join();
    QVERIFY(hasCome);
    QVERIFY2(shown <= pauses + 2, qPrintable(QStringLiteral("%1, %2").arg(shown).arg(pauses)));
}

void tst_DriverNews::whatIsChangedComesIntoTheTable()
{
    for (int i = 0; i < 3; ++i) {
        DeviceChange change;
        change.number = 1;
        change.reference = QString::number(i);
        m_driver->say(change);
    }
    QTRY_COMPARE(m_workbench->changes().rowCount(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(m_workbench->changes().index(i, ChangeJournal::ReferenceColumn).data().toString(),
                 QString::number(i));
    }
}

void tst_DriverNews::nothingIsTakenAfterTheEndOfTheWorkbench()
{
    std::atomic<bool> isEnough{false};
    std::thread talking([this, &isEnough] {
        DeviceStatus status = statusOf(DeviceState::Online);
        while (!isEnough) {
            ++status.counters.reports;
            m_driver->say(status);
        }
    });
    QTRY_VERIFY(device().status.counters.reports > 0);
    // The driver goes on without it.
    m_workbench.reset();
    isEnough = true;
    talking.join();
    QCOMPARE(m_driver->status(1).state, DeviceState::Online);
}

void tst_DriverNews::exchangedPdusAreShownInTheirOrder()
{
    m_driver->exchange(1, QStringLiteral("1"));
    m_driver->exchange(1, QStringLiteral("2"));
    TraceModel model(*m_driver, 1, 1000);
    connect(&model, &TraceModel::exchanged, &model, &TraceModel::refresh);
    std::thread exchanging([this] {
        for (int i = 3; i <= 500; ++i)
            m_driver->exchange(1, QString::number(i));
    });
    QTRY_COMPARE(model.rowCount(), 500);
    exchanging.join();
    for (int i = 0; i < 500; ++i)
        QCOMPARE(model.index(i, TraceModel::TextColumn).data().toString(), QString::number(i + 1));
}

void tst_DriverNews::aFloodOfPdusLeavesTheNewest()
{
    TraceModel model(*m_driver, 1, 10);
    connect(&model, &TraceModel::exchanged, &model, &TraceModel::refresh);
    for (int i = 1; i <= 2000; ++i)
        m_driver->exchange(1, QString::number(i));
    const auto lastText = [&model] {
        return model.index(model.rowCount() - 1, TraceModel::TextColumn).data().toString();
    };
    QTRY_COMPARE(lastText(), QStringLiteral("2000"));
    QCOMPARE(model.rowCount(), 10);
    QCOMPARE(model.index(0, TraceModel::TextColumn).data().toString(), QStringLiteral("1991"));
}

void tst_DriverNews::theFirstRingIsAnsweredAtOnceTheOthersTogether()
{
    Doorbell patient{std::chrono::hours(1)};
    int answers = 0;
    connect(&patient, &Doorbell::rung, [&answers] { ++answers; });
    std::thread ringing([&patient] { patient.ring(); });
    ringing.join();
    QCOMPARE(answers, 0);
    QCoreApplication::processEvents();
    QCOMPARE(answers, 1);
    for (int i = 0; i < 2000; ++i)
        patient.ring();
    QCoreApplication::processEvents();
    QCOMPARE(answers, 1);

    Doorbell quick{std::chrono::milliseconds(1)};
    answers = 0;
    connect(&quick, &Doorbell::rung, [&answers] { ++answers; });
    quick.ring();
    QTRY_COMPARE(answers, 1);
    quick.ring();
    QTRY_COMPARE(answers, 2);
}

QTEST_MAIN(tst_DriverNews)
#include "tst_drivernews.moc"
