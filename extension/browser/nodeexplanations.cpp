// SPDX-License-Identifier: Apache-2.0
#include "nodeexplanations.h"

#include "model/explanationtips.h"
#include "model/iednode.h"

#include <devicemodel/physicaldevice.h>

namespace {

DataObjectPlace placeOf(const IEDNode &dataObjectNode)
{
    const DataObject *const dataObject = dataObjectNode.dataObject();
    const LogicalNode *const logicalNode =
        dataObjectNode.parent ? dataObjectNode.parent->logicalNode() : nullptr;
    return {logicalNode ? logicalNode->lnClass : QString(), dataObject->name, dataObject->type};
}

QString attributeExplanation(const IEDNode *node, const SclExplanations &explanations)
{
    AttributePlace place;
    if (const DataAttribute *const attribute = node->dataAttribute()) {
        place.type = attribute->basicType;
        place.constraint = attribute->fc;
        place.enumeration = attribute->enumTypeId;
    } else if (const SubDataObject *const subDataObject = node->dao()->subDataObject) {
        place.type = subDataObject->type;
    }
    const IEDNode *above = node;
    for (; above && above->dao(); above = above->parent)
        place.path.prepend(above->name());
    if (!above || !above->dataObject())
        return {};
    place.dataObject = placeOf(*above);

    while (above->parent)
        above = above->parent;
    const PhysicalDevice *const device = above->physicalDevice();
    return attributeTip(explanations, place,
                        device ? device->enumTypes : QMap<QString, EnumType>());
}

} // namespace

QString nodeExplanation(const IEDNode *node, const SclExplanations &explanations)
{
    if (!node)
        return {};
    if (const LogicalNode *const logicalNode = node->logicalNode())
        return logicalNodeTip(explanations, logicalNode->lnClass);
    if (node->dataObject())
        return dataObjectTip(explanations, placeOf(*node));
    if (node->dao())
        return attributeExplanation(node, explanations);
    return {};
}
