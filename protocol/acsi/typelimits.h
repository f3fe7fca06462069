// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/objectname.h"
#include "mms/typedescription.h"
#include "wording/result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace acsi {

struct DiscoveryLimits;

/// How large a type is.
struct TypeMeasure
{
    std::size_t octets = 0;
    std::uint64_t values = 0; ///< elements of arrays one by one
};

TypeMeasure measureOf(const mms::TypeDescription &type);

/// What became of a type that is held to the limits.
struct TypeReduction
{
    bool isTaken = true; ///< false when nothing of it is
    /// Structures that are not told whole any more, "LN$ST$Pos", with all those around them.
    std::vector<std::string> inParts;
    std::vector<mms::Text> leftOut; ///< one sentence each
};

/// Takes arrays that are too large, what is nested too deeply, and what no reference can name out
/// of the type of @p variable. What is left of a structure is read part by part, since the device
/// goes on sending the whole.
TypeReduction reduced(mms::TypeDescription &type, const mms::ObjectName &variable,
                      const DiscoveryLimits &limits);

} // namespace acsi
