// SPDX-License-Identifier: Apache-2.0
#include "simulator/clock.h"

namespace sim {

mms::UtcTime Clock::utcTime() const
{
    return mms::utcTimeAt(now(), m_quality).value_or(mms::UtcTime{0, 0, m_quality});
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
