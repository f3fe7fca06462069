// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "eventbackend.h"

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <unordered_map>

namespace Tavrix {

/// Event boxes in this process. One mutex guards them all; each box has a condition variable of its
/// own. Must outlive every call.
class InProcessEventBoxes : public EventBackend
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    /// The clock that times to live are measured with; waits are in real time.
    using Clock = std::function<TimePoint()>;

    explicit InProcessEventBoxes(Clock clock = &std::chrono::steady_clock::now);
    ~InProcessEventBoxes() override;

    Result connect() override { return Success; }
    Result createBox(Owner creator, std::string_view name, std::size_t capacity,
                     std::chrono::milliseconds timeToLive) override;
    Result setPersistent(std::string_view name, bool persistent) override;
    Result connectPort(Owner owner, std::string_view name, unsigned int &port) override;
    Result disconnectPort(unsigned int port) override;
    Result receive(unsigned int port, std::string_view key, std::chrono::milliseconds wait,
                   std::size_t count, std::vector<std::shared_ptr<const Event>> &events) override;
    Result post(std::string_view prefix, const std::shared_ptr<const Event> &event) override;
    void ownerGone(Owner owner) override;

private:
    struct Box;
    struct Port
    {
        std::shared_ptr<Box> box;
        Owner owner;
    };
    using Ports = std::unordered_map<unsigned int, Port>;
    /// What an operation removed, freed after the mutex is released.
    using Removed = std::vector<std::shared_ptr<const void>>;

    Ports::iterator closePort(Ports::iterator port, Removed &removed);
    void dropUnlessKept(const std::shared_ptr<Box> &box, Removed &removed);

    const Clock m_clock;
    std::mutex m_mutex;
    std::map<std::string, std::shared_ptr<Box>, std::less<>> m_boxes;
    Ports m_ports;
    unsigned int m_lastPort = 0;
};

} // namespace Tavrix
