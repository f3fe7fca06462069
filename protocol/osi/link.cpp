// SPDX-License-Identifier: Apache-2.0
#include "osi/link.h"

#include "osi/certifiedname.h"

#include <asio/co_spawn.hpp>
#include <asio/connect.hpp>
#include <asio/experimental/as_tuple.hpp>
#include <asio/post.hpp>
#include <asio/use_awaitable.hpp>

#include <algorithm>
#include <array>
#include <exception>
#include <utility>

namespace osi {

namespace {

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);
constexpr std::size_t readPortion = 16 * 1024;
/// What is sent within it is part of a stream, whose PDUs go out together.
constexpr std::chrono::milliseconds streamPause{1};

template <typename Event>
constexpr bool endsAssociation =
    std::is_same_v<Event, AssociateRefused> || std::is_same_v<Event, ReleaseConfirm> ||
    std::is_same_v<Event, AssociationLost>;

/// Whether a connection begins as those with TLS do: with a handshake or an alert.
bool isTls(std::uint8_t firstOctet)
{
    return firstOctet == 0x15 || firstOctet == 0x16;
}

void prepare(asio::ip::tcp::socket &socket)
{
    asio::error_code ignored;
    socket.set_option(asio::ip::tcp::no_delay(true), ignored);
    socket.set_option(asio::socket_base::keep_alive(true), ignored);
}

} // namespace

/// While it lives, handlers wait until everything has been told.
class Link::Telling
{
public:
    explicit Telling(Link &link)
        : m_link(link)
    {
        m_link.m_isTelling = true;
    }
    Telling(const Telling &) = delete;
    Telling &operator=(const Telling &) = delete;

    /// A handler that throws leaves the others to the execution context.
    ~Telling()
    {
        m_link.m_isTelling = false;
        for (std::function<void()> &handler : std::exchange(m_link.m_whenTold, {}))
            asio::post(m_link.m_strand, std::move(handler));
    }

    void end()
    {
        m_link.m_isTelling = false;
        while (!m_link.m_whenTold.empty()) {
            const std::function<void()> handler = std::move(m_link.m_whenTold.front());
            m_link.m_whenTold.pop_front();
            handler();
        }
    }

private:
    Link &m_link;
};

Link::Link(Strand strand, LinkOptions options)
    : m_strand(std::move(strand))
    , m_options(std::move(options))
    , m_stack(Stack::Role::Initiator, m_options.stack)
    , m_stream(asio::ip::tcp::socket(m_strand))
    , m_lookupTimer(m_strand)
    , m_establishTimer(m_strand)
    , m_sendTimer(m_strand)
    , m_releaseTimer(m_strand)
    , m_interference(m_options.interference ? m_options.interference() : nullptr)
{
}

Link::Link(Strand strand, LinkOptions options, asio::ip::tcp::socket socket,
           std::shared_ptr<const TlsContext> tls)
    : m_strand(std::move(strand))
    , m_options(std::move(options))
    , m_stack(Stack::Role::Responder, m_options.stack)
    , m_stream(std::move(socket))
    , m_tls(std::move(tls))
    , m_lookupTimer(m_strand)
    , m_establishTimer(m_strand)
    , m_sendTimer(m_strand)
    , m_releaseTimer(m_strand)
    , m_interference(m_options.interference ? m_options.interference() : nullptr)
{
    prepare(m_stream.socket());
}

std::size_t Link::queued() const
{
    return m_queue.size() + m_writing.size();
}

void Link::whenQueued(std::size_t octets, std::function<void()> handler)
{
    if (!m_handler)
        return;
    m_queueWatches.push_back({octets, std::move(handler)});
    tellQueued();
}

void Link::tellQueued()
{
    // A handler may queue more and watch again.
    std::vector<QueueWatch> due;
    for (auto watch = m_queueWatches.begin(); watch != m_queueWatches.end();) {
        if (watch->octets < queued()) {
            ++watch;
            continue;
        }
        due.push_back(std::move(*watch));
        watch = m_queueWatches.erase(watch);
    }
    for (const QueueWatch &watch : due)
        watch.handler();
}

void Link::whenTold(std::function<void()> handler)
{
    if (m_isTelling)
        m_whenTold.push_back(std::move(handler));
    else
        asio::post(m_strand, std::move(handler));
}

void Link::connect(std::string host, std::uint16_t port, Octets pdu, Handler handler)
{
    m_handler = std::move(handler);
    arm(Watch::Establish);
    asio::co_spawn(
        m_strand,
        [self = shared_from_this(), host = std::move(host), port, pdu = std::move(pdu)]() mutable {
            return self->live(self->establish(std::move(host), port, std::move(pdu)));
        },
        ending());
}

