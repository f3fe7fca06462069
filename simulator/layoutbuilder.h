// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/layout.h"

#include "scl/model.h"

#include <memory>
#include <memory_resource>

namespace sim {

/// Names and text that a layout refers to live in @p memory.
struct LayoutSettings
{
    std::pmr::memory_resource &memory;
    /// Control blocks have the attributes of the first edition only.
    bool firstEdition = false;
};

/// Whether the logical node needs a layout of its own: it has control blocks, or sizes of its
/// arrays come from its values.
bool hasOwnLayout(const scl::LogicalNode &logicalNode);

/// The layout of a logical node. Of what is in the file nothing is left out but structures without
/// any leaf. Settings appear a second time with the constraint SE unless the type says how.
std::unique_ptr<const Layout> makeLayout(const scl::LogicalNode &logicalNode,
                                         const LayoutSettings &settings);

} // namespace sim
