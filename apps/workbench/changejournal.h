// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/devicechange.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QFile>

#include <deque>
#include <map>
#include <mutex>

/// Everything that was changed on devices, or was tried to, as a table, the newest last, with
/// values in words where there are any, the raw ones behind; and with raw values in a file to which
/// rows are only ever appended: CSV (RFC 4180, UTF-8) with a heading, one row for each change. A
/// change that has begun gets its row when it has ended, or when the journal ends before. The model
/// belongs to the GUI thread; changes may come from any thread.
class ChangeJournal : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        TimeColumn,
        DeviceColumn,
        OperationColumn,
        ReferenceColumn,
        OldValueColumn,
        NewValueColumn,
        ResultColumn,
        CauseColumn,
        ColumnCount
    };

    static constexpr int defaultCapacity = 10000;

    /// @param file path; made with its folder when it does not exist; empty for none
    /// @param capacity rows kept in the table; the oldest go first, and stay in the file
    explicit ChangeJournal(const QString &file, int capacity = defaultCapacity,
                           QObject *parent = nullptr);

    ~ChangeJournal() override;

    /// Appends a row to the file before it returns. Any thread.
    void write(const DeviceChange &change);
    /// Appends a row to the table when the GUI thread next runs its event loop. Any thread.
    void add(const DeviceChange &change);

    QString file() const { return m_file.fileName(); }
    /// Why the last change is not in the file, one sentence; empty when all is well. Any thread.
    QString problem() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

signals:
    /// problem() is another one now.
    void problemChanged();

private:
    // By name, so that what passes from thread to thread goes through the mailbox only.
    Q_INVOKABLE void takeChanges();
    bool openFile();
    bool append(const QByteArray &row);
    bool
    writeRow(const DeviceChange &change); ///< under m_mutex; whether there is news of a problem

    const int m_capacity;
    std::deque<DeviceChange> m_changes;

    mutable std::mutex m_mutex;
    QFile m_file;                                  ///< under m_mutex
    QString m_problem;                             ///< under m_mutex
    bool m_problemIsNew = false;                   ///< under m_mutex
    std::deque<DeviceChange> m_mailbox;            ///< under m_mutex; not yet in the table
    std::map<std::uint64_t, DeviceChange> m_begun; ///< under m_mutex, by number
};
