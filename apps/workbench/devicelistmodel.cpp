// SPDX-License-Identifier: Apache-2.0
#include "devicelistmodel.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QBrush>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace {

bool isResource(const QString &file)
{
    return file.startsWith(QLatin1Char(':'));
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
        if (m_devices[row].record.number == number)
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

QVariant DeviceListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Device &device = m_devices[index.row()];
    const QString &file = device.record.file;

    if (role == Qt::TextAlignmentRole && index.column() == NumberColumn)
        return int(Qt::AlignCenter);
    if (role == Qt::DecorationRole && index.column() == NameColumn) {
        return QApplication::style()->standardIcon(
            device.state == Failed ? QStyle::SP_MessageBoxWarning : QStyle::SP_ComputerIcon);
    }
    if (role == Qt::ForegroundRole && index.column() == StateColumn && device.state == Failed)
        return QBrush(Qt::red);
    if (role == Qt::ToolTipRole) {
        switch (index.column()) {
        case SourceColumn:
            return isResource(file) ? tr("The demonstration device, a part of the workbench")
                                    : QDir::toNativeSeparators(file);
        case StateColumn:
            return device.state == Failed ? data(index, Qt::DisplayRole) : device.content;
        default:
            return {};
        }
    }
    if (role != Qt::DisplayRole)
        return {};

    switch (index.column()) {
    case NameColumn:
        return device.record.ied;
    case NumberColumn:
        return device.record.number;
    case SourceColumn:
        return isResource(file) ? tr("Demonstration") : QFileInfo(file).fileName();
    case StateColumn:
        switch (device.state) {
        case Loading:
            return tr("Loading…");
        case Ready:
            return tr("Offline model");
        case Failed:
            return tr("Model cannot be read: %1").arg(device.reason);
        }
        break;
    default:
        break;
    }
    return {};
}

QVariant DeviceListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole) {
        return section == NumberColumn ? int(Qt::AlignCenter)
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
        return tr("Model source");
    case StateColumn:
        return tr("State");
    default:
        return {};
    }
}
