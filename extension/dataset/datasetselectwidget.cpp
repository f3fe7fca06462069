// SPDX-License-Identifier: Apache-2.0
#include "datasetselectwidget.h"

#include "ui_datasetselectwidget.h"

#include "model/explanationtips.h"
#include "toolkit/failurereport.h"

#include <devicemodel/physicaldevice.h>

namespace {

constexpr int typeRole = Qt::UserRole;
constexpr int enumerationRole = Qt::UserRole + 1;

const QStringList offeredConstraints = {QStringLiteral("ST"), QStringLiteral("MX")};

bool hasCheckBox(const QTreeWidgetItem *item)
{
    return item->flags().testFlag(Qt::ItemIsUserCheckable);
}

QTreeWidgetItem *addPlainItem(QTreeWidgetItem *parent, const QString &name)
{
    auto *item = new QTreeWidgetItem(parent, {name});
    item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
    return item;
}

QTreeWidgetItem *addCheckItem(QTreeWidgetItem *parent, const QString &name)
{
    auto *item = new QTreeWidgetItem(parent, {name});
    item->setCheckState(0, Qt::Unchecked);
    return item;
}

void addAttributes(QTreeWidgetItem *parent, const QList<DAO *> &attributes,
                   const QString &constraint)
{
    for (const DAO *attribute : attributes) {
        if (!attribute->possibleFC().contains(constraint))
            continue;
        QTreeWidgetItem *const item = addCheckItem(parent, attribute->name());
        if (attribute->attribute) {
            item->setData(0, typeRole, attribute->attribute->basicType);
            item->setData(0, enumerationRole, attribute->attribute->enumTypeId);
        } else if (attribute->subDataObject) {
            item->setData(0, typeRole, attribute->subDataObject->type);
        }
        addAttributes(item, attribute->children, constraint);
    }
}

void addDataObjects(QTreeWidgetItem *nodeItem, const LogicalNode &logicalNode)
{
    QHash<QString, QTreeWidgetItem *> constraintItems;
    for (const DataObject *dataObject : logicalNode.dataObjects) {
        const QStringList constraints = dataObject->possibleFC();
        for (const QString &constraint : offeredConstraints) {
            if (!constraints.contains(constraint))
                continue;
            QTreeWidgetItem *&constraintItem = constraintItems[constraint];
            if (!constraintItem)
                constraintItem = addPlainItem(nodeItem, constraint);
            QTreeWidgetItem *const item = addCheckItem(constraintItem, dataObject->name);
            item->setData(0, typeRole, dataObject->type);
            addAttributes(item, dataObject->attributes, constraint);
        }
    }
}

QString typeOf(const QModelIndex &item)
{
    return item.data(typeRole).toString();
}

/// The tip of an item; the tree's levels are logical device, logical node, functional constraint,
/// data object and then attributes.
QString explanation(const QModelIndex &item, const SclExplanations &explanations,
                    const QMap<QString, EnumType> &enumerations)
{
    QVector<QModelIndex> line; // from the logical device to the item
    for (QModelIndex level = item.sibling(item.row(), 0); level.isValid(); level = level.parent())
        line.prepend(level);
    if (line.size() == 2)
        return logicalNodeTip(explanations, typeOf(line.at(1)));
    if (line.size() < 4)
        return {};
    const DataObjectPlace dataObject = {typeOf(line.at(1)), line.at(3).data().toString(),
                                        typeOf(line.at(3))};
    if (line.size() == 4)
        return dataObjectTip(explanations, dataObject);
    AttributePlace place{dataObject,
                         {},
                         typeOf(item),
                         line.at(2).data().toString(),
                         item.data(enumerationRole).toString()};
    for (int level = 4; level < line.size(); ++level)
        place.path << line.at(level).data().toString();
    return attributeTip(explanations, place, enumerations);
}

void setAllBelow(QTreeWidgetItem *item, Qt::CheckState state)
{
    for (int row = 0; row < item->childCount(); ++row) {
        item->child(row)->setCheckState(0, state);
        setAllBelow(item->child(row), state);
    }
}

/// Every checkable ancestor gets `state` when all its children have it, otherwise it is partial.
void updateAbove(QTreeWidgetItem *item, Qt::CheckState state)
{
    for (QTreeWidgetItem *above = item->parent(); above; above = above->parent()) {
        if (!hasCheckBox(above))
            continue;
        int agreeing = 0;
        for (int row = 0; row < above->childCount(); ++row)
            agreeing += above->child(row)->checkState(0) == state ? 1 : 0;
        above->setCheckState(0, agreeing == above->childCount() ? state : Qt::PartiallyChecked);
    }
}

void collect(const QTreeWidgetItem *item, const QString &pathAbove, QStringList &references)
{
    if (hasCheckBox(item) && item->checkState(0) == Qt::Unchecked)
        return;
    const QString path =
        pathAbove.isEmpty() ? item->text(0) : pathAbove + QLatin1Char('$') + item->text(0);
    if (hasCheckBox(item) && item->checkState(0) == Qt::Checked) {
        references << path;
        return;
    }
    for (int row = 0; row < item->childCount(); ++row)
        collect(item->child(row), path, references);
}

} // namespace

