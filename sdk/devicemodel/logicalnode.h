// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dataobject.h"
#include "dataset.h"
#include "devicemodelglobal.h"
#include "reportcontrolblock.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The setting group control block of a logical device (IEC 61850-7-2, clause 16).
struct SettingGroupControl
{
    QString name;
    qint32 state = 1;       ///< 0: absent from the device, 2: only on the device
    qint32 numOfSG = 0;     ///< number of setting groups
    qint32 activeGroup = 0; ///< number of the active group, counted from 1
};

/// A logical node (IEC 61850-7-2, clause 10). Owns everything below it. A logical node always has
/// its data-set group and its report-control list; the setting group control block only where an
/// LLN0 has one.
struct DEVICEMODEL_EXPORT LogicalNode
{
    LogicalNode();
    ~LogicalNode();
    Q_DISABLE_COPY(LogicalNode)

    bool present = true;
    QString lnClass; ///< "LLN0", "XCBR", ...
    QString name;    ///< prefix, class and instance: the name used in references
    QList<DataObject *> dataObjects;
    DataSetGroup *dataSetGroup;
    ReportControlBlockList *reportControls;
    SettingGroupControl *settingGroup = nullptr;

    /// The first data set of that name; null when there is none.
    DataSet *dataSet(const QString &dataSetName) const;

    /// Add an empty data set; a name that exists already changes nothing.
    void addDataSet(const QString &dataSetName);

    /// Functional constraints found in the node's data, each once, in order of first appearance,
    /// depth first.
    QStringList posibleFC() const;
};
