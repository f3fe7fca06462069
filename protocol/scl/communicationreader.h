// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "resolverpart.h"

#include <unordered_map>

namespace scl {

/// Reads the addresses of access points and control blocks, when the IEDs are known.
class CommunicationReader : private ResolverPart
{
public:
    explicit CommunicationReader(ResolverState &state)
        : ResolverPart(state)
    {
    }

    void readCommunication();

private:
    void checkConnection(std::uint32_t element, const ConnectedAccessPoint &connection,
                         const std::unordered_map<std::string_view, const Ied *> &ieds);
    std::span<const AddressPart> readAddress(std::uint32_t element);
    ConnectedAccessPoint readConnection(std::uint32_t element);
    std::optional<std::uint32_t> readTime(std::uint32_t element, Tag tag);
};

} // namespace scl
