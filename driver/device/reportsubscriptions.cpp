// SPDX-License-Identifier: Apache-2.0
// The life of report control blocks that the operator wants. How they are given back is in
// reportgivingback.cpp, what is looked at while they are enabled in reportwatching.cpp, what their
// reports bring in reporttaking.cpp, and how what they lose is made good in reportmending.cpp.
#include "reportsubscriptions.h"

#include "driver/model/discoveredmodel.h"
#include "driver/text/sentences.h"
#include "modelreading.h"

#include "acsi/blockvalue.h"
#include "acsi/dataset.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>

using std::chrono::milliseconds;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

constexpr milliseconds turnPause{20};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

ReportCoverage coverageOf(const acsi::ReportBlock &block)
{
    ReportCoverage coverage;
    coverage.dataChange = block.trgOps.dataChange;
    coverage.qualityChange = block.trgOps.qualityChange;
    coverage.dataUpdate = block.trgOps.dataUpdate;
    if (block.trgOps.integrity)
        coverage.integrityPeriod = milliseconds(block.intgPd);
    return coverage;
}

QString deviceKey(const DeviceConfiguration &configuration)
{
    return QStringLiteral("%1:%2#%3")
        .arg(configuration.host)
        .arg(configuration.port)
        .arg(configuration.number);
}

/// The members of a data set of a logical node as the model has it; none when it does not.
std::vector<acsi::Reference> knownMembers(const OnlineModel &model, const mms::ObjectName &name)
{
    std::vector<acsi::Reference> members;
    const QString item = text(name.item);
    const LogicalNode *node = model.node(text(name.domain), item.section(QLatin1Char('$'), 0, 0));
    const DataSet *set = node ? node->dataSet(item.section(QLatin1Char('$'), 1)) : nullptr;
    if (!set)
        return members;
    for (const DataSetMember *member : qAsConst(set->members)) {
        const auto reference = acsi::parseReference(member->reference.toStdString());
        members.push_back(reference ? *reference : acsi::Reference());
    }
    return members;
}

/// Whether this side must keep its hands off the block.
/// @param unattended when nobody has just asked for it
bool belongsToOthers(const acsi::ReportHolder &holder, bool isBuffered, bool isOwn, bool unattended)
{
    using Who = acsi::ReportHolder::Who;
    if (holder.who == Who::Nobody || isOwn)
        return false;
    if (holder.isEnabled)
        return true;
    // A reservation by this address, or one that outlives associations, may be what is left of the
    // one before.
    return unattended &&
           (holder.who == Who::OtherAddress || (holder.who == Who::Somebody && !isBuffered));
}

} // namespace

ReportSubscriptions::ReportSubscriptions(DeviceConnection &connection)
    : m_connection(connection)
    , m_entries(connection.environment().cacheFolder, deviceKey(connection.configuration()))
{
}

ReportSubscriptions::~ReportSubscriptions()
{
    m_entries.save();
}

asio::awaitable<ReportSubscriptions::Turn> ReportSubscriptions::turn(std::string reference)
{
    while (m_working.count(reference) != 0)
        co_await m_connection.pause(turnPause);
    m_working.insert(reference);
    // The connection outlives what is done in its strand, and this part lives as long.
    const auto end = [this, reference, connection = m_connection.shared_from_this()](
                         const char *) mutable { m_working.erase(reference); };
    co_return Turn(std::shared_ptr<const char>("", end), nullptr);
}

void ReportSubscriptions::listen()
{
    const ClientPointer client = m_connection.client();
    if (!client || m_heard.lock() == client)
        return;
    m_heard = client;
    m_stream.clear();
    const std::weak_ptr<DeviceConnection> weak = m_connection.weak_from_this();
    client->addInformationHandler([weak](mms::InformationReport &information) {
        const auto connection = weak.lock();
        return connection && connection->part<ReportSubscriptions>().take(information);
    });
    asio::co_spawn(m_connection.strand(), watch(client),
                   [self = m_connection.shared_from_this()](const std::exception_ptr &) {});
}

