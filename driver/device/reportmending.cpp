// SPDX-License-Identifier: Apache-2.0
// ReportSubscriptions: how what reports lose is made good, by reading the data set whole.
#include "reportsubscriptions.h"

#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"
#include "valuepolling.h"
#include "valuepublishing.h"

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

constexpr milliseconds shortestPause{20};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

/// Not made good by reading the data: what came between is gone.
bool outlastsReading(ReportFault fault)
{
    return fault == ReportFault::Overflow;
}

} // namespace

/// What came of reading a data set.
struct ReportSubscriptions::Mended
{
    bool isRead = false; ///< an answer for every member has come
    QString disturbance; ///< the first member that could not be taken all the same, one sentence
};

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
        const auto now = m_connection.now();
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
    subscription->mending.begin(m_connection.now());
    const bool isRepair = !subscription->faults.empty();
    if (subscription->needsMembers) {
        subscription->needsMembers = false;
        const mms::Result<acsi::ReportBlock> live =
            co_await acsi::readReportBlock(client, subscription->block);
        std::vector<acsi::Reference> members;
        if (live)
            members = co_await membersOf(client, subscription->block, live->datSet);
        if (live && client->isOpen() && isCurrent(subscription)) {
            subscription->datSet = live->datSet;
            subscription->reportedAt.assign(members.size(), subscription->reports);
            m_stream.setMembers(subscription->reference, std::move(members));
            setMembers(*subscription);
            m_stream.settle(subscription->reference, live->rptId, live->optFlds, live->confRev);
            if (subscription->isTrusted) {
                trust(*subscription, false);
                trust(*subscription, true);
            }
        }
    }
    const Mended mended = co_await readMembers(subscription, client);
    const bool isWell = subscription->mending.ended(mended.isRead, m_connection.now());
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
    publication.asOf = m_connection.now();
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
        } else if (m_connection.model() && m_connection.model()->isInParts(members[i])) {
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
