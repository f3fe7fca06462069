// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"
#include "acsi/reference.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace acsi {

/// Values of ctlModel (IEC 61850-7-2, 20.2).
enum class ControlModel : std::uint8_t {
    StatusOnly = 0,
    DirectNormal = 1,
    SelectNormal = 2,
    DirectEnhanced = 3,
    SelectEnhanced = 4,
};

/// Who controls (IEC 61850-7-3, Originator).
struct Originator
{
    std::int32_t category = 0;
    /// At most 64 octets.
    std::vector<std::uint8_t> identification;

    friend bool operator==(const Originator &, const Originator &) = default;
};

struct ControlRequest
{
    mms::Data value;
    Originator originator;
    std::uint8_t ctlNum = 0;
    mms::UtcTime time;
    /// When the device shall operate, where the object has operTm.
    std::optional<mms::UtcTime> operateTime;
    bool test = false;
    bool synchrocheck = false;
    bool interlockCheck = false;
};

/// The error that a server reports with a refused control (IEC 61850-8-1, 20.11).
struct LastApplError
{
    std::string controlObject; ///< "LD/LN$CO$Pos$Oper"
    std::int32_t error = 0;
    Originator originator;
    std::uint8_t ctlNum = 0;
    std::int32_t addCause = 0;

    friend bool operator==(const LastApplError &, const LastApplError &) = default;
};

/// The additional cause in words ("blocked by interlocking"); a number that the standard does not
/// know is given as such.
mms::Text additionalCauseText(std::int32_t addCause);
mms::Text controlErrorText(std::int32_t error);

/// What is known of a control service that was asked for.
enum class ControlOutcome : std::uint8_t {
    NotSent,  ///< nothing reached the device
    Refused,  ///< by the device
    Accepted, ///< by the device; how the command ends is not known
    Done,
    Failed,  ///< accepted, and ended without success
    Unknown, ///< sent, but there was no answer
};

/// How a control service ended.
struct ControlResult
{
    bool ok = false;
    mms::Text message; ///< one sentence when not ok
    std::optional<LastApplError> applError;
    ControlOutcome outcome = ControlOutcome::NotSent; ///< Done when ok

    explicit operator bool() const { return ok; }
};

/// What makes the integer part of an analogue value of its floating-point part (sVC of
/// IEC 61850-7-3): f = i * factor + offset.
struct AnalogueScale
{
    double factor = 1;
    double offset = 0;

    friend bool operator==(const AnalogueScale &, const AnalogueScale &) = default;
};

/// The value of Oper, SBOw or Cancel in the order and types of the live type description, with or
/// without operTm and Check; ctlVal as valueOfType() makes it. The error says what does not fit: an
/// originator identification beyond 64 octets, and a time to operate, a test or a check where the
/// device has no place for it, are errors as well. A number for a ctlVal of i and f needs the
/// @p scale, unless it is a whole number, which is both then.
mms::Result<mms::Data> controlValue(const mms::TypeDescription &type, const ControlRequest &request,
                                    const std::optional<AnalogueScale> &scale = {});
/// The inverse, for servers. A time to operate of zero is none.
mms::Result<ControlRequest> controlRequestFrom(const mms::TypeDescription &type,
                                               const mms::Data &value);

mms::Result<LastApplError> lastApplErrorFrom(const mms::Data &value);
mms::Data toData(const LastApplError &error);

/// The object and the service that a LastApplError names, whichever way it does that:
/// "LD/LN$CO$Pos$Oper", "LD/LN$CO$Pos", "LD/LN.Pos", "LD/LN.Pos.Oper".
struct ControlledName
{
    std::string object;  ///< "LD/LN.Pos"
    std::string service; ///< empty where it is not given
};
std::optional<ControlledName> controlledNameFrom(std::string_view controlObject);

/// What an information report says about control; nothing for other reports.
struct ControlInformation
{
    /// The object of a command termination; empty for a LastApplError alone.
    std::optional<Reference> terminated;
    /// Also with an error that says that there is none.
    bool positive = false;
    /// Empty as well when it could not be read.
    std::optional<LastApplError> applError;
    /// The value of Oper with a command termination.
    std::optional<mms::Data> oper;
};
std::optional<ControlInformation> controlInformationFrom(const mms::InformationReport &report);

/// What a server sends before it refuses a control.
mms::InformationReport toReport(const LastApplError &error);
/// What a server sends when a command of @p object ("LD/LN$CO$Pos") has ended, without success when
/// there is an @p error; @p oper is the value that was written.
mms::InformationReport commandTermination(const Reference &object, mms::Data oper,
                                          const std::optional<LastApplError> &error = {});

struct ControlCall;

