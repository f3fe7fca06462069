// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/tpkt.h"

#include <functional>

namespace osi {

enum class Direction : std::uint8_t { Sent, Received };

/// Called for every MMS PDU of an association, in order, within its strand; the octets live until
/// it returns. It must not call back into the association.
using TraceHook = std::function<void(Direction direction, Bytes pdu)>;

} // namespace osi
