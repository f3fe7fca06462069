// SPDX-License-Identifier: Apache-2.0
#include "pducapture.h"

#include "driver/text/sentences.h"

#include "mms/pdu.h"
#include "osi/pcapng.h"

#include <QtCore/QIODevice>

#include <algorithm>

namespace {

/// What an entry costs besides its octets.
constexpr std::size_t entryOverhead = 64;

/// Longer texts would only slow a window down that shows them.
constexpr std::size_t longestText = 4000;

std::size_t costOf(std::size_t octets)
{
    return octets + entryOverhead;
}

bool writeAll(QIODevice &device, const mms::Octets &octets)
{
    const auto size = static_cast<qint64>(octets.size());
    return device.write(reinterpret_cast<const char *>(octets.data()), size) == size;
}

QString textOf(const std::vector<std::uint8_t> &octets)
{
    const mms::Result<mms::Pdu> pdu = mms::decodePdu(octets);
    if (!pdu)
        return text(pdu.error().message);
    std::string text = mms::toText(*pdu);
    if (text.size() > longestText) {
        text.resize(longestText);
        return QString::fromStdString(text) + QStringLiteral("…");
    }
    return QString::fromStdString(text);
}

} // namespace

PduCapture::PduCapture(std::size_t limit)
    : m_limit(limit)
{
}

void PduCapture::add(osi::Direction direction, osi::Bytes pdu, Time now)
{
    if (direction == osi::Direction::Sent) {
        ++m_sent;
    } else {
        ++m_received;
        m_lastReceived = now.time_since_epoch().count();
    }
    Entry entry{0, std::chrono::system_clock::now(), direction, {pdu.begin(), pdu.end()}};
    const std::lock_guard<std::mutex> lock(m_mutex);
    entry.number = ++m_lastNumber;
    m_octets += costOf(entry.pdu.size());
    m_entries.push_back(std::move(entry));
    while (m_octets > m_limit && m_entries.size() > 1) {
        m_octets -= costOf(m_entries.front().pdu.size());
        m_entries.pop_front();
    }
}

bool PduCapture::save(QIODevice &device) const
{
    // Copied, so that a slow disk does not hold up the association.
    const std::vector<Entry> entries = newest(std::numeric_limits<std::size_t>::max());
    if (!writeAll(device, osi::pcapng::fileHeader()))
        return false;
    return std::all_of(entries.begin(), entries.end(), [&device](const Entry &entry) {
        return writeAll(device, osi::pcapng::packet(entry.direction, entry.time, entry.pdu));
    });
}

QVector<TraceLine> PduCapture::trace(int most, std::uint64_t after) const
{
    const std::vector<Entry> entries = newest(static_cast<std::size_t>(std::max(most, 0)), after);
    QVector<TraceLine> lines;
    lines.reserve(static_cast<int>(entries.size()));
    for (const Entry &entry : entries) {
        const auto sinceEpoch = entry.time.time_since_epoch();
        lines.append(
            {entry.number,
             QDateTime::fromMSecsSinceEpoch(
                 std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count()),
             entry.direction == osi::Direction::Sent, textOf(entry.pdu)});
    }
    return lines;
}

std::size_t PduCapture::octets() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_octets;
}

PduCapture::Time PduCapture::lastReceived() const
{
    return Time(Time::duration(m_lastReceived.load()));
}

std::vector<PduCapture::Entry> PduCapture::newest(std::size_t most, std::uint64_t after) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto younger = static_cast<std::size_t>(m_lastNumber - std::min(after, m_lastNumber));
    const std::size_t taken = std::min({most, younger, m_entries.size()});
    return {m_entries.end() - static_cast<std::ptrdiff_t>(taken), m_entries.end()};
}
