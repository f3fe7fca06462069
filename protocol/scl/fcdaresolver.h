// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "pathpart.h"
#include "typeresolver.h"

#include <span>
#include <unordered_map>

namespace scl {

/// Resolves the members of data sets, when the IED is complete: they can name nodes that come later
/// in the file than they do.
class FcdaResolver : private ResolverPart
{
public:
    FcdaResolver(ResolverState &state, const TypeResolver &types)
        : ResolverPart(state)
        , m_types(types)
    {
    }

    /// Remembers a data set.
    /// @param deviceInst logical device of its node, for members that name none
    /// @param members one for each FCDA of the element; they live as long as the document
    void add(std::uint32_t dataSet, std::string_view deviceInst, std::span<Fcda> members);

    /// Resolves the FCDAs of all data sets since the last call.
    void resolve(const Ied &ied);

private:
    struct PendingSet
    {
        std::uint32_t element;
        Fcda *members;
        std::string_view deviceInst;
    };

    struct KnownDevice
    {
        const LogicalDevice *device = nullptr;
        std::unordered_map<std::string_view, const LogicalNode *> nodes;
    };
    using KnownDevices = std::unordered_map<std::string_view, KnownDevice>;

    void resolveFcda(std::uint32_t element, const Ied &ied, const KnownDevices &devices,
                     std::string_view homeDevice, Fcda &member);
    /// Empty when the member exists, else what is wrong, as the begin of a sentence.
    wording::Text walk(const LogicalNode &node, std::size_t objectParts,
                       std::vector<PathPart> &parts, std::int32_t arrayIndex, Fcda &member);

    const TypeResolver &m_types;
    std::vector<PendingSet> m_pendingSets;
};

} // namespace scl
