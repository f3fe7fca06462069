// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/core/polling.h"
#include "driver/core/reportcoverage.h"

#include "acsi/client.h"

#include <asio/awaitable.hpp>

#include <QtCore/QString>

#include <cstdint>
#include <memory>
#include <vector>

class DeviceConnection;

/// Carries out what Polling says: asks the device, publishes what comes and tells which values are
/// not current. In the strand of the connection, which outlives it.
class ValuePolling
{
public:
    using ClientPointer = std::shared_ptr<acsi::Client>;

    explicit ValuePolling(DeviceConnection &connection);

    /// An association has a model: from now on account is kept of which of its values are current.
    void begin(const ClientPointer &client);
    /// Returns when the configuration has been asked for, or the association has ended.
    asio::awaitable<void> readConfiguration(ClientPointer client);
    /// Returns when nothing will be asked for any more, or the association has ended.
    asio::awaitable<void> poll(ClientPointer client);
    /// The association has ended: all values are old.
    void end();

    /// Data that comes by itself under @p source (a report control block), and which of its changes
    /// do. A leaf that ReportedData covers leaves the fast polling, never the slow one. An empty
    /// list takes the source away; the end of the association takes all.
    void setReported(const QString &source, const std::vector<acsi::Reference> &references,
                     const ReportCoverage &coverage);

    /// Which values are current; null before the first model.
    ValueCurrency *currency() const;
    /// The next smaller parts of a part that can be read.
    std::vector<ValueCurrency::Part> partsOf(const ValueCurrency::Part &whole) const;

private:
    using Time = Polling::Time;

    asio::awaitable<void> carryOut(ClientPointer client);
    void followReports(ValueCurrency &currency);
    const LeafTriggers &triggersOf(std::uint32_t leaf);
    /// Status and problems say what is not current.
    void tell(const ValueCurrency &currency);

    DeviceConnection &m_connection;
    std::shared_ptr<Polling> m_polling; ///< of the last association that had a model
    ReportedData m_reported;
    bool m_reportedChanged = false;       ///< what is reported has to be told to m_polling
    std::vector<LeafTriggers> m_triggers; ///< by leaf, as far as they were needed
    std::vector<bool> m_knowsTriggers;    ///< by leaf
};
