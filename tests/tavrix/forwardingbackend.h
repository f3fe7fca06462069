// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tavrix/inprocesseventboxes.h>

#include <memory>
#include <utility>

/// A middleware of its own behind a seam, as one in another process would be: nothing that crosses
/// is shared, events are taken apart and put together again. It counts what it is told of owners.
class ForwardingBackend : public Tavrix::EventBackend
{
public:
    explicit ForwardingBackend(Tavrix::InProcessEventBoxes::Clock clock)
        : m_boxes(std::move(clock))
    {
    }

    Tavrix::Result connect() override { return m_boxes.connect(); }
    Tavrix::Result createBox(Tavrix::Owner creator, std::string_view name, std::size_t capacity,
                             std::chrono::milliseconds timeToLive) override
    {
        return m_boxes.createBox(creator, std::string(name), capacity, timeToLive);
    }
    Tavrix::Result setPersistent(std::string_view name, bool persistent) override
    {
        return m_boxes.setPersistent(std::string(name), persistent);
    }
    Tavrix::Result connectPort(Tavrix::Owner owner, std::string_view name,
                               unsigned int &port) override
    {
        unsigned int number = 0;
        const Tavrix::Result result = m_boxes.connectPort(owner, std::string(name), number);
        if (result == Tavrix::Success)
            port = number + firstPort;
        return result;
    }
    Tavrix::Result disconnectPort(unsigned int port) override
    {
        return m_boxes.disconnectPort(port - firstPort);
    }
    Tavrix::Result receive(unsigned int port, std::string_view key, std::chrono::milliseconds wait,
                           std::size_t count,
                           std::vector<std::shared_ptr<const Tavrix::Event>> &events) override
    {
        std::vector<std::shared_ptr<const Tavrix::Event>> received;
        const Tavrix::Result result =
            m_boxes.receive(port - firstPort, std::string(key), wait, count, received);
        for (const auto &event : received)
            events.push_back(copyOf(*event));
        return result;
    }
    Tavrix::Result post(std::string_view prefix,
                        const std::shared_ptr<const Tavrix::Event> &event) override
    {
        return m_boxes.post(std::string(prefix), copyOf(*event));
    }
    void ownerGone(Tavrix::Owner owner) override { m_boxes.ownerGone(owner); }

private:
    /// Far from the numbers of the boxes that it forwards to.
    static constexpr unsigned int firstPort = 0x80000000U;

    static std::shared_ptr<const Tavrix::Event> copyOf(const Tavrix::Event &event)
    {
        auto copy =
            std::make_shared<Tavrix::Event>(std::string(event.key()), event.recordCount(), 0);
        for (std::size_t i = 0; i < event.recordCount(); ++i)
            copy->append(std::string(event.record(i)));
        return copy;
    }

    Tavrix::InProcessEventBoxes m_boxes;
};
