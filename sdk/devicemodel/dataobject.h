// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dataattribute.h"
#include "devicemodelglobal.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

/// Name and type of a data object inside a data object, or of an array.
struct SubDataObject
{
    QString name;
    QString type; ///< common data class or attribute type, shown to the operator
};

/// One node of a data object's attribute tree. Owns its attribute, sub data object and children.
///
/// Exactly one of `attribute` and `subDataObject` is set. An array is a node without an attribute
/// whose children are its elements, named as in references ("har(3)").
struct DEVICEMODEL_EXPORT DAO
{
    DAO() = default;
    ~DAO();
    Q_DISABLE_COPY(DAO)

    quint32 state = 1; ///< 0: absent from the device, shown in red
    DataAttribute *attribute = nullptr;
    SubDataObject *subDataObject = nullptr;
    QList<DAO *> children;

    /// Name of the attribute or of the sub data object.
    QString name() const;

    /// First direct child of that name; null when there is none.
    DAO *getDAOByName(const QString &childName) const;

    /// Functional constraints found in this node and below, each once, in order of first
    /// appearance, depth first.
    QStringList possibleFC() const;
};

/// A data object of a logical node (IEC 61850-7-2, clause 11). Owns its attribute tree.
struct DEVICEMODEL_EXPORT DataObject
{
    DataObject() = default;
    ~DataObject();
    Q_DISABLE_COPY(DataObject)

    bool present = true;
    QList<DAO *> attributes; ///< in the order of the data type template
    QString type;            ///< common data class ("DPC"), or the type's name where it has none
    QString name;

    /// First direct attribute node of that name; null when there is none.
    DAO *getDAOByName(const QString &childName) const;

    /// Functional constraints of the data object, as DAO::possibleFC().
    QStringList possibleFC() const;
};
