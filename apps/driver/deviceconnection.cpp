// SPDX-License-Identifier: Apache-2.0
#include "deviceconnection.h"

#include "descriptioncache.h"
#include "discoveredmodel.h"
#include "sclimport.h"
#include "valueconversion.h"

#include "acsi/dataset.h"
#include "acsi/reportblock.h"
#include "acsi/settinggroup.h"

#include <asio/bind_cancellation_slot.hpp>
#include <asio/cancellation_signal.hpp>
#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>
#include <asio/experimental/as_tuple.hpp>
#include <asio/post.hpp>
#include <asio/use_awaitable.hpp>

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QDataStream>

#include <algorithm>
#include <condition_variable>

using acsi::FunctionalConstraint;
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
/// What is not expected to change is read every so many times.
constexpr int slowPolls = 10;
/// How long an operation waits for a model that is being read.
constexpr milliseconds modelPatience{500};
/// Between the bytes of a model and the browser that listens.
constexpr milliseconds browserStart{1500};
/// Failed references that a sentence names.
constexpr int namedFailures = 5;

const std::vector<FunctionalConstraint> fastConstraints = {FunctionalConstraint::ST,
                                                           FunctionalConstraint::MX};
const std::vector<FunctionalConstraint> slowConstraints = {
    FunctionalConstraint::SP, FunctionalConstraint::SG, FunctionalConstraint::SV,
    FunctionalConstraint::DC, FunctionalConstraint::EX, FunctionalConstraint::BL,
    FunctionalConstraint::OR, FunctionalConstraint::SR};
const std::vector<FunctionalConstraint> configurationConstraints = {FunctionalConstraint::CF};

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

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

acsi::Reference referenceTo(const std::string &device, const std::string &node,
                            FunctionalConstraint constraint)
{
    acsi::Reference reference;
    reference.device = device;
    reference.node = node;
    reference.constraint = constraint;
    return reference;
}

bool isAtOrBelow(const std::string &reference, const std::string &ancestor)
{
    return reference.compare(0, ancestor.size(), ancestor) == 0 &&
           (reference.size() == ancestor.size() || reference[ancestor.size()] == '$' ||
            reference[ancestor.size()] == '(');
}

double seconds(milliseconds time)
{
    return static_cast<double>(time.count()) / 1000.0;
}

QString withoutPeriod(QString sentence)
{
    while (sentence.endsWith(QLatin1Char('.')))
        sentence.chop(1);
    return sentence;
}

/// Sentences about single references in one.
class Failures
{
public:
    void add(const QString &reference, const QString &reason)
    {
        if (m_sentences.size() < namedFailures)
            m_sentences.append(Texts::tr("%1: %2").arg(reference, withoutPeriod(reason)));
        ++m_count;
    }

    Outcome outcome() const
    {
        if (m_count == 0)
            return {};
        QString sentence = m_sentences.join(QStringLiteral("; "));
        if (m_count > m_sentences.size())
            sentence = Texts::tr("%1; and %2 more").arg(sentence).arg(m_count - m_sentences.size());
        return Outcome::failed(sentence + QLatin1Char('.'));
    }

private:
    QStringList m_sentences;
    int m_count = 0;
};

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

