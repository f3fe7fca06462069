// SPDX-License-Identifier: Apache-2.0
#include "hostileline.h"

#include "mms/pdu.h"
#include "osi/stack.h"
#include "osi/tpkt.h"

#include <asio/awaitable.hpp>
#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>
#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/post.hpp>
#include <asio/redirect_error.hpp>
#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>
#include <asio/write.hpp>

#include <algorithm>
#include <array>
#include <atomic>
#include <random>
#include <set>
#include <thread>

namespace hostile {

namespace {

using asio::ip::tcp;
using mms::Octets;
using std::chrono::milliseconds;

constexpr milliseconds drippingPause{8};
/// Longer than the calls of the tests wait, shorter than an association may take.
constexpr milliseconds lateness{600};
/// Answers that come late; those behind them come in time again.
constexpr int lateAnswers = 6;
/// A client that takes more than this of a flood is not protected against it.
constexpr std::uint64_t longestFlood = std::uint64_t{256} << 20;

constexpr std::array<ConductCase, 10> cases = {{
    {"silence", Conduct::Silence, false},
    {"close", Conduct::Close, false},
    {"reset", Conduct::Reset, false},
    {"half an answer", Conduct::HalfAnswer, false},
    {"octet by octet", Conduct::Drip, true},
    {"late", Conduct::Late, true},
    {"doubled", Conduct::Doubled, true},
    {"garbage", Conduct::Garbage, false},
    {"parts without an end", Conduct::EndlessParts, false},
    {"a huge PDU", Conduct::HugePdu, false},
}};

Step stepOf(const mms::RequestService &request, Step unknown)
{
    if (std::holds_alternative<mms::IdentifyRequest>(request))
        return Step::Identify;
    if (std::holds_alternative<mms::GetNameListRequest>(request))
        return Step::Names;
    if (std::holds_alternative<mms::GetVariableAccessAttributesRequest>(request))
        return Step::Types;
    if (std::holds_alternative<mms::GetNamedVariableListAttributesRequest>(request))
        return Step::DataSets;
    if (std::holds_alternative<mms::ReadRequest>(request))
        return Step::Read;
    if (std::holds_alternative<mms::WriteRequest>(request))
        return Step::Write;
    if (std::holds_alternative<mms::FileDirectoryRequest>(request))
        return Step::FileList;
    if (std::holds_alternative<mms::FileOpenRequest>(request))
        return Step::FileOpen;
    if (std::holds_alternative<mms::FileReadRequest>(request))
        return Step::FileRead;
    return unknown;
}

Octets packet(mms::Bytes payload)
{
    Octets octets;
    osi::appendTpkt(octets, payload);
    return octets;
}

/// A part of a message behind which others follow.
Octets endlessPart(bool isLast)
{
    Octets unit(1000, 0x30);
    unit[0] = 2;
    unit[1] = 0xf0; // data
    unit[2] = isLast ? 0x80 : 0x00;
    return packet(unit);
}

/// Session, presentation and MMS down to a length of 2 GiB, all of it in one unit.
Octets hugePdu()
{
    const Octets unit = {0x02, 0xf0, 0x80, 0x01, 0x00, 0x01, 0x00, 0x61, 0x84, 0x7f, 0xff,
                         0xff, 0xff, 0x30, 0x84, 0x7f, 0xff, 0xff, 0xfa, 0x02, 0x01, 0x03,
                         0xa0, 0x84, 0x7f, 0xff, 0xff, 0xf0, 0xa1, 0x84, 0x7f, 0xff, 0xff,
                         0xea, 0x02, 0x01, 0x01, 0xa4, 0x84, 0x7f, 0xff, 0xff, 0xe0};
    return packet(unit);
}

} // namespace

std::span<const ConductCase> conductCases()
{
    return cases;
}

struct HostileLine::State
{
    explicit State(std::uint16_t port)
        : acceptor(context, {asio::ip::address_v4::loopback(), 0})
        , target(port)
        , work(asio::make_work_guard(context))
    {
    }

    asio::io_context context;
    tcp::acceptor acceptor;
    std::atomic<std::uint16_t> target;
    std::atomic<Step> step{Step::Connect};
    std::atomic<Conduct> conduct{Conduct::Honest};
    std::atomic<int> reached{0};
    std::atomic<std::uint64_t> flooded{0};
    std::set<std::shared_ptr<Session>> sessions; ///< in the thread
    asio::executor_work_guard<asio::io_context::executor_type> work;
    std::thread thread;
};

/// One connection through the line. In the line's thread.
class HostileLine::Session : public std::enable_shared_from_this<Session>
{
public:
    Session(State &state, tcp::socket client)
        : m_state(state)
        , m_client(std::move(client))
        , m_device(state.context)
        , m_timer(state.context)
        , m_watcher(osi::Stack::Role::Responder, {})
        , m_random(61850)
    {
        asio::error_code ignored;
        m_client.set_option(tcp::no_delay(true), ignored);
    }

