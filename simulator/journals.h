// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/model.h"

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace sim {

/// The journals of a device: one for each log of a logical node, "LN$name" in the domain of its
/// logical device. Nothing records into them. Immutable.
class Journals
{
public:
    using Names = std::set<std::string, std::less<>>;

    explicit Journals(const scl::Ied &ied);

    /// Sorted; null for a domain that does not exist.
    const Names *names(std::string_view domain) const;
    bool contains(std::string_view domain, std::string_view name) const;

private:
    std::map<std::string, Names, std::less<>> m_domains;
};

} // namespace sim
