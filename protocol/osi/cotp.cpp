// SPDX-License-Identifier: Apache-2.0
#include "osi/cotp.h"

#include <algorithm>
#include <utility>

namespace osi::cotp {

namespace {

constexpr std::uint8_t codeConnectRequest = 0xe0;
constexpr std::uint8_t codeConnectConfirm = 0xd0;
constexpr std::uint8_t codeDisconnectRequest = 0x80;
constexpr std::uint8_t codeData = 0xf0;
constexpr std::uint8_t codeError = 0x70;

constexpr std::uint8_t parameterSize = 0xc0;
constexpr std::uint8_t parameterCallingSelector = 0xc1;
constexpr std::uint8_t parameterCalledSelector = 0xc2;
constexpr std::uint8_t parameterAlternativeClasses = 0xc7;
constexpr std::uint8_t parameterInvalidUnit = 0xc1;

constexpr std::uint8_t reasonUnknownSelector = 3;
constexpr std::uint8_t reasonNegotiationFailed = 0x82;
constexpr std::uint8_t causeNotSpecified = 0;
constexpr std::uint8_t causeInvalidType = 2;

constexpr std::uint16_t ownReference = 1;
constexpr std::uint8_t smallestExponent = 7;
constexpr std::uint8_t largestExponent = 13;
constexpr std::size_t dataHeaderSize = 3;
// RFC 1006 lets a request without a size mean the longest packet.
constexpr std::size_t unitSizeWhenAbsent = maxTpktPayload;

std::uint16_t number(Bytes octets, std::size_t offset)
{
    return static_cast<std::uint16_t>(octets[offset] << 8 | octets[offset + 1]);
}

void putNumber(Octets &out, std::uint16_t value)
{
    out.push_back(static_cast<std::uint8_t>(value >> 8));
    out.push_back(static_cast<std::uint8_t>(value & 0xff));
}

void putParameter(Octets &out, std::uint8_t code, Bytes value)
{
    const std::size_t length = std::min<std::size_t>(value.size(), 255);
    out.push_back(code);
    out.push_back(static_cast<std::uint8_t>(length));
    out.insert(out.end(), value.begin(), value.begin() + static_cast<std::ptrdiff_t>(length));
}

struct Parameter
{
    std::uint8_t code;
    Bytes value;
    std::size_t offset;
};

Result<std::vector<Parameter>> parametersOf(Bytes header, std::size_t begin)
{
    std::vector<Parameter> result;
    std::size_t at = begin;
    while (at < header.size()) {
        if (header.size() - at < 2 || header.size() - at - 2 < header[at + 1])
            return Error{say("A parameter of a transport unit is longer than the unit's header."),
                         at};
        const std::size_t length = header[at + 1];
        result.push_back({header[at], header.subspan(at + 2, length), at});
        at += 2 + length;
    }
    return result;
}

Error tooShort(const char *what)
{
    return Error{say("The transport unit \"%1\" is shorter than its fixed part.", what), 0};
}

template <typename Connect>
Result<Unit> decodeConnect(Bytes header, const char *what)
{
    constexpr std::size_t fixedPart = 7;
    if (header.size() < fixedPart)
        return tooShort(what);
    Connect unit;
    unit.destinationReference = number(header, 2);
    unit.sourceReference = number(header, 4);
    unit.preferredClass = header[6] >> 4;
    unit.options = header[6] & 0x0f;
    const auto parameters = parametersOf(header, fixedPart);
    if (!parameters)
        return parameters.error();
    for (const Parameter &parameter : *parameters) {
        const Bytes value = parameter.value;
        switch (parameter.code) {
        case parameterSize:
            if (value.size() != 1 || value[0] < smallestExponent || value[0] > largestExponent)
                return Error{say("The size of transport units is not one of 128 to 8,192 octets."),
                             parameter.offset};
            unit.sizeExponent = value[0];
            break;
        case parameterCallingSelector:
            unit.callingSelector.emplace(value.begin(), value.end());
            break;
        case parameterCalledSelector:
            unit.calledSelector.emplace(value.begin(), value.end());
            break;
        case parameterAlternativeClasses:
            unit.alternativeClasses.assign(value.begin(), value.end());
            break;
        default:
            break;
        }
    }
    return Unit(std::move(unit));
}

Result<Unit> decodeDisconnect(Bytes header)
{
    if (header.size() < 7)
        return tooShort("DR");
    const auto parameters = parametersOf(header, 7);
    if (!parameters)
        return parameters.error();
    return Unit(DisconnectRequest{number(header, 2), number(header, 4), header[6]});
}

Result<Unit> decodeError(Bytes header)
{
    if (header.size() < 5)
        return tooShort("error");
    const auto parameters = parametersOf(header, 5);
    if (!parameters)
        return parameters.error();
    ErrorUnit unit{number(header, 2), header[4], {}};
    for (const Parameter &parameter : *parameters) {
        if (parameter.code == parameterInvalidUnit)
            unit.invalidUnit.assign(parameter.value.begin(), parameter.value.end());
    }
    return Unit(std::move(unit));
}

struct Encoder
{
    Octets out{0};

