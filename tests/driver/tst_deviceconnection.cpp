// SPDX-License-Identifier: Apache-2.0
#include "driver/indicatorfile.h"
#include "driver/mutedlinks.h"
#include "driver/simulatedstation.h"

#include "driver/core/signoflife.h"
#include "driver/device/deviceconnection.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace drivertest;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

/// A call that waits for an answer is not given up before the test is over.
constexpr milliseconds forEver{60000};
constexpr int patience = 20000; ///< ms

QString nameOf(DeviceState state)
{
    switch (state) {
    case DeviceState::Disconnected:
        return QStringLiteral("disconnected");
    case DeviceState::Connecting:
        return QStringLiteral("connecting");
    case DeviceState::ReadingModel:
        return QStringLiteral("reading");
    case DeviceState::Online:
        return QStringLiteral("online");
    case DeviceState::Waiting:
        break;
    }
    return QStringLiteral("waiting");
}

/// States in the order in which they were told.
class ToldStates
{
public:
    void tell(DeviceState state)
    {
        if (m_last != state)
            m_names.append(nameOf(state));
        m_last = state;
    }
    void tell(const QString &event) { m_names.append(event); }
    /// Since the last call.
    QString taken() { return std::exchange(m_names, QStringList()).join(QLatin1Char(' ')); }
    bool isNews(const QString &names) const { return m_names.join(QLatin1Char(' ')) == names; }
    DeviceState last() const { return m_last; }

private:
    DeviceState m_last = DeviceState::Disconnected;
    QStringList m_names;
};

/// A connection that is carried out in the thread of the test, with the clock in its hand.
class Rig
{
public:
    explicit Rig(const DeviceConfiguration &configuration)
        : m_work(asio::make_work_guard(m_context))
    {
        ConnectionEnvironment environment;
        environment.values = LiveValues::create(m_context.get_executor(), [](const auto &) {});
        environment.claim = [this](const QStringList &) { return conflict; };
        environment.release = [] {};
        environment.statusChanged = [this](const DeviceConnection &device) {
            status = device.status();
            told.tell(status.state);
        };
        environment.now = [this] { return m_now; };
        // Pauses as long as their middle.
        environment.random = [] { return 0.5; };
        m_connection = DeviceConnection::create(m_context.get_executor(), configuration,
                                                std::move(environment));
    }

    ~Rig()
    {
        bool isLeft = false;
        m_connection->disconnect([&isLeft] { isLeft = true; });
        m_connection->cutOff();
        runUntil([&] { return isLeft; });
        settle();
    }
    Q_DISABLE_COPY(Rig)

    DeviceConnection &connection() { return *m_connection; }

    bool runUntil(const std::function<bool()> &condition)
    {
        const QDeadlineTimer end(Listener::patience);
        while (!condition() && !end.hasExpired())
            m_context.run_one_for(100ms);
        return condition();
    }
    bool runUntilTold(const QString &names)
    {
        return runUntil([&] { return told.isNews(names); });
    }
    bool runUntil(DeviceState state)
    {
        return runUntil([&] { return told.last() == state; });
    }

    /// Whatever was asked has been answered.
    bool isQuiet()
    {
        settle();
        const DeviceCounters counters = m_connection->status().counters;
        return counters.sentPdus == counters.receivedPdus;
    }

    /// Everything that can be done without waiting for the network or a timer.
    void settle()
    {
        while (m_context.poll() > 0) {
        }
    }

    /// Time goes on, and everybody looks at the clock.
    void pass(milliseconds time)
    {
        m_now += time;
        asio::post(m_connection->strand(), [this] { m_connection->wake(); });
        settle();
    }

    ToldStates told;
    DeviceStatus status; ///< the newest
    QString conflict;    ///< why the device cannot be used beside another one

private:
    asio::io_context m_context;
    asio::executor_work_guard<asio::io_context::executor_type> m_work;
    DeviceConnection::Deadline m_now = std::chrono::steady_clock::now();
    std::shared_ptr<DeviceConnection> m_connection;
};

