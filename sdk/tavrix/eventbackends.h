// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "middleware.h"

#include <map>
#include <mutex>
#include <string_view>
#include <utility>

namespace Tavrix {

/// The middlewares of this process by address, and the one that the host chose.
class EventBackends
{
public:
    EventBackends();

    Result add(const char *scheme, BackendFactory factory);
    Result choose(const char *address, const char *domain);
    /// Null for an address that nobody knows. No address means the chosen one.
    std::shared_ptr<EventBackend> find(const char *address, const char *domain);

private:
    /// Address and domain; the boxes inside the process have neither.
    using Place = std::pair<std::string, std::string>;

    std::shared_ptr<EventBackend> at(std::string_view address, std::string_view domain);

    std::mutex m_mutex;
    std::map<std::string, BackendFactory, std::less<>> m_factories;
    std::map<Place, std::shared_ptr<EventBackend>> m_backends;
    std::string m_chosenAddress;
    std::shared_ptr<EventBackend> m_chosen;
};

} // namespace Tavrix
