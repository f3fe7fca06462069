// SPDX-License-Identifier: Apache-2.0
#include "mms/reject.h"

#include <span>
#include <string_view>

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

namespace {

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

} // namespace

RejectPdu RejectPdu::read(Reader &outer, const Element &element)
{
    RejectPdu pdu;
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
    return pdu;
}

void RejectPdu::write(Writer &writer) const
{
    writer.integer(Tag::context(static_cast<std::uint32_t>(rejected)), code);
    if (invokeId)
        writer.unsignedInteger(Tag::context(0), *invokeId);
}

std::string RejectPdu::text() const
{
    std::string result;
    if (invokeId)
        result += std::to_string(*invokeId) + ' ';
    return result + std::string(reasonsOf(*this).name) + ": " + codeOf(*this);
}

Text describe(const RejectPdu &reject)
{
    return say(reasonsOf(reject).sentence, codeOf(reject));
}

} // namespace mms
