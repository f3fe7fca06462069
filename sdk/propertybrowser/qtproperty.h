// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "propertybrowserglobal.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

class QtVariantPropertyManager;

/// A named entry of a property browser: a value, or a group that holds further properties.
///
/// Made by a QtVariantPropertyManager, which owns it; deleting it earlier is allowed and takes it
/// out of every browser. A property has at most one parent. Deleting a parent leaves its
/// sub-properties to their manager, without a parent. GUI thread only.
class PROPERTYBROWSER_EXPORT QtProperty
{
public:
    virtual ~QtProperty();
    Q_DISABLE_COPY(QtProperty)

    QtVariantPropertyManager *propertyManager() const { return m_manager; }

    QString propertyName() const { return m_name; }
    void setPropertyName(const QString &name);

    /// A property that is not enabled is shown greyed and opens no editor.
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);

    /// Whether there is a value to show; a group has none.
    virtual bool hasValue() const = 0;
    /// The value as the browser shows it.
    virtual QString valueText() const = 0;

    QtProperty *parentProperty() const { return m_parent; }
    QList<QtProperty *> subProperties() const { return m_subProperties; }

    /// Append a sub-property. Does nothing for null, for a property that has a parent already, and
    /// for one that would become its own ancestor.
    void addSubProperty(QtProperty *property);
    /// Take out a direct sub-property, which lives on without a parent.
    void removeSubProperty(QtProperty *property);

protected:
    QtProperty(QtVariantPropertyManager *manager, const QString &name);

    void notifyChanged();

private:
    QtVariantPropertyManager *m_manager;
    QString m_name;
    bool m_enabled = true;
    QtProperty *m_parent = nullptr;
    QList<QtProperty *> m_subProperties;
};

Q_DECLARE_METATYPE(QtProperty *)
