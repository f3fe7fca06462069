// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>

#include <chrono>
#include <cstdint>
#include <thread>

/// A network of a given length on loopback: passes connections on to another port and holds back
/// everything for half a round trip in each direction. Order is kept and any amount may be on the
/// way, so that a sender with several requests fills it. Owns a thread; connections end with it.
class DelayingProxy
{
public:
    DelayingProxy(std::uint16_t target, std::chrono::microseconds roundTrip);
    ~DelayingProxy();
    DelayingProxy(const DelayingProxy &) = delete;
    DelayingProxy &operator=(const DelayingProxy &) = delete;

    std::uint16_t port() const { return m_port; }

private:
    asio::io_context m_context;
    asio::ip::tcp::acceptor m_acceptor;
    std::uint16_t m_port;
    std::thread m_thread;
};
