// SPDX-License-Identifier: Apache-2.0
#include "iedmodel.h"

#include "scltemplatestore.h"
#include "valuepresentation.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QPointer>
#include <QtGui/QColor>

#include <algorithm>
#include <array>

namespace {

enum Column { NameColumn, ValueColumn, TypeColumn, ColumnCount };

QIcon loadIcon(const char *name)
{
    return QIcon(QStringLiteral(":/850Ext/image/%1.png").arg(QLatin1String(name)));
}

bool isWritableConstraint(const QString &fc)
{
    static const std::array<QLatin1String, 6> writable = {QLatin1String("MX"), QLatin1String("CO"),
                                                          QLatin1String("EX"), QLatin1String("SP"),
                                                          QLatin1String("DC"), QLatin1String("CF")};
    return std::find(writable.begin(), writable.end(), fc) != writable.end();
}

QVariant presenceColor(bool present)
{
    return present ? QVariant() : QVariant(QColor(Qt::red));
}

QVariant stateColor(qint32 state, const QVariant &differing = QVariant())
{
    switch (state) {
    case 0:
        return QColor(Qt::red);
    case 2:
        return QColor(Qt::blue);
    case 3:
        return differing;
    default:
        return QVariant();
    }
}

QVariant color(const IEDNode *node)
{
    switch (node->type) {
    case LogicalDeviceNode:
        return presenceColor(node->logicalDevice()->present);
    case LogicalNodeNode:
        return presenceColor(node->logicalNode()->present);
    case DataObjectNode:
        return presenceColor(node->dataObject()->present);
    case DataAttributeNode: {
        const DataAttribute *const attribute = node->dataAttribute();
        return presenceColor(node->dao()->state != 0 && (!attribute || attribute->present));
    }
    case DataSetNode:
        return stateColor(node->dataSet()->state, QColor(Qt::magenta));
    case ReportControlNode:
        return stateColor(node->reportControl()->state, QColor(Qt::magenta));
    case SettingGroupNode:
        return stateColor(node->settingGroup()->state);
    case DataSetMemberNode:
        return stateColor(node->dataSetMember()->state, QColor(Qt::darkYellow));
    default:
        return QVariant();
    }
}

QVariant typeText(const IEDNode *node)
{
    switch (node->type) {
    case LogicalNodeNode:
        return node->logicalNode()->lnClass;
    case DataObjectNode:
        return node->dataObject()->type;
    case DataAttributeNode: {
        const DAO *const dao = node->dao();
        if (dao->attribute)
            return dao->attribute->basicType;
        return dao->subDataObject ? QVariant(dao->subDataObject->type) : QVariant();
    }
    default:
        return QVariant();
    }
}

template <typename Matches>
IEDNode *firstChild(const IEDNode *node, Matches matches)
{
    const auto it = std::find_if(node->children.begin(), node->children.end(), matches);
    return it == node->children.end() ? nullptr : *it;
}

IEDNode *childNamed(const IEDNode *node, const QString &name)
{
    return firstChild(node, [&name](const IEDNode *child) { return child->name() == name; });
}

IEDNode *childNamed(const IEDNode *node, IEDNodeType type, const QString &name)
{
    return firstChild(node, [type, &name](const IEDNode *child) {
        return child->type == type && child->name() == name;
    });
}

/// An array element "har(3)" hangs below the node of its array, "har", which references leave out.
IEDNode *elementNamed(const IEDNode *node, const QString &name)
{
    const int bracket = name.indexOf(QLatin1Char('('));
    const IEDNode *const array = bracket > 0 ? childNamed(node, name.left(bracket)) : nullptr;
    return array ? childNamed(array, name) : nullptr;
}

/// The nodes of attributes without sub-attributes are also added to `leaves`.
void addAttribute(DAO *dao, IEDNode *parentNode, QVector<IEDNode *> &leaves)
{
    auto *const node = new IEDNode(dao, parentNode);
    if (dao->children.isEmpty()) {
        if (dao->attribute)
            leaves.append(node);
        return;
    }
    node->children.reserve(dao->children.size());
    for (DAO *const child : qAsConst(dao->children))
        addAttribute(child, node, leaves);
}

void addDataSet(DataSet *dataSet, IEDNode *parentNode)
{
    auto *const node = new IEDNode(dataSet, parentNode);
    node->children.reserve(dataSet->members.size());
    for (DataSetMember *const member : qAsConst(dataSet->members))
        new IEDNode(member, node);
}

void addLogicalNode(LogicalNode *logicalNode, IEDNode *parentNode, QVector<IEDNode *> &leaves)
{
    auto *const node = new IEDNode(logicalNode, parentNode);
    const bool hasSettingGroups =
        logicalNode->lnClass == QLatin1String("LLN0") && logicalNode->settingGroup;
    node->children.reserve(logicalNode->dataObjects.size() + (hasSettingGroups ? 3 : 2));
    if (hasSettingGroups)
        new IEDNode(logicalNode->settingGroup, node);

    auto *const dataSets = new IEDNode(logicalNode->dataSetGroup, node);
    dataSets->children.reserve(logicalNode->dataSetGroup->dataSets.size());
    for (DataSet *const dataSet : qAsConst(logicalNode->dataSetGroup->dataSets))
        addDataSet(dataSet, dataSets);

    auto *const reports = new IEDNode(logicalNode->reportControls, node);
    reports->children.reserve(logicalNode->reportControls->blocks.size());
    for (ReportControlBlock *const block : qAsConst(logicalNode->reportControls->blocks))
        new IEDNode(block, reports);

    for (DataObject *const dataObject : qAsConst(logicalNode->dataObjects)) {
        auto *const dataObjectNode = new IEDNode(dataObject, node);
        dataObjectNode->children.reserve(dataObject->attributes.size());
        for (DAO *const dao : qAsConst(dataObject->attributes))
            addAttribute(dao, dataObjectNode, leaves);
    }
}

} // namespace