ReportSubscriptions::SubscriptionPointer
ReportSubscriptions::find(const std::string &reference) const
{
    const auto found = m_subscriptions.find(reference);
    return found == m_subscriptions.end() ? nullptr : found->second;
}

bool ReportSubscriptions::isCurrent(const SubscriptionPointer &subscription) const
{
    return find(subscription->reference) == subscription;
}

ReportControlBlock *ReportSubscriptions::shownInModel(const acsi::Reference &block) const
{
    OnlineModel *const model = m_connection.model();
    return model ? model->reportControlBlock(text(block.device), text(acsi::itemText(block)))
                 : nullptr;
}

asio::awaitable<void> ReportSubscriptions::opened()
{
    if (m_subscriptions.empty())
        co_return;
    listen();
    std::vector<SubscriptionPointer> wanted;
    for (const auto &each : m_subscriptions)
        wanted.push_back(each.second);
    for (const SubscriptionPointer &each : wanted) {
        const ClientPointer client = m_connection.client();
        const auto before = m_connection.now();
        if (client && client->isOpen())
            co_await resume(each, Texts::tr("enabled again after the association was lost"));
        // Whether a silent device is there is asked once this has ended; watch() does the rest.
        const bool isLong = m_connection.now() - before >= m_connection.configuration().callTimeout;
        if (isLong && m_connection.capture().lastReceived() < before)
            co_return;
    }
}

void ReportSubscriptions::closed(const QString &)
{
    for (const auto &each : m_subscriptions) {
        stop(*each.second);
        if (each.second->life.state() != SubscriptionLife::State::Enabling)
            each.second->life.closed();
    }
    for (const auto &each : m_noted)
        m_connection.setProblem(text(each.first) + QStringLiteral(" holder"), {});
    m_noted.clear();
    m_reserved.clear();
    m_leftEnabled.clear();
    m_stream.clear();
    m_entries.save();
}

asio::awaitable<Outcome> ReportSubscriptions::enable(ChangePointer change, acsi::Reference block,
                                                     acsi::ReportSettings settings)
{
    const auto subscription = std::make_shared<Subscription>();
    subscription->reference = acsi::toText(block);
    subscription->name = text(subscription->reference);
    subscription->block = std::move(block);
    subscription->settings = std::move(settings);
    change->setOperation(QStringLiteral("enableReportBlock"));
    change->setReference(text(subscription->reference));
    Turn turn = co_await this->turn(subscription->reference);
    listen();

    Outcome outcome;
    std::exception_ptr cancelled;
    try {
        outcome = co_await start(subscription, change);
    } catch (...) {
        cancelled = std::current_exception();
    }
    if (cancelled && isCurrent(subscription) && subscription->life.isTaking()) {
        // It is enabled; only its first reading was given up, and is made good apart.
        if (!subscription->isMending)
            subscription->mending.reset();
        mend(subscription);
        std::rethrow_exception(cancelled);
    }
    if ((!outcome || cancelled) && isCurrent(subscription)) {
        stop(*subscription);
        m_connection.setProblem(text(subscription->reference), {});
        m_subscriptions.erase(subscription->reference);
    }
    if (cancelled) {
        change->intend();
        change->giveUp(Texts::tr("%1 was not enabled in time.").arg(text(subscription->reference)));
    }
    if (!outcome || cancelled)
        undo(subscription, std::move(turn));
    if (cancelled)
        std::rethrow_exception(cancelled);
    co_return outcome;
}

Outcome ReportSubscriptions::ended(const SubscriptionPointer &subscription, Change *change,
                                   SubscriptionLife::Result result, const QString &oldValue,
                                   const QString &newValue, const QString &error)
{
    const bool isNews = subscription->life.ended(result, error, m_connection.now());
    const bool isEnabled = result == SubscriptionLife::Result::Enabled;
    const Outcome outcome = isEnabled ? Outcome() : Outcome::failed(error);
    if (change) {
        change->setValues(oldValue, newValue);
        if (change->change().isDriversOwn && !isNews)
            change->endAsBefore();
        change->intend();
        change->end(outcome);
    } else if (isNews) {
        tellSeen(*subscription, error);
    }
    if (!isEnabled && isCurrent(subscription))
        stop(*subscription);
    return outcome;
}

