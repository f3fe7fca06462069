// SPDX-License-Identifier: Apache-2.0
// The calls of a ControlObject that are not over; not for the folder's users.
#pragma once

#include "acsi/control.h"

#include <asio/steady_timer.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace acsi {

/// A service on the way, or a command whose termination is awaited or may still come.
struct ControlCall
{
    enum class State : std::uint8_t {
        Waiting,  ///< for its response
        Refused,  ///< the reason may follow
        Accepted, ///< the termination is awaited
        Silent,   ///< there will be no response; a termination may come all the same
        Over,
    };

    ControlCall(const osi::Strand &strand, std::string wanted, std::optional<std::uint8_t> number)
        : component(std::move(wanted))
        , ctlNum(number)
        , wake(strand, asio::steady_timer::time_point::max())
    {
    }

    std::string component;
    std::optional<std::uint8_t> ctlNum;
    asio::steady_timer wake;
    State state = State::Waiting;
    ControlResult result;
    mms::Text reason; ///< of a refusal
    std::optional<LastApplError> applError;
    bool isNamed = false; ///< the error names the service of this call
    std::optional<ControlInformation> termination;
    bool isLeft = false; ///< nobody waits for it any more
};

using ControlCallPointer = std::shared_ptr<ControlCall>;

/// A LastApplError that says that there is no error.
bool saysNoError(const LastApplError &error);

/// The result of a call that was refused, or whose command has terminated. @p object is how the
/// object is called in the sentence.
ControlResult refusal(const ControlCall &call, const std::string &object);
ControlResult ending(const ControlCall &call, const std::string &object);

/// The call of an object whose command has terminated; null when that cannot be told. @p operType
/// is the type of the object's Oper.
ControlCallPointer callTerminatedBy(const ControlInformation &information,
                                    const std::vector<ControlCallPointer> &calls,
                                    const mms::TypeDescription &operType);
/// The call of @p object that an error belongs to; null when it is that of another object, or when
/// that cannot be told. Some devices leave out the number or name the wrong service.
ControlCallPointer callMeantBy(const LastApplError &error,
                               const std::vector<ControlCallPointer> &calls,
                               const std::string &object);

} // namespace acsi
