// SPDX-License-Identifier: Apache-2.0
#include "acsi/sharedtype.h"

#include <cstdint>
#include <string_view>

namespace acsi {

namespace {

void mix(std::size_t &hash, std::size_t value)
{
    hash = (hash ^ value) * std::size_t{0x9E3779B97F4A7C15};
    hash ^= hash >> 32;
}

/// Without what only a type that is known by its name has: such types are rare.
void mix(std::size_t &hash, const mms::TypeDescription &type)
{
    mix(hash, static_cast<std::size_t>(type.kind));
    mix(hash, static_cast<std::size_t>(static_cast<std::uint32_t>(type.size)));
    mix(hash, type.elementCount);
    mix(hash, type.components.size());
    for (const mms::TypeDescription::Component &component : type.components) {
        mix(hash, std::hash<std::string_view>()(component.name));
        mix(hash, component.type);
    }
}

} // namespace

mms::TypeDescription &SharedType::edit()
{
    if (!m_type || m_type.use_count() > 1)
        m_type = std::make_shared<mms::TypeDescription>(**this);
    return *m_type;
}

std::size_t SharedType::Hash::operator()(const SharedType &type) const
{
    std::size_t hash = 0;
    mix(hash, *type);
    return hash;
}

const mms::TypeDescription &SharedType::nothing()
{
    static const mms::TypeDescription none;
    return none;
}

} // namespace acsi