ChangePointer ReportSubscriptions::ownChange(const Subscription &subscription)
{
    ChangeIntent intent;
    intent.operation = QStringLiteral("enableReportBlock");
    intent.reference = text(subscription.reference);
    intent.isRepeated = subscription.life.wasRefused();
    return ChangeGate::own(m_connection, std::move(intent));
}

asio::awaitable<acsi::ReportSettings> ReportSubscriptions::prepare(SubscriptionPointer subscription,
                                                                   ClientPointer client,
                                                                   const acsi::ReportBlock &before)
{
    acsi::ReportSettings settings = subscription->settings;
    const acsi::Reference block = subscription->block;
    if (settings.datSet && isSameDataSet(block, *settings.datSet, before.datSet))
        settings.datSet.reset();
    acsi::ReportBlock wanted = before;
    wanted.datSet = settings.datSet.value_or(before.datSet);
    wanted.rptId = settings.rptId.value_or(before.rptId);
    wanted.trgOps = settings.trgOps.value_or(before.trgOps);
    wanted.optFlds = settings.optFlds.value_or(before.optFlds);
    wanted.bufTm = settings.bufTm.value_or(before.bufTm);
    wanted.intgPd = settings.intgPd.value_or(before.intgPd);
    subscription->datSet = wanted.datSet;
    subscription->terms = LastEntries::Terms::of(wanted);
    if (wanted.datSet.empty())
        co_return settings;

    ReportStream::Block expected;
    expected.block = block;
    expected.rptId = wanted.rptId;
    expected.datSet = wanted.datSet;
    expected.members = co_await membersOf(client, block, wanted.datSet);
    if (expected.members.empty() && !wanted.optFlds.dataReference) {
        wanted.optFlds.dataReference = true;
        settings.optFlds = wanted.optFlds;
    }
    // Reports that could be another block's have to say what they are of.
    if (m_stream.isConfusable(expected) && !wanted.optFlds.dataSetName &&
        !wanted.optFlds.dataReference) {
        wanted.optFlds.dataSetName = true;
        settings.optFlds = wanted.optFlds;
    }
    expected.optFlds = wanted.optFlds;
    subscription->reportedAt.assign(expected.members.size(), 0);
    subscription->reports = 0;
    if (before.buffered)
        settings.resumeAfter = m_entries.find(text(subscription->reference), subscription->terms);
    // Known before the first report may come.
    m_stream.start(std::move(expected));
    setMembers(*subscription);
    co_return settings;
}

