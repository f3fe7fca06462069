// SPDX-License-Identifier: Apache-2.0
#include "acsi/discoveryanswer.h"

namespace acsi {

using mms::CallFailure;
using mms::CallOutcome;
using wording::say;

namespace {

bool isRefusal(const mms::RejectPdu &reject)
{
    return reject.rejected == mms::RejectedPdu::ConfirmedRequest &&
           reject.code == mms::rejectcodes::requestUnrecognizedService;
}

} // namespace

bool isConfusion(const CallOutcome &outcome)
{
    if (const auto *failure = std::get_if<CallFailure>(&outcome)) {
        return failure->kind == CallFailure::Kind::TimedOut ||
               failure->kind == CallFailure::Kind::Malformed;
    }
    if (const auto *reject = std::get_if<mms::RejectPdu>(&outcome))
        return !isRefusal(*reject);
    return std::holds_alternative<mms::ResponseService>(outcome);
}

bool endsDiscovery(const CallOutcome &outcome)
{
    const auto *failure = std::get_if<CallFailure>(&outcome);
    return failure && (failure->kind == CallFailure::Kind::NotOpen ||
                       failure->kind == CallFailure::Kind::Lost ||
                       failure->kind == CallFailure::Kind::Cancelled);
}

bool mayHaveParts(const CallOutcome &outcome)
{
    const auto *error = std::get_if<mms::ServiceError>(&outcome);
    return !error || error->errorClass != mms::ErrorClass::Access ||
           (error->code != mms::serviceerrors::accessNonExistent &&
            error->code != mms::serviceerrors::accessDenied &&
            error->code != mms::serviceerrors::accessInvalidated);
}

mms::Text whyUndescribed(const CallOutcome &outcome)
{
    const mms::Text text = mms::failureText(outcome);
    return text.empty() ? say("The answer does not match the question.") : text;
}

} // namespace acsi
