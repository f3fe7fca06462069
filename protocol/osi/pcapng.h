// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/trace.h"

#include <chrono>

/// Captures of MMS PDUs that protocol analysers open (pcapng; link type 252, exported PDUs). They
/// hold the PDUs of one association without the layers below.
namespace osi::pcapng {

/// What a file begins with.
Octets fileHeader();
/// One PDU, to be appended behind what was written before.
Octets packet(Direction direction, std::chrono::system_clock::time_point time, Bytes pdu);

} // namespace osi::pcapng
