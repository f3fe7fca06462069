// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/clock.h"

#include <algorithm>
#include <vector>

namespace simtest {

/// Time that stands still until a test moves it; timers that fall due are called meanwhile.
class ManualClock : public sim::Clock
{
public:
    WallTime now() const override { return m_wall; }
    SteadyTime steadyNow() const override { return m_steady; }

    std::unique_ptr<sim::Timer> makeTimer() override
    {
        return std::make_unique<ManualTimer>(*this);
    }

    /// Both times go on; timers are called at their time, in order.
    void advance(std::chrono::nanoseconds step)
    {
        const SteadyTime end = m_steady + step;
        for (ManualTimer *timer = nextTimer(end); timer; timer = nextTimer(end)) {
            moveTo(std::max(m_steady, timer->m_due));
            timer->fire();
        }
        moveTo(end);
    }

    void jump(std::chrono::nanoseconds step) { m_wall += step; }

private:
    class ManualTimer : public sim::Timer
    {
    public:
        explicit ManualTimer(ManualClock &clock)
            : m_clock(clock)
        {
            clock.m_timers.push_back(this);
        }
        ~ManualTimer() override { std::erase(m_clock.m_timers, this); }

        void start(std::chrono::nanoseconds delay, std::function<void()> expired) override
        {
            m_due = m_clock.m_steady + std::max(delay, std::chrono::nanoseconds(0));
            m_expired = std::move(expired);
            m_running = true;
        }
        void stop() override { m_running = false; }
        bool isRunning() const override { return m_running; }

    private:
        friend class ManualClock;

        void fire()
        {
            m_running = false;
            const auto expired = std::move(m_expired);
            expired();
        }

        ManualClock &m_clock;
        SteadyTime m_due{};
        std::function<void()> m_expired;
        bool m_running = false;
    };

    ManualTimer *nextTimer(SteadyTime end)
    {
        ManualTimer *next = nullptr;
        for (ManualTimer *timer : m_timers) {
            if (timer->m_running && timer->m_due <= end && (!next || timer->m_due < next->m_due))
                next = timer;
        }
        return next;
    }

    void moveTo(SteadyTime time)
    {
        m_wall += time - m_steady;
        m_steady = time;
    }

    // 2021-03-04 05:06:07 UTC.
    WallTime m_wall{std::chrono::seconds(1614834367)};
    SteadyTime m_steady{std::chrono::seconds(1000)};
    std::vector<ManualTimer *> m_timers;
};

} // namespace simtest
