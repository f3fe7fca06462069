// SPDX-License-Identifier: Apache-2.0
// ReportSubscriptions: what reports bring, what they lose, and how that is made good.
#include "reportsubscriptions.h"

#include "driver/model/valueconversion.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"
#include "valuepolling.h"
#include "valuepublishing.h"

#include "acsi/dataset.h"
#include "mms/datatext.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <set>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

constexpr milliseconds shortestPause{20};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

std::uint32_t bitsOf(const acsi::Triggers &reason)
{
    std::uint32_t bits = 0;
    bits |= reason.dataChange ? 1U : 0U;
    bits |= reason.qualityChange ? 2U : 0U;
    bits |= reason.dataUpdate ? 4U : 0U;
    bits |= reason.integrity ? 8U : 0U;
    bits |= reason.generalInterrogation ? 16U : 0U;
    bits |= reason.applicationTrigger ? 32U : 0U;
    return bits;
}

std::uint32_t causeOf(const acsi::ReportMember &member)
{
    constexpr std::uint32_t published = 31;
    return PublishCause::Report | (member.reason ? bitsOf(*member.reason) & published : 0U);
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

Companions companionsOf(const ReportStream::Taken &taken)
{
    Companions companions;
    for (std::size_t i = 0; i < taken.references.size(); ++i) {
        const mms::AccessResult &value = taken.report->members[i].value;
        if (value.ok())
            companions.add(taken.references[i], value.data());
    }
    return companions;
}

/// A member as an event tells it, leaf by leaf.
QVector<ReportEventMember> eventMembers(const OnlineModel *model, const acsi::Reference &reference,
                                        const acsi::ReportMember &member,
                                        const Companions &companions)
{
    ReportEventMember common;
    common.reference = reference.node.empty() ? text(member.reference) : text(reference);
    if (common.reference.isEmpty())
        common.reference = Texts::tr("member %1").arg(member.index + 1);
    if (member.reason)
        common.reason = bitsOf(*member.reason);
    if (!member.value.ok()) {
        common.error = text(mms::describe(member.value.error()));
        return {common};
    }
    std::vector<OnlineModel::Leaf> leaves;
    std::set<const mms::Data *> beside;
    const mms::Data &data = member.value.data();
    const auto visit = [&](const OnlineModel::Leaf &leaf) {
        leaves.push_back(leaf);
        for (const mms::Data *each : {leaf.quality, leaf.time}) {
            if (each)
                beside.insert(each);
        }
    };
    const bool fits =
        model && !reference.node.empty() && model->forEachLeaf(reference, data, visit);
    if (!fits || leaves.empty()) {
        common.value = text(mms::toText(data));
        common.error = Texts::tr("the value does not have the form of its type");
        return {common};
    }
    QVector<ReportEventMember> result;
    const std::string whole = acsi::toText(reference);
    const bool areAllBeside = std::ranges::all_of(
        leaves, [&](const OnlineModel::Leaf &leaf) { return beside.count(leaf.data) != 0; });
    for (const OnlineModel::Leaf &leaf : leaves) {
        if (!areAllBeside && beside.count(leaf.data) != 0)
            continue;
        ReportEventMember each = common;
        each.reference = leaf.reference;
        each.value = ValueConversion::toVariant(
            leaf.attribute ? leaf.attribute->basicType : ValueConversion::basicTypeOf(*leaf.type),
            *leaf.data);
        if (const mms::Data *quality = leaf.quality ? leaf.quality : companions.quality(whole))
            each.quality = ValueConversion::qualityText(*quality);
        if (const mms::Data *time = leaf.time ? leaf.time : companions.time(whole))
            each.timeStamp = ValueConversion::timeText(*time);
        result.append(each);
    }
    return result;
}

/// Whether nobody told the order of what the data has, so that only its parts can be understood.
bool isDescribedInParts(const OnlineModel *model, const acsi::Reference &reference)
{
    return model && !reference.node.empty() && !model->isWholeKnown(reference) &&
           !model->readableParts(reference).empty();
}

bool isMissing(ReportFault fault)
{
    switch (fault) {
    case ReportFault::Gap:
    case ReportFault::MissingSegment:
    case ReportFault::Overflow:
    case ReportFault::UnknownEntry:
        return true;
    default:
        return false;
    }
}

/// Not made good by reading the data: what came between is gone.
bool outlastsReading(ReportFault fault)
{
    return fault == ReportFault::Overflow;
}

QString sentenceOf(ReportFault fault, const QString &block, const QString &detail)
{
    switch (fault) {
    case ReportFault::Gap:
        return Texts::tr("Reports of %1 are missing; its data set is read whole.").arg(block);
    case ReportFault::MissingSegment:
        return Texts::tr("Parts of a report of %1 are missing; its data set is read whole.")
            .arg(block);
    case ReportFault::Overflow:
        return Texts::tr("The buffer of %1 has overflown: older changes are lost.").arg(block);
    case ReportFault::UnknownEntry:
        return Texts::tr("The device does not know the last entry of %1 any more: changes since "
                         "then may be lost, or come again.")
            .arg(block);
    case ReportFault::OtherDataSet:
        return Texts::tr("A report of %1 is of another data set than the block had when it was "
                         "enabled.")
            .arg(block);
    case ReportFault::Ambiguous:
        return Texts::tr("A report of the device may be of %1 or of another block with other data; "
                         "it was not taken.")
            .arg(block);
    case ReportFault::Unreadable:
        return Texts::tr("A report of the device could not be read: %1").arg(detail);
    case ReportFault::UnknownMember:
    case ReportFault::NoValue:
        break;
    }
    return detail;
}

} // namespace