/// What a driver tells of its only device, in one order.
class Observed
{
public:
    IedDriverOptions options()
    {
        IedDriverOptions options;
        options.poster = [](const QList<QByteArray> &) {};
        options.observer.statusChanged = [this](const DeviceStatus &status) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_told.tell(status.state);
            m_changed.notify_all();
        };
        options.observer.deviceRemoved = [this](int) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_told.tell(QStringLiteral("removed"));
            m_changed.notify_all();
        };
        return options;
    }

    bool waitFor(DeviceState state)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, Listener::patience, [&] { return m_told.last() == state; });
    }
    bool waitUntilTold(const QString &names)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, Listener::patience, [&] { return m_told.isNews(names); });
    }
    QString taken()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_told.taken();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    ToldStates m_told;
};

/// Where the life of the association is when something happens.
enum class Place { Left, Waiting, Connecting, Reading, Online, Leaving };

struct NamedPlace
{
    Place place;
    const char *name;
};
constexpr NamedPlace places[] = {
    {Place::Left, "left"},       {Place::Waiting, "waiting"}, {Place::Connecting, "connecting"},
    {Place::Reading, "reading"}, {Place::Online, "online"},   {Place::Leaving, "leaving"},
};

/// A row for each place.
void addPlaces()
{
    QTest::addColumn<Place>("place");
    for (const NamedPlace &each : places)
        QTest::newRow(each.name) << each.place;
}

using Action = std::function<void(DeviceConnection &, SimulatedIed &)>;

} // namespace

Q_DECLARE_METATYPE(Place)
Q_DECLARE_METATYPE(Action)

class tst_DeviceConnection : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void anAssociationIsMadeServedAndLeft();
    void aLostDeviceIsWaitedForInGrowingPausesUntilItIsBack();
    void aDeviceThatComesBackTheSameKeepsItsModel();
    void pausesAreShortAgainAfterAWhileOnlineOnly();
    void namesOfAnotherDeviceAreWaitedForUntilTheyAreReleased();
    void whatHappensInEachState_data();
    void whatHappensInEachState();
    void aDeviceIsReplacedInEachState_data();
    void aDeviceIsReplacedInEachState();
    void aDeviceIsRemovedInEachState_data();
    void aDeviceIsRemovedInEachState();
    void aSilentDeviceIsAskedOnceAndThenGivenUp();
    void aDeviceThatAnswersIsAskedAfterEachSilence();

private:
    DeviceConfiguration configuration() const;
    /// Brings the device there, and it stays there.
    bool bringTo(Place place, Rig &rig);
    bool bringTo(Place place, IedDriver &driver, Observed &observed);

    QTemporaryDir m_folder;
    QString m_path;
    MutedLinks m_links;
    std::unique_ptr<SimulatedIed> m_ied;
};

void tst_DeviceConnection::initTestCase()
{
    m_path = m_folder.filePath("life.icd");
    QVERIFY(IndicatorFile("LIFE", 1, 2).write(m_path));
}

void tst_DeviceConnection::init()
{
    m_links = {};
    sim::DeviceOptions options;
    options.server.association.link.interference = m_links.interference();
    m_ied = std::make_unique<SimulatedIed>(m_path, QString(), std::string(), options);
}

void tst_DeviceConnection::cleanup()
{
    m_ied.reset();
}

DeviceConfiguration tst_DeviceConnection::configuration() const
{
    DeviceConfiguration result = configurationFor(*m_ied);
    result.connectTimeout = forEver;
    result.callTimeout = forEver;
    result.operationTimeout = forEver;
    result.pollInterval = milliseconds(0);
    return result;
}

bool tst_DeviceConnection::bringTo(Place place, Rig &rig)
{
    const auto beOnline = [&rig] {
        rig.connection().connect();
        return rig.runUntil(DeviceState::Online) && rig.runUntil([&rig] { return rig.isQuiet(); });
    };
    switch (place) {
    case Place::Left:
        return true;
    case Place::Waiting:
        m_ied->stop();
        rig.connection().connect();
        return rig.runUntil(DeviceState::Waiting);
    case Place::Connecting:
        m_links.silenceAfter(0);
        rig.connection().connect();
        break;
    case Place::Reading:
        m_links.silenceAfter(1);
        rig.connection().connect();
        break;
    case Place::Online:
        return beOnline();
    case Place::Leaving:
        if (!beOnline())
            return false;
        m_links.silenceAfter(0);
        rig.connection().disconnect();
        break;
    }
    return rig.runUntil([this] { return m_links.swallowed() > 0; });
}

