// SPDX-License-Identifier: Apache-2.0
#include "simulator/asioclock.h"

#include <asio/steady_timer.hpp>

#include <utility>

namespace sim {

namespace {

class AsioTimer : public Timer
{
public:
    explicit AsioTimer(const osi::Strand &strand)
        : m_timer(strand)
    {
    }
    ~AsioTimer() override { ++*m_generation; }

    void start(std::chrono::nanoseconds delay, std::function<void()> expired) override
    {
        const auto generation = ++*m_generation;
        m_timer.expires_after(std::chrono::duration_cast<asio::steady_timer::duration>(delay));
        m_running = true;
        // A wait that was cancelled too late still calls; only the newest counts.
        m_timer.async_wait([this, generation, current = m_generation,
                            function = std::move(expired)](const asio::error_code &) {
            if (*current != generation)
                return;
            m_running = false;
            function();
        });
    }

    void stop() override
    {
        ++*m_generation;
        m_timer.cancel();
        m_running = false;
    }

    bool isRunning() const override { return m_running; }

private:
    asio::steady_timer m_timer;
    std::shared_ptr<std::uint64_t> m_generation = std::make_shared<std::uint64_t>(0);
    bool m_running = false;
};

} // namespace

AsioClock::AsioClock(osi::Strand strand)
    : m_strand(std::move(strand))
{
}

Clock::WallTime AsioClock::now() const
{
    return std::chrono::system_clock::now() + m_offset;
}

Clock::SteadyTime AsioClock::steadyNow() const
{
    return std::chrono::steady_clock::now();
}

std::unique_ptr<Timer> AsioClock::makeTimer()
{
    return std::make_unique<AsioTimer>(m_strand);
}

} // namespace sim
