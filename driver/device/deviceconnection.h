// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/devicechange.h"
#include "driver/administration/deviceconfiguration.h"
#include "driver/administration/devicestatus.h"
#include "driver/administration/publishcause.h"
#include "driver/administration/reportevent.h"
#include "driver/core/associationlife.h"
#include "driver/core/deviceidentity.h"
#include "driver/core/reportcoverage.h"
#include "driver/core/valuecurrency.h"
#include "driver/model/onlinemodel.h"
#include "livevalues.h"
#include "pducapture.h"

#include "acsi/client.h"
#include "acsi/discovery.h"
#include "acsi/readcalls.h"

#include <remoteclient/operationresult.h>

#include <asio/awaitable.hpp>
#include <asio/steady_timer.hpp>
#include <asio/strand.hpp>

#include <QtCore/QMap>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <typeindex>
#include <vector>

class DeviceConnection;

/// How an operation ended; an error holds one sentence for the operator.
struct Outcome
{
    OperationResult result = OperationSucceeded;
    QString error;

    static Outcome failed(const QString &sentence);
    static Outcome failed(const mms::Error &error);

    explicit operator bool() const { return result == OperationSucceeded; }
};

/// Something that lives with the associations of a device, such as its report subscriptions. Made
/// by DeviceConnection::part() at its first use, which may be while an association stands, and
/// destroyed with the connection; everything is called in the connection's strand. Each coroutine
/// is awaited before the next one is called.
class AssociationPart
{
public:
    AssociationPart() = default;
    virtual ~AssociationPart();
    Q_DISABLE_COPY(AssociationPart)

    /// An association stands and the model is known.
    virtual asio::awaitable<void> opened();
    /// The association is about to be concluded: give back what was reserved on the device.
    virtual asio::awaitable<void> leaving();
    /// The association has ended, orderly or not.
    virtual void closed(const QString &reason);
};

/// What a connection needs of the driver. Called in the strands of connections, several at a time.
struct ConnectionEnvironment
{
    std::shared_ptr<LiveValues> values;
    std::function<void(const DeviceStatus &)> statusChanged;
    std::function<void(const DeviceChange &)> changed;
    /// Takes every report, in order for each device; null when nobody wants them. Gives the number
    /// of older events of the device that had to be dropped for it.
    std::function<std::uint64_t(ReportEvent)> reportReceived;
    /// Claims the names of logical devices for the device that goes online; a sentence when another
    /// device has one of them, otherwise empty.
    std::function<QString(const QStringList &logicalDevices)> claim;
    std::function<void()> release;
    /// Whether nothing may be changed on devices at present.
    std::function<bool()> isReadOnly;
    /// Folder of what is remembered of devices between starts; empty for none.
    QString cacheFolder;
    std::size_t captureOctets = PduCapture::defaultLimit;
    /// Looks up hosts' names; without, the system does.
    osi::HostLookup::Function lookUp;
};

/// The driver's side of one device with an address: makes the association, keeps it, notices its
/// loss and makes it again; reads the model; runs operations.
///
/// Functions under "any thread" may be called from any thread; the others only in the strand, that
/// is from parts, from operations and from the handlers of client(). No state of the connection may
/// be relied on behind a co_await without looking again: the association may have ended meanwhile,
/// client() may be null or another one.
class DeviceConnection : public std::enable_shared_from_this<DeviceConnection>
{
    struct Private
    {
    };

public:
    using Strand = asio::strand<asio::any_io_executor>;
    /// An operation on the device. What it captures lives as long as it runs; it writes its results
    /// into shared memory, since the caller may have gone when its time is over.
    using Operation = std::function<asio::awaitable<Outcome>(std::shared_ptr<DeviceConnection>)>;

    /// What an operation waits for before it begins.
    enum class Need { Association, Model };

    static std::shared_ptr<DeviceConnection> create(asio::any_io_executor executor,
                                                    DeviceConfiguration configuration,
                                                    ConnectionEnvironment environment);
    DeviceConnection(Private, asio::any_io_executor executor, DeviceConfiguration configuration,
                     ConnectionEnvironment environment);
    ~DeviceConnection();

    // Any thread:

    const DeviceConfiguration &configuration() const { return m_configuration; }
    const Strand &strand() const { return m_strand; }
    DeviceStatus status() const;
    PduCapture &capture() const { return *m_capture; }

    /// Want an association from now on.
    void connect();
    /// Leave the device in an orderly way and want no association any more. @p left is called once
    /// the association is gone, in the strand.
    void disconnect(std::function<void()> left = {});
    /// End the association at once; the next operation makes a new one.
    void abort();
    /// End the association, if there is one, and whatever waits for it; for the end of the driver.
    void cutOff();
    /// Stop reading the model; the device is then disconnected.
    void cancelReading();
    /// Ends every operation that is under way, wherever it waits.
    void cancelOperations();
    /// Another device holds names of logical devices no longer.
    void namesReleased();