void DeviceConnection::setState(DeviceState state, const QString &reason)
{
    updateStatus([&](DeviceStatus &status) {
        if (status.state != state)
            status.since = QDateTime::currentDateTime();
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

asio::awaitable<void> DeviceConnection::identify(ClientPointer client)
{
    const Deadline before = steady_clock::now();
    const mms::Result<mms::IdentifyResponse> answer =
        co_await client->ask<mms::IdentifyResponse>(mms::IdentifyRequest());
    const auto time =
        std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now() - before);
    updateStatus([&](DeviceStatus &status) {
        status.roundTrip = time;
        if (!answer)
            return;
        status.vendor = text(answer->vendor);
        status.model = text(answer->model);
        status.revision = text(answer->revision);
    });
}

QString DeviceConnection::loadFile()
{
    if (m_fileRead || m_configuration.sclFile.isEmpty())
        return {};
    m_fileRead = true;
    const scl::ReadResult read = SclImport::readFile(m_configuration.sclFile);
    if (!read.document)
        return SclImport::errorText(read);
    QString error;
    const scl::Ied *ied = SclImport::chooseIed(*read.document, m_configuration.ied, error);
    if (!ied)
        return error;
    m_fromFile = SclImport::makeDevice(*ied);
    return {};
}

asio::awaitable<QString> DeviceConnection::getReady(ClientPointer client)
{
    co_await identify(client);
    const mms::Result<std::vector<std::string>> domains =
        co_await client->nameList(mms::ObjectClass::Domain, mms::Scope::Vmd);
    if (!domains)
        co_return text(domains.error().message);
    QStringList names;
    for (const std::string &domain : *domains)
        names.append(text(domain));
    const QString conflict = m_environment.claim(names);
    if (!conflict.isEmpty())
        co_return conflict;

    const QString problem = loadFile();
    if (!problem.isEmpty())
        setProblem(QStringLiteral("SCL"), Texts::tr("The SCL file is not used: %1").arg(problem));

    const mms::Result<QByteArray> print = co_await fingerprint(client, *domains);
    if (!print)
        co_return text(print.error().message);
    if (!m_model || *print != m_fingerprint || !m_isModelSettled) {
        m_readingCancelled = std::make_shared<std::atomic<bool>>(false);
        mms::Result<acsi::ServerDescription> description = co_await describe(client, *print);
        const bool wasCancelled = *m_readingCancelled;
        m_readingCancelled.reset();
        if (wasCancelled) {
            m_wanted = false;
            m_leaveReason = Texts::tr("Reading the model was cancelled.");
            co_return m_leaveReason;
        }
        if (!description)
            co_return text(description.error().message);
        // What is refused once may be given the next time; what is refused twice never will.
        m_isModelSettled = description->refused.empty() ||
                           (m_model && m_model->description().refused == description->refused);
        m_model = std::make_unique<OnlineModel>(
            std::make_shared<const acsi::ServerDescription>(std::move(*description)),
            m_fromFile ? m_fromFile->name : m_configuration.name, m_fromFile.get());
        m_fingerprint = *print;
        m_inParts.clear();
    }
    for (auto each = m_revisions.cbegin(); each != m_revisions.cend(); ++each)
        DiscoveredModel::setRevision(m_model->device(), each.key(), each.value(), m_fromFile.get());
    m_refused.clear();
    updateStatus([this](DeviceStatus &status) {
        status.refusedObjects = static_cast<int>(m_model->description().refused.size());
    });
    co_await readBlocks(client);
    // The browser offers controls by their control model, so it comes with the model.
    Publication publication;
    publication.cause = PublishCause::Polled;
    publication.onlyChanges = true;
    co_await readValues(client, configurationConstraints, publication);
    co_return client->isOpen() ? QString() : m_endReason;
}

asio::awaitable<mms::Result<QByteArray>>
DeviceConnection::fingerprint(ClientPointer client, const std::vector<std::string> &domains)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](std::string_view part) {
        hash.addData(part.data(), static_cast<int>(part.size()));
        hash.addData("", 1);
    };
    m_revisions.clear();
    const DeviceStatus who = status();
    add(who.vendor.toStdString());
    add(who.model.toStdString());
    add(who.revision.toStdString());

    std::vector<mms::VariableAccess> revisions;
    for (const std::string &domain : domains) {
        mms::VariableAccess access;
        access.variable = mms::ObjectName::inDomain(domain, "LLN0$DC$NamPlt$configRev");
        revisions.push_back(std::move(access));
    }
    const mms::Result<std::vector<mms::AccessResult>> values = co_await client->read(revisions);
    for (std::size_t i = 0; i < domains.size(); ++i) {
        add(domains[i]);
        const bool hasRevision = values && i < values->size() && (*values)[i].ok() &&
                                 !(*values)[i].data().text().empty();
        if (hasRevision) {
            add((*values)[i].data().text());
            m_revisions.insert(text(domains[i]), text((*values)[i].data().text()));
        }
        // Data sets come and go within a revision; without a revision anything may.
        std::vector<mms::ObjectClass> classes = {mms::ObjectClass::NamedVariableList};
        if (!hasRevision)
            classes.push_back(mms::ObjectClass::NamedVariable);
        for (const mms::ObjectClass objectClass : classes) {
            const mms::Result<std::vector<std::string>> names =
                co_await client->nameList(objectClass, mms::Scope::Domain, domains[i]);
            if (!names && !client->isOpen())
                co_return names.error();
            if (!names)
                continue;
            for (const std::string &name : *names)
                add(name);
        }
    }
    co_return hash.result();
}

