// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

namespace fuzz {

/// Inputs of fuzz_discovery: what sound devices answer, in octets. Also with their answers refused
/// in part.
std::vector<std::vector<std::uint8_t>> discoveryRecordings();

/// Inputs of fuzz_reportstream: blocks that are enabled, and sound reports of them in octets.
std::vector<std::vector<std::uint8_t>> reportRecordings();

/// Inputs of fuzz_lastentries: files as the driver writes them.
std::vector<std::vector<std::uint8_t>> lastEntriesFiles();

} // namespace fuzz
