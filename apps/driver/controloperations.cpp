// SPDX-License-Identifier: Apache-2.0
#include "controlorder.h"
#include "driverruntime.h"
#include "journalentry.h"
#include "valueconversion.h"

#include <QtCore/QCoreApplication>

#include <array>

using acsi::ControlModel;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

using DevicePointer = std::shared_ptr<DeviceConnection>;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// How long a command may take where the device does not say.
constexpr milliseconds usualTermination{30000};
constexpr milliseconds longestTermination{60000};
/// What the device needs to tell of the end of a command that took all its time.
constexpr milliseconds terminationMargin{2000};

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
    return {false, sentence.toStdString(), {}};
}

/// What was selected and is being operated on a device; it ends with the association.
class ControlPart : public AssociationPart
{
public:
    /// A command as it was sent.
    struct Command
    {
        ControlBlock block;
        acsi::ControlRequest request;
    };

    struct Object
    {
        std::uint8_t ctlNum = 0; ///< the last one
        std::optional<Command> selection;
        steady_clock::time_point selectionEnd;
        std::optional<Command> underWay;
        std::optional<Command> last;

        const Command *liveSelection() const
        {
            return selection && steady_clock::now() < selectionEnd ? &*selection : nullptr;
        }
        /// What a cancel is about.
        const Command *current() const { return underWay ? &*underWay : liveSelection(); }
    };

    explicit ControlPart(DeviceConnection &) {}

    Object &object(const std::string &reference) { return m_objects[reference]; }

    void closed(const QString &) override
    {
        for (auto &each : m_objects) {
            each.second.selection.reset();
            each.second.underWay.reset();
            each.second.last.reset();
        }
    }

private:
    std::map<std::string, Object> m_objects;
};

enum class Service { Select, Operate, Cancel };

/// One control service of one object.
class Control
{
public:
    Control(DevicePointer device, Service service, acsi::Reference reference, ControlBlock block)
        : m_device(std::move(device))
        , m_service(service)
        , m_reference(std::move(reference))
        , m_name(acsi::toText(m_reference))
        , m_block(std::move(block))
        , m_client(m_device->client())
        , m_state(m_device->part<ControlPart>().object(m_name))
    {
    }

    asio::awaitable<acsi::ControlResult> run()
    {
        // An empty record must not reach a breaker, so it is looked at before the device.
        const bool needsSelection =
            m_service != Service::Select &&
            m_block.controlModel == static_cast<quint8>(ControlModel::SelectEnhanced);
        if (needsSelection && !selected())
            co_return failed(Texts::tr("Select the object first"));
        const auto valid =
            ControlOrder::toRequest(m_block, m_device->configuration().originatorIdentification, 0);
        if (!valid)
            co_return acsi::ControlResult{false, valid.error().message, {}};

        const auto object = co_await acsi::ControlObject::open(m_client, m_reference);
        if (!object)
            co_return acsi::ControlResult{false, object.error().message, {}};
        m_object = *object;
        const auto model = static_cast<quint8>(m_object->model());
        if (model != m_block.controlModel) {
            co_return failed(Texts::tr("%1 has the control model %2, but the command was made for "
                                       "%3: read the model of the device again.")
                                 .arg(text(m_name))
                                 .arg(model)
                                 .arg(m_block.controlModel));
        }
        switch (m_service) {
        case Service::Select:
            co_return co_await select();
        case Service::Operate:
            co_return co_await operate();
        case Service::Cancel:
            break;
        }
        co_return co_await cancel();
    }

    /// What was sent, for the journal.
    QString sent() const
    {
        const bool isReadOfSelection =
            m_service == Service::Select &&
            m_block.controlModel == static_cast<quint8>(ControlModel::SelectNormal);
        return isReadOfSelection ? QString() : ControlOrder::text(m_block);
    }

private:
    /// The command that an operate or cancel of an object with selection repeats.
    const ControlPart::Command *selected() const
    {
        return m_service == Service::Operate ? m_state.liveSelection() : m_state.current();
    }

    ControlPart::Command command(std::uint8_t ctlNum) const
    {
        auto request = ControlOrder::toRequest(
            m_block, m_device->configuration().originatorIdentification, ctlNum);
        return {m_block, *std::move(request)};
    }