asio::awaitable<mms::Result<acsi::ServerDescription>>
DeviceConnection::describe(ClientPointer client, const QByteArray &print)
{
    const DescriptionCache cache(m_environment.cacheFolder);
    if (std::optional<acsi::ServerDescription> cached = cache.load(print))
        co_return std::move(*cached);
    acsi::DiscoveryOptions options;
    options.cancelled = m_readingCancelled;
    const std::weak_ptr<DeviceConnection> weak = weak_from_this();
    options.progress = [weak](std::size_t done, std::size_t total) {
        if (const auto self = weak.lock()) {
            self->updateStatus([&](DeviceStatus &status) {
                status.modelStepsDone = static_cast<int>(done);
                status.modelSteps = static_cast<int>(total);
            });
        }
    };
    mms::Result<acsi::ServerDescription> description = co_await acsi::discover(client, options);
    if (description && description->refused.empty())
        cache.save(print, *description);
    co_return description;
}

asio::awaitable<void> DeviceConnection::readBlocks(ClientPointer client)
{
    struct Block
    {
        acsi::Reference reference;
        QString device;
        LogicalNode *node;
        ReportControlBlock *block; ///< null for the setting groups of the node
    };
    std::vector<Block> blocks;
    std::vector<mms::VariableAccess> variables;
    for (const LogicalDevice *device : qAsConst(m_model->device().logicalDevices)) {
        for (LogicalNode *node : device->logicalNodes) {
            const auto add = [&](FunctionalConstraint constraint, const QString &name,
                                 ReportControlBlock *block) {
                acsi::Reference reference =
                    referenceTo(device->name.toStdString(), node->name.toStdString(), constraint);
                reference.path.push_back({name.toStdString(), std::nullopt});
                variables.push_back(acsi::accessOf(reference));
                blocks.push_back({std::move(reference), device->name, node, block});
            };
            for (ReportControlBlock *block : qAsConst(node->reportControls->blocks)) {
                if (block->state != 0)
                    add(block->type == QLatin1String("BR") ? FunctionalConstraint::BR
                                                           : FunctionalConstraint::RP,
                        block->name, block);
            }
            if (node->settingGroup && node->settingGroup->state != 0)
                add(FunctionalConstraint::SP, QStringLiteral("SGCB"), nullptr);
        }
    }
    if (variables.empty())
        co_return;
    const mms::Result<std::vector<mms::AccessResult>> values =
        co_await client->read(std::move(variables));
    if (!values)
        co_return;
    for (std::size_t i = 0; i < blocks.size() && i < values->size(); ++i) {
        const mms::TypeDescription *type = m_model->type(blocks[i].reference);
        const mms::AccessResult &value = (*values)[i];
        if (!type || !value.ok())
            continue;
        if (blocks[i].block) {
            const mms::Result<acsi::ReportBlock> read = acsi::reportBlockFrom(*type, value.data());
            if (read) {
                DiscoveredModel::setSettings(
                    *blocks[i].block, *read,
                    configuredBlock(blocks[i].device, blocks[i].block->reference));
            }
        } else {
            DiscoveredModel::setGroups(*blocks[i].node->settingGroup, *type, value.data());
        }
    }
}

