// SPDX-License-Identifier: Apache-2.0
#include "osi/session.h"

#include <algorithm>
#include <utility>

namespace osi::session {

namespace {

constexpr std::uint8_t withoutParameters = 0; ///< length of the parameters of a unit

constexpr std::uint8_t codeGiveTokensOrData = 1;
constexpr std::uint8_t codePleaseTokens = 2;
constexpr std::uint8_t codeNotFinished = 8;
constexpr std::uint8_t codeFinish = 9;
constexpr std::uint8_t codeDisconnect = 10;
constexpr std::uint8_t codeRefuse = 12;
constexpr std::uint8_t codeConnect = 13;
constexpr std::uint8_t codeAccept = 14;
constexpr std::uint8_t codeAbort = 25;
constexpr std::uint8_t codeAbortAccept = 26;

constexpr std::uint8_t groupConnectAccept = 5;
constexpr std::uint8_t groupUserData = 193;
constexpr std::uint8_t groupExtendedUserData = 194;
constexpr std::uint8_t parameterTransportDisconnect = 17;
constexpr std::uint8_t parameterOptions = 19;
constexpr std::uint8_t parameterRequirements = 20;
constexpr std::uint8_t parameterVersions = 22;
constexpr std::uint8_t parameterEnclosure = 25;
constexpr std::uint8_t parameterReason = 50;
constexpr std::uint8_t parameterCallingSelector = 51;
constexpr std::uint8_t parameterCalledSelector = 52;

constexpr std::uint8_t version1 = 0x01;
constexpr std::uint8_t version2 = 0x02;
// ISO/IEC 8327-1, 8.3.1.18: what a requirements parameter means when it is left out.
constexpr std::uint16_t requirementsWhenAbsent = 0x0349;
constexpr std::size_t longestPlainConnectData = 512;
constexpr std::size_t longestUserData = 65000;

constexpr std::uint8_t releaseTransport = 0x01;
constexpr std::uint8_t abortByUser = 0x02;
constexpr std::uint8_t abortProtocolError = 0x04;

struct Field
{
    std::uint8_t code = 0;
    Bytes value;
    std::size_t next = 0; ///< offset behind the field
};

Result<Field> fieldAt(Bytes octets, std::size_t at)
{
    if (octets.size() - at < 2)
        return Error{say("A session unit ends within a header."), at};
    std::size_t length = octets[at + 1];
    std::size_t begin = at + 2;
    if (length == 255) {
        if (octets.size() - at < 4)
            return Error{say("A session unit ends within a length."), at};
        length = static_cast<std::size_t>(octets[at + 2]) << 8 | octets[at + 3];
        begin = at + 4;
    }
    if (octets.size() - begin < length)
        return Error{say("A session parameter is longer than the unit around it."), at};
    return Field{octets[at], octets.subspan(begin, length), begin + length};
}

/// What the units have for parameters, whichever unit they came with.
struct Parameters
{
    std::uint8_t transportDisconnect = 0;
    std::uint8_t options = 0;
    std::uint8_t versions = version1;
    std::uint16_t requirements = requirementsWhenAbsent;
    std::optional<Octets> callingSelector;
    std::optional<Octets> calledSelector;
    std::uint8_t reason = 0;
    Octets userData;
    std::uint8_t enclosure = 3;
};

std::optional<Error> readParameters(Bytes octets, bool nested, Parameters &into)
{
    std::size_t at = 0;
    while (at < octets.size()) {
        const auto field = fieldAt(octets, at);
        if (!field)
            return field.error();
        const Bytes value = field->value;
        const auto octet = [&value](std::uint8_t &target) {
            if (value.empty())
                return false;
            target = value[0];
            return true;
        };
        bool valid = true;
        switch (field->code) {
        case groupConnectAccept:
            if (nested)
                return Error{say("A session parameter group holds itself."), at};
            if (const auto error = readParameters(value, true, into))
                return error;
            break;
        case groupUserData:
        case groupExtendedUserData:
            into.userData.assign(value.begin(), value.end());
            break;
        case parameterTransportDisconnect:
            valid = octet(into.transportDisconnect);
            break;
        case parameterOptions:
            valid = octet(into.options);
            break;
        case parameterVersions:
            valid = octet(into.versions);
            break;
        case parameterEnclosure:
            valid = octet(into.enclosure);
            break;
        case parameterRequirements:
            valid = value.size() == 2;
            if (valid)
                into.requirements = static_cast<std::uint16_t>(value[0] << 8 | value[1]);
            break;
        case parameterReason:
            valid = octet(into.reason);
            if (valid && into.reason == refuseWithData)
                into.userData.assign(value.begin() + 1, value.end());
            break;
        case parameterCallingSelector:
            into.callingSelector.emplace(value.begin(), value.end());
            break;
        case parameterCalledSelector:
            into.calledSelector.emplace(value.begin(), value.end());
            break;
        default:
            break;
        }
        if (!valid) {
            return Error{say("The session parameter %1 has a wrong length.", field->code), at};
        }
        at = field->next;
    }
    return std::nullopt;
}

Result<Unit> decodeData(Bytes message, std::size_t at)
{
    const auto data = fieldAt(message, at);
    if (!data)
        return data.error();
    if (data->code != codeGiveTokensOrData)
        return Error{say("A token unit is not followed by a data transfer."), at};
    Parameters parameters;
    if (const auto error = readParameters(data->value, false, parameters))
        return *error;
    if (parameters.enclosure != 3)
        return Error{say("The peer cuts session data into segments, which was not agreed."), at};
    return Unit(Data{message.subspan(data->next)});
}

void putHeader(Octets &out, std::uint8_t code, std::size_t length)
{
    out.push_back(code);
    if (length < 255) {
        out.push_back(static_cast<std::uint8_t>(length));
    } else {
        out.insert(out.end(), {255, static_cast<std::uint8_t>(length >> 8),
                               static_cast<std::uint8_t>(length & 0xff)});
    }
}

void putField(Octets &out, std::uint8_t code, Bytes value)
{
    if (value.size() > longestUserData)
        value = {};
    putHeader(out, code, value.size());
    out.insert(out.end(), value.begin(), value.end());
}

void putOctet(Octets &out, std::uint8_t code, std::uint8_t value)
{
    out.insert(out.end(), {code, 1, value});
}

void putUserData(Octets &out, Bytes userData)
{
    if (!userData.empty())
        putField(out, groupUserData, userData);
}

Octets unitOf(std::uint8_t code, Bytes parameters)
{
    constexpr std::size_t longestHeader = 4;
    Octets out;
    out.reserve(longestHeader + parameters.size());
    putHeader(out, code, parameters.size());
    out.insert(out.end(), parameters.begin(), parameters.end());
    return out;
}

template <typename ConnectOrAccept>
Octets openingParameters(const ConnectOrAccept &unit)
{
    Octets group;
    putOctet(group, parameterOptions, unit.options);
    putOctet(group, parameterVersions, unit.versions);
    Octets out;
    putField(out, groupConnectAccept, group);
    out.insert(out.end(),
               {parameterRequirements, 2, static_cast<std::uint8_t>(unit.requirements >> 8),
                static_cast<std::uint8_t>(unit.requirements & 0xff)});
    if (unit.callingSelector)
        putField(out, parameterCallingSelector, *unit.callingSelector);
    return out;
}

struct Encoder
{
    Octets operator()(const Connect &unit) const
    {
        Octets out = openingParameters(unit);
        if (unit.calledSelector)
            putField(out, parameterCalledSelector, *unit.calledSelector);
        if (unit.userData.size() > longestPlainConnectData)
            putField(out, groupExtendedUserData, unit.userData);
        else
            putUserData(out, unit.userData);
        return unitOf(codeConnect, out);
    }