/// What came of reading a data set.
struct ReportSubscriptions::Mended
{
    bool isRead = false; ///< an answer for every member has come
    QString disturbance; ///< the first member that could not be taken all the same, one sentence
};

bool ReportSubscriptions::take(const mms::InformationReport &information)
{
    if (!acsi::isReport(information) || m_subscriptions.empty())
        return false;
    mms::Result<acsi::Report> segment = acsi::decodeReport(information);
    if (!segment) {
        takeUnreadable(information, segment.error());
        return true;
    }
    const ReportStream::Taken taken = m_stream.take(*std::move(segment), steady_clock::now());
    for (const std::string &each : taken.ambiguous) {
        const SubscriptionPointer subscription = find(each);
        if (!subscription)
            continue;
        // Nothing that this block may have said can be believed.
        trust(*subscription, false);
        fault(subscription, taken.faults.front());
    }
    const SubscriptionPointer subscription = find(taken.block);
    if (!subscription)
        return !taken.ambiguous.empty();
    for (const ReportFault each : taken.faults) {
        if (each == ReportFault::OtherDataSet)
            subscription->needsMembers = true;
        if (each != ReportFault::UnknownMember)
            fault(subscription, each);
    }
    if (!taken.report)
        return true;
    ++subscription->reports;
    publish(*subscription, taken);
    post(*subscription, taken);
    if (!taken.report->entryId.empty())
        m_entries.set(text(subscription->reference), subscription->terms, taken.report->entryId);
    const std::vector<acsi::ReportMember> &members = taken.report->members;
    const bool isWhole = !members.empty() && members.size() == taken.report->dataSetSize;
    const bool isInterrogation =
        isWhole && std::ranges::all_of(members, [&](const acsi::ReportMember &member) {
            return member.reason ? member.reason->generalInterrogation : subscription->isAsked;
        });
    if (isInterrogation) {
        // The operator has looked at everything as it is now.
        subscription->isAsked = false;
        if (subscription->faults.erase(ReportFault::Overflow) != 0)
            tell(*subscription);
    }
    m_connection.count(&DeviceCounters::reports);
    return true;
}

void ReportSubscriptions::takeUnreadable(const mms::InformationReport &information,
                                         const mms::Error &error)
{
    m_connection.count(&DeviceCounters::unreadableReports);
    for (const std::string &each : m_stream.named(acsi::reportIdOf(information))) {
        const SubscriptionPointer subscription = find(each);
        if (!subscription)
            continue;
        // Polled again until a report can be read.
        trust(*subscription, false);
        fault(subscription, ReportFault::Unreadable, text(error.message));
        post(*subscription, subscription->faults[ReportFault::Unreadable]);
    }
}

