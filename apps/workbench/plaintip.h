// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

/// A text as a tool tip that shows it as it is. Names and reasons come from devices, and what looks
/// like mark-up would be taken for it.
QString plainTip(const QString &text);
