// SPDX-License-Identifier: Apache-2.0
#include "controlstate.h"

#include "controlorder.h"

#include <algorithm>
#include <limits>
#include <utility>

using acsi::ControlModel;
using acsi::ControlOutcome;
using std::chrono::milliseconds;

bool ControlState::Manner::terminates() const
{
    return model == ControlModel::DirectEnhanced || model == ControlModel::SelectEnhanced;
}

ControlState::Obstacle ControlState::obstacle(Service service, const ControlBlock &block,
                                              Caller caller, Time now) const
{
    const auto model = static_cast<ControlModel>(block.controlModel);
    if (service == Service::Cancel) {
        return needsRecord(service, now) && model == ControlModel::SelectEnhanced
                   ? Obstacle::NotSelected
                   : Obstacle::None;
    }
    if (service != Service::Operate)
        return Obstacle::None;
    if (model == ControlModel::SelectNormal)
        return isSelectedByOther(caller, now) ? Obstacle::SelectedByOther : Obstacle::None;
    if (model != ControlModel::SelectEnhanced)
        return Obstacle::None;
    const Command *selected = selection(now);
    if (!selected)
        return Obstacle::NotSelected;
    if (isSelectedByOther(caller, now))
        return Obstacle::SelectedByOther;
    const bool areKnown = caller != 0 && selected->caller != 0;
    if (m_isAmbiguous && !areKnown && ControlOrder::isEmpty(block))
        return Obstacle::SelectedAgain;
    if (!ControlOrder::repeats(block, selected->block))
        return Obstacle::NotTheSelected;
    return Obstacle::None;
}

bool ControlState::needsRecord(Service service, Time now) const
{
    return service != Service::Cancel || !cancellable(now);
}

bool ControlState::isSelectedByOther(Caller caller, Time now) const
{
    const Command *selected = selection(now);
    return selected && caller != 0 && selected->caller != 0 && caller != selected->caller;
}

const ControlState::Command *ControlState::repeated(Service service, ControlModel model,
                                                    Time now) const
{
    const bool isEnhancedSelect = model == ControlModel::SelectEnhanced;
    switch (service) {
    case Service::Select:
        break;
    case Service::Operate:
        return isEnhancedSelect ? selection(now) : nullptr;
    case Service::Cancel:
        // Of another selection the device knows no more than the number.
        return isRunning() || isEnhancedSelect ? cancellable(now) : nullptr;
    }
    return nullptr;
}

std::uint8_t ControlState::numberFor(Service service, ControlModel model, Time now)
{
    const Command *about = nullptr;
    if (service == Service::Operate && model == ControlModel::SelectNormal)
        about = selection(now);
    else if (service == Service::Cancel)
        about = cancellable(now);
    return about ? about->request.ctlNum : newNumber();
}

void ControlState::sent(Service service, Command command)
{
    if (service == Service::Select)
        selectSent(std::move(command));
    else if (service == Service::Operate)
        operateSent(std::move(command));
}

void ControlState::ended(Service service, std::uint8_t ctlNum, ControlOutcome outcome,
                         const Manner &manner, Time now)
{
    switch (service) {
    case Service::Select:
        selectEnded(ctlNum, outcome, manner, now);
        break;
    case Service::Operate:
        operateEnded(ctlNum, outcome, manner, now);
        break;
    case Service::Cancel:
        if (outcome == ControlOutcome::Done)
            cancelled(ctlNum);
        break;
    }
}

std::uint8_t ControlState::newNumber()
{
    for (int tries = 0; tries <= std::numeric_limits<std::uint8_t>::max(); ++tries) {
        ++m_lastNumber;
        if (m_lastNumber != 0 && !command(m_lastNumber))
            return m_lastNumber;
    }
    m_lastNumber = m_commands.front().command.request.ctlNum;
    forget(m_lastNumber);
    return m_lastNumber;
}

void ControlState::Selection::grant(milliseconds timeout, Time now)
{
    phase = SelectPhase::Granted;
    end.reset();
    if (timeout > milliseconds(0))
        end = now + timeout;
}

void ControlState::selectSent(Command command)
{
    m_wasAmbiguous = m_isAmbiguous;
    // Whoever was refused knows that nothing is selected.
    if (m_selection && m_selection->phase != SelectPhase::Refused) {
        const Command &before = m_selection->command;
        const bool isSameCaller = command.caller != 0 && command.caller == before.caller;
        const bool isSameCommand = command.block.controlValue == before.block.controlValue &&
                                   command.block.orCat == before.block.orCat &&
                                   command.block.check == before.block.check &&
                                   command.block.test == before.block.test;
        m_isAmbiguous = m_isAmbiguous || (!isSameCaller && !isSameCommand);
    }
    m_replaced = std::move(m_selection);
    m_selection = Selection{std::move(command), ++m_order, SelectPhase::Sent, std::nullopt};
}

