// SPDX-License-Identifier: Apache-2.0
#include "qtvariantpropertymanager.h"

#include "qtvariantproperty.h"

#include <QtCore/QDateTime>
#include <QtCore/QMetaType>

#include <cstring>

namespace {

quint64 bitsOf(double number)
{
    quint64 bits = 0;
    static_assert(sizeof bits == sizeof number);
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

/// QVariant compares doubles with a tolerance, which would swallow a change of the last digits.
bool sameValue(const QVariant &one, const QVariant &other)
{
    if (one.userType() == QMetaType::Double && other.userType() == QMetaType::Double) {
        return bitsOf(one.toDouble()) == bitsOf(other.toDouble());
    }
    if (one.userType() == QMetaType::QDateTime && other.userType() == QMetaType::QDateTime) {
        const QDateTime a = one.toDateTime();
        const QDateTime b = other.toDateTime();
        return a == b && a.isValid() == b.isValid() && a.timeSpec() == b.timeSpec() &&
               a.offsetFromUtc() == b.offsetFromUtc();
    }
    return one == other && one.isNull() == other.isNull();
}

bool isInteger(int type)
{
    return type == QMetaType::Int || type == QMetaType::UInt || type == QMetaType::LongLong ||
           type == QMetaType::ULongLong;
}

/// QVariant::convert() rounds and wraps numbers that an integer type cannot hold; this refuses
/// them.
bool convertExactly(QVariant &value, int type)
{
    const QVariant original = value;
    if (!value.convert(type))
        return false;
    const bool fromNumber =
        isInteger(original.userType()) || original.userType() == QMetaType::Double;
    if (!isInteger(type) || !fromNumber)
        return true;
    if (original.userType() != QMetaType::Double) {
        const bool negative =
            original.userType() == QMetaType::Int || original.userType() == QMetaType::LongLong
                ? original.toLongLong() < 0
                : false;
        const bool negativeNow =
            type == QMetaType::Int || type == QMetaType::LongLong ? value.toLongLong() < 0 : false;
        return negative == negativeNow && original.toULongLong() == value.toULongLong();
    }
    return value.toDouble() == original.toDouble();
}

struct Group
{
};

} // namespace

QtVariantPropertyManager::QtVariantPropertyManager(QObject *parent)
    : QObject(parent)
{
}

QtVariantPropertyManager::~QtVariantPropertyManager()
{
    clear();
}

int QtVariantPropertyManager::groupTypeId()
{
    static const int id = qRegisterMetaType<Group>("QtVariantPropertyGroup");
    return id;
}

bool QtVariantPropertyManager::isPropertyTypeSupported(int propertyType) const
{
    switch (propertyType) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime:
    case QMetaType::QChar:
        return true;
    default:
        return propertyType == groupTypeId();
    }
}

QtVariantProperty *QtVariantPropertyManager::addProperty(int propertyType, const QString &name)
{
    if (!isPropertyTypeSupported(propertyType))
        return nullptr;
    auto *property = new QtVariantProperty(this, propertyType, name);
    m_properties.append(property);
    return property;
}

void QtVariantPropertyManager::clear()
{
    while (!m_properties.isEmpty())
        delete m_properties.last();
}

QVariant QtVariantPropertyManager::value(const QtProperty *property) const
{
    const QtVariantProperty *found = variantProperty(property);
    return found ? found->value() : QVariant();
}

QtVariantProperty *QtVariantPropertyManager::variantProperty(const QtProperty *property) const
{
    if (!property || property->propertyManager() != this)
        return nullptr;
    return dynamic_cast<QtVariantProperty *>(const_cast<QtProperty *>(property));
}

void QtVariantPropertyManager::setValue(QtProperty *property, const QVariant &value)
{
    QtVariantProperty *target = variantProperty(property);
    if (!target || !target->hasValue())
        return;
    QVariant converted = value;
    if (value.userType() != target->m_type && !convertExactly(converted, target->m_type))
        return;
    if (sameValue(target->m_value, converted))
        return;
    target->m_value = converted;
    emit propertyChanged(target);
    emit valueChanged(target, converted);
}

void QtVariantPropertyManager::forget(QtProperty *property)
{
    m_properties.removeAt(m_properties.lastIndexOf(property));
    emit propertyDestroyed(property);
}
