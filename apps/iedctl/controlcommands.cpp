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

/// What the driver needs of one object for one command.
struct Target
{
    QString device;
    QString reference;
    int model = statusOnly;
    double value = 0;
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

std::optional<Target> targetOf(Session &session, const Commands::ControlRequest &request,
                               bool valueNeeded)
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
    Target target{selection.device, QStringLiteral("%1$CO$%2").arg(node, object), *model, 0};
    if (*model <= statusOnly) {
        session.failed(QStringLiteral("\"%1\" is for status only; it cannot be controlled.")
                           .arg(request.object));
        return {};
    }
    if (request.value) {
        const DataAttribute *attribute =
            attributeOf(*selection.object, {QStringLiteral("Oper"), QStringLiteral("ctlVal")});
        const EnumType entries =
            attribute ? device->getEnumType(attribute->enumTypeId) : EnumType();
        target.value = ValueText::parseControl(entries, *request.value, error);
        if (!error.isEmpty()) {
            session.failed(error);
            return {};
        }
    } else if (valueNeeded) {
        session.failed(QStringLiteral("Say which value with --value."));
        return {};
    }
    return target;
}

/// @param full false: only the object and its model, as the driver then repeats what was selected
QByteArray record(const Target &target, const Commands::ControlRequest &request, bool full)
{
    ControlBlock block;
    block.objectReference = target.reference;
    block.controlModel = static_cast<quint8>(target.model);
    if (full) {
        block.controlValue = target.value;
        block.orCat = static_cast<quint8>(request.originatorCategory);
        block.check = static_cast<quint8>((request.interlock ? 1 : 0) | (request.synchro ? 2 : 0));
        block.test = request.test ? 1 : 0;
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    block.toStream(stream);
    return bytes;
}

bool isSelected(const Target &target)
{
    return target.model == selectNormal || target.model == selectEnhanced;
}

ExitStatus sendSelect(Session &session, const Target &target,
                      const Commands::ControlRequest &request)
{
    QString error;
    const OperationResult result = session.controller().selectObject(
        session.deviceNo(), target.device, target.reference,
        record(target, request, target.model == selectEnhanced), error);
    return session.ended(result, error);
}

} // namespace

namespace Commands {

ExitStatus selectObject(Session &session, const ControlRequest &request)
{
    const std::optional<Target> target = targetOf(session, request, false);
    if (!target)
        return session.lastFailure();
    if (!isSelected(*target)) {
        return session.failed(QStringLiteral("\"%1\" is operated directly; there is nothing to "
                                             "select.")
                                  .arg(request.object));
    }
    if (target->model == selectEnhanced && !request.value)
        return session.failed(QStringLiteral("Say which value with --value."));
    const ExitStatus status = sendSelect(session, *target, request);
    if (status == ExitStatus::Done)
        session.output().note(QStringLiteral("Selected."));
    return status;
}

ExitStatus operate(Session &session, const ControlRequest &request)
{
    const std::optional<Target> target = targetOf(session, request, !request.selected);
    if (!target)
        return session.lastFailure();
    if (isSelected(*target) && !request.selected) {
        const ExitStatus status = sendSelect(session, *target, request);
        if (status != ExitStatus::Done)
            return status;
    }
    QString error;
    const OperationResult result = session.controller().controlObject(
        session.deviceNo(), target->device, target->reference,
        record(*target, request, target->model != selectEnhanced), error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    session.output().note(QStringLiteral("Operated."));
    return ExitStatus::Done;
}

ExitStatus cancel(Session &session, const ControlRequest &request)
{
    const std::optional<Target> target = targetOf(session, request, false);
    if (!target)
        return session.lastFailure();
    QString error;
    const OperationResult result = session.controller().cancelObject(
        session.deviceNo(), target->device, target->reference,
        record(*target, request, target->model != selectEnhanced), error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    session.output().note(QStringLiteral("Cancelled."));
    return ExitStatus::Done;
}

} // namespace Commands
