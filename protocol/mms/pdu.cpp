// SPDX-License-Identifier: Apache-2.0
#include "mms/pdu.h"

#include "mms/codec.h"
#include "mms/datatext.h"

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
    pdu = RejectPdu::read(outer, element);
}

void write(Writer &writer, const RejectPdu &pdu)
{
    pdu.write(writer);
}

std::string text(const RejectPdu &pdu)
{
    return "rejectPDU " + pdu.text();
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

void read(Reader &outer, const Element &element, InitiateRequestPdu &pdu)
{
    pdu.parameters = InitiateParameters::read(outer, element);
}

void write(Writer &writer, const InitiateRequestPdu &pdu)
{
    pdu.parameters.write(writer);
}

std::string text(const InitiateRequestPdu &pdu)
{
    return "initiate-RequestPDU " + pdu.parameters.text();
}

void read(Reader &outer, const Element &element, InitiateResponsePdu &pdu)
{
    pdu.parameters = InitiateParameters::read(outer, element);
}

void write(Writer &writer, const InitiateResponsePdu &pdu)
{
    pdu.parameters.write(writer);
}

std::string text(const InitiateResponsePdu &pdu)
{
    return "initiate-ResponsePDU " + pdu.parameters.text();
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

std::string toText(const Pdu &pdu)
{
    return std::visit([](const auto &alternative) { return text(alternative); }, pdu);
}

} // namespace mms
