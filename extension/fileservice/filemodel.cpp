// SPDX-License-Identifier: Apache-2.0
#include "filemodel.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>

namespace {

enum Column { NameColumn, TimeColumn, SizeColumn, ColumnCount };

constexpr quint32 bytesPerKilobyte = 1000;

} // namespace

FileModel::FileModel(QObject *parent)
    : QAbstractItemModel(parent)
{
}

void FileModel::setEntries(const QList<MMSFileEntry> &entries)
{
    beginResetModel();
    m_entries = entries;
    endResetModel();
}

MMSFileEntry FileModel::entry(int row) const
{
    return m_entries.value(row);
}

bool FileModel::isParentEntry(const MMSFileEntry &entry)
{
    return entry.name == QLatin1String("..");
}

bool FileModel::isDirectory(const MMSFileEntry &entry)
{
    return entry.size == 0 && entry.name.contains(QLatin1Char('\\'));
}

QModelIndex FileModel::index(int row, int column, const QModelIndex &parent) const
{
    if (parent.isValid() || row < 0 || row >= m_entries.size() || column < 0 ||
        column >= ColumnCount)
        return {};
    return createIndex(row, column);
}

QModelIndex FileModel::parent(const QModelIndex & /*child*/) const
{
    return {};
}

int FileModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

int FileModel::columnCount(const QModelIndex & /*parent*/) const
{
    return ColumnCount;
}

QVariant FileModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return {};
    const MMSFileEntry &shown = m_entries.at(index.row());
    if (role == Qt::DisplayRole)
        return text(shown, index.column());
    if (role == Qt::DecorationRole && index.column() == NameColumn) {
        const bool folder = isParentEntry(shown) || isDirectory(shown);
        return m_icons.icon(folder ? QFileIconProvider::Folder : QFileIconProvider::File);
    }
    if (role == Qt::TextAlignmentRole && index.column() == SizeColumn)
        return Qt::AlignRight;
    return {};
}

QVariant FileModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Name");
    case TimeColumn:
        return tr("Time");
    case SizeColumn:
        return tr("Size");
    default:
        return {};
    }
}

Qt::ItemFlags FileModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

QString FileModel::text(const MMSFileEntry &entry, int column) const
{
    switch (column) {
    case NameColumn:
        return entry.name;
    case TimeColumn:
        if (entry.lastModified == 0)
            return {};
        return QLocale::system().toString(QDateTime::fromSecsSinceEpoch(entry.lastModified),
                                          QLocale::ShortFormat);
    case SizeColumn:
        if (entry.size == 0)
            return {};
        return QStringLiteral("%L1KB").arg(qMax(1U, entry.size / bytesPerKilobyte));
    default:
        return {};
    }
}
