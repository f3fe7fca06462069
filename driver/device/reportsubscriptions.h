// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "changegate.h"
#include "deviceconnection.h"
#include "driver/core/reportcoverage.h"
#include "driver/core/reportstream.h"
#include "driver/core/subscriptionlife.h"
#include "lastentries.h"
#include "reportedmembers.h"
#include "reporttexts.h"

#include "acsi/reportblock.h"

#include <remoteclient/records.h>

#include <QtCore/QString>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// The report control blocks that the driver has enabled on a device: publishes what their reports
/// bring, tells and mends what they lose, gives them back when the device is left, and enables them
/// again once a lost association stands again, buffered ones behind the last entry that came. In
/// the strand of the connection.
///
/// Operations on one block wait for each other, also for the undoing of one that was given up.
class ReportSubscriptions : public AssociationPart
{
public:
    explicit ReportSubscriptions(DeviceConnection &connection);
    ~ReportSubscriptions() override;

    asio::awaitable<void> opened() override;
    asio::awaitable<void> leaving() override;
    void closed(const QString &reason) override;

    /// Reserves the block, writes what differs from @p settings attribute by attribute, enables it
    /// and takes its reports. A block that somebody else has enabled is left alone. When that ends
    /// in the middle, what was done is undone, or journalled as left behind.
    asio::awaitable<Outcome> enable(ChangePointer change, acsi::Reference block,
                                    acsi::ReportSettings settings);
    /// Disables the block and gives up its reservation, or ends the waiting for it. A block that
    /// another computer has enabled is left alone.
    asio::awaitable<Outcome> disable(ChangePointer change, acsi::Reference block);

    /// That the operator has reserved a block, or given up its reservation.
    void setReserved(const acsi::Reference &block, bool reserved);
    /// That the entries of a buffered block are gone.
    void forgetEntries(const acsi::Reference &block);
    /// That the operator has asked for a general interrogation.
    void setInterrogated(const acsi::Reference &block);

    /// A block as it was last shown to the operator, so that what he did not change is not written.
    struct Shown
    {
        ReportBlock record;
        acsi::ReportBlock block;
    };
    void setShown(const acsi::Reference &block, Shown shown);
    /// Null when it was never shown.
    const Shown *shown(const acsi::Reference &block) const;
    /// Who has the block, one sentence, when that is not this driver; empty otherwise.
    QString holderSentence(const acsi::Reference &block, const acsi::ReportBlock &read) const;

private:
    struct Subscription;
    using SubscriptionPointer = std::shared_ptr<Subscription>;
    using ClientPointer = std::shared_ptr<acsi::Client>;
    /// The right to work on a block, until it is destroyed.
    using Turn = std::shared_ptr<void>;
    struct Mended;

    asio::awaitable<Turn> turn(std::string reference);
    void listen();
    SubscriptionPointer find(const std::string &reference) const;
    bool isCurrent(const SubscriptionPointer &subscription) const;
    ReportControlBlock *shownInModel(const acsi::Reference &block) const;

    /// Enables the block of the subscription on the device; by itself without a change that an
    /// operator has asked for.
    asio::awaitable<Outcome> start(SubscriptionPointer subscription, ChangePointer asked);
    ChangePointer ownChange(const Subscription &subscription);
    asio::awaitable<acsi::ReportSettings> prepare(SubscriptionPointer subscription,
                                                  ClientPointer client,
                                                  const acsi::ReportBlock &before);
    void started(const SubscriptionPointer &subscription, const acsi::ReportBlock &enabled);
    /// @param change null when nothing was to be written yet, and nobody has asked for it
    Outcome ended(const SubscriptionPointer &subscription, Change *change,
                  SubscriptionLife::Result result, const QString &oldValue, const QString &newValue,
                  const QString &error);
    /// Undoes what stands in the trace of a subscription that was not enabled.
    void undo(const SubscriptionPointer &subscription, Turn turn);
    asio::awaitable<void> undone(std::shared_ptr<DeviceConnection> connection,
                                 SubscriptionPointer subscription, ClientPointer client, Turn turn);
    /// Enables the block again that the operator wanted to be.
    asio::awaitable<void> resume(SubscriptionPointer subscription, QString why);
    asio::awaitable<std::vector<acsi::Reference>>
    membersOf(ClientPointer client, acsi::Reference block, std::string datSet);
    asio::awaitable<void> watch(ClientPointer client);
    asio::awaitable<void> lookAtBlocks(ClientPointer client);
    asio::awaitable<void> lookAtHolders(ClientPointer client);
    /// Takes over the members by which the stream reads the reports of the block.
    void setMembers(Subscription &subscription) const;
    void stop(Subscription &subscription);
    ChangeIntent intentOf(const acsi::Reference &block, const char *attribute, const char *value,
                          ChangeIntent::Kind kind) const;
    /// Tells the journal what was seen of a block that nothing was written to.
    void tellSeen(const Subscription &subscription, const QString &error) const;

