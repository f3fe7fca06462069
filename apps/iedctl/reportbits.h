// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <array>
#include <optional>

/// Trigger conditions and optional fields by name, as SCL files write them, separated by commas.
/// The bits are those of IEC 61850-8-1, bit 0 the most significant of the first octet.
namespace ReportBits {

std::optional<quint8> triggers(const QString &names, QString &error);
QStringList triggerNames(quint8 bits);

std::optional<std::array<quint8, 2>> optionalFields(const QString &names, QString &error);
/// @param text one '0' or '1' for each bit
QStringList optionalFieldNames(const QString &text);

} // namespace ReportBits
