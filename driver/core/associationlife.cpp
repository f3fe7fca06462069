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
    using What = Step::What;
    switch (m_phase) {
    case Phase::Left:
        break;
    case Phase::Waiting:
        if (now < m_next)
            return {What::Wait, m_next};
        return {What::Connect};
    case Phase::Connecting:
        return {What::Connect};
    case Phase::Reading:
        return {What::Read};
    case Phase::Online:
        return {What::Serve};
    case Phase::Ending:
        return {m_onlineSince ? What::TakeLeave : What::ClearUp};
    }
    return {What::Rest};
}

AssociationLife::Admission AssociationLife::admit(bool needsModel, Time now, Time since,
                                                  Time deadline) const
{
    using What = Admission::What;
    if (m_phase == Phase::Online || (m_phase == Phase::Reading && !needsModel))
        return {What::Enter};
    if (m_isDormant)
        return {What::Want};
    if (m_phase == Phase::Reading) {
        const Time end = std::min(since + modelPatience, deadline);
        if (now >= end)
            return {What::ModelIsUnread};
        return {What::Wait, end};
    }
    if (isFirstAttempt() && now < deadline)
        return {What::Wait, deadline};
    return {What::NotConnected};
}

void AssociationLife::want(Time now)
{
    m_isDormant = false;
    // Who asks for it does not want to wait.
    m_next = now;
    if (m_isWanted)
        return;
    m_isWanted = true;
    m_hasAttempted = false;
    m_failures = 0;
    m_awaySince = now;
    if (m_phase == Phase::Left)
        m_phase = Phase::Waiting;
    else
        m_isOutlived = true;
}

void AssociationLife::leave(const QString &reason)
{
    m_leaveReason = reason;
    giveUp();
}

bool AssociationLife::abort(const QString &reason)
{
    if (!m_isWanted)
        return false;
    leave(reason);
    m_isDormant = true;
    return true;
}

bool AssociationLife::cancelReading(const QString &reason)
{
    if (m_phase != Phase::Reading)
        return false;
    leave(reason);
    return true;
}

void AssociationLife::giveUp()
{
    m_isWanted = false;
    m_isDormant = false;
    m_isOutlived = false;
    m_awaySince.reset();
    if (m_phase == Phase::Left)
        return;
    m_phase = Phase::Ending;
    m_reason.clear();
}

void AssociationLife::connecting()
{
    if (m_phase != Phase::Waiting)
        return;
    m_phase = Phase::Connecting;
    m_isInConflict = false;
}

void AssociationLife::associated()
{
    if (m_phase != Phase::Connecting)
        return;
    m_phase = Phase::Reading;
    m_reason.clear();
}

void AssociationLife::ready(Time now)
{
    if (m_phase != Phase::Reading)
        return;
    m_phase = Phase::Online;
    m_onlineSince = now;
    m_awaySince.reset();
}

void AssociationLife::failed(const QString &reason, Failure how)
{
    if (m_phase == Phase::Left || m_phase == Phase::Waiting)
        return;
    m_phase = Phase::Ending;
    m_reason = reason;
    m_isInConflict = how == Failure::Conflict;
}

void AssociationLife::closed(const QString &reason)
{
    if (m_phase == Phase::Left || m_phase == Phase::Waiting)
        return;
    if (m_phase != Phase::Ending || m_reason.isEmpty())
        m_reason = reason;
    m_phase = Phase::Ending;
}

void AssociationLife::clearedUp(Time now)
{
    if (m_phase != Phase::Ending)
        return;
    const std::optional<Time> onlineSince = std::exchange(m_onlineSince, std::nullopt);
    const bool isInConflict = std::exchange(m_isInConflict, false);
    if (!m_isWanted) {
        m_phase = Phase::Left;
        m_hasAttempted = true;
        m_reason = m_leaveReason;
        return;
    }
    m_phase = Phase::Waiting;
    if (std::exchange(m_isOutlived, false)) {
        m_next = now;
        return;
    }
    m_hasAttempted = true;
    if (onlineSince) {
        m_awaySince = now;
        if (now - *onlineSince >= settledAfter)
            m_failures = 0;
    }
    m_isInConflict = isInConflict;
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
