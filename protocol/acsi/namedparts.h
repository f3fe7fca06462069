// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/namepages.h"

#include <cstdint>
#include <string>
#include <vector>

namespace acsi {

/// What the names of a logical device's variables ("LN$ST$Pos$stVal") say of the parts of a
/// variable whose type cannot be had as a whole.
class NamedParts
{
public:
    /// The names one step below @p item, in the order in which the device lists them; functional
    /// constraints of a logical node have an order of their own. @p names are complete, and the
    /// same at every call.
    std::vector<std::string> below(const NamePages &names, const std::string &item);

private:
    std::vector<std::uint32_t> m_sorted; ///< numbers of the names, in the order of their texts
};

} // namespace acsi
