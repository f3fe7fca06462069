// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicemodelglobal.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// One member of a data set.
struct DataSetMember
{
    quint8 state = 1;  ///< 0: absent from the device, 2: only on the device, 3: differs
    QString reference; ///< logical device "/" logical node "$" FC "$" path
};

/// A data set (IEC 61850-7-2, clause 13). Owns its members.
struct DEVICEMODEL_EXPORT DataSet
{
    DataSet() = default;
    ~DataSet();
    Q_DISABLE_COPY(DataSet)

    /// 0: held by a logical node (persistent); any other value: held by the device or by the
    /// association. 2: only on the device, 3: differs from the configuration.
    quint8 state = 1;
    QString name;
    bool deletable = false;
    QList<DataSetMember *> members;

    /// Append one member of state 1 per text, in order.
    void addElement(const QStringList &references);
    /// As addElement(); used for data sets that no logical node holds.
    void addElement2(const QStringList &references);
};

/// The data sets of one logical node. Owns them.
struct DEVICEMODEL_EXPORT DataSetGroup
{
    DataSetGroup() = default;
    ~DataSetGroup();
    Q_DISABLE_COPY(DataSetGroup)

    QString name = QStringLiteral("DataSet");
    QList<DataSet *> dataSets;

    /// Take the data set out and delete it; does nothing for one that is not in the group.
    void removeDS(DataSet *dataSet);
};
