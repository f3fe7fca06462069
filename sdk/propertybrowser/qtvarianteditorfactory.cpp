// SPDX-License-Identifier: Apache-2.0
#include "qtvarianteditorfactory.h"

#include "propertyeditors.h"
#include "qtvariantproperty.h"
#include "qtvariantpropertymanager.h"

#include <QtWidgets/QWidget>

QtVariantEditorFactory::QtVariantEditorFactory(QObject *parent)
    : QObject(parent)
{
}

QtVariantEditorFactory::~QtVariantEditorFactory() = default;

QWidget *QtVariantEditorFactory::createEditor(QtVariantPropertyManager *manager,
                                              QtProperty *property, QWidget *parent)
{
    const QtVariantProperty *edited = manager->variantProperty(property);
    if (!edited)
        return nullptr;
    return createPropertyEditor(edited->propertyType(), edited->value(), edited->valueText(),
                                edited->isSinglePrecision(), parent);
}

bool QtVariantEditorFactory::holdsValue(const QWidget *editor, QString *sentence) const
{
    const auto *edited = dynamic_cast<const PropertyEditor *>(editor);
    if (!edited || !edited->isModified() || edited->value().isValid())
        return true;
    if (sentence)
        *sentence = edited->expectation();
    return false;
}

void QtVariantEditorFactory::commit(const QWidget *editor, QtVariantPropertyManager *manager,
                                    QtProperty *property) const
{
    const auto *edited = dynamic_cast<const PropertyEditor *>(editor);
    if (!edited || !edited->isModified())
        return;
    const QVariant value = edited->value();
    if (value.isValid())
        manager->setValue(property, value);
}