    Octets operator()(const Accept &unit) const
    {
        Octets out = openingParameters(unit);
        if (unit.respondingSelector)
            putField(out, parameterCalledSelector, *unit.respondingSelector);
        putUserData(out, unit.userData);
        return unitOf(codeAccept, out);
    }

    Octets operator()(const Refuse &unit) const
    {
        Octets out;
        putOctet(out, parameterTransportDisconnect, releaseTransport);
        Octets reason{unit.reason};
        if (unit.reason == refuseWithData && unit.userData.size() < longestUserData)
            reason.insert(reason.end(), unit.userData.begin(), unit.userData.end());
        putField(out, parameterReason, reason);
        return unitOf(codeRefuse, out);
    }

    Octets operator()(const Data &unit) const
    {
        Octets out;
        appendDataHeader(out);
        out.insert(out.end(), unit.userData.begin(), unit.userData.end());
        return out;
    }

    Octets operator()(const Finish &unit) const
    {
        Octets out;
        putOctet(out, parameterTransportDisconnect, releaseTransport);
        putUserData(out, unit.userData);
        return unitOf(codeFinish, out);
    }

    Octets operator()(const Disconnect &unit) const { return plain(codeDisconnect, unit.userData); }
    Octets operator()(const NotFinished &unit) const
    {
        return plain(codeNotFinished, unit.userData);
    }

