// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/devicechange.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

class PhysicalDevice;
struct DataAttribute;

/// Values in words, as the standard or the device's file names them, with what they stand for
/// behind the words: "on (2)". Any thread.
namespace ValueWords {

/// The entries of an attribute's enumeration by their numbers: the device's own, or else those of
/// the standard; empty for what is no enumeration.
QMap<int, QString> entries(const PhysicalDevice &device, const DataAttribute &attribute);

/// What the 13 characters of a quality say, its validity first; empty for none.
QString quality(const QString &bits);

/// The value as an operator reads it.
/// @param attribute that has the value; null when it is not known
QString text(const PhysicalDevice &device, const DataAttribute *attribute, const QVariant &value);

/// Fills DeviceChange::oldWords and newWords from the raw values.
void addWords(DeviceChange &change, const PhysicalDevice &device);

} // namespace ValueWords
