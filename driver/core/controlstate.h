// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/control.h"

#include <remoteclient/records.h>

#include <QtCore/QtGlobal>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

/// What one controllable object was told in an association, and what became of it: whether a
/// service may be asked for, which command it is about, and what its outcome leaves. It is told of
/// what is sent and of what the device answers; sockets and clocks are others' business.
class ControlState
{
public:
    using Time = std::chrono::steady_clock::time_point;
    /// Who asks (ControllerCaller); 0 where that is not known.
    using Caller = quint64;

    enum class Service { Select, Operate, Cancel };

    /// A selection or command as it was sent.
    struct Command
    {
        ControlBlock block;
        acsi::ControlRequest request;
        Caller caller = 0;
    };

    /// How the device treats commands of the object.
    struct Manner
    {
        acsi::ControlModel model = acsi::ControlModel::DirectNormal;
        std::chrono::milliseconds selectTimeout{0}; ///< 0 for as long as it is not used
        bool isOperateMany = false;                 ///< the selection may be used again

        /// The device tells of the end of a command.
        bool terminates() const;
    };

    enum class Obstacle {
        None,
        NotSelected,
        SelectedByOther, ///< another caller has selected the object since
        SelectedAgain,   ///< which of several selections an empty record means is not known
        NotTheSelected,  ///< the record is another command than the selected one
    };
    /// Why the service may not be asked for with this record.
    Obstacle obstacle(Service service, const ControlBlock &block, Caller caller, Time now) const;
    /// The record says what is sent: all of it, or what the state does not know.
    bool needsRecord(Service service, Time now) const;

    /// The command that the service sends again as it was sent before; null where the record says
    /// what is sent.
    const Command *repeated(Service service, acsi::ControlModel model, Time now) const;
    /// The number of what the record says: that of the selection it is about, otherwise a new one,
    /// never 0, and none of a command whose end is not known.
    std::uint8_t numberFor(Service service, acsi::ControlModel model, Time now);

    /// It is on its way. A new selection takes the place of the one before: when the device refuses
    /// it, the one before is operated no more either, but it can be given back. An operate uses up
    /// the selection.
    void sent(Service service, Command command);
    /// What became of it, or that nobody waits any more: the device may say something of a command
    /// later all the same.
    void ended(Service service, std::uint8_t ctlNum, acsi::ControlOutcome outcome,
               const Manner &manner, Time now);
    /// The device says of a command what nobody has waited for.
    void heardLate(std::uint8_t ctlNum, acsi::ControlOutcome outcome);
    void associationEnded();

    /// Null when nothing is selected, or no longer.
    const Command *selection(Time now) const;
    /// The command with that number, as long as it is not forgotten: until it is known to be over.
    const Command *command(std::uint8_t ctlNum) const;
    /// Whether a command may be moving something.
    bool isRunning() const { return running() != nullptr; }
    /// Whether there is a command of which nobody knows what became of it.
    bool isInDoubt() const;
    /// What a cancel is about: the command that runs, else the selection, else the select that was
    /// sent last, whatever the device made of it. Null when there is nothing.
    const Command *cancellable(Time now) const;

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
        void grant(std::chrono::milliseconds timeout, Time now);
    };

    struct Entry
    {
        Command command;
        Phase phase = Phase::Sent;
        std::uint64_t order = 0;
        bool isLeft = false;                ///< nobody waits for it any more
        std::optional<Selection> selection; ///< that it used
    };
    std::uint8_t newNumber();
    bool isSelectedByOther(Caller caller, Time now) const;
    void selectSent(Command command);
    void selectEnded(std::uint8_t ctlNum, acsi::ControlOutcome outcome, const Manner &manner,
                     Time now);
    void operateSent(Command command);
    void operateEnded(std::uint8_t ctlNum, acsi::ControlOutcome outcome, const Manner &manner,
                      Time now);
    /// Its end is not awaited any more.
    void leave(Entry &which, Phase phase);
    void cancelled(std::uint8_t ctlNum);
    Entry *entry(std::uint8_t ctlNum);
    const Entry *running() const;
    void forget(std::uint8_t ctlNum);
    /// An object executes one command at a time.
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
