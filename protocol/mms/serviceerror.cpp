// SPDX-License-Identifier: Apache-2.0
#include "mms/serviceerror.h"

#include "mms/codec.h"
#include "mms/data.h"
#include "mms/datatext.h"

#include <span>

namespace mms {

namespace {

struct Code
{
    const char *name;
    std::optional<wording::Pattern<0>> sentence;
};

struct ClassOfCodes
{
    const char *name;
    /// What is said of a code that is 0 or unknown.
    wording::Pattern<0> sentence;
    std::span<const Code> codes;
};

constexpr Code vmdState[] = {
    {"other", std::nullopt},
    {"vmd-state-conflict", wording::pattern("The device is in a state that does not allow this.")},
    {"vmd-operational-problem", wording::pattern("The device has an operational problem.")},
    {"domain-transfer-problem", wording::pattern("The device cannot transfer the domain.")},
    {"state-machine-id-invalid", wording::pattern("The device does not know the state machine.")}};
constexpr Code applicationReference[] = {
    {"other", std::nullopt},
    {"application-unreachable", wording::pattern("The other application cannot be reached.")},
    {"connection-lost", wording::pattern("The connection to the other application is lost.")},
    {"application-reference-invalid",
     wording::pattern("The name of the other application is not valid.")},
    {"context-unsupported",
     wording::pattern("The other application does not support the context.")}};
constexpr Code definition[] = {
    {"other", std::nullopt},
    {"object-undefined", wording::pattern("The object is not defined.")},
    {"invalid-address", wording::pattern("The address is not valid.")},
    {"type-unsupported", wording::pattern("The type is not supported.")},
    {"type-inconsistent", wording::pattern("The types do not agree.")},
    {"object-exists", wording::pattern("An object of this name exists already.")},
    {"object-attribute-inconsistent",
     wording::pattern("The attributes of the object contradict each other.")}};
constexpr Code resource[] = {
    {"other", std::nullopt},
    {"memory-unavailable", wording::pattern("The device has not enough memory.")},
    {"processor-resource-unavailable",
     wording::pattern("The device has not enough computing time.")},
    {"mass-storage-unavailable", wording::pattern("The device has not enough storage.")},
    {"capability-unavailable", wording::pattern("The device has no free capability for this.")},
    {"capability-unknown", wording::pattern("The device does not know the capability.")}};
constexpr Code service[] = {
    {"other", std::nullopt},
    {"primitives-out-of-sequence", wording::pattern("The service was called out of sequence.")},
    {"object-state-conflict",
     wording::pattern("The object is in a state that does not allow this.")},
    {"pdu-size", wording::pattern("The answer does not fit a message.")},
    {"continuation-invalid",
     wording::pattern("The list cannot be continued after the given name.")},
    {"object-constraint-conflict",
     wording::pattern("A constraint of the object does not allow this.")}};
constexpr Code servicePreempt[] = {
    {"other", std::nullopt},
    {"timeout", wording::pattern("The device gave up after its own time limit.")},
    {"deadlock", wording::pattern("The device gave up because of a deadlock.")},
    {"cancel", wording::pattern("The call was cancelled.")}};
constexpr Code timeResolution[] = {
    {"other", std::nullopt},
    {"unsupportable-time-resolution",
     wording::pattern("The device does not support the time resolution.")}};
constexpr Code access[] = {
    {"other", std::nullopt},
    {"object-access-unsupported", wording::pattern("The object cannot be accessed in this way.")},
    {"object-non-existent", wording::pattern("The object does not exist.")},
    {"object-access-denied", wording::pattern("Access to the object is denied.")},
    {"object-invalidated", wording::pattern("The object is no longer valid.")}};
constexpr Code initiate[] = {
    {"other", std::nullopt},
    {"version-incompatible", wording::pattern("The device uses another version of the protocol.")},
    {"max-segment-insufficient", wording::pattern("The message size is too small for the device.")},
    {"max-services-outstanding-calling-insufficient",
     wording::pattern("The number of outstanding calls does not suit the device.")},
    {"max-services-outstanding-called-insufficient",
     wording::pattern("The number of outstanding calls of the device does not suit it.")},
    {"service-CBB-insufficient", wording::pattern("The services offered do not suit the device.")},
    {"parameter-CBB-insufficient", wording::pattern("The options offered do not suit the device.")},
    {"nesting-level-insufficient",
     wording::pattern("The nesting level does not suit the device.")}};
constexpr Code conclude[] = {{"other", std::nullopt},
                             {"further-communication-required",
                              wording::pattern("The device has something to finish first.")}};
constexpr Code cancel[] = {
    {"other", std::nullopt},
    {"invoke-id-unknown", wording::pattern("The device does not know the call to cancel.")},
    {"cancel-not-possible", wording::pattern("The call can no longer be cancelled.")}};
constexpr Code file[] = {
    {"other", std::nullopt},
    {"filename-ambiguous", wording::pattern("The file name is ambiguous.")},
    {"file-busy", wording::pattern("The file is in use.")},
    {"filename-syntax-error",
     wording::pattern("The device does not accept the syntax of the file name.")},
    {"content-type-invalid", wording::pattern("The content type of the file is not valid.")},
    {"position-invalid", wording::pattern("The position is not within the file.")},
    {"file-access-denied", wording::pattern("Access to the file is denied.")},
    {"file-non-existent", wording::pattern("The file does not exist.")},
    {"duplicate-filename", wording::pattern("A file of this name exists already.")},
    {"insufficient-space-in-filestore",
     wording::pattern("There is not enough room for the file.")}};
constexpr Code others[] = {{"other", std::nullopt}};

/// In the order of ErrorClass.
constexpr ClassOfCodes classes[] = {
    {"vmd-state", wording::pattern("The state of the device does not allow this."), vmdState},
    {"application-reference", wording::pattern("There is a problem with the other application."),
     applicationReference},
    {"definition", wording::pattern("The definition of the object does not allow this."),
     definition},
    {"resource", wording::pattern("The device has not the resources for this."), resource},
    {"service", wording::pattern("The device cannot carry out the service."), service},
    {"service-preempt", wording::pattern("The device gave up the call."), servicePreempt},
    {"time-resolution", wording::pattern("The device does not support the time resolution."),
     timeResolution},
    {"access", wording::pattern("The object cannot be accessed."), access},
    {"initiate", wording::pattern("The device refuses the association."), initiate},
    {"conclude", wording::pattern("The device refuses to conclude the association."), conclude},
    {"cancel", wording::pattern("The call cannot be cancelled."), cancel},
    {"file", wording::pattern("The device refuses the file operation."), file},
    {"others", wording::pattern("The device refuses without giving a reason."), others}};
constexpr std::size_t classCount = std::size(classes);

const ClassOfCodes &classOf(const ServiceError &error)
{
    const auto index = static_cast<std::size_t>(error.errorClass);
    return classes[index < classCount ? index : classCount - 1];
}

const Code *codeOf(const ServiceError &error)
{
    const auto codes = classOf(error).codes;
    const auto index = static_cast<std::size_t>(error.code);
    return error.code >= 0 && index < codes.size() ? &codes[index] : nullptr;
}

} // namespace

std::string toText(const ServiceError &error)
{
    const Code *code = codeOf(error);
    std::string result = classOf(error).name;
    result += ": ";
    result += code ? std::string(code->name) : std::to_string(error.code);
    if (error.additionalCode)
        result += ", additional code " + std::to_string(*error.additionalCode);
    if (error.additionalDescription)
        result += ", " + quoted(*error.additionalDescription);
    return result;
}

Text describe(const ServiceError &error)
{
    const Code *code = codeOf(error);
    const Text sentence = say(code && code->sentence ? *code->sentence : classOf(error).sentence);
    const Text number = code ? Text() : say("error %1", error.code);
    const Text additional =
        error.additionalCode ? say("additional code %1", *error.additionalCode) : Text();
    const Text words =
        error.additionalDescription ? verbatim(quoted(*error.additionalDescription)) : Text();
    std::vector<Text> details;
    for (const Text &detail : {number, additional, words}) {
        if (!detail.empty())
            details.push_back(detail);
    }
    switch (details.size()) {
    case 0:
        return sentence;
    case 1:
        return say("%1 (%2).", sentence, details[0]);
    case 2:
        return say("%1 (%2, %3).", sentence, details[0], details[1]);
    default:
        return say("%1 (%2, %3, %4).", sentence, details[0], details[1], details[2]);
    }
}

namespace codec {

ServiceError readServiceError(Reader reader)
{
    ServiceError error;
    Reader choice = reader.expectGroup(Tag::group(0), "errorClass");
    Element element;
    choice.next(element);
    if (!element.tag.isContext() || element.tag.isConstructed() ||
        element.tag.number() >= classCount)
        reader.fail(say("The element %1 is missing or of an unknown kind.", "errorClass"));
    error.errorClass = static_cast<ErrorClass>(element.tag.number());
    error.code = choice.integer32(element);
    choice.expectEnd("errorClass");
    if (reader.takeIf(Tag::context(1), element))
        error.additionalCode = reader.integer32(element);
    if (reader.takeIf(Tag::context(2), element))
        error.additionalDescription = reader.text(element);
    if (reader.takeIf(Tag::group(3), element)) {
        Reader inner = reader.enter(element);
        Element specific;
        if (!inner.next(specific))
            inner.fail(say("The element %1 is missing.", "serviceSpecificInfo"));
        error.serviceSpecific = RawElement{specific.tag, inner.octets(specific)};
        inner.expectEnd("ServiceError");
    }
    reader.expectEnd("ServiceError");
    return error;
}

void write(Writer &writer, const ServiceError &error)
{
    std::size_t mark = writer.size();
    if (error.serviceSpecific) {
        writer.element(error.serviceSpecific->tag, error.serviceSpecific->content);
        writer.close(Tag::group(3), mark);
    }
    if (error.additionalDescription)
        writer.text(Tag::context(2), *error.additionalDescription);
    if (error.additionalCode)
        writer.integer(Tag::context(1), *error.additionalCode);
    mark = writer.size();
    writer.integer(Tag::context(static_cast<std::uint32_t>(error.errorClass)), error.code);
    writer.close(Tag::group(0), mark);
}

} // namespace codec

} // namespace mms
