// SPDX-License-Identifier: Apache-2.0
#include "reportevents.h"

#include <asio/post.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <exception>

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

std::shared_ptr<ReportEvents> ReportEvents::create(const asio::any_io_executor &executor,
                                                   Receiver receiver, std::size_t limit)
{
    return std::make_shared<ReportEvents>(Private(), executor, std::move(receiver), limit);
}

ReportEvents::ReportEvents(Private, const asio::any_io_executor &executor, Receiver receiver,
                           std::size_t limit)
    : m_strand(asio::make_strand(executor))
    , m_receiver(std::move(receiver))
    , m_limit(std::max<std::size_t>(limit, 1))
{
}

std::uint64_t ReportEvents::push(ReportEvent event)
{
    std::uint64_t dropped = 0;
    bool mustPost = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        Waiting &waiting = m_waiting[event.number];
        waiting.events.push_back(std::move(event));
        while (waiting.events.size() > m_limit) {
            waiting.events.pop_front();
            ++dropped;
        }
        waiting.dropped += dropped;
        mustPost = !m_isPosted;
        m_isPosted = true;
    }
    if (mustPost)
        asio::post(m_strand, [self = shared_from_this()] { self->deliver(); });
    return dropped;
}

void ReportEvents::deliver()
{
    for (;;) {
        std::map<int, Waiting> batch;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            batch.swap(m_waiting);
            if (batch.empty()) {
                m_isPosted = false;
                return;
            }
        }
        try {
            for (const auto &each : batch) {
                const Waiting &waiting = each.second;
                if (waiting.dropped > 0)
                    m_receiver(droppedEvent(waiting.events.front(), waiting.dropped));
                for (const ReportEvent &event : waiting.events)
                    m_receiver(event);
            }
        } catch (const std::exception &exception) {
            // A host that fails once goes on to get events.
            qWarning("IedDriver: %s", exception.what());
        }
    }
}

void ReportEvents::flush()
{
    deliver();
}
