// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/clock.h"

#include "osi/strand.h"

namespace sim {

/// The clock of this machine, with an offset that can be changed to let the device's time jump.
class AsioClock : public Clock
{
public:
    explicit AsioClock(osi::Strand strand);

    WallTime now() const override;
    SteadyTime steadyNow() const override;
    std::unique_ptr<Timer> makeTimer() override;

    /// Wall time goes forward, or back, at once.
    void jump(std::chrono::nanoseconds step) { m_offset += step; }

private:
    osi::Strand m_strand;
    std::chrono::nanoseconds m_offset{0};
};

} // namespace sim
