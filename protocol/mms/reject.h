// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>

namespace mms {

/// What a rejected PDU was; the numbers are the tags of the reason.
enum class RejectedPdu : std::uint8_t {
    ConfirmedRequest = 1,
    ConfirmedResponse = 2,
    ConfirmedError = 3,
    Unconfirmed = 4,
    PduError = 5,
    CancelRequest = 6,
    CancelResponse = 7,
    CancelError = 8,
    ConcludeRequest = 9,
    ConcludeResponse = 10,
    ConcludeError = 11,
};

/// Reject codes that this side gives.
namespace rejectcodes {
inline constexpr std::int32_t requestOther = 0;
inline constexpr std::int32_t requestUnrecognizedService = 1;
inline constexpr std::int32_t requestUnrecognizedModifier = 2;
inline constexpr std::int32_t requestInvalidInvokeId = 3;
inline constexpr std::int32_t requestInvalidArgument = 4;
inline constexpr std::int32_t requestMaxOutstandingExceeded = 6;
inline constexpr std::int32_t requestMaxRecursionExceeded = 8;
inline constexpr std::int32_t requestValueOutOfRange = 9;
inline constexpr std::int32_t responseUnrecognizedService = 1;
inline constexpr std::int32_t responseInvalidInvokeId = 2;
inline constexpr std::int32_t responseInvalidResult = 3;
inline constexpr std::int32_t pduUnknownType = 0;
inline constexpr std::int32_t pduInvalid = 1;
inline constexpr std::int32_t cancelInvalidInvokeId = 1;
} // namespace rejectcodes

/// Says that a PDU could not be taken, and why.
struct RejectPdu
{
    std::optional<std::uint32_t> invokeId;
    RejectedPdu rejected = RejectedPdu::PduError;
    /// Among the reasons for this kind of PDU; a number that the standard does not know is kept.
    std::int32_t code = 0;

    static RejectPdu read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    /// For traces.
    std::string text() const;

    friend bool operator==(const RejectPdu &, const RejectPdu &) = default;
};

/// A sentence for the operator.
Text describe(const RejectPdu &reject);

} // namespace mms