    asio::awaitable<void> run()
    {
        const auto self = shared_from_this();
        reach(Step::Connect);
        if (m_isReached && co_await misbehaveUnasked())
            co_return;
        asio::error_code error;
        const std::uint16_t target = m_state.target;
        co_await m_device.async_connect({asio::ip::address_v4::loopback(), target},
                                        asio::redirect_error(asio::use_awaitable, error));
        if (error) {
            close();
            co_return;
        }
        m_device.set_option(tcp::no_delay(true), error);
        asio::co_spawn(m_state.context, toDevice(), asio::detached);
        co_await toClient();
    }

    bool isSpoilt() const { return m_isSpoilt; }
    void wake() { m_timer.cancel(); }
    void close()
    {
        asio::error_code ignored;
        m_client.close(ignored);
        m_device.close(ignored);
        m_timer.cancel();
        m_state.sessions.erase(shared_from_this());
    }

private:
    Conduct conduct() const { return m_isReached ? m_state.conduct.load() : Conduct::Honest; }

    void reach(Step step)
    {
        if (m_isReached || m_state.conduct == Conduct::Honest || m_state.step != step)
            return;
        m_isReached = true;
        ++m_state.reached;
    }

    /// What the client says, as a server would understand it.
    void watch(mms::Bytes octets)
    {
        reach(Step::Transport);
        osi::StackOutput output = m_watcher.receive(octets);
        for (std::size_t i = 0; i < output.events.size(); ++i) {
            const osi::StackEvent event = output.events[i];
            if (std::holds_alternative<osi::AssociateIndication>(event)) {
                reach(Step::Associate);
                const osi::StackOutput accepted =
                    m_watcher.accept(mms::encode(mms::InitiateResponsePdu{}));
                output.events.insert(output.events.end(), accepted.events.begin(),
                                     accepted.events.end());
            } else if (std::holds_alternative<osi::ReleaseIndication>(event)) {
                reach(Step::Conclude);
            } else if (const auto *indication = std::get_if<osi::PduIndication>(&event)) {
                const auto pdu = mms::decodePdu(indication->pdu);
                if (!pdu)
                    continue;
                if (const auto *request = std::get_if<mms::ConfirmedRequestPdu>(&*pdu))
                    reach(stepOf(request->request, Step::Connect));
                else if (std::holds_alternative<mms::ConcludeRequestPdu>(*pdu))
                    reach(Step::Conclude);
            }
        }
    }

    /// What needs no answer of the server to go wrong; true when nothing else follows.
    asio::awaitable<bool> misbehaveUnasked()
    {
        const Conduct now = conduct();
        if (now == Conduct::Close) {
            close();
            co_return true;
        }
        if (now == Conduct::Reset) {
            asio::error_code ignored;
            m_client.set_option(asio::socket_base::linger(true, 0), ignored);
            close();
            co_return true;
        }
        if (now == Conduct::EndlessParts || now == Conduct::HugePdu) {
            m_isSpoilt = true;
            co_await flood();
            co_return true;
        }
        co_return false;
    }

    asio::awaitable<void> toDevice()
    {
        const auto self = shared_from_this();
        Octets buffer(64 * 1024);
        for (;;) {
            asio::error_code error;
            const std::size_t size = co_await m_client.async_read_some(
                asio::buffer(buffer), asio::redirect_error(asio::use_awaitable, error));
            if (error)
                break;
            const mms::Bytes octets = mms::Bytes(buffer).first(size);
            const bool wasReached = m_isReached;
            watch(octets);
            if (m_isReached && !wasReached && co_await misbehaveUnasked())
                break;
            co_await asio::async_write(m_device, asio::buffer(buffer.data(), size),
                                       asio::redirect_error(asio::use_awaitable, error));
            if (error)
                break;
        }
        close();
    }

    asio::awaitable<void> toClient()
    {
        osi::TpktReader reader;
        Octets buffer(64 * 1024);
        asio::error_code error;
        while (!error) {
            const std::size_t size = co_await m_device.async_read_some(
                asio::buffer(buffer), asio::redirect_error(asio::use_awaitable, error));
            if (error)
                break;
            reader.append(mms::Bytes(buffer).first(size));
            for (;;) {
                const auto payload = reader.next();
                if (!payload || !*payload)
                    break;
                const Octets octets = packet(**payload);
                co_await deliver(octets);
            }
        }
        close();
    }

