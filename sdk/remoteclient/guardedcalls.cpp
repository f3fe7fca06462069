// SPDX-License-Identifier: Apache-2.0
#include "guardedcalls.h"

#include <QtCore/QDataStream>
#include <QtCore/QStringList>

namespace {

/// The "in" arguments of a call by their type, in their order.
struct Given
{
    QStringList texts;
    QByteArray bytes;
    QVariant value;

    void operator()(int number) { value = number; }
    void operator()(const QString *text) { texts << *text; }
    void operator()(FileSource *source) { texts << source->name(); }
    void operator()(const QByteArray *given) { bytes = *given; }
    void operator()(const QList<SGCBValue> *values)
    {
        QStringList settings;
        for (const SGCBValue &setting : *values)
            settings << setting.name + QLatin1Char('=') + setting.value.toString();
        value = settings.join(QLatin1String(", "));
    }
    template <typename Other>
    void operator()(const Other &)
    {
    }
};

ControlBlock controlBlockOf(const QByteArray &bytes)
{
    ControlBlock block;
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_5_12);
    stream >> block.objectReference >> block.controlValue >> block.orCat >> block.check >>
        block.test >> block.controlModel;
    return block;
}

} // namespace

std::optional<GuardedCall> guardedCall(const DriverCall &made)
{
    GuardedCall call;
    switch (made.effect()) {
    case DriverEffect::Reads:
        return std::nullopt;
    case DriverEffect::Changes:
        call.kind = GuardedCall::Change;
        break;
    case DriverEffect::Commands:
        call.kind = GuardedCall::Command;
        break;
    case DriverEffect::Withdraws:
        call.kind = GuardedCall::Withdrawal;
        break;
    }
    call.operation = QString::fromLatin1(made.name());
    Given given;
    for (const DriverArgument &argument : made.arguments())
        std::visit(given, argument);
    const QStringList &texts = given.texts;

    switch (made.operation()) {
    case DriverOperation::deleteFile:
        call.object = texts.value(0);
        return call;
    case DriverOperation::writeFile:
        call.newValue = texts.value(0);
        call.object = texts.value(1);
        return call;
    case DriverOperation::setSGCBValues:
    case DriverOperation::selectEditSG:
    case DriverOperation::selectActiveSG:
        call.logicalDevice = texts.value(0);
        call.newValue = given.value;
        return call;
    case DriverOperation::selectObject:
    case DriverOperation::controlObject:
    case DriverOperation::cancelObject:
        call.isControl = true;
        call.control = controlBlockOf(given.bytes);
        call.newValue = call.control.controlValue;
        break;
    case DriverOperation::writeVariable:
    case DriverOperation::writeValue: {
        QDataStream stream(given.bytes);
        stream >> call.newValue;
        break;
    }
    default:
        break;
    }
    call.logicalDevice = texts.value(0);
    call.object = texts.value(1);
    if (made.operation() == DriverOperation::writeValue)
        call.object += QLatin1Char('$') + texts.value(2);
    return call;
}
