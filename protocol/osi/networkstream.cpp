// SPDX-License-Identifier: Apache-2.0
#include "osi/networkstream.h"

#include "osi/tlscontext.h"

#include <asio/experimental/as_tuple.hpp>
#include <asio/ssl.hpp>
#include <asio/use_awaitable.hpp>
#include <asio/write.hpp>
#include <openssl/x509v3.h>

#include <array>
#include <utility>

namespace osi {

namespace {

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);
constexpr std::uint8_t handshakeRecord = 0x16;
/// By this a client without TLS can see what is missing; OpenSSL would only close the connection.
constexpr std::array<std::uint8_t, 7> versionAlert{0x15, 0x03, 0x01, 0x00, 0x02, 0x02, 0x46};

using SecureStream = asio::ssl::stream<asio::ip::tcp::socket &>;

/// Errors that only say that nobody trusted has issued a certificate.
bool isUnknownIssuer(int code)
{
    return code == X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT ||
           code == X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY ||
           code == X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE ||
           code == X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT ||
           code == X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN;
}

OpenSslPointer<SSL, SSL_free> makeConnection(SSL_CTX *context, const std::string &peerName)
{
    OpenSslPointer<SSL, SSL_free> ssl(SSL_new(context));
    if (!ssl || peerName.empty())
        return ssl;
    X509_VERIFY_PARAM *const parameters = SSL_get0_param(ssl.get());
    if (X509_VERIFY_PARAM_set1_ip_asc(parameters, peerName.c_str()) == 1)
        return ssl;
    const bool isSet = SSL_set1_host(ssl.get(), peerName.c_str()) == 1 &&
                       SSL_set_tlsext_host_name(ssl.get(), peerName.c_str()) == 1;
    return isSet ? std::move(ssl) : nullptr;
}

/// In network order.
std::vector<std::uint8_t> octetsOf(const asio::ip::address &address)
{
    const auto octets = [](const auto &bytes) {
        return std::vector<std::uint8_t>(bytes.begin(), bytes.end());
    };
    if (address.is_v4())
        return octets(address.to_v4().to_bytes());
    const asio::ip::address_v6 wide = address.to_v6();
    if (wide.is_v4_mapped())
        return octets(asio::ip::make_address_v4(asio::ip::v4_mapped, wide).to_bytes());
    return octets(wide.to_bytes());
}

} // namespace

struct NetworkStream::Tls
{
    Tls(asio::ip::tcp::socket &socket, std::shared_ptr<const TlsContext> used, SSL *ssl)
        : context(std::move(used))
        , stream(socket, ssl)
    {
    }

    bool accept(const TlsContext::Private &trust, bool preverified, X509_STORE_CTX *store)
    {
        if (!preverified) {
            if (trust.onlyPinned && isUnknownIssuer(X509_STORE_CTX_get_error(store)))
                return true;
            if (reason.empty())
                reason = refusalText(store);
            return false;
        }
        if (trust.pins.empty() || X509_STORE_CTX_get_error_depth(store) != 0)
            return true;
        X509 *const certificate = X509_STORE_CTX_get_current_cert(store);
        const std::string fingerprint = fingerprintOf(certificate);
        pinned = trust.pins.contains(fingerprint);
        if (!pinned)
            reason = say(
                "The peer's certificate \"%1\" is not one of those that are pinned; its fingerprint is %2.",
                subjectOf(certificate), fingerprint);
        return pinned;
    }

    std::shared_ptr<const TlsContext> context;
    SecureStream stream;
    Text reason;
    bool pinned = false;
};

NetworkStream::NetworkStream(Socket socket)
    : m_socket(std::move(socket))
{
}

NetworkStream::~NetworkStream() = default;

asio::awaitable<Result<void>> NetworkStream::handshake(std::shared_ptr<const TlsContext> context,
                                                       TlsRole role)
{
    const TlsContext::Private &trust = *context->d;
    const bool isServer = role == TlsRole::Server;
    auto ssl = makeConnection(trust.context.get(), isServer ? std::string() : trust.peerName);
    if (!ssl) {
        m_refusal = say("\"%1\" is not a host name that a certificate can have.", trust.peerName);
        co_return Error{m_refusal, 0};
    }
    m_tls = std::make_unique<Tls>(m_socket, context, ssl.release());
    asio::error_code error;
    m_tls->stream.set_verify_callback(
        [tls = m_tls.get(), &trust](bool preverified, asio::ssl::verify_context &store) {
            return tls->accept(trust, preverified, store.native_handle());
        },
        error);
    bool isPlainPeer = false;
    if (isServer) {
        std::array<std::uint8_t, 1> first{handshakeRecord};
        co_await m_socket.async_receive(asio::buffer(first), asio::socket_base::message_peek,
                                        asTuple);
        isPlainPeer = first[0] != handshakeRecord;
    }
    asio::error_code failed;
    if (isPlainPeer) {
        co_await asio::async_write(m_socket, asio::buffer(versionAlert), asTuple);
    } else {
        const auto [ended] = co_await m_tls->stream.async_handshake(
            isServer ? asio::ssl::stream_base::server : asio::ssl::stream_base::client, asTuple);
        failed = ended;
    }
    if (!isPlainPeer && !failed && (trust.pins.empty() || m_tls->pinned))
        co_return Result<void>();
    m_refusal = handshakeFailure(failed, role, isPlainPeer);
    m_socket.shutdown(Socket::shutdown_send, error);
    std::array<std::uint8_t, 512> rest{};
    while (!error) {
        const auto [ended, count] = co_await m_socket.async_read_some(asio::buffer(rest), asTuple);
        error = ended;
    }
    co_return Error{m_refusal, 0};
}

