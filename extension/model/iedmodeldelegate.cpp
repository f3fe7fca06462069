// SPDX-License-Identifier: Apache-2.0
#include "iedmodeldelegate.h"

#include "iedmodel.h"
#include "scltemplatestore.h"

#include <devicemodel/physicaldevice.h>

#include <QtWidgets/QComboBox>

namespace {

constexpr int valueColumn = 1;
constexpr int editorOverlap = 2;

/// Set on a list in which the operator has not chosen yet. The view commits whatever editor it
/// closes, and the entry shown at first need not be the stored value.
const char untouched[] = "untouched";

bool isEnumerated(const QString &basicType)
{
    return basicType == QLatin1String("Enum") || basicType == QLatin1String("Dbpos") ||
           basicType == QLatin1String("Check");
}

void fillWithBooleans(QComboBox *box, const DataAttribute &attribute)
{
    box->addItem(QStringLiteral("False"), 0);
    box->addItem(QStringLiteral("true"), 1);
    box->setCurrentIndex(attribute.value.toInt() != 0 ? 1 : 0);
}

void fillWithEnumeration(QComboBox *box, const DataAttribute &attribute,
                         const PhysicalDevice &device, const SclTemplateStore &templates)
{
    const int stored = attribute.value.toInt();
    int current = 0;
    const auto addEntry = [&](int ordinal, const QString &text) {
        if (ordinal == stored)
            current = box->count();
        box->addItem(text, ordinal);
    };
    const EnumType enumeration = device.getEnumType(attribute.enumTypeId);
    if (!enumeration.id.isEmpty()) {
        for (auto it = enumeration.values.begin(); it != enumeration.values.end(); ++it)
            addEntry(it.key(), it.value());
    } else {
        const auto entries = templates.entries(attribute.enumTypeId);
        for (const SclTemplateStore::Entry &entry : entries)
            addEntry(entry.ordinal, entry.text);
    }
    box->setCurrentIndex(current);
}

} // namespace

IEDModelDelegate::IEDModelDelegate(const SclTemplateStore *templates, QObject *parent)
    : QItemDelegate(parent)
    , m_templates(templates)
{
}

QWidget *IEDModelDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    IEDNode *const node = index.column() == valueColumn ? IEDModel::nodeAt(index) : nullptr;
    const DataAttribute *const attribute = node ? node->dataAttribute() : nullptr;
    const bool isBoolean = attribute && attribute->basicType == QLatin1String("BOOLEAN");
    if (!attribute || (!isBoolean && !isEnumerated(attribute->basicType))) {
        QWidget *const editor = QItemDelegate::createEditor(parent, option, index);
        if (editor && attribute)
            editor->setAccessibleName(attribute->reference);
        return editor;
    }

    auto *const box = new QComboBox(parent);
    box->setAccessibleName(attribute->reference);
    if (isBoolean) {
        fillWithBooleans(box, *attribute);
    } else {
        fillWithEnumeration(box, *attribute, *IEDModel::rootNode(node)->physicalDevice(),
                            *m_templates);
    }
    box->setProperty(untouched, true);
    const auto choose = [box] { box->setProperty(untouched, false); };
    connect(box, QOverload<int>::of(&QComboBox::activated), box, choose);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), box, choose);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &IEDModelDelegate::emitCommitData);
    return box;
}

void IEDModelDelegate::setEditorData(QWidget *, const QModelIndex &) const {}

void IEDModelDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    const auto *const box = qobject_cast<const QComboBox *>(editor);
    if (!box || index.column() != valueColumn) {
        QItemDelegate::setModelData(editor, model, index);
        return;
    }
    if (box->currentIndex() >= 0 && !box->property(untouched).toBool())
        model->setData(index, box->currentData(Qt::UserRole).toInt(), Qt::EditRole);
}

void IEDModelDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &) const
{
    editor->setGeometry(
        option.rect.adjusted(-editorOverlap, -editorOverlap, editorOverlap, editorOverlap));
}

void IEDModelDelegate::emitCommitData()
{
    if (auto *const box = qobject_cast<QComboBox *>(sender()))
        emit commitData(box);
}
