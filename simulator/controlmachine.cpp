// SPDX-License-Identifier: Apache-2.0
#include "simulator/controlmachine.h"

#include "acsi/reference.h"

#include <utility>

namespace sim {

namespace {

using acsi::ControlModel;
using acsi::ControlRequest;
using mms::DataAccessError;

constexpr std::int32_t highestCategory = 8;
constexpr std::size_t longestIdentification = 64;

bool selects(ControlModel model)
{
    return model == ControlModel::SelectNormal || model == ControlModel::SelectEnhanced;
}

bool isEnhanced(ControlModel model)
{
    return model == ControlModel::DirectEnhanced || model == ControlModel::SelectEnhanced;
}

/// A control service has to repeat what was selected; only its time may be another.
bool repeats(const ControlRequest &selection, const ControlRequest &request)
{
    return selection.value == request.value && selection.originator == request.originator &&
           selection.ctlNum == request.ctlNum && selection.test == request.test &&
           selection.operateTime == request.operateTime &&
           selection.synchrocheck == request.synchrocheck &&
           selection.interlockCheck == request.interlockCheck;
}

/// Whether a cancel means that command.
bool means(const ControlRequest &cancel, const ControlRequest &command,
           const ControlSettings &settings)
{
    const bool isSame = command.ctlNum == cancel.ctlNum && command.value == cancel.value;
    return isSame && (!settings.isStrict ||
                      (command.originator == cancel.originator && command.test == cancel.test &&
                       command.operateTime == cancel.operateTime));
}

bool isPlausible(const ControlRequest &request, const ControlSettings &settings)
{
    return request.originator.category >= (settings.isStrict ? 1 : 0) &&
           request.originator.category <= highestCategory &&
           request.originator.identification.size() <= longestIdentification;
}

std::int32_t errorOf(AddCause cause)
{
    switch (cause) {
    case AddCause::TimeLimitOver:
        return 2;
    case AddCause::BlockedBySwitchingHierarchy:
    case AddCause::BlockedByMode:
    case AddCause::BlockedByProcess:
    case AddCause::BlockedByInterlocking:
    case AddCause::BlockedBySynchrocheck:
    case AddCause::BlockedByHealth:
        return 3;
    default:
        return 1;
    }
}

bool isNow(const ControlRequest &request)
{
    return !request.operateTime ||
           (request.operateTime->seconds == 0 && request.operateTime->fraction == 0);
}

Clock::WallTime wallTimeOf(const mms::UtcTime &time)
{
    constexpr std::uint64_t nanosecondsPerSecond = 1000000000;
    const auto rest = (time.fraction * nanosecondsPerSecond) >> 24U;
    return Clock::WallTime(std::chrono::seconds(time.seconds) + std::chrono::nanoseconds(rest));
}

} // namespace

ControlMachine::ControlMachine(std::string reference, ControlHost &host, const Clock &clock)
    : m_reference(std::move(reference))
    , m_host(host)
    , m_clock(clock)
{
}

bool ControlMachine::select(Peer &client)
{
    const ControlSettings settings = m_host.settings();
    if (settings.model != ControlModel::SelectNormal || isBusy())
        return false;
    if (m_state == State::Selected && m_client != &client)
        return false;
    m_selection.reset();
    select(client, settings);
    return true;
}

void ControlMachine::select(Peer &client, const ControlSettings &settings)
{
    m_client = &client;
    m_sboTimeout = settings.sboTimeout;
    m_deadline = m_clock.steadyNow() + m_sboTimeout;
    m_state = State::Selected;
    setSelected(true);
}

void ControlMachine::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    m_host.selected(selected);
}

ControlMachine::Answer ControlMachine::selectWithValue(Peer &client, const ControlRequest &request)
{
    const ControlSettings settings = m_host.settings();
    AddCause cause = AddCause::None;
    if (settings.model != ControlModel::SelectEnhanced)
        cause = AddCause::NotSupported;
    else if (isBusy())
        cause = AddCause::CommandAlreadyInExecution;
    else if (m_state == State::Selected && m_client != &client)
        cause = AddCause::ObjectAlreadySelected;
    else if (!isPlausible(request, settings))
        cause = AddCause::InconsistentParameters;
    else
        cause = m_host.check(request);
    if (cause != AddCause::None)
        return refuse(client, "SBOw", request, cause);
    m_selection = request;
    select(client, settings);
    return std::nullopt;
}

AddCause ControlMachine::mayOperate(const Peer &client, const ControlRequest &request,
                                    const ControlSettings &settings) const
{
    if (settings.model == ControlModel::StatusOnly)
        return AddCause::NotSupported;
    if (isBusy())
        return m_client == &client ? AddCause::CommandAlreadyInExecution
                                   : AddCause::LockedByOtherClient;
    if (selects(settings.model)) {
        if (m_state != State::Selected)
            return AddCause::ObjectNotSelected;
        if (m_client != &client)
            return AddCause::LockedByOtherClient;
        if (m_selection && !repeats(*m_selection, request))
            return AddCause::InconsistentParameters;
    }
    if (!isPlausible(request, settings))
        return AddCause::InconsistentParameters;
    if (!isNow(request) && wallTimeOf(*request.operateTime) <= m_clock.now())
        return AddCause::InconsistentParameters;
    return m_host.check(request);
}