void ControlState::selectEnded(std::uint8_t ctlNum, ControlOutcome outcome, const Manner &manner,
                               Time now)
{
    if (!m_selection || m_selection->command.request.ctlNum != ctlNum)
        return;
    switch (outcome) {
    case ControlOutcome::Done:
        m_selection->grant(manner.selectTimeout, now);
        // An object that can be selected executes nothing.
        forgetOlder(m_selection->order);
        break;
    case ControlOutcome::NotSent:
        m_selection = std::exchange(m_replaced, std::nullopt);
        m_isAmbiguous = m_wasAmbiguous;
        break;
    case ControlOutcome::Refused:
    case ControlOutcome::Failed:
        // The device may still have what it granted before.
        if (m_replaced && m_replaced->isGranted())
            m_selection = std::exchange(m_replaced, std::nullopt);
        m_selection->phase = SelectPhase::Refused;
        m_isAmbiguous = false;
        break;
    case ControlOutcome::Accepted:
    case ControlOutcome::Unknown:
        break;
    }
}

bool ControlState::isLive(Time now) const
{
    return m_selection && m_selection->isGranted() &&
           (!m_selection->end || now < *m_selection->end);
}

const ControlState::Command *ControlState::selection(Time now) const
{
    return isLive(now) ? &m_selection->command : nullptr;
}

void ControlState::operateSent(Command command)
{
    forget(command.request.ctlNum);
    Entry sent;
    sent.command = std::move(command);
    sent.order = ++m_order;
    if (m_selection && m_selection->isGranted())
        sent.selection = std::move(m_selection);
    m_selection.reset();
    m_isAmbiguous = false;
    m_commands.push_back(std::move(sent));
}

void ControlState::operateEnded(std::uint8_t ctlNum, ControlOutcome outcome, const Manner &manner,
                                Time now)
{
    Entry *const ended = entry(ctlNum);
    if (!ended)
        return;
    switch (outcome) {
    case ControlOutcome::NotSent:
        // The selection is what it was.
        if (ended->selection && !m_selection)
            m_selection = std::move(ended->selection);
        forget(ctlNum);
        break;
    case ControlOutcome::Refused:
    case ControlOutcome::Failed:
        forget(ctlNum);
        break;
    case ControlOutcome::Accepted:
        leave(*ended, manner.terminates() ? Phase::Running : Phase::CarriedOut);
        forgetOlder(ended->order);
        break;
    case ControlOutcome::Unknown:
        leave(*ended, ended->phase == Phase::Sent ? Phase::Unknown : ended->phase);
        break;
    case ControlOutcome::Done:
        if (manner.isOperateMany && ended->selection && !m_selection) {
            m_selection = ended->selection;
            m_selection->grant(manner.selectTimeout, now);
        }
        ended->phase = Phase::CarriedOut;
        forgetOlder(ended->order);
        if (manner.terminates())
            forget(ctlNum);
        break;
    }
}

void ControlState::leave(Entry &which, Phase phase)
{
    which.isLeft = true;
    which.phase = phase;
}

void ControlState::heardLate(std::uint8_t ctlNum, ControlOutcome outcome)
{
    Entry *const heard = entry(ctlNum);
    if (!heard)
        return;
    if (outcome != ControlOutcome::Accepted) {
        forget(ctlNum);
        return;
    }
    leave(*heard, Phase::Running);
    forgetOlder(heard->order);
}

bool ControlState::isInDoubt() const
{
    return std::ranges::any_of(m_commands, &Entry::isLeft);
}

const ControlState::Command *ControlState::command(std::uint8_t ctlNum) const
{
    const auto found = std::ranges::find_if(
        m_commands, [ctlNum](const Entry &each) { return each.command.request.ctlNum == ctlNum; });
    return found == m_commands.end() ? nullptr : &found->command;
}

const ControlState::Command *ControlState::cancellable(Time now) const
{
    const Entry *runs = running();
    const bool isNewer = runs && m_selection && m_selection->order > runs->order;
    if (isLive(now) && (!runs || isNewer))
        return &m_selection->command;
    if (runs)
        return &runs->command;
    return m_selection ? &m_selection->command : nullptr;
}

void ControlState::cancelled(std::uint8_t ctlNum)
{
    if (m_selection &&
        (m_selection->command.request.ctlNum == ctlNum || m_selection->isGranted())) {
        m_selection.reset();
        m_isAmbiguous = false;
    }
    // Of others the device may still say something.
    const Entry *which = entry(ctlNum);
    if (which && which->phase == Phase::CarriedOut)
        forget(ctlNum);
}

void ControlState::associationEnded()
{
    m_selection.reset();
    m_replaced.reset();
    m_isAmbiguous = false;
    m_commands.clear();
}

ControlState::Entry *ControlState::entry(std::uint8_t ctlNum)
{
    const auto found = std::ranges::find_if(
        m_commands, [ctlNum](const Entry &each) { return each.command.request.ctlNum == ctlNum; });
    return found == m_commands.end() ? nullptr : &*found;
}

const ControlState::Entry *ControlState::running() const
{
    const auto newest = m_commands.rbegin();
    const auto known = std::find_if(newest, m_commands.rend(),
                                    [](const Entry &each) { return each.phase == Phase::Running; });
    if (known != m_commands.rend())
        return &*known;
    return newest == m_commands.rend() ? nullptr : &*newest;
}

void ControlState::forget(std::uint8_t ctlNum)
{
    std::erase_if(m_commands,
                  [ctlNum](const Entry &each) { return each.command.request.ctlNum == ctlNum; });
}

void ControlState::forgetOlder(std::uint64_t order)
{
    std::erase_if(m_commands, [order](const Entry &each) {
        return each.order < order && each.phase != Phase::Sent;
    });
}
