// SPDX-License-Identifier: Apache-2.0
#include "deviceconnection.h"

#include "changegate.h"
#include "clientoptions.h"
#include "driver/core/valuewords.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"
#include "internalerror.h"
#include "lifewatch.h"
#include "modelreading.h"
#include "settinggroups.h"
#include "valuepolling.h"
#include "valuepublishing.h"

#include <asio/bind_cancellation_slot.hpp>
#include <asio/cancellation_signal.hpp>
#include <asio/co_spawn.hpp>
#include <asio/experimental/as_tuple.hpp>
#include <asio/post.hpp>
#include <asio/use_awaitable.hpp>

#include <QtCore/QCoreApplication>

#include <optional>
#include <random>

using ConnectionText::text;
using ConnectionText::withoutPeriod;
using std::chrono::milliseconds;
using std::chrono::steady_clock;
using Phase = AssociationLife::Phase;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);

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

QString abortedSentence()
{
    return Texts::tr("Aborted by the operator.");
}

} // namespace

struct DeviceConnection::Attempt
{
    std::optional<mms::Result<std::shared_ptr<acsi::ChangingClient>>> result;
    asio::cancellation_signal cancel;
};

std::shared_ptr<DeviceConnection> DeviceConnection::create(const asio::any_io_executor &executor,
                                                           DeviceConfiguration configuration,
                                                           ConnectionEnvironment environment)
{
    return std::make_shared<DeviceConnection>(Private(), executor, std::move(configuration),
                                              std::move(environment));
}

DeviceConnection::DeviceConnection(Private, const asio::any_io_executor &executor,
                                   DeviceConfiguration configuration,
                                   ConnectionEnvironment environment)
    : m_configuration(std::move(configuration))
    , m_environment(std::move(environment))
    , m_strand(osi::strandOn(executor))
    , m_capture(std::make_shared<PduCapture>(m_environment.captureOctets))
    , m_board(m_configuration, m_capture,
              [this] {
                  if (m_environment.statusChanged)
                      m_environment.statusChanged(*this);
              })
    , m_operations(m_strand)
    , m_life(m_environment.random ? m_environment.random : randomSource())
    , m_gate(std::make_unique<ChangeGate>())
    , m_reading(std::make_unique<ModelReading>(*this))
    , m_polling(std::make_unique<ValuePolling>(*this))
    , m_values(std::make_unique<ValuePublishing>(*this))
{
}

DeviceConnection::~DeviceConnection() = default;

void DeviceConnection::connect()
{
    asio::post(m_strand, [self = shared_from_this()] { self->want(); });
}

void DeviceConnection::want()
{
    const bool isAtRest = m_life.phase() == Phase::Left;
    m_life.want(now());
    wake();
    if (!isAtRest)
        return;
    asio::co_spawn(m_strand, reconnectWhileWanted(),
                   [self = shared_from_this()](const std::exception_ptr &exception) {
                       if (!exception)
                           return;
                       self->m_life.leave(InternalError::sentence(exception));
                       self->clearUp();
                   });
}

void DeviceConnection::disconnect(std::function<void()> left)
{
    asio::post(m_strand, [self = shared_from_this(), left = std::move(left)]() mutable {
        if (left && self->m_life.phase() != Phase::Left)
            self->m_left.push_back(std::move(left));
        else if (left)
            left();
        const bool wasReading = self->m_life.phase() == Phase::Reading;
        self->m_life.leave();
        if (wasReading)
            self->stopReading();
        self->wake();
    });
}

void DeviceConnection::cancelReading()
{
    asio::post(m_strand, [self = shared_from_this()] {
        if (self->m_life.cancelReading(Texts::tr("Reading the model was cancelled.")))
            self->stopReading();
        self->wake();
    });
}

void DeviceConnection::abort()
{
    asio::post(m_strand, [self = shared_from_this()] {
        if (!self->m_life.abort(abortedSentence()))
            return;
        self->m_reading->cancel();
        self->cutOffInStrand();
    });
}

void DeviceConnection::cutOff()
{
    asio::post(m_strand, [self = shared_from_this()] { self->cutOffInStrand(); });
}

void DeviceConnection::cutOffInStrand()
{
    if (m_client)
        m_client->abort(mms::verbatim(abortedSentence().toStdString()));
    wake();
}

