// SPDX-License-Identifier: Apache-2.0
#pragma once

// Asio has a function of the name of one of Qt's keywords, so it goes before Qt.
#include "simulator/device.h"
#include "simulator/faults.h"
#include "simulator/recordingclient.h"

#include "driver/administration/publishcause.h"
#include "driver/serveddriver.h"

#include <devicemodel/mmsvalue.h>
#include <devicemodel/physicaldevice.h>

#include "driver/model/sclimport.h"

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/post.hpp>

#include <QtCore/QDataStream>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QRandomGenerator>
#include <QtCore/QString>

#include <algorithm>
#include <condition_variable>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace drivertest {

/// A simulated IED on loopback that can be stopped and started again at its port.
class SimulatedIed
{
public:
    /// @param ied may be empty when the file describes a single one
    explicit SimulatedIed(const QString &file, const QString &ied = {}, std::string faults = {},
                          sim::DeviceOptions options = {}, sim::Device::RequestFilter filter = {})
        : m_file(SclImport::readFile(file))
        , m_options(std::move(options))
        , m_filter(std::move(filter))
        , m_work(asio::make_work_guard(m_context))
        , m_thread([this] { m_context.run(); })
    {
        QString error;
        m_ied = SclImport::chooseIed(*m_file.document, ied, error);
        m_options.server.address = "127.0.0.1";
        if (!faults.empty())
            setFaults(faults);
        start();
    }

    ~SimulatedIed()
    {
        stop();
        m_work.reset();
        m_thread.join();
    }

    std::uint16_t port() const { return m_options.server.port; }
    const scl::Ied &ied() const { return *m_ied; }
    std::shared_ptr<sim::Device> device() const { return m_device; }
    /// Of the next start.
    sim::DeviceOptions &options() { return m_options; }
    void setFaults(const std::string &script)
    {
        const auto faults = sim::Faults::parse(script);
        if (!faults)
            qFatal("%s", faults.error().message.english().c_str());
        m_options.server.association.link.interference = (*faults)->interference();
    }

    /// Of the next start.
    void setRequestFilter(sim::Device::RequestFilter filter) { m_filter = std::move(filter); }

    void start()
    {
        const bool isFirst = m_options.server.port == 102;
        // Not a port that the system may give to anybody while the device is stopped.
        constexpr int firstPort = 20000;
        constexpr int lastPort = 32000;
        for (int attempt = 0; attempt < 100; ++attempt) {
            if (isFirst) {
                m_options.server.port = static_cast<std::uint16_t>(
                    QRandomGenerator::system()->bounded(firstPort, lastPort));
            }
            m_device = sim::Device::create(m_context.get_executor(), *m_ied, m_options);
            if (m_filter)
                m_device->setRequestFilter(m_filter);
            const mms::Result<std::uint16_t> started = m_device->start();
            if (started)
                return;
            if (!isFirst)
                qFatal("%s", started.error().message.english().c_str());
        }
        qFatal("no port is free");
    }

    /// The port is free on return.
    void stop()
    {
        if (!m_device)
            return;
        std::promise<void> released;
        m_device->stop([&released] { released.set_value(); });
        released.get_future().wait();
        m_device.reset();
    }

    /// Does something in the device's strand and waits for it.
    void act(const std::function<void(sim::Device &)> &action)
    {
        std::promise<void> done;
        asio::post(m_device->strand(), [&] {
            action(*m_device);
            done.set_value();
        });
        done.get_future().wait();
    }

    void set(const std::string &domain, const std::string &item, const mms::Data &value)
    {
        act([&](sim::Device &device) {
            const sim::Part part = device.model().find(domain, item);
            if (!part.isValid())
                qFatal("no %s in %s", item.c_str(), domain.c_str());
            device.model().set(part, value);
        });
    }

    /// As a client would read it.
    mms::Data value(const std::string &domain, const std::string &item)
    {
        mms::Data result;
        act([&](sim::Device &device) {
            simtest::RecordingClient client;
            const mms::AccessResult read =
                device.access().read(client, device.model().find(domain, item));
            if (read.ok())
                result = read.data();
        });
        return result;
    }

private:
    scl::ReadResult m_file;
    const scl::Ied *m_ied = nullptr;
    sim::DeviceOptions m_options;
    sim::Device::RequestFilter m_filter;
    asio::io_context m_context;
    asio::executor_work_guard<asio::io_context::executor_type> m_work;
    std::shared_ptr<sim::Device> m_device;
    std::thread m_thread;
};

/// What the driver tells: states, changes and published values. Any thread.
class Listener
{
public:
    static constexpr std::chrono::seconds patience{20};

