// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "references.h"
#include "reportbits.h"
#include "session.h"
#include "valuelines.h"

#include <QtCore/QDataStream>
#include <QtCore/QElapsedTimer>

#include <algorithm>

namespace {

struct Block
{
    QString device;
    QString reference;
};

std::optional<Block> blockOf(Session &session, const QString &text)
{
    Block block;
    splitReference(text, block.device, block.reference);
    if (block.reference.contains(QLatin1String("$BR$")) ||
        block.reference.contains(QLatin1String("$RP$")))
        return block;
    session.failed(QStringLiteral("\"%1\" does not name a report control block; write "
                                  "\"LD/LN$BR$name\" or \"LD/LN$RP$name\".")
                       .arg(text));
    return {};
}

std::optional<ReportBlock> readBlock(Session &session, const Block &place)
{
    ReportBlock block;
    QString error;
    const OperationResult result = session.controller().getBRCBValues(
        session.deviceNo(), place.device, place.reference, block, error);
    if (result == OperationSucceeded)
        return block;
    session.failed(result, error);
    return {};
}

QByteArray bigEndian(qint32 number)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << number;
    return bytes;
}

/// The bytes of an attribute as the controller's writeValue() wants them.
std::optional<QByteArray> attributeBytes(const QString &name, const QString &value, QString &error)
{
    if (name == QLatin1String("RptID") || name == QLatin1String("DatSet"))
        return value.toUtf8();
    if (name == QLatin1String("TrgOps")) {
        const std::optional<quint8> bits = ReportBits::triggers(value, error);
        return bits ? std::optional(QByteArray(1, static_cast<char>(*bits))) : std::nullopt;
    }
    if (name == QLatin1String("OptFlds")) {
        const auto bits = ReportBits::optionalFields(value, error);
        if (!bits)
            return {};
        return QByteArray(1, static_cast<char>(bits->at(0))) + static_cast<char>(bits->at(1));
    }
    if (name == QLatin1String("IntgPd") || name == QLatin1String("BufTm")) {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (isNumber && number >= 0)
            return bigEndian(number);
        error = QStringLiteral("%1 is a number of milliseconds, not \"%2\".").arg(name, value);
        return {};
    }
    if (name == QLatin1String("Resv") || name == QLatin1String("GI") ||
        name == QLatin1String("PurgeBuf") || name == QLatin1String("RptEna")) {
        const bool on = value == QLatin1String("true") || value == QLatin1String("1");
        if (on || value == QLatin1String("false") || value == QLatin1String("0"))
            return QByteArray(1, on ? '\x01' : '\x00');
        error = QStringLiteral("%1 is \"true\" or \"false\", not \"%2\".").arg(name, value);
        return {};
    }
    error =
        QStringLiteral("A report control block has no attribute \"%1\" that can be set.").arg(name);
    return {};
}

ExitStatus writeAttribute(Session &session, const QString &blockText, const QString &name,
                          const QString &value)
{
    const std::optional<Block> place = blockOf(session, blockText);
    if (!place)
        return session.lastFailure();
    QString error;
    const std::optional<QByteArray> bytes = attributeBytes(name, value, error);
    if (!bytes)
        return session.failed(error);
    return session.ended(session.controller().writeValue(session.deviceNo(), place->device,
                                                         place->reference, name, *bytes, error),
                         error);
}

QJsonArray texts(const QStringList &list)
{
    return QJsonArray::fromStringList(list);
}

/// Between looks at whether the operator wants the stream to end.
constexpr int streamWaitMs = 200;

QString reasonText(quint32 bits)
{
    static const QStringList names = {
        QStringLiteral("data-change"),           QStringLiteral("quality-change"),
        QStringLiteral("data-update"),           QStringLiteral("integrity"),
        QStringLiteral("general-interrogation"), QStringLiteral("application")};
    QStringList set;
    for (int i = 0; i < names.size(); ++i) {
        if ((bits & (1U << static_cast<unsigned>(i))) != 0)
            set.append(names.at(i));
    }
    return set.join(QLatin1Char(','));
}

QJsonObject memberRow(const PhysicalDevice &device, const ReportEventMember &member)
{
    MMSValue value;
    value.reference = member.reference;
    value.value = member.value;
    value.quality = member.quality;
    value.timeStamp = member.timeStamp;
    QJsonObject row = valueRow(device, value);
    if (member.reason)
        row.insert(QStringLiteral("reason"), reasonText(*member.reason));
    if (!member.error.isEmpty())
        row.insert(QStringLiteral("error"), member.error);
    return row;
}

