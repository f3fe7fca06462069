// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/publishcause.h"
#include "driver/model/leafrange.h"
#include "driver/model/onlinemodel.h"
#include "outcome.h"

#include "acsi/reference.h"
#include "mms/data.h"

#include <devicemodel/dataattribute.h>
#include <devicemodel/mmsvalue.h>

#include <asio/awaitable.hpp>

#include <QtCore/QByteArray>
#include <QtCore/QHash>

#include <chrono>
#include <cstdint>
#include <set>
#include <vector>

class DeviceConnection;
class ValueCurrency;

/// The way from what a device answers to published values: taking data apart to the leaves of the
/// model, what is new of them, reading for an operator. In the strand of the connection, which
/// outlives it.
class ValuePublishing
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// What goes with published values.
    struct Publication
    {
        std::uint32_t cause = PublishCause::Read;
        bool onlyChanges = false; ///< leave out values that are known already
        /// The values are not older: when they were asked for, or came. Now when it is not given.
        Time asOf{};
        /// For values without a time, or a quality, of their own.
        const mms::Data *time = nullptr;
        const mms::Data *quality = nullptr;
    };

    explicit ValuePublishing(DeviceConnection &connection);

    /// Nobody shows what he wrote in vain any more: an association has a model, or has ended.
    void forgetUnwritten() { m_unwritten.clear(); }

    /// Takes the data apart, keeps the values in the model and publishes them. A value that is
    /// older than what is known is dropped; who reads hears what is known instead. False when the
    /// data does not fit the live type.
    bool publish(const acsi::Reference &reference, const mms::Data &data,
                 const Publication &publication);
    /// The same for what was looked up before, in records that send() publishes together.
    bool add(std::vector<MMSValue> &records, const OnlineModel::Found &found, const mms::Data &data,
             const Publication &publication);
    /// A quality that came alone belongs to values that are known already.
    void addQualityOf(std::vector<MMSValue> &records,
                      const std::vector<OnlineModel::Accompanied> &leaves, const mms::Data &data,
                      std::uint32_t cause);
    void send(std::vector<MMSValue> records);
    /// Reads the variables and publishes what came; one sentence names those that failed. What is
    /// refused or too large as a whole is read in parts.
    asio::awaitable<Outcome> readAndPublish(std::vector<acsi::Reference> references,
                                            Publication publication);

    /// The device has accepted a value: what was asked for before is old.
    void haveWritten(const acsi::Reference &reference);
    /// A value was not written: publishes what the device has instead, soon and for some time,
    /// since whoever wrote shows what he wrote until he has read why it was refused.
    void showUnwritten(const acsi::Reference &reference);

    /// The model with the values of now, as PhysicalDevice::fromStream() reads it. Values that
    /// change shortly after are published again a little later, since a browser that opens with
    /// these bytes does not listen yet.
    QByteArray modelBytes();

private:
    OnlineModel *model() const;
    ValueCurrency *currency() const;
    MMSValue knownRecord(const OnlineModel::Accompanied &leaf, std::uint32_t cause) const;
    void publishKnown(const LeafRange &leaves, std::uint32_t cause);
    asio::awaitable<void> keepShowing(acsi::Reference reference);
    asio::awaitable<void> republish();
    /// The references, each as what has to be read to get it; those that the model does not know as
    /// they are.
    std::vector<acsi::Reference>
    inReadableParts(const std::vector<acsi::Reference> &references) const;

    DeviceConnection &m_connection;
    std::set<std::uint32_t> m_unwritten; ///< leaves with a refused write that somebody may show
    QHash<QString, MMSValue> m_recent;   ///< values to be published again
    int m_recentUsers = 0;
};
