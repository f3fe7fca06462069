// SPDX-License-Identifier: Apache-2.0
#include "qtproperty.h"

#include "qtvariantpropertymanager.h"

QtProperty::QtProperty(QtVariantPropertyManager *manager, const QString &name)
    : m_manager(manager)
    , m_name(name)
{
}

QtProperty::~QtProperty()
{
    if (m_parent)
        m_parent->m_subProperties.removeOne(this);
    for (QtProperty *property : qAsConst(m_subProperties))
        property->m_parent = nullptr;
    m_manager->forget(this);
}

void QtProperty::setPropertyName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    notifyChanged();
}

void QtProperty::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    notifyChanged();
}

void QtProperty::addSubProperty(QtProperty *property)
{
    if (!property || property->m_parent)
        return;
    for (const QtProperty *ancestor = this; ancestor; ancestor = ancestor->m_parent) {
        if (ancestor == property)
            return;
    }
    property->m_parent = this;
    m_subProperties.append(property);
    emit m_manager->subPropertiesChanged(this);
}

void QtProperty::removeSubProperty(QtProperty *property)
{
    if (!m_subProperties.removeOne(property))
        return;
    property->m_parent = nullptr;
    emit m_manager->subPropertiesChanged(this);
}

void QtProperty::notifyChanged()
{
    emit m_manager->propertyChanged(this);
}
