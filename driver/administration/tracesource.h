// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "traceline.h"

#include <QtCore/QVector>

#include <cstdint>

/// What was exchanged with a device and is remembered. Any thread.
class TraceSource
{
public:
    TraceSource() = default;
    virtual ~TraceSource();
    Q_DISABLE_COPY(TraceSource)

    /// The newest lines, oldest first; at most @p most, and none up to number @p after.
    virtual QVector<TraceLine> trace(int most, std::uint64_t after) const = 0;
};