IEDModel::IEDModel(const SclTemplateStore *templates, QObject *parent)
    : QAbstractItemModel(parent)
    , m_templates(templates)
    , m_deviceIcon(loadIcon("PD"))
    , m_logicalNodeIcon(loadIcon("LN"))
    , m_logicalDeviceIcon(loadIcon("LD"))
    , m_dataIcon(loadIcon("CDC"))
    , m_bufferedDisabledIcon(loadIcon("BR-d"))
    , m_unbufferedDisabledIcon(loadIcon("RP-d"))
    , m_bufferedIcon(loadIcon("BR"))
    , m_unbufferedIcon(loadIcon("RP"))
    , m_dataSetGroupIcon(loadIcon("DS"))
    , m_dataSetIcon(loadIcon("Data-Set"))
{
    for (const char *const name : {"cf", "co", "dc", "ex", "mx", "sg", "sp", "st", "sv"})
        m_constraintIcons.insert(QString::fromLatin1(name).toUpper(), loadIcon(name));
}

IEDModel::~IEDModel()
{
    deleteTree();
}

void IEDModel::setDevice(PhysicalDevice *device)
{
    beginResetModel();
    deleteTree();
    m_device = device;
    ++m_deviceCount;
    buildTree();
    endResetModel();
}

void IEDModel::updateValues(const QList<MMSValue> &values)
{
    if (!m_device)
        return;
    for (const MMSValue &value : values) {
        DataAttribute *const attribute = m_device->findTag(value.reference);
        if (!attribute)
            continue;
        attribute->value = value.value;
        if (IEDNode *const node = m_attributeIndex.value(attribute)) {
            const QModelIndex changed = createIndex(node->row, ValueColumn, node);
            emit dataChanged(changed, changed);
        }
    }
}

