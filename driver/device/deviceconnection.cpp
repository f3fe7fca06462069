// SPDX-License-Identifier: Apache-2.0
#include "deviceconnection.h"

#include "configurationfiles.h"
#include "driver/core/valuewords.h"
#include "driver/model/discoveredmodel.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"
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
#include <exception>
#include <random>
#include <system_error>

using ConnectionText::text;
using ConnectionText::withoutPeriod;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// How long an operation waits for a model that is being read.
constexpr milliseconds modelPatience{500};

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);

mms::Octets octetsOf(const QByteArray &bytes)
{
    return {bytes.begin(), bytes.end()};
}

osi::acse::Title titleOf(const AssociationAddress &address)
{
    osi::acse::Title title;
    if (!address.apTitle.isEmpty()) {
        osi::acse::ObjectIdentifier identifier;
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

AssociationLife::Random randomSource()
{
    return [engine = std::mt19937(std::random_device()()),
            fractions = std::uniform_real_distribution<double>()]() mutable {
        return fractions(engine);
    };
}

bool isCancellation(const std::exception_ptr &exception)
{
    try {
        std::rethrow_exception(exception);
    } catch (const std::system_error &error) {
        return error.code() == asio::error::operation_aborted;
    } catch (...) {
        return false;
    }
}

/// One sentence about an exception that nobody expected.
QString internalError(const std::exception_ptr &exception)
{
    QString what;
    try {
        std::rethrow_exception(exception);
    } catch (const std::exception &error) {
        what = QString::fromUtf8(error.what());
    } catch (...) {
    }
    if (what.isEmpty())
        return Texts::tr("An internal error of the driver ended the association.");
    return Texts::tr("An internal error of the driver ended the association: %1.")
        .arg(withoutPeriod(what));
}

} // namespace

Outcome Outcome::failed(const QString &sentence)
{
    return {OperationFailed, sentence};
}

Outcome Outcome::failed(const mms::Error &error)
{
    return {OperationFailed, text(error.message)};
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
            if (outcome)
                return;
            outcome = std::move(how);
        }
        ended.notify_all();
    }
};

struct DeviceConnection::Attempt
{
    std::optional<mms::Result<ClientPointer>> result;
    asio::cancellation_signal cancel;
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
    , m_life(randomSource())
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
    m_life.want(steady_clock::now());
    wake();
    if (m_living)
        return;
    m_living = true;
    asio::co_spawn(m_strand, live(),
                   [self = shared_from_this()](const std::exception_ptr &exception) {
                       if (!exception)
                           return;
                       self->m_living = false;
                       self->m_life.leave();
                       self->m_life.over();
                       self->setState(DeviceState::Disconnected, internalError(exception));
                       std::vector<std::function<void()>> left;
                       left.swap(self->m_left);
                       for (const std::function<void()> &each : left)
                           each();
                   });
}

void DeviceConnection::leave(const QString &reason)
{
    m_life.leave();
    m_leaveReason = reason;
    if (m_readingCancelled)
        *m_readingCancelled = true;
    // What is read at present would be read in vain.
    if (m_life.phase() == AssociationLife::Phase::Reading && m_client) {
        asio::co_spawn(m_strand, m_client->close(),
                       [self = shared_from_this(), client = m_client](
                           const std::exception_ptr &exception) { self->fail(client, exception); });
    }
    wake();
}

void DeviceConnection::fail(const ClientPointer &client, const std::exception_ptr &exception)
{
    if (exception && !isCancellation(exception))
        client->abort(mms::verbatim(internalError(exception).toStdString()));
}

void DeviceConnection::disconnect(std::function<void()> left)
{
    asio::post(m_strand, [self = shared_from_this(), left = std::move(left)]() mutable {
        if (left && self->m_living)
            self->m_left.push_back(std::move(left));
        else if (left)
            left();
        self->leave({});
    });
}

