// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "resolverpart.h"

namespace scl {

/// Reads the values of types and instances in the type of their attribute.
class ValueReader : private ResolverPart
{
public:
    explicit ValueReader(ResolverState &state)
        : ResolverPart(state)
    {
    }

    /// The Val elements below @p element.
    std::span<const ConfiguredValue> readValues(std::uint32_t element, const TemplateNode &node);

private:
    ConfiguredValue readValue(std::uint32_t element, const TemplateNode &node);
};

} // namespace scl