/// A line for the report and one for each member, or an object.
void showEvent(Session &session, const PhysicalDevice &device, const ReportEvent &event)
{
    const QString arrival = event.arrival.toUTC().toString(Qt::ISODateWithMs);
    QJsonObject object{{QStringLiteral("arrival"), arrival},
                       {QStringLiteral("block"), event.block}};
    QStringList head{arrival, event.block};
    if (!event.missing.isEmpty()) {
        object.insert(QStringLiteral("missing"), event.missing);
        head.append(event.missing);
        session.output().streamed({cells(head)}, object);
        return;
    }
    object.insert(QStringLiteral("rptId"), event.rptId);
    if (event.sequenceNumber) {
        object.insert(QStringLiteral("sequenceNumber"), static_cast<qint64>(*event.sequenceNumber));
        head.append(QStringLiteral("no. %1").arg(*event.sequenceNumber));
    }
    if (!event.entryId.isEmpty()) {
        const QString entry = QString::fromLatin1(event.entryId.toHex());
        object.insert(QStringLiteral("entryId"), entry);
        head.append(QStringLiteral("entry %1").arg(entry));
    }
    if (!event.timeOfEntry.isEmpty()) {
        object.insert(QStringLiteral("timeOfEntry"), event.timeOfEntry);
        head.append(QStringLiteral("of %1").arg(event.timeOfEntry));
    }
    if (event.bufferOverflow) {
        object.insert(QStringLiteral("bufferOverflow"), true);
        head.append(QStringLiteral("buffer overflow"));
    }
    QStringList lines{cells(head)};
    QJsonArray members;
    for (const ReportEventMember &member : event.members) {
        const QJsonObject row = memberRow(device, member);
        members.append(row);
        QStringList parts{member.reference, row.value(QStringLiteral("text")).toString(),
                          row.value(QStringLiteral("qualityText")).toString(), member.timeStamp,
                          row.value(QStringLiteral("reason")).toString()};
        if (!member.error.isEmpty())
            parts.append(member.error);
        lines.append(QLatin1String("  ") + cells(parts));
    }
    object.insert(QStringLiteral("members"), members);
    session.output().streamed(lines, object);
}

/// Shows every report of the block until the limit or the operator ends it.
void streamEvents(Session &session, const PhysicalDevice &device,
                  const Commands::ReportRequest &request)
{
    const StreamScope scope;
    QElapsedTimer running;
    running.start();
    int shown = 0;
    while (!Session::interrupted()) {
        int wait = streamWaitMs;
        if (request.limit.seconds > 0) {
            const qint64 left = qint64(request.limit.seconds) * 1000 - running.elapsed();
            if (left <= 0)
                return;
            wait = static_cast<int>(std::min<qint64>(left, wait));
        }
        const QList<ReportEvent> events = session.events()->receive(wait);
        showTurns(session);
        for (const ReportEvent &event : events) {
            showEvent(session, device, event);
            if (event.missing.isEmpty() && request.limit.count > 0 &&
                ++shown >= request.limit.count)
                return;
        }
    }
}

} // namespace

namespace Commands {

ExitStatus listReports(Session &session)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    QJsonArray rows;
    for (const LogicalDevice *logicalDevice : device->logicalDevices) {
        for (const LogicalNode *node : logicalDevice->logicalNodes) {
            for (const ReportControlBlock *block : node->reportControls->blocks) {
                const bool buffered = block->type == QLatin1String("BR");
                rows.append(
                    QJsonObject{{QStringLiteral("block"),
                                 logicalDevice->name + QLatin1Char('/') + block->reference},
                                {QStringLiteral("kind"), buffered ? QStringLiteral("buffered")
                                                                  : QStringLiteral("unbuffered")},
                                {QStringLiteral("dataSet"), block->dataSet}});
            }
        }
    }
    session.output().rows(
        {QStringLiteral("block"), QStringLiteral("kind"), QStringLiteral("dataSet")}, rows);
    return ExitStatus::Done;
}