void DeviceConnection::abort()
{
    asio::post(m_strand, [self = shared_from_this()] {
        if (!self->isWanted())
            return;
        self->m_life.abort();
        if (self->m_readingCancelled)
            *self->m_readingCancelled = true;
        if (self->m_client)
            self->m_client->abort(
                mms::verbatim(Texts::tr("Aborted by the operator.").toStdString()));
        self->wake();
    });
}

void DeviceConnection::cutOff()
{
    asio::post(m_strand, [self = shared_from_this()] {
        if (self->m_client)
            self->m_client->abort(
                mms::verbatim(Texts::tr("Aborted by the operator.").toStdString()));
        self->wake();
    });
}

void DeviceConnection::cancelReading()
{
    asio::post(m_strand, [self = shared_from_this()] {
        if (self->m_readingCancelled)
            *self->m_readingCancelled = true;
        if (self->m_life.phase() == AssociationLife::Phase::Reading)
            self->leave(Texts::tr("Reading the model was cancelled."));
    });
}

void DeviceConnection::cancelOperations()
{
    asio::post(m_strand, [self = shared_from_this()] {
        const std::set<std::shared_ptr<Pending>> operations = self->m_operations;
        for (const std::shared_ptr<Pending> &each : operations) {
            each->end(Outcome::failed(Texts::tr("The operation was cancelled.")));
            each->cancel.emit(asio::cancellation_type::terminal);
        }
    });
}

