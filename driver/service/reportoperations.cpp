// SPDX-License-Identifier: Apache-2.0
#include "deviceoperations.h"

#include "driver/device/modelreading.h"
#include "driver/device/reportsubscriptions.h"
#include "driver/model/discoveredmodel.h"
#include "driver/text/sentences.h"
#include "mms/datatext.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <limits>

using DeviceOperations::ChangeOrder;
using DeviceOperations::Result;
using DeviceOperations::Tool;

namespace {

using DevicePointer = std::shared_ptr<DeviceConnection>;
using acsi::FunctionalConstraint;
using mms::Data;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// Seconds that the operator reserves a buffered block for.
constexpr int reservation = 60;

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

mms::Error failure(const QString &sentence)
{
    return {mms::verbatim(sentence.toStdString()), 0};
}

mms::Result<acsi::Reference> blockOf(const QString &ldName, const QString &blockReference)
{
    const auto reference = acsi::parseReference(ldName.toStdString(), blockReference.toStdString());
    const bool isBlock = reference && reference->path.size() == 1 &&
                         (reference->constraint == FunctionalConstraint::BR ||
                          reference->constraint == FunctionalConstraint::RP);
    if (!isBlock)
        return failure(
            Texts::tr("\"%1\" does not name a report control block.").arg(blockReference));
    return *reference;
}

qint32 bounded(std::uint32_t number)
{
    constexpr std::uint32_t highest = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::min(number, highest));
}

bool hasAttribute(const DevicePointer &device, const acsi::Reference &block, std::string_view name)
{
    const mms::TypeDescription *type = device->model()->type(block);
    return type && std::any_of(type->components.begin(), type->components.end(),
                               [name](const auto &component) { return component.name == name; });
}

/// Keeps the model as the device is.
void enterBlock(const DevicePointer &device, const acsi::Reference &block,
                const acsi::ReportBlock &read)
{
    const QString logicalDevice = text(block.device);
    const QString reference = text(acsi::itemText(block));
    if (ReportControlBlock *shown = device->model()->reportControlBlock(logicalDevice, reference))
        DiscoveredModel::setSettings(
            *shown, logicalDevice, read,
            device->modelReading().configuredBlock(logicalDevice, reference));
}

ReportBlock toRecord(const acsi::Reference &reference, const acsi::ReportBlock &read)
{
    ReportBlock record;
    if (read.owner)
        record.owner = text(acsi::ownerText(*read.owner));
    record.rptId = text(read.rptId);
    record.reference = text(acsi::itemText(reference));
    record.trgOps = read.trgOps.toBits().octets()[0];
    record.intgPd = bounded(read.intgPd);
    record.datSet = ReportDataSet::shown(reference, read.datSet);
    record.confRev = bounded(read.confRev);
    const mms::BitString fields = read.optFlds.toBits();
    std::copy_n(fields.octets().begin(), 2, record.optFlds);
    record.optFldsText = text(fields.toText());
    record.bufTm = bounded(read.bufTm);
    record.rptEna = read.rptEna;
    record.resv = read.resv.value_or(read.resvTms.value_or(0) != 0);
    return record;
}

asio::awaitable<Outcome> readBlock(DevicePointer device, QString ldName, QString name,
                                   ReportBlock *record)
{
    const mms::Result<acsi::Reference> block = blockOf(ldName, name);
    if (!block)
        co_return Outcome::failed(block.error());
    const mms::Result<acsi::ReportBlock> read =
        co_await acsi::readReportBlock(device->client(), *block);
    if (!read)
        co_return Outcome::failed(read.error());
    *record = toRecord(*block, *read);
    device->part<ReportSubscriptions>().setShown(*block, {*record, *read});
    const ReportControlBlock *configured =
        device->modelReading().configuredBlock(ldName, record->reference);
    if (configured) {
        record->clientRptId =
            configured->rptId.isEmpty() ? text(acsi::toText(*block)) : configured->rptId;
        record->clientDataSet = configured->dataSet;
    }
    enterBlock(device, *block, *read);
    co_return Outcome();
}

/// The attribute's bytes as the dialogs encode them.
class AttributeBytes
{
public:
    AttributeBytes(const acsi::Reference &block, QString attribute, QByteArray bytes)
        : m_block(block)
        , m_attribute(std::move(attribute))
        , m_bytes(std::move(bytes))
    {
    }

    mms::Result<Data> toData() const
    {
        if (m_attribute == QLatin1String("RptID"))
            return Data::visibleString(m_bytes.toStdString());
        if (m_attribute == QLatin1String("DatSet"))
            return Data::visibleString(ReportDataSet::wire(m_block, QString::fromUtf8(m_bytes)));
        if (m_attribute == QLatin1String("TrgOps"))
            return bits(1, 6);
        if (m_attribute == QLatin1String("OptFlds"))
            return bits(2, 10);
        if (m_attribute == QLatin1String("IntgPd") || m_attribute == QLatin1String("BufTm"))
            return number();
        static const QStringList flags = {QStringLiteral("PurgeBuf"), QStringLiteral("GI"),
                                          QStringLiteral("Resv"), QStringLiteral("RptEna")};
        if (flags.contains(m_attribute))
            return flag();
        return failure(
            Texts::tr("The attribute \"%1\" of a report control block cannot be written.")
                .arg(m_attribute));
    }

private:
    mms::Error wrongSize(int expected) const
    {
        return failure(Texts::tr("The value for %1 has %2 bytes instead of %3.")
                           .arg(m_attribute)
                           .arg(m_bytes.size())
                           .arg(expected));
    }

