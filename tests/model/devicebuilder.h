// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <devicemodel/physicaldevice.h>

/// Small devices made by hand. Whatever is added is owned by the device; call
/// PhysicalDevice::rebuildIndex() when the look-up by reference is needed.
namespace DeviceBuilder {

inline LogicalDevice *addLogicalDevice(PhysicalDevice &device, const QString &name)
{
    auto *const logicalDevice = new LogicalDevice;
    logicalDevice->name = name;
    device.logicalDevices.append(logicalDevice);
    return logicalDevice;
}

inline LogicalNode *addLogicalNode(LogicalDevice *logicalDevice, const QString &lnClass,
                                   const QString &name)
{
    auto *const logicalNode = new LogicalNode;
    logicalNode->lnClass = lnClass;
    logicalNode->name = name;
    logicalDevice->logicalNodes.append(logicalNode);
    return logicalNode;
}

inline DataObject *addDataObject(LogicalNode *logicalNode, const QString &name, const QString &type)
{
    auto *const dataObject = new DataObject;
    dataObject->name = name;
    dataObject->type = type;
    logicalNode->dataObjects.append(dataObject);
    return dataObject;
}

inline DAO *addAttribute(QList<DAO *> &siblings, const QString &name, const QString &fc,
                         const QString &basicType, const QVariant &value = QVariant(),
                         const QString &reference = QString())
{
    auto *const dao = new DAO;
    dao->attribute = new DataAttribute;
    dao->attribute->name = name;
    dao->attribute->fc = fc;
    dao->attribute->basicType = basicType;
    dao->attribute->value = value;
    dao->attribute->reference = reference;
    siblings.append(dao);
    return dao;
}

inline DAO *addSubDataObject(QList<DAO *> &siblings, const QString &name, const QString &type)
{
    auto *const dao = new DAO;
    dao->subDataObject = new SubDataObject{name, type};
    siblings.append(dao);
    return dao;
}

inline DataSet *newDataSet(const QString &name, quint8 state, const QStringList &members)
{
    auto *const dataSet = new DataSet;
    dataSet->name = name;
    dataSet->state = state;
    dataSet->addElement(members);
    return dataSet;
}

inline ReportControlBlock *addReport(LogicalNode *logicalNode, const QString &name,
                                     const QString &type)
{
    auto *const block = new ReportControlBlock;
    block->name = name;
    block->type = type;
    logicalNode->reportControls->blocks.append(block);
    return block;
}

inline void addEnumeration(PhysicalDevice &device, const QString &id,
                           const QMap<int, QString> &values)
{
    EnumType enumeration;
    enumeration.id = id;
    enumeration.values = values;
    device.enumTypes.insert(id, enumeration);
}

} // namespace DeviceBuilder
