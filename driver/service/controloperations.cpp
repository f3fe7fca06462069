// SPDX-License-Identifier: Apache-2.0
#include "deviceoperations.h"
#include "driver/core/controlorder.h"
#include "driver/device/changegate.h"
#include "driver/device/controlpart.h"
#include "driver/device/valuepublishing.h"
#include "driver/model/valueconversion.h"
#include "driver/text/sentences.h"
#include "driverruntime.h"

#include <asio/co_spawn.hpp>
#include <asio/post.hpp>

#include <QtCore/QCoreApplication>

#include <array>
#include <atomic>

using acsi::ControlModel;
using Controls::Service;
using std::chrono::milliseconds;

namespace {

using DevicePointer = std::shared_ptr<DeviceConnection>;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// The call itself takes some time beside what it waits for.
constexpr milliseconds callMargin{2000};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

bool isEnhanced(quint8 controlModel)
{
    return controlModel == static_cast<quint8>(ControlModel::DirectEnhanced) ||
           controlModel == static_cast<quint8>(ControlModel::SelectEnhanced);
}

acsi::ControlResult failed(const QString &sentence)
{
    return {false, mms::verbatim(sentence.toStdString()), {}};
}

bool isUnknown(acsi::ControlOutcome outcome)
{
    return outcome == acsi::ControlOutcome::Unknown || outcome == acsi::ControlOutcome::Accepted;
}

/// The attribute that shows the position.
QString positionOf(const OnlineModel &model, const acsi::Reference &status)
{
    static constexpr std::array<const char *, 4> values = {"$stVal", "$valWTr$posVal", "$mxVal$f",
                                                           "$mxVal$i"};
    for (const char *const value : values) {
        const QString name = text(acsi::toText(status)) + QLatin1String(value);
        if (model.device().findTag(name))
            return name;
    }
    return {};
}

/// What the caller of an operation and the operation know of each other.
struct Request
{
    Service service = Service::Select;
    QString ldName;
    QString name;
    ControlBlock block;
    DeviceOperations::Tool tool = 0;
    std::atomic<bool> isOnTheWay{false}; ///< sent, and its outcome is not known yet
    /// Read shortly before, for the time that the operation may take.
    std::shared_ptr<acsi::ControlObject> control;
    milliseconds termination{0};
};
using RequestPointer = std::shared_ptr<Request>;

/// One control service of one object.
class Control
{
public:
    Control(ChangePointer change, RequestPointer request, acsi::Reference reference)
        : m_change(std::move(change))
        , m_device(m_change->device())
        , m_request(std::move(request))
        , m_service(m_request->service)
        , m_reference(std::move(reference))
        , m_name(acsi::toText(m_reference))
        , m_block(m_request->block)
        , m_client(m_device->client())
        , m_part(m_device->part<Controls::Part>())
        , m_object(m_part.object(m_name))
        , m_state(m_object.state)
    {
    }

    asio::awaitable<acsi::ControlResult> run()
    {
        m_before = knownPosition();
        m_change->setValues(m_before, ControlOrder::text(m_block));
        // An empty record must not reach a breaker, so it is looked at before the device.
        if (const QString refusal = beforehand(); !refusal.isEmpty())
            co_return failed(refusal);
        const ControlState::Command *known =
            m_service == Service::Cancel ? m_state.cancellable(m_device->now()) : nullptr;
        const bool isUrgent = known && m_object.control && m_object.control->client() == m_client;
        if (!isUrgent) {
            const auto looked = co_await look();
            if (!looked)
                co_return acsi::ControlResult{false, looked.error().message, {}};
            m_before = co_await readPosition();
            m_change->setValues(m_before, ControlOrder::text(m_block));
            if (m_device->client() != m_client)
                co_return failed(m_device->notConnectedSentence());
            if (const QString refusal = afterwards(); !refusal.isEmpty())
                co_return failed(refusal);
        }
        acsi::ControlResult result = co_await send();
        m_request->isOnTheWay = false;
        if (isUnknown(result.outcome)) {
            result.message = wording::sentences(
                result.message,
                wording::verbatim(Controls::unknownSentence(m_service).toStdString()));
            m_part.setProblem(m_name, text(result.message));
        } else if (!m_state.isInDoubt()) {
            m_part.setProblem(m_name, QString());
        }
        m_change->setValues(m_before, sent());
        co_return result;
    }

