// SPDX-License-Identifier: Apache-2.0
#include "communicationreader.h"

namespace scl {

using wording::say;

void CommunicationReader::readCommunication()
{
    std::vector<ConnectedAccessPoint> connections;
    std::unordered_map<std::string_view, const Ied *> ieds;
    for (const Ied &ied : m_document.ieds)
        ieds.try_emplace(ied.name, &ied);
    m_tree.forEachChild(0, [&](std::uint32_t section, Tag sectionTag) {
        if (sectionTag != Tag::Communication)
            return;
        m_tree.forEachChild(section, [&](std::uint32_t network, Tag networkTag) {
            if (networkTag != Tag::SubNetwork)
                return;
            m_tree.forEachChild(network, [&](std::uint32_t element, Tag tag) {
                if (tag != Tag::ConnectedAp)
                    return;
                ConnectedAccessPoint connection = readConnection(element);
                connection.subNetwork = trimmed(value(network, Attr::Name));
                connection.subNetworkType = trimmed(value(network, Attr::Type));
                checkConnection(element, connection, ieds);
                connections.push_back(connection);
            });
        });
    });
    m_document.connections = keep(connections);
}

void CommunicationReader::checkConnection(
    std::uint32_t element, const ConnectedAccessPoint &connection,
    const std::unordered_map<std::string_view, const Ied *> &ieds)
{
    const auto ied = ieds.find(connection.iedName);
    if (ied == ieds.end()) {
        info(element, say("The IED \"%1\" is not in this file.", connection.iedName));
        return;
    }
    for (const AccessPoint &point : ied->second->accessPoints) {
        if (point.name == connection.apName)
            return;
    }
    warn(element,
         say("The IED \"%1\" has no access point \"%2\".", connection.iedName, connection.apName));
}

std::span<const AddressPart> CommunicationReader::readAddress(std::uint32_t element)
{
    std::vector<AddressPart> parts;
    const std::uint32_t address = m_tree.firstChild(element, Tag::Address);
    if (address == noElement)
        return {};
    m_tree.forEachChild(address, [&](std::uint32_t child, Tag tag) {
        if (tag == Tag::P)
            parts.push_back({trimmed(value(child, Attr::Type)), trimmed(m_tree.at(child).text)});
    });
    return keep(parts);
}

ConnectedAccessPoint CommunicationReader::readConnection(std::uint32_t element)
{
    ConnectedAccessPoint connection;
    connection.line = m_tree.at(element).line;
    connection.iedName = trimmed(value(element, Attr::IedName));
    connection.apName = trimmed(value(element, Attr::ApName));
    connection.address = readAddress(element);
    std::vector<ControlBlockAddress> goose;
    std::vector<ControlBlockAddress> sampledValues;
    m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
        if (tag != Tag::Gse && tag != Tag::Smv)
            return;
        ControlBlockAddress address;
        address.ldInst = trimmed(value(child, Attr::LdInst));
        address.controlBlock = trimmed(value(child, Attr::CbName));
        address.address = readAddress(child);
        address.minTime = readTime(child, Tag::MinTime);
        address.maxTime = readTime(child, Tag::MaxTime);
        (tag == Tag::Gse ? goose : sampledValues).push_back(address);
    });
    connection.goose = keep(goose);
    connection.sampledValues = keep(sampledValues);
    return connection;
}

std::optional<std::uint32_t> CommunicationReader::readTime(std::uint32_t element, Tag tag)
{
    const std::uint32_t child = m_tree.firstChild(element, tag);
    if (child == noElement || trimmed(m_tree.at(child).text).empty())
        return std::nullopt;
    const auto time = toNumber<std::uint32_t>(m_tree.at(child).text);
    if (!time)
        warn(child, say("\"%1\" is not a number of milliseconds.", m_tree.at(child).text));
    return time;
}

} // namespace scl
