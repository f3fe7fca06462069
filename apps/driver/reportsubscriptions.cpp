// SPDX-License-Identifier: Apache-2.0
#include "reportsubscriptions.h"

#include "discoveredmodel.h"

#include "acsi/dataset.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// How often the device is asked whether the blocks are still enabled, and blocks that could not be
/// enabled again are tried once more.
constexpr milliseconds watchInterval{3000};
const QString unreadable = QStringLiteral("reports");

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

std::uint32_t causeOf(const acsi::ReportMember &member)
{
    std::uint32_t cause = PublishCause::Report;
    if (!member.reason)
        return cause;
    const acsi::Triggers &reason = *member.reason;
    cause |= reason.dataChange ? 1U : 0U;
    cause |= reason.qualityChange ? 2U : 0U;
    cause |= reason.dataUpdate ? 4U : 0U;
    cause |= reason.integrity ? 8U : 0U;
    cause |= reason.generalInterrogation ? 16U : 0U;
    return cause;
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

/// Whether both texts name the same data set.
bool isSameDataSet(const acsi::Reference &block, const std::string &left, const std::string &right)
{
    if (left == right)
        return true;
    const auto first = acsi::dataSetName(block.device, left);
    const auto second = acsi::dataSetName(block.device, right);
    return first && second && *first == *second;
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

/// Qualities and times that a report brings as members of their own, by the data they belong to.
class Companions
{
public:
    void add(const acsi::Reference &reference, const mms::Data &data)
    {
        if (reference.path.size() < 2)
            return;
        const std::string &name = reference.path.back().name;
        const bool isQuality = name == "q" && data.kind() == mms::Data::Kind::BitString;
        const bool isTime = name == "t" && data.kind() == mms::Data::Kind::UtcTime;
        if (isQuality || isTime)
            (isQuality ? m_qualities : m_times)[parentOf(acsi::toText(reference))] = &data;
    }

    const mms::Data *quality(const std::string &reference) const
    {
        return find(m_qualities, reference);
    }
    const mms::Data *time(const std::string &reference) const { return find(m_times, reference); }

private:
    using Known = std::map<std::string, const mms::Data *>;

    static std::string parentOf(const std::string &reference)
    {
        return reference.substr(0, reference.rfind('$'));
    }

    static const mms::Data *find(const Known &known, std::string reference)
    {
        while (!known.empty() && reference.find('$') != std::string::npos) {
            reference = parentOf(reference);
            const auto found = known.find(reference);
            if (found != known.end())
                return found->second;
        }
        return nullptr;
    }

    Known m_qualities;
    Known m_times;
};

} // namespace

struct ReportSubscription
{
    acsi::Reference block;
    std::string reference; ///< of the block
    acsi::ReportSettings settings;
    std::string rptId;
    std::string datSet;
    std::vector<acsi::Reference> members;
    bool isTaking = false; ///< reports are expected
    bool isBusy = false;   ///< is being enabled
    bool hasOverflown = false;
    QString disturbance; ///< why something of the last report was not published
    std::optional<std::uint32_t> sqNum;
};

ReportSubscriptions::ReportSubscriptions(DeviceConnection &connection)
    : m_connection(connection)
{
}

ReportSubscriptions::~ReportSubscriptions() = default;

void ReportSubscriptions::listen()
{
    const std::shared_ptr<acsi::Client> client = m_connection.client();
    if (!client || m_heard.lock() == client)
        return;
    m_heard = client;
    m_assembler = acsi::ReportAssembler();
    const std::weak_ptr<DeviceConnection> weak = m_connection.weak_from_this();
    client->addInformationHandler([weak](const mms::InformationReport &information) {
        const auto connection = weak.lock();
        return connection && connection->part<ReportSubscriptions>().take(information);
    });
    asio::co_spawn(m_connection.strand(), watch(client),
                   [self = m_connection.shared_from_this()](const std::exception_ptr &) {});
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
        const std::shared_ptr<acsi::Client> client = m_connection.client();
        if (client && client->isOpen())
            co_await resume(each, Texts::tr("enabled again after the association was lost"));
    }
}

