// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/hostlookup.h"
#include "osi/interference.h"
#include "osi/networkstream.h"
#include "osi/stack.h"
#include "osi/strand.h"
#include "osi/trace.h"

#include <asio/awaitable.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/steady_timer.hpp>

#include <chrono>
#include <deque>
#include <exception>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace osi {

struct LinkOptions
{
    StackOptions stack;
    /// Until the association stands, from the first attempt to connect.
    std::chrono::milliseconds establishTimeout{10000};
    /// Until the network has taken what is to be sent; a peer that does not read is cut off.
    std::chrono::milliseconds sendTimeout{10000};
    /// Until the peer has answered a release or an abort is on its way.
    std::chrono::milliseconds releaseTimeout{3000};
    /// Octets that may wait for the network before the peer is cut off.
    std::size_t maxQueued = 16 * 1024 * 1024;
    TraceHook trace;
    /// Without, the connection is plain. Unless the options say otherwise, the certificate of the
    /// end that is connected to must be made out to the host that was asked for.
    std::optional<TlsOptions> tls;
    /// Looks up hosts' names; without, the system does. Called in any thread, several at a time.
    HostLookup::Function lookUp;
    /// Makes what changes PDUs of a link on their way, to simulate devices that misbehave; usually
    /// null. Called when a link is made.
    std::function<std::unique_ptr<Interference>()> interference;
};

/// A network connection with the layers of one association on it. It belongs to one strand: every
/// member, and the handler, is called there.
///
/// Exactly one of AssociateRefused, ReleaseConfirm and AssociationLost is the last event; the
/// handler is dropped after it. An exception that a handler throws ends the association.
class Link : public std::enable_shared_from_this<Link>
{
public:
    using Handler = std::function<void(StackEvent event)>;

    /// The end that connects.
    Link(Strand strand, LinkOptions options);
    /// The end that was connected to. @p tls is what LinkOptions::tls describes, where it is loaded
    /// already.
    Link(Strand strand, LinkOptions options, asio::ip::tcp::socket socket,
         std::shared_ptr<const TlsContext> tls = {});
    Link(const Link &) = delete;
    Link &operator=(const Link &) = delete;

    const Strand &strand() const { return m_strand; }
    bool isOpen() const { return m_stack.isOpen(); }
    /// Of a connection with TLS.
    std::optional<TlsPeer> tlsPeer() const { return m_stream.peer(); }
    /// The network address of the peer: 4 or 16 octets; empty while there is no connection.
    std::vector<std::uint8_t> peerAddress() const { return m_stream.peerAddress(); }
    /// The network address of this end, in the same form.
    std::vector<std::uint8_t> localAddress() const { return m_stream.localAddress(); }
    /// Octets that wait for the network.
    std::size_t queued() const;
    /// When the last octets came from the network.
    std::chrono::steady_clock::time_point lastHeard() const { return m_lastHeard; }
    /// Calls @p handler once at most @p octets wait, at once when they do already; never after the
    /// end.
    void whenQueued(std::size_t octets, std::function<void()> handler);
    /// Calls @p handler when the handler has been told all that came from the network in one piece,
    /// before the network is looked at again; apart, later in the strand, when nothing is being
    /// told now. What waits for an answer goes on so without a turn of the execution context.
    void whenTold(std::function<void()> handler);

    /// Initiator: connect to @p host (a name or an address) and ask for an association. Addresses
    /// are taken as they are; names are looked up apart (HostLookup).
    void connect(std::string host, std::uint16_t port, Octets pdu, Handler handler);
    /// Responder: wait for the peer's request.
    void serve(Handler handler);
    void accept(Bytes pdu);
    void refuse(acse::Result result, std::int64_t diagnostic, Bytes pdu);
    void send(Bytes pdu);
    void release();
    /// The release is about to come: from now on its deadline counts.
    void expectRelease();
    /// The release will not come after all.
    void forgetRelease();
    void answerRelease();
    /// End at once. The handler hears AssociationLost with @p reason.
    void abort(const Text &reason);

private:
    enum class Watch : std::uint8_t { Establish, Send, Release };

    class Telling;

    struct QueueWatch
    {
        std::size_t octets;
        std::function<void()> handler;
    };

    asio::awaitable<void> live(asio::awaitable<void> work);
    asio::awaitable<void> establish(std::string host, std::uint16_t port, Octets pdu);
    asio::awaitable<void> attend();
    asio::awaitable<HostAddresses> addressesOf(std::string host);
    asio::awaitable<bool> secure(TlsRole role, const TlsOptions *options);
    asio::awaitable<void> readLoop();
    asio::awaitable<void> writeLoop();
    void pass(Bytes pdu, bool accepts);
    void transmit(const Interference::Outgoing &outgoing, bool accepts);
    void apply(StackOutput output);
    void deliver(StackEvent event);
    void lose(const Text &reason);
    void arm(Watch watch);
    void disarm(Watch watch);
    asio::steady_timer &timerOf(Watch watch);
    void tellQueued();
    bool sendAtOnce();
    void startWriting();
    std::function<void(std::exception_ptr)> ending();
    void closeSocket();

    Strand m_strand;
    LinkOptions m_options;
    Stack m_stack;
    NetworkStream m_stream;
    std::shared_ptr<const TlsContext> m_tls;
    asio::steady_timer m_lookupTimer;
    std::optional<HostAddresses> m_found;
    asio::steady_timer m_establishTimer;
    asio::steady_timer m_sendTimer;
    asio::steady_timer m_releaseTimer;
    Handler m_handler;
    std::string m_lookedUp; ///< the name that is being looked up
    bool m_isSecuring = false;
    std::chrono::steady_clock::time_point m_lastHeard;
    Octets m_queue;
    Octets m_writing;
    std::vector<QueueWatch> m_queueWatches;
    bool m_isTelling = false;
    std::deque<std::function<void()>> m_whenTold;
    std::chrono::steady_clock::time_point m_lastSent;
    bool m_isWriting = false;
    bool m_closeWhenSent = false;
    bool m_resetWhenSent = false;
    std::unique_ptr<Interference> m_interference;
    std::list<asio::steady_timer> m_delays;
};

} // namespace osi
