// SPDX-License-Identifier: Apache-2.0
// Of the library itself; not for its users.
#pragma once

#include "controllercallguard.h"
#include "drivercall.h"

#include <optional>

/// What a guard is told of a call; nothing of one that changes nothing.
std::optional<GuardedCall> guardedCall(const DriverCall &call);