ExitStatus showReport(Session &session, const QString &blockText)
{
    const std::optional<Block> place = blockOf(session, blockText);
    if (!place)
        return session.lastFailure();
    const std::optional<ReportBlock> block = readBlock(session, *place);
    if (!block)
        return session.lastFailure();
    const QJsonObject object{
        {QStringLiteral("block"), place->device + QLatin1Char('/') + block->reference},
        {QStringLiteral("enabled"), block->rptEna},
        {QStringLiteral("reserved"), block->resv},
        {QStringLiteral("owner"), block->owner},
        {QStringLiteral("rptId"), block->rptId},
        {QStringLiteral("dataSet"), block->datSet},
        {QStringLiteral("confRev"), block->confRev},
        {QStringLiteral("triggers"), texts(ReportBits::triggerNames(block->trgOps))},
        {QStringLiteral("optionalFields"),
         texts(ReportBits::optionalFieldNames(block->optFldsText))},
        {QStringLiteral("integrityPeriod"), block->intgPd},
        {QStringLiteral("bufferTime"), block->bufTm}};
    session.output().object(
        {QStringLiteral("block"), QStringLiteral("enabled"), QStringLiteral("reserved"),
         QStringLiteral("owner"), QStringLiteral("rptId"), QStringLiteral("dataSet"),
         QStringLiteral("confRev"), QStringLiteral("triggers"), QStringLiteral("optionalFields"),
         QStringLiteral("integrityPeriod"), QStringLiteral("bufferTime")},
        object);
    return ExitStatus::Done;
}

ExitStatus setReport(Session &session, const QString &block, const QStringList &settings)
{
    for (const QString &setting : settings) {
        const int equals = setting.indexOf(QLatin1Char('='));
        if (equals <= 0)
            return session.failed(QStringLiteral("\"%1\" is not \"Name=value\".").arg(setting));
        const ExitStatus status =
            writeAttribute(session, block, setting.left(equals), setting.mid(equals + 1));
        if (status != ExitStatus::Done)
            return status;
    }
    return showReport(session, block);
}

ExitStatus enableReport(Session &session, const ReportRequest &request)
{
    const PhysicalDevice *device = session.model();
    if (!device)
        return session.lastFailure();
    const std::optional<Block> place = blockOf(session, request.block);
    if (!place)
        return session.lastFailure();
    std::optional<ReportBlock> block = readBlock(session, *place);
    if (!block)
        return session.lastFailure();
    QString error;
    if (request.rptId)
        block->rptId = *request.rptId;
    if (request.dataSet)
        block->datSet = *request.dataSet;
    if (request.triggers) {
        const std::optional<quint8> bits = ReportBits::triggers(*request.triggers, error);
        if (!bits)
            return session.failed(error);
        block->trgOps = *bits;
    }
    const auto fields = ReportBits::optionalFields(
        request.optionalFields
            ? *request.optionalFields
            : ReportBits::optionalFieldNames(block->optFldsText).join(QLatin1Char(',')),
        error);
    if (!fields)
        return session.failed(error);
    std::copy(fields->begin(), fields->end(), block->optFlds);
    block->intgPd = request.integrityPeriod.value_or(block->intgPd);
    block->bufTm = request.bufferTime.value_or(block->bufTm);

    session.listen();
    if (session.events())
        session.events()->listen();
    const OperationResult result =
        session.controller().enableReportBlock(session.deviceNo(), place->device, place->reference,
                                               block->rptId, QString(), *block, error);
    if (result != OperationSucceeded)
        return session.failed(result, error);
    if (request.generalInterrogation) {
        const ExitStatus status = interrogate(session, request.block);
        if (status != ExitStatus::Done) {
            disableReport(session, request.block);
            return status;
        }
    }
    if (session.events())
        streamEvents(session, *device, request);
    else
        streamValues(session, *device, {}, Session::Origin::Wanted, request.limit);
    return disableReport(session, request.block);
}

ExitStatus disableReport(Session &session, const QString &block)
{
    return writeAttribute(session, block, QStringLiteral("RptEna"), QStringLiteral("false"));
}

ExitStatus interrogate(Session &session, const QString &block)
{
    return writeAttribute(session, block, QStringLiteral("GI"), QStringLiteral("true"));
}

ExitStatus purge(Session &session, const QString &block)
{
    return writeAttribute(session, block, QStringLiteral("PurgeBuf"), QStringLiteral("true"));
}

} // namespace Commands
