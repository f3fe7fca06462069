// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/service/ieddriver.h"

#include <QtCore/QAbstractTableModel>

#include <deque>

/// The PDUs that were exchanged with one device, the newest last. GUI thread.
class TraceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, DirectionColumn, TextColumn, ColumnCount };

    static constexpr int defaultCapacity = 1000;

    /// @param driver not owned; must outlive the model
    /// @param capacity rows kept; the oldest go first
    TraceModel(const IedDriver &driver, int deviceNo, int capacity = defaultCapacity,
               QObject *parent = nullptr);

    /// Take what was exchanged since the last time.
    void refresh();
    void clear();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    const IedDriver &m_driver;
    const int m_deviceNo;
    const int m_capacity;
    std::uint64_t m_seen = 0; ///< PDUs of the device that were taken or left out
    std::deque<TraceLine> m_lines;
};
