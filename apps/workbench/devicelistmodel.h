// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicestore.h"

#include "driver/administration/devicestatus.h"
#include "scl/findings.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QVector>

/// The devices of the workbench with what is known of their models and associations. GUI thread.
class DeviceListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        NumberColumn,
        SourceColumn,
        StateColumn,
        IdentityColumn,
        RoundTripColumn,
        ReportsColumn,
        ValuesColumn,
        ColumnCount
    };

    /// What became of the file of a device. One that is reached and not simulated is ready at once.
    enum State {
        Loading,
        Ready, ///< the driver answers for the device
        Failed,
        Stopped ///< its simulation was ended
    };

    struct Device
    {
        DeviceRecord record;
        State state = Loading;
        QString reason;  ///< why the device cannot be used
        QString content; ///< what a model that was read holds, in words
        QVector<scl::Finding> findings;
        DeviceStatus status; ///< of a device that is reached

        /// The tools can work with it.
        bool isUsable() const
        {
            return state == Ready && (!record.isReached() || status.state == DeviceState::Online);
        }
        /// An association stands or is striven for.
        bool isWanted() const
        {
            return state == Ready && record.isReached() &&
                   status.state != DeviceState::Disconnected;
        }
    };

    explicit DeviceListModel(QObject *parent = nullptr);

    void append(const DeviceRecord &record);
    void remove(int number);
    /// Give the device of the record's number another configuration.
    void setRecord(const DeviceRecord &record);
    /// Nothing happens for a device that is not there.
    void setStatus(const DeviceStatus &status);

    void setLoading(int number);
    void setReady(int number, const QString &content, const QVector<scl::Finding> &findings);
    void setFailed(int number, const QString &reason);
    void setStopped(int number);

    /// The device of that number; null when there is none. Valid until the model changes.
    const Device *device(int number) const;
    const Device *deviceAt(int row) const;

    /// The devices to which an association is striven for, and since when the first of them has
    /// been away; nothing when all are there.
    struct Away
    {
        QStringList names;
        QDateTime since; ///< local time
    };
    Away away() const;

    /// Row of the device, -1 when there is none.
    int rowOf(int number) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    static QString stateText(const Device &device);
    static QString sourceText(const Device &device);
    QString toolTip(const Device &device, int column) const;
    void change(int number, State state, const QString &reason, const QString &content,
                const QVector<scl::Finding> &findings);

    QVector<Device> m_devices;
};