    mms::Result<Data> bits(int octets, std::size_t size) const
    {
        if (m_bytes.size() != octets)
            return wrongSize(octets);
        const std::vector<std::uint8_t> content(m_bytes.begin(), m_bytes.end());
        return Data::bitString(mms::BitString(content, size));
    }

    mms::Result<Data> number() const
    {
        if (m_bytes.size() != static_cast<int>(sizeof(qint32)))
            return wrongSize(sizeof(qint32));
        const auto value = qFromBigEndian<qint32>(m_bytes.constData());
        if (value < 0)
            return failure(Texts::tr("%1 cannot be negative.").arg(m_attribute));
        return Data::unsignedInteger(static_cast<std::uint64_t>(value));
    }

    mms::Result<Data> flag() const
    {
        if (m_bytes.size() != 1)
            return wrongSize(1);
        return Data::boolean(m_bytes.at(0) != 0);
    }

    acsi::Reference m_block;
    QString m_attribute;
    QByteArray m_bytes;
};

/// A text as a line of a form can hold it.
QString formText(QString text)
{
    for (QChar &character : text) {
        if (!character.isPrint() || character == QChar::ObjectReplacementCharacter)
            character = QLatin1Char(' ');
    }
    return text;
}

/// Whether a form that was filled with @p shown has been left as it was.
bool isAsShown(const QString &shown, const QString &edited)
{
    return formText(shown) == formText(edited);
}

/// The highest numbers that the form can hold.
constexpr qint32 highestPeriod = 100000;
constexpr qint32 highestBufferTime = 99999;

bool isAsShown(qint32 shown, qint32 edited, qint32 highest)
{
    return edited == shown || (shown > highest && edited == highest);
}

/// Settings after which a block has another buffer.
bool emptiesBuffer(const std::string &attribute)
{
    static const std::array<std::string_view, 6> names = {"DatSet", "RptID",  "TrgOps",
                                                          "BufTm",  "IntgPd", "PurgeBuf"};
    return std::ranges::find(names, attribute) != names.end();
}

/// Why a block refused, as far as somebody else has it: a sentence behind the device's.
asio::awaitable<QString> holderBehind(DevicePointer device, acsi::Reference block)
{
    const std::shared_ptr<acsi::Client> client = device->client();
    if (!client || !client->isOpen())
        co_return QString();
    const mms::Result<acsi::ReportBlock> read = co_await acsi::readReportBlock(client, block);
    const QString sentence =
        read ? device->part<ReportSubscriptions>().holderSentence(block, *read) : QString();
    co_return sentence.isEmpty() ? QString() : QLatin1Char(' ') + sentence;
}

asio::awaitable<Outcome> writeAttribute(ChangePointer change, QString ldName, QString name,
                                        QString attribute, QByteArray bytes)
{
    const DevicePointer device = change->device();
    const mms::Result<acsi::Reference> block = blockOf(ldName, name);
    if (!block)
        co_return Outcome::failed(block.error());
    mms::Result<Data> value = AttributeBytes(*block, attribute, bytes).toData();
    if (!value)
        co_return Outcome::failed(value.error());
    ReportSubscriptions &subscriptions = device->part<ReportSubscriptions>();
    if (attribute == QLatin1String("RptEna")) {
        if (value->toBoolean().value_or(false))
            co_return co_await subscriptions.enable(change, *block, acsi::ReportSettings());
        co_return co_await subscriptions.disable(change, *block);
    }

    std::string onDevice = attribute.toStdString();
    // Octets that are no text come back from the form as something else.
    const ReportSubscriptions::Shown *const shown = subscriptions.shown(*block);
    if (attribute == QLatin1String("RptID") && shown &&
        isAsShown(shown->record.rptId, QString::fromUtf8(bytes)))
        value = Data::visibleString(shown->block.rptId);
    const bool reserves = onDevice == "Resv" && value->toBoolean().value_or(false);
    // Buffered blocks are reserved for a time.
    const bool isTimed = onDevice == "Resv" && !hasAttribute(device, *block, "Resv") &&
                         hasAttribute(device, *block, "ResvTms");
    if (isTimed) {
        onDevice = "ResvTms";
        value = Data::integer(reserves ? reservation : 0);
    }
    acsi::Reference place = *block;
    place.path.push_back({onDevice, {}});
    const std::shared_ptr<acsi::Client> client = device->client();
    const mms::Result<Data> before = co_await client->readOne(acsi::accessOf(place));
    if (isTimed && before && before->toInteger().value_or(0) < 0) {
        co_return Outcome::failed(
            Texts::tr("The configuration of the device reserves %1; that cannot be changed.")
                .arg(text(acsi::toText(*block))));
    }
    change->setReference(text(acsi::toText(place)));
    change->setValues(before ? text(mms::toText(*before)) : QString(), text(mms::toText(*value)));
    const auto changing = change->client();
    if (!changing)
        co_return change->refusal();
    const mms::Result<void> written =
        co_await acsi::writeReportAttribute(changing, *block, onDevice, *value);
    if (written && isTimed)
        subscriptions.setReserved(*block, reserves);
    const bool isChange = !before || *before != *value || onDevice == "PurgeBuf";
    if (written && isChange && emptiesBuffer(onDevice))
        subscriptions.forgetEntries(*block);
    if (written && onDevice == "GI")
        subscriptions.setInterrogated(*block);
    if (written)
        co_return Outcome();
    const QString holder = co_await holderBehind(device, *block);
    co_return Outcome::failed(text(written.error().message) + holder);
}