asio::awaitable<Outcome> ReportSubscriptions::start(SubscriptionPointer subscription,
                                                    ChangePointer asked)
{
    using Result = SubscriptionLife::Result;
    const ClientPointer client = m_connection.client();
    if (!client || !client->isOpen()) {
        const QString sentence = m_connection.notConnectedSentence();
        co_return Outcome{OperationNotConnected, sentence};
    }
    subscription->life.begin();
    subscription->client = client;
    const acsi::Reference block = subscription->block;
    const mms::Result<acsi::ReportBlock> before = co_await acsi::readReportBlock(client, block);
    if (!before) {
        co_return ended(subscription, asked.get(), Result::Refused, {}, {},
                        text(before.error().message));
    }
    const SubscriptionPointer former = find(subscription->reference);
    const bool isOwn =
        (former && former->life.isTaking()) || m_leftEnabled.count(subscription->reference) != 0;
    const acsi::ReportHolder holder = acsi::holderOf(*before, client->association().localAddress());
    if (belongsToOthers(holder, before->buffered, isOwn, !asked)) {
        const QString sentence = Texts::tr("%1 It was left alone.").arg(holderText(block, holder));
        co_return ended(subscription, asked.get(), Result::Held, {}, {}, sentence);
    }
    if (subscription->settings.datSet.value_or(before->datSet).empty()) {
        co_return ended(subscription, asked.get(), Result::Refused, settingsText(*before), {},
                        Texts::tr("The report control block %1 has no data set.").arg(text(block)));
    }
    // From here on the block is this subscription's.
    if (former && former != subscription)
        stop(*former);
    m_subscriptions[subscription->reference] = subscription;
    subscription->faults.clear();
    if (asked)
        m_connection.setProblem(text(subscription->reference), {});
    acsi::ReportSettings settings = co_await prepare(subscription, client, *before);
    settings.isOwn = isOwn;
    const ChangePointer change = asked ? asked : ownChange(*subscription);
    change->setValues(settingsText(*before), {});
    // What was read holds for the association that it was read by.
    const auto changing = m_connection.client() == client ? change->client() : nullptr;
    if (!changing) {
        const Outcome refusal = change->refusal();
        co_return ended(subscription, change.get(), Result::Refused, settingsText(*before), {},
                        refusal.error);
    }
    subscription->trace = std::make_shared<acsi::ReportBlockTrace>();
    const std::shared_ptr<acsi::ReportBlockTrace> trace = subscription->trace;
    const mms::Result<acsi::ReportBlock> enabled =
        co_await acsi::enableReportBlock(changing, block, settings, trace);
    QString error;
    if (!enabled)
        error = text(enabled.error().message);
    else if (!client->isOpen())
        error = text(client->closeReason());
    else if (!enabled->rptEna)
        error = Texts::tr("The device has not enabled %1 although it said so.").arg(text(block));
    if (!error.isEmpty()) {
        co_return ended(subscription, change.get(), Result::Refused, settingsText(*before), {},
                        error);
    }
    trace->changes.clear();
    m_leftEnabled.erase(subscription->reference);
    QString newValue = settingsText(*enabled);
    for (const mms::Text &note : enabled->notes)
        newValue += QStringLiteral("; ") + text(note);
    if (!enabled->optFlds.sequenceNumber)
        newValue += QStringLiteral("; ") +
                    Texts::tr("without sequence numbers lost reports cannot be noticed");
    const Outcome outcome =
        ended(subscription, change.get(), Result::Enabled, settingsText(*before), newValue, {});
    started(subscription, *enabled);
    // What changed between the last polling and the first report is in no report.
    subscription->mending.need();
    co_await mendOnce(subscription, client);
    if (subscription->mending.isNeeded())
        mend(subscription);
    co_return outcome;
}

void ReportSubscriptions::started(const SubscriptionPointer &subscription,
                                  const acsi::ReportBlock &enabled)
{
    const acsi::Reference &block = subscription->block;
    m_stream.settle(subscription->reference, enabled.rptId, enabled.optFlds, enabled.confRev);
    subscription->terms = LastEntries::Terms::of(enabled);
    subscription->coverage = coverageOf(enabled);
    subscription->readsEntry = enabled.buffered && !enabled.optFlds.entryId;
    subscription->isTrusted = false;
    trust(*subscription, true);
    // As it is now is as it shall be again, whatever the device forgets meanwhile.
    acsi::ReportSettings &settings = subscription->settings;
    settings.rptId = enabled.rptId;
    settings.datSet = enabled.datSet;
    settings.optFlds = enabled.optFlds;
    settings.bufTm = enabled.bufTm;
    settings.trgOps = enabled.trgOps;
    settings.intgPd = enabled.intgPd;
    if (ReportControlBlock *shown = shownInModel(block)) {
        DiscoveredModel::setSettings(*shown, text(block.device), enabled,
                                     m_connection.modelReading().configuredBlock(
                                         text(block.device), text(acsi::itemText(block))));
    }
    if (enabled.resumed == false) {
        m_entries.forget(text(subscription->reference));
        fault(subscription, ReportFault::UnknownEntry);
    }
}