/// A controllable data object of a server ("LD/LN$CO$Pos"). In the client's strand, where it is
/// destroyed as well. Calls may overlap: what the device says is given to the call that is meant,
/// so all calls of one object in one association belong to one ControlObject. What changes the
/// object takes the client that may change something, which is the one of the object.
///
/// A call without an answer ends after the client's call time-out, but what the device says of a
/// command later is still heard, see setLateHandler().
class ControlObject : public std::enable_shared_from_this<ControlObject>
{
    struct Private
    {
    };

public:
    /// The reason of a refusal may come so long after it.
    static constexpr std::chrono::milliseconds causePatience{200};

    /// Reads the types, and what refresh() reads.
    static asio::awaitable<mms::Result<std::shared_ptr<ControlObject>>>
    open(std::shared_ptr<Client> client, Reference object);
    ControlObject(Private, std::shared_ptr<Client> client, Reference object);
    ~ControlObject();
    ControlObject(const ControlObject &) = delete;
    ControlObject &operator=(const ControlObject &) = delete;

    /// Reads ctlModel, and the time-outs, sboClass and sVC where the object has them: settings that
    /// may be changed while the association stands.
    asio::awaitable<mms::Result<void>> refresh();

    const std::shared_ptr<Client> &client() const { return m_client; }
    ControlModel model() const { return m_model; }
    const Reference &reference() const { return m_object; }
    /// The type of Oper, or an empty structure when the object cannot be operated.
    const mms::TypeDescription &operType() const { return m_operType; }
    /// How long a selection lasts, and how long a command may take; where the device says so.
    std::optional<std::chrono::milliseconds> selectTimeout() const { return m_selectTimeout; }
    std::optional<std::chrono::milliseconds> operateTimeout() const { return m_operateTimeout; }
    /// The object stays selected after it was operated.
    bool isOperateMany() const { return m_isOperateMany; }

    /// SelectNormal reads SBO, SelectEnhanced writes SBOw; an error for the other models.
    asio::awaitable<ControlResult> select(std::shared_ptr<ChangingClient> client,
                                          ControlRequest request);
    /// Enhanced models wait for the command termination, at most @p terminationTimeout; of a
    /// time-activated command that counts from the time at which the device shall operate.
    asio::awaitable<ControlResult>
    operate(std::shared_ptr<ChangingClient> client, ControlRequest request,
            std::chrono::milliseconds terminationTimeout = std::chrono::seconds(30));
    /// Checks belong to no Cancel; they are left out, as is what the device has no place for.
    asio::awaitable<ControlResult> cancel(std::shared_ptr<ChangingClient> client,
                                          ControlRequest request);

    /// Hears what the device says of a command after operate() has ended, or was given up, without
    /// knowing: accepted, refused, done or failed. It may hear first that, then how it ended.
    using LateHandler = std::function<void(std::uint8_t ctlNum, const ControlResult &result)>;
    void setLateHandler(LateHandler handler) { m_lateHandler = std::move(handler); }

private:
    class Leaving;
    using CallPointer = std::shared_ptr<ControlCall>;

    asio::awaitable<mms::Result<void>> readTypes();
    CallPointer begin(std::string component, std::optional<std::uint8_t> ctlNum);
    asio::awaitable<void> perform(std::shared_ptr<ChangingClient> client, CallPointer call,
                                  mms::RequestService request);
    asio::awaitable<void> write(std::shared_ptr<ChangingClient> client, CallPointer call,
                                const mms::TypeDescription &type, const ControlRequest &request);
    static asio::awaitable<void> exchange(std::shared_ptr<ControlObject> self,
                                          std::shared_ptr<ChangingClient> client, CallPointer call,
                                          mms::RequestService request);
    void answered(const CallPointer &call, const mms::CallOutcome &outcome);
    void accepted(const CallPointer &call);
    /// Lets go of a call that nobody waits for, unless something of it may still come.
    void forget(const CallPointer &call);
    void terminate(const CallPointer &call, ControlInformation information);
    void tellLate(const CallPointer &call, ControlResult result);
    bool handle(const mms::InformationReport &report);
    mms::VariableAccess component(const std::string &name) const;
    std::string name() const { return objectReferenceText(m_object); }

    std::shared_ptr<Client> m_client;
    Reference m_object;
    ControlModel m_model = ControlModel::StatusOnly;
    mms::TypeDescription m_operType;
    mms::TypeDescription m_selectType;
    mms::TypeDescription m_cancelType;
    std::optional<std::chrono::milliseconds> m_selectTimeout;
    std::optional<std::chrono::milliseconds> m_operateTimeout;
    std::optional<AnalogueScale> m_scale;
    bool m_isOperateMany = false;
    bool m_typesRead = false;
    LateHandler m_lateHandler;
    Client::Registration m_informationHandler = 0;
    Client::Registration m_endHandler = 0;
    /// Calls that are not over, oldest first.
    std::vector<CallPointer> m_calls;
};

} // namespace acsi
