// SPDX-License-Identifier: Apache-2.0
// The calls of an association: sending them as places become free, their answers and deadlines.
#include "mms/association.h"

#include "mms/completion.h"

#include <asio/dispatch.hpp>

#include <algorithm>

namespace mms {

namespace {

CallFailure failure(CallFailure::Kind kind, Text message)
{
    return {kind, std::move(message)};
}

} // namespace

Text failureText(const CallOutcome &outcome)
{
    if (const auto *error = std::get_if<ServiceError>(&outcome))
        return describe(*error);
    if (const auto *reject = std::get_if<RejectPdu>(&outcome))
        return describe(*reject);
    if (const auto *none = std::get_if<CallFailure>(&outcome))
        return none->message;
    return {};
}

Association::CallId Association::call(RequestService request, std::chrono::milliseconds timeout,
                                      CallHandler handler, GivenUpCall givenUp)
{
    const CallId id = ++m_lastId;
    const auto deadline = CallTable::Clock::now() + timeout;
    asio::dispatch(m_strand, [self = shared_from_this(), id, deadline, givenUp,
                              request = std::move(request),
                              handler = std::move(handler)]() mutable {
        if (!self->m_open || self->m_isConcluding) {
            handler(failure(CallFailure::Kind::NotOpen,
                            self->m_open ? say("The association is being concluded.")
                                         : say("There is no association.")));
            return;
        }
        const CallTable::Ticket ticket =
            self->m_table.add(deadline, givenUp == GivenUpCall::LeavesItsPlace);
        self->m_calls.emplace(ticket, Call{id, std::move(request), std::move(handler)});
        self->sendCalls();
    });
    return id;
}

asio::awaitable<CallOutcome>
Association::call(RequestService request, std::chrono::milliseconds timeout, GivenUpCall givenUp)
{
    const auto self = shared_from_this();
    co_return co_await asio::async_initiate<const asio::use_awaitable_t<>, void(CallOutcome)>(
        [&](auto handler) {
            auto shared = std::make_shared<decltype(handler)>(std::move(handler));
            auto slot = asio::get_associated_cancellation_slot(*shared);
            const auto target = std::make_shared<std::atomic<CallId>>(0);
            if (slot.is_connected()) {
                slot.assign([weak = self->weak_from_this(), target](asio::cancellation_type) {
                    if (const auto association = weak.lock())
                        association->cancel(*target);
                });
            }
            *target = self->call(std::move(request), timeout,
                                 completing<CallOutcome>(self->m_link, std::move(shared)), givenUp);
        },
        asio::use_awaitable);
}

void Association::cancel(CallId id)
{
    asio::post(m_strand, [self = shared_from_this(), id] { self->cancelInStrand(id); });
}

void Association::cancelInStrand(CallId id)
{
    const auto found =
        std::ranges::find_if(m_calls, [id](const auto &entry) { return entry.second.id == id; });
    if (found == m_calls.end())
        return;
    giveUp(found->first, say("The call was cancelled."));
    startTimer();
}

void Association::giveUp(CallTable::Ticket ticket, Text reason)
{
    m_table.cancel(ticket, CallTable::Clock::now());
    tellCancelled(ticket);
    finish(ticket, failure(CallFailure::Kind::Cancelled, std::move(reason)));
}

void Association::handleAnswer(const PduHead &head, Bytes octets)
{
    if (!head.invokeId) {
        ++m_unknown;
        return;
    }
    const auto ticket = m_table.answered(*head.invokeId);
    m_late = m_table.counters().late;
    m_unknown = m_table.counters().unknown;
    if (ticket) {
        auto pdu = decodePdu(octets);
        if (!pdu) {
            ++m_malformed;
            if (head.type != PduHead::reject) {
                send(RejectPdu{head.invokeId,
                               head.type == PduHead::confirmedResponse
                                   ? RejectedPdu::ConfirmedResponse
                                   : RejectedPdu::ConfirmedError,
                               rejectcodes::responseInvalidResult});
            }
            finish(*ticket, failure(CallFailure::Kind::Malformed,
                                    say("The answer cannot be read: %1.", pdu.error().message)));
        } else if (auto *response = std::get_if<ConfirmedResponsePdu>(&*pdu)) {
            finish(*ticket, std::move(response->response));
        } else if (auto *error = std::get_if<ConfirmedErrorPdu>(&*pdu)) {
            finish(*ticket, std::move(error->error));
        } else if (auto *reject = std::get_if<RejectPdu>(&*pdu)) {
            finish(*ticket, std::move(*reject));
        }
    }
    sendCalls();
}

void Association::sendCalls()
{
    while (m_open) {
        const auto next = m_table.next();
        if (!next)
            break;
        Call &call = m_calls.at(next->ticket);
        if (send(ConfirmedRequestPdu{next->invokeId, std::move(call.request)}))
            continue;
        m_table.answered(next->invokeId);
        finish(next->ticket,
               failure(CallFailure::Kind::TooLarge,
                       say("The request is longer than the negotiated PDU size of %1 octets.",
                           m_pduSize.load())));
    }
    startTimer();
}

void Association::finish(CallTable::Ticket ticket, CallOutcome outcome)
{
    auto call = m_calls.extract(ticket);
    if (!call.empty())
        call.mapped().handler(std::move(outcome));
    sendConclude();
}

// The timer may fire earlier than needed: setting it again for each call would cost more.
void Association::startTimer()
{
    if (!m_open)
        return;
    auto deadline = m_table.nextDeadline();
    if (m_options.idleLimit.count() > 0) {
        const auto idle = m_link->lastHeard() + m_options.idleLimit;
        deadline = deadline ? std::min(*deadline, idle) : idle;
    }
    if (!deadline || (m_timerRuns && m_timer.expiry() <= *deadline))
        return;
    m_timer.expires_at(*deadline);
    m_timerRuns = true;
    m_timer.async_wait([weak = weak_from_this()](const asio::error_code &error) {
        const auto self = weak.lock();
        if (!error && self)
            self->expireTimer();
    });
}

void Association::expireTimer()
{
    m_timerRuns = false;
    const auto now = CallTable::Clock::now();
    for (const CallTable::Ticket ticket : m_table.expire(now)) {
        CallFailure late =
            failure(CallFailure::Kind::TimedOut, say("The peer did not answer in time."));
        late.wasSent = m_table.placeOf(ticket).has_value();
        if (!late.wasSent)
            late.message = say(
                "The request was not sent: it waited for a place behind calls that the peer has not answered.");
        tellCancelled(ticket);
        finish(ticket, std::move(late));
    }
    if (isIdle(now)) {
        m_link->abort(say("The peer said nothing for %1 ms.", m_options.idleLimit.count()));
        return;
    }
    sendCalls();
}

void Association::tellCancelled(CallTable::Ticket ticket)
{
    const auto invokeId = m_table.placeOf(ticket);
    if (m_open && invokeId && !m_refusesCancel &&
        m_peerServices.test(static_cast<std::size_t>(Service::Cancel)))
        send(CancelRequestPdu{*invokeId});
}

bool Association::isIdle(CallTable::Clock::time_point now) const
{
    return m_open && m_options.idleLimit.count() > 0 &&
           m_link->lastHeard() + m_options.idleLimit <= now;
}

} // namespace mms