void tst_DeviceConnection::anAssociationIsMadeServedAndLeft()
{
    Rig rig(configuration());
    rig.connection().connect();
    QVERIFY(rig.runUntil(DeviceState::Online));
    QCOMPARE(rig.told.taken(), QString("connecting reading online"));
    QCOMPARE(rig.status.reason, QString());
    QCOMPARE(m_links.count(), 1);
    int left = 0;
    rig.connection().disconnect([&left] { ++left; });
    QVERIFY(rig.runUntil(DeviceState::Disconnected));
    rig.settle();
    QCOMPARE(rig.told.taken(), QString("disconnected"));
    QCOMPARE(left, 1);
    QTRY_COMPARE(m_links.count(), 0);
    // Who leaves what is left already hears so all the same.
    rig.connection().disconnect([&left] { ++left; });
    rig.settle();
    QCOMPARE(left, 2);
    QCOMPARE(rig.told.taken(), QString());
}

void tst_DeviceConnection::aLostDeviceIsWaitedForInGrowingPausesUntilItIsBack()
{
    Rig rig(configuration());
    rig.connection().connect();
    QVERIFY(rig.runUntil(DeviceState::Online));
    QCOMPARE(rig.told.taken(), QString("connecting reading online"));
    rig.pass(AssociationLife::settledAfter);
    m_ied->stop();
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    QVERIFY(!rig.status.reason.isEmpty());
    QVERIFY(rig.status.lostSince.isValid());
    QCOMPARE(rig.told.taken(), QString("waiting"));
    for (const milliseconds pause : {200ms, 400ms, 800ms, 1600ms, 2000ms, 2000ms}) {
        rig.pass(pause - 1ms);
        QCOMPARE(rig.told.taken(), QString());
        rig.pass(1ms);
        QVERIFY(!rig.told.isNews({}));
        QVERIFY(rig.runUntil(DeviceState::Waiting));
        QCOMPARE(rig.told.taken(), QString("connecting waiting"));
    }
    m_ied->start();
    rig.pass(2000ms - 1ms);
    QCOMPARE(rig.told.taken(), QString());
    rig.pass(1ms);
    QVERIFY(rig.runUntil(DeviceState::Online));
    QCOMPARE(rig.told.taken(), QString("connecting reading online"));
    QCOMPARE(rig.status.reason, QString());
    QVERIFY(!rig.status.lostSince.isValid());
    QCOMPARE(rig.status.counters.connections, std::uint64_t(2));
}

void tst_DeviceConnection::aDeviceThatComesBackTheSameKeepsItsModel()
{
    Rig rig(configuration());
    QVERIFY(bringTo(Place::Online, rig));
    const OnlineModel *const model = rig.connection().model();
    QVERIFY(model);
    const QString reference = "LIFELD/GGIO1$ST$Ind1$stVal";
    const DataAttribute *const value = model->device().findTag(reference);
    QVERIFY(value && value->value.isValid());
    m_ied->stop();
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    QCOMPARE(rig.connection().model(), model);
    m_ied->start();
    rig.pass(200ms);
    QVERIFY(rig.runUntil(DeviceState::Online));
    QCOMPARE(rig.connection().model(), model);
    QCOMPARE(model->device().findTag(reference), value);
    QVERIFY(value->value.isValid());
}

