// SPDX-License-Identifier: Apache-2.0
#include "nodeservices.h"

#include "nodereferences.h"

#include "model/iedmodel.h"
#include "model/iednode.h"

#include <devicemodel/physicaldevice.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QDataStream>

bool isControllable(const DataObject &dataObject)
{
    static const QStringList classes = {QStringLiteral("SPC"), QStringLiteral("DPC"),
                                        QStringLiteral("INC"), QStringLiteral("BSC"),
                                        QStringLiteral("ISC"), QStringLiteral("APC")};
    return classes.contains(dataObject.type);
}

quint8 controlModel(const DataObject &dataObject)
{
    const DAO *ctlModel = dataObject.getDAOByName(QStringLiteral("ctlModel"));
    if (!ctlModel || !ctlModel->attribute)
        return 0;
    return static_cast<quint8>(ctlModel->attribute->value.toInt() & 0xFF);
}

bool asksForRequest(ControlService service, quint8 controlModel)
{
    switch (service) {
    case ControlService::Select:
        return controlModel == 4;
    case ControlService::Operate:
        return controlModel >= 1 && controlModel <= 3;
    case ControlService::Cancel:
        return controlModel == 2;
    }
    return false;
}

NodeServices::NodeServices(IEC61850ControllerInterface &controller, long deviceNo)
    : m_controller(controller)
    , m_deviceNo(deviceNo)
{
}

OperationResult NodeServices::read(const IEDNode *node, QString &error)
{
    if (const DataSet *dataSet = node->dataSet()) {
        const bool heldByNode = dataSet->state == 0;
        const QString ldName = heldByNode ? IEDModel::logicalDeviceName(node) : QString();
        const QString reference = heldByNode ? nodeDataSetReference(node) : dataSet->name;
        return m_controller.readDataSetValue(m_deviceNo, ldName, reference, error);
    }
    if (node->type != DataObjectNode && node->type != DataAttributeNode)
        return OperationSucceeded;
    return m_controller.readVariable(m_deviceNo, IEDModel::logicalDeviceName(node),
                                     variableReferences(node), error);
}

OperationResult NodeServices::readConstraint(const IEDNode *node, const QString &constraint,
                                             QString &error)
{
    const LogicalNode *logicalNode = node->logicalNode();
    if (!logicalNode)
        return OperationSucceeded;
    return m_controller.readVariable(m_deviceNo, IEDModel::logicalDeviceName(node),
                                     {logicalNode->name + QLatin1Char('$') + constraint}, error);
}

NodeServices::Variable NodeServices::variableOf(const IEDNode *node)
{
    return {IEDModel::logicalDeviceName(node), attributeReference(node)};
}

OperationResult NodeServices::write(const Variable &variable, const QVariant &value, QString &error)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return m_controller.writeVariable(m_deviceNo, variable.ldName, variable.reference, bytes,
                                      error);
}

OperationResult NodeServices::read(const Variable &variable, QString &error)
{
    return m_controller.readVariable(m_deviceNo, variable.ldName, {variable.reference}, error);
}

OperationResult NodeServices::control(ControlService service, const IEDNode *node,
                                      ControlBlock request, QString &error)
{
    const DataObject *dataObject = node->dataObject();
    if (!dataObject)
        return OperationSucceeded;
    const QString ldName = IEDModel::logicalDeviceName(node);
    const QString reference =
        QStringLiteral("%1$CO$%2").arg(IEDModel::logicalNodeName(node), dataObject->name);
    request.objectReference = reference;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    request.toStream(stream);

    switch (service) {
    case ControlService::Select:
        return m_controller.selectObject(m_deviceNo, ldName, reference, bytes, error);
    case ControlService::Operate:
        return m_controller.controlObject(m_deviceNo, ldName, reference, bytes, error);
    case ControlService::Cancel:
        return m_controller.cancelObject(m_deviceNo, ldName, reference, bytes, error);
    }
    return OperationSucceeded;
}

