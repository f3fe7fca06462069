// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/tracesource.h"

#include "osi/trace.h"

#include <QtCore/QVector>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>

class QIODevice;

/// The last PDUs of a device, whatever association they belonged to: at most a number of octets,
/// the oldest give way. Any thread.
class PduCapture : public TraceSource
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr std::size_t defaultLimit = 4U << 20;

    explicit PduCapture(std::size_t limit = defaultLimit);

    void add(osi::Direction direction, osi::Bytes pdu, Time now);

    /// Writes what is there as a capture that protocol analysers open (pcapng). False when the
    /// device does not take it; its error text says why.
    bool save(QIODevice &device) const;
    /// The newest PDUs as text, oldest first; at most @p most, and none up to number @p after.
    QVector<TraceLine> trace(int most, std::uint64_t after) const override;

    std::size_t octets() const;
    std::uint64_t sent() const { return m_sent; }
    std::uint64_t received() const { return m_received; }
    /// When the last PDU came; the clock's epoch before the first.
    Time lastReceived() const;

private:
    struct Entry
    {
        std::uint64_t number = 0; ///< from 1, in the order of the entries
        std::chrono::system_clock::time_point time;
        osi::Direction direction;
        std::vector<std::uint8_t> pdu;
    };

    std::vector<Entry> newest(std::size_t most, std::uint64_t after = 0) const;

    const std::size_t m_limit;
    mutable std::mutex m_mutex;
    std::deque<Entry> m_entries;
    std::uint64_t m_lastNumber = 0;
    std::size_t m_octets = 0;
    std::atomic<std::uint64_t> m_sent{0};
    std::atomic<std::uint64_t> m_received{0};
    std::atomic<Time::rep> m_lastReceived{0};
};