    /// Runs the operation in the strand and waits for its end in the calling thread, which must be
    /// none of the driver's. Ends at the latest after @p limit: then the operation is cancelled.
    /// A device that is not associated answers at once with OperationNotConnected and a sentence,
    /// unless its first association is being made or an abort left it: then that is waited for.
    Outcome perform(Need need, std::chrono::milliseconds limit, Operation operation);
    Outcome perform(Need need, Operation operation);

    // In the strand:

    /// Null without an association.
    const std::shared_ptr<acsi::Client> &client() const { return m_client; }
    /// Null until the model has been read for the first time.
    OnlineModel *model() const { return m_model.get(); }
    /// Who is there; known while the model belongs to the present association.
    const DeviceIdentity &identity() const { return m_identity; }

    /// The one part of that class; @p Part has a constructor that takes this connection and keeps
    /// it by reference.
    template <typename Part>
    Part &part()
    {
        std::unique_ptr<AssociationPart> &place = m_parts[std::type_index(typeid(Part))];
        if (!place)
            place = std::make_unique<Part>(*this);
        return static_cast<Part &>(*place);
    }

    /// What goes with published values.
    struct Publication
    {
        std::uint32_t cause = PublishCause::Read;
        bool onlyChanges = false; ///< leave out values that are known already
        /// The values are not older: when they were asked for, or came. Now when it is not given.
        std::chrono::steady_clock::time_point asOf{};
        /// For values without a time, or a quality, of their own.
        const mms::Data *time = nullptr;
        const mms::Data *quality = nullptr;
    };
    /// Takes the data apart, keeps the values in the model and publishes them. A value that is
    /// older than what is known is dropped; who reads hears what is known instead. False when the
    /// data does not fit the live type.
    bool publish(const acsi::Reference &reference, const mms::Data &data,
                 const Publication &publication);

    /// Data that comes by itself under @p source (a report control block), and which of its changes
    /// do. A leaf that ReportedData::covers() leaves the fast polling, never the slow one. An empty
    /// list takes the source away; the end of the association takes all.
    void setReported(const QString &source, const std::vector<acsi::Reference> &references,
                     const ReportCoverage &coverage);
    const ReportedData &reported() const { return m_reported; }

    /// Reads the variables and publishes what came; one sentence names those that failed. What is
    /// refused or too large as a whole is read in parts.
    asio::awaitable<Outcome> readAndPublish(std::vector<acsi::Reference> references,
                                            Publication publication);

    /// The device has accepted a value: what was asked for before is old.
    void haveWritten(const acsi::Reference &reference);
    /// A value was not written: publishes what the device has instead, soon and for some time,
    /// since whoever wrote shows what he wrote until he has read why it was refused.
    void showUnwritten(const acsi::Reference &reference);

    /// Something of the device does not work though it is online; one sentence for the operator,
    /// shown as the reason of the device's state. An empty one takes it away.
    void setProblem(const QString &source, const QString &sentence);

    /// The block as the device's SCL file configures it; null when it does not, or without a file.
    const ReportControlBlock *configuredBlock(const QString &logicalDevice,
                                              const QString &reference) const;
    bool isReadOnly() const { return m_environment.isReadOnly && m_environment.isReadOnly(); }
    bool isWanted() const { return m_life.isWanted(); }
    /// Returns after the time or sooner, whenever something has changed.
    asio::awaitable<void> pause(std::chrono::milliseconds time);

    /// Tells the host's journal. Time, number and device are filled in.
    void journal(DeviceChange change);
    void countReport() { ++m_reports; }
    /// Adds to one of the counters of the status.
    void count(std::uint64_t DeviceCounters::*counter, std::uint64_t by = 1);
    const ConnectionEnvironment &environment() const { return m_environment; }

    /// Returns when the device has said who it is, or will not.
    asio::awaitable<void> identified(std::shared_ptr<acsi::Client> client);

    /// The model with the values of now, as PhysicalDevice::fromStream() reads it. Values that
    /// change shortly after are published again a little later, since a browser that opens with
    /// these bytes does not listen yet.
    QByteArray modelBytes();
    /// Asks which data sets there are now. Keeps what is known where the device does not tell soon.
    asio::awaitable<void> refreshDataSets();
    /// Asks which report control blocks are enabled now, by whomever.
    asio::awaitable<void> refreshReportBlocks();

    QString notConnectedSentence() const;

private:
    using ClientPointer = std::shared_ptr<acsi::Client>;
    using Deadline = std::chrono::steady_clock::time_point;
    struct Pending;
    struct Attempt;