void DeviceConnection::stopReading()
{
    m_reading->cancel();
    // What is on the way would be waited for in vain.
    asio::co_spawn(m_strand, m_client->close(),
                   [self = shared_from_this(), client = m_client](
                       const std::exception_ptr &exception) { self->fail(client, exception); });
}

void DeviceConnection::cancelOperations()
{
    asio::post(m_strand, [self = shared_from_this()] { self->m_operations.cancelAll(); });
}

void DeviceConnection::namesReleased()
{
    asio::post(m_strand, [self = shared_from_this()] {
        self->m_life.namesReleased(self->now());
        self->wake();
    });
}

void DeviceConnection::fail(const ClientPointer &client, const std::exception_ptr &exception)
{
    if (exception && !InternalError::isCancellation(exception))
        client->abort(mms::verbatim(InternalError::sentence(exception).toStdString()));
}

asio::awaitable<void> DeviceConnection::reconnectWhileWanted()
{
    for (;;) {
        const AssociationLife::Step step = m_life.next(now());
        if (step.what == AssociationLife::Step::What::Rest)
            co_return;
        try {
            co_await carryOut(step);
        } catch (...) {
            m_life.failed(InternalError::sentence(std::current_exception()));
            clearUp();
        }
    }
}

asio::awaitable<void> DeviceConnection::carryOut(AssociationLife::Step step)
{
    using What = AssociationLife::Step::What;
    switch (step.what) {
    case What::Rest:
        break;
    case What::Wait:
        co_await pause(std::chrono::ceil<milliseconds>(step.until - now()));
        break;
    case What::Connect:
        co_await makeAssociation();
        break;
    case What::Read:
        co_await readModel();
        break;
    case What::Serve:
        co_await serve();
        break;
    case What::TakeLeave:
        co_await takeLeave();
        [[fallthrough]];
    case What::ClearUp:
        if (m_client && m_client->isOpen())
            co_await m_client->close();
        clearUp();
        break;
    }
}

asio::awaitable<void> DeviceConnection::makeAssociation()
{
    m_life.connecting();
    show();
    const auto state = std::make_shared<Attempt>();
    m_attempt = state;
    asio::co_spawn(m_strand, attempt(shared_from_this(), state),
                   asio::bind_cancellation_slot(
                       state->cancel.slot(),
                       [self = shared_from_this(), state](const std::exception_ptr &exception) {
                           if (!exception || state->result)
                               return;
                           state->result.emplace(mms::Error{
                               mms::verbatim(InternalError::sentence(exception).toStdString()), 0});
                           self->wake();
                       }));
    while (!state->result && m_life.phase() == Phase::Connecting)
        co_await pause(m_configuration.connectTimeout);
    if (!state->result) {
        m_attempt.reset();
        state->cancel.emit(asio::cancellation_type::terminal);
        co_return;
    }
    if (!*state->result) {
        m_life.failed(text(state->result->error().message));
        co_return;
    }
    m_gate->m_client = std::move(**state->result);
    m_client = m_gate->m_client;
    m_life.associated();
    m_board.update([](DeviceStatus &status) { ++status.counters.connections; });
    show();
}

asio::awaitable<void> DeviceConnection::attempt(std::shared_ptr<DeviceConnection> self,
                                                std::shared_ptr<Attempt> attempt)
{
    acsi::ClientOptions options = clientOptionsFor(self->m_configuration);
    options.association.link.lookUp = self->m_environment.lookUp;
    options.association.link.trace =
        [capture = self->m_capture, now = self->m_environment.now,
         exchanged = self->m_environment.exchanged](osi::Direction direction, mms::Bytes pdu) {
            capture->add(direction, pdu, now());
            if (exchanged)
                exchanged();
        };
    const std::function<void(const mms::Text &)> closed =
        [weak = self->weak_from_this(), of = std::weak_ptr(attempt)](const mms::Text &reason) {
            const auto connection = weak.lock();
            const auto ended = of.lock();
            if (!connection || !ended || connection->m_attempt != ended)
                return;
            connection->m_life.closed(text(reason));
            connection->wake();
        };
    std::string host = self->m_configuration.host.toStdString();
    const auto port = static_cast<std::uint16_t>(self->m_configuration.port);
    auto result = co_await acsi::Client::connect(self->m_strand, std::move(host), port,
                                                 std::move(options), closed);
    if (self->m_attempt != attempt) {
        if (result)
            (*result)->abort(mms::say("Nobody wants the association any more."));
        co_return;
    }
    attempt->result.emplace(std::move(result));
    self->wake();
}

