// SPDX-License-Identifier: Apache-2.0
#include "changegate.h"

#include <asio/cancellation_state.hpp>
#include <asio/dispatch.hpp>
#include <asio/this_coro.hpp>

#include <QtCore/QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

DeviceChange changeOf(const ChangeIntent &intent)
{
    static std::atomic<quint64> last{0};
    DeviceChange change;
    change.id = ++last;
    change.caller = intent.caller;
    change.operation = intent.operation;
    change.reference = intent.reference;
    change.oldValue = intent.oldValue;
    change.newValue = intent.newValue;
    change.isDriversOwn = intent.isDriversOwn;
    return change;
}

} // namespace

ChangeRecord::ChangeRecord(std::shared_ptr<DeviceConnection> device, ChangeIntent intent)
    : m_device(std::move(device))
    , m_change(changeOf(intent))
    , m_isRepeated(intent.isRepeated)
{
}

ChangeRecord::~ChangeRecord()
{
    giveUp();
}

void ChangeRecord::setValues(const QString &oldValue, const QString &newValue)
{
    m_change.oldValue = oldValue;
    m_change.newValue = newValue;
}

void ChangeRecord::tell()
{
    asio::dispatch(m_device->strand(),
                   [device = m_device, change = m_change] { device->journal(change); });
}

void ChangeRecord::intend()
{
    if (m_isIntended || m_hasEnded)
        return;
    m_isIntended = true;
    m_change.state = DeviceChange::State::Begun;
    if (!m_isRepeated)
        tell();
}

void ChangeRecord::setUnknown(const QString &sentence)
{
    m_unknown = sentence;
}

void ChangeRecord::end(const Outcome &outcome)
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    if (!m_isIntended)
        return;
    m_change.error = outcome.error;
    m_change.state = outcome ? DeviceChange::State::Done : DeviceChange::State::Failed;
    tell();
}

void ChangeRecord::giveUp()
{
    giveUp(m_unknown.isEmpty()
               ? Texts::tr("The driver has not waited for the end of the operation.")
               : m_unknown);
}

void ChangeRecord::giveUp(const QString &sentence)
{
    if (m_hasEnded || !m_isIntended)
        return;
    m_hasEnded = true;
    m_change.error = sentence;
    m_change.state = DeviceChange::State::Unknown;
    tell();
}

Change::Change(std::shared_ptr<DeviceConnection> device, ChangeIntent intent)
    : ChangeRecord(std::move(device), intent)
    , m_intent(std::move(intent))
    , m_kind(m_intent.kind)
{
}

Outcome Change::permission(Kind kind) const
{
    if (kind == Kind::GivesBack || !device()->isReadOnly())
        return {};
    return Outcome::failed(Texts::tr("The driver is read-only: nothing on %1 was changed.")
                               .arg(device()->configuration().title()));
}

std::shared_ptr<acsi::ChangingClient> Change::client(Kind kind)
{
    if (!permission(kind))
        return nullptr;
    std::shared_ptr<acsi::ChangingClient> client = device()->gate().m_client;
    if (!client || !client->isOpen())
        return nullptr;
    intend();
    return client;
}

Outcome Change::refusal() const
{
    if (const Outcome forbidden = permission(); !forbidden)
        return forbidden;
    return {OperationNotConnected, device()->notConnectedSentence()};
}

std::unique_ptr<ChangeRecord> Change::part(const QString &reference, const QString &oldValue,
                                           const QString &newValue) const
{
    ChangeIntent intent = m_intent;
    intent.reference = reference;
    intent.oldValue = oldValue;
    intent.newValue = newValue;
    auto record = std::make_unique<ChangeRecord>(device(), std::move(intent));
    record->intend();
    return record;
}

bool Change::enter()
{
    Phase expected = Phase::Waiting;
    return m_phase.compare_exchange_strong(expected, Phase::Entered);
}

bool Change::withdraw()
{
    Phase expected = Phase::Waiting;
    return m_phase.compare_exchange_strong(expected, Phase::Withdrawn);
}

std::unique_ptr<Change> ChangeGate::own(DeviceConnection &device, ChangeIntent intent)
{
    intent.isDriversOwn = true;
    auto change = std::make_unique<Change>(device.shared_from_this(), std::move(intent));
    change->enter();
    return change;
}

ChangePointer ChangeGate::announce(const std::shared_ptr<DeviceConnection> &device,
                                   ChangeIntent intent, Outcome &refusal)
{
    const bool tellsTries = intent.tellsTries;
    auto change = std::make_shared<Change>(device, std::move(intent));
    if (refusal)
        refusal = change->permission();
    if (tellsTries || !refusal)
        change->intend();
    if (refusal)
        return change;
    change->end(refusal);
    return nullptr;
}

asio::awaitable<Outcome> ChangeGate::carryOut(ChangePointer change, Work work)
{
    // However this coroutine ends.
    struct Leave
    {
        Change &change;
        ~Leave() { change.giveUp(); }
    };
    if (!change->enter())
        co_return Outcome::failed(Texts::tr("The operation was cancelled."));
    const Leave leave{*change};
    Outcome outcome = co_await work(change);
    // A call that was cancelled has failed, but what it asked for may be done.
    const asio::cancellation_state cancellation = co_await asio::this_coro::cancellation_state;
    if (outcome || cancellation.cancelled() == asio::cancellation_type::none)
        change->end(outcome);
    co_return outcome;
}

void ChangeGate::withdraw(const ChangePointer &change, const Outcome &outcome)
{
    if (change->withdraw())
        change->end(outcome);
}

void ChangeGate::tell(DeviceConnection &device, DeviceChange change)
{
    change.id = changeOf({}).id;
    change.state = change.error.isEmpty() ? DeviceChange::State::Done : DeviceChange::State::Failed;
    device.journal(std::move(change));
}
