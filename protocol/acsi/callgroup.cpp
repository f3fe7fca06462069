// SPDX-License-Identifier: Apache-2.0
#include "acsi/callgroup.h"

#include <asio/experimental/as_tuple.hpp>
#include <asio/this_coro.hpp>
#include <asio/use_awaitable.hpp>

#include <utility>

namespace acsi {

CallGroup::CallGroup(std::shared_ptr<Client> client)
    : m_client(std::move(client))
    , m_state(std::make_shared<State>(State{asio::steady_timer(m_client->strand()), {}}))
{
}

CallGroup::~CallGroup()
{
    for (const auto &[id, call] : m_calls)
        m_client->cancel(call);
}

mms::Association::CallHandler CallGroup::handlerOf(std::size_t id) const
{
    // It may run before call() returns.
    return [state = m_state, id](mms::CallOutcome outcome) {
        state->arrived.push_back({id, std::move(outcome)});
        state->wake.cancel();
    };
}

void CallGroup::start(std::size_t id, ReadingRequest request, std::chrono::milliseconds timeout)
{
    m_calls[id] = m_client->call(std::move(request), timeout, handlerOf(id));
}

void CallGroup::start(ChangingClient &client, std::size_t id, mms::RequestService request,
                      std::chrono::milliseconds timeout)
{
    m_calls[id] = client.association().call(std::move(request), timeout, handlerOf(id));
}

asio::awaitable<std::optional<CallGroup::Arrival>>
CallGroup::next(std::optional<std::chrono::milliseconds> patience)
{
    const auto state = m_state;
    const auto deadline = patience ? asio::steady_timer::clock_type::now() + *patience
                                   : asio::steady_timer::time_point::max();
    while (state->arrived.empty()) {
        const auto cancellation = co_await asio::this_coro::cancellation_state;
        if (m_calls.empty() || cancellation.cancelled() != asio::cancellation_type::none ||
            asio::steady_timer::clock_type::now() >= deadline)
            co_return std::nullopt;
        state->wake.expires_at(deadline);
        co_await state->wake.async_wait(asio::experimental::as_tuple(asio::use_awaitable));
    }
    std::optional<Arrival> arrival = std::move(state->arrived.front());
    state->arrived.pop_front();
    m_calls.erase(arrival->id);
    co_return arrival;
}

} // namespace acsi
