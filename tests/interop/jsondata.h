// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"
#include "mms/typedescription.h"

#include <QJsonValue>

namespace interop {

/// A value as the foreign peers write it: numbers with their kind, 64-bit integers as text.
QJsonValue toJson(const mms::Data &data);
QJsonValue toJson(const mms::AccessResult &result);
/// A type as the foreign client writes it.
QJsonValue toJson(const mms::TypeDescription &type);

} // namespace interop
