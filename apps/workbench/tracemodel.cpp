// SPDX-License-Identifier: Apache-2.0
#include "tracemodel.h"

#include "plaintip.h"

#include <algorithm>

TraceModel::TraceModel(const IedDriver &driver, int deviceNo, int capacity, QObject *parent)
    : QAbstractTableModel(parent)
    , m_driver(driver)
    , m_deviceNo(deviceNo)
    , m_capacity(std::max(capacity, 1))
{
    refresh();
}

void TraceModel::refresh()
{
    const DeviceCounters counters = m_driver.status(m_deviceNo).counters;
    const std::uint64_t exchanged = counters.sentPdus + counters.receivedPdus;
    // A device that was configured anew counts from the beginning.
    const std::uint64_t arrived = exchanged >= m_seen ? exchanged - m_seen : exchanged;
    m_seen = exchanged;
    if (arrived == 0)
        return;
    const QVector<TraceLine> lines = m_driver.trace(
        m_deviceNo,
        static_cast<int>(std::min<std::uint64_t>(arrived, static_cast<std::uint64_t>(m_capacity))));
    if (lines.isEmpty())
        return;
    const int kept = static_cast<int>(m_lines.size());
    if (const int surplus = std::min(kept, kept + lines.size() - m_capacity); surplus > 0) {
        beginRemoveRows({}, 0, surplus - 1);
        m_lines.erase(m_lines.begin(), m_lines.begin() + surplus);
        endRemoveRows();
    }
    const int position = static_cast<int>(m_lines.size());
    beginInsertRows({}, position, position + lines.size() - 1);
    m_lines.insert(m_lines.end(), lines.begin(), lines.end());
    endInsertRows();
}

void TraceModel::clear()
{
    beginResetModel();
    m_lines.clear();
    endResetModel();
}

int TraceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int TraceModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TraceModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const TraceLine &line = m_lines[static_cast<std::size_t>(index.row())];
    if (role == Qt::ToolTipRole && index.column() == TextColumn)
        return plainTip(line.text);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case TimeColumn:
        return line.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case DirectionColumn:
        return line.sent ? tr("sent") : tr("received");
    case TextColumn:
        return line.text.simplified();
    default:
        return {};
    }
}

QVariant TraceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case DirectionColumn:
        return tr("Direction");
    case TextColumn:
        return tr("PDU");
    default:
        return {};
    }
}
