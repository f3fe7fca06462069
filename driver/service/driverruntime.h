// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "calleddevice.h"

#include "driver/administration/driverobservers.h"
#include "driver/device/changegate.h"
#include "driver/device/deviceconnection.h"
#include "driver/device/livevalues.h"
#include "ieddriver.h"
#include "offlinedriverservice.h"

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/steady_timer.hpp>

#include <atomic>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

/// What the controller operations of the driver run on: threads, devices by number, and the rules
/// that hold for every operation. Any thread.
class DriverRuntime
{
public:
    using Need = DeviceConnection::Need;

    explicit DriverRuntime(IedDriverOptions options);
    ~DriverRuntime();

    void setDevice(const DeviceConfiguration &configuration);
    void holdModel(long deviceNo, const QByteArray &model);
    void removeDevice(long deviceNo);
    /// Null for a device without an address, and for one that does not exist.
    std::shared_ptr<DeviceConnection> connection(long deviceNo) const;
    std::vector<std::shared_ptr<DeviceConnection>> connections() const;
    /// A connection that is in no list and claims no names.
    std::shared_ptr<DeviceConnection> separate(const DeviceConfiguration &configuration);
    OfflineDriverService &offline() { return m_offline; }
    DriverObservers &observers() { return *m_observers; }

    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }
    bool isReadOnly() const { return m_readOnly; }

    /// The caller's tool has been given the model of the device: from now on its changes are about
    /// that one and no other that answers in its place.
    void bind(const CalledDevice &device, const DeviceIdentity &identity);

    /// Of an operation that ends at the latest after the device's operation time-out.
    static constexpr std::chrono::milliseconds usualLimit{0};

    /// Runs an operation that leaves the device as it is. Fills @p error.
    static OperationResult run(const CalledDevice &device, QString &error,
                               DeviceConnection::Operation operation, Need need = Need::Model,
                               std::chrono::milliseconds limit = usualLimit);
    /// Runs an operation that changes something on the device on the caller's behalf; refused by
    /// the device's gate, and when another device than the one that the caller's tool was bound to
    /// has answered.
    OperationResult change(const CalledDevice &device, ChangeIntent intent, QString &error,
                           ChangeGate::Work work, Need need = Need::Model,
                           std::chrono::milliseconds limit = usualLimit);
    /// A change that is going to be carried out; null with the reason in @p refusal. Refused as
    /// well, with the journal told, when @p refusal has a reason already.
    static ChangePointer announce(const CalledDevice &device, ChangeIntent intent,
                                  Outcome &refusal);
    /// Carries out a change that was announced.
    OperationResult carryOut(const CalledDevice &device, const ChangePointer &change,
                             QString &error, ChangeGate::Work work, Need need = Need::Model,
                             std::chrono::milliseconds limit = usualLimit);

private:
    /// Who holds the names of logical devices: a connection, since the one that replaces it under
    /// the same number may claim them before it has let go.
    struct Holder
    {
        int number = 0;
        std::uint64_t connection = 0;
    };

    QString claim(Holder holder, const QStringList &logicalDevices);
    void release(Holder holder);
    void runContext();
    std::optional<DeviceIdentity> boundTo(const CalledDevice &device) const;
    /// Lets observers know of counts that grow by themselves, again and again.
    void tellCounts();

    const IedDriverOptions m_options;
    asio::io_context m_context;
    asio::executor_work_guard<asio::io_context::executor_type> m_work;
    std::shared_ptr<LiveValues> m_values;
    /// Shared with what operations leave behind at the end, which tells that they were cancelled.
    const std::shared_ptr<DriverObservers> m_observers;
    std::unique_ptr<DriverSubscription> m_observer; ///< of the options
    asio::steady_timer m_countTimer;                ///< in a strand of its own
    std::atomic<bool> m_isEnding{false};
    OfflineDriverService m_offline;
    std::atomic<bool> m_readOnly{false};
    mutable std::mutex m_mutex;
    std::map<long, std::shared_ptr<DeviceConnection>> m_connections;
    std::map<QString, Holder> m_claimed; ///< by logical device
    /// What was given the model of which device, by the device's number and the tool.
    std::map<std::pair<long, quint64>, DeviceIdentity> m_bound;
    std::uint64_t m_lastConnection = 0;
    std::condition_variable m_threadEnded;
    std::size_t m_running = 0; ///< threads
    std::vector<std::thread> m_threads;
};