    /// Reads what the device says of the object; how long a command of it may take.
    asio::awaitable<void> prepare()
    {
        if (!beforehand().isEmpty())
            co_return;
        if (const auto looked = co_await look(); !looked || m_device->client() != m_client)
            co_return;
        m_request->control = m_object.control;
        m_request->termination =
            ControlOrder::terminationPatience(m_object.control->operateTimeout());
    }

private:
    /// Who must change nothing may still stop what runs.
    Change::Kind kind() const
    {
        const bool stops = m_service == Service::Cancel && m_state.isRunning();
        return stops ? Change::Kind::GivesBack : Change::Kind::Wanted;
    }

    /// Why nothing is to be asked of the device at all; empty when there is no reason.
    QString beforehand() const
    {
        if (const Outcome permission = m_change->permission(kind()); !permission)
            return permission.error;
        const auto now = m_device->now();
        if (const QString why =
                obstacle(m_state.obstacle(m_service, m_block, m_request->tool, now));
            !why.isEmpty())
            return why;
        return m_state.needsRecord(m_service, now) ? faultOfRecord() : QString();
    }

    QString faultOfRecord() const
    {
        const auto valid = ControlOrder::toRequest(m_block, originator(), 0);
        return valid ? QString() : text(valid.error().message);
    }

    static QString obstacle(ControlState::Obstacle what)
    {
        switch (what) {
        case ControlState::Obstacle::None:
            break;
        case ControlState::Obstacle::NotSelected:
            return Texts::tr("Select the object first");
        case ControlState::Obstacle::SelectedByOther:
            return Texts::tr("Another window has selected the object since: select it here "
                             "first.");
        case ControlState::Obstacle::SelectedAgain:
            return Texts::tr("The object was selected for different commands; which one is meant "
                             "is not known: cancel the selection and select it again.");
        case ControlState::Obstacle::NotTheSelected:
            return Texts::tr("The command is not the one that was selected.");
        }
        return {};
    }

    /// Why the object cannot be asked for it, after it was looked at.
    QString afterwards() const
    {
        const auto model = static_cast<quint8>(m_object.control->model());
        if (model != m_block.controlModel) {
            return Texts::tr("%1 has the control model %2, but the command was made for %3: read "
                             "the model of the device again.")
                .arg(text(m_name))
                .arg(model)
                .arg(m_block.controlModel);
        }
        // All of it may have changed while the device was asked.
        return beforehand();
    }

    asio::awaitable<mms::Result<void>> look()
    {
        std::shared_ptr<acsi::ControlObject> control = m_object.control;
        if (m_request->control && m_request->control == control && control->client() == m_client)
            co_return mms::Result<void>();
        if (control && control->client() == m_client) {
            const auto refreshed = co_await control->refresh();
            co_return refreshed;
        }
        auto opened = co_await acsi::ControlObject::open(m_client, m_reference);
        if (!opened)
            co_return opened.error();
        if (m_device->client() != m_client)
            co_return mms::Error{mms::verbatim(m_device->notConnectedSentence().toStdString()), 0};
        // Another call may have opened it meanwhile.
        if (!m_object.control || m_object.control->client() != m_client) {
            m_object.control = *std::move(opened);
            m_part.listen(m_reference);
        }
        co_return mms::Result<void>();
    }

    QString position() const
    {
        const OnlineModel *model = m_device->model();
        const auto status = model ? Controls::statusOf(*model, m_reference) : std::nullopt;
        return status ? positionOf(*model, *status) : QString();
    }

    QString knownPosition() const
    {
        const QString name = position();
        const DataAttribute *attribute =
            name.isEmpty() ? nullptr : m_device->model()->device().findTag(name);
        return attribute ? ValueConversion::text(attribute->value) : QString();
    }

    /// What the device has now; what is known where it does not say.
    asio::awaitable<QString> readPosition()
    {
        const QString name = position();
        const auto reference = acsi::parseReference(name.toStdString());
        if (m_service == Service::Cancel || name.isEmpty() || !reference)
            co_return knownPosition();
        std::vector<acsi::Reference> references;
        references.push_back(*reference);
        static_cast<void>(co_await m_device->values().readAndPublish(
            std::move(references), ValuePublishing::Publication()));
        co_return knownPosition();
    }

    QByteArray originator() const { return m_device->configuration().originatorIdentification; }

