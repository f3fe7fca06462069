// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

/// A change that the driver made on a device, or tried to, for a host's journal.
struct DeviceChange
{
    QDateTime time; ///< local time
    int number = 0; ///< of the device
    QString device;
    QString operation; ///< name of the controller operation
    QString reference; ///< logical device "/" ...
    QString oldValue;  ///< empty where it is not known
    QString newValue;
    /// The same in words with the raw value behind them, "on (2)"; empty where that says no more.
    QString oldWords;
    QString newWords;
    QString error;           ///< empty when it was done
    QString additionalCause; ///< of a refused control
};
