// SPDX-License-Identifier: Apache-2.0
#include "deviceconnection.h"

#include "connectiontext.h"
#include "discoveredmodel.h"
#include "settinggroups.h"

#include <asio/bind_cancellation_slot.hpp>
#include <asio/cancellation_signal.hpp>
#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>
#include <asio/experimental/as_tuple.hpp>
#include <asio/post.hpp>
#include <asio/use_awaitable.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <condition_variable>

using ConnectionText::text;
using ConnectionText::withoutPeriod;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

constexpr milliseconds firstRetry{200};
constexpr milliseconds longestRetry{2000};
/// A device that has been silent for so long is asked whether it is there.
constexpr milliseconds keepAliveInterval{2000};
constexpr milliseconds roundTripInterval{10000};
/// How long an operation waits for a model that is being read.
constexpr milliseconds modelPatience{500};

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);

mms::Octets octetsOf(const QByteArray &bytes)
{
    return {bytes.begin(), bytes.end()};
}

mms::acse::Title titleOf(const AssociationAddress &address)
{
    mms::acse::Title title;
    if (!address.apTitle.isEmpty()) {
        mms::acse::ObjectIdentifier identifier;
        const QStringList numbers = address.apTitle.split(QLatin1Char('.'));
        for (const QString &number : numbers)
            identifier.push_back(number.toUInt());
        title.apTitle = std::move(identifier);
    }
    if (address.aeQualifier)
        title.aeQualifier = *address.aeQualifier;
    return title;
}

double seconds(milliseconds time)
{
    return static_cast<double>(time.count()) / 1000.0;
}

} // namespace

Outcome Outcome::failed(const QString &sentence)
{
    return {OperationFailed, sentence};
}

Outcome Outcome::failed(const mms::Error &error)
{
    return {OperationFailed, QString::fromStdString(error.message)};
}

AssociationPart::~AssociationPart() = default;

asio::awaitable<void> AssociationPart::opened()
{
    co_return;
}

asio::awaitable<void> AssociationPart::leaving()
{
    co_return;
}

void AssociationPart::closed(const QString &) {}

struct DeviceConnection::Pending
{
    std::mutex mutex;
    std::condition_variable ended;
    std::optional<Outcome> outcome;
    asio::cancellation_signal cancel; ///< in the strand

    void end(Outcome how)
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            outcome = std::move(how);
        }
        ended.notify_all();
    }
};

struct DeviceConnection::Attempt
{
    std::optional<mms::Result<ClientPointer>> result;
    bool isAbandoned = false;
};

std::shared_ptr<DeviceConnection> DeviceConnection::create(asio::any_io_executor executor,
                                                           DeviceConfiguration configuration,
                                                           ConnectionEnvironment environment)
{
    return std::make_shared<DeviceConnection>(Private(), std::move(executor),
                                              std::move(configuration), std::move(environment));
}

DeviceConnection::DeviceConnection(Private, asio::any_io_executor executor,
                                   DeviceConfiguration configuration,
                                   ConnectionEnvironment environment)
    : m_configuration(std::move(configuration))
    , m_environment(std::move(environment))
    , m_strand(asio::make_strand(std::move(executor)))
    , m_capture(std::make_shared<PduCapture>(m_environment.captureOctets))
{
    m_status.number = m_configuration.number;
    m_status.name = m_configuration.name;
    m_status.since = QDateTime::currentDateTime();
}

DeviceConnection::~DeviceConnection() = default;

DeviceStatus DeviceConnection::status() const
{
    const std::lock_guard<std::mutex> lock(m_statusMutex);
    DeviceStatus status = m_status;
    status.counters.sentPdus = m_capture->sent();
    status.counters.receivedPdus = m_capture->received();
    status.counters.reports = m_reports;
    status.counters.publishedValues = m_published;
    return status;
}

void DeviceConnection::connect()
{
    asio::post(m_strand, [self = shared_from_this()] { self->connectInStrand(); });
}

void DeviceConnection::connectInStrand()
{
    m_dormant = false;
    if (!m_wanted)
        m_attempted = false;
    m_wanted = true;
    wake();
    if (m_living)
        return;
    m_living = true;
    asio::co_spawn(m_strand, live(), [self = shared_from_this()](const std::exception_ptr &) {});
}

void DeviceConnection::disconnect(std::function<void()> left)
{
    asio::post(m_strand, [self = shared_from_this(), left = std::move(left)]() mutable {
        self->m_wanted = false;
        self->m_dormant = false;
        if (self->m_readingCancelled)
            *self->m_readingCancelled = true;
        if (left && self->m_living)
            self->m_left.push_back(std::move(left));
        else if (left)
            left();
        self->wake();
    });
}

