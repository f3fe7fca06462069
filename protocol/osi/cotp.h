// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/tpkt.h"

#include <optional>
#include <string>
#include <variant>

/// Connection-oriented transport, class 0 (ISO/IEC 8073) as carried by RFC 1006.
namespace osi::cotp {

/// What a connection request and a connection confirm have in common.
struct ConnectParameters
{
    std::uint16_t destinationReference = 0;
    std::uint16_t sourceReference = 0;
    std::uint8_t preferredClass = 0; ///< 0 to 4
    std::uint8_t options = 0;        ///< four bits
    /// Power of two of the largest transport unit, 7 (128 octets) to 13 (8,192); none when absent.
    std::optional<std::uint8_t> sizeExponent;
    std::optional<Octets> callingSelector;
    std::optional<Octets> calledSelector;
    Octets alternativeClasses; ///< the octets as sent, a class in the high half of each

    bool operator==(const ConnectParameters &) const = default;
};

struct ConnectRequest : ConnectParameters
{
    bool operator==(const ConnectRequest &) const = default;
};

struct ConnectConfirm : ConnectParameters
{
    bool operator==(const ConnectConfirm &) const = default;
};

struct DisconnectRequest
{
    std::uint16_t destinationReference = 0;
    std::uint16_t sourceReference = 0;
    std::uint8_t reason = 0;

    bool operator==(const DisconnectRequest &) const = default;
};

struct DataUnit
{
    bool endOfMessage = true;
    Bytes data; ///< into the octets that were decoded

    bool operator==(const DataUnit &other) const;
};

struct ErrorUnit
{
    std::uint16_t destinationReference = 0;
    std::uint8_t cause = 0;
    Octets invalidUnit; ///< beginning of the unit that was refused, may be empty

    bool operator==(const ErrorUnit &) const = default;
};

using Unit = std::variant<ConnectRequest, ConnectConfirm, DisconnectRequest, DataUnit, ErrorUnit>;

/// One transport protocol data unit from the content of a packet. Parameters that class 0 does not
/// know are skipped.
Result<Unit> decode(Bytes packet);
/// The octets of a unit, without a packet header. Selectors longer than 255 octets are cut.
Octets encode(const Unit &unit);

/// What the reason of a disconnect request says, as a sentence.
Text reasonText(std::uint8_t reason);
/// What the cause of an error unit says, as a sentence.
Text causeText(std::uint8_t cause);

struct Options
{
    /// At most four octets unless the operator chose otherwise: longer ones make some devices
    /// close the connection.
    Octets localSelector{0x00, 0x01};
    Octets remoteSelector{0x00, 0x01};
    /// As responder: refuse a request that asks for another selector than localSelector.
    bool checkSelector = false;
    /// Largest transport unit offered or accepted; the power of two below it is what goes out,
    /// at least 128 and at most 8,192 octets.
    std::size_t unitSize = 8192;
    /// Longest message that is put together from units, in octets.
    std::size_t maxMessage = 256 * 1024;
};

/// Octets for the network, packet headers included.
struct Send
{
    Octets octets;

    bool operator==(const Send &) const = default;
};

/// The connection stands.
struct Connected
{
    bool operator==(const Connected &) const = default;
};

/// One whole message of the peer.
struct Message
{
    Octets octets;

    bool operator==(const Message &) const = default;
};

/// The connection is over; the network connection is of no further use once everything to be sent
/// is sent.
struct Closed
{
    Text reason; ///< one sentence

    bool operator==(const Closed &) const = default;
};

using Action = std::variant<Send, Connected, Message, Closed>;
using Actions = std::vector<Action>;

/// One end of a transport connection as a plain object: what happens goes in, what is to be done
/// comes out, in order. It knows no sockets and no time. Not thread-safe.
///
/// After Closed every call returns no actions.
class Connection
{
public:
    enum class Role : std::uint8_t { Initiator, Responder };
    enum class State : std::uint8_t { Idle, Connecting, Open, Closed };

    Connection(Role role, Options options);

    State state() const { return m_state; }
    /// Octets of the largest data unit that is sent, header included.
    std::size_t unitSize() const { return m_unitSize; }
    /// What the peer's connection request named as its own and as our selector.
    const Octets &callingSelector() const { return m_callingSelector; }
    const Octets &calledSelector() const { return m_calledSelector; }

    /// Initiator, Idle: ask for the connection.
    Actions connect();
    /// Octets came from the network, in portions of any size.
    Actions receive(Bytes octets);
    /// Open: send one message, in as many units as it needs.
    Actions send(Bytes message);
    /// Send one message behind what @p out holds already.
    void send(Bytes message, Octets &out) const { send({}, message, out); }
    /// A message of two parts.
    void send(Bytes head, Bytes body, Octets &out) const;
    /// The network connection ended or is to be given up.
    Actions networkClosed(const Text &reason);

private:
    void handle(const Unit &unit, Bytes packet, Actions &actions);
    void handleRequest(const ConnectRequest &request, Actions &actions);
    void handleConfirm(const ConnectConfirm &confirm, Actions &actions);
    void handleData(const DataUnit &data, Actions &actions);
    void protocolError(std::uint8_t cause, Bytes packet, const Text &reason, Actions &actions);
    void close(Text reason, Actions &actions);
    static void sendUnit(const Unit &unit, Actions &actions);
    std::uint8_t ownSizeExponent() const;

    Role m_role;
    Options m_options;
    State m_state = State::Idle;
    TpktReader m_reader;
    Octets m_message;
    Octets m_callingSelector;
    Octets m_calledSelector;
    std::size_t m_unitSize = 128;
    std::uint16_t m_peerReference = 0;
};

} // namespace osi::cotp
