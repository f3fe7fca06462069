// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "references.h"
#include "session.h"
#include "valuetext.h"

#include <QtCore/QDataStream>

namespace {

constexpr int statusOnly = 0;
constexpr int selectNormal = 2;
constexpr int selectEnhanced = 4;

/// Who controls unless it is said: remote control.
constexpr int usualCategory = 3;

/// What the driver needs of one object for one command.
struct Target
{
    QString device;
    QString reference;
    int model = statusOnly;
    std::optional<double> value;

    QString name() const { return device + QLatin1Char('/') + reference; }
};

std::optional<int> readControlModel(Session &session, const QString &device, const QString &node,
                                    const QString &object)
{
    const QString item = QStringLiteral("%1$CF$%2$ctlModel").arg(node, object);
    const QString reference = device + QLatin1Char('/') + item;
    const auto values = session.gather({reference}, [&](QString &error) {
        return session.controller().readVariable(session.deviceNo(), device, {item}, error);
    });
    if (!values)
        return {};
    const auto found = values->constFind(reference);
    if (found == values->constEnd()) {
        session.failed(QStringLiteral("The control model of \"%1/%2.%3\" did not come.")
                           .arg(device, node, object));
        return {};
    }
    return found->value.toInt();
}

std::optional<Target> targetOf(Session &session, const Commands::ControlRequest &request)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return {};
    QString error;
    const ObjectSelection selection = findObject(*device, request.object, error);
    if (!selection.object) {
        session.failed(error);
        return {};
    }
    const QString node = selection.node->name;
    const QString object = selection.object->name;
    const std::optional<int> model = readControlModel(session, selection.device, node, object);
    if (!model)
        return {};
    Target target{selection.device, QStringLiteral("%1$CO$%2").arg(node, object), *model, {}};
    if (*model <= statusOnly) {
        session.failed(QStringLiteral("\"%1\" is for status only; it cannot be controlled.")
                           .arg(request.object));
        return {};
    }
    if (request.value) {
        target.value = ValueText::parseControl(*device, *selection.object, *request.value, error);
        if (!error.isEmpty()) {
            session.failed(error);
            return {};
        }
    }
    return target;
}

/// Nothing but the object and its model: the driver then repeats what it knows.
ControlBlock emptyBlock(const Target &target)
{
    ControlBlock block;
    block.objectReference = target.reference;
    block.controlModel = static_cast<quint8>(target.model);
    return block;
}

ControlBlock fullBlock(const Target &target, const Commands::ControlRequest &request)
{
    ControlBlock block = emptyBlock(target);
    block.controlValue = target.value.value_or(0);
    block.orCat = static_cast<quint8>(request.originatorCategory.value_or(usualCategory));
    block.check = static_cast<quint8>((request.interlock ? 1 : 0) | (request.synchro ? 2 : 0));
    block.test = request.test ? 1 : 0;
    return block;
}

/// Whether everything that is given is that of the selection; a flag that is not given is none.
bool agrees(const ControlBlock &selection, const Target &target,
            const Commands::ControlRequest &request)
{
    const ControlBlock given = fullBlock(target, request);
    return (!target.value || *target.value == selection.controlValue) &&
           (!request.originatorCategory || given.orCat == selection.orCat) &&
           (given.check & selection.check) == given.check &&
           (given.test == 0 || selection.test != 0);
}

QByteArray record(const ControlBlock &block)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    block.toStream(stream);
    return bytes;
}

bool isSelected(const Target &target)
{
    return target.model == selectNormal || target.model == selectEnhanced;
}

ExitStatus withoutValue(Session &session)
{
    return session.failed(QStringLiteral("Say which value with --value."));
}

ExitStatus sendSelect(Session &session, const Target &target,
                      const Commands::ControlRequest &request)
{
    const ControlBlock block =
        target.model == selectEnhanced ? fullBlock(target, request) : emptyBlock(target);
    session.selections().remove(target.name());
    QString error;
    const OperationResult result = session.controller().selectObject(
        session.deviceNo(), target.device, target.reference, record(block), error);
    if (result == OperationSucceeded && target.model == selectEnhanced)
        session.selections().insert(target.name(), block);
    return session.ended(result, error);
}

ExitStatus sendOperate(Session &session, const Target &target, const ControlBlock &block)
{
    QString error;
    const OperationResult result = session.controller().controlObject(
        session.deviceNo(), target.device, target.reference, record(block), error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    session.output().note(QStringLiteral("Operated."));
    return ExitStatus::Done;
}

} // namespace

namespace Commands {

ExitStatus selectObject(Session &session, const ControlRequest &request)
{
    const std::optional<Target> target = targetOf(session, request);
    if (!target)
        return session.lastFailure();
    if (!isSelected(*target)) {
        return session.failed(QStringLiteral("\"%1\" is operated directly; there is nothing to "
                                             "select.")
                                  .arg(request.object));
    }
    if (target->model == selectEnhanced && !target->value)
        return withoutValue(session);
    const ExitStatus status = sendSelect(session, *target, request);
    if (status == ExitStatus::Done)
        session.output().note(QStringLiteral("Selected."));
    return status;
}

ExitStatus operate(Session &session, const ControlRequest &request)
{
    const std::optional<Target> target = targetOf(session, request);
    if (!target)
        return session.lastFailure();
    if (request.selected && target->model == selectEnhanced) {
        const auto selection = session.selections().constFind(target->name());
        if (selection != session.selections().constEnd()) {
            const ControlBlock block = *selection;
            if (!agrees(block, *target, request)) {
                return session.failed(QStringLiteral("\"%1\" was selected for another command: "
                                                     "cancel the selection and select it again.")
                                          .arg(request.object));
            }
            return sendOperate(session, *target, block);
        }
        const bool isBare = !target->value && !request.originatorCategory && !request.test &&
                            !request.interlock && !request.synchro;
        if (isBare)
            return sendOperate(session, *target, emptyBlock(*target));
    }
    if (!target->value)
        return withoutValue(session);
    if (isSelected(*target) && !request.selected) {
        const ExitStatus status = sendSelect(session, *target, request);
        if (status != ExitStatus::Done)
            return status;
    }
    return sendOperate(session, *target, fullBlock(*target, request));
}

ExitStatus cancel(Session &session, const ControlRequest &request)
{
    const std::optional<Target> target = targetOf(session, request);
    if (!target)
        return session.lastFailure();
    const ControlBlock block =
        target->model == selectEnhanced ? emptyBlock(*target) : fullBlock(*target, request);
    QString error;
    const OperationResult result = session.controller().cancelObject(
        session.deviceNo(), target->device, target->reference, record(block), error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    session.selections().remove(target->name());
    session.output().note(QStringLiteral("Cancelled."));
    return ExitStatus::Done;
}

} // namespace Commands
