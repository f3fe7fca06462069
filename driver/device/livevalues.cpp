// SPDX-License-Identifier: Apache-2.0
#include "livevalues.h"

#include "driver/administration/publishcause.h"

#include <tavrix/tavrix.h>

#include <asio/post.hpp>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>

#include <algorithm>

namespace {

const char *const boxPrefix = "MMS_DATACHANGE:";
const char *const recordKey = "MMS_VALUE";

void postToBrowsers(const QList<QByteArray> &records)
{
    Tavrix::PostEvent(boxPrefix, recordKey, records);
}

/// Writes records, one after the other in the same place.
class RecordWriter
{
public:
    RecordWriter()
    {
        m_place.buffer().reserve(MMSValue::rawSize);
        m_place.open(QIODevice::WriteOnly);
    }

    QByteArray recordOf(const MMSValue &value)
    {
        m_place.seek(0);
        value.toStream(m_stream);
        return QByteArray(m_place.data().constData(), static_cast<int>(m_place.pos()));
    }

private:
    QBuffer m_place;
    QDataStream m_stream{&m_place};
};

} // namespace

static_assert(LiveValues::recordsPerEvent <= Tavrix::maxRecordsPerEvent);

std::shared_ptr<LiveValues> LiveValues::create(const asio::any_io_executor &executor, Poster poster)
{
    return std::make_shared<LiveValues>(Private(), executor, std::move(poster));
}

LiveValues::LiveValues(Private, const asio::any_io_executor &executor, Poster poster)
    : m_strand(osi::strandOn(executor))
    , m_timer(m_strand)
    , m_poster(poster ? std::move(poster) : Poster(postToBrowsers))
{
}

void LiveValues::publish(std::vector<MMSValue> values)
{
    if (values.empty())
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (MMSValue &value : values) {
        const auto found = m_position.constFind(value.reference);
        if (found != m_position.constEnd()) {
            MMSValue &kept = m_gathered[*found];
            // What somebody waits for, an answer or a report, stays to be known as such.
            if (value.cause == PublishCause::Polled)
                value.cause = kept.cause;
            kept = std::move(value);
        } else {
            m_position.insert(value.reference, m_gathered.size());
            m_gathered.push_back(std::move(value));
        }
    }
    if (m_timerRuns)
        return;
    m_timerRuns = true;
    asio::post(m_strand, [self = shared_from_this()] {
        self->m_timer.expires_after(interval);
        self->m_timer.async_wait([self](const asio::error_code &) { self->post(); });
    });
}

void LiveValues::flush()
{
    asio::post(m_strand, [self = shared_from_this()] { self->m_timer.cancel(); });
}

void LiveValues::post()
{
    std::vector<MMSValue> values;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        values.swap(m_gathered);
        m_position.clear();
        m_timerRuns = false;
    }
    RecordWriter writer;
    QList<QByteArray> records;
    records.reserve(static_cast<int>(std::min<std::size_t>(values.size(), recordsPerEvent)));
    for (const MMSValue &value : values) {
        records.append(writer.recordOf(value));
        if (records.size() == recordsPerEvent) {
            m_poster(records);
            records.clear();
        }
    }
    if (!records.isEmpty())
        m_poster(records);
}
