// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "doorbell.h"

#include "driver/administration/driveradministration.h"

#include <QtCore/QAbstractTableModel>

#include <deque>
#include <memory>
#include <mutex>

/// The PDUs that were exchanged with one device, the newest last. GUI thread.
class TraceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, DirectionColumn, TextColumn, ColumnCount };

    static constexpr int defaultCapacity = 1000;

    /// @param capacity rows kept; the oldest go first
    TraceModel(DriverAdministration &driver, int deviceNo, int capacity = defaultCapacity,
               QObject *parent = nullptr);
    ~TraceModel() override;

    /// Show what was exchanged since the last time.
    void refresh();
    void clear();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

signals:
    /// Something was exchanged, and refresh() shows it; some times a second at most.
    void exchanged();

private:
    /// In the thread of the subscription.
    void take(const QVector<TraceLine> &lines);

    const int m_capacity;
    std::deque<TraceLine> m_lines;
    Doorbell m_bell;
    std::mutex m_mutex;
    std::deque<TraceLine> m_arrived; ///< under the mutex; not shown yet
    std::unique_ptr<DriverSubscription> m_subscription;
};
