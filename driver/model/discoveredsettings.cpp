// SPDX-License-Identifier: Apache-2.0
// DiscoveredModel's settings of control blocks and revisions, which a device tells as values.
#include "discoveredmodel.h"

#include "filecomparison.h"

#include <algorithm>
#include <limits>

using namespace FileComparison;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

qint32 bounded(std::uint64_t number)
{
    constexpr std::uint64_t highest = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::min(number, highest));
}

/// The leaf that holds the configuration revision of a logical device; null when it has none.
DAO *revisionOf(const PhysicalDevice &device, const QString &logicalDevice)
{
    for (const LogicalDevice *each : device.logicalDevices) {
        if (each->name != logicalDevice)
            continue;
        for (const LogicalNode *node : each->logicalNodes) {
            if (node->name != QLatin1String("LLN0"))
                continue;
            for (const DataObject *object : node->dataObjects) {
                if (object->name != QLatin1String("NamPlt"))
                    continue;
                DAO *leaf = object->getDAOByName(QStringLiteral("configRev"));
                return leaf && leaf->attribute ? leaf : nullptr;
            }
        }
    }
    return nullptr;
}

} // namespace

void DiscoveredModel::setSettings(ReportControlBlock &block, const QString &logicalDevice,
                                  const acsi::ReportBlock &read, const ReportControlBlock *fromFile)
{
    block.enabled = read.rptEna;
    block.rptId = text(read.rptId);
    block.dataSet = dataSetName(text(read.datSet));
    block.confRev = bounded(read.confRev);
    block.integrityPeriod = bounded(read.intgPd);
    block.bufferTime = bounded(read.bufTm);
    block.triggerDataChange = read.trgOps.dataChange;
    block.triggerQualityChange = read.trgOps.qualityChange;
    block.triggerDataUpdate = read.trgOps.dataUpdate;
    block.triggerIntegrity = read.trgOps.integrity;
    block.triggerGeneralInterrogation = read.trgOps.generalInterrogation;
    block.optSequenceNumber = read.optFlds.sequenceNumber;
    block.optTimeStamp = read.optFlds.timeStamp;
    block.optReasonForInclusion = read.optFlds.reasonForInclusion;
    block.optDataSetName = read.optFlds.dataSetName;
    block.optDataReference = read.optFlds.dataReference;
    block.optBufferOverflow = read.optFlds.bufferOverflow;
    block.optEntryId = read.optFlds.entryId;
    block.optConfRevision = read.optFlds.confRevision;
    if (!fromFile)
        return;
    block.state =
        isAsConfigured(block, logicalDevice, read.datSet, *fromFile) ? agreeing : differing;
}

void DiscoveredModel::setRevision(PhysicalDevice &device, const QString &logicalDevice,
                                  const QString &revision, const PhysicalDevice *fromFile)
{
    const QString reference = logicalDevice + QStringLiteral("/LLN0$DC$NamPlt$configRev");
    DAO *node = revisionOf(device, logicalDevice);
    if (!node)
        return;
    if (!revision.isEmpty())
        node->attribute->value = revision;
    const DataAttribute *configured = fromFile ? fromFile->findTag(reference) : nullptr;
    const QString expected = configured ? configured->value.toString() : QString();
    if (node->state == agreeing && !expected.isEmpty() && expected != revision)
        node->state = differing;
}

void DiscoveredModel::setGroups(SettingGroupControl &control, const mms::TypeDescription &type,
                                const mms::Data &value)
{
    const auto number = [&](std::string_view name) -> qint32 {
        const std::span<const mms::Data> members = value.children();
        for (std::size_t i = 0; i < type.components.size() && i < members.size(); ++i) {
            if (type.components[i].name == name)
                return bounded(members[i].toUnsigned().value_or(0));
        }
        return 0;
    };
    const bool isCompared = control.numOfSG != 0;
    const qint32 configured = control.numOfSG;
    control.numOfSG = number("NumOfSG");
    control.activeGroup = number("ActSG");
    if (isCompared && control.state == agreeing && configured != control.numOfSG)
        control.state = differing;
}

const ReportControlBlock *DiscoveredModel::blockOf(const PhysicalDevice *device,
                                                   const QString &logicalDevice,
                                                   const QString &reference)
{
    if (!device)
        return nullptr;
    const QString nodeName = reference.section(QLatin1Char('$'), 0, 0);
    for (const LogicalDevice *each : device->logicalDevices) {
        if (each->name != logicalDevice)
            continue;
        for (const LogicalNode *node : each->logicalNodes) {
            if (node->name != nodeName)
                continue;
            for (const ReportControlBlock *block : qAsConst(node->reportControls->blocks)) {
                if (block->reference == reference)
                    return block;
            }
        }
    }
    return nullptr;
}
