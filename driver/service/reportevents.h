// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/reportevent.h"

#include <asio/any_io_executor.hpp>
#include <asio/strand.hpp>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>

/// Hands report events to the host, those of each device in their order, one at a time, in the
/// threads of the executor. Keeps what the host has not taken yet; beyond the limit of a device its
/// oldest give way, which the next event of the device says. Any thread.
class ReportEvents : public std::enable_shared_from_this<ReportEvents>
{
    struct Private
    {
    };

public:
    using Receiver = std::function<void(const ReportEvent &event)>;

    static constexpr std::size_t mostWaiting = 10000;

    static std::shared_ptr<ReportEvents> create(const asio::any_io_executor &executor,
                                                Receiver receiver, std::size_t limit = mostWaiting);
    ReportEvents(Private, const asio::any_io_executor &executor, Receiver receiver,
                 std::size_t limit);

    /// The number of older events that were dropped for this one.
    std::uint64_t push(ReportEvent event);
    /// Hands over what waits in the calling thread; once the executor runs no more.
    void flush();

private:
    struct Waiting
    {
        std::deque<ReportEvent> events;
        std::uint64_t dropped = 0; ///< since the last that was handed over
    };

    void deliver();

    const asio::strand<asio::any_io_executor> m_strand;
    const Receiver m_receiver;
    const std::size_t m_limit;
    std::mutex m_mutex;
    std::map<int, Waiting> m_waiting; ///< by device
    bool m_isPosted = false;
};
