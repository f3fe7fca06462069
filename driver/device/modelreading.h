// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/core/associationlife.h"
#include "driver/core/deviceidentity.h"
#include "driver/model/onlinemodel.h"

#include "acsi/client.h"
#include "acsi/discovery.h"

#include <asio/awaitable.hpp>

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class DeviceConnection;

/// The way from an association to a model: who is there, names and types, whether it is still the
/// device whose model is known, what its file says, revisions, control blocks, configuration. Later
/// it asks what of it may have changed. Keeps the model between associations. In the strand of the
/// connection, which outlives it.
class ModelReading
{
public:
    using ClientPointer = std::shared_ptr<acsi::Client>;

    /// Why the device cannot be used; an empty sentence when its model is there.
    struct Refusal
    {
        QString sentence;
        AssociationLife::Failure kind = AssociationLife::Failure::Lost;
    };

    explicit ModelReading(DeviceConnection &connection);

    /// All that is to be known before the device is online.
    asio::awaitable<Refusal> read(ClientPointer client);
    /// Ends the reading of names and types, which takes the longest.
    void cancel();
    /// The association has ended: nobody knows who answers next.
    void end() { m_identity = {}; }

    /// Null until the model has been read for the first time.
    OnlineModel *model() const { return m_model.get(); }
    /// Who is there; known while the model belongs to the present association.
    const DeviceIdentity &identity() const { return m_identity; }
    /// Returns when the device has said who it is, or will not.
    asio::awaitable<void> identified(ClientPointer client);
    /// It has not failed to say who it is, in whichever association.
    bool answersIdentify() const { return m_answersIdentify; }
    /// The block as the device's SCL file configures it; null when it does not, or without a file.
    const ReportControlBlock *configuredBlock(const QString &logicalDevice,
                                              const QString &reference) const;

    /// Asks which data sets there are now. Keeps what is known where the device does not tell soon.
    asio::awaitable<void> refreshDataSets();
    /// Asks which report control blocks are enabled now, by whomever.
    asio::awaitable<void> refreshReportBlocks();

private:
    void beginIdentifying(const ClientPointer &client);
    asio::awaitable<void> identify(ClientPointer client);
    /// Always the whole: a device may have become another under the same revision.
    asio::awaitable<mms::Result<acsi::ServerDescription>> fetchDescription(ClientPointer client,
                                                                           Refusal &refusal);
    void takeDescription(acsi::ServerDescription description, const QStringList &logicalDevices);
    /// Takes what the file says of the device with these logical devices; one sentence why it
    /// cannot be used.
    QString loadFile(const QStringList &logicalDevices);
    asio::awaitable<void> readRevisions(ClientPointer client);
    void takeIdentity(const ClientPointer &client, const QStringList &logicalDevices);
    asio::awaitable<void> readBlocks(ClientPointer client);

    DeviceConnection &m_connection;
    std::shared_ptr<OnlineModel> m_model;
    DeviceIdentity m_identity;
    QHash<QString, QString> m_revisions; ///< configuration revisions by logical device
    std::unique_ptr<PhysicalDevice> m_fromFile;
    std::optional<QStringList> m_fileFor; ///< the logical devices that the file was chosen for
    std::shared_ptr<std::atomic<bool>> m_cancelled; ///< while names and types are read
    bool m_isIdentifying = false;
    bool m_answersIdentify = true;
};
