// SPDX-License-Identifier: Apache-2.0
#include "guardedcalls.h"

#include <QtCore/QDataStream>

#include <algorithm>
#include <iterator>

namespace {

/// How an operation takes its arguments.
enum class Form { Plain, Value, AttributeValue, Control, Group, Upload, File };

struct ChangingOperation
{
    const char *name;
    GuardedCall::Kind kind;
    Form form;
};

constexpr ChangingOperation changingOperations[] = {
    {"writeVariable", GuardedCall::Change, Form::Value},
    {"writeValue", GuardedCall::Change, Form::AttributeValue},
    {"selectObject", GuardedCall::Command, Form::Control},
    {"controlObject", GuardedCall::Command, Form::Control},
    {"cancelObject", GuardedCall::Withdrawal, Form::Control},
    {"createDataSet", GuardedCall::Change, Form::Plain},
    {"deleteDataSet", GuardedCall::Change, Form::Plain},
    {"deleteFile", GuardedCall::Change, Form::File},
    {"writeFile", GuardedCall::Change, Form::Upload},
    {"enableReportBlock", GuardedCall::Change, Form::Plain},
    {"setSGCBValues", GuardedCall::Change, Form::Group},
    {"selectEditSG", GuardedCall::Change, Form::Group},
    {"selectActiveSG", GuardedCall::Command, Form::Group},
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

void CallArguments::add(const QList<SGCBValue> &values)
{
    QStringList settings;
    for (const SGCBValue &setting : values)
        settings << setting.name + QLatin1Char('=') + setting.value.toString();
    value = settings.join(QLatin1String(", "));
}

std::optional<GuardedCall> guardedCall(const char *operation, const CallArguments &arguments)
{
    const auto *const found =
        std::find_if(std::begin(changingOperations), std::end(changingOperations),
                     [operation](const ChangingOperation &changing) {
                         return QLatin1String(changing.name) == QLatin1String(operation);
                     });
    if (found == std::end(changingOperations))
        return std::nullopt;

    GuardedCall call;
    call.kind = found->kind;
    call.operation = QString::fromLatin1(operation);
    const QStringList &texts = arguments.texts;
    switch (found->form) {
    case Form::File:
        call.object = texts.value(0);
        return call;
    case Form::Upload:
        call.newValue = texts.value(0);
        call.object = texts.value(1);
        return call;
    case Form::Group:
        call.logicalDevice = texts.value(0);
        call.newValue = arguments.value;
        return call;
    case Form::Control:
        call.isControl = true;
        call.control = controlBlockOf(arguments.bytes);
        call.newValue = call.control.controlValue;
        break;
    case Form::Value:
    case Form::AttributeValue: {
        QDataStream stream(arguments.bytes);
        stream >> call.newValue;
        break;
    }
    case Form::Plain:
        break;
    }
    call.logicalDevice = texts.value(0);
    call.object = texts.value(1);
    if (found->form == Form::AttributeValue)
        call.object += QLatin1Char('$') + texts.value(2);
    return call;
}
