// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"

#include <chrono>
#include <functional>
#include <memory>

namespace sim {

/// Calls a function once after a while. Destroying a timer stops it; its function may do so.
class Timer
{
public:
    virtual ~Timer() = default;

    /// Starts, or starts anew. @p expired is called in the strand of the device, never inside
    /// start(), at once for a delay of zero or less.
    virtual void start(std::chrono::nanoseconds delay, std::function<void()> expired) = 0;
    virtual void stop() = 0;
    virtual bool isRunning() const = 0;
};

/// All time that a simulated device knows. Belongs to the device's strand.
class Clock
{
public:
    using WallTime = std::chrono::sys_time<std::chrono::nanoseconds>;
    using SteadyTime = std::chrono::time_point<std::chrono::steady_clock, std::chrono::nanoseconds>;

    virtual ~Clock() = default;

    /// The device's idea of UTC. It may jump.
    virtual WallTime now() const = 0;
    /// Never goes back. Timers run with it.
    virtual SteadyTime steadyNow() const = 0;
    virtual std::unique_ptr<Timer> makeTimer() = 0;

    /// now() as a time stamp, with the clock flags of this clock.
    mms::UtcTime utcTime() const;
    /// now() as an entry time: milliseconds of the day and days since 1984.
    mms::BinaryTime entryTime() const;

    /// Clock flags and accuracy that time stamps get (mms::UtcTime::quality).
    std::uint8_t quality() const { return m_quality; }
    void setQuality(std::uint8_t quality) { m_quality = quality; }

private:
    std::uint8_t m_quality = 10;
};

} // namespace sim
