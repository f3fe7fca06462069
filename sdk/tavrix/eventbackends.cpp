// SPDX-License-Identifier: Apache-2.0
#include "eventbackends.h"

#include "inprocesseventboxes.h"

namespace Tavrix {

namespace {

bool isShort(std::string_view text)
{
    return text.size() <= static_cast<std::size_t>(maxNameLength);
}

std::string_view orEmpty(const char *text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

} // namespace

EventBackends::EventBackends()
    : m_chosen(std::make_shared<InProcessEventBoxes>())
{
    m_backends.emplace(Place(), m_chosen);
}

Result EventBackends::add(const char *scheme, BackendFactory factory)
{
    const std::string_view name = orEmpty(scheme);
    if (name.empty() || !isShort(name) || name.find(':') != name.npos || !factory) {
        return InvalidArgument;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool isNew = m_factories.try_emplace(std::string(name), std::move(factory)).second;
    return isNew ? Success : InvalidArgument;
}

Result EventBackends::choose(const char *address, const char *domain)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::shared_ptr<EventBackend> backend = at(orEmpty(address), orEmpty(domain));
    if (!backend) {
        return MiddlewareUnavailable;
    }
    m_chosenAddress = orEmpty(address);
    m_chosen = std::move(backend);
    return Success;
}

std::shared_ptr<EventBackend> EventBackends::find(const char *address, const char *domain)
{
    const std::string_view wanted = orEmpty(address);
    const std::string_view part = orEmpty(domain);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (wanted.empty() && part.empty()) {
        return m_chosen;
    }
    return at(wanted.empty() ? m_chosenAddress : wanted, part);
}

std::shared_ptr<EventBackend> EventBackends::at(std::string_view address, std::string_view domain)
{
    if (!isShort(address) || !isShort(domain)) {
        return nullptr;
    }
    Place place(address, domain);
    const auto known = m_backends.find(place);
    if (known != m_backends.end()) {
        return known->second;
    }
    const auto factory = m_factories.find(address.substr(0, address.find(':')));
    if (factory == m_factories.end()) {
        return nullptr;
    }
    std::shared_ptr<EventBackend> made = factory->second(place.first, place.second);
    if (made) {
        m_backends.emplace(std::move(place), made);
    }
    return made;
}

} // namespace Tavrix
