// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/caller.h>

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <cstdint>

/// A change that the driver makes on a device, or tries to, for a host's journal: told once before
/// anything of it can reach the device, and once when it has ended.
struct DeviceChange
{
    enum class State {
        Begun,  ///< what is intended
        Done,   ///< it has succeeded
        Failed, ///< the error says why, and where it is not known what became of it
        Unknown ///< nobody has waited for the end, or it cannot be known; the error says so
    };

    std::uint64_t id = 0; ///< the same whenever the change is told; of no other in this process
    State state = State::Done;
    /// Nobody has asked for it just now: it gives back what was taken, or restores what was lost.
    bool isDriversOwn = false;
    QDateTime time; ///< local time
    Caller caller;  ///< on whose behalf; empty when the driver did it by itself
    int number = 0; ///< of the device
    QString device;
    QString operation; ///< name of the controller operation
    QString reference; ///< logical device "/" ...
    QString oldValue;  ///< empty where it is not known
    QString newValue;
    /// The same in words with the raw value behind them, "on (2)"; empty where that says no more.
    QString oldWords;
    QString newWords;
    QString error;           ///< empty when it was done, and when it has begun
    QString additionalCause; ///< of a refused control
};
