// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/calls.h"
#include "mms/pdu.h"
#include "osi/link.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace mms {

/// No side may offer a PDU size below this: some devices crash on small ones.
inline constexpr std::int32_t smallestPduSize = 1000;

/// A call that got no answer of the peer's service.
struct CallFailure
{
    enum class Kind : std::uint8_t {
        NotOpen,   ///< there is no association
        TooLarge,  ///< the request is longer than the negotiated PDU size; nothing was sent
        TimedOut,  ///< the deadline passed
        Cancelled, ///< by cancel()
        Lost,      ///< the association ended before the answer
        Malformed  ///< the answer cannot be read; it was rejected
    };

    Kind kind = Kind::NotOpen;
    Text message; ///< one sentence
    /// False for a call that waited for a place until it ended: the peer was never asked.
    bool wasSent = true;
};

/// What a call that is given up does to the places for calls on the way.
enum class GivenUpCall : std::uint8_t {
    KeepsItsPlace, ///< until its answer comes or AssociationOptions::grace is over
    LeavesItsPlace ///< at once; for questions that some peers never answer
};

/// How a call ended.
using CallOutcome = std::variant<ResponseService, ServiceError, RejectPdu, CallFailure>;

/// The answer when it is of the service that was called; none otherwise. Lives as long as
/// @p outcome.
template <typename Response>
const Response *answerOf(const CallOutcome &outcome)
{
    const auto *service = std::get_if<ResponseService>(&outcome);
    return service ? std::get_if<Response>(service) : nullptr;
}

/// Why a call has no answer, as one sentence; empty for an answer.
Text failureText(const CallOutcome &outcome);

struct AssociationOptions
{
    osi::LinkOptions link;
    /// Longest PDU that is offered or accepted, in octets; raised to smallestPduSize.
    std::int32_t maxPduSize = 65000;
    /// Calls that this side wants to have on the way, and calls that it serves, at the same time.
    std::int16_t maxOutstandingCalling = 5;
    std::int16_t maxOutstandingCalled = 5;
    std::int8_t nestingLevel = 10;
    BitString parameters = BitString::fromText("11110001");
    /// What this side serves; as initiator a peer asks for little.
    BitString services;
    /// How long a call that was given up keeps its place.
    std::chrono::milliseconds grace{10000};
    /// How long conclude() waits for calls under way before it gives them up.
    std::chrono::milliseconds concludePatience{1000};
    /// A peer that says nothing for so long is cut off; 0 for never. Meant for servers.
    std::chrono::milliseconds idleLimit{0};
};

struct AssociationCounters
{
    std::uint64_t late = 0;      ///< answers to calls that had been given up
    std::uint64_t unknown = 0;   ///< answers to invoke ids that nobody used
    std::uint64_t malformed = 0; ///< PDUs that cannot be read
    std::uint64_t unsent = 0;    ///< reports that were too long or came without an association
};

/// What became of a report.
enum class ReportFate : std::uint8_t {
    Queued,  ///< it is on its way; reports and answers arrive in the order they were handed over
    TooLong, ///< it is longer than the negotiated PDU size; nothing was sent
    NotOpen  ///< there is no association
};

/// MMS on a network connection, as one or the other side. Every member function may be called from
/// any thread; every handler is called in the association's strand, one at a time.
///
/// Each call ends by exactly one call of its handler: with the answer, or at the latest at its
/// deadline, whatever the peer does. After Handlers::closed nothing is called any more. The
/// execution context outlives the association.
class Association : public std::enable_shared_from_this<Association>
{
    struct Private
    {
    };

public:
    using CallId = std::uint64_t;
    using CallHandler = std::function<void(CallOutcome outcome)>;
    using OpenHandler = std::function<void(Result<InitiateParameters> negotiated)>;

    struct Handlers
    {
        /// The peer calls a service; answer once with respond(), fail() or reject(), now or later.
        /// Without a handler, and for a service that cannot be read, the request is rejected.
        std::function<void(const std::shared_ptr<Association> &association, std::uint32_t invokeId,
                           RequestService request)>
            request;
        /// The peer does not want the answer to a request any more. True when the request was
        /// given up: it must not be answered then, and the peer is told. Without a handler every
        /// request goes on.
        std::function<bool(const std::shared_ptr<Association> &association, std::uint32_t invokeId)>
            cancel;
        std::function<void(InformationReport report)> report;
        /// The association, which had been open, has ended; one sentence says why.
        std::function<void(const Text &reason)> closed;
    };

    /// The side that connects.
    static std::shared_ptr<Association> create(const asio::any_io_executor &executor,
                                               AssociationOptions options, Handlers handlers);
    /// The side that was connected to. The executor of @p socket is @p strand; @p self is set
    /// before the first handler is called. @p tls is what osi::LinkOptions::tls describes, where it
    /// is loaded already.
    static std::shared_ptr<Association> serve(osi::Strand strand, asio::ip::tcp::socket socket,
                                              AssociationOptions options, Handlers handlers,
                                              OpenHandler opened, std::weak_ptr<Association> &self,
                                              std::shared_ptr<const osi::TlsContext> tls = {});
    Association(Private, osi::Strand strand, AssociationOptions options, Handlers handlers);
    ~Association();

    /// Ask for an association. Not again on the same object.
    void connect(std::string host, std::uint16_t port, OpenHandler handler);
    asio::awaitable<Result<InitiateParameters>> connect(std::string host, std::uint16_t port);

