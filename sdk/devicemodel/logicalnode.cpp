// SPDX-License-Identifier: Apache-2.0
#include "logicalnode.h"

LogicalNode::LogicalNode()
    : dataSetGroup(new DataSetGroup)
    , reportControls(new ReportControlBlockList)
{
}

LogicalNode::~LogicalNode()
{
    qDeleteAll(dataObjects);
    delete dataSetGroup;
    delete reportControls;
    delete settingGroup;
}

DataSet *LogicalNode::dataSet(const QString &dataSetName) const
{
    for (DataSet *candidate : qAsConst(dataSetGroup->dataSets)) {
        if (candidate->name == dataSetName)
            return candidate;
    }
    return nullptr;
}

void LogicalNode::addDataSet(const QString &dataSetName)
{
    if (dataSet(dataSetName))
        return;
    auto *added = new DataSet;
    added->state = 0;
    added->name = dataSetName;
    dataSetGroup->dataSets.append(added);
}

QStringList LogicalNode::posibleFC() const
{
    QStringList result;
    for (const DataObject *object : dataObjects) {
        const QStringList constraints = object->possibleFC();
        for (const QString &constraint : constraints) {
            if (!result.contains(constraint))
                result.append(constraint);
        }
    }
    return result;
}
