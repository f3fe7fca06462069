// SPDX-License-Identifier: Apache-2.0
#include "tracemodel.h"

#include "plaintip.h"

#include <algorithm>

TraceModel::TraceModel(DriverAdministration &driver, int deviceNo, int capacity, QObject *parent)
    : QAbstractTableModel(parent)
    , m_capacity(std::max(capacity, 1))
{
    connect(&m_bell, &Doorbell::rung, this, &TraceModel::exchanged);
    m_subscription = driver.followTrace(deviceNo, m_capacity,
                                        [this](const QVector<TraceLine> &lines) { take(lines); });
}

TraceModel::~TraceModel() = default;

void TraceModel::take(const QVector<TraceLine> &lines)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_arrived.insert(m_arrived.end(), lines.begin(), lines.end());
        const int surplus = static_cast<int>(m_arrived.size()) - m_capacity;
        m_arrived.erase(m_arrived.begin(), m_arrived.begin() + std::max(surplus, 0));
    }
    m_bell.ring();
}

void TraceModel::refresh()
{
    std::deque<TraceLine> lines;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        lines.swap(m_arrived);
    }
    if (lines.empty())
        return;
    const int kept = static_cast<int>(m_lines.size());
    const int added = static_cast<int>(lines.size());
    if (const int surplus = std::min(kept, kept + added - m_capacity); surplus > 0) {
        beginRemoveRows({}, 0, surplus - 1);
        m_lines.erase(m_lines.begin(), m_lines.begin() + surplus);
        endRemoveRows();
    }
    const int position = static_cast<int>(m_lines.size());
    beginInsertRows({}, position, position + added - 1);
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