void DeviceConnection::abort()
{
    asio::post(m_strand, [self = shared_from_this()] {
        if (!self->m_wanted)
            return;
        self->m_wanted = false;
        self->m_dormant = true;
        if (self->m_readingCancelled)
            *self->m_readingCancelled = true;
        if (self->m_client)
            self->m_client->abort(Texts::tr("Aborted by the operator.").toStdString());
        self->wake();
    });
}

void DeviceConnection::cancelReading()
{
    asio::post(m_strand, [self = shared_from_this()] {
        if (self->m_readingCancelled)
            *self->m_readingCancelled = true;
    });
}

Outcome DeviceConnection::perform(Need need, Operation operation)
{
    return perform(need, m_configuration.operationTimeout, std::move(operation));
}

Outcome DeviceConnection::perform(Need need, milliseconds limit, Operation operation)
{
    const Deadline deadline = steady_clock::now() + limit;
    const auto pending = std::make_shared<Pending>();
    const auto ended = [pending](const std::exception_ptr &exception, Outcome outcome) {
        if (exception)
            outcome = Outcome::failed(Texts::tr("The operation was cancelled."));
        pending->end(std::move(outcome));
    };
    asio::post(m_strand, [self = shared_from_this(), need, deadline, pending, ended,
                          operation = std::move(operation)]() mutable {
        asio::co_spawn(self->m_strand, run(self, need, deadline, std::move(operation)),
                       asio::bind_cancellation_slot(pending->cancel.slot(), ended));
    });

    std::unique_lock<std::mutex> lock(pending->mutex);
    if (pending->ended.wait_until(lock, deadline, [&] { return pending->outcome.has_value(); }))
        return std::move(*pending->outcome);
    lock.unlock();
    asio::post(m_strand, [pending] { pending->cancel.emit(asio::cancellation_type::terminal); });
    return Outcome::failed(Texts::tr("%1 has not finished the operation within %2 seconds.")
                               .arg(m_configuration.title())
                               .arg(seconds(limit)));
}

asio::awaitable<Outcome> DeviceConnection::run(std::shared_ptr<DeviceConnection> self, Need need,
                                               Deadline deadline, Operation operation)
{
    Outcome outcome = co_await self->waitFor(need, deadline);
    if (outcome)
        outcome = co_await operation(self);
    co_return outcome;
}

QString DeviceConnection::notConnectedSentence() const
{
    const QString reason = withoutPeriod(status().reason);
    if (reason.isEmpty())
        return Texts::tr("%1 is not connected.").arg(m_configuration.title());
    return Texts::tr("%1 is not connected: %2.").arg(m_configuration.title(), reason);
}

asio::awaitable<Outcome> DeviceConnection::waitFor(Need need, Deadline deadline)
{
    const Deadline patienceEnd = std::min(deadline, steady_clock::now() + modelPatience);
    for (;;) {
        if (m_client && m_client->isOpen() && (need == Need::Association || m_modelReady))
            co_return Outcome();
        if (m_dormant)
            connectInStrand();
        const bool isReading = m_wanted && m_client && m_client->isOpen();
        const bool isFirstAttempt = m_wanted && !m_attempted;
        const Deadline end = isReading ? patienceEnd : deadline;
        const Deadline now = steady_clock::now();
        if (isReading && now >= end) {
            const DeviceStatus known = status();
            co_return Outcome{OperationNotConnected,
                              Texts::tr("The model of %1 is being read: %2 of %3.")
                                  .arg(m_configuration.title())
                                  .arg(known.modelStepsDone)
                                  .arg(known.modelSteps)};
        }
        if (!isReading && (!isFirstAttempt || now >= end)) {
            const QString sentence = notConnectedSentence();
            co_return Outcome{OperationNotConnected, sentence};
        }
        co_await pause(std::chrono::ceil<milliseconds>(end - now));
    }
}

asio::awaitable<void> DeviceConnection::pause(milliseconds time)
{
    struct Registered
    {
        std::set<asio::steady_timer *> &pauses;
        asio::steady_timer timer;

        Registered(std::set<asio::steady_timer *> &all, const Strand &strand, milliseconds after)
            : pauses(all)
            , timer(strand, after)
        {
            pauses.insert(&timer);
        }
        ~Registered() { pauses.erase(&timer); }
    };
    Registered registered(m_pauses, m_strand, time);
    co_await registered.timer.async_wait(asTuple);
}

