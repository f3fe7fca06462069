// SPDX-License-Identifier: Apache-2.0
#include "acsi/namedparts.h"

#include "acsi/functionalconstraint.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <string_view>
#include <utility>

namespace acsi {

namespace {

constexpr char separator = '$';

} // namespace

std::vector<std::string> NamedParts::below(const NamePages &names, const std::string &item)
{
    const auto nameAt = [&names](std::uint32_t number) { return names.name(number); };
    if (m_sorted.empty()) {
        m_sorted.resize(names.count());
        std::iota(m_sorted.begin(), m_sorted.end(), 0U);
        std::ranges::sort(m_sorted, {}, nameAt);
    }
    const std::string prefix = item + separator;
    std::vector<std::pair<std::uint32_t, std::string_view>> found;
    auto place = std::ranges::lower_bound(m_sorted, std::string_view(prefix), {}, nameAt);
    for (; place != m_sorted.end() && nameAt(*place).starts_with(prefix); ++place) {
        const std::string_view rest = nameAt(*place).substr(prefix.size());
        const std::string_view part = rest.substr(0, rest.find(separator));
        if (part.empty())
            continue;
        if (found.empty() || found.back().second != part)
            found.emplace_back(*place, part);
        else
            found.back().first = std::min(found.back().first, *place);
    }
    const bool isNode = item.find(separator) == std::string::npos;
    std::ranges::sort(found, {}, [isNode](const auto &each) {
        const auto constraint = functionalConstraintFrom(each.second);
        return std::pair(isNode ? (constraint ? static_cast<int>(*constraint) : 256) : 0,
                         each.first);
    });
    std::vector<std::string> parts;
    std::set<std::string_view> known;
    for (const auto &each : found) {
        // A name may hold what sorts before the separator, and tear a part's names apart.
        if (known.insert(each.second).second)
            parts.emplace_back(each.second);
    }
    return parts;
}

} // namespace acsi