mms::Result<acsi::ReportSettings> settingsFrom(const acsi::Reference &reference,
                                               const QString &rptId, const QString &dataSet,
                                               const ReportBlock &block,
                                               const ReportSubscriptions::Shown *shown)
{
    if (block.bufTm < 0 || block.intgPd < 0)
        return failure(Texts::tr("Buffer time and integrity period cannot be negative."));
    acsi::ReportSettings settings;
    // Texts that were left empty are not to be cleared on the device: without a data set there
    // would be nothing to report.
    const QString &identifier = rptId.isEmpty() ? block.rptId : rptId;
    if (!identifier.isEmpty() && !(shown && isAsShown(shown->record.rptId, identifier)))
        settings.rptId = identifier.toStdString();
    const QString &set = dataSet.isEmpty() ? block.datSet : dataSet;
    if (!set.isEmpty() && !(shown && isAsShown(shown->record.datSet, set)))
        settings.datSet = ReportDataSet::wire(reference, set);
    if (!shown || !isAsShown(shown->record.bufTm, block.bufTm, highestBufferTime))
        settings.bufTm = static_cast<std::uint32_t>(block.bufTm);
    if (!shown || !isAsShown(shown->record.intgPd, block.intgPd, highestPeriod))
        settings.intgPd = static_cast<std::uint32_t>(block.intgPd);
    const std::vector<std::uint8_t> triggers = {block.trgOps};
    const acsi::Triggers edited = acsi::Triggers::from(mms::BitString(triggers, 6));
    if (!shown || edited != shown->block.trgOps)
        settings.trgOps = edited;
    const std::vector<std::uint8_t> fields = {block.optFlds[0], block.optFlds[1]};
    acsi::OptFlds wanted = acsi::OptFlds::from(mms::BitString(fields, 10));
    if (shown) {
        acsi::OptFlds before = shown->block.optFlds;
        before.segmentation = wanted.segmentation;
        if (reference.constraint != FunctionalConstraint::BR) {
            // The form of an unbuffered block does not have these.
            before.bufferOverflow = wanted.bufferOverflow;
            before.entryId = wanted.entryId;
        }
        if (wanted != before)
            settings.optFlds = wanted;
    } else {
        settings.optFlds = wanted;
    }
    return settings;
}

asio::awaitable<Outcome> enableBlock(ChangePointer change, QString ldName, QString name,
                                     QString rptId, QString dataSet, ReportBlock block)
{
    const mms::Result<acsi::Reference> reference = blockOf(ldName, name);
    if (!reference)
        co_return Outcome::failed(reference.error());
    ReportSubscriptions &subscriptions = change->device()->part<ReportSubscriptions>();
    const mms::Result<acsi::ReportSettings> settings =
        settingsFrom(*reference, rptId, dataSet, block, subscriptions.shown(*reference));
    if (!settings)
        co_return Outcome::failed(settings.error());
    co_return co_await subscriptions.enable(change, *reference, *settings);
}

} // namespace

Result DeviceOperations::getBRCBValues(CalledDevice device, const QString &ldName,
                                       const QString &blockReference, ReportBlock &block)
{
    return readBlock(device, ldName, blockReference, &block);
}

ChangeOrder DeviceOperations::writeValue(Tool, const QString &ldName, const QString &blockReference,
                                         const QString &attribute, const QByteArray &value)
{
    ChangeIntent intent;
    intent.operation = QStringLiteral("writeValue");
    intent.reference = QStringLiteral("%1/%2$%3").arg(ldName, blockReference, attribute);
    return {std::move(intent), [ldName, blockReference, attribute, value](ChangePointer change) {
                return writeAttribute(std::move(change), ldName, blockReference, attribute, value);
            }};
}

ChangeOrder DeviceOperations::enableReportBlock(Tool, const QString &ldName,
                                                const QString &blockReference, const QString &rptId,
                                                const QString &dataSet, const ReportBlock &block)
{
    ChangeIntent intent;
    intent.operation = QStringLiteral("enableReportBlock");
    intent.reference = ldName + QLatin1Char('/') + blockReference;
    return {
        std::move(intent), [ldName, blockReference, rptId, dataSet, block](ChangePointer change) {
            return enableBlock(std::move(change), ldName, blockReference, rptId, dataSet, block);
        }};
}
