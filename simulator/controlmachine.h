// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/clock.h"
#include "simulator/peer.h"

#include "acsi/control.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sim {

/// Why a control was refused or failed (IEC 61850-7-2, AddCause).
enum class AddCause : std::int32_t {
    Unknown = 0,
    NotSupported = 1,
    BlockedBySwitchingHierarchy = 2,
    SelectFailed = 3,
    InvalidPosition = 4,
    PositionReached = 5,
    ParameterChangeInExecution = 6,
    StepLimit = 7,
    BlockedByMode = 8,
    BlockedByProcess = 9,
    BlockedByInterlocking = 10,
    BlockedBySynchrocheck = 11,
    CommandAlreadyInExecution = 12,
    BlockedByHealth = 13,
    OneOfNControl = 14,
    AbortionByCancel = 15,
    TimeLimitOver = 16,
    ObjectNotSelected = 18,
    ObjectAlreadySelected = 19,
    BlockedByCommand = 24,
    None = 25,
    InconsistentParameters = 26,
    LockedByOtherClient = 27,
};

/// How a device words why it refuses a control.
struct CauseForm
{
    enum class Name : std::uint8_t {
        Service,   ///< "LD/LN$CO$Pos$Cancel"
        Object,    ///< "LD/LN$CO$Pos"
        Reference, ///< "LD/LN.Pos"
        Oper,      ///< "LD/LN$CO$Pos$Oper", whichever service it was
    };

    Name name = Name::Service;
    bool hasNumber = true;
    bool followsAnswer = false;
};

/// The configuration of a controllable object, as it stands when it is asked for.
struct ControlSettings
{
    acsi::ControlModel model = acsi::ControlModel::StatusOnly;
    std::chrono::milliseconds sboTimeout{30000};
    /// The selection outlives an operation.
    bool operateMany = false;
    /// An operation that is not done by then has failed.
    std::chrono::milliseconds operTimeout{10000};
    /// How long the process takes; none when it does not follow at all.
    std::optional<std::chrono::milliseconds> operatingTime{60};
    /// A cancel has to repeat all of a command, not its number and value alone; nobody operates
    /// without an originator category.
    bool isStrict = false;
    bool cancelsOperations = true;
    CauseForm causes;
};

/// What a controllable object needs from its device.
class ControlHost
{
public:
    virtual ~ControlHost() = default;

    virtual ControlSettings settings() = 0;
    /// Whether the process may be operated so now; AddCause::None when it may.
    virtual AddCause check(const acsi::ControlRequest &request) = 0;
    /// The object was selected, or is no longer.
    virtual void selected(bool selected) = 0;
    virtual void started(const acsi::ControlRequest &request) = 0;
    virtual void finished(const acsi::ControlRequest &request) = 0;
    /// The operation ended before it was finished.
    virtual void stopped(const acsi::ControlRequest &request, AddCause cause) = 0;
    virtual void send(Peer &client, mms::InformationReport report) = 0;
    /// After the answer to the request that is being served.
    virtual void sendLater(Peer &client, mms::InformationReport report) = 0;
};

/// The state machine of one controllable object for all control models (IEC 61850-7-2, 20). It is
/// told of requests, time and clients that leave. What says why a request is refused is sent
/// through the host before the request is answered.
class ControlMachine
{
public:
    using Answer = std::optional<mms::DataAccessError>;

    /// @p reference is "LD/LN$CO$Pos".
    ControlMachine(std::string reference, ControlHost &host, const Clock &clock);

    const std::string &reference() const { return m_reference; }

    /// Select as a read: whether the client has the object now.
    bool select(Peer &client);
    /// Select as a write. Here and below @p value is what @p request was read from.
    Answer selectWithValue(Peer &client, const acsi::ControlRequest &request);
    Answer operate(Peer &client, const acsi::ControlRequest &request, const mms::Data &value);
    Answer cancel(Peer &client, const acsi::ControlRequest &request);
    /// The client has left. An operation goes on; a selection, and an operation that is still to
    /// come, do not.
    void closed(const Peer &client);

    bool isSelected() const { return m_selected; }
    /// Whether the process is about to be moved by this object.
    bool isBusy() const { return m_state == State::Operating || m_state == State::Waiting; }

    std::optional<Clock::SteadyTime> deadline() const;
    void advance();

private:
    enum class State : std::uint8_t { Idle, Selected, Waiting, Operating };

    AddCause mayCancel(const Peer &client, const acsi::ControlRequest &request,
                       const ControlSettings &settings) const;
    AddCause mayOperate(const Peer &client, const acsi::ControlRequest &request,
                        const ControlSettings &settings) const;
    Answer refuse(Peer &client, std::string_view service, const acsi::ControlRequest &request,
                  AddCause cause);
    acsi::LastApplError lastApplError(std::string_view service, const acsi::ControlRequest &request,
                                      AddCause cause) const;
    void select(Peer &client, const ControlSettings &settings);
    void setSelected(bool selected);
    void deselect();
    void start();
    void end(AddCause cause);
    void terminate(AddCause cause);

    std::string m_reference;
    ControlHost &m_host;
    const Clock &m_clock;

    State m_state = State::Idle;
    /// Who selected or operates; null once it has left.
    Peer *m_client = nullptr;
    std::optional<acsi::ControlRequest> m_selection; ///< of a select with value
    acsi::ControlRequest m_request;
    mms::Data m_value;
    bool m_enhanced = false;
    bool m_selected = false; ///< also while an operation is under way that leaves it so
    std::chrono::milliseconds m_sboTimeout{0};
    std::optional<Clock::SteadyTime> m_deadline;
    bool m_tooSlow = false; ///< the deadline of an operation is that of its failure
};

} // namespace sim