asio::awaitable<void> ReportSubscriptions::leaving()
{
    const std::shared_ptr<acsi::Client> client = m_connection.client();
    std::vector<acsi::Reference> enabled;
    for (const auto &each : m_subscriptions) {
        if (each.second->isTaking)
            enabled.push_back(each.second->block);
    }
    for (const acsi::Reference &block : enabled) {
        if (client && client->isOpen())
            static_cast<void>(co_await acsi::disableReportBlock(client, block));
    }
    std::map<std::string, acsi::Reference> reserved;
    reserved.swap(m_reserved);
    for (const auto &each : reserved) {
        if (client && client->isOpen())
            static_cast<void>(co_await acsi::writeReportAttribute(client, each.second, "ResvTms",
                                                                  mms::Data::integer(0)));
    }
}

void ReportSubscriptions::closed(const QString &)
{
    for (const auto &each : m_subscriptions)
        stop(*each.second);
    m_reserved.clear();
    m_assembler = acsi::ReportAssembler();
}

asio::awaitable<Outcome> ReportSubscriptions::enable(acsi::Reference block,
                                                     acsi::ReportSettings settings)
{
    listen();
    const auto subscription = std::make_shared<ReportSubscription>();
    subscription->reference = acsi::toText(block);
    subscription->block = std::move(block);
    subscription->settings = std::move(settings);
    SubscriptionPointer &place = m_subscriptions[subscription->reference];
    if (place)
        stop(*place);
    place = subscription;
    m_connection.setProblem(text(subscription->reference), {});

    Outcome outcome;
    std::exception_ptr cancelled;
    try {
        outcome = co_await start(subscription);
    } catch (...) {
        cancelled = std::current_exception();
    }
    if ((!outcome || cancelled) && m_subscriptions[subscription->reference] == subscription) {
        stop(*subscription);
        m_subscriptions.erase(subscription->reference);
    }
    if (cancelled)
        std::rethrow_exception(cancelled);
    co_return outcome;
}

asio::awaitable<Outcome> ReportSubscriptions::start(SubscriptionPointer subscription)
{
    struct Busy
    {
        explicit Busy(bool &whether)
            : flag(whether)
        {
            flag = true;
        }
        ~Busy() { flag = false; }
        bool &flag;
    };
    const Busy busy(subscription->isBusy);
    const std::shared_ptr<acsi::Client> client = m_connection.client();
    const acsi::Reference block = subscription->block;
    const mms::Result<acsi::ReportBlock> before = co_await acsi::readReportBlock(client, block);
    if (!before)
        co_return Outcome::failed(before.error());

    acsi::ReportSettings settings = subscription->settings;
    if (settings.datSet && isSameDataSet(block, *settings.datSet, before->datSet))
        settings.datSet.reset();
    // Known before the first report may come.
    subscription->rptId = settings.rptId.value_or(before->rptId);
    subscription->datSet = settings.datSet.value_or(before->datSet);
    if (subscription->datSet.empty())
        co_return Outcome::failed(
            Texts::tr("The report control block %1 has no data set.").arg(text(block)));
    co_await findMembers(subscription, client);
    if (subscription->members.empty()) {
        acsi::OptFlds fields = settings.optFlds.value_or(before->optFlds);
        fields.dataReference = true;
        settings.optFlds = fields;
    }
    const auto entry = m_lastEntries.find(subscription->reference);
    if (entry != m_lastEntries.end())
        settings.resumeAfter = entry->second;
    subscription->isTaking = true;
    subscription->hasOverflown = false;
    subscription->disturbance.clear();
    subscription->sqNum.reset();

    const mms::Result<acsi::ReportBlock> enabled =
        co_await acsi::enableReportBlock(client, block, settings);
    Outcome outcome;
    if (!enabled)
        outcome = Outcome::failed(enabled.error());
    else if (!client->isOpen())
        outcome = Outcome::failed(text(client->closeReason()));
    else if (!enabled->rptEna)
        outcome = Outcome::failed(
            Texts::tr("The device has not enabled %1 although it said so.").arg(text(block)));
    QString newValue;
    if (outcome) {
        subscription->rptId = enabled->rptId;
        newValue = describe(*enabled);
        for (const std::string &note : enabled->notes)
            newValue += QStringLiteral("; ") + text(note);
        m_connection.setReported(text(subscription->reference), subscription->members,
                                 coverageOf(*enabled));
        const QString device = text(block.device);
        const QString reference = text(acsi::itemText(block));
        if (ReportControlBlock *shown = m_connection.model()->reportBlock(device, reference)) {
            DiscoveredModel::setSettings(*shown, *enabled,
                                         m_connection.configuredBlock(device, reference));
        }
        co_await readMembers(subscription, client);
    } else {
        stop(*subscription);
    }
    journal(*subscription, describe(*before), newValue, outcome.error);
    co_return outcome;
}

