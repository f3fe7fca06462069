// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"
#include "acsi/reference.h"

#include <chrono>
#include <cstdint>
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
std::string additionalCauseText(std::int32_t addCause);
std::string controlErrorText(std::int32_t error);

/// How a control service ended.
struct ControlResult
{
    bool ok = false;
    std::string message; ///< one sentence when not ok
    std::optional<LastApplError> applError;

    explicit operator bool() const { return ok; }
};

/// The value of Oper, SBOw or Cancel in the order and types of the live type description, with or
/// without operTm and Check; ctlVal as valueOfType() makes it. The error says what does not fit: an
/// originator identification beyond 64 octets, and a time to operate or a test where the device has
/// no place for it, are errors as well.
mms::Result<mms::Data> controlValue(const mms::TypeDescription &type,
                                    const ControlRequest &request);
/// The inverse, for servers. A time to operate of zero is none.
mms::Result<ControlRequest> controlRequestFrom(const mms::TypeDescription &type,
                                               const mms::Data &value);

mms::Result<LastApplError> lastApplErrorFrom(const mms::Data &value);
mms::Data toData(const LastApplError &error);

/// What an information report says about control; nothing for other reports.
struct ControlInformation
{
    /// The object of a command termination; empty for a LastApplError alone.
    std::optional<Reference> terminated;
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

/// A controllable data object of a server ("LD/LN$CO$Pos"). In the client's strand, where it is
/// destroyed as well; one call at a time, except that cancel() may come while operate() waits.
class ControlObject : public std::enable_shared_from_this<ControlObject>
{
    struct Private
    {
    };

public:
    /// Reads ctlModel, the types, and the time-outs where the object has them.
    static asio::awaitable<mms::Result<std::shared_ptr<ControlObject>>>
    open(std::shared_ptr<Client> client, Reference object);
    ControlObject(Private, std::shared_ptr<Client> client, Reference object);
    ~ControlObject();
    ControlObject(const ControlObject &) = delete;
    ControlObject &operator=(const ControlObject &) = delete;

    ControlModel model() const { return m_model; }
    const Reference &reference() const { return m_object; }
    /// The type of Oper, or an empty structure when the object cannot be operated.
    const mms::TypeDescription &operType() const { return m_operType; }
    /// How long a selection lasts, and how long a command may take; where the device says so.
    std::optional<std::chrono::milliseconds> selectTimeout() const { return m_selectTimeout; }
    std::optional<std::chrono::milliseconds> operateTimeout() const { return m_operateTimeout; }

    /// SelectNormal reads SBO, SelectEnhanced writes SBOw; an error for the other models.
    asio::awaitable<ControlResult> select(ControlRequest request);
    /// Enhanced models wait for the command termination, at most @p terminationTimeout; of a
    /// time-activated command that counts from the time at which the device shall operate.
    asio::awaitable<ControlResult>
    operate(ControlRequest request,
            std::chrono::milliseconds terminationTimeout = std::chrono::seconds(30));
    asio::awaitable<ControlResult> cancel(ControlRequest request);

private:
    struct Call;

    asio::awaitable<mms::Result<void>> readModel();
    asio::awaitable<mms::Result<void>> readTypes();
    asio::awaitable<void> writeControl(Call &call, const mms::TypeDescription &type,
                                       const ControlRequest &request);
    ControlResult refusal(const Call &call, const std::string &reason) const;
    bool handle(const mms::InformationReport &report);
    bool isMine(const LastApplError &error, const Call &call) const;
    std::string name() const { return objectReferenceText(m_object); }

    std::shared_ptr<Client> m_client;
    Reference m_object;
    ControlModel m_model = ControlModel::StatusOnly;
    mms::TypeDescription m_operType;
    mms::TypeDescription m_selectType;
    mms::TypeDescription m_cancelType;
    std::optional<std::chrono::milliseconds> m_selectTimeout;
    std::optional<std::chrono::milliseconds> m_operateTimeout;
    Client::Registration m_informationHandler = 0;
    /// Calls that are not over, oldest first.
    std::vector<Call *> m_calls;
};

} // namespace acsi
