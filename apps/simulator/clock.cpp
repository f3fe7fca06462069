// SPDX-License-Identifier: Apache-2.0
#include "simulator/clock.h"

namespace sim {

mms::UtcTime Clock::utcTime() const
{
    using namespace std::chrono;
    const auto time = now().time_since_epoch();
    const auto whole = floor<seconds>(time);
    const auto rest = static_cast<std::uint64_t>((time - whole).count());
    constexpr std::uint64_t nanosecondsPerSecond = 1000000000;
    return {static_cast<std::uint32_t>(whole.count()),
            static_cast<std::uint32_t>((rest << 24U) / nanosecondsPerSecond), m_quality};
}

mms::BinaryTime Clock::entryTime() const
{
    using namespace std::chrono;
    constexpr sys_days epoch = year(1984) / January / 1;
    const auto time = floor<milliseconds>(now());
    const auto day = floor<days>(time);
    return {static_cast<std::uint32_t>((time - day).count()),
            static_cast<std::uint16_t>((day - epoch).count())};
}

} // namespace sim
