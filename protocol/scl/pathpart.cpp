// SPDX-License-Identifier: Apache-2.0
#include "pathpart.h"

#include "resolverpart.h"

namespace scl {

PathPart splitIndex(std::string_view component)
{
    if (component.ends_with(')')) {
        const std::size_t open = component.find('(');
        if (open != std::string_view::npos) {
            const auto index =
                toNumber<std::int32_t>(component.substr(open + 1, component.size() - open - 2));
            if (index && *index >= 0)
                return {component.substr(0, open), *index};
        }
    }
    return {component, -1};
}

void appendParts(std::string_view path, std::vector<PathPart> &parts)
{
    while (!path.empty()) {
        const std::size_t dot = path.find('.');
        parts.push_back(splitIndex(path.substr(0, dot)));
        path = dot == std::string_view::npos ? std::string_view() : path.substr(dot + 1);
    }
}

} // namespace scl
