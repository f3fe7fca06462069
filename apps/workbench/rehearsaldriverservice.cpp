// SPDX-License-Identifier: Apache-2.0
#include "rehearsaldriverservice.h"

#include <devicemodel/mmsvalue.h>
#include <tavrix/tavrix.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDataStream>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QtEndian>

namespace {

constexpr char eventBoxes[] = "MMS_DATACHANGE:";
constexpr char eventKey[] = "MMS_VALUE";
constexpr int optionalFieldBits = 10;
const QString settingConstraint = QStringLiteral("SG");

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RehearsalDriverService)
};

OperationResult failed(QString &error, const QString &sentence)
{
    error = sentence;
    return OperationFailed;
}

template <typename Visit>
void visitLeaves(const QList<DAO *> &nodes, Visit visit)
{
    for (DAO *node : nodes) {
        if (node->children.isEmpty() && node->attribute)
            visit(node->attribute);
        visitLeaves(node->children, visit);
    }
}

template <typename Visit>
void visitLeaves(const LogicalDevice &logicalDevice, Visit visit)
{
    for (const LogicalNode *logicalNode : logicalDevice.logicalNodes) {
        for (const DataObject *dataObject : logicalNode->dataObjects)
            visitLeaves(dataObject->attributes, visit);
    }
}

QString withoutLogicalDevice(const QString &reference)
{
    return reference.mid(reference.indexOf(QLatin1Char('/')) + 1);
}

/// The value as an attribute of that type holds it; invalid when it is none of that type.
QVariant converted(const QString &basicType, const QVariant &value)
{
    static const QStringList ordinals = {QStringLiteral("Enum"), QStringLiteral("Dbpos"),
                                         QStringLiteral("Tcmd"), QStringLiteral("Check"),
                                         QStringLiteral("INT8"), QStringLiteral("INT16"),
                                         QStringLiteral("INT32")};
    bool fits = true;
    QVariant result;
    if (basicType == QLatin1String("BOOLEAN"))
        result = value.toBool();
    else if (ordinals.contains(basicType))
        result = value.toInt(&fits);
    else if (basicType == QLatin1String("INT64"))
        result = value.toLongLong(&fits);
    else if (basicType == QLatin1String("INT64U"))
        result = value.toULongLong(&fits);
    else if (basicType.startsWith(QLatin1String("INT")))
        result = value.toUInt(&fits);
    else if (basicType == QLatin1String("FLOAT32"))
        result = value.toFloat(&fits);
    else if (basicType == QLatin1String("FLOAT64"))
        result = value.toDouble(&fits);
    else
        result = value.toString();
    return fits ? result : QVariant();
}

/// Bits of a bit string, bit 0 the most significant one of the first byte.
quint8 bitsOf(std::initializer_list<bool> flags)
{
    unsigned bits = 0;
    for (const bool flag : flags)
        bits = bits << 1U | (flag ? 1U : 0U);
    return static_cast<quint8>(bits);
}

QString bitText(const QByteArray &bytes)
{
    QString text;
    for (int bit = 0; bit < optionalFieldBits; ++bit) {
        const auto byte = static_cast<quint8>(bytes.size() > bit / 8 ? bytes[bit / 8] : 0);
        text += QLatin1Char((byte & (0x80U >> (bit % 8))) != 0 ? '1' : '0');
    }
    return text;
}

void setOptionalFields(ReportBlock &block, quint8 first, quint8 second)
{
    block.optFlds[0] = first;
    block.optFlds[1] = second;
    block.optFldsText =
        bitText(QByteArray(1, static_cast<char>(first)) + static_cast<char>(second));
}

ReportBlock configured(const ReportControlBlock &source)
{
    ReportBlock block;
    block.clientRptId = source.rptId;
    block.clientDataSet = source.dataSet;
    block.rptId = source.rptId;
    block.reference = source.reference;
    block.datSet = source.dataSet;
    block.confRev = source.confRev;
    block.intgPd = source.integrityPeriod;
    block.bufTm = source.bufferTime;
    block.rptEna = source.enabled;
    block.trgOps = bitsOf({false, source.triggerDataChange, source.triggerQualityChange,
                           source.triggerDataUpdate, source.triggerIntegrity,
                           source.triggerGeneralInterrogation, false, false});
    setOptionalFields(
        block,
        bitsOf({false, source.optSequenceNumber, source.optTimeStamp, source.optReasonForInclusion,
                source.optDataSetName, source.optDataReference, source.optBufferOverflow,
                source.optEntryId}),
        bitsOf({source.optConfRevision, false, false, false, false, false, false, false}));
    return block;
}