void ReportSubscriptions::publish(Subscription &subscription, const ReportStream::Taken &taken)
{
    const acsi::Report &report = *taken.report;
    const QString block = text(subscription.reference);
    const Companions companions = companionsOf(taken);
    const std::optional<mms::Data> entryTime =
        report.timeOfEntry ? std::optional(mms::Data::binaryTime(*report.timeOfEntry))
                           : std::nullopt;
    QString unknown;
    QString valueless;
    for (std::size_t i = 0; i < report.members.size(); ++i) {
        const acsi::ReportMember &member = report.members[i];
        const acsi::Reference &reference = taken.references[i];
        if (reference.node.empty()) {
            const bool isOther = std::ranges::count(taken.faults, ReportFault::OtherDataSet) != 0;
            if (!isOther)
                unknown =
                    Texts::tr("The member %1 of the data set of %2 is no data of the device's "
                              "model.")
                        .arg(member.index + 1)
                        .arg(block);
            continue;
        }
        if (!member.value.ok()) {
            valueless =
                Texts::tr("The reports of %1 have no value for %2: %3.")
                    .arg(block, text(reference),
                         ConnectionText::withoutPeriod(text(mms::describe(member.value.error()))));
            continue;
        }
        const std::string name = acsi::toText(reference);
        ValuePublishing::Publication publication;
        publication.cause = causeOf(member);
        publication.quality = companions.quality(name);
        publication.time = companions.time(name);
        if (!publication.time && entryTime)
            publication.time = &*entryTime;
        if (isDescribedInParts(m_connection.model(), reference)) {
            unknown = Texts::tr("The device described %1 in parts only, so what the reports of %2 "
                                "say of it cannot be understood; it is polled.")
                          .arg(text(name), block);
        } else if (!m_connection.values().publish(reference, member.value.data(), publication)) {
            unknown = Texts::tr("A value of %1 in the reports of %2 does not have the form of its "
                                "type.")
                          .arg(text(name), block);
        } else if (member.index < subscription.reportedAt.size()) {
            subscription.reportedAt[member.index] = subscription.reports;
        }
    }
    const SubscriptionPointer self = find(subscription.reference);
    const auto tellOf = [&](ReportFault kind, const QString &sentence) {
        const bool isNew = !sentence.isEmpty() && subscription.faults[kind] != sentence;
        if (sentence.isEmpty()) {
            if (subscription.faults.erase(kind) != 0)
                tell(subscription);
        } else if (isNew && self) {
            fault(self, kind, sentence);
        }
    };
    tellOf(ReportFault::UnknownMember, unknown);
    tellOf(ReportFault::NoValue, valueless);
    if (taken.faults.empty() && subscription.life.isTaking())
        trust(subscription, true);
}

void ReportSubscriptions::post(const Subscription &subscription, const ReportStream::Taken &taken)
{
    const ConnectionEnvironment &environment = m_connection.environment();
    if (!environment.wantsReports || !environment.wantsReports())
        return;
    const acsi::Report &report = *taken.report;
    ReportEvent event;
    event.number = m_connection.configuration().number;
    event.device = m_connection.configuration().name;
    event.block = text(subscription.reference);
    event.rptId = text(report.rptId);
    if (report.sqNum)
        event.sequenceNumber = *report.sqNum;
    event.entryId = QByteArray(reinterpret_cast<const char *>(report.entryId.data()),
                               static_cast<int>(report.entryId.size()));
    if (report.timeOfEntry)
        event.timeOfEntry = ValueConversion::timeText(mms::Data::binaryTime(*report.timeOfEntry));
    event.arrival = QDateTime::currentDateTime();
    event.bufferOverflow = report.bufOvfl.value_or(false);
    const Companions companions = companionsOf(taken);
    for (std::size_t i = 0; i < report.members.size(); ++i) {
        event.members +=
            eventMembers(m_connection.model(), taken.references[i], report.members[i], companions);
    }
    m_connection.count(&DeviceCounters::droppedEvents, environment.reportReceived(event));
}

