// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "eventbackend.h"

#include <memory>
#include <mutex>
#include <optional>
#include <unordered_map>

namespace Tavrix {

/// Which middleware a port belongs to. Ports have numbers of this process, since those of two
/// middlewares may be equal. Any thread.
class OpenPorts
{
public:
    struct Place
    {
        std::shared_ptr<EventBackend> backend;
        unsigned int port = 0; ///< the middleware's own number
    };

    /// @return the port's number, never 0
    unsigned int add(Owner owner, Place place);
    std::optional<Place> find(unsigned int number);
    std::optional<Place> take(unsigned int number);
    /// The middleware has closed the port.
    void closed(unsigned int number, const Place &place);
    void ownerGone(Owner owner);

private:
    struct Port
    {
        Owner owner;
        Place place;
    };

    std::mutex m_mutex;
    std::unordered_map<unsigned int, Port> m_ports;
    unsigned int m_last = 0;
};

} // namespace Tavrix
