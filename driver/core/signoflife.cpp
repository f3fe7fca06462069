// SPDX-License-Identifier: Apache-2.0
#include "signoflife.h"

#include <algorithm>

SignOfLife::Question SignOfLife::questionFor(bool hasStatus, bool hasIdentify, bool answersIdentify)
{
    if (hasStatus)
        return Question::Status;
    return hasIdentify && answersIdentify ? Question::Identify : Question::Read;
}

SignOfLife::SignOfLife(Time now)
    : m_asked(now)
    , m_nextMeasurement(now + measurement)
{
}

SignOfLife::Time SignOfLife::due(Time lastHeard) const
{
    return std::min(lastHeard + silence, m_nextMeasurement);
}

void SignOfLife::asked(Time now)
{
    m_asked = now;
    m_nextMeasurement = now + measurement;
}

SignOfLife::Judgement SignOfLife::judge(bool wasAnswered, bool wasSent, Time lastHeard) const
{
    // A device that sends other things meanwhile is there.
    if (wasAnswered || lastHeard >= m_asked)
        return Judgement::Alive;
    return wasSent ? Judgement::Silent : Judgement::Waits;
}