std::vector<acsi::Reference> DeviceConnection::polled(FunctionalConstraint constraint) const
{
    const auto isReported = [this](const std::string &reference) {
        for (const std::vector<std::string> &source : m_reported) {
            for (const std::string &member : source) {
                if (isAtOrBelow(reference, member))
                    return true;
            }
        }
        return false;
    };
    std::set<std::string> reportedNodes;
    for (const std::vector<std::string> &source : m_reported) {
        for (const std::string &member : source) {
            const std::size_t firstSeparator = member.find('$');
            reportedNodes.insert(member.substr(0, member.find('$', firstSeparator + 1)));
        }
    }

    std::vector<acsi::Reference> result;
    const std::string_view name = acsi::toText(constraint);
    for (const acsi::DeviceDescription &device : m_model->description().devices) {
        for (const acsi::NodeDescription &node : device.nodes) {
            const mms::TypeDescription *type = acsi::typeBelow(node.type, name, {});
            if (!type)
                continue;
            acsi::Reference reference = referenceTo(device.name, node.name, constraint);
            const std::string whole = acsi::toText(reference);
            const bool isControlBlockThere =
                constraint == FunctionalConstraint::SP && node.name == "LLN0";
            if (!isControlBlockThere && m_inParts.count(whole) == 0 &&
                reportedNodes.count(whole) == 0) {
                result.push_back(std::move(reference));
                continue;
            }
            reference.path.resize(1);
            for (const mms::TypeDescription::Component &object : type->components) {
                if (isControlBlockThere && object.name == "SGCB")
                    continue;
                reference.path.front().name = object.name;
                const std::string full = acsi::toText(reference);
                if (m_refused.count(full) == 0 && !isReported(full))
                    result.push_back(reference);
            }
        }
    }
    return result;
}

asio::awaitable<void>
DeviceConnection::readValues(ClientPointer client,
                             const std::vector<FunctionalConstraint> &constraints,
                             Publication publication)
{
    for (const FunctionalConstraint constraint : constraints) {
        // Twice: what is refused as a whole is asked for in parts.
        std::set<std::string> done;
        for (int pass = 0; pass < 2 && client->isOpen() && m_model; ++pass) {
            std::vector<acsi::Reference> references = polled(constraint);
            std::vector<mms::VariableAccess> variables;
            std::erase_if(references, [&](const acsi::Reference &reference) {
                return !done.insert(acsi::toText(reference)).second;
            });
            for (const acsi::Reference &reference : references)
                variables.push_back(acsi::accessOf(reference));
            if (variables.empty())
                break;
            const mms::Result<std::vector<mms::AccessResult>> values =
                co_await client->read(std::move(variables));
            if (!values || !m_model)
                break;
            for (std::size_t i = 0; i < references.size() && i < values->size(); ++i) {
                const mms::AccessResult &value = (*values)[i];
                if (value.ok() && publish(references[i], value.data(), publication))
                    continue;
                (references[i].path.empty() ? m_inParts : m_refused)
                    .insert(acsi::toText(references[i]));
            }
        }
    }
}

asio::awaitable<void> DeviceConnection::poll(ClientPointer client)
{
    Publication publication;
    publication.cause = PublishCause::Polled;
    publication.onlyChanges = true;
    co_await readValues(client, fastConstraints, publication);
    co_await readValues(client, slowConstraints, publication);
    const milliseconds interval = m_configuration.pollInterval;
    int count = 0;
    while (interval > milliseconds::zero() && m_wanted && client->isOpen()) {
        const Deadline next = steady_clock::now() + interval;
        for (Deadline now = steady_clock::now(); now < next && client->isOpen() && m_wanted;
             now = steady_clock::now())
            co_await pause(std::chrono::ceil<milliseconds>(next - now));
        if (!m_wanted || !client->isOpen())
            break;
        co_await readValues(client, fastConstraints, publication);
        if (++count % slowPolls == 0) {
            co_await readValues(client, slowConstraints, publication);
            co_await readValues(client, configurationConstraints, publication);
        }
    }
}

