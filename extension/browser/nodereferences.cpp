// SPDX-License-Identifier: Apache-2.0
#include "nodereferences.h"

#include "model/iedmodel.h"

#include <devicemodel/dataobject.h>
#include <devicemodel/dataset.h>
#include <devicemodel/reportcontrolblock.h>

namespace {

/// The node's path from its data object down. An array element bears the array's name already, so
/// the array's own node is left out: "HA$har(3)".
QString pathFromDataObject(const IEDNode *node, QChar separator)
{
    QString path = node->name();
    for (const IEDNode *above = node->parent; above; above = above->parent) {
        if (above->type != DataAttributeNode && above->type != DataObjectNode)
            break;
        const QString name = above->name();
        if (!path.startsWith(name + QLatin1Char('(')))
            path.prepend(name + separator);
    }
    return path;
}

} // namespace

QString fullReference(const IEDNode *node)
{
    const QString logicalDevice = IEDModel::logicalDeviceName(node);
    if (node->dataAttribute())
        return logicalDevice + QLatin1Char('/') + attributeReference(node);
    const QString logicalNode = IEDModel::logicalNodeName(node);
    const QString inLogicalNode = logicalDevice + QLatin1Char('/') + logicalNode;
    switch (node->type) {
    case LogicalNodeNode:
        return logicalDevice + QLatin1Char('/') + node->name();
    case DataObjectNode:
    case DataAttributeNode:
        return inLogicalNode + QLatin1Char('.') + pathFromDataObject(node, QLatin1Char('.'));
    case DataSetNode:
        return logicalNode.isEmpty() ? node->name()
                                     : inLogicalNode + QLatin1Char('$') + node->name();
    case ReportControlNode:
        return logicalDevice + QLatin1Char('/') + node->reportControl()->reference;
    case PhysicalDeviceNode:
    case LogicalDeviceNode:
    case DataSetMemberNode:
        return node->name();
    default:
        return inLogicalNode + QLatin1Char('$') + node->name();
    }
}

QStringList variableReferences(const IEDNode *node)
{
    QStringList constraints;
    if (node->dataAttribute())
        return {attributeReference(node)};
    if (const DataObject *dataObject = node->dataObject())
        constraints = dataObject->possibleFC();
    else if (const DAO *dao = node->dao())
        constraints = dao->possibleFC();

    const QString logicalNode = IEDModel::logicalNodeName(node);
    const QString path = pathFromDataObject(node, QLatin1Char('$'));
    QStringList references;
    for (const QString &constraint : constraints)
        references << QStringLiteral("%1$%2$%3").arg(logicalNode, constraint, path);
    return references;
}

QString attributeReference(const IEDNode *node)
{
    const DataAttribute *attribute = node->dataAttribute();
    if (!attribute)
        return {};
    return attribute->reference.mid(attribute->reference.indexOf(QLatin1Char('/')) + 1);
}

QString nodeDataSetReference(const IEDNode *node)
{
    return IEDModel::logicalNodeName(node) + QLatin1Char('$') + node->name();
}