    void connect(std::uint8_t code, const ConnectParameters &unit)
    {
        out.push_back(code);
        putNumber(out, unit.destinationReference);
        putNumber(out, unit.sourceReference);
        out.push_back(static_cast<std::uint8_t>(unit.preferredClass << 4 | (unit.options & 0x0f)));
        if (unit.sizeExponent)
            putParameter(out, parameterSize, std::span(&*unit.sizeExponent, 1));
        if (unit.callingSelector)
            putParameter(out, parameterCallingSelector, *unit.callingSelector);
        if (unit.calledSelector)
            putParameter(out, parameterCalledSelector, *unit.calledSelector);
        if (!unit.alternativeClasses.empty())
            putParameter(out, parameterAlternativeClasses, unit.alternativeClasses);
    }

    void operator()(const ConnectRequest &unit) { connect(codeConnectRequest, unit); }
    void operator()(const ConnectConfirm &unit) { connect(codeConnectConfirm, unit); }

    void operator()(const DisconnectRequest &unit)
    {
        out.push_back(codeDisconnectRequest);
        putNumber(out, unit.destinationReference);
        putNumber(out, unit.sourceReference);
        out.push_back(unit.reason);
    }

    void operator()(const DataUnit &unit)
    {
        out.push_back(codeData);
        out.push_back(unit.endOfMessage ? 0x80 : 0x00);
    }

