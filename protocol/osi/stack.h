// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/acse.h"
#include "osi/cotp.h"
#include "osi/session.h"

namespace osi {

/// How an end presents itself to the other and what it insists on, layer by layer.
struct StackOptions
{
    cotp::Options transport;
    session::Options session;
    presentation::Options presentation;
    acse::Options association;
};

/// Responder: the peer asks for an association; answer with accept() or refuse().
struct AssociateIndication
{
    acse::Title calling;
    Octets pdu; ///< the peer's first PDU, may be empty
};

/// Initiator: the association stands.
struct AssociateConfirm
{
    acse::Title responding;
    Octets pdu; ///< the answer to the first PDU, may be empty
};

/// Initiator: the association was refused.
struct AssociateRefused
{
    Text reason; ///< one sentence
    Octets pdu;  ///< what the peer's user said to it, may be empty
};

/// A PDU of the peer.
struct PduIndication
{
    Octets pdu;
};

/// The peer asks for an orderly end; answer with answerRelease().
struct ReleaseIndication
{
};

/// The association ended orderly.
struct ReleaseConfirm
{
};

/// The association ended otherwise.
struct AssociationLost
{
    bool byUser = false; ///< the peer's user aborted it
    Text reason;         ///< one sentence
};

using StackEvent = std::variant<AssociateIndication, AssociateConfirm, AssociateRefused,
                                PduIndication, ReleaseIndication, ReleaseConfirm, AssociationLost>;

/// What is to be done after a call, in this order.
struct StackOutput
{
    Octets octets; ///< for the network
    std::vector<StackEvent> events;
    bool closeNetwork = false; ///< once the octets are sent
};

/// Transport, session, presentation and association control of one end on top of each other, as a
/// plain object: octets and requests go in, octets and events come out. It knows no sockets and no
/// time; who uses it sets deadlines. After closeNetwork every call returns nothing. Not
/// thread-safe.
class Stack
{
public:
    enum class Role : std::uint8_t { Initiator, Responder };

    Stack(Role role, StackOptions options);

    /// PDUs can be sent.
    bool isOpen() const;
    bool isClosed() const { return m_closed; }

    /// Initiator: the network connection stands; ask for an association with @p pdu.
    StackOutput connect(Bytes pdu);
    /// Octets came from the network, in portions of any size.
    StackOutput receive(Bytes octets);
    /// Responder: answer with @p pdu.
    StackOutput accept(Bytes pdu);
    /// Responder: refuse for a reason of acse::Diagnostic, with @p pdu unless it is empty.
    StackOutput refuse(acse::Result result, std::int64_t diagnostic, Bytes pdu);
    StackOutput send(Bytes pdu);
    StackOutput release();
    StackOutput answerRelease();
    StackOutput abort();
    /// The network connection ended by itself.
    StackOutput networkClosed(const Text &reason);

private:
    void run(const cotp::Actions &actions, StackOutput &output);
    void run(const session::Actions &actions, StackOutput &output);
    void run(const presentation::Actions &actions, StackOutput &output,
             const Text &sessionReason = {});
    void run(const acse::Actions &actions, StackOutput &output);
    void request(const presentation::Request &request, StackOutput &output);
    template <typename Event>
    void tell(Event event, StackOutput &output);
    template <typename Event>
    void end(Event event, StackOutput &output);

    cotp::Connection m_transport;
    session::Connection m_session;
    presentation::Connection m_presentation;
    acse::Association m_association;
    Octets m_firstPdu;
    bool m_closed = false;
};

} // namespace osi
