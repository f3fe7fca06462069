// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"

#include <asio/steady_timer.hpp>

#include <chrono>
#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <optional>

namespace acsi {

/// Calls of one client that are on the way together, for the coroutine that awaits them. Belongs to
/// the client's strand. Calls that are still on the way when the group goes are cancelled.
class CallGroup
{
public:
    struct Arrival
    {
        std::size_t id = 0;
        mms::CallOutcome outcome;
    };

    explicit CallGroup(std::shared_ptr<Client> client);
    ~CallGroup();
    CallGroup(const CallGroup &) = delete;
    CallGroup &operator=(const CallGroup &) = delete;

    /// @p id comes back with the outcome; each may be on the way once at a time.
    void start(std::size_t id, ReadingRequest request, std::chrono::milliseconds timeout);
    /// The same with a request that changes something; @p client is the one of the group.
    void start(ChangingClient &client, std::size_t id, mms::RequestService request,
               std::chrono::milliseconds timeout);
    std::size_t onTheWay() const { return m_calls.size(); }

    /// The next call that ends. None when nothing is on the way, when @p patience has passed, and
    /// when the awaiting coroutine was cancelled.
    asio::awaitable<std::optional<Arrival>>
    next(std::optional<std::chrono::milliseconds> patience = {});

private:
    mms::Association::CallHandler handlerOf(std::size_t id) const;

    struct State
    {
        asio::steady_timer wake;
        std::deque<Arrival> arrived;
    };

    std::shared_ptr<Client> m_client;
    std::shared_ptr<State> m_state;
    std::map<std::size_t, mms::Association::CallId> m_calls;
};

} // namespace acsi
