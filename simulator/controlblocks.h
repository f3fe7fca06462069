// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/layoutdraft.h"

#include "scl/model.h"

#include <utility>
#include <vector>

namespace sim {

/// The control blocks of a logical node as IEC 61850-8-1 lays them out, each with the functional
/// constraint that it stands under. Names are those of the document.
std::vector<std::pair<Fc, LayoutDraft>> controlBlocks(const scl::LogicalNode &logicalNode,
                                                      bool firstEdition);

} // namespace sim
