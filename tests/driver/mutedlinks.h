// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/interference.h"

#include <atomic>
#include <functional>
#include <limits>
#include <memory>

namespace drivertest {

/// All links of a device: how many there are, what came by them, and how much it says yet before
/// it falls silent. Any thread.
class MutedLinks
{
public:
    MutedLinks()
        : m_state(std::make_shared<State>())
    {
    }

    /// It sends so many PDUs yet, the answer to the initiate request of an association included.
    void silenceAfter(int pdus) { m_state->left = pdus; }
    void speak() { silenceAfter(std::numeric_limits<int>::max()); }
    /// That stand.
    int count() const { return m_state->links; }
    /// PDUs that came.
    int received() const { return m_state->received; }
    /// PDUs that were not sent.
    int swallowed() const { return m_state->swallowed; }

    /// For LinkOptions::interference.
    std::function<std::unique_ptr<osi::Interference>()> interference() const
    {
        return [state = m_state]() -> std::unique_ptr<osi::Interference> {
            return std::make_unique<Link>(state);
        };
    }

private:
    struct State
    {
        std::atomic<int> left{std::numeric_limits<int>::max()};
        std::atomic<int> links{0};
        std::atomic<int> received{0};
        std::atomic<int> swallowed{0};
    };

    class Link : public osi::Interference
    {
    public:
        explicit Link(std::shared_ptr<State> state)
            : m_state(std::move(state))
        {
            ++m_state->links;
        }
        ~Link() override { --m_state->links; }

        Outgoing outgoing(osi::Bytes pdu) override
        {
            Outgoing result;
            if (m_state->left <= 0) {
                ++m_state->swallowed;
                return result;
            }
            --m_state->left;
            result.pdus.emplace_back(pdu.begin(), pdu.end());
            return result;
        }
        Incoming incoming(osi::Bytes) override
        {
            ++m_state->received;
            return {};
        }

    private:
        std::shared_ptr<State> m_state;
    };

    std::shared_ptr<State> m_state;
};

} // namespace drivertest
