// SPDX-License-Identifier: Apache-2.0
#include "associationlife.h"

#include <algorithm>
#include <utility>

using std::chrono::milliseconds;

AssociationLife::AssociationLife(Random random)
    : m_random(std::move(random))
{
}

milliseconds AssociationLife::spread(milliseconds middle, double random)
{
    const double factor = 0.5 + std::clamp(random, 0.0, 1.0);
    return milliseconds(
        static_cast<milliseconds::rep>(static_cast<double>(middle.count()) * factor));
}

AssociationLife::Step AssociationLife::next(Time now) const
{
    if (!m_isWanted)
        return {Step::What::End, {}};
    if (m_phase == Phase::Waiting && now < m_next)
        return {Step::What::Wait, m_next};
    return {Step::What::Connect, {}};
}

void AssociationLife::want(Time now)
{
    m_isDormant = false;
    if (!m_isWanted) {
        m_hasAttempted = false;
        m_failures = 0;
        m_awaySince = now;
        m_isOutlived = m_phase != Phase::Left && m_phase != Phase::Waiting;
    }
    m_isWanted = true;
    // Who asks for it does not want to wait.
    m_next = now;
}

void AssociationLife::leave()
{
    m_isWanted = false;
    m_isDormant = false;
    m_awaySince.reset();
}

void AssociationLife::abort()
{
    if (!m_isWanted)
        return;
    leave();
    m_isDormant = true;
}

void AssociationLife::connecting()
{
    m_phase = Phase::Connecting;
    m_isInConflict = false;
    m_isOutlived = false;
}

void AssociationLife::associated()
{
    m_phase = Phase::Reading;
}

void AssociationLife::online(Time now)
{
    m_phase = Phase::Online;
    m_onlineSince = now;
    m_awaySince.reset();
}

void AssociationLife::ended(Time now, Ending how)
{
    if (std::exchange(m_isOutlived, false)) {
        m_phase = Phase::Waiting;
        m_isInConflict = false;
        m_next = now;
        return;
    }
    const bool wasOnline = m_phase == Phase::Online;
    m_hasAttempted = true;
    if (wasOnline && now - m_onlineSince >= settledAfter)
        m_failures = 0;
    if (wasOnline && m_isWanted)
        m_awaySince = now;
    m_phase = Phase::Waiting;
    m_isInConflict = how == Ending::Conflict;
    milliseconds pause = conflictPause;
    if (!m_isInConflict) {
        pause = firstPause;
        for (int i = 0; i < m_failures && pause < longestPause; ++i)
            pause *= 2;
        pause = std::min(pause, longestPause);
        ++m_failures;
    }
    m_next = now + spread(pause, m_random());
}

void AssociationLife::namesReleased(Time now)
{
    if (m_phase == Phase::Waiting && m_isInConflict)
        m_next = std::min(m_next, now + spread(firstPause, m_random()));
}

void AssociationLife::over()
{
    m_phase = Phase::Left;
    m_hasAttempted = true;
}

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
