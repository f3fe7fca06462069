// SPDX-License-Identifier: Apache-2.0
#include "mms/server.h"

#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>
#include <asio/dispatch.hpp>
#include <asio/experimental/as_tuple.hpp>
#include <asio/post.hpp>
#include <asio/use_awaitable.hpp>

#include <utility>

namespace mms {

namespace {

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);
constexpr std::chrono::milliseconds pauseAfterFailure{100};

} // namespace

void ServerHandler::opened(const std::shared_ptr<Association> &) {}

bool ServerHandler::cancel(const std::shared_ptr<Association> &, std::uint32_t)
{
    return false;
}

void ServerHandler::refused(const Text &) {}

void ServerHandler::closed(const std::shared_ptr<Association> &, const Text &) {}

std::shared_ptr<Server> Server::create(asio::any_io_executor executor, ServerOptions options,
                                       std::shared_ptr<ServerHandler> handler)
{
    return std::make_shared<Server>(Private(), std::move(executor), std::move(options),
                                    std::move(handler));
}

Server::Server(Private, asio::any_io_executor executor, ServerOptions options,
               std::shared_ptr<ServerHandler> handler)
    : m_executor(std::move(executor))
    , m_options(std::move(options))
    , m_handler(std::move(handler))
    , m_strand(osi::strandOn(m_executor))
    , m_acceptor(m_strand)
{
}

Result<std::uint16_t> Server::start()
{
    if (auto loaded = reloadTls(); !loaded)
        return loaded.error();
    asio::error_code error;
    const auto address = asio::ip::make_address(m_options.address, error);
    if (error)
        return Error{say("\"%1\" is not an address of a network interface.", m_options.address), 0};
    const asio::ip::tcp::endpoint endpoint(address, m_options.port);
    m_acceptor.open(endpoint.protocol(), error);
    if (!error)
        m_acceptor.set_option(asio::socket_base::reuse_address(true), error);
    if (!error)
        m_acceptor.bind(endpoint, error);
    if (!error)
        m_acceptor.listen(asio::socket_base::max_listen_connections, error);
    const auto local = error ? asio::ip::tcp::endpoint() : m_acceptor.local_endpoint(error);
    if (error) {
        asio::error_code ignored;
        m_acceptor.close(ignored);
        return Error{say("Cannot listen on %1 port %2: %3.", m_options.address, m_options.port,
                         wording::ofSystem(error)),
                     0};
    }
    asio::co_spawn(
        m_strand, [self = shared_from_this()] { return self->acceptLoop(); }, asio::detached);
    return local.port();
}

Result<void> Server::reloadTls()
{
    if (!m_options.association.link.tls)
        return {};
    auto loaded = osi::TlsContext::load(*m_options.association.link.tls);
    if (!loaded)
        return loaded.error();
    asio::dispatch(m_strand, [self = shared_from_this(), tls = *std::move(loaded)]() mutable {
        self->m_tls = std::move(tls);
    });
    return {};
}

void Server::stop(std::function<void()> released)
{
    asio::dispatch(m_strand, [self = shared_from_this(), released = std::move(released)] {
        self->m_stopped = true;
        asio::error_code ignored;
        self->m_acceptor.close(ignored);
        for (const auto &association : self->m_associations)
            association->abort(say("The server was stopped."));
        if (released)
            released();
    });
}

asio::awaitable<void> Server::acceptLoop()
{
    const auto self = shared_from_this();
    asio::steady_timer pause(m_strand);
    while (!m_stopped) {
        auto strand = osi::strandOn(m_executor);
        asio::ip::tcp::socket socket(strand);
        const auto [error] = co_await m_acceptor.async_accept(socket, asTuple);
        if (m_stopped)
            break;
        if (error) {
            // Usually too many open files, which only time can mend.
            pause.expires_after(pauseAfterFailure);
            co_await pause.async_wait(asTuple);
            continue;
        }
        asio::error_code ignored;
        const asio::ip::address peer = socket.remote_endpoint(ignored).address();
        const std::size_t mostHalfOpen = m_options.maxHalfOpenOfPeer;
        if (m_associations.size() >= m_options.maxAssociations) {
            m_handler->refused(say("There are %1 associations already, which is the limit.",
                                   m_options.maxAssociations));
        } else if (mostHalfOpen > 0 && m_halfOpen[peer] >= mostHalfOpen) {
            m_handler->refused(say(
                "The peer %1 has %2 connections that are no associations yet, which is the limit.",
                peer.to_string(), mostHalfOpen));
        } else {
            take(std::move(strand), std::move(socket), peer);
        }
    }
}

void Server::take(osi::Strand strand, asio::ip::tcp::socket socket, const asio::ip::address &peer)
{
    ++m_halfOpen[peer];
    const auto complete = [self = shared_from_this(), peer] {
        asio::post(self->m_strand, [self, peer] {
            const auto found = self->m_halfOpen.find(peer);
            if (found != self->m_halfOpen.end() && --found->second == 0)
                self->m_halfOpen.erase(found);
        });
    };
    // The association that the handlers mean is known only after they were made.
    const auto place = std::make_shared<std::weak_ptr<Association>>();
    const auto forget = [self = shared_from_this(), place] {
        asio::post(self->m_strand, [self, association = place->lock()] {
            self->m_associations.erase(association);
            self->m_count = self->m_associations.size();
        });
    };
    Association::Handlers handlers;
    handlers.request = [handler = m_handler](const std::shared_ptr<Association> &association,
                                             std::uint32_t invokeId, RequestService request) {
        handler->request(association, invokeId, std::move(request));
    };
    handlers.cancel = [handler = m_handler](const std::shared_ptr<Association> &association,
                                            std::uint32_t invokeId) {
        return handler->cancel(association, invokeId);
    };
    handlers.closed = [handler = m_handler, place, forget](const Text &reason) {
        handler->closed(place->lock(), reason);
        forget();
    };
    auto opened = [handler = m_handler, place, forget,
                   complete](const Result<InitiateParameters> &result) {
        complete();
        if (result) {
            handler->opened(place->lock());
        } else {
            handler->refused(result.error().message);
            forget();
        }
    };
    const auto association =
        Association::serve(std::move(strand), std::move(socket), m_options.association,
                           std::move(handlers), std::move(opened), *place, m_tls);
    m_associations.insert(association);
    m_count = m_associations.size();
}

} // namespace mms
