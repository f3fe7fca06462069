// SPDX-License-Identifier: Apache-2.0
// How long a report is on the network, and how one that is too long is divided.
#pragma once

#include "acsi/report.h"

#include <cstddef>
#include <vector>

namespace sim {

/// Octets of a value in a report.
std::size_t reportedSize(const mms::AccessResult &value);

/// The parts of a report that fit PDUs of @p pduSize octets: the report itself when it fits. A
/// member that fits no PDU is told as one that cannot be accessed.
std::vector<acsi::Report> segments(acsi::Report report, std::size_t pduSize);

} // namespace sim