asio::awaitable<void> ReportSubscriptions::findMembers(SubscriptionPointer subscription,
                                                       std::shared_ptr<acsi::Client> client)
{
    const mms::Result<mms::ObjectName> name =
        acsi::dataSetName(subscription->block.device, subscription->datSet);
    if (!name)
        co_return;
    subscription->members.clear();
    const mms::Result<acsi::DataSetDescription> directory =
        co_await acsi::dataSetDirectory(client, *name);
    if (directory) {
        for (const mms::VariableAccess &member : directory->members) {
            // What has no reference is not in the model either; its place is kept.
            const mms::Result<acsi::Reference> reference = acsi::referenceOf(member);
            subscription->members.push_back(reference ? *reference : acsi::Reference());
        }
    } else {
        // The list of a large data set may be longer than the device can send. The file knows it,
        // or the reports have to say what they bring.
        subscription->members = knownMembers(*m_connection.model(), *name);
    }
}

asio::awaitable<void> ReportSubscriptions::readMembers(SubscriptionPointer subscription,
                                                       std::shared_ptr<acsi::Client> client)
{
    // What changed between the last polling and the first report is in no report.
    const mms::Result<mms::ObjectName> name =
        acsi::dataSetName(subscription->block.device, subscription->datSet);
    if (!name)
        co_return;
    const mms::Result<std::vector<mms::AccessResult>> values = co_await client->readList(*name);
    if (!values || values->size() != subscription->members.size())
        co_return;
    DeviceConnection::Publication publication;
    publication.cause = PublishCause::Polled;
    publication.onlyChanges = true;
    for (std::size_t i = 0; i < values->size(); ++i) {
        if ((*values)[i].ok())
            m_connection.publish(subscription->members[i], (*values)[i].data(), publication);
    }
}

asio::awaitable<Outcome> ReportSubscriptions::disable(acsi::Reference block)
{
    const std::string reference = acsi::toText(block);
    const std::shared_ptr<acsi::Client> client = m_connection.client();
    const mms::Result<void> disabled = co_await acsi::disableReportBlock(client, block);
    Outcome outcome;
    if (!disabled)
        outcome = Outcome::failed(disabled.error());
    if (outcome) {
        const auto found = m_subscriptions.find(reference);
        if (found != m_subscriptions.end()) {
            stop(*found->second);
            m_subscriptions.erase(found);
        }
        m_reserved.erase(reference);
        m_connection.setProblem(text(reference), {});
        ReportControlBlock *shown =
            m_connection.model()->reportBlock(text(block.device), text(acsi::itemText(block)));
        if (shown)
            shown->enabled = false;
    }
    DeviceChange change;
    change.operation = QStringLiteral("writeValue");
    change.reference = text(attributeOf(block, "RptEna"));
    change.newValue = QStringLiteral("false");
    change.error = outcome.error;
    m_connection.journal(std::move(change));
    co_return outcome;
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
    m_lastEntries.erase(acsi::toText(block));
}

asio::awaitable<void> ReportSubscriptions::resume(SubscriptionPointer subscription, QString why)
{
    const std::string reference = subscription->reference;
    if (subscription->isBusy || subscription->isTaking)
        co_return;
    Outcome outcome;
    if (m_connection.isReadOnly())
        outcome = Outcome::failed(Texts::tr("the driver is read-only."));
    else
        outcome = co_await start(subscription);
    const auto current = m_subscriptions.find(reference);
    const std::shared_ptr<acsi::Client> client = m_connection.client();
    if (!client || !client->isOpen() || current == m_subscriptions.end() ||
        current->second != subscription)
        co_return;
    m_connection.setProblem(text(reference),
                            outcome ? QString()
                                    : Texts::tr("The report control block %1 could not be %2: %3")
                                          .arg(text(reference), why, outcome.error));
}

