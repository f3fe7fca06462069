// SPDX-License-Identifier: Apache-2.0
#include "acsi/typelimits.h"

#include "acsi/discovery.h"

#include <algorithm>
#include <string_view>

namespace acsi {

using wording::say;

namespace {

constexpr char separator = '$';
/// Counts of values end here; the product of two of them fits 64 bits.
constexpr std::uint64_t most = 0xFFFFFFFF;

/// What the type of a variable holds when all elements of arrays are counted.
std::uint64_t valuesIn(const mms::TypeDescription &type)
{
    using Kind = mms::TypeDescription::Kind;
    if (type.kind != Kind::Structure && type.kind != Kind::Array)
        return 1;
    std::uint64_t values = 0;
    for (const mms::TypeDescription::Component &component : type.components)
        values = std::min(most, values + valuesIn(component.type));
    if (type.kind == Kind::Structure)
        return values;
    // What is empty costs a place all the same.
    return std::min(most, std::max<std::uint64_t>(values, 1) * type.elementCount);
}

std::size_t levelsOf(const mms::TypeDescription &type)
{
    std::size_t below = 0;
    for (const mms::TypeDescription::Component &component : type.components)
        below = std::max(below, levelsOf(component.type));
    return below + (type.components.empty() ? 0 : 1);
}

/// Whether a reference can name it: nobody could tell such a name from several steps, or an
/// element.
bool isName(std::string_view name)
{
    return !name.empty() && name.find_first_of("$/()") == name.npos;
}

/// Names that several components of the structure have, sorted.
std::vector<std::string> repeatedNames(const mms::TypeDescription &type)
{
    std::vector<std::string_view> names;
    names.reserve(type.components.size());
    for (const mms::TypeDescription::Component &component : type.components)
        names.push_back(component.name);
    std::ranges::sort(names);
    std::vector<std::string> repeated;
    for (std::size_t i = 1; i < names.size(); ++i) {
        if (names[i] == names[i - 1] && (repeated.empty() || repeated.back() != names[i]))
            repeated.emplace_back(names[i]);
    }
    return repeated;
}

/// Whether references can name everything in it.
bool isNameable(const mms::TypeDescription &type)
{
    const bool isStructure = type.kind == mms::TypeDescription::Kind::Structure;
    if (isStructure && !repeatedNames(type).empty())
        return false;
    return std::ranges::all_of(type.components, [isStructure](const auto &component) {
        return (!isStructure || isName(component.name)) && isNameable(component.type);
    });
}

std::size_t octetsOf(const mms::TypeDescription &type)
{
    std::size_t octets = sizeof(mms::TypeDescription);
    for (const mms::TypeDescription::Component &component : type.components)
        octets += component.name.size() + octetsOf(component.type);
    return octets;
}

mms::Text unnameable(const std::string &name)
{
    return say("%1 has a name that is none, or that something else has; it is left out.", name);
}

mms::Text excessive(const std::string &name)
{
    return say("%1 is larger, or nested deeper, than what is taken; it is left out.", name);
}

/// What is above a variable, and in it: "LN$ST$Pos" has two.
std::size_t depthOf(const std::string &item)
{
    return static_cast<std::size_t>(std::ranges::count(item, separator));
}

void reduceStructure(mms::TypeDescription &type, const std::string &domain, const std::string &item,
                     const DiscoveryLimits &limits, TypeReduction &reduction)
{
    if (type.kind != mms::TypeDescription::Kind::Structure)
        return;
    const std::size_t depth = depthOf(item);
    const std::size_t before = type.components.size();
    const std::size_t marks = reduction.inParts.size();
    const std::vector<std::string> repeated = repeatedNames(type);
    std::erase_if(type.components, [&](mms::TypeDescription::Component &component) {
        const std::string name = item + separator + component.name;
        const bool isArray = component.type.kind == mms::TypeDescription::Kind::Array;
        const std::size_t levels = depth + 1 + levelsOf(component.type);
        const bool isExcessive =
            isArray ? valuesIn(component.type) > limits.elements || levels > limits.depth
                    : depth + 1 >= limits.depth && !component.type.components.empty();
        const bool isOdd = !isName(component.name) ||
                           std::ranges::binary_search(repeated, component.name) ||
                           (isArray && !isNameable(component.type));
        if (isExcessive || isOdd) {
            reduction.leftOut.push_back(isExcessive ? excessive(domain + '/' + name)
                                                    : unnameable(domain + '/' + name));
            return true;
        }
        reduceStructure(component.type, domain, name, limits, reduction);
        return false;
    });
    if (type.components.size() != before || reduction.inParts.size() != marks)
        reduction.inParts.push_back(item);
}

} // namespace

TypeMeasure measureOf(const mms::TypeDescription &type)
{
    return {octetsOf(type), valuesIn(type)};
}

TypeReduction reduced(mms::TypeDescription &type, const mms::ObjectName &variable,
                      const DiscoveryLimits &limits)
{
    TypeReduction reduction;
    const bool isNode = variable.item.find(separator) == std::string::npos;
    const bool isArray = type.kind == mms::TypeDescription::Kind::Array;
    const bool isExcessive = isArray && (valuesIn(type) > limits.elements ||
                                         depthOf(variable.item) + levelsOf(type) > limits.depth);
    const bool isOdd = isArray && !isNode && !isNameable(type);
    if (isExcessive || isOdd) {
        reduction.isTaken = false;
        reduction.leftOut.push_back(isExcessive ? excessive(mms::toText(variable))
                                                : unnameable(mms::toText(variable)));
        return reduction;
    }
    reduceStructure(type, variable.domain, variable.item, limits, reduction);
    return reduction;
}

} // namespace acsi
