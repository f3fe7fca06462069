// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "valuereader.h"

#include <unordered_map>

namespace scl {

/// Reads what logical nodes say about their data (DOI, SDI, DAI) and binds it to their types.
class InstanceReader : private ResolverPart
{
public:
    explicit InstanceReader(ResolverState &state)
        : ResolverPart(state)
        , m_values(state)
    {
    }

    /// The instances below @p element, ordered as `InstanceNode::children` are.
    std::span<const InstanceNode> readInstances(std::uint32_t element, const Template *type);

private:
    // Smaller types are searched from front to back, which is faster than hashing.
    static constexpr std::size_t linearSearchLimit = 64;

    static bool before(const InstanceNode &left, const InstanceNode &right);
    void sortInstances(std::vector<InstanceNode> &nodes,
                       const std::vector<std::uint32_t> &elements);
    std::string_view nameOf(std::uint32_t element) const;
    /// Position of a node in its type, or the number of nodes. Instances mostly follow the order of
    /// their type, so the search begins at @p hint.
    std::size_t positionOf(const Template &type, std::string_view name, std::size_t hint);
    bool bind(std::uint32_t element, const Template &type, std::uint32_t hint, InstanceNode &node);

    ValueReader m_values;
    std::unordered_map<const Template *, std::unordered_map<std::string_view, std::size_t>>
        m_largeTypes;
};

} // namespace scl