DataSet *IEDModel::insertDataSet(const IEDNode *parentNode, const QString &name,
                                 const QStringList &members)
{
    LogicalNode *const owner = parentNode && parentNode->type == DataSetGroupNode
                                   ? parentNode->parent->logicalNode()
                                   : nullptr;
    if (!owner && (!parentNode || parentNode->type != PhysicalDeviceNode))
        return nullptr;

    beginResetModel();
    deleteTree();
    DataSet *dataSet = nullptr;
    if (owner) {
        owner->addDataSet(name);
        dataSet = owner->dataSet(name);
        dataSet->state = 0;
    } else {
        const auto it = std::find_if(m_device->dataSets.begin(), m_device->dataSets.end(),
                                     [&name](const DataSet *other) { return other->name == name; });
        if (it == m_device->dataSets.end()) {
            dataSet = new DataSet;
            dataSet->name = name;
            m_device->dataSets.append(dataSet);
        } else {
            dataSet = *it;
        }
    }
    dataSet->deletable = true;
    qDeleteAll(dataSet->members);
    dataSet->members.clear();
    if (owner)
        dataSet->addElement(members);
    else
        dataSet->addElement2(members);
    buildTree();
    endResetModel();
    return dataSet;
}

bool IEDModel::removeDataSet(const IEDNode *node)
{
    DataSet *const dataSet = node ? node->dataSet() : nullptr;
    if (!dataSet)
        return false;
    DataSetGroup *const group = node->parent->dataSetGroup();

    beginResetModel();
    deleteTree();
    if (group)
        group->removeDS(dataSet);
    else
        m_device->removeDS(dataSet);
    buildTree();
    endResetModel();
    return true;
}

QModelIndex IEDModel::indexForReference(const QString &reference) const
{
    const int slash = reference.indexOf(QLatin1Char('/'));
    if (!m_root || slash < 0)
        return QModelIndex();
    QStringList components = reference.mid(slash + 1).split(QLatin1Char('$'));
    const IEDNode *const logicalDevice =
        childNamed(m_root, LogicalDeviceNode, reference.left(slash));
    IEDNode *node = logicalDevice
                        ? childNamed(logicalDevice, LogicalNodeNode, components.takeFirst())
                        : nullptr;
    if (!node)
        return QModelIndex();
    for (const QString &component : components.mid(1)) {
        if (component.isEmpty())
            continue;
        IEDNode *next = childNamed(node, component);
        if (!next)
            next = elementNamed(node, component);
        if (next)
            node = next;
    }
    return indexOf(node);
}

QModelIndex IEDModel::indexOf(const IEDNode *node, int column) const
{
    return node ? createIndex(node->row, column, const_cast<IEDNode *>(node)) : QModelIndex();
}

IEDNode *IEDModel::nodeAt(const QModelIndex &index)
{
    return static_cast<IEDNode *>(index.internalPointer());
}

IEDNode *IEDModel::rootNode(IEDNode *node)
{
    while (node && node->parent)
        node = node->parent;
    return node;
}

int IEDModel::rowOfChild(const IEDNode *node, const IEDNode *child)
{
    return node && child && child->parent == node ? child->row : -1;
}

QString IEDModel::logicalDeviceName(const IEDNode *node)
{
    while (node && node->type != LogicalDeviceNode)
        node = node->parent;
    return node ? node->name() : QString();
}

QString IEDModel::logicalNodeName(const IEDNode *node)
{
    if (!node)
        return QString();
    do {
        node = node->parent;
    } while (node && node->type != LogicalNodeNode);
    return node ? node->name() : QString();
}

QModelIndex IEDModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0 || column >= ColumnCount)
        return QModelIndex();
    if (!parent.isValid())
        return createIndex(row, column, m_root);
    const IEDNode *const node = nodeAt(parent);
    if (!node || row >= node->children.size())
        return QModelIndex();
    return createIndex(row, column, node->children.at(row));
}

QModelIndex IEDModel::parent(const QModelIndex &child) const
{
    const IEDNode *const node = nodeAt(child);
    return node ? indexOf(node->parent) : QModelIndex();
}

QModelIndex IEDModel::sibling(int row, int column, const QModelIndex &index) const
{
    if (index.isValid() && row == index.row() && column >= 0 && column < ColumnCount)
        return createIndex(row, column, index.internalPointer());
    return QAbstractItemModel::sibling(row, column, index);
}

int IEDModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return 1;
    const IEDNode *const node = nodeAt(parent);
    return node ? node->children.size() : 0;
}

int IEDModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant IEDModel::data(const QModelIndex &index, int role) const
{
    const IEDNode *const node = nodeAt(index);
    if (!node)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return text(node, index.column());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(icon(node)) : QVariant();
    case Qt::ForegroundRole:
        return color(node);
    default:
        return QVariant();
    }
}

