// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/records.h>

#include <QtCore/QAbstractItemModel>
#include <QtCore/QList>
#include <QtWidgets/QFileIconProvider>

/// One directory of an IED's file store: name, time, size. A flat list. GUI thread.
class FileModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit FileModel(QObject *parent = nullptr);

    /// Replace the whole list; resets the model.
    void setEntries(const QList<MMSFileEntry> &entries);

    /// The entry of a row, by value; an empty one for a row that does not exist.
    MMSFileEntry entry(int row) const;

    /// The entry that leads to the directory above.
    static bool isParentEntry(const MMSFileEntry &entry);
    /// A directory has no size and a backslash in its name.
    static bool isDirectory(const MMSFileEntry &entry);

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString text(const MMSFileEntry &entry, int column) const;

    QList<MMSFileEntry> m_entries;
    QFileIconProvider m_icons;
};
