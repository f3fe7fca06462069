// SPDX-License-Identifier: Apache-2.0
// ReportSubscriptions: how blocks are given back: disabled for the operator or when the device is
// left, and undone when they could not be enabled.
#include "reportsubscriptions.h"

#include "driver/text/sentences.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

using std::chrono::seconds;
using std::chrono::steady_clock;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// What was begun on a block that could not be enabled is undone within this time.
constexpr seconds undoPatience{15};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

acsi::Reference attributeOf(acsi::Reference block, const char *name)
{
    block.path.push_back({name, {}});
    return block;
}

} // namespace

ChangeIntent ReportSubscriptions::intentOf(const acsi::Reference &block, const char *attribute,
                                           const char *value, ChangeIntent::Kind kind) const
{
    ChangeIntent intent;
    intent.operation = QStringLiteral("writeValue");
    intent.reference = text(attributeOf(block, attribute));
    intent.newValue = QString::fromLatin1(value);
    intent.kind = kind;
    return intent;
}

asio::awaitable<void> ReportSubscriptions::leaving()
{
    const ClientPointer client = m_connection.client();
    if (client && client->isOpen())
        co_await lookAtBlocks(client);
    std::vector<acsi::Reference> enabled;
    for (const auto &each : m_subscriptions) {
        if (each.second->life.isTaking())
            enabled.push_back(each.second->block);
    }
    const auto outcomeOf = [](const mms::Result<void> &result) {
        return result ? Outcome() : Outcome::failed(result.error());
    };
    for (const acsi::Reference &block : enabled) {
        const auto change = ChangeGate::own(
            m_connection, intentOf(block, "RptEna", "false", ChangeIntent::Kind::GivesBack));
        if (const auto changing = change->client()) {
            const mms::Result<void> given = co_await acsi::disableReportBlock(changing, block);
            change->end(outcomeOf(given));
        }
    }
    std::map<std::string, acsi::Reference> reserved;
    reserved.swap(m_reserved);
    for (const auto &each : reserved) {
        const auto change = ChangeGate::own(
            m_connection, intentOf(each.second, "ResvTms", "0", ChangeIntent::Kind::GivesBack));
        if (const auto changing = change->client()) {
            const mms::Result<void> given = co_await acsi::writeReportAttribute(
                changing, each.second, "ResvTms", mms::Data::integer(0));
            change->end(outcomeOf(given));
        }
    }
}

void ReportSubscriptions::undo(const SubscriptionPointer &subscription, Turn turn)
{
    const ClientPointer client = subscription->client.lock();
    if (!subscription->trace || subscription->trace->changes.empty() || !client)
        return;
    // Apart from the operation, which is over, or was cancelled.
    asio::co_spawn(m_connection.strand(),
                   undone(m_connection.shared_from_this(), subscription, client, std::move(turn)),
                   [](const std::exception_ptr &) {});
}

asio::awaitable<void>
ReportSubscriptions::undone([[maybe_unused]] std::shared_ptr<DeviceConnection> connection,
                            SubscriptionPointer subscription, ClientPointer client,
                            [[maybe_unused]] Turn turn)
{
    const std::shared_ptr<acsi::ReportBlockTrace> trace = subscription->trace;
    QStringList attributes;
    for (const acsi::ReportBlockTrace::Change &each : trace->changes)
        attributes.append(text(each.attribute));
    ChangeIntent intent;
    intent.operation = QStringLiteral("enableReportBlock");
    intent.reference = text(subscription->reference);
    intent.oldValue = attributes.join(QStringLiteral(", "));
    intent.kind = ChangeIntent::Kind::GivesBack;
    const auto change = ChangeGate::own(m_connection, std::move(intent));
    const auto changing = m_connection.client() == client ? change->client() : nullptr;
    bool isUndone = false;
    if (changing)
        isUndone = co_await acsi::undoReportBlock(changing, subscription->block, trace,
                                                  steady_clock::now() + undoPatience);
    if (!isUndone) {
        QStringList left;
        for (const acsi::ReportBlockTrace::Change &each : trace->changes) {
            // Ends with the association.
            const bool endsByItself = each.attribute == "RptEna" || each.attribute == "Resv";
            if (!client->isOpen() && endsByItself)
                continue;
            left.append(text(each.attribute));
            if (each.attribute == "RptEna")
                m_leftEnabled.insert(subscription->reference);
        }
        if (!left.isEmpty()) {
            change->intend();
            change->end(Outcome::failed(
                Texts::tr("%1 could not be enabled, and this was left behind as it was written: "
                          "%2.")
                    .arg(text(subscription->reference), left.join(QStringLiteral(", ")))));
        }
    }
    change->end(Outcome());
}

asio::awaitable<Outcome> ReportSubscriptions::disable(ChangePointer change, acsi::Reference block)
{
    const std::string reference = acsi::toText(block);
    bool wasWaiting = false;
    if (const SubscriptionPointer waiting = find(reference); waiting && !waiting->life.isTaking()) {
        wasWaiting = true;
        waiting->isUnwanted = true;
        m_connection.setProblem(text(reference), {});
    }
    const Turn turn = co_await this->turn(reference);
    const ClientPointer client = m_connection.client();
    if (!client || !client->isOpen()) {
        const QString sentence = m_connection.notConnectedSentence();
        co_return Outcome{OperationNotConnected, sentence};
    }
    const SubscriptionPointer subscription = find(reference);
    const bool isTaking = subscription && subscription->life.isTaking();
    // Who no longer waits has what he wanted, whatever becomes of the block.
    if (subscription && !isTaking)
        m_subscriptions.erase(reference);
    const bool isOwn = isTaking || m_leftEnabled.count(reference) != 0;
    Outcome outcome;
    bool isOthers = false;
    if (!isOwn) {
        const mms::Result<acsi::ReportBlock> live = co_await acsi::readReportBlock(client, block);
        if (!live)
            co_return Outcome::failed(live.error());
        using Who = acsi::ReportHolder::Who;
        const acsi::ReportHolder holder =
            acsi::holderOf(*live, client->association().localAddress());
        // One of this address, or one that the device does not name, may be what is left of an
        // earlier association; the device decides.
        isOthers = holder.who == Who::OtherAddress || (wasWaiting && holder.isEnabled);
        if (isOthers)
            outcome =
                Outcome::failed(Texts::tr("%1 It was left alone.").arg(holderText(block, holder)));
    }
    change->setReference(text(attributeOf(block, "RptEna")));
    change->setValues({}, isOthers && wasWaiting ? Texts::tr("no longer waited for")
                                                 : QStringLiteral("false"));
    change->intend();
    if (!isOthers) {
        const auto changing = change->client();
        if (!changing)
            co_return change->refusal();
        const mms::Result<void> disabled = co_await acsi::disableReportBlock(changing, block);
        if (!disabled)
            outcome = Outcome::failed(disabled.error());
    }
    if (wasWaiting && isOthers)
        outcome = Outcome();
    if (outcome) {
        if (const SubscriptionPointer former = find(reference)) {
            stop(*former);
            m_subscriptions.erase(reference);
        }
        m_reserved.erase(reference);
        m_leftEnabled.erase(reference);
        m_connection.setProblem(text(reference), {});
        ReportControlBlock *const shown = shownInModel(block);
        if (shown && !isOthers)
            shown->enabled = false;
    }
    co_return outcome;
}
