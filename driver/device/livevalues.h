// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/strand.h"

#include <devicemodel/mmsvalue.h>

#include <asio/steady_timer.hpp>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

/// Gathers values and posts them as events to every browser's box: the newest value of each
/// reference, at the latest after an interval, in events of bounded size. Any thread.
class LiveValues : public std::enable_shared_from_this<LiveValues>
{
    struct Private
    {
    };

public:
    /// Posts the records of one event; called in one thread at a time.
    using Poster = std::function<void(const QList<QByteArray> &records)>;

    static constexpr std::chrono::milliseconds interval{50};
    static constexpr int recordsPerEvent = 4096;

    /// Posts to the boxes of the event middleware unless @p poster is given.
    static std::shared_ptr<LiveValues> create(const asio::any_io_executor &executor,
                                              Poster poster = {});
    LiveValues(Private, const asio::any_io_executor &executor, Poster poster);

    void publish(std::vector<MMSValue> values);
    /// Post what is gathered now.
    void flush();

private:
    void post();

    osi::Strand m_strand;
    asio::steady_timer m_timer; ///< in the strand
    Poster m_poster;
    std::mutex m_mutex;
    std::vector<MMSValue> m_gathered;       ///< in the order of first appearance
    QHash<QString, std::size_t> m_position; ///< by reference
    bool m_timerRuns = false;
};
