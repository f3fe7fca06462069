// SPDX-License-Identifier: Apache-2.0
#include "instancereader.h"

#include "pathpart.h"

#include <algorithm>

namespace scl {

using wording::say;

std::span<const InstanceNode> InstanceReader::readInstances(std::uint32_t element,
                                                            const Template *type)
{
    std::vector<InstanceNode> nodes;
    std::vector<std::uint32_t> elements;
    bool ordered = true;
    std::uint32_t hint = 0;
    m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
        if (tag != Tag::Doi && tag != Tag::Sdi && tag != Tag::Dai)
            return;
        if (!type)
            return;
        InstanceNode node;
        if (!bind(child, *type, hint, node))
            return;
        hint = node.node;
        const TemplateNode &bound = type->nodes[node.node];
        node.desc = value(child, Attr::Desc);
        node.shortAddress = value(child, Attr::SAddr);
        node.valueKind = value(child, Attr::ValKind);
        if (bound.isLeaf()) {
            if (tag != Tag::Dai)
                warn(child, say("\"%1\" names an attribute, which takes a DAI.", nameOf(child)));
            node.values = m_values.readValues(child, bound);
        } else {
            if (tag == Tag::Dai && m_tree.firstChild(child, Tag::Val) != noElement)
                warn(child, say("\"%1\" has a value, but it is a structure.", nameOf(child)));
            node.children = readInstances(child, bound.type);
        }
        if (!nodes.empty() && !before(nodes.back(), node))
            ordered = false;
        nodes.push_back(node);
        elements.push_back(child);
    });
    if (!ordered)
        sortInstances(nodes, elements);
    return keep(nodes);
}

bool InstanceReader::before(const InstanceNode &left, const InstanceNode &right)
{
    return left.node != right.node ? left.node < right.node : left.index < right.index;
}

void InstanceReader::sortInstances(std::vector<InstanceNode> &nodes,
                                   const std::vector<std::uint32_t> &elements)
{
    std::vector<std::size_t> order(nodes.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&nodes](std::size_t left, std::size_t right) {
        return before(nodes[left], nodes[right]);
    });
    std::vector<InstanceNode> sorted;
    sorted.reserve(nodes.size());
    for (const std::size_t i : order) {
        if (!sorted.empty() && !before(sorted.back(), nodes[i])) {
            error(elements[i], say("The instance is given twice; the first is used."));
            continue;
        }
        sorted.push_back(nodes[i]);
    }
    nodes = std::move(sorted);
}

std::string_view InstanceReader::nameOf(std::uint32_t element) const
{
    return value(element, Attr::Name);
}

std::size_t InstanceReader::positionOf(const Template &type, std::string_view name,
                                       std::size_t hint)
{
    const std::size_t count = type.nodes.size();
    const std::size_t steps = std::min(count, linearSearchLimit);
    for (std::size_t step = 0; step < steps; ++step) {
        const std::size_t candidate = (hint + step) % count;
        if (type.nodes[candidate].name == name)
            return candidate;
    }
    if (steps == count)
        return count;
    auto &positions = m_largeTypes[&type];
    if (positions.empty()) {
        for (std::size_t i = 0; i < count; ++i)
            positions.emplace(type.nodes[i].name, i);
    }
    const auto found = positions.find(name);
    return found == positions.end() ? count : found->second;
}

bool InstanceReader::bind(std::uint32_t element, const Template &type, std::uint32_t hint,
                          InstanceNode &node)
{
    const std::string_view *written = m_tree.find(element, Attr::Name);
    if (!written) {
        warn(element, say("The instance has no name and is left out."));
        return false;
    }
    PathPart part{trimmed(*written), -1};
    if (part.name.ends_with(')'))
        part = splitIndex(part.name);
    const std::size_t found = positionOf(type, part.name, hint);
    if (found == type.nodes.size()) {
        warn(element, say("\"%1\" does not exist in type \"%2\"; what is given for it is left out.",
                          nameOf(element), type.id));
        return false;
    }
    if (const std::string_view *ix = m_tree.find(element, Attr::Ix)) {
        part.index = toNumber<std::int32_t>(*ix).value_or(-1);
        if (part.index < 0) {
            error(element, say("\"%1\" is not the number of an array element.", *ix));
            return false;
        }
    }
    node.node = static_cast<std::uint32_t>(found);
    node.index = part.index;
    const TemplateNode &bound = type.nodes[found];
    if (node.index >= 0) {
        if (!bound.array) {
            warn(element,
                 say("\"%1\" is not an array; the element number is ignored.", nameOf(element)));
            node.index = -1;
        } else if (bound.arraySizeAttribute.empty() &&
                   static_cast<std::uint32_t>(node.index) >= bound.arraySize) {
            warn(element, say("\"%1\" has no element %2; what is given for it is left out.",
                              nameOf(element), node.index));
            return false;
        }
    }
    return true;
}

} // namespace scl
