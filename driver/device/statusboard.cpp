// SPDX-License-Identifier: Apache-2.0
#include "statusboard.h"

#include "driver/administration/deviceconfiguration.h"

#include <QtCore/QStringList>

#include <utility>

using Phase = AssociationLife::Phase;

namespace {

DeviceState stateOf(Phase phase)
{
    switch (phase) {
    case Phase::Left:
    case Phase::Ending:
        break;
    case Phase::Waiting:
        return DeviceState::Waiting;
    case Phase::Connecting:
        return DeviceState::Connecting;
    case Phase::Reading:
        return DeviceState::ReadingModel;
    case Phase::Online:
        return DeviceState::Online;
    }
    return DeviceState::Disconnected;
}

} // namespace

StatusBoard::StatusBoard(const DeviceConfiguration &configuration,
                         std::shared_ptr<const PduCapture> capture, Changed changed)
    : m_capture(std::move(capture))
    , m_changed(std::move(changed))
{
    m_status.number = configuration.number;
    m_status.name = configuration.name;
    m_status.since = QDateTime::currentDateTime();
}

DeviceStatus StatusBoard::status() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    DeviceStatus status = m_status;
    status.counters.sentPdus = m_capture->sent();
    status.counters.receivedPdus = m_capture->received();
    return status;
}

void StatusBoard::update(const std::function<void(DeviceStatus &)> &change)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        change(m_status);
    }
    m_changed();
}

void StatusBoard::count(std::uint64_t DeviceCounters::*counter, std::uint64_t by)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_status.counters.*counter += by;
}

void StatusBoard::show(const AssociationLife &life, AssociationLife::Time now)
{
    if (life.phase() == Phase::Ending)
        return;
    const DeviceState state = stateOf(life.phase());
    update([&](DeviceStatus &status) {
        const QDateTime date = QDateTime::currentDateTime();
        if (!life.awaySince()) {
            status.lostSince = {};
        } else if (state == DeviceState::Waiting && !status.lostSince.isValid()) {
            const auto away = now - *life.awaySince();
            status.lostSince =
                date.addMSecs(-std::chrono::floor<std::chrono::milliseconds>(away).count());
        }
        // An outage is one, however many attempts there are to end it.
        const bool isAway = state == DeviceState::Connecting || state == DeviceState::Waiting;
        if (isAway && status.lostSince.isValid())
            status.since = status.lostSince;
        else if (status.state != state)
            status.since = date;
        if (state == DeviceState::Disconnected) {
            status.staleValues = status.refusedValues = 0;
            status.staleSince = {};
        }
        status.state = state;
        status.reason = state == DeviceState::Online ? problems() : life.reason();
        if (state != DeviceState::ReadingModel)
            status.modelStepsDone = status.modelSteps = 0;
    });
}

QString StatusBoard::problems() const
{
    return QStringList(m_problems.values()).join(QLatin1Char(' '));
}

void StatusBoard::setProblem(const QString &source, const QString &sentence,
                             const AssociationLife &life)
{
    if (m_problems.value(source) == sentence)
        return;
    if (sentence.isEmpty())
        m_problems.remove(source);
    else
        m_problems.insert(source, sentence);
    if (life.phase() == Phase::Online)
        update([this](DeviceStatus &status) { status.reason = problems(); });
}
