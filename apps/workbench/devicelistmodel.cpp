// SPDX-License-Identifier: Apache-2.0
#include "devicelistmodel.h"

#include "plaintip.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QStringList>
#include <QtGui/QBrush>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace {

bool isResource(const QString &file)
{
    return file.startsWith(QLatin1Char(':'));
}

bool isSameToTheOperator(const DeviceStatus &left, const DeviceStatus &right)
{
    return left.state == right.state && left.reason == right.reason &&
           left.vendor == right.vendor && left.model == right.model &&
           left.revision == right.revision && left.roundTrip == right.roundTrip &&
           left.modelStepsDone == right.modelStepsDone && left.modelSteps == right.modelSteps &&
           left.refusedObjects == right.refusedObjects && left.lostSince == right.lostSince &&
           left.staleValues == right.staleValues && left.staleSince == right.staleSince &&
           left.refusedValues == right.refusedValues &&
           left.counters.sentPdus == right.counters.sentPdus &&
           left.counters.receivedPdus == right.counters.receivedPdus &&
           left.counters.reports == right.counters.reports &&
           left.counters.publishedValues == right.counters.publishedValues &&
           left.counters.connections == right.counters.connections;
}

QString count(std::uint64_t number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

QString shortTime(const QDateTime &time)
{
    return QLocale().toString(time, QLocale::ShortFormat);
}

bool isNumberColumn(int column)
{
    return column == DeviceListModel::RoundTripColumn || column == DeviceListModel::ReportsColumn ||
           column == DeviceListModel::ValuesColumn;
}

} // namespace

DeviceListModel::DeviceListModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void DeviceListModel::append(const DeviceRecord &record)
{
    beginInsertRows({}, m_devices.size(), m_devices.size());
    Device device;
    device.record = record;
    m_devices.append(device);
    endInsertRows();
}

void DeviceListModel::remove(int number)
{
    const int row = rowOf(number);
    if (row < 0)
        return;
    beginRemoveRows({}, row, row);
    m_devices.removeAt(row);
    endRemoveRows();
}

