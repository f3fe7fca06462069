// SPDX-License-Identifier: Apache-2.0
#include "acsi/controlcalls.h"

#include <algorithm>

namespace acsi {

using wording::say;

namespace {

mms::Text reasonOf(const LastApplError &error)
{
    const mms::Text cause = additionalCauseText(error.addCause);
    return error.error > 1 ? say("%1 (%2)", cause, controlErrorText(error.error)) : cause;
}

} // namespace

bool saysNoError(const LastApplError &error)
{
    constexpr std::int32_t noCause = 25;
    return error.error == 0 && error.addCause == noCause;
}

ControlResult refusal(const ControlCall &call, const std::string &object)
{
    ControlResult result;
    result.outcome = ControlOutcome::Refused;
    result.applError = call.applError;
    const bool saysWhy = call.applError && !saysNoError(*call.applError);
    result.message = say("%1: the device refuses %2: %3.", object, call.component,
                         saysWhy ? reasonOf(*call.applError) : call.reason);
    return result;
}

ControlResult ending(const ControlCall &call, const std::string &object)
{
    ControlResult result;
    result.ok = call.termination->positive;
    result.outcome = result.ok ? ControlOutcome::Done : ControlOutcome::Failed;
    if (result.ok)
        return result;
    result.applError = call.termination->applError;
    result.message =
        result.applError
            ? say("%1: the command ended without success: %2.", object, reasonOf(*result.applError))
            : say("%1: the command ended without success: the device does not say why.", object);
    return result;
}

ControlCallPointer callTerminatedBy(const ControlInformation &information,
                                    const std::vector<ControlCallPointer> &calls,
                                    const mms::TypeDescription &operType)
{
    std::vector<ControlCallPointer> candidates;
    for (const ControlCallPointer &call : calls) {
        if (call->component == "Oper" && !call->termination &&
            call->state != ControlCall::State::Over && call->state != ControlCall::State::Refused)
            candidates.push_back(call);
    }
    std::optional<std::uint8_t> number;
    if (information.oper) {
        if (const auto request = controlRequestFrom(operType, *information.oper))
            number = request->ctlNum;
    }
    if (number.value_or(0) != 0) {
        const auto found = std::ranges::find(candidates, number, &ControlCall::ctlNum);
        return found == candidates.end() ? nullptr : *found;
    }
    return candidates.size() == 1 ? candidates.front() : nullptr;
}

ControlCallPointer callMeantBy(const LastApplError &error,
                               const std::vector<ControlCallPointer> &calls,
                               const std::string &object)
{
    const auto named = controlledNameFrom(error.controlObject);
    if (!named || named->object != object)
        return nullptr;
    // Some devices name the operate service whichever they refuse.
    const auto mayMean = [&](const ControlCallPointer &call) {
        return named->service.empty() || named->service == call->component ||
               named->service == "Oper";
    };
    std::vector<ControlCallPointer> waiting;
    std::vector<ControlCallPointer> running;
    for (const ControlCallPointer &call : calls) {
        const bool isOther = error.ctlNum != 0 && call->ctlNum && *call->ctlNum != error.ctlNum;
        if (isOther || call->termination || !mayMean(call))
            continue;
        if (call->state == ControlCall::State::Accepted && call->component == "Oper")
            running.push_back(call);
        else if ((call->state == ControlCall::State::Waiting ||
                  call->state == ControlCall::State::Refused) &&
                 !call->applError)
            waiting.push_back(call);
    }
    for (const std::vector<ControlCallPointer> &group : {waiting, running}) {
        if (group.size() == 1)
            return group.front();
        const auto isNamed = [&](const ControlCallPointer &call) {
            return call->component == named->service;
        };
        if (std::ranges::count_if(group, isNamed) == 1)
            return *std::ranges::find_if(group, isNamed);
        if (!group.empty())
            return nullptr;
    }
    return nullptr;
}

} // namespace acsi
