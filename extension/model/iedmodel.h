// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "attributenodes.h"
#include "iednode.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QHash>
#include <QtCore/QStringList>
#include <QtGui/QIcon>

#include <devicemodel/mmsvalue.h>

class SclTemplateStore;

/// The data model of one IED as a tree of three columns: name, value, type.
///
/// The model builds and owns a tree of IEDNode, the internal pointers of its indexes. It refers to
/// the device and the templates without owning them: set another device, or null, before the device
/// goes. Any call that resets the model (setDevice, insertDataSet, removeDataSet) ends the life of
/// all nodes and indexes. It writes nothing to the IED: an edit becomes needWriteValue().
/// GUI thread.
class IEDModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// `templates` outlives the model.
    explicit IEDModel(const SclTemplateStore *templates, QObject *parent = nullptr);
    ~IEDModel() override;

    /// Show a device; null shows none.
    void setDevice(PhysicalDevice *device);

    /// Store live values in the device and repaint their cells. References that the device lacks
    /// are passed over.
    void updateValues(const QList<MMSValue> &values);

    /// Add a data set that now exists on the IED, deletable, with these members: to the logical
    /// node of a DataSetGroupNode, state 0, or to the device as a whole at the root. One of that
    /// name takes the new members. Resets the model. Null, and nothing happens, for any other node.
    DataSet *insertDataSet(const IEDNode *parentNode, const QString &name,
                           const QStringList &members);

    /// Remove a data set from the device and delete it. Resets the model. False, and nothing
    /// happens, for a node that shows no data set.
    bool removeDataSet(const IEDNode *node);

    /// Index, in column 0, of the node that a reference "logical device/logical node$FC$path"
    /// names, or of the deepest one on its way that the tree has. Invalid without such a logical
    /// node.
    QModelIndex indexForReference(const QString &reference) const;

    /// Index of a node of this model; invalid for null.
    QModelIndex indexOf(const IEDNode *node, int column = 0) const;

    /// The node of an index of this model; null for an invalid index and before a device is set.
    static IEDNode *nodeAt(const QModelIndex &index);

    /// The node's outermost ancestor; null for null.
    static IEDNode *rootNode(IEDNode *node);

    /// Position of a child in a node's children, or -1.
    static int rowOfChild(const IEDNode *node, const IEDNode *child);

    /// Name of the node's logical device, the node itself counting; empty without one.
    static QString logicalDeviceName(const IEDNode *node);

    /// Name of the logical node that contains the node, a logical node not containing itself; empty
    /// without one.
    static QString logicalNodeName(const IEDNode *node);

    /// The nodes that show an attribute without sub-attributes.
    const AttributeNodes &attributeIndex() const { return m_attributeIndex; }

    /// Under an invalid parent every row is the root; its node is null before a device is set.
    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    QModelIndex sibling(int row, int column, const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Read an edited value by the attribute's basic type and, when it is not empty and differs
    /// from the stored one, emit needWriteValue() and then store it. Always false: the server's
    /// value comes with a later update.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// The tree supports neither dragging nor dropping.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;
    Qt::DropActions supportedDropActions() const override;

signals:
    /// Request to write a value to the attribute at an index.
    void needWriteValue(const QModelIndex &index, const QVariant &var);

private:
    void buildTree();
    void deleteTree();
    QVariant text(const IEDNode *node, int column) const;
    QIcon icon(const IEDNode *node) const;

    IEDNode *m_root = nullptr;
    PhysicalDevice *m_device = nullptr;
    const SclTemplateStore *m_templates;
    AttributeNodes m_attributeIndex;
    quint64 m_deviceCount =
        0; ///< how many devices have been set, so that an edit notices a new one
    const QIcon m_deviceIcon;
    const QIcon m_logicalNodeIcon;
    const QIcon m_logicalDeviceIcon;
    const QIcon m_dataIcon;
    const QIcon m_bufferedDisabledIcon;
    const QIcon m_unbufferedDisabledIcon;
    const QIcon m_bufferedIcon;
    const QIcon m_unbufferedIcon;
    const QIcon m_dataSetGroupIcon;
    const QIcon m_dataSetIcon;
    QHash<QString, QIcon> m_constraintIcons;
};