    /// What is sent now; a sentence when that is nothing.
    QString choose(ControlState::Command &command)
    {
        const auto now = m_device->now();
        const ControlModel model = m_object.control->model();
        if (const ControlState::Command *again = m_state.repeated(m_service, model, now)) {
            command = *again;
            command.request.time = ControlOrder::now();
            m_block = command.block;
        } else {
            if (const QString why =
                    obstacle(m_state.obstacle(m_service, m_block, m_request->tool, now));
                !why.isEmpty())
                return why;
            // Of what it cancels the device knows no more than the number; the record says the
            // rest.
            if (m_service == Service::Cancel && ControlOrder::isEmpty(m_block))
                m_block.orCat = static_cast<quint8>(m_device->configuration().originatorCategory);
            const auto request = ControlOrder::toRequest(m_block, originator(),
                                                         m_state.numberFor(m_service, model, now));
            if (!request)
                return text(request.error().message);
            command = {m_block, *request, m_request->tool};
        }
        // No Cancel has a place for them.
        if (m_service == Service::Cancel)
            m_block.check = 0;
        return {};
    }

    /// The right to send it; null when there is none. From now on nobody knows what becomes of it
    /// until the device has said so.
    std::shared_ptr<acsi::ChangingClient> goes()
    {
        auto client = m_change->client(kind());
        if (!client)
            return nullptr;
        m_change->setValues(m_before, sent());
        m_change->setUnknown(Controls::unknownSentence(m_service));
        m_request->isOnTheWay = true;
        return client;
    }

    acsi::ControlResult refusal() const { return failed(m_change->refusal().error); }

    static ControlState::Manner mannerOf(const acsi::ControlObject &control)
    {
        return {control.model(), control.selectTimeout().value_or(milliseconds(0)),
                control.isOperateMany()};
    }

    asio::awaitable<acsi::ControlResult> send()
    {
        ControlState::Command command;
        if (const QString why = choose(command); !why.isEmpty())
            co_return failed(why);
        const auto client = goes();
        if (!client)
            co_return refusal();
        const auto control = m_object.control;
        const std::uint8_t number = command.request.ctlNum;
        m_state.sent(m_service, command);
        Given given(*this, number);
        acsi::ControlResult result;
        switch (m_service) {
        case Service::Select:
            result = co_await control->select(client, command.request);
            break;
        case Service::Operate: {
            const milliseconds patience =
                ControlOrder::terminationPatience(control->operateTimeout());
            result = co_await control->operate(client, command.request, patience);
            break;
        }
        case Service::Cancel:
            result = co_await control->cancel(client, command.request);
            break;
        }
        given.isOver = true;
        if (m_device->client() == m_client)
            m_state.ended(m_service, number, result.outcome, mannerOf(*control), m_device->now());
        co_return result;
    }

    /// A command whose caller may give up while it is on its way.
    struct Given
    {
        Given(Control &owner, std::uint8_t ctlNum)
            : control(owner)
            , number(ctlNum)
        {
        }
        ~Given()
        {
            if (isOver || control.m_service != Service::Operate)
                return;
            control.m_state.ended(Service::Operate, number, acsi::ControlOutcome::Unknown, {},
                                  control.m_device->now());
            control.m_part.setProblem(
                control.m_name,
                QString::fromStdString(acsi::objectReferenceText(control.m_reference)) +
                    QStringLiteral(": ") + Controls::unknownSentence(Service::Operate));
        }
        Q_DISABLE_COPY(Given)

        Control &control;
        std::uint8_t number;
        bool isOver = false;
    };

    /// What was sent, for the journal.
    QString sent() const
    {
        const bool isReadOfSelection =
            m_service == Service::Select &&
            m_block.controlModel == static_cast<quint8>(ControlModel::SelectNormal);
        return isReadOfSelection ? QString() : ControlOrder::text(m_block);
    }