asio::awaitable<void> DeviceConnection::readModel()
{
    const ModelReading::Refusal refusal = co_await m_reading->read(m_client);
    if (!refusal.sentence.isEmpty())
        m_life.failed(refusal.sentence, refusal.kind);
    m_life.ready(now());
    show();
}

asio::awaitable<void> DeviceConnection::serve()
{
    const ClientPointer client = m_client;
    // Looks after the groups from the beginning, not only once somebody uses them.
    static_cast<void>(part<SettingGroups>());
    for (const auto &part : m_parts) {
        if (client->isOpen())
            co_await part.second->opened();
    }
    asio::co_spawn(m_strand, m_polling->poll(client),
                   [self = shared_from_this(), client](const std::exception_ptr &exception) {
                       self->fail(client, exception);
                   });
    co_await watchOverLife(*this, client);
}

asio::awaitable<void> DeviceConnection::takeLeave()
{
    const ClientPointer client = m_client;
    for (const auto &part : m_parts) {
        if (client->isOpen())
            co_await part.second->leaving();
    }
}

/// Nothing is left of an association, or attempt, when it returns.
void DeviceConnection::clearUp()
{
    m_attempt.reset();
    m_gate->m_client.reset();
    if (const ClientPointer client = std::exchange(m_client, nullptr)) {
        if (client->isOpen())
            client->abort(mms::verbatim(m_life.reason().toStdString()));
        m_reading->end();
        m_values->forgetUnwritten();
        m_polling->end();
        m_environment.release();
        for (const auto &part : m_parts)
            part.second->closed(m_life.reason());
    }
    m_life.clearedUp(now());
    show();
    const std::vector<std::function<void()>> left = std::exchange(m_left, {});
    for (const std::function<void()> &each : left)
        each();
}

Outcome DeviceConnection::perform(Need need, Operation operation)
{
    return perform(need, m_configuration.operationTimeout, std::move(operation));
}

Outcome DeviceConnection::perform(Need need, milliseconds limit, Operation operation)
{
    // The caller's thread waits by the clock of the system.
    const Deadline deadline = steady_clock::now() + limit;
    OperationCalls::Work work = [self = shared_from_this(), need, deadline,
                                 operation = std::move(operation)] {
        return run(self, need, deadline, operation);
    };
    return m_operations.call(shared_from_this(), deadline, std::move(work),
                             Texts::tr("%1 has not finished the operation within %2 seconds.")
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

asio::awaitable<Outcome> DeviceConnection::waitFor(Need need, Deadline deadline)
{
    using What = AssociationLife::Admission::What;
    const Deadline since = this->now();
    for (;;) {
        const Deadline now = this->now();
        const auto admission = m_life.admit(need == Need::Model, now, since, deadline);
        switch (admission.what) {
        case What::Enter:
            co_return Outcome();
        case What::Wait:
            co_await pause(std::chrono::ceil<milliseconds>(admission.until - now));
            break;
        case What::Want:
            want();
            break;
        case What::ModelIsUnread: {
            const DeviceStatus known = status();
            co_return Outcome{OperationNotConnected,
                              Texts::tr("The model of %1 is being read: %2 of %3.")
                                  .arg(m_configuration.title())
                                  .arg(known.modelStepsDone)
                                  .arg(known.modelSteps)};
        }
        case What::NotConnected: {
            const QString sentence = notConnectedSentence();
            co_return Outcome{OperationNotConnected, sentence};
        }
        }
    }
}

QString DeviceConnection::notConnectedSentence() const
{
    const QString reason = withoutPeriod(status().reason);
    if (reason.isEmpty())
        return Texts::tr("%1 is not connected.").arg(m_configuration.title());
    return Texts::tr("%1 is not connected: %2.").arg(m_configuration.title(), reason);
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

void DeviceConnection::show()
{
    m_board.show(m_life, now());
    wake();
}

OnlineModel *DeviceConnection::model() const
{
    return m_reading->model();
}

const DeviceIdentity &DeviceConnection::identity() const
{
    return m_reading->identity();
}

void DeviceConnection::setProblem(const QString &source, const QString &sentence)
{
    m_board.setProblem(source, sentence, m_life);
}

void DeviceConnection::count(std::uint64_t DeviceCounters::*counter, std::uint64_t by)
{
    m_board.count(counter, by);
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