    /// Call a service of the peer. @p timeout counts from now, waiting for a place included.
    CallId call(RequestService request, std::chrono::milliseconds timeout, CallHandler handler,
                GivenUpCall givenUp = GivenUpCall::KeepsItsPlace);
    /// Cancelling the awaiting coroutine cancels the call.
    asio::awaitable<CallOutcome> call(RequestService request, std::chrono::milliseconds timeout,
                                      GivenUpCall givenUp = GivenUpCall::KeepsItsPlace);
    /// End a call with CallFailure::Kind::Cancelled, unless it is over. A peer that knows the
    /// service Cancel is told, as it is of a call whose deadline passed.
    void cancel(CallId id);

    // An answer to a request that is not open, such as one that was cancelled, is dropped.
    void respond(std::uint32_t invokeId, ResponseService response);
    void fail(std::uint32_t invokeId, ServiceError error);
    void reject(std::uint32_t invokeId, std::int32_t code);
    /// @p handler hears what became of the report. A report longer than the negotiated PDU size is
    /// not sent: who has a long one divides it before.
    void report(InformationReport report, std::function<void(ReportFate fate)> handler = {});
    /// Calls @p handler once, as soon as at most @p octets wait for the network, at once when they
    /// do already; never when the association ends before. Who sends much holds back until then: an
    /// association with more than osi::LinkOptions::maxQueued octets waiting is cut off.
    void whenQueued(std::size_t octets, std::function<void()> handler);

    /// Conclude and release; the handler hears how it went. Calls under way are waited for, but not
    /// beyond AssociationOptions::concludePatience; new ones are refused. An association that
    /// cannot be concluded in time is aborted.
    void conclude(std::function<void(Result<void> result)> handler);
    asio::awaitable<Result<void>> conclude();
    /// End at once.
    void abort(const Text &reason);

    /// What was negotiated; meant for handlers, valid in the strand after opening.
    const InitiateParameters &negotiated() const { return m_negotiated; }
    /// The longest PDU in octets that both sides take; 0 before opening. In any thread.
    std::size_t pduSize() const { return m_pduSize; }
    /// Octets that wait for the network; in the strand.
    std::size_t queued() const { return m_link->queued(); }
    /// Who the peer of an association with TLS is; in the strand, from opening on.
    std::optional<osi::TlsPeer> tlsPeer() const { return m_link->tlsPeer(); }
    /// The network address of the peer in network order, 4 or 16 octets; empty without a
    /// connection. In the strand.
    std::vector<std::uint8_t> peerAddress() const { return m_link->peerAddress(); }
    /// The network address of this end, in the same form: what a device sees of this client, unless
    /// something between them translates addresses.
    std::vector<std::uint8_t> localAddress() const { return m_link->localAddress(); }
    const osi::Strand &strand() const { return m_strand; }
    AssociationCounters counters() const;

private:
    struct Call
    {
        CallId id;
        RequestService request;
        CallHandler handler;
    };

    InitiateParameters proposal() const;
    void handle(osi::StackEvent event);
    void handleIndication(const osi::AssociateIndication &indication);
    void handleConfirm(const osi::AssociateConfirm &confirm);
    void handlePdu(Bytes octets);
    void handleRequest(ConfirmedRequestPdu pdu);
    void handleReject(const RejectPdu &reject, const PduHead &head, Bytes octets);
    void handleCancel(std::uint32_t invokeId);
    bool closeRequest(std::uint32_t invokeId);
    void handleAnswer(const PduHead &head, Bytes octets);
    void sendConclude();
    void concluded(Result<void> result);
    void answerConclude();
    void rejectMalformed(const std::optional<PduHead> &head);
    void sendCalls();
    void finish(CallTable::Ticket ticket, CallOutcome outcome);
    void startTimer();
    void expireTimer();
    void tellCancelled(CallTable::Ticket ticket);
    bool isIdle(CallTable::Clock::time_point now) const;
    bool send(const Pdu &pdu);
    void open(const InitiateParameters &parameters);
    void close(const Text &reason);
    void cancelInStrand(CallId id);
    void giveUp(CallTable::Ticket ticket, Text reason);

    osi::Strand m_strand;
    AssociationOptions m_options;
    Handlers m_handlers;
    std::shared_ptr<osi::Link> m_link;
    OpenHandler m_opened;
    std::function<void(Result<void>)> m_concluded;
    InitiateParameters m_negotiated;
    std::atomic<std::size_t> m_pduSize{0};
    bool m_open = false;
    bool m_closed = false;
    bool m_isConcluding = false;      ///< conclude() was called
    bool m_hasSentConclude = false;   ///< after the calls that were under way
    bool m_isConcludeAwaited = false; ///< the peer asked; it is answered after its requests
    std::vector<std::uint32_t> m_openRequests;
    BitString m_peerServices;
    bool m_refusesCancel = false;
    CallTable m_table;
    std::map<CallTable::Ticket, Call> m_calls;
    asio::steady_timer m_timer;
    asio::steady_timer m_concludeTimer;
    bool m_timerRuns = false;
    std::atomic<CallId> m_lastId{0};
    std::atomic<std::uint64_t> m_late{0};
    std::atomic<std::uint64_t> m_unknown{0};
    std::atomic<std::uint64_t> m_malformed{0};
    std::atomic<std::uint64_t> m_unsent{0};
};

} // namespace mms
