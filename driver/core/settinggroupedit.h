// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QtGlobal>

#include <chrono>
#include <cstdint>
#include <optional>

/// Whose the edit of a setting group is: which group of a logical device this driver has chosen on
/// the present association, for which tool, and since when nobody has gone on with it. A machine
/// without a device: it is told what happened, and says what is allowed.
class SettingGroupEdit
{
public:
    using Time = std::chrono::steady_clock::time_point;
    /// ControllerCaller::current().
    using Caller = quint64;

    /// A tool that is gone does not say so: an edit that nobody goes on with is given back.
    static constexpr std::chrono::minutes patience{15};

    /// Whether the edited settings are the caller's to read and write.
    enum class Verdict : std::uint8_t {
        Granted,
        NothingChosen,
        OtherWindow, ///< another tool of this driver has chosen the group
        OtherClient, ///< the device is editing for somebody else
        GivenUp      ///< the device has ended the edit by itself
    };

    /// @param edited what EditSG of the device says now; 0 for none
    Verdict verdict(Caller caller, std::uint32_t edited) const;

    /// The device edits the group for us.
    void chosen(Caller caller, std::uint32_t group, Time now);
    /// Somebody goes on with the edit.
    void used(Time now);
    /// Confirmed, given back, or gone with the association.
    void ended();

    bool isChosen() const { return m_group != 0; }
    std::uint32_t group() const { return m_group; }
    /// Who asks for the active settings has left the edit that was his own.
    bool endsByReadingActive(Caller caller) const { return isChosen() && m_caller == caller; }
    /// When the edit is given back; none without one.
    std::optional<Time> deadline() const;
    bool isOverdue(Time now) const { return deadline() && now >= *deadline(); }

private:
    std::uint32_t m_group = 0;
    Caller m_caller = 0;
    Time m_lastUse;
};