void Link::serve(Handler handler)
{
    m_handler = std::move(handler);
    arm(Watch::Establish);
    asio::co_spawn(
        m_strand, [self = shared_from_this()] { return self->live(self->attend()); }, ending());
}

void Link::accept(Bytes pdu)
{
    pass(pdu, true);
}

void Link::refuse(acse::Result result, std::int64_t diagnostic, Bytes pdu)
{
    if (m_options.trace && !pdu.empty())
        m_options.trace(Direction::Sent, pdu);
    apply(m_stack.refuse(result, diagnostic, pdu));
    deliver(AssociationLost{false, say("The association was refused.")});
}

void Link::send(Bytes pdu)
{
    if (!m_stack.isOpen())
        return;
    pass(pdu, false);
    if (queued() > m_options.maxQueued)
        lose(say("The peer does not read what it is sent."));
}

void Link::pass(Bytes pdu, bool accepts)
{
    if (m_interference) {
        auto outgoing = m_interference->outgoing(pdu);
        if (outgoing.delay.count() <= 0) {
            transmit(outgoing, accepts);
            return;
        }
        const auto timer = m_delays.emplace(m_delays.end(), m_strand, outgoing.delay);
        timer->async_wait([self = shared_from_this(), timer, outgoing = std::move(outgoing),
                           accepts](const asio::error_code &error) {
            self->m_delays.erase(timer);
            if (!error)
                self->transmit(outgoing, accepts);
        });
        return;
    }
    if (m_options.trace)
        m_options.trace(Direction::Sent, pdu);
    if (accepts)
        disarm(Watch::Establish);
    apply(accepts ? m_stack.accept(pdu) : m_stack.send(pdu));
}

void Link::transmit(const Interference::Outgoing &outgoing, bool accepts)
{
    if (m_resetWhenSent || m_stack.isClosed())
        return;
    StackOutput all;
    for (const Octets &pdu : outgoing.pdus) {
        if (m_options.trace)
            m_options.trace(Direction::Sent, pdu);
        if (accepts)
            disarm(Watch::Establish);
        const StackOutput output = accepts ? m_stack.accept(pdu) : m_stack.send(pdu);
        all.octets.insert(all.octets.end(), output.octets.begin(), output.octets.end());
        accepts = false;
    }
    all.octets.insert(all.octets.end(), outgoing.noise.begin(), outgoing.noise.end());
    if (outgoing.resetAfter) {
        all.octets.resize(std::min(all.octets.size(), *outgoing.resetAfter));
        all.closeNetwork = true;
        m_resetWhenSent = true;
    }
    apply(std::move(all));
}

void Link::release()
{
    arm(Watch::Release);
    apply(m_stack.release());
}

void Link::expectRelease()
{
    arm(Watch::Release);
}

void Link::forgetRelease()
{
    disarm(Watch::Release);
}

void Link::answerRelease()
{
    apply(m_stack.answerRelease());
    if (m_stack.isClosed())
        deliver(ReleaseConfirm());
}

void Link::abort(const Text &reason)
{
    apply(m_stack.abort());
    deliver(AssociationLost{false, reason});
}

/// The work of the whole life of the link. Handler and link keep each other, which the last event
/// ends; where the execution context goes before, taking the coroutine with it, nobody else would.
asio::awaitable<void> Link::live(asio::awaitable<void> work)
{
    struct Leftover
    {
        std::shared_ptr<Link> link;
        bool isOver = false;

        explicit Leftover(std::shared_ptr<Link> of)
            : link(std::move(of))
        {
        }
        Leftover(const Leftover &) = delete;
        Leftover &operator=(const Leftover &) = delete;
        ~Leftover()
        {
            if (!isOver)
                const Handler dropped = std::exchange(link->m_handler, nullptr);
        }
    };
    Leftover leftover(shared_from_this());
    try {
        co_await std::move(work);
    } catch (...) {
        leftover.isOver = true;
        throw;
    }
    leftover.isOver = true;
}

asio::awaitable<HostAddresses> Link::addressesOf(std::string host)
{
    const auto self = shared_from_this();
    if (const auto address = numericAddress(host))
        co_return HostAddresses{{*address}, {}};
    m_lookedUp = host;
    const HostLookup lookup(host, m_options.lookUp,
                            [strand = m_strand, weak = weak_from_this()](HostAddresses found) {
                                asio::post(strand, [weak, found = std::move(found)]() mutable {
                                    const auto link = weak.lock();
                                    if (!link)
                                        return;
                                    link->m_found = std::move(found);
                                    link->m_lookupTimer.cancel();
                                });
                            });
    while (!m_found && !m_stack.isClosed()) {
        m_lookupTimer.expires_at(asio::steady_timer::time_point::max());
        co_await m_lookupTimer.async_wait(asTuple);
    }
    m_lookedUp.clear();
    co_return m_found.value_or(HostAddresses());
}