void ReportSubscriptions::post(const Subscription &subscription, const QString &missing)
{
    const ConnectionEnvironment &environment = m_connection.environment();
    if (!environment.wantsReports || !environment.wantsReports())
        return;
    ReportEvent event;
    event.number = m_connection.configuration().number;
    event.device = m_connection.configuration().name;
    event.block = text(subscription.reference);
    event.arrival = QDateTime::currentDateTime();
    event.missing = missing;
    m_connection.count(&DeviceCounters::droppedEvents, environment.reportReceived(event));
}

void ReportSubscriptions::fault(const SubscriptionPointer &subscription, ReportFault fault,
                                const QString &detail)
{
    const QString sentence = sentenceOf(fault, text(subscription->reference), detail);
    subscription->faults[fault] = sentence;
    if (isMissing(fault)) {
        m_connection.count(&DeviceCounters::reportGaps);
        post(*subscription, sentence);
    } else if (fault != ReportFault::Unreadable) {
        m_connection.count(&DeviceCounters::unreadableReports);
    }
    tell(*subscription);
    mend(subscription);
}

void ReportSubscriptions::tell(const Subscription &subscription)
{
    QStringList sentences;
    for (const auto &each : subscription.faults)
        sentences.append(each.second);
    sentences.removeDuplicates();
    m_connection.setProblem(text(subscription.reference), sentences.join(QLatin1Char(' ')));
}

void ReportSubscriptions::trust(Subscription &subscription, bool trusted)
{
    if (subscription.isTrusted == trusted)
        return;
    subscription.isTrusted = trusted;
    const ReportStream::Block *block = m_stream.find(subscription.reference);
    std::vector<acsi::Reference> members;
    if (trusted && block)
        members = block->members;
    m_connection.polling().setReported(text(subscription.reference), members,
                                       subscription.coverage);
}

void ReportSubscriptions::mend(const SubscriptionPointer &subscription)
{
    subscription->mending.need();
    const ClientPointer client = m_connection.client();
    if (subscription->isMending || !client || !subscription->life.isTaking())
        return;
    subscription->isMending = true;
    asio::co_spawn(m_connection.strand(),
                   mendWhileNeeded(m_connection.shared_from_this(), subscription, client),
                   [subscription](const std::exception_ptr &) { subscription->isMending = false; });
}

asio::awaitable<void>
ReportSubscriptions::mendWhileNeeded(std::shared_ptr<DeviceConnection> connection,
                                     SubscriptionPointer subscription, ClientPointer client)
{
    const DataSetMending &mending = subscription->mending;
    while (client->isOpen() && isCurrent(subscription) && subscription->life.isTaking() &&
           mending.isNeeded()) {
        const auto now = steady_clock::now();
        if (mending.isDue(now)) {
            co_await mendOnce(subscription, client);
        } else {
            const auto left = std::chrono::ceil<milliseconds>(mending.next() - now);
            co_await connection->pause(std::max(left, shortestPause));
        }
    }
}

asio::awaitable<void> ReportSubscriptions::mendOnce(SubscriptionPointer subscription,
                                                    ClientPointer client)
{
    subscription->mending.begin(steady_clock::now());
    const bool isRepair = !subscription->faults.empty();
    if (subscription->needsMembers) {
        subscription->needsMembers = false;
        const mms::Result<acsi::ReportBlock> live =
            co_await acsi::readReportBlock(client, subscription->block);
        if (live && isCurrent(subscription)) {
            subscription->datSet = live->datSet;
            std::vector<acsi::Reference> members =
                co_await membersOf(client, subscription->block, live->datSet);
            subscription->reportedAt.assign(members.size(), subscription->reports);
            m_stream.setMembers(subscription->reference, std::move(members));
            m_stream.settle(subscription->reference, live->rptId, live->optFlds, live->confRev);
            if (subscription->isTrusted) {
                trust(*subscription, false);
                trust(*subscription, true);
            }
        }
    }
    const Mended mended = co_await readMembers(subscription, client);
    const bool isWell = subscription->mending.ended(mended.isRead, steady_clock::now());
    if (!isCurrent(subscription) || !subscription->life.isTaking())
        co_return;
    if (mended.isRead && isRepair)
        m_connection.count(&DeviceCounters::dataSetReadings);
    if (isWell)
        std::erase_if(subscription->faults,
                      [](const auto &each) { return !outlastsReading(each.first); });
    if (!mended.disturbance.isEmpty())
        subscription->faults[ReportFault::NoValue] = mended.disturbance;
    tell(*subscription);
}

