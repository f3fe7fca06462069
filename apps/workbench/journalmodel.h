// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/controllercallobserver.h>

#include <QtCore/QAbstractTableModel>

#include <deque>
#include <functional>
#include <mutex>

/// The controller calls of this process as a table, the newest last. The model belongs to the GUI
/// thread; calls may come from any thread and appear when the GUI thread next runs its event loop.
class JournalModel : public QAbstractTableModel, public ControllerCallObserver
{
    Q_OBJECT

public:
    enum Column {
        TimeColumn,
        DeviceColumn,
        OperationColumn,
        ArgumentsColumn,
        ResultColumn,
        DurationColumn,
        ColumnCount
    };

    static constexpr int defaultCapacity = 10000;

    /// @param capacity rows kept; the oldest go first
    explicit JournalModel(int capacity = defaultCapacity, QObject *parent = nullptr);
    ~JournalModel() override;

    /// How a device is called; by default its number.
    void setDeviceNames(std::function<QString(long deviceNo)> deviceName);

    void controllerCalled(const ControllerCall &call) override;

    void clear();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    // By name, so that what passes from thread to thread goes through the mailbox only.
    Q_INVOKABLE void takeCalls();
    QString text(const ControllerCall &call, int column) const;

    const int m_capacity;
    std::function<QString(long)> m_deviceName;
    std::deque<ControllerCall> m_calls;

    std::mutex m_mutex;
    std::deque<ControllerCall> m_mailbox; ///< under m_mutex; not yet in the table
};