void tst_DeviceConnection::pausesAreShortAgainAfterAWhileOnlineOnly()
{
    Rig rig(configuration());
    m_ied->stop();
    rig.connection().connect();
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    m_ied->start();
    rig.pass(200ms);
    QVERIFY(rig.runUntil(DeviceState::Online));
    QCOMPARE(rig.told.taken(), QString("connecting waiting connecting reading online"));
    rig.pass(AssociationLife::settledAfter - 1ms);
    m_ied->stop();
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    m_ied->start();
    rig.pass(400ms - 1ms);
    QCOMPARE(rig.told.taken(), QString("waiting"));
    rig.pass(1ms);
    QVERIFY(rig.runUntil(DeviceState::Online));
    QCOMPARE(rig.told.taken(), QString("connecting reading online"));
    rig.pass(AssociationLife::settledAfter);
    m_ied->stop();
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    rig.pass(200ms - 1ms);
    QCOMPARE(rig.told.taken(), QString("waiting"));
    rig.pass(1ms);
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    QCOMPARE(rig.told.taken(), QString("connecting waiting"));
}

void tst_DeviceConnection::namesOfAnotherDeviceAreWaitedForUntilTheyAreReleased()
{
    Rig rig(configuration());
    rig.conflict = "Somebody else has its names.";
    rig.connection().connect();
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    QCOMPARE(rig.told.taken(), QString("connecting reading waiting"));
    QCOMPARE(rig.status.reason, rig.conflict);
    rig.pass(AssociationLife::conflictPause - 1ms);
    QCOMPARE(rig.told.taken(), QString());
    rig.pass(1ms);
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    QCOMPARE(rig.told.taken(), QString("connecting reading waiting"));
    rig.conflict.clear();
    rig.connection().namesReleased();
    rig.settle();
    rig.pass(200ms - 1ms);
    QCOMPARE(rig.told.taken(), QString());
    rig.pass(1ms);
    QVERIFY(rig.runUntil(DeviceState::Online));
    QCOMPARE(rig.told.taken(), QString("connecting reading online"));
}

void tst_DeviceConnection::whatHappensInEachState_data()
{
    QTest::addColumn<Place>("place");
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("told");
    QTest::addColumn<int>("links");
    QTest::addColumn<QString>("reason");

    const Action connect = [](DeviceConnection &device, SimulatedIed &) { device.connect(); };
    const Action leave = [](DeviceConnection &device, SimulatedIed &) { device.disconnect(); };
    const Action abort = [](DeviceConnection &device, SimulatedIed &) { device.abort(); };
    const Action cancel = [](DeviceConnection &device, SimulatedIed &) { device.cancelReading(); };
    const Action again = [](DeviceConnection &device, SimulatedIed &) {
        device.disconnect();
        device.connect();
    };
    const Action end = [](DeviceConnection &device, SimulatedIed &) {
        device.disconnect();
        device.cutOff();
    };
    const Action fall = [](DeviceConnection &, SimulatedIed &ied) { ied.stop(); };
    const QString anything = "*";
    const QString aborted = "Aborted by the operator.";

    struct Case
    {
        const char *name;
        Place place;
        Action action;
        QString told;
        int links;
        QString reason;
    };
    const Case cases[] = {
        {"connected, left", Place::Left, connect, "connecting reading online", 1, {}},
        {"connected, waiting", Place::Waiting, connect, "connecting waiting", 0, anything},
        {"connected, connecting", Place::Connecting, connect, {}, 1, {}},
        {"connected, reading", Place::Reading, connect, {}, 1, {}},
        {"connected, online", Place::Online, connect, {}, 1, {}},
        {"connected, leaving", Place::Leaving, connect, "waiting connecting reading online", 1, {}},
        {"left, left", Place::Left, leave, {}, 0, {}},
        {"left, waiting", Place::Waiting, leave, "disconnected", 0, {}},
        {"left, connecting", Place::Connecting, leave, "disconnected", 0, {}},
        {"left, reading", Place::Reading, leave, "disconnected", 0, {}},
        {"left, online", Place::Online, leave, "disconnected", 0, {}},
        {"left, leaving", Place::Leaving, leave, "disconnected", 0, {}},
        {"aborted, left", Place::Left, abort, {}, 0, {}},
        {"aborted, waiting", Place::Waiting, abort, "disconnected", 0, aborted},
        {"aborted, connecting", Place::Connecting, abort, "disconnected", 0, aborted},
        {"aborted, reading", Place::Reading, abort, "disconnected", 0, aborted},
        {"aborted, online", Place::Online, abort, "disconnected", 0, aborted},
        {"aborted, leaving", Place::Leaving, abort, "disconnected", 0, {}},
        {"cancelled, left", Place::Left, cancel, {}, 0, {}},
        {"cancelled, waiting", Place::Waiting, cancel, {}, 0, anything},
        {"cancelled, connecting", Place::Connecting, cancel, {}, 1, {}},
        {"cancelled, reading", Place::Reading, cancel, "disconnected", 0,
         "Reading the model was cancelled."},
        {"cancelled, online", Place::Online, cancel, {}, 1, {}},
        {"left and connected, left", Place::Left, again, "connecting reading online", 1, {}},
        {"left and connected, waiting", Place::Waiting, again, "connecting waiting", 0, anything},
        {"left and connected, connecting", Place::Connecting, again,
         "waiting connecting reading online", 1, QString()},
        {"left and connected, reading", Place::Reading, again, "waiting connecting reading online",
         1, QString()},
        {"left and connected, online", Place::Online, again, "waiting connecting reading online", 1,
         QString()},
        {"left and connected, leaving", Place::Leaving, again, "waiting connecting reading online",
         1, QString()},
        {"cut off, left", Place::Left, end, {}, 0, {}},
        {"cut off, waiting", Place::Waiting, end, "disconnected", 0, {}},
        {"cut off, connecting", Place::Connecting, end, "disconnected", 0, {}},
        {"cut off, reading", Place::Reading, end, "disconnected", 0, {}},
        {"cut off, online", Place::Online, end, "disconnected", 0, {}},
        {"cut off, leaving", Place::Leaving, end, "disconnected", 0, {}},
        {"fallen, connecting", Place::Connecting, fall, "waiting", 0, anything},
        {"fallen, reading", Place::Reading, fall, "waiting", 0, anything},
        {"fallen, online", Place::Online, fall, "waiting", 0, anything},
        {"fallen, leaving", Place::Leaving, fall, "disconnected", 0, {}},
    };
    for (const Case &each : cases) {
        QTest::newRow(each.name) << each.place << each.action << each.told << each.links
                                 << each.reason;
    }
}

