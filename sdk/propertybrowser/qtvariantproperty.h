// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "propertybrowserglobal.h"
#include "qtproperty.h"

#include <QtCore/QVariant>

/// A property whose value is a QVariant of one fixed type. See QtVariantPropertyManager for the
/// types and for what setting a value does.
class PROPERTYBROWSER_EXPORT QtVariantProperty : public QtProperty
{
public:
    ~QtVariantProperty() override;

    /// The QMetaType number given when it was made, or QtVariantPropertyManager::groupTypeId().
    int propertyType() const { return m_type; }

    QVariant value() const { return m_value; }
    void setValue(const QVariant &value);

    bool hasValue() const override;
    QString valueText() const override;

    /// For a double that stands for a single-precision number: one that a float holds exactly is
    /// shown with the digits of the float (0.1, not 0.10000000149011612). The value itself stays a
    /// double and is not rounded.
    bool isSinglePrecision() const { return m_singlePrecision; }
    void setSinglePrecision(bool single);

private:
    friend class QtVariantPropertyManager;
    QtVariantProperty(QtVariantPropertyManager *manager, int type, const QString &name);

    int m_type;
    QVariant m_value;
    bool m_singlePrecision = false;
};