    ChangePointer m_change;
    DevicePointer m_device;
    RequestPointer m_request;
    Service m_service;
    acsi::Reference m_reference;
    std::string m_name;
    ControlBlock m_block;
    QString m_before; ///< the position
    std::shared_ptr<acsi::Client> m_client;
    Controls::Part &m_part;
    Controls::Part::Object &m_object;
    ControlState &m_state;
};

asio::awaitable<Outcome> prepare(ChangePointer change, RequestPointer request)
{
    const mms::Result<acsi::Reference> reference =
        acsi::parseReference(request->ldName.toStdString(), request->name.toStdString());
    if (!reference)
        co_return Outcome();
    Control order(change, request, *reference);
    co_await order.prepare();
    co_return Outcome();
}

asio::awaitable<Outcome> control(ChangePointer change, RequestPointer request)
{
    const mms::Result<acsi::Reference> reference =
        acsi::parseReference(request->ldName.toStdString(), request->name.toStdString());
    if (!reference)
        co_return Outcome::failed(reference.error());
    change->setReference(text(acsi::toText(*reference)));
    acsi::ControlResult result;
    {
        Control order(change, request, *reference);
        result = co_await order.run();
    }
    const Outcome outcome = result ? Outcome() : Outcome::failed(text(result.message));
    if (result.applError)
        change->setAdditionalCause(text(acsi::additionalCauseText(result.applError->addCause)));
    if (isUnknown(result.outcome))
        change->giveUp(outcome.error);
    else
        change->end(outcome);
    // What the command came to is shown, but nobody waits for that.
    if (result.outcome != acsi::ControlOutcome::NotSent)
        Controls::showStatus(change->device(), *reference);
    co_return outcome;
}

ChangeIntent intentOf(const Request &request)
{
    ChangeIntent intent;
    intent.operation = Controls::operationName(request.service);
    intent.reference = request.ldName + QLatin1Char('/') + request.name;
    intent.newValue = ControlOrder::text(request.block);
    // A cancel of what runs is never forbidden; the rest is decided where it is known what runs.
    if (request.service == Service::Cancel)
        intent.kind = ChangeIntent::Kind::GivesBack;
    intent.tellsTries = true;
    return intent;
}

/// What is wrong with the request itself; empty when nothing is.
QString fault(const Request &request, const std::optional<ControlBlock> &block)
{
    if (!block)
        return Texts::tr("The control request cannot be read.");
    if (!block->objectReference.isEmpty() && block->objectReference != request.name) {
        return Texts::tr("The control request is for %1, not for %2.")
            .arg(block->objectReference, request.name);
    }
    return {};
}

OperationResult perform(DriverRuntime &runtime, const CalledDevice &device, Service service,
                        const QString &ldName, const QString &name, const QByteArray &controlBlock,
                        QString &error)
{
    const auto request = std::make_shared<Request>();
    request->service = service;
    request->ldName = ldName;
    request->name = name;
    request->tool = device.tool();
    const std::optional<ControlBlock> block = ControlOrder::read(controlBlock);
    if (block)
        request->block = *block;
    Outcome refusal;
    if (const QString sentence = fault(*request, block); !sentence.isEmpty())
        refusal = Outcome::failed(sentence);
    const ChangePointer change = DriverRuntime::announce(device, intentOf(*request), refusal);
    error = refusal.error;
    if (!change)
        return refusal.result;

    const bool waits = service == Service::Operate && isEnhanced(block->controlModel);
    OperationResult result = OperationSucceeded;
    if (waits) {
        result = DriverRuntime::run(device, error, [change, request](const DevicePointer &) {
            return prepare(change, request);
        });
    }
    if (result != OperationSucceeded) {
        ChangeGate::withdraw(change, {result, error});
        return result;
    }
    milliseconds limit = DriverRuntime::usualLimit;
    if (waits)
        limit = change->device()->configuration().operationTimeout +
                std::max(request->termination, ControlOrder::terminationPatience({})) + callMargin;
    result = runtime.carryOut(
        device, change, error,
        [request](ChangePointer permitted) { return control(std::move(permitted), request); },
        DriverRuntime::Need::Model, limit);
    if (result != OperationSucceeded && request->isOnTheWay)
        error += QLatin1Char(' ') + Controls::unknownSentence(service);
    return result;
}

} // namespace

OperationResult DeviceOperations::selectObject(DriverRuntime &runtime, const CalledDevice &device,
                                               const QString &ldName,
                                               const QString &objectReference,
                                               const QByteArray &controlBlock, QString &error)
{
    return perform(runtime, device, Service::Select, ldName, objectReference, controlBlock, error);
}

OperationResult DeviceOperations::controlObject(DriverRuntime &runtime, const CalledDevice &device,
                                                const QString &ldName,
                                                const QString &objectReference,
                                                const QByteArray &controlBlock, QString &error)
{
    return perform(runtime, device, Service::Operate, ldName, objectReference, controlBlock, error);
}

OperationResult DeviceOperations::cancelObject(DriverRuntime &runtime, const CalledDevice &device,
                                               const QString &ldName,
                                               const QString &objectReference,
                                               const QByteArray &controlBlock, QString &error)
{
    return perform(runtime, device, Service::Cancel, ldName, objectReference, controlBlock, error);
}

OperationResult DeviceOperations::abortClose(DriverRuntime &, const CalledDevice &device)
{
    device->abort();
    return OperationSucceeded;
}
