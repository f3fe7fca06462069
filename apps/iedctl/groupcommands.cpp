// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "session.h"
#include "valuetext.h"

#include "driver/core/valuewords.h"

#include <devicemodel/physicaldevice.h>

namespace {

/// The groups of a setting group control block are counted in one octet.
bool isGroupNumber(int group)
{
    return group >= 0 && group <= 255;
}

const QString settingsInUse = QStringLiteral("SG");
const QString settingsBeingEdited = QStringLiteral("SE");

/// A setting's name without what may be written in several ways: "PTOC1$StrVal$setMag$f" for
/// "LD0/PTOC1$SG$StrVal$setMag$f", "PTOC1$SE$StrVal$setMag$f" and "PTOC1.StrVal.setMag.f".
QString plainName(const QString &logicalDevice, QString name)
{
    const QString prefix = logicalDevice + QLatin1Char('/');
    if (name.startsWith(prefix))
        name.remove(0, prefix.size());
    for (const QString &fc : {settingsInUse, settingsBeingEdited}) {
        const QString behind = QStringLiteral("[%1]").arg(fc);
        if (name.endsWith(behind))
            name.chop(behind.size());
    }
    QStringList parts = name.replace(QLatin1Char('.'), QLatin1Char('$')).split(QLatin1Char('$'));
    if (parts.size() > 1 && (parts.at(1) == settingsInUse || parts.at(1) == settingsBeingEdited))
        parts.removeAt(1);
    return parts.join(QLatin1Char('$'));
}

/// The name under which a setting is written.
QString editedName(const QString &logicalDevice, const QString &name)
{
    QStringList parts = plainName(logicalDevice, name).split(QLatin1Char('$'));
    parts.insert(1, settingsBeingEdited);
    return logicalDevice + QLatin1Char('/') + parts.join(QLatin1Char('$'));
}

/// What the model knows of a setting; it may know it under one constraint only.
const DataAttribute *attributeOf(const PhysicalDevice &device, const QString &logicalDevice,
                                 const QString &name)
{
    for (const QString &fc : {settingsBeingEdited, settingsInUse}) {
        QStringList parts = plainName(logicalDevice, name).split(QLatin1Char('$'));
        parts.insert(1, fc);
        const QString reference = logicalDevice + QLatin1Char('/') + parts.join(QLatin1Char('$'));
        if (const DataAttribute *attribute = device.findTag(reference))
            return attribute;
    }
    return nullptr;
}

/// The value that was typed, of the type that stood there before; entries of an enumeration by
/// name, too.
QVariant parsed(const PhysicalDevice &device, const DataAttribute *attribute,
                const QVariant &before, const QString &text, QString &error)
{
    const bool isCoded = attribute && (attribute->basicType == QLatin1String("Enum") ||
                                       attribute->basicType == QLatin1String("Dbpos"));
    if (!isCoded)
        return ValueText::parseLike(before, text, error);
    const QVariant ordinal = ValueText::parse(device, *attribute, text, error);
    return ordinal.isValid() ? ValueText::parseLike(before, ordinal.toString(), error) : QVariant();
}

} // namespace