    IedDriverOptions options()
    {
        IedDriverOptions options;
        options.poster = [this](const QList<QByteArray> &records) { take(records); };
        options.observer.statusChanged = [this](const DeviceStatus &status) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_statuses.value(status.number).state != status.state)
                ++m_visits[{status.number, status.state}];
            m_statuses.insert(status.number, status);
            m_changed.notify_all();
        };
        options.journal = [this](const DeviceChange &change) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            (change.state == DeviceChange::State::Begun ? m_intents : m_changes).append(change);
            m_changed.notify_all();
        };
        return options;
    }

    /// Waits until the newest status of the device fulfils the condition; false after the patience.
    bool waitForStatus(int number, const std::function<bool(const DeviceStatus &)> &condition)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, patience, [&] {
            const auto found = m_statuses.constFind(number);
            return found != m_statuses.constEnd() && condition(*found);
        });
    }

    /// As it was told last.
    DeviceState lastState(int number) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_statuses.value(number).state;
    }

    bool waitForState(int number, DeviceState state)
    {
        return waitForStatus(number,
                             [state](const DeviceStatus &status) { return status.state == state; });
    }

    /// Waits until the device has come into the state so many times, however short it stayed there.
    bool waitForVisits(int number, DeviceState state, int count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, patience, [&] {
            return m_visits[{number, state}] >= count;
        });
    }

    /// Waits for a value of the reference that fulfils the condition, published since clear().
    bool waitForValue(const QString &reference,
                      const std::function<bool(const MMSValue &)> &condition)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, patience, [&] {
            const auto found = m_values.constFind(reference);
            return found != m_values.constEnd() && condition(*found);
        });
    }
    bool waitForValue(const QString &reference, const QVariant &value)
    {
        return waitForValue(
            reference, [&value](const MMSValue &published) { return published.value == value; });
    }

    bool waitForChanges(int count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, patience, [&] { return m_changes.size() >= count; });
    }

    MMSValue value(const QString &reference) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_values.value(reference);
    }
    QHash<QString, MMSValue> values() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_values;
    }
    /// Everything published of the reference since clear(), oldest first.
    QList<MMSValue> history(const QString &reference) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_history.value(reference);
    }
    /// Waits until something of a report, or a polling, has been published for so many references.
    bool waitForReferences(int count, std::uint32_t cause)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, patience, [&] {
            return std::count_if(m_values.cbegin(), m_values.cend(), [cause](const MMSValue &each) {
                       return (each.cause & cause) == cause;
                   }) >= count;
        });
    }
    /// What was told before it was done, since clear().
    QList<DeviceChange> intents() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_intents;
    }
    /// What came of changes, since clear().
    QList<DeviceChange> changes() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_changes;
    }
    /// Keeping everything that is published is too much for long tests.
    void keepHistory(bool keep)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_keepsHistory = keep;
    }
    int published() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_published;
    }
    void clear()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_values.clear();
        m_history.clear();
        m_changes.clear();
        m_intents.clear();
        m_published = 0;
    }

private:
    void take(const QList<QByteArray> &records)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (const QByteArray &record : records) {
            MMSValue value;
            QDataStream stream(record);
            value.fromStream(stream);
            m_values.insert(value.reference, value);
            if (m_keepsHistory)
                m_history[value.reference].append(value);
            ++m_published;
        }
        m_changed.notify_all();
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<int, DeviceStatus> m_statuses; ///< the newest of each device
    std::map<std::pair<int, DeviceState>, int> m_visits;
    QList<DeviceChange> m_changes;
    QList<DeviceChange> m_intents;
    QHash<QString, MMSValue> m_values;
    QHash<QString, QList<MMSValue>> m_history;
    bool m_keepsHistory = true;
    int m_published = 0;
};

inline DeviceConfiguration configurationFor(const SimulatedIed &ied, int number = 1)
{
    DeviceConfiguration configuration;
    configuration.number = number;
    configuration.name = QStringLiteral("IED%1").arg(number);
    configuration.host = QStringLiteral("127.0.0.1");
    configuration.port = ied.port();
    return configuration;
}

/// What was exchanged with the device until now, as far as the driver remembers.
inline QVector<TraceLine> traceOf(IedDriver &driver, long deviceNo)
{
    // The observer may be called again before the subscription ends.
    std::promise<QVector<TraceLine>> first;
    bool hasCome = false;
    const auto subscription =
        driver.followTrace(deviceNo, 100000, [&](const QVector<TraceLine> &lines) {
            if (!std::exchange(hasCome, true))
                first.set_value(lines);
        });
    return first.get_future().get();
}

/// The bytes as a device.
inline std::unique_ptr<PhysicalDevice> deviceFrom(const QByteArray &bytes)
{
    auto device = std::make_unique<PhysicalDevice>();
    QDataStream stream(bytes);
    device->fromStream(stream);
    return device;
}

} // namespace drivertest