    asio::awaitable<void> deliver(Octets octets)
    {
        switch (conduct()) {
        case Conduct::Silence:
            co_return;
        case Conduct::Close:
        case Conduct::Reset:
        case Conduct::EndlessParts:
        case Conduct::HugePdu:
            // Nothing of the server comes through behind that.
            co_return;
        case Conduct::HalfAnswer:
            octets.resize(std::max<std::size_t>(octets.size() / 2, 1));
            co_await write(octets);
            close();
            co_return;
        case Conduct::Drip:
            for (std::size_t i = 0; i < octets.size(); ++i) {
                co_await write(Octets(1, octets[i]));
                co_await pause(drippingPause);
            }
            co_return;
        case Conduct::Late:
            if (m_late++ < lateAnswers)
                co_await pause(lateness);
            break;
        case Conduct::Doubled:
            co_await write(octets);
            break;
        case Conduct::Garbage:
            m_isSpoilt = true;
            for (std::uint8_t &octet : octets)
                octet = static_cast<std::uint8_t>(m_random());
            break;
        case Conduct::Honest:
            break;
        }
        co_await write(octets);
    }

    asio::awaitable<void> flood()
    {
        const Conduct kind = conduct();
        const Octets part = kind == Conduct::HugePdu ? hugePdu() : endlessPart(false);
        for (std::uint64_t sent = 0; sent < longestFlood && conduct() == kind;
             sent += part.size()) {
            if (!co_await write(part))
                break;
            m_state.flooded += part.size();
        }
        close();
    }

    asio::awaitable<bool> write(Octets octets)
    {
        asio::error_code error;
        co_await asio::async_write(m_client, asio::buffer(octets),
                                   asio::redirect_error(asio::use_awaitable, error));
        co_return !error;
    }

    /// Not once the line is honest again.
    asio::awaitable<void> pause(milliseconds time)
    {
        if (conduct() == Conduct::Honest || !m_client.is_open())
            co_return;
        asio::error_code ignored;
        m_timer.expires_after(time);
        co_await m_timer.async_wait(asio::redirect_error(asio::use_awaitable, ignored));
    }

    State &m_state;
    tcp::socket m_client;
    tcp::socket m_device;
    asio::steady_timer m_timer;
    osi::Stack m_watcher;
    std::minstd_rand m_random;
    int m_late = 0;
    bool m_isReached = false;
    bool m_isSpoilt = false;
};

HostileLine::HostileLine(std::uint16_t target)
    : m_state(std::make_shared<State>(target))
{
    const auto acceptAll = [](State &state) -> asio::awaitable<void> {
        for (;;) {
            asio::error_code error;
            tcp::socket client = co_await state.acceptor.async_accept(
                asio::redirect_error(asio::use_awaitable, error));
            if (error)
                co_return;
            const auto session = std::make_shared<Session>(state, std::move(client));
            state.sessions.insert(session);
            asio::co_spawn(state.context, session->run(), asio::detached);
        }
    };
    asio::co_spawn(m_state->context, acceptAll(*m_state), asio::detached);
    m_state->thread = std::thread([this] { m_state->context.run(); });
}

HostileLine::~HostileLine()
{
    asio::post(m_state->context, [state = m_state] {
        asio::error_code ignored;
        state->acceptor.close(ignored);
        for (const auto &session : std::set(state->sessions))
            session->close();
        state->work.reset();
    });
    m_state->thread.join();
}

std::uint16_t HostileLine::port() const
{
    return m_state->acceptor.local_endpoint().port();
}

void HostileLine::misbehave(Step step, Conduct conduct)
{
    m_state->reached = 0;
    m_state->step = step;
    m_state->conduct = conduct;
}

void HostileLine::behave()
{
    m_state->conduct = Conduct::Honest;
    asio::post(m_state->context, [state = m_state] {
        for (const auto &session : std::set(state->sessions)) {
            session->wake();
            if (session->isSpoilt())
                session->close();
        }
    });
}

void HostileLine::exchange(std::uint16_t target)
{
    m_state->target = target;
    asio::post(m_state->context, [state = m_state] {
        for (const auto &session : std::set(state->sessions))
            session->close();
    });
}

int HostileLine::reached() const
{
    return m_state->reached;
}

std::uint64_t HostileLine::floodedOctets() const
{
    return m_state->flooded;
}

} // namespace hostile
