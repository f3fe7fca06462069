// SPDX-License-Identifier: Apache-2.0
#include "driverobservers.h"

#include "courier.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <deque>
#include <utility>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

ReportEvent droppedEvent(const ReportEvent &next, std::uint64_t count)
{
    ReportEvent event;
    event.number = next.number;
    event.device = next.device;
    event.arrival = next.arrival;
    event.missing =
        Texts::tr("%1 events of the device were dropped, because they were not taken in "
                  "time.")
            .arg(count);
    return event;
}

} // namespace

/// Everything in one order, until something has to be left out: then younger news take the places
/// of older ones of their device.
class DriverObservers::ObserverCourier : public Courier
{
public:
    ObserverCourier(DriverObserver observer, Limits limits)
        : m_observer(std::move(observer))
        , m_limits(limits)
    {
    }

    const DriverObserver &observer() const { return m_observer; }

    void tellStatus(const DeviceStatus &status)
    {
        if (m_observer.statusChanged)
            putStatus(status.number, status);
    }
    void tellRemoved(int deviceNo)
    {
        if (m_observer.deviceRemoved)
            putStatus(deviceNo, std::nullopt);
    }
    void tellChange(const DeviceChange &change)
    {
        if (!m_observer.changed)
            return;
        put([&] {
            m_changes.push_back(change);
            m_order.push_back({Kind::Change, change.number});
        });
    }
    std::uint64_t tellReport(const ReportEvent &event)
    {
        std::uint64_t dropped = 0;
        if (!m_observer.reportReceived)
            return dropped;
        put([&] {
            Reports &reports = m_reports[event.number];
            reports.events.push_back(event);
            if (reports.events.size() > m_limits.reports) {
                reports.events.pop_front();
                dropped = 1;
                ++reports.dropped;
            } else {
                m_order.push_back({Kind::Report, event.number});
            }
        });
        return dropped;
    }

protected:
    std::function<void()> next() override
    {
        if (m_order.empty())
            return {};
        const Place place = m_order.front();
        if (place.kind == Kind::Report) {
            Reports &reports = m_reports[place.deviceNo];
            if (reports.dropped > 0) {
                // Its place is for the report behind it.
                return [this, event = droppedEvent(reports.events.front(),
                                                   std::exchange(reports.dropped, 0))] {
                    m_observer.reportReceived(event);
                };
            }
            m_order.pop_front();
            return [this, event = taken(reports.events)] { m_observer.reportReceived(event); };
        }
        m_order.pop_front();
        if (place.kind == Kind::Change)
            return [this, change = taken(m_changes)] { m_observer.changed(change); };
        const std::optional<DeviceStatus> status = taken(m_statuses[place.deviceNo]);
        if (!status)
            return [this, place] { m_observer.deviceRemoved(place.deviceNo); };
        return [this, status] { m_observer.statusChanged(*status); };
    }

private:
    enum class Kind { Status, Change, Report };
    struct Place
    {
        Kind kind;
        int deviceNo;
    };
    struct Reports
    {
        std::deque<ReportEvent> events;
        std::uint64_t dropped = 0; ///< since the last that was told
    };

    template <typename Item>
    static Item taken(std::deque<Item> &from)
    {
        Item item = std::move(from.front());
        from.pop_front();
        return item;
    }

    /// A removal has no status.
    void putStatus(int deviceNo, const std::optional<DeviceStatus> &status)
    {
        put([&] {
            std::deque<std::optional<DeviceStatus>> &statuses = m_statuses[deviceNo];
            statuses.push_back(status);
            if (statuses.size() > m_limits.statuses)
                statuses.pop_front();
            else
                m_order.push_back({Kind::Status, deviceNo});
        });
    }

    const DriverObserver m_observer;
    const Limits m_limits;
    // Under the courier's lock:
    std::deque<Place> m_order; ///< as many of a kind and device as there are items of it
    std::map<int, std::deque<std::optional<DeviceStatus>>> m_statuses; ///< by device
    std::deque<DeviceChange> m_changes;
    std::map<int, Reports> m_reports; ///< by device
};

/// Keeps no lines but asks for those that it has not told yet.
class DriverObservers::TraceCourier : public Courier
{
public:
    TraceCourier(int deviceNo, int most, TraceObserver observer)
        : m_deviceNo(deviceNo)
        , m_most(std::max(most, 1))
        , m_observer(std::move(observer))
    {
    }

    int deviceNo() const { return m_deviceNo; }

