// SPDX-License-Identifier: Apache-2.0
// Why a service on a file is refused, in the terms of the protocol.
#pragma once

#include "mms/serviceerror.h"

#include <cstdint>
#include <string>
#include <system_error>

namespace sim {

/// @param code one of mms::serviceerrors that begin with "file"
mms::ServiceError fileError(std::int32_t code);
mms::ServiceError fileError(std::int32_t code, std::string description);
/// What the operating system says.
mms::ServiceError fileError(const std::error_code &error);
/// One client has too many files open.
mms::ServiceError tooManyOpen();
/// What the operating system said last in this thread.
std::error_code lastError();

} // namespace sim