    Octets operator()(const Abort &unit) const
    {
        std::uint8_t flags = releaseTransport;
        if (unit.byUser)
            flags |= abortByUser;
        if (unit.protocolError)
            flags |= abortProtocolError;
        Octets out;
        putOctet(out, parameterTransportDisconnect, flags);
        putUserData(out, unit.userData);
        return unitOf(codeAbort, out);
    }

    Octets operator()(const AbortAccept &) const { return unitOf(codeAbortAccept, {}); }

    static Octets plain(std::uint8_t code, Bytes userData)
    {
        Octets out;
        putUserData(out, userData);
        return unitOf(code, out);
    }
};

} // namespace

bool Data::operator==(const Data &other) const
{
    return std::ranges::equal(userData, other.userData);
}

bool DataIndication::operator==(const DataIndication &other) const
{
    return std::ranges::equal(userData, other.userData);
}

Result<Unit> decode(Bytes message)
{
    const auto unit = fieldAt(message, 0);
    if (!unit)
        return unit.error();
    if (unit->code == codeGiveTokensOrData || unit->code == codePleaseTokens)
        return decodeData(message, unit->next);
    if (unit->next != message.size())
        return Error{say("A session unit is followed by octets that belong to nothing."),
                     unit->next};
    Parameters p;
    if (const auto error = readParameters(unit->value, false, p))
        return *error;
    switch (unit->code) {
    case codeConnect:
        return Unit(Connect{p.options, p.versions, p.requirements, std::move(p.callingSelector),
                            std::move(p.calledSelector), std::move(p.userData)});
    case codeAccept:
        return Unit(Accept{p.options, p.versions, p.requirements, std::move(p.callingSelector),
                           std::move(p.calledSelector), std::move(p.userData)});
    case codeRefuse:
        return Unit(Refuse{p.reason, std::move(p.userData)});
    case codeFinish:
        return Unit(Finish{std::move(p.userData)});
    case codeDisconnect:
        return Unit(Disconnect{std::move(p.userData)});
    case codeNotFinished:
        return Unit(NotFinished{std::move(p.userData)});
    case codeAbort:
        return Unit(Abort{(p.transportDisconnect & abortByUser) != 0,
                          (p.transportDisconnect & abortProtocolError) != 0,
                          std::move(p.userData)});
    case codeAbortAccept:
        return Unit(AbortAccept());
    default:
        return Error{say("A session unit has the unknown code %1.", unit->code), 0};
    }
}

Octets encode(const Unit &unit)
{
    return std::visit(Encoder(), unit);
}

void appendDataHeader(Octets &out)
{
    for (const std::uint8_t octet :
         {codeGiveTokensOrData, withoutParameters, codeGiveTokensOrData, withoutParameters})
        out.push_back(octet);
}

Text refusalText(std::uint8_t reason)
{
    switch (reason) {
    case refuseByUser:
        return say("The peer refuses the session without a reason.");
    case 1:
        return say("The peer refuses the session because it is busy.");
    case refuseWithData:
        return say("The peer refuses the session.");
    case refuseSelectorUnknown:
        return say("The peer does not know the session selector.");
    case 0x82:
        return say("Nothing is attached to the peer's session selector.");
    case 0x83:
        return say("The peer's session layer is congested.");
    case refuseVersion:
        return say("The peer does not support the proposed version of the session protocol.");
    case refuseByProvider:
        return say("The peer's session layer refuses the session.");
    case 0x86:
        return say(
            "The peer's session layer refuses the session because of a restriction of its own.");
    default:
        return say("The peer refuses the session with reason %1.", reason);
    }
}

Connection::Connection(Role role, Options options)
    : m_role(role)
    , m_options(std::move(options))
{
}

Actions Connection::connect(Octets userData)
{
    if (m_state != State::Idle || m_role != Role::Initiator)
        return {};
    m_state = State::Connecting;
    Connect unit;
    unit.callingSelector = m_options.localSelector;
    unit.calledSelector = m_options.remoteSelector;
    unit.userData = std::move(userData);
    return {Send{encode(unit)}};
}

Actions Connection::accept(Octets userData)
{
    if (m_state != State::Connecting || m_role != Role::Responder)
        return {};
    m_state = State::Open;
    Accept unit;
    if (!m_askedSelector.empty())
        unit.respondingSelector = m_askedSelector;
    unit.userData = std::move(userData);
    return {Send{encode(unit)}};
}

Actions Connection::refuse(std::uint8_t reason, Octets userData)
{
    if (m_state != State::Connecting || m_role != Role::Responder)
        return {};
    m_state = State::Closed;
    return {Send{encode(Refuse{reason, std::move(userData)})}};
}

Actions Connection::send(Bytes userData)
{
    if (m_state != State::Open && m_state != State::Closing)
        return {};
    return {Send{encode(Data{userData})}};
}

Actions Connection::finish(Octets userData)
{
    if (m_state != State::Open)
        return {};
    m_state = State::Finishing;
    return {Send{encode(Finish{std::move(userData)})}};
}

Actions Connection::disconnect(Octets userData)
{
    Actions actions;
    if (m_state == State::Closing)
        m_state = State::Closed;
    else if (m_state != State::Finishing || !std::exchange(m_finishCollision, false))
        return actions;
    actions.emplace_back(Send{encode(Disconnect{std::move(userData)})});
    return actions;
}

Actions Connection::abort(bool byUser, Octets userData)
{
    if (m_state == State::Closed || m_state == State::Idle)
        return {};
    m_state = State::Closed;
    return {Send{encode(Abort{byUser, !byUser, std::move(userData)})}};
}

Actions Connection::receive(Bytes message)
{
    if (m_state == State::Closed)
        return {};
    const auto unit = decode(message);
    if (!unit)
        return protocolError(unit.error().message);
    return std::visit([this](const auto &each) { return handle(each); }, *unit);
}

Actions Connection::handle(const Connect &unit)
{
    if (m_role != Role::Responder || m_state != State::Idle)
        return misplaced("CN");
    std::optional<std::uint8_t> refusal;
    m_askedSelector = unit.calledSelector.value_or(Octets());
    if ((unit.versions & version2) == 0)
        refusal = refuseVersion;
    else if ((unit.requirements & duplex) == 0)
        refusal = refuseByProvider;
    else if (m_options.checkSelector && m_askedSelector != m_options.localSelector)
        refusal = refuseSelectorUnknown;
    if (refusal) {
        m_state = State::Closed;
        return {Send{encode(Refuse{*refusal, {}})},
                AbortIndication{false, say("The peer's session request cannot be accepted."), {}}};
    }
    m_state = State::Connecting;
    return {ConnectIndication{unit.userData}};
}

Actions Connection::handle(const Accept &unit)
{
    if (m_role != Role::Initiator || m_state != State::Connecting)
        return misplaced("AC");
    if ((unit.versions & version2) == 0)
        return protocolError(say("The peer accepted the session with an unsuitable version."));
    m_state = State::Open;
    return {ConnectConfirm{unit.userData}};
}

Actions Connection::handle(const Refuse &unit)
{
    if (m_role != Role::Initiator || m_state != State::Connecting)
        return misplaced("RF");
    m_state = State::Closed;
    return {Refused{refusalText(unit.reason), unit.userData}};
}

Actions Connection::handle(const Data &unit)
{
    if (m_state != State::Open && m_state != State::Finishing)
        return misplaced("DT");
    return {DataIndication{unit.userData}};
}

Actions Connection::handle(const Finish &unit)
{
    if (m_state == State::Open)
        m_state = State::Closing;
    else if (m_state == State::Finishing)
        m_finishCollision = true;
    else
        return misplaced("FN");
    return {FinishIndication{unit.userData}};
}

Actions Connection::handle(const Disconnect &unit)
{
    if (m_state != State::Finishing)
        return misplaced("DN");
    m_state = State::Closed;
    return {FinishConfirm{unit.userData}};
}

Actions Connection::handle(const NotFinished &)
{
    if (m_state != State::Finishing)
        return misplaced("NF");
    // Without the negotiated release unit the peer has no right to refuse the end.
    return protocolError(say("The peer refuses to end the session."));
}

Actions Connection::handle(const Abort &unit)
{
    m_state = State::Closed;
    Text reason =
        unit.byUser ? say("The peer aborted the session.")
        : unit.protocolError
            ? say("The peer's session layer reports an error in the protocol and aborted the session.")
            : say("The peer's session layer aborted the session.");
    return {AbortIndication{unit.byUser, reason, unit.userData}};
}

Actions Connection::handle(const AbortAccept &)
{
    return misplaced("AA");
}

Actions Connection::protocolError(const Text &reason)
{
    Actions actions;
    if (m_state != State::Idle)
        actions.emplace_back(Send{encode(Abort{false, true, {}})});
    m_state = State::Closed;
    actions.emplace_back(AbortIndication{false, reason, {}});
    return actions;
}

Actions Connection::misplaced(const char *unit)
{
    return protocolError(
        say("The peer sent the session unit \"%1\", which does not belong here.", unit));
}

} // namespace osi::session
