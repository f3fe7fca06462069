// SPDX-License-Identifier: Apache-2.0
#include "qtvariantproperty.h"

#include "propertyeditors.h"
#include "qtvariantpropertymanager.h"

#include <QtCore/QDateTime>
#include <QtCore/QMetaType>

namespace {

QVariant defaultValue(int type)
{
    switch (type) {
    case QMetaType::Bool:
        return false;
    case QMetaType::Int:
        return 0;
    case QMetaType::UInt:
        return 0U;
    case QMetaType::LongLong:
        return 0LL;
    case QMetaType::ULongLong:
        return 0ULL;
    case QMetaType::Double:
        return 0.0;
    default:
        return type == QtVariantPropertyManager::groupTypeId() ? QVariant()
                                                               : QVariant(type, nullptr);
    }
}

} // namespace

QtVariantProperty::QtVariantProperty(QtVariantPropertyManager *manager, int type,
                                     const QString &name)
    : QtProperty(manager, name)
    , m_type(type)
    , m_value(defaultValue(type))
{
}

QtVariantProperty::~QtVariantProperty() = default;

void QtVariantProperty::setValue(const QVariant &value)
{
    propertyManager()->setValue(this, value);
}

bool QtVariantProperty::hasValue() const
{
    return m_type != QtVariantPropertyManager::groupTypeId();
}

QString QtVariantProperty::valueText() const
{
    switch (m_type) {
    case QMetaType::Bool:
        return truthText(m_value.toBool());
    case QMetaType::Double:
        return numberText(m_value.toDouble(), m_singlePrecision);
    case QMetaType::QTime:
        return m_value.toTime().toString(Qt::ISODateWithMs);
    case QMetaType::QDateTime:
        return m_value.toDateTime().toString(Qt::ISODateWithMs);
    case QMetaType::QChar:
        return m_value.toChar().isNull() ? QString() : QString(m_value.toChar());
    default:
        return m_value.toString();
    }
}

void QtVariantProperty::setSinglePrecision(bool single)
{
    if (m_singlePrecision == single)
        return;
    m_singlePrecision = single;
    notifyChanged();
}
