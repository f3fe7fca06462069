// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <cstdint>

/// A PDU that was exchanged with a device. A value type.
struct TraceLine
{
    /// Which PDU of the device it is, from 1; begins anew when the device is configured anew.
    std::uint64_t number = 0;
    QDateTime time; ///< local time
    bool sent = false;
    QString text;
};