void DeviceConnection::wake()
{
    for (asio::steady_timer *timer : m_pauses)
        timer->cancel();
}

void DeviceConnection::updateStatus(const std::function<void(DeviceStatus &)> &change)
{
    {
        const std::lock_guard<std::mutex> lock(m_statusMutex);
        change(m_status);
    }
    if (m_environment.statusChanged)
        m_environment.statusChanged(status());
}

void DeviceConnection::count(std::uint64_t DeviceCounters::*counter, std::uint64_t by)
{
    const std::lock_guard<std::mutex> lock(m_statusMutex);
    m_status.counters.*counter += by;
}

void DeviceConnection::setState(DeviceState state, const QString &reason)
{
    updateStatus([&](DeviceStatus &status) {
        const QDateTime now = QDateTime::currentDateTime();
        if (status.state != state)
            status.since = now;
        if (state == DeviceState::Online || state == DeviceState::Disconnected)
            status.lostSince = {};
        else if (state == DeviceState::Waiting && !status.lostSince.isValid())
            status.lostSince = now;
        status.state = state;
        status.reason = reason;
        if (state != DeviceState::ReadingModel)
            status.modelStepsDone = status.modelSteps = 0;
    });
    wake();
}

acsi::ClientOptions DeviceConnection::clientOptions() const
{
    acsi::ClientOptions options;
    options.callTimeout = m_configuration.callTimeout;
    options.outstandingFileReads = m_configuration.outstandingFileReads;
    mms::AssociationOptions &association = options.association;
    association.maxPduSize = m_configuration.maxPduSize;
    association.maxOutstandingCalling = static_cast<std::int16_t>(m_configuration.outstandingCalls);
    association.link.establishTimeout = m_configuration.connectTimeout;
    association.link.trace = [capture = m_capture](mms::Direction direction, mms::Bytes pdu) {
        capture->add(direction, pdu);
    };
    if (m_configuration.tls.enabled)
        association.link.tls = m_configuration.tls.toOptions();
    mms::StackOptions &stack = association.link.stack;
    stack.transport.localSelector = octetsOf(m_configuration.local.transportSelector);
    stack.transport.remoteSelector = octetsOf(m_configuration.remote.transportSelector);
    stack.session.localSelector = octetsOf(m_configuration.local.sessionSelector);
    stack.session.remoteSelector = octetsOf(m_configuration.remote.sessionSelector);
    stack.presentation.localSelector = octetsOf(m_configuration.local.presentationSelector);
    stack.presentation.remoteSelector = octetsOf(m_configuration.remote.presentationSelector);
    stack.association.own = titleOf(m_configuration.local);
    stack.association.peer = titleOf(m_configuration.remote);
    if (!m_configuration.password.isEmpty()) {
        mms::acse::Authentication authentication;
        authentication.value = octetsOf(m_configuration.password.toUtf8());
        stack.association.authentication = std::move(authentication);
    }
    return options;
}

void DeviceConnection::associationEnded(const std::string &reason)
{
    m_endReason = text(reason);
    wake();
}

asio::awaitable<void> DeviceConnection::attempt(std::shared_ptr<DeviceConnection> self,
                                                std::shared_ptr<Attempt> attempt)
{
    const std::weak_ptr<DeviceConnection> weak = self;
    const auto closed = [weak](const std::string &reason) {
        if (const auto connection = weak.lock())
            connection->associationEnded(reason);
    };
    std::string host = self->m_configuration.host.toStdString();
    const auto port = static_cast<std::uint16_t>(self->m_configuration.port);
    mms::Result<ClientPointer> result = co_await acsi::Client::connect(
        self->m_strand, std::move(host), port, self->clientOptions(), closed);
    if (attempt->isAbandoned) {
        if (result)
            (*result)->abort("Nobody wants the association any more.");
        co_return;
    }
    attempt->result.emplace(std::move(result));
    self->wake();
}

asio::awaitable<void> DeviceConnection::live()
{
    milliseconds retry = firstRetry;
    while (m_wanted) {
        setState(DeviceState::Connecting, status().reason);
        const std::uint64_t before = status().counters.connections;
        const QString reason = co_await associate();
        if (status().counters.connections != before)
            retry = firstRetry;
        m_attempted = true;
        if (!m_wanted)
            break;
        setState(DeviceState::Waiting, reason);
        const Deadline next = steady_clock::now() + retry;
        for (Deadline now = steady_clock::now(); m_wanted && now < next; now = steady_clock::now())
            co_await pause(std::chrono::ceil<milliseconds>(next - now));
        retry = std::min(retry * 2, longestRetry);
    }
    m_living = false;
    m_attempted = true;
    setState(DeviceState::Disconnected,
             m_dormant ? Texts::tr("Aborted by the operator.") : m_leaveReason);
    m_leaveReason.clear();
    std::vector<std::function<void()>> left;
    left.swap(m_left);
    for (const std::function<void()> &each : left)
        each();
}