asio::awaitable<std::vector<acsi::Reference>>
ReportSubscriptions::membersOf(ClientPointer client, acsi::Reference block, std::string datSet)
{
    std::vector<acsi::Reference> members;
    const mms::Result<mms::ObjectName> name = acsi::dataSetName(block.device, datSet);
    if (!name)
        co_return members;
    const mms::Result<acsi::DataSetDescription> directory =
        co_await acsi::dataSetDirectory(client, *name);
    if (!directory) {
        // The list of a large data set may be longer than the device can send. The file knows it,
        // or the reports have to say what they bring.
        if (m_connection.model())
            members = knownMembers(*m_connection.model(), *name);
        co_return members;
    }
    for (const mms::VariableAccess &member : directory->members) {
        // What has no reference is not in the model either; its place is kept.
        const mms::Result<acsi::Reference> reference = acsi::referenceOf(member);
        members.push_back(reference ? *reference : acsi::Reference());
    }
    co_return members;
}

void ReportSubscriptions::setReserved(const acsi::Reference &block, bool reserved)
{
    const std::string reference = acsi::toText(block);
    if (reserved)
        m_reserved.emplace(reference, block);
    else
        m_reserved.erase(reference);
}

void ReportSubscriptions::forgetEntries(const acsi::Reference &block)
{
    m_entries.forget(text(block));
    if (const SubscriptionPointer subscription = find(acsi::toText(block))) {
        subscription->faults.erase(ReportFault::Overflow);
        tell(*subscription);
    }
}

void ReportSubscriptions::setInterrogated(const acsi::Reference &block)
{
    if (const SubscriptionPointer subscription = find(acsi::toText(block)))
        subscription->isAsked = true;
}

asio::awaitable<void> ReportSubscriptions::resume(SubscriptionPointer subscription, QString why)
{
    const std::string reference = subscription->reference;
    Turn turn = co_await this->turn(reference);
    if (!isCurrent(subscription) || subscription->isUnwanted ||
        !subscription->life.isDue(m_connection.now()))
        co_return;
    Outcome outcome;
    if (m_connection.isReadOnly()) {
        outcome = ended(subscription, nullptr, SubscriptionLife::Result::Held, {}, {},
                        Texts::tr("the driver is read-only."));
    } else {
        outcome = co_await start(subscription, nullptr);
        if (!outcome)
            undo(subscription, std::move(turn));
    }
    const ClientPointer client = m_connection.client();
    if (!client || !client->isOpen()) {
        subscription->life.closed();
        co_return;
    }
    if (!isCurrent(subscription) || subscription->isUnwanted)
        co_return;
    if (!outcome) {
        const bool isNamed = outcome.error.contains(text(acsi::blockText(subscription->block)));
        m_connection.setProblem(
            text(reference),
            isNamed
                ? Texts::tr("A report control block could not be %1: %2").arg(why, outcome.error)
                : Texts::tr("The report control block %1 could not be %2: %3")
                      .arg(text(reference), why, outcome.error));
    } else {
        tell(*subscription);
    }
}

void ReportSubscriptions::setMembers(Subscription &subscription) const
{
    const ReportStream::Block *const block = m_stream.find(subscription.reference);
    subscription.members = block ? ReportedMembers(block->members) : ReportedMembers();
}

void ReportSubscriptions::stop(Subscription &subscription)
{
    m_stream.stop(subscription.reference);
    subscription.members = ReportedMembers();
    subscription.mending.reset();
    subscription.faults.clear();
    trust(subscription, false);
}

void ReportSubscriptions::tellSeen(const Subscription &subscription, const QString &error) const
{
    DeviceChange seen;
    seen.operation = QStringLiteral("enableReportBlock");
    seen.reference = text(subscription.reference);
    seen.error = error;
    seen.isDriversOwn = true;
    ChangeGate::tell(m_connection, std::move(seen));
}