void tst_DeviceConnection::whatHappensInEachState()
{
    QFETCH(Place, place);
    QFETCH(Action, action);
    QFETCH(QString, told);
    QFETCH(int, links);
    QFETCH(QString, reason);
    Rig rig(configuration());
    QVERIFY(bringTo(place, rig));
    static_cast<void>(rig.told.taken());
    // What was swallowed stays so; who asks anew is answered.
    m_links.speak();
    action(rig.connection(), *m_ied);
    rig.runUntilTold(told);
    // The device knows as well, and then nothing more happens by itself.
    rig.runUntil([&] { return m_links.count() == links; });
    rig.settle();
    QCOMPARE(rig.told.taken(), told);
    QCOMPARE(m_links.count(), links);
    if (reason == "*")
        QVERIFY(!rig.status.reason.isEmpty());
    else
        QCOMPARE(rig.status.reason, reason);
}

bool tst_DeviceConnection::bringTo(Place place, IedDriver &driver, Observed &observed)
{
    if (!driver.setDevice(configuration()).isEmpty())
        return false;
    switch (place) {
    case Place::Left:
        return true;
    case Place::Waiting:
        m_ied->stop();
        driver.connectDevice(1);
        return observed.waitFor(DeviceState::Waiting);
    case Place::Connecting:
        m_links.silenceAfter(0);
        driver.connectDevice(1);
        if (!observed.waitFor(DeviceState::Connecting))
            return false;
        break;
    case Place::Reading:
        m_links.silenceAfter(1);
        driver.connectDevice(1);
        if (!observed.waitFor(DeviceState::ReadingModel))
            return false;
        break;
    case Place::Online:
        driver.connectDevice(1);
        return observed.waitFor(DeviceState::Online);
    case Place::Leaving:
        driver.connectDevice(1);
        if (!observed.waitFor(DeviceState::Online))
            return false;
        m_links.silenceAfter(0);
        driver.disconnectDevice(1);
        break;
    }
    return QTest::qWaitFor([this] { return m_links.swallowed() > 0; }, patience);
}

void tst_DeviceConnection::aDeviceIsReplacedInEachState_data()
{
    addPlaces();
}