void DeviceListModel::setRecord(const DeviceRecord &record)
{
    const int row = rowOf(record.number());
    if (row < 0)
        return;
    m_devices[row].record = record;
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

void DeviceListModel::setStatus(const DeviceStatus &status)
{
    const int row = rowOf(status.number);
    if (row < 0 || isSameToTheOperator(m_devices[row].status, status))
        return;
    m_devices[row].status = status;
    emit dataChanged(index(row, StateColumn), index(row, ColumnCount - 1));
}

void DeviceListModel::setLoading(int number)
{
    change(number, Loading, {}, {}, {});
}

void DeviceListModel::setReady(int number, const QString &content,
                               const QVector<scl::Finding> &findings)
{
    change(number, Ready, {}, content, findings);
}

void DeviceListModel::setFailed(int number, const QString &reason)
{
    change(number, Failed, reason, {}, {});
}

void DeviceListModel::setStopped(int number)
{
    const int row = rowOf(number);
    if (row < 0)
        return;
    m_devices[row].status = {};
    const Device device = m_devices[row];
    change(number, Stopped, {}, device.content, device.findings);
}

void DeviceListModel::change(int number, State state, const QString &reason, const QString &content,
                             const QVector<scl::Finding> &findings)
{
    const int row = rowOf(number);
    if (row < 0)
        return;
    Device &device = m_devices[row];
    device.state = state;
    device.reason = reason;
    device.content = content;
    device.findings = findings;
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

const DeviceListModel::Device *DeviceListModel::device(int number) const
{
    return deviceAt(rowOf(number));
}

const DeviceListModel::Device *DeviceListModel::deviceAt(int row) const
{
    return row >= 0 && row < m_devices.size() ? &m_devices[row] : nullptr;
}

int DeviceListModel::rowOf(int number) const
{
    for (int row = 0; row < m_devices.size(); ++row) {
        if (m_devices[row].record.number() == number)
            return row;
    }
    return -1;
}

int DeviceListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_devices.size();
}

int DeviceListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString DeviceListModel::stateText(const Device &device)
{
    const bool isReached = device.record.isReached();
    switch (device.state) {
    case Loading:
        return device.record.simulated ? tr("Starting the simulation…") : tr("Loading…");
    case Failed:
        return isReached ? tr("Cannot be used: %1").arg(device.reason)
                         : tr("Model cannot be read: %1").arg(device.reason);
    case Stopped:
        return tr("Simulation stopped");
    case Ready:
        break;
    }
    if (!isReached)
        return tr("Offline model");
    const DeviceStatus &status = device.status;
    switch (status.state) {
    case DeviceState::Disconnected:
        return status.reason.isEmpty() ? tr("Not connected")
                                       : tr("Not connected: %1").arg(status.reason);
    case DeviceState::Connecting:
        return tr("Connecting…");
    case DeviceState::ReadingModel:
        return status.modelSteps > 0 ? tr("Reading the model (%1 %)…")
                                           .arg(100 * status.modelStepsDone / status.modelSteps)
                                     : tr("Reading the model…");
    case DeviceState::Online:
        if (status.reason.isEmpty() && status.staleValues > 0) {
            return tr("Connected, values not current: %1")
                .arg(count(static_cast<std::uint64_t>(status.staleValues)));
        }
        return status.reason.isEmpty() ? tr("Connected") : tr("Connected: %1").arg(status.reason);
    case DeviceState::Waiting:
        return tr("Trying again: %1").arg(status.reason);
    }
    return {};
}

QString DeviceListModel::sourceText(const Device &device)
{
    const DeviceRecord &record = device.record;
    const QString fileName = QFileInfo(record.file()).fileName();
    if (record.simulated) {
        return isResource(record.file()) ? tr("Simulated demonstration")
                                         : tr("Simulated: %1").arg(fileName);
    }
    if (record.isReached()) {
        const QString &host = record.configuration.host;
        return (host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]:%2")
                                                : QStringLiteral("%1:%2"))
            .arg(host)
            .arg(record.configuration.port);
    }
    return isResource(record.file()) ? tr("Demonstration") : fileName;
}

QString DeviceListModel::toolTip(const Device &device, int column) const
{
    const DeviceStatus &status = device.status;
    const bool isReached = device.record.isReached();
    switch (column) {
    case SourceColumn: {
        QStringList lines;
        if (isReached && device.record.configuration.port > 0 &&
            !device.record.configuration.host.isEmpty()) {
            lines << tr("Reached at %1, port %2")
                         .arg(device.record.configuration.host)
                         .arg(device.record.configuration.port);
        }
        if (!device.record.file().isEmpty()) {
            lines << (isResource(device.record.file())
                          ? tr("The demonstration device, a part of the workbench")
                          : QDir::toNativeSeparators(device.record.file()));
        }
        return lines.join(QLatin1Char('\n'));
    }
    case StateColumn: {
        QStringList lines{stateText(device)};
        if (!device.content.isEmpty())
            lines << device.content;
        if (isReached && status.since.isValid())
            lines << tr("Since %1").arg(shortTime(status.since));
        if (isReached && status.lostSince.isValid())
            lines << tr("Away since %1").arg(shortTime(status.lostSince));
        if (isReached && status.staleValues > 0) {
            lines << tr("Values that are not current: %1, the oldest of %2")
                         .arg(count(static_cast<std::uint64_t>(status.staleValues)),
                              shortTime(status.staleSince));
        }
        if (isReached && status.refusedValues > 0) {
            lines << tr("Values that the device denies: %1")
                         .arg(count(static_cast<std::uint64_t>(status.refusedValues)));
        }
        if (isReached && status.refusedObjects > 0)
            lines << tr("Objects that the device did not describe: %1").arg(status.refusedObjects);
        return lines.join(QLatin1Char('\n'));
    }
    case IdentityColumn:
        return isReached ? tr("Vendor: %1\nModel: %2\nRevision: %3")
                               .arg(status.vendor, status.model, status.revision)
                         : QString();
    case RoundTripColumn:
        return isReached ? tr("Time from a request to its answer, measured last") : QString();
    case ReportsColumn:
    case ValuesColumn:
        return isReached
                   ? tr("PDUs sent: %1\nPDUs received: %2\nReports: %3\nPublished values: "
                        "%4\nConnections: %5")
                         .arg(count(status.counters.sentPdus), count(status.counters.receivedPdus),
                              count(status.counters.reports),
                              count(status.counters.publishedValues),
                              count(status.counters.connections))
                   : QString();
    default:
        return {};
    }
}