bool DeviceConnection::publish(const acsi::Reference &reference, const mms::Data &data,
                               const Publication &publication)
{
    std::vector<MMSValue> values;
    const auto visit = [&](const OnlineModel::Leaf &leaf) {
        if (!leaf.attribute)
            return;
        QVariant value = ValueConversion::toVariant(leaf.attribute->basicType, *leaf.data);
        if (publication.onlyChanges && value == leaf.attribute->value)
            return;
        leaf.attribute->value = value;
        MMSValue record;
        record.value = std::move(value);
        record.reference = leaf.attribute->reference;
        if (const mms::Data *quality = leaf.quality ? leaf.quality : publication.quality)
            record.quality = ValueConversion::qualityText(*quality);
        if (const mms::Data *time = leaf.time ? leaf.time : publication.time)
            record.timeStamp = ValueConversion::timeText(*time);
        record.deviceNo = m_configuration.number;
        record.cause = publication.cause;
        if (m_recentUsers > 0)
            m_recent.insert(record.reference, record);
        values.push_back(std::move(record));
    };
    const bool fits = m_model && m_model->forEachLeaf(reference, data, visit);
    m_published += values.size();
    m_environment.values->publish(std::move(values));
    return fits;
}

asio::awaitable<Outcome> DeviceConnection::readAndPublish(std::vector<acsi::Reference> references,
                                                          Publication publication)
{
    const ClientPointer client = m_client;
    if (!client) {
        const QString sentence = notConnectedSentence();
        co_return Outcome{OperationNotConnected, sentence};
    }
    std::vector<mms::VariableAccess> variables;
    for (const acsi::Reference &reference : references)
        variables.push_back(acsi::accessOf(reference));
    const mms::Result<std::vector<mms::AccessResult>> values =
        co_await client->read(std::move(variables));
    if (!values)
        co_return Outcome::failed(values.error());
    Failures failures;
    for (std::size_t i = 0; i < references.size() && i < values->size(); ++i) {
        const mms::AccessResult &value = (*values)[i];
        const QString item = text(acsi::itemText(references[i]));
        if (!value.ok())
            failures.add(item, QString::fromStdString(mms::describe(value.error())));
        else if (!publish(references[i], value.data(), publication))
            failures.add(item, Texts::tr("the value does not have the form of its type"));
    }
    co_return failures.outcome();
}

void DeviceConnection::setReported(const QString &source,
                                   const std::vector<acsi::Reference> &references)
{
    if (references.empty()) {
        m_reported.remove(source);
        return;
    }
    std::vector<std::string> &members = m_reported[source];
    members.clear();
    for (const acsi::Reference &reference : references)
        members.push_back(acsi::toText(reference));
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

QByteArray DeviceConnection::modelBytes()
{
    ++m_recentUsers;
    asio::co_spawn(m_strand, republish(),
                   [self = shared_from_this()](const std::exception_ptr &) {});
    return m_model->toBytes();
}

asio::awaitable<void> DeviceConnection::republish()
{
    const Deadline end = steady_clock::now() + browserStart;
    // Without an association nothing is left to change the values.
    for (Deadline now = steady_clock::now(); now < end && m_client; now = steady_clock::now())
        co_await pause(std::chrono::ceil<milliseconds>(end - now));
    std::vector<MMSValue> values;
    values.reserve(static_cast<std::size_t>(m_recent.size()));
    for (const MMSValue &value : qAsConst(m_recent))
        values.push_back(value);
    if (--m_recentUsers == 0)
        m_recent.clear();
    m_environment.values->publish(std::move(values));
}
