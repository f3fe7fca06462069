// SPDX-License-Identifier: Apache-2.0
#include "acsi/listcalls.h"

#include <utility>

namespace acsi {

using wording::say;

using mms::CallFailure;
using mms::CallOutcome;
using mms::DataAccessError;

std::size_t longestSize(mms::RequestService request)
{
    // Four lengths of a long PDU, each with up to three octets more than those of a short one.
    constexpr std::size_t growth = 4 * 3;
    constexpr std::uint32_t longInvokeId = 0x7fffffff;
    return mms::encode(mms::ConfirmedRequestPdu{longInvokeId, std::move(request)}).size() + growth;
}

std::deque<ListRange> listRanges(const std::vector<std::size_t> &sizes, std::size_t room)
{
    std::deque<ListRange> result;
    std::size_t used = 0;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        if (result.empty() || used + sizes[i] > room) {
            result.push_back({i, 0});
            used = 0;
        }
        ++result.back().count;
        used += sizes[i];
    }
    return result;
}

bool endsAll(const CallOutcome &outcome)
{
    if (const auto *failure = std::get_if<CallFailure>(&outcome)) {
        return failure->kind != CallFailure::Kind::TooLarge &&
               failure->kind != CallFailure::Kind::Malformed;
    }
    const auto *reject = std::get_if<mms::RejectPdu>(&outcome);
    return reject && reject->rejected == mms::RejectedPdu::ConfirmedRequest &&
           reject->code == mms::rejectcodes::requestUnrecognizedService;
}

mms::DataAccessError accessErrorOf(const CallOutcome &outcome)
{
    const auto *error = std::get_if<mms::ServiceError>(&outcome);
    if (!error || error->errorClass != mms::ErrorClass::Access)
        return DataAccessError::ObjectAccessUnsupported;
    switch (error->code) {
    case mms::serviceerrors::accessNonExistent:
        return DataAccessError::ObjectNonExistent;
    case mms::serviceerrors::accessDenied:
        return DataAccessError::ObjectAccessDenied;
    case mms::serviceerrors::accessInvalidated:
        return DataAccessError::ObjectInvalidated;
    default:
        return DataAccessError::ObjectAccessUnsupported;
    }
}

mms::Text whyNot(const CallOutcome &outcome)
{
    const mms::Text text = mms::failureText(outcome);
    return text.empty() ? say("The device's answer does not match the question.") : text;
}

} // namespace acsi
