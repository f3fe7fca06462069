// SPDX-License-Identifier: Apache-2.0
#include "osi/presentation.h"

#include "osi/ber.h"

#include <algorithm>
#include <array>
#include <utility>

namespace osi::presentation {

namespace {

using ber::Element;
using ber::Input;
using ber::Reader;
using ber::Tag;
using ber::Writer;

constexpr Tag tagUserData{ber::TagClass::Application, true, 1};
constexpr Tag tagSimpleUserData{ber::TagClass::Application, false, 0};
constexpr Tag tagModeSelector = Tag::group(0);
constexpr Tag tagNormalMode = Tag::group(2);
constexpr std::int64_t normalMode = 1;
constexpr std::size_t maxContexts = 64;

std::vector<DataValue> readValues(Reader list)
{
    std::vector<DataValue> result;
    Element item;
    while (!list.atEnd()) {
        Reader fields = list.expectGroup(ber::tags::sequence, "PDV-list");
        DataValue value;
        if (fields.takeIf(ber::tags::objectIdentifier, item) &&
            fields.objectIdentifier(item) != berSyntax)
            fields.fail(say("A presentation value is encoded by rules that were not agreed."));
        value.contextId =
            fields.integer(fields.expect(ber::tags::integer, "presentation-context-identifier"));
        if (fields.takeIf(Tag::group(0), item) || fields.takeIf(Tag::context(1), item))
            value.value = item.content;
        else
            fields.fail(say("A presentation value is in a form that is not supported."));
        fields.expectEnd("PDV-list");
        if (result.size() == maxContexts)
            fields.fail(say("A presentation unit has too many values."));
        result.push_back(value);
    }
    return result;
}

void writeValues(Writer &writer, const std::vector<DataValue> &values)
{
    const std::size_t mark = writer.size();
    for (auto value = values.rbegin(); value != values.rend(); ++value) {
        const std::size_t start = writer.size();
        writer.element(Tag::group(0), value->value);
        writer.integer(ber::tags::integer, value->contextId);
        writer.close(ber::tags::sequence, start);
    }
    writer.close(tagUserData, mark);
}

std::vector<Context> readContexts(Reader list)
{
    std::vector<Context> result;
    while (!list.atEnd()) {
        Reader fields =
            list.expectGroup(ber::tags::sequence, "presentation-context-definition-list");
        Context context;
        context.id =
            fields.integer(fields.expect(ber::tags::integer, "presentation-context-identifier"));
        context.abstractSyntax = fields.objectIdentifier(
            fields.expect(ber::tags::objectIdentifier, "abstract-syntax-name"));
        Reader syntaxes = fields.expectGroup(ber::tags::sequence, "transfer-syntax-name-list");
        while (!syntaxes.atEnd() && context.transferSyntaxes.size() < maxContexts) {
            context.transferSyntaxes.push_back(syntaxes.objectIdentifier(
                syntaxes.expect(ber::tags::objectIdentifier, "transfer-syntax-name")));
        }
        syntaxes.expectEnd("transfer-syntax-name-list");
        fields.expectEnd("presentation-context-definition-list");
        if (result.size() == maxContexts)
            list.fail(say("The peer asks for too many presentation contexts."));
        result.push_back(std::move(context));
    }
    return result;
}

std::vector<ContextAnswer> readAnswers(Reader list)
{
    std::vector<ContextAnswer> result;
    Element item;
    while (!list.atEnd()) {
        Reader fields =
            list.expectGroup(ber::tags::sequence, "presentation-context-definition-result-list");
        ContextAnswer answer;
        answer.result = static_cast<ContextResult>(fields.integer(
            fields.expect(Tag::context(0), "presentation-context-definition-result-list"), 0, 2));
        if (fields.takeIf(Tag::context(1), item))
            answer.transferSyntax = fields.objectIdentifier(item);
        if (fields.takeIf(Tag::context(2), item))
            answer.reason = fields.integer(item);
        fields.expectEnd("presentation-context-definition-result-list");
        if (result.size() == maxContexts)
            list.fail(say("The peer answers for too many presentation contexts."));
        result.push_back(std::move(answer));
    }
    return result;
}

void writeAnswers(Writer &writer, const std::vector<ContextAnswer> &answers)
{
    const std::size_t mark = writer.size();
    for (auto answer = answers.rbegin(); answer != answers.rend(); ++answer) {
        const std::size_t start = writer.size();
        if (answer->reason)
            writer.integer(Tag::context(2), *answer->reason);
        if (answer->transferSyntax)
            writer.objectIdentifier(Tag::context(1), *answer->transferSyntax);
        writer.integer(Tag::context(0), static_cast<std::int64_t>(answer->result));
        writer.close(ber::tags::sequence, start);
    }
    writer.close(Tag::group(5), mark);
}

void writeMode(Writer &writer)
{
    const std::size_t mark = writer.size();
    writer.integer(Tag::context(0), normalMode);
    writer.close(tagModeSelector, mark);
}

/// What the parameters of normal mode can hold, whichever unit they came with.
struct NormalMode
{
    std::optional<Octets> callingSelector;
    std::optional<Octets> calledSelector;
    std::optional<Octets> respondingSelector;
    std::vector<Context> contexts;
    std::vector<ContextAnswer> answers;
    std::optional<std::int64_t> reason;
    std::vector<DataValue> userData;
};

NormalMode readNormalMode(Reader fields)
{
    NormalMode result;
    Element item;
    while (fields.next(item)) {
        if (item.tag == Tag::context(1))
            result.callingSelector = fields.octets(item);
        else if (item.tag == Tag::context(2))
            result.calledSelector = fields.octets(item);
        else if (item.tag == Tag::context(3))
            result.respondingSelector = fields.octets(item);
        else if (item.tag == Tag::group(4))
            result.contexts = readContexts(fields.enter(item));
        else if (item.tag == Tag::group(5))
            result.answers = readAnswers(fields.enter(item));
        else if (item.tag == Tag::context(10))
            result.reason = fields.integer(item);
        else if (item.tag == tagUserData)
            result.userData = readValues(fields.enter(item));
        else if (item.tag == tagSimpleUserData)
            fields.fail(say("Presentation user data is simply encoded, which is not supported."));
    }
    return result;
}

/// The parameters within the set that a connect and an accept unit are.
NormalMode readSet(Reader outer)
{
    Reader set = outer.expectGroup(ber::tags::set, "PPDU");
    outer.expectEnd("PPDU");
    std::optional<NormalMode> result;
    Element item;
    while (set.next(item)) {
        if (item.tag == tagModeSelector) {
            Reader mode = set.enter(item);
            if (mode.integer(mode.expect(Tag::context(0), "mode-selector")) != normalMode)
                mode.fail(say("The peer asks for a presentation mode other than normal mode."));
        } else if (item.tag == tagNormalMode) {
            result = readNormalMode(set.enter(item));
        }
    }
    if (!result)
        set.fail(say("A presentation unit has no parameters of normal mode."));
    return std::move(result).value_or(NormalMode());
}

} // namespace

bool DataValue::operator==(const DataValue &other) const
{
    return contextId == other.contextId && std::ranges::equal(value, other.value);
}

bool Indication::operator==(const Indication &other) const
{
    return service == other.service && association == other.association &&
           std::ranges::equal(value, other.value) && reason == other.reason;
}

Octets encode(const Connect &unit)
{
    Writer writer;
    if (!unit.userData.empty())
        writeValues(writer, unit.userData);
    const std::size_t list = writer.size();
    for (auto context = unit.contexts.rbegin(); context != unit.contexts.rend(); ++context) {
        const std::size_t start = writer.size();
        for (auto syntax = context->transferSyntaxes.rbegin();
             syntax != context->transferSyntaxes.rend(); ++syntax)
            writer.objectIdentifier(ber::tags::objectIdentifier, *syntax);
        writer.close(ber::tags::sequence, start);
        writer.objectIdentifier(ber::tags::objectIdentifier, context->abstractSyntax);
        writer.integer(ber::tags::integer, context->id);
        writer.close(ber::tags::sequence, start);
    }
    writer.close(Tag::group(4), list);
    if (unit.calledSelector)
        writer.element(Tag::context(2), *unit.calledSelector);
    if (unit.callingSelector)
        writer.element(Tag::context(1), *unit.callingSelector);
    writer.close(tagNormalMode, 0);
    writeMode(writer);
    writer.close(ber::tags::set, 0);
    return writer.take();
}

Octets encode(const Accept &unit)
{
    Writer writer;
    if (!unit.userData.empty())
        writeValues(writer, unit.userData);
    writeAnswers(writer, unit.answers);
    if (unit.respondingSelector)
        writer.element(Tag::context(3), *unit.respondingSelector);
    writer.close(tagNormalMode, 0);
    writeMode(writer);
    writer.close(ber::tags::set, 0);
    return writer.take();
}

Octets encode(const Reject &unit)
{
    Writer writer;
    if (!unit.userData.empty())
        writeValues(writer, unit.userData);
    if (unit.reason)
        writer.integer(Tag::context(10), *unit.reason);
    if (!unit.answers.empty())
        writeAnswers(writer, unit.answers);
    if (unit.respondingSelector)
        writer.element(Tag::context(3), *unit.respondingSelector);
    writer.close(ber::tags::sequence, 0);
    return writer.take();
}

Octets encode(const Abort &unit)
{
    Writer writer;
    if (const auto *user = std::get_if<UserAbort>(&unit)) {
        if (!user->userData.empty())
            writeValues(writer, user->userData);
        writer.close(Tag::group(0), 0);
    } else if (const auto *provider = std::get_if<ProviderAbort>(&unit)) {
        if (provider->event)
            writer.integer(Tag::context(1), *provider->event);
        if (provider->reason)
            writer.integer(Tag::context(0), *provider->reason);
        writer.close(ber::tags::sequence, 0);
    }
    return writer.take();
}

Octets encode(const std::vector<DataValue> &values)
{
    Writer writer;
    writeValues(writer, values);
    return writer.take();
}

void appendDataHeader(Octets &out, std::int64_t contextId, std::size_t size)
{
    Writer writer(32);
    writer.header(Tag::group(0), size);
    writer.integer(ber::tags::integer, contextId);
    writer.header(ber::tags::sequence, writer.size() + size);
    writer.header(tagUserData, writer.size() + size);
    out.insert(out.end(), writer.view().begin(), writer.view().end());
}

Result<Connect> decodeConnect(Bytes octets)
{
    Input input(octets);
    NormalMode mode = readSet(input.reader());
    return input.finish(Connect{std::move(mode.callingSelector), std::move(mode.calledSelector),
                                std::move(mode.contexts), std::move(mode.userData)});
}

Result<Accept> decodeAccept(Bytes octets)
{
    Input input(octets);
    NormalMode mode = readSet(input.reader());
    return input.finish(Accept{std::move(mode.respondingSelector), std::move(mode.answers),
                               std::move(mode.userData)});
}

Result<Reject> decodeReject(Bytes octets)
{
    Input input(octets);
    Reader outer = input.reader();
    NormalMode mode = readNormalMode(outer.expectGroup(ber::tags::sequence, "CPR-PPDU"));
    outer.expectEnd("CPR-PPDU");
    return input.finish(Reject{std::move(mode.respondingSelector), std::move(mode.answers),
                               mode.reason, std::move(mode.userData)});
}

Result<Abort> decodeAbort(Bytes octets)
{
    Input input(octets);
    Reader outer = input.reader();
    Element item;
    Abort result;
    if (outer.takeIf(Tag::group(0), item)) {
        result = UserAbort{readNormalMode(outer.enter(item)).userData};
    } else {
        Reader fields = outer.expectGroup(ber::tags::sequence, "ARU-PPDU");
        ProviderAbort abort;
        if (fields.takeIf(Tag::context(0), item))
            abort.reason = fields.integer(item);
        if (fields.takeIf(Tag::context(1), item))
            abort.event = fields.integer(item);
        fields.expectEnd("ARU-PPDU");
        result = abort;
    }
    outer.expectEnd("ARU-PPDU");
    return input.finish(std::move(result));
}

Result<std::vector<DataValue>> decodeData(Bytes octets)
{
    Input input(octets);
    Reader outer = input.reader();
    std::vector<DataValue> values = readValues(outer.expectGroup(tagUserData, "User-data"));
    outer.expectEnd("User-data");
    return input.finish(std::move(values));
}

Text rejectionText(std::optional<std::int64_t> reason)
{
    static constexpr std::array sentences{
        wording::pattern("The peer's presentation layer refuses the connection without a reason."),
        wording::pattern("The peer's presentation layer is congested."),
        wording::pattern("The peer's presentation layer has reached a limit of its own."),
        wording::pattern("The peer does not know the presentation selector."),
        wording::pattern("The peer does not support the version of the presentation protocol."),
        wording::pattern("The peer does not support the default context."),
        wording::pattern("The peer cannot read the presentation user data."),
        wording::pattern("Nothing is attached to the peer's presentation selector.")};
    if (!reason)
        return say("The peer refuses the presentation connection.");
    if (*reason >= 0 && *reason < static_cast<std::int64_t>(sentences.size()))
        return say(sentences[static_cast<std::size_t>(*reason)]);
    return say("The peer refuses the presentation connection with reason %1.", *reason);
}

Text abortText(std::optional<std::int64_t> reason)
{
    static constexpr std::array sentences{
        wording::pattern("The peer's presentation layer aborted without a reason."),
        wording::pattern("The peer's presentation layer does not recognise a unit and aborted."),
        wording::pattern("The peer's presentation layer did not expect a unit and aborted."),
        wording::pattern(
            "The peer's presentation layer did not expect a session service and aborted."),
        wording::pattern(
            "The peer's presentation layer does not recognise a parameter and aborted."),
        wording::pattern("The peer's presentation layer did not expect a parameter and aborted."),
        wording::pattern(
            "The peer's presentation layer found an invalid parameter value and aborted.")};
    if (reason && *reason >= 0 && *reason < static_cast<std::int64_t>(sentences.size()))
        return say(sentences[static_cast<std::size_t>(*reason)]);
    return say("The peer's presentation layer aborted.");
}

Connection::Connection(Options options)
    : m_options(std::move(options))
{
}

Actions Connection::connect(Bytes association)
{
    Connect unit;
    unit.callingSelector = m_options.localSelector;
    unit.calledSelector = m_options.remoteSelector;
    unit.contexts = {{m_associationContext, acseSyntax, {berSyntax}},
                     {m_mmsContext, mmsSyntax, {berSyntax}}};
    unit.userData = {{m_associationContext, association}};
    return {Request{Service::Connect, encode(unit)}};
}

Actions Connection::accept(Bytes association)
{
    const Accept unit{m_askedSelector, m_answers, {{m_associationContext, association}}};
    return {Request{Service::Accept, encode(unit)}};
}

Actions Connection::refuse(Bytes association)
{
    const Reject unit{
        m_askedSelector, m_answers, std::nullopt, {{m_associationContext, association}}};
    return {Request{Service::Refuse, encode(unit)}};
}

Actions Connection::finish(Bytes association)
{
    return {Request{Service::Finish,
                    encode(std::vector<DataValue>{{m_associationContext, association}})}};
}

Actions Connection::disconnect(Bytes association)
{
    return {Request{Service::Disconnect,
                    encode(std::vector<DataValue>{{m_associationContext, association}})}};
}

Actions Connection::abort(Bytes association)
{
    return {Request{Service::UserAbort,
                    encode(Abort(UserAbort{{{m_associationContext, association}}}))}};
}

Actions Connection::abortByProvider()
{
    return {Request{Service::ProviderAbort, encode(Abort(ProviderAbort{0, std::nullopt}))}};
}

void Connection::appendHeader(Octets &out, std::size_t size) const
{
    appendDataHeader(out, m_mmsContext, size);
}

Actions Connection::receive(Service service, Bytes userData)
{
    switch (service) {
    case Service::Connect:
        return receiveConnect(userData);
    case Service::Accept:
        return receiveAccept(userData);
    case Service::Refuse:
        return receiveRefuse(userData);
    case Service::UserAbort:
    case Service::ProviderAbort:
        return receiveAbort(userData);
    default:
        return receiveData(service, userData);
    }
}

Actions Connection::receiveConnect(Bytes userData)
{
    const auto unit = decodeConnect(userData);
    if (!unit)
        return reject(ber::unreadable(unit.error()));
    m_askedSelector = unit->calledSelector;
    if (m_options.checkSelector && m_askedSelector != m_options.localSelector)
        return reject(say("The peer asked for an unknown presentation selector."));
    bool hasAssociation = false;
    bool hasMms = false;
    for (const Context &context : unit->contexts) {
        ContextAnswer answer;
        const bool ber = std::ranges::count(context.transferSyntaxes, berSyntax) > 0;
        const bool association = context.abstractSyntax == acseSyntax;
        if (!association && context.abstractSyntax != mmsSyntax) {
            answer = {ContextResult::ProviderRejection, std::nullopt, abstractSyntaxNotSupported};
        } else if (!ber) {
            answer = {ContextResult::ProviderRejection, std::nullopt, transferSyntaxNotSupported};
        } else {
            answer.transferSyntax = berSyntax;
            (association ? m_associationContext : m_mmsContext) = context.id;
            (association ? hasAssociation : hasMms) = true;
        }
        m_answers.push_back(std::move(answer));
    }
    if (!hasAssociation || !hasMms)
        return reject(say("The peer did not ask for the presentation contexts of ACSE and MMS."));
    return indicate(Service::Connect, unit->userData);
}

Actions Connection::receiveAccept(Bytes userData)
{
    const auto unit = decodeAccept(userData);
    if (!unit)
        return fail(ber::unreadable(unit.error()));
    const auto accepted = [](const ContextAnswer &answer) {
        return answer.result == ContextResult::Acceptance;
    };
    if (unit->answers.size() < 2 || !std::ranges::all_of(unit->answers, accepted))
        return fail(say("The peer did not accept the presentation contexts of ACSE and MMS."));
    return indicate(Service::Accept, unit->userData);
}

Actions Connection::receiveRefuse(Bytes userData)
{
    if (userData.empty())
        return {Indication{Service::Refuse, false, {}, {}}};
    const auto unit = decodeReject(userData);
    if (!unit)
        return {Indication{Service::Refuse, false, {}, ber::unreadable(unit.error())}};
    Indication indication{Service::Refuse, false, {}, rejectionText(unit->reason)};
    for (const DataValue &value : unit->userData) {
        indication.association = true;
        indication.value = value.value;
    }
    return {std::move(indication)};
}

Actions Connection::receiveAbort(Bytes userData)
{
    Indication indication{Service::ProviderAbort, false, {}, {}};
    if (userData.empty())
        return {std::move(indication)};
    const auto unit = decodeAbort(userData);
    if (!unit)
        return {std::move(indication)};
    if (const auto *user = std::get_if<UserAbort>(&*unit)) {
        indication.service = Service::UserAbort;
        for (const DataValue &value : user->userData) {
            indication.association = true;
            indication.value = value.value;
        }
    } else if (const auto *provider = std::get_if<ProviderAbort>(&*unit)) {
        indication.reason = abortText(provider->reason);
    }
    return {std::move(indication)};
}

Actions Connection::receiveData(Service service, Bytes userData)
{
    if (userData.empty() && service != Service::Data)
        return {Indication{service, true, {}, {}}};
    const auto values = decodeData(userData);
    if (!values)
        return fail(ber::unreadable(values.error()));
    return indicate(service, *values);
}

Actions Connection::indicate(Service service, const std::vector<DataValue> &values) const
{
    Actions actions;
    if (values.empty())
        return fail(say("A presentation unit has no user data."));
    for (const DataValue &value : values) {
        const bool association = value.contextId == m_associationContext;
        if (!association && value.contextId != m_mmsContext)
            return fail(say("A presentation value belongs to a context that was not agreed."));
        actions.emplace_back(Indication{service, association, value.value, {}});
    }
    return actions;
}

Actions Connection::fail(Text reason) const
{
    return {Request{Service::ProviderAbort, encode(Abort(ProviderAbort{0, std::nullopt}))},
            Indication{Service::ProviderAbort, false, {}, std::move(reason)}};
}

Actions Connection::reject(Text reason) const
{
    return {
        Request{Service::Refuse, encode(Reject{m_askedSelector, m_answers, rejectUserData, {}})},
        Indication{Service::ProviderAbort, false, {}, std::move(reason)}};
}

} // namespace osi::presentation
