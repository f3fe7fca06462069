// SPDX-License-Identifier: Apache-2.0
#include "openports.h"

#include <utility>

namespace Tavrix {

unsigned int OpenPorts::add(Owner owner, Place place)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    do {
        ++m_last;
    } while (m_last == 0 || m_ports.count(m_last) != 0);
    m_ports.emplace(m_last, Port{owner, std::move(place)});
    return m_last;
}

std::optional<OpenPorts::Place> OpenPorts::find(unsigned int number)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto port = m_ports.find(number);
    return port == m_ports.end() ? std::nullopt : std::optional<Place>(port->second.place);
}

std::optional<OpenPorts::Place> OpenPorts::take(unsigned int number)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto port = m_ports.find(number);
    if (port == m_ports.end()) {
        return std::nullopt;
    }
    Place place = std::move(port->second.place);
    m_ports.erase(port);
    return place;
}

void OpenPorts::closed(unsigned int number, const Place &place)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto port = m_ports.find(number);
    // Not one that got the number since.
    if (port != m_ports.end() && port->second.place.backend == place.backend &&
        port->second.place.port == place.port) {
        m_ports.erase(port);
    }
}

void OpenPorts::ownerGone(Owner owner)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto port = m_ports.begin(); port != m_ports.end();) {
        port = port->second.owner == owner ? m_ports.erase(port) : std::next(port);
    }
}

} // namespace Tavrix