    void keepSelection(ControlPart::Command command)
    {
        const milliseconds timeout = m_object->selectTimeout().value_or(milliseconds(0));
        m_state.selection = std::move(command);
        m_state.selectionEnd = timeout > milliseconds(0) ? steady_clock::now() + timeout
                                                         : steady_clock::time_point::max();
    }

    asio::awaitable<acsi::ControlResult> select()
    {
        // What was selected before must not be operated after a select that the device refuses.
        m_state.selection.reset();
        ControlPart::Command command = this->command(++m_state.ctlNum);
        const acsi::ControlResult result = co_await m_object->select(command.request);
        if (result && m_device->client() == m_client)
            keepSelection(std::move(command));
        co_return result;
    }

    asio::awaitable<acsi::ControlResult> operate()
    {
        const ControlPart::Command *selection = m_state.liveSelection();
        ControlPart::Command command;
        if (m_object->model() == ControlModel::SelectEnhanced) {
            if (!selection)
                co_return failed(Texts::tr("Select the object first"));
            if (!ControlOrder::repeats(m_block, selection->block))
                co_return failed(Texts::tr("The command is not the one that was selected."));
            command = *selection;
            command.request.time = ControlOrder::now();
            m_block = command.block;
        } else {
            command = this->command(selection ? m_state.ctlNum : ++m_state.ctlNum);
        }
        const bool staysSelected = isOperateMany();
        const std::optional<ControlPart::Command> before = std::move(m_state.selection);
        m_state.selection.reset();
        m_state.underWay = command;
        m_state.last = command;
        const acsi::ControlResult result =
            co_await m_object->operate(command.request, terminationPatience());
        if (m_state.underWay && m_state.underWay->request.ctlNum == command.request.ctlNum)
            m_state.underWay.reset();
        if (result && before && staysSelected && m_device->client() == m_client)
            keepSelection(*before);
        co_return result;
    }

    asio::awaitable<acsi::ControlResult> cancel()
    {
        const ControlPart::Command *current = m_state.current();
        ControlPart::Command command;
        switch (m_object->model()) {
        case ControlModel::SelectEnhanced:
            if (!current)
                co_return failed(Texts::tr("Select the object first"));
            command = *current;
            break;
        case ControlModel::SelectNormal:
            // What was sent with the selection is the number alone; the record says the rest.
            command = m_state.underWay ? *m_state.underWay : this->command(m_state.ctlNum);
            break;
        default:
            command = m_state.last ? *m_state.last : this->command(m_state.ctlNum);
        }
        command.request.time = ControlOrder::now();
        m_block = command.block;
        const acsi::ControlResult result = co_await m_object->cancel(command.request);
        if (result)
            m_state.selection.reset();
        co_return result;
    }

    /// An object that stays selected after it was operated.
    bool isOperateMany() const
    {
        acsi::Reference reference = m_reference;
        reference.constraint = acsi::FunctionalConstraint::CF;
        const OnlineModel *model = m_device->model();
        const DataAttribute *attribute =
            model ? model->device().findTag(text(acsi::toText(reference) + "$sboClass")) : nullptr;
        return attribute && attribute->value.toInt() == 1;
    }

    milliseconds terminationPatience() const
    {
        const milliseconds timeout = m_object->operateTimeout().value_or(milliseconds(0));
        if (timeout <= milliseconds(0))
            return usualTermination;
        return std::min(timeout, longestTermination - terminationMargin) + terminationMargin;
    }

    DevicePointer m_device;
    Service m_service;
    acsi::Reference m_reference;
    std::string m_name;
    ControlBlock m_block;
    std::shared_ptr<acsi::Client> m_client;
    ControlPart::Object &m_state;
    std::shared_ptr<acsi::ControlObject> m_object;
};

/// The object under another constraint; nothing where it has none of that.
std::optional<acsi::Reference> statusOf(const OnlineModel &model, acsi::Reference object)
{
    for (const auto constraint : {acsi::FunctionalConstraint::ST, acsi::FunctionalConstraint::MX}) {
        object.constraint = constraint;
        if (model.type(object))
            return object;
    }
    return std::nullopt;
}