asio::awaitable<void> Link::establish(std::string host, std::uint16_t port, Octets pdu)
{
    const auto self = shared_from_this();
    const HostAddresses found = co_await addressesOf(host);
    if (m_stack.isClosed())
        co_return;
    if (found.addresses.empty()) {
        lose(say("The name \"%1\" cannot be resolved: %2.", host,
                 found.error.empty() ? say("it has no address") : found.error));
        co_return;
    }
    std::vector<asio::ip::tcp::endpoint> endpoints;
    for (const asio::ip::address &address : found.addresses)
        endpoints.emplace_back(address, port);
    const auto [connectError, endpoint] =
        co_await asio::async_connect(m_stream.socket(), endpoints, asTuple);
    if (connectError) {
        lose(say("No connection to %1 port %2: %3.", host, port, wording::ofSystem(connectError)));
        co_return;
    }
    if (m_stack.isClosed()) {
        closeSocket();
        co_return;
    }
    prepare(m_stream.socket());
    std::optional<TlsOptions> tls = m_options.tls;
    if (tls && tls->peerName.empty() && tls->pins.empty() && !tls->acceptsOtherNames)
        tls->peerName = certifiedName(host);
    if (!co_await secure(TlsRole::Client, tls ? &*tls : nullptr))
        co_return;
    if (m_options.trace)
        m_options.trace(Direction::Sent, pdu);
    apply(m_stack.connect(pdu));
    co_await readLoop();
}

asio::awaitable<void> Link::attend()
{
    const auto self = shared_from_this();
    if (co_await secure(TlsRole::Server, m_options.tls ? &*m_options.tls : nullptr))
        co_await readLoop();
}

asio::awaitable<bool> Link::secure(TlsRole role, const TlsOptions *options)
{
    if (!options)
        co_return true;
    if (!m_tls) {
        auto loaded = TlsContext::load(*options);
        if (!loaded) {
            lose(loaded.error().message);
            co_return false;
        }
        m_tls = *std::move(loaded);
    }
    m_isSecuring = true;
    const auto secured = co_await m_stream.handshake(m_tls, role);
    m_isSecuring = false;
    if (!secured)
        lose(secured.error().message);
    co_return secured.ok() && !m_stack.isClosed();
}

asio::awaitable<void> Link::readLoop()
{
    const auto self = shared_from_this();
    // Not a member: an association that is idle keeps no buffer of a coroutine that ended.
    std::array<std::uint8_t, readPortion> buffer{};
    bool isFirst = true;
    while (true) {
        const auto [error, count] = co_await m_stream.readSome(asio::buffer(buffer));
        if (error) {
            lose(m_stream.describe(error));
            co_return;
        }
        m_lastHeard = std::chrono::steady_clock::now();
        if (std::exchange(isFirst, false) && !m_stream.isSecure() && isTls(buffer[0])) {
            lose(say("The peer speaks TLS, which is not configured here."));
            co_return;
        }
        Telling telling(*this);
        apply(m_stack.receive(Bytes(buffer).first(count)));
        telling.end();
        if (m_stack.isClosed())
            co_return;
    }
}

asio::awaitable<void> Link::writeLoop()
{
    const auto self = shared_from_this();
    while (!m_queue.empty()) {
        std::swap(m_writing, m_queue);
        arm(Watch::Send);
        const auto error = co_await m_stream.write(asio::buffer(m_writing));
        disarm(Watch::Send);
        m_writing.clear();
        if (error) {
            m_queue.clear();
            lose(m_stream.describe(error));
            break;
        }
        tellQueued();
    }
    for (Octets *buffer : {&m_queue, &m_writing}) {
        if (buffer->capacity() > readPortion)
            Octets().swap(*buffer);
    }
    if (m_closeWhenSent && !m_resetWhenSent && m_stream.isSecure()) {
        arm(Watch::Release);
        co_await m_stream.shutdown();
        disarm(Watch::Release);
    }
    m_isWriting = false;
    if (m_closeWhenSent)
        closeSocket();
}

/// A handler that throws ends its association: otherwise the connection would stay, unattended.
std::function<void(std::exception_ptr)> Link::ending()
{
    return [self = shared_from_this()](const std::exception_ptr &thrown) {
        if (!thrown)
            return;
        try {
            std::rethrow_exception(thrown);
        } catch (const std::exception &exception) {
            self->lose(say("An internal error ended the association: %1.", exception.what()));
        } catch (...) {
            self->lose(say("An internal error ended the association."));
        }
    };
}

