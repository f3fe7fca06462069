// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "exitstatus.h"

class QIODevice;
class Session;

/// Runs the commands of @p lines one after the other within the session. Empty lines and lines that
/// begin with '#' are skipped. Ends at the first command that fails, with its status, and names the
/// line.
ExitStatus runBatch(Session &session, QIODevice &lines);
