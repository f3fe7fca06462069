// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/tls.h"

#include <asio/awaitable.hpp>
#include <asio/buffer.hpp>
#include <asio/ip/tcp.hpp>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace osi {

/// A TCP connection, secured by TLS or plain. It belongs to the socket's executor, which is a
/// strand. At most one read and one write may be under way; close() ends them.
class NetworkStream
{
public:
    using Socket = asio::ip::tcp::socket;

    struct Read
    {
        asio::error_code error;
        std::size_t count = 0;
    };

    explicit NetworkStream(Socket socket);
    ~NetworkStream();
    NetworkStream(const NetworkStream &) = delete;
    NetworkStream &operator=(const NetworkStream &) = delete;

    Socket &socket() { return m_socket; }
    bool isSecure() const { return m_tls != nullptr; }

    /// Secure the connection, which stands; before the first read and write. The error is one
    /// sentence; the connection is of no use then and drained until the peer has closed it, so that
    /// the peer learns the reason.
    asio::awaitable<Result<void>> handshake(std::shared_ptr<const TlsContext> context,
                                            TlsRole role);
    /// What a handshake that has failed said, also while the peer is waited for; empty otherwise.
    const Text &refusal() const { return m_refusal; }

    asio::awaitable<Read> readSome(asio::mutable_buffer buffer);
    asio::awaitable<asio::error_code> write(asio::const_buffer buffer);
    /// Hand the network what it takes without waiting: the number of octets, 0 also with TLS and
    /// when it fails, which write() tells. Not while a write is under way.
    std::size_t writeAtOnce(asio::const_buffer buffer);
    /// Tell the peer that nothing follows, and wait until it does the same.
    asio::awaitable<void> shutdown();
    void close();
    /// Close without the usual ceremony, so that the peer sees a reset.
    void reset();

    /// What a failure of readSome() or write() means, as one sentence.
    Text describe(const asio::error_code &error) const;
    std::optional<TlsPeer> peer() const;
    /// Of the other end, in network order: 4 or 16 octets; empty while there is no connection.
    std::vector<std::uint8_t> peerAddress() const;
    /// Of this end, in the same form.
    std::vector<std::uint8_t> localAddress() const;

private:
    struct Tls;

    Text handshakeFailure(const asio::error_code &error, TlsRole role, bool isPlainPeer) const;

    Socket m_socket;
    std::unique_ptr<Tls> m_tls;
    Text m_refusal;
};

} // namespace osi
