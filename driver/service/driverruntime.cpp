// SPDX-License-Identifier: Apache-2.0
#include "driverruntime.h"

#include <asio/post.hpp>
#include <asio/strand.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <exception>

using std::chrono::milliseconds;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// How long the driver waits at its end for devices to be left in an orderly way.
constexpr milliseconds leavePatience{3000};
/// Of that, for what has to end after associations were cut off.
constexpr milliseconds cutOffPatience{500};
/// Counts change with everything that a device says.
constexpr milliseconds countInterval{1000};

/// The operation, refused where another device answers now.
DeviceConnection::Operation onlyOn(DeviceIdentity opened, DeviceConnection::Operation operation)
{
    return [opened = std::move(opened), operation = std::move(operation)](
               std::shared_ptr<DeviceConnection> device) -> asio::awaitable<Outcome> {
        if (!device->identity().fits(opened)) {
            co_return Outcome::failed(
                Texts::tr("This is not the device that the window was opened for: open it again."));
        }
        co_return co_await operation(device);
    };
}

} // namespace

DriverRuntime::DriverRuntime(IedDriverOptions options)
    : m_options(std::move(options))
    , m_work(asio::make_work_guard(m_context))
    , m_values(LiveValues::create(m_context.get_executor(), m_options.poster))
    , m_observers(std::make_shared<DriverObservers>(
          [this](int deviceNo) -> std::optional<DriverObservers::Device> {
              const auto device = connection(deviceNo);
              if (!device)
                  return std::nullopt;
              return DriverObservers::Device{device->status(), device->trace()};
          }))
    , m_countTimer(asio::make_strand(m_context))
{
    if (!m_options.observer.isEmpty())
        m_observer = m_observers->add(m_options.observer);
    tellCounts();
    m_running = static_cast<std::size_t>(std::max(m_options.threads, 1));
    for (std::size_t i = 0; i < m_running; ++i)
        m_threads.emplace_back([this] { runContext(); });
}

void DriverRuntime::runContext()
{
    // What a single handler throws must not be the end of all devices.
    for (bool hasEnded = false; !hasEnded;) {
        try {
            m_context.run();
            hasEnded = true;
        } catch (const std::exception &exception) {
            qWarning("IedDriver: %s", exception.what());
        }
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    --m_running;
    m_threadEnded.notify_all();
}

DriverRuntime::~DriverRuntime()
{
    struct Remaining
    {
        std::mutex mutex;
        std::condition_variable changed;
        std::size_t count = 0;
    };
    const auto end = std::chrono::steady_clock::now() + leavePatience;
    const auto remaining = std::make_shared<Remaining>();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        remaining->count = m_connections.size();
        for (const auto &each : m_connections) {
            // The connection is held until its last handler has run.
            each.second->disconnect([remaining, held = each.second] {
                const std::lock_guard<std::mutex> inner(remaining->mutex);
                --remaining->count;
                remaining->changed.notify_all();
            });
        }
    }
    {
        std::unique_lock<std::mutex> lock(remaining->mutex);
        remaining->changed.wait_until(lock, end - cutOffPatience,
                                      [&] { return remaining->count == 0; });
    }
    // What still waits for a device would keep itself alive.
    for (const auto &each : connections())
        each->cutOff();
    m_values->flush();
    m_isEnding = true;
    asio::post(m_countTimer.get_executor(), [this] { m_countTimer.cancel(); });
    // Attempts to connect that nobody wants any more have been cancelled, and need a moment to end.
    m_work.reset();
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_threadEnded.wait_until(lock, end, [this] { return m_running == 0; });
    }
    m_context.stop();
    for (std::thread &thread : m_threads)
        thread.join();
    m_observers->close();
    m_observer.reset();
}

void DriverRuntime::tellCounts()
{
    m_countTimer.expires_after(countInterval);
    m_countTimer.async_wait([this](const std::error_code &) {
        if (m_isEnding)
            return;
        m_observers->devicesChanged();
        tellCounts();
    });
}

void DriverRuntime::setDevice(const DeviceConfiguration &configuration)
{
    std::shared_ptr<DeviceConnection> created;
    if (configuration.host.isEmpty()) {
        m_offline.addDevice(configuration.number, configuration.sclFile, configuration.ied);
    } else {
        ConnectionEnvironment environment;
        environment.values = m_values;
        // One that was replaced, and is being left, is no device any more.
        environment.statusChanged = [this](const DeviceConnection &device) {
            if (connection(device.configuration().number).get() == &device)
                m_observers->deviceChanged(device.configuration().number);
        };
        environment.exchanged = [observers = m_observers, number = configuration.number] {
            observers->exchanged(number);
        };
        environment.changed = [observers = m_observers,
                               journal = m_options.journal](const DeviceChange &change) {
            if (journal)
                journal(change);
            observers->tell(change);
        };
        environment.wantsReports = [observers = m_observers] { return observers->wantReports(); };
        environment.reportReceived = [observers = m_observers](const ReportEvent &event) {
            return observers->tell(event);
        };
        Holder holder;
        holder.number = configuration.number;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            holder.connection = ++m_lastConnection;
        }
        environment.claim = [this, holder](const QStringList &names) {
            return claim(holder, names);
        };
        environment.release = [this, holder] { release(holder); };
        environment.isReadOnly = [this] { return isReadOnly(); };
        environment.cacheFolder = m_options.cacheFolder;
        environment.captureOctets = m_options.captureOctets;
        environment.lookUp = m_options.lookUp;
        created = DeviceConnection::create(m_context.get_executor(), configuration,
                                           std::move(environment));
    }
    std::shared_ptr<DeviceConnection> replaced;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::shared_ptr<DeviceConnection> &place = m_connections[configuration.number];
        replaced = std::move(place);
        place = created;
        if (!created)
            m_connections.erase(configuration.number);
    }
    m_observers->deviceChanged(configuration.number);
    if (replaced)
        replaced->disconnect();
}