    static asio::awaitable<Outcome> run(std::shared_ptr<DeviceConnection> self, Need need,
                                        Deadline deadline, Operation operation);
    static asio::awaitable<void> attempt(std::shared_ptr<DeviceConnection> self,
                                         std::shared_ptr<Attempt> attempt);
    asio::awaitable<void> live();
    /// From connecting to the end of the association; why it ended, or never stood.
    asio::awaitable<QString> associate();
    asio::awaitable<void> beOnline(ClientPointer client);
    void dissociate(const QString &reason);
    asio::awaitable<void> watchOver(ClientPointer client);
    asio::awaitable<mms::CallOutcome> askForSignOfLife(ClientPointer client);
    /// Asks who is there, beside everything else: some devices say that they can tell and never do.
    asio::awaitable<void> identify(ClientPointer client);
    /// One sentence why the device cannot be used; empty when its model is there.
    asio::awaitable<QString> getReady(ClientPointer client);
    /// Always the whole: a device may have become another under the same revision.
    asio::awaitable<mms::Result<acsi::ServerDescription>> fetchDescription(ClientPointer client);
    asio::awaitable<void> readRevisions(ClientPointer client);
    asio::awaitable<void> readBlocks(ClientPointer client);
    asio::awaitable<void> poll(ClientPointer client);
    /// Begins to keep account of which values are current, with none.
    void makeCurrency(const ClientPointer &client);
    /// Asks for what m_currency wants and publishes what comes, until nothing more will be wanted,
    /// with @p untilIdle for the moment, or until the association ends.
    asio::awaitable<void> carryOut(ClientPointer client, bool untilIdle);
    void takeAnswer(ValueCurrency &currency, const ValueCurrency::Question &question,
                    acsi::ReadAnswer answer, Deadline asked);
    void followReports(ValueCurrency &currency);
    const LeafTriggers &triggersOf(std::uint32_t leaf);
    /// Status and problems say what is not current.
    void tellCurrency(const ValueCurrency &currency);
    /// The association has ended: all values are old.
    void valuesAreLost();
    std::vector<ValueCurrency::Part> partsOf(const ValueCurrency::Part &whole) const;
    MMSValue knownRecord(const DataAttribute &attribute, std::uint32_t cause) const;
    void publishKnown(const LeafRange &leaves, std::uint32_t cause);
    void publishQualityOf(const acsi::Reference &quality, const mms::Data &data,
                          const Publication &publication);
    asio::awaitable<void> keepShowing(acsi::Reference reference);
    void send(std::vector<MMSValue> records);
    asio::awaitable<void> readConfiguration(ClientPointer client);
    asio::awaitable<void> republish();
    asio::awaitable<Outcome> waitFor(Need need, Deadline deadline);
    /// The references, each as what has to be read to get it; those that the model does not know as
    /// they are.
    std::vector<acsi::Reference>
    inReadableParts(const std::vector<acsi::Reference> &references) const;

    void connectInStrand();
    /// Wants no association any more, for a reason of the driver's own or none.
    void leave(const QString &reason);
    void fail(const ClientPointer &client, const std::exception_ptr &exception);
    /// Takes what the file says of the device with these logical devices.
    QString loadFile(const QStringList &logicalDevices);
    QString problems() const;
    void setState(DeviceState state, const QString &reason = {});
    void updateStatus(const std::function<void(DeviceStatus &)> &change);
    void wake();
    acsi::ClientOptions clientOptions() const;
    void associationEnded(const mms::Text &reason);

    const DeviceConfiguration m_configuration;
    const ConnectionEnvironment m_environment;
    const Strand m_strand;
    const std::shared_ptr<PduCapture> m_capture;

    // In the strand:
    std::shared_ptr<acsi::Client> m_client;
    std::unique_ptr<OnlineModel> m_model;
    QHash<QString, QString> m_revisions; ///< configuration revisions by logical device
    std::unique_ptr<PhysicalDevice> m_fromFile;
    bool m_fileRead = false;
    QStringList m_fileFor; ///< the logical devices that the file was chosen for
    std::map<std::type_index, std::unique_ptr<AssociationPart>> m_parts;
    ReportedData m_reported;
    QMap<QString, QString> m_problems;         ///< by source
    std::shared_ptr<ValueCurrency> m_currency; ///< of the last association that had a model
    bool m_reportedChanged = false;
    std::vector<LeafTriggers> m_triggers; ///< by leaf, as far as they were needed
    std::vector<bool> m_knowsTriggers;    ///< by leaf
    std::uint64_t m_toldChanges = 0;      ///< of m_currency
    Deadline m_nextTelling;               ///< of what is not current
    std::set<std::uint32_t> m_unwritten;  ///< leaves with a refused write that somebody may show
    std::shared_ptr<std::atomic<bool>> m_readingCancelled;
    AssociationLife m_life;
    /// How the present association, or attempt, is going to end.
    AssociationLife::Ending m_ending = AssociationLife::Ending::Failed;
    DeviceIdentity m_identity;
    bool m_isIdentifying = false;
    bool m_answersIdentify = true; ///< it has not failed to, in whichever association
    std::set<std::shared_ptr<Pending>> m_operations; ///< under way
    std::set<asio::steady_timer *> m_pauses;         ///< of the coroutines in pause()
    bool m_living = false;
    bool m_modelReady = false; ///< the model belongs to the present association
    QString m_endReason;       ///< why the last association ended
    QString m_leaveReason;     ///< why the driver left by itself
    std::vector<std::function<void()>> m_left;
    QHash<QString, MMSValue> m_recent; ///< values to be published again
    int m_recentUsers = 0;

    mutable std::mutex m_statusMutex;
    DeviceStatus m_status;
    std::atomic<std::uint64_t> m_published{0};
    std::atomic<std::uint64_t> m_reports{0};
};
