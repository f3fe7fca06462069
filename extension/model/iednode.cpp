// SPDX-License-Identifier: Apache-2.0
#include "iednode.h"

#include <devicemodel/physicaldevice.h>

#include <memory>
#include <vector>

namespace {

/// Room for the nodes of all trees; given back to the heap when the last node goes.
class NodePool
{
public:
    void *take()
    {
        if (!m_free)
            addSlab();
        Cell *const cell = m_free;
        m_free = cell->nextFree;
        ++m_used;
        return cell;
    }

    void give(void *node) noexcept
    {
        Cell *const cell = static_cast<Cell *>(node);
        cell->nextFree = m_free;
        m_free = cell;
        if (--m_used == 0) {
            m_slabs.clear();
            m_free = nullptr;
        }
    }

private:
    union Cell {
        Cell *nextFree;
        alignas(IEDNode) unsigned char node[sizeof(IEDNode)];
    };
    static constexpr std::size_t slabSize = 1024;

    void addSlab()
    {
        m_slabs.emplace_back(new Cell[slabSize]);
        for (std::size_t i = slabSize; i > 0; --i) {
            Cell *const cell = &m_slabs.back()[i - 1];
            cell->nextFree = m_free;
            m_free = cell;
        }
    }

    std::vector<std::unique_ptr<Cell[]>> m_slabs;
    Cell *m_free = nullptr;
    std::size_t m_used = 0;
};

NodePool nodePool;

} // namespace

// The address sanitizer can watch a node only as a heap block of its own.
#if defined(__SANITIZE_ADDRESS__)
void *IEDNode::operator new(std::size_t size)
{
    return ::operator new(size);
}

void IEDNode::operator delete(void *node) noexcept
{
    ::operator delete(node);
}
#else
void *IEDNode::operator new(std::size_t)
{
    return nodePool.take();
}

void IEDNode::operator delete(void *node) noexcept
{
    if (node)
        nodePool.give(node);
}
#endif

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

IEDNode::IEDNode(ReportControlBlockList *list, IEDNode *parentNode)
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