void DriverRuntime::holdModel(long deviceNo, const QByteArray &model)
{
    m_offline.holdModel(deviceNo, model);
}

void DriverRuntime::removeDevice(long deviceNo)
{
    m_offline.removeDevice(deviceNo);
    std::shared_ptr<DeviceConnection> removed;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bound.erase(m_bound.lower_bound({deviceNo, 0}), m_bound.lower_bound({deviceNo + 1, 0}));
        const auto found = m_connections.find(deviceNo);
        if (found == m_connections.end())
            return;
        removed = found->second;
        m_connections.erase(found);
    }
    m_observers->deviceChanged(static_cast<int>(deviceNo));
    removed->disconnect();
}

std::shared_ptr<DeviceConnection> DriverRuntime::connection(long deviceNo) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_connections.find(deviceNo);
    return found == m_connections.end() ? nullptr : found->second;
}

std::vector<std::shared_ptr<DeviceConnection>> DriverRuntime::connections() const
{
    std::vector<std::shared_ptr<DeviceConnection>> result;
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const auto &each : m_connections)
        result.push_back(each.second);
    return result;
}

std::shared_ptr<DeviceConnection> DriverRuntime::separate(const DeviceConfiguration &configuration)
{
    ConnectionEnvironment environment;
    environment.values = m_values;
    environment.claim = [](const QStringList &) { return QString(); };
    environment.release = [] {};
    environment.lookUp = m_options.lookUp;
    return DeviceConnection::create(m_context.get_executor(), configuration,
                                    std::move(environment));
}

void DriverRuntime::bind(const CalledDevice &device, const DeviceIdentity &identity)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_bound[{device->configuration().number, device.tool()}] = identity;
}

std::optional<DeviceIdentity> DriverRuntime::boundTo(const CalledDevice &device) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_bound.find({device->configuration().number, device.tool()});
    if (found == m_bound.end())
        return std::nullopt;
    return found->second;
}

OperationResult DriverRuntime::run(const CalledDevice &device, QString &error,
                                   DeviceConnection::Operation operation, Need need,
                                   milliseconds limit)
{
    Outcome outcome = limit == usualLimit ? device->perform(need, std::move(operation))
                                          : device->perform(need, limit, std::move(operation));
    error = outcome.error;
    return outcome.result;
}

OperationResult DriverRuntime::change(const CalledDevice &device, ChangeIntent intent,
                                      QString &error, ChangeGate::Work work, Need need,
                                      milliseconds limit)
{
    Outcome refusal;
    const ChangePointer change = announce(device, std::move(intent), refusal);
    error = refusal.error;
    return change ? carryOut(device, change, error, std::move(work), need, limit) : refusal.result;
}

ChangePointer DriverRuntime::announce(const CalledDevice &device, ChangeIntent intent,
                                      Outcome &refusal)
{
    intent.caller = device.caller();
    return ChangeGate::announce(device, std::move(intent), refusal);
}

OperationResult DriverRuntime::carryOut(const CalledDevice &device, const ChangePointer &change,
                                        QString &error, ChangeGate::Work work, Need need,
                                        milliseconds limit)
{
    DeviceConnection::Operation operation =
        [change, work = std::move(work)](const std::shared_ptr<DeviceConnection> &) {
            return ChangeGate::carryOut(change, work);
        };
    if (const std::optional<DeviceIdentity> bound = boundTo(device)) {
        operation = onlyOn(*bound, std::move(operation));
        need = Need::Model;
    }
    const OperationResult result = run(device, error, std::move(operation), need, limit);
    ChangeGate::withdraw(change, {result, error});
    return result;
}

QString DriverRuntime::claim(Holder holder, const QStringList &logicalDevices)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const QString &name : logicalDevices) {
        const auto claimed = m_claimed.find(name);
        if (claimed == m_claimed.end() || claimed->second.number == holder.number)
            continue;
        const auto other = m_connections.find(claimed->second.number);
        const QString title = other == m_connections.end()
                                  ? Texts::tr("Device %1").arg(claimed->second.number)
                                  : other->second->configuration().title();
        return Texts::tr("Its logical device \"%1\" is online already as part of %2; live values "
                         "could not be told apart.")
            .arg(name, title);
    }
    for (const QString &name : logicalDevices)
        m_claimed[name] = holder;
    return {};
}

void DriverRuntime::release(Holder holder)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::size_t before = m_claimed.size();
    for (auto each = m_claimed.begin(); each != m_claimed.end();) {
        each =
            each->second.connection == holder.connection ? m_claimed.erase(each) : std::next(each);
    }
    if (m_claimed.size() == before)
        return;
    for (const auto &each : m_connections)
        each.second->namesReleased();
}
