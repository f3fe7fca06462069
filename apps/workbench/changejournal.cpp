// SPDX-License-Identifier: Apache-2.0
#include "changejournal.h"

#include "plaintip.h"

#include "driver/text/csvfield.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>
#include <QtGui/QBrush>

#include <algorithm>

namespace {

QByteArray csvRow(const QStringList &fields)
{
    QStringList encoded;
    for (const QString &field : fields)
        encoded << csvField(field);
    return encoded.join(QLatin1Char(',')).toUtf8() + "\r\n";
}

/// The same in every language, since programs read it.
QByteArray heading()
{
    return csvRow({QStringLiteral("time"), QStringLiteral("device number"),
                   QStringLiteral("device"), QStringLiteral("operation"),
                   QStringLiteral("reference"), QStringLiteral("old value"),
                   QStringLiteral("new value"), QStringLiteral("result"),
                   QStringLiteral("additional cause"), QStringLiteral("caller")});
}

QByteArray rowOf(const DeviceChange &change)
{
    return csvRow(
        {change.time.toOffsetFromUtc(change.time.offsetFromUtc()).toString(Qt::ISODateWithMs),
         QString::number(change.number), change.device, change.operation, change.reference,
         change.oldValue, change.newValue,
         change.error.isEmpty() ? QStringLiteral("OK") : change.error, change.additionalCause,
         change.caller.text()});
}

} // namespace

ChangeJournal::ChangeJournal(const QString &file, int capacity, QObject *parent)
    : QAbstractTableModel(parent)
    , m_capacity(std::max(capacity, 1))
    , m_file(file)
{
}

ChangeJournal::~ChangeJournal()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto &each : m_begun) {
        each.second.error = QCoreApplication::translate(
            "IedDriver", "The driver has not waited for the end of the operation.");
        writeRow(each.second);
    }
}

bool ChangeJournal::writeRow(const DeviceChange &change)
{
    if (m_file.fileName().isEmpty())
        return false;
    const QString problem =
        append(rowOf(change))
            ? QString()
            : tr("The journal \"%1\" cannot be written: %2")
                  .arg(QDir::toNativeSeparators(m_file.fileName()), m_file.errorString());
    if (problem == m_problem)
        return false;
    m_problem = problem;
    m_problemIsNew = true;
    return true;
}

void ChangeJournal::write(const DeviceChange &change)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (change.state == DeviceChange::State::Begun) {
            m_begun[change.id] = change;
            return;
        }
        m_begun.erase(change.id);
        if (!writeRow(change))
            return;
    }
    QMetaObject::invokeMethod(this, "takeChanges", Qt::QueuedConnection);
}

void ChangeJournal::add(const DeviceChange &change)
{
    if (change.state == DeviceChange::State::Begun)
        return;
    bool first = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        first = m_mailbox.empty();
        m_mailbox.push_back(change);
        if (m_mailbox.size() > static_cast<std::size_t>(m_capacity))
            m_mailbox.pop_front();
    }
    if (first)
        QMetaObject::invokeMethod(this, "takeChanges", Qt::QueuedConnection);
}

bool ChangeJournal::openFile()
{
    if (m_file.isOpen())
        return true;
    if (!QFileInfo(m_file.fileName()).dir().mkpath(QStringLiteral(".")) ||
        !m_file.open(QIODevice::ReadWrite | QIODevice::Append)) {
        return false;
    }
    if (m_file.size() == 0)
        return m_file.write(heading()) >= 0;
    // A row that a crash cut off must not swallow the next one.
    m_file.seek(m_file.size() - 1);
    return m_file.read(1) == "\n" || m_file.write("\r\n") >= 0;
}

bool ChangeJournal::append(const QByteArray &row)
{
    if (openFile() && m_file.write(row) == row.size() && m_file.flush())
        return true;
    m_file.close();
    return false;
}

QString ChangeJournal::problem() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_problem;
}

void ChangeJournal::takeChanges()
{
    std::deque<DeviceChange> arrived;
    bool problemIsNew = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        arrived.swap(m_mailbox);
        problemIsNew = std::exchange(m_problemIsNew, false);
    }
    if (problemIsNew)
        emit problemChanged();
    if (arrived.empty())
        return;

    const int kept = static_cast<int>(m_changes.size());
    const int added = static_cast<int>(arrived.size());
    if (const int surplus = std::min(kept, kept + added - m_capacity); surplus > 0) {
        beginRemoveRows({}, 0, surplus - 1);
        m_changes.erase(m_changes.begin(), m_changes.begin() + surplus);
        endRemoveRows();
    }
    const int position = static_cast<int>(m_changes.size());
    beginInsertRows({}, position, position + added - 1);
    std::move(arrived.begin(), arrived.end(), std::back_inserter(m_changes));
    endInsertRows();
}

int ChangeJournal::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_changes.size());
}

int ChangeJournal::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ChangeJournal::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const DeviceChange &change = m_changes[static_cast<std::size_t>(index.row())];
    if (role == Qt::ForegroundRole && index.column() == ResultColumn && !change.error.isEmpty())
        return QBrush(Qt::red);
    if (role == Qt::ToolTipRole && index.column() != TimeColumn)
        return plainTip(data(index, Qt::DisplayRole).toString());
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    switch (index.column()) {
    case TimeColumn:
        return role == Qt::DisplayRole ? change.time.toString(QStringLiteral("HH:mm:ss.zzz"))
                                       : change.time.toString(Qt::ISODateWithMs);
    case DeviceColumn:
        return tr("%1 (%2)").arg(change.device, QString::number(change.number));
    case OperationColumn:
        return change.operation;
    case ReferenceColumn:
        return change.reference;
    case OldValueColumn:
        return change.oldWords.isEmpty() ? change.oldValue : change.oldWords;
    case NewValueColumn:
        return change.newWords.isEmpty() ? change.newValue : change.newWords;
    case ResultColumn:
        return change.error.isEmpty() ? tr("OK") : change.error.simplified();
    case CauseColumn:
        return change.additionalCause;
    default:
        return {};
    }
}

QVariant ChangeJournal::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case DeviceColumn:
        return tr("Device");
    case OperationColumn:
        return tr("Operation");
    case ReferenceColumn:
        return tr("Reference");
    case OldValueColumn:
        return tr("Old value");
    case NewValueColumn:
        return tr("New value");
    case ResultColumn:
        return tr("Result");
    case CauseColumn:
        return tr("Additional cause");
    default:
        return {};
    }
}