void tst_DeviceConnection::aDeviceIsReplacedInEachState()
{
    QFETCH(Place, place);
    Observed observed;
    {
        IedDriver driver(observed.options());
        QVERIFY(bringTo(place, driver, observed));
        static_cast<void>(observed.taken());
        if (place == Place::Waiting)
            m_ied->start();
        m_links.speak();
        DeviceConfiguration other = configuration();
        other.name = "other";
        QCOMPARE(driver.setDevice(other), QStringList());
        driver.connectDevice(1);
        const bool wasShown = place != Place::Left;
        const QString told =
            (wasShown ? "disconnected " : "") + QString("connecting reading online");
        observed.waitUntilTold(told);
        QCOMPARE(observed.taken(), told);
        // The one that was replaced is gone from the device as well, and was told of no more.
        QTRY_COMPARE_WITH_TIMEOUT(m_links.count(), 1, patience);
        const DeviceStatus status = driver.status(1);
        QCOMPARE(status.name, other.name);
        QCOMPARE(status.counters.connections, std::uint64_t(1));
    }
    QCOMPARE(observed.taken(), QString("disconnected"));
    QTRY_COMPARE_WITH_TIMEOUT(m_links.count(), 0, patience);
}

void tst_DeviceConnection::aDeviceIsRemovedInEachState_data()
{
    addPlaces();
}

void tst_DeviceConnection::aDeviceIsRemovedInEachState()
{
    QFETCH(Place, place);
    Observed observed;
    {
        IedDriver driver(observed.options());
        QVERIFY(bringTo(place, driver, observed));
        static_cast<void>(observed.taken());
        driver.removeDevice(1);
        QTRY_COMPARE_WITH_TIMEOUT(m_links.count(), 0, patience);
    }
    QCOMPARE(observed.taken(), QString("removed"));
}

void tst_DeviceConnection::aSilentDeviceIsAskedOnceAndThenGivenUp()
{
    DeviceConfiguration configuration = this->configuration();
    configuration.callTimeout = 300ms;
    Rig rig(configuration);
    QVERIFY(bringTo(Place::Online, rig));
    static_cast<void>(rig.told.taken());
    m_links.silenceAfter(0);
    const std::uint64_t sent = rig.connection().status().counters.sentPdus;
    rig.pass(SignOfLife::silence - 1ms);
    QCOMPARE(rig.connection().status().counters.sentPdus, sent);
    rig.pass(1ms);
    QCOMPARE(rig.connection().status().counters.sentPdus, sent + 1);
    QVERIFY(rig.runUntil(DeviceState::Waiting));
    QCOMPARE(rig.told.taken(), QString("waiting"));
    QCOMPARE(rig.status.reason, QString("The device has not answered for 0.3 seconds."));
    QVERIFY(rig.runUntil([this] { return m_links.count() == 0; }));
    // It speaks again.
    m_links.speak();
    rig.pass(200ms);
    QVERIFY(rig.runUntil(DeviceState::Online));
    QCOMPARE(rig.told.taken(), QString("connecting reading online"));
}

void tst_DeviceConnection::aDeviceThatAnswersIsAskedAfterEachSilence()
{
    Rig rig(configuration());
    QVERIFY(bringTo(Place::Online, rig));
    static_cast<void>(rig.told.taken());
    std::uint64_t sent = rig.connection().status().counters.sentPdus;
    for (int i = 0; i < 10; ++i) {
        rig.pass(SignOfLife::silence - 1ms);
        QCOMPARE(rig.connection().status().counters.sentPdus, sent);
        rig.pass(1ms);
        QCOMPARE(rig.connection().status().counters.sentPdus, ++sent);
        QVERIFY(rig.runUntil([&rig] { return rig.isQuiet(); }));
        QCOMPARE(rig.connection().status().counters.sentPdus, sent);
    }
    QCOMPARE(rig.told.taken(), QString());
    QCOMPARE(rig.connection().status().counters.connections, std::uint64_t(1));
}

QTEST_GUILESS_MAIN(tst_DeviceConnection)
#include "tst_deviceconnection.moc"
