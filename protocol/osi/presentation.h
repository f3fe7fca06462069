// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/tpkt.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// Presentation layer (ISO/IEC 8823-1), kernel in normal mode.
namespace osi::presentation {

using ObjectIdentifier = std::vector<std::uint32_t>;

/// {joint-iso-itu-t association-control(2) abstract-syntax(1) apdus(0) version1(1)}
inline const ObjectIdentifier acseSyntax{2, 2, 1, 0, 1};
/// {iso standard 9506 part(2) mms-abstract-syntax-version1(1)}
inline const ObjectIdentifier mmsSyntax{1, 0, 9506, 2, 1};
/// {joint-iso-itu-t asn1(1) basic-encoding(1)}
inline const ObjectIdentifier berSyntax{2, 1, 1};

/// A presentation context that is asked for.
struct Context
{
    std::int64_t id = 0;
    ObjectIdentifier abstractSyntax;
    std::vector<ObjectIdentifier> transferSyntaxes;

    bool operator==(const Context &) const = default;
};

enum class ContextResult : std::uint8_t {
    Acceptance = 0,
    UserRejection = 1,
    ProviderRejection = 2
};

/// The answer to one context that was asked for; answers stand in the order of the questions.
struct ContextAnswer
{
    ContextResult result = ContextResult::Acceptance;
    std::optional<ObjectIdentifier> transferSyntax;
    std::optional<std::int64_t> reason; ///< of a rejection by the provider

    bool operator==(const ContextAnswer &) const = default;
};

/// A value in its context.
struct DataValue
{
    std::int64_t contextId = 0;
    Bytes value; ///< one encoded element; into the octets that were decoded

    bool operator==(const DataValue &other) const;
};

/// CP
struct Connect
{
    std::optional<Octets> callingSelector;
    std::optional<Octets> calledSelector;
    std::vector<Context> contexts;
    std::vector<DataValue> userData;

    bool operator==(const Connect &) const = default;
};

/// CPA
struct Accept
{
    std::optional<Octets> respondingSelector;
    std::vector<ContextAnswer> answers;
    std::vector<DataValue> userData;

    bool operator==(const Accept &) const = default;
};

/// CPR
struct Reject
{
    std::optional<Octets> respondingSelector;
    std::vector<ContextAnswer> answers;
    std::optional<std::int64_t> reason;
    std::vector<DataValue> userData;

    bool operator==(const Reject &) const = default;
};

/// ARU
struct UserAbort
{
    std::vector<DataValue> userData;

    bool operator==(const UserAbort &) const = default;
};

/// ARP
struct ProviderAbort
{
    std::optional<std::int64_t> reason;
    std::optional<std::int64_t> event;

    bool operator==(const ProviderAbort &) const = default;
};

using Abort = std::variant<UserAbort, ProviderAbort>;

Octets encode(const Connect &unit);
Octets encode(const Accept &unit);
Octets encode(const Reject &unit);
Octets encode(const Abort &unit);
/// Fully-encoded data, as it stands alone in data, finish and disconnect units.
Octets encode(const std::vector<DataValue> &values);
/// The octets in front of one value of @p size octets; nothing follows the value.
void appendDataHeader(Octets &out, std::int64_t contextId, std::size_t size);

Result<Connect> decodeConnect(Bytes octets);
Result<Accept> decodeAccept(Bytes octets);
Result<Reject> decodeReject(Bytes octets);
Result<Abort> decodeAbort(Bytes octets);
Result<std::vector<DataValue>> decodeData(Bytes octets);

/// Reasons of a rejected connection that this layer gives by itself (ISO/IEC 8823-1, 8.2).
inline constexpr std::int64_t rejectUserData = 6;
/// Context rejections by the provider.
inline constexpr std::int64_t abstractSyntaxNotSupported = 1;
inline constexpr std::int64_t transferSyntaxNotSupported = 2;

Text rejectionText(std::optional<std::int64_t> reason);
Text abortText(std::optional<std::int64_t> reason);

/// What a layer says to the one below, and the one below to it.
enum class Service : std::uint8_t {
    Connect,
    Accept,
    Refuse,
    Data,
    Finish,
    Disconnect,
    UserAbort,
    ProviderAbort
};

struct Options
{
    Octets localSelector{0x00, 0x00, 0x00, 0x01};
    Octets remoteSelector{0x00, 0x00, 0x00, 0x01};
    /// As responder: refuse a request that asks for another selector than localSelector.
    bool checkSelector = false;
};

/// Give the session connection this user data with this service.
struct Request
{
    Service service = Service::Data;
    Octets userData;

    bool operator==(const Request &) const = default;
};

/// The peer's user data for the layer above. UserAbort, ProviderAbort and Refuse end the
/// connection.
struct Indication
{
    Service service = Service::Data;
    bool association = false; ///< the value belongs to ACSE; otherwise to MMS
    Bytes value;              ///< into the octets given to receive(); empty when there is none
    Text reason;              ///< one sentence, when the connection ends

    bool operator==(const Indication &other) const;
};

using Action = std::variant<Request, Indication>;
using Actions = std::vector<Action>;

/// One end of a presentation connection with the two contexts of MMS as a plain object. It keeps
/// the contexts; the order of services is the session connection's to watch. Not thread-safe.
class Connection
{
public:
    explicit Connection(Options options);

    /// Each takes one encoded element of ACSE.
    Actions connect(Bytes association);
    Actions accept(Bytes association);
    Actions refuse(Bytes association);
    Actions finish(Bytes association);
    Actions disconnect(Bytes association);
    Actions abort(Bytes association);
    Actions abortByProvider();
    /// The octets in front of an MMS PDU of @p size octets that is sent.
    void appendHeader(Octets &out, std::size_t size) const;

    /// The session connection brought user data with a service.
    Actions receive(Service service, Bytes userData);

private:
    Actions receiveConnect(Bytes userData);
    Actions receiveAccept(Bytes userData);
    Actions receiveRefuse(Bytes userData);
    Actions receiveAbort(Bytes userData);
    Actions receiveData(Service service, Bytes userData);
    Actions indicate(Service service, const std::vector<DataValue> &values) const;
    Actions fail(Text reason) const;
    Actions reject(Text reason) const;

    Options m_options;
    std::int64_t m_associationContext = 1;
    std::int64_t m_mmsContext = 3;
    std::vector<ContextAnswer> m_answers;
    std::optional<Octets> m_askedSelector;
};

} // namespace osi::presentation
