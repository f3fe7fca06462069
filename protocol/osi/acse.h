// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/presentation.h"

#include <optional>
#include <string>
#include <variant>

/// Association control (ISO/IEC 8650-1), version 1, with the authentication functional unit.
namespace osi::acse {

using presentation::ObjectIdentifier;
using presentation::Service;

/// {iso standard 9506 part(2) mms-application-context-version1(3)}
inline const ObjectIdentifier mmsApplicationContext{1, 0, 9506, 2, 3};
/// {joint-iso-itu-t association-control(2) authentication-mechanism(3) password-1(1)}
inline const ObjectIdentifier passwordMechanism{2, 2, 3, 1};

/// Who somebody is: an AP title in its object identifier form and an AE qualifier in its integer
/// form. Other forms are read over.
struct Title
{
    std::optional<ObjectIdentifier> apTitle;
    std::optional<std::int64_t> aeQualifier;

    bool operator==(const Title &) const = default;
};

/// The value that names a caller: with passwordMechanism the octets of the password.
struct Authentication
{
    ObjectIdentifier mechanism = passwordMechanism;
    Octets value;

    bool operator==(const Authentication &) const = default;
};

/// User information: a PDU of the layer above in its presentation context.
struct UserInformation
{
    std::int64_t contextId = 3;
    Bytes pdu; ///< into the octets that were decoded

    bool operator==(const UserInformation &other) const;
};

/// AARQ
struct AssociateRequest
{
    ObjectIdentifier applicationContext = mmsApplicationContext;
    Title called;
    Title calling;
    std::optional<Authentication> authentication;
    std::optional<UserInformation> userInformation;

    bool operator==(const AssociateRequest &) const = default;
};

enum class Result : std::uint8_t { Accepted = 0, RejectedPermanently = 1, RejectedTransiently = 2 };

/// Why an association is refused (ISO/IEC 8650-1, 7.1.4): a code of the service user or of the
/// service provider.
struct Diagnostic
{
    bool byProvider = false;
    std::int64_t code = 0;

    bool operator==(const Diagnostic &) const = default;
};

inline constexpr std::int64_t diagnosticNone = 0;
inline constexpr std::int64_t diagnosticNoReason = 1;
inline constexpr std::int64_t diagnosticApplicationContext = 2;
inline constexpr std::int64_t diagnosticAuthenticationFailed = 13;
inline constexpr std::int64_t diagnosticAuthenticationRequired = 14;

/// AARE
struct AssociateResponse
{
    ObjectIdentifier applicationContext = mmsApplicationContext;
    Result result = Result::Accepted;
    Diagnostic diagnostic;
    Title responding;
    std::optional<UserInformation> userInformation;

    bool operator==(const AssociateResponse &) const = default;
};

/// RLRQ
struct ReleaseRequest
{
    std::optional<std::int64_t> reason = 0;

    bool operator==(const ReleaseRequest &) const = default;
};

/// RLRE
struct ReleaseResponse
{
    std::optional<std::int64_t> reason = 0;

    bool operator==(const ReleaseResponse &) const = default;
};

/// ABRT
struct Abort
{
    bool byProvider = false;
    std::optional<std::int64_t> diagnostic;

    bool operator==(const Abort &) const = default;
};

using Unit =
    std::variant<AssociateRequest, AssociateResponse, ReleaseRequest, ReleaseResponse, Abort>;

Octets encode(const Unit &unit);
osi::Result<Unit> decode(Bytes octets);

/// Why an association was refused, as a sentence.
Text refusalText(Result result, const Diagnostic &diagnostic);

struct Options
{
    Title own;
    Title peer;
    /// Initiator: sent with the request. Responder: what callers must send, when it is set.
    std::optional<Authentication> authentication;
};

/// Give the presentation connection this element with this service.
struct Request
{
    Service service = Service::Data;
    Octets unit;

    bool operator==(const Request &) const = default;
};

/// Responder: somebody asks for an association; answer with accept() or refuse().
struct AssociateIndication
{
    Title calling;
    Bytes pdu; ///< into the octets given to receive(); empty when there is none

    bool operator==(const AssociateIndication &other) const;
};

/// Initiator: the association stands.
struct AssociateConfirm
{
    Title responding;
    Bytes pdu; ///< into the octets given to receive(); empty when there is none

    bool operator==(const AssociateConfirm &other) const;
};

/// Initiator: refused.
struct Refused
{
    Text reason; ///< one sentence
    Bytes pdu;   ///< into the octets given to receive(); empty when there is none

    bool operator==(const Refused &other) const;
};

struct ReleaseIndication
{
    bool operator==(const ReleaseIndication &) const = default;
};

struct ReleaseConfirm
{
    bool operator==(const ReleaseConfirm &) const = default;
};

struct Aborted
{
    bool byUser = false;
    Text reason; ///< one sentence

    bool operator==(const Aborted &) const = default;
};

using Action = std::variant<Request, AssociateIndication, AssociateConfirm, Refused,
                            ReleaseIndication, ReleaseConfirm, Aborted>;
using Actions = std::vector<Action>;

/// One end of an association as a plain object. A call that does not belong to the present state
/// returns no actions. Not thread-safe.
class Association
{
public:
    enum class State : std::uint8_t { Idle, Associating, Open, Releasing, Answering, Closed };

    explicit Association(Options options);

    State state() const { return m_state; }

    /// Initiator. @p pdu goes along as user information.
    Actions associate(Bytes pdu);
    /// Responder.
    Actions accept(Bytes pdu);
    Actions refuse(Result result, std::int64_t diagnostic, Bytes pdu);
    Actions release();
    Actions answerRelease();
    Actions abort();
    /// The presentation connection brought an element with a service; @p reason is its sentence
    /// when the connection ends.
    Actions receive(Service service, Bytes unit, const Text &reason);

private:
    Actions receiveRequest(const AssociateRequest &unit);
    Actions receiveResponse(const AssociateResponse &unit, Service service);
    Actions receiveEnd(Service service, Bytes unit, const Text &reason);
    Actions protocolError(const Text &reason);

    Options m_options;
    State m_state = State::Idle;
    std::int64_t m_contextId = 3;
};

} // namespace osi::acse
