// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace mms {

/// What a service error is about (ISO 9506-2, ServiceError); the numbers are the tags.
enum class ErrorClass : std::uint8_t {
    VmdState = 0,
    ApplicationReference = 1,
    Definition = 2,
    Resource = 3,
    Service = 4,
    ServicePreempt = 5,
    TimeResolution = 6,
    Access = 7,
    Initiate = 8,
    Conclude = 9,
    Cancel = 10,
    File = 11,
    Others = 12,
};

/// An element whose meaning is not interpreted: its tag and what is inside it.
struct RawElement
{
    ber::Tag tag;
    std::vector<std::uint8_t> content;

    friend bool operator==(const RawElement &, const RawElement &) = default;
};

/// Why a service was refused or failed.
struct ServiceError
{
    ErrorClass errorClass = ErrorClass::Others;
    /// Within the class; a number that the standard does not know is kept.
    std::int32_t code = 0;
    std::optional<std::int32_t> additionalCode;
    std::optional<std::string> additionalDescription;
    /// What the service that failed adds.
    std::optional<RawElement> serviceSpecific;

    friend bool operator==(const ServiceError &, const ServiceError &) = default;
};

// The codes that servers of IEC 61850 give.
namespace serviceerrors {
inline constexpr std::int32_t definitionObjectUndefined = 1;
inline constexpr std::int32_t definitionTypeInconsistent = 4;
inline constexpr std::int32_t definitionObjectExists = 5;
inline constexpr std::int32_t definitionAttributeInconsistent = 6;
inline constexpr std::int32_t resourceOther = 0;
inline constexpr std::int32_t resourceMemoryUnavailable = 1;
inline constexpr std::int32_t resourceCapabilityUnavailable = 4;
inline constexpr std::int32_t serviceOther = 0;
inline constexpr std::int32_t serviceObjectStateConflict = 2;
inline constexpr std::int32_t serviceContinuationInvalid = 4;
inline constexpr std::int32_t serviceConstraintConflict = 5;
inline constexpr std::int32_t preemptCancel = 3;
inline constexpr std::int32_t accessUnsupported = 1;
inline constexpr std::int32_t accessNonExistent = 2;
inline constexpr std::int32_t accessDenied = 3;
inline constexpr std::int32_t accessInvalidated = 4;
inline constexpr std::int32_t concludeFurtherCommunicationRequired = 1;
inline constexpr std::int32_t cancelInvokeIdUnknown = 1;
inline constexpr std::int32_t cancelNotPossible = 2;
inline constexpr std::int32_t fileNameAmbiguous = 1;
inline constexpr std::int32_t fileBusy = 2;
inline constexpr std::int32_t fileNameSyntaxError = 3;
inline constexpr std::int32_t filePositionInvalid = 5;
inline constexpr std::int32_t fileAccessDenied = 6;
inline constexpr std::int32_t fileNonExistent = 7;
inline constexpr std::int32_t fileDuplicateName = 8;
inline constexpr std::int32_t fileInsufficientSpace = 9;
} // namespace serviceerrors

/// The standard's name of a code, such as "access: object-non-existent".
std::string toText(const ServiceError &error);
/// A sentence for the operator, with what the device adds.
Text describe(const ServiceError &error);

} // namespace mms
