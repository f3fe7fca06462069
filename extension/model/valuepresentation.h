// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <propertybrowser/numberguard.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

struct DataAttribute;
class PhysicalDevice;
class SclTemplateStore;

/// What the Value column shows for an attribute: enumerations by the device's text or else the
/// template's, qualities by the names of their bits, booleans as "true" and "False", floating-point
/// values as double, anything else as stored. None of these texts is translated.
QVariant presentedValue(const DataAttribute &attribute, const PhysicalDevice &device,
                        const SclTemplateStore &templates);

/// Names of the bits of a quality (IEC 61850-7-3, clause 6.2.1), given as text of '0' and '1', bit
/// 0 first; bits beyond the end of the text are clear.
QString qualityText(const QString &bits);

/// An edited value, read by an attribute's basic type.
struct EditedValue
{
    QVariant typedValue; ///< float, double, qlonglong, qulonglong, uint, int, or as given
    bool converted;      ///< the basic type is one that texts are converted to
    bool changed;        ///< differs from the stored value, both read as the same type
};

/// Read an edited value. A text that does not convert gives 0.
EditedValue readEditedValue(const DataAttribute &attribute, const QVariant &edited);

/// The numbers that a text for an attribute of this basic type is read as; none when any text will
/// do.
std::optional<NumberRange> numberRange(const QString &basicType);
