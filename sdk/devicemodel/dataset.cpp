// SPDX-License-Identifier: Apache-2.0
#include "dataset.h"

DataSet::~DataSet()
{
    qDeleteAll(members);
}

void DataSet::addElement(const QStringList &references)
{
    members.reserve(members.size() + references.size());
    for (const QString &reference : references) {
        auto *member = new DataSetMember;
        member->reference = reference;
        members.append(member);
    }
}

void DataSet::addElement2(const QStringList &references)
{
    addElement(references);
}

DataSetGroup::~DataSetGroup()
{
    qDeleteAll(dataSets);
}

void DataSetGroup::removeDS(DataSet *dataSet)
{
    if (dataSets.removeOne(dataSet))
        delete dataSet;
}
