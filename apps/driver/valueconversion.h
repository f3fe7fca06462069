// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"
#include "mms/result.h"
#include "mms/typedescription.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// Between values on the wire and values as DataAttribute represents them.
namespace ValueConversion {

/// The value in the representation of DataAttribute. @p basicType may be empty or one that the
/// value does not fit: then the value decides. Invalid for structures and arrays.
QVariant toVariant(const QString &basicType, const mms::Data &data);

/// The value for a variable of that type, in range; never cut or rounded silently. The error is one
/// sentence such as "300 does not fit INT8U."
mms::Result<mms::Data> toData(const QString &basicType, const mms::TypeDescription &type,
                              const QVariant &value);

/// The name of the basic type that a value of that type has where nothing else is known ("INT8",
/// "VisString255"); "Struct" for structures.
QString basicTypeOf(const mms::TypeDescription &type);

/// Whether an attribute of the basic type can be what the device describes.
bool fits(const QString &basicType, const mms::TypeDescription &type);

/// Thirteen characters '0' and '1'.
QString qualityText(const mms::Data &data);
QString timeText(const mms::Data &data);

/// The variant that QDataStream wrote, of any version since 5.0; false when the bytes hold none of
/// the types by which attributes are represented.
bool readVariant(const QByteArray &bytes, QVariant &value);

/// For the operator: what an attribute's value looks like in a sentence or a table.
QString text(const QVariant &value);

} // namespace ValueConversion