    void setSource(const std::shared_ptr<const TraceSource> &source)
    {
        put([&] {
            m_source = source;
            m_after = 0;
            m_isDue = true;
        });
    }
    void exchanged()
    {
        put([&] { m_isDue = true; });
    }

protected:
    std::function<void()> next() override
    {
        if (!m_isDue)
            return {};
        m_isDue = false;
        return [this, source = m_source, after = m_after] { tell(source, after); };
    }

private:
    void tell(const std::shared_ptr<const TraceSource> &source, std::uint64_t after)
    {
        const QVector<TraceLine> lines =
            source ? source->trace(m_most, after) : QVector<TraceLine>();
        if (!lines.isEmpty()) {
            put([&] {
                if (m_source == source)
                    m_after = lines.last().number;
            });
        }
        // The first call comes also when there is nothing yet.
        const bool isFirst = !std::exchange(m_hasBegun, true);
        if (isFirst || !lines.isEmpty())
            m_observer(lines);
    }

    const int m_deviceNo;
    const int m_most;
    const TraceObserver m_observer;
    bool m_hasBegun = false; ///< in the thread of the courier
    // Under the courier's lock:
    std::shared_ptr<const TraceSource> m_source;
    std::uint64_t m_after = 0; ///< number of the last line that was told
    bool m_isDue = true;
};

DriverObservers::DriverObservers(Look look)
    : DriverObservers(std::move(look), Limits())
{
}

DriverObservers::DriverObservers(Look look, Limits limits)
    : m_look(std::move(look))
    , m_limits(limits)
{
}

DriverObservers::~DriverObservers()
{
    close();
}

std::unique_ptr<DriverSubscription> DriverObservers::add(DriverObserver observer)
{
    const auto courier = std::make_shared<ObserverCourier>(std::move(observer), m_limits);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        forgetStopped();
        for (const auto &each : m_told)
            courier->tellStatus(each.second.status);
        if (m_isClosed)
            courier->close();
        else
            m_observers.push_back(courier);
    }
    return Courier::start(courier);
}

std::unique_ptr<DriverSubscription> DriverObservers::addTrace(int deviceNo, int most,
                                                              TraceObserver observer)
{
    const auto courier = std::make_shared<TraceCourier>(deviceNo, most, std::move(observer));
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        forgetStopped();
        const auto told = m_told.find(deviceNo);
        if (told != m_told.end())
            courier->setSource(told->second.trace);
        if (m_isClosed)
            courier->close();
        else
            m_tracers.push_back(courier);
        m_isTraced = !m_tracers.empty();
    }
    return Courier::start(courier);
}

void DriverObservers::deviceChanged(int deviceNo)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    lookAt(deviceNo);
}

void DriverObservers::devicesChanged()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<int> numbers;
    for (const auto &each : m_told)
        numbers.push_back(each.first);
    for (const int number : numbers)
        lookAt(number);
}

/// Looks under the lock, so that nobody tells an older status after a younger one.
void DriverObservers::lookAt(int deviceNo)
{
    if (m_isClosed)
        return;
    forgetStopped();
    const std::optional<Device> now = m_look(deviceNo);
    const auto told = m_told.find(deviceNo);
    const bool isNew = told == m_told.end();
    if (isNew && !now)
        return;
    if (isNew || !now || told->second.status != now->status) {
        for (const auto &each : m_observers) {
            if (now)
                each->tellStatus(now->status);
            else
                each->tellRemoved(deviceNo);
        }
    }
    const std::shared_ptr<const TraceSource> trace = now ? now->trace : nullptr;
    if (isNew || told->second.trace != trace) {
        for (const auto &each : m_tracers) {
            if (each->deviceNo() == deviceNo)
                each->setSource(trace);
        }
    }
    if (now)
        m_told[deviceNo] = *now;
    else
        m_told.erase(told);
}

void DriverObservers::tell(const DeviceChange &change)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const auto &each : m_observers)
        each->tellChange(change);
}

bool DriverObservers::wantReports() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::any_of(m_observers.begin(), m_observers.end(), [](const auto &each) {
        return each->observer().reportReceived && !each->isStopped();
    });
}

std::uint64_t DriverObservers::tell(const ReportEvent &event)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::uint64_t dropped = 0;
    for (const auto &each : m_observers)
        dropped += each->tellReport(event);
    return dropped;
}

void DriverObservers::exchanged(int deviceNo)
{
    if (!m_isTraced)
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    forgetStopped();
    for (const auto &each : m_tracers) {
        if (each->deviceNo() == deviceNo)
            each->exchanged();
    }
}

void DriverObservers::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isClosed = true;
    for (const auto &each : m_observers)
        each->close();
    for (const auto &each : m_tracers)
        each->close();
    m_observers.clear();
    m_tracers.clear();
    m_isTraced = false;
}

void DriverObservers::forgetStopped()
{
    const auto isStopped = [](const auto &each) { return each->isStopped(); };
    m_observers.erase(std::remove_if(m_observers.begin(), m_observers.end(), isStopped),
                      m_observers.end());
    m_tracers.erase(std::remove_if(m_tracers.begin(), m_tracers.end(), isStopped), m_tracers.end());
    m_isTraced = !m_tracers.empty();
}
