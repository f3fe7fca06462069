// SPDX-License-Identifier: Apache-2.0
#include "deviceobserver.h"

#include "output.h"
#include "session.h"

#include <chrono>

void DeviceObserver::take(const DeviceStatus &status)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_status = status;
    const bool isOnline = status.state == DeviceState::Online;
    if (isOnline && m_isLost)
        m_turns.append({false, status.since, QString()});
    else if (!isOnline && m_wasOnline && !m_isLost)
        m_turns.append({true, status.since, status.reason});
    else if (!isOnline && m_isLost && !m_turns.isEmpty() && m_turns.last().reason.isEmpty())
        m_turns.last().reason = status.reason;
    m_wasOnline = m_wasOnline || isOnline;
    m_isLost = m_wasOnline && !isOnline;
    m_changed.notify_all();
}

bool DeviceObserver::waitForArrival(Output &output, QString &reason)
{
    constexpr std::chrono::milliseconds look{100};
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!Session::interrupted()) {
        m_changed.wait_for(lock, look);
        if (m_status.state == DeviceState::Online)
            return true;
        if (m_status.state == DeviceState::Waiting) {
            reason = m_status.reason;
            return false;
        }
        if (m_status.state == DeviceState::ReadingModel && m_status.modelSteps > 0) {
            output.progress(QStringLiteral("Reading the model: %1 of %2")
                                .arg(m_status.modelStepsDone)
                                .arg(m_status.modelSteps));
        }
    }
    reason = QStringLiteral("Interrupted.");
    return false;
}

QList<DeviceObserver::Turn> DeviceObserver::turns()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    QList<Turn> result;
    result.swap(m_turns);
    return result;
}
