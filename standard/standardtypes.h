// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// What the standard's classes (IEC 61850-7-4 and 7-3, Edition 2, with data objects of former
/// times) say of data that a device describes by bare MMS types. Any thread.
namespace StandardTypes {

/// A type as SCL names it.
struct AttributeType
{
    QString basicType;  ///< empty when the standard does not know the attribute
    QString enumTypeId; ///< of an "Enum"
};

/// The common data class of a data object ("Pos" or "Ind3") in a logical node class; empty when the
/// standard does not know it.
QString commonDataClass(const QString &lnClass, const QString &dataObject);

/// The common data class of a data object inside one of that class ("phsA" in "WYE"); empty when
/// there is none.
QString innerClass(const QString &commonDataClass, const QString &name);

/// The type of an attribute by its path below a data object of the common data class ("stVal",
/// "mag", "f"). @p lnClass and @p dataObject say which enumeration it has where the class leaves
/// that open.
AttributeType attribute(const QString &lnClass, const QString &dataObject,
                        const QString &commonDataClass, const QStringList &path);

/// The entries of a standard enumeration by their numbers; empty when there is none of that name.
QMap<int, QString> enumeration(const QString &enumTypeId);

} // namespace StandardTypes
