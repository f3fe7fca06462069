// SPDX-License-Identifier: Apache-2.0
#include "subscriptionlife.h"

#include <algorithm>

bool SubscriptionLife::ended(Result result, const QString &sentence, Time now)
{
    const bool isNews = m_last != result || m_sentence != sentence;
    m_last = result;
    m_sentence = result == Result::Enabled ? QString() : sentence;
    if (result == Result::Enabled) {
        m_state = State::Taking;
        m_pause = shortest;
        return isNews;
    }
    m_state = State::Waiting;
    // Looking at a block that somebody has disturbs nobody; what is refused is not asked for often.
    if (result == Result::Held)
        m_pause = shortest;
    m_next = now + m_pause;
    if (result == Result::Refused)
        m_pause = std::min(m_pause * 2, longest);
    return isNews;
}

void SubscriptionLife::stopped(Time now)
{
    m_state = State::Waiting;
    m_next = now;
    if (m_last == Result::Enabled)
        m_last.reset();
}

void SubscriptionLife::closed()
{
    m_state = State::Waiting;
    m_next = Time::min();
    m_pause = shortest;
    if (m_last == Result::Enabled)
        m_last.reset();
}

void DataSetMending::need()
{
    m_isNeeded = true;
    m_isNeededAgain = m_isReading;
}

void DataSetMending::begin(Time now)
{
    m_isReading = true;
    m_isNeededAgain = false;
    m_next = now + apart;
}

bool DataSetMending::ended(bool whole, Time now)
{
    m_isReading = false;
    if (whole && !m_isNeededAgain) {
        m_isNeeded = false;
        return true;
    }
    if (!whole)
        m_next = now + retry;
    m_isNeededAgain = false;
    return false;
}
