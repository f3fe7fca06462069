// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "session.h"
#include "valuetext.h"

namespace {

/// The groups of a setting group control block are counted in one octet.
bool isGroupNumber(int group)
{
    return group >= 0 && group <= 255;
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
    QList<SGCBValue> values;
    QString error;
    const OperationResult result = session.controller().getSGCBValue(
        session.deviceNo(), logicalDevice, edited ? QStringLiteral("SE") : QStringLiteral("SG"),
        values, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    QJsonArray rows;
    for (const SGCBValue &value : values) {
        rows.append(QJsonObject{{QStringLiteral("name"), value.name},
                                {QStringLiteral("value"), ValueText::toJson(value.value)}});
    }
    session.output().rows({QStringLiteral("name"), QStringLiteral("value")}, rows);
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
    QString error;
    if (group > 0) {
        const OperationResult selected =
            session.controller().selectEditSG(session.deviceNo(), logicalDevice, group, error);
        if (selected != OperationSucceeded)
            return session.failed(selected, error);
    }
    QList<SGCBValue> values;
    const OperationResult result = session.controller().getSGCBValue(
        session.deviceNo(), logicalDevice, QStringLiteral("SE"), values, error);
    // Settings that can be written but not read are sent as they were typed.
    const bool isReadable = result == OperationSucceeded;
    if (!isReadable && settings.isEmpty())
        return session.failed(result, error);
    for (const QString &setting : settings) {
        const int equals = setting.indexOf(QLatin1Char('='));
        if (equals <= 0)
            return session.failed(
                QStringLiteral("\"%1\" is not \"reference=value\".").arg(setting));
        const QString name = setting.left(equals);
        if (!isReadable) {
            values.append({name, setting.mid(equals + 1)});
            continue;
        }
        bool found = false;
        for (SGCBValue &value : values) {
            if (value.name != name)
                continue;
            found = true;
            value.value = ValueText::parseLike(value.value, setting.mid(equals + 1), error);
            if (!value.value.isValid())
                return session.failed(QStringLiteral("%1: %2").arg(name, error));
        }
        if (!found)
            return session.failed(QStringLiteral("There is no setting \"%1\".").arg(name));
    }
    return session.ended(
        session.controller().setSGCBValues(session.deviceNo(), logicalDevice, values, error),
        error);
}

} // namespace Commands
