// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/tpkt.h"

#include <optional>
#include <string>
#include <variant>

/// Session layer (ISO/IEC 8327-1): kernel and duplex, version 2 with user data of any length.
namespace osi::session {

/// The functional unit "duplex" among the session user requirements.
inline constexpr std::uint16_t duplex = 0x0002;
/// Reasons of a refusal that this layer gives by itself (ISO/IEC 8327-1, 8.3.5.10).
inline constexpr std::uint8_t refuseByUser = 0;
inline constexpr std::uint8_t refuseWithData = 2;
inline constexpr std::uint8_t refuseSelectorUnknown = 0x81;
inline constexpr std::uint8_t refuseVersion = 0x84;
inline constexpr std::uint8_t refuseByProvider = 0x85;

struct Connect
{
    std::uint8_t options = 0;
    std::uint8_t versions = 2; ///< bit 0 for version 1, bit 1 for version 2
    std::uint16_t requirements = duplex;
    std::optional<Octets> callingSelector;
    std::optional<Octets> calledSelector;
    Octets userData;

    bool operator==(const Connect &) const = default;
};

struct Accept
{
    std::uint8_t options = 0;
    std::uint8_t versions = 2;
    std::uint16_t requirements = duplex;
    std::optional<Octets> callingSelector;
    std::optional<Octets> respondingSelector;
    Octets userData;

    bool operator==(const Accept &) const = default;
};

struct Refuse
{
    std::uint8_t reason = refuseByUser;
    Octets userData; ///< only with reason refuseWithData

    bool operator==(const Refuse &) const = default;
};

/// A data transfer with the give-tokens unit that always stands before it.
struct Data
{
    Bytes userData; ///< into the octets that were decoded

    bool operator==(const Data &other) const;
};

struct Finish
{
    Octets userData;

    bool operator==(const Finish &) const = default;
};

struct Disconnect
{
    Octets userData;

    bool operator==(const Disconnect &) const = default;
};

struct NotFinished
{
    Octets userData;

    bool operator==(const NotFinished &) const = default;
};

struct Abort
{
    bool byUser = true;
    bool protocolError = false;
    Octets userData;

    bool operator==(const Abort &) const = default;
};

struct AbortAccept
{
    bool operator==(const AbortAccept &) const = default;
};

using Unit = std::variant<Connect, Accept, Refuse, Data, Finish, Disconnect, NotFinished, Abort,
                          AbortAccept>;

/// One session protocol data unit from a whole transport message. Parameters that these functional
/// units do not know are skipped.
Result<Unit> decode(Bytes message);
/// The octets of a unit. User data of a connect, accept, refuse, finish, disconnect or abort unit
/// is at most 65,000 octets long; what is longer is left out.
Octets encode(const Unit &unit);
/// The four octets in front of the user data of a Data unit.
void appendDataHeader(Octets &out);

/// What the reason of a refuse unit says, as a sentence.
Text refusalText(std::uint8_t reason);

struct Options
{
    Octets localSelector{0x00, 0x01};
    Octets remoteSelector{0x00, 0x01};
    /// As responder: refuse a request that asks for another selector than localSelector.
    bool checkSelector = false;
};

/// One message for the transport connection.
struct Send
{
    Octets message;

    bool operator==(const Send &) const = default;
};

/// Responder: the peer asks for the connection; answer with accept() or refuse().
struct ConnectIndication
{
    Octets userData;

    bool operator==(const ConnectIndication &) const = default;
};

/// Initiator: the connection stands.
struct ConnectConfirm
{
    Octets userData;

    bool operator==(const ConnectConfirm &) const = default;
};

/// Initiator: the connection was refused and is over.
struct Refused
{
    Text reason; ///< one sentence
    Octets userData;

    bool operator==(const Refused &) const = default;
};

struct DataIndication
{
    Bytes userData; ///< into the message given to receive()

    bool operator==(const DataIndication &other) const;
};

/// The peer wants an orderly end; answer with disconnect().
struct FinishIndication
{
    Octets userData;

    bool operator==(const FinishIndication &) const = default;
};

/// The orderly end is reached; the connection is over.
struct FinishConfirm
{
    Octets userData;

    bool operator==(const FinishConfirm &) const = default;
};

/// The connection is over without an orderly end.
struct AbortIndication
{
    bool byUser = false;
    Text reason; ///< one sentence
    Octets userData;

    bool operator==(const AbortIndication &) const = default;
};

using Action = std::variant<Send, ConnectIndication, ConnectConfirm, Refused, DataIndication,
                            FinishIndication, FinishConfirm, AbortIndication>;
using Actions = std::vector<Action>;

/// One end of a session connection as a plain object; it knows no transport and no time. A call
/// that does not belong to the present state returns no actions. Not thread-safe.
class Connection
{
public:
    enum class Role : std::uint8_t { Initiator, Responder };
    enum class State : std::uint8_t {
        Idle,
        Connecting, ///< initiator waits for the answer, responder for accept() or refuse()
        Open,
        Finishing, ///< this side asked for the end
        Closing,   ///< the peer asked for the end
        Closed
    };

    Connection(Role role, Options options);

    State state() const { return m_state; }

    Actions connect(Octets userData);
    Actions accept(Octets userData);
    Actions refuse(std::uint8_t reason, Octets userData);
    Actions send(Bytes userData);
    Actions finish(Octets userData);
    Actions disconnect(Octets userData);
    Actions abort(bool byUser, Octets userData);
    /// One whole message came from the transport connection.
    Actions receive(Bytes message);

private:
    Actions handle(const Connect &unit);
    Actions handle(const Accept &unit);
    Actions handle(const Refuse &unit);
    Actions handle(const Data &unit);
    Actions handle(const Finish &unit);
    Actions handle(const Disconnect &unit);
    Actions handle(const NotFinished &unit);
    Actions handle(const Abort &unit);
    Actions handle(const AbortAccept &unit);
    Actions protocolError(const Text &reason);
    Actions misplaced(const char *unit);

    Role m_role;
    Options m_options;
    State m_state = State::Idle;
    bool m_finishCollision = false;
    Octets m_peerSelector;
    Octets m_askedSelector;
};

} // namespace osi::session
