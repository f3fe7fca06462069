// SPDX-License-Identifier: Apache-2.0
#include "controlstate.h"

#include "controlorder.h"

#include <algorithm>
#include <limits>
#include <utility>

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

void ControlState::selectWithdrawn(std::uint8_t ctlNum)
{
    if (!m_selection || m_selection->command.request.ctlNum != ctlNum)
        return;
    m_selection = std::exchange(m_replaced, std::nullopt);
    m_isAmbiguous = m_wasAmbiguous;
}

void ControlState::selectGranted(std::uint8_t ctlNum, std::chrono::milliseconds timeout, Time now)
{
    if (!m_selection || m_selection->command.request.ctlNum != ctlNum)
        return;
    m_selection->phase = SelectPhase::Granted;
    m_selection->end.reset();
    if (timeout > std::chrono::milliseconds(0))
        m_selection->end = now + timeout;
    // An object that can be selected executes nothing.
    forgetOlder(m_selection->order);
}

void ControlState::selectRefused(std::uint8_t ctlNum)
{
    if (!m_selection || m_selection->command.request.ctlNum != ctlNum)
        return;
    // The device may still have what it granted before.
    if (m_replaced && m_replaced->isGranted())
        m_selection = std::exchange(m_replaced, std::nullopt);
    m_selection->phase = SelectPhase::Refused;
    m_isAmbiguous = false;
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

ControlState::Obstacle ControlState::obstacle(const ControlBlock &block, Caller caller,
                                              Time now) const
{
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

bool ControlState::isSelectedByOther(Caller caller, Time now) const
{
    const Command *selected = selection(now);
    return selected && caller != 0 && selected->caller != 0 && caller != selected->caller;
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

void ControlState::operateWithdrawn(std::uint8_t ctlNum)
{
    Entry *withdrawn = entry(ctlNum);
    if (!withdrawn)
        return;
    if (withdrawn->selection && !m_selection)
        m_selection = std::move(withdrawn->selection);
    forget(ctlNum);
}

void ControlState::operateAccepted(std::uint8_t ctlNum, bool terminates, bool staysSelected,
                                   std::chrono::milliseconds timeout, Time now)
{
    Entry *accepted = entry(ctlNum);
    if (!accepted)
        return;
    accepted->phase = terminates ? Phase::Running : Phase::CarriedOut;
    const std::uint64_t order = accepted->order;
    if (staysSelected && accepted->selection && !m_selection) {
        m_selection = accepted->selection;
        m_selection->end.reset();
        if (timeout > std::chrono::milliseconds(0))
            m_selection->end = now + timeout;
    }
    // An object executes one command at a time.
    forgetOlder(order);
}

void ControlState::operateRefused(std::uint8_t ctlNum)
{
    forget(ctlNum);
}

void ControlState::operateUnknown(std::uint8_t ctlNum)
{
    Entry *unknown = entry(ctlNum);
    if (!unknown)
        return;
    unknown->isLeft = true;
    if (unknown->phase == Phase::Sent)
        unknown->phase = Phase::Unknown;
}

bool ControlState::isInDoubt() const
{
    return std::ranges::any_of(m_commands, &Entry::isLeft);
}

void ControlState::operateEnded(std::uint8_t ctlNum)
{
    forget(ctlNum);
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