OperationResult NodeServices::createDataSet(const IEDNode *node, const QString &name,
                                            const QStringList &members, bool nonPersistent,
                                            QString &error)
{
    if (!nonPersistent && node->type != DataSetGroupNode)
        return OperationSucceeded;
    const QString reference =
        nonPersistent ? name : IEDModel::logicalNodeName(node) + QLatin1Char('$') + name;
    return m_controller.createDataSet(m_deviceNo, IEDModel::logicalDeviceName(node), reference,
                                      members.join(QLatin1Char(';')), nonPersistent ? 1 : 0, error);
}

OperationResult NodeServices::deleteDataSet(const IEDNode *node, QString &error)
{
    const DataSet *dataSet = node->dataSet();
    if (!dataSet)
        return OperationSucceeded;
    const QString reference = dataSet->state == 0 ? nodeDataSetReference(node) : dataSet->name;
    return m_controller.deleteDataSet(m_deviceNo, IEDModel::logicalDeviceName(node), reference,
                                      error);
}

OperationResult NodeServices::serverDirectory(const IEDNode * /*node*/, QString &error)
{
    QList<NameVaildValue> logicalDevices;
    return m_controller.getServerDirectory(m_deviceNo, logicalDevices, error);
}

OperationResult NodeServices::logicalDeviceDirectory(const IEDNode *node, QString &error)
{
    const LogicalDevice *logicalDevice = node->logicalDevice();
    if (!logicalDevice)
        return OperationSucceeded;
    QList<NameVaildValue> logicalNodes;
    return m_controller.getLogicalDeviceDirectory(m_deviceNo, logicalDevice->name, logicalNodes,
                                                  error);
}

OperationResult NodeServices::logicalNodeDirectory(const IEDNode *node, QString &error)
{
    const LogicalNode *logicalNode = node->logicalNode();
    if (!logicalNode)
        return OperationSucceeded;
    QList<NameVaildValue> names;
    return m_controller.getLogicalNodeDirectory(m_deviceNo, IEDModel::logicalDeviceName(node),
                                                logicalNode->name, names, error);
}

OperationResult NodeServices::dataDirectory(const IEDNode *node, QString &error)
{
    const QString references = variableReferences(node).join(QLatin1Char(';'));
    QList<NameVaildValue> names;
    return m_controller.getDataDirectory(m_deviceNo, IEDModel::logicalDeviceName(node), references,
                                         names, error);
}

OperationResult NodeServices::dataSetList(const IEDNode *node, QString &error)
{
    QList<NameVaildValue> dataSets;
    return m_controller.getDataSetList(m_deviceNo, IEDModel::logicalDeviceName(node), dataSets,
                                       error);
}

OperationResult NodeServices::dataSetDirectory(const IEDNode *node, QString &error)
{
    const DataSet *dataSet = node->dataSet();
    const QString reference =
        dataSet && dataSet->state == 0 ? nodeDataSetReference(node) : QString();
    QList<NameVaildValue> members;
    return m_controller.getDataSetDirectory(m_deviceNo, IEDModel::logicalDeviceName(node),
                                            reference, members, error);
}

OperationResult NodeServices::bufferedReports(const IEDNode *node, QString &error)
{
    return reports(node, QStringLiteral("BR"), error);
}

OperationResult NodeServices::unbufferedReports(const IEDNode *node, QString &error)
{
    return reports(node, QStringLiteral("RP"), error);
}

OperationResult NodeServices::reports(const IEDNode *node, const QString &kind, QString &error)
{
    const LogicalNode *logicalNode = node->parent ? node->parent->logicalNode() : nullptr;
    if (!logicalNode)
        return OperationSucceeded;
    QList<NameVaildValue> blocks;
    return m_controller.getXRCB(m_deviceNo, IEDModel::logicalDeviceName(node), logicalNode->name,
                                kind, blocks, error);
}

OperationResult NodeServices::settingGroupBlock(const IEDNode *node, QString &error)
{
    QList<NameVaildValue> blocks;
    return m_controller.getSGCBBlock(m_deviceNo, IEDModel::logicalDeviceName(node), blocks, error);
}
