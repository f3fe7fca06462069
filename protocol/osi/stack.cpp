// SPDX-License-Identifier: Apache-2.0
#include "osi/stack.h"

#include <utility>

namespace osi {

namespace {

using presentation::Service;

template <typename... Handlers>
struct Overloaded : Handlers...
{
    using Handlers::operator()...;
};
template <typename... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

Octets copyOf(Bytes bytes)
{
    return Octets(bytes.begin(), bytes.end());
}

} // namespace

Stack::Stack(Role role, StackOptions options)
    : m_transport(role == Role::Initiator ? cotp::Connection::Role::Initiator
                                          : cotp::Connection::Role::Responder,
                  std::move(options.transport))
    , m_session(role == Role::Initiator ? session::Connection::Role::Initiator
                                        : session::Connection::Role::Responder,
                std::move(options.session))
    , m_presentation(std::move(options.presentation))
    , m_association(std::move(options.association))
{
}

// Events are built in their place: GCC 12 loses track of a variant that is moved.
template <typename Event>
void Stack::tell(Event event, StackOutput &output)
{
    output.events.emplace_back(std::in_place_type<Event>, std::move(event));
}

template <typename Event>
void Stack::end(Event event, StackOutput &output)
{
    if (m_closed)
        return;
    m_closed = output.closeNetwork = true;
    tell(std::move(event), output);
}

bool Stack::isOpen() const
{
    return !m_closed && m_association.state() == acse::Association::State::Open;
}

StackOutput Stack::connect(Bytes pdu)
{
    StackOutput output;
    m_firstPdu = copyOf(pdu);
    run(m_transport.connect(), output);
    return output;
}

StackOutput Stack::receive(Bytes octets)
{
    StackOutput output;
    if (!m_closed)
        run(m_transport.receive(octets), output);
    return output;
}

StackOutput Stack::accept(Bytes pdu)
{
    StackOutput output;
    if (!m_closed)
        run(m_association.accept(pdu), output);
    return output;
}

StackOutput Stack::refuse(acse::Result result, std::int64_t diagnostic, Bytes pdu)
{
    StackOutput output;
    if (m_closed)
        return output;
    run(m_association.refuse(result, diagnostic, pdu), output);
    m_closed = output.closeNetwork = true;
    return output;
}

StackOutput Stack::send(Bytes pdu)
{
    StackOutput output;
    if (!isOpen())
        return output;
    Octets head;
    session::appendDataHeader(head);
    m_presentation.appendHeader(head, pdu.size());
    m_transport.send(head, pdu, output.octets);
    return output;
}

StackOutput Stack::release()
{
    StackOutput output;
    if (!m_closed)
        run(m_association.release(), output);
    return output;
}

StackOutput Stack::answerRelease()
{
    StackOutput output;
    if (m_closed)
        return output;
    run(m_association.answerRelease(), output);
    if (m_association.state() == acse::Association::State::Closed)
        m_closed = output.closeNetwork = true;
    return output;
}

StackOutput Stack::abort()
{
    StackOutput output;
    if (m_closed)
        return output;
    run(m_association.abort(), output);
    m_closed = output.closeNetwork = true;
    return output;
}

StackOutput Stack::networkClosed(const Text &reason)
{
    StackOutput output;
    if (!m_closed)
        run(m_transport.networkClosed(reason), output);
    return output;
}

void Stack::run(const cotp::Actions &actions, StackOutput &output)
{
    for (const cotp::Action &action : actions) {
        std::visit(Overloaded{[&](const cotp::Send &send) {
                                  output.octets.insert(output.octets.end(), send.octets.begin(),
                                                       send.octets.end());
                              },
                              [&](const cotp::Connected &) {
                                  if (!m_firstPdu.empty())
                                      run(m_association.associate(std::exchange(m_firstPdu, {})),
                                          output);
                              },
                              [&](const cotp::Message &message) {
                                  if (!m_closed)
                                      run(m_session.receive(message.octets), output);
                              },
                              [&](const cotp::Closed &closed) {
                                  end(AssociationLost{false, closed.reason}, output);
                              }},
                   action);
    }
}

void Stack::run(const session::Actions &actions, StackOutput &output)
{
    for (const session::Action &action : actions) {
        std::visit(
            Overloaded{
                [&](const session::Send &send) { m_transport.send(send.message, output.octets); },
                [&](const session::ConnectIndication &indication) {
                    run(m_presentation.receive(Service::Connect, indication.userData), output);
                },
                [&](const session::ConnectConfirm &confirm) {
                    run(m_presentation.receive(Service::Accept, confirm.userData), output);
                },
                [&](const session::Refused &refused) {
                    run(m_presentation.receive(Service::Refuse, refused.userData), output,
                        refused.reason);
                },
                [&](const session::DataIndication &data) {
                    run(m_presentation.receive(Service::Data, data.userData), output);
                },
                [&](const session::FinishIndication &finish) {
                    run(m_presentation.receive(Service::Finish, finish.userData), output);
                },
                [&](const session::FinishConfirm &finish) {
                    run(m_presentation.receive(Service::Disconnect, finish.userData), output);
                },
                [&](const session::AbortIndication &abort) {
                    run(m_presentation.receive(abort.byUser ? Service::UserAbort
                                                            : Service::ProviderAbort,
                                               abort.userData),
                        output, abort.reason);
                    end(AssociationLost{abort.byUser, abort.reason}, output);
                }},
            action);
    }
}

void Stack::run(const presentation::Actions &actions, StackOutput &output,
                const Text &sessionReason)
{
    for (const presentation::Action &action : actions) {
        if (const auto *down = std::get_if<presentation::Request>(&action)) {
            request(*down, output);
            continue;
        }
        const auto &up = std::get<presentation::Indication>(action);
        const bool ends = up.service == Service::UserAbort ||
                          up.service == Service::ProviderAbort || up.service == Service::Refuse;
        if (up.association || ends) {
            const Text &reason = up.reason.empty() && !up.association ? sessionReason : up.reason;
            run(m_association.receive(up.service, up.value, reason), output);
            if (ends)
                end(AssociationLost{false, reason}, output);
        } else if (up.service == Service::Data && !m_closed) {
            tell(PduIndication{copyOf(up.value)}, output);
        }
    }
}

void Stack::run(const acse::Actions &actions, StackOutput &output)
{
    for (const acse::Action &action : actions) {
        std::visit(
            Overloaded{[&](const acse::Request &down) {
                           switch (down.service) {
                           case Service::Connect:
                               run(m_presentation.connect(down.unit), output);
                               break;
                           case Service::Accept:
                               run(m_presentation.accept(down.unit), output);
                               break;
                           case Service::Refuse:
                               run(m_presentation.refuse(down.unit), output);
                               break;
                           case Service::Finish:
                               run(m_presentation.finish(down.unit), output);
                               break;
                           case Service::Disconnect:
                               run(m_presentation.disconnect(down.unit), output);
                               break;
                           case Service::UserAbort:
                               run(m_presentation.abort(down.unit), output);
                               break;
                           case Service::Data:
                           case Service::ProviderAbort:
                               run(m_presentation.abortByProvider(), output);
                               break;
                           }
                       },
                       [&](const acse::AssociateIndication &up) {
                           tell(AssociateIndication{up.calling, copyOf(up.pdu)}, output);
                       },
                       [&](const acse::AssociateConfirm &up) {
                           tell(AssociateConfirm{up.responding, copyOf(up.pdu)}, output);
                       },
                       [&](const acse::Refused &up) {
                           end(AssociateRefused{up.reason, copyOf(up.pdu)}, output);
                       },
                       [&](const acse::ReleaseIndication &) { tell(ReleaseIndication(), output); },
                       [&](const acse::ReleaseConfirm &) { end(ReleaseConfirm(), output); },
                       [&](const acse::Aborted &up) {
                           end(AssociationLost{up.byUser, up.reason}, output);
                       }},
            action);
    }
}

void Stack::request(const presentation::Request &request, StackOutput &output)
{
    switch (request.service) {
    case Service::Connect:
        run(m_session.connect(request.userData), output);
        break;
    case Service::Accept:
        run(m_session.accept(request.userData), output);
        break;
    case Service::Refuse:
        run(m_session.refuse(session::refuseWithData, request.userData), output);
        break;
    case Service::Data:
        run(m_session.send(request.userData), output);
        break;
    case Service::Finish:
        run(m_session.finish(request.userData), output);
        break;
    case Service::Disconnect:
        run(m_session.disconnect(request.userData), output);
        break;
    case Service::UserAbort:
        run(m_session.abort(true, request.userData), output);
        break;
    case Service::ProviderAbort:
        run(m_session.abort(false, request.userData), output);
        break;
    }
}

} // namespace osi