void DeviceConnection::namesReleased()
{
    asio::post(m_strand, [self = shared_from_this()] {
        self->m_life.namesReleased(steady_clock::now());
        self->wake();
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
    const auto ended = [pending, self = shared_from_this()](const std::exception_ptr &exception,
                                                            Outcome outcome) {
        if (exception) {
            outcome = Outcome::failed(isCancellation(exception)
                                          ? Texts::tr("The operation was cancelled.")
                                          : internalError(exception));
        }
        self->m_operations.erase(pending);
        pending->end(std::move(outcome));
    };
    asio::post(m_strand, [self = shared_from_this(), need, deadline, pending, ended,
                          operation = std::move(operation)]() mutable {
        self->m_operations.insert(pending);
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
        if (m_life.isDormant())
            connectInStrand();
        const bool isReading = isWanted() && m_client && m_client->isOpen();
        const bool isFirstAttempt = m_life.isFirstAttempt();
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
        if (!m_life.awaySince()) {
            status.lostSince = {};
        } else if (state == DeviceState::Waiting && !status.lostSince.isValid()) {
            const auto away = steady_clock::now() - *m_life.awaySince();
            status.lostSince = now.addMSecs(-std::chrono::floor<milliseconds>(away).count());
        }
        // An outage is one, however many attempts there are to end it.
        const bool isAway = state == DeviceState::Connecting || state == DeviceState::Waiting;
        if (isAway && status.lostSince.isValid())
            status.since = status.lostSince;
        else if (status.state != state)
            status.since = now;
        if (state == DeviceState::Disconnected) {
            status.staleValues = status.refusedValues = 0;
            status.staleSince = {};
        }
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
    // Whoever waits shorter for answers takes a device sooner for one that never answers.
    association.grace = 2 * m_configuration.callTimeout;
    association.link.establishTimeout = m_configuration.connectTimeout;
    association.link.lookUp = m_environment.lookUp;
    association.link.trace = [capture = m_capture](osi::Direction direction, mms::Bytes pdu) {
        capture->add(direction, pdu);
    };
    if (m_configuration.tls.enabled)
        association.link.tls = ConfigurationFiles::tlsOptions(m_configuration.tls);
    osi::StackOptions &stack = association.link.stack;
    stack.transport.localSelector = octetsOf(m_configuration.local.transportSelector);
    stack.transport.remoteSelector = octetsOf(m_configuration.remote.transportSelector);
    stack.session.localSelector = octetsOf(m_configuration.local.sessionSelector);
    stack.session.remoteSelector = octetsOf(m_configuration.remote.sessionSelector);
    stack.presentation.localSelector = octetsOf(m_configuration.local.presentationSelector);
    stack.presentation.remoteSelector = octetsOf(m_configuration.remote.presentationSelector);
    stack.association.own = titleOf(m_configuration.local);
    stack.association.peer = titleOf(m_configuration.remote);
    if (!m_configuration.password.isEmpty()) {
        osi::acse::Authentication authentication;
        authentication.value = octetsOf(m_configuration.password.toUtf8());
        stack.association.authentication = std::move(authentication);
    }
    return options;
}

void DeviceConnection::associationEnded(const mms::Text &reason)
{
    m_endReason = text(reason);
    wake();
}

asio::awaitable<void> DeviceConnection::attempt(std::shared_ptr<DeviceConnection> self,
                                                std::shared_ptr<Attempt> attempt)
{
    const std::weak_ptr<DeviceConnection> weak = self;
    const auto closed = [weak](const mms::Text &reason) {
        if (const auto connection = weak.lock())
            connection->associationEnded(reason);
    };
    std::string host = self->m_configuration.host.toStdString();
    const auto port = static_cast<std::uint16_t>(self->m_configuration.port);
    mms::Result<ClientPointer> result = co_await acsi::Client::connect(
        self->m_strand, std::move(host), port, self->clientOptions(), closed);
    if (attempt->isAbandoned) {
        if (result)
            (*result)->abort(mms::say("Nobody wants the association any more."));
        co_return;
    }
    attempt->result.emplace(std::move(result));
    self->wake();
}

asio::awaitable<void> DeviceConnection::live()
{
    for (;;) {
        const AssociationLife::Step step = m_life.next(steady_clock::now());
        if (step.what == AssociationLife::Step::What::End)
            break;
        if (step.what == AssociationLife::Step::What::Wait) {
            co_await pause(std::chrono::ceil<milliseconds>(step.until - steady_clock::now()));
            continue;
        }
        m_life.connecting();
        m_ending = AssociationLife::Ending::Failed;
        setState(DeviceState::Connecting, status().reason);
        QString reason;
        try {
            reason = co_await associate();
        } catch (...) {
            reason = internalError(std::current_exception());
        }
        m_life.ended(steady_clock::now(), m_ending);
        dissociate(reason);
        if (isWanted())
            setState(DeviceState::Waiting, reason);
    }
    m_living = false;
    m_life.over();
    setState(DeviceState::Disconnected,
             m_life.isDormant() ? Texts::tr("Aborted by the operator.") : m_leaveReason);
    m_leaveReason.clear();
    std::vector<std::function<void()>> left;
    left.swap(m_left);
    for (const std::function<void()> &each : left)
        each();
}

asio::awaitable<QString> DeviceConnection::associate()
{
    const auto state = std::make_shared<Attempt>();
    asio::co_spawn(m_strand, attempt(shared_from_this(), state),
                   asio::bind_cancellation_slot(
                       state->cancel.slot(),
                       [self = shared_from_this(), state](const std::exception_ptr &exception) {
                           if (!exception || state->result)
                               return;
                           state->result.emplace(mms::Error{
                               mms::verbatim(internalError(exception).toStdString()), 0});
                           self->wake();
                       }));
    while (!state->result && isWanted())
        co_await pause(m_configuration.connectTimeout);
    if (!state->result) {
        state->isAbandoned = true;
        state->cancel.emit(asio::cancellation_type::terminal);
        co_return QString();
    }
    if (!*state->result)
        co_return text(state->result->error().message);

    m_client = std::move(**state->result);
    m_endReason.clear();
    m_life.associated();
    updateStatus([](DeviceStatus &status) { ++status.counters.connections; });
    setState(DeviceState::ReadingModel);
    const ClientPointer client = m_client;
    QString reason = co_await getReady(client);
    if (reason.isEmpty() && isWanted() && client->isOpen())
        co_await beOnline(client);
    if (client->isOpen())
        co_await client->close();
    if (reason.isEmpty())
        reason = m_endReason;
    co_return reason;
}

void DeviceConnection::dissociate(const QString &reason)
{
    const ClientPointer client = std::exchange(m_client, nullptr);
    if (!client)
        return;
    if (client->isOpen())
        client->abort(mms::verbatim(reason.toStdString()));
    m_modelReady = false;
    m_identity = {};
    valuesAreLost();
    m_environment.release();
    for (const auto &part : m_parts)
        part.second->closed(reason);
    m_reported.clear();
    wake();
}

asio::awaitable<void> DeviceConnection::beOnline(ClientPointer client)
{
    m_modelReady = true;
    m_life.online(steady_clock::now());
    setState(DeviceState::Online, problems());
    // Looks after the groups from the beginning, not only once somebody uses them.
    static_cast<void>(part<SettingGroups>());
    for (const auto &part : m_parts) {
        if (client->isOpen())
            co_await part.second->opened();
    }
    asio::co_spawn(m_strand, poll(client),
                   [self = shared_from_this(), client](const std::exception_ptr &exception) {
                       self->fail(client, exception);
                   });
    co_await watchOver(client);
    for (const auto &part : m_parts) {
        if (client->isOpen())
            co_await part.second->leaving();
    }
}

asio::awaitable<void> DeviceConnection::watchOver(ClientPointer client)
{
    const QString waiting = QStringLiteral("life");
    SignOfLife sign(steady_clock::now());
    while (isWanted() && client->isOpen()) {
        const Deadline now = steady_clock::now();
        const Deadline due = sign.due(m_capture->lastReceived());
        if (due > now) {
            co_await pause(std::chrono::ceil<milliseconds>(due - now));
            continue;
        }
        sign.asked(now);
        const mms::CallOutcome outcome = co_await askForSignOfLife(client);
        if (!client->isOpen())
            break;
        const auto *failure = std::get_if<mms::CallFailure>(&outcome);
        const bool isLate = failure && failure->kind == mms::CallFailure::Kind::TimedOut;
        const auto judgement =
            sign.judge(!isLate, !isLate || failure->wasSent, m_capture->lastReceived());
        setProblem(waiting, judgement == SignOfLife::Judgement::Waits
                                ? Texts::tr("The device has not answered earlier requests; the "
                                            "question whether it is there waits for a place "
                                            "behind them.")
                                : QString());
        if (judgement == SignOfLife::Judgement::Silent) {
            client->abort(mms::verbatim(Texts::tr("The device has not answered for %1 seconds.")
                                            .arg(seconds(m_configuration.callTimeout))
                                            .toStdString()));
        } else if (!failure) {
            const auto time =
                std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now() - now);
            updateStatus([&](DeviceStatus &status) {
                status.roundTrip = time;
                status.counters.unclaimedReports = client->unclaimedReports();
            });
        }
    }
    setProblem(waiting, {});
}

asio::awaitable<mms::CallOutcome> DeviceConnection::askForSignOfLife(ClientPointer client)
{
    const mms::InitiateParameters &agreed = client->association().negotiated();
    mms::RequestService request;
    switch (SignOfLife::questionFor(agreed.supports(mms::Service::Status),
                                    agreed.supports(mms::Service::Identify), m_answersIdentify)) {
    case SignOfLife::Question::Status:
        request = mms::StatusRequest();
        break;
    case SignOfLife::Question::Identify:
        request = mms::IdentifyRequest();
        break;
    case SignOfLife::Question::Read: {
        // Every logical device has it; where not, the error is an answer as well.
        mms::VariableAccess access;
        const std::vector<acsi::DeviceDescription> &devices = m_model->description().devices;
        access.variable = mms::ObjectName::inDomain(
            devices.empty() ? std::string() : devices.front().name, "LLN0$ST$Mod$stVal");
        mms::ReadRequest read;
        read.variables = std::vector<mms::VariableAccess>{std::move(access)};
        request = std::move(read);
        break;
    }
    }
    co_return co_await client->association().call(std::move(request), m_configuration.callTimeout);
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
    if (const OnlineModel *known = model())
        ValueWords::addWords(change, known->device());
    if (m_environment.changed)
        m_environment.changed(change);
}
