// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace scl {

/// One component of a path: "phsAHar(7)" is name "phsAHar", index 7.
struct PathPart
{
    std::string_view name;
    std::int32_t index = -1;
};

PathPart splitIndex(std::string_view component);

/// Appends the components of a path that are separated by points.
void appendParts(std::string_view path, std::vector<PathPart> &parts);

} // namespace scl
