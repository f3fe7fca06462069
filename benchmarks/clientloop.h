// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"
#include "mms/loopback.h"

#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>

#include <chrono>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

/// Clients in a thread of their own, for benchmarks that wait.
class ClientLoop
{
public:
    ~ClientLoop()
    {
        for (const auto &client : m_clients)
            disconnect(client);
    }

    asio::any_io_executor executor() { return m_loop.executor(); }

    /// Throws when there is no association.
    std::shared_ptr<acsi::ChangingClient> connect(std::uint16_t port,
                                                  acsi::ClientOptions options = {})
    {
        auto connecting =
            acsi::Client::connect(m_loop.executor(), "127.0.0.1", port, std::move(options));
        auto client = value(run(m_loop.executor(), std::move(connecting)));
        m_clients.push_back(client);
        return client;
    }

    void disconnect(const std::shared_ptr<acsi::Client> &client)
    {
        wiretest::Awaited<bool> done;
        asio::post(client->strand(), [client, set = done.setter()] {
            client->abort(mms::verbatim("The end."));
            set(true);
        });
        done.get();
    }

    /// What a coroutine comes to. A result without a value throws.
    template <typename Client, typename T>
    auto run(const std::shared_ptr<Client> &client, asio::awaitable<mms::Result<T>> work)
    {
        return value(run(client->strand(), std::move(work)));
    }

    template <typename Executor, typename T>
    T run(const Executor &executor, asio::awaitable<T> work)
    {
        return start(executor, std::move(work)).get();
    }

    template <typename Executor, typename T>
    wiretest::Awaited<T> start(const Executor &executor, asio::awaitable<T> work)
    {
        wiretest::Awaited<T> outcome;
        asio::co_spawn(executor, forward<T>(std::move(work), outcome.setter()), asio::detached);
        return outcome;
    }

private:
    template <typename T>
    static asio::awaitable<void> forward(asio::awaitable<T> work, std::function<void(T)> handler)
    {
        handler(co_await std::move(work));
    }

    template <typename T>
    static T value(mms::Result<T> result)
    {
        if (!result)
            throw std::runtime_error(result.error().message.english());
        return *std::move(result);
    }

    static void value(const mms::Result<void> &result)
    {
        if (!result)
            throw std::runtime_error(result.error().message.english());
    }

    wiretest::Loop m_loop;
    std::vector<std::shared_ptr<acsi::Client>> m_clients;
};

inline double secondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
