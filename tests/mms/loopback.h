// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/server.h"

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/read.hpp>
#include <asio/write.hpp>

#include <future>
#include <thread>

namespace wiretest {

/// An io_context that a thread runs until everything in it has ended.
class Loop
{
public:
    Loop()
        : m_work(asio::make_work_guard(m_context))
        , m_thread([this] { m_context.run(); })
    {
    }

    ~Loop()
    {
        m_work.reset();
        m_thread.join();
    }

    asio::any_io_executor executor() { return m_context.get_executor(); }

private:
    asio::io_context m_context;
    asio::executor_work_guard<asio::io_context::executor_type> m_work;
    std::thread m_thread;
};

/// A value that a handler in another thread sets once.
template <typename T>
class Awaited
{
public:
    std::function<void(T)> setter()
    {
        return [promise = m_promise](T value) { promise->set_value(std::move(value)); };
    }

    /// Waits; a test that waits for ever fails by its time limit.
    T get() { return m_future.get(); }

private:
    std::shared_ptr<std::promise<T>> m_promise = std::make_shared<std::promise<T>>();
    std::future<T> m_future = m_promise->get_future();
};

/// A peer that speaks nothing by itself: one accepted connection, read and written by hand.
class RawPeer
{
public:
    RawPeer()
        : m_acceptor(m_context, {asio::ip::address_v4::loopback(), 0})
        , m_socket(m_context)
    {
    }

    std::uint16_t port() const { return m_acceptor.local_endpoint().port(); }
    void accept() { m_acceptor.accept(m_socket); }
    void connect(std::uint16_t port) { m_socket.connect({asio::ip::address_v4::loopback(), port}); }
    void send(mms::Bytes octets)
    {
        asio::write(m_socket, asio::buffer(octets.data(), octets.size()));
    }
    void close() { m_socket.close(); }

    /// Sends unless the other end has closed the connection.
    void trySend(mms::Bytes octets)
    {
        asio::error_code ignored;
        asio::write(m_socket, asio::buffer(octets.data(), octets.size()), ignored);
    }

    /// Sends no more, reads to the end of the connection and closes.
    void finish()
    {
        asio::error_code ignored;
        m_socket.shutdown(asio::ip::tcp::socket::shutdown_send, ignored);
        while (!receive().empty()) {
        }
        m_socket.close(ignored);
    }

    /// What comes next; empty at the end of the connection.
    mms::Octets receive()
    {
        mms::Octets octets(64 * 1024);
        asio::error_code error;
        octets.resize(m_socket.read_some(asio::buffer(octets), error));
        return octets;
    }

    /// Reads on until @p stack, which is fed, says something; false at the end of the connection.
    bool feed(osi::Stack &stack, std::vector<osi::StackEvent> &events)
    {
        while (events.empty()) {
            const mms::Octets octets = receive();
            if (octets.empty())
                return false;
            osi::StackOutput output = stack.receive(octets);
            trySend(output.octets);
            events = std::move(output.events);
        }
        return true;
    }

private:
    asio::io_context m_context;
    asio::ip::tcp::acceptor m_acceptor;
    asio::ip::tcp::socket m_socket;
};

} // namespace wiretest
