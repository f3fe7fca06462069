// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "directorylist.h"
#include "references.h"
#include "session.h"
#include "valuetext.h"

namespace {

QString presence(bool present)
{
    return present ? QString() : QStringLiteral("absent");
}

QJsonObject row(const QString &reference, const QString &kind, const QString &type,
                const QString &state)
{
    return {{QStringLiteral("reference"), reference},
            {QStringLiteral("kind"), kind},
            {QStringLiteral("type"), type},
            {QStringLiteral("state"), state}};
}

} // namespace

QJsonArray directoryRows(const QList<NameVaildValue> &list)
{
    QJsonArray rows;
    for (const NameVaildValue &entry : list) {
        QJsonObject object{{QStringLiteral("name"), entry.name},
                           {QStringLiteral("valid"), entry.valid}};
        if (entry.value.isValid())
            object.insert(QStringLiteral("value"), ValueText::toJson(entry.value));
        rows.append(object);
    }
    return rows;
}

void showDirectory(Output &output, const QList<NameVaildValue> &list)
{
    if (output.isJson()) {
        output.rows({}, directoryRows(list));
        return;
    }
    QJsonArray rows;
    for (const NameVaildValue &entry : list) {
        rows.append(QJsonObject{
            {QStringLiteral("name"), entry.name},
            {QStringLiteral("value"), ValueText::toJson(entry.value)},
            {QStringLiteral("state"), entry.valid ? QString() : QStringLiteral("not valid")}});
    }
    output.rows({QStringLiteral("name"), QStringLiteral("value"), QStringLiteral("state")}, rows);
}

namespace Commands {

ExitStatus model(Session &session, bool withAttributes)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    QJsonArray rows;
    for (const LogicalDevice *logicalDevice : device->logicalDevices) {
        rows.append(row(logicalDevice->name, QStringLiteral("logical device"), {},
                        presence(logicalDevice->present)));
        for (const LogicalNode *node : logicalDevice->logicalNodes) {
            const QString nodeReference = logicalDevice->name + QLatin1Char('/') + node->name;
            rows.append(row(nodeReference, QStringLiteral("logical node"), node->lnClass,
                            presence(node->present)));
            for (const DataObject *object : node->dataObjects) {
                rows.append(row(nodeReference + QLatin1Char('.') + object->name,
                                QStringLiteral("data object"), object->type,
                                presence(object->present)));
            }
            for (const DataSet *dataSet : node->dataSetGroup->dataSets) {
                rows.append(row(nodeReference + QLatin1Char('$') + dataSet->name,
                                QStringLiteral("data set"), {}, {}));
            }
            for (const ReportControlBlock *block : node->reportControls->blocks) {
                rows.append(row(logicalDevice->name + QLatin1Char('/') + block->reference,
                                QStringLiteral("report control block"),
                                block->type == QLatin1String("BR") ? QStringLiteral("buffered")
                                                                   : QStringLiteral("unbuffered"),
                                presence(block->state != 0)));
            }
            if (node->settingGroup) {
                rows.append(row(nodeReference + QStringLiteral("$SP$") + node->settingGroup->name,
                                QStringLiteral("setting group control block"), {},
                                presence(node->settingGroup->state != 0)));
            }
        }
    }
    if (withAttributes) {
        for (const DataAttribute *attribute : allAttributes(*device)) {
            rows.append(row(attribute->reference, QStringLiteral("attribute"), attribute->basicType,
                            presence(attribute->present)));
        }
    }
    session.output().rows({QStringLiteral("reference"), QStringLiteral("kind"),
                           QStringLiteral("type"), QStringLiteral("state")},
                          rows);
    return ExitStatus::Done;
}

ExitStatus directory(Session &session, const DirectoryRequest &request)
{
    QString device;
    QString item;
    splitReference(request.reference, device, item);
    IEC61850ControllerInterface &controller = session.controller();
    const long number = session.deviceNo();
    QList<NameVaildValue> list;
    QString error;
    OperationResult result = OperationSucceeded;
    if (request.dataSets) {
        result = controller.getDataSetList(number, device, list, error);
    } else if (request.settingGroups) {
        result = controller.getSGCBBlock(number, device, list, error);
    } else if (request.reports) {
        for (const QString &kind : {QStringLiteral("BR"), QStringLiteral("RP")}) {
            QList<NameVaildValue> blocks;
            if (result == OperationSucceeded)
                result = controller.getXRCB(number, device, item, kind, blocks, error);
            list += blocks;
        }
    } else if (device.isEmpty()) {
        result = controller.getServerDirectory(number, list, error);
    } else if (item.isEmpty()) {
        result = controller.getLogicalDeviceDirectory(number, device, list, error);
    } else if (!item.contains(QLatin1Char('$')) && !item.contains(QLatin1Char('.'))) {
        result = controller.getLogicalNodeDirectory(number, device, item, list, error);
    } else {
        const PhysicalDevice *known = item.contains(QLatin1Char('$')) ? nullptr : session.model();
        if (!known && !item.contains(QLatin1Char('$')))
            return session.lastFailure();
        const QStringList references =
            known ? selectData(*known, request.reference, error).references : QStringList{item};
        if (references.isEmpty())
            return session.failed(error);
        result = controller.getDataDirectory(number, device, references.join(QLatin1Char(';')),
                                             list, error);
    }
    if (result != OperationSucceeded)
        return session.failed(result, error);
    showDirectory(session.output(), list);
    return ExitStatus::Done;
}

ExitStatus abort(Session &session)
{
    return session.ended(session.controller().abortClose(session.deviceNo()),
                         QStringLiteral("The association could not be aborted."));
}

} // namespace Commands