    // What reports bring, in reporttaking.cpp:
    /// Moves the values out of a report that is taken.
    bool take(mms::InformationReport &information);
    void takeUnreadable(const std::string &rptId, const mms::Error &error);
    void publish(Subscription &subscription, const ReportStream::Taken &taken,
                 const ReportedValues &values);
    void post(const Subscription &subscription, const acsi::Report &report,
              const ReportedValues &values);
    void post(const Subscription &subscription, const QString &missing);
    void fault(const SubscriptionPointer &subscription, ReportFault fault,
               const QString &detail = {});
    void tell(const Subscription &subscription);
    void trust(Subscription &subscription, bool trusted);

    // How it is made good, in reportmending.cpp:
    /// Has the data set read whole, at once or as soon as the last reading is a little past.
    void mend(const SubscriptionPointer &subscription);
    asio::awaitable<void> mendWhileNeeded(std::shared_ptr<DeviceConnection> connection,
                                          SubscriptionPointer subscription, ClientPointer client);
    asio::awaitable<void> mendOnce(SubscriptionPointer subscription, ClientPointer client);
    asio::awaitable<Mended> readMembers(SubscriptionPointer subscription, ClientPointer client);

    DeviceConnection &m_connection;
    std::weak_ptr<acsi::Client> m_heard;                        ///< whose reports are heard
    std::map<std::string, SubscriptionPointer> m_subscriptions; ///< by the block's reference
    std::map<std::string, acsi::Reference> m_reserved;          ///< by the operator alone
    std::map<std::string, Shown> m_shown;                       ///< by the block's reference
    /// Blocks of others that the operator has looked at, until when that is told.
    std::map<std::string, std::chrono::steady_clock::time_point> m_noted;
    std::set<std::string> m_working;     ///< blocks that an operation works on
    std::set<std::string> m_leftEnabled; ///< by a try that could not be undone
    ReportStream m_stream;
    LastEntries m_entries;
};

/// A block that the operator wants to be enabled.
struct ReportSubscriptions::Subscription
{
    acsi::Reference block;
    std::string reference;   ///< of the block
    QString name;            ///< the same
    ReportedMembers members; ///< of its data set, while its reports are expected
    acsi::ReportSettings settings;
    SubscriptionLife life;
    DataSetMending mending;
    bool isMending = false;    ///< a coroutine is about it
    bool isUnwanted = false;   ///< the operator does not want it any more
    bool isTrusted = false;    ///< its data has left the fast polling where it is covered
    bool isAsked = false;      ///< a general interrogation was
    bool needsMembers = false; ///< the members of the data set have to be asked for again
    bool readsEntry = false;   ///< the reports of the buffered block carry no entry id
    std::string datSet;
    LastEntries::Terms terms;
    ReportCoverage coverage;
    std::map<ReportFault, QString> faults; ///< sentences
    std::uint64_t reports = 0;             ///< that came since it was enabled
    std::vector<std::uint64_t> reportedAt; ///< by member: the newest report with it
    std::shared_ptr<acsi::ReportBlockTrace> trace;
    std::weak_ptr<acsi::Client> client; ///< by which it was last tried
};
