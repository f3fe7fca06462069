// SPDX-License-Identifier: Apache-2.0
#include "mms/pdu.h"

#include "mms/codec.h"

#include <limits>
#include <span>
#include <type_traits>
#include <utility>

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

namespace {

template <typename Service>
constexpr bool isUnknown = std::is_same_v<Service, UnknownService>;

/// The alternative of a choice of services whose tag the element has; a service of another tag is
/// kept as it stands.
template <typename Choice, std::size_t Index = 0>
Choice readService(Reader &reader, const Element &element)
{
    using Alternative = std::variant_alternative_t<Index, Choice>;
    if constexpr (isUnknown<Alternative>) {
        return UnknownService{{element.tag, reader.octets(element)}};
    } else {
        // Some peers send what is empty in the other form.
        const bool isEmpty = std::is_empty_v<Alternative> && element.content.empty() &&
                             element.tag.isContext() &&
                             element.tag.number() == Alternative::tag.number();
        if (element.tag == Alternative::tag || isEmpty)
            return Alternative::read(reader, element);
        return readService<Choice, Index + 1>(reader, element);
    }
}

template <typename Choice>
Choice readService(Reader &reader, std::string_view what)
{
    Element element;
    if (!reader.next(element))
        reader.fail(say("The element %1 is missing.", what));
    else if (!element.tag.isContext())
        reader.input().fail(say("An element stands where a service belongs."), element.offset);
    return readService<Choice>(reader, element);
}

template <typename Choice>
void writeService(Writer &writer, const Choice &choice)
{
    std::visit(
        [&](const auto &service) {
            using Alternative = std::decay_t<decltype(service)>;
            if constexpr (isUnknown<Alternative>) {
                writer.element(service.element.tag, service.element.content);
            } else {
                const std::size_t mark = writer.size();
                service.write(writer);
                writer.close(Alternative::tag, mark);
            }
        },
        choice);
}

template <typename Choice>
std::string serviceText(const Choice &choice, std::string_view (*nameOf)(std::uint32_t))
{
    return std::visit(
        [&](const auto &service) {
            using Alternative = std::decay_t<decltype(service)>;
            std::uint32_t number = 0;
            std::string content;
            if constexpr (isUnknown<Alternative>) {
                number = service.element.tag.number();
                content = toText(Data::octetString(service.element.content));
            } else {
                number = Alternative::tag.number();
                content = service.text();
            }
            std::string result(nameOf(number));
            if (result.empty())
                result = "service " + std::to_string(number);
            return content.empty() ? result : result + ' ' + content;
        },
        choice);
}

std::string_view unconfirmedName(std::uint32_t number)
{
    static constexpr std::string_view names[] = {"informationReport", "unsolicitedStatus",
                                                 "eventNotification"};
    return number < std::size(names) ? names[number] : std::string_view();
}

// The content of each PDU.

void read(Reader &outer, const Element &element, ConfirmedRequestPdu &pdu)
{
    Reader reader = outer.enter(element);
    pdu.invokeId = reader.unsigned32(reader.expect(ber::tags::integer, "invokeID"));
    if (reader.peek() == ber::tags::sequence)
        reader.fail(say("Modifiers of a request are not supported."));
    pdu.request = readService<RequestService>(reader, "ConfirmedServiceRequest");
    Element detail;
    reader.takeIf(Tag::group(79), detail);
    reader.expectEnd("ConfirmedServiceRequest");
}

void write(Writer &writer, const ConfirmedRequestPdu &pdu)
{
    writeService(writer, pdu.request);
    writer.unsignedInteger(ber::tags::integer, pdu.invokeId);
}

std::string text(const ConfirmedRequestPdu &pdu)
{
    return "confirmed-RequestPDU " + std::to_string(pdu.invokeId) + ' ' +
           serviceText(pdu.request, serviceName);
}

void read(Reader &outer, const Element &element, ConfirmedResponsePdu &pdu)
{
    Reader reader = outer.enter(element);
    pdu.invokeId = reader.unsigned32(reader.expect(ber::tags::integer, "invokeID"));
    pdu.response = readService<ResponseService>(reader, "ConfirmedServiceResponse");
    Element detail;
    reader.takeIf(Tag::group(79), detail);
    reader.expectEnd("ConfirmedServiceResponse");
}

void write(Writer &writer, const ConfirmedResponsePdu &pdu)
{
    writeService(writer, pdu.response);
    writer.unsignedInteger(ber::tags::integer, pdu.invokeId);
}

std::string text(const ConfirmedResponsePdu &pdu)
{
    return "confirmed-ResponsePDU " + std::to_string(pdu.invokeId) + ' ' +
           serviceText(pdu.response, serviceName);
}

void read(Reader &outer, const Element &element, ConfirmedErrorPdu &pdu)
{
    Reader reader = outer.enter(element);
    pdu.invokeId = reader.unsigned32(reader.expect(Tag::context(0), "invokeID"));
    Element position;
    if (reader.takeIf(Tag::context(1), position))
        pdu.modifierPosition = reader.unsigned32(position);
    pdu.error = codec::readServiceError(reader.expectGroup(Tag::group(2), "serviceError"));
    reader.expectEnd("confirmed-ErrorPDU");
}

void write(Writer &writer, const ConfirmedErrorPdu &pdu)
{
    const std::size_t mark = writer.size();
    codec::write(writer, pdu.error);
    writer.close(Tag::group(2), mark);
    if (pdu.modifierPosition)
        writer.unsignedInteger(Tag::context(1), *pdu.modifierPosition);
    writer.unsignedInteger(Tag::context(0), pdu.invokeId);
}

std::string text(const ConfirmedErrorPdu &pdu)
{
    std::string result = "confirmed-ErrorPDU " + std::to_string(pdu.invokeId) + ' ';
    if (pdu.modifierPosition)
        result += "modifier " + std::to_string(*pdu.modifierPosition) + ' ';
    return result + toText(pdu.error);
}

void read(Reader &outer, const Element &element, UnconfirmedPdu &pdu)
{
    Reader reader = outer.enter(element);
    pdu.service = readService<UnconfirmedService>(reader, "UnconfirmedService");
    Element detail;
    reader.takeIf(Tag::group(79), detail);
    reader.expectEnd("unconfirmed-PDU");
}

void write(Writer &writer, const UnconfirmedPdu &pdu)
{
    writeService(writer, pdu.service);
}

std::string text(const UnconfirmedPdu &pdu)
{
    return "unconfirmed-PDU " + serviceText(pdu.service, unconfirmedName);
}

void read(Reader &outer, const Element &element, RejectPdu &pdu)
{
    Reader reader = outer.enter(element);
    Element next;
    if (reader.takeIf(Tag::context(0), next))
        pdu.invokeId = reader.unsigned32(next);
    reader.next(next);
    const std::uint32_t number = next.tag.number();
    if (!next.tag.isContext() || next.tag.isConstructed() || number < 1 || number > 11)
        reader.fail(say("The element %1 is missing or of an unknown kind.", "rejectReason"));
    pdu.rejected = static_cast<RejectedPdu>(number);
    pdu.code = reader.integer32(next);
    reader.expectEnd("rejectPDU");
}

void write(Writer &writer, const RejectPdu &pdu)
{
    writer.integer(Tag::context(static_cast<std::uint32_t>(pdu.rejected)), pdu.code);
    if (pdu.invokeId)
        writer.unsignedInteger(Tag::context(0), *pdu.invokeId);
}

struct RejectReasons
{
    std::string_view name;
    wording::Pattern<1> sentence;
    std::span<const std::string_view> codes;
};

constexpr std::string_view requestCodes[] = {"other",
                                             "unrecognized-service",
                                             "unrecognized-modifier",
                                             "invalid-invokeID",
                                             "invalid-argument",
                                             "invalid-modifier",
                                             "max-serv-outstanding-exceeded",
                                             "",
                                             "max-recursion-exceeded",
                                             "value-out-of-range"};
constexpr std::string_view responseCodes[] = {
    "other", "unrecognized-service",   "invalid-invokeID",  "invalid-result",
    "",      "max-recursion-exceeded", "value-out-of-range"};
constexpr std::string_view errorCodes[] = {"other", "unrecognized-service", "invalid-invokeID",
                                           "invalid-serviceError", "value-out-of-range"};
constexpr std::string_view unconfirmedCodes[] = {"other", "unrecognized-service",
                                                 "invalid-argument", "max-recursion-exceeded",
                                                 "value-out-of-range"};
constexpr std::string_view pduCodes[] = {"unknown-pdu-type", "invalid-pdu", "illegal-acse-mapping"};
constexpr std::string_view cancelCodes[] = {"other", "invalid-invokeID"};
constexpr std::string_view cancelErrorCodes[] = {"other", "invalid-invokeID",
                                                 "invalid-serviceError", "value-out-of-range"};
constexpr std::string_view concludeRequestCodes[] = {"other", "invalid-argument"};
constexpr std::string_view concludeResponseCodes[] = {"other", "invalid-result"};
constexpr std::string_view concludeErrorCodes[] = {"other", "invalid-serviceError",
                                                   "value-out-of-range"};

/// In the order of RejectedPdu, which begins with 1.
constexpr RejectReasons rejectReasons[] = {
    {"confirmed-requestPDU", wording::pattern<1>("The device rejects a request (%1)."),
     requestCodes},
    {"confirmed-responsePDU", wording::pattern<1>("The device rejects an answer (%1)."),
     responseCodes},
    {"confirmed-errorPDU", wording::pattern<1>("The device rejects an error (%1)."), errorCodes},
    {"unconfirmedPDU", wording::pattern<1>("The device rejects an unconfirmed message (%1)."),
     unconfirmedCodes},
    {"pdu-error", wording::pattern<1>("The device rejects a message that it cannot read (%1)."),
     pduCodes},
    {"cancel-requestPDU", wording::pattern<1>("The device rejects a cancel (%1)."), cancelCodes},
    {"cancel-responsePDU", wording::pattern<1>("The device rejects the answer to a cancel (%1)."),
     cancelCodes},
    {"cancel-errorPDU", wording::pattern<1>("The device rejects the refusal of a cancel (%1)."),
     cancelErrorCodes},
    {"conclude-requestPDU", wording::pattern<1>("The device rejects a conclude (%1)."),
     concludeRequestCodes},
    {"conclude-responsePDU",
     wording::pattern<1>("The device rejects the answer to a conclude (%1)."),
     concludeResponseCodes},
    {"conclude-errorPDU", wording::pattern<1>("The device rejects the refusal of a conclude (%1)."),
     concludeErrorCodes}};

const RejectReasons &reasonsOf(const RejectPdu &pdu)
{
    return rejectReasons[static_cast<std::size_t>(pdu.rejected) - 1];
}

std::string codeOf(const RejectPdu &pdu)
{
    const auto codes = reasonsOf(pdu).codes;
    const auto index = static_cast<std::size_t>(pdu.code);
    if (pdu.code >= 0 && index < codes.size() && !codes[index].empty())
        return std::string(codes[index]);
    return std::to_string(pdu.code);
}

std::string text(const RejectPdu &pdu)
{
    std::string result = "rejectPDU ";
    if (pdu.invokeId)
        result += std::to_string(*pdu.invokeId) + ' ';
    return result + std::string(reasonsOf(pdu).name) + ": " + codeOf(pdu);
}

void read(Reader &outer, const Element &element, CancelRequestPdu &pdu)
{
    pdu.invokeId = outer.unsigned32(element);
}

void write(Writer &writer, const CancelRequestPdu &pdu)
{
    writer.integerContent(std::int64_t{pdu.invokeId});
}

std::string text(const CancelRequestPdu &pdu)
{
    return "cancel-RequestPDU " + std::to_string(pdu.invokeId);
}

void read(Reader &outer, const Element &element, CancelResponsePdu &pdu)
{
    pdu.invokeId = outer.unsigned32(element);
}

void write(Writer &writer, const CancelResponsePdu &pdu)
{
    writer.integerContent(std::int64_t{pdu.invokeId});
}

std::string text(const CancelResponsePdu &pdu)
{
    return "cancel-ResponsePDU " + std::to_string(pdu.invokeId);
}

void read(Reader &outer, const Element &element, CancelErrorPdu &pdu)
{
    Reader reader = outer.enter(element);
    pdu.invokeId = reader.unsigned32(reader.expect(Tag::context(0), "invokeID"));
    pdu.error = codec::readServiceError(reader.expectGroup(Tag::group(1), "serviceError"));
    reader.expectEnd("confirmed-ErrorPDU");
}

void write(Writer &writer, const CancelErrorPdu &pdu)
{
    const std::size_t mark = writer.size();
    codec::write(writer, pdu.error);
    writer.close(Tag::group(1), mark);
    writer.unsignedInteger(Tag::context(0), pdu.invokeId);
}

std::string text(const CancelErrorPdu &pdu)
{
    return "cancel-ErrorPDU " + std::to_string(pdu.invokeId) + ' ' + toText(pdu.error);
}

std::int16_t integer16(Reader &reader, Tag tag, std::string_view what)
{
    return static_cast<std::int16_t>(reader.integer(reader.expect(tag, what),
                                                    std::numeric_limits<std::int16_t>::min(),
                                                    std::numeric_limits<std::int16_t>::max()));
}

InitiateParameters readParameters(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    InitiateParameters parameters;
    Element optional;
    if (reader.takeIf(Tag::context(0), optional))
        parameters.maxPduSize = reader.integer32(optional);
    parameters.maxOutstandingCalling =
        integer16(reader, Tag::context(1), "maxServOutstandingCalling");
    parameters.maxOutstandingCalled =
        integer16(reader, Tag::context(2), "maxServOutstandingCalled");
    if (reader.takeIf(Tag::context(3), optional))
        parameters.nestingLevel = static_cast<std::int8_t>(
            reader.integer(optional, std::numeric_limits<std::int8_t>::min(),
                           std::numeric_limits<std::int8_t>::max()));
    Reader detail = reader.expectGroup(Tag::group(4), "initRequestDetail");
    parameters.version = integer16(detail, Tag::context(0), "versionNumber");
    parameters.parameters = detail.bitString(detail.expect(Tag::context(1), "parameterCBB"));
    parameters.services = detail.bitString(detail.expect(Tag::context(2), "servicesSupported"));
    // Later editions append fields that say nothing to IEC 61850.
    while (detail.next(optional)) {
        if (!optional.tag.isContext())
            detail.fail(say("Something stands behind the end of %1.", "initRequestDetail"));
    }
    reader.expectEnd("initiate-PDU");
    return parameters;
}

void writeParameters(Writer &writer, const InitiateParameters &parameters)
{
    const std::size_t mark = writer.size();
    writer.bitString(Tag::context(2), parameters.services);
    writer.bitString(Tag::context(1), parameters.parameters);
    writer.integer(Tag::context(0), parameters.version);
    writer.close(Tag::group(4), mark);
    if (parameters.nestingLevel)
        writer.integer(Tag::context(3), *parameters.nestingLevel);
    writer.integer(Tag::context(2), parameters.maxOutstandingCalled);
    writer.integer(Tag::context(1), parameters.maxOutstandingCalling);
    if (parameters.maxPduSize)
        writer.integer(Tag::context(0), *parameters.maxPduSize);
}

std::string parametersText(const InitiateParameters &parameters)
{
    std::string result;
    if (parameters.maxPduSize)
        result += "PDU size " + std::to_string(*parameters.maxPduSize) + ", ";
    result += "outstanding calls " + std::to_string(parameters.maxOutstandingCalling) + " and " +
              std::to_string(parameters.maxOutstandingCalled);
    if (parameters.nestingLevel)
        result += ", nesting level " + std::to_string(*parameters.nestingLevel);
    return result + ", version " + std::to_string(parameters.version) + ", parameters '" +
           parameters.parameters.toText() + "'B, services '" + parameters.services.toText() + "'B";
}

void read(Reader &outer, const Element &element, InitiateRequestPdu &pdu)
{
    pdu.parameters = readParameters(outer, element);
}

void write(Writer &writer, const InitiateRequestPdu &pdu)
{
    writeParameters(writer, pdu.parameters);
}

std::string text(const InitiateRequestPdu &pdu)
{
    return "initiate-RequestPDU " + parametersText(pdu.parameters);
}

void read(Reader &outer, const Element &element, InitiateResponsePdu &pdu)
{
    pdu.parameters = readParameters(outer, element);
}

void write(Writer &writer, const InitiateResponsePdu &pdu)
{
    writeParameters(writer, pdu.parameters);
}

std::string text(const InitiateResponsePdu &pdu)
{
    return "initiate-ResponsePDU " + parametersText(pdu.parameters);
}

void read(Reader &outer, const Element &element, InitiateErrorPdu &pdu)
{
    pdu.error = codec::readServiceError(outer.enter(element));
}

void write(Writer &writer, const InitiateErrorPdu &pdu)
{
    codec::write(writer, pdu.error);
}

std::string text(const InitiateErrorPdu &pdu)
{
    return "initiate-ErrorPDU " + toText(pdu.error);
}

void read(Reader &outer, const Element &element, ConcludeRequestPdu &)
{
    outer.null(element);
}

void write(Writer &, const ConcludeRequestPdu &) {}

std::string text(const ConcludeRequestPdu &)
{
    return "conclude-RequestPDU";
}

void read(Reader &outer, const Element &element, ConcludeResponsePdu &)
{
    outer.null(element);
}

void write(Writer &, const ConcludeResponsePdu &) {}

std::string text(const ConcludeResponsePdu &)
{
    return "conclude-ResponsePDU";
}

void read(Reader &outer, const Element &element, ConcludeErrorPdu &pdu)
{
    pdu.error = codec::readServiceError(outer.enter(element));
}

void write(Writer &writer, const ConcludeErrorPdu &pdu)
{
    codec::write(writer, pdu.error);
}

std::string text(const ConcludeErrorPdu &pdu)
{
    return "conclude-ErrorPDU " + toText(pdu.error);
}

constexpr std::size_t pduCount = std::variant_size_v<Pdu>;

/// The tag of each PDU; its number is the index of the alternative.
constexpr Tag pduTags[pduCount] = {
    Tag::group(0),   Tag::group(1),    Tag::group(2),    Tag::group(3),  Tag::group(4),
    Tag::context(5), Tag::context(6),  Tag::group(7),    Tag::group(8),  Tag::group(9),
    Tag::group(10),  Tag::context(11), Tag::context(12), Tag::group(13),
};

template <std::size_t... Index>
void readPdu(Reader &reader, const Element &element, Pdu &pdu, std::index_sequence<Index...>)
{
    const bool known =
        ((element.tag == pduTags[Index] && (read(reader, element, pdu.emplace<Index>()), true)) ||
         ...);
    if (!known)
        reader.input().fail(say("The message is no MMS PDU."), 0);
}

} // namespace

