// SPDX-License-Identifier: Apache-2.0
#include "filecomparison.h"

#include "acsi/dataset.h"
#include "acsi/reference.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

/// Places in @p names of those that stand at another place among the names of both, or in
/// @p others not at all.
std::vector<bool> moved(const QStringList &names, const QStringList &others)
{
    const QSet<QString> own(names.begin(), names.end());
    QStringList common;
    std::copy_if(others.begin(), others.end(), std::back_inserter(common),
                 [&own](const QString &name) { return own.contains(name); });
    const QSet<QString> shared(common.begin(), common.end());
    std::vector<bool> result;
    int place = 0;
    for (const QString &name : names)
        result.push_back(!shared.contains(name) || common.value(place++) != name);
    return result;
}

} // namespace

std::unique_ptr<DAO> FileComparison::absentCopy(const DAO &source)
{
    auto copy = std::make_unique<DAO>();
    copy->state = absent;
    if (source.attribute) {
        copy->attribute = new DataAttribute(*source.attribute);
        copy->attribute->present = false;
        copy->attribute->value = QVariant();
    } else if (source.subDataObject) {
        copy->subDataObject = new SubDataObject(*source.subDataObject);
    }
    for (const DAO *child : source.children)
        copy->children.append(absentCopy(*child).release());
    return copy;
}

std::unique_ptr<DataObject> FileComparison::absentCopy(const DataObject &source)
{
    auto copy = std::make_unique<DataObject>();
    copy->present = false;
    copy->name = source.name;
    copy->type = source.type;
    for (const DAO *child : source.attributes)
        copy->attributes.append(absentCopy(*child).release());
    return copy;
}

std::unique_ptr<DataSet> FileComparison::absentCopy(const DataSet &source)
{
    auto copy = std::make_unique<DataSet>();
    copy->state = 0;
    copy->name = source.name;
    for (const DataSetMember *member : source.members)
        copy->members.append(new DataSetMember{absent, member->reference});
    return copy;
}

std::unique_ptr<LogicalNode> FileComparison::absentCopy(const LogicalNode &source)
{
    auto copy = std::make_unique<LogicalNode>();
    copy->present = false;
    copy->lnClass = source.lnClass;
    copy->name = source.name;
    for (const DataObject *object : source.dataObjects)
        copy->dataObjects.append(absentCopy(*object).release());
    for (const DataSet *set : source.dataSetGroup->dataSets)
        copy->dataSetGroup->dataSets.append(absentCopy(*set).release());
    for (const ReportControlBlock *block : source.reportControls->blocks) {
        auto *missing = new ReportControlBlock(*block);
        missing->state = absent;
        copy->reportControls->blocks.append(missing);
    }
    if (source.settingGroup) {
        copy->settingGroup = new SettingGroupControl(*source.settingGroup);
        copy->settingGroup->state = absent;
    }
    return copy;
}

std::unique_ptr<LogicalDevice> FileComparison::absentCopy(const LogicalDevice &source)
{
    auto copy = std::make_unique<LogicalDevice>();
    copy->present = false;
    copy->name = source.name;
    for (const LogicalNode *node : source.logicalNodes)
        copy->logicalNodes.append(absentCopy(*node).release());
    return copy;
}

QSet<QString> FileComparison::outOfOrder(const QStringList &names, const QStringList &fileNames)
{
    QSet<QString> result;
    const std::vector<bool> places = moved(names, fileNames);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const QString &name = names.at(static_cast<int>(i));
        if (places[i] && fileNames.contains(name))
            result.insert(name);
    }
    return result;
}

void FileComparison::fillDataSet(DataSet &shown, const acsi::DataSetDescription &set,
                                 const DataSet *file)
{
    shown.deletable = set.deletable;
    if (set.members.empty())
        return;
    QStringList fileMembers;
    if (file) {
        for (const DataSetMember *member : file->members)
            fileMembers.append(member->reference);
    }
    QStringList members;
    for (const mms::VariableAccess &member : set.members) {
        const mms::Result<acsi::Reference> reference = acsi::referenceOf(member);
        members.append(text(reference ? acsi::toText(*reference) : mms::toText(member)));
    }
    const std::vector<bool> places = moved(members, fileMembers);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const QString &name = members.at(static_cast<int>(i));
        quint8 state = agreeing;
        if (file && places[i])
            state = fileMembers.contains(name) ? differing : additional;
        shown.members.append(new DataSetMember{state, name});
    }
    for (const QString &name : qAsConst(fileMembers)) {
        if (!members.contains(name))
            shown.members.append(new DataSetMember{absent, name});
    }
}

bool FileComparison::isAsConfigured(const ReportControlBlock &block, const QString &logicalDevice,
                                    std::string_view dataSet, const ReportControlBlock &file)
{
    // A name alone would be the same in another logical node or device.
    const std::string domain = logicalDevice.toStdString();
    const QString node = file.reference.section(QLatin1Char('$'), 0, 0);
    bool sameDataSet = file.dataSet.isEmpty() == dataSet.empty();
    if (sameDataSet && !dataSet.empty()) {
        const mms::Result<mms::ObjectName> given = acsi::dataSetName(domain, dataSet);
        const QString expected = node + QLatin1Char('$') + file.dataSet;
        sameDataSet = given && *given == mms::ObjectName::inDomain(domain, expected.toStdString());
    }
    // Without a configured identifier the device takes the block's reference.
    const bool sameId = file.rptId.isEmpty() || file.rptId == block.rptId;
    // Unbuffered blocks have neither overflow nor entries.
    const bool isBuffered = file.type == QLatin1String("BR");
    const bool sameEntries = !isBuffered || (block.optBufferOverflow == file.optBufferOverflow &&
                                             block.optEntryId == file.optEntryId);
    return sameId && sameEntries && sameDataSet && block.confRev == file.confRev &&
           block.integrityPeriod == file.integrityPeriod && block.bufferTime == file.bufferTime &&
           block.triggerDataChange == file.triggerDataChange &&
           block.triggerQualityChange == file.triggerQualityChange &&
           block.triggerDataUpdate == file.triggerDataUpdate &&
           block.triggerIntegrity == file.triggerIntegrity &&
           block.triggerGeneralInterrogation == file.triggerGeneralInterrogation &&
           block.optSequenceNumber == file.optSequenceNumber &&
           block.optTimeStamp == file.optTimeStamp &&
           block.optReasonForInclusion == file.optReasonForInclusion &&
           block.optDataSetName == file.optDataSetName &&
           block.optDataReference == file.optDataReference &&
           block.optConfRevision == file.optConfRevision;
}