qint32 number(const QByteArray &bytes)
{
    return bytes.size() < int(sizeof(qint32)) ? 0 : qFromBigEndian<qint32>(bytes.constData());
}

bool flag(const QByteArray &bytes)
{
    return !bytes.isEmpty() && bytes[0] != '\0';
}

NameVaildValue entry(const QString &name)
{
    return {name, true, {}};
}

} // namespace

RehearsalDriverService::RehearsalDriverService(const QByteArray &model)
{
    QDataStream stream(model);
    m_device.fromStream(stream);
    m_device.offline = false;
    for (const LogicalDevice *device : qAsConst(m_device.logicalDevices)) {
        takeSettingGroups(*device);
        takeReportBlocks(*device);
    }
    fillFileStore();
}

OperationResult RehearsalDriverService::getIEDModel(long, QByteArray &model, QString &)
{
    model.clear();
    QDataStream stream(&model, QIODevice::WriteOnly);
    m_device.toStream(stream);
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getServerDirectory(long, QList<NameVaildValue> &list,
                                                           QString &)
{
    list.clear();
    for (const LogicalDevice *device : qAsConst(m_device.logicalDevices))
        list << entry(device->name);
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getLogicalDeviceDirectory(long, const QString &ldName,
                                                                  QList<NameVaildValue> &list,
                                                                  QString &error)
{
    const LogicalDevice *device = logicalDevice(ldName);
    if (!device)
        return failed(error, Texts::tr("There is no logical device \"%1\".").arg(ldName));
    list.clear();
    for (const LogicalNode *logicalNode : device->logicalNodes)
        list << entry(logicalNode->name);
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getLogicalNodeDirectory(long, const QString &,
                                                                const QString &,
                                                                QList<NameVaildValue> &, QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getDataDirectory(long, const QString &, const QString &,
                                                         QList<NameVaildValue> &, QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getDataSetList(long, const QString &,
                                                       QList<NameVaildValue> &, QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getDataSetDirectory(long, const QString &, const QString &,
                                                            QList<NameVaildValue> &, QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getXRCB(long, const QString &, const QString &,
                                                const QString &, QList<NameVaildValue> &, QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getSGCBBlock(long, const QString &, QList<NameVaildValue> &,
                                                     QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::readVariable(long deviceNo, const QString &ldName,
                                                     const QStringList &references, QString &error)
{
    QList<const DataAttribute *> attributes;
    for (const QString &reference : references)
        attributes += attributesBelow(ldName + QLatin1Char('/') + reference);
    if (attributes.isEmpty()) {
        return failed(
            error,
            Texts::tr("There is nothing at \"%1\".").arg(references.join(QStringLiteral(", "))));
    }
    return publish(deviceNo, attributes, error);
}

OperationResult RehearsalDriverService::readDataSetValue(long deviceNo, const QString &ldName,
                                                         const QString &dataSetReference,
                                                         QString &error)
{
    const DataSet *dataSet = nullptr;
    const LogicalDevice *device = logicalDevice(ldName);
    const QString nodeName = dataSetReference.section(QLatin1Char('$'), 0, 0);
    const QString name = dataSetReference.section(QLatin1Char('$'), 1);
    for (int i = 0; device && i < device->logicalNodes.size(); ++i) {
        if (device->logicalNodes[i]->name == nodeName)
            dataSet = device->logicalNodes[i]->dataSet(name);
    }
    if (!dataSet)
        return failed(error, Texts::tr("There is no data set \"%1\".").arg(dataSetReference));
    QList<const DataAttribute *> attributes;
    for (const DataSetMember *member : dataSet->members)
        attributes += attributesBelow(member->reference);
    return publish(deviceNo, attributes, error);
}

OperationResult RehearsalDriverService::writeVariable(long, const QString &ldName,
                                                      const QString &reference,
                                                      const QByteArray &value, QString &error)
{
    QVariant written;
    QDataStream stream(value);
    stream >> written;
    return store(m_device.findTag(ldName + QLatin1Char('/') + reference), written, error);
}

OperationResult RehearsalDriverService::writeValue(long, const QString &ldName,
                                                   const QString &blockReference,
                                                   const QString &attribute,
                                                   const QByteArray &value, QString &error)
{
    ReportBlock *block = reportBlock(ldName, blockReference, error);
    if (!block)
        return OperationFailed;
    if (attribute == QLatin1String("RptID"))
        block->rptId = QString::fromUtf8(value);
    else if (attribute == QLatin1String("DatSet"))
        block->datSet = QString::fromUtf8(value);
    else if (attribute == QLatin1String("TrgOps"))
        block->trgOps = static_cast<quint8>(value.isEmpty() ? 0 : value[0]);
    else if (attribute == QLatin1String("OptFlds") && value.size() == 2)
        setOptionalFields(*block, static_cast<quint8>(value[0]), static_cast<quint8>(value[1]));
    else if (attribute == QLatin1String("IntgPd"))
        block->intgPd = number(value);
    else if (attribute == QLatin1String("BufTm"))
        block->bufTm = number(value);
    else if (attribute == QLatin1String("RptEna"))
        block->rptEna = flag(value);
    else if (attribute == QLatin1String("Resv"))
        block->resv = flag(value);
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::selectObject(long, const QString &, const QString &,
                                                     const QByteArray &, QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::controlObject(long deviceNo, const QString &ldName,
                                                      const QString &objectReference,
                                                      const QByteArray &controlBlock,
                                                      QString &error)
{
    QString reference;
    double controlValue = 0;
    QDataStream stream(controlBlock);
    stream.setVersion(QDataStream::Qt_5_12);
    stream >> reference >> controlValue;
    if (stream.status() != QDataStream::Ok)
        return failed(error, Texts::tr("The control request cannot be read."));
    QString status = objectReference + QStringLiteral("$stVal");
    status.replace(QStringLiteral("$CO$"), QStringLiteral("$ST$"));
    DataAttribute *stVal = m_device.findTag(ldName + QLatin1Char('/') + status);
    if (!stVal)
        return OperationSucceeded;
    // A double point is commanded off and on by 0 and 1; its positions off and on are 1 and 2.
    const bool isDoublePoint = stVal->basicType == QLatin1String("Dbpos");
    const OperationResult result =
        store(stVal, qRound(controlValue) + (isDoublePoint ? 1 : 0), error);
    return result == OperationSucceeded ? publish(deviceNo, {stVal}, error) : result;
}

OperationResult RehearsalDriverService::cancelObject(long, const QString &, const QString &,
                                                     const QByteArray &, QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::createDataSet(long, const QString &, const QString &,
                                                      const QString &, int, QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::deleteDataSet(long, const QString &, const QString &,
                                                      QString &)
{
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getFileDirectory(long, const QString &,
                                                         const QString &directory,
                                                         QList<MMSFileEntry> &entries, QString &)
{
    QString path = directory;
    if (!path.isEmpty() && !path.endsWith(QLatin1Char('\\')))
        path += QLatin1Char('\\');
    entries.clear();
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        if (!file.key().startsWith(path))
            continue;
        MMSFileEntry found;
        found.directory = directory;
        found.name = file.key().mid(path.size());
        found.lastModified = file->modified;
        found.size = static_cast<quint32>(file->content.size());
        if (const int separator = found.name.indexOf(QLatin1Char('\\')); separator >= 0) {
            found.name.truncate(separator + 1);
            found.size = 0;
            if (!entries.isEmpty() && entries.last().name == found.name)
                continue;
        }
        entries << found;
    }
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getFile(long, const QString &fileName, QByteArray &content,
                                                QString &error)
{
    const auto file = m_files.constFind(fileName);
    if (file == m_files.constEnd())
        return failed(error, Texts::tr("There is no file \"%1\".").arg(fileName));
    content = file->content;
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::deleteFile(long, const QString &fileName, QString &error)
{
    if (m_files.remove(fileName) == 0)
        return failed(error, Texts::tr("There is no file \"%1\".").arg(fileName));
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::writeFile(long, const QString &localFile,
                                                  const QString &fileName, QString &error)
{
    QFile source(localFile);
    if (!source.open(QIODevice::ReadOnly)) {
        return failed(
            error,
            Texts::tr("The file \"%1\" cannot be read: %2").arg(localFile, source.errorString()));
    }
    m_files.insert(fileName,
                   {source.readAll(), static_cast<quint32>(QDateTime::currentSecsSinceEpoch())});
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getBRCBValues(long, const QString &ldName,
                                                      const QString &blockReference,
                                                      ReportBlock &block, QString &error)
{
    const ReportBlock *found = reportBlock(ldName, blockReference, error);
    if (!found)
        return OperationFailed;
    block = *found;
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::enableReportBlock(long, const QString &ldName,
                                                          const QString &blockReference,
                                                          const QString &rptId, const QString &,
                                                          const ReportBlock &block, QString &error)
{
    ReportBlock *found = reportBlock(ldName, blockReference, error);
    if (!found)
        return OperationFailed;
    found->rptId = rptId;
    found->datSet = block.datSet;
    found->trgOps = block.trgOps;
    found->intgPd = block.intgPd;
    found->bufTm = block.bufTm;
    setOptionalFields(*found, block.optFlds[0], block.optFlds[1]);
    found->rptEna = true;
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getSGCB(long, const QString &sgcbReference, SGCB &block,
                                                QString &error)
{
    const SettingGroups *found = settingGroups(sgcbReference, error);
    if (!found)
        return OperationFailed;
    block = found->block;
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::getSGCBValue(long, const QString &sgcbReference,
                                                     const QString &fc, QList<SGCBValue> &values,
                                                     QString &error)
{
    const SettingGroups *found = settingGroups(sgcbReference, error);
    if (!found)
        return OperationFailed;
    const bool edited = fc != settingConstraint && found->block.editSG > 0;
    const Settings &group = found->groups[(edited ? found->block.editSG : found->block.actSG) - 1];
    values.clear();
    for (const QString &reference : found->references)
        values.append({withoutLogicalDevice(reference), group.value(reference)});
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::setSGCBValues(long, const QString &sgcbReference,
                                                      const QList<SGCBValue> &values,
                                                      QString &error)
{
    SettingGroups *found = settingGroups(sgcbReference, error);
    if (!found)
        return OperationFailed;
    if (found->block.editSG == 0)
        return failed(error, Texts::tr("No setting group is selected for editing."));
    Settings &group = found->groups[found->block.editSG - 1];
    for (const SGCBValue &value : values) {
        const QString reference = sgcbReference + QLatin1Char('/') + value.name;
        if (group.contains(reference))
            group[reference] = value.value;
    }
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::selectEditSG(long, const QString &sgcbReference, int group,
                                                     QString &error)
{
    SettingGroups *found = settingGroups(sgcbReference, error);
    if (!found)
        return OperationFailed;
    if (group < 0 || group > found->groups.size())
        return failed(error, Texts::tr("There is no setting group %1.").arg(group));
    found->block.editSG = static_cast<quint8>(group);
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::selectActiveSG(long, const QString &sgcbReference,
                                                       int group, QString &error)
{
    SettingGroups *found = settingGroups(sgcbReference, error);
    if (!found)
        return OperationFailed;
    if (group < 1 || group > found->groups.size())
        return failed(error, Texts::tr("There is no setting group %1.").arg(group));
    found->block.actSG = static_cast<quint8>(group);
    for (const QString &reference : qAsConst(found->references))
        m_device.findTag(reference)->value = found->groups[group - 1].value(reference);
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::abortClose(long)
{
    return OperationSucceeded;
}

void RehearsalDriverService::takeSettingGroups(const LogicalDevice &logicalDevice)
{
    for (const LogicalNode *logicalNode : logicalDevice.logicalNodes) {
        const SettingGroupControl *control = logicalNode->settingGroup;
        if (!control || control->numOfSG < 1 || control->numOfSG > UINT8_MAX)
            continue;
        SettingGroups found;
        found.block.name = control->name;
        found.block.numOfSG = static_cast<quint8>(control->numOfSG);
        found.block.actSG = static_cast<quint8>(qBound(1, control->activeGroup, control->numOfSG));
        Settings settings;
        visitLeaves(logicalDevice, [&](const DataAttribute *attribute) {
            if (attribute->fc != settingConstraint)
                return;
            found.references << attribute->reference;
            settings.insert(attribute->reference, attribute->value);
        });
        found.groups.fill(settings, control->numOfSG);
        m_settingGroups.insert(logicalDevice.name, found);
    }
}

void RehearsalDriverService::takeReportBlocks(const LogicalDevice &logicalDevice)
{
    for (const LogicalNode *logicalNode : logicalDevice.logicalNodes) {
        for (const ReportControlBlock *block : qAsConst(logicalNode->reportControls->blocks)) {
            m_reportBlocks.insert(logicalDevice.name + QLatin1Char('/') + block->reference,
                                  configured(*block));
        }
    }
}

void RehearsalDriverService::fillFileStore()
{
    constexpr quint32 someMorning = 1715675467; // 2024-05-14 08:31:07 UTC
    constexpr quint32 halfDay = 43200;
    const auto add = [this](const QString &path, int size, quint32 modified) {
        m_files.insert(path, {QByteArray(size, ' '), modified});
    };
    quint32 recorded = someMorning;
    for (const int fault : {17, 18, 19}) {
        const QString record =
            QStringLiteral("COMTRADE\\FRA%1").arg(fault, 5, 10, QLatin1Char('0'));
        add(record + QStringLiteral(".cfg"), 1846, recorded);
        add(record + QStringLiteral(".dat"), 96000 + 1200 * fault, recorded);
        add(record + QStringLiteral(".hdr"), 412, recorded);
        recorded += 5 * halfDay;
    }
    add(QStringLiteral("SCL\\") + m_device.name + QStringLiteral(".cid"), 212480,
        someMorning - 60 * halfDay);
    add(QStringLiteral("events.log"), 18204, recorded);
    add(QStringLiteral("settings.xml"), 40310, someMorning - 58 * halfDay);
}

RehearsalDriverService::SettingGroups *
RehearsalDriverService::settingGroups(const QString &logicalDevice, QString &error)
{
    const auto found = m_settingGroups.find(logicalDevice);
    if (found != m_settingGroups.end())
        return &*found;
    error = Texts::tr("\"%1\" has no setting groups.").arg(logicalDevice);
    return nullptr;
}

ReportBlock *RehearsalDriverService::reportBlock(const QString &ldName,
                                                 const QString &blockReference, QString &error)
{
    const auto found = m_reportBlocks.find(ldName + QLatin1Char('/') + blockReference);
    if (found != m_reportBlocks.end())
        return &*found;
    error = Texts::tr("There is no report control block \"%1\".").arg(blockReference);
    return nullptr;
}

const LogicalDevice *RehearsalDriverService::logicalDevice(const QString &ldName) const
{
    for (const LogicalDevice *device : m_device.logicalDevices) {
        if (device->name == ldName)
            return device;
    }
    return nullptr;
}

/// The attributes without further ones that a reference names, itself or by what is above them.
QList<const DataAttribute *> RehearsalDriverService::attributesBelow(const QString &reference) const
{
    QList<const DataAttribute *> attributes;
    const QString above = reference + QLatin1Char('$');
    const QString array = reference + QLatin1Char('(');
    const LogicalDevice *device = logicalDevice(reference.section(QLatin1Char('/'), 0, 0));
    if (!device)
        return attributes;
    visitLeaves(*device, [&](const DataAttribute *attribute) {
        if (attribute->reference == reference || attribute->reference.startsWith(above) ||
            attribute->reference.startsWith(array))
            attributes << attribute;
    });
    return attributes;
}

OperationResult RehearsalDriverService::store(DataAttribute *attribute, const QVariant &value,
                                              QString &error)
{
    if (!attribute)
        return failed(error, Texts::tr("There is no such attribute."));
    const QVariant stored = converted(attribute->basicType, value);
    if (!stored.isValid()) {
        return failed(error, Texts::tr("\"%1\" is no value of the type %2.")
                                 .arg(value.toString(), attribute->basicType));
    }
    attribute->value = stored;
    return OperationSucceeded;
}

OperationResult RehearsalDriverService::publish(long deviceNo,
                                                const QList<const DataAttribute *> &attributes,
                                                QString &error) const
{
    QList<QByteArray> records;
    const auto post = [&records] {
        const int result = Tavrix::PostEvent(eventBoxes, eventKey, records);
        records.clear();
        return result == Tavrix::Success;
    };
    bool posted = true;
    for (const DataAttribute *attribute : attributes) {
        if (!attribute->value.isValid())
            continue;
        MMSValue value;
        value.value = attribute->value;
        value.reference = attribute->reference;
        value.deviceNo = static_cast<qint32>(deviceNo);
        QByteArray record;
        QDataStream stream(&record, QIODevice::WriteOnly);
        value.toStream(stream);
        records << record;
        if (records.size() == Tavrix::maxRecordsPerEvent)
            posted = post() && posted;
    }
    posted = post() && posted;
    return posted ? OperationSucceeded
                  : failed(error, Texts::tr("The values cannot be published."));
}
