// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/layout.h"

#include "mms/data.h"
#include "scl/model.h"

#include <optional>
#include <string_view>

namespace sim {

/// Where a leaf stands, as far as its first value depends on it.
struct LeafPlace
{
    const Layout &layout;
    const LayoutNode &leaf;
    std::string_view dataObject; ///< name of the data object or control block
    std::string_view cdc;        ///< of the innermost data object
    bool controllable = false;   ///< the data object can be operated
};

/// What a healthy device would show that was just switched on at @p now.
mms::Data initialValue(const LeafPlace &place, const mms::UtcTime &now);

/// A value of an SCL file as a value of @p leaf; none where there is none or it does not fit.
std::optional<mms::Data> configuredData(const LayoutNode &leaf, const scl::Value &value);

} // namespace sim
