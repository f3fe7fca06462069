// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/control.h"

#include <remoteclient/records.h>

#include <QtCore/QtGlobal>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

/// What one controllable object was told in an association, and what became of it: which selection
/// an operate may use, and which command a cancel is about. It is told of what is sent and of what
/// the device answers; sockets and clocks are others' business.
class ControlState
{
public:
    using Time = std::chrono::steady_clock::time_point;
    /// Who asks (ControllerCaller); 0 where that is not known.
    using Caller = quint64;

    /// A selection or command as it was sent.
    struct Command
    {
        ControlBlock block;
        acsi::ControlRequest request;
        Caller caller = 0;
    };

    /// A number for the next selection or command: never 0, and none of a command whose end is not
    /// known.
    std::uint8_t newNumber();

    // Selections. A new one takes the place of the one before: when the device refuses it, the one
    // before is operated no more either, but it can be given back.

    void selectSent(Command command);
    /// It was not sent after all; what was selected before is.
    void selectWithdrawn(std::uint8_t ctlNum);
    /// @p timeout how long it lasts, 0 for as long as it is not used
    void selectGranted(std::uint8_t ctlNum, std::chrono::milliseconds timeout, Time now);
    void selectRefused(std::uint8_t ctlNum);
    /// Null when nothing is selected, or no longer.
    const Command *selection(Time now) const;

    enum class Obstacle {
        None,
        NotSelected,
        SelectedByOther, ///< another caller has selected the object since
        SelectedAgain,   ///< which of several selections an empty record means is not known
        NotTheSelected,  ///< the record is another command than the selected one
    };
    /// Why the selection may not be operated with this record.
    Obstacle obstacle(const ControlBlock &block, Caller caller, Time now) const;

    bool isSelectedByOther(Caller caller, Time now) const;

    // Commands. One is forgotten when it is known to be over.

    /// Uses up the selection.
    void operateSent(Command command);
    /// It was not sent after all; the selection is what it was.
    void operateWithdrawn(std::uint8_t ctlNum);
    /// @p terminates the device will tell of its end
    /// @p staysSelected the selection that it used may be used again
    void operateAccepted(std::uint8_t ctlNum, bool terminates, bool staysSelected,
                         std::chrono::milliseconds timeout, Time now);
    void operateRefused(std::uint8_t ctlNum);
    /// Nobody waits any more for its answer or termination, which may come all the same.
    void operateUnknown(std::uint8_t ctlNum);
    /// Whether there is a command of which nobody knows what became of it.
    bool isInDoubt() const;
    void operateEnded(std::uint8_t ctlNum);
    /// The command with that number, as long as it is not forgotten.
    const Command *command(std::uint8_t ctlNum) const;

    /// Whether a command may be moving something.
    bool isRunning() const { return running() != nullptr; }
    /// What a cancel is about: the command that runs, else the selection, else the select that was
    /// sent last, whatever the device made of it. Null when there is nothing.
    const Command *cancellable(Time now) const;
    /// The device has accepted the cancel of that number.
    void cancelled(std::uint8_t ctlNum);

    void associationEnded();

private:
    enum class Phase {
        Sent,
        Running, ///< the termination is awaited
        Unknown,
        CarriedOut, ///< accepted, by an object that tells of no end
    };
    enum class SelectPhase { Sent, Granted, Refused };
    struct Selection
    {
        Command command;
        std::uint64_t order = 0;
        SelectPhase phase = SelectPhase::Sent;
        std::optional<Time> end;

        bool isGranted() const { return phase == SelectPhase::Granted; }
    };

    struct Entry
    {
        Command command;
        Phase phase = Phase::Sent;
        std::uint64_t order = 0;
        bool isLeft = false;                ///< nobody waits for it any more
        std::optional<Selection> selection; ///< that it used
    };
    Entry *entry(std::uint8_t ctlNum);
    const Entry *running() const;
    void forget(std::uint8_t ctlNum);
    void forgetOlder(std::uint64_t order);
    bool isLive(Time now) const;

    std::uint8_t m_lastNumber = 0;
    std::uint64_t m_order = 0;
    std::optional<Selection> m_selection; ///< the last one that was asked for
    std::optional<Selection> m_replaced;  ///< by it
    bool m_isAmbiguous = false;           ///< different ones were asked for, none of them used
    bool m_wasAmbiguous = false;          ///< before the last one
    std::vector<Entry> m_commands;        ///< oldest first
};
