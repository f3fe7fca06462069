// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicestore.h"
#include "scl/findings.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QVector>

/// The devices of the workbench with what is known of their models. GUI thread.
class DeviceListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, NumberColumn, SourceColumn, StateColumn, ColumnCount };

    enum State {
        Loading,
        Ready, ///< the driver answers with the device's model
        Failed
    };

    struct Device
    {
        DeviceRecord record;
        State state = Loading;
        QString reason;  ///< why the model cannot be read
        QString content; ///< what a model that was read holds, in words
        QVector<scl::Finding> findings;
    };

    explicit DeviceListModel(QObject *parent = nullptr);

    void append(const DeviceRecord &record);
    void remove(int number);

    void setLoading(int number);
    void setReady(int number, const QString &content, const QVector<scl::Finding> &findings);
    void setFailed(int number, const QString &reason);

    /// The device of that number; null when there is none. Valid until the model changes.
    const Device *device(int number) const;
    const Device *deviceAt(int row) const;

    /// Row of the device, -1 when there is none.
    int rowOf(int number) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    void change(int number, State state, const QString &reason, const QString &content,
                const QVector<scl::Finding> &findings);

    QVector<Device> m_devices;
};
