// SPDX-License-Identifier: Apache-2.0
// ReportSubscriptions: what reports bring, and what they say is missing.
#include "reportsubscriptions.h"

#include "driver/model/valueconversion.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"
#include "valuepolling.h"
#include "valuepublishing.h"

#include "mms/datatext.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <set>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

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

/// A member as an event tells it, leaf by leaf.
QVector<ReportEventMember> eventMembers(const OnlineModel *model, const ReportedValues &values,
                                        std::size_t place, const acsi::ReportMember &member)
{
    const ReportedMembers::Member &known = values.member(place);
    ReportEventMember common;
    common.reference = known.reference.node.empty() ? text(member.reference) : known.found.name;
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
    const bool fits = model && model->forEachLeaf(known.found, data, visit);
    if (!fits || leaves.empty()) {
        common.value = text(mms::toText(data));
        common.error = Texts::tr("the value does not have the form of its type");
        return {common};
    }
    QVector<ReportEventMember> result;
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
        if (const mms::Data *quality = leaf.quality ? leaf.quality : values.quality(place))
            each.quality = ValueConversion::qualityText(*quality);
        if (const mms::Data *time = leaf.time ? leaf.time : values.time(place))
            each.timeStamp = ValueConversion::timeText(*time);
        result.append(each);
    }
    return result;
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

bool ReportSubscriptions::take(mms::InformationReport &information)
{
    // Whose it is not keeps its values.
    if (!acsi::isReport(information) || m_stream.isEmpty())
        return false;
    const std::string rptId = acsi::reportIdOf(information);
    mms::Result<acsi::Report> segment = acsi::decodeReport(std::move(information));
    if (!segment) {
        takeUnreadable(rptId, segment.error());
        return true;
    }
    const ReportStream::Taken taken = m_stream.take(*std::move(segment), m_connection.now());
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
        return true;
    for (const ReportFault each : taken.faults) {
        if (each == ReportFault::OtherDataSet)
            subscription->needsMembers = true;
        if (each != ReportFault::UnknownMember)
            fault(subscription, each);
    }
    if (!taken.report)
        return true;
    ++subscription->reports;
    // Looked up for this report alone only when it says itself what it brings.
    ReportedMembers given(taken.references);
    ReportedMembers &reported = taken.areInPlace ? subscription->members : given;
    reported.use(m_connection.model());
    const ReportedValues values(reported, taken.areInPlace, *taken.report);
    publish(*subscription, taken, values);
    post(*subscription, *taken.report, values);
    if (!taken.report->entryId.empty())
        m_entries.set(subscription->name, subscription->terms, taken.report->entryId);
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

void ReportSubscriptions::takeUnreadable(const std::string &rptId, const mms::Error &error)
{
    m_connection.count(&DeviceCounters::unreadableReports);
    for (const std::string &each : m_stream.named(rptId)) {
        const SubscriptionPointer subscription = find(each);
        if (!subscription)
            continue;
        // Polled again until a report can be read.
        trust(*subscription, false);
        fault(subscription, ReportFault::Unreadable, text(error.message));
        post(*subscription, subscription->faults[ReportFault::Unreadable]);
    }
}

void ReportSubscriptions::publish(Subscription &subscription, const ReportStream::Taken &taken,
                                  const ReportedValues &values)
{
    const acsi::Report &report = *taken.report;
    const QString &block = subscription.name;
    const std::optional<mms::Data> entryTime =
        report.timeOfEntry ? std::optional(mms::Data::binaryTime(*report.timeOfEntry))
                           : std::nullopt;
    const bool isOther = std::ranges::count(taken.faults, ReportFault::OtherDataSet) != 0;
    ValuePublishing &publishing = m_connection.values();
    ValuePublishing::Publication publication;
    publication.asOf = m_connection.now();
    std::vector<MMSValue> records;
    records.reserve(report.members.size());
    QString unknown;
    QString valueless;
    for (std::size_t i = 0; i < report.members.size(); ++i) {
        const acsi::ReportMember &member = report.members[i];
        const ReportedMembers::Member &known = values.member(i);
        if (known.reference.node.empty()) {
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
                    .arg(block, text(known.reference),
                         ConnectionText::withoutPeriod(text(mms::describe(member.value.error()))));
            continue;
        }
        const mms::Data &data = member.value.data();
        publication.cause = causeOf(member);
        publication.quality = values.quality(i);
        publication.time = values.time(i);
        if (!publication.time && entryTime)
            publication.time = &*entryTime;
        if (known.isInParts) {
            unknown = Texts::tr("The device described %1 in parts only, so what the reports of %2 "
                                "say of it cannot be understood; it is polled.")
                          .arg(text(known.reference), block);
        } else if (!publishing.add(records, known.found, data, publication)) {
            unknown = Texts::tr("A value of %1 in the reports of %2 does not have the form of its "
                                "type.")
                          .arg(text(known.reference), block);
        } else {
            if (data.kind() == mms::Data::Kind::BitString)
                publishing.addQualityOf(records, known.qualityOf, data, publication.cause);
            if (member.index < subscription.reportedAt.size())
                subscription.reportedAt[member.index] = subscription.reports;
        }
    }
    publishing.send(std::move(records));
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

void ReportSubscriptions::post(const Subscription &subscription, const acsi::Report &report,
                               const ReportedValues &values)
{
    const ConnectionEnvironment &environment = m_connection.environment();
    if (!environment.wantsReports || !environment.wantsReports())
        return;
    ReportEvent event;
    event.number = m_connection.configuration().number;
    event.device = m_connection.configuration().name;
    event.block = subscription.name;
    event.rptId = text(report.rptId);
    if (report.sqNum)
        event.sequenceNumber = *report.sqNum;
    event.entryId = QByteArray(reinterpret_cast<const char *>(report.entryId.data()),
                               static_cast<int>(report.entryId.size()));
    if (report.timeOfEntry)
        event.timeOfEntry = ValueConversion::timeText(mms::Data::binaryTime(*report.timeOfEntry));
    event.arrival = QDateTime::currentDateTime();
    event.bufferOverflow = report.bufOvfl.value_or(false);
    for (std::size_t i = 0; i < report.members.size(); ++i)
        event.members += eventMembers(m_connection.model(), values, i, report.members[i]);
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
    event.block = subscription.name;
    event.arrival = QDateTime::currentDateTime();
    event.missing = missing;
    m_connection.count(&DeviceCounters::droppedEvents, environment.reportReceived(event));
}

void ReportSubscriptions::fault(const SubscriptionPointer &subscription, ReportFault fault,
                                const QString &detail)
{
    const QString sentence = sentenceOf(fault, subscription->name, detail);
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
