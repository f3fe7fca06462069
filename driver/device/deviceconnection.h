// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "associationpart.h"
#include "connectionenvironment.h"
#include "driver/administration/devicechange.h"
#include "driver/administration/deviceconfiguration.h"
#include "driver/administration/devicestatus.h"
#include "driver/core/associationlife.h"
#include "driver/core/deviceidentity.h"
#include "driver/model/onlinemodel.h"
#include "operationcalls.h"
#include "outcome.h"
#include "pducapture.h"
#include "statusboard.h"

#include "acsi/client.h"

#include <asio/awaitable.hpp>
#include <asio/steady_timer.hpp>
#include <asio/strand.hpp>

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <typeindex>
#include <vector>

class ChangeGate;
class ModelReading;
class ValuePolling;
class ValuePublishing;

/// The driver's side of one device with an address. Carries out what AssociationLife says: makes
/// the association, has the model read, serves it, takes leave and makes it again when it was lost.
/// Each of these steps is one coroutine; there is no state of the association but the machine's.
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
    using Strand = OperationCalls::Strand;
    using Deadline = OperationCalls::Deadline;
    /// An operation on the device. What it captures lives as long as it runs; it writes its results
    /// into shared memory, since the caller may have gone when its time is over.
    using Operation = std::function<asio::awaitable<Outcome>(std::shared_ptr<DeviceConnection>)>;

    /// What an operation waits for before it begins.
    enum class Need { Association, Model };

    static std::shared_ptr<DeviceConnection> create(const asio::any_io_executor &executor,
                                                    DeviceConfiguration configuration,
                                                    ConnectionEnvironment environment);
    DeviceConnection(Private, const asio::any_io_executor &executor,
                     DeviceConfiguration configuration, ConnectionEnvironment environment);
    ~DeviceConnection();

    // Any thread:

    const DeviceConfiguration &configuration() const { return m_configuration; }
    const ConnectionEnvironment &environment() const { return m_environment; }
    const Strand &strand() const { return m_strand; }
    PduCapture &capture() const { return *m_capture; }
    std::shared_ptr<const PduCapture> trace() const { return m_capture; }
    StatusBoard &board() { return m_board; }
    DeviceStatus status() const { return m_board.status(); }
    /// Adds to one of the counters of the status.
    void count(std::uint64_t DeviceCounters::*counter, std::uint64_t by = 1);
    bool isReadOnly() const { return m_environment.isReadOnly && m_environment.isReadOnly(); }
    /// By which everything about the device is decided.
    Deadline now() const { return m_environment.now(); }

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

    /// For reading; null without an association.
    const std::shared_ptr<acsi::Client> &client() const { return m_client; }
    /// For everything that changes something on the device.
    ChangeGate &gate() const { return *m_gate; }
    /// The association stands and is to be kept.
    bool isKept() const { return m_life.isKept(); }
    QString notConnectedSentence() const;

    ModelReading &modelReading() { return *m_reading; }
    ValuePolling &polling() { return *m_polling; }
    ValuePublishing &values() { return *m_values; }
    /// Null until the model has been read for the first time.
    OnlineModel *model() const;
    /// Who is there; known while the model belongs to the present association.
    const DeviceIdentity &identity() const;

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

    /// Something of the device does not work though it is online; one sentence for the operator,
    /// shown as the reason of the device's state. An empty one takes it away.
    void setProblem(const QString &source, const QString &sentence);

    /// Returns after the time or sooner, whenever something has changed.
    asio::awaitable<void> pause(std::chrono::milliseconds time);
    /// Something has changed: ends every pause.
    void wake();
    /// For the end of a coroutine that works on an association: an exception that is no
    /// cancellation ends the association.
    void fail(const std::shared_ptr<acsi::Client> &client, const std::exception_ptr &exception);

private:
    friend class ChangeGate;
    friend class ChangeRecord;
    using ClientPointer = std::shared_ptr<acsi::Client>;
    struct Attempt;

    /// Tells the host's journal. Time, number and device are filled in.
    void journal(DeviceChange change);

    void want();
    /// Connects, and reconnects whenever the association was lost, as m_life says, until nobody
    /// wants it any more.
    asio::awaitable<void> reconnectWhileWanted();
    asio::awaitable<void> carryOut(AssociationLife::Step step);
    asio::awaitable<void> makeAssociation();
    static asio::awaitable<void> attempt(std::shared_ptr<DeviceConnection> self,
                                         std::shared_ptr<Attempt> attempt);
    asio::awaitable<void> readModel();
    asio::awaitable<void> serve();
    asio::awaitable<void> takeLeave();
    void clearUp();
    void stopReading();
    void cutOffInStrand();
    void show();

    static asio::awaitable<Outcome> run(std::shared_ptr<DeviceConnection> self, Need need,
                                        Deadline deadline, Operation operation);
    asio::awaitable<Outcome> waitFor(Need need, Deadline deadline);

    const DeviceConfiguration m_configuration;
    const ConnectionEnvironment m_environment;
    const Strand m_strand;
    const std::shared_ptr<PduCapture> m_capture;
    StatusBoard m_board;
    OperationCalls m_operations;

    // In the strand:
    AssociationLife m_life;
    std::shared_ptr<Attempt> m_attempt; ///< of which the present association comes, or may come
    ClientPointer m_client;
    std::unique_ptr<ChangeGate> m_gate;
    std::unique_ptr<ModelReading> m_reading;
    std::unique_ptr<ValuePolling> m_polling;
    std::unique_ptr<ValuePublishing> m_values;
    std::map<std::type_index, std::unique_ptr<AssociationPart>> m_parts;
    std::set<asio::steady_timer *> m_pauses;   ///< of the coroutines in pause()
    std::vector<std::function<void()>> m_left; ///< to be called once the association is gone
};