    void operator()(const ErrorUnit &unit)
    {
        out.push_back(codeError);
        putNumber(out, unit.destinationReference);
        out.push_back(unit.cause);
        if (!unit.invalidUnit.empty())
            putParameter(out, parameterInvalidUnit, unit.invalidUnit);
    }
};

bool allowsClassZero(const ConnectParameters &request)
{
    // Class 0 is an implied alternative of class 1 (ISO/IEC 8073, 6.5).
    if (request.preferredClass <= 1)
        return true;
    return std::any_of(request.alternativeClasses.begin(), request.alternativeClasses.end(),
                       [](std::uint8_t octet) { return octet >> 4 == 0; });
}

} // namespace

bool DataUnit::operator==(const DataUnit &other) const
{
    return endOfMessage == other.endOfMessage && std::ranges::equal(data, other.data);
}

Result<Unit> decode(Bytes packet)
{
    if (packet.size() < 2)
        return Error{say("A transport unit needs at least two octets."), 0};
    const std::size_t headerSize = static_cast<std::size_t>(packet[0]) + 1;
    if (packet[0] == 255 || headerSize > packet.size() || headerSize < 2)
        return Error{say("The header of a transport unit is longer than the packet."), 0};
    const Bytes header = packet.first(headerSize);
    const std::uint8_t code = packet[1];
    if (code == codeData) {
        if (headerSize != dataHeaderSize)
            return Error{
                say("A data unit of transport class 0 has a header of another length than 3."), 0};
        return Unit(DataUnit{(packet[2] & 0x80) != 0, packet.subspan(dataHeaderSize)});
    }
    const bool mayCarryData = code == codeDisconnectRequest;
    if (headerSize != packet.size() && !mayCarryData)
        return Error{say("A transport unit is followed by octets that belong to nothing."),
                     headerSize};
    switch (code & 0xf0) {
    case codeConnectRequest:
        return decodeConnect<ConnectRequest>(header, "CR");
    case codeConnectConfirm:
        return decodeConnect<ConnectConfirm>(header, "CC");
    default:
        break;
    }
    switch (code) {
    case codeDisconnectRequest:
        return decodeDisconnect(header);
    case codeError:
        return decodeError(header);
    default:
        return Error{say("A transport unit has the unknown code %1.", code), 1};
    }
}

Octets encode(const Unit &unit)
{
    Encoder encoder;
    std::visit(encoder, unit);
    // The length field of one octet ends at 254 and does not count itself.
    encoder.out.resize(std::min<std::size_t>(encoder.out.size(), 255));
    encoder.out[0] = static_cast<std::uint8_t>(encoder.out.size() - 1);
    if (const auto *data = std::get_if<DataUnit>(&unit))
        encoder.out.insert(encoder.out.end(), data->data.begin(), data->data.end());
    return std::move(encoder.out);
}

Text reasonText(std::uint8_t reason)
{
    switch (reason) {
    case 0:
        return say("The peer ended the transport connection without a reason.");
    case 1:
        return say("The peer's transport selector is congested.");
    case 2:
        return say("No session entity is attached to the transport selector.");
    case 3:
        return say("The peer does not know the transport selector.");
    case 0x80:
        return say("The peer ended the transport connection normally.");
    case 0x81:
        return say("The peer's transport layer is congested.");
    case 0x82:
        return say("The transport classes of both sides do not match.");
    case 0x83:
        return say("The peer saw a duplicate transport reference.");
    case 0x84:
        return say("The peer saw mismatched transport references.");
    case 0x85:
        return say("The peer reports an error in the transport protocol.");
    case 0x87:
        return say("The peer's transport references have overflowed.");
    case 0x88:
        return say("The peer refuses the request on this network connection.");
    case 0x8a:
        return say("The peer reports an invalid header or parameter length.");
    default:
        return say("The peer ended the transport connection with reason %1.", reason);
    }
}

Text causeText(std::uint8_t cause)
{
    switch (cause) {
    case 1:
        return say("The peer refuses a parameter code of the transport unit.");
    case 2:
        return say("The peer refuses the type of the transport unit.");
    case 3:
        return say("The peer refuses a parameter value of the transport unit.");
    default:
        return say("The peer refuses a transport unit without a reason.");
    }
}

Connection::Connection(Role role, Options options)
    : m_role(role)
    , m_options(std::move(options))
{
}

Actions Connection::connect()
{
    Actions actions;
    if (m_state != State::Idle || m_role != Role::Initiator)
        return actions;
    ConnectRequest request;
    request.sourceReference = ownReference;
    request.sizeExponent = ownSizeExponent();
    request.callingSelector = m_options.localSelector;
    request.calledSelector = m_options.remoteSelector;
    sendUnit(request, actions);
    m_state = State::Connecting;
    return actions;
}

Actions Connection::receive(Bytes octets)
{
    Actions actions;
    if (m_state == State::Closed)
        return actions;
    m_reader.append(octets);
    while (m_state != State::Closed) {
        const auto packet = m_reader.next();
        if (!packet) {
            close(packet.error().message, actions);
            break;
        }
        if (!packet->has_value())
            break;
        const auto unit = decode(**packet);
        if (unit)
            handle(*unit, **packet, actions);
        else
            protocolError(causeNotSpecified, **packet, unit.error().message, actions);
    }
    return actions;
}

Actions Connection::send(Bytes message)
{
    Actions actions;
    if (m_state != State::Open)
        return actions;
    Send send;
    this->send(message, send.octets);
    actions.emplace_back(std::move(send));
    return actions;
}

void Connection::send(Bytes head, Bytes body, Octets &out) const
{
    const std::size_t room = m_unitSize - dataHeaderSize;
    std::size_t left = head.size() + body.size();
    const std::size_t units = std::max<std::size_t>(1, (left + room - 1) / room);
    out.reserve(out.size() + left + units * (tpktHeaderSize + dataHeaderSize));
    const auto take = [&out](Bytes &from, std::size_t most) {
        const std::size_t count = std::min(most, from.size());
        out.insert(out.end(), from.begin(), from.begin() + static_cast<std::ptrdiff_t>(count));
        from = from.subspan(count);
        return count;
    };
    do {
        const std::size_t portion = std::min(room, left);
        const std::size_t length = portion + dataHeaderSize + tpktHeaderSize;
        left -= portion;
        const std::uint8_t mark = left == 0 ? 0x80 : 0x00;
        out.insert(out.end(), {3, 0, static_cast<std::uint8_t>(length >> 8),
                               static_cast<std::uint8_t>(length & 0xff), 2, codeData, mark});
        take(body, portion - take(head, portion));
    } while (left != 0);
}

Actions Connection::networkClosed(const Text &reason)
{
    Actions actions;
    if (m_state != State::Closed)
        close(reason, actions);
    return actions;
}

void Connection::handle(const Unit &unit, Bytes packet, Actions &actions)
{
    if (const auto *data = std::get_if<DataUnit>(&unit); data && m_state == State::Open) {
        handleData(*data, actions);
    } else if (const auto *request = std::get_if<ConnectRequest>(&unit);
               request && m_state == State::Idle && m_role == Role::Responder) {
        handleRequest(*request, actions);
    } else if (const auto *confirm = std::get_if<ConnectConfirm>(&unit);
               confirm && m_state == State::Connecting) {
        handleConfirm(*confirm, actions);
    } else if (const auto *disconnect = std::get_if<DisconnectRequest>(&unit)) {
        close(reasonText(disconnect->reason), actions);
    } else if (const auto *error = std::get_if<ErrorUnit>(&unit)) {
        close(causeText(error->cause), actions);
    } else {
        protocolError(causeInvalidType, packet,
                      say("The peer sent a transport unit that does not belong here."), actions);
    }
}

void Connection::handleRequest(const ConnectRequest &request, Actions &actions)
{
    m_peerReference = request.sourceReference;
    m_callingSelector = request.callingSelector.value_or(Octets());
    m_calledSelector = request.calledSelector.value_or(Octets());
    if (!allowsClassZero(request)) {
        sendUnit(DisconnectRequest{m_peerReference, 0, reasonNegotiationFailed}, actions);
        close(say("The peer asked for a transport class other than 0."), actions);
        return;
    }
    if (m_options.checkSelector && m_calledSelector != m_options.localSelector) {
        sendUnit(DisconnectRequest{m_peerReference, 0, reasonUnknownSelector}, actions);
        close(say("The peer asked for an unknown transport selector."), actions);
        return;
    }
    ConnectConfirm confirm;
    confirm.destinationReference = m_peerReference;
    confirm.sourceReference = ownReference;
    confirm.callingSelector = request.callingSelector;
    confirm.calledSelector = request.calledSelector;
    if (request.sizeExponent) {
        confirm.sizeExponent = std::min(*request.sizeExponent, ownSizeExponent());
        m_unitSize = std::size_t{1} << *confirm.sizeExponent;
    } else {
        m_unitSize = std::min(unitSizeWhenAbsent, std::size_t{1} << ownSizeExponent());
    }
    sendUnit(confirm, actions);
    m_state = State::Open;
    actions.emplace_back(Connected());
}

void Connection::handleConfirm(const ConnectConfirm &confirm, Actions &actions)
{
    if (confirm.preferredClass != 0) {
        sendUnit(DisconnectRequest{confirm.sourceReference, ownReference, reasonNegotiationFailed},
                 actions);
        close(say("The peer confirmed a transport class other than 0."), actions);
        return;
    }
    m_peerReference = confirm.sourceReference;
    const std::uint8_t exponent = confirm.sizeExponent.value_or(ownSizeExponent());
    m_unitSize = std::size_t{1} << std::min(exponent, ownSizeExponent());
    m_state = State::Open;
    actions.emplace_back(Connected());
}

void Connection::handleData(const DataUnit &data, Actions &actions)
{
    if (m_message.size() + data.data.size() > m_options.maxMessage) {
        close(say("The peer sent a message of more than %1 octets.", m_options.maxMessage),
              actions);
        return;
    }
    m_message.insert(m_message.end(), data.data.begin(), data.data.end());
    if (!data.endOfMessage)
        return;
    actions.emplace_back(Message{std::exchange(m_message, {})});
}

void Connection::protocolError(std::uint8_t cause, Bytes packet, const Text &reason,
                               Actions &actions)
{
    constexpr std::size_t shown = 32;
    const Bytes beginning = packet.first(std::min(packet.size(), shown));
    sendUnit(ErrorUnit{m_peerReference, cause, Octets(beginning.begin(), beginning.end())},
             actions);
    close(reason, actions);
}

void Connection::close(Text reason, Actions &actions)
{
    m_state = State::Closed;
    actions.emplace_back(Closed{std::move(reason)});
}

void Connection::sendUnit(const Unit &unit, Actions &actions)
{
    Send send;
    appendTpkt(send.octets, encode(unit));
    actions.emplace_back(std::move(send));
}

std::uint8_t Connection::ownSizeExponent() const
{
    std::uint8_t exponent = smallestExponent;
    while (exponent < largestExponent && (std::size_t{2} << exponent) <= m_options.unitSize)
        ++exponent;
    return exponent;
}

} // namespace osi::cotp
