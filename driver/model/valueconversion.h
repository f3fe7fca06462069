// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"
#include "mms/typedescription.h"
#include "mms/vocabulary.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// Between values on the wire and values as DataAttribute represents them.
namespace ValueConversion {

/// The value in the representation of DataAttribute. @p basicType may be empty or one that the
/// value does not fit: then the value decides. Invalid for structures and arrays.
QVariant toVariant(const QString &basicType, const mms::Data &data);

/// The value for a variable of that type, in range; never cut or rounded silently. The error is one
/// sentence such as "300 does not fit INT8U." Bit strings are written in their full length, texts
/// and octets in their own, whatever length the device describes for them.
mms::Result<mms::Data> toData(const QString &basicType, const mms::TypeDescription &type,
                              const QVariant &value);

/// Why the text that is known of an attribute cannot be changed, one sentence: what an operator saw
/// of it was cut, or stands for octets that are no text. Empty where nothing speaks against it.
QString whyReadOnly(const QString &reference, const QVariant &known);

/// The name of the basic type that a value of that type has where nothing else is known ("INT8",
/// "VisString255"); "Struct" for structures.
QString basicTypeOf(const mms::TypeDescription &type);

/// Whether an attribute of the basic type can be what the device describes.
bool fits(const QString &basicType, const mms::TypeDescription &type);

/// Thirteen characters '0' and '1', more when more came. A bit that was not sent is '?'; where the
/// validity did not come it is questionable ("11").
QString qualityText(const mms::Data &data);
/// As mms::toText() has it; empty for what is no time of day.
QString timeText(const mms::Data &data);

/// The variant that QDataStream wrote, of any version since 5.0; false when the bytes hold none of
/// the types by which attributes are represented.
bool readVariant(const QByteArray &bytes, QVariant &value);

/// For the operator: what an attribute's value looks like in a sentence or a table.
QString text(const QVariant &value);

} // namespace ValueConversion
