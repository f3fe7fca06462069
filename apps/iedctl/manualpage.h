// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

namespace CLI {
class App;
}

/// The manual page in roff of a program as its parser describes it.
QString manualPageOf(const CLI::App &program);
