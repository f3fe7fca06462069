// SPDX-License-Identifier: Apache-2.0
#include "mms/serviceerror.h"

#include "mms/codec.h"
#include "mms/data.h"

#include <span>

namespace mms {

namespace {

struct Code
{
    const char *name;
    const char *sentence;
};

struct ClassOfCodes
{
    const char *name;
    /// What is said of a code that is 0 or unknown.
    const char *sentence;
    std::span<const Code> codes;
};

constexpr Code vmdState[] = {
    {"other", nullptr},
    {"vmd-state-conflict", "The device is in a state that does not allow this"},
    {"vmd-operational-problem", "The device has an operational problem"},
    {"domain-transfer-problem", "The device cannot transfer the domain"},
    {"state-machine-id-invalid", "The device does not know the state machine"}};
constexpr Code applicationReference[] = {
    {"other", nullptr},
    {"application-unreachable", "The other application cannot be reached"},
    {"connection-lost", "The connection to the other application is lost"},
    {"application-reference-invalid", "The name of the other application is not valid"},
    {"context-unsupported", "The other application does not support the context"}};
constexpr Code definition[] = {
    {"other", nullptr},
    {"object-undefined", "The object is not defined"},
    {"invalid-address", "The address is not valid"},
    {"type-unsupported", "The type is not supported"},
    {"type-inconsistent", "The types do not agree"},
    {"object-exists", "An object of this name exists already"},
    {"object-attribute-inconsistent", "The attributes of the object contradict each other"}};
constexpr Code resource[] = {
    {"other", nullptr},
    {"memory-unavailable", "The device has not enough memory"},
    {"processor-resource-unavailable", "The device has not enough computing time"},
    {"mass-storage-unavailable", "The device has not enough storage"},
    {"capability-unavailable", "The device has no free capability for this"},
    {"capability-unknown", "The device does not know the capability"}};
constexpr Code service[] = {
    {"other", nullptr},
    {"primitives-out-of-sequence", "The service was called out of sequence"},
    {"object-state-conflict", "The object is in a state that does not allow this"},
    {"pdu-size", "The answer does not fit a message"},
    {"continuation-invalid", "The list cannot be continued after the given name"},
    {"object-constraint-conflict", "A constraint of the object does not allow this"}};
constexpr Code servicePreempt[] = {{"other", nullptr},
                                   {"timeout", "The device gave up after its own time limit"},
                                   {"deadlock", "The device gave up because of a deadlock"},
                                   {"cancel", "The call was cancelled"}};
constexpr Code timeResolution[] = {
    {"other", nullptr},
    {"unsupportable-time-resolution", "The device does not support the time resolution"}};
constexpr Code access[] = {
    {"other", nullptr},
    {"object-access-unsupported", "The object cannot be accessed in this way"},
    {"object-non-existent", "The object does not exist"},
    {"object-access-denied", "Access to the object is denied"},
    {"object-invalidated", "The object is no longer valid"}};
constexpr Code initiate[] = {
    {"other", nullptr},
    {"version-incompatible", "The device uses another version of the protocol"},
    {"max-segment-insufficient", "The message size is too small for the device"},
    {"max-services-outstanding-calling-insufficient",
     "The number of outstanding calls does not suit the device"},
    {"max-services-outstanding-called-insufficient",
     "The number of outstanding calls of the device does not suit it"},
    {"service-CBB-insufficient", "The services offered do not suit the device"},
    {"parameter-CBB-insufficient", "The options offered do not suit the device"},
    {"nesting-level-insufficient", "The nesting level does not suit the device"}};
constexpr Code conclude[] = {
    {"other", nullptr},
    {"further-communication-required", "The device has something to finish first"}};
constexpr Code cancel[] = {{"other", nullptr},
                           {"invoke-id-unknown", "The device does not know the call to cancel"},
                           {"cancel-not-possible", "The call can no longer be cancelled"}};
constexpr Code file[] = {
    {"other", nullptr},
    {"filename-ambiguous", "The file name is ambiguous"},
    {"file-busy", "The file is in use"},
    {"filename-syntax-error", "The device does not accept the syntax of the file name"},
    {"content-type-invalid", "The content type of the file is not valid"},
    {"position-invalid", "The position is not within the file"},
    {"file-access-denied", "Access to the file is denied"},
    {"file-non-existent", "The file does not exist"},
    {"duplicate-filename", "A file of this name exists already"},
    {"insufficient-space-in-filestore", "There is not enough room for the file"}};
constexpr Code others[] = {{"other", nullptr}};

/// In the order of ErrorClass.
constexpr ClassOfCodes classes[] = {
    {"vmd-state", "The state of the device does not allow this", vmdState},
    {"application-reference", "There is a problem with the other application",
     applicationReference},
    {"definition", "The definition of the object does not allow this", definition},
    {"resource", "The device has not the resources for this", resource},
    {"service", "The device cannot carry out the service", service},
    {"service-preempt", "The device gave up the call", servicePreempt},
    {"time-resolution", "The device does not support the time resolution", timeResolution},
    {"access", "The object cannot be accessed", access},
    {"initiate", "The device refuses the association", initiate},
    {"conclude", "The device refuses to conclude the association", conclude},
    {"cancel", "The call cannot be cancelled", cancel},
    {"file", "The device refuses the file operation", file},
    {"others", "The device refuses without giving a reason", others}};
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

std::string describe(const ServiceError &error)
{
    const Code *code = codeOf(error);
    std::string result = code && code->sentence ? code->sentence : classOf(error).sentence;
    if (!code)
        result += " (error " + std::to_string(error.code) + ')';
    if (error.additionalCode)
        result += ", additional code " + std::to_string(*error.additionalCode);
    if (error.additionalDescription)
        result += ", " + quoted(*error.additionalDescription);
    return result;
}

namespace codec {

ServiceError readServiceError(Reader reader)
{
    ServiceError error;
    Reader choice = reader.expectGroup(Tag::group(0), "The class of a service error");
    Element element;
    choice.next(element);
    if (!element.tag.isContext() || element.tag.isConstructed() ||
        element.tag.number() >= classCount)
        reader.fail("The class of a service error is missing or unknown");
    error.errorClass = static_cast<ErrorClass>(element.tag.number());
    error.code = choice.integer32(element);
    choice.expectEnd("the class of a service error");
    if (reader.takeIf(Tag::context(1), element))
        error.additionalCode = reader.integer32(element);
    if (reader.takeIf(Tag::context(2), element))
        error.additionalDescription = reader.text(element);
    if (reader.takeIf(Tag::group(3), element)) {
        Reader inner = reader.enter(element);
        Element specific;
        if (!inner.next(specific))
            inner.fail("What the service adds to its error is missing");
        error.serviceSpecific = RawElement{specific.tag, inner.octets(specific)};
        inner.expectEnd("a service error");
    }
    reader.expectEnd("a service error");
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
