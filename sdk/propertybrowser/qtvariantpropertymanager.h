// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "propertybrowserglobal.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QtProperty;
class QtVariantProperty;

/// Makes, owns and changes properties with QVariant values.
///
/// Known types are bool, int, unsigned int, long long, unsigned long long, double, QString, QDate,
/// QTime, QDateTime, QChar and the group. Float is not among them: a caller that has one decides
/// whether a double will do. GUI thread only.
class PROPERTYBROWSER_EXPORT QtVariantPropertyManager : public QObject
{
    Q_OBJECT

public:
    explicit QtVariantPropertyManager(QObject *parent = nullptr);
    /// Deletes the properties that are left.
    ~QtVariantPropertyManager() override;

    /// Type number of a property that has no value, only sub-properties.
    static int groupTypeId();

    bool isPropertyTypeSupported(int propertyType) const;

    /// A new property with the default value of its type, which the manager owns; null when the
    /// type is not supported.
    QtVariantProperty *addProperty(int propertyType, const QString &name = QString());

    /// Every property made here and not deleted since, in order of making.
    QList<QtProperty *> properties() const { return m_properties; }
    /// Delete every property.
    void clear();

    /// The value of one of this manager's properties; an invalid variant for any other.
    QVariant value(const QtProperty *property) const;

    /// The property as a QtVariantProperty; null when it is not one of this manager's.
    QtVariantProperty *variantProperty(const QtProperty *property) const;

public slots:
    /// Give a property a value, converted to the property's type. Nothing changes and nothing is
    /// emitted when the conversion is not possible, when the value is equal (doubles bit by bit) or
    /// when the property is not this manager's.
    void setValue(QtProperty *property, const QVariant &value);

signals:
    void valueChanged(QtProperty *property, const QVariant &value);
    /// Anything that a browser shows of the property has changed, its value included.
    void propertyChanged(QtProperty *property);
    void subPropertiesChanged(QtProperty *property);
    /// The property is being deleted: the pointer is good for comparison only.
    void propertyDestroyed(QtProperty *property);

private:
    friend class QtProperty;
    void forget(QtProperty *property);

    QList<QtProperty *> m_properties;
};
