// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <cstddef>

struct DAO;
struct DataAttribute;
struct DataObject;
struct DataSet;
struct DataSetGroup;
struct DataSetMember;
struct LogicalDevice;
struct LogicalNode;
class PhysicalDevice;
struct ReportControlBlock;
struct ReportControlBlockList;
struct SettingGroupControl;

/// What a node of the device tree stands for. The numbers are fixed: menus and services test them.
enum IEDNodeType : quint32 {
    PhysicalDeviceNode = 0,
    LogicalDeviceNode = 1,
    LogicalNodeNode = 2,
    DataObjectNode = 3,
    SettingGroupNode = 6,
    DataAttributeNode = 7, ///< a DAO: an attribute, a sub data object or an array
    DataSetGroupNode = 8,
    DataSetNode = 9,
    DataSetMemberNode = 10,
    ReportControlGroupNode = 11,
    ReportControlNode = 12,
};

/// One node of the device tree: its kind and the device-model object it shows.
///
/// The kind follows from the object given at construction. A node owns its children, not the
/// object. Each accessor answers null for a node of another kind, so that a caller need not test
/// the kind first. Valid until the model is reset. GUI thread.
struct IEDNode final
{
    /// A node below `parentNode`, appended to its children; without one, the root.
    explicit IEDNode(PhysicalDevice *device);
    IEDNode(LogicalDevice *logicalDevice, IEDNode *parentNode);
    IEDNode(LogicalNode *logicalNode, IEDNode *parentNode);
    IEDNode(DataObject *dataObject, IEDNode *parentNode);
    IEDNode(SettingGroupControl *settingGroup, IEDNode *parentNode);
    IEDNode(DAO *dao, IEDNode *parentNode);
    IEDNode(DataSetGroup *group, IEDNode *parentNode);
    IEDNode(DataSet *dataSet, IEDNode *parentNode);
    IEDNode(DataSetMember *member, IEDNode *parentNode);
    IEDNode(ReportControlBlockList *list, IEDNode *parentNode);
    IEDNode(ReportControlBlock *block, IEDNode *parentNode);
    ~IEDNode();
    Q_DISABLE_COPY(IEDNode)

    PhysicalDevice *physicalDevice() const { return as<PhysicalDevice>(PhysicalDeviceNode); }
    LogicalDevice *logicalDevice() const { return as<LogicalDevice>(LogicalDeviceNode); }
    LogicalNode *logicalNode() const { return as<LogicalNode>(LogicalNodeNode); }
    DataObject *dataObject() const { return as<DataObject>(DataObjectNode); }
    SettingGroupControl *settingGroup() const { return as<SettingGroupControl>(SettingGroupNode); }
    DAO *dao() const { return as<DAO>(DataAttributeNode); }
    DataSetGroup *dataSetGroup() const { return as<DataSetGroup>(DataSetGroupNode); }
    DataSet *dataSet() const { return as<DataSet>(DataSetNode); }
    DataSetMember *dataSetMember() const { return as<DataSetMember>(DataSetMemberNode); }
    ReportControlBlockList *reportControlList() const
    {
        return as<ReportControlBlockList>(ReportControlGroupNode);
    }
    ReportControlBlock *reportControl() const { return as<ReportControlBlock>(ReportControlNode); }

    /// The attribute that the node's DAO wraps; null for a sub data object, an array and a node of
    /// another kind.
    DataAttribute *dataAttribute() const;

    /// Name of the object, without marks for the operator such as "(Deletable)"; a member's is its
    /// reference text.
    QString name() const;

    /// A tree has more nodes than its device has values: they are kept without the bookkeeping of a
    /// heap block each.
    static void *operator new(std::size_t size);
    static void operator delete(void *node) noexcept;

    const IEDNodeType type;
    const qint32 row; ///< position among the parent's children; 0 for the root
    IEDNode *const parent;
    QList<IEDNode *> children; ///< in display order

private:
    IEDNode(IEDNodeType nodeType, void *shownObject, IEDNode *parentNode);

    template <typename T>
    T *as(IEDNodeType wanted) const
    {
        return type == wanted ? static_cast<T *>(m_object) : nullptr;
    }

    void *const m_object;
};
