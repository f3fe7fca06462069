// SPDX-License-Identifier: Apache-2.0
#include "osi/acse.h"

#include "osi/ber.h"

#include <algorithm>
#include <array>
#include <utility>

namespace osi::acse {

namespace {

using ber::Element;
using ber::Input;
using ber::Reader;
using ber::Tag;
using ber::Writer;

constexpr Tag application(std::uint32_t number)
{
    return Tag(ber::TagClass::Application, true, number);
}

constexpr Tag tagRequest = application(0);
constexpr Tag tagResponse = application(1);
constexpr Tag tagReleaseRequest = application(2);
constexpr Tag tagReleaseResponse = application(3);
constexpr Tag tagAbort = application(4);
constexpr Tag tagUserInformation = Tag::group(30);

void writeUserInformation(Writer &writer, const std::optional<UserInformation> &information)
{
    if (!information)
        return;
    const std::size_t mark = writer.size();
    writer.element(Tag::group(0), information->pdu);
    writer.integer(ber::tags::integer, information->contextId);
    writer.close(ber::tags::external, mark);
    writer.close(tagUserInformation, mark);
}

std::optional<UserInformation> readUserInformation(Reader list)
{
    std::optional<UserInformation> result;
    Element item;
    while (!list.atEnd()) {
        Reader fields = list.expectGroup(ber::tags::external, "user-information");
        UserInformation information;
        if (fields.takeIf(ber::tags::objectIdentifier, item))
            fields.objectIdentifier(item);
        if (fields.takeIf(ber::tags::integer, item))
            information.contextId = fields.integer(item);
        if (fields.takeIf(Tag::group(0), item) || fields.takeIf(Tag::context(1), item))
            information.pdu = item.content;
        else
            fields.fail(say("User information is in a form that is not supported."));
        fields.expectEnd("user-information");
        result = information;
    }
    return result;
}

void writeTitle(Writer &writer, const Title &title, std::uint32_t apTag, std::uint32_t aeTag)
{
    std::size_t mark = writer.size();
    if (title.aeQualifier) {
        writer.integer(ber::tags::integer, *title.aeQualifier);
        writer.close(Tag::group(aeTag), mark);
    }
    mark = writer.size();
    if (title.apTitle) {
        writer.objectIdentifier(ber::tags::objectIdentifier, *title.apTitle);
        writer.close(Tag::group(apTag), mark);
    }
}

void readApTitle(Reader inside, Title &title)
{
    Element item;
    if (inside.takeIf(ber::tags::objectIdentifier, item))
        title.apTitle = inside.objectIdentifier(item);
}

void readAeQualifier(Reader inside, Title &title)
{
    Element item;
    if (inside.takeIf(ber::tags::integer, item))
        title.aeQualifier = inside.integer(item);
}

ObjectIdentifier readApplicationContext(Reader inside)
{
    return inside.objectIdentifier(inside.expect(ber::tags::objectIdentifier, "aSO-context-name"));
}

struct Encoder
{
    Writer writer;

    void operator()(const AssociateRequest &unit)
    {
        writeUserInformation(writer, unit.userInformation);
        if (unit.authentication) {
            const std::size_t mark = writer.size();
            writer.element(Tag::context(0), unit.authentication->value);
            writer.close(Tag::group(12), mark);
            writer.objectIdentifier(Tag::context(11), unit.authentication->mechanism);
            writer.bitString(Tag::context(10), BitString::fromText("1"));
        }
        writeTitle(writer, unit.calling, 6, 7);
        writeTitle(writer, unit.called, 2, 3);
        applicationContext(unit.applicationContext);
        writer.close(tagRequest, 0);
    }

    void operator()(const AssociateResponse &unit)
    {
        writeUserInformation(writer, unit.userInformation);
        writeTitle(writer, unit.responding, 4, 5);
        std::size_t mark = writer.size();
        writer.integer(ber::tags::integer, unit.diagnostic.code);
        writer.close(Tag::group(unit.diagnostic.byProvider ? 2 : 1), mark);
        writer.close(Tag::group(3), mark);
        mark = writer.size();
        writer.integer(ber::tags::integer, static_cast<std::int64_t>(unit.result));
        writer.close(Tag::group(2), mark);
        applicationContext(unit.applicationContext);
        writer.close(tagResponse, 0);
    }

    void operator()(const ReleaseRequest &unit) { release(tagReleaseRequest, unit.reason); }
    void operator()(const ReleaseResponse &unit) { release(tagReleaseResponse, unit.reason); }