DatasetSelectWidget::DatasetSelectWidget(QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::DatasetSelectWidget>())
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_form->setupUi(this);
    connect(m_form->buttonBox, &QDialogButtonBox::accepted, this, &DatasetSelectWidget::slotAccept);
    connect(m_form->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_explanations.setLanguage(windowLanguage());
    new ExplanationTips(m_form->treeWidget, [this](const QModelIndex &item) {
        return explanation(item, m_explanations, m_enumerations);
    });
    connectItemChange();
}

DatasetSelectWidget::~DatasetSelectWidget() = default;

void DatasetSelectWidget::setDevice(const PhysicalDevice *device)
{
    QList<QTreeWidgetItem *> logicalDevices;
    for (const LogicalDevice *logicalDevice : device->logicalDevices) {
        QTreeWidgetItem *deviceItem = addPlainItem(nullptr, logicalDevice->name);
        for (const LogicalNode *logicalNode : logicalDevice->logicalNodes) {
            QTreeWidgetItem *const nodeItem = addPlainItem(deviceItem, logicalNode->name);
            nodeItem->setData(0, typeRole, logicalNode->lnClass);
            addDataObjects(nodeItem, *logicalNode);
        }
        logicalDevices << deviceItem;
    }
    m_enumerations = device->enumTypes;
    m_form->treeWidget->addTopLevelItems(logicalDevices);
    for (QTreeWidgetItem *item : qAsConst(logicalDevices))
        item->setExpanded(true);
}

QString DatasetSelectWidget::dataSetName() const
{
    return m_form->lineEdit->text();
}

QStringList DatasetSelectWidget::members() const
{
    QStringList references;
    for (int row = 0; row < m_form->treeWidget->topLevelItemCount(); ++row)
        collect(m_form->treeWidget->topLevelItem(row), {}, references);
    for (QString &reference : references) {
        const int separator = reference.indexOf(QLatin1Char('$'));
        if (separator >= 0)
            reference[separator] = QLatin1Char('/');
    }
    return references;
}

void DatasetSelectWidget::slotItemChange(QTreeWidgetItem *item, int column)
{
    const Qt::CheckState state = item->checkState(0);
    if (column != 0 || !hasCheckBox(item) || state == Qt::PartiallyChecked)
        return;
    disconnectItemChange();
    setAllBelow(item, state);
    updateAbove(item, state);
    connectItemChange();
}

void DatasetSelectWidget::slotAccept()
{
    if (members().isEmpty()) {
        showWarning(this, tr("Fail"), tr("No data selected. can`t create dataset"));
    } else if (dataSetName().isEmpty()) {
        showWarning(this, tr("Fail"), tr("Please input dataset name"));
    } else {
        accept();
    }
}

void DatasetSelectWidget::connectItemChange()
{
    connect(m_form->treeWidget, &QTreeWidget::itemChanged, this,
            &DatasetSelectWidget::slotItemChange);
}

void DatasetSelectWidget::disconnectItemChange()
{
    disconnect(m_form->treeWidget, &QTreeWidget::itemChanged, this,
               &DatasetSelectWidget::slotItemChange);
}