QString statusText(const OnlineModel &model, const acsi::Reference &status)
{
    static constexpr std::array<const char *, 4> values = {"$stVal", "$valWTr$posVal", "$mxVal$f",
                                                           "$mxVal$i"};
    for (const char *const value : values) {
        const DataAttribute *attribute =
            model.device().findTag(text(acsi::toText(status)) + QLatin1String(value));
        if (attribute)
            return ValueConversion::text(attribute->value);
    }
    return {};
}

QString operationName(Service service)
{
    switch (service) {
    case Service::Select:
        return QStringLiteral("selectObject");
    case Service::Operate:
        return QStringLiteral("controlObject");
    case Service::Cancel:
        break;
    }
    return QStringLiteral("cancelObject");
}

asio::awaitable<Outcome> control(DevicePointer device, Service service, QString ldName,
                                 QString name, ControlBlock block)
{
    const mms::Result<acsi::Reference> reference =
        acsi::parseReference(ldName.toStdString(), name.toStdString());
    if (!reference)
        co_return Outcome::failed(reference.error());
    const std::optional<acsi::Reference> status = statusOf(*device->model(), *reference);
    const QString before = status ? statusText(*device->model(), *status) : QString();
    acsi::ControlResult result;
    Outcome outcome;
    {
        JournalEntry entry(device, operationName(service), text(acsi::toText(*reference)));
        entry.setValues(before, ControlOrder::text(block));
        Control order(device, service, *reference, std::move(block));
        result = co_await order.run();
        if (!result)
            outcome = Outcome::failed(text(result.message));
        entry.setValues(before, order.sent());
        entry.setOutcome(outcome);
        if (result.applError)
            entry.setAdditionalCause(text(acsi::additionalCauseText(result.applError->addCause)));
    }

    // What the command came to is shown at once, but the command does not fail with that.
    if (result && status && device->model()) {
        const DeviceConnection::Publication publication;
        std::vector<acsi::Reference> references;
        references.push_back(*status);
        static_cast<void>(co_await device->readAndPublish(std::move(references), publication));
    }
    co_return outcome;
}

template <typename Runtime>
OperationResult perform(Runtime &runtime, Service service, long deviceNo, const QString &ldName,
                        const QString &name, const QByteArray &controlBlock, QString &error)
{
    const std::optional<ControlBlock> block = ControlOrder::read(controlBlock);
    if (!block) {
        error = Texts::tr("The control request cannot be read.");
        return OperationFailed;
    }
    if (!block->objectReference.isEmpty() && block->objectReference != name) {
        error = Texts::tr("The control request is for %1, not for %2.")
                    .arg(block->objectReference, name);
        return OperationFailed;
    }
    const auto device = runtime.connection(deviceNo);
    const bool waits = service == Service::Operate && isEnhanced(block->controlModel);
    const milliseconds limit = device && waits
                                   ? device->configuration().operationTimeout + longestTermination
                                   : milliseconds::zero();
    return runtime.runWithin(limit, deviceNo, Runtime::Effect::Changes, error,
                             [service, ldName, name, request = *block](DevicePointer connection) {
                                 return control(std::move(connection), service, ldName, name,
                                                request);
                             });
}

} // namespace

OperationResult IedDriver::selectObject(long deviceNo, const QString &ldName,
                                        const QString &objectReference,
                                        const QByteArray &controlBlock, QString &error)
{
    return perform(*m_runtime, Service::Select, deviceNo, ldName, objectReference, controlBlock,
                   error);
}

OperationResult IedDriver::controlObject(long deviceNo, const QString &ldName,
                                         const QString &objectReference,
                                         const QByteArray &controlBlock, QString &error)
{
    return perform(*m_runtime, Service::Operate, deviceNo, ldName, objectReference, controlBlock,
                   error);
}

OperationResult IedDriver::cancelObject(long deviceNo, const QString &ldName,
                                        const QString &objectReference,
                                        const QByteArray &controlBlock, QString &error)
{
    return perform(*m_runtime, Service::Cancel, deviceNo, ldName, objectReference, controlBlock,
                   error);
}
