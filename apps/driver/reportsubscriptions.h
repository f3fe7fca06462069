// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deviceconnection.h"

#include "acsi/reportblock.h"

#include <QtCore/QString>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct ReportSubscription;

/// The report control blocks that the driver has enabled on a device: publishes what their reports
/// bring, gives them back when the device is left, and enables them again once a lost association
/// stands again, buffered ones behind the last entry that came. In the strand of the connection.
class ReportSubscriptions : public AssociationPart
{
public:
    explicit ReportSubscriptions(DeviceConnection &connection);
    ~ReportSubscriptions() override;

    asio::awaitable<void> opened() override;
    asio::awaitable<void> leaving() override;
    void closed(const QString &reason) override;

    /// Reserves the block, writes what differs from @p settings attribute by attribute, enables it
    /// and takes its reports. An association is there.
    asio::awaitable<Outcome> enable(acsi::Reference block, acsi::ReportSettings settings);
    /// Disables the block and gives up its reservation.
    asio::awaitable<Outcome> disable(acsi::Reference block);

    /// That the operator has reserved a block, or given up its reservation.
    void setReserved(const acsi::Reference &block, bool reserved);
    /// That the entries of a buffered block are gone.
    void forgetEntries(const acsi::Reference &block);

private:
    using Octets = std::vector<std::uint8_t>;
    using SubscriptionPointer = std::shared_ptr<ReportSubscription>;

    void listen();
    bool take(const mms::InformationReport &information);
    SubscriptionPointer subscriptionOf(const acsi::Report &report) const;
    void publish(ReportSubscription &subscription, const acsi::Report &report);
    /// Enables the block of the subscription on the device.
    asio::awaitable<Outcome> start(SubscriptionPointer subscription);
    /// Enables the block again that the operator wanted to be.
    asio::awaitable<void> resume(SubscriptionPointer subscription, QString why);
    asio::awaitable<void> findMembers(SubscriptionPointer subscription,
                                      std::shared_ptr<acsi::Client> client);
    asio::awaitable<void> readMembers(SubscriptionPointer subscription,
                                      std::shared_ptr<acsi::Client> client);
    asio::awaitable<void> watch(std::shared_ptr<acsi::Client> client);
    void stop(ReportSubscription &subscription);
    void journal(const ReportSubscription &subscription, const QString &oldValue,
                 const QString &newValue, const QString &error) const;

    DeviceConnection &m_connection;
    std::weak_ptr<acsi::Client> m_heard;                        ///< whose reports are heard
    std::map<std::string, SubscriptionPointer> m_subscriptions; ///< by the block's reference
    std::map<std::string, Octets> m_lastEntries;                ///< of buffered blocks, likewise
    std::map<std::string, acsi::Reference> m_reserved;          ///< by the operator alone
    acsi::ReportAssembler m_assembler;
};

/// How the operator's tools and a device name the data set of a block in the control block itself.
namespace ReportDataSet {

/// The bare name for a data set of the block's logical node, otherwise "LD/LN$name" or "@name".
QString shown(const acsi::Reference &block, const std::string &device);
/// The device's form of what the operator gave; as it stands when it is no name of a data set.
std::string wire(const acsi::Reference &block, const QString &shown);

} // namespace ReportDataSet

/// The settings of a block for a journal.
QString describe(const acsi::ReportBlock &block);
