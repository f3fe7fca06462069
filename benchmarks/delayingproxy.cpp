// SPDX-License-Identifier: Apache-2.0
#include "delayingproxy.h"

#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>
#include <asio/experimental/as_tuple.hpp>
#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>
#include <asio/write.hpp>

#include <deque>
#include <memory>
#include <vector>

namespace {

using asio::ip::tcp;
using Clock = std::chrono::steady_clock;

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);
constexpr std::size_t readPortion = 256 * 1024;

/// What travels from one socket to the other.
struct Direction
{
    struct Portion
    {
        Clock::time_point due;
        std::vector<std::uint8_t> octets; ///< none at the end of the connection
    };

    Direction(std::shared_ptr<tcp::socket> source, std::shared_ptr<tcp::socket> sink,
              Clock::duration time)
        : from(std::move(source))
        , to(std::move(sink))
        , delay(time)
        , wake(from->get_executor())
    {
    }

    std::shared_ptr<tcp::socket> from;
    std::shared_ptr<tcp::socket> to;
    Clock::duration delay;
    asio::steady_timer wake;
    std::deque<Portion> travelling;
};

asio::awaitable<void> collect(std::shared_ptr<Direction> way)
{
    std::vector<std::uint8_t> buffer(readPortion);
    for (bool open = true; open;) {
        const auto [error, count] =
            co_await way->from->async_read_some(asio::buffer(buffer), asTuple);
        open = !error;
        const auto end = buffer.begin() + static_cast<std::ptrdiff_t>(count);
        way->travelling.push_back({Clock::now() + way->delay, {buffer.begin(), end}});
        way->wake.cancel();
    }
}

asio::awaitable<void> deliver(std::shared_ptr<Direction> way)
{
    for (;;) {
        while (way->travelling.empty()) {
            way->wake.expires_at(asio::steady_timer::time_point::max());
            co_await way->wake.async_wait(asTuple);
        }
        const Direction::Portion portion = std::move(way->travelling.front());
        way->travelling.pop_front();
        asio::steady_timer arrival(way->to->get_executor(), portion.due);
        co_await arrival.async_wait(asTuple);
        const auto [error, count] =
            co_await asio::async_write(*way->to, asio::buffer(portion.octets), asTuple);
        if (error || portion.octets.empty()) {
            asio::error_code ignored;
            way->to->shutdown(tcp::socket::shutdown_both, ignored);
            co_return;
        }
    }
}

asio::awaitable<void> accept(tcp::acceptor &acceptor, std::uint16_t target, Clock::duration delay)
{
    const auto executor = acceptor.get_executor();
    for (;;) {
        auto near = std::make_shared<tcp::socket>(executor);
        auto far = std::make_shared<tcp::socket>(executor);
        const auto [acceptError] = co_await acceptor.async_accept(*near, asTuple);
        if (acceptError)
            co_return;
        const tcp::endpoint endpoint(asio::ip::address_v4::loopback(), target);
        const auto [connectError] = co_await far->async_connect(endpoint, asTuple);
        if (connectError)
            continue;
        near->set_option(tcp::no_delay(true));
        far->set_option(tcp::no_delay(true));
        for (const auto &way : {std::make_shared<Direction>(near, far, delay),
                                std::make_shared<Direction>(far, near, delay)}) {
            asio::co_spawn(executor, collect(way), asio::detached);
            asio::co_spawn(executor, deliver(way), asio::detached);
        }
    }
}

} // namespace

DelayingProxy::DelayingProxy(std::uint16_t target, std::chrono::microseconds roundTrip)
    : m_acceptor(m_context, {asio::ip::address_v4::loopback(), 0})
    , m_port(m_acceptor.local_endpoint().port())
{
    asio::co_spawn(m_context, accept(m_acceptor, target, roundTrip / 2), asio::detached);
    m_thread = std::thread([this] { m_context.run(); });
}

DelayingProxy::~DelayingProxy()
{
    m_context.stop();
    m_thread.join();
}
