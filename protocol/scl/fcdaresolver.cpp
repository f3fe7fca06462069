// SPDX-License-Identifier: Apache-2.0
#include "fcdaresolver.h"

namespace scl {

using wording::say;

void FcdaResolver::add(std::uint32_t dataSet, std::string_view deviceInst, std::span<Fcda> members)
{
    m_pendingSets.push_back({dataSet, members.data(), deviceInst});
}

void FcdaResolver::resolve(const Ied &ied)
{
    if (!m_pendingSets.empty()) {
        KnownDevices devices;
        ied.forEachDevice([&devices](const LogicalDevice &device) {
            KnownDevice &known = devices[device.inst];
            if (known.device)
                return;
            known.device = &device;
            for (const LogicalNode &node : device.nodes)
                known.nodes.try_emplace(node.name, &node);
        });
        for (const PendingSet &pending : m_pendingSets) {
            if (stopped())
                break;
            Fcda *member = pending.members;
            m_tree.forEachChild(pending.element, [&](std::uint32_t entry, Tag tag) {
                if (tag == Tag::Fcda)
                    resolveFcda(entry, ied, devices, pending.deviceInst, *member++);
            });
        }
    }
    m_pendingSets.clear();
}

void FcdaResolver::resolveFcda(std::uint32_t element, const Ied &ied, const KnownDevices &devices,
                               std::string_view homeDevice, Fcda &member)
{
    const std::string_view written = trimmed(value(element, Attr::LdInst));
    const std::string_view deviceInst = written.empty() ? homeDevice : written;
    const auto device = devices.find(deviceInst);
    std::string nodeName(trimmed(value(element, Attr::Prefix)));
    nodeName += trimmed(value(element, Attr::LnClass));
    nodeName += trimmed(value(element, Attr::LnInst));
    member.fc = trimmed(value(element, Attr::Fc));

    std::vector<PathPart> parts;
    appendParts(trimmed(value(element, Attr::DoName)), parts);
    const std::size_t objectParts = parts.size();
    appendParts(trimmed(value(element, Attr::DaName)), parts);

    std::int32_t arrayIndex = -1;
    if (const std::string_view ix = trimmed(value(element, Attr::Ix)); !ix.empty()) {
        arrayIndex = toNumber<std::int32_t>(ix).value_or(-1);
        if (arrayIndex < 0)
            error(element, say("\"%1\" is not the number of an array element.", ix));
    }

    wording::Text problem;
    if (device == devices.end()) {
        problem = say("There is no logical device \"%1\"", deviceInst);
    } else {
        const auto node = device->second.nodes.find(nodeName);
        if (node == device->second.nodes.end()) {
            problem = say("There is no logical node \"%1\" in \"%2\"", nodeName, deviceInst);
        } else {
            problem = walk(*node->second, objectParts, parts, arrayIndex, member);
        }
    }

    std::string reference = device == devices.end()
                                ? std::string(ied.name) + std::string(deviceInst)
                                : std::string(device->second.device->name);
    reference += '/';
    reference += nodeName;
    reference += '$';
    reference += member.fc;
    for (const PathPart &part : parts) {
        reference += '$';
        reference += part.name;
        if (part.index >= 0)
            reference.append(1, '(').append(std::to_string(part.index)).append(1, ')');
    }
    member.reference = keepText(reference);
    member.resolved = problem.empty();
    if (!member.resolved)
        error(element, say("%1, so the member \"%2\" does not exist.", problem, reference));
}

wording::Text FcdaResolver::walk(const LogicalNode &node, std::size_t objectParts,
                                 std::vector<PathPart> &parts, std::int32_t arrayIndex,
                                 Fcda &member)
{
    if (member.fc.empty())
        return say("There is no functional constraint (attribute fc)");
    if (parts.empty())
        return {};
    DataNode current;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        PathPart &part = parts[i];
        if (i > 0 && current.isArray())
            return say("\"%1\" is an array, and no element is given", current.name());
        const DataNode next = i == 0 ? node.dataObject(part.name) : current.child(part.name);
        // A sub data object belongs into doName, but some tools write it in front of daName.
        if (!next.isValid() || (i < objectParts && next.node().kind == NodeKind::Attribute))
            return say("There is no \"%1\"", part.name);
        current = next;
        if (current.isArray() && part.index < 0) {
            part.index = arrayIndex;
            arrayIndex = -1;
        }
        if (part.index < 0)
            continue;
        if (!current.isArray())
            return say("\"%1\" is not an array", part.name);
        if (static_cast<std::uint32_t>(part.index) >= current.arraySize().value_or(0))
            return say("\"%1\" has no element %2", part.name, part.index);
        current = current.elementAt(static_cast<std::uint32_t>(part.index));
    }
    const bool constraintFits = current.node().kind == NodeKind::Attribute
                                    ? current.fc() == member.fc
                                    : m_types.hasConstraint(current.node().type, member.fc);
    if (!constraintFits) {
        return say("There is nothing of functional constraint \"%1\" in \"%2\"", member.fc,
                   parts.back().name);
    }
    member.node = &current.node();
    return {};
}

} // namespace scl