namespace Commands {

ExitStatus showGroups(Session &session, const QString &logicalDevice)
{
    SGCB block;
    QString error;
    const OperationResult result =
        session.controller().getSGCB(session.deviceNo(), logicalDevice, block, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    QJsonObject object{{QStringLiteral("block"), block.name},
                       {QStringLiteral("groups"), block.numOfSG},
                       {QStringLiteral("active"), block.actSG},
                       {QStringLiteral("edited"), block.editSG}};
    if (block.lastActivation.isValid()) {
        object.insert(QStringLiteral("activated"),
                      block.lastActivation.toUTC().toString(Qt::ISODateWithMs));
    }
    session.output().object({QStringLiteral("block"), QStringLiteral("groups"),
                             QStringLiteral("active"), QStringLiteral("edited"),
                             QStringLiteral("activated")},
                            object);
    return ExitStatus::Done;
}

ExitStatus readGroup(Session &session, const QString &logicalDevice, bool edited)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    QList<SGCBValue> values;
    QString error;
    const OperationResult result = session.controller().getSGCBValue(
        session.deviceNo(), logicalDevice, edited ? settingsBeingEdited : settingsInUse, values,
        error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    QJsonArray rows;
    for (const SGCBValue &value : values) {
        const DataAttribute *attribute = attributeOf(*device, logicalDevice, value.name);
        rows.append(QJsonObject{
            {QStringLiteral("name"), value.name},
            {QStringLiteral("value"), ValueText::toJson(value.value)},
            {QStringLiteral("text"), ValueWords::text(*device, attribute, value.value)}});
    }
    session.output().rows({QStringLiteral("name"), QStringLiteral("text")}, rows);
    return ExitStatus::Done;
}

ExitStatus activateGroup(Session &session, const QString &logicalDevice, int group)
{
    if (!isGroupNumber(group))
        return session.failed(QStringLiteral("%1 is not the number of a group.").arg(group));
    QString error;
    const OperationResult result =
        session.controller().selectActiveSG(session.deviceNo(), logicalDevice, group, error);
    return result == OperationSucceeded ? showGroups(session, logicalDevice)
                                        : session.failed(result, error);
}

ExitStatus editGroup(Session &session, const QString &logicalDevice, int group)
{
    if (!isGroupNumber(group))
        return session.failed(QStringLiteral("%1 is not the number of a group.").arg(group));
    QString error;
    const OperationResult result =
        session.controller().selectEditSG(session.deviceNo(), logicalDevice, group, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    return group == 0 ? showGroups(session, logicalDevice)
                      : readGroup(session, logicalDevice, true);
}

ExitStatus writeGroup(Session &session, const QString &logicalDevice, int group,
                      const QStringList &settings)
{
    if (!isGroupNumber(group))
        return session.failed(QStringLiteral("%1 is not the number of a group.").arg(group));
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    QString error;
    if (group > 0) {
        const OperationResult selected =
            session.controller().selectEditSG(session.deviceNo(), logicalDevice, group, error);
        if (selected != OperationSucceeded)
            return session.failed(selected, error);
    }
    QList<SGCBValue> values;
    const OperationResult result = session.controller().getSGCBValue(
        session.deviceNo(), logicalDevice, settingsBeingEdited, values, error);
    // Settings that can be written but not read are sent as they were typed.
    const bool isReadable = result == OperationSucceeded;
    if (!isReadable && settings.isEmpty())
        return session.failed(result, error);
    for (const QString &setting : settings) {
        const int equals = setting.indexOf(QLatin1Char('='));
        if (equals <= 0)
            return session.failed(QStringLiteral("\"%1\" is not \"NAME=VALUE\".").arg(setting));
        const QString name = setting.left(equals);
        if (!isReadable) {
            values.append({editedName(logicalDevice, name), setting.mid(equals + 1)});
            continue;
        }
        bool found = false;
        for (SGCBValue &value : values) {
            if (plainName(logicalDevice, value.name) != plainName(logicalDevice, name))
                continue;
            found = true;
            value.value = parsed(*device, attributeOf(*device, logicalDevice, name), value.value,
                                 setting.mid(equals + 1), error);
            if (!value.value.isValid())
                return session.failed(QStringLiteral("%1: %2").arg(name, error));
        }
        if (!found)
            return session.failed(
                QStringLiteral("There is no setting \"%1\"; \"group read\" shows the names.")
                    .arg(name));
    }
    const OperationResult written =
        session.controller().setSGCBValues(session.deviceNo(), logicalDevice, values, error);
    if (written != OperationSucceeded)
        return session.failed(written, error);
    session.output().note(QStringLiteral("Written and confirmed."));
    return ExitStatus::Done;
}

} // namespace Commands