Result<Pdu> decodePdu(Bytes bytes, const ber::Limits &limits)
{
    ber::Input input(bytes, limits);
    Reader reader = input.reader();
    Pdu pdu;
    Element element;
    if (reader.next(element))
        readPdu(reader, element, pdu, std::make_index_sequence<pduCount>());
    else
        reader.fail(say("The message is empty."));
    reader.expectEnd("MMSpdu");
    return input.finish(std::move(pdu));
}

void write(Writer &writer, const Pdu &pdu)
{
    const std::size_t mark = writer.size();
    std::visit([&](const auto &alternative) { write(writer, alternative); }, pdu);
    writer.close(pduTags[pdu.index()], mark);
}

std::vector<std::uint8_t> encode(const Pdu &pdu)
{
    Writer writer;
    write(writer, pdu);
    return writer.take();
}

std::size_t encodedSize(const InformationReport &report)
{
    Writer writer;
    report.write(writer);
    writer.close(InformationReport::tag, 0);
    writer.close(pduTags[3], 0);
    return writer.size();
}

std::size_t encodedSize(const AccessResult &result)
{
    Writer writer;
    DataCodec::write(writer, result);
    return writer.size();
}

std::optional<PduHead> peekPdu(Bytes bytes, const ber::Limits &limits)
{
    ber::Input input(bytes, limits);
    Reader reader = input.reader();
    const Tag tag = reader.peek();
    if (tag.number() >= pduCount || tag != pduTags[tag.number()])
        return std::nullopt;
    PduHead head;
    head.type = tag.number();
    Element element;
    if (!reader.next(element))
        return head;
    if (!tag.isConstructed()) {
        if (head.type == 5 || head.type == 6)
            head.invokeId = reader.unsigned32(element);
    } else {
        Reader inner = reader.enter(element);
        Element first;
        const bool isConfirmed = head.type <= 1;
        const bool hasInvokeId = isConfirmed || head.type == 2 || head.type == 4 || head.type == 7;
        if (hasInvokeId && inner.takeIf(isConfirmed ? ber::tags::integer : Tag::context(0), first))
            head.invokeId = inner.unsigned32(first);
        if (isConfirmed || head.type == 3) {
            inner.takeIf(ber::tags::sequence, first);
            if (inner.peek().isContext())
                head.service = inner.peek().number();
        }
    }
    if (input.failed())
        head.invokeId.reset();
    return head;
}

std::string_view serviceName(std::uint32_t tagNumber)
{
    switch (tagNumber) {
    case 0:
        return "status";
    case 1:
        return "getNameList";
    case 2:
        return "identify";
    case 3:
        return "rename";
    case 4:
        return "read";
    case 5:
        return "write";
    case 6:
        return "getVariableAccessAttributes";
    case 11:
        return "defineNamedVariableList";
    case 12:
        return "getNamedVariableListAttributes";
    case 13:
        return "deleteNamedVariableList";
    case 46:
        return "obtainFile";
    case 65:
        return "readJournal";
    case 72:
        return "fileOpen";
    case 73:
        return "fileRead";
    case 74:
        return "fileClose";
    case 75:
        return "fileRename";
    case 76:
        return "fileDelete";
    case 77:
        return "fileDirectory";
    default:
        return {};
    }
}

std::string toText(const Pdu &pdu)
{
    return std::visit([](const auto &alternative) { return text(alternative); }, pdu);
}

Text describe(const RejectPdu &reject)
{
    return say(reasonsOf(reject).sentence, codeOf(reject));
}

} // namespace mms