asio::awaitable<QString> DeviceConnection::associate()
{
    const auto state = std::make_shared<Attempt>();
    asio::co_spawn(m_strand, attempt(shared_from_this(), state), asio::detached);
    // The attempt itself ends at its time-out; nobody has to wait for that who wants no
    // association.
    while (!state->result && m_wanted)
        co_await pause(m_configuration.connectTimeout);
    if (!state->result) {
        state->isAbandoned = true;
        co_return QString();
    }
    if (!*state->result)
        co_return text(state->result->error().message);

    m_client = std::move(**state->result);
    m_endReason.clear();
    updateStatus([](DeviceStatus &status) { ++status.counters.connections; });
    setState(DeviceState::ReadingModel);
    const ClientPointer client = m_client;
    QString reason = co_await getReady(client);
    if (reason.isEmpty() && m_wanted && client->isOpen())
        co_await beOnline(client);
    if (client->isOpen())
        co_await client->close();
    if (reason.isEmpty())
        reason = m_endReason;

    m_modelReady = false;
    m_client.reset();
    m_environment.release();
    for (const auto &part : m_parts)
        part.second->closed(reason);
    m_reported.clear();
    wake();
    co_return reason;
}

asio::awaitable<void> DeviceConnection::beOnline(ClientPointer client)
{
    m_modelReady = true;
    setState(DeviceState::Online, problems());
    // Looks after the groups from the beginning, not only once somebody uses them.
    static_cast<void>(part<SettingGroups>());
    for (const auto &part : m_parts) {
        if (client->isOpen())
            co_await part.second->opened();
    }
    asio::co_spawn(m_strand, poll(client),
                   [self = shared_from_this()](const std::exception_ptr &) {});

    Deadline nextMeasurement = steady_clock::now() + roundTripInterval;
    while (m_wanted && client->isOpen()) {
        const Deadline now = steady_clock::now();
        const Deadline silentAt = m_capture->lastReceived() + keepAliveInterval;
        const Deadline due = std::min(silentAt, nextMeasurement);
        if (due > now) {
            co_await pause(std::chrono::ceil<milliseconds>(due - now));
            continue;
        }
        nextMeasurement = now + roundTripInterval;
        const mms::CallOutcome outcome =
            co_await client->association().call(mms::StatusRequest(), m_configuration.callTimeout);
        const auto *failure = std::get_if<mms::CallFailure>(&outcome);
        // A device that answers other calls meanwhile is there.
        if (failure && failure->kind == mms::CallFailure::Kind::TimedOut &&
            m_capture->lastReceived() < now) {
            client->abort(Texts::tr("The device has not answered for %1 seconds.")
                              .arg(seconds(m_configuration.callTimeout))
                              .toStdString());
        } else if (!failure) {
            const auto time =
                std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now() - now);
            updateStatus([&](DeviceStatus &status) {
                status.roundTrip = time;
                status.counters.unclaimedReports = client->unclaimedReports();
            });
        }
    }
    if (!client->isOpen())
        co_return;
    for (const auto &part : m_parts) {
        if (client->isOpen())
            co_await part.second->leaving();
    }
}

QString DeviceConnection::problems() const
{
    return QStringList(m_problems.values()).join(QLatin1Char(' '));
}

void DeviceConnection::setProblem(const QString &source, const QString &sentence)
{
    if (m_problems.value(source) == sentence)
        return;
    if (sentence.isEmpty())
        m_problems.remove(source);
    else
        m_problems.insert(source, sentence);
    if (m_modelReady)
        updateStatus([this](DeviceStatus &status) { status.reason = problems(); });
}

const ReportControlBlock *DeviceConnection::configuredBlock(const QString &logicalDevice,
                                                            const QString &reference) const
{
    return DiscoveredModel::blockOf(m_fromFile.get(), logicalDevice, reference);
}

void DeviceConnection::journal(DeviceChange change)
{
    change.time = QDateTime::currentDateTime();
    change.number = m_configuration.number;
    change.device = m_configuration.name;
    if (m_environment.changed)
        m_environment.changed(change);
}