    void operator()(const Abort &unit)
    {
        if (unit.diagnostic)
            writer.integer(Tag::context(1), *unit.diagnostic);
        writer.integer(Tag::context(0), unit.byProvider ? 1 : 0);
        writer.close(tagAbort, 0);
    }

    void applicationContext(const ObjectIdentifier &name)
    {
        const std::size_t mark = writer.size();
        writer.objectIdentifier(ber::tags::objectIdentifier, name);
        writer.close(Tag::group(1), mark);
    }

    void release(Tag tag, const std::optional<std::int64_t> &reason)
    {
        if (reason)
            writer.integer(Tag::context(0), *reason);
        writer.close(tag, 0);
    }
};

AssociateRequest readRequest(Reader fields)
{
    AssociateRequest unit;
    Element item;
    Authentication authentication;
    bool authenticated = false;
    bool hasContext = false;
    while (fields.next(item)) {
        if (item.tag == Tag::group(1)) {
            unit.applicationContext = readApplicationContext(fields.enter(item));
            hasContext = true;
        } else if (item.tag == Tag::group(2)) {
            readApTitle(fields.enter(item), unit.called);
        } else if (item.tag == Tag::group(3)) {
            readAeQualifier(fields.enter(item), unit.called);
        } else if (item.tag == Tag::group(6)) {
            readApTitle(fields.enter(item), unit.calling);
        } else if (item.tag == Tag::group(7)) {
            readAeQualifier(fields.enter(item), unit.calling);
        } else if (item.tag == Tag::context(11)) {
            authentication.mechanism = fields.objectIdentifier(item);
            authenticated = true;
        } else if (item.tag == Tag::group(12)) {
            Reader value = fields.enter(item);
            if (value.next(item))
                authentication.value = Octets(item.content.begin(), item.content.end());
            value.expectEnd("authentication-value");
            authenticated = true;
        } else if (item.tag == tagUserInformation) {
            unit.userInformation = readUserInformation(fields.enter(item));
        }
    }
    if (authenticated)
        unit.authentication = std::move(authentication);
    if (!hasContext)
        fields.fail(say("An association request has no application context name."));
    return unit;
}

AssociateResponse readResponse(Reader fields)
{
    AssociateResponse unit;
    Element item;
    bool hasResult = false;
    while (fields.next(item)) {
        if (item.tag == Tag::group(1)) {
            unit.applicationContext = readApplicationContext(fields.enter(item));
        } else if (item.tag == Tag::group(2)) {
            Reader inside = fields.enter(item);
            unit.result = static_cast<Result>(
                inside.integer(inside.expect(ber::tags::integer, "result"), 0, 2));
            hasResult = true;
        } else if (item.tag == Tag::group(3)) {
            Reader inside = fields.enter(item);
            unit.diagnostic.byProvider = inside.peek() == Tag::group(2);
            Reader code =
                inside.expectGroup(unit.diagnostic.byProvider ? Tag::group(2) : Tag::group(1),
                                   "result-source-diagnostic");
            unit.diagnostic.code =
                code.integer(code.expect(ber::tags::integer, "result-source-diagnostic"));
        } else if (item.tag == Tag::group(4)) {
            readApTitle(fields.enter(item), unit.responding);
        } else if (item.tag == Tag::group(5)) {
            readAeQualifier(fields.enter(item), unit.responding);
        } else if (item.tag == tagUserInformation) {
            unit.userInformation = readUserInformation(fields.enter(item));
        }
    }
    if (!hasResult)
        fields.fail(say("An association response has no result."));
    return unit;
}

std::optional<std::int64_t> readReason(Reader fields)
{
    std::optional<std::int64_t> reason;
    Element item;
    while (fields.next(item)) {
        if (item.tag == Tag::context(0))
            reason = fields.integer(item);
    }
    return reason;
}

Abort readAbort(Reader fields)
{
    Abort unit;
    Element item;
    unit.byProvider = fields.integer(fields.expect(Tag::context(0), "abort-source"), 0, 1) == 1;
    if (fields.takeIf(Tag::context(1), item))
        unit.diagnostic = fields.integer(item);
    return unit;
}

bool sameOctets(Bytes left, Bytes right)
{
    if (left.size() != right.size())
        return false;
    // Every octet is looked at, so that the time taken tells nothing about a password.
    unsigned difference = 0;
    for (std::size_t i = 0; i < left.size(); ++i)
        difference |= static_cast<unsigned>(left[i] ^ right[i]);
    return difference == 0;
}

Bytes pduOf(const std::optional<UserInformation> &information)
{
    return information ? information->pdu : Bytes();
}

} // namespace

bool UserInformation::operator==(const UserInformation &other) const
{
    return contextId == other.contextId && std::ranges::equal(pdu, other.pdu);
}

bool AssociateIndication::operator==(const AssociateIndication &other) const
{
    return calling == other.calling && std::ranges::equal(pdu, other.pdu);
}

bool AssociateConfirm::operator==(const AssociateConfirm &other) const
{
    return responding == other.responding && std::ranges::equal(pdu, other.pdu);
}

bool Refused::operator==(const Refused &other) const
{
    return reason == other.reason && std::ranges::equal(pdu, other.pdu);
}

Octets encode(const Unit &unit)
{
    Encoder encoder;
    std::visit(encoder, unit);
    return encoder.writer.take();
}

osi::Result<Unit> decode(Bytes octets)
{
    Input input(octets);
    Reader outer = input.reader();
    Element item;
    Unit unit;
    if (outer.takeIf(tagRequest, item))
        unit = readRequest(outer.enter(item));
    else if (outer.takeIf(tagResponse, item))
        unit = readResponse(outer.enter(item));
    else if (outer.takeIf(tagReleaseRequest, item))
        unit = ReleaseRequest{readReason(outer.enter(item))};
    else if (outer.takeIf(tagReleaseResponse, item))
        unit = ReleaseResponse{readReason(outer.enter(item))};
    else if (outer.takeIf(tagAbort, item))
        unit = readAbort(outer.enter(item));
    else
        outer.fail(say("A unit of association control has an unknown tag."));
    outer.expectEnd("ACSE-apdu");
    return input.finish(std::move(unit));
}

Text refusalText(Result result, const Diagnostic &diagnostic)
{
    static constexpr std::array userReasons{
        wording::pattern("no reason given"),
        wording::pattern("the application context is not supported"),
        wording::pattern("the calling AP title is not recognised"),
        wording::pattern("the calling AP invocation identifier is not recognised"),
        wording::pattern("the calling AE qualifier is not recognised"),
        wording::pattern("the calling AE invocation identifier is not recognised"),
        wording::pattern("the called AP title is not recognised"),
        wording::pattern("the called AP invocation identifier is not recognised"),
        wording::pattern("the called AE qualifier is not recognised"),
        wording::pattern("the called AE invocation identifier is not recognised"),
        wording::pattern("the authentication mechanism is not recognised"),
        wording::pattern("an authentication mechanism is required"),
        wording::pattern("the authentication failed"),
        wording::pattern("an authentication is required")};
    static constexpr std::array providerReasons{
        wording::pattern("no reason given"),
        wording::pattern("there is no common version of association control")};
    const auto code = static_cast<std::size_t>(diagnostic.code);
    // 0 says that there is nothing to say.
    Text reason;
    if (diagnostic.byProvider && code > 0 && code <= providerReasons.size())
        reason = say(providerReasons[code - 1]);
    else if (!diagnostic.byProvider && code > 0 && code <= userReasons.size())
        reason = say(userReasons[code - 1]);
    else if (code != 0)
        reason = say("reason %1", diagnostic.code);
    const bool isTransient = result == Result::RejectedTransiently;
    if (reason.empty()) {
        return isTransient ? say("The peer refuses the association for the time being.")
                           : say("The peer refuses the association.");
    }
    return isTransient ? say("The peer refuses the association for the time being: %1.", reason)
                       : say("The peer refuses the association: %1.", reason);
}

Association::Association(Options options)
    : m_options(std::move(options))
{
}

Actions Association::associate(Bytes pdu)
{
    if (m_state != State::Idle)
        return {};
    m_state = State::Associating;
    AssociateRequest unit;
    unit.called = m_options.peer;
    unit.calling = m_options.own;
    unit.authentication = m_options.authentication;
    unit.userInformation = UserInformation{m_contextId, pdu};
    return {Request{Service::Connect, encode(unit)}};
}

Actions Association::accept(Bytes pdu)
{
    if (m_state != State::Associating)
        return {};
    m_state = State::Open;
    AssociateResponse unit;
    unit.responding = m_options.own;
    unit.userInformation = UserInformation{m_contextId, pdu};
    return {Request{Service::Accept, encode(unit)}};
}

Actions Association::refuse(Result result, std::int64_t diagnostic, Bytes pdu)
{
    if (m_state != State::Associating)
        return {};
    m_state = State::Closed;
    AssociateResponse unit;
    unit.result = result;
    unit.diagnostic = {false, diagnostic};
    if (!pdu.empty())
        unit.userInformation = UserInformation{m_contextId, pdu};
    return {Request{Service::Refuse, encode(unit)}};
}

Actions Association::release()
{
    if (m_state != State::Open)
        return {};
    m_state = State::Releasing;
    return {Request{Service::Finish, encode(ReleaseRequest())}};
}

Actions Association::answerRelease()
{
    if (m_state == State::Answering)
        m_state = State::Closed;
    else if (m_state != State::Releasing)
        return {};
    return {Request{Service::Disconnect, encode(ReleaseResponse())}};
}

Actions Association::abort()
{
    if (m_state == State::Idle || m_state == State::Closed)
        return {};
    m_state = State::Closed;
    return {Request{Service::UserAbort, encode(Abort())}};
}

Actions Association::receive(Service service, Bytes octets, const Text &reason)
{
    if (m_state == State::Closed)
        return {};
    if (service == Service::UserAbort || service == Service::ProviderAbort ||
        (service == Service::Refuse && octets.empty()))
        return receiveEnd(service, octets, reason);
    if (service == Service::Finish || service == Service::Disconnect) {
        // Some peers end the session without saying it in association control.
        if (!octets.empty()) {
            const auto unit = decode(octets);
            if (!unit)
                return protocolError(ber::unreadable(unit.error()));
        }
        if (service == Service::Disconnect) {
            m_state = State::Closed;
            return {ReleaseConfirm()};
        }
        if (m_state == State::Open)
            m_state = State::Answering;
        return {ReleaseIndication()};
    }
    const auto unit = decode(octets);
    if (!unit)
        return protocolError(ber::unreadable(unit.error()));
    const auto *request = std::get_if<AssociateRequest>(&*unit);
    if (request && service == Service::Connect && m_state == State::Idle)
        return receiveRequest(*request);
    const auto *response = std::get_if<AssociateResponse>(&*unit);
    if (response && m_state == State::Associating &&
        (service == Service::Accept || service == Service::Refuse))
        return receiveResponse(*response, service);
    return protocolError(
        say("The peer sent a unit of association control that does not belong here."));
}

Actions Association::receiveRequest(const AssociateRequest &unit)
{
    m_state = State::Associating;
    if (unit.userInformation)
        m_contextId = unit.userInformation->contextId;
    std::optional<std::int64_t> diagnostic;
    Text reason;
    if (unit.applicationContext != mmsApplicationContext) {
        diagnostic = diagnosticApplicationContext;
        reason = say("The peer asked for an application context other than MMS.");
    } else if (m_options.authentication && !unit.authentication) {
        diagnostic = diagnosticAuthenticationRequired;
        reason = say("The peer sent no password.");
    } else if (m_options.authentication &&
               (unit.authentication->mechanism != m_options.authentication->mechanism ||
                !sameOctets(unit.authentication->value, m_options.authentication->value))) {
        diagnostic = diagnosticAuthenticationFailed;
        reason = say("The peer sent a wrong password.");
    }
    if (!diagnostic)
        return {AssociateIndication{unit.calling, pduOf(unit.userInformation)}};
    Actions actions = refuse(Result::RejectedPermanently, *diagnostic, {});
    actions.emplace_back(Aborted{false, std::move(reason)});
    return actions;
}

Actions Association::receiveResponse(const AssociateResponse &unit, Service service)
{
    if (unit.result == Result::Accepted && service == Service::Accept) {
        m_state = State::Open;
        return {AssociateConfirm{unit.responding, pduOf(unit.userInformation)}};
    }
    m_state = State::Closed;
    Actions actions;
    if (service == Service::Accept)
        actions.emplace_back(Request{Service::UserAbort, encode(Abort())});
    actions.emplace_back(
        Refused{refusalText(unit.result, unit.diagnostic), pduOf(unit.userInformation)});
    return actions;
}

Actions Association::receiveEnd(Service service, Bytes octets, const Text &reason)
{
    const bool refused = service == Service::Refuse;
    m_state = State::Closed;
    if (refused)
        return {Refused{reason, {}}};
    bool byUser = service == Service::UserAbort;
    if (!octets.empty()) {
        const auto unit = decode(octets);
        const auto *abort = unit ? std::get_if<Abort>(&*unit) : nullptr;
        byUser = abort && !abort->byProvider;
    }
    if (!reason.empty())
        return {Aborted{byUser, reason}};
    return {Aborted{byUser, byUser
                                ? say("The peer aborted the association.")
                                : say("The peer's association control aborted the association.")}};
}

Actions Association::protocolError(const Text &reason)
{
    Actions actions;
    if (m_state != State::Idle)
        actions.emplace_back(Request{Service::UserAbort, encode(Abort{true, 1})});
    else
        actions.emplace_back(Request{Service::ProviderAbort, {}});
    m_state = State::Closed;
    actions.emplace_back(Aborted{false, reason});
    return actions;
}

} // namespace osi::acse
