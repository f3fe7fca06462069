// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "deviceobserver.h"
#include "references.h"
#include "session.h"
#include "valuelines.h"
#include "valuetext.h"

#include "driver/core/valuewords.h"

#include <QtCore/QDataStream>

#include <algorithm>

namespace {

constexpr int streamWaitMs = 200;

} // namespace

void showTurns(Session &session)
{
    if (!session.observer())
        return;
    const QList<DeviceObserver::Turn> turns = session.observer()->turns();
    for (const DeviceObserver::Turn &turn : turns) {
        const QString time = turn.time.toUTC().toString(Qt::ISODateWithMs);
        QJsonObject row{{QStringLiteral("event"),
                         turn.isLost ? QStringLiteral("lost") : QStringLiteral("back")},
                        {QStringLiteral("time"), time}};
        if (turn.isLost)
            row.insert(QStringLiteral("reason"), turn.reason);
        session.output().streamed(
            {turn.isLost
                 ? QStringLiteral(
                       "The device was lost at %1; what stands above is older than that. %2")
                       .arg(time, turn.reason)
                       .trimmed()
                 : QStringLiteral("The device was back at %1.").arg(time)},
            row);
    }
}

QJsonObject valueRow(const PhysicalDevice &device, const MMSValue &value)
{
    const DataAttribute *attribute = device.findTag(value.reference);
    QJsonObject row{{QStringLiteral("reference"), value.reference},
                    {QStringLiteral("value"), ValueText::toJson(value.value)}};
    const QString text = ValueWords::text(device, attribute, value.value);
    if (attribute && !attribute->basicType.isEmpty())
        row.insert(QStringLiteral("type"), attribute->basicType);
    row.insert(QStringLiteral("text"), text);
    if (!value.quality.isEmpty()) {
        row.insert(QStringLiteral("quality"), value.quality);
        row.insert(QStringLiteral("qualityText"), ValueWords::quality(value.quality));
    }
    if (!value.timeStamp.isEmpty())
        row.insert(QStringLiteral("time"), value.timeStamp);
    return row;
}

void showValues(Output &output, const QJsonArray &rows)
{
    output.rows({QStringLiteral("reference"), QStringLiteral("text"), QStringLiteral("qualityText"),
                 QStringLiteral("time")},
                rows);
}

ExitStatus streamValues(Session &session, const PhysicalDevice &device,
                        const QStringList &references, Session::Origin origin,
                        Commands::StreamLimit limit)
{
    const StreamScope scope;
    const QSet<QString> wanted(references.cbegin(), references.cend());
    QElapsedTimer running;
    running.start();
    int shown = 0;
    while (!Session::interrupted()) {
        int wait = streamWaitMs;
        if (limit.seconds > 0) {
            const qint64 left = qint64(limit.seconds) * 1000 - running.elapsed();
            if (left <= 0)
                break;
            wait = static_cast<int>(std::min<qint64>(left, wait));
        }
        const QList<MMSValue> received = session.receive(wait, origin);
        showTurns(session);
        for (const MMSValue &value : received) {
            if (!wanted.isEmpty() && !wanted.contains(value.reference))
                continue;
            const QJsonObject row = valueRow(device, value);
            session.output().streamed(
                {cells({value.reference, row.value(QStringLiteral("text")).toString(),
                        row.value(QStringLiteral("qualityText")).toString(), value.timeStamp})},
                row);
            if (limit.count > 0 && ++shown >= limit.count)
                return ExitStatus::Done;
        }
    }
    return ExitStatus::Done;
}

namespace Commands {

ExitStatus read(Session &session, const QStringList &references)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    QJsonArray rows;
    ExitStatus status = ExitStatus::Done;
    for (const QString &reference : references) {
        QString error;
        const Selection selection = selectData(*device, reference, error);
        if (selection.attributes.isEmpty()) {
            status = session.failed(error);
            continue;
        }
        QStringList wanted;
        for (const DataAttribute *attribute : selection.attributes)
            wanted.append(attribute->reference);
        const auto values = session.gather(wanted, [&](QString &refusal) {
            return session.controller().readVariable(session.deviceNo(), selection.device,
                                                     selection.references, refusal);
        });
        if (!values) {
            status = session.lastFailure();
            continue;
        }
        int missing = 0;
        for (const QString &each : wanted) {
            const auto found = values->constFind(each);
            if (found == values->constEnd())
                ++missing;
            else
                rows.append(valueRow(*device, found.value()));
        }
        if (missing > 0) {
            status = session.failed(QStringLiteral("%1 of the %2 values of \"%3\" did not come.")
                                        .arg(missing)
                                        .arg(wanted.size())
                                        .arg(reference));
        }
    }
    showValues(session.output(), rows);
    return status;
}

ExitStatus write(Session &session, const QString &reference, const QString &text)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    QString error;
    const Selection selection = selectData(*device, reference, error);
    if (selection.attributes.isEmpty())
        return session.failed(error);
    if (selection.attributes.size() > 1) {
        return session.failed(QStringLiteral("\"%1\" names %2 attributes; only one can be written.")
                                  .arg(reference)
                                  .arg(selection.attributes.size()));
    }
    const DataAttribute &attribute = *selection.attributes.first();
    const QVariant value = ValueText::parse(*device, attribute, text, error);
    if (!value.isValid())
        return session.failed(error);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    const QString item = attribute.reference.section(QLatin1Char('/'), 1);
    const OperationResult result = session.controller().writeVariable(
        session.deviceNo(), selection.device, item, bytes, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    return read(session, {attribute.reference});
}

ExitStatus watch(Session &session, const QStringList &references, StreamLimit limit)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    session.listen();
    QStringList wanted;
    ExitStatus status = ExitStatus::Done;
    for (const QString &reference : references) {
        QString error;
        const Selection selection = selectData(*device, reference, error);
        if (selection.attributes.isEmpty()) {
            status = session.failed(error);
            continue;
        }
        for (const DataAttribute *attribute : selection.attributes)
            wanted.append(attribute->reference);
        // What cannot be read is told; the rest is shown as it changes.
        const OperationResult result = session.controller().readVariable(
            session.deviceNo(), selection.device, selection.references, error);
        if (result != OperationSucceeded)
            status = session.failed(result, error);
    }
    // Without a reference that can be meant, all would be shown that nobody asked for.
    if (!references.isEmpty() && wanted.isEmpty())
        return status;
    streamValues(session, *device, wanted, Session::Origin::Any, limit);
    return status;
}

} // namespace Commands