ControlMachine::Answer ControlMachine::operate(Peer &client, const ControlRequest &request,
                                               const mms::Data &value)
{
    const ControlSettings settings = m_host.settings();
    const AddCause cause = mayOperate(client, request, settings);
    if (cause != AddCause::None) {
        const Answer answer = refuse(client, "Oper", request, cause);
        if (m_state == State::Selected && m_client == &client)
            deselect();
        return answer;
    }
    m_client = &client;
    m_request = request;
    m_value = value;
    m_enhanced = isEnhanced(settings.model);
    m_selection.reset();
    setSelected(m_selected && settings.operateMany);
    if (isNow(request)) {
        start();
    } else {
        m_state = State::Waiting;
        m_deadline = m_clock.steadyNow() + (wallTimeOf(*request.operateTime) - m_clock.now());
    }
    return std::nullopt;
}

void ControlMachine::start()
{
    const ControlSettings settings = m_host.settings();
    m_state = State::Operating;
    m_tooSlow = !settings.operatingTime || *settings.operatingTime > settings.operTimeout;
    m_deadline = m_clock.steadyNow() + (m_tooSlow ? settings.operTimeout : *settings.operatingTime);
    m_host.started(m_request);
}

AddCause ControlMachine::mayCancel(const Peer &client, const ControlRequest &request,
                                   const ControlSettings &settings) const
{
    if (m_state == State::Idle)
        return AddCause::ObjectNotSelected;
    if (m_client != &client)
        return AddCause::LockedByOtherClient;
    if (isBusy() && !settings.cancelsOperations)
        return AddCause::NotSupported;
    const ControlRequest *command = m_selection ? &*m_selection : nullptr;
    if (isBusy())
        command = &m_request;
    if (command && !means(request, *command, settings))
        return AddCause::InconsistentParameters;
    return AddCause::None;
}

ControlMachine::Answer ControlMachine::cancel(Peer &client, const ControlRequest &request)
{
    const AddCause cause = mayCancel(client, request, m_host.settings());
    if (cause != AddCause::None)
        return refuse(client, "Cancel", request, cause);
    if (m_state == State::Selected) {
        deselect();
        return std::nullopt;
    }
    if (m_state == State::Operating)
        end(AddCause::AbortionByCancel);
    else
        terminate(AddCause::AbortionByCancel);
    deselect();
    return std::nullopt;
}

void ControlMachine::closed(const Peer &client)
{
    if (m_client != &client)
        return;
    if (m_state == State::Selected || m_state == State::Waiting)
        deselect();
    setSelected(false);
    m_client = nullptr;
}

void ControlMachine::deselect()
{
    m_state = State::Idle;
    m_client = nullptr;
    m_selection.reset();
    m_deadline.reset();
    setSelected(false);
}

std::optional<Clock::SteadyTime> ControlMachine::deadline() const
{
    return m_deadline;
}

void ControlMachine::advance()
{
    if (!m_deadline || m_clock.steadyNow() < *m_deadline)
        return;
    switch (m_state) {
    case State::Idle:
        m_deadline.reset();
        break;
    case State::Selected:
        deselect();
        break;
    case State::Waiting: {
        const AddCause cause = m_host.check(m_request);
        if (cause == AddCause::None) {
            start();
        } else {
            terminate(cause);
            deselect();
        }
        break;
    }
    case State::Operating:
        end(m_tooSlow ? AddCause::TimeLimitOver : AddCause::None);
        break;
    }
}

void ControlMachine::end(AddCause cause)
{
    m_deadline.reset();
    if (cause == AddCause::None)
        m_host.finished(m_request);
    else
        m_host.stopped(m_request, cause);
    terminate(cause);
    if (m_selected && m_client) {
        m_state = State::Selected;
        m_deadline = m_clock.steadyNow() + m_sboTimeout;
    } else {
        deselect();
    }
}

void ControlMachine::terminate(AddCause cause)
{
    if (!m_enhanced || !m_client)
        return;
    const auto object = acsi::parseReference(m_reference);
    if (!object)
        return;
    std::optional<acsi::LastApplError> error;
    if (cause != AddCause::None)
        error = lastApplError("Oper", m_request, cause);
    m_host.send(*m_client, acsi::commandTermination(*object, m_value, error));
}

acsi::LastApplError ControlMachine::lastApplError(std::string_view service,
                                                  const ControlRequest &request,
                                                  AddCause cause) const
{
    const CauseForm form = m_host.settings().causes;
    acsi::LastApplError error;
    error.controlObject = m_reference;
    if (form.name == CauseForm::Name::Service)
        error.controlObject += '$' + std::string(service);
    else if (form.name == CauseForm::Name::Oper)
        error.controlObject += "$Oper";
    else if (const auto object = acsi::parseReference(m_reference);
             object && form.name == CauseForm::Name::Reference)
        error.controlObject = acsi::objectReferenceText(*object);
    error.error = errorOf(cause);
    error.originator = request.originator;
    // What is too long to be accepted is too long to be repeated.
    if (error.originator.identification.size() > longestIdentification)
        error.originator.identification.resize(longestIdentification);
    error.ctlNum = form.hasNumber ? request.ctlNum : 0;
    error.addCause = static_cast<std::int32_t>(cause);
    return error;
}

ControlMachine::Answer ControlMachine::refuse(Peer &client, std::string_view service,
                                              const ControlRequest &request, AddCause cause)
{
    auto report = acsi::toReport(lastApplError(service, request, cause));
    if (m_host.settings().causes.followsAnswer)
        m_host.sendLater(client, std::move(report));
    else
        m_host.send(client, std::move(report));
    return DataAccessError::ObjectAccessDenied;
}

} // namespace sim
