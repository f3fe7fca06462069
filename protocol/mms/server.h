// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/association.h"

#include <asio/any_io_executor.hpp>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace mms {

struct ServerOptions
{
    /// Address of this machine; all interfaces by default.
    std::string address = "0.0.0.0";
    /// 0 takes a free port.
    std::uint16_t port = 102;
    /// A connection beyond this is closed at once.
    std::size_t maxAssociations = 16;
    /// A connection beyond this of one peer that is no association yet is closed at once, so that
    /// nobody can take all places with connections that never become one; 0 for no such limit.
    std::size_t maxHalfOpenOfPeer = 0;
    AssociationOptions association;
};

/// What a server does with its associations. Called in the strand of the association concerned, and
/// so for different associations at the same time when several threads run the executor.
class ServerHandler
{
public:
    virtual ~ServerHandler() = default;

    /// An association stands.
    virtual void opened(const std::shared_ptr<Association> &association);
    /// Answer once with respond(), fail() or reject(), now or later, from any thread.
    virtual void request(const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                         RequestService request) = 0;
    /// The peer does not want the answer to a request any more. True when the request was given up
    /// and will not be answered; false, as by default, when it goes on.
    virtual bool cancel(const std::shared_ptr<Association> &association, std::uint32_t invokeId);
    /// A connection has ended before it became an association, for instance because the peer could
    /// not prove who it is or there were too many; one sentence says why.
    virtual void refused(const Text &reason);
    /// An association that had been opened has ended.
    virtual void closed(const std::shared_ptr<Association> &association, const Text &reason);
};

/// Accepts associations. Peers that do not ask for an association in time, or do not read what they
/// are sent, are cut off; a peer's other mistakes end at most its own association. Every member may
/// be called from any thread.
class Server : public std::enable_shared_from_this<Server>
{
    struct Private
    {
    };

public:
    /// @p handler lives until the last association has ended.
    static std::shared_ptr<Server> create(asio::any_io_executor executor, ServerOptions options,
                                          std::shared_ptr<ServerHandler> handler);
    Server(Private, asio::any_io_executor executor, ServerOptions options,
           std::shared_ptr<ServerHandler> handler);

    /// Listen; the port that is used. With TLS its files are read once, here.
    Result<std::uint16_t> start();
    /// Read the files of TLS again, such as new revocation lists; connections from now on use them.
    /// After an error the old ones stay in use.
    Result<void> reloadTls();
    /// Listen no more and abort all associations. @p released is called, in a strand of the
    /// server, as soon as the port is free again.
    void stop(std::function<void()> released = {});
    /// Connections, opened or not. In no strand; changes at any time.
    std::size_t associations() const { return m_count; }

private:
    asio::awaitable<void> acceptLoop();
    void take(osi::Strand strand, asio::ip::tcp::socket socket, const asio::ip::address &peer);

    asio::any_io_executor m_executor;
    ServerOptions m_options;
    std::shared_ptr<ServerHandler> m_handler;
    osi::Strand m_strand;
    asio::ip::tcp::acceptor m_acceptor;
    std::shared_ptr<const osi::TlsContext> m_tls;
    std::set<std::shared_ptr<Association>> m_associations;
    std::map<asio::ip::address, std::size_t> m_halfOpen;
    std::atomic<std::size_t> m_count{0};
    bool m_stopped = false;
};

} // namespace mms