QVariant IEDModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Name");
    case ValueColumn:
        return tr("Value");
    case TypeColumn:
        return tr("type");
    default:
        return QVariant();
    }
}

Qt::ItemFlags IEDModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags common = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const IEDNode *const node = index.column() == ValueColumn ? nodeAt(index) : nullptr;
    const DataAttribute *const attribute = node ? node->dataAttribute() : nullptr;
    if (attribute && node->dao()->children.isEmpty() && isWritableConstraint(attribute->fc))
        return common | Qt::ItemIsEditable;
    return common;
}

bool IEDModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || value.toString().isEmpty())
        return false;
    const IEDNode *const node = nodeAt(index);
    DataAttribute *const attribute = node ? node->dataAttribute() : nullptr;
    if (!attribute)
        return false;
    const EditedValue edited = readEditedValue(*attribute, value);
    if (!edited.changed)
        return false;

    // Whoever writes the value may show a message and thereby let the window close or the device
    // be replaced.
    const QPointer<IEDModel> self(this);
    const quint64 deviceCount = m_deviceCount;
    emit needWriteValue(index, edited.typedValue);
    if (edited.converted && self && m_deviceCount == deviceCount)
        attribute->value = edited.typedValue;
    return false;
}

QMimeData *IEDModel::mimeData(const QModelIndexList &) const
{
    return nullptr;
}

bool IEDModel::dropMimeData(const QMimeData *, Qt::DropAction, int, int, const QModelIndex &)
{
    return false;
}

Qt::DropActions IEDModel::supportedDropActions() const
{
    return Qt::IgnoreAction;
}

void IEDModel::buildTree()
{
    if (!m_device)
        return;
    QVector<IEDNode *> leaves;
    m_root = new IEDNode(m_device);
    m_root->children.reserve(m_device->logicalDevices.size() + m_device->dataSets.size());
    for (LogicalDevice *const logicalDevice : qAsConst(m_device->logicalDevices)) {
        auto *const node = new IEDNode(logicalDevice, m_root);
        node->children.reserve(logicalDevice->logicalNodes.size());
        for (LogicalNode *const logicalNode : qAsConst(logicalDevice->logicalNodes))
            addLogicalNode(logicalNode, node, leaves);
    }
    for (DataSet *const dataSet : qAsConst(m_device->dataSets))
        addDataSet(dataSet, m_root);
    m_attributeIndex = AttributeNodes(leaves);
}

void IEDModel::deleteTree()
{
    delete m_root;
    m_root = nullptr;
    m_attributeIndex = AttributeNodes();
}

QVariant IEDModel::text(const IEDNode *node, int column) const
{
    switch (column) {
    case NameColumn: {
        const DataSet *const dataSet = node->dataSet();
        return dataSet && dataSet->deletable ? dataSet->name + tr("(Deletable)") : node->name();
    }
    case ValueColumn: {
        const DataAttribute *const attribute = node->dataAttribute();
        return attribute ? presentedValue(*attribute, *m_device, *m_templates) : QVariant();
    }
    case TypeColumn:
        return typeText(node);
    default:
        return QVariant();
    }
}

QIcon IEDModel::icon(const IEDNode *node) const
{
    switch (node->type) {
    case PhysicalDeviceNode:
        return m_deviceIcon;
    case LogicalDeviceNode:
        return m_logicalDeviceIcon;
    case LogicalNodeNode:
        return m_logicalNodeIcon;
    case DataAttributeNode:
        if (const DataAttribute *const attribute = node->dataAttribute())
            return m_constraintIcons.value(attribute->fc);
        return m_dataIcon;
    case DataSetGroupNode:
        return m_dataSetGroupIcon;
    case DataSetNode:
        return m_dataSetIcon;
    case ReportControlNode: {
        const ReportControlBlock *const block = node->reportControl();
        if (block->type == QLatin1String("BR"))
            return block->enabled ? m_bufferedIcon : m_bufferedDisabledIcon;
        return block->enabled ? m_unbufferedIcon : m_unbufferedDisabledIcon;
    }
    default:
        return m_dataIcon;
    }
}
