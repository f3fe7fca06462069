// SPDX-License-Identifier: Apache-2.0
// The beginning and the end of an association, and what it does between them for the peer. Its own
// calls are in associationcalls.cpp.
#include "mms/association.h"

#include "mms/completion.h"

#include <asio/dispatch.hpp>
#include <asio/post.hpp>
#include <asio/use_awaitable.hpp>

#include <algorithm>
#include <utility>

namespace mms {

namespace {

constexpr std::int32_t unconfirmedInvalidArgument = 2;

} // namespace

std::shared_ptr<Association> Association::create(const asio::any_io_executor &executor,
                                                 AssociationOptions options, Handlers handlers)
{
    auto strand = osi::strandOn(executor);
    const auto association =
        std::make_shared<Association>(Private(), strand, std::move(options), std::move(handlers));
    association->m_link = std::make_shared<osi::Link>(strand, association->m_options.link);
    return association;
}

std::shared_ptr<Association> Association::serve(osi::Strand strand, asio::ip::tcp::socket socket,
                                                AssociationOptions options, Handlers handlers,
                                                OpenHandler opened,
                                                std::weak_ptr<Association> &self,
                                                std::shared_ptr<const osi::TlsContext> tls)
{
    const auto association =
        std::make_shared<Association>(Private(), strand, std::move(options), std::move(handlers));
    association->m_opened = std::move(opened);
    association->m_link = std::make_shared<osi::Link>(strand, association->m_options.link,
                                                      std::move(socket), std::move(tls));
    self = association;
    asio::dispatch(strand, [association] {
        association->m_link->serve(
            [association](osi::StackEvent event) { association->handle(std::move(event)); });
    });
    return association;
}

namespace {

/// No answer fits a PDU that is shorter; what is longer is a matter of single calls.
constexpr std::int32_t uselessPduSize = 64;

} // namespace

Association::Association(Private, osi::Strand strand, AssociationOptions options, Handlers handlers)
    : m_strand(std::move(strand))
    , m_options(std::move(options))
    , m_handlers(std::move(handlers))
    , m_table(1, m_options.grace)
    , m_timer(m_strand)
    , m_concludeTimer(m_strand)
{
    m_options.maxPduSize = std::max(m_options.maxPduSize, smallestPduSize);
}

Association::~Association() = default;

void Association::connect(std::string host, std::uint16_t port, OpenHandler handler)
{
    asio::dispatch(m_strand, [self = shared_from_this(), host = std::move(host), port,
                              handler = std::move(handler)]() mutable {
        self->m_opened = std::move(handler);
        self->m_link->connect(std::move(host), port, encode(InitiateRequestPdu{self->proposal()}),
                              [self](osi::StackEvent event) { self->handle(std::move(event)); });
    });
}

asio::awaitable<Result<InitiateParameters>> Association::connect(std::string host,
                                                                 std::uint16_t port)
{
    const auto self = shared_from_this();
    co_return co_await asio::async_initiate<const asio::use_awaitable_t<>,
                                            void(Result<InitiateParameters>)>(
        [&](auto handler) {
            auto shared = std::make_shared<decltype(handler)>(std::move(handler));
            self->connect(std::move(host), port,
                          completing<Result<InitiateParameters>>(self->m_link, std::move(shared)));
        },
        asio::use_awaitable);
}

void Association::respond(std::uint32_t invokeId, ResponseService response)
{
    asio::dispatch(
        m_strand, [self = shared_from_this(), invokeId, response = std::move(response)]() mutable {
            if (!self->closeRequest(invokeId))
                return;
            if (!self->send(ConfirmedResponsePdu{invokeId, std::move(response)})) {
                ServiceError error{ErrorClass::Resource, serviceerrors::resourceOther, {}, {}, {}};
                self->send(ConfirmedErrorPdu{invokeId, std::nullopt, std::move(error)});
            }
            self->answerConclude();
        });
}

void Association::fail(std::uint32_t invokeId, ServiceError error)
{
    asio::dispatch(m_strand,
                   [self = shared_from_this(), invokeId, error = std::move(error)]() mutable {
                       if (!self->closeRequest(invokeId))
                           return;
                       self->send(ConfirmedErrorPdu{invokeId, std::nullopt, std::move(error)});
                       self->answerConclude();
                   });
}

void Association::reject(std::uint32_t invokeId, std::int32_t code)
{
    asio::dispatch(m_strand, [self = shared_from_this(), invokeId, code] {
        if (!self->closeRequest(invokeId))
            return;
        self->send(RejectPdu{invokeId, RejectedPdu::ConfirmedRequest, code});
        self->answerConclude();
    });
}

bool Association::closeRequest(std::uint32_t invokeId)
{
    const auto found = std::ranges::find(m_openRequests, invokeId);
    if (found == m_openRequests.end())
        return false;
    m_openRequests.erase(found);
    return true;
}

void Association::report(InformationReport report, std::function<void(ReportFate)> handler)
{
    asio::dispatch(m_strand, [self = shared_from_this(), report = std::move(report),
                              handler = std::move(handler)]() mutable {
        const ReportFate fate = !self->m_open ? ReportFate::NotOpen
                                : self->send(UnconfirmedPdu{std::move(report)})
                                    ? ReportFate::Queued
                                    : ReportFate::TooLong;
        if (fate != ReportFate::Queued)
            ++self->m_unsent;
        if (handler)
            handler(fate);
    });
}

void Association::whenQueued(std::size_t octets, std::function<void()> handler)
{
    asio::dispatch(m_strand,
                   [self = shared_from_this(), octets, handler = std::move(handler)]() mutable {
                       self->m_link->whenQueued(octets, std::move(handler));
                   });
}

void Association::conclude(std::function<void(Result<void>)> handler)
{
    asio::dispatch(m_strand, [self = shared_from_this(), handler = std::move(handler)]() mutable {
        if (!self->m_open) {
            handler(Error{say("There is no association."), 0});
            return;
        }
        if (self->m_isConcluding) {
            self->m_concluded = [first = std::move(self->m_concluded),
                                 second = std::move(handler)](const Result<void> &result) {
                first(result);
                second(result);
            };
            return;
        }
        self->m_concluded = std::move(handler);
        self->m_isConcluding = true;
        self->sendConclude();
        if (self->m_hasSentConclude)
            return;
        self->m_concludeTimer.expires_after(self->m_options.concludePatience);
        self->m_concludeTimer.async_wait(
            [weak = self->weak_from_this()](const asio::error_code &error) {
                const auto association = weak.lock();
                if (error || !association)
                    return;
                while (association->m_isConcluding && !association->m_calls.empty())
                    association->giveUp(association->m_calls.begin()->first,
                                        say("The association is being concluded."));
                association->sendConclude();
            });
    });
}

/// A peer refuses to conclude while it works on a call.
void Association::sendConclude()
{
    if (!m_open || !m_isConcluding || m_hasSentConclude || !m_calls.empty())
        return;
    m_hasSentConclude = true;
    m_concludeTimer.cancel();
    send(ConcludeRequestPdu());
    m_link->expectRelease();
}

void Association::concluded(Result<void> result)
{
    m_isConcluding = false;
    m_hasSentConclude = false;
    m_concludeTimer.cancel();
    if (const auto handler = std::exchange(m_concluded, nullptr))
        handler(std::move(result));
}

void Association::answerConclude()
{
    if (!m_isConcludeAwaited || !m_openRequests.empty())
        return;
    m_isConcludeAwaited = false;
    send(ConcludeResponsePdu());
}

asio::awaitable<Result<void>> Association::conclude()
{
    const auto self = shared_from_this();
    co_return co_await asio::async_initiate<const asio::use_awaitable_t<>, void(Result<void>)>(
        [&](auto handler) {
            auto shared = std::make_shared<decltype(handler)>(std::move(handler));
            self->conclude(completing<Result<void>>(self->m_link, std::move(shared)));
        },
        asio::use_awaitable);
}

void Association::abort(const Text &reason)
{
    asio::dispatch(m_strand, [self = shared_from_this(), reason] { self->m_link->abort(reason); });
}

AssociationCounters Association::counters() const
{
    return {m_late, m_unknown, m_malformed, m_unsent};
}

InitiateParameters Association::proposal() const
{
    InitiateParameters parameters;
    parameters.maxPduSize = m_options.maxPduSize;
    parameters.maxOutstandingCalling = m_options.maxOutstandingCalling;
    parameters.maxOutstandingCalled = m_options.maxOutstandingCalled;
    parameters.nestingLevel = m_options.nestingLevel;
    parameters.parameters = m_options.parameters;
    parameters.parameters.set(parameterBits - 1, m_options.parameters.test(parameterBits - 1));
    parameters.services = m_options.services;
    parameters.services.set(serviceBits - 1, m_options.services.test(serviceBits - 1));
    return parameters;
}

void Association::handle(osi::StackEvent event)
{
    if (const auto *indication = std::get_if<osi::AssociateIndication>(&event)) {
        handleIndication(*indication);
    } else if (const auto *confirm = std::get_if<osi::AssociateConfirm>(&event)) {
        handleConfirm(*confirm);
    } else if (const auto *pdu = std::get_if<osi::PduIndication>(&event)) {
        handlePdu(pdu->pdu);
    } else if (const auto *refused = std::get_if<osi::AssociateRefused>(&event)) {
        const auto answer = decodePdu(refused->pdu);
        const auto *error = answer ? std::get_if<InitiateErrorPdu>(&*answer) : nullptr;
        close(error ? wording::sentences(refused->reason, describe(error->error))
                    : refused->reason);
    } else if (std::holds_alternative<osi::ReleaseIndication>(event)) {
        m_link->answerRelease();
    } else if (std::holds_alternative<osi::ReleaseConfirm>(event)) {
        concluded({});
        close(say("The association was released."));
    } else if (const auto *lost = std::get_if<osi::AssociationLost>(&event)) {
        close(lost->reason);
    }
}

void Association::handleIndication(const osi::AssociateIndication &indication)
{
    const auto pdu = decodePdu(indication.pdu);
    const auto *request = pdu ? std::get_if<InitiateRequestPdu>(&*pdu) : nullptr;
    const auto refuse = [this] {
        m_link->refuse(osi::acse::Result::RejectedPermanently, osi::acse::diagnosticNoReason,
                       encode(InitiateErrorPdu{{ErrorClass::Initiate, 0, {}, {}, {}}}));
    };
    if (!request) {
        ++m_malformed;
        refuse();
        return;
    }
    const InitiateParameters &asked = request->parameters;
    InitiateParameters agreed = proposal();
    agreed.maxPduSize =
        std::min(asked.maxPduSize.value_or(m_options.maxPduSize), m_options.maxPduSize);
    if (*agreed.maxPduSize < uselessPduSize) {
        refuse();
        return;
    }
    const auto atLeastOne = [](std::int16_t value) { return std::max<std::int16_t>(value, 1); };
    agreed.maxOutstandingCalling =
        atLeastOne(std::min(asked.maxOutstandingCalling, m_options.maxOutstandingCalled));
    agreed.maxOutstandingCalled =
        atLeastOne(std::min(asked.maxOutstandingCalled, m_options.maxOutstandingCalling));
    agreed.nestingLevel =
        std::min(asked.nestingLevel.value_or(m_options.nestingLevel), m_options.nestingLevel);
    for (std::size_t bit = 0; bit < agreed.parameters.size(); ++bit)
        agreed.parameters.set(bit, agreed.parameters.test(bit) && asked.parameters.test(bit));
    m_table.setLimit(static_cast<std::size_t>(agreed.maxOutstandingCalled));
    m_peerServices = asked.services;
    m_link->accept(encode(InitiateResponsePdu{agreed}));
    open(agreed);
}

void Association::handleConfirm(const osi::AssociateConfirm &confirm)
{
    const auto pdu = decodePdu(confirm.pdu);
    if (!pdu) {
        ++m_malformed;
        m_link->abort(say("The peer's initiate answer cannot be read: %1.", pdu.error().message));
        return;
    }
    if (const auto *error = std::get_if<InitiateErrorPdu>(&*pdu)) {
        m_link->abort(wording::sentences(say("The peer refuses the initiate request."),
                                         describe(error->error)));
        return;
    }
    const auto *response = std::get_if<InitiateResponsePdu>(&*pdu);
    if (!response) {
        m_link->abort(say("The peer answered the initiate request with something else."));
        return;
    }
    InitiateParameters agreed = response->parameters;
    agreed.maxPduSize =
        std::min(agreed.maxPduSize.value_or(m_options.maxPduSize), m_options.maxPduSize);
    if (*agreed.maxPduSize < uselessPduSize) {
        m_link->abort(say("The peer's PDU size of %1 octets is too small.", *agreed.maxPduSize));
        return;
    }
    agreed.maxOutstandingCalling =
        std::min(agreed.maxOutstandingCalling, m_options.maxOutstandingCalling);
    m_table.setLimit(
        static_cast<std::size_t>(std::max<std::int16_t>(agreed.maxOutstandingCalling, 1)));
    m_peerServices = agreed.services;
    open(agreed);
}

void Association::handlePdu(Bytes octets)
{
    const auto head = peekPdu(octets);
    if (head && head->invokeId &&
        (head->type == PduHead::confirmedResponse || head->type == PduHead::confirmedError)) {
        handleAnswer(*head, octets);
        return;
    }
    auto pdu = decodePdu(octets);
    if (!pdu) {
        rejectMalformed(head);
        return;
    }
    if (auto *request = std::get_if<ConfirmedRequestPdu>(&*pdu)) {
        handleRequest(std::move(*request));
    } else if (auto *unconfirmed = std::get_if<UnconfirmedPdu>(&*pdu)) {
        auto *report = std::get_if<InformationReport>(&unconfirmed->service);
        if (report && m_handlers.report)
            m_handlers.report(std::move(*report));
    } else if (const auto *reject = std::get_if<RejectPdu>(&*pdu)) {
        handleReject(*reject, head.value_or(PduHead()), octets);
    } else if (const auto *cancel = std::get_if<CancelRequestPdu>(&*pdu)) {
        handleCancel(cancel->invokeId);
    } else if (const auto *refused = std::get_if<CancelErrorPdu>(&*pdu)) {
        // What the peer does not know it will not answer either; else the answer frees the place.
        if (refused->error.errorClass == ErrorClass::Cancel &&
            refused->error.code == serviceerrors::cancelInvokeIdUnknown) {
            m_table.forget(refused->invokeId);
            sendCalls();
        }
    } else if (std::holds_alternative<ConcludeRequestPdu>(*pdu)) {
        m_isConcludeAwaited = true;
        answerConclude();
    } else if (std::holds_alternative<ConcludeResponsePdu>(*pdu)) {
        if (m_hasSentConclude)
            m_link->release();
    } else if (const auto *error = std::get_if<ConcludeErrorPdu>(&*pdu)) {
        if (m_hasSentConclude) {
            m_link->forgetRelease();
            concluded(Error{describe(error->error), 0});
        }
    }
}

void Association::handleReject(const RejectPdu &reject, const PduHead &head, Bytes octets)
{
    switch (reject.rejected) {
    case RejectedPdu::ConfirmedRequest:
    case RejectedPdu::PduError:
        handleAnswer(head, octets);
        return;
    case RejectedPdu::CancelRequest:
        m_refusesCancel = true;
        return;
    case RejectedPdu::ConcludeRequest:
        if (m_hasSentConclude) {
            m_link->forgetRelease();
            concluded(Error{describe(reject), 0});
        }
        return;
    default:
        return;
    }
}

void Association::handleCancel(std::uint32_t invokeId)
{
    const auto refuse = [this, invokeId](std::int32_t code) {
        send(CancelErrorPdu{invokeId, {ErrorClass::Cancel, code, {}, {}, {}}});
    };
    if (!std::ranges::count(m_openRequests, invokeId))
        return refuse(serviceerrors::cancelInvokeIdUnknown);
    if (!m_handlers.cancel || !m_handlers.cancel(shared_from_this(), invokeId))
        return refuse(serviceerrors::cancelNotPossible);
    if (!closeRequest(invokeId))
        return refuse(serviceerrors::cancelInvokeIdUnknown);
    send(CancelResponsePdu{invokeId});
    send(ConfirmedErrorPdu{invokeId,
                           std::nullopt,
                           {ErrorClass::ServicePreempt, serviceerrors::preemptCancel, {}, {}, {}}});
    answerConclude();
}

void Association::handleRequest(ConfirmedRequestPdu pdu)
{
    const std::uint32_t invokeId = pdu.invokeId;
    m_openRequests.push_back(invokeId);
    // Some peers use one place more than agreed; twice the number is no mistake in counting.
    const auto limit =
        2 * static_cast<std::size_t>(std::max<std::int16_t>(m_options.maxOutstandingCalled, 1));
    if (m_openRequests.size() > limit)
        reject(invokeId, rejectcodes::requestMaxOutstandingExceeded);
    else if (!m_handlers.request || std::holds_alternative<UnknownService>(pdu.request))
        reject(invokeId, rejectcodes::requestUnrecognizedService);
    else
        m_handlers.request(shared_from_this(), invokeId, std::move(pdu.request));
}

void Association::rejectMalformed(const std::optional<PduHead> &head)
{
    ++m_malformed;
    if (!head)
        send(RejectPdu{std::nullopt, RejectedPdu::PduError, rejectcodes::pduUnknownType});
    else if (head->type == PduHead::confirmedRequest)
        send(RejectPdu{head->invokeId, RejectedPdu::ConfirmedRequest,
                       rejectcodes::requestInvalidArgument});
    else if (head->type != PduHead::reject)
        send(RejectPdu{std::nullopt, RejectedPdu::Unconfirmed, unconfirmedInvalidArgument});
}

bool Association::send(const Pdu &pdu)
{
    ber::Writer writer;
    write(writer, pdu);
    if (writer.size() > m_pduSize)
        return false;
    m_link->send(writer.view());
    return true;
}

void Association::open(const InitiateParameters &parameters)
{
    m_negotiated = parameters;
    m_pduSize = static_cast<std::size_t>(*parameters.maxPduSize);
    m_open = true;
    startTimer();
    if (auto opened = std::exchange(m_opened, nullptr))
        opened(parameters);
}

void Association::close(const Text &reason)
{
    if (std::exchange(m_closed, true))
        return;
    const bool wasOpen = std::exchange(m_open, false);
    m_timer.cancel();
    m_table.clear();
    auto calls = std::exchange(m_calls, {});
    for (auto &[ticket, call] : calls)
        call.handler(CallFailure{CallFailure::Kind::Lost, reason});
    if (auto opened = std::exchange(m_opened, nullptr))
        opened(Error{reason, 0});
    concluded(Error{reason, 0});
    const Handlers handlers = std::exchange(m_handlers, {});
    if (wasOpen && handlers.closed)
        handlers.closed(reason);
}

} // namespace mms