/// The first PDU after a silence goes out without a coroutine and a timer, which cost more than the
/// sending, with somebody waiting. False when something is left for writeLoop().
bool Link::sendAtOnce()
{
    const auto now = std::chrono::steady_clock::now();
    const bool wasSilent = now - std::exchange(m_lastSent, now) >= streamPause;
    if (!wasSilent || m_closeWhenSent || !m_queueWatches.empty())
        return false;
    const std::size_t count = m_stream.writeAtOnce(asio::buffer(m_queue));
    if (count < m_queue.size()) {
        m_queue.erase(m_queue.begin(), m_queue.begin() + static_cast<std::ptrdiff_t>(count));
        return false;
    }
    m_queue.clear();
    if (m_queue.capacity() > readPortion)
        Octets().swap(m_queue);
    return true;
}

void Link::startWriting()
{
    m_isWriting = true;
    asio::co_spawn(
        m_strand, [self = shared_from_this()] { return self->writeLoop(); }, ending());
}

void Link::apply(StackOutput output)
{
    if (m_queue.empty())
        m_queue = std::move(output.octets);
    else
        m_queue.insert(m_queue.end(), output.octets.begin(), output.octets.end());
    if (output.closeNetwork)
        m_closeWhenSent = true;
    const bool saysGoodbye = m_closeWhenSent && m_stream.isSecure();
    if ((!m_queue.empty() || saysGoodbye) && !m_isWriting && !sendAtOnce())
        startWriting();
    for (StackEvent &event : output.events)
        deliver(std::move(event));
    if (m_closeWhenSent && !m_isWriting)
        closeSocket();
}

void Link::deliver(StackEvent event)
{
    const auto self = shared_from_this();
    const bool last = std::visit(
        [](const auto &each) { return endsAssociation<std::decay_t<decltype(each)>>; }, event);
    if (std::holds_alternative<AssociateConfirm>(event))
        disarm(Watch::Establish);
    if (m_options.trace) {
        std::visit(
            [this](const auto &each) {
                if constexpr (requires { each.pdu; }) {
                    if (!each.pdu.empty())
                        m_options.trace(Direction::Received, each.pdu);
                }
            },
            event);
    }
    if (const auto *indication = std::get_if<PduIndication>(&event); indication && m_interference) {
        const Interference::Incoming incoming = m_interference->incoming(indication->pdu);
        if (!incoming.answer.empty() && m_stack.isOpen()) {
            if (m_options.trace)
                m_options.trace(Direction::Sent, incoming.answer);
            apply(m_stack.send(incoming.answer));
        }
        if (!incoming.deliver)
            return;
    }
    if (!m_handler)
        return;
    if (!last) {
        m_handler(std::move(event));
        return;
    }
    disarm(Watch::Establish);
    disarm(Watch::Release);
    m_queueWatches.clear();
    const Handler handler = std::exchange(m_handler, nullptr);
    handler(std::move(event));
}

void Link::lose(const Text &reason)
{
    apply(m_stack.networkClosed(reason));
    m_queue.clear();
    closeSocket();
    deliver(AssociationLost{false, reason});
}

void Link::arm(Watch watch)
{
    asio::steady_timer &timer = timerOf(watch);
    timer.expires_after(watch == Watch::Establish ? m_options.establishTimeout
                        : watch == Watch::Send    ? m_options.sendTimeout
                                                  : m_options.releaseTimeout);
    timer.async_wait([weak = weak_from_this(), watch](const asio::error_code &error) {
        const auto self = weak.lock();
        if (error || !self)
            return;
        // An expiry that was queued already when the timer was set again does not count.
        if (self->timerOf(watch).expiry() > std::chrono::steady_clock::now())
            return;
        switch (watch) {
        case Watch::Establish:
            self->lose(!self->m_stream.refusal().empty() ? self->m_stream.refusal()
                       : !self->m_lookedUp.empty()
                           ? say("The name \"%1\" was not resolved in time.", self->m_lookedUp)
                       : self->m_isSecuring
                           ? say("The peer did not complete the TLS handshake in time.")
                           : say("The peer did not complete the association in time."));
            break;
        case Watch::Send:
            self->lose(say("The peer does not read what it is sent."));
            break;
        case Watch::Release:
            self->lose(say("The peer did not answer the release in time."));
            break;
        }
    });
}

void Link::disarm(Watch watch)
{
    timerOf(watch).expires_at(asio::steady_timer::time_point::max());
}

asio::steady_timer &Link::timerOf(Watch watch)
{
    return watch == Watch::Establish ? m_establishTimer
           : watch == Watch::Send    ? m_sendTimer
                                     : m_releaseTimer;
}

void Link::closeSocket()
{
    m_lookupTimer.cancel();
    for (asio::steady_timer &delay : m_delays)
        delay.cancel();
    if (m_resetWhenSent)
        m_stream.reset();
    else
        m_stream.close();
}

} // namespace osi
