// SPDX-License-Identifier: Apache-2.0
#include "controlpart.h"

#include "changegate.h"
#include "driver/core/controlorder.h"
#include "driver/text/sentences.h"
#include "valuepublishing.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

namespace Controls {

namespace {

using DevicePointer = std::shared_ptr<DeviceConnection>;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

} // namespace

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

QString unknownSentence(Service service)
{
    switch (service) {
    case Service::Select:
        return Texts::tr("It is not known whether the object was selected.");
    case Service::Operate:
        return Texts::tr("It is not known whether the command was carried out; look at the "
                         "position.");
    case Service::Cancel:
        break;
    }
    return Texts::tr("It is not known whether the command was cancelled; look at the position.");
}

std::optional<acsi::Reference> statusOf(const OnlineModel &model, acsi::Reference object)
{
    for (const auto constraint : {acsi::FunctionalConstraint::ST, acsi::FunctionalConstraint::MX}) {
        object.constraint = constraint;
        if (model.type(object))
            return object;
    }
    return std::nullopt;
}

void showStatus(DevicePointer device, const acsi::Reference &object)
{
    const OnlineModel *model = device->model();
    const auto status = model ? statusOf(*model, object) : std::nullopt;
    if (!status)
        return;
    const auto read = [](DevicePointer owner, acsi::Reference what) -> asio::awaitable<void> {
        std::vector<acsi::Reference> references;
        references.push_back(std::move(what));
        static_cast<void>(co_await owner->values().readAndPublish(std::move(references),
                                                                  ValuePublishing::Publication()));
    };
    const auto strand = device->strand();
    asio::co_spawn(strand, read(std::move(device), *status), [](const std::exception_ptr &) {});
}

Part::Part(DeviceConnection &device)
    : m_device(device)
{
}

void Part::setProblem(const std::string &name, const QString &sentence)
{
    m_device.setProblem(QStringLiteral("control ") + text(name), sentence);
}

void Part::listen(const acsi::Reference &reference)
{
    const std::string name = acsi::toText(reference);
    object(name).control->setLateHandler(
        [this, reference, name](std::uint8_t ctlNum, const acsi::ControlResult &result) {
            heardLate(reference, name, ctlNum, result);
        });
}

void Part::closed(const QString &)
{
    for (auto &each : m_objects) {
        each.second.state.associationEnded();
        if (each.second.control)
            each.second.control->setLateHandler({});
        each.second.control.reset();
    }
}

void Part::heardLate(const acsi::Reference &reference, const std::string &name, std::uint8_t ctlNum,
                     const acsi::ControlResult &result)
{
    ControlState &state = object(name).state;
    const ControlState::Command *command = state.command(ctlNum);
    if (!command)
        return;
    DeviceChange change;
    change.operation = operationName(Service::Operate);
    change.reference = text(name);
    change.newValue = Texts::tr("%1 (told late)").arg(ControlOrder::text(command->block));
    const QString object = text(acsi::objectReferenceText(reference));
    QString problem;
    switch (result.outcome) {
    case acsi::ControlOutcome::Accepted:
        change.error = text(result.message) + QLatin1Char(' ') + unknownSentence(Service::Operate);
        problem = change.error;
        break;
    case acsi::ControlOutcome::Done:
        problem =
            Texts::tr("%1: the command that was not answered in time was carried out.").arg(object);
        break;
    default:
        change.error = text(result.message);
        problem = change.error;
    }
    state.heardLate(ctlNum, result.outcome);
    if (result.applError)
        change.additionalCause = text(acsi::additionalCauseText(result.applError->addCause));
    ChangeGate::tell(m_device, std::move(change));
    setProblem(name, problem);
    showStatus(m_device.shared_from_this(), reference);
}

} // namespace Controls