asio::awaitable<ReportSubscriptions::Mended>
ReportSubscriptions::readMembers(SubscriptionPointer subscription, ClientPointer client)
{
    Mended mended;
    const QString block = text(subscription->reference);
    const ReportStream::Block *const followed = m_stream.find(subscription->reference);
    const mms::Result<mms::ObjectName> name =
        acsi::dataSetName(subscription->block.device, subscription->datSet);
    if (!followed || !name) {
        mended.isRead = true;
        co_return mended;
    }
    const std::vector<acsi::Reference> members = followed->members;
    if (members.empty()) {
        // Only reports say what is in the data set.
        mended.isRead = true;
        if (subscription->faults.empty())
            co_return mended;
        const auto change = ChangeGate::own(
            m_connection, intentOf(subscription->block, "GI", "true", ChangeIntent::Kind::Wanted));
        const auto changing = change->client();
        Outcome outcome;
        if (!changing) {
            outcome = change->refusal();
        } else {
            const mms::Result<void> interrogated = co_await acsi::writeReportAttribute(
                changing, subscription->block, "GI", mms::Data::boolean(true));
            if (!interrogated)
                outcome = Outcome::failed(interrogated.error());
        }
        change->end(outcome);
        if (!outcome)
            mended.disturbance =
                Texts::tr("The data set of %1 cannot be read: %2").arg(block, outcome.error);
        co_return mended;
    }
    const std::uint64_t asked = subscription->reports;
    ValuePublishing::Publication publication;
    publication.cause = PublishCause::Polled;
    publication.onlyChanges = true;
    publication.asOf = steady_clock::now();
    mms::Result<std::vector<mms::AccessResult>> values = co_await client->readList(*name);
    const bool areAllNamed = std::ranges::all_of(
        members, [](const acsi::Reference &member) { return !member.node.empty(); });
    if (!values && areAllNamed && client->isOpen()) {
        // The device cannot give them together.
        std::vector<mms::VariableAccess> single;
        for (const acsi::Reference &member : members)
            single.push_back(acsi::accessOf(member));
        values = co_await client->read(std::move(single));
    }
    if (!values || values->size() != members.size()) {
        subscription->needsMembers = values.ok();
        mended.disturbance = values ? Texts::tr("The data set of %1 has %2 members instead of %3.")
                                          .arg(block)
                                          .arg(values->size())
                                          .arg(members.size())
                                    : Texts::tr("The data set of %1 cannot be read: %2")
                                          .arg(block, text(values.error().message));
        co_return mended;
    }
    mended.isRead = true;
    std::vector<acsi::Reference> inParts;
    for (std::size_t i = 0; i < values->size(); ++i) {
        // What a report has brought meanwhile is newer.
        const bool isNewer =
            i < subscription->reportedAt.size() && subscription->reportedAt[i] > asked;
        const mms::AccessResult &value = (*values)[i];
        if (members[i].node.empty()) {
            mended.disturbance =
                Texts::tr("The member %1 of the data set of %2 is no data of the device's model.")
                    .arg(i + 1)
                    .arg(block);
        } else if (!value.ok()) {
            mended.disturbance =
                Texts::tr("The data set of %1 has no value for %2: %3.")
                    .arg(block, text(members[i]),
                         ConnectionText::withoutPeriod(text(mms::describe(value.error()))));
        } else if (isDescribedInParts(m_connection.model(), members[i])) {
            inParts.push_back(members[i]);
        } else if (!isNewer &&
                   !m_connection.values().publish(members[i], value.data(), publication)) {
            mended.disturbance =
                Texts::tr("A value of %1 in the data set of %2 does not have the form of its type.")
                    .arg(text(members[i]), block);
        }
    }
    if (!inParts.empty()) {
        const Outcome outcome =
            co_await m_connection.values().readAndPublish(std::move(inParts), publication);
        if (!outcome)
            mended.disturbance = outcome.error;
    }
    co_return mended;
}
