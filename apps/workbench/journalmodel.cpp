// SPDX-License-Identifier: Apache-2.0
#include "journalmodel.h"

#include "plaintip.h"

#include <QtCore/QLocale>
#include <QtGui/QBrush>

#include <algorithm>

JournalModel::JournalModel(int capacity, QObject *parent)
    : QAbstractTableModel(parent)
    , m_capacity(std::max(capacity, 1))
    , m_deviceName([](long deviceNo) { return QString::number(deviceNo); })
{
}

JournalModel::~JournalModel()
{
    if (ControllerCallObserver::installed() == this)
        ControllerCallObserver::install(nullptr);
}

void JournalModel::setDeviceNames(std::function<QString(long)> deviceName)
{
    m_deviceName = std::move(deviceName);
}

void JournalModel::controllerCalled(const ControllerCall &call)
{
    bool first = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        first = m_mailbox.empty();
        m_mailbox.push_back(call);
        if (m_mailbox.size() > static_cast<std::size_t>(m_capacity))
            m_mailbox.pop_front();
    }
    if (first)
        QMetaObject::invokeMethod(this, "takeCalls", Qt::QueuedConnection);
}

void JournalModel::takeCalls()
{
    std::deque<ControllerCall> arrived;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        arrived.swap(m_mailbox);
    }
    if (arrived.empty())
        return;

    const int kept = static_cast<int>(m_calls.size());
    const int added = static_cast<int>(arrived.size());
    if (const int surplus = std::min(kept, kept + added - m_capacity); surplus > 0) {
        beginRemoveRows({}, 0, surplus - 1);
        m_calls.erase(m_calls.begin(), m_calls.begin() + surplus);
        endRemoveRows();
    }
    const int position = static_cast<int>(m_calls.size());
    beginInsertRows({}, position, position + added - 1);
    std::move(arrived.begin(), arrived.end(), std::back_inserter(m_calls));
    endInsertRows();
}

void JournalModel::clear()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_mailbox.clear();
    }
    beginResetModel();
    m_calls.clear();
    endResetModel();
}

int JournalModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_calls.size());
}

int JournalModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString JournalModel::text(const ControllerCall &call, int column) const
{
    switch (column) {
    case TimeColumn:
        return call.started.toString(QStringLiteral("HH:mm:ss.zzz"));
    case DeviceColumn:
        return m_deviceName(call.deviceNo);
    case OperationColumn:
        return call.operation;
    case ArgumentsColumn:
        return call.arguments.simplified();
    case ResultColumn:
        if (call.result == OperationSucceeded)
            return tr("OK");
        if (call.error.isEmpty())
            return tr("Failed (%1)").arg(int(call.result));
        return tr("%1 (%2)").arg(call.error.simplified(), QString::number(call.result));
    case DurationColumn:
        return tr("%1 ms").arg(
            QLocale().toString(static_cast<double>(call.duration.count()) / 1000.0, 'f', 2));
    default:
        return {};
    }
}

QVariant JournalModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ControllerCall &call = m_calls[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(call, index.column());
    case Qt::ToolTipRole:
        if (index.column() == ArgumentsColumn || index.column() == ResultColumn)
            return plainTip(text(call, index.column()));
        if (index.column() == TimeColumn)
            return call.started.toString(Qt::ISODateWithMs);
        return {};
    case Qt::TextAlignmentRole:
        if (index.column() == DurationColumn)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    case Qt::ForegroundRole:
        if (index.column() == ResultColumn && call.result != OperationSucceeded)
            return QBrush(Qt::red);
        return {};
    default:
        return {};
    }
}

QVariant JournalModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole) {
        return section == DurationColumn ? int(Qt::AlignRight | Qt::AlignVCenter)
                                         : int(Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case DeviceColumn:
        return tr("Device");
    case OperationColumn:
        return tr("Operation");
    case ArgumentsColumn:
        return tr("Arguments");
    case ResultColumn:
        return tr("Result");
    case DurationColumn:
        return tr("Duration");
    default:
        return {};
    }
}