Text NetworkStream::handshakeFailure(const asio::error_code &error, TlsRole role,
                                     bool isPlainPeer) const
{
    if (isPlainPeer)
        return say("The peer does not speak TLS, which is required here.");
    if (!m_tls->reason.empty())
        return m_tls->reason;
    if (!error)
        return say("The peer has shown no certificate.");
    if (error.category() == asio::error::get_ssl_category())
        return tlsErrorText(static_cast<unsigned long>(error.value()));
    if (error == asio::error::eof || error == asio::ssl::error::stream_truncated ||
        error == asio::error::connection_reset) {
        return role == TlsRole::Client
                   ? say("The peer closed the network connection instead of a TLS handshake; it may not speak TLS on this port.")
                   : say("The peer closed the network connection instead of a TLS handshake.");
    }
    return say("The network connection broke during the TLS handshake: %1.",
               wording::ofSystem(error));
}

asio::awaitable<NetworkStream::Read> NetworkStream::readSome(asio::mutable_buffer buffer)
{
    if (m_tls) {
        const auto [error, count] = co_await m_tls->stream.async_read_some(buffer, asTuple);
        co_return Read{error, count};
    }
    const auto [error, count] = co_await m_socket.async_read_some(buffer, asTuple);
    co_return Read{error, count};
}

asio::awaitable<asio::error_code> NetworkStream::write(asio::const_buffer buffer)
{
    if (m_tls) {
        const auto [error, count] = co_await asio::async_write(m_tls->stream, buffer, asTuple);
        co_return error;
    }
    const auto [error, count] = co_await asio::async_write(m_socket, buffer, asTuple);
    co_return error;
}

std::size_t NetworkStream::writeAtOnce(asio::const_buffer buffer)
{
    if (m_tls)
        return 0;
    asio::error_code error;
    // Otherwise the socket would wait for room.
    if (!m_socket.non_blocking())
        m_socket.non_blocking(true, error);
    const std::size_t count = error ? 0 : m_socket.write_some(buffer, error);
    return error ? 0 : count;
}

asio::awaitable<void> NetworkStream::shutdown()
{
    if (m_tls && m_socket.is_open())
        co_await m_tls->stream.async_shutdown(asTuple);
}

void NetworkStream::close()
{
    asio::error_code ignored;
    m_socket.shutdown(Socket::shutdown_both, ignored);
    m_socket.close(ignored);
}

void NetworkStream::reset()
{
    asio::error_code ignored;
    m_socket.set_option(asio::socket_base::linger(true, 0), ignored);
    m_socket.close(ignored);
}

Text NetworkStream::describe(const asio::error_code &error) const
{
    if (error == asio::error::eof || error == asio::ssl::error::stream_truncated)
        return say("The peer closed the network connection.");
    if (error.category() == asio::error::get_ssl_category())
        return tlsErrorText(static_cast<unsigned long>(error.value()));
    return say("The network connection broke: %1.", wording::ofSystem(error));
}

std::optional<TlsPeer> NetworkStream::peer() const
{
    if (!m_tls)
        return std::nullopt;
    SSL *const ssl = m_tls->stream.native_handle();
    const OpenSslPointer<X509, X509_free> certificate(SSL_get1_peer_certificate(ssl));
    if (!certificate)
        return std::nullopt;
    return TlsPeer{subjectOf(certificate.get()), fingerprintOf(certificate.get()),
                   SSL_get_version(ssl), SSL_get_cipher_name(ssl)};
}

std::vector<std::uint8_t> NetworkStream::peerAddress() const
{
    asio::error_code error;
    const auto endpoint = m_socket.remote_endpoint(error);
    return error ? std::vector<std::uint8_t>() : octetsOf(endpoint.address());
}

std::vector<std::uint8_t> NetworkStream::localAddress() const
{
    asio::error_code error;
    const auto endpoint = m_socket.local_endpoint(error);
    return error ? std::vector<std::uint8_t>() : octetsOf(endpoint.address());
}

} // namespace osi