asio::awaitable<void> ReportSubscriptions::watch(std::shared_ptr<acsi::Client> client)
{
    while (client->isOpen() && m_connection.isWanted()) {
        const auto next = steady_clock::now() + watchInterval;
        for (auto now = steady_clock::now();
             now < next && client->isOpen() && m_connection.isWanted(); now = steady_clock::now())
            co_await m_connection.pause(std::chrono::ceil<milliseconds>(next - now));
        std::vector<SubscriptionPointer> watched;
        std::vector<SubscriptionPointer> stopped;
        std::vector<mms::VariableAccess> flags;
        for (const auto &each : m_subscriptions) {
            if (each.second->isBusy)
                continue;
            if (each.second->isTaking) {
                watched.push_back(each.second);
                flags.push_back(acsi::accessOf(attributeOf(each.second->block, "RptEna")));
            } else {
                stopped.push_back(each.second);
            }
        }
        if (!client->isOpen() || !m_connection.isWanted())
            co_return;
        if (!flags.empty()) {
            const auto values = co_await client->read(std::move(flags));
            for (std::size_t i = 0; values && i < watched.size() && i < values->size(); ++i) {
                ReportSubscription &subscription = *watched[i];
                const bool isDisabled = (*values)[i].ok() &&
                                        (*values)[i].data().toBoolean() == false &&
                                        subscription.isTaking && !subscription.isBusy;
                if (!isDisabled)
                    continue;
                stop(subscription);
                const QString sentence = Texts::tr("The device has disabled %1 by itself.")
                                             .arg(text(subscription.reference));
                m_connection.setProblem(text(subscription.reference), sentence);
                journal(subscription, {}, {}, sentence);
            }
        }
        for (const SubscriptionPointer &each : stopped) {
            if (client->isOpen() && m_connection.isWanted())
                co_await resume(each, Texts::tr("enabled again"));
        }
    }
}

void ReportSubscriptions::stop(ReportSubscription &subscription)
{
    subscription.isTaking = false;
    m_connection.setReported(text(subscription.reference), {}, {});
}

ReportSubscriptions::SubscriptionPointer
ReportSubscriptions::subscriptionOf(const acsi::Report &report) const
{
    SubscriptionPointer best;
    int bestScore = 0;
    for (const auto &each : m_subscriptions) {
        const ReportSubscription &subscription = *each.second;
        if (!subscription.isTaking)
            continue;
        // A block without an identifier of its own reports under its reference; some devices leave
        // the identifier empty instead.
        const bool isNamed = report.rptId == subscription.rptId ||
                             report.rptId == subscription.reference ||
                             report.rptId == acsi::objectReferenceText(subscription.block);
        if (!isNamed && !report.rptId.empty())
            continue;
        if (!report.datSet.empty() &&
            !isSameDataSet(subscription.block, report.datSet, subscription.datSet))
            continue;
        // Several instances of a block may share one identifier.
        const bool isNext = report.sqNum && subscription.sqNum &&
                            *report.sqNum == (*subscription.sqNum + 1) % 0x10000;
        const int score = 1 + (isNamed ? 4 : 0) +
                          (report.dataSetSize == subscription.members.size() ? 2 : 0) +
                          (isNext ? 1 : 0);
        if (score > bestScore) {
            bestScore = score;
            best = each.second;
        }
    }
    return best;
}

bool ReportSubscriptions::take(const mms::InformationReport &information)
{
    if (!acsi::isReport(information))
        return false;
    mms::Result<acsi::Report> segment = acsi::decodeReport(information);
    if (!segment) {
        m_connection.setProblem(unreadable,
                                Texts::tr("A report of the device could not be read: %1")
                                    .arg(text(segment.error().message)));
        return false;
    }
    const SubscriptionPointer subscription = subscriptionOf(*segment);
    if (!subscription)
        return false;
    const std::optional<acsi::Report> report =
        m_assembler.take(std::move(*segment), steady_clock::now());
    if (!report)
        return true;
    publish(*subscription, *report);
    subscription->sqNum = report->sqNum;
    if (!report->entryId.empty())
        m_lastEntries[subscription->reference] = report->entryId;
    m_connection.setProblem(unreadable, {});
    m_connection.countReport();
    return true;
}