DeviceListModel::Away DeviceListModel::away() const
{
    Away away;
    for (const Device &device : m_devices) {
        const QDateTime &since = device.status.lostSince;
        if (!device.isWanted() || !since.isValid())
            continue;
        away.names << device.record.name();
        if (!away.since.isValid() || since < away.since)
            away.since = since;
    }
    return away;
}

QVariant DeviceListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Device &device = m_devices[index.row()];
    const DeviceStatus &status = device.status;
    const bool isReached = device.record.isReached();
    const bool isInTrouble =
        device.state == Failed ||
        (isReached && device.state == Ready &&
         (status.state == DeviceState::Waiting ||
          (status.state == DeviceState::Disconnected && !status.reason.isEmpty())));

    if (role == Qt::TextAlignmentRole && index.column() == NumberColumn)
        return int(Qt::AlignCenter);
    if (role == Qt::TextAlignmentRole && isNumberColumn(index.column()))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::DecorationRole && index.column() == NameColumn) {
        const QStyle::StandardPixmap icon = isInTrouble ? QStyle::SP_MessageBoxWarning
                                            : isReached ? QStyle::SP_DriveNetIcon
                                                        : QStyle::SP_ComputerIcon;
        return QApplication::style()->standardIcon(icon);
    }
    if (role == Qt::ForegroundRole && index.column() == StateColumn && isInTrouble)
        return QBrush(Qt::red);
    if (role == Qt::ToolTipRole)
        return plainTip(toolTip(device, index.column()));
    if (role != Qt::DisplayRole)
        return {};

    switch (index.column()) {
    case NameColumn:
        return device.record.name();
    case NumberColumn:
        return device.record.number();
    case SourceColumn:
        return sourceText(device);
    case StateColumn:
        return stateText(device);
    case IdentityColumn: {
        QStringList parts{status.vendor, status.model, status.revision};
        parts.removeAll(QString());
        return parts.join(QStringLiteral(", "));
    }
    case RoundTripColumn:
        return isReached && status.roundTrip.count() > 0
                   ? tr("%1 ms").arg(QLocale().toString(
                         static_cast<double>(status.roundTrip.count()) / 1000.0, 'f', 1))
                   : QString();
    case ReportsColumn:
        return isReached ? count(status.counters.reports) : QString();
    case ValuesColumn:
        return isReached ? count(status.counters.publishedValues) : QString();
    default:
        return {};
    }
}

QVariant DeviceListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole) {
        return section == NumberColumn   ? int(Qt::AlignCenter)
               : isNumberColumn(section) ? int(Qt::AlignRight | Qt::AlignVCenter)
                                         : int(Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Device");
    case NumberColumn:
        return tr("No.");
    case SourceColumn:
        return tr("Source");
    case StateColumn:
        return tr("State");
    case IdentityColumn:
        return tr("Identity");
    case RoundTripColumn:
        return tr("Round trip");
    case ReportsColumn:
        return tr("Reports");
    case ValuesColumn:
        return tr("Values");
    default:
        return {};
    }
}
