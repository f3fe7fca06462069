// SPDX-License-Identifier: Apache-2.0
#include "nodereferences.h"

#include "model/iedmodel.h"

#include <devicemodel/dataobject.h>
#include <devicemodel/dataset.h>

namespace {

/// The node's path from its data object down, components joined by "$".
QString pathFromDataObject(const IEDNode *node)
{
    QString path = node->name();
    for (const IEDNode *above = node->parent; above; above = above->parent) {
        if (above->type != DataAttributeNode && above->type != DataObjectNode)
            break;
        path.prepend(above->name() + QLatin1Char('$'));
    }
    return path;
}

} // namespace

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
    const QString path = pathFromDataObject(node);
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
