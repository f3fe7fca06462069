// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QVariant>

class PhysicalDevice;
struct DataAttribute;
struct DataObject;

/// Between what is typed on a command line and the representation of `DataAttribute::value`.
namespace ValueText {

/// The value that @p text means for the attribute: numbers, also "0x1F"; "true", "on", "1" and
/// their opposites; entries of an enumeration by name or number; bits as '0' and '1'.
/// @param error one sentence when the answer is invalid
QVariant parse(const PhysicalDevice &device, const DataAttribute &attribute, const QString &text,
               QString &error);

/// The value that @p text means where @p before stood.
QVariant parseLike(const QVariant &before, const QString &text, QString &error);

/// A control value as the driver takes it, by the type that the object's command has: "on", "off",
/// "true" and "false" where that is a boolean, entries or whole numbers where it is an enumeration
/// or an integer, a number for an analogue set point.
double parseControl(const PhysicalDevice &device, const DataObject &object, const QString &text,
                    QString &error);

/// Numbers and texts as JSON has them; 64-bit integers that JSON numbers cannot hold as text.
QJsonValue toJson(const QVariant &value);

} // namespace ValueText