void ReportSubscriptions::publish(ReportSubscription &subscription, const acsi::Report &report)
{
    const bool isKnown = report.dataSetSize == subscription.members.size();
    QString disturbance;
    std::vector<acsi::Reference> references(report.members.size());
    Companions companions;
    for (std::size_t i = 0; i < report.members.size(); ++i) {
        const acsi::ReportMember &member = report.members[i];
        if (isKnown) {
            references[i] = subscription.members[member.index];
        } else if (const auto given = acsi::parseReference(member.reference)) {
            references[i] = *given;
        }
        if (member.value.ok())
            companions.add(references[i], member.value.data());
    }
    const std::optional<mms::Data> entryTime =
        report.timeOfEntry ? std::optional(mms::Data::binaryTime(*report.timeOfEntry))
                           : std::nullopt;
    for (std::size_t i = 0; i < report.members.size(); ++i) {
        const acsi::ReportMember &member = report.members[i];
        if (references[i].node.empty()) {
            disturbance = isKnown ? Texts::tr("The member %1 of the data set of %2 is no data of "
                                              "the device's model.")
                                        .arg(member.index + 1)
                                        .arg(text(subscription.reference))
                                  : Texts::tr("A report of %1 has %2 members, but its data set "
                                              "has %3.")
                                        .arg(text(subscription.reference))
                                        .arg(report.dataSetSize)
                                        .arg(subscription.members.size());
            continue;
        }
        const std::string reference = acsi::toText(references[i]);
        if (!member.value.ok()) {
            disturbance = Texts::tr("The reports of %1 have no value for %2: %3.")
                              .arg(text(subscription.reference), text(reference),
                                   QString::fromStdString(mms::describe(member.value.error())));
            continue;
        }
        DeviceConnection::Publication publication;
        publication.cause = causeOf(member);
        publication.quality = companions.quality(reference);
        publication.time = companions.time(reference);
        if (!publication.time && entryTime)
            publication.time = &*entryTime;
        const bool isUnderstood =
            m_connection.model() && m_connection.model()->isWholeKnown(references[i]);
        if (!isUnderstood && m_connection.model() &&
            !m_connection.model()->readableParts(references[i]).empty()) {
            disturbance = Texts::tr("The device described %1 in parts only, so what the reports of "
                                    "%2 say of it cannot be understood; it is polled.")
                              .arg(text(reference), text(subscription.reference));
        } else if (!m_connection.publish(references[i], member.value.data(), publication)) {
            disturbance = Texts::tr("A value of %1 in the reports of %2 does not have the form of "
                                    "its type.")
                              .arg(text(reference), text(subscription.reference));
        }
    }
    if (report.bufOvfl.value_or(false))
        subscription.hasOverflown = true;
    if (disturbance.isEmpty() && subscription.hasOverflown)
        disturbance = Texts::tr("The buffer of %1 has overflown: older changes are lost.")
                          .arg(text(subscription.reference));
    if (disturbance != subscription.disturbance) {
        subscription.disturbance = disturbance;
        m_connection.setProblem(text(subscription.reference), disturbance);
    }
}

void ReportSubscriptions::journal(const ReportSubscription &subscription, const QString &oldValue,
                                  const QString &newValue, const QString &error) const
{
    DeviceChange change;
    change.operation = QStringLiteral("enableReportBlock");
    change.reference = text(subscription.reference);
    change.oldValue = oldValue;
    change.newValue = newValue;
    change.error = error;
    m_connection.journal(std::move(change));
}

QString ReportDataSet::shown(const acsi::Reference &block, const std::string &device)
{
    const mms::Result<mms::ObjectName> name = acsi::dataSetName(block.device, device);
    if (!name)
        return text(device);
    const std::string ownNode = block.node + '$';
    if (name->scope == mms::Scope::Domain && name->domain == block.device &&
        name->item.compare(0, ownNode.size(), ownNode) == 0)
        return text(name->item).mid(static_cast<int>(ownNode.size()));
    return text(acsi::dataSetText(*name));
}

std::string ReportDataSet::wire(const acsi::Reference &block, const QString &shown)
{
    std::string name = shown.trimmed().toStdString();
    if (name.empty())
        return name;
    if (name.find_first_of("@/$.") == std::string::npos)
        name = block.node + '$' + name;
    const mms::Result<mms::ObjectName> parsed = acsi::dataSetName(block.device, name);
    return parsed ? acsi::dataSetText(*parsed) : name;
}

QString describe(const acsi::ReportBlock &block)
{
    const QString state = block.rptEna ? Texts::tr("enabled") : Texts::tr("disabled");
    return QStringLiteral("%1, RptID=%2, DatSet=%3, TrgOps=%4, OptFlds=%5, BufTm=%6, IntgPd=%7")
        .arg(state, text(block.rptId), text(block.datSet), text(block.trgOps.toBits().toText()),
             text(block.optFlds.toBits().toText()))
        .arg(block.bufTm)
        .arg(block.intgPd);
}
