// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/typedescription.h"

#include <QtCore/QString>
#include <QtCore/QVector>

/// Classes of the standard by what a device shows of its data. Any thread.
namespace ClassGuess {

/// "XCBR" of the logical node "Q0XCBR1"; the name as it stands when it has no such form.
QString logicalNodeClass(const QString &name);

/// The common data class of data that the standard's classes do not name, by what is there: its
/// types under the functional constraints it has. Empty when nothing tells.
QString commonDataClass(const QVector<const mms::TypeDescription *> &parts);

} // namespace ClassGuess
