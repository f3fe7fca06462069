// SPDX-License-Identifier: Apache-2.0
#include "iednode.h"

#include <devicemodel/physicaldevice.h>

IEDNode::IEDNode(IEDNodeType nodeType, void *shownObject, IEDNode *parentNode)
    : type(nodeType)
    , row(parentNode ? parentNode->children.size() : 0)
    , parent(parentNode)
    , m_object(shownObject)
{
    if (parentNode)
        parentNode->children.append(this);
}

IEDNode::IEDNode(PhysicalDevice *device)
    : IEDNode(PhysicalDeviceNode, device, nullptr)
{
}

IEDNode::IEDNode(LogicalDevice *logicalDevice, IEDNode *parentNode)
    : IEDNode(LogicalDeviceNode, logicalDevice, parentNode)
{
}

IEDNode::IEDNode(LogicalNode *logicalNode, IEDNode *parentNode)
    : IEDNode(LogicalNodeNode, logicalNode, parentNode)
{
}

IEDNode::IEDNode(DataObject *dataObject, IEDNode *parentNode)
    : IEDNode(DataObjectNode, dataObject, parentNode)
{
}

IEDNode::IEDNode(SettingGroupControl *settingGroup, IEDNode *parentNode)
    : IEDNode(SettingGroupNode, settingGroup, parentNode)
{
}

IEDNode::IEDNode(DAO *dao, IEDNode *parentNode)
    : IEDNode(DataAttributeNode, dao, parentNode)
{
}

IEDNode::IEDNode(DataSetGroup *group, IEDNode *parentNode)
    : IEDNode(DataSetGroupNode, group, parentNode)
{
}

IEDNode::IEDNode(DataSet *dataSet, IEDNode *parentNode)
    : IEDNode(DataSetNode, dataSet, parentNode)
{
}

IEDNode::IEDNode(DataSetMember *member, IEDNode *parentNode)
    : IEDNode(DataSetMemberNode, member, parentNode)
{
}

IEDNode::IEDNode(ReportControlList *list, IEDNode *parentNode)
    : IEDNode(ReportControlGroupNode, list, parentNode)
{
}

IEDNode::IEDNode(ReportControlBlock *block, IEDNode *parentNode)
    : IEDNode(ReportControlNode, block, parentNode)
{
}

IEDNode::~IEDNode()
{
    qDeleteAll(children);
}

DataAttribute *IEDNode::dataAttribute() const
{
    const DAO *const shown = dao();
    return shown ? shown->attribute : nullptr;
}

QString IEDNode::name() const
{
    switch (type) {
    case PhysicalDeviceNode:
        return physicalDevice()->name;
    case LogicalDeviceNode:
        return logicalDevice()->name;
    case LogicalNodeNode:
        return logicalNode()->name;
    case DataObjectNode:
        return dataObject()->name;
    case SettingGroupNode:
        return settingGroup()->name;
    case DataAttributeNode:
        return dao()->name();
    case DataSetGroupNode:
        return dataSetGroup()->name;
    case DataSetNode:
        return dataSet()->name;
    case DataSetMemberNode:
        return dataSetMember()->reference;
    case ReportControlGroupNode:
        return reportControlList()->name;
    case ReportControlNode:
        return reportControl()->name;
    }
    return QString();
}
