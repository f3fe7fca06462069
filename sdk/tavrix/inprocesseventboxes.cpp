// SPDX-License-Identifier: Apache-2.0
#include "inprocesseventboxes.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <utility>

namespace Tavrix {

struct InProcessEventBoxes::Box
{
    struct Entry
    {
        std::shared_ptr<const Event> event;
        TimePoint posted;
    };

    std::string name;
    std::size_t capacity = 0;
    std::chrono::milliseconds timeToLive{0};
    bool persistent = true;
    bool hadPort = false;
    Owner creator = 0;
    std::size_t ports = 0;
    std::deque<Entry> entries;
    std::size_t cost = 0;
    std::condition_variable changed;

    bool isKept() const { return persistent || ports > 0 || (!hadPort && creator != 0); }

    void dropOldest(Removed &removed)
    {
        cost -= entries.front().event->cost();
        removed.push_back(std::move(entries.front().event));
        entries.pop_front();
    }

    void dropExpired(TimePoint now, Removed &removed)
    {
        while (!entries.empty() && now - entries.front().posted >= timeToLive) {
            dropOldest(removed);
        }
    }

    void add(const std::shared_ptr<const Event> &event, TimePoint now, Removed &removed)
    {
        while (!entries.empty() && (entries.size() >= capacity ||
                                    cost + event->cost() > static_cast<std::size_t>(maxBoxBytes))) {
            dropOldest(removed);
        }
        entries.push_back({event, now});
        cost += event->cost();
    }

    void take(std::string_view key, std::size_t count,
              std::vector<std::shared_ptr<const Event>> &events)
    {
        std::size_t records = 0;
        const auto takes = [&](const Entry &entry) {
            if (count == 0 || (!key.empty() && entry.event->key() != key)) {
                return false;
            }
            records += entry.event->recordCount();
            if (records > maxRecordsPerEvent) {
                count = 0;
                return false;
            }
            --count;
            cost -= entry.event->cost();
            events.push_back(entry.event);
            return true;
        };
        // Taking from the front moves no other entry, and is the rule when a box has one key.
        while (!entries.empty() && takes(entries.front())) {
            entries.pop_front();
        }
        if (count > 0) {
            entries.erase(std::remove_if(entries.begin(), entries.end(), takes), entries.end());
        }
    }
};

InProcessEventBoxes::InProcessEventBoxes(Clock clock)
    : m_clock(std::move(clock))
{
}

InProcessEventBoxes::~InProcessEventBoxes() = default;

Result InProcessEventBoxes::createBox(Owner creator, std::string_view name, std::size_t capacity,
                                      std::chrono::milliseconds timeToLive)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto [place, isNew] = m_boxes.try_emplace(std::string(name));
    if (!isNew) {
        return EventBoxExists;
    }
    place->second = std::make_shared<Box>();
    place->second->name = name;
    place->second->capacity = capacity;
    place->second->timeToLive = timeToLive;
    place->second->creator = creator;
    return Success;
}

Result InProcessEventBoxes::setPersistent(std::string_view name, bool persistent)
{
    Removed removed;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto place = m_boxes.find(name);
    if (place == m_boxes.end()) {
        return NoSuchEventBox;
    }
    const std::shared_ptr<Box> box = place->second;
    box->persistent = persistent;
    dropUnlessKept(box, removed);
    return Success;
}

Result InProcessEventBoxes::connectPort(Owner owner, std::string_view name, unsigned int &port)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto place = m_boxes.find(name);
    if (place == m_boxes.end()) {
        return NoSuchEventBox;
    }
    do {
        ++m_lastPort;
    } while (m_lastPort == 0 || m_ports.count(m_lastPort) != 0);
    m_ports.emplace(m_lastPort, Port{place->second, owner});
    ++place->second->ports;
    place->second->hadPort = true;
    port = m_lastPort;
    return Success;
}

Result InProcessEventBoxes::disconnectPort(unsigned int port)
{
    Removed removed;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto place = m_ports.find(port);
    if (place == m_ports.end()) {
        return NoSuchEventBox;
    }
    closePort(place, removed);
    return Success;
}

Result InProcessEventBoxes::receive(unsigned int port, std::string_view key,
                                    std::chrono::milliseconds wait, std::size_t count,
                                    std::vector<std::shared_ptr<const Event>> &events)
{
    const auto deadline = std::chrono::steady_clock::now() + wait;
    Removed removed;
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        const auto place = m_ports.find(port);
        if (place == m_ports.end()) {
            return NoSuchEventBox;
        }
        const std::shared_ptr<Box> box = place->second.box;
        box->dropExpired(m_clock(), removed);
        box->take(key, count, events);
        if (!events.empty()) {
            return Success;
        }
        if (std::chrono::steady_clock::now() >= deadline) {
            return NothingReceived;
        }
        removed.clear();
        box->changed.wait_until(lock, deadline);
    }
}

Result InProcessEventBoxes::post(std::string_view prefix, const std::shared_ptr<const Event> &event)
{
    Removed removed;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const TimePoint now = m_clock();
    for (auto place = m_boxes.lower_bound(prefix);
         place != m_boxes.end() && place->first.compare(0, prefix.size(), prefix) == 0; ++place) {
        Box &box = *place->second;
        box.dropExpired(now, removed);
        box.add(event, now, removed);
        // All, because the one that would be woken may be waiting for another key.
        box.changed.notify_all();
    }
    return Success;
}

void InProcessEventBoxes::ownerGone(Owner owner)
{
    Removed removed;
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto port = m_ports.begin(); port != m_ports.end();) {
        port = port->second.owner == owner ? closePort(port, removed) : std::next(port);
    }
    for (auto place = m_boxes.begin(); place != m_boxes.end();) {
        const std::shared_ptr<Box> box = (place++)->second;
        if (box->creator == owner) {
            box->creator = 0;
            dropUnlessKept(box, removed);
        }
    }
}

InProcessEventBoxes::Ports::iterator InProcessEventBoxes::closePort(Ports::iterator port,
                                                                    Removed &removed)
{
    const std::shared_ptr<Box> box = std::move(port->second.box);
    const auto next = m_ports.erase(port);
    --box->ports;
    box->changed.notify_all();
    dropUnlessKept(box, removed);
    return next;
}

void InProcessEventBoxes::dropUnlessKept(const std::shared_ptr<Box> &box, Removed &removed)
{
    if (!box->isKept()) {
        removed.push_back(box);
        m_boxes.erase(box->name);
    }
}

} // namespace Tavrix
